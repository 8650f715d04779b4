// Event and Subscription-State: a token with parameters, read to the end of the line.
#include "header_text.h"

namespace {

constexpr HeaderFamily event = HEADER_FAMILY( sipsnHeaderEvent, "Event" );
constexpr HeaderFamily state = HEADER_FAMILY( sipsnHeaderSubscriptionState, "Subscription-State" );

TEST( SipsnHeaderEvent, Lines )
{
    CheckHeaders( {
        { event, { "presence;id=123;foo=bar" }, { "presence;id=123;foo=bar" } },
        { event, { "Presence.winfo ; foo = bar ; ID = 7a" }, { "Presence.winfo;id=7a;foo=bar" } },
        { event, { "presence;id=1;id=2" }, { "presence;id=2" } },
        { event, { "a", "presence" }, { "presence" } },
        { event, { "presence;id" }, { "presence;id" } },
        { event, { "presence;id=\"1\"" }, { "presence;id=\"1\"" } },
        { event, { "presence;identity=1" }, { "presence;identity=1" } },
        { event, { "presence;id=" }, nullptr },
        { event, { "presence;id=1@" }, nullptr },
        { event, { "presence;" }, nullptr },
        { event, { "presence;foo=bar;" }, nullptr },
        { event, { "presence x" }, nullptr },
        { event, { "presence " }, nullptr },
        { event, { " presence" }, nullptr },
        { event, { "a..b" }, nullptr },
        { event, { ".a" }, nullptr },
        { event, { "" }, nullptr },
        { event, {}, nullptr },
        { state, { "active;expires=600" }, { "active;expires=600" } },
        { state, { "terminated;retry-after=30;reason=TimeOut" }, { "terminated;reason=timeout;retry-after=30" } },
        { state,
          { "Pending;z;RETRY-AFTER=0;a=1 ; Expires = 5;REASON=x" },
          { "pending;reason=x;expires=5;retry-after=0;a=1;z" } },
        { state, { "active;expires=1;reason=a;expires=2;reason=b" }, { "active;reason=b;expires=2" } },
        { state, { "active;expires=abc" }, { "active;expires=abc" } },
        { state, { "active;expires=9223372036854775808" }, { "active;expires=9223372036854775808" } },
        { state, { "active;reason=\"a\";retry-after" }, { "active;reason=\"a\";retry-after" } },
        { state, { "a", "x-state" }, { "x-state" } },
        { state, { "active;expires=60x" }, nullptr },
        { state, { "active;expires=" }, nullptr },
        { state, { "active;" }, nullptr },
        { state, { "active x" }, nullptr },
        { state, { "active;expires=1 x" }, nullptr },
        { state, { "" }, nullptr },
        { state, {}, nullptr },
    } );
}

TEST( SipsnHeaderEvent, ParametersThatAreMembersAreNoGenericOnes )
{
    auto hdr = Header< sipsnHeaderSubscriptionStateTryDecode >( "Subscription-State", { "active;expires=7;reason=r" } );
    pb::Ref params{ sipsnHeaderSubscriptionStateGenericParams( hdr.Get() ) };
    EXPECT_EQ( sipsnGenericParamsLength( params.Get() ), 0 );
    EXPECT_EQ( sipsnHeaderSubscriptionStateExpires( hdr.Get() ), 7 );
    EXPECT_EQ( Take( sipsnHeaderSubscriptionStateReason( hdr.Get() ) ), "r" );
    EXPECT_FALSE( sipsnHeaderSubscriptionStateHasRetryAfter( hdr.Get() ) );

    auto    odd = Header< sipsnHeaderSubscriptionStateTryDecode >( "Subscription-State", { "active;expires=abc" } );
    pb::Ref generic{ sipsnHeaderSubscriptionStateGenericParams( odd.Get() ) };
    EXPECT_FALSE( sipsnHeaderSubscriptionStateHasExpires( odd.Get() ) );
    EXPECT_TRUE( sipsnGenericParamsHasParamCstr( generic.Get(), "expires", -1 ) );
    sipsnHeaderSubscriptionStateSetExpires( odd.Slot(), 1 ); // hides the parameter
    EXPECT_EQ( Take( sipsnHeaderSubscriptionStateToString( odd.Get() ) ), "active;expires=1" );
}

TEST( SipsnHeaderEvent, SettersChangeAPrivateCopy )
{
    pb::Ref hdr{ sipsnHeaderEventCreateCstr( "dialogX", 6 ) };
    pb::Ref kept{ sipsnHeaderEventRetain( hdr.Get() ) };
    EXPECT_FALSE( sipsnHeaderEventHasId( hdr.Get() ) );
    sipsnHeaderEventSetId( hdr.Slot(), Str( "1" ).Get() );
    sipsnHeaderEventSetEventTypeWcstr( hdr.Slot(), L"refer", -1 );
    CheckHeaderObject( event, sipsnHeaderEventObj( hdr.Get() ), { "refer;id=1" } );
    CheckHeaderObject( event, sipsnHeaderEventObj( kept.Get() ), { "dialog" } );
    sipsnHeaderEventDelId( hdr.Slot() );
    sipsnHeaderEventSetEventTypeCstr( hdr.Slot(), "a.b", -1 );
    EXPECT_TRUE( sipsnHeaderEventEquals( hdr.Get(), pb::Ref{ sipsnHeaderEventCreateWcstr( L"a.b", -1 ) }.Get() ) );

    pb::Ref sub{ sipsnHeaderSubscriptionStateCreate( Str( "Active" ).Get() ) };
    EXPECT_EQ( sipsnHeaderSubscriptionStateExpires( sub.Get() ), -1 );
    sipsnHeaderSubscriptionStateSetRetryAfter( sub.Slot(), 2 );
    sipsnHeaderSubscriptionStateSetExpires( sub.Slot(), 0 );
    sipsnHeaderSubscriptionStateSetReason( sub.Slot(), Str( "GiveUp" ).Get() );
    CheckHeaderObject( state, sipsnHeaderSubscriptionStateObj( sub.Get() ),
                       { "active;reason=giveup;expires=0;retry-after=2" } );
    sipsnHeaderSubscriptionStateDelExpires( sub.Slot() );
    sipsnHeaderSubscriptionStateDelReason( sub.Slot() );
    sipsnHeaderSubscriptionStateSetSubstateValue( sub.Slot(), Str( "Terminated" ).Get() );
    CheckHeaderObject( state, sipsnHeaderSubscriptionStateObj( sub.Get() ), { "terminated;retry-after=2" } );
}

TEST( SipsnHeaderEventDeathTest, AbortsOnMisuse )
{
    auto bad = Str( "a b" );

    EXPECT_DEATH( sipsnHeaderEventCreate( bad.Get() ), "sipsn_header_event.*\"sipsnEventTypeOk\\( eventType \\)\"" );
    pb::Ref hdr{ sipsnHeaderEventCreateCstr( "a", -1 ) };
    EXPECT_DEATH( sipsnHeaderEventSetId( hdr.Slot(), bad.Get() ), "\"sipsnTokenOk\\( token \\)\"" );
    EXPECT_DEATH( sipsnHeaderEventSetGenericParams( hdr.Slot(), nullptr ), "\"genericParams\"" );

    EXPECT_DEATH( sipsnHeaderSubscriptionStateCreate( bad.Get() ), "\"sipsnSubstateValueOk\\( substateValue \\)\"" );
    pb::Ref sub{ sipsnHeaderSubscriptionStateCreate( Str( "a" ).Get() ) };
    EXPECT_DEATH( sipsnHeaderSubscriptionStateSetReason( sub.Slot(), bad.Get() ),
                  "\"sipsnEventReasonValueOk\\( eventReasonValue \\)\"" );
    EXPECT_DEATH( sipsnHeaderSubscriptionStateSetExpires( sub.Slot(), -1 ),
                  "\"sipsnDeltaSecondsOk\\( deltaSeconds \\)\"" );
    EXPECT_DEATH( sipsnHeaderSubscriptionStateSetRetryAfter( sub.Slot(), -2 ),
                  "\"sipsnDeltaSecondsOk\\( deltaSeconds \\)\"" );
}

} // namespace
