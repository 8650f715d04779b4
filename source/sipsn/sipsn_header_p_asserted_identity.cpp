// SipsnHeaderPAssertedIdentity: the P-Asserted-Identity header field, RFC 3325 section 9.1.
#include "sipsn_header_p_asserted_identity.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( IdentityValue )

struct SipsnHeaderPAssertedIdentity
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Values( "identityValues", &SipsnHeaderPAssertedIdentity::items,
                                           sipsn___SkipIdentityValue, sipsn::schemaIdentityValue ) };
    }
};

SIPSN_DEFINE_NAME( PAssertedIdentity, "P-Asserted-Identity" )

static constexpr sipsn::List< SipsnHeaderPAssertedIdentity > shape{ .noLines = sipsn::NoLines::givesNull };

SIPSN_DEFINE_HEADER( PAssertedIdentity, SIPSN_HEADER_P_ASSERTED_IDENTITY, shape )
SIPSN_DEFINE_LIST( PAssertedIdentity, IdentityValues, IdentityValue, SipsnIdentityValue, identityValue,
                   sipsn___IdentityValueEncode )

SipsnHeaderPAssertedIdentity *sipsnHeaderPAssertedIdentityCreate( void ) { return shape.Create(); }
void sipsnHeaderPAssertedIdentityClearIdentityValues( SipsnHeaderPAssertedIdentity **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnIdentityValue *sipsnHeaderPAssertedIdentityTryDecodeIdentityValueAt( SipsnHeaderPAssertedIdentity *hdr,
                                                                          int64_t                       index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___IdentityValueTryDecode );
}
