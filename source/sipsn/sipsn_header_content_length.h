/* SipsnHeaderContentLength: the Content-Length header field, RFC 3261 section 20.14; the length of the body.
 *
 * Example: Content-Length: 349
 *
 *     Content-Length = 1*DIGIT
 *
 *     content length   bytes of the body, 0 or more; never absent
 *
 * Decoding and encoding messages frames bodies by itself: an object of this type tells what a line says, and does
 * not change what a message is sent with. Only the last line of the header field counts; without lines it does not
 * decode. */
#ifndef SIPSN_HEADER_CONTENT_LENGTH_H
#define SIPSN_HEADER_CONTENT_LENGTH_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_number.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderContentLength ), see sipsn_header.h */
typedef struct SipsnHeaderContentLength SipsnHeaderContentLength;

PB_API SipsnHeaderContentLength *sipsnHeaderContentLengthCreateFrom( SipsnHeaderContentLength *source );
PB_API SipsnHeaderContentLength *sipsnHeaderContentLengthRetain( SipsnHeaderContentLength *obj );
PB_API void                      sipsnHeaderContentLengthRelease( SipsnHeaderContentLength *obj );
PB_API PbObj                    *sipsnHeaderContentLengthObj( SipsnHeaderContentLength *obj );
PB_API SipsnHeaderContentLength *sipsnHeaderContentLengthFrom( PbObj *obj );
PB_API PbSort                   *sipsnHeaderContentLengthSort( void );
PB_API PbString                 *sipsnHeaderContentLengthToString( SipsnHeaderContentLength *obj );
PB_API int64_t sipsnHeaderContentLengthCompare( SipsnHeaderContentLength *a, SipsnHeaderContentLength *b );
PB_API bool    sipsnHeaderContentLengthEquals( SipsnHeaderContentLength *a, SipsnHeaderContentLength *b );

PB_API SipsnHeaderContentLength *sipsnHeaderContentLengthTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader       *sipsnHeaderContentLengthEncode( SipsnHeaderContentLength *hdr );
PB_API SipsnHeaderContentLength *sipsnHeaderContentLengthTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderContentLengthEncodeToMessage( SipsnHeaderContentLength *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderContentLengthPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderContentLengthRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderContentLengthStore( SipsnHeaderContentLength *hdr );
PB_API SipsnHeaderContentLength *sipsnHeaderContentLengthTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderContentLength *sipsnHeaderContentLengthCreate( int64_t contentLength );

PB_API int64_t sipsnHeaderContentLengthContentLength( SipsnHeaderContentLength *hdr );
PB_API void    sipsnHeaderContentLengthSetContentLength( SipsnHeaderContentLength **hdr, int64_t contentLength );
/* ./dev lists: end */

PB_END_DECLS
#endif
