// SipsnHeaderDate: the Date header field, RFC 3261 section 20.17.
#include "sipsn_header_date.h"

#include "sipsn_header_frame.h"

using sipsn::BasicCursor, sipsn::Span, sipsn::TextWriter;

struct SipsnHeaderDate
{
    PbObj   obj;
    PbTime *time;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Time( "time", &SipsnHeaderDate::time ),
        };
    }
};

SIPSN_DEFINE_NAME( Date, "Date" )

namespace {

// What the line says, before it is judged.
struct Fields
{
    int64_t weekday, day, month, year, hour, minute, second;
};

constexpr std::string_view weekdays[] = { "Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun" };
constexpr std::string_view months[]   = { "Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                          "Jul", "Aug", "Sep", "Oct", "Nov", "Dec" };

template< class Link > bool TakeNumber( BasicCursor< Link > &in, int64_t digits, int64_t &number )
{
    const Span text = in.Digits( digits );
    number          = sipsn::DecodeInt( text.chs, text.length, 9999 );
    return number >= 0;
}

template< class Link > bool TakeFields( BasicCursor< Link > &in, Fields &read )
{
    return in.Take( sipsn___SkipWkday, read.weekday, "a weekday" ) && in.Text( ", " ) &&
           TakeNumber( in, 2, read.day ) && in.Text( " " ) && in.Take( sipsn___SkipMonth, read.month, "a month" ) &&
           in.Text( " " ) && TakeNumber( in, 4, read.year ) && in.Text( " " ) && TakeNumber( in, 2, read.hour ) &&
           in.Text( ":" ) && TakeNumber( in, 2, read.minute ) && in.Text( ":" ) && TakeNumber( in, 2, read.second ) &&
           in.Text( " GMT" );
}

// An rfc1123-date. A date that does not exist is refused, and one on another weekday.
struct Form
{
    template< class Link > SipsnHeaderDate *TryDecode( BasicCursor< Link > &in ) const
    {
        const Span line = in.Rest();
        Fields     read{};
        if( !TakeFields( in, read ) || !in.AtEnd() ) return nullptr;

        pb::Ref time{ pbTimeCreate() };
        pbTimeSetDay( time.Slot(), read.day );
        pbTimeSetMonth( time.Slot(), read.month );
        pbTimeSetYear( time.Slot(), read.year );
        pbTimeSetHour( time.Slot(), read.hour );
        pbTimeSetMinute( time.Slot(), read.minute );
        pbTimeSetSecond( time.Slot(), read.second );
        const bool good = pbTimeValid( time.Get() ) && pbTimeWeekday( time.Get() ) == read.weekday;
        if( !good && !in.Refuse( line, "a date that exists and falls on that weekday" ) ) return nullptr;
        return sipsn::NewWith( &SipsnHeaderDate::time, time.Detach() );
    }

    void Write( TextWriter &out, SipsnHeaderDate &hdr ) const
    {
        PbTime *time = hdr.time;
        if( pbTimeValid( time ) ) out.Ascii( weekdays[ pbTimeWeekday( time ) ] );
        out.Take( pbStringCreateFromFormatCstr( ", %02i ", -1, pbTimeDay( time ) ) );
        const int64_t month = pbTimeMonth( time );
        if( month >= 1 && month <= 12 ) out.Ascii( months[ month - 1 ] );
        out.Take( pbStringCreateFromFormatCstr( " %04i %02i:%02i:%02i GMT", -1, pbTimeYear( time ), pbTimeHour( time ),
                                                pbTimeMinute( time ), pbTimeSecond( time ) ) );
    }
};

} // namespace

static constexpr sipsn::LastLine< SipsnHeaderDate, Form > shape{};

SIPSN_DEFINE_HEADER( Date, SIPSN_HEADER_DATE, shape )

SipsnHeaderDate *sipsnHeaderDateCreate( PbTime *tm )
{
    PB_ASSERT( tm );
    return sipsn::NewWith( &SipsnHeaderDate::time, pb::Retain( tm ) );
}

SipsnHeaderDate *sipsnHeaderDateCreateFromCurrentTime( void )
{
    return sipsn::NewWith( &SipsnHeaderDate::time, pbTimeNow() );
}

PbTime *sipsnHeaderDateTime( SipsnHeaderDate *hdr ) { return PB_GET( hdr, time ); }
void    sipsnHeaderDateSetTime( SipsnHeaderDate **hdr, PbTime *tm ) { PB_SET( hdr, time, tm, pb::Retain( tm ) ); }
