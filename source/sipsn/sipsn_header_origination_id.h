/* SipsnHeaderOriginationId: the Origination-Id header field, 3GPP TS 24.229; where a call came from.
 *
 * Example: Origination-Id: f81d4fae-7dec-11d0-a765-00a0c91e6bf6
 *
 *     Origination-Id = 8HEXDIG 3( "-" 4HEXDIG ) "-" 12HEXDIG
 *
 *     origination id   a UUID, kept as written; never absent
 *
 * The field is defined by 3GPP TS 24.229 alone; the grammar here is second-hand, to be checked against that text.
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_ORIGINATION_ID_H
#define SIPSN_HEADER_ORIGINATION_ID_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_origination_id.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderOriginationId ), see sipsn_header.h */
typedef struct SipsnHeaderOriginationId SipsnHeaderOriginationId;

PB_API SipsnHeaderOriginationId *sipsnHeaderOriginationIdCreateFrom( SipsnHeaderOriginationId *source );
PB_API SipsnHeaderOriginationId *sipsnHeaderOriginationIdRetain( SipsnHeaderOriginationId *obj );
PB_API void                      sipsnHeaderOriginationIdRelease( SipsnHeaderOriginationId *obj );
PB_API PbObj                    *sipsnHeaderOriginationIdObj( SipsnHeaderOriginationId *obj );
PB_API SipsnHeaderOriginationId *sipsnHeaderOriginationIdFrom( PbObj *obj );
PB_API PbSort                   *sipsnHeaderOriginationIdSort( void );
PB_API PbString                 *sipsnHeaderOriginationIdToString( SipsnHeaderOriginationId *obj );
PB_API int64_t sipsnHeaderOriginationIdCompare( SipsnHeaderOriginationId *a, SipsnHeaderOriginationId *b );
PB_API bool    sipsnHeaderOriginationIdEquals( SipsnHeaderOriginationId *a, SipsnHeaderOriginationId *b );

PB_API SipsnHeaderOriginationId *sipsnHeaderOriginationIdTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader       *sipsnHeaderOriginationIdEncode( SipsnHeaderOriginationId *hdr );
PB_API SipsnHeaderOriginationId *sipsnHeaderOriginationIdTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderOriginationIdEncodeToMessage( SipsnHeaderOriginationId *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderOriginationIdPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderOriginationIdRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderOriginationIdStore( SipsnHeaderOriginationId *hdr );
PB_API SipsnHeaderOriginationId *sipsnHeaderOriginationIdTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderOriginationId *sipsnHeaderOriginationIdCreate( PbString *originationId );
PB_API SipsnHeaderOriginationId *sipsnHeaderOriginationIdCreateCstr( const char *originationId, int64_t length );
PB_API SipsnHeaderOriginationId *sipsnHeaderOriginationIdCreateWcstr( const wchar_t *originationId, int64_t length );

PB_API PbString *sipsnHeaderOriginationIdOriginationId( SipsnHeaderOriginationId *hdr );
PB_API void      sipsnHeaderOriginationIdSetOriginationId( SipsnHeaderOriginationId **hdr, PbString *originationId );
PB_API void sipsnHeaderOriginationIdSetOriginationIdCstr( SipsnHeaderOriginationId **hdr, const char *originationId,
                                                          int64_t length );
PB_API void sipsnHeaderOriginationIdSetOriginationIdWcstr( SipsnHeaderOriginationId **hdr, const wchar_t *originationId,
                                                           int64_t length );
/* ./dev lists: end */

PB_END_DECLS
#endif
