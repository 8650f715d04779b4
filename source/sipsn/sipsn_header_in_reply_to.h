/* SipsnHeaderInReplyTo: the In-Reply-To header field, RFC 3261 section 20.21; a set of Call-IDs.
 *
 * Example: In-Reply-To: 17320@sip.example.com,70710@sip.example.com
 *
 * Call-IDs are kept as written, and Call-IDs in different letter case are different. All are encoded into one line. A
 * header field without lines is no header. */
#ifndef SIPSN_HEADER_IN_REPLY_TO_H
#define SIPSN_HEADER_IN_REPLY_TO_H

#include "sipsn_call_id.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderInReplyTo, sipsnHeaderInReplyTo )

PB_API SipsnHeaderInReplyTo *sipsnHeaderInReplyToCreate( void );

SIPSN_DECLARE_SET( SipsnHeaderInReplyTo, sipsnHeaderInReplyTo, CallIds, CallId, callId )

PB_END_DECLS
#endif
