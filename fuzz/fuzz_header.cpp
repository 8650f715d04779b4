// Any message's headers decode or do not. A header that was decoded is encoded, stored and restored, set into the
// message and found there again: its lines stay, from the first encoding on, and so does the header. Each value of a
// list decodes or does not, and may be put back. What was changed is a message like any other.
#include "fuzz.h"

#include <iterator>

namespace {

using ObjPtr   = pb::Ref< PbObj >;
using FieldPtr = pb::Ref< SipsnMessageHeader >;

// The functions of a header type, over PbObj; the last three for those that are lists of values.
struct Family
{
    PbObj *( *tryDecode )( SipsnMessageHeader *field );
    SipsnMessageHeader *( *encode )( PbObj *hdr );
    PbObj *( *tryDecodeFromMessage )( SipsnMessage *msg );
    void ( *encodeToMessage )( PbObj *hdr, SipsnMessage **msg );
    bool ( *presentInMessage )( SipsnMessage *msg );
    PbStore *( *store )( PbObj *hdr );
    PbObj *( *tryRestore )( PbStore *store );

    int64_t ( *length )( PbObj *hdr )                                  = nullptr;
    PbObj *( *tryDecodeAt )( PbObj *hdr, int64_t index )               = nullptr;
    PbObj *( *withValueAt )( PbObj *hdr, int64_t index, PbObj *value ) = nullptr; // a header with another value there
};

#define HEADER( prefix )                                                                                               \
    Family                                                                                                             \
    {                                                                                                                  \
        []( SipsnMessageHeader *field ) { return prefix##Obj( prefix##TryDecode( field ) ); },                         \
            []( PbObj *hdr ) { return prefix##Encode( prefix##From( hdr ) ); },                                        \
            []( SipsnMessage *msg ) { return prefix##Obj( prefix##TryDecodeFromMessage( msg ) ); },                    \
            []( PbObj *hdr, SipsnMessage **msg ) { prefix##EncodeToMessage( prefix##From( hdr ), msg ); },             \
            prefix##PresentInMessage, []( PbObj *hdr ) { return prefix##Store( prefix##From( hdr ) ); },               \
            []( PbStore *store ) { return prefix##Obj( prefix##TryRestore( store ) ); },                               \
    }

#define LIST( prefix, Items, Item, value )                                                                             \
    WithValues(                                                                                                        \
        HEADER( prefix ), []( PbObj *hdr ) { return prefix##Items##Length( prefix##From( hdr ) ); },                   \
        []( PbObj *hdr, int64_t index ) {                                                                              \
            return value##Obj( prefix##TryDecode##Item##At( prefix##From( hdr ), index ) );                            \
        },                                                                                                             \
        []( PbObj *hdr, int64_t index, PbObj *object ) {                                                               \
            auto *changed = prefix##CreateFrom( prefix##From( hdr ) );                                                 \
            prefix##Set##Item##At( &changed, index, value##From( object ) );                                           \
            return prefix##Obj( changed );                                                                             \
        } )

constexpr Family WithValues( Family family, decltype( Family::length ) length,
                             decltype( Family::tryDecodeAt ) tryDecodeAt, decltype( Family::withValueAt ) withValueAt )
{
    family.length      = length;
    family.tryDecodeAt = tryDecodeAt;
    family.withValueAt = withValueAt;
    return family;
}

constexpr Family families[] = {
    LIST( sipsnHeaderAccept, Accepts, Accept, sipsnAccept ),
    LIST( sipsnHeaderAcceptEncoding, AcceptEncodings, AcceptEncoding, sipsnAcceptEncoding ),
    HEADER( sipsnHeaderAcceptResourcePriority ),
    LIST( sipsnHeaderAlertInfo, AlertInfos, AlertInfo, sipsnAlertInfo ),
    HEADER( sipsnHeaderAllow ),
    HEADER( sipsnHeaderAllowEvents ),
    HEADER( sipsnHeaderCallId ),
    LIST( sipsnHeaderCallInfo, CallInfos, CallInfo, sipsnCallInfo ),
    LIST( sipsnHeaderContact, Contacts, Contact, sipsnContact ),
    HEADER( sipsnHeaderContentDisposition ),
    HEADER( sipsnHeaderContentEncoding ),
    HEADER( sipsnHeaderCseq ),
    HEADER( sipsnHeaderDate ),
    LIST( sipsnHeaderDiversion, Diversions, Diversion, sipsnDiversion ),
    LIST( sipsnHeaderErrorInfo, ErrorInfos, ErrorInfo, sipsnErrorInfo ),
    HEADER( sipsnHeaderEvent ),
    HEADER( sipsnHeaderExpires ),
    HEADER( sipsnHeaderFrom ),
    LIST( sipsnHeaderHistoryInfo, HistoryInfos, HistoryInfo, sipsnHistoryInfo ),
    HEADER( sipsnHeaderInReplyTo ),
    HEADER( sipsnHeaderMaxForwards ),
    HEADER( sipsnHeaderMinExpires ),
    HEADER( sipsnHeaderMinSe ),
    HEADER( sipsnHeaderOrganization ),
    LIST( sipsnHeaderPAssertedIdentity, IdentityValues, IdentityValue, sipsnIdentityValue ),
    HEADER( sipsnHeaderPCalledPartyId ),
    HEADER( sipsnHeaderPEarlyMedia ),
    LIST( sipsnHeaderPPreferredIdentity, IdentityValues, IdentityValue, sipsnIdentityValue ),
    HEADER( sipsnHeaderPriority ),
    HEADER( sipsnHeaderPrivacy ),
    HEADER( sipsnHeaderProxyRequire ),
    HEADER( sipsnHeaderRack ),
    LIST( sipsnHeaderReason, Reasons, Reason, sipsnReason ),
    LIST( sipsnHeaderRecordRoute, Routes, Route, sipsnRoute ),
    HEADER( sipsnHeaderReferTo ),
    HEADER( sipsnHeaderReferredBy ),
    HEADER( sipsnHeaderRemotePartyId ),
    HEADER( sipsnHeaderReplaces ),
    HEADER( sipsnHeaderReplyTo ),
    HEADER( sipsnHeaderRequire ),
    HEADER( sipsnHeaderResourcePriority ),
    HEADER( sipsnHeaderRetryAfter ),
    LIST( sipsnHeaderRoute, Routes, Route, sipsnRoute ),
    HEADER( sipsnHeaderRseq ),
    HEADER( sipsnHeaderServer ),
    LIST( sipsnHeaderServiceRoute, Routes, Route, sipsnRoute ),
    HEADER( sipsnHeaderSessionExpires ),
    HEADER( sipsnHeaderSessionId ),
    HEADER( sipsnHeaderSubject ),
    HEADER( sipsnHeaderSubscriptionState ),
    HEADER( sipsnHeaderSupported ),
    HEADER( sipsnHeaderTimestamp ),
    HEADER( sipsnHeaderTo ),
    HEADER( sipsnHeaderUnsupported ),
    HEADER( sipsnHeaderUserAgent ),
    LIST( sipsnHeaderUserToUser, UuiValues, UuiValue, sipsnUuiValue ),
    LIST( sipsnHeaderVia, Vias, Via, sipsnVia ),
    LIST( sipsnHeaderWarning, Warnings, Warning, sipsnWarningValue ),
};
static_assert( std::size( families ) == 58 );

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
        const ObjPtr changed{ family.withValueAt( hdr, at, value.Get() ) };
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
    for( const Family &family : families )
        if( const ObjPtr hdr{ family.tryDecodeFromMessage( msg.Get() ) } ) CheckHeader( family, hdr.Get(), msg.Slot() );

    pb::Ref bytes{ sipsnMessageEncode( msg.Get() ) };
    pb::Ref again{ sipsnMessageTryDecode( bytes.Get() ) };
    REQUIRE( bool( again ) );
    for( const Family &family : families ) {
        const ObjPtr hdr{ family.tryDecodeFromMessage( msg.Get() ) };
        const ObjPtr decoded{ family.tryDecodeFromMessage( again.Get() ) };
        REQUIRE( Same( hdr.Get(), decoded.Get() ) || ( hdr && decoded && family.length ) );
        REQUIRE( !hdr || SameLines( family, hdr.Get(), decoded.Get() ) );
    }
    return 0;
}
