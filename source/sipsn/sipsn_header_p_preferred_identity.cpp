// SipsnHeaderPPreferredIdentity: the P-Preferred-Identity header field, RFC 3325 section 9.2.
#include "sipsn_header_p_preferred_identity.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( IdentityValue )

struct SipsnHeaderPPreferredIdentity
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Values( "identityValues", &SipsnHeaderPPreferredIdentity::items,
                                           sipsn___SkipIdentityValue, sipsn::schemaIdentityValue ) };
    }
};

SIPSN_DEFINE_NAME( PPreferredIdentity, "P-Preferred-Identity" )

static constexpr sipsn::List< SipsnHeaderPPreferredIdentity > shape{ .noLines = sipsn::NoLines::givesNull };

SIPSN_DEFINE_HEADER( PPreferredIdentity, SIPSN_HEADER_P_PREFERRED_IDENTITY, shape )
SIPSN_DEFINE_LIST( PPreferredIdentity, IdentityValues, IdentityValue, SipsnIdentityValue, identityValue,
                   sipsn___IdentityValueEncode )

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
