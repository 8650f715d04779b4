/* SipsnHeaderSipEtag: the SIP-ETag header field, RFC 3903 section 11.3.1; the version of what was published.
 *
 * Example: Sip-Etag: dx200xyz
 *
 *     SIP-ETag = token
 *
 *     entity tag   a token, kept as written and compared letter by letter; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_SIP_ETAG_H
#define SIPSN_HEADER_SIP_ETAG_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderSipEtag ), see sipsn_header.h */
typedef struct SipsnHeaderSipEtag SipsnHeaderSipEtag;

PB_API SipsnHeaderSipEtag *sipsnHeaderSipEtagCreateFrom( SipsnHeaderSipEtag *source );
PB_API SipsnHeaderSipEtag *sipsnHeaderSipEtagRetain( SipsnHeaderSipEtag *obj );
PB_API void                sipsnHeaderSipEtagRelease( SipsnHeaderSipEtag *obj );
PB_API PbObj              *sipsnHeaderSipEtagObj( SipsnHeaderSipEtag *obj );
PB_API SipsnHeaderSipEtag *sipsnHeaderSipEtagFrom( PbObj *obj );
PB_API PbSort             *sipsnHeaderSipEtagSort( void );
PB_API PbString           *sipsnHeaderSipEtagToString( SipsnHeaderSipEtag *obj );
PB_API int64_t             sipsnHeaderSipEtagCompare( SipsnHeaderSipEtag *a, SipsnHeaderSipEtag *b );
PB_API bool                sipsnHeaderSipEtagEquals( SipsnHeaderSipEtag *a, SipsnHeaderSipEtag *b );

PB_API SipsnHeaderSipEtag *sipsnHeaderSipEtagTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderSipEtagEncode( SipsnHeaderSipEtag *hdr );
PB_API SipsnHeaderSipEtag *sipsnHeaderSipEtagTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderSipEtagEncodeToMessage( SipsnHeaderSipEtag *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderSipEtagPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderSipEtagRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderSipEtagStore( SipsnHeaderSipEtag *hdr );
PB_API SipsnHeaderSipEtag *sipsnHeaderSipEtagTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderSipEtag *sipsnHeaderSipEtagCreate( PbString *entityTag );
PB_API SipsnHeaderSipEtag *sipsnHeaderSipEtagCreateCstr( const char *entityTag, int64_t length );
PB_API SipsnHeaderSipEtag *sipsnHeaderSipEtagCreateWcstr( const wchar_t *entityTag, int64_t length );

PB_API PbString *sipsnHeaderSipEtagEntityTag( SipsnHeaderSipEtag *hdr );
PB_API void      sipsnHeaderSipEtagSetEntityTag( SipsnHeaderSipEtag **hdr, PbString *entityTag );
PB_API void      sipsnHeaderSipEtagSetEntityTagCstr( SipsnHeaderSipEtag **hdr, const char *entityTag, int64_t length );
PB_API void sipsnHeaderSipEtagSetEntityTagWcstr( SipsnHeaderSipEtag **hdr, const wchar_t *entityTag, int64_t length );
/* ./dev lists: end */

PB_END_DECLS
#endif
