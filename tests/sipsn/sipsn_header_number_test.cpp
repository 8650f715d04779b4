// Header types of numbers: what their lines hold, and which numbers they take.
#include "header_text.h"

namespace {

constexpr HeaderFamily cseq           = HEADER_FAMILY( sipsnHeaderCseq, "Cseq" );
constexpr HeaderFamily rack           = HEADER_FAMILY( sipsnHeaderRack, "Rack" );
constexpr HeaderFamily rseq           = HEADER_FAMILY( sipsnHeaderRseq, "Rseq" );
constexpr HeaderFamily maxForwards    = HEADER_FAMILY( sipsnHeaderMaxForwards, "Max-Forwards" );
constexpr HeaderFamily expires        = HEADER_FAMILY( sipsnHeaderExpires, "Expires" );
constexpr HeaderFamily minExpires     = HEADER_FAMILY( sipsnHeaderMinExpires, "Min-Expires" );
constexpr HeaderFamily minSe          = HEADER_FAMILY( sipsnHeaderMinSe, "Min-Se" );
constexpr HeaderFamily sessionExpires = HEADER_FAMILY( sipsnHeaderSessionExpires, "Session-Expires" );
constexpr HeaderFamily retryAfter     = HEADER_FAMILY( sipsnHeaderRetryAfter, "Retry-After" );

TEST( SipsnHeaderNumber, NumbersAndMethod )
{
    CheckHeaders( {
        { cseq, { "4711 INVITE" }, { "4711 INVITE" } },
        { cseq, { "0 \t invite" }, { "0 invite" } },
        { cseq, { "007 ACK" }, { "7 ACK" } },
        { cseq, { "2147483647 BYE" }, { "2147483647 BYE" } },
        { cseq, { "2147483648 BYE" }, nullptr },
        { cseq, { "18446744073709551617 BYE" }, nullptr },
        { cseq, { "1 A", "2 B" }, { "2 B" } },
        { cseq, { "1 A", "2" }, nullptr },
        { cseq, { "4711INVITE" }, nullptr },
        { cseq, { "4711 " }, nullptr },
        { cseq, { "4711 INVITE x" }, nullptr },
        { cseq, { "4711 INVITE " }, nullptr },
        { cseq, { " 4711 INVITE" }, nullptr },
        { cseq, { "-1 INVITE" }, nullptr },
        { cseq, { "INVITE" }, nullptr },
        { cseq, { "" }, nullptr },
        { cseq, {}, nullptr },
        { rack, { "776656 1 INVITE" }, { "776656 1 INVITE" } },
        { rack, { "4294967295  0\tx" }, { "4294967295 0 x" } },
        { rack, { "4294967296 1 INVITE" }, nullptr },
        { rack, { "0 1 INVITE" }, nullptr },
        { rack, { "1 2147483648 INVITE" }, nullptr },
        { rack, { "1 1INVITE" }, nullptr },
        { rack, { "1 INVITE" }, nullptr },
        { rack, { "1 1 INVITE x" }, nullptr },
        { rack, {}, nullptr },
    } );
}

TEST( SipsnHeaderNumber, WholeLineIsOneNumber )
{
    CheckHeaders( {
        { rseq, { "1" }, { "1" } },
        { rseq, { "4294967295" }, { "4294967295" } },
        { rseq, { "4294967296" }, nullptr },
        { rseq, { "0" }, nullptr },
        { rseq, { "1 " }, nullptr },
        { rseq, { "" }, nullptr },
        { rseq, {}, nullptr },
        { maxForwards, { "70" }, { "70" } },
        { maxForwards, { "0" }, { "0" } },
        { maxForwards, { "0255" }, { "255" } },
        { maxForwards, { "256" }, nullptr },
        { maxForwards, { "-0" }, nullptr },
        { maxForwards, { "-1" }, nullptr },
        { maxForwards, { "+1" }, nullptr },
        { maxForwards, { "70 " }, nullptr },
        { maxForwards, { " 70" }, nullptr },
        { maxForwards, { "" }, nullptr },
        { maxForwards, {}, nullptr },
        { expires, { "0" }, { "0" } },
        { expires, { "1", "3600" }, { "3600" } },
        { expires, { "9223372036854775807" }, { "9223372036854775807" } },
        { expires, { "9223372036854775808" }, nullptr },
        { expires, { "3600;a" }, nullptr },
        { expires, { "-1" }, nullptr },
        { expires, { "" }, nullptr },
        { expires, {}, nullptr },
        { minExpires, { "060" }, { "60" } },
        { minExpires, { "60 s" }, nullptr },
        { minExpires, {}, nullptr },
    } );
}

// What no ";" begins is ignored in these; what one begins must be a parameter.
TEST( SipsnHeaderNumber, NumberAndParameters )
{
    CheckHeaders( {
        { minSe, { "90" }, { "90" } },
        { minSe, { "90;lr" }, { "90;lr" } },
        { minSe, { "90 ; b = 2;a=\"1\"" }, { "90;a=\"1\";b=2" } },
        { minSe, { "90 x" }, { "90" } },
        { minSe, { "90;a, 91" }, { "90;a" } },
        { minSe, { "90;" }, nullptr },
        { minSe, { "90;a;" }, nullptr },
        { minSe, { "90;a=" }, nullptr },
        { minSe, { " 90" }, nullptr },
        { minSe, { "9223372036854775808" }, nullptr },
        { minSe, { "" }, nullptr },
        { minSe, {}, nullptr },
        { sessionExpires, { "4000;REFRESHER=uac" }, { "4000;refresher=uac" } },
        { sessionExpires, { "4000;a;refresher = UAS" }, { "4000;refresher=uas;a" } },
        { sessionExpires, { "4000;refresher=uac;refresher=uas" }, { "4000;refresher=uas" } },
        { sessionExpires, { "4000;refresher=ua" }, { "4000;refresher=ua" } },
        { sessionExpires, { "4000;refresher" }, { "4000;refresher" } },
        { sessionExpires, { "4000;refresher=uacx;a" }, { "4000;refresher=uac" } },
        { sessionExpires, { "4000 x" }, { "4000" } },
        { sessionExpires, { "4000;refresher=" }, nullptr },
        { sessionExpires, { "4000;" }, nullptr },
        { sessionExpires, { "x" }, nullptr },
        { sessionExpires, {}, nullptr },
        { retryAfter, { "18000;duration=3600" }, { "18000;duration=3600" } },
        { retryAfter, { "120 (I'm in a meeting)" }, { "120" } },
        { retryAfter, { "120(a (b) c) ; a;DURATION = 5" }, { "120;duration=5;a" } },
        { retryAfter, { "120 (a;duration=5" }, { "120" } },
        { retryAfter, { "120 (a) (b);duration=5" }, { "120" } },
        { retryAfter, { "120 x" }, { "120" } },
        { retryAfter, { "120 " }, { "120" } },
        { retryAfter, { "120;duration=5;duration=0" }, { "120;duration=0" } },
        { retryAfter, { "120;duration=5x;a" }, { "120;duration=5" } },
        { retryAfter, { "120;duration=x" }, { "120;duration=x" } },
        { retryAfter, { "120;duration=9223372036854775808" }, { "120;duration=9223372036854775808" } },
        { retryAfter, { "120;duration=" }, nullptr },
        { retryAfter, { "120 (a);" }, nullptr },
        { retryAfter, { "(a) 120" }, nullptr },
        { retryAfter, {}, nullptr },
    } );
}

TEST( SipsnHeaderNumber, KeepsWhatIsNoMemberValueAsGenericParameter )
{
    auto    never = Header< sipsnHeaderRetryAfterTryDecode >( "Retry-After", { "1;duration=x" } );
    pb::Ref params{ sipsnHeaderRetryAfterGenericParams( never.Get() ) };
    EXPECT_FALSE( sipsnHeaderRetryAfterHasDuration( never.Get() ) );
    EXPECT_EQ( sipsnHeaderRetryAfterDuration( never.Get() ), -1 );
    EXPECT_TRUE( sipsnGenericParamsHasParamCstr( params.Get(), "duration", -1 ) );

    sipsnHeaderRetryAfterSetDuration( never.Slot(), 7 ); // hides the parameter
    EXPECT_EQ( Take( sipsnHeaderRetryAfterToString( never.Get() ) ), "1;duration=7" );
    sipsnHeaderRetryAfterDelDuration( never.Slot() );
    EXPECT_EQ( Take( sipsnHeaderRetryAfterToString( never.Get() ) ), "1;duration=x" );
}

pb::Ref< SipsnGenericParams > OneParam( const char *name )
{
    pb::Ref params{ sipsnGenericParamsCreate() };
    sipsnGenericParamsSetParam( params.Slot(), pb::Ref{ sipsnGenericParamCreateCstr( name, -1 ) }.Get() );
    return params;
}

TEST( SipsnHeaderNumber, SettersChangeAPrivateCopy )
{
    pb::Ref hdr{ sipsnHeaderCseqCreate( 1, Str( "A" ).Get() ) };
    pb::Ref kept{ sipsnHeaderCseqRetain( hdr.Get() ) };
    sipsnHeaderCseqSetCseq( hdr.Slot(), 2 );
    sipsnHeaderCseqSetMethod( hdr.Slot(), Str( "B" ).Get() );
    CheckHeaderObject( cseq, sipsnHeaderCseqObj( hdr.Get() ), { "2 B" } );
    CheckHeaderObject( cseq, sipsnHeaderCseqObj( kept.Get() ), { "1 A" } );
    EXPECT_GT( sipsnHeaderCseqCompare( hdr.Get(), kept.Get() ), 0 );
    sipsnHeaderCseqSetMethodCstr( hdr.Slot(), "CX", 1 );
    EXPECT_EQ( Take( sipsnHeaderCseqMethod( hdr.Get() ) ), "C" );
    sipsnHeaderCseqSetMethodWcstr( hdr.Slot(), L"D", -1 );
    EXPECT_EQ( Take( sipsnHeaderCseqMethod( hdr.Get() ) ), "D" );

    pb::Ref ack{ sipsnHeaderRackCreate( 1, 2, Str( "A" ).Get() ) };
    sipsnHeaderRackSetResponseNum( ack.Slot(), 3 );
    sipsnHeaderRackSetCseq( ack.Slot(), 4 );
    sipsnHeaderRackSetMethod( ack.Slot(), Str( "B" ).Get() );
    CheckHeaderObject( rack, sipsnHeaderRackObj( ack.Get() ), { "3 4 B" } );

    pb::Ref hops{ sipsnHeaderMaxForwardsCreate( 70 ) };
    sipsnHeaderMaxForwardsSetMaxForwards( hops.Slot(), 69 );
    CheckHeaderObject( maxForwards, sipsnHeaderMaxForwardsObj( hops.Get() ), { "69" } );

    pb::Ref interval{ sipsnHeaderSessionExpiresCreate( 90 ) };
    EXPECT_FALSE( sipsnHeaderSessionExpiresHasRefresher( interval.Get() ) );
    sipsnHeaderSessionExpiresSetDeltaSeconds( interval.Slot(), 91 );
    sipsnHeaderSessionExpiresSetRefresher( interval.Slot(), Str( "UAC" ).Get() );
    sipsnHeaderSessionExpiresSetGenericParams( interval.Slot(), OneParam( "a" ).Get() );
    CheckHeaderObject( sessionExpires, sipsnHeaderSessionExpiresObj( interval.Get() ), { "91;refresher=uac;a" } );
    sipsnHeaderSessionExpiresDelRefresher( interval.Slot() );
    CheckHeaderObject( sessionExpires, sipsnHeaderSessionExpiresObj( interval.Get() ), { "91;a" } );
}

TEST( SipsnHeaderNumberDeathTest, AbortsOnNumbersOutOfRange )
{
    auto a = Str( "A" ), none = Str( "" );

    EXPECT_DEATH( sipsnHeaderCseqCreate( 2147483648, a.Get() ), "sipsn_header_cseq.*\"sipsnCseqOk\\( cseq \\)\"" );
    EXPECT_DEATH( sipsnHeaderCseqCreate( 1, none.Get() ), "\"sipsnMethodOk\\( method \\)\"" );
    EXPECT_DEATH( sipsnHeaderRackCreate( 0, 1, a.Get() ), "\"sipsnResponseNumOk\\( responseNum \\)\"" );
    EXPECT_DEATH( sipsnHeaderRackCreate( 1, -1, a.Get() ), "\"sipsnCseqOk\\( cseq \\)\"" );
    EXPECT_DEATH( sipsnHeaderRackCreate( 1, 1, none.Get() ), "\"sipsnMethodOk\\( method \\)\"" );
    EXPECT_DEATH( sipsnHeaderRseqCreate( 4294967296 ), "\"sipsnResponseNumOk\\( responseNum \\)\"" );
    EXPECT_DEATH( sipsnHeaderMaxForwardsCreate( 256 ), "\"sipsnMaxForwardsOk\\( maxForwards \\)\"" );
    EXPECT_DEATH( sipsnHeaderExpiresCreate( -1 ), "\"sipsnDeltaSecondsOk\\( deltaSeconds \\)\"" );
    EXPECT_DEATH( sipsnHeaderMinExpiresCreate( -1 ), "\"sipsnDeltaSecondsOk\\( deltaSeconds \\)\"" );
    EXPECT_DEATH( sipsnHeaderMinSeCreate( -1 ), "\"sipsnDeltaSecondsOk\\( deltaSeconds \\)\"" );

    pb::Ref interval{ sipsnHeaderSessionExpiresCreate( 0 ) };
    EXPECT_DEATH( sipsnHeaderSessionExpiresSetRefresher( interval.Slot(), a.Get() ),
                  "sipsn_header_session_expires.*\"sipsnRefresherOk\\( refresher \\)\"" );
    EXPECT_DEATH( sipsnHeaderSessionExpiresSetGenericParams( interval.Slot(), nullptr ), "\"genericParams\"" );
    pb::Ref later{ sipsnHeaderRetryAfterCreate( 0 ) };
    EXPECT_DEATH( sipsnHeaderRetryAfterSetDuration( later.Slot(), -1 ), "\"sipsnDeltaSecondsOk\\( deltaSeconds \\)\"" );
}

} // namespace
