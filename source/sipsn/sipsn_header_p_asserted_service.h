/* SipsnHeaderPAssertedService: the P-Asserted-Service header field, RFC 6050 section 4.1; a list of service
 * identifiers.
 *
 * Example: P-Asserted-Service: urn:urn-7:3gpp-service.ims.icsi.mmtel
 *
 * Identifiers are kept in lower case. Senders give one only. A header field without lines does not decode. Each is
 * encoded as a line of its own. An invalid one aborts. */
#ifndef SIPSN_HEADER_P_ASSERTED_SERVICE_H
#define SIPSN_HEADER_P_ASSERTED_SERVICE_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_service_id.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPAssertedService ), see sipsn_header.h */
typedef struct SipsnHeaderPAssertedService SipsnHeaderPAssertedService;

PB_API SipsnHeaderPAssertedService *sipsnHeaderPAssertedServiceCreateFrom( SipsnHeaderPAssertedService *source );
PB_API SipsnHeaderPAssertedService *sipsnHeaderPAssertedServiceRetain( SipsnHeaderPAssertedService *obj );
PB_API void                         sipsnHeaderPAssertedServiceRelease( SipsnHeaderPAssertedService *obj );
PB_API PbObj                       *sipsnHeaderPAssertedServiceObj( SipsnHeaderPAssertedService *obj );
PB_API SipsnHeaderPAssertedService *sipsnHeaderPAssertedServiceFrom( PbObj *obj );
PB_API PbSort                      *sipsnHeaderPAssertedServiceSort( void );
PB_API PbString                    *sipsnHeaderPAssertedServiceToString( SipsnHeaderPAssertedService *obj );
PB_API int64_t sipsnHeaderPAssertedServiceCompare( SipsnHeaderPAssertedService *a, SipsnHeaderPAssertedService *b );
PB_API bool    sipsnHeaderPAssertedServiceEquals( SipsnHeaderPAssertedService *a, SipsnHeaderPAssertedService *b );

PB_API SipsnHeaderPAssertedService *sipsnHeaderPAssertedServiceTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader          *sipsnHeaderPAssertedServiceEncode( SipsnHeaderPAssertedService *hdr );
PB_API SipsnHeaderPAssertedService *sipsnHeaderPAssertedServiceTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPAssertedServiceEncodeToMessage( SipsnHeaderPAssertedService *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPAssertedServicePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPAssertedServiceRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPAssertedServiceStore( SipsnHeaderPAssertedService *hdr );
PB_API SipsnHeaderPAssertedService *sipsnHeaderPAssertedServiceTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( ServiceIds, ServiceId, PbString ), see sipsn_header.h */
PB_API int64_t sipsnHeaderPAssertedServiceServiceIdsLength( SipsnHeaderPAssertedService *hdr );
PB_API void    sipsnHeaderPAssertedServiceAppendServiceId( SipsnHeaderPAssertedService **hdr, PbString *serviceId );
PB_API void    sipsnHeaderPAssertedServicePrependServiceId( SipsnHeaderPAssertedService **hdr, PbString *serviceId );
PB_API void    sipsnHeaderPAssertedServiceInsertServiceId( SipsnHeaderPAssertedService **hdr, int64_t index,
                                                           PbString *serviceId );
PB_API void    sipsnHeaderPAssertedServiceSetServiceIdAt( SipsnHeaderPAssertedService **hdr, int64_t index,
                                                          PbString *serviceId );
PB_API void    sipsnHeaderPAssertedServiceDelServiceIdAt( SipsnHeaderPAssertedService **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPAssertedService *sipsnHeaderPAssertedServiceCreate( void );
PB_API PbString *sipsnHeaderPAssertedServiceServiceIdAt( SipsnHeaderPAssertedService *hdr, int64_t index );
PB_API void      sipsnHeaderPAssertedServiceClearServiceIds( SipsnHeaderPAssertedService **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
