/* SipsnHeaderJoin: the Join header field, RFC 3911 section 7.1; the dialog that a call is to join.
 *
 * Example: Join: 98732@sip.example.com;to-tag=24796;from-tag=0;lang=en
 *
 *     Join = callid *( SEMI ( "to-tag" EQUAL token / "from-tag" EQUAL token / generic-param ) )
 *
 *     call id         kept as written; never absent
 *     to tag          a token, kept as written; optional
 *     from tag        a token, kept as written; optional
 *     generic params  every other parameter; never absent, may be empty
 *
 * The tag "0" also matches a dialog without that tag. Only the last line of the header field counts; without lines it
 * does not decode. */
#ifndef SIPSN_HEADER_JOIN_H
#define SIPSN_HEADER_JOIN_H

#include "sipsn_call_id.h"
#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_tag.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderJoin ), see sipsn_header.h */
typedef struct SipsnHeaderJoin SipsnHeaderJoin;

PB_API SipsnHeaderJoin *sipsnHeaderJoinCreateFrom( SipsnHeaderJoin *source );
PB_API SipsnHeaderJoin *sipsnHeaderJoinRetain( SipsnHeaderJoin *obj );
PB_API void             sipsnHeaderJoinRelease( SipsnHeaderJoin *obj );
PB_API PbObj           *sipsnHeaderJoinObj( SipsnHeaderJoin *obj );
PB_API SipsnHeaderJoin *sipsnHeaderJoinFrom( PbObj *obj );
PB_API PbSort          *sipsnHeaderJoinSort( void );
PB_API PbString        *sipsnHeaderJoinToString( SipsnHeaderJoin *obj );
PB_API int64_t          sipsnHeaderJoinCompare( SipsnHeaderJoin *a, SipsnHeaderJoin *b );
PB_API bool             sipsnHeaderJoinEquals( SipsnHeaderJoin *a, SipsnHeaderJoin *b );

PB_API SipsnHeaderJoin    *sipsnHeaderJoinTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderJoinEncode( SipsnHeaderJoin *hdr );
PB_API SipsnHeaderJoin    *sipsnHeaderJoinTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderJoinEncodeToMessage( SipsnHeaderJoin *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderJoinPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderJoinRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderJoinStore( SipsnHeaderJoin *hdr );
PB_API SipsnHeaderJoin    *sipsnHeaderJoinTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderJoin *sipsnHeaderJoinCreate( PbString *callId );
PB_API SipsnHeaderJoin *sipsnHeaderJoinCreateCstr( const char *callId, int64_t length );
PB_API SipsnHeaderJoin *sipsnHeaderJoinCreateWcstr( const wchar_t *callId, int64_t length );

PB_API PbString *sipsnHeaderJoinCallId( SipsnHeaderJoin *hdr );
PB_API void      sipsnHeaderJoinSetCallId( SipsnHeaderJoin **hdr, PbString *callId );
PB_API void      sipsnHeaderJoinSetCallIdCstr( SipsnHeaderJoin **hdr, const char *callId, int64_t length );
PB_API void      sipsnHeaderJoinSetCallIdWcstr( SipsnHeaderJoin **hdr, const wchar_t *callId, int64_t length );

PB_API PbString *sipsnHeaderJoinToTag( SipsnHeaderJoin *hdr );
PB_API bool      sipsnHeaderJoinHasToTag( SipsnHeaderJoin *hdr );
PB_API void      sipsnHeaderJoinSetToTag( SipsnHeaderJoin **hdr, PbString *toTag );
PB_API void      sipsnHeaderJoinSetToTagCstr( SipsnHeaderJoin **hdr, const char *toTag, int64_t length );
PB_API void      sipsnHeaderJoinSetToTagWcstr( SipsnHeaderJoin **hdr, const wchar_t *toTag, int64_t length );
PB_API void      sipsnHeaderJoinDelToTag( SipsnHeaderJoin **hdr );

PB_API PbString *sipsnHeaderJoinFromTag( SipsnHeaderJoin *hdr );
PB_API bool      sipsnHeaderJoinHasFromTag( SipsnHeaderJoin *hdr );
PB_API void      sipsnHeaderJoinSetFromTag( SipsnHeaderJoin **hdr, PbString *fromTag );
PB_API void      sipsnHeaderJoinSetFromTagCstr( SipsnHeaderJoin **hdr, const char *fromTag, int64_t length );
PB_API void      sipsnHeaderJoinSetFromTagWcstr( SipsnHeaderJoin **hdr, const wchar_t *fromTag, int64_t length );
PB_API void      sipsnHeaderJoinDelFromTag( SipsnHeaderJoin **hdr );

PB_API SipsnGenericParams *sipsnHeaderJoinGenericParams( SipsnHeaderJoin *hdr );
PB_API void                sipsnHeaderJoinSetGenericParams( SipsnHeaderJoin **hdr, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
