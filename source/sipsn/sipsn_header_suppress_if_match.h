/* SipsnHeaderSuppressIfMatch: the Suppress-If-Match header field, RFC 5839 section 7.3; the version that a subscriber
 * has already.
 *
 * Example: Suppress-If-Match: b4cf7
 *
 *     Suppress-If-Match = token
 *
 *     entity tag   a token, kept as written and compared letter by letter; "*" matches every
 *                  version; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_SUPPRESS_IF_MATCH_H
#define SIPSN_HEADER_SUPPRESS_IF_MATCH_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderSuppressIfMatch ), see sipsn_header.h */
typedef struct SipsnHeaderSuppressIfMatch SipsnHeaderSuppressIfMatch;

PB_API SipsnHeaderSuppressIfMatch *sipsnHeaderSuppressIfMatchCreateFrom( SipsnHeaderSuppressIfMatch *source );
PB_API SipsnHeaderSuppressIfMatch *sipsnHeaderSuppressIfMatchRetain( SipsnHeaderSuppressIfMatch *obj );
PB_API void                        sipsnHeaderSuppressIfMatchRelease( SipsnHeaderSuppressIfMatch *obj );
PB_API PbObj                      *sipsnHeaderSuppressIfMatchObj( SipsnHeaderSuppressIfMatch *obj );
PB_API SipsnHeaderSuppressIfMatch *sipsnHeaderSuppressIfMatchFrom( PbObj *obj );
PB_API PbSort                     *sipsnHeaderSuppressIfMatchSort( void );
PB_API PbString                   *sipsnHeaderSuppressIfMatchToString( SipsnHeaderSuppressIfMatch *obj );
PB_API int64_t sipsnHeaderSuppressIfMatchCompare( SipsnHeaderSuppressIfMatch *a, SipsnHeaderSuppressIfMatch *b );
PB_API bool    sipsnHeaderSuppressIfMatchEquals( SipsnHeaderSuppressIfMatch *a, SipsnHeaderSuppressIfMatch *b );

PB_API SipsnHeaderSuppressIfMatch *sipsnHeaderSuppressIfMatchTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader         *sipsnHeaderSuppressIfMatchEncode( SipsnHeaderSuppressIfMatch *hdr );
PB_API SipsnHeaderSuppressIfMatch *sipsnHeaderSuppressIfMatchTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderSuppressIfMatchEncodeToMessage( SipsnHeaderSuppressIfMatch *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderSuppressIfMatchPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderSuppressIfMatchRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderSuppressIfMatchStore( SipsnHeaderSuppressIfMatch *hdr );
PB_API SipsnHeaderSuppressIfMatch *sipsnHeaderSuppressIfMatchTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderSuppressIfMatch *sipsnHeaderSuppressIfMatchCreate( PbString *entityTag );
PB_API SipsnHeaderSuppressIfMatch *sipsnHeaderSuppressIfMatchCreateCstr( const char *entityTag, int64_t length );
PB_API SipsnHeaderSuppressIfMatch *sipsnHeaderSuppressIfMatchCreateWcstr( const wchar_t *entityTag, int64_t length );

PB_API PbString *sipsnHeaderSuppressIfMatchEntityTag( SipsnHeaderSuppressIfMatch *hdr );
PB_API void      sipsnHeaderSuppressIfMatchSetEntityTag( SipsnHeaderSuppressIfMatch **hdr, PbString *entityTag );
PB_API void      sipsnHeaderSuppressIfMatchSetEntityTagCstr( SipsnHeaderSuppressIfMatch **hdr, const char *entityTag,
                                                             int64_t length );
PB_API void sipsnHeaderSuppressIfMatchSetEntityTagWcstr( SipsnHeaderSuppressIfMatch **hdr, const wchar_t *entityTag,
                                                         int64_t length );
/* ./dev lists: end */

PB_END_DECLS
#endif
