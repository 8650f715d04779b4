/* SipsnHeaderDiversion: the Diversion header field, RFC 5806; a list of diversion-params.
 *
 * Example: Diversion: "Bob" <sip:bob@example.com>;reason=user-busy;counter=1;limit=5;privacy=full;screen=yes;lang=en
 *
 * Each value is kept as its text and decoded when TryDecodeDiversionAt asks for it, which gives null when it is none. A
 * header field without lines is no header. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_DIVERSION_H
#define SIPSN_HEADER_DIVERSION_H

#include "sipsn_diversion.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderDiversion, sipsnHeaderDiversion )

PB_API SipsnHeaderDiversion *sipsnHeaderDiversionCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderDiversion, sipsnHeaderDiversion, Diversions, Diversion, SipsnDiversion, diversion )
PB_API SipsnDiversion *sipsnHeaderDiversionTryDecodeDiversionAt( SipsnHeaderDiversion *hdr, int64_t index );
PB_API void            sipsnHeaderDiversionClearDiversions( SipsnHeaderDiversion **hdr );

PB_END_DECLS
#endif
