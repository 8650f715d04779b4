/* SipsnHeaderServer: the Server header field, RFC 3261 section 20.35; what software sent a response.
 *
 * Example: Server: HomeServer/2.1 (Debian)
 *
 *     Server = server-val *( LWS server-val )
 *
 *     server   products and comments, kept as written; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. The getter returns a new reference.
 * The setter replaces *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_SERVER_H
#define SIPSN_HEADER_SERVER_H

#include "sipsn_header.h"
#include "sipsn_server.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderServer ), see sipsn_header.h */
typedef struct SipsnHeaderServer SipsnHeaderServer;

PB_API SipsnHeaderServer *sipsnHeaderServerCreateFrom( SipsnHeaderServer *source );
PB_API SipsnHeaderServer *sipsnHeaderServerRetain( SipsnHeaderServer *obj );
PB_API void               sipsnHeaderServerRelease( SipsnHeaderServer *obj );
PB_API PbObj             *sipsnHeaderServerObj( SipsnHeaderServer *obj );
PB_API SipsnHeaderServer *sipsnHeaderServerFrom( PbObj *obj );
PB_API PbSort            *sipsnHeaderServerSort( void );
PB_API PbString          *sipsnHeaderServerToString( SipsnHeaderServer *obj );
PB_API int64_t            sipsnHeaderServerCompare( SipsnHeaderServer *a, SipsnHeaderServer *b );
PB_API bool               sipsnHeaderServerEquals( SipsnHeaderServer *a, SipsnHeaderServer *b );

PB_API SipsnHeaderServer  *sipsnHeaderServerTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderServerEncode( SipsnHeaderServer *hdr );
PB_API SipsnHeaderServer  *sipsnHeaderServerTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderServerEncodeToMessage( SipsnHeaderServer *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderServerPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderServerRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderServerStore( SipsnHeaderServer *hdr );
PB_API SipsnHeaderServer  *sipsnHeaderServerTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderServer *sipsnHeaderServerCreate( PbString *server );

PB_API PbString *sipsnHeaderServerServer( SipsnHeaderServer *hdr );
PB_API void      sipsnHeaderServerSetServer( SipsnHeaderServer **hdr, PbString *server );

PB_END_DECLS
#endif
