// Calendar time: six numbers, judged by the proleptic Gregorian calendar.
#include "pb_time.h"

#include "pb_internal.h"

#include <chrono>

struct PbTime
{
    PbObj   obj;
    int64_t year;
    int64_t month;
    int64_t day;
    int64_t hour;
    int64_t minute;
    int64_t second;

    static constexpr auto Members()
    {
        return pb::Members{ &PbTime::year, &PbTime::month,  &PbTime::day,
                            &PbTime::hour, &PbTime::minute, &PbTime::second };
    }
};

namespace {

PbString *MakeText( PbTime *time )
{
    return pbStringCreateFromFormatCstr( "%04i-%02i-%02i %02i:%02i:%02i", -1, time->year, time->month, time->day,
                                         time->hour, time->minute, time->second );
}

} // namespace

PB_DEFINE_TYPE( PbTime, pbTime, pb___sort_PB_TIME, "PB_TIME", pb___module, time, time, MakeText )

namespace {

bool InRange( int64_t value, int64_t first, int64_t last ) { return value >= first && value <= last; }

// The date, whose fields must be in the ranges of the chrono types: only then do they survive the conversion.
std::chrono::year_month_day Date( PbTime *time )
{
    return { std::chrono::year( static_cast< int >( time->year ) ),
             std::chrono::month( static_cast< unsigned >( time->month ) ),
             std::chrono::day( static_cast< unsigned >( time->day ) ) };
}

PbTime *Create( std::chrono::sys_seconds moment )
{
    const auto                        days = std::chrono::floor< std::chrono::days >( moment );
    const std::chrono::year_month_day date{ days };
    const std::chrono::hh_mm_ss       clock{ moment - days };

    PbTime *time = pb::New< PbTime >();
    time->year   = static_cast< int >( date.year() );
    time->month  = static_cast< unsigned >( date.month() );
    time->day    = static_cast< unsigned >( date.day() );
    time->hour   = clock.hours().count();
    time->minute = clock.minutes().count();
    time->second = clock.seconds().count();
    return time;
}

void SetField( PbTime **time, int64_t PbTime::*field, int64_t value )
{
    PB_ASSERT_SLOT( time );
    PB_UNSHARE( time );
    ( *time )->*field = value;
}

} // namespace

PbTime *pbTimeCreate( void ) { return Create( {} ); }

PbTime *pbTimeNow( void )
{
    return Create( std::chrono::floor< std::chrono::seconds >( std::chrono::system_clock::now() ) );
}

int64_t pbTimeYear( PbTime *time ) { return PB_GET( time, year ); }
int64_t pbTimeMonth( PbTime *time ) { return PB_GET( time, month ); }
int64_t pbTimeDay( PbTime *time ) { return PB_GET( time, day ); }
int64_t pbTimeHour( PbTime *time ) { return PB_GET( time, hour ); }
int64_t pbTimeMinute( PbTime *time ) { return PB_GET( time, minute ); }
int64_t pbTimeSecond( PbTime *time ) { return PB_GET( time, second ); }

void pbTimeSetYear( PbTime **time, int64_t year ) { SetField( time, &PbTime::year, year ); }
void pbTimeSetMonth( PbTime **time, int64_t month ) { SetField( time, &PbTime::month, month ); }
void pbTimeSetDay( PbTime **time, int64_t day ) { SetField( time, &PbTime::day, day ); }
void pbTimeSetHour( PbTime **time, int64_t hour ) { SetField( time, &PbTime::hour, hour ); }
void pbTimeSetMinute( PbTime **time, int64_t minute ) { SetField( time, &PbTime::minute, minute ); }
void pbTimeSetSecond( PbTime **time, int64_t second ) { SetField( time, &PbTime::second, second ); }

bool pbTimeValid( PbTime *time )
{
    PB_ASSERT( time );
    const bool leapSecond = time->hour == 23 && time->minute == 59 && time->second == 60;
    return InRange( time->year, 0, 9999 ) && InRange( time->month, 1, 12 ) && InRange( time->day, 1, 31 ) &&
           Date( time ).ok() && InRange( time->hour, 0, 23 ) && InRange( time->minute, 0, 59 ) &&
           ( InRange( time->second, 0, 59 ) || leapSecond );
}

int64_t pbTimeWeekday( PbTime *time )
{
    PB_ASSERT( time );
    PB_ASSERT( pbTimeValid( time ) );
    return std::chrono::weekday( std::chrono::sys_days( Date( time ) ) ).iso_encoding() - 1;
}
