/* SipsnHeaderAcceptEncoding: the Accept-Encoding header field, RFC 3261 section 20.2; a list of encodings.
 *
 * Example: Accept-Encoding: gzip;q=0.5;level=9
 *
 * Each value is kept as its text and decoded when TryDecodeAcceptEncodingAt asks for it, which gives null when it is no
 * encoding. A header field without lines is no header. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_ACCEPT_ENCODING_H
#define SIPSN_HEADER_ACCEPT_ENCODING_H

#include "sipsn_accept_encoding.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderAcceptEncoding, sipsnHeaderAcceptEncoding )

PB_API SipsnHeaderAcceptEncoding *sipsnHeaderAcceptEncodingCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderAcceptEncoding, sipsnHeaderAcceptEncoding, AcceptEncodings, AcceptEncoding,
                    SipsnAcceptEncoding, acceptEncoding )
PB_API SipsnAcceptEncoding *sipsnHeaderAcceptEncodingTryDecodeAcceptEncodingAt( SipsnHeaderAcceptEncoding *hdr,
                                                                                int64_t                    index );
PB_API void                 sipsnHeaderAcceptEncodingClearAcceptEncodings( SipsnHeaderAcceptEncoding **hdr );

PB_END_DECLS
#endif
