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

/* ./dev lists: HEADER( SipsnHeaderContentEncoding ), see sipsn_header.h */
typedef struct SipsnHeaderContentEncoding SipsnHeaderContentEncoding;

PB_API SipsnHeaderContentEncoding *sipsnHeaderContentEncodingCreateFrom( SipsnHeaderContentEncoding *source );
PB_API SipsnHeaderContentEncoding *sipsnHeaderContentEncodingRetain( SipsnHeaderContentEncoding *obj );
PB_API void                        sipsnHeaderContentEncodingRelease( SipsnHeaderContentEncoding *obj );
PB_API PbObj                      *sipsnHeaderContentEncodingObj( SipsnHeaderContentEncoding *obj );
PB_API SipsnHeaderContentEncoding *sipsnHeaderContentEncodingFrom( PbObj *obj );
PB_API PbSort                     *sipsnHeaderContentEncodingSort( void );
PB_API PbString                   *sipsnHeaderContentEncodingToString( SipsnHeaderContentEncoding *obj );
PB_API int64_t sipsnHeaderContentEncodingCompare( SipsnHeaderContentEncoding *a, SipsnHeaderContentEncoding *b );
PB_API bool    sipsnHeaderContentEncodingEquals( SipsnHeaderContentEncoding *a, SipsnHeaderContentEncoding *b );

PB_API SipsnHeaderContentEncoding *sipsnHeaderContentEncodingTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader         *sipsnHeaderContentEncodingEncode( SipsnHeaderContentEncoding *hdr );
PB_API SipsnHeaderContentEncoding *sipsnHeaderContentEncodingTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderContentEncodingEncodeToMessage( SipsnHeaderContentEncoding *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderContentEncodingPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderContentEncodingRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderContentEncodingStore( SipsnHeaderContentEncoding *hdr );
PB_API SipsnHeaderContentEncoding *sipsnHeaderContentEncodingTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderContentEncoding *sipsnHeaderContentEncodingCreate( void );

/* ./dev lists: LIST( ContentCodings, ContentCoding, PbString ), see sipsn_header.h */
PB_API int64_t sipsnHeaderContentEncodingContentCodingsLength( SipsnHeaderContentEncoding *hdr );
PB_API void sipsnHeaderContentEncodingAppendContentCoding( SipsnHeaderContentEncoding **hdr, PbString *contentCoding );
PB_API void sipsnHeaderContentEncodingPrependContentCoding( SipsnHeaderContentEncoding **hdr, PbString *contentCoding );
PB_API void sipsnHeaderContentEncodingInsertContentCoding( SipsnHeaderContentEncoding **hdr, int64_t index,
                                                           PbString *contentCoding );
PB_API void sipsnHeaderContentEncodingSetContentCodingAt( SipsnHeaderContentEncoding **hdr, int64_t index,
                                                          PbString *contentCoding );
PB_API void sipsnHeaderContentEncodingDelContentCodingAt( SipsnHeaderContentEncoding **hdr, int64_t index );
/* ./dev lists: end */

PB_API PbString *sipsnHeaderContentEncodingContentCodingAt( SipsnHeaderContentEncoding *hdr, int64_t index );
PB_API void      sipsnHeaderContentEncodingClearContentCodings( SipsnHeaderContentEncoding **hdr );

/* All codings as a new vector; and all replaced by the texts of the vector's elements. */
PB_API PbVector *sipsnHeaderContentEncodingContentCodingsVector( SipsnHeaderContentEncoding *hdr );
PB_API void      sipsnHeaderContentEncodingSetContentCodingsVector( SipsnHeaderContentEncoding **hdr, PbVector *vec );

PB_END_DECLS
#endif
