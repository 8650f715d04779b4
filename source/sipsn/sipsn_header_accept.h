/* SipsnHeaderAccept: the Accept header field, RFC 3261 section 20.1; a list of accept-ranges.
 *
 * Example: Accept: application/sdp;q=0.7;level=1
 *
 * Each value is kept as its text and decoded when TryDecodeAcceptAt asks for it, which gives null when it is not an
 * accept-range. A header field without lines does not decode. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_ACCEPT_H
#define SIPSN_HEADER_ACCEPT_H

#include "sipsn_accept.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderAccept ), see sipsn_header.h */
typedef struct SipsnHeaderAccept SipsnHeaderAccept;

PB_API SipsnHeaderAccept *sipsnHeaderAcceptCreateFrom( SipsnHeaderAccept *source );
PB_API SipsnHeaderAccept *sipsnHeaderAcceptRetain( SipsnHeaderAccept *obj );
PB_API void               sipsnHeaderAcceptRelease( SipsnHeaderAccept *obj );
PB_API PbObj             *sipsnHeaderAcceptObj( SipsnHeaderAccept *obj );
PB_API SipsnHeaderAccept *sipsnHeaderAcceptFrom( PbObj *obj );
PB_API PbSort            *sipsnHeaderAcceptSort( void );
PB_API PbString          *sipsnHeaderAcceptToString( SipsnHeaderAccept *obj );
PB_API int64_t            sipsnHeaderAcceptCompare( SipsnHeaderAccept *a, SipsnHeaderAccept *b );
PB_API bool               sipsnHeaderAcceptEquals( SipsnHeaderAccept *a, SipsnHeaderAccept *b );

PB_API SipsnHeaderAccept  *sipsnHeaderAcceptTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderAcceptEncode( SipsnHeaderAccept *hdr );
PB_API SipsnHeaderAccept  *sipsnHeaderAcceptTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderAcceptEncodeToMessage( SipsnHeaderAccept *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderAcceptPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderAcceptRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderAcceptStore( SipsnHeaderAccept *hdr );
PB_API SipsnHeaderAccept  *sipsnHeaderAcceptTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderAccept *sipsnHeaderAcceptCreate( void );

/* ./dev lists: LIST( Accepts, Accept, SipsnAccept ), see sipsn_header.h */
PB_API int64_t sipsnHeaderAcceptAcceptsLength( SipsnHeaderAccept *hdr );
PB_API void    sipsnHeaderAcceptAppendAccept( SipsnHeaderAccept **hdr, SipsnAccept *accept );
PB_API void    sipsnHeaderAcceptPrependAccept( SipsnHeaderAccept **hdr, SipsnAccept *accept );
PB_API void    sipsnHeaderAcceptInsertAccept( SipsnHeaderAccept **hdr, int64_t index, SipsnAccept *accept );
PB_API void    sipsnHeaderAcceptSetAcceptAt( SipsnHeaderAccept **hdr, int64_t index, SipsnAccept *accept );
PB_API void    sipsnHeaderAcceptDelAcceptAt( SipsnHeaderAccept **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnAccept *sipsnHeaderAcceptTryDecodeAcceptAt( SipsnHeaderAccept *hdr, int64_t index );
PB_API void         sipsnHeaderAcceptClearAccepts( SipsnHeaderAccept **hdr );

PB_END_DECLS
#endif
