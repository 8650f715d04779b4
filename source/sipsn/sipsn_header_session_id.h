/* SipsnHeaderSessionId: the Session-ID header field, RFC 7989 section 5; the identifiers that the two ends give a
 * session.
 *
 * Example: Session-Id: ab30317f1a784dc48ff824d0d3715d86;remote=47755a9de7794ba387653f2099600ef2;lang=en
 *
 *     Session-ID = sess-uuid *( ";" ( "remote" "=" sess-uuid / generic-param ) )
 *
 *     local uuid       32 digits and lower-case letters; never absent
 *     remote uuid      the same; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. Of several remote uuids the last
 * counts; one that is no uuid is a generic parameter. Text behind the last parameter that no ";" begins is ignored.
 * Getters return new references, or null when the member is absent. Setters and deleters replace *hdr by a private copy
 * when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_SESSION_ID_H
#define SIPSN_HEADER_SESSION_ID_H

#include "sipsn_generic_params.h"
#include "sipsn_header.h"
#include "sipsn_sess_uuid.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderSessionId ), see sipsn_header.h */
typedef struct SipsnHeaderSessionId SipsnHeaderSessionId;

PB_API SipsnHeaderSessionId *sipsnHeaderSessionIdCreateFrom( SipsnHeaderSessionId *source );
PB_API SipsnHeaderSessionId *sipsnHeaderSessionIdRetain( SipsnHeaderSessionId *obj );
PB_API void                  sipsnHeaderSessionIdRelease( SipsnHeaderSessionId *obj );
PB_API PbObj                *sipsnHeaderSessionIdObj( SipsnHeaderSessionId *obj );
PB_API SipsnHeaderSessionId *sipsnHeaderSessionIdFrom( PbObj *obj );
PB_API PbSort               *sipsnHeaderSessionIdSort( void );
PB_API PbString             *sipsnHeaderSessionIdToString( SipsnHeaderSessionId *obj );
PB_API int64_t               sipsnHeaderSessionIdCompare( SipsnHeaderSessionId *a, SipsnHeaderSessionId *b );
PB_API bool                  sipsnHeaderSessionIdEquals( SipsnHeaderSessionId *a, SipsnHeaderSessionId *b );

PB_API SipsnHeaderSessionId *sipsnHeaderSessionIdTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader   *sipsnHeaderSessionIdEncode( SipsnHeaderSessionId *hdr );
PB_API SipsnHeaderSessionId *sipsnHeaderSessionIdTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderSessionIdEncodeToMessage( SipsnHeaderSessionId *hdr, SipsnMessage **msg );
PB_API bool                  sipsnHeaderSessionIdPresentInMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderSessionIdRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore              *sipsnHeaderSessionIdStore( SipsnHeaderSessionId *hdr );
PB_API SipsnHeaderSessionId *sipsnHeaderSessionIdTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderSessionId *sipsnHeaderSessionIdCreate( PbString *sessUuid );

PB_API PbString *sipsnHeaderSessionIdLocalUuid( SipsnHeaderSessionId *hdr );
PB_API void      sipsnHeaderSessionIdSetLocalUuid( SipsnHeaderSessionId **hdr, PbString *sessUuid );

PB_API PbString *sipsnHeaderSessionIdRemoteUuid( SipsnHeaderSessionId *hdr );
PB_API bool      sipsnHeaderSessionIdHasRemoteUuid( SipsnHeaderSessionId *hdr );
PB_API void      sipsnHeaderSessionIdDelRemoteUuid( SipsnHeaderSessionId **hdr );
PB_API void      sipsnHeaderSessionIdSetRemoteUuid( SipsnHeaderSessionId **hdr, PbString *sessUuid );

PB_API SipsnGenericParams *sipsnHeaderSessionIdGenericParams( SipsnHeaderSessionId *hdr );
PB_API void sipsnHeaderSessionIdSetGenericParams( SipsnHeaderSessionId **hdr, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
