/* SipsnHeaderPriorityShare: the Priority-Share header field, 3GPP TS 24.229; whether priority may be shared.
 *
 * Example: Priority-Share: allowed;lang=en
 *
 *     Priority-Share = token *( SEMI generic-param )
 *
 *     priority share   a token such as "allowed" or "not-allowed", kept as written; never
 *                      absent
 *     generic params   the parameters; never absent, may be empty
 *
 * The field is defined by 3GPP TS 24.229 alone; the grammar here is second-hand, to be checked against that text.
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_PRIORITY_SHARE_H
#define SIPSN_HEADER_PRIORITY_SHARE_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPriorityShare ), see sipsn_header.h */
typedef struct SipsnHeaderPriorityShare SipsnHeaderPriorityShare;

PB_API SipsnHeaderPriorityShare *sipsnHeaderPriorityShareCreateFrom( SipsnHeaderPriorityShare *source );
PB_API SipsnHeaderPriorityShare *sipsnHeaderPriorityShareRetain( SipsnHeaderPriorityShare *obj );
PB_API void                      sipsnHeaderPriorityShareRelease( SipsnHeaderPriorityShare *obj );
PB_API PbObj                    *sipsnHeaderPriorityShareObj( SipsnHeaderPriorityShare *obj );
PB_API SipsnHeaderPriorityShare *sipsnHeaderPriorityShareFrom( PbObj *obj );
PB_API PbSort                   *sipsnHeaderPriorityShareSort( void );
PB_API PbString                 *sipsnHeaderPriorityShareToString( SipsnHeaderPriorityShare *obj );
PB_API int64_t sipsnHeaderPriorityShareCompare( SipsnHeaderPriorityShare *a, SipsnHeaderPriorityShare *b );
PB_API bool    sipsnHeaderPriorityShareEquals( SipsnHeaderPriorityShare *a, SipsnHeaderPriorityShare *b );

PB_API SipsnHeaderPriorityShare *sipsnHeaderPriorityShareTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader       *sipsnHeaderPriorityShareEncode( SipsnHeaderPriorityShare *hdr );
PB_API SipsnHeaderPriorityShare *sipsnHeaderPriorityShareTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPriorityShareEncodeToMessage( SipsnHeaderPriorityShare *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPrioritySharePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPriorityShareRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPriorityShareStore( SipsnHeaderPriorityShare *hdr );
PB_API SipsnHeaderPriorityShare *sipsnHeaderPriorityShareTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPriorityShare *sipsnHeaderPriorityShareCreate( PbString *priorityShare );
PB_API SipsnHeaderPriorityShare *sipsnHeaderPriorityShareCreateCstr( const char *priorityShare, int64_t length );
PB_API SipsnHeaderPriorityShare *sipsnHeaderPriorityShareCreateWcstr( const wchar_t *priorityShare, int64_t length );

PB_API PbString *sipsnHeaderPrioritySharePriorityShare( SipsnHeaderPriorityShare *hdr );
PB_API void      sipsnHeaderPriorityShareSetPriorityShare( SipsnHeaderPriorityShare **hdr, PbString *priorityShare );
PB_API void sipsnHeaderPriorityShareSetPriorityShareCstr( SipsnHeaderPriorityShare **hdr, const char *priorityShare,
                                                          int64_t length );
PB_API void sipsnHeaderPriorityShareSetPriorityShareWcstr( SipsnHeaderPriorityShare **hdr, const wchar_t *priorityShare,
                                                           int64_t length );

PB_API SipsnGenericParams *sipsnHeaderPriorityShareGenericParams( SipsnHeaderPriorityShare *hdr );
PB_API void                sipsnHeaderPriorityShareSetGenericParams( SipsnHeaderPriorityShare **hdr,
                                                                     SipsnGenericParams        *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
