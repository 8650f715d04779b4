/* SipsnHeaderTargetDialog: the Target-Dialog header field, RFC 4538 section 7; the dialog that a request is about.
 *
 * Example: Target-Dialog: fa77as7dad8-sd98ajzz@host.example.com;local-tag=kkaz-;remote-tag=6544;lang=en
 *
 *     Target-Dialog = callid *( SEMI ( "local-tag" EQUAL token / "remote-tag" EQUAL token / generic-param ) )
 *
 *     call id          kept as written; never absent
 *     local tag        a token, kept as written; optional
 *     remote tag       a token, kept as written; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * A receiver ignores one without both tags. Only the last line of the header field counts; without lines it does not
 * decode. */
#ifndef SIPSN_HEADER_TARGET_DIALOG_H
#define SIPSN_HEADER_TARGET_DIALOG_H

#include "sipsn_call_id.h"
#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_tag.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderTargetDialog ), see sipsn_header.h */
typedef struct SipsnHeaderTargetDialog SipsnHeaderTargetDialog;

PB_API SipsnHeaderTargetDialog *sipsnHeaderTargetDialogCreateFrom( SipsnHeaderTargetDialog *source );
PB_API SipsnHeaderTargetDialog *sipsnHeaderTargetDialogRetain( SipsnHeaderTargetDialog *obj );
PB_API void                     sipsnHeaderTargetDialogRelease( SipsnHeaderTargetDialog *obj );
PB_API PbObj                   *sipsnHeaderTargetDialogObj( SipsnHeaderTargetDialog *obj );
PB_API SipsnHeaderTargetDialog *sipsnHeaderTargetDialogFrom( PbObj *obj );
PB_API PbSort                  *sipsnHeaderTargetDialogSort( void );
PB_API PbString                *sipsnHeaderTargetDialogToString( SipsnHeaderTargetDialog *obj );
PB_API int64_t sipsnHeaderTargetDialogCompare( SipsnHeaderTargetDialog *a, SipsnHeaderTargetDialog *b );
PB_API bool    sipsnHeaderTargetDialogEquals( SipsnHeaderTargetDialog *a, SipsnHeaderTargetDialog *b );

PB_API SipsnHeaderTargetDialog *sipsnHeaderTargetDialogTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader      *sipsnHeaderTargetDialogEncode( SipsnHeaderTargetDialog *hdr );
PB_API SipsnHeaderTargetDialog *sipsnHeaderTargetDialogTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderTargetDialogEncodeToMessage( SipsnHeaderTargetDialog *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderTargetDialogPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderTargetDialogRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderTargetDialogStore( SipsnHeaderTargetDialog *hdr );
PB_API SipsnHeaderTargetDialog *sipsnHeaderTargetDialogTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderTargetDialog *sipsnHeaderTargetDialogCreate( PbString *callId );
PB_API SipsnHeaderTargetDialog *sipsnHeaderTargetDialogCreateCstr( const char *callId, int64_t length );
PB_API SipsnHeaderTargetDialog *sipsnHeaderTargetDialogCreateWcstr( const wchar_t *callId, int64_t length );

PB_API PbString *sipsnHeaderTargetDialogCallId( SipsnHeaderTargetDialog *hdr );
PB_API void      sipsnHeaderTargetDialogSetCallId( SipsnHeaderTargetDialog **hdr, PbString *callId );
PB_API void sipsnHeaderTargetDialogSetCallIdCstr( SipsnHeaderTargetDialog **hdr, const char *callId, int64_t length );
PB_API void sipsnHeaderTargetDialogSetCallIdWcstr( SipsnHeaderTargetDialog **hdr, const wchar_t *callId,
                                                   int64_t length );

PB_API PbString *sipsnHeaderTargetDialogLocalTag( SipsnHeaderTargetDialog *hdr );
PB_API bool      sipsnHeaderTargetDialogHasLocalTag( SipsnHeaderTargetDialog *hdr );
PB_API void      sipsnHeaderTargetDialogSetLocalTag( SipsnHeaderTargetDialog **hdr, PbString *localTag );
PB_API void      sipsnHeaderTargetDialogSetLocalTagCstr( SipsnHeaderTargetDialog **hdr, const char *localTag,
                                                         int64_t length );
PB_API void      sipsnHeaderTargetDialogSetLocalTagWcstr( SipsnHeaderTargetDialog **hdr, const wchar_t *localTag,
                                                          int64_t length );
PB_API void      sipsnHeaderTargetDialogDelLocalTag( SipsnHeaderTargetDialog **hdr );

PB_API PbString *sipsnHeaderTargetDialogRemoteTag( SipsnHeaderTargetDialog *hdr );
PB_API bool      sipsnHeaderTargetDialogHasRemoteTag( SipsnHeaderTargetDialog *hdr );
PB_API void      sipsnHeaderTargetDialogSetRemoteTag( SipsnHeaderTargetDialog **hdr, PbString *remoteTag );
PB_API void      sipsnHeaderTargetDialogSetRemoteTagCstr( SipsnHeaderTargetDialog **hdr, const char *remoteTag,
                                                          int64_t length );
PB_API void      sipsnHeaderTargetDialogSetRemoteTagWcstr( SipsnHeaderTargetDialog **hdr, const wchar_t *remoteTag,
                                                           int64_t length );
PB_API void      sipsnHeaderTargetDialogDelRemoteTag( SipsnHeaderTargetDialog **hdr );

PB_API SipsnGenericParams *sipsnHeaderTargetDialogGenericParams( SipsnHeaderTargetDialog *hdr );
PB_API void sipsnHeaderTargetDialogSetGenericParams( SipsnHeaderTargetDialog **hdr, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
