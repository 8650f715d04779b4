// A message keeps header fields as the lines that were decoded, or as the objects that were set, and nobody can tell
// which: a message as it was decoded and the same with all headers set answer alike, also after the same changes. A
// message that shares its headers with one that is changed stays as it was. The first four bytes of the input say what
// is changed; the rest is the message.
#include "fuzz.h"

#include "header_functions.h"

namespace {

using ObjPtr     = pb::Ref< PbObj >;
using FieldPtr   = pb::Ref< SipsnMessageHeader >;
using MessagePtr = pb::Ref< SipsnMessage >;

struct Family : HeaderFunctions
{
    Family( const std::string &type, const char *ownName ) : HeaderFunctions{ type }, name{ ownName } {}

    FieldPtr Field( SipsnMessage *msg ) const { return FieldPtr{ sipsnMessageHeaderCstr( msg, name, -1 ) }; }

    const char *name;
};

const std::vector< Family > &Families()
{
    static const std::vector< Family > families{
#define FAMILY( Type, name, compact, rfc ) Family( #Type, name ),
#include "sipsn/sipsn_families.inc"
    };
    return families;
}

bool Same( PbObj *a, PbObj *b ) { return a && b ? pbObjCompare( a, b ) == 0 : a == b; }

bool SameBytes( SipsnMessage *msg, PbBuffer *bytes )
{
    return pbBufferEquals( pb::Ref{ sipsnMessageEncode( msg ) }.Get(), bytes );
}

FieldPtr FieldAt( PbVector *fields, int64_t at )
{
    return FieldPtr{ sipsnMessageHeaderFrom( ObjPtr{ pbVectorAt( fields, at ) }.Detach() ) };
}

// The same message with each header in it as an object.
MessagePtr WithObjects( SipsnMessage *msg )
{
    MessagePtr    made{ pb::Retain( msg ) };
    const pb::Ref fields{ sipsnMessageHeadersVector( msg ) };
    for( int64_t at = 0; at < pbVectorLength( fields.Get() ); ++at )
        sipsnMessageSetHeader( made.Slot(), FieldAt( fields.Get(), at ).Get() );
    return made;
}

void RequireAlike( SipsnMessage *a, SipsnMessage *b )
{
    REQUIRE( SameBytes( a, pb::Ref{ sipsnMessageEncode( b ) }.Get() ) );
    const pb::Ref fields{ sipsnMessageHeadersVector( a ) };
    REQUIRE( pbVectorEquals( fields.Get(), pb::Ref{ sipsnMessageHeadersVector( b ) }.Get() ) );
    for( int64_t at = 0; at < pbVectorLength( fields.Get() ); ++at ) {
        const FieldPtr field = FieldAt( fields.Get(), at );
        const pb::Ref  name{ sipsnMessageHeaderName( field.Get() ) };
        for( SipsnMessage *msg : { a, b } ) {
            const FieldPtr found{ sipsnMessageHeader( msg, name.Get() ) };
            REQUIRE( sipsnMessageHasHeader( msg, name.Get() ) );
            REQUIRE( found && sipsnMessageHeaderEquals( found.Get(), field.Get() ) );
        }
    }
    for( const Family &family : Families() ) {
        const FieldPtr field = family.Field( a );
        const ObjPtr   hdr{ family.tryDecodeFromMessage( a ) };
        REQUIRE( family.presentInMessage( a ) == bool( field ) && family.presentInMessage( b ) == bool( field ) );
        REQUIRE( Same( hdr.Get(), ObjPtr{ family.tryDecodeFromMessage( b ) }.Get() ) );
        if( field && sipsnMessageHeaderLinesLength( field.Get() ) > 0 )
            REQUIRE( Same( hdr.Get(), ObjPtr{ family.tryDecode( field.Get() ) }.Get() ) );
    }
}

void PushVia( SipsnMessage **msg )
{
    const pb::Ref version{ sipsnVersionCreateSip20() };
    const pb::Ref via{ sipsnViaCreateDummy( version.Get() ) };
    const pb::Ref unique{ pbStringCreateFromCstr( "1", -1 ) };
    sipsnMessagePushVia( msg, via.Get(), unique.Get() );
}

void ClearHeaders( SipsnMessage **msg )
{
    pb::Ref frag{ sipsnMessageFragment( *msg ) };
    sipsnMessageFragmentClearHeaders( frag.Slot() );
    const MessagePtr before{ *msg };
    *msg = sipsnMessageCreate( frag.Get() );
}

// Kinds are below 8. A place, below 32, stands for a family, or for one of the headers that are there.
void Change( SipsnMessage **msg, size_t kind, size_t place )
{
    const pb::Ref fields{ sipsnMessageHeadersVector( *msg ) };
    const int64_t count = pbVectorLength( fields.Get() );
    if( kind == 0 ) return PushVia( msg );
    if( kind == 1 && place == 0 ) return ClearHeaders( msg );

    FieldPtr field{ sipsnMessageHeaderCreateCstr( Families()[ place * Families().size() / 32 ].name, -1 ) };
    if( kind > 1 && count > 0 ) field = FieldAt( fields.Get(), int64_t( place ) % count );
    const pb::Ref name{ sipsnMessageHeaderName( field.Get() ) };
    if( kind == 2 ) return sipsnMessageDelHeader( msg, name.Get() );
    if( kind < 5 ) {
        if( kind > 3 ) sipsnMessageHeaderAppendLineCstr( field.Slot(), "1", -1 );
        return sipsnMessageSetHeader( msg, field.Get() );
    }
    for( const Family &family : Families() ) {
        if( !sipsnMessageHeaderNameEqualsCstr( field.Get(), family.name, -1 ) ) continue;
        if( kind == 5 ) return family.removeFromMessage( msg );
        if( const ObjPtr hdr{ family.tryDecodeFromMessage( *msg ) } ) family.encodeToMessage( hdr.Get(), msg );
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput( const uint8_t *data, size_t size )
{
    if( size < 4 ) return 0;
    fuzz::Start();
    MessagePtr received{ sipsnMessageTryDecode( fuzz::Buffer( data + 4, size - 4 ).Get() ) };
    if( !received ) return 0;

    MessagePtr       set   = WithObjects( received.Get() );
    const MessagePtr first = MessagePtr{ pb::Retain( received.Get() ) }, firstSet{ pb::Retain( set.Get() ) };
    for( const uint8_t *change = data; change < data + 4; ++change ) {
        const MessagePtr shared{ pb::Retain( received.Get() ) };
        const pb::Ref    bytes{ sipsnMessageEncode( shared.Get() ) };
        for( MessagePtr *msg : { &received, &set } ) Change( msg->Slot(), *change % 8, *change / 8 );
        RequireAlike( received.Get(), set.Get() );
        REQUIRE( SameBytes( shared.Get(), bytes.Get() ) );
    }
    RequireAlike( first.Get(), firstSet.Get() );
    return 0;
}
