// Lists of encoded values: which lines decode, what they are encoded to, the changes that all lists have.
#include "header_text.h"

namespace {

constexpr HeaderFamily accept             = HEADER_FAMILY( sipsnHeaderAccept, "Accept" );
constexpr HeaderFamily acceptEncoding     = HEADER_FAMILY( sipsnHeaderAcceptEncoding, "Accept-Encoding" );
constexpr HeaderFamily alertInfo          = HEADER_FAMILY( sipsnHeaderAlertInfo, "Alert-Info" );
constexpr HeaderFamily callInfo           = HEADER_FAMILY( sipsnHeaderCallInfo, "Call-Info" );
constexpr HeaderFamily diversion          = HEADER_FAMILY( sipsnHeaderDiversion, "Diversion" );
constexpr HeaderFamily errorInfo          = HEADER_FAMILY( sipsnHeaderErrorInfo, "Error-Info" );
constexpr HeaderFamily historyInfo        = HEADER_FAMILY( sipsnHeaderHistoryInfo, "History-Info" );
constexpr HeaderFamily pAssertedIdentity  = HEADER_FAMILY( sipsnHeaderPAssertedIdentity, "P-Asserted-Identity" );
constexpr HeaderFamily pPreferredIdentity = HEADER_FAMILY( sipsnHeaderPPreferredIdentity, "P-Preferred-Identity" );
constexpr HeaderFamily reason             = HEADER_FAMILY( sipsnHeaderReason, "Reason" );
constexpr HeaderFamily recordRoute        = HEADER_FAMILY( sipsnHeaderRecordRoute, "Record-Route" );
constexpr HeaderFamily route              = HEADER_FAMILY( sipsnHeaderRoute, "Route" );
constexpr HeaderFamily serviceRoute       = HEADER_FAMILY( sipsnHeaderServiceRoute, "Service-Route" );
constexpr HeaderFamily userToUser         = HEADER_FAMILY( sipsnHeaderUserToUser, "User-to-User" );
constexpr HeaderFamily via                = HEADER_FAMILY( sipsnHeaderVia, "Via" );
constexpr HeaderFamily warning            = HEADER_FAMILY( sipsnHeaderWarning, "Warning" );

auto Vias( const std::vector< const char * > &lines ) { return Header< sipsnHeaderViaTryDecode >( "Via", lines ); }

auto ViaOf( const char *host )
{
    pb::Ref version{ sipsnVersionCreateSip20() };
    return pb::Ref{ sipsnViaCreate( version.Get(), Str( "udp" ).Get(), Str( host ).Get() ) };
}

HeaderLines LinesOf( SipsnHeaderVia *hdr ) { return EncodedBy( via, sipsnHeaderViaObj( hdr ) ); }

TEST( SipsnHeaderList, Lines )
{
    CheckHeaders( {
        { via,
          { "SIP/2.0/UDP a", "SIP/2.0/UDP b, SIP/2.0/UDP c" },
          { "SIP/2.0/UDP a", "SIP/2.0/UDP b", "SIP/2.0/UDP c" } },
        { via, { "SIP/2.0/UDP a \t,\tSIP/2.0/UDP b" }, { "SIP/2.0/UDP a", "SIP/2.0/UDP b" } },
        { via, { "", "SIP/2.0/UDP a", "" }, { "SIP/2.0/UDP a" } },
        { via, { "" }, {} },
        { via, { "sip / 2.0 / udp  A ; Branch = x" }, { "sip / 2.0 / udp  A ; Branch = x" } }, // as written
        { via, { "SIP/2.0/UDP a;x=\",\",SIP/2.0/UDP b" }, { "SIP/2.0/UDP a;x=\",\"", "SIP/2.0/UDP b" } },
        { via, { "SIP/2.0/UDP a", "SIP/2.0/UDP b," }, nullptr },
        { via, { "SIP/2.0/UDP a,", "SIP/2.0/UDP b" }, nullptr },
        { via, { ",SIP/2.0/UDP a" }, nullptr },
        { via, { "SIP/2.0/UDP a,,SIP/2.0/UDP b" }, nullptr },
        { via, { "SIP/2.0/UDP a SIP/2.0/UDP b" }, nullptr },
        { via, { "SIP/2.0/UDP a", "x" }, nullptr },
        { via, { " " }, nullptr },
    } );
}

// Each list in its own grammar; the addresses of one are no items of another.
TEST( SipsnHeaderList, Items )
{
    CheckHeaders( {
        { accept, { "text/plain;q=0.5, */*" }, { "text/plain;q=0.5", "*/*" } },
        { accept, { "text/plain, text" }, nullptr },
        { acceptEncoding, { "gzip;q=0.5, *" }, { "gzip;q=0.5", "*" } },
        { acceptEncoding, { "gzip, ;q=1" }, nullptr },
        { alertInfo, { "<urn:alert:a>;x, <urn:alert:b>" }, { "<urn:alert:a>;x", "<urn:alert:b>" } },
        { alertInfo, { "urn:alert:a" }, nullptr },
        { callInfo, { "<http://a/>;purpose=icon,<http://b/>" }, { "<http://a/>;purpose=icon", "<http://b/>" } },
        { callInfo, { "http://a/" }, nullptr },
        { diversion,
          { "<sip:a@b>;reason=unknown, \"C, D\" <sip:c@d>" },
          { "<sip:a@b>;reason=unknown", "\"C, D\" <sip:c@d>" } },
        { diversion, { "*" }, nullptr },
        { errorInfo, { "<sip:a@b>;x=y, <sip:c@d>" }, { "<sip:a@b>;x=y", "<sip:c@d>" } },
        { errorInfo, { "A <sip:a@b>" }, nullptr },
        { historyInfo, { "<sip:a@b>;index=1, <sip:c@d>;index=1.1" }, { "<sip:a@b>;index=1", "<sip:c@d>;index=1.1" } },
        { historyInfo, { "<sip:a@b>;index=1," }, nullptr },
        { pAssertedIdentity, { "\"A\" <sip:a@b>, tel:+1" }, { "\"A\" <sip:a@b>", "tel:+1" } },
        { pAssertedIdentity, { "<sip:a@b>;x" }, nullptr },
        { pPreferredIdentity, { "<sip:a@b>", "tel:+1" }, { "<sip:a@b>", "tel:+1" } },
        { pPreferredIdentity, { "*" }, nullptr },
        { reason, { "SIP;cause=200;text=\"a, b\", Q.850" }, { "SIP;cause=200;text=\"a, b\"", "Q.850" } },
        { reason, { "SIP;cause=200 text" }, nullptr },
        { recordRoute, { "<sip:a;lr>;x,<sip:b>" }, { "<sip:a;lr>;x", "<sip:b>" } },
        { recordRoute, { "<sip:a>", "sip:b" }, nullptr },
        { route, { "A <sip:a;lr>, <sip:b?x=1,2>" }, { "A <sip:a;lr>", "<sip:b?x=1,2>" } },
        { route, { "*" }, nullptr },
        { serviceRoute, { "<sip:a;lr>", "<sip:b;lr>" }, { "<sip:a;lr>", "<sip:b;lr>" } },
        { serviceRoute, { "<sip:a;lr" }, nullptr },
        { userToUser, { "00a;encoding=hex, \"b,c\"" }, { "00a;encoding=hex", "\"b,c\"" } },
        { userToUser, { ";encoding=hex" }, nullptr },
        { warning, { "301 a:5060 \"x, y\", 399 [::1] \"z\"" }, { "301 a:5060 \"x, y\"", "399 [::1] \"z\"" } },
        { warning, { "301 a x" }, nullptr },
    } );
}

// The item grammar only tells where a value ends; whether it is one is asked when it is wanted.
TEST( SipsnHeaderList, ValuesAreDecodedOneByOne )
{
    auto hdr = Vias( { "SIP/2.0/UDP a", "SIP/2.0/UDP b:5061,SIP/2.0/UDP c:99999999999999999999" } );
    ASSERT_TRUE( hdr );
    ASSERT_EQ( sipsnHeaderViaViasLength( hdr.Get() ), 3 );
    pb::Ref second{ sipsnHeaderViaTryDecodeViaAt( hdr.Get(), 1 ) };
    EXPECT_EQ( sipsnViaPort( second.Get() ), 5061 );
    EXPECT_FALSE( pb::Ref{ sipsnHeaderViaTryDecodeViaAt( hdr.Get(), 2 ) } );
    EXPECT_DEATH( sipsnHeaderViaTryDecodeViaAt( hdr.Get(), 3 ), "" );
    EXPECT_DEATH( sipsnHeaderViaTryDecodeViaAt( hdr.Get(), -1 ), "" );
}

TEST( SipsnHeaderList, ChangesItsOwnCopyOnly )
{
    pb::Ref hdr{ sipsnHeaderViaCreate() };
    sipsnHeaderViaAppendVia( hdr.Slot(), ViaOf( "b" ).Get() );
    pb::Ref kept{ sipsnHeaderViaRetain( hdr.Get() ) };
    sipsnHeaderViaAppendVia( hdr.Slot(), ViaOf( "d" ).Get() );
    sipsnHeaderViaPrependVia( hdr.Slot(), ViaOf( "a" ).Get() );
    sipsnHeaderViaInsertVia( hdr.Slot(), 2, ViaOf( "c" ).Get() );
    EXPECT_EQ( LinesOf( hdr.Get() ),
               ( HeaderLines{ "SIP/2.0/UDP a", "SIP/2.0/UDP b", "SIP/2.0/UDP c", "SIP/2.0/UDP d" } ) );
    EXPECT_EQ( LinesOf( kept.Get() ), ( HeaderLines{ "SIP/2.0/UDP b" } ) );

    pb::Ref copy{ sipsnHeaderViaCreateFrom( hdr.Get() ) };
    sipsnHeaderViaSetViaAt( copy.Slot(), 3, ViaOf( "e" ).Get() );
    sipsnHeaderViaDelViaAt( copy.Slot(), 0 );
    EXPECT_EQ( LinesOf( copy.Get() ), ( HeaderLines{ "SIP/2.0/UDP b", "SIP/2.0/UDP c", "SIP/2.0/UDP e" } ) );
    EXPECT_LT( sipsnHeaderViaCompare( hdr.Get(), copy.Get() ), 0 );
    sipsnHeaderViaClearVias( copy.Slot() );
    EXPECT_EQ( sipsnHeaderViaViasLength( copy.Get() ), 0 );
    EXPECT_EQ( sipsnHeaderViaViasLength( hdr.Get() ), 4 );
}

// Every list keeps what its own value type encodes, and decodes it with that type again.
template< class Hdr, class Value >
void CheckList( Hdr *( *create )(), void ( *append )( Hdr **hdr, Value *value ),
                Value *( *tryDecodeAt )( Hdr *hdr, int64_t index ), int64_t ( *length )( Hdr *hdr ),
                void ( *clear )( Hdr **hdr ), Value *owned )
{
    pb::Ref value{ owned };
    pb::Ref hdr{ create() };
    EXPECT_EQ( length( hdr.Get() ), 0 );
    append( hdr.Slot(), value.Get() );
    pb::Ref decoded{ tryDecodeAt( hdr.Get(), 0 ) };
    EXPECT_TRUE( SameHeader( pb::AsObj( decoded.Get() ), pb::AsObj( value.Get() ) ) );
    EXPECT_EQ( Take( pbObjToString( pb::AsObj( hdr.Get() ) ) ), Take( pbObjToString( pb::AsObj( value.Get() ) ) ) );
    clear( hdr.Slot() );
    EXPECT_EQ( length( hdr.Get() ), 0 );
}

#define CHECK_LIST( prefix, Items, Item, clear, value )                                                                \
    CheckList( prefix##Create, prefix##Append##Item, prefix##TryDecode##Item##At, prefix##Items##Length,               \
               prefix##clear, value )

TEST( SipsnHeaderList, ValuesOfEachType )
{
    const auto iri  = Str( "sip:a@b" );
    const auto text = Str( "a" );
    CHECK_LIST( sipsnHeaderAccept, Accepts, Accept, ClearAccepts, sipsnAcceptCreate() );
    CHECK_LIST( sipsnHeaderAcceptEncoding, AcceptEncodings, AcceptEncoding, ClearAcceptEncodings,
                sipsnAcceptEncodingCreateWithContentCoding( text.Get() ) );
    CHECK_LIST( sipsnHeaderAlertInfo, AlertInfos, AlertInfo, ClearAlertInfos, sipsnAlertInfoCreate( iri.Get() ) );
    CHECK_LIST( sipsnHeaderCallInfo, CallInfos, CallInfo, ClearCallInfos, sipsnCallInfoCreate( iri.Get() ) );
    CHECK_LIST( sipsnHeaderDiversion, Diversions, Diversion, ClearDiversions, sipsnDiversionCreate( iri.Get() ) );
    CHECK_LIST( sipsnHeaderHistoryInfo, HistoryInfos, HistoryInfo, ClearHistoryInfos,
                sipsnHistoryInfoCreate( iri.Get(), Str( "1.2" ).Get() ) );
    CHECK_LIST( sipsnHeaderErrorInfo, ErrorInfos, ErrorInfo, ClearErrorInfos, sipsnErrorInfoCreate( iri.Get() ) );
    CHECK_LIST( sipsnHeaderPAssertedIdentity, IdentityValues, IdentityValue, ClearIdentityValues,
                sipsnIdentityValueCreate( iri.Get() ) );
    CHECK_LIST( sipsnHeaderPPreferredIdentity, IdentityValues, IdentityValue, ClearIdentityValues,
                sipsnIdentityValueCreate( iri.Get() ) );
    CHECK_LIST( sipsnHeaderReason, Reasons, Reason, ClearReasons, sipsnReasonCreate( text.Get() ) );
    CHECK_LIST( sipsnHeaderRecordRoute, Routes, Route, ClearRoutes, sipsnRouteCreate( iri.Get() ) );
    CHECK_LIST( sipsnHeaderRoute, Routes, Route, ClearRoutes, sipsnRouteCreate( iri.Get() ) );
    CHECK_LIST( sipsnHeaderServiceRoute, Routes, Route, ClearRoutes, sipsnRouteCreate( iri.Get() ) );
    CHECK_LIST( sipsnHeaderUserToUser, UuiValues, UuiValue, ClearUuiValues, sipsnUuiValueCreate( text.Get() ) );
    CHECK_LIST( sipsnHeaderWarning, Warnings, Warning, WarningsClear, sipsnWarningValueCreate( 301, text.Get() ) );
}

// The same value written in two ways is the same value, but not the same header.
TEST( SipsnHeaderList, ComparesTexts )
{
    EXPECT_FALSE(
        sipsnHeaderViaEquals( Vias( { "SIP/2.0/UDP a;b=c" } ).Get(), Vias( { "SIP/2.0/UDP a;b =c" } ).Get() ) );
    EXPECT_TRUE( sipsnHeaderViaEquals( Vias( { "SIP/2.0/UDP a, SIP/2.0/UDP b" } ).Get(),
                                       Vias( { "SIP/2.0/UDP a", "SIP/2.0/UDP b" } ).Get() ) );
    EXPECT_LT( sipsnHeaderViaCompare( Vias( {} ).Get(), Vias( { "SIP/2.0/UDP a" } ).Get() ), 0 );
}

TEST( SipsnHeaderList, IsFoundUnderEveryFormOfItsName )
{
    auto msg = Message(
        "OPTIONS sip:a@b SIP/2.0\r\nvIA: SIP/2.0/UDP a\r\nX: 1\r\nv: SIP/2.0/UDP b,\r\n SIP/2.0/UDP c\r\n\r\n" );
    pb::Ref hdr{ sipsnHeaderViaTryDecodeFromMessage( msg.Get() ) };
    ASSERT_TRUE( hdr );
    EXPECT_EQ( LinesOf( hdr.Get() ), ( HeaderLines{ "SIP/2.0/UDP a", "SIP/2.0/UDP b", "SIP/2.0/UDP c" } ) );
}

TEST( SipsnHeaderList, Aborts )
{
    auto            hdr       = Vias( {} );
    auto            msg       = Message( "OPTIONS sip:a@b SIP/2.0\r\n\r\n" );
    SipsnHeaderVia *none      = nullptr;
    SipsnMessage   *noMessage = nullptr;
    EXPECT_DEATH( sipsnHeaderViaTryDecode( Field( "Route", {} ).Get() ),
                  "\"sipsnMessageHeaderNameEquals\\( header, sipsn___PbsVia \\)\"" );
    EXPECT_DEATH( sipsnHeaderViaEncode( nullptr ), "\"hdr\"" );
    EXPECT_DEATH( sipsnHeaderViaStore( nullptr ), "\"hdr\"" );
    EXPECT_DEATH( sipsnHeaderViaEncodeToMessage( nullptr, msg.Slot() ), "\"hdr\"" );
    EXPECT_DEATH( sipsnHeaderViaEncodeToMessage( hdr.Get(), &noMessage ), "\"\\*msg\"" );
    EXPECT_DEATH( sipsnHeaderViaRemoveFromMessage( nullptr ), "\"msg\"" );
    EXPECT_DEATH( sipsnHeaderViaTryDecodeFromMessage( nullptr ), "\"msg\"" );
    EXPECT_DEATH( sipsnHeaderViaPresentInMessage( nullptr ), "\"msg\"" );
    EXPECT_DEATH( sipsnHeaderViaTryRestore( nullptr ), "\"store\"" );
    EXPECT_DEATH( sipsnHeaderViaAppendVia( nullptr, ViaOf( "a" ).Get() ), "\"hdr\"" );
    EXPECT_DEATH( sipsnHeaderViaClearVias( &none ), "\"\\*hdr\"" );
    EXPECT_DEATH( sipsnHeaderViaAppendVia( hdr.Slot(), nullptr ), "" );
    EXPECT_DEATH( sipsnHeaderViaDelViaAt( hdr.Slot(), 0 ), "" );
}

} // namespace
