/* SipsnHeaderTriggerConsent: the Trigger-Consent header field, RFC 5360 section 5.11.2; a list of relays.
 *
 * Example: Trigger-Consent: sip:123@relay.example.com;target-uri="sip:friends@relay.example.com"
 *
 * Each relay is kept as its text, and decoded when TryDecodeTriggerConsentAt asks for it. A header field without
 * lines does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_TRIGGER_CONSENT_H
#define SIPSN_HEADER_TRIGGER_CONSENT_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_trigger_consent.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderTriggerConsent ), see sipsn_header.h */
typedef struct SipsnHeaderTriggerConsent SipsnHeaderTriggerConsent;

PB_API SipsnHeaderTriggerConsent *sipsnHeaderTriggerConsentCreateFrom( SipsnHeaderTriggerConsent *source );
PB_API SipsnHeaderTriggerConsent *sipsnHeaderTriggerConsentRetain( SipsnHeaderTriggerConsent *obj );
PB_API void                       sipsnHeaderTriggerConsentRelease( SipsnHeaderTriggerConsent *obj );
PB_API PbObj                     *sipsnHeaderTriggerConsentObj( SipsnHeaderTriggerConsent *obj );
PB_API SipsnHeaderTriggerConsent *sipsnHeaderTriggerConsentFrom( PbObj *obj );
PB_API PbSort                    *sipsnHeaderTriggerConsentSort( void );
PB_API PbString                  *sipsnHeaderTriggerConsentToString( SipsnHeaderTriggerConsent *obj );
PB_API int64_t sipsnHeaderTriggerConsentCompare( SipsnHeaderTriggerConsent *a, SipsnHeaderTriggerConsent *b );
PB_API bool    sipsnHeaderTriggerConsentEquals( SipsnHeaderTriggerConsent *a, SipsnHeaderTriggerConsent *b );

PB_API SipsnHeaderTriggerConsent *sipsnHeaderTriggerConsentTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader        *sipsnHeaderTriggerConsentEncode( SipsnHeaderTriggerConsent *hdr );
PB_API SipsnHeaderTriggerConsent *sipsnHeaderTriggerConsentTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderTriggerConsentEncodeToMessage( SipsnHeaderTriggerConsent *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderTriggerConsentPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderTriggerConsentRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderTriggerConsentStore( SipsnHeaderTriggerConsent *hdr );
PB_API SipsnHeaderTriggerConsent *sipsnHeaderTriggerConsentTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( TriggerConsents, TriggerConsent, SipsnTriggerConsent ), see sipsn_header.h */
PB_API int64_t sipsnHeaderTriggerConsentTriggerConsentsLength( SipsnHeaderTriggerConsent *hdr );
PB_API void    sipsnHeaderTriggerConsentAppendTriggerConsent( SipsnHeaderTriggerConsent **hdr,
                                                              SipsnTriggerConsent        *triggerConsent );
PB_API void    sipsnHeaderTriggerConsentPrependTriggerConsent( SipsnHeaderTriggerConsent **hdr,
                                                               SipsnTriggerConsent        *triggerConsent );
PB_API void    sipsnHeaderTriggerConsentInsertTriggerConsent( SipsnHeaderTriggerConsent **hdr, int64_t index,
                                                              SipsnTriggerConsent *triggerConsent );
PB_API void    sipsnHeaderTriggerConsentSetTriggerConsentAt( SipsnHeaderTriggerConsent **hdr, int64_t index,
                                                             SipsnTriggerConsent *triggerConsent );
PB_API void    sipsnHeaderTriggerConsentDelTriggerConsentAt( SipsnHeaderTriggerConsent **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderTriggerConsent *sipsnHeaderTriggerConsentCreate( void );
PB_API SipsnTriggerConsent       *sipsnHeaderTriggerConsentTryDecodeTriggerConsentAt( SipsnHeaderTriggerConsent *hdr,
                                                                                      int64_t                    index );
PB_API void                       sipsnHeaderTriggerConsentClearTriggerConsents( SipsnHeaderTriggerConsent **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
