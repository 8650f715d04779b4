/* SipsnHeaderReason: the Reason header field, RFC 3326 section 2; a list of reason-values.
 *
 * Example: Reason: Q.850;cause=16;text="Normal call clearing";location=LN
 *
 * Each value is kept as its text and decoded when TryDecodeReasonAt asks for it, which gives null when it is no
 * reason-value. A header field without lines is no header. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_REASON_H
#define SIPSN_HEADER_REASON_H

#include "sipsn_header.h"
#include "sipsn_reason.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderReason, sipsnHeaderReason )

PB_API SipsnHeaderReason *sipsnHeaderReasonCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderReason, sipsnHeaderReason, Reasons, Reason, SipsnReason, reason )
PB_API SipsnReason *sipsnHeaderReasonTryDecodeReasonAt( SipsnHeaderReason *hdr, int64_t index );
PB_API void         sipsnHeaderReasonClearReasons( SipsnHeaderReason **hdr );

PB_END_DECLS
#endif
