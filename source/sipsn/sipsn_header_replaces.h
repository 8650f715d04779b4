/* SipsnHeaderReplaces: the Replaces header field, RFC 3891 section 6.1; the dialog that a call is to take the place of.
 *
 * Example: Replaces: 98732@sip.example.com;from-tag=r33th4x0r;to-tag=ff87ff;early-only;lang=en
 *
 *     Replaces = callid *( SEMI ( "from-tag" EQUAL token / "to-tag" EQUAL token / "early-only" / generic-param ) )
 *
 *     call id         kept as written; never absent
 *     to tag          a token, kept as written; optional
 *     from tag        a token, kept as written; optional
 *     early only      true when only a dialog not yet confirmed is meant; false by default
 *     generic params  every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. An "early-only" with a value is a
 * generic parameter. The from tag is written before the to tag; on the wire a member that is present takes the place of
 * a generic parameter of its name. Getters return a new reference, null when the member is absent. Setters and deleters
 * replace *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_REPLACES_H
#define SIPSN_HEADER_REPLACES_H

#include "sipsn_call_id.h"
#include "sipsn_generic_params.h"
#include "sipsn_header.h"
#include "sipsn_tag.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderReplaces ), see sipsn_header.h */
typedef struct SipsnHeaderReplaces SipsnHeaderReplaces;

PB_API SipsnHeaderReplaces *sipsnHeaderReplacesCreateFrom( SipsnHeaderReplaces *source );
PB_API SipsnHeaderReplaces *sipsnHeaderReplacesRetain( SipsnHeaderReplaces *obj );
PB_API void                 sipsnHeaderReplacesRelease( SipsnHeaderReplaces *obj );
PB_API PbObj               *sipsnHeaderReplacesObj( SipsnHeaderReplaces *obj );
PB_API SipsnHeaderReplaces *sipsnHeaderReplacesFrom( PbObj *obj );
PB_API PbSort              *sipsnHeaderReplacesSort( void );
PB_API PbString            *sipsnHeaderReplacesToString( SipsnHeaderReplaces *obj );
PB_API int64_t              sipsnHeaderReplacesCompare( SipsnHeaderReplaces *a, SipsnHeaderReplaces *b );
PB_API bool                 sipsnHeaderReplacesEquals( SipsnHeaderReplaces *a, SipsnHeaderReplaces *b );

PB_API SipsnHeaderReplaces *sipsnHeaderReplacesTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader  *sipsnHeaderReplacesEncode( SipsnHeaderReplaces *hdr );
PB_API SipsnHeaderReplaces *sipsnHeaderReplacesTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderReplacesEncodeToMessage( SipsnHeaderReplaces *hdr, SipsnMessage **msg );
PB_API bool                 sipsnHeaderReplacesPresentInMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderReplacesRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore             *sipsnHeaderReplacesStore( SipsnHeaderReplaces *hdr );
PB_API SipsnHeaderReplaces *sipsnHeaderReplacesTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderReplaces *sipsnHeaderReplacesCreate( PbString *callId );

PB_API PbString *sipsnHeaderReplacesCallId( SipsnHeaderReplaces *hdr );
PB_API void      sipsnHeaderReplacesSetCallId( SipsnHeaderReplaces **hdr, PbString *callId );

PB_API PbString *sipsnHeaderReplacesToTag( SipsnHeaderReplaces *hdr );
PB_API bool      sipsnHeaderReplacesHasToTag( SipsnHeaderReplaces *hdr );
PB_API void      sipsnHeaderReplacesSetToTag( SipsnHeaderReplaces **hdr, PbString *tag );
PB_API void      sipsnHeaderReplacesDelToTag( SipsnHeaderReplaces **hdr );

PB_API PbString *sipsnHeaderReplacesFromTag( SipsnHeaderReplaces *hdr );
PB_API bool      sipsnHeaderReplacesHasFromTag( SipsnHeaderReplaces *hdr );
PB_API void      sipsnHeaderReplacesSetFromTag( SipsnHeaderReplaces **hdr, PbString *tag );
PB_API void      sipsnHeaderReplacesDelFromTag( SipsnHeaderReplaces **hdr );

PB_API bool sipsnHeaderReplacesEarlyOnly( SipsnHeaderReplaces *hdr );
PB_API void sipsnHeaderReplacesSetEarlyOnly( SipsnHeaderReplaces **hdr, bool earlyOnly );

PB_API SipsnGenericParams *sipsnHeaderReplacesGenericParams( SipsnHeaderReplaces *hdr );
PB_API void sipsnHeaderReplacesSetGenericParams( SipsnHeaderReplaces **hdr, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
