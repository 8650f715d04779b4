/* SipsnHeaderMaxBreadth: the Max-Breadth header field, RFC 5393 section 5.8.
 *
 * Example: Max-Breadth: 60
 *
 *     max breadth   at how many targets the request may arrive at once, 1 or more; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_MAX_BREADTH_H
#define SIPSN_HEADER_MAX_BREADTH_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_number.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderMaxBreadth ), see sipsn_header.h */
typedef struct SipsnHeaderMaxBreadth SipsnHeaderMaxBreadth;

PB_API SipsnHeaderMaxBreadth *sipsnHeaderMaxBreadthCreateFrom( SipsnHeaderMaxBreadth *source );
PB_API SipsnHeaderMaxBreadth *sipsnHeaderMaxBreadthRetain( SipsnHeaderMaxBreadth *obj );
PB_API void                   sipsnHeaderMaxBreadthRelease( SipsnHeaderMaxBreadth *obj );
PB_API PbObj                 *sipsnHeaderMaxBreadthObj( SipsnHeaderMaxBreadth *obj );
PB_API SipsnHeaderMaxBreadth *sipsnHeaderMaxBreadthFrom( PbObj *obj );
PB_API PbSort                *sipsnHeaderMaxBreadthSort( void );
PB_API PbString              *sipsnHeaderMaxBreadthToString( SipsnHeaderMaxBreadth *obj );
PB_API int64_t                sipsnHeaderMaxBreadthCompare( SipsnHeaderMaxBreadth *a, SipsnHeaderMaxBreadth *b );
PB_API bool                   sipsnHeaderMaxBreadthEquals( SipsnHeaderMaxBreadth *a, SipsnHeaderMaxBreadth *b );

PB_API SipsnHeaderMaxBreadth *sipsnHeaderMaxBreadthTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader    *sipsnHeaderMaxBreadthEncode( SipsnHeaderMaxBreadth *hdr );
PB_API SipsnHeaderMaxBreadth *sipsnHeaderMaxBreadthTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                   sipsnHeaderMaxBreadthEncodeToMessage( SipsnHeaderMaxBreadth *hdr, SipsnMessage **msg );
PB_API bool                   sipsnHeaderMaxBreadthPresentInMessage( SipsnMessage *msg );
PB_API void                   sipsnHeaderMaxBreadthRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore               *sipsnHeaderMaxBreadthStore( SipsnHeaderMaxBreadth *hdr );
PB_API SipsnHeaderMaxBreadth *sipsnHeaderMaxBreadthTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderMaxBreadth *sipsnHeaderMaxBreadthCreate( int64_t maxBreadth );

PB_API int64_t sipsnHeaderMaxBreadthMaxBreadth( SipsnHeaderMaxBreadth *hdr );
PB_API void    sipsnHeaderMaxBreadthSetMaxBreadth( SipsnHeaderMaxBreadth **hdr, int64_t maxBreadth );
/* ./dev lists: end */

PB_END_DECLS
#endif
