// SipsnRoute: one route-param, RFC 3261 sections 20.30 and 20.34.
#include "sipsn_route.h"

#include "sipsn_display_name.h"
#include "sipsn_iri.h"
#include "sipsn_value_internal.h"

using sipsn::Cursor;

struct SipsnRoute
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    SipsnGenericParams *genericParams;

    using Members = pb::Members< &SipsnRoute::iri, &SipsnRoute::displayName, &SipsnRoute::genericParams >;
};

SIPSN_DEFINE_TYPE( SipsnRoute, sipsnRoute, SIPSN_ROUTE, route, route, sipsn___RouteEncode )

// Takes over the references.
static SipsnRoute *CreateOwning( PbString *iri, PbString *displayName )
{
    SipsnRoute *route    = pb::New< SipsnRoute >();
    route->iri           = iri;
    route->displayName   = displayName;
    route->genericParams = sipsnGenericParamsCreate();
    return route;
}

SipsnRoute *sipsnRouteCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return CreateOwning( pb::Retain( iri ), nullptr );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnRouteIri( SipsnRoute *route ) { return PB_GET( route, iri ); }
void      sipsnRouteSetIri( SipsnRoute **route, PbString *iri )
{
    PB_SET( route, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}

PbString *sipsnRouteDisplayName( SipsnRoute *route ) { return PB_GET( route, displayName ); }
bool      sipsnRouteHasDisplayName( SipsnRoute *route ) { return PB_HAS( route, displayName ); }
void      sipsnRouteDelDisplayName( SipsnRoute **route ) { PB_DEL( route, displayName ); }
void      sipsnRouteSetDisplayName( SipsnRoute **route, PbString *displayName )
{
    PB_SET( route, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}

SipsnGenericParams *sipsnRouteGenericParams( SipsnRoute *route ) { return PB_GET( route, genericParams ); }
void                sipsnRouteSetGenericParams( SipsnRoute **route, SipsnGenericParams *genericParams )
{
    PB_SET( route, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

SipsnRoute *sipsn___RouteTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    Cursor          in{ chs, length };
    sipsn::NameAddr address;
    if( !sipsn::TryTakeNameAddr( in, &address ) ) return nullptr;

    pb::Ref    route{ CreateOwning( address.iri.Detach(), address.displayName.Detach() ) };
    const auto takeTyped = []( Cursor & ) { return false; };
    return sipsn::TryDecodeParams( in, &route->genericParams, takeTyped ) ? route.Detach() : nullptr;
}

void sipsn::Write( TextWriter &out, SipsnRoute *route )
{
    WriteNameAddr( out, route->displayName, route->iri );
    Write( out, route->genericParams );
}

PbString *sipsn___RouteEncode( SipsnRoute *route )
{
    PB_ASSERT( route );
    return sipsn::Encode( route );
}
