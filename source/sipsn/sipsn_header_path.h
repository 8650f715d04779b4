/* SipsnHeaderPath: the Path header field, RFC 3327 section 4; a list of route-params.
 *
 * Example: Path: <sip:p1.example.com;lr>
 *
 * Each route-param is kept as its text, and decoded when TryDecodeRouteAt asks for it. A header field without lines
 * does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_PATH_H
#define SIPSN_HEADER_PATH_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_route.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPath ), see sipsn_header.h */
typedef struct SipsnHeaderPath SipsnHeaderPath;

PB_API SipsnHeaderPath *sipsnHeaderPathCreateFrom( SipsnHeaderPath *source );
PB_API SipsnHeaderPath *sipsnHeaderPathRetain( SipsnHeaderPath *obj );
PB_API void             sipsnHeaderPathRelease( SipsnHeaderPath *obj );
PB_API PbObj           *sipsnHeaderPathObj( SipsnHeaderPath *obj );
PB_API SipsnHeaderPath *sipsnHeaderPathFrom( PbObj *obj );
PB_API PbSort          *sipsnHeaderPathSort( void );
PB_API PbString        *sipsnHeaderPathToString( SipsnHeaderPath *obj );
PB_API int64_t          sipsnHeaderPathCompare( SipsnHeaderPath *a, SipsnHeaderPath *b );
PB_API bool             sipsnHeaderPathEquals( SipsnHeaderPath *a, SipsnHeaderPath *b );

PB_API SipsnHeaderPath    *sipsnHeaderPathTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderPathEncode( SipsnHeaderPath *hdr );
PB_API SipsnHeaderPath    *sipsnHeaderPathTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderPathEncodeToMessage( SipsnHeaderPath *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderPathPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderPathRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderPathStore( SipsnHeaderPath *hdr );
PB_API SipsnHeaderPath    *sipsnHeaderPathTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Routes, Route, SipsnRoute ), see sipsn_header.h */
PB_API int64_t sipsnHeaderPathRoutesLength( SipsnHeaderPath *hdr );
PB_API void    sipsnHeaderPathAppendRoute( SipsnHeaderPath **hdr, SipsnRoute *route );
PB_API void    sipsnHeaderPathPrependRoute( SipsnHeaderPath **hdr, SipsnRoute *route );
PB_API void    sipsnHeaderPathInsertRoute( SipsnHeaderPath **hdr, int64_t index, SipsnRoute *route );
PB_API void    sipsnHeaderPathSetRouteAt( SipsnHeaderPath **hdr, int64_t index, SipsnRoute *route );
PB_API void    sipsnHeaderPathDelRouteAt( SipsnHeaderPath **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPath *sipsnHeaderPathCreate( void );
PB_API SipsnRoute      *sipsnHeaderPathTryDecodeRouteAt( SipsnHeaderPath *hdr, int64_t index );
PB_API void             sipsnHeaderPathClearRoutes( SipsnHeaderPath **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
