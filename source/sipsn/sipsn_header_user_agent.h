/* SipsnHeaderUserAgent: the User-Agent header field, RFC 3261 section 20.41; what software sent a request.
 *
 * Example: User-Agent: Softphone/1.5 (Linux)
 *
 *     User-Agent = server-val *( LWS server-val )
 *
 *     user agent   products and comments, kept as written; never absent
 *
 * The last line of the header field counts, and no line is no header. The getter returns a new reference. The setter
 * replaces *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_USER_AGENT_H
#define SIPSN_HEADER_USER_AGENT_H

#include "sipsn_header.h"
#include "sipsn_user_agent.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderUserAgent, sipsnHeaderUserAgent )

PB_API SipsnHeaderUserAgent *sipsnHeaderUserAgentCreate( PbString *userAgent );

PB_API PbString *sipsnHeaderUserAgentUserAgent( SipsnHeaderUserAgent *hdr );
PB_API void      sipsnHeaderUserAgentSetUserAgent( SipsnHeaderUserAgent **hdr, PbString *userAgent );

PB_END_DECLS
#endif
