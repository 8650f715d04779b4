// Token sets: which lines decode, which tokens are the same, the changes that all sets have.
#include "header_text.h"

namespace {

constexpr HeaderFamily allow        = HEADER_FAMILY( sipsnHeaderAllow, "Allow" );
constexpr HeaderFamily allowEvents  = HEADER_FAMILY( sipsnHeaderAllowEvents, "Allow-Events" );
constexpr HeaderFamily inReplyTo    = HEADER_FAMILY( sipsnHeaderInReplyTo, "In-Reply-To" );
constexpr HeaderFamily privacy      = HEADER_FAMILY( sipsnHeaderPrivacy, "Privacy" );
constexpr HeaderFamily proxyRequire = HEADER_FAMILY( sipsnHeaderProxyRequire, "Proxy-Require" );
constexpr HeaderFamily require      = HEADER_FAMILY( sipsnHeaderRequire, "Require" );
constexpr HeaderFamily supported    = HEADER_FAMILY( sipsnHeaderSupported, "Supported" );
constexpr HeaderFamily unsupported  = HEADER_FAMILY( sipsnHeaderUnsupported, "Unsupported" );

auto Methods( const std::vector< const char * > &lines )
{
    return Header< sipsnHeaderAllowTryDecode >( "Allow", lines );
}

pb::Ref< PbVector > Vector( std::initializer_list< const char * > texts )
{
    pb::Ref vector{ pbVectorCreate() };
    for( const char *text : texts ) pbVectorAppendString( vector.Slot(), Str( text ).Get() );
    return vector;
}

TEST( SipsnHeaderSet, Lines )
{
    CheckHeaders( {
        { allow, { "INVITE, ACK", "INVITE" }, { "ACK,INVITE" } },
        { allow, { "invite,INVITE" }, { "INVITE,invite" } },
        { allow, { "", "ACK" }, { "ACK" } },
        { allow, { "" }, {} },
        { allow, { "ACK\t ,\t BYE" }, { "ACK,BYE" } },
        { allow, { "ACK;BYE" }, nullptr },
        { allow, { "ACK", "BYE," }, nullptr },
        { allow, { ",ACK" }, nullptr },
        { allow, { "ACK BYE" }, nullptr },
        { allow, { "ACK " }, nullptr },
        { allowEvents, { "presence.winfo, Dialog", "dialog" }, { "Dialog,dialog,presence.winfo" } },
        { allowEvents, { "presence." }, nullptr },
        { inReplyTo, { "b@c, a", "A" }, { "A,a,b@c" } },
        { inReplyTo, { "b@" }, nullptr },
        { privacy, { "id; Header" }, { "header;id" } },
        { privacy, { "id", "ID;id" }, { "id" } },
        { privacy, { "id, header" }, nullptr },
        { privacy, { "id;" }, nullptr },
        { supported, { "timer, 100rel", "timer" }, { "100rel,timer" } },
        { supported, { "Timer,TIMER" }, { "timer" } },
        { supported, { "timer;path" }, nullptr },
        { proxyRequire, { "A, b" }, { "a,b" } },
        { require, { "A, b" }, { "a,b" } },
        { unsupported, { "A, b" }, { "a,b" } },
    } );
}

TEST( SipsnHeaderSet, ChangesItsOwnCopyOnly )
{
    auto    hdr = Methods( { "INVITE,ACK" } );
    pb::Ref kept{ sipsnHeaderAllowRetain( hdr.Get() ) };
    sipsnHeaderAllowSetMethod( hdr.Slot(), Str( "BYE" ).Get() );
    sipsnHeaderAllowSetMethodCstr( hdr.Slot(), "BYE and more", 3 );
    sipsnHeaderAllowSetMethodWcstr( hdr.Slot(), L"INFO", -1 );
    sipsnHeaderAllowDelMethod( hdr.Slot(), Str( "ACK" ).Get() );
    sipsnHeaderAllowDelMethodCstr( hdr.Slot(), "ack", -1 );
    sipsnHeaderAllowDelMethodWcstr( hdr.Slot(), L"INVITE", -1 );
    EXPECT_EQ( Take( sipsnHeaderAllowToString( hdr.Get() ) ), "BYE,INFO" );
    EXPECT_EQ( Take( sipsnHeaderAllowToString( kept.Get() ) ), "ACK,INVITE" );
    EXPECT_TRUE( sipsnHeaderAllowHasMethod( hdr.Get(), Str( "BYE" ).Get() ) );
    EXPECT_FALSE( sipsnHeaderAllowHasMethodCstr( hdr.Get(), "bye", -1 ) );
    EXPECT_FALSE( sipsnHeaderAllowHasMethodWcstr( hdr.Get(), L"ACK", -1 ) );

    sipsnHeaderAllowSetMethodsVector( hdr.Slot(), Vector( { "B", "A", "B" } ).Get() );
    EXPECT_EQ( sipsnHeaderAllowMethodsLength( hdr.Get() ), 2 );
    EXPECT_EQ( Take( sipsnHeaderAllowMethodAt( hdr.Get(), 1 ) ), "B" );
    EXPECT_TRUE(
        pb::EqualObjects( pb::Ref{ sipsnHeaderAllowMethodsVector( hdr.Get() ) }.Get(), Vector( { "A", "B" } ).Get() ) );
    sipsnHeaderAllowClearMethods( hdr.Slot() );
    EXPECT_EQ( sipsnHeaderAllowMethodsLength( hdr.Get() ), 0 );
}

// What is set, deleted and asked for is the normal form, by every form of the functions.
TEST( SipsnHeaderSet, NormalisesTokens )
{
    pb::Ref hdr{ sipsnHeaderSupportedCreate() };
    sipsnHeaderSupportedSetOptionTag( hdr.Slot(), Str( "Timer" ).Get() );
    sipsnHeaderSupportedSetOptionTagCstr( hdr.Slot(), "100REL", -1 );
    sipsnHeaderSupportedSetOptionTagWcstr( hdr.Slot(), L"Path", -1 );
    EXPECT_TRUE( sipsnHeaderSupportedHasOptionTag( hdr.Get(), Str( "TIMER" ).Get() ) );
    EXPECT_TRUE( sipsnHeaderSupportedHasOptionTagCstr( hdr.Get(), "timeR", -1 ) );
    EXPECT_TRUE( sipsnHeaderSupportedHasOptionTagWcstr( hdr.Get(), L"100Rel", -1 ) );
    sipsnHeaderSupportedDelOptionTagCstr( hdr.Slot(), "TIMER", -1 );
    EXPECT_EQ( Take( sipsnHeaderSupportedToString( hdr.Get() ) ), "100rel,path" );
    sipsnHeaderSupportedSetOptionTagsVector( hdr.Slot(), Vector( { "B", "a", "b" } ).Get() );
    EXPECT_EQ( Take( sipsnHeaderSupportedToString( hdr.Get() ) ), "a,b" );
}

// Which sets normalise, and with which functions.
template< class Hdr >
void CheckSet( Hdr *( *create )(), void ( *setVector )( Hdr **hdr, PbVector *vec ),
               bool ( *has )( Hdr *hdr, PbString *token ), void ( *del )( Hdr **hdr, PbString *token ),
               PbString *( *at )( Hdr *hdr, int64_t index ), void ( *clear )( Hdr **hdr ), bool normalises )
{
    pb::Ref hdr{ create() };
    setVector( hdr.Slot(), Vector( { "a", "A" } ).Get() );
    EXPECT_EQ( Take( pbObjToString( pb::AsObj( hdr.Get() ) ) ).size(), normalises ? 1u : 3u );
    EXPECT_EQ( Take( at( hdr.Get(), 0 ) ), normalises ? "a" : "A" );
    del( hdr.Slot(), Str( "a" ).Get() );
    EXPECT_EQ( has( hdr.Get(), Str( "A" ).Get() ), !normalises );
    clear( hdr.Slot() );
    EXPECT_EQ( Take( pbObjToString( pb::AsObj( hdr.Get() ) ) ), "" );
    EXPECT_DEATH( setVector( hdr.Slot(), Vector( { "" } ).Get() ), "Ok\\(" );
}

#define CHECK_SET( prefix, Items, Item, normalises )                                                                   \
    CheckSet( prefix##Create, prefix##Set##Items##Vector, prefix##Has##Item, prefix##Del##Item, prefix##Item##At,      \
              prefix##Clear##Items, normalises )

TEST( SipsnHeaderSet, TokensOfEachType )
{
    CHECK_SET( sipsnHeaderAllow, Methods, Method, false );
    CHECK_SET( sipsnHeaderAllowEvents, EventTypes, EventType, false );
    CHECK_SET( sipsnHeaderInReplyTo, CallIds, CallId, false );
    CHECK_SET( sipsnHeaderPrivacy, PrivValues, PrivValue, true );
    CHECK_SET( sipsnHeaderProxyRequire, OptionTags, OptionTag, true );
    CHECK_SET( sipsnHeaderRequire, OptionTags, OptionTag, true );
    CHECK_SET( sipsnHeaderSupported, OptionTags, OptionTag, true );
    CHECK_SET( sipsnHeaderUnsupported, OptionTags, OptionTag, true );
}

TEST( SipsnHeaderSet, Aborts )
{
    auto hdr = Methods( { "A" } );
    EXPECT_DEATH( sipsnHeaderAllowSetMethodCstr( hdr.Slot(), "a b", -1 ), "\"sipsnMethodOk\\( method \\)\"" );
    EXPECT_DEATH( sipsnHeaderAllowHasMethodCstr( hdr.Get(), "", 0 ), "\"sipsnMethodOk\\( method \\)\"" );
    EXPECT_DEATH( sipsnHeaderAllowDelMethodCstr( hdr.Slot(), ",", -1 ), "\"sipsnMethodOk\\( method \\)\"" );
    EXPECT_DEATH( sipsnHeaderAllowSetMethodsVector( hdr.Slot(), nullptr ), "\"vec\"" );
    EXPECT_DEATH( sipsnHeaderAllowSetMethodsVector( hdr.Slot(), Vector( { "a", "" } ).Get() ),
                  "\"sipsnMethodOk\\( method \\)\"" );
}

} // namespace
