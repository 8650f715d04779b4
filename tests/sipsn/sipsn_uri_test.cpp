// What is particular to SipsnUri: what its schemes have, parameters and headers by name, and the two forms of its text.
// What its texts become stands in values.txt.
#include "header_text.h"
#include "schema_text.h"

#include "sipsn/sipsn_message_uri.h"

namespace {

using testing::HasSubstr;

pb::Ref< SipsnUri > Uri( std::string_view iri ) { return pb::Ref{ sipsnUriTryDecode( Str( iri ).Get() ) }; }

std::string Iri( SipsnUri *uri ) { return uri ? Take( sipsnUriEncode( uri ) ) : "none"; }

// Whether what was built is what is read again, in both forms of the text.
void CheckRoundTrip( SipsnUri *uri )
{
    pb::Ref iri{ sipsnUriEncode( uri ) };
    pb::Ref asUri{ sipsnUriEncodeUri( uri ) };
    EXPECT_TRUE( sipsnIriOk( iri.Get() ) ) << Text( iri.Get() );
    pb::Ref again{ sipsnUriTryDecode( iri.Get() ) };
    pb::Ref onWire{ sipsnUriTryDecodeUri( asUri.Get() ) };
    ASSERT_TRUE( again && onWire ) << Text( iri.Get() );
    EXPECT_TRUE( sipsnUriEquals( uri, again.Get() ) ) << Text( iri.Get() );
    EXPECT_TRUE( sipsnUriEquals( uri, onWire.Get() ) ) << Text( iri.Get() );
    EXPECT_TRUE( sipsnSchemaComplete( sipsnUriObj( uri ) ) );
}

TEST( SipsnUri, IsBuiltFromParts )
{
    pb::Ref sip{ sipsnUriCreateSip( Str( "B\u00fccher.Example" ).Get() ) };
    EXPECT_EQ( Take( sipsnUriHost( sip.Get() ) ), "b\u00fccher.Example" );
    sipsnUriSetUserCstr( sip.Slot(), "%61%2f%C3%BC%e2%80%8e", -1 );
    sipsnUriSetPasswordCstr( sip.Slot(), "", -1 );
    sipsnUriSetPort( sip.Slot(), 0 );
    sipsnUriSetLr( sip.Slot(), true );
    sipsnUriSetNpdi( sip.Slot(), true );
    sipsnUriSetMaddrCstr( sip.Slot(), "XN--BCHER-KVA.example", -1 );
    sipsnUriAppendHeaderCstr( sip.Slot(), "Subject", -1, pb::Ref{ sipsnUriEscape( Str( "a & b" ).Get() ) }.Get() );
    EXPECT_EQ( Iri( sip.Get() ), "sip:a%2F\u00fc%E2%80%8E:@xn--bcher-kva.Example:0;maddr=xn--bcher-kva.example;lr;npdi"
                                 "?Subject=a%20%26%20b" );
    EXPECT_EQ( Take( sipsnUriEncodeUri( sip.Get() ) ).substr( 0, 31 ), "sip:a%2F%C3%BC%E2%80%8E:@xn--bc" );
    CheckRoundTrip( sip.Get() );
    sipsnUriSetSchemeCstr( sip.Slot(), "SIPS", -1 );
    CheckRoundTrip( sip.Get() );
    sipsnUriDelUser( sip.Slot() );
    EXPECT_FALSE( sipsnUriHasPassword( sip.Get() ) );
    CheckRoundTrip( sip.Get() );

    pb::Ref tel{ sipsnUriCreateTelLocal( Str( "*21#" ).Get(), Str( "example.com" ).Get() ) };
    EXPECT_EQ( Iri( tel.Get() ), "tel:*21%23;phone-context=example.com" );
    CheckRoundTrip( tel.Get() );
    sipsnUriSetNumberCstr( tel.Slot(), "+1-201-(555).0123", -1 );
    sipsnUriDelPhoneContext( tel.Slot() );
    EXPECT_EQ( Take( sipsnUriNumber( tel.Get() ) ), "+1-201-(555).0123" );
    EXPECT_EQ( Take( sipsnUriNumberDigits( tel.Get() ) ), "+12015550123" );
    CheckRoundTrip( tel.Get() );

    pb::Ref other{ sipsnUriCreateOther( Str( "URN" ).Get(), Str( "service:SOS%7e" ).Get() ) };
    EXPECT_EQ( Iri( other.Get() ), "urn:service:SOS%7e" );
    CheckRoundTrip( other.Get() );
    sipsnUriDelRest( other.Slot() );
    CheckRoundTrip( other.Get() );
}

TEST( SipsnUri, UrisAreReadAsIris )
{
    pb::Ref uri{ sipsnUriTryDecodeUri( Str( "sip:b%c3%bc@h?x=%EE%80%80" ).Get() ) };
    EXPECT_EQ( Iri( uri.Get() ), "sip:b\u00fc@h?x=%EE%80%80" );
    EXPECT_FALSE( pb::Ref{ sipsnUriTryDecodeUri( Str( "sip:<@h" ).Get() ) } );
    EXPECT_EQ( Take( sipsnUriUser( uri.Get() ) ), "b\u00fc" );
    EXPECT_EQ( sipsnUriNumberDigits( uri.Get() ), nullptr );
    EXPECT_TRUE( sipsnUriIsSip( uri.Get() ) && !sipsnUriIsTel( uri.Get() ) && sipsnUriIsTel( Uri( "tel:+1" ).Get() ) );
}

TEST( SipsnUri, ParametersAndHeadersAreFoundByName )
{
    auto uri = Uri( "sip:h;gr=%2Fa;ob;ttl=3?a=1&b=2&A=3" );
    EXPECT_EQ( Take( sipsnUriOtherParamValue( uri.Get(), Str( "%47R" ).Get() ) ), "%2Fa" );
    EXPECT_TRUE( sipsnUriHasOtherParamCstr( uri.Get(), "OB", -1 ) );
    EXPECT_EQ( sipsnUriOtherParamValueCstr( uri.Get(), "ob", -1 ), nullptr );
    EXPECT_FALSE( sipsnUriHasOtherParamCstr( uri.Get(), "ttl", -1 ) ||
                  sipsnUriHasOtherParamCstr( uri.Get(), "g", -1 ) );
    EXPECT_EQ( Take( sipsnUriHeaderValueCstr( uri.Get(), "A", -1 ) ), "1" );
    EXPECT_EQ( sipsnUriHeaderValueCstr( uri.Get(), "c", -1 ), nullptr );

    pb::Ref kept{ sipsnUriRetain( uri.Get() ) };
    sipsnUriSetOtherParamCstr( uri.Slot(), "GR", -1, nullptr );
    sipsnUriSetOtherParamCstr( uri.Slot(), "X", -1, Str( "%41" ).Get() );
    sipsnUriDelOtherParamCstr( uri.Slot(), "ob", -1 );
    sipsnUriDelOtherParamCstr( uri.Slot(), "absent", -1 );
    sipsnUriDelHeaderCstr( uri.Slot(), "a", -1 );
    EXPECT_EQ( Iri( uri.Get() ), "sip:h;ttl=3;gr;x=A?b=2" );
    EXPECT_EQ( Iri( kept.Get() ), "sip:h;ttl=3;gr=%2Fa;ob?a=1&b=2&A=3" );
    CheckRoundTrip( uri.Get() );

    auto hidden = Uri( "sip:h;ttl=300" );
    sipsnUriSetTtl( hidden.Slot(), 3 );
    EXPECT_EQ( Iri( hidden.Get() ), "sip:h;ttl=3" ) << "a member takes the place of a parameter of its name";
}

TEST( SipsnUri, SchemesHaveTheirMembersAlone )
{
    auto       sip = Uri( "sip:h" ), tel = Uri( "tel:1;phone-context=a" ), other = Uri( "x:" );
    const auto number = Str( "1" );
    PbString  *one    = number.Get();
    const auto item   = Vector( { "a=b" } );
    const auto list   = pbVectorFrom( item.Get() );
    EXPECT_THAT( AbortOf( [ & ] { sipsnUriSetNumber( sip.Slot(), one ); } ), HasSubstr( "!Is( **uri, Kind::sip )" ) );
    for( const auto set : { sipsnUriSetUser, sipsnUriSetPassword, sipsnUriSetHost } )
        EXPECT_THAT( AbortOf( [ & ] { set( tel.Slot(), one ); } ), HasSubstr( "!Is( **uri, Kind::tel )" ) );
    EXPECT_NE( AbortOf( [ & ] { sipsnUriSetPort( tel.Slot(), 1 ); } ), "" );
    EXPECT_NE( AbortOf( [ & ] { sipsnUriSetHeadersVector( tel.Slot(), list ); } ), "" );
    EXPECT_NE( AbortOf( [ & ] { sipsnUriAppendHeader( tel.Slot(), one, one ); } ), "" );
    EXPECT_NE( AbortOf( [ & ] { sipsnUriSetRest( tel.Slot(), one ); } ), "" );
    EXPECT_NE( AbortOf( [ & ] { sipsnUriSetPassword( sip.Slot(), one ); } ), "" ) << "there is no user";
    EXPECT_NE( AbortOf( [ & ] { sipsnUriDelPhoneContext( tel.Slot() ); } ), "" ) << "the number is local";
    EXPECT_NE( AbortOf( [ & ] { sipsnUriSetNumber( Uri( "tel:+1" ).Slot(), one ); } ), "" );
    EXPECT_NE( AbortOf( [ & ] { sipsnUriSetSchemeCstr( sip.Slot(), "tel", -1 ); } ), "" );
    EXPECT_NE( AbortOf( [ & ] { sipsnUriSetSchemeCstr( other.Slot(), "sip", -1 ); } ), "" );
    EXPECT_NE( AbortOf( [ & ] { sipsnUriCreate( Str( "tel" ).Get() ); } ), "" );
    EXPECT_NE( AbortOf( [ & ] { sipsnUriCreateTel( one ); } ), "" );
    EXPECT_NE( AbortOf( [ & ] { sipsnUriSetOtherParamCstr( sip.Slot(), "ttl", -1, one ); } ), "" );
    const auto twice = Vector( { "a", "A=1" } );
    EXPECT_NE( AbortOf( [ & ] { sipsnUriSetOtherParamsVector( sip.Slot(), pbVectorFrom( twice.Get() ) ); } ), "" );
    ObjPtr obj = Retained( sipsnUriObj( sip.Get() ) );
    EXPECT_FALSE( sipsnSchemaTrySetObject(
        obj.Slot(), sipsnSchemaMemberIndex( sipsnSchemaTypeOf( obj.Get() ), "otherParams" ), twice.Get() ) );
}

// What only the schema can build says that it is not complete.
TEST( SipsnUri, TheSchemaTellsWhatIsNotWhole )
{
    const SipsnSchemaType *type = sipsnSchemaTypeByName( "SipsnUri" );
    struct
    {
        const char *iri, *member, *text; // a null text deletes
    } constexpr rows[] = {
        { "sip:h", "host", nullptr },
        { "sip:h", "number", "+1" },
        { "sip:h", "rest", "x" },
        { "sip:h", "password", "x" },
        { "tel:+1", "host", "h" },
        { "tel:+1", "number", nullptr },
        { "tel:+1", "number", "1" },
        { "tel:+1", "user", "u" },
        { "tel:1;phone-context=a", "phoneContext", nullptr },
        { "tel:1;phone-context=a", "scheme", "sip" },
    };
    for( const auto &[ iri, member, text ] : rows ) {
        SCOPED_TRACE( std::string{ iri } + " " + member );
        ObjPtr        obj{ sipsnUriObj( Uri( iri ).Detach() ) };
        const int64_t at = sipsnSchemaMemberIndex( type, member );
        EXPECT_TRUE( sipsnSchemaComplete( obj.Get() ) );
        EXPECT_TRUE( text ? sipsnSchemaTrySetObject( obj.Slot(), at, StrObj( text ).Get() )
                          : sipsnSchemaTryDel( obj.Slot(), at ) );
        EXPECT_FALSE( sipsnSchemaComplete( obj.Get() ) );
    }
}

// ---- Types with an IRI -----------------------------------------------------------------------------

TEST( SipsnUri, TypesWithAnIriGiveAndTakeIt )
{
    int        count = 0;
    const auto uri   = Uri( "sip:b%c3%bc@xn--bcher-kva.example" ); // parameters cannot stand in all
    ForEveryDescribedType( [ & ]( const SipsnSchemaType *type ) {
        const int64_t member = sipsnSchemaMemberIndex( type, "iri" );
        if( member < 0 ) return;
        ++count;
        const auto tryDecode = Exported< SipsnUri *( PbObj * ) >( PrefixOf( type ) + "TryDecodeUri" );
        const auto set       = Exported< void( PbObj **, SipsnUri       *) >( PrefixOf( type ) + "SetUri" );
        ASSERT_TRUE( tryDecode && set );
        const ObjPtr obj     = Filled( type, 0 );
        ObjPtr       changed = Retained( obj.Get() );
        set( changed.Slot(), uri.Get() );
        EXPECT_EQ( SchemaValue( changed.Get(), member ).Text(), Iri( uri.Get() ) );
        EXPECT_EQ( Iri( pb::Ref{ tryDecode( changed.Get() ) }.Get() ), Iri( uri.Get() ) );
        EXPECT_EQ( Iri( pb::Ref{ tryDecode( obj.Get() ) }.Get() ), "sip:a" ) << "a shared object is copied";
        TrySet( changed, member, { -1, StrObj( "sip:@" ) } );
        EXPECT_EQ( tryDecode( changed.Get() ), nullptr );
        EXPECT_THAT( AbortOf( [ & ] { set( changed.Slot(), nullptr ); } ), HasSubstr( "\"uri\"" ) );
        EXPECT_NE( AbortOf( [ & ] { tryDecode( nullptr ); } ), "" );
    } );
    EXPECT_GE( count, 15 );
}

TEST( SipsnUri, RequestsGiveAndTakeIt )
{
    auto       msg = Message( "INVITE sip:a@h SIP/2.0\r\n\r\n" ), response = Message( "SIP/2.0 200 OK\r\n\r\n" );
    const auto uri = Uri( "sip:h;lr" );
    EXPECT_EQ( Iri( pb::Ref{ sipsnMessageTryDecodeRequestUri( msg.Get() ) }.Get() ), "sip:a@h" );
    EXPECT_EQ( sipsnMessageTryDecodeRequestUri( response.Get() ), nullptr );
    sipsnMessageSetRequestUri( msg.Slot(), uri.Get() );
    EXPECT_EQ( Take( sipsnMessageRequestIri( msg.Get() ) ), "sip:h;lr" );
    pb::Ref frag{ sipsnMessageFragmentTryDecode( Bytes( "INVITE sip:a@h SIP/2.0\r\n\r\n" ).Get() ) };
    sipsnMessageFragmentSetRequestUri( frag.Slot(), uri.Get() );
    EXPECT_EQ( Iri( pb::Ref{ sipsnMessageFragmentTryDecodeRequestUri( frag.Get() ) }.Get() ), "sip:h;lr" );
}

// ---- Equivalence -----------------------------------------------------------------------------------

struct Comparison
{
    const char *a, *b;
    bool        equivalent;
};

constexpr Comparison comparisons[] = {
    // RFC 3261 section 19.1.4
    { "sip:%61lice@atlanta.com;transport=TCP", "sip:alice@AtLanTa.CoM;Transport=tcp", true },
    { "sip:carol@chicago.com", "sip:carol@chicago.com;newparam=5", true },
    { "sip:carol@chicago.com", "sip:carol@chicago.com;security=on", true },
    { "sip:carol@chicago.com;newparam=5", "sip:carol@chicago.com;security=on", true },
    { "sip:biloxi.com;transport=tcp;method=REGISTER?to=sip:bob%40biloxi.com",
      "sip:biloxi.com;method=REGISTER;transport=tcp?to=sip:bob%40biloxi.com", true },
    { "sip:alice@atlanta.com?subject=project%20x&priority=urgent",
      "sip:alice@atlanta.com?priority=urgent&subject=project%20x", true },
    { "SIP:ALICE@AtLanTa.CoM;Transport=udp", "sip:alice@AtLanTa.CoM;Transport=UDP", false },
    { "sip:bob@biloxi.com", "sip:bob@biloxi.com:5060", false },
    { "sip:bob@biloxi.com", "sip:bob@biloxi.com;transport=udp", false },
    { "sip:bob@biloxi.com", "sip:bob@biloxi.com:6000;transport=tcp", false },
    { "sip:carol@chicago.com", "sip:carol@chicago.com?Subject=next%20meeting", false },
    { "sip:bob@phone21.boxesbybob.com", "sip:bob@192.0.2.4", false },
    { "sip:carol@chicago.com;security=on", "sip:carol@chicago.com;security=off", false },
    // RFC 3261 section 19.1.6
    { "sip:+358-555-1234567;postd=pp22@foo.com;user=phone", "sip:+358-555-1234567;POSTD=PP22@foo.com;user=phone",
      false },
    // RFC 5954 section 4
    { "sip:bob@[::ffff:192.0.2.128]", "sip:bob@[::ffff:c000:280]", true },
    { "sip:bob@[2001:db8::9:1]", "sip:bob@[2001:db8::9:01]", true },
    { "sip:bob@[0:0:0:0:0:FFFF:129.144.52.38]", "sip:bob@[::FFFF:129.144.52.38]", true },
    { "sip:bob@[::ffff:192.0.2.128]", "sip:bob@192.0.2.128", false },
    { "sip:h;maddr=[::1]", "sip:h;maddr=[0::1]", true },
    // one rule each
    { "sip:a@h", "sips:a@h", false },
    { "sip:a@h", "sip:h", false },
    { "sip:a:p@h", "sip:a@h", false },
    { "sip:a:p@h", "sip:a:P@h", false },
    { "sip:a:@h", "sip:a@h", false },
    { "sip:a%2Cb@h", "sip:a,b@h", false },
    { "sip:a%23b%c3%bc@h", "sip:a%23b\u00fc@h", true },
    { "sip:xn--bcher-kva.example", "sip:B\u00dcCHER.example", true },
    { "sip:h.", "sip:h", false },
    { "sip:h;user=phone", "sip:h", false },
    { "sip:h;ttl=1", "sip:h", false },
    { "sip:h;ttl=1", "sip:h;ttl=01", true },
    { "sip:h;method=INVITE", "sip:h", false },
    { "sip:h;method=INVITE", "sip:h;method=Invite", false },
    { "sip:h;maddr=h", "sip:h", false },
    { "sip:h;ttl=999", "sip:h", false },
    { "sip:h;lr", "sip:h", true },
    { "sip:h;lr=on;Ob;GR=A%2fb", "sip:h;gr=a%2Fb;ob;lr", true },
    { "sip:h;x", "sip:h;x=1", false },
    { "sip:h?a=1&a=1&b=2", "sip:h?b=2&A=1&a=1", true },
    { "sip:h?a=1&a=1&b=2", "sip:h?a=1&b=2&b=2", false },
    { "sip:h?a=x", "sip:h?a=X", false },
    // RFC 3966 section 4
    { "tel:+358-555-1234567;postd=pp22", "tel:+358-555-1234567;POSTD=PP22", true },
    { "tel:+1;postd=pp22;isub=1411", "tel:+1;isub=1411;postd=pp22", true },
    { "tel:+1-201-555-0123", "tel:+1(201)555.0123", true },
    { "tel:+12015550123", "tel:12015550123;phone-context=+1", false },
    { "tel:+1;npdi", "tel:+1", false },
    { "tel:+1;x", "tel:+1", false },
    { "tel:7042;phone-context=Example.com", "tel:70-42;phone-context=example.com", true },
    { "tel:7042;phone-context=+1-914-555", "tel:7042;phone-context=+1914555", true },
    { "tel:7042;phone-context=+1", "tel:7042;phone-context=+2", false },
    { "tel:aF*;phone-context=a", "tel:Af*;phone-context=a", true },
    { "tel:+1;ext=1-2", "tel:+1;ext=12", true },
    { "tel:+1;tgrp=TG-1;trunk-context=a;x=%41", "tel:+1;trunk-context=A;tgrp=tg-1;x=a", true },
    { "tel:+1;x=%2f", "tel:+1;x=/", false },
    { "tel:+1", "sip:+1@h;user=phone", false },
    { "urn:service:sos", "URN:service:sos", true },
    { "urn:service:sos", "urn:service:SOS", false },
    { "x:", "x:", true },
};

TEST( SipsnUri, EquivalenceIsThatOfItsRfcs )
{
    for( const auto &[ textA, textB, equivalent ] : comparisons ) {
        SCOPED_TRACE( std::string{ textA } + " " + textB );
        const auto a = Uri( textA ), b = Uri( textB );
        ASSERT_TRUE( a && b );
        EXPECT_EQ( sipsnUriEquivalent( a.Get(), b.Get() ), equivalent );
        EXPECT_EQ( sipsnUriEquivalent( b.Get(), a.Get() ), equivalent );
        EXPECT_TRUE( sipsnUriEquivalent( a.Get(), a.Get() ) && sipsnUriEquivalent( b.Get(), b.Get() ) );
    }
}

// ---- Places ----------------------------------------------------------------------------------------

TEST( SipsnUri, PlacesAllowWhatTheTableSays )
{
    // Request-URI, To, From, Contact in REGISTER and 3xx, Contact in a dialog and Route, outside.
    constexpr struct
    {
        const char *iri, *places;
    } rows[] = {
        { "sip:a:p@h;user=phone;x", "oooooo" },
        { "sip:h:1", "o--ooo" },
        { "sip:h;method=A", "-----o" },
        { "sip:h;maddr=h", "o--ooo" },
        { "sip:h;ttl=1", "o--o-o" },
        { "sip:h;transport=udp", "o--ooo" },
        { "sip:h;lr", "o---oo" },
        { "sip:h?a=b", "---o-o" },
        { "sip:h;lr?a=b", "-----o" },
        { "tel:+1;lr", "oooo-o" },
        { "urn:a", "oooo-o" },
    };
    for( const auto &[ iri, places ] : rows )
        for( int64_t place = SIPSN_URI_PLACE_REQUEST; place <= SIPSN_URI_PLACE_OUTSIDE; ++place )
            EXPECT_EQ( sipsnUriAllowedIn( Uri( iri ).Get(), place ), places[ place ] == 'o' ) << iri << " " << place;
    EXPECT_NE( AbortOf( [ & ] { sipsnUriAllowedIn( Uri( "sip:h" ).Get(), 6 ); } ), "" );
}

} // namespace
