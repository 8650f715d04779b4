/* SipsnHeaderServiceRoute: the Service-Route header field, RFC 3608; a list of sr-values.
 *
 * Example: Service-Route: <sip:p2.home.example.com;lr>;lang=en
 *
 * Each value is kept as its text and decoded when TryDecodeRouteAt asks for it, which gives null when it is not a
 * sr-value. A header field without lines does not decode. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_SERVICE_ROUTE_H
#define SIPSN_HEADER_SERVICE_ROUTE_H

#include "sipsn_header.h"
#include "sipsn_route.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderServiceRoute ), see sipsn_header.h */
typedef struct SipsnHeaderServiceRoute SipsnHeaderServiceRoute;

PB_API SipsnHeaderServiceRoute *sipsnHeaderServiceRouteCreateFrom( SipsnHeaderServiceRoute *source );
PB_API SipsnHeaderServiceRoute *sipsnHeaderServiceRouteRetain( SipsnHeaderServiceRoute *obj );
PB_API void                     sipsnHeaderServiceRouteRelease( SipsnHeaderServiceRoute *obj );
PB_API PbObj                   *sipsnHeaderServiceRouteObj( SipsnHeaderServiceRoute *obj );
PB_API SipsnHeaderServiceRoute *sipsnHeaderServiceRouteFrom( PbObj *obj );
PB_API PbSort                  *sipsnHeaderServiceRouteSort( void );
PB_API PbString                *sipsnHeaderServiceRouteToString( SipsnHeaderServiceRoute *obj );
PB_API int64_t sipsnHeaderServiceRouteCompare( SipsnHeaderServiceRoute *a, SipsnHeaderServiceRoute *b );
PB_API bool    sipsnHeaderServiceRouteEquals( SipsnHeaderServiceRoute *a, SipsnHeaderServiceRoute *b );

PB_API SipsnHeaderServiceRoute *sipsnHeaderServiceRouteTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader      *sipsnHeaderServiceRouteEncode( SipsnHeaderServiceRoute *hdr );
PB_API SipsnHeaderServiceRoute *sipsnHeaderServiceRouteTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderServiceRouteEncodeToMessage( SipsnHeaderServiceRoute *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderServiceRoutePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderServiceRouteRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderServiceRouteStore( SipsnHeaderServiceRoute *hdr );
PB_API SipsnHeaderServiceRoute *sipsnHeaderServiceRouteTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderServiceRoute *sipsnHeaderServiceRouteCreate( void );

/* ./dev lists: LIST( Routes, Route, SipsnRoute ), see sipsn_header.h */
PB_API int64_t sipsnHeaderServiceRouteRoutesLength( SipsnHeaderServiceRoute *hdr );
PB_API void    sipsnHeaderServiceRouteAppendRoute( SipsnHeaderServiceRoute **hdr, SipsnRoute *route );
PB_API void    sipsnHeaderServiceRoutePrependRoute( SipsnHeaderServiceRoute **hdr, SipsnRoute *route );
PB_API void    sipsnHeaderServiceRouteInsertRoute( SipsnHeaderServiceRoute **hdr, int64_t index, SipsnRoute *route );
PB_API void    sipsnHeaderServiceRouteSetRouteAt( SipsnHeaderServiceRoute **hdr, int64_t index, SipsnRoute *route );
PB_API void    sipsnHeaderServiceRouteDelRouteAt( SipsnHeaderServiceRoute **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnRoute *sipsnHeaderServiceRouteTryDecodeRouteAt( SipsnHeaderServiceRoute *hdr, int64_t index );
PB_API void        sipsnHeaderServiceRouteClearRoutes( SipsnHeaderServiceRoute **hdr );

PB_END_DECLS
#endif
