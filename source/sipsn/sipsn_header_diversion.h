/* SipsnHeaderDiversion: the Diversion header field, RFC 5806; a list of diversion-params.
 *
 * Example: Diversion: "Bob" <sip:bob@example.com>;reason=user-busy;counter=1;limit=5;privacy=full;screen=yes;lang=en
 *
 * Each value is kept as its text and decoded when TryDecodeDiversionAt asks for it, which gives null when it is none. A
 * header field without lines does not decode. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_DIVERSION_H
#define SIPSN_HEADER_DIVERSION_H

#include "sipsn_diversion.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderDiversion ), see sipsn_header.h */
typedef struct SipsnHeaderDiversion SipsnHeaderDiversion;

PB_API SipsnHeaderDiversion *sipsnHeaderDiversionCreateFrom( SipsnHeaderDiversion *source );
PB_API SipsnHeaderDiversion *sipsnHeaderDiversionRetain( SipsnHeaderDiversion *obj );
PB_API void                  sipsnHeaderDiversionRelease( SipsnHeaderDiversion *obj );
PB_API PbObj                *sipsnHeaderDiversionObj( SipsnHeaderDiversion *obj );
PB_API SipsnHeaderDiversion *sipsnHeaderDiversionFrom( PbObj *obj );
PB_API PbSort               *sipsnHeaderDiversionSort( void );
PB_API PbString             *sipsnHeaderDiversionToString( SipsnHeaderDiversion *obj );
PB_API int64_t               sipsnHeaderDiversionCompare( SipsnHeaderDiversion *a, SipsnHeaderDiversion *b );
PB_API bool                  sipsnHeaderDiversionEquals( SipsnHeaderDiversion *a, SipsnHeaderDiversion *b );

PB_API SipsnHeaderDiversion *sipsnHeaderDiversionTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader   *sipsnHeaderDiversionEncode( SipsnHeaderDiversion *hdr );
PB_API SipsnHeaderDiversion *sipsnHeaderDiversionTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderDiversionEncodeToMessage( SipsnHeaderDiversion *hdr, SipsnMessage **msg );
PB_API bool                  sipsnHeaderDiversionPresentInMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderDiversionRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore              *sipsnHeaderDiversionStore( SipsnHeaderDiversion *hdr );
PB_API SipsnHeaderDiversion *sipsnHeaderDiversionTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderDiversion *sipsnHeaderDiversionCreate( void );

/* ./dev lists: LIST( Diversions, Diversion, SipsnDiversion ), see sipsn_header.h */
PB_API int64_t sipsnHeaderDiversionDiversionsLength( SipsnHeaderDiversion *hdr );
PB_API void    sipsnHeaderDiversionAppendDiversion( SipsnHeaderDiversion **hdr, SipsnDiversion *diversion );
PB_API void    sipsnHeaderDiversionPrependDiversion( SipsnHeaderDiversion **hdr, SipsnDiversion *diversion );
PB_API void sipsnHeaderDiversionInsertDiversion( SipsnHeaderDiversion **hdr, int64_t index, SipsnDiversion *diversion );
PB_API void sipsnHeaderDiversionSetDiversionAt( SipsnHeaderDiversion **hdr, int64_t index, SipsnDiversion *diversion );
PB_API void sipsnHeaderDiversionDelDiversionAt( SipsnHeaderDiversion **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnDiversion *sipsnHeaderDiversionTryDecodeDiversionAt( SipsnHeaderDiversion *hdr, int64_t index );
PB_API void            sipsnHeaderDiversionClearDiversions( SipsnHeaderDiversion **hdr );

PB_END_DECLS
#endif
