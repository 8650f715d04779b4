// SipsnHeaderPAssertedIdentity: the P-Asserted-Identity header field, RFC 3325 section 9.1.
#include "sipsn_header_p_asserted_identity.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderPAssertedIdentity
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderPAssertedIdentity::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderPAssertedIdentity, sipsn___PbsPAssertedIdentity, "P-Asserted-Identity" )

static constexpr sipsn::List< SipsnHeaderPAssertedIdentity > shape{
    .items   = &SipsnHeaderPAssertedIdentity::items,
    .item    = sipsn___SkipIdentityValue,
    .noLines = sipsn::NoLines::givesNull,
};

SIPSN_DEFINE_HEADER( SipsnHeaderPAssertedIdentity, sipsnHeaderPAssertedIdentity, SIPSN_HEADER_P_ASSERTED_IDENTITY,
                     sipsn___PbsPAssertedIdentity, shape )
SIPSN_DEFINE_LIST( SipsnHeaderPAssertedIdentity, sipsnHeaderPAssertedIdentity, IdentityValues, IdentityValue,
                   SipsnIdentityValue, identityValue, sipsn___IdentityValueEncode )

SipsnHeaderPAssertedIdentity *sipsnHeaderPAssertedIdentityCreate( void ) { return shape.Create(); }
void sipsnHeaderPAssertedIdentityClearIdentityValues( SipsnHeaderPAssertedIdentity **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnIdentityValue *sipsnHeaderPAssertedIdentityTryDecodeIdentityValueAt( SipsnHeaderPAssertedIdentity *hdr,
                                                                          int64_t                       index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___IdentityValueTryDecode );
}
