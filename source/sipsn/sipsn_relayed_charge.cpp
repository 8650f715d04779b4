// SipsnRelayedCharge: one item of Relayed-Charge, 3GPP TS 24.229.
#include "sipsn_relayed_charge.h"

#include "sipsn_param_forms.h"
#include "sipsn_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( RelayedCharge )

struct SipsnRelayedCharge
{
    PbObj               obj;
    PbString           *element;
    PbString           *icidValue;
    PbString           *origIoi;
    PbString           *termIoi;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "element", &SipsnRelayedCharge::element, sipsn::rule::token ),
            sipsn::TextParam( "icid-value", &SipsnRelayedCharge::icidValue, sipsn::rule::genValue, "icidValue" )
                .Required(),
            sipsn::TextParam( "orig-ioi", &SipsnRelayedCharge::origIoi, sipsn::rule::genValue, "origIoi" ),
            sipsn::TextParam( "term-ioi", &SipsnRelayedCharge::termIoi, sipsn::rule::genValue, "termIoi" ),
            sipsn::OtherParams( &SipsnRelayedCharge::genericParams ),
        };
    }
};

// A token, a colon, then parameters.
template< class T > struct ColonForm
{
    template< class Link > T *TryDecode( sipsn::BasicCursor< Link > &in ) const
    {
        pb::Ref value{ sipsn::New< T >() };
        if( !TakeFirst( in, *value.Get() ) || !in.Take( sipsn___SkipColon ) ) return nullptr;
        if( !TryDecodeOnlyParams( in, *value.Get(), sipsn___SkipSemi ) ) return nullptr;
        return sipsn::IsComplete( *value.Get() ) || in.Lacks( "an icid-value" ) ? value.Detach() : nullptr;
    }

    void Write( sipsn::TextWriter &out, T &value ) const
    {
        WriteFirst( out, value );
        WriteParams( out, value, sipsn::Between{ ';', ':' } );
    }
};

SIPSN_VALUE( RelayedCharge, charge, SIPSN_RELAYED_CHARGE, ColonForm )

SipsnRelayedCharge *sipsnRelayedChargeCreate( PbString *element, PbString *icidValue )
{
    PB_ASSERT( sipsnTokenOk( element ) );
    PB_ASSERT( sipsnQuotableStringOk( icidValue ) );
    SipsnRelayedCharge *value =
        sipsn::NewWith( &SipsnRelayedCharge::element, sipsn::Normal( &SipsnRelayedCharge::element, element ) );
    value->icidValue = sipsn::Normal( &SipsnRelayedCharge::icidValue, icidValue );
    return value;
}

SIPSN_TEXT( RelayedCharge, charge, Element, element, sipsnTokenOk )
SIPSN_TEXT( RelayedCharge, charge, IcidValue, icidValue, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( RelayedCharge, charge, OrigIoi, origIoi, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( RelayedCharge, charge, TermIoi, termIoi, sipsnQuotableStringOk )
SIPSN_PARAMS( RelayedCharge, charge )
