// SipsnHistoryInfo: one hi-entry, RFC 7044 section 5.
#include "sipsn_history_info.h"

#include "sipsn_rules.h"
#include "sipsn_uri_member.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( HistoryInfo )

using sipsn::BasicCursor, sipsn::Span;

struct SipsnHistoryInfo
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    PbString           *index; // null only while an entry is decoded
    PbString           *rc;
    PbString           *mp;
    PbString           *np;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnHistoryInfo::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnHistoryInfo::displayName, sipsn::rule::displayName ),
            sipsn::TextParam( "index", &SipsnHistoryInfo::index, sipsn::rule::historyInfoIndex ).Required(),
            sipsn::TextParam( "rc", &SipsnHistoryInfo::rc, sipsn::rule::historyInfoIndex ),
            sipsn::TextParam( "mp", &SipsnHistoryInfo::mp, sipsn::rule::historyInfoIndex ),
            sipsn::TextParam( "np", &SipsnHistoryInfo::np, sipsn::rule::historyInfoIndex ),
            sipsn::OtherParams( &SipsnHistoryInfo::genericParams ),
        };
    }
};

SIPSN_DEFINE_TYPE( SipsnHistoryInfo, sipsnHistoryInfo, SIPSN_HISTORY_INFO, hi, hi, sipsn___HistoryInfoEncode )

SipsnHistoryInfo *sipsnHistoryInfoCreate( PbString *iri, PbString *index )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    PB_ASSERT( sipsnHistoryInfoIndexOk( index ) );
    SipsnHistoryInfo *hi = sipsn::NewWith( &SipsnHistoryInfo::iri, pb::Retain( iri ) );
    hi->index            = pb::Retain( index );
    return hi;
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHistoryInfoIri( SipsnHistoryInfo *hi ) { return PB_GET( hi, iri ); }
void      sipsnHistoryInfoSetIri( SipsnHistoryInfo **hi, PbString *iri )
{
    PB_SET( hi, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}
SIPSN_DEFINE_URI( HistoryInfo, hi )

PbString *sipsnHistoryInfoDisplayName( SipsnHistoryInfo *hi ) { return PB_GET( hi, displayName ); }
bool      sipsnHistoryInfoHasDisplayName( SipsnHistoryInfo *hi ) { return PB_HAS( hi, displayName ); }
void      sipsnHistoryInfoSetDisplayName( SipsnHistoryInfo **hi, PbString *displayName )
{
    PB_SET( hi, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}
void sipsnHistoryInfoDelDisplayName( SipsnHistoryInfo **hi ) { PB_DEL( hi, displayName ); }

PbString *sipsnHistoryInfoIndex( SipsnHistoryInfo *hi ) { return PB_GET( hi, index ); }
void      sipsnHistoryInfoSetIndex( SipsnHistoryInfo **hi, PbString *index )
{
    PB_SET( hi, index, sipsnHistoryInfoIndexOk( index ), pb::Retain( index ) );
}

PbString *sipsnHistoryInfoRc( SipsnHistoryInfo *hi ) { return PB_GET( hi, rc ); }
bool      sipsnHistoryInfoHasRc( SipsnHistoryInfo *hi ) { return PB_HAS( hi, rc ); }
void      sipsnHistoryInfoSetRc( SipsnHistoryInfo **hi, PbString *rc )
{
    PB_SET( hi, rc, sipsnHistoryInfoIndexOk( rc ), pb::Retain( rc ) );
}
void sipsnHistoryInfoDelRc( SipsnHistoryInfo **hi ) { PB_DEL( hi, rc ); }

PbString *sipsnHistoryInfoMp( SipsnHistoryInfo *hi ) { return PB_GET( hi, mp ); }
bool      sipsnHistoryInfoHasMp( SipsnHistoryInfo *hi ) { return PB_HAS( hi, mp ); }
void      sipsnHistoryInfoSetMp( SipsnHistoryInfo **hi, PbString *mp )
{
    PB_SET( hi, mp, sipsnHistoryInfoIndexOk( mp ), pb::Retain( mp ) );
}
void sipsnHistoryInfoDelMp( SipsnHistoryInfo **hi ) { PB_DEL( hi, mp ); }

PbString *sipsnHistoryInfoNp( SipsnHistoryInfo *hi ) { return PB_GET( hi, np ); }
bool      sipsnHistoryInfoHasNp( SipsnHistoryInfo *hi ) { return PB_HAS( hi, np ); }
void      sipsnHistoryInfoSetNp( SipsnHistoryInfo **hi, PbString *np )
{
    PB_SET( hi, np, sipsnHistoryInfoIndexOk( np ), pb::Retain( np ) );
}
void sipsnHistoryInfoDelNp( SipsnHistoryInfo **hi ) { PB_DEL( hi, np ); }

SipsnGenericParams *sipsnHistoryInfoGenericParams( SipsnHistoryInfo *hi ) { return PB_GET( hi, genericParams ); }
void                sipsnHistoryInfoSetGenericParams( SipsnHistoryInfo **hi, SipsnGenericParams *genericParams )
{
    PB_SET( hi, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

namespace {

struct Form : sipsn::Address< SipsnHistoryInfo >
{
    // The angle brackets are required here, whatever the display name is.
    template< class Link > SipsnHistoryInfo *TryDecode( BasicCursor< Link > &in ) const
    {
        pb::Ref hi{ sipsn::New< SipsnHistoryInfo >() };
        if( Span name = in.Take( sipsn___SkipDisplayName, "a display name" ) ) {
            hi->displayName = sipsn::DisplayNameOf( name.chs, name.length );
            PB_ASSERT( hi->displayName );
        }
        if( !( hi->iri = sipsn::TryTakeBracketedIri( in ) ) || !TryDecodeParams( in, *hi.Get() ) ) return nullptr;
        return hi->index || in.Lacks( "an index" ) ? hi.Detach() : nullptr;
    }
};

constexpr Form form{};

} // namespace

SIPSN_DEFINE_TEXT( HistoryInfo, hi, form )
