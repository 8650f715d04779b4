// What is particular to single header families; what they have in common stands in headers.txt and in the laws.
#include "header_text.h"

namespace {

using Texts = std::vector< std::string >;

// ---- Lists, which keep texts -----------------------------------------------------------------------

auto Vias( const Texts &lines ) { return Header< sipsnHeaderViaTryDecode >( "Via", lines ); }

// The item grammar only tells where a value ends; whether it is one is asked when it is wanted.
TEST( SipsnHeaderList, ValuesAreDecodedOneByOne )
{
    auto hdr = Vias( { "SIP/2.0/UDP a", "SIP/2.0/UDP b:5061,SIP/2.0/UDP c:99999999999999999999" } );
    ASSERT_EQ( sipsnHeaderViaViasLength( hdr.Get() ), 3 );
    pb::Ref second{ sipsnHeaderViaTryDecodeViaAt( hdr.Get(), 1 ) };
    EXPECT_EQ( sipsnViaPort( second.Get() ), 5061 );
    EXPECT_FALSE( pb::Ref{ sipsnHeaderViaTryDecodeViaAt( hdr.Get(), 2 ) } );
    EXPECT_DEATH( sipsnHeaderViaTryDecodeViaAt( hdr.Get(), 3 ), "index" );
    EXPECT_DEATH( sipsnHeaderViaTryDecodeViaAt( hdr.Get(), -1 ), "index" );
}

// The same value written in two ways is the same value, but not the same header.
TEST( SipsnHeaderList, ComparesTexts )
{
    EXPECT_FALSE(
        sipsnHeaderViaEquals( Vias( { "SIP/2.0/UDP a;b=c" } ).Get(), Vias( { "SIP/2.0/UDP a;b =c" } ).Get() ) );
    EXPECT_TRUE( sipsnHeaderViaEquals( Vias( { "SIP/2.0/UDP a, SIP/2.0/UDP b" } ).Get(),
                                       Vias( { "SIP/2.0/UDP a", "SIP/2.0/UDP b" } ).Get() ) );
}

TEST( SipsnHeaderList, IsFoundUnderEveryFormOfItsName )
{
    auto msg = Message(
        "OPTIONS sip:a@b SIP/2.0\r\nvIA: SIP/2.0/UDP a\r\nX: 1\r\nv: SIP/2.0/UDP b,\r\n SIP/2.0/UDP c\r\n\r\n" );
    pb::Ref hdr{ sipsnHeaderViaTryDecodeFromMessage( msg.Get() ) };
    EXPECT_EQ( Lines( pb::Ref{ sipsnHeaderViaEncode( hdr.Get() ) }.Get() ),
               ( Texts{ "SIP/2.0/UDP a", "SIP/2.0/UDP b", "SIP/2.0/UDP c" } ) );
}

// What a caller adds stays as it is given, unlike what is decoded.
TEST( SipsnHeaderList, ContentCodingsOfCallersKeepTheirCase )
{
    auto hdr = Header< sipsnHeaderContentEncodingTryDecode >( "Content-Encoding", { "GZip" } );
    sipsnHeaderContentEncodingAppendContentCoding( hdr.Slot(), Str( "GZip" ).Get() );
    EXPECT_EQ( Take( sipsnHeaderContentEncodingToString( hdr.Get() ) ), "gzip,GZip" );
}

TEST( SipsnHeaderDeathTest, MisuseAborts )
{
    auto          hdr       = Vias( {} );
    auto          msg       = Message( "OPTIONS sip:a@b SIP/2.0\r\n\r\n" );
    SipsnMessage *noMessage = nullptr;
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
    EXPECT_DEATH( sipsnHeaderSubjectCreate( Str( "\x01" ).Get() ),
                  "sipsn_subject:.*\"sipsnSubjectOk\\( subject \\)\".*subject invalid" );
}

// ---- Contact ---------------------------------------------------------------------------------------

auto Contacts( const Texts &lines ) { return Header< sipsnHeaderContactTryDecode >( "Contact", lines ); }

std::string TextOf( const pb::Ref< SipsnHeaderContact > &hdr )
{
    return Take( sipsnHeaderContactToString( hdr.Get() ) );
}

TEST( SipsnHeaderContact, StarFormIsHiddenByContactsAndEndedByClear )
{
    auto    hdr = Contacts( { "<sip:a@b>" } );
    pb::Ref first{ sipsnHeaderContactTryDecodeContactAt( hdr.Get(), 0 ) };
    pb::Ref kept{ sipsnHeaderContactRetain( hdr.Get() ) };
    EXPECT_FALSE( sipsnHeaderContactIsStarForm( hdr.Get() ) );

    sipsnHeaderContactSetStarForm( hdr.Slot(), true );
    EXPECT_TRUE( sipsnHeaderContactIsStarForm( hdr.Get() ) );
    EXPECT_EQ( sipsnHeaderContactContactsLength( hdr.Get() ), 0 );
    EXPECT_TRUE( sipsnHeaderContactEquals( hdr.Get(), Contacts( { "*" } ).Get() ) );
    EXPECT_GT( sipsnHeaderContactCompare( hdr.Get(), kept.Get() ), 0 ) << "the star comes last";

    sipsnHeaderContactAppendContact( hdr.Slot(), first.Get() );
    EXPECT_TRUE( sipsnHeaderContactIsStarForm( hdr.Get() ) );
    EXPECT_EQ( TextOf( hdr ), "<sip:a@b>" );
    sipsnHeaderContactDelContactAt( hdr.Slot(), 0 );
    EXPECT_EQ( TextOf( hdr ), "*" );

    sipsnHeaderContactClear( hdr.Slot() );
    EXPECT_FALSE( sipsnHeaderContactIsStarForm( hdr.Get() ) );
    EXPECT_EQ( TextOf( hdr ), "" );
    EXPECT_EQ( TextOf( kept ), "<sip:a@b>" );
    sipsnHeaderContactSetStarForm( kept.Slot(), false );
    EXPECT_EQ( TextOf( kept ), "" );
}

// ---- Date ------------------------------------------------------------------------------------------

std::string TimeOf( const std::string &text )
{
    auto hdr = Header< sipsnHeaderDateTryDecode >( "Date", { text } );
    return hdr ? Take( pbTimeToString( pb::Ref{ sipsnHeaderDateTime( hdr.Get() ) }.Get() ) ) : "none";
}

TEST( SipsnHeaderDate, IsADateOfTheCalendar )
{
    EXPECT_EQ( TimeOf( "Sat, 13 Nov 2010 23:29:07 GMT" ), "2010-11-13 23:29:07" );
    EXPECT_EQ( TimeOf( "Sat, 31 Dec 2016 23:59:60 GMT" ), "2016-12-31 23:59:60" );
    for( const char *day : { "00 Nov 2010", "31 Nov 2010", "32 Dec 2010", "29 Feb 2023", "29 Feb 1900" } )
        for( const char *weekday : { "Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun" } )
            EXPECT_EQ( TimeOf( std::string( weekday ) + ", " + day + " 00:00:00 GMT" ), "none" ) << day;
}

TEST( SipsnHeaderDate, HoldsTheCurrentTimeAndWritesInvalidOnes )
{
    pb::Ref before{ pbTimeNow() };
    pb::Ref hdr{ sipsnHeaderDateCreateFromCurrentTime() };
    pb::Ref after{ pbTimeNow() };
    pb::Ref time{ sipsnHeaderDateTime( hdr.Get() ) };
    EXPECT_LE( pbTimeCompare( before.Get(), time.Get() ), 0 );
    EXPECT_LE( pbTimeCompare( time.Get(), after.Get() ), 0 );

    time = pb::Ref{ pbTimeCreate() };
    pbTimeSetMonth( time.Slot(), 13 );
    sipsnHeaderDateSetTime( hdr.Slot(), time.Get() );
    EXPECT_EQ( Take( sipsnHeaderDateToString( hdr.Get() ) ), ", 01  1970 00:00:00 GMT" );
}

// ---- From and To, Priority -------------------------------------------------------------------------

TEST( SipsnHeaderAddress, FromAndToAreMadeOfEachOther )
{
    for( const char *line : { "\"J\" <sip:j%C3%BC@b>;tag=1;epid=2;x=3", "<sip:a@b>" } ) {
        auto    from = Header< sipsnHeaderFromTryDecode >( "From", { line } );
        pb::Ref to{ sipsnHeaderToCreateFromHeaderFrom( from.Get() ) };
        EXPECT_EQ( Take( sipsnHeaderToToString( to.Get() ) ), line );
        pb::Ref back{ sipsnHeaderFromCreateFromHeaderTo( to.Get() ) };
        EXPECT_TRUE( sipsnHeaderFromEquals( from.Get(), back.Get() ) );
    }
    EXPECT_DEATH( sipsnHeaderToCreateFromHeaderFrom( nullptr ), "\"hdrFrom\"" );
    EXPECT_DEATH( sipsnHeaderFromCreateFromHeaderTo( nullptr ), "\"hdrTo\"" );
}

TEST( SipsnHeaderPriority, KnowsItsFourNamedValues )
{
    const struct
    {
        const char *value;
        SipsnHeaderPriority *( *create )();
        bool ( *is )( SipsnHeaderPriority *hdr );
        void ( *set )( SipsnHeaderPriority **hdr );
    } named[] = {
#define NAMED( Value, value )                                                                                          \
    { value, sipsnHeaderPriorityCreate##Value, sipsnHeaderPriorityIs##Value, sipsnHeaderPrioritySet##Value }
        NAMED( Emergency, "emergency" ),
        NAMED( Urgent, "urgent" ),
        NAMED( Normal, "normal" ),
        NAMED( NonUrgent, "non-urgent" ),
    };
    for( const auto &one : named ) {
        pb::Ref hdr{ one.create() };
        EXPECT_EQ( Take( sipsnHeaderPriorityPriorityValue( hdr.Get() ) ), one.value );
        for( const auto &other : named ) EXPECT_EQ( other.is( hdr.Get() ), &other == &one ) << one.value;

        sipsnHeaderPrioritySetPriorityValue( hdr.Slot(), Str( "X-Odd" ).Get() );
        EXPECT_FALSE( one.is( hdr.Get() ) );
        pb::Ref kept{ sipsnHeaderPriorityRetain( hdr.Get() ) };
        one.set( hdr.Slot() );
        EXPECT_TRUE( one.is( hdr.Get() ) );
        EXPECT_FALSE( one.is( kept.Get() ) );
        EXPECT_DEATH( one.is( nullptr ), "\"hdr\"" );
    }
}

} // namespace
