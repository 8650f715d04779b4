// SipsnHeaderPPreferredIdentity: the P-Preferred-Identity header field, RFC 3325 section 9.2.
#include "sipsn_header_p_preferred_identity.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderPPreferredIdentity
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderPPreferredIdentity::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderPPreferredIdentity, sipsn___PbsPPreferredIdentity, "P-Preferred-Identity" )

static constexpr sipsn::List< SipsnHeaderPPreferredIdentity > shape{
    .items   = &SipsnHeaderPPreferredIdentity::items,
    .item    = sipsn___SkipIdentityValue,
    .noLines = sipsn::NoLines::givesNull,
};

SIPSN_DEFINE_HEADER( SipsnHeaderPPreferredIdentity, sipsnHeaderPPreferredIdentity, SIPSN_HEADER_P_PREFERRED_IDENTITY,
                     sipsn___PbsPPreferredIdentity, shape )
SIPSN_DEFINE_LIST( SipsnHeaderPPreferredIdentity, sipsnHeaderPPreferredIdentity, IdentityValues, IdentityValue,
                   SipsnIdentityValue, identityValue, sipsn___IdentityValueEncode )

SipsnHeaderPPreferredIdentity *sipsnHeaderPPreferredIdentityCreate( void ) { return shape.Create(); }
void                           sipsnHeaderPPreferredIdentityClearIdentityValues( SipsnHeaderPPreferredIdentity **hdr )
{
    SIPSN_LIST_CLEAR( hdr );
}

SipsnIdentityValue *sipsnHeaderPPreferredIdentityTryDecodeIdentityValueAt( SipsnHeaderPPreferredIdentity *hdr,
                                                                           int64_t                        index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___IdentityValueTryDecode );
}
