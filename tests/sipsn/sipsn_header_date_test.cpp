// Date: the one form of a date, and that it is a date of the calendar.
#include "header_text.h"

namespace {

constexpr HeaderFamily date = HEADER_FAMILY( sipsnHeaderDate, "Date" );

std::string TimeOf( std::string_view text )
{
    auto hdr = Header< sipsnHeaderDateTryDecode >( "Date", { std::string( text ).c_str() } );
    if( !hdr ) return "(null)";
    return Take( pbTimeToString( pb::Ref{ sipsnHeaderDateTime( hdr.Get() ) }.Get() ) );
}

TEST( SipsnHeaderDate, ReadsEveryField )
{
    EXPECT_EQ( TimeOf( "Sat, 13 Nov 2010 23:29:07 GMT" ), "2010-11-13 23:29:07" );
    EXPECT_EQ( TimeOf( "Thu, 29 Feb 2024 00:00:00 GMT" ), "2024-02-29 00:00:00" );
    EXPECT_EQ( TimeOf( "Sat, 31 Dec 2016 23:59:60 GMT" ), "2016-12-31 23:59:60" );
    EXPECT_EQ( TimeOf( "Sat, 01 Jan 0000 00:00:00 GMT" ), "0000-01-01 00:00:00" );
    EXPECT_EQ( TimeOf( "Fri, 31 Dec 9999 23:59:59 GMT" ), "9999-12-31 23:59:59" );
}

TEST( SipsnHeaderDate, WritesWhatItReads )
{
    for( const char *text : {
             "Mon, 01 Jan 2024 00:00:00 GMT",
             "Thu, 29 Feb 2024 01:02:03 GMT",
             "Fri, 01 Mar 2024 00:00:00 GMT",
             "Tue, 02 Apr 2024 00:00:00 GMT",
             "Wed, 01 May 2024 00:00:00 GMT",
             "Sat, 01 Jun 2024 00:00:00 GMT",
             "Sun, 07 Jul 2024 00:00:00 GMT",
             "Fri, 09 Aug 2024 00:00:00 GMT",
             "Mon, 30 Sep 2024 00:00:00 GMT",
             "Thu, 31 Oct 2024 00:00:00 GMT",
             "Sat, 30 Nov 2024 00:00:00 GMT",
             "Tue, 31 Dec 2024 23:59:59 GMT",
             "Sat, 31 Dec 2016 23:59:60 GMT",
             "Sat, 01 Jan 0000 00:00:00 GMT",
         } )
        CheckHeaders( { { date, { "x", text }, { text } } } );
}

TEST( SipsnHeaderDate, RefusesEverythingElse )
{
    for( const char *text : {
             // another form
             "",
             "Sat, 13 Nov 2010 23:29:00",
             "Sat, 13 Nov 2010 23:29:00 gmt",
             "Sat, 13 Nov 2010 23:29:00 UTC",
             "Sat, 13 Nov 2010 23:29:00 GMT ",
             " Sat, 13 Nov 2010 23:29:00 GMT",
             "Sat, 13 Nov 2010 23:29:00  GMT",
             "Sat,13 Nov 2010 23:29:00 GMT",
             "Sat,  13 Nov 2010 23:29:00 GMT",
             "Sat 13 Nov 2010 23:29:00 GMT",
             "sat, 13 Nov 2010 23:29:00 GMT",
             "Sat, 13 NOV 2010 23:29:00 GMT",
             "Sat, 13-Nov-2010 23:29:00 GMT",
             "Sat, 13 Nov 10 23:29:00 GMT",
             "Sat, 13 Nov 02010 23:29:00 GMT",
             "Sat, 13 Nov 2010 23:29 GMT",
             "Sat, 13 Nov 2010 3:29:00 GMT",
             "Sat, 13 Nov 2010 23.29.00 GMT",
             "Sat, 13 Nov 2010 23:29:000 GMT",
             "Wed, 3 Nov 2010 23:29:00 GMT",
             "Wed, -3 Nov 2010 23:29:00 GMT",
             "Saturday, 13 Nov 2010 23:29:00 GMT",
             // another weekday
             "Fri, 13 Nov 2010 23:29:00 GMT",
             "Sun, 13 Nov 2010 23:29:00 GMT",
             // no time of a day
             "Sat, 13 Nov 2010 24:00:00 GMT",
             "Sat, 13 Nov 2010 23:60:00 GMT",
             "Sat, 13 Nov 2010 23:29:60 GMT",
             "Sat, 31 Dec 2016 23:59:61 GMT",
         } )
        EXPECT_EQ( TimeOf( text ), "(null)" ) << text;

    // no day, on whatever weekday
    for( const char *day : { "00 Nov 2010", "31 Nov 2010", "32 Dec 2010", "29 Feb 2023", "29 Feb 1900" } )
        for( const char *weekday : { "Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun" } )
            EXPECT_EQ( TimeOf( std::string( weekday ) + ", " + day + " 00:00:00 GMT" ), "(null)" ) << day;
    CheckHeaders( { { date, {}, nullptr } } );
}

TEST( SipsnHeaderDate, HoldsTheCurrentTime )
{
    pb::Ref before{ pbTimeNow() };
    pb::Ref hdr{ sipsnHeaderDateCreateFromCurrentTime() };
    pb::Ref after{ pbTimeNow() };
    pb::Ref time{ sipsnHeaderDateTime( hdr.Get() ) };
    EXPECT_LE( pbTimeCompare( before.Get(), time.Get() ), 0 );
    EXPECT_LE( pbTimeCompare( time.Get(), after.Get() ), 0 );
    CheckHeaderObject( date, sipsnHeaderDateObj( hdr.Get() ), { Take( sipsnHeaderDateToString( hdr.Get() ) ) } );
}

TEST( SipsnHeaderDate, KeepsItsTimeAndWritesInvalidOnes )
{
    pb::Ref time{ pbTimeCreate() };
    pb::Ref hdr{ sipsnHeaderDateCreate( time.Get() ) };
    pb::Ref kept{ sipsnHeaderDateRetain( hdr.Get() ) };
    pbTimeSetMonth( time.Slot(), 13 );
    EXPECT_EQ( Take( sipsnHeaderDateToString( hdr.Get() ) ), "Thu, 01 Jan 1970 00:00:00 GMT" );
    sipsnHeaderDateSetTime( hdr.Slot(), time.Get() );
    EXPECT_EQ( Take( sipsnHeaderDateToString( hdr.Get() ) ), ", 01  1970 00:00:00 GMT" );
    EXPECT_EQ( Take( sipsnHeaderDateToString( kept.Get() ) ), "Thu, 01 Jan 1970 00:00:00 GMT" );

    EXPECT_DEATH( sipsnHeaderDateCreate( nullptr ), "sipsn_header_date.*\"tm\"" );
    EXPECT_DEATH( sipsnHeaderDateSetTime( hdr.Slot(), nullptr ), "\"tm\"" );
}

} // namespace
