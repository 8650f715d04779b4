/* SipsnHeaderVia: the Via header field, RFC 3261 section 20.42; a list of via-parms.
 *
 * Example: Via: SIP/2.0/UDP 192.0.2.10:5060;rport;branch=z9hG4bK776asdhds;keep=30
 *
 * Each value is kept as its text and decoded when TryDecodeViaAt asks for it, which gives null when it is no via-parm.
 * A header field without lines decodes to an empty list. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_VIA_H
#define SIPSN_HEADER_VIA_H

#include "sipsn_header.h"
#include "sipsn_via.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderVia, sipsnHeaderVia )

PB_API SipsnHeaderVia *sipsnHeaderViaCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderVia, sipsnHeaderVia, Vias, Via, SipsnVia, via )
PB_API SipsnVia *sipsnHeaderViaTryDecodeViaAt( SipsnHeaderVia *hdr, int64_t index );
PB_API void      sipsnHeaderViaClearVias( SipsnHeaderVia **hdr );

PB_END_DECLS
#endif
