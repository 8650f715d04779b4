/* SipsnHeaderMaxForwards: the Max-Forwards header field, RFC 3261 section 20.22; how many hops are left.
 *
 * Example: Max-Forwards: 70
 *
 *     Max-Forwards = 1*DIGIT
 *
 *     max forwards   0 to 255; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. The setter replaces *hdr by a
 * private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_MAX_FORWARDS_H
#define SIPSN_HEADER_MAX_FORWARDS_H

#include "sipsn_header.h"
#include "sipsn_max_forwards.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderMaxForwards ), see sipsn_header.h */
typedef struct SipsnHeaderMaxForwards SipsnHeaderMaxForwards;

PB_API SipsnHeaderMaxForwards *sipsnHeaderMaxForwardsCreateFrom( SipsnHeaderMaxForwards *source );
PB_API SipsnHeaderMaxForwards *sipsnHeaderMaxForwardsRetain( SipsnHeaderMaxForwards *obj );
PB_API void                    sipsnHeaderMaxForwardsRelease( SipsnHeaderMaxForwards *obj );
PB_API PbObj                  *sipsnHeaderMaxForwardsObj( SipsnHeaderMaxForwards *obj );
PB_API SipsnHeaderMaxForwards *sipsnHeaderMaxForwardsFrom( PbObj *obj );
PB_API PbSort                 *sipsnHeaderMaxForwardsSort( void );
PB_API PbString               *sipsnHeaderMaxForwardsToString( SipsnHeaderMaxForwards *obj );
PB_API int64_t                 sipsnHeaderMaxForwardsCompare( SipsnHeaderMaxForwards *a, SipsnHeaderMaxForwards *b );
PB_API bool                    sipsnHeaderMaxForwardsEquals( SipsnHeaderMaxForwards *a, SipsnHeaderMaxForwards *b );

PB_API SipsnHeaderMaxForwards *sipsnHeaderMaxForwardsTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader     *sipsnHeaderMaxForwardsEncode( SipsnHeaderMaxForwards *hdr );
PB_API SipsnHeaderMaxForwards *sipsnHeaderMaxForwardsTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderMaxForwardsEncodeToMessage( SipsnHeaderMaxForwards *hdr, SipsnMessage **msg );
PB_API bool                    sipsnHeaderMaxForwardsPresentInMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderMaxForwardsRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                *sipsnHeaderMaxForwardsStore( SipsnHeaderMaxForwards *hdr );
PB_API SipsnHeaderMaxForwards *sipsnHeaderMaxForwardsTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderMaxForwards *sipsnHeaderMaxForwardsCreate( int64_t maxForwards );

PB_API int64_t sipsnHeaderMaxForwardsMaxForwards( SipsnHeaderMaxForwards *hdr );
PB_API void    sipsnHeaderMaxForwardsSetMaxForwards( SipsnHeaderMaxForwards **hdr, int64_t maxForwards );

PB_END_DECLS
#endif
