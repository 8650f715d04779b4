// SipsnContact: one contact-param, RFC 3261 section 20.10.
#include "sipsn_contact.h"

#include "sipsn_rules.h"
#include "sipsn_sip_instance.h"
#include "sipsn_uri_member.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( Contact )

namespace sipsn::rule {

static constexpr TextRule sipInstance{
    .words = "an instance", .ok = sipsnSipInstanceOk, .production = sipsn___SkipSipInstance };

} // namespace sipsn::rule

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

    // Contacts compare without the flags: what one can do does not make it another contact.
    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnContact::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnContact::displayName, sipsn::rule::displayName ),
            sipsn::IntParam( "q", &SipsnContact::qvalue, sipsn::rule::qvalue ),
            sipsn::IntParam( "expires", &SipsnContact::expires, sipsn::rule::deltaSeconds ),
            sipsn::TextParam( "rc", &SipsnContact::rc, sipsn::rule::historyInfoIndex ),
            sipsn::TextParam( "mp", &SipsnContact::mp, sipsn::rule::historyInfoIndex ),
            sipsn::TextParam( "np", &SipsnContact::np, sipsn::rule::historyInfoIndex ),
            sipsn::QuotedParam( "+sip.instance", &SipsnContact::sipInstance, sipsn::rule::sipInstance, "sipInstance" ),
            sipsn::FlagParam( "+sip.src", &SipsnContact::sipSrc, "sipSrc" ).Lenient().NotCompared(),
            sipsn::FlagParam( "+sip.srs", &SipsnContact::sipSrs, "sipSrs" ).Lenient().NotCompared(),
            sipsn::OtherParams( &SipsnContact::genericParams ),
        };
    }
};

SIPSN_DEFINE_TYPE( SipsnContact, sipsnContact, SIPSN_CONTACT, contact, con, sipsn___ContactEncode )

SipsnContact *sipsnContactCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return sipsn::NewWith( &SipsnContact::iri, pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnContactIri( SipsnContact *contact ) { return PB_GET( contact, iri ); }
void      sipsnContactSetIri( SipsnContact **contact, PbString *iri )
{
    PB_SET( contact, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}
SIPSN_DEFINE_URI( Contact, contact )

PbString *sipsnContactDisplayName( SipsnContact *contact ) { return PB_GET( contact, displayName ); }
bool      sipsnContactHasDisplayName( SipsnContact *contact ) { return PB_HAS( contact, displayName ); }
void      sipsnContactSetDisplayName( SipsnContact **contact, PbString *displayName )
{
    PB_SET( contact, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}
void sipsnContactDelDisplayName( SipsnContact **contact ) { PB_DEL( contact, displayName ); }

SipsnGenericParams *sipsnContactGenericParams( SipsnContact *contact ) { return PB_GET( contact, genericParams ); }
void                sipsnContactSetGenericParams( SipsnContact **contact, SipsnGenericParams *genericParams )
{
    PB_SET( contact, genericParams, genericParams, pb::Retain( genericParams ) );
}

int64_t sipsnContactQvalue( SipsnContact *contact ) { return PB_GET( contact, qvalue ); }
bool    sipsnContactHasQvalue( SipsnContact *contact ) { return PB_HAS( contact, qvalue ); }
void    sipsnContactSetQvalue( SipsnContact **contact, int64_t qvalue )
{
    PB_SET( contact, qvalue, sipsnQvalueOk( qvalue ), qvalue );
}
void sipsnContactDelQvalue( SipsnContact **contact ) { PB_DEL( contact, qvalue ); }

int64_t sipsnContactExpires( SipsnContact *contact ) { return PB_GET( contact, expires ); }
bool    sipsnContactHasExpires( SipsnContact *contact ) { return PB_HAS( contact, expires ); }
void    sipsnContactSetExpires( SipsnContact **contact, int64_t deltaSeconds )
{
    PB_SET( contact, expires, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}
void sipsnContactDelExpires( SipsnContact **contact ) { PB_DEL( contact, expires ); }

PbString *sipsnContactRc( SipsnContact *contact ) { return PB_GET( contact, rc ); }
bool      sipsnContactHasRc( SipsnContact *contact ) { return PB_HAS( contact, rc ); }
void      sipsnContactSetRc( SipsnContact **contact, PbString *rc )
{
    PB_SET( contact, rc, sipsnHistoryInfoIndexOk( rc ), pb::Retain( rc ) );
}
void sipsnContactDelRc( SipsnContact **contact ) { PB_DEL( contact, rc ); }

PbString *sipsnContactMp( SipsnContact *contact ) { return PB_GET( contact, mp ); }
bool      sipsnContactHasMp( SipsnContact *contact ) { return PB_HAS( contact, mp ); }
void      sipsnContactSetMp( SipsnContact **contact, PbString *mp )
{
    PB_SET( contact, mp, sipsnHistoryInfoIndexOk( mp ), pb::Retain( mp ) );
}
void sipsnContactDelMp( SipsnContact **contact ) { PB_DEL( contact, mp ); }

PbString *sipsnContactNp( SipsnContact *contact ) { return PB_GET( contact, np ); }
bool      sipsnContactHasNp( SipsnContact *contact ) { return PB_HAS( contact, np ); }
void      sipsnContactSetNp( SipsnContact **contact, PbString *np )
{
    PB_SET( contact, np, sipsnHistoryInfoIndexOk( np ), pb::Retain( np ) );
}
void sipsnContactDelNp( SipsnContact **contact ) { PB_DEL( contact, np ); }

PbString *sipsnContactSipInstance( SipsnContact *contact ) { return PB_GET( contact, sipInstance ); }
bool      sipsnContactHasSipInstance( SipsnContact *contact ) { return PB_HAS( contact, sipInstance ); }
void      sipsnContactSetSipInstance( SipsnContact **contact, PbString *sipInstance )
{
    PB_SET( contact, sipInstance, sipsnSipInstanceOk( sipInstance ), pb::Retain( sipInstance ) );
}
void sipsnContactDelSipInstance( SipsnContact **contact ) { PB_DEL( contact, sipInstance ); }

bool sipsnContactSipSrc( SipsnContact *contact ) { return PB_GET( contact, sipSrc ); }
void sipsnContactSetSipSrc( SipsnContact **contact, bool sipSrc ) { PB_PUT( contact, sipSrc, sipSrc ); }

bool sipsnContactSipSrs( SipsnContact *contact ) { return PB_GET( contact, sipSrs ); }
void sipsnContactSetSipSrs( SipsnContact **contact, bool sipSrs ) { PB_PUT( contact, sipSrs, sipSrs ); }

// ---- Text form -------------------------------------------------------------------------------------

static constexpr sipsn::Address< SipsnContact > form{};

SIPSN_DEFINE_TEXT( Contact, contact, form )
