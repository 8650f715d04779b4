/* SipsnHeaderContentId: the Content-ID header field, RFC 8262 section 3.2; what a cid URL names the body by.
 *
 * Example: Content-Id: <cn35t8jf02@example.com>
 *
 *     Content-ID = "<" id-left "@" id-right ">"
 *
 *     content id   what stands between "<" and ">", kept as written; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_CONTENT_ID_H
#define SIPSN_HEADER_CONTENT_ID_H

#include "sipsn_content_id.h"
#include "sipsn_header.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderContentId ), see sipsn_header.h */
typedef struct SipsnHeaderContentId SipsnHeaderContentId;

PB_API SipsnHeaderContentId *sipsnHeaderContentIdCreateFrom( SipsnHeaderContentId *source );
PB_API SipsnHeaderContentId *sipsnHeaderContentIdRetain( SipsnHeaderContentId *obj );
PB_API void                  sipsnHeaderContentIdRelease( SipsnHeaderContentId *obj );
PB_API PbObj                *sipsnHeaderContentIdObj( SipsnHeaderContentId *obj );
PB_API SipsnHeaderContentId *sipsnHeaderContentIdFrom( PbObj *obj );
PB_API PbSort               *sipsnHeaderContentIdSort( void );
PB_API PbString             *sipsnHeaderContentIdToString( SipsnHeaderContentId *obj );
PB_API int64_t               sipsnHeaderContentIdCompare( SipsnHeaderContentId *a, SipsnHeaderContentId *b );
PB_API bool                  sipsnHeaderContentIdEquals( SipsnHeaderContentId *a, SipsnHeaderContentId *b );

PB_API SipsnHeaderContentId *sipsnHeaderContentIdTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader   *sipsnHeaderContentIdEncode( SipsnHeaderContentId *hdr );
PB_API SipsnHeaderContentId *sipsnHeaderContentIdTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderContentIdEncodeToMessage( SipsnHeaderContentId *hdr, SipsnMessage **msg );
PB_API bool                  sipsnHeaderContentIdPresentInMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderContentIdRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore              *sipsnHeaderContentIdStore( SipsnHeaderContentId *hdr );
PB_API SipsnHeaderContentId *sipsnHeaderContentIdTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderContentId *sipsnHeaderContentIdCreate( PbString *contentId );
PB_API SipsnHeaderContentId *sipsnHeaderContentIdCreateCstr( const char *contentId, int64_t length );
PB_API SipsnHeaderContentId *sipsnHeaderContentIdCreateWcstr( const wchar_t *contentId, int64_t length );

PB_API PbString *sipsnHeaderContentIdContentId( SipsnHeaderContentId *hdr );
PB_API void      sipsnHeaderContentIdSetContentId( SipsnHeaderContentId **hdr, PbString *contentId );
PB_API void sipsnHeaderContentIdSetContentIdCstr( SipsnHeaderContentId **hdr, const char *contentId, int64_t length );
PB_API void sipsnHeaderContentIdSetContentIdWcstr( SipsnHeaderContentId **hdr, const wchar_t *contentId,
                                                   int64_t length );
/* ./dev lists: end */

PB_END_DECLS
#endif
