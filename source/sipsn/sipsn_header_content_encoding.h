/* SipsnHeaderContentEncoding: the Content-Encoding header field, RFC 3261 section 20.12; a list of content codings.
 *
 * Example: Content-Encoding: gzip,tar
 *
 * Decoded codings are in lower case; those that a caller adds are kept as given. A header field without lines decodes
 * to an empty list. All codings are encoded into one line. An invalid coding aborts. */
#ifndef SIPSN_HEADER_CONTENT_ENCODING_H
#define SIPSN_HEADER_CONTENT_ENCODING_H

#include "sipsn_content_coding.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderContentEncoding, sipsnHeaderContentEncoding )

PB_API SipsnHeaderContentEncoding *sipsnHeaderContentEncodingCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderContentEncoding, sipsnHeaderContentEncoding, ContentCodings, ContentCoding, PbString,
                    contentCoding )
PB_API PbString *sipsnHeaderContentEncodingContentCodingAt( SipsnHeaderContentEncoding *hdr, int64_t index );
PB_API void      sipsnHeaderContentEncodingClearContentCodings( SipsnHeaderContentEncoding **hdr );

/* All codings as a new vector; and all replaced by the texts of the vector's elements. */
PB_API PbVector *sipsnHeaderContentEncodingContentCodingsVector( SipsnHeaderContentEncoding *hdr );
PB_API void      sipsnHeaderContentEncodingSetContentCodingsVector( SipsnHeaderContentEncoding **hdr, PbVector *vec );

PB_END_DECLS
#endif
