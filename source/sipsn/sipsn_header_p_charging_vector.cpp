// SipsnHeaderPChargingVector: the P-Charging-Vector header field, RFC 7315 section 5.6.
#include "sipsn_header_p_charging_vector.h"

#include "sipsn_header_frame.h"
#include "sipsn_param_forms.h"

struct SipsnHeaderPChargingVector
{
    PbObj               obj;
    PbString           *icidValue;
    PbString           *icidGeneratedAt;
    PbString           *origIoi;
    PbString           *termIoi;
    PbString           *transitIoi;
    PbString           *relatedIcid;
    PbString           *relatedIcidGeneratedAt;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::TextParam( "icid-value", &SipsnHeaderPChargingVector::icidValue, sipsn::rule::genValue, "icidValue" )
                .Required(),
            sipsn::TextParam( "icid-generated-at", &SipsnHeaderPChargingVector::icidGeneratedAt, sipsn::rule::host,
                              "icidGeneratedAt" ),
            sipsn::TextParam( "orig-ioi", &SipsnHeaderPChargingVector::origIoi, sipsn::rule::genValue, "origIoi" ),
            sipsn::TextParam( "term-ioi", &SipsnHeaderPChargingVector::termIoi, sipsn::rule::genValue, "termIoi" ),
            sipsn::TextParam( "transit-ioi", &SipsnHeaderPChargingVector::transitIoi, sipsn::rule::quotedWord,
                              "transitIoi" ),
            sipsn::TextParam( "related-icid", &SipsnHeaderPChargingVector::relatedIcid, sipsn::rule::genValue,
                              "relatedIcid" ),
            sipsn::TextParam( "related-icid-generated-at", &SipsnHeaderPChargingVector::relatedIcidGeneratedAt,
                              sipsn::rule::host, "relatedIcidGeneratedAt" ),
            sipsn::OtherParams( &SipsnHeaderPChargingVector::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( PChargingVector, "P-Charging-Vector", SIPSN_HEADER_P_CHARGING_VECTOR, sipsn::OnlyParams )

SIPSN_CREATE_TEXT( HeaderPChargingVector, icidValue, sipsnQuotableStringOk )
SIPSN_TEXT( HeaderPChargingVector, hdr, IcidValue, icidValue, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( HeaderPChargingVector, hdr, IcidGeneratedAt, icidGeneratedAt, sipsnHostOk )
SIPSN_OPTIONAL_TEXT( HeaderPChargingVector, hdr, OrigIoi, origIoi, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( HeaderPChargingVector, hdr, TermIoi, termIoi, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( HeaderPChargingVector, hdr, TransitIoi, transitIoi, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( HeaderPChargingVector, hdr, RelatedIcid, relatedIcid, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( HeaderPChargingVector, hdr, RelatedIcidGeneratedAt, relatedIcidGeneratedAt, sipsnHostOk )
SIPSN_PARAMS( HeaderPChargingVector, hdr )
