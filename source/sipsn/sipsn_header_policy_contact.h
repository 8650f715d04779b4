/* SipsnHeaderPolicyContact: the Policy-Contact header field, RFC 6794 section 4.4.5; a list of policy servers.
 *
 * Example: Policy-Contact: <sip:policy@biloxi.example.com>;non-cacheable
 *
 * Each policy server is kept as its text, and decoded when TryDecodePolicyContactAt asks for it. A header field
 * without lines does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_POLICY_CONTACT_H
#define SIPSN_HEADER_POLICY_CONTACT_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_policy_contact.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPolicyContact ), see sipsn_header.h */
typedef struct SipsnHeaderPolicyContact SipsnHeaderPolicyContact;

PB_API SipsnHeaderPolicyContact *sipsnHeaderPolicyContactCreateFrom( SipsnHeaderPolicyContact *source );
PB_API SipsnHeaderPolicyContact *sipsnHeaderPolicyContactRetain( SipsnHeaderPolicyContact *obj );
PB_API void                      sipsnHeaderPolicyContactRelease( SipsnHeaderPolicyContact *obj );
PB_API PbObj                    *sipsnHeaderPolicyContactObj( SipsnHeaderPolicyContact *obj );
PB_API SipsnHeaderPolicyContact *sipsnHeaderPolicyContactFrom( PbObj *obj );
PB_API PbSort                   *sipsnHeaderPolicyContactSort( void );
PB_API PbString                 *sipsnHeaderPolicyContactToString( SipsnHeaderPolicyContact *obj );
PB_API int64_t sipsnHeaderPolicyContactCompare( SipsnHeaderPolicyContact *a, SipsnHeaderPolicyContact *b );
PB_API bool    sipsnHeaderPolicyContactEquals( SipsnHeaderPolicyContact *a, SipsnHeaderPolicyContact *b );

PB_API SipsnHeaderPolicyContact *sipsnHeaderPolicyContactTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader       *sipsnHeaderPolicyContactEncode( SipsnHeaderPolicyContact *hdr );
PB_API SipsnHeaderPolicyContact *sipsnHeaderPolicyContactTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPolicyContactEncodeToMessage( SipsnHeaderPolicyContact *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPolicyContactPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPolicyContactRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPolicyContactStore( SipsnHeaderPolicyContact *hdr );
PB_API SipsnHeaderPolicyContact *sipsnHeaderPolicyContactTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( PolicyContacts, PolicyContact, SipsnPolicyContact ), see sipsn_header.h */
PB_API int64_t sipsnHeaderPolicyContactPolicyContactsLength( SipsnHeaderPolicyContact *hdr );
PB_API void    sipsnHeaderPolicyContactAppendPolicyContact( SipsnHeaderPolicyContact **hdr,
                                                            SipsnPolicyContact        *policyContact );
PB_API void    sipsnHeaderPolicyContactPrependPolicyContact( SipsnHeaderPolicyContact **hdr,
                                                             SipsnPolicyContact        *policyContact );
PB_API void    sipsnHeaderPolicyContactInsertPolicyContact( SipsnHeaderPolicyContact **hdr, int64_t index,
                                                            SipsnPolicyContact *policyContact );
PB_API void    sipsnHeaderPolicyContactSetPolicyContactAt( SipsnHeaderPolicyContact **hdr, int64_t index,
                                                           SipsnPolicyContact *policyContact );
PB_API void    sipsnHeaderPolicyContactDelPolicyContactAt( SipsnHeaderPolicyContact **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPolicyContact *sipsnHeaderPolicyContactCreate( void );
PB_API SipsnPolicyContact       *sipsnHeaderPolicyContactTryDecodePolicyContactAt( SipsnHeaderPolicyContact *hdr,
                                                                                   int64_t                   index );
PB_API void                      sipsnHeaderPolicyContactClearPolicyContacts( SipsnHeaderPolicyContact **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
