/* SipsnHeaderResourceShare: the Resource-Share header field, 3GPP TS 24.229; whether resources may be shared.
 *
 * Example: Resource-Share: media-sharing;lang=en
 *
 *     Resource-Share = token *( SEMI generic-param )
 *
 *     resource share   a token such as "supported" or "media-sharing", kept as written; never
 *                      absent
 *     generic params   the parameters; never absent, may be empty
 *
 * The field is defined by 3GPP TS 24.229 alone; the grammar here is second-hand, to be checked against that text.
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_RESOURCE_SHARE_H
#define SIPSN_HEADER_RESOURCE_SHARE_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderResourceShare ), see sipsn_header.h */
typedef struct SipsnHeaderResourceShare SipsnHeaderResourceShare;

PB_API SipsnHeaderResourceShare *sipsnHeaderResourceShareCreateFrom( SipsnHeaderResourceShare *source );
PB_API SipsnHeaderResourceShare *sipsnHeaderResourceShareRetain( SipsnHeaderResourceShare *obj );
PB_API void                      sipsnHeaderResourceShareRelease( SipsnHeaderResourceShare *obj );
PB_API PbObj                    *sipsnHeaderResourceShareObj( SipsnHeaderResourceShare *obj );
PB_API SipsnHeaderResourceShare *sipsnHeaderResourceShareFrom( PbObj *obj );
PB_API PbSort                   *sipsnHeaderResourceShareSort( void );
PB_API PbString                 *sipsnHeaderResourceShareToString( SipsnHeaderResourceShare *obj );
PB_API int64_t sipsnHeaderResourceShareCompare( SipsnHeaderResourceShare *a, SipsnHeaderResourceShare *b );
PB_API bool    sipsnHeaderResourceShareEquals( SipsnHeaderResourceShare *a, SipsnHeaderResourceShare *b );

PB_API SipsnHeaderResourceShare *sipsnHeaderResourceShareTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader       *sipsnHeaderResourceShareEncode( SipsnHeaderResourceShare *hdr );
PB_API SipsnHeaderResourceShare *sipsnHeaderResourceShareTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderResourceShareEncodeToMessage( SipsnHeaderResourceShare *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderResourceSharePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderResourceShareRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderResourceShareStore( SipsnHeaderResourceShare *hdr );
PB_API SipsnHeaderResourceShare *sipsnHeaderResourceShareTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderResourceShare *sipsnHeaderResourceShareCreate( PbString *resourceShare );
PB_API SipsnHeaderResourceShare *sipsnHeaderResourceShareCreateCstr( const char *resourceShare, int64_t length );
PB_API SipsnHeaderResourceShare *sipsnHeaderResourceShareCreateWcstr( const wchar_t *resourceShare, int64_t length );

PB_API PbString *sipsnHeaderResourceShareResourceShare( SipsnHeaderResourceShare *hdr );
PB_API void      sipsnHeaderResourceShareSetResourceShare( SipsnHeaderResourceShare **hdr, PbString *resourceShare );
PB_API void sipsnHeaderResourceShareSetResourceShareCstr( SipsnHeaderResourceShare **hdr, const char *resourceShare,
                                                          int64_t length );
PB_API void sipsnHeaderResourceShareSetResourceShareWcstr( SipsnHeaderResourceShare **hdr, const wchar_t *resourceShare,
                                                           int64_t length );

PB_API SipsnGenericParams *sipsnHeaderResourceShareGenericParams( SipsnHeaderResourceShare *hdr );
PB_API void                sipsnHeaderResourceShareSetGenericParams( SipsnHeaderResourceShare **hdr,
                                                                     SipsnGenericParams        *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
