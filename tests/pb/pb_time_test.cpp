// Times: what is a moment, weekdays, order and text.
#include "text.h"

#include <ctime>
#include <vector>

namespace {

pb::Ref< PbTime > Time( int64_t year, int64_t month, int64_t day, int64_t hour = 0, int64_t minute = 0,
                        int64_t second = 0 )
{
    pb::Ref time{ pbTimeCreate() };
    pbTimeSetYear( time.Slot(), year );
    pbTimeSetMonth( time.Slot(), month );
    pbTimeSetDay( time.Slot(), day );
    pbTimeSetHour( time.Slot(), hour );
    pbTimeSetMinute( time.Slot(), minute );
    pbTimeSetSecond( time.Slot(), second );
    return time;
}

TEST( PbTime, ValidityFollowsCalendarAndClock )
{
    const struct
    {
        int64_t year, month, day, hour, minute, second;
        bool    valid;
    } cases[] = {
        { 0, 1, 1, 0, 0, 0, true },
        { 9999, 12, 31, 23, 59, 59, true },
        { -1, 12, 31, 0, 0, 0, false },
        { 10000, 1, 1, 0, 0, 0, false },
        { 2000, 2, 29, 0, 0, 0, true }, // leap years
        { 2004, 2, 29, 0, 0, 0, true },
        { 1900, 2, 29, 0, 0, 0, false },
        { 2003, 2, 29, 0, 0, 0, false },
        { 2001, 4, 31, 0, 0, 0, false },
        { 2001, 1, 0, 0, 0, 0, false },
        { 2001, 13, 1, 0, 0, 0, false },
        { 2001, 257, 1, 0, 0, 0, false }, // must not be cut to a byte
        { 2001, 1, ( int64_t( 1 ) << 32 ) + 1, 0, 0, 0, false },
        { 2001, 1, 1, 24, 0, 0, false },
        { 2001, 1, 1, -1, 0, 0, false },
        { 2001, 1, 1, 0, 60, 0, false },
        { 2001, 1, 1, 0, 0, 60, false },
        { 2016, 12, 31, 23, 59, 60, true }, // the leap second, at the end of a day only
        { 2016, 12, 31, 23, 59, 61, false },
        { 2016, 12, 31, 23, 58, 60, false },
        { 2016, 12, 31, 22, 59, 60, false },
        { 2001, 1, 1, 0, 0, INT64_MIN, false },
    };
    for( const auto &c : cases ) {
        const pb::Ref time = Time( c.year, c.month, c.day, c.hour, c.minute, c.second );
        EXPECT_EQ( pbTimeValid( time.Get() ), c.valid ) << Take( pbTimeToString( time.Get() ) );
    }
}

// Counts the days by the rule of the calendar alone: 1 January 2000 was a Saturday.
TEST( PbTime, WeekdaysRunOnThroughFourCenturies )
{
    pb::Ref time    = Time( 2000, 1, 1 );
    int64_t weekday = 5;
    for( int64_t year = 2000; year < 2400; ++year )
        for( int64_t month = 1; month <= 12; ++month )
            for( int64_t day = 1; day <= 31; ++day ) {
                pbTimeSetYear( time.Slot(), year );
                pbTimeSetMonth( time.Slot(), month );
                pbTimeSetDay( time.Slot(), day );
                if( !pbTimeValid( time.Get() ) ) continue;
                ASSERT_EQ( pbTimeWeekday( time.Get() ), weekday ) << year << "-" << month << "-" << day;
                weekday = ( weekday + 1 ) % 7;
            }
    EXPECT_EQ( weekday, 5 ); // the calendar repeats after 400 years
}

TEST( PbTime, WeekdaysOfTheFirstAndTheLastDay )
{
    EXPECT_EQ( pbTimeWeekday( Time( 0, 1, 1 ).Get() ), 5 );
    EXPECT_EQ( pbTimeWeekday( Time( 9999, 12, 31 ).Get() ), 4 );
}

TEST( PbTime, ComparesFromYearToSecond )
{
    const pb::Ref< PbTime > ascending[] = {
        Time( 1, 9, 9, 9, 9, 9 ), Time( 2, 1, 9, 9, 9, 9 ), Time( 2, 2, 1, 9, 9, 9 ), Time( 2, 2, 2, 1, 9, 9 ),
        Time( 2, 2, 2, 2, 1, 9 ), Time( 2, 2, 2, 2, 2, 1 ), Time( 2, 2, 2, 2, 2, 2 ) };
    ExpectAscending( ascending, pbTimeCompare );
}

TEST( PbTime, TextIsPadded )
{
    const pb::Ref epoch{ pbTimeCreate() };
    EXPECT_EQ( Take( pbTimeToString( epoch.Get() ) ), "1970-01-01 00:00:00" );
    EXPECT_EQ( Take( pbTimeToString( Time( 987, 6, 5, 4, 3, 2 ).Get() ) ), "0987-06-05 04:03:02" );
}

TEST( PbTime, NowIsTheSystemClock )
{
    const std::time_t before = std::time( nullptr );
    const pb::Ref     now{ pbTimeNow() };
    const std::time_t after = std::time( nullptr );
    const auto        utc   = []( std::time_t seconds ) {
        std::tm tm{};
        gmtime_r( &seconds, &tm );
        return Time( tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec );
    };
    EXPECT_GE( pbTimeCompare( now.Get(), utc( before ).Get() ), 0 );
    EXPECT_LE( pbTimeCompare( now.Get(), utc( after ).Get() ), 0 );
}

TEST( PbTime, SetterCopiesASharedTime )
{
    pb::Ref       time = Time( 2001, 2, 3 );
    const pb::Ref shared{ pbTimeRetain( time.Get() ) };
    pbTimeSetDay( time.Slot(), 4 );
    EXPECT_EQ( pbTimeDay( shared.Get() ), 3 );
    EXPECT_EQ( pbTimeDay( time.Get() ), 4 );
    EXPECT_EQ( pbTimeMonth( time.Get() ), 2 );
}

TEST( PbTimeDeathTest, MisuseAborts )
{
    EXPECT_ABORT( "pbTimeValid( time )", pbTimeWeekday( Time( 2001, 2, 29 ).Get() ) );
    EXPECT_ABORT( "time", pbTimeSetYear( nullptr, 1 ) );
    EXPECT_ABORT( "time", pbTimeHour( nullptr ) );
}

} // namespace
