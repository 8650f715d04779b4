/* SipsnHeaderPEarlyMedia: the P-Early-Media header field, RFC 5009 section 8; a list of em-params.
 *
 * Example: P-Early-Media: sendrecv
 *
 * Em-params are kept as written. A header field without lines decodes to an empty list. Each is encoded as a line of
 * its own. An invalid one aborts. */
#ifndef SIPSN_HEADER_P_EARLY_MEDIA_H
#define SIPSN_HEADER_P_EARLY_MEDIA_H

#include "sipsn_em_param.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderPEarlyMedia, sipsnHeaderPEarlyMedia )

PB_API SipsnHeaderPEarlyMedia *sipsnHeaderPEarlyMediaCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderPEarlyMedia, sipsnHeaderPEarlyMedia, EmParams, EmParam, PbString, emParam )
PB_API PbString *sipsnHeaderPEarlyMediaEmParamAt( SipsnHeaderPEarlyMedia *hdr, int64_t index );
PB_API void      sipsnHeaderPEarlyMediaClearEmParams( SipsnHeaderPEarlyMedia **hdr );

PB_END_DECLS
#endif
