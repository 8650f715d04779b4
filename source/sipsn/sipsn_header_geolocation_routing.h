/* SipsnHeaderGeolocationRouting: the Geolocation-Routing header field, RFC 6442 section 4.2; whether a location may be
 * used for routing.
 *
 * Example: Geolocation-Routing: yes
 *
 *     Geolocation-Routing = token
 *
 *     geolocation routing   "yes", "no", or another token, which counts as "no"; in lower
 *                           case; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_GEOLOCATION_ROUTING_H
#define SIPSN_HEADER_GEOLOCATION_ROUTING_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderGeolocationRouting ), see sipsn_header.h */
typedef struct SipsnHeaderGeolocationRouting SipsnHeaderGeolocationRouting;

PB_API SipsnHeaderGeolocationRouting *sipsnHeaderGeolocationRoutingCreateFrom( SipsnHeaderGeolocationRouting *source );
PB_API SipsnHeaderGeolocationRouting *sipsnHeaderGeolocationRoutingRetain( SipsnHeaderGeolocationRouting *obj );
PB_API void                           sipsnHeaderGeolocationRoutingRelease( SipsnHeaderGeolocationRouting *obj );
PB_API PbObj                         *sipsnHeaderGeolocationRoutingObj( SipsnHeaderGeolocationRouting *obj );
PB_API SipsnHeaderGeolocationRouting *sipsnHeaderGeolocationRoutingFrom( PbObj *obj );
PB_API PbSort                        *sipsnHeaderGeolocationRoutingSort( void );
PB_API PbString                      *sipsnHeaderGeolocationRoutingToString( SipsnHeaderGeolocationRouting *obj );
PB_API int64_t                        sipsnHeaderGeolocationRoutingCompare( SipsnHeaderGeolocationRouting *a,
                                                                            SipsnHeaderGeolocationRouting *b );
PB_API bool sipsnHeaderGeolocationRoutingEquals( SipsnHeaderGeolocationRouting *a, SipsnHeaderGeolocationRouting *b );

PB_API SipsnHeaderGeolocationRouting *sipsnHeaderGeolocationRoutingTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader            *sipsnHeaderGeolocationRoutingEncode( SipsnHeaderGeolocationRouting *hdr );
PB_API SipsnHeaderGeolocationRouting *sipsnHeaderGeolocationRoutingTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderGeolocationRoutingEncodeToMessage( SipsnHeaderGeolocationRouting *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderGeolocationRoutingPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderGeolocationRoutingRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderGeolocationRoutingStore( SipsnHeaderGeolocationRouting *hdr );
PB_API SipsnHeaderGeolocationRouting *sipsnHeaderGeolocationRoutingTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderGeolocationRouting *sipsnHeaderGeolocationRoutingCreate( PbString *geolocationRouting );
PB_API SipsnHeaderGeolocationRouting *sipsnHeaderGeolocationRoutingCreateCstr( const char *geolocationRouting,
                                                                               int64_t     length );
PB_API SipsnHeaderGeolocationRouting *sipsnHeaderGeolocationRoutingCreateWcstr( const wchar_t *geolocationRouting,
                                                                                int64_t        length );

PB_API PbString *sipsnHeaderGeolocationRoutingGeolocationRouting( SipsnHeaderGeolocationRouting *hdr );
PB_API void      sipsnHeaderGeolocationRoutingSetGeolocationRouting( SipsnHeaderGeolocationRouting **hdr,
                                                                     PbString                       *geolocationRouting );
PB_API void      sipsnHeaderGeolocationRoutingSetGeolocationRoutingCstr( SipsnHeaderGeolocationRouting **hdr,
                                                                         const char *geolocationRouting, int64_t length );
PB_API void      sipsnHeaderGeolocationRoutingSetGeolocationRoutingWcstr( SipsnHeaderGeolocationRouting **hdr,
                                                                          const wchar_t                  *geolocationRouting,
                                                                          int64_t                         length );
/* ./dev lists: end */

PB_END_DECLS
#endif
