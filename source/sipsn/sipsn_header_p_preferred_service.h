/* SipsnHeaderPPreferredService: the P-Preferred-Service header field, RFC 6050 section 4.2; a list of service
 * identifiers.
 *
 * Example: P-Preferred-Service: urn:urn-7:3gpp-service.ims.icsi.mmtel
 *
 * Identifiers are kept in lower case. Senders give one only. A header field without lines does not decode. Each is
 * encoded as a line of its own. An invalid one aborts. */
#ifndef SIPSN_HEADER_P_PREFERRED_SERVICE_H
#define SIPSN_HEADER_P_PREFERRED_SERVICE_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_service_id.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPPreferredService ), see sipsn_header.h */
typedef struct SipsnHeaderPPreferredService SipsnHeaderPPreferredService;

PB_API SipsnHeaderPPreferredService *sipsnHeaderPPreferredServiceCreateFrom( SipsnHeaderPPreferredService *source );
PB_API SipsnHeaderPPreferredService *sipsnHeaderPPreferredServiceRetain( SipsnHeaderPPreferredService *obj );
PB_API void                          sipsnHeaderPPreferredServiceRelease( SipsnHeaderPPreferredService *obj );
PB_API PbObj                        *sipsnHeaderPPreferredServiceObj( SipsnHeaderPPreferredService *obj );
PB_API SipsnHeaderPPreferredService *sipsnHeaderPPreferredServiceFrom( PbObj *obj );
PB_API PbSort                       *sipsnHeaderPPreferredServiceSort( void );
PB_API PbString                     *sipsnHeaderPPreferredServiceToString( SipsnHeaderPPreferredService *obj );
PB_API int64_t sipsnHeaderPPreferredServiceCompare( SipsnHeaderPPreferredService *a, SipsnHeaderPPreferredService *b );
PB_API bool    sipsnHeaderPPreferredServiceEquals( SipsnHeaderPPreferredService *a, SipsnHeaderPPreferredService *b );

PB_API SipsnHeaderPPreferredService *sipsnHeaderPPreferredServiceTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader           *sipsnHeaderPPreferredServiceEncode( SipsnHeaderPPreferredService *hdr );
PB_API SipsnHeaderPPreferredService *sipsnHeaderPPreferredServiceTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPPreferredServiceEncodeToMessage( SipsnHeaderPPreferredService *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPPreferredServicePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPPreferredServiceRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPPreferredServiceStore( SipsnHeaderPPreferredService *hdr );
PB_API SipsnHeaderPPreferredService *sipsnHeaderPPreferredServiceTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( ServiceIds, ServiceId, PbString ), see sipsn_header.h */
PB_API int64_t sipsnHeaderPPreferredServiceServiceIdsLength( SipsnHeaderPPreferredService *hdr );
PB_API void    sipsnHeaderPPreferredServiceAppendServiceId( SipsnHeaderPPreferredService **hdr, PbString *serviceId );
PB_API void    sipsnHeaderPPreferredServicePrependServiceId( SipsnHeaderPPreferredService **hdr, PbString *serviceId );
PB_API void    sipsnHeaderPPreferredServiceInsertServiceId( SipsnHeaderPPreferredService **hdr, int64_t index,
                                                            PbString *serviceId );
PB_API void    sipsnHeaderPPreferredServiceSetServiceIdAt( SipsnHeaderPPreferredService **hdr, int64_t index,
                                                           PbString *serviceId );
PB_API void    sipsnHeaderPPreferredServiceDelServiceIdAt( SipsnHeaderPPreferredService **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPPreferredService *sipsnHeaderPPreferredServiceCreate( void );
PB_API PbString *sipsnHeaderPPreferredServiceServiceIdAt( SipsnHeaderPPreferredService *hdr, int64_t index );
PB_API void      sipsnHeaderPPreferredServiceClearServiceIds( SipsnHeaderPPreferredService **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
