// SipsnContact: one contact-param, RFC 3261 section 20.10.
#include "sipsn_contact.h"

#include "sipsn_delta_seconds.h"
#include "sipsn_display_name.h"
#include "sipsn_history_info_index.h"
#include "sipsn_iri.h"
#include "sipsn_qvalue.h"
#include "sipsn_sip_instance.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_internal.h"
#include "sipsn_value_internal.h"

using sipsn::Cursor, sipsn::Span;

struct SipsnContact
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    SipsnGenericParams *genericParams;
    int64_t             qvalue;
    int64_t             expires;
    PbString           *rc;
    PbString           *mp;
    PbString           *np;
    PbString           *sipInstance;
    bool                sipSrc;
    bool                sipSrs;

    using Members =
        pb::Members< &SipsnContact::iri, &SipsnContact::displayName, &SipsnContact::genericParams,
                     &SipsnContact::qvalue, &SipsnContact::expires, &SipsnContact::rc, &SipsnContact::mp,
                     &SipsnContact::np, &SipsnContact::sipInstance, &SipsnContact::sipSrc, &SipsnContact::sipSrs >;
    // Without the flags: what a contact can do does not make it another contact.
    using CompareOrder = pb::Members< &SipsnContact::iri, &SipsnContact::displayName, &SipsnContact::qvalue,
                                      &SipsnContact::expires, &SipsnContact::rc, &SipsnContact::mp, &SipsnContact::np,
                                      &SipsnContact::sipInstance, &SipsnContact::genericParams >;
};

SIPSN_DEFINE_TYPE( SipsnContact, sipsnContact, SIPSN_CONTACT, contact, con, sipsn___ContactEncode )

// Takes over the references.
static SipsnContact *CreateOwning( PbString *iri, PbString *displayName )
{
    SipsnContact *contact  = pb::New< SipsnContact >();
    contact->iri           = iri;
    contact->displayName   = displayName;
    contact->genericParams = sipsnGenericParamsCreate();
    return contact;
}

SipsnContact *sipsnContactCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return CreateOwning( pb::Retain( iri ), nullptr );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnContactIri( SipsnContact *contact ) { return PB_GET( contact, iri ); }
void      sipsnContactSetIri( SipsnContact **contact, PbString *iri )
{
    PB_SET( contact, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}

PbString *sipsnContactDisplayName( SipsnContact *contact ) { return PB_GET( contact, displayName ); }
bool      sipsnContactHasDisplayName( SipsnContact *contact ) { return PB_HAS( contact, displayName ); }
void      sipsnContactDelDisplayName( SipsnContact **contact ) { PB_DEL( contact, displayName ); }
void      sipsnContactSetDisplayName( SipsnContact **contact, PbString *displayName )
{
    PB_SET( contact, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}

SipsnGenericParams *sipsnContactGenericParams( SipsnContact *contact ) { return PB_GET( contact, genericParams ); }
void                sipsnContactSetGenericParams( SipsnContact **contact, SipsnGenericParams *genericParams )
{
    PB_SET( contact, genericParams, genericParams, pb::Retain( genericParams ) );
}

int64_t sipsnContactQvalue( SipsnContact *contact ) { return PB_GET( contact, qvalue ); }
bool    sipsnContactHasQvalue( SipsnContact *contact ) { return PB_HAS( contact, qvalue ); }
void    sipsnContactDelQvalue( SipsnContact **contact ) { PB_DEL( contact, qvalue ); }
void    sipsnContactSetQvalue( SipsnContact **contact, int64_t qvalue )
{
    PB_SET( contact, qvalue, sipsnQvalueOk( qvalue ), qvalue );
}

int64_t sipsnContactExpires( SipsnContact *contact ) { return PB_GET( contact, expires ); }
bool    sipsnContactHasExpires( SipsnContact *contact ) { return PB_HAS( contact, expires ); }
void    sipsnContactDelExpires( SipsnContact **contact ) { PB_DEL( contact, expires ); }
void    sipsnContactSetExpires( SipsnContact **contact, int64_t deltaSeconds )
{
    PB_SET( contact, expires, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}

PbString *sipsnContactRc( SipsnContact *contact ) { return PB_GET( contact, rc ); }
bool      sipsnContactHasRc( SipsnContact *contact ) { return PB_HAS( contact, rc ); }
void      sipsnContactDelRc( SipsnContact **contact ) { PB_DEL( contact, rc ); }
void      sipsnContactSetRc( SipsnContact **contact, PbString *rc )
{
    PB_SET( contact, rc, sipsnHistoryInfoIndexOk( rc ), pb::Retain( rc ) );
}

PbString *sipsnContactMp( SipsnContact *contact ) { return PB_GET( contact, mp ); }
bool      sipsnContactHasMp( SipsnContact *contact ) { return PB_HAS( contact, mp ); }
void      sipsnContactDelMp( SipsnContact **contact ) { PB_DEL( contact, mp ); }
void      sipsnContactSetMp( SipsnContact **contact, PbString *mp )
{
    PB_SET( contact, mp, sipsnHistoryInfoIndexOk( mp ), pb::Retain( mp ) );
}

PbString *sipsnContactNp( SipsnContact *contact ) { return PB_GET( contact, np ); }
bool      sipsnContactHasNp( SipsnContact *contact ) { return PB_HAS( contact, np ); }
void      sipsnContactDelNp( SipsnContact **contact ) { PB_DEL( contact, np ); }
void      sipsnContactSetNp( SipsnContact **contact, PbString *np )
{
    PB_SET( contact, np, sipsnHistoryInfoIndexOk( np ), pb::Retain( np ) );
}

PbString *sipsnContactSipInstance( SipsnContact *contact ) { return PB_GET( contact, sipInstance ); }
bool      sipsnContactHasSipInstance( SipsnContact *contact ) { return PB_HAS( contact, sipInstance ); }
void      sipsnContactDelSipInstance( SipsnContact **contact ) { PB_DEL( contact, sipInstance ); }
void      sipsnContactSetSipInstance( SipsnContact **contact, PbString *sipInstance )
{
    PB_SET( contact, sipInstance, sipsnSipInstanceOk( sipInstance ), pb::Retain( sipInstance ) );
}

bool sipsnContactSipSrc( SipsnContact *contact ) { return PB_GET( contact, sipSrc ); }
void sipsnContactSetSipSrc( SipsnContact **contact, bool sipSrc ) { PB_PUT( contact, sipSrc, sipSrc ); }

bool sipsnContactSipSrs( SipsnContact *contact ) { return PB_GET( contact, sipSrs ); }
void sipsnContactSetSipSrs( SipsnContact **contact, bool sipSrs ) { PB_PUT( contact, sipSrs, sipSrs ); }

// ---- Text form -------------------------------------------------------------------------------------

static bool TakeQvalue( Cursor &in, SipsnContact *contact )
{
    const Span text = in.Param( "q", sipsn___SkipQvalue );
    if( !text ) return false;
    const int64_t qvalue = sipsn___QvalueTryDecode( text.chs, text.length );
    PB_ASSERT( sipsnQvalueOk( qvalue ) );
    contact->qvalue = qvalue;
    return true;
}

// The flag's name alone: what follows it ("=1", more letters) is left to fail.
template< size_t N > static bool TakeName( Cursor &in, const char ( &name )[ N ], bool &flag )
{
    if( !in.Keyword( name ) ) return false;
    flag = true;
    return true;
}

static bool TakeTypedParam( Cursor &in, SipsnContact *contact )
{
    return TakeQvalue( in, contact ) ||
           sipsn::TakeInt( in, "expires", sipsn___SkipDeltaSeconds, contact->expires, sipsn___DeltaSecondsTryDecode ) ||
           sipsn::TakeText( in, "rc", sipsn___SkipHistoryInfoIndex, contact->rc ) ||
           sipsn::TakeText( in, "mp", sipsn___SkipHistoryInfoIndex, contact->mp ) ||
           sipsn::TakeText( in, "np", sipsn___SkipHistoryInfoIndex, contact->np ) ||
           sipsn::TakeQuoted( in, "+sip.instance", sipsn___SkipSipInstance, contact->sipInstance ) ||
           TakeName( in, "+sip.src", contact->sipSrc ) || TakeName( in, "+sip.srs", contact->sipSrs );
}

SipsnContact *sipsn___ContactTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    Cursor          in{ chs, length };
    sipsn::NameAddr address;
    if( !sipsn::TryTakeNameAddr( in, &address ) ) return nullptr;

    pb::Ref    contact{ CreateOwning( address.iri.Detach(), address.displayName.Detach() ) };
    const auto takeTyped = [ & ]( Cursor &at ) { return TakeTypedParam( at, contact.Get() ); };
    return sipsn::TryDecodeParams( in, &contact->genericParams, takeTyped ) ? contact.Detach() : nullptr;
}

void sipsn::Write( TextWriter &out, SipsnContact *contact )
{
    WriteNameAddr( out, contact->displayName, contact->iri );
    ParamWriter params{ out, contact->genericParams };
    if( pb::Has( contact->qvalue ) ) params.Owned( "q", sipsn___QvalueEncode( contact->qvalue ) );
    params.Int( "expires", contact->expires );
    params.Text( "rc", contact->rc );
    params.Text( "mp", contact->mp );
    params.Text( "np", contact->np );
    params.Quoted( "+sip.instance", contact->sipInstance );
    params.Flag( "+sip.src", contact->sipSrc );
    params.Flag( "+sip.srs", contact->sipSrs );
    params.Generic();
}

PbString *sipsn___ContactEncode( SipsnContact *contact )
{
    PB_ASSERT( contact );
    return sipsn::Encode( contact );
}
