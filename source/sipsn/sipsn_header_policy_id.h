/* SipsnHeaderPolicyId: the Policy-ID header field, RFC 6794 section 4.4.5; a list of policys.
 *
 * Example: Policy-Id: sip:policy@biloxi.example.com;token=af8s7
 *
 * Each policy is kept as its text, and decoded when TryDecodePolicyIdAt asks for it. A header field without lines
 * does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_POLICY_ID_H
#define SIPSN_HEADER_POLICY_ID_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_policy_id.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPolicyId ), see sipsn_header.h */
typedef struct SipsnHeaderPolicyId SipsnHeaderPolicyId;

PB_API SipsnHeaderPolicyId *sipsnHeaderPolicyIdCreateFrom( SipsnHeaderPolicyId *source );
PB_API SipsnHeaderPolicyId *sipsnHeaderPolicyIdRetain( SipsnHeaderPolicyId *obj );
PB_API void                 sipsnHeaderPolicyIdRelease( SipsnHeaderPolicyId *obj );
PB_API PbObj               *sipsnHeaderPolicyIdObj( SipsnHeaderPolicyId *obj );
PB_API SipsnHeaderPolicyId *sipsnHeaderPolicyIdFrom( PbObj *obj );
PB_API PbSort              *sipsnHeaderPolicyIdSort( void );
PB_API PbString            *sipsnHeaderPolicyIdToString( SipsnHeaderPolicyId *obj );
PB_API int64_t              sipsnHeaderPolicyIdCompare( SipsnHeaderPolicyId *a, SipsnHeaderPolicyId *b );
PB_API bool                 sipsnHeaderPolicyIdEquals( SipsnHeaderPolicyId *a, SipsnHeaderPolicyId *b );

PB_API SipsnHeaderPolicyId *sipsnHeaderPolicyIdTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader  *sipsnHeaderPolicyIdEncode( SipsnHeaderPolicyId *hdr );
PB_API SipsnHeaderPolicyId *sipsnHeaderPolicyIdTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderPolicyIdEncodeToMessage( SipsnHeaderPolicyId *hdr, SipsnMessage **msg );
PB_API bool                 sipsnHeaderPolicyIdPresentInMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderPolicyIdRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore             *sipsnHeaderPolicyIdStore( SipsnHeaderPolicyId *hdr );
PB_API SipsnHeaderPolicyId *sipsnHeaderPolicyIdTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( PolicyIds, PolicyId, SipsnPolicyId ), see sipsn_header.h */
PB_API int64_t sipsnHeaderPolicyIdPolicyIdsLength( SipsnHeaderPolicyId *hdr );
PB_API void    sipsnHeaderPolicyIdAppendPolicyId( SipsnHeaderPolicyId **hdr, SipsnPolicyId *policyId );
PB_API void    sipsnHeaderPolicyIdPrependPolicyId( SipsnHeaderPolicyId **hdr, SipsnPolicyId *policyId );
PB_API void    sipsnHeaderPolicyIdInsertPolicyId( SipsnHeaderPolicyId **hdr, int64_t index, SipsnPolicyId *policyId );
PB_API void    sipsnHeaderPolicyIdSetPolicyIdAt( SipsnHeaderPolicyId **hdr, int64_t index, SipsnPolicyId *policyId );
PB_API void    sipsnHeaderPolicyIdDelPolicyIdAt( SipsnHeaderPolicyId **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPolicyId *sipsnHeaderPolicyIdCreate( void );
PB_API SipsnPolicyId       *sipsnHeaderPolicyIdTryDecodePolicyIdAt( SipsnHeaderPolicyId *hdr, int64_t index );
PB_API void                 sipsnHeaderPolicyIdClearPolicyIds( SipsnHeaderPolicyId **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
