/* SipsnHeaderExpires: the Expires header field, RFC 3261 section 20.19; for how long something is valid.
 *
 * Example: Expires: 3600
 *
 *     Expires = 1*DIGIT
 *
 *     delta seconds   seconds, 0 or above; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. The setter replaces *hdr by a
 * private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_EXPIRES_H
#define SIPSN_HEADER_EXPIRES_H

#include "sipsn_delta_seconds.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderExpires ), see sipsn_header.h */
typedef struct SipsnHeaderExpires SipsnHeaderExpires;

PB_API SipsnHeaderExpires *sipsnHeaderExpiresCreateFrom( SipsnHeaderExpires *source );
PB_API SipsnHeaderExpires *sipsnHeaderExpiresRetain( SipsnHeaderExpires *obj );
PB_API void                sipsnHeaderExpiresRelease( SipsnHeaderExpires *obj );
PB_API PbObj              *sipsnHeaderExpiresObj( SipsnHeaderExpires *obj );
PB_API SipsnHeaderExpires *sipsnHeaderExpiresFrom( PbObj *obj );
PB_API PbSort             *sipsnHeaderExpiresSort( void );
PB_API PbString           *sipsnHeaderExpiresToString( SipsnHeaderExpires *obj );
PB_API int64_t             sipsnHeaderExpiresCompare( SipsnHeaderExpires *a, SipsnHeaderExpires *b );
PB_API bool                sipsnHeaderExpiresEquals( SipsnHeaderExpires *a, SipsnHeaderExpires *b );

PB_API SipsnHeaderExpires *sipsnHeaderExpiresTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderExpiresEncode( SipsnHeaderExpires *hdr );
PB_API SipsnHeaderExpires *sipsnHeaderExpiresTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderExpiresEncodeToMessage( SipsnHeaderExpires *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderExpiresPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderExpiresRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderExpiresStore( SipsnHeaderExpires *hdr );
PB_API SipsnHeaderExpires *sipsnHeaderExpiresTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderExpires *sipsnHeaderExpiresCreate( int64_t deltaSeconds );

PB_API int64_t sipsnHeaderExpiresDeltaSeconds( SipsnHeaderExpires *hdr );
PB_API void    sipsnHeaderExpiresSetDeltaSeconds( SipsnHeaderExpires **hdr, int64_t deltaSeconds );

PB_END_DECLS
#endif
