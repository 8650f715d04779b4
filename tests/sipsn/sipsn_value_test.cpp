// What is particular to single types of structured values; what they have in common stands in values.txt and in the
// laws.
#include "header_text.h"

#include "sipsn/sipsn_value_internal.h"

#define VALUE( Type, ... ) SIPSN_DECLARE_TEXT( Type )
#include "sipsn/sipsn_values.inc"

namespace {

auto Via( std::string_view text ) { return Decoded< sipsn___ViaTryDecode >( text ); }

TEST( SipsnAccept, WithoutATypeTheSubtypeIsNotWritten )
{
    auto accept = Decoded< sipsn___AcceptTryDecode >( "text/plain;q=0.5" );
    sipsnAcceptDelMediaType( accept.Slot() );
    EXPECT_EQ( Take( sipsnAcceptToString( accept.Get() ) ), "*/*;q=0.500" );
    EXPECT_FALSE( sipsnAcceptHasMediaType( accept.Get() ) );
    EXPECT_TRUE( sipsnAcceptHasMediaSubtype( accept.Get() ) );
}

TEST( SipsnAcceptEncoding, ADecodedStarIsACodingAndACreatedOneIsNot )
{
    auto    decoded = Decoded< sipsn___AcceptEncodingTryDecode >( "*" );
    pb::Ref created{ sipsnAcceptEncodingCreate() };
    EXPECT_TRUE( sipsnAcceptEncodingHasContentCoding( decoded.Get() ) );
    EXPECT_FALSE( sipsnAcceptEncodingHasContentCoding( created.Get() ) );
    EXPECT_EQ( Take( sipsnAcceptEncodingToString( created.Get() ) ), "*" );
    EXPECT_LT( sipsnAcceptEncodingCompare( created.Get(), decoded.Get() ), 0 );
    pb::Ref gzip{ sipsnAcceptEncodingCreateWithContentCoding( Str( "GZip" ).Get() ) };
    EXPECT_EQ( Take( sipsnAcceptEncodingToString( gzip.Get() ) ), "gzip" );
}

TEST( SipsnDiversion, WritesContentsAsTheyAreStored )
{
    auto diversion =
        Decoded< sipsn___DiversionTryDecode >( "<sip:h>;reason=\"Out \\\"of\\\" Office\";privacy=\"\";screen=\"a;b\"" );
    EXPECT_EQ( Take( sipsnDiversionReason( diversion.Get() ) ), "out \"of\" office" );
    EXPECT_TRUE( sipsnDiversionHasPrivacy( diversion.Get() ) );
    EXPECT_EQ( Take( sipsnDiversionToString( diversion.Get() ) ),
               "<sip:h>;reason=out \"of\" office;privacy=;screen=a;b" );
    pb::Ref named{ sipsnDiversionCreateWithDisplayName( Str( "sip:h" ).Get(), Str( "A" ).Get() ) };
    EXPECT_EQ( Take( sipsnDiversionToString( named.Get() ) ), "\"A\" <sip:h>" );
}

TEST( SipsnUuiValue, DataThatIsNotATokenIsLeftOut )
{
    auto value = Decoded< sipsn___UuiValueTryDecode >( "A;encoding=hex" );
    for( const char *data : { "two words", "" } ) {
        sipsnUuiValueSetUuiData( value.Slot(), Str( data ).Get() );
        EXPECT_EQ( Take( sipsnUuiValueUuiData( value.Get() ) ), data );
        EXPECT_EQ( Take( sipsnUuiValueToString( value.Get() ) ), ";encoding=hex" );
    }
}

TEST( SipsnVia, RportIsAbsentEmptyOrNumeric )
{
    EXPECT_FALSE( sipsnViaHasRport( Via( "SIP/2.0/UDP h;rport=1234" ).Get() ) );

    const auto states = []( SipsnVia *via ) {
        return testing::PrintToString( std::vector< bool >{ sipsnViaHasRport( via ), sipsnViaHasRportEmpty( via ),
                                                            sipsnViaHasRportNumeric( via ) } );
    };
    auto    via = Via( "SIP/2.0/UDP h;rport" );
    pb::Ref kept{ sipsnViaRetain( via.Get() ) };
    EXPECT_EQ( states( via.Get() ), "{ true, true, false }" );
    sipsnViaSetRportNumeric( via.Slot(), 5060 );
    EXPECT_EQ( states( via.Get() ), "{ true, false, true }" );
    EXPECT_EQ( Take( sipsnViaToString( via.Get() ) ), "SIP/2.0/UDP h;rport=5060" );
    EXPECT_TRUE( sipsnViaEquals( via.Get(), Via( "SIP/2.0/UDP h" ).Get() ) ) << "rport is not compared";
    sipsnViaSetRportEmpty( via.Slot() );
    EXPECT_EQ( states( via.Get() ), "{ true, true, false }" );
    EXPECT_EQ( sipsnViaRportNumeric( via.Get() ), -1 );
    sipsnViaDelRport( via.Slot() );
    EXPECT_EQ( states( via.Get() ), "{ false, false, false }" );
    EXPECT_EQ( states( kept.Get() ), "{ true, true, false }" );
}

TEST( SipsnVia, IsCreatedWithAHostInUnicode )
{
    pb::Ref version{ sipsnVersionCreateSip20() };
    pb::Ref dummy{ sipsnViaCreateDummy( version.Get() ) };
    EXPECT_EQ( Take( sipsnViaToString( dummy.Get() ) ), "SIP/2.0/UDP localhost" );
    const auto host = Str( "b\u00fccher.example" );
    pb::Ref    via{ sipsnViaCreateWithPort( version.Get(), Str( "Tcp" ).Get(), host.Get(), 5060 ) };
    EXPECT_EQ( Take( sipsnViaToString( via.Get() ) ), "SIP/2.0/TCP xn--bcher-kva.example:5060" );
}

TEST( SipsnWarningValue, TheDefaultTextIsThatOfTheCode )
{
    pb::Ref wv{ sipsnWarningValueCreate( 399, Str( "192.0.2.1" ).Get() ) };
    EXPECT_EQ( Take( sipsnWarningValueWarnText( wv.Get() ) ), "Miscellaneous warning" );
    sipsnWarningValueSetWarnCode( wv.Slot(), 42, false );
    EXPECT_EQ( Take( sipsnWarningValueToString( wv.Get() ) ), "42 192.0.2.1 \"Miscellaneous warning\"" );
    sipsnWarningValueSetWarnCode( wv.Slot(), 42, true );
    EXPECT_EQ( Take( sipsnWarningValueToString( wv.Get() ) ), "42 192.0.2.1 \"Warning \\\"042\\\"\"" );
    EXPECT_EQ( sipsnWarningValueWarnCode( Decoded< sipsn___WarningValueTryDecode >( "042 a \"b\"" ).Get() ), 42 );
    EXPECT_DEATH( sipsnWarningValueCreateWithWarnText( 1, Str( "a" ).Get(), Str( "a\n" ).Get() ),
                  "\"sipsnWarnTextOk\\( warnText \\)\"" );
}

TEST( SipsnWarnCode, TextsNameTheNumberInThreeDigitsWhereThereIsNoOther )
{
    EXPECT_EQ( Take( sipsnWarnCodeToString( 300 ) ), "Incompatible network protocol" );
    EXPECT_EQ( Take( sipsnWarnCodeToString( 307 ) ), "Session description parameter not understood" );
    EXPECT_EQ( Take( sipsnWarnCodeToString( 308 ) ), "Warning \"308\"" );
}

TEST( SipsnSessUuid, NilIs32Zeros )
{
    pb::Ref nil{ spisnSessUuidNil() };
    EXPECT_EQ( Text( nil.Get() ), std::string( 32, '0' ) );
    EXPECT_TRUE( sipsnSessUuidIsNil( Str( std::string( 32, '0' ) ).Get() ) );
    EXPECT_FALSE( sipsnSessUuidIsNil( Str( std::string( 31, '0' ) + "1" ).Get() ) );
    EXPECT_FALSE( sipsnSessUuidIsNil( Str( std::string( 33, '0' ) ).Get() ) );
}

} // namespace
