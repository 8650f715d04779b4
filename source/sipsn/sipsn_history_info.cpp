// SipsnHistoryInfo: one hi-entry, RFC 7044 section 5.
#include "sipsn_history_info.h"

#include "sipsn_display_name.h"
#include "sipsn_history_info_index.h"
#include "sipsn_iri.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_internal.h"
#include "sipsn_value_internal.h"

using sipsn::Cursor, sipsn::Span;

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

    using Members = pb::Members< &SipsnHistoryInfo::iri, &SipsnHistoryInfo::displayName, &SipsnHistoryInfo::index,
                                 &SipsnHistoryInfo::rc, &SipsnHistoryInfo::mp, &SipsnHistoryInfo::np,
                                 &SipsnHistoryInfo::genericParams >;
};

SIPSN_DEFINE_TYPE( SipsnHistoryInfo, sipsnHistoryInfo, SIPSN_HISTORY_INFO, hi, hi, sipsn___HistoryInfoEncode )

// Takes over the references.
static SipsnHistoryInfo *CreateOwning( PbString *iri, PbString *displayName, PbString *index )
{
    SipsnHistoryInfo *hi = pb::New< SipsnHistoryInfo >();
    hi->iri              = iri;
    hi->displayName      = displayName;
    hi->index            = index;
    hi->genericParams    = sipsnGenericParamsCreate();
    return hi;
}

SipsnHistoryInfo *sipsnHistoryInfoCreate( PbString *iri, PbString *index )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    PB_ASSERT( sipsnHistoryInfoIndexOk( index ) );
    return CreateOwning( pb::Retain( iri ), nullptr, pb::Retain( index ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHistoryInfoIri( SipsnHistoryInfo *hi ) { return PB_GET( hi, iri ); }
void      sipsnHistoryInfoSetIri( SipsnHistoryInfo **hi, PbString *iri )
{
    PB_SET( hi, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}

PbString *sipsnHistoryInfoDisplayName( SipsnHistoryInfo *hi ) { return PB_GET( hi, displayName ); }
bool      sipsnHistoryInfoHasDisplayName( SipsnHistoryInfo *hi ) { return PB_HAS( hi, displayName ); }
void      sipsnHistoryInfoDelDisplayName( SipsnHistoryInfo **hi ) { PB_DEL( hi, displayName ); }
void      sipsnHistoryInfoSetDisplayName( SipsnHistoryInfo **hi, PbString *displayName )
{
    PB_SET( hi, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}

PbString *sipsnHistoryInfoIndex( SipsnHistoryInfo *hi ) { return PB_GET( hi, index ); }
void      sipsnHistoryInfoSetIndex( SipsnHistoryInfo **hi, PbString *index )
{
    PB_SET( hi, index, sipsnHistoryInfoIndexOk( index ), pb::Retain( index ) );
}

PbString *sipsnHistoryInfoRc( SipsnHistoryInfo *hi ) { return PB_GET( hi, rc ); }
bool      sipsnHistoryInfoHasRc( SipsnHistoryInfo *hi ) { return PB_HAS( hi, rc ); }
void      sipsnHistoryInfoDelRc( SipsnHistoryInfo **hi ) { PB_DEL( hi, rc ); }
void      sipsnHistoryInfoSetRc( SipsnHistoryInfo **hi, PbString *rc )
{
    PB_SET( hi, rc, sipsnHistoryInfoIndexOk( rc ), pb::Retain( rc ) );
}

PbString *sipsnHistoryInfoMp( SipsnHistoryInfo *hi ) { return PB_GET( hi, mp ); }
bool      sipsnHistoryInfoHasMp( SipsnHistoryInfo *hi ) { return PB_HAS( hi, mp ); }
void      sipsnHistoryInfoDelMp( SipsnHistoryInfo **hi ) { PB_DEL( hi, mp ); }
void      sipsnHistoryInfoSetMp( SipsnHistoryInfo **hi, PbString *mp )
{
    PB_SET( hi, mp, sipsnHistoryInfoIndexOk( mp ), pb::Retain( mp ) );
}

PbString *sipsnHistoryInfoNp( SipsnHistoryInfo *hi ) { return PB_GET( hi, np ); }
bool      sipsnHistoryInfoHasNp( SipsnHistoryInfo *hi ) { return PB_HAS( hi, np ); }
void      sipsnHistoryInfoDelNp( SipsnHistoryInfo **hi ) { PB_DEL( hi, np ); }
void      sipsnHistoryInfoSetNp( SipsnHistoryInfo **hi, PbString *np )
{
    PB_SET( hi, np, sipsnHistoryInfoIndexOk( np ), pb::Retain( np ) );
}

SipsnGenericParams *sipsnHistoryInfoGenericParams( SipsnHistoryInfo *hi ) { return PB_GET( hi, genericParams ); }
void                sipsnHistoryInfoSetGenericParams( SipsnHistoryInfo **hi, SipsnGenericParams *genericParams )
{
    PB_SET( hi, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

// False when there is a display name that no address follows, or none at all: the angle brackets are required here.
static bool TryTakeAddress( Cursor &in, sipsn::NameAddr *address )
{
    if( Span name = in.Take( sipsn___SkipDisplayName ) ) {
        PbString *displayName = sipsn::DisplayNameOf( name.chs, name.length );
        PB_ASSERT( displayName );
        address->displayName = pb::Ref{ displayName };
    }
    address->iri = pb::Ref{ sipsn::TryTakeBracketedIri( in ) };
    return bool( address->iri );
}

static bool TakeTypedParam( Cursor &in, SipsnHistoryInfo *hi )
{
    return sipsn::TakeText( in, "index", sipsn___SkipHistoryInfoIndex, hi->index ) ||
           sipsn::TakeText( in, "rc", sipsn___SkipHistoryInfoIndex, hi->rc ) ||
           sipsn::TakeText( in, "mp", sipsn___SkipHistoryInfoIndex, hi->mp ) ||
           sipsn::TakeText( in, "np", sipsn___SkipHistoryInfoIndex, hi->np );
}

SipsnHistoryInfo *sipsn___HistoryInfoTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    Cursor          in{ chs, length };
    sipsn::NameAddr address;
    if( !TryTakeAddress( in, &address ) ) return nullptr;

    pb::Ref    hi{ CreateOwning( address.iri.Detach(), address.displayName.Detach(), nullptr ) };
    const auto takeTyped = [ & ]( Cursor &at ) { return TakeTypedParam( at, hi.Get() ); };
    if( !sipsn::TryDecodeParams( in, &hi->genericParams, takeTyped ) || !hi->index ) return nullptr;
    return hi.Detach();
}

void sipsn::Write( TextWriter &out, SipsnHistoryInfo *hi )
{
    WriteNameAddr( out, hi->displayName, hi->iri );
    ParamWriter params{ out, hi->genericParams };
    params.Text( "index", hi->index );
    params.Text( "rc", hi->rc );
    params.Text( "mp", hi->mp );
    params.Text( "np", hi->np );
    params.Generic();
}

PbString *sipsn___HistoryInfoEncode( SipsnHistoryInfo *hi )
{
    PB_ASSERT( hi );
    return sipsn::Encode( hi );
}
