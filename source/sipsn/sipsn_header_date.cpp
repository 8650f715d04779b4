// SipsnHeaderDate: the Date header field, RFC 3261 section 20.17.
#include "sipsn_header_date.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

using sipsn::Cursor, sipsn::Span;

struct SipsnHeaderDate
{
    PbObj   obj;
    PbTime *time;

    using Members = pb::Members< &SipsnHeaderDate::time >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderDate, sipsn___PbsDate, "Date" )

static SipsnHeaderDate *TryDecode( PbString *line );
static PbString        *EncodeLine( SipsnHeaderDate *hdr );

static constexpr sipsn::Single< SipsnHeaderDate > shape{ .tryDecode = TryDecode, .encode = EncodeLine };

SIPSN_DEFINE_HEADER( SipsnHeaderDate, sipsnHeaderDate, SIPSN_HEADER_DATE, sipsn___PbsDate, shape )

// Takes over the reference.
static SipsnHeaderDate *CreateOwning( PbTime *time )
{
    SipsnHeaderDate *hdr = pb::New< SipsnHeaderDate >();
    hdr->time            = time;
    return hdr;
}

SipsnHeaderDate *sipsnHeaderDateCreate( PbTime *tm )
{
    PB_ASSERT( tm );
    return CreateOwning( pb::Retain( tm ) );
}

SipsnHeaderDate *sipsnHeaderDateCreateFromCurrentTime( void ) { return CreateOwning( pbTimeNow() ); }

PbTime *sipsnHeaderDateTime( SipsnHeaderDate *hdr ) { return PB_GET( hdr, time ); }
void    sipsnHeaderDateSetTime( SipsnHeaderDate **hdr, PbTime *tm ) { PB_SET( hdr, time, tm, pb::Retain( tm ) ); }

// ---- Text form -------------------------------------------------------------------------------------

static constexpr std::string_view weekdays[] = { "Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun" };
static constexpr std::string_view months[]   = { "Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                 "Jul", "Aug", "Sep", "Oct", "Nov", "Dec" };

static bool TakeNumber( Cursor &in, int64_t digits, int64_t &number )
{
    const Span text = in.Digits( digits );
    number          = sipsn::DecodeInt( text.chs, text.length, 9999 );
    return number >= 0;
}

namespace {

// What the line says, before it is judged.
struct Fields
{
    int64_t weekday, day, month, year, hour, minute, second;
};

} // namespace

static bool TakeFields( Cursor &in, Fields &read )
{
    return in.Take( sipsn___SkipWkday, read.weekday ) && in.Text( ", " ) && TakeNumber( in, 2, read.day ) &&
           in.Text( " " ) && in.Take( sipsn___SkipMonth, read.month ) && in.Text( " " ) &&
           TakeNumber( in, 4, read.year ) && in.Text( " " ) && TakeNumber( in, 2, read.hour ) && in.Text( ":" ) &&
           TakeNumber( in, 2, read.minute ) && in.Text( ":" ) && TakeNumber( in, 2, read.second ) && in.Text( " GMT" );
}

static SipsnHeaderDate *TryDecode( PbString *line )
{
    Cursor in{ line->chs, line->length };
    Fields read{};
    if( !TakeFields( in, read ) || !in.AtEnd() ) return nullptr;

    pb::Ref time{ pbTimeCreate() };
    pbTimeSetDay( time.Slot(), read.day );
    pbTimeSetMonth( time.Slot(), read.month );
    pbTimeSetYear( time.Slot(), read.year );
    pbTimeSetHour( time.Slot(), read.hour );
    pbTimeSetMinute( time.Slot(), read.minute );
    pbTimeSetSecond( time.Slot(), read.second );
    const bool good = pbTimeValid( time.Get() ) && pbTimeWeekday( time.Get() ) == read.weekday;
    return good ? CreateOwning( time.Detach() ) : nullptr;
}

static PbString *EncodeLine( SipsnHeaderDate *hdr )
{
    PbTime *time = hdr->time;
    return sipsn::TextOf( [ & ]( auto &out ) {
        if( pbTimeValid( time ) ) out.Ascii( weekdays[ pbTimeWeekday( time ) ] );
        out.Take( pbStringCreateFromFormatCstr( ", %02i ", -1, pbTimeDay( time ) ) );
        const int64_t month = pbTimeMonth( time );
        if( month >= 1 && month <= 12 ) out.Ascii( months[ month - 1 ] );
        out.Take( pbStringCreateFromFormatCstr( " %04i %02i:%02i:%02i GMT", -1, pbTimeYear( time ), pbTimeHour( time ),
                                                pbTimeMinute( time ), pbTimeSecond( time ) ) );
    } );
}
