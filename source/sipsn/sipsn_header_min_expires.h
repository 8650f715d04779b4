/* SipsnHeaderMinExpires: the Min-Expires header field, RFC 3261 section 20.23; the shortest expiry that a registrar
 * takes.
 *
 * Example: Min-Expires: 60
 *
 *     Min-Expires = 1*DIGIT
 *
 *     delta seconds   seconds, 0 or above; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. The setter replaces *hdr by a
 * private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_MIN_EXPIRES_H
#define SIPSN_HEADER_MIN_EXPIRES_H

#include "sipsn_delta_seconds.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderMinExpires ), see sipsn_header.h */
typedef struct SipsnHeaderMinExpires SipsnHeaderMinExpires;

PB_API SipsnHeaderMinExpires *sipsnHeaderMinExpiresCreateFrom( SipsnHeaderMinExpires *source );
PB_API SipsnHeaderMinExpires *sipsnHeaderMinExpiresRetain( SipsnHeaderMinExpires *obj );
PB_API void                   sipsnHeaderMinExpiresRelease( SipsnHeaderMinExpires *obj );
PB_API PbObj                 *sipsnHeaderMinExpiresObj( SipsnHeaderMinExpires *obj );
PB_API SipsnHeaderMinExpires *sipsnHeaderMinExpiresFrom( PbObj *obj );
PB_API PbSort                *sipsnHeaderMinExpiresSort( void );
PB_API PbString              *sipsnHeaderMinExpiresToString( SipsnHeaderMinExpires *obj );
PB_API int64_t                sipsnHeaderMinExpiresCompare( SipsnHeaderMinExpires *a, SipsnHeaderMinExpires *b );
PB_API bool                   sipsnHeaderMinExpiresEquals( SipsnHeaderMinExpires *a, SipsnHeaderMinExpires *b );

PB_API SipsnHeaderMinExpires *sipsnHeaderMinExpiresTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader    *sipsnHeaderMinExpiresEncode( SipsnHeaderMinExpires *hdr );
PB_API SipsnHeaderMinExpires *sipsnHeaderMinExpiresTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                   sipsnHeaderMinExpiresEncodeToMessage( SipsnHeaderMinExpires *hdr, SipsnMessage **msg );
PB_API bool                   sipsnHeaderMinExpiresPresentInMessage( SipsnMessage *msg );
PB_API void                   sipsnHeaderMinExpiresRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore               *sipsnHeaderMinExpiresStore( SipsnHeaderMinExpires *hdr );
PB_API SipsnHeaderMinExpires *sipsnHeaderMinExpiresTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderMinExpires *sipsnHeaderMinExpiresCreate( int64_t deltaSeconds );

PB_API int64_t sipsnHeaderMinExpiresDeltaSeconds( SipsnHeaderMinExpires *hdr );
PB_API void    sipsnHeaderMinExpiresSetDeltaSeconds( SipsnHeaderMinExpires **hdr, int64_t deltaSeconds );

PB_END_DECLS
#endif
