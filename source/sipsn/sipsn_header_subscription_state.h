/* SipsnHeaderSubscriptionState: the Subscription-State header field, RFC 6665 section 8.2.3; the state of a
 * subscription.
 *
 * Example: Subscription-State: terminated;reason=probation;expires=60;retry-after=120;lang=en
 *
 *     Subscription-State = substate-value *( ";" parameter )
 *     parameter = "reason" "=" token / "expires" "=" 1*DIGIT / "retry-after" "=" 1*DIGIT / generic-param
 *
 *     substate value   a token, kept in lower case; never absent
 *     reason           a token, kept in lower case; optional
 *     expires          seconds, 0 or above; -1 when absent
 *     retry after      seconds, 0 or above; -1 when absent
 *     generic params   every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. Of several parameters of one name
 * the last counts; one whose value does not fit is a generic parameter. They are written in the order above. Getters
 * return new references, or null when the member is absent. Setters and deleters replace *hdr by a private copy when it
 * is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_SUBSCRIPTION_STATE_H
#define SIPSN_HEADER_SUBSCRIPTION_STATE_H

#include "sipsn_delta_seconds.h"
#include "sipsn_event_reason_value.h"
#include "sipsn_generic_params.h"
#include "sipsn_header.h"
#include "sipsn_substate_value.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderSubscriptionState ), see sipsn_header.h */
typedef struct SipsnHeaderSubscriptionState SipsnHeaderSubscriptionState;

PB_API SipsnHeaderSubscriptionState *sipsnHeaderSubscriptionStateCreateFrom( SipsnHeaderSubscriptionState *source );
PB_API SipsnHeaderSubscriptionState *sipsnHeaderSubscriptionStateRetain( SipsnHeaderSubscriptionState *obj );
PB_API void                          sipsnHeaderSubscriptionStateRelease( SipsnHeaderSubscriptionState *obj );
PB_API PbObj                        *sipsnHeaderSubscriptionStateObj( SipsnHeaderSubscriptionState *obj );
PB_API SipsnHeaderSubscriptionState *sipsnHeaderSubscriptionStateFrom( PbObj *obj );
PB_API PbSort                       *sipsnHeaderSubscriptionStateSort( void );
PB_API PbString                     *sipsnHeaderSubscriptionStateToString( SipsnHeaderSubscriptionState *obj );
PB_API int64_t sipsnHeaderSubscriptionStateCompare( SipsnHeaderSubscriptionState *a, SipsnHeaderSubscriptionState *b );
PB_API bool    sipsnHeaderSubscriptionStateEquals( SipsnHeaderSubscriptionState *a, SipsnHeaderSubscriptionState *b );

PB_API SipsnHeaderSubscriptionState *sipsnHeaderSubscriptionStateTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader           *sipsnHeaderSubscriptionStateEncode( SipsnHeaderSubscriptionState *hdr );
PB_API SipsnHeaderSubscriptionState *sipsnHeaderSubscriptionStateTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderSubscriptionStateEncodeToMessage( SipsnHeaderSubscriptionState *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderSubscriptionStatePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderSubscriptionStateRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderSubscriptionStateStore( SipsnHeaderSubscriptionState *hdr );
PB_API SipsnHeaderSubscriptionState *sipsnHeaderSubscriptionStateTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderSubscriptionState *sipsnHeaderSubscriptionStateCreate( PbString *substateValue );

PB_API PbString *sipsnHeaderSubscriptionStateSubstateValue( SipsnHeaderSubscriptionState *hdr );
PB_API void sipsnHeaderSubscriptionStateSetSubstateValue( SipsnHeaderSubscriptionState **hdr, PbString *substateValue );

PB_API PbString *sipsnHeaderSubscriptionStateReason( SipsnHeaderSubscriptionState *hdr );
PB_API bool      sipsnHeaderSubscriptionStateHasReason( SipsnHeaderSubscriptionState *hdr );
PB_API void      sipsnHeaderSubscriptionStateDelReason( SipsnHeaderSubscriptionState **hdr );
PB_API void sipsnHeaderSubscriptionStateSetReason( SipsnHeaderSubscriptionState **hdr, PbString *eventReasonValue );

PB_API int64_t sipsnHeaderSubscriptionStateExpires( SipsnHeaderSubscriptionState *hdr );
PB_API bool    sipsnHeaderSubscriptionStateHasExpires( SipsnHeaderSubscriptionState *hdr );
PB_API void    sipsnHeaderSubscriptionStateDelExpires( SipsnHeaderSubscriptionState **hdr );
PB_API void    sipsnHeaderSubscriptionStateSetExpires( SipsnHeaderSubscriptionState **hdr, int64_t deltaSeconds );

PB_API int64_t sipsnHeaderSubscriptionStateRetryAfter( SipsnHeaderSubscriptionState *hdr );
PB_API bool    sipsnHeaderSubscriptionStateHasRetryAfter( SipsnHeaderSubscriptionState *hdr );
PB_API void    sipsnHeaderSubscriptionStateDelRetryAfter( SipsnHeaderSubscriptionState **hdr );
PB_API void    sipsnHeaderSubscriptionStateSetRetryAfter( SipsnHeaderSubscriptionState **hdr, int64_t deltaSeconds );

PB_API SipsnGenericParams *sipsnHeaderSubscriptionStateGenericParams( SipsnHeaderSubscriptionState *hdr );
PB_API void                sipsnHeaderSubscriptionStateSetGenericParams( SipsnHeaderSubscriptionState **hdr,
                                                                         SipsnGenericParams            *genericParams );

PB_END_DECLS
#endif
