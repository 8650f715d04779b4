/* SipsnHeaderServiceInteractInfo: the Service-Interact-Info header field, 3GPP TS 24.229; a list of services.
 *
 * Example: Service-Interact-Info: executed-service=a
 *
 * The field is defined by 3GPP TS 24.229 alone; the grammar here is second-hand, to be checked against that text.
 *
 * Each service is kept as its text, and decoded when TryDecodeServiceInteractionAt asks for it. A header field
 * without lines does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_SERVICE_INTERACT_INFO_H
#define SIPSN_HEADER_SERVICE_INTERACT_INFO_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_service_interaction.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderServiceInteractInfo ), see sipsn_header.h */
typedef struct SipsnHeaderServiceInteractInfo SipsnHeaderServiceInteractInfo;

PB_API SipsnHeaderServiceInteractInfo *sipsnHeaderServiceInteractInfoCreateFrom(
    SipsnHeaderServiceInteractInfo *source );
PB_API SipsnHeaderServiceInteractInfo *sipsnHeaderServiceInteractInfoRetain( SipsnHeaderServiceInteractInfo *obj );
PB_API void                            sipsnHeaderServiceInteractInfoRelease( SipsnHeaderServiceInteractInfo *obj );
PB_API PbObj                          *sipsnHeaderServiceInteractInfoObj( SipsnHeaderServiceInteractInfo *obj );
PB_API SipsnHeaderServiceInteractInfo *sipsnHeaderServiceInteractInfoFrom( PbObj *obj );
PB_API PbSort                         *sipsnHeaderServiceInteractInfoSort( void );
PB_API PbString                       *sipsnHeaderServiceInteractInfoToString( SipsnHeaderServiceInteractInfo *obj );
PB_API int64_t                         sipsnHeaderServiceInteractInfoCompare( SipsnHeaderServiceInteractInfo *a,
                                                                              SipsnHeaderServiceInteractInfo *b );
PB_API bool                            sipsnHeaderServiceInteractInfoEquals( SipsnHeaderServiceInteractInfo *a,
                                                                             SipsnHeaderServiceInteractInfo *b );

PB_API SipsnHeaderServiceInteractInfo *sipsnHeaderServiceInteractInfoTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader             *sipsnHeaderServiceInteractInfoEncode( SipsnHeaderServiceInteractInfo *hdr );
PB_API SipsnHeaderServiceInteractInfo *sipsnHeaderServiceInteractInfoTryDecodeFromMessage( SipsnMessage *msg );
PB_API void sipsnHeaderServiceInteractInfoEncodeToMessage( SipsnHeaderServiceInteractInfo *hdr, SipsnMessage **msg );
PB_API bool sipsnHeaderServiceInteractInfoPresentInMessage( SipsnMessage *msg );
PB_API void sipsnHeaderServiceInteractInfoRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                        *sipsnHeaderServiceInteractInfoStore( SipsnHeaderServiceInteractInfo *hdr );
PB_API SipsnHeaderServiceInteractInfo *sipsnHeaderServiceInteractInfoTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( ServiceInteractions, ServiceInteraction, SipsnServiceInteraction ), see sipsn_header.h */
PB_API int64_t sipsnHeaderServiceInteractInfoServiceInteractionsLength( SipsnHeaderServiceInteractInfo *hdr );
PB_API void    sipsnHeaderServiceInteractInfoAppendServiceInteraction( SipsnHeaderServiceInteractInfo **hdr,
                                                                       SipsnServiceInteraction *serviceInteraction );
PB_API void    sipsnHeaderServiceInteractInfoPrependServiceInteraction( SipsnHeaderServiceInteractInfo **hdr,
                                                                        SipsnServiceInteraction *serviceInteraction );
PB_API void sipsnHeaderServiceInteractInfoInsertServiceInteraction( SipsnHeaderServiceInteractInfo **hdr, int64_t index,
                                                                    SipsnServiceInteraction *serviceInteraction );
PB_API void sipsnHeaderServiceInteractInfoSetServiceInteractionAt( SipsnHeaderServiceInteractInfo **hdr, int64_t index,
                                                                   SipsnServiceInteraction *serviceInteraction );
PB_API void sipsnHeaderServiceInteractInfoDelServiceInteractionAt( SipsnHeaderServiceInteractInfo **hdr,
                                                                   int64_t                          index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderServiceInteractInfo *sipsnHeaderServiceInteractInfoCreate( void );
PB_API SipsnServiceInteraction        *sipsnHeaderServiceInteractInfoTryDecodeServiceInteractionAt(
           SipsnHeaderServiceInteractInfo *hdr, int64_t index );
PB_API void sipsnHeaderServiceInteractInfoClearServiceInteractions( SipsnHeaderServiceInteractInfo **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
