/* SipsnHeaderReferSub: the Refer-Sub header field, RFC 4488 section 4; whether a REFER is to make a subscription.
 *
 * Example: Refer-Sub: false;lang=en
 *
 *     Refer-Sub = ( "true" / "false" ) *( SEMI generic-param )
 *
 *     refer sub        "true" or "false"; never absent
 *     generic params   the parameters; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_REFER_SUB_H
#define SIPSN_HEADER_REFER_SUB_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_refer_sub.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderReferSub ), see sipsn_header.h */
typedef struct SipsnHeaderReferSub SipsnHeaderReferSub;

PB_API SipsnHeaderReferSub *sipsnHeaderReferSubCreateFrom( SipsnHeaderReferSub *source );
PB_API SipsnHeaderReferSub *sipsnHeaderReferSubRetain( SipsnHeaderReferSub *obj );
PB_API void                 sipsnHeaderReferSubRelease( SipsnHeaderReferSub *obj );
PB_API PbObj               *sipsnHeaderReferSubObj( SipsnHeaderReferSub *obj );
PB_API SipsnHeaderReferSub *sipsnHeaderReferSubFrom( PbObj *obj );
PB_API PbSort              *sipsnHeaderReferSubSort( void );
PB_API PbString            *sipsnHeaderReferSubToString( SipsnHeaderReferSub *obj );
PB_API int64_t              sipsnHeaderReferSubCompare( SipsnHeaderReferSub *a, SipsnHeaderReferSub *b );
PB_API bool                 sipsnHeaderReferSubEquals( SipsnHeaderReferSub *a, SipsnHeaderReferSub *b );

PB_API SipsnHeaderReferSub *sipsnHeaderReferSubTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader  *sipsnHeaderReferSubEncode( SipsnHeaderReferSub *hdr );
PB_API SipsnHeaderReferSub *sipsnHeaderReferSubTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderReferSubEncodeToMessage( SipsnHeaderReferSub *hdr, SipsnMessage **msg );
PB_API bool                 sipsnHeaderReferSubPresentInMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderReferSubRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore             *sipsnHeaderReferSubStore( SipsnHeaderReferSub *hdr );
PB_API SipsnHeaderReferSub *sipsnHeaderReferSubTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderReferSub *sipsnHeaderReferSubCreate( PbString *referSub );
PB_API SipsnHeaderReferSub *sipsnHeaderReferSubCreateCstr( const char *referSub, int64_t length );
PB_API SipsnHeaderReferSub *sipsnHeaderReferSubCreateWcstr( const wchar_t *referSub, int64_t length );

PB_API PbString *sipsnHeaderReferSubReferSub( SipsnHeaderReferSub *hdr );
PB_API void      sipsnHeaderReferSubSetReferSub( SipsnHeaderReferSub **hdr, PbString *referSub );
PB_API void      sipsnHeaderReferSubSetReferSubCstr( SipsnHeaderReferSub **hdr, const char *referSub, int64_t length );
PB_API void sipsnHeaderReferSubSetReferSubWcstr( SipsnHeaderReferSub **hdr, const wchar_t *referSub, int64_t length );

PB_API SipsnGenericParams *sipsnHeaderReferSubGenericParams( SipsnHeaderReferSub *hdr );
PB_API void sipsnHeaderReferSubSetGenericParams( SipsnHeaderReferSub **hdr, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
