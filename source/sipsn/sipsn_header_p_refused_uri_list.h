/* SipsnHeaderPRefusedUriList: the P-Refused-URI-List header field, RFC 5318 section 5; a list of refused addresss.
 *
 * Example: P-Refused-Uri-List: <sip:friends@example.net>;members="cid:an3bt8jf03@example.net"
 *
 * Each refused address is kept as its text, and decoded when TryDecodeRefusedUriAt asks for it. A header field
 * without lines does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_P_REFUSED_URI_LIST_H
#define SIPSN_HEADER_P_REFUSED_URI_LIST_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_refused_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPRefusedUriList ), see sipsn_header.h */
typedef struct SipsnHeaderPRefusedUriList SipsnHeaderPRefusedUriList;

PB_API SipsnHeaderPRefusedUriList *sipsnHeaderPRefusedUriListCreateFrom( SipsnHeaderPRefusedUriList *source );
PB_API SipsnHeaderPRefusedUriList *sipsnHeaderPRefusedUriListRetain( SipsnHeaderPRefusedUriList *obj );
PB_API void                        sipsnHeaderPRefusedUriListRelease( SipsnHeaderPRefusedUriList *obj );
PB_API PbObj                      *sipsnHeaderPRefusedUriListObj( SipsnHeaderPRefusedUriList *obj );
PB_API SipsnHeaderPRefusedUriList *sipsnHeaderPRefusedUriListFrom( PbObj *obj );
PB_API PbSort                     *sipsnHeaderPRefusedUriListSort( void );
PB_API PbString                   *sipsnHeaderPRefusedUriListToString( SipsnHeaderPRefusedUriList *obj );
PB_API int64_t sipsnHeaderPRefusedUriListCompare( SipsnHeaderPRefusedUriList *a, SipsnHeaderPRefusedUriList *b );
PB_API bool    sipsnHeaderPRefusedUriListEquals( SipsnHeaderPRefusedUriList *a, SipsnHeaderPRefusedUriList *b );

PB_API SipsnHeaderPRefusedUriList *sipsnHeaderPRefusedUriListTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader         *sipsnHeaderPRefusedUriListEncode( SipsnHeaderPRefusedUriList *hdr );
PB_API SipsnHeaderPRefusedUriList *sipsnHeaderPRefusedUriListTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPRefusedUriListEncodeToMessage( SipsnHeaderPRefusedUriList *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPRefusedUriListPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPRefusedUriListRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPRefusedUriListStore( SipsnHeaderPRefusedUriList *hdr );
PB_API SipsnHeaderPRefusedUriList *sipsnHeaderPRefusedUriListTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( RefusedUris, RefusedUri, SipsnRefusedUri ), see sipsn_header.h */
PB_API int64_t sipsnHeaderPRefusedUriListRefusedUrisLength( SipsnHeaderPRefusedUriList *hdr );
PB_API void sipsnHeaderPRefusedUriListAppendRefusedUri( SipsnHeaderPRefusedUriList **hdr, SipsnRefusedUri *refusedUri );
PB_API void sipsnHeaderPRefusedUriListPrependRefusedUri( SipsnHeaderPRefusedUriList **hdr,
                                                         SipsnRefusedUri             *refusedUri );
PB_API void sipsnHeaderPRefusedUriListInsertRefusedUri( SipsnHeaderPRefusedUriList **hdr, int64_t index,
                                                        SipsnRefusedUri *refusedUri );
PB_API void sipsnHeaderPRefusedUriListSetRefusedUriAt( SipsnHeaderPRefusedUriList **hdr, int64_t index,
                                                       SipsnRefusedUri *refusedUri );
PB_API void sipsnHeaderPRefusedUriListDelRefusedUriAt( SipsnHeaderPRefusedUriList **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPRefusedUriList *sipsnHeaderPRefusedUriListCreate( void );
PB_API SipsnRefusedUri            *sipsnHeaderPRefusedUriListTryDecodeRefusedUriAt( SipsnHeaderPRefusedUriList *hdr,
                                                                                    int64_t                     index );
PB_API void                        sipsnHeaderPRefusedUriListClearRefusedUris( SipsnHeaderPRefusedUriList **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
