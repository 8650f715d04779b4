// SipsnIdentityValue: one value of P-Asserted-Identity or P-Preferred-Identity, RFC 3325 section 9.
#include "sipsn_identity_value.h"

#include "sipsn_display_name.h"
#include "sipsn_iri.h"
#include "sipsn_value_internal.h"

struct SipsnIdentityValue
{
    PbObj     obj;
    PbString *iri;
    PbString *displayName;

    using Members = pb::Members< &SipsnIdentityValue::iri, &SipsnIdentityValue::displayName >;
};

// Comparison names its two values "routeA" and "routeB", as callers know it.
SIPSN_DEFINE_TYPE( SipsnIdentityValue, sipsnIdentityValue, SIPSN_IDENTITY_VALUE, id, route,
                   sipsn___IdentityValueEncode )

// Takes over the references.
static SipsnIdentityValue *CreateOwning( PbString *iri, PbString *displayName )
{
    SipsnIdentityValue *id = pb::New< SipsnIdentityValue >();
    id->iri                = iri;
    id->displayName        = displayName;
    return id;
}

SipsnIdentityValue *sipsnIdentityValueCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return CreateOwning( pb::Retain( iri ), nullptr );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnIdentityValueIri( SipsnIdentityValue *id ) { return PB_GET( id, iri ); }
void      sipsnIdentityValueSetIri( SipsnIdentityValue **id, PbString *iri )
{
    PB_SET( id, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}

PbString *sipsnIdentityValueDisplayName( SipsnIdentityValue *id ) { return PB_GET( id, displayName ); }
bool      sipsnIdentityValueHasDisplayName( SipsnIdentityValue *id ) { return PB_HAS( id, displayName ); }
void      sipsnIdentityValueDelDisplayName( SipsnIdentityValue **id ) { PB_DEL( id, displayName ); }
void      sipsnIdentityValueSetDisplayName( SipsnIdentityValue **id, PbString *displayName )
{
    PB_SET( id, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}

// ---- Text form -------------------------------------------------------------------------------------

SipsnIdentityValue *sipsn___IdentityValueTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    sipsn::Cursor   in{ chs, length };
    sipsn::NameAddr address;
    if( !sipsn::TryTakeNameAddr( in, &address ) || !in.AtEnd() ) return nullptr;
    return CreateOwning( address.iri.Detach(), address.displayName.Detach() );
}

void sipsn::Write( TextWriter &out, SipsnIdentityValue *id ) { WriteNameAddr( out, id->displayName, id->iri ); }

PbString *sipsn___IdentityValueEncode( SipsnIdentityValue *id )
{
    PB_ASSERT( id );
    return sipsn::Encode( id );
}
