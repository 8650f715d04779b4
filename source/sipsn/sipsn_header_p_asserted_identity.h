/* SipsnHeaderPAssertedIdentity: the P-Asserted-Identity header field, RFC 3325 section 9.1; a list of
 * PAssertedID-values.
 *
 * Example: P-Asserted-Identity: "Alice" <sip:alice@example.com>
 *
 * Each value is kept as its text and decoded when TryDecodeIdentityValueAt asks for it, which gives null when it is no
 * PAssertedID-value. A header field without lines is no header. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_P_ASSERTED_IDENTITY_H
#define SIPSN_HEADER_P_ASSERTED_IDENTITY_H

#include "sipsn_header.h"
#include "sipsn_identity_value.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderPAssertedIdentity, sipsnHeaderPAssertedIdentity )

PB_API SipsnHeaderPAssertedIdentity *sipsnHeaderPAssertedIdentityCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderPAssertedIdentity, sipsnHeaderPAssertedIdentity, IdentityValues, IdentityValue,
                    SipsnIdentityValue, identityValue )
PB_API SipsnIdentityValue *sipsnHeaderPAssertedIdentityTryDecodeIdentityValueAt( SipsnHeaderPAssertedIdentity *hdr,
                                                                                 int64_t                       index );
PB_API void                sipsnHeaderPAssertedIdentityClearIdentityValues( SipsnHeaderPAssertedIdentity **hdr );

PB_END_DECLS
#endif
