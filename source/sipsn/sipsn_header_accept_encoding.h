/* SipsnHeaderAcceptEncoding: the Accept-Encoding header field, RFC 3261 section 20.2; a list of encodings.
 *
 * Example: Accept-Encoding: gzip;q=0.5;level=9
 *
 * Each value is kept as its text and decoded when TryDecodeAcceptEncodingAt asks for it, which gives null when it is
 * not an encoding. A header field without lines does not decode. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_ACCEPT_ENCODING_H
#define SIPSN_HEADER_ACCEPT_ENCODING_H

#include "sipsn_accept_encoding.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderAcceptEncoding ), see sipsn_header.h */
typedef struct SipsnHeaderAcceptEncoding SipsnHeaderAcceptEncoding;

PB_API SipsnHeaderAcceptEncoding *sipsnHeaderAcceptEncodingCreateFrom( SipsnHeaderAcceptEncoding *source );
PB_API SipsnHeaderAcceptEncoding *sipsnHeaderAcceptEncodingRetain( SipsnHeaderAcceptEncoding *obj );
PB_API void                       sipsnHeaderAcceptEncodingRelease( SipsnHeaderAcceptEncoding *obj );
PB_API PbObj                     *sipsnHeaderAcceptEncodingObj( SipsnHeaderAcceptEncoding *obj );
PB_API SipsnHeaderAcceptEncoding *sipsnHeaderAcceptEncodingFrom( PbObj *obj );
PB_API PbSort                    *sipsnHeaderAcceptEncodingSort( void );
PB_API PbString                  *sipsnHeaderAcceptEncodingToString( SipsnHeaderAcceptEncoding *obj );
PB_API int64_t sipsnHeaderAcceptEncodingCompare( SipsnHeaderAcceptEncoding *a, SipsnHeaderAcceptEncoding *b );
PB_API bool    sipsnHeaderAcceptEncodingEquals( SipsnHeaderAcceptEncoding *a, SipsnHeaderAcceptEncoding *b );

PB_API SipsnHeaderAcceptEncoding *sipsnHeaderAcceptEncodingTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader        *sipsnHeaderAcceptEncodingEncode( SipsnHeaderAcceptEncoding *hdr );
PB_API SipsnHeaderAcceptEncoding *sipsnHeaderAcceptEncodingTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAcceptEncodingEncodeToMessage( SipsnHeaderAcceptEncoding *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderAcceptEncodingPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAcceptEncodingRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderAcceptEncodingStore( SipsnHeaderAcceptEncoding *hdr );
PB_API SipsnHeaderAcceptEncoding *sipsnHeaderAcceptEncodingTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderAcceptEncoding *sipsnHeaderAcceptEncodingCreate( void );

/* ./dev lists: LIST( AcceptEncodings, AcceptEncoding, SipsnAcceptEncoding ), see sipsn_header.h */
PB_API int64_t sipsnHeaderAcceptEncodingAcceptEncodingsLength( SipsnHeaderAcceptEncoding *hdr );
PB_API void    sipsnHeaderAcceptEncodingAppendAcceptEncoding( SipsnHeaderAcceptEncoding **hdr,
                                                              SipsnAcceptEncoding        *acceptEncoding );
PB_API void    sipsnHeaderAcceptEncodingPrependAcceptEncoding( SipsnHeaderAcceptEncoding **hdr,
                                                               SipsnAcceptEncoding        *acceptEncoding );
PB_API void    sipsnHeaderAcceptEncodingInsertAcceptEncoding( SipsnHeaderAcceptEncoding **hdr, int64_t index,
                                                              SipsnAcceptEncoding *acceptEncoding );
PB_API void    sipsnHeaderAcceptEncodingSetAcceptEncodingAt( SipsnHeaderAcceptEncoding **hdr, int64_t index,
                                                             SipsnAcceptEncoding *acceptEncoding );
PB_API void    sipsnHeaderAcceptEncodingDelAcceptEncodingAt( SipsnHeaderAcceptEncoding **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnAcceptEncoding *sipsnHeaderAcceptEncodingTryDecodeAcceptEncodingAt( SipsnHeaderAcceptEncoding *hdr,
                                                                                int64_t                    index );
PB_API void                 sipsnHeaderAcceptEncodingClearAcceptEncodings( SipsnHeaderAcceptEncoding **hdr );

PB_END_DECLS
#endif
