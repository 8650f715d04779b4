/* SipsnServiceInteraction: one item of Service-Interact-Info, 3GPP TS 24.229.
 *
 * Example: executed-service=a;avoid-service=b;lang=en
 *
 *     service-item = ( "executed-service" / "avoid-service" ) EQUAL ( token / quoted-string ) *( SEMI generic-param )
 *
 *     executed service   a service that was executed, a token or a quoted string; optional
 *     avoid service      one that is to be avoided; optional
 *     generic params     every other parameter; never absent, may be empty
 *
 * A new one has no parameters, and wants some before it stands in a list. The grammar is second-hand, to be checked
 * against the text of 3GPP. A decoded parameter whose value does not fit its member is kept as a generic one. Values
 * compare in the order above. */
#ifndef SIPSN_SERVICE_INTERACTION_H
#define SIPSN_SERVICE_INTERACTION_H

#include "sipsn_member.h"
#include "sipsn_quotable_string.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnServiceInteraction ), see pb_types.h */
typedef struct SipsnServiceInteraction SipsnServiceInteraction;

PB_API SipsnServiceInteraction *sipsnServiceInteractionCreateFrom( SipsnServiceInteraction *source );
PB_API SipsnServiceInteraction *sipsnServiceInteractionRetain( SipsnServiceInteraction *obj );
PB_API void                     sipsnServiceInteractionRelease( SipsnServiceInteraction *obj );
PB_API PbObj                   *sipsnServiceInteractionObj( SipsnServiceInteraction *obj );
PB_API SipsnServiceInteraction *sipsnServiceInteractionFrom( PbObj *obj );
PB_API PbSort                  *sipsnServiceInteractionSort( void );
PB_API PbString                *sipsnServiceInteractionToString( SipsnServiceInteraction *obj );
PB_API int64_t sipsnServiceInteractionCompare( SipsnServiceInteraction *a, SipsnServiceInteraction *b );
PB_API bool    sipsnServiceInteractionEquals( SipsnServiceInteraction *a, SipsnServiceInteraction *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnServiceInteraction *sipsnServiceInteractionCreate( void );

PB_API PbString *sipsnServiceInteractionExecutedService( SipsnServiceInteraction *service );
PB_API bool      sipsnServiceInteractionHasExecutedService( SipsnServiceInteraction *service );
PB_API void sipsnServiceInteractionSetExecutedService( SipsnServiceInteraction **service, PbString *executedService );
PB_API void sipsnServiceInteractionSetExecutedServiceCstr( SipsnServiceInteraction **service,
                                                           const char *executedService, int64_t length );
PB_API void sipsnServiceInteractionSetExecutedServiceWcstr( SipsnServiceInteraction **service,
                                                            const wchar_t *executedService, int64_t length );
PB_API void sipsnServiceInteractionDelExecutedService( SipsnServiceInteraction **service );

PB_API PbString *sipsnServiceInteractionAvoidService( SipsnServiceInteraction *service );
PB_API bool      sipsnServiceInteractionHasAvoidService( SipsnServiceInteraction *service );
PB_API void      sipsnServiceInteractionSetAvoidService( SipsnServiceInteraction **service, PbString *avoidService );
PB_API void sipsnServiceInteractionSetAvoidServiceCstr( SipsnServiceInteraction **service, const char *avoidService,
                                                        int64_t length );
PB_API void sipsnServiceInteractionSetAvoidServiceWcstr( SipsnServiceInteraction **service, const wchar_t *avoidService,
                                                         int64_t length );
PB_API void sipsnServiceInteractionDelAvoidService( SipsnServiceInteraction **service );

PB_API SipsnGenericParams *sipsnServiceInteractionGenericParams( SipsnServiceInteraction *service );
PB_API void                sipsnServiceInteractionSetGenericParams( SipsnServiceInteraction **service,
                                                                    SipsnGenericParams       *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
