// SipsnRoute: one route-param, RFC 3261 sections 20.30 and 20.34.
#include "sipsn_route.h"

#include "sipsn_rules.h"
#include "sipsn_uri_member.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( Route )

struct SipsnRoute
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnRoute::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnRoute::displayName, sipsn::rule::displayName ),
            sipsn::OtherParams( &SipsnRoute::genericParams ),
        };
    }
};

SIPSN_DEFINE_TYPE( SipsnRoute, sipsnRoute, SIPSN_ROUTE, route, route, sipsn___RouteEncode )

SipsnRoute *sipsnRouteCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return sipsn::NewWith( &SipsnRoute::iri, pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnRouteIri( SipsnRoute *route ) { return PB_GET( route, iri ); }
void      sipsnRouteSetIri( SipsnRoute **route, PbString *iri )
{
    PB_SET( route, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}
SIPSN_DEFINE_URI( Route, route )

PbString *sipsnRouteDisplayName( SipsnRoute *route ) { return PB_GET( route, displayName ); }
bool      sipsnRouteHasDisplayName( SipsnRoute *route ) { return PB_HAS( route, displayName ); }
void      sipsnRouteSetDisplayName( SipsnRoute **route, PbString *displayName )
{
    PB_SET( route, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}
void sipsnRouteDelDisplayName( SipsnRoute **route ) { PB_DEL( route, displayName ); }

SipsnGenericParams *sipsnRouteGenericParams( SipsnRoute *route ) { return PB_GET( route, genericParams ); }
void                sipsnRouteSetGenericParams( SipsnRoute **route, SipsnGenericParams *genericParams )
{
    PB_SET( route, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static constexpr sipsn::Address< SipsnRoute > form{};

SIPSN_DEFINE_TEXT( Route, route, form )
