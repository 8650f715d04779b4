/* SipsnHeaderPPreferredIdentity: the P-Preferred-Identity header field, RFC 3325 section 9.2; a list of
 * PPreferredID-values.
 *
 * Example: P-Preferred-Identity: "Alice" <sip:alice@example.com>
 *
 * Each value is kept as its text and decoded when TryDecodeIdentityValueAt asks for it, which gives null when it is no
 * PPreferredID-value. A header field without lines is no header. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_P_PREFERRED_IDENTITY_H
#define SIPSN_HEADER_P_PREFERRED_IDENTITY_H

#include "sipsn_header.h"
#include "sipsn_identity_value.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderPPreferredIdentity, sipsnHeaderPPreferredIdentity )

PB_API SipsnHeaderPPreferredIdentity *sipsnHeaderPPreferredIdentityCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderPPreferredIdentity, sipsnHeaderPPreferredIdentity, IdentityValues, IdentityValue,
                    SipsnIdentityValue, identityValue )
PB_API SipsnIdentityValue *sipsnHeaderPPreferredIdentityTryDecodeIdentityValueAt( SipsnHeaderPPreferredIdentity *hdr,
                                                                                  int64_t index );
PB_API void                sipsnHeaderPPreferredIdentityClearIdentityValues( SipsnHeaderPPreferredIdentity **hdr );

PB_END_DECLS
#endif
