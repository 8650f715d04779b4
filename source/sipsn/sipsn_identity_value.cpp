// SipsnIdentityValue: one value of P-Asserted-Identity or P-Preferred-Identity, RFC 3325 section 9.
#include "sipsn_identity_value.h"

#include "sipsn_rules.h"
#include "sipsn_uri_member.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( IdentityValue )

struct SipsnIdentityValue
{
    PbObj     obj;
    PbString *iri;
    PbString *displayName;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnIdentityValue::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnIdentityValue::displayName, sipsn::rule::displayName ),
        };
    }
};

// Comparison names its two values "routeA" and "routeB", as callers know it.
SIPSN_DEFINE_TYPE( SipsnIdentityValue, sipsnIdentityValue, SIPSN_IDENTITY_VALUE, id, route,
                   sipsn___IdentityValueEncode )

SipsnIdentityValue *sipsnIdentityValueCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return sipsn::NewWith( &SipsnIdentityValue::iri, pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnIdentityValueIri( SipsnIdentityValue *id ) { return PB_GET( id, iri ); }
void      sipsnIdentityValueSetIri( SipsnIdentityValue **id, PbString *iri )
{
    PB_SET( id, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}
SIPSN_DEFINE_URI( IdentityValue, id )

PbString *sipsnIdentityValueDisplayName( SipsnIdentityValue *id ) { return PB_GET( id, displayName ); }
bool      sipsnIdentityValueHasDisplayName( SipsnIdentityValue *id ) { return PB_HAS( id, displayName ); }
void      sipsnIdentityValueSetDisplayName( SipsnIdentityValue **id, PbString *displayName )
{
    PB_SET( id, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}
void sipsnIdentityValueDelDisplayName( SipsnIdentityValue **id ) { PB_DEL( id, displayName ); }

// ---- Text form -------------------------------------------------------------------------------------

static constexpr sipsn::Address< SipsnIdentityValue > form{};

SIPSN_DEFINE_TEXT( IdentityValue, id, form )
