// Any message's headers decode or do not. A header that was decoded is encoded, stored and restored, set into the
// message and found there again: its lines stay, from the first encoding on, and so does the header. Each value of a
// list decodes or does not, and may be put back. What was changed is a message like any other.
#include "fuzz.h"

#include "header_functions.h"

namespace {

using ObjPtr   = pb::Ref< PbObj >;
using FieldPtr = pb::Ref< SipsnMessageHeader >;

// A header type; its last functions are there for lists of values.
struct Family : HeaderFunctions
{
    explicit Family( const std::string &type, const std::string &items = "", const std::string &item = "" )
        : HeaderFunctions{ type }, length{ Find< int64_t( PbObj * ) >( items + "Length" ) },
          tryDecodeAt{ Find< PbObj *( PbObj *, int64_t ) >( "TryDecode" + item + "At" ) },
          setAt{ Find< void( PbObj **, int64_t, PbObj * ) >( "Set" + item + "At" ) }, isLength{ type ==
                                                                                                "ContentLength" }
    {}

    int64_t ( *length )( PbObj *hdr );
    PbObj *( *tryDecodeAt )( PbObj *hdr, int64_t index );
    void ( *setAt )( PbObj **hdr, int64_t index, PbObj *value );
    bool isLength; // which a message is given when it is encoded
};

const std::vector< Family > &Families()
{
    static const std::vector< Family > families{
#define VALUES( Type, name, compact, rfc, Items, Item, Value ) Family( #Type, #Items, #Item ),
#define TOKENS( Type, ... )                                    Family( #Type ),
#define SINGLE( Type, ... )                                    Family( #Type ),
#include "sipsn/sipsn_families.inc"
    };
    return families;
}

bool Same( PbObj *a, PbObj *b ) { return a && b ? pbObjCompare( a, b ) == 0 : a == b; }

// Whether the headers have the same lines, but for blanks at the end, which may stand behind the ">" of a list's item
// and never come back from the wire.
bool SameLines( const Family &family, PbObj *a, PbObj *b )
{
    const auto line = []( SipsnMessageHeader *field, int64_t at ) {
        pb::Ref text{ sipsnMessageHeaderLineAt( field, at ) };
        auto    length = pbStringLength( text.Get() );
        for( const PbChar *chs = pbStringBacking( text.Get() ); length > 0; --length )
            if( chs[ length - 1 ] != ' ' && chs[ length - 1 ] != '\t' ) break;
        return pb::Ref{ pbStringCreateFromCharsCopy( pbStringBacking( text.Get() ), length ) };
    };
    const FieldPtr fieldA{ family.encode( a ) }, fieldB{ family.encode( b ) };
    const int64_t  count = sipsnMessageHeaderLinesLength( fieldA.Get() );
    if( count != sipsnMessageHeaderLinesLength( fieldB.Get() ) ) return false;
    for( int64_t at = 0; at < count; ++at )
        if( !pbStringEquals( line( fieldA.Get(), at ).Get(), line( fieldB.Get(), at ).Get() ) ) return false;
    return true;
}

// A value may be put back in its place. Whether it can be read from there is the value's affair: see fuzz_value.
void CheckValues( const Family &family, PbObj *hdr )
{
    const int64_t length = family.length( hdr );
    for( int64_t at = 0; at < std::min( length, int64_t{ 8 } ); ++at ) {
        const ObjPtr value{ family.tryDecodeAt( hdr, at ) };
        if( !value ) continue;
        ObjPtr changed{ pb::Retain( hdr ) };
        family.setAt( changed.Slot(), at, value.Get() );
        const ObjPtr valueAgain{ family.tryDecodeAt( changed.Get(), at ) };
        REQUIRE( family.length( changed.Get() ) == length );
    }
}

ObjPtr Restored( const Family &family, PbObj *hdr )
{
    pb::Ref store{ family.store( hdr ) };
    return ObjPtr{ family.tryRestore( store.Get() ) };
}

void CheckHeader( const Family &family, PbObj *hdr, SipsnMessage **msg )
{
    const FieldPtr field{ family.encode( hdr ) };
    family.encodeToMessage( hdr, msg );
    REQUIRE( family.presentInMessage( *msg ) );
    const ObjPtr found{ family.tryDecodeFromMessage( *msg ) };
    if( sipsnMessageHeaderLinesLength( field.Get() ) == 0 ) { // the lines that it came from were empty
        REQUIRE( !found );
        return;
    }

    // What is not written, a generic parameter of the name of a member, is gone after one way.
    const ObjPtr restored = Restored( family, hdr );
    const ObjPtr again{ family.tryDecode( field.Get() ) };
    REQUIRE( found && Same( found.Get(), restored.Get() ) && Same( found.Get(), again.Get() ) );
    REQUIRE( Same( found.Get(), Restored( family, found.Get() ).Get() ) );
    const FieldPtr fieldAgain{ family.encode( found.Get() ) };
    REQUIRE( sipsnMessageHeaderEquals( field.Get(), fieldAgain.Get() ) );
    if( family.length ) {
        REQUIRE( Same( hdr, found.Get() ) );
        CheckValues( family, hdr );
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput( const uint8_t *data, size_t size )
{
    fuzz::Start();
    pb::Ref msg{ sipsnMessageTryDecode( fuzz::Buffer( data, size ).Get() ) };
    if( !msg ) return 0;
    for( const Family &family : Families() )
        if( const ObjPtr hdr{ family.tryDecodeFromMessage( msg.Get() ) } ) CheckHeader( family, hdr.Get(), msg.Slot() );

    pb::Ref bytes{ sipsnMessageEncode( msg.Get() ) };
    pb::Ref again{ sipsnMessageTryDecode( bytes.Get() ) };
    REQUIRE( bool( again ) );
    for( const Family &family : Families() ) {
        if( family.isLength ) continue;
        const ObjPtr hdr{ family.tryDecodeFromMessage( msg.Get() ) };
        const ObjPtr decoded{ family.tryDecodeFromMessage( again.Get() ) };
        REQUIRE( Same( hdr.Get(), decoded.Get() ) || ( hdr && decoded && family.length ) );
        REQUIRE( !hdr || SameLines( family, hdr.Get(), decoded.Get() ) );
    }
    return 0;
}
