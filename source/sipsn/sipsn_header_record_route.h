/* SipsnHeaderRecordRoute: the Record-Route header field, RFC 3261 section 20.30; a list of rec-routes.
 *
 * Example: Record-Route: <sip:p1.example.com;lr>;lang=en
 *
 * Each value is kept as its text and decoded when TryDecodeRouteAt asks for it, which gives null when it is not a
 * rec-route. A header field without lines does not decode. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_RECORD_ROUTE_H
#define SIPSN_HEADER_RECORD_ROUTE_H

#include "sipsn_header.h"
#include "sipsn_route.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderRecordRoute ), see sipsn_header.h */
typedef struct SipsnHeaderRecordRoute SipsnHeaderRecordRoute;

PB_API SipsnHeaderRecordRoute *sipsnHeaderRecordRouteCreateFrom( SipsnHeaderRecordRoute *source );
PB_API SipsnHeaderRecordRoute *sipsnHeaderRecordRouteRetain( SipsnHeaderRecordRoute *obj );
PB_API void                    sipsnHeaderRecordRouteRelease( SipsnHeaderRecordRoute *obj );
PB_API PbObj                  *sipsnHeaderRecordRouteObj( SipsnHeaderRecordRoute *obj );
PB_API SipsnHeaderRecordRoute *sipsnHeaderRecordRouteFrom( PbObj *obj );
PB_API PbSort                 *sipsnHeaderRecordRouteSort( void );
PB_API PbString               *sipsnHeaderRecordRouteToString( SipsnHeaderRecordRoute *obj );
PB_API int64_t                 sipsnHeaderRecordRouteCompare( SipsnHeaderRecordRoute *a, SipsnHeaderRecordRoute *b );
PB_API bool                    sipsnHeaderRecordRouteEquals( SipsnHeaderRecordRoute *a, SipsnHeaderRecordRoute *b );

PB_API SipsnHeaderRecordRoute *sipsnHeaderRecordRouteTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader     *sipsnHeaderRecordRouteEncode( SipsnHeaderRecordRoute *hdr );
PB_API SipsnHeaderRecordRoute *sipsnHeaderRecordRouteTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderRecordRouteEncodeToMessage( SipsnHeaderRecordRoute *hdr, SipsnMessage **msg );
PB_API bool                    sipsnHeaderRecordRoutePresentInMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderRecordRouteRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                *sipsnHeaderRecordRouteStore( SipsnHeaderRecordRoute *hdr );
PB_API SipsnHeaderRecordRoute *sipsnHeaderRecordRouteTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderRecordRoute *sipsnHeaderRecordRouteCreate( void );

/* ./dev lists: LIST( Routes, Route, SipsnRoute ), see sipsn_header.h */
PB_API int64_t sipsnHeaderRecordRouteRoutesLength( SipsnHeaderRecordRoute *hdr );
PB_API void    sipsnHeaderRecordRouteAppendRoute( SipsnHeaderRecordRoute **hdr, SipsnRoute *route );
PB_API void    sipsnHeaderRecordRoutePrependRoute( SipsnHeaderRecordRoute **hdr, SipsnRoute *route );
PB_API void    sipsnHeaderRecordRouteInsertRoute( SipsnHeaderRecordRoute **hdr, int64_t index, SipsnRoute *route );
PB_API void    sipsnHeaderRecordRouteSetRouteAt( SipsnHeaderRecordRoute **hdr, int64_t index, SipsnRoute *route );
PB_API void    sipsnHeaderRecordRouteDelRouteAt( SipsnHeaderRecordRoute **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnRoute *sipsnHeaderRecordRouteTryDecodeRouteAt( SipsnHeaderRecordRoute *hdr, int64_t index );
PB_API void        sipsnHeaderRecordRouteClearRoutes( SipsnHeaderRecordRoute **hdr );

PB_END_DECLS
#endif
