/* SipsnHeaderServer: the Server header field, RFC 3261 section 20.35; what software sent a response.
 *
 * Example: Server: HomeServer/2.1 (Debian)
 *
 *     Server = server-val *( LWS server-val )
 *
 *     server   products and comments, kept as written; never absent
 *
 * The last line of the header field counts, and no line is no header. The getter returns a new reference. The setter
 * replaces *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_SERVER_H
#define SIPSN_HEADER_SERVER_H

#include "sipsn_header.h"
#include "sipsn_server.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderServer, sipsnHeaderServer )

PB_API SipsnHeaderServer *sipsnHeaderServerCreate( PbString *server );

PB_API PbString *sipsnHeaderServerServer( SipsnHeaderServer *hdr );
PB_API void      sipsnHeaderServerSetServer( SipsnHeaderServer **hdr, PbString *server );

PB_END_DECLS
#endif
