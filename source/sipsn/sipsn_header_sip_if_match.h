/* SipsnHeaderSipIfMatch: the SIP-If-Match header field, RFC 3903 section 11.3.2; the version that a PUBLISH is to
 * change.
 *
 * Example: Sip-If-Match: dx200xyz
 *
 *     SIP-If-Match = token
 *
 *     entity tag   a token, kept as written and compared letter by letter; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_SIP_IF_MATCH_H
#define SIPSN_HEADER_SIP_IF_MATCH_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderSipIfMatch ), see sipsn_header.h */
typedef struct SipsnHeaderSipIfMatch SipsnHeaderSipIfMatch;

PB_API SipsnHeaderSipIfMatch *sipsnHeaderSipIfMatchCreateFrom( SipsnHeaderSipIfMatch *source );
PB_API SipsnHeaderSipIfMatch *sipsnHeaderSipIfMatchRetain( SipsnHeaderSipIfMatch *obj );
PB_API void                   sipsnHeaderSipIfMatchRelease( SipsnHeaderSipIfMatch *obj );
PB_API PbObj                 *sipsnHeaderSipIfMatchObj( SipsnHeaderSipIfMatch *obj );
PB_API SipsnHeaderSipIfMatch *sipsnHeaderSipIfMatchFrom( PbObj *obj );
PB_API PbSort                *sipsnHeaderSipIfMatchSort( void );
PB_API PbString              *sipsnHeaderSipIfMatchToString( SipsnHeaderSipIfMatch *obj );
PB_API int64_t                sipsnHeaderSipIfMatchCompare( SipsnHeaderSipIfMatch *a, SipsnHeaderSipIfMatch *b );
PB_API bool                   sipsnHeaderSipIfMatchEquals( SipsnHeaderSipIfMatch *a, SipsnHeaderSipIfMatch *b );

PB_API SipsnHeaderSipIfMatch *sipsnHeaderSipIfMatchTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader    *sipsnHeaderSipIfMatchEncode( SipsnHeaderSipIfMatch *hdr );
PB_API SipsnHeaderSipIfMatch *sipsnHeaderSipIfMatchTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                   sipsnHeaderSipIfMatchEncodeToMessage( SipsnHeaderSipIfMatch *hdr, SipsnMessage **msg );
PB_API bool                   sipsnHeaderSipIfMatchPresentInMessage( SipsnMessage *msg );
PB_API void                   sipsnHeaderSipIfMatchRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore               *sipsnHeaderSipIfMatchStore( SipsnHeaderSipIfMatch *hdr );
PB_API SipsnHeaderSipIfMatch *sipsnHeaderSipIfMatchTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderSipIfMatch *sipsnHeaderSipIfMatchCreate( PbString *entityTag );
PB_API SipsnHeaderSipIfMatch *sipsnHeaderSipIfMatchCreateCstr( const char *entityTag, int64_t length );
PB_API SipsnHeaderSipIfMatch *sipsnHeaderSipIfMatchCreateWcstr( const wchar_t *entityTag, int64_t length );

PB_API PbString *sipsnHeaderSipIfMatchEntityTag( SipsnHeaderSipIfMatch *hdr );
PB_API void      sipsnHeaderSipIfMatchSetEntityTag( SipsnHeaderSipIfMatch **hdr, PbString *entityTag );
PB_API void sipsnHeaderSipIfMatchSetEntityTagCstr( SipsnHeaderSipIfMatch **hdr, const char *entityTag, int64_t length );
PB_API void sipsnHeaderSipIfMatchSetEntityTagWcstr( SipsnHeaderSipIfMatch **hdr, const wchar_t *entityTag,
                                                    int64_t length );
/* ./dev lists: end */

PB_END_DECLS
#endif
