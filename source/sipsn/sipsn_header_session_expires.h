/* SipsnHeaderSessionExpires: the Session-Expires header field, RFC 4028 section 4; the session interval and who
 * refreshes.
 *
 * Example: Session-Expires: 1800;refresher=uac;lang=en
 *
 *     Session-Expires = 1*DIGIT *( ";" ( "refresher" "=" ( "uac" / "uas" ) / generic-param ) )
 *
 *     delta seconds    seconds, 0 or above; never absent
 *     refresher        "uac" or "uas", kept in lower case; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. Of several refreshers the last
 * counts; one that is neither is a generic parameter. Text behind the last parameter that no ";" begins is ignored.
 * Getters return new references, or null when the member is absent. Setters and deleters replace *hdr by a private copy
 * when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_SESSION_EXPIRES_H
#define SIPSN_HEADER_SESSION_EXPIRES_H

#include "sipsn_delta_seconds.h"
#include "sipsn_generic_params.h"
#include "sipsn_header.h"
#include "sipsn_refresher.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderSessionExpires ), see sipsn_header.h */
typedef struct SipsnHeaderSessionExpires SipsnHeaderSessionExpires;

PB_API SipsnHeaderSessionExpires *sipsnHeaderSessionExpiresCreateFrom( SipsnHeaderSessionExpires *source );
PB_API SipsnHeaderSessionExpires *sipsnHeaderSessionExpiresRetain( SipsnHeaderSessionExpires *obj );
PB_API void                       sipsnHeaderSessionExpiresRelease( SipsnHeaderSessionExpires *obj );
PB_API PbObj                     *sipsnHeaderSessionExpiresObj( SipsnHeaderSessionExpires *obj );
PB_API SipsnHeaderSessionExpires *sipsnHeaderSessionExpiresFrom( PbObj *obj );
PB_API PbSort                    *sipsnHeaderSessionExpiresSort( void );
PB_API PbString                  *sipsnHeaderSessionExpiresToString( SipsnHeaderSessionExpires *obj );
PB_API int64_t sipsnHeaderSessionExpiresCompare( SipsnHeaderSessionExpires *a, SipsnHeaderSessionExpires *b );
PB_API bool    sipsnHeaderSessionExpiresEquals( SipsnHeaderSessionExpires *a, SipsnHeaderSessionExpires *b );

PB_API SipsnHeaderSessionExpires *sipsnHeaderSessionExpiresTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader        *sipsnHeaderSessionExpiresEncode( SipsnHeaderSessionExpires *hdr );
PB_API SipsnHeaderSessionExpires *sipsnHeaderSessionExpiresTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderSessionExpiresEncodeToMessage( SipsnHeaderSessionExpires *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderSessionExpiresPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderSessionExpiresRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderSessionExpiresStore( SipsnHeaderSessionExpires *hdr );
PB_API SipsnHeaderSessionExpires *sipsnHeaderSessionExpiresTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderSessionExpires *sipsnHeaderSessionExpiresCreate( int64_t deltaSeconds );

PB_API int64_t sipsnHeaderSessionExpiresDeltaSeconds( SipsnHeaderSessionExpires *hdr );
PB_API void    sipsnHeaderSessionExpiresSetDeltaSeconds( SipsnHeaderSessionExpires **hdr, int64_t deltaSeconds );

PB_API PbString *sipsnHeaderSessionExpiresRefresher( SipsnHeaderSessionExpires *hdr );
PB_API bool      sipsnHeaderSessionExpiresHasRefresher( SipsnHeaderSessionExpires *hdr );
PB_API void      sipsnHeaderSessionExpiresDelRefresher( SipsnHeaderSessionExpires **hdr );
PB_API void      sipsnHeaderSessionExpiresSetRefresher( SipsnHeaderSessionExpires **hdr, PbString *refresher );

PB_API SipsnGenericParams *sipsnHeaderSessionExpiresGenericParams( SipsnHeaderSessionExpires *hdr );
PB_API void                sipsnHeaderSessionExpiresSetGenericParams( SipsnHeaderSessionExpires **hdr,
                                                                      SipsnGenericParams         *genericParams );

PB_END_DECLS
#endif
