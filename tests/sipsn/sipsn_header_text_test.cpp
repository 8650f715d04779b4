// Header types of one text, and of a token with parameters.
#include "header_text.h"

namespace {

constexpr HeaderFamily subject      = HEADER_FAMILY( sipsnHeaderSubject, "Subject" );
constexpr HeaderFamily organization = HEADER_FAMILY( sipsnHeaderOrganization, "Organization" );
constexpr HeaderFamily userAgent    = HEADER_FAMILY( sipsnHeaderUserAgent, "User-Agent" );
constexpr HeaderFamily server       = HEADER_FAMILY( sipsnHeaderServer, "Server" );
constexpr HeaderFamily timestamp    = HEADER_FAMILY( sipsnHeaderTimestamp, "Timestamp" );
constexpr HeaderFamily priority     = HEADER_FAMILY( sipsnHeaderPriority, "Priority" );
constexpr HeaderFamily disposition  = HEADER_FAMILY( sipsnHeaderContentDisposition, "Content-Disposition" );
constexpr HeaderFamily sessionId    = HEADER_FAMILY( sipsnHeaderSessionId, "Session-Id" );

TEST( SipsnHeaderText, WholeLine )
{
    CheckHeaders( {
        { subject, { "x", " Tea \t at   f\xc3\xbcnf " }, { "Tea at f\xc3\xbcnf" } },
        { subject, { "" }, { "" } },
        { subject, { "a", "b\x01" }, nullptr },
        { subject, {}, nullptr },
        { organization, { "Boxes  by Bob" }, { "Boxes by Bob" } },
        { organization, { "\x7f" }, nullptr },
        { organization, {}, nullptr },
        { userAgent, { "Softphone/1.5 (a (b)) x" }, { "Softphone/1.5 (a (b)) x" } },
        { userAgent, { "a", "b  c" }, { "b  c" } },
        { userAgent, { "a/" }, nullptr },
        { userAgent, { "(a" }, nullptr },
        { userAgent, { "" }, nullptr },
        { userAgent, {}, nullptr },
        { server, { "HomeServer v2" }, { "HomeServer v2" } },
        { server, { "a, b" }, nullptr },
        { server, {}, nullptr },
        { timestamp, { "54" }, { "54" } },
        { timestamp, { "54.20 .5" }, { "54.20 .5" } },
        { timestamp, { "1", "007. " }, { "007. " } },
        { timestamp, { ".5" }, nullptr },
        { timestamp, { "54 1 2" }, nullptr },
        { timestamp, { "" }, nullptr },
        { timestamp, {}, nullptr },
        { priority, { "Non-Urgent" }, { "non-urgent" } },
        { priority, { "normal", "x-odd" }, { "x-odd" } },
        { priority, { "very urgent" }, nullptr },
        { priority, { "urgent;a" }, nullptr },
        { priority, { "" }, nullptr },
        { priority, {}, nullptr },
    } );
}

#define UUID  "ab30317f1a784dc48ff824d0d3715d86"
#define UUID2 "47755a9de7794ba387653f2099600ef2"
#define NIL   "00000000000000000000000000000000"

// Content-Disposition is read to the end of the line; what no ";" begins is ignored in Session-ID.
TEST( SipsnHeaderText, TokenAndParameters )
{
    CheckHeaders( {
        { disposition, { "session;handling=optional" }, { "session;handling=optional" } },
        { disposition, { "a", "Session ; b;HANDLING = Required;a" }, { "session;handling=required;a;b" } },
        { disposition, { "render;handling=a;handling=b" }, { "render;handling=b" } },
        { disposition, { "render;handling" }, { "render;handling" } },
        { disposition, { "render;handling=\"a\"" }, { "render;handling=\"a\"" } },
        { disposition, { "render;handling=a x" }, nullptr },
        { disposition, { "render x" }, nullptr },
        { disposition, { "render " }, nullptr },
        { disposition, { "render;" }, nullptr },
        { disposition, { "render;handling=" }, nullptr },
        { disposition, { "" }, nullptr },
        { disposition, {}, nullptr },
        { sessionId, { UUID }, { UUID } },
        { sessionId, { "x", UUID ";a ; Remote = " NIL }, { UUID ";remote=" NIL ";a" } },
        { sessionId, { UUID ";remote=" NIL ";remote=" UUID2 }, { UUID ";remote=" UUID2 } },
        { sessionId, { UUID " x" }, { UUID } },
        { sessionId, { UUID "0;remote=" UUID2 }, { UUID } },
        { sessionId, { UUID ";remote=" UUID2 "0;a" }, { UUID ";remote=" UUID2 } },
        { sessionId, { UUID ";remote=47755" }, { UUID ";remote=47755" } },
        { sessionId, { UUID ";remote" }, { UUID ";remote" } },
        { sessionId, { UUID ";remote=" }, nullptr },
        { sessionId, { UUID ";" }, nullptr },
        { sessionId, { "AB30317F1A784DC48FF824D0D3715D86" }, nullptr },
        { sessionId, { "b30317f1a784dc48ff824d0d3715d86" }, nullptr },
        { sessionId, { "" }, nullptr },
        { sessionId, {}, nullptr },
    } );
}

TEST( SipsnHeaderText, PriorityKnowsItsFourNamedValues )
{
    const struct
    {
        const char *value;
        SipsnHeaderPriority *( *create )();
        bool ( *is )( SipsnHeaderPriority *hdr );
        void ( *set )( SipsnHeaderPriority **hdr );
    } named[] = {
        { "emergency", sipsnHeaderPriorityCreateEmergency, sipsnHeaderPriorityIsEmergency,
          sipsnHeaderPrioritySetEmergency },
        { "urgent", sipsnHeaderPriorityCreateUrgent, sipsnHeaderPriorityIsUrgent, sipsnHeaderPrioritySetUrgent },
        { "normal", sipsnHeaderPriorityCreateNormal, sipsnHeaderPriorityIsNormal, sipsnHeaderPrioritySetNormal },
        { "non-urgent", sipsnHeaderPriorityCreateNonUrgent, sipsnHeaderPriorityIsNonUrgent,
          sipsnHeaderPrioritySetNonUrgent },
    };
    for( const auto &one : named ) {
        pb::Ref hdr{ one.create() };
        EXPECT_EQ( Take( sipsnHeaderPriorityPriorityValue( hdr.Get() ) ), one.value );
        for( const auto &other : named ) EXPECT_EQ( other.is( hdr.Get() ), &other == &one ) << one.value;

        sipsnHeaderPrioritySetPriorityValue( hdr.Slot(), Str( "X-Odd" ).Get() );
        CheckHeaderObject( priority, sipsnHeaderPriorityObj( hdr.Get() ), { "x-odd" } );
        EXPECT_FALSE( one.is( hdr.Get() ) );
        pb::Ref kept{ sipsnHeaderPriorityRetain( hdr.Get() ) };
        one.set( hdr.Slot() );
        EXPECT_TRUE( one.is( hdr.Get() ) );
        EXPECT_FALSE( one.is( kept.Get() ) );
    }
    EXPECT_TRUE(
        sipsnHeaderPriorityIsUrgent( Header< sipsnHeaderPriorityTryDecode >( "Priority", { "URGENT" } ).Get() ) );
}

TEST( SipsnHeaderText, StoresTheNormalForm )
{
    pb::Ref about{ sipsnHeaderSubjectCreate( Str( " a  b" ).Get() ) };
    EXPECT_EQ( Take( sipsnHeaderSubjectSubject( about.Get() ) ), "a b" );
    sipsnHeaderSubjectSetSubject( about.Slot(), Str( "c \t" ).Get() );
    CheckHeaderObject( subject, sipsnHeaderSubjectObj( about.Get() ), { "c" } );

    pb::Ref hdr{ sipsnHeaderContentDispositionCreate( Str( "Render" ).Get() ) };
    pb::Ref kept{ sipsnHeaderContentDispositionRetain( hdr.Get() ) };
    EXPECT_FALSE( sipsnHeaderContentDispositionHasHandling( hdr.Get() ) );
    sipsnHeaderContentDispositionSetDispositionType( hdr.Slot(), Str( "ICON" ).Get() );
    sipsnHeaderContentDispositionSetHandling( hdr.Slot(), Str( "Optional" ).Get() );
    CheckHeaderObject( disposition, sipsnHeaderContentDispositionObj( hdr.Get() ), { "icon;handling=optional" } );
    CheckHeaderObject( disposition, sipsnHeaderContentDispositionObj( kept.Get() ), { "render" } );
    sipsnHeaderContentDispositionDelHandling( hdr.Slot() );
    CheckHeaderObject( disposition, sipsnHeaderContentDispositionObj( hdr.Get() ), { "icon" } );
}

TEST( SipsnHeaderText, SessionIdHasTwoEnds )
{
    pb::Ref hdr{ sipsnHeaderSessionIdCreate( Str( UUID ).Get() ) };
    EXPECT_FALSE( sipsnHeaderSessionIdHasRemoteUuid( hdr.Get() ) );
    sipsnHeaderSessionIdSetRemoteUuid( hdr.Slot(), Str( NIL ).Get() );
    sipsnHeaderSessionIdSetLocalUuid( hdr.Slot(), Str( UUID2 ).Get() );
    CheckHeaderObject( sessionId, sipsnHeaderSessionIdObj( hdr.Get() ), { UUID2 ";remote=" NIL } );
    sipsnHeaderSessionIdDelRemoteUuid( hdr.Slot() );
    CheckHeaderObject( sessionId, sipsnHeaderSessionIdObj( hdr.Get() ), { UUID2 } );
}

TEST( SipsnHeaderTextDeathTest, AbortsOnInvalidText )
{
    auto bad = Str( "a\x01" );

    // The normalisers check these.
    EXPECT_DEATH( sipsnHeaderSubjectCreate( bad.Get() ),
                  "sipsn_subject:.*\"sipsnSubjectOk\\( subject \\)\".*subject invalid" );
    EXPECT_DEATH( sipsnHeaderOrganizationCreate( bad.Get() ), "\"sipsnOrganizationOk\\( organization \\)\"" );
    EXPECT_DEATH( sipsnHeaderContentDispositionCreate( bad.Get() ),
                  "\"sipsnDispositionTypeOk\\( dispositionType \\)\"" );
    pb::Ref hdr{ sipsnHeaderContentDispositionCreate( Str( "a" ).Get() ) };
    EXPECT_DEATH( sipsnHeaderContentDispositionSetHandling( hdr.Slot(), bad.Get() ),
                  "\"sipsnHandlingOk\\( handling \\)\"" );

    EXPECT_DEATH( sipsnHeaderUserAgentCreate( bad.Get() ),
                  "sipsn_header_user_agent.*\"sipsnUserAgentOk\\( userAgent \\)\"" );
    EXPECT_DEATH( sipsnHeaderServerCreate( bad.Get() ), "\"sipsnServerOk\\( server \\)\"" );
    EXPECT_DEATH( sipsnHeaderTimestampCreate( bad.Get() ), "\"sipsnTimestampValueOk\\( timestampValue \\)\"" );
    EXPECT_DEATH( sipsnHeaderPriorityCreate( bad.Get() ),
                  "sipsn_header_priority.*\"sipsnPriorityValueOk\\( priorityValue \\)\"" );
    EXPECT_DEATH( sipsnHeaderSessionIdCreate( bad.Get() ),
                  "sipsn_header_session_id.*\"sipsnSessUuidOk\\( sessUuid \\)\"" );
    EXPECT_DEATH( sipsnHeaderPriorityIsUrgent( nullptr ), "\"hdr\"" );
}

} // namespace
