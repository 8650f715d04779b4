/* SipsnHeaderMinSe: the Min-SE header field, RFC 4028 section 5; the shortest session interval.
 *
 * Example: Min-Se: 90;lang=en
 *
 *     Min-SE = 1*DIGIT *( ";" generic-param )
 *
 *     delta seconds    seconds, 0 or above; never absent
 *     generic params   all parameters; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. Text behind the last parameter that
 * no ";" begins is ignored. Getters return new references. Setters replace *hdr by a private copy when it is shared. A
 * null or invalid argument aborts. */
#ifndef SIPSN_HEADER_MIN_SE_H
#define SIPSN_HEADER_MIN_SE_H

#include "sipsn_delta_seconds.h"
#include "sipsn_generic_params.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderMinSe ), see sipsn_header.h */
typedef struct SipsnHeaderMinSe SipsnHeaderMinSe;

PB_API SipsnHeaderMinSe *sipsnHeaderMinSeCreateFrom( SipsnHeaderMinSe *source );
PB_API SipsnHeaderMinSe *sipsnHeaderMinSeRetain( SipsnHeaderMinSe *obj );
PB_API void              sipsnHeaderMinSeRelease( SipsnHeaderMinSe *obj );
PB_API PbObj            *sipsnHeaderMinSeObj( SipsnHeaderMinSe *obj );
PB_API SipsnHeaderMinSe *sipsnHeaderMinSeFrom( PbObj *obj );
PB_API PbSort           *sipsnHeaderMinSeSort( void );
PB_API PbString         *sipsnHeaderMinSeToString( SipsnHeaderMinSe *obj );
PB_API int64_t           sipsnHeaderMinSeCompare( SipsnHeaderMinSe *a, SipsnHeaderMinSe *b );
PB_API bool              sipsnHeaderMinSeEquals( SipsnHeaderMinSe *a, SipsnHeaderMinSe *b );

PB_API SipsnHeaderMinSe   *sipsnHeaderMinSeTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderMinSeEncode( SipsnHeaderMinSe *hdr );
PB_API SipsnHeaderMinSe   *sipsnHeaderMinSeTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderMinSeEncodeToMessage( SipsnHeaderMinSe *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderMinSePresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderMinSeRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderMinSeStore( SipsnHeaderMinSe *hdr );
PB_API SipsnHeaderMinSe   *sipsnHeaderMinSeTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderMinSe *sipsnHeaderMinSeCreate( int64_t deltaSeconds );

PB_API int64_t sipsnHeaderMinSeDeltaSeconds( SipsnHeaderMinSe *hdr );
PB_API void    sipsnHeaderMinSeSetDeltaSeconds( SipsnHeaderMinSe **hdr, int64_t deltaSeconds );

PB_API SipsnGenericParams *sipsnHeaderMinSeGenericParams( SipsnHeaderMinSe *hdr );
PB_API void sipsnHeaderMinSeSetGenericParams( SipsnHeaderMinSe **hdr, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
