// Reason values: texts, what stays generic, members.
#include "value_text.h"

namespace {

TEST( SipsnReason, Wire )
{
    CheckWire< sipsn___ReasonTryDecode, sipsn___ReasonEncode >( {
        { "SIP", "SIP" },
        { "sip;cause=200", "sip;cause=200" },
        { "Q.850;text=\"Normal \\\"call\\\"\";cause=0016", "Q.850;cause=0016;text=\"Normal \\\"call\\\"\"" },
        { "SIP ; CAUSE = 487 ; Text = \"x\"", "SIP;cause=487;text=\"x\"" },
        { "SIP;cause=1;cause=2", "SIP;cause=2" },
        { "SIP;z=1;text=\"\";a", "SIP;text=\"\";a;z=1" },
        { "SIP;text=busy", "SIP;text=busy" },
        { "SIP;cause=abc", "SIP;cause=abc" },
        { "SIP;cause", "SIP;cause" },
        { "SIP;causes=1", "SIP;causes=1" },
        { "", nullptr },
        { ";cause=1", nullptr },
        { "SIP cause=1", nullptr },
        { "SIP;", nullptr },
        { "SIP;cause=", nullptr },
        { "SIP;cause=16x", nullptr },
        { "SIP;text=\"a\"b", nullptr },
        { "SIP;text=\"a", nullptr },
        { "SIP,Q.850", nullptr },
    } );
}

TEST( SipsnReason, AMemberHidesTheParameterOfItsName )
{
    auto reason = Decoded< sipsn___ReasonTryDecode >( "SIP;cause=x;cause=1" );
    EXPECT_EQ( Take( sipsnReasonToString( reason.Get() ) ), "SIP;cause=1" );
    EXPECT_EQ( sipsnGenericParamsLength( pb::Ref{ sipsnReasonGenericParams( reason.Get() ) }.Get() ), 1 );
}

TEST( SipsnReason, ComparesMemberByMember )
{
    const auto compare = []( const char *a, const char *b ) {
        return sipsnReasonCompare( Decoded< sipsn___ReasonTryDecode >( a ).Get(),
                                   Decoded< sipsn___ReasonTryDecode >( b ).Get() );
    };
    EXPECT_LT( compare( "Q", "SIP" ), 0 );
    EXPECT_LT( compare( "SIP;text=\"z\"", "SIP;cause=1" ), 0 ) << "an absent cause comes first";
    EXPECT_LT( compare( "SIP;cause=10", "SIP;cause=9" ), 0 ) << "causes compare as texts";
    EXPECT_LT( compare( "SIP;text=\"a\";z", "SIP;text=\"b\"" ), 0 );
    EXPECT_LT( compare( "SIP", "SIP;a" ), 0 );
}

TEST( SipsnReason, ChangesItsOwnCopyOnly )
{
    auto    reason = Decoded< sipsn___ReasonTryDecode >( "SIP;cause=486;text=\"Busy\";a" );
    pb::Ref copy{ sipsnReasonRetain( reason.Get() ) };
    sipsnReasonSetProtocol( copy.Slot(), Str( "Q.850" ).Get() );
    sipsnReasonSetCause( copy.Slot(), Str( "017" ).Get() );
    sipsnReasonDelText( copy.Slot() );
    sipsnReasonSetGenericParams( copy.Slot(), Decoded< sipsn___GenericParamsTryDecode >( ";cause=1;text=x" ).Get() );
    EXPECT_EQ( Take( sipsnReasonToString( copy.Get() ) ), "Q.850;cause=017;text=x" )
        << "a member hides a parameter of its name";
    EXPECT_FALSE( sipsnReasonHasText( copy.Get() ) );
    EXPECT_EQ( Take( sipsnReasonToString( reason.Get() ) ), "SIP;cause=486;text=\"Busy\";a" );
    EXPECT_EQ( Take( sipsnReasonText( reason.Get() ) ), "Busy" );
}

} // namespace
