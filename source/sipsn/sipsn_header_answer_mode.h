/* SipsnHeaderAnswerMode: the Answer-Mode header field, RFC 5373 section 2; who is to answer a call.
 *
 * Example: Answer-Mode: Auto;require;lang=en
 *
 *     Answer-Mode = token *( SEMI ( "require" / generic-param ) )
 *
 *     answer mode      a token such as "Manual" or "Auto", kept as written; never absent
 *     require          whether the mode is a condition; false by default
 *     generic params   every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_ANSWER_MODE_H
#define SIPSN_HEADER_ANSWER_MODE_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderAnswerMode ), see sipsn_header.h */
typedef struct SipsnHeaderAnswerMode SipsnHeaderAnswerMode;

PB_API SipsnHeaderAnswerMode *sipsnHeaderAnswerModeCreateFrom( SipsnHeaderAnswerMode *source );
PB_API SipsnHeaderAnswerMode *sipsnHeaderAnswerModeRetain( SipsnHeaderAnswerMode *obj );
PB_API void                   sipsnHeaderAnswerModeRelease( SipsnHeaderAnswerMode *obj );
PB_API PbObj                 *sipsnHeaderAnswerModeObj( SipsnHeaderAnswerMode *obj );
PB_API SipsnHeaderAnswerMode *sipsnHeaderAnswerModeFrom( PbObj *obj );
PB_API PbSort                *sipsnHeaderAnswerModeSort( void );
PB_API PbString              *sipsnHeaderAnswerModeToString( SipsnHeaderAnswerMode *obj );
PB_API int64_t                sipsnHeaderAnswerModeCompare( SipsnHeaderAnswerMode *a, SipsnHeaderAnswerMode *b );
PB_API bool                   sipsnHeaderAnswerModeEquals( SipsnHeaderAnswerMode *a, SipsnHeaderAnswerMode *b );

PB_API SipsnHeaderAnswerMode *sipsnHeaderAnswerModeTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader    *sipsnHeaderAnswerModeEncode( SipsnHeaderAnswerMode *hdr );
PB_API SipsnHeaderAnswerMode *sipsnHeaderAnswerModeTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                   sipsnHeaderAnswerModeEncodeToMessage( SipsnHeaderAnswerMode *hdr, SipsnMessage **msg );
PB_API bool                   sipsnHeaderAnswerModePresentInMessage( SipsnMessage *msg );
PB_API void                   sipsnHeaderAnswerModeRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore               *sipsnHeaderAnswerModeStore( SipsnHeaderAnswerMode *hdr );
PB_API SipsnHeaderAnswerMode *sipsnHeaderAnswerModeTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderAnswerMode *sipsnHeaderAnswerModeCreate( PbString *answerMode );
PB_API SipsnHeaderAnswerMode *sipsnHeaderAnswerModeCreateCstr( const char *answerMode, int64_t length );
PB_API SipsnHeaderAnswerMode *sipsnHeaderAnswerModeCreateWcstr( const wchar_t *answerMode, int64_t length );

PB_API PbString *sipsnHeaderAnswerModeAnswerMode( SipsnHeaderAnswerMode *hdr );
PB_API void      sipsnHeaderAnswerModeSetAnswerMode( SipsnHeaderAnswerMode **hdr, PbString *answerMode );
PB_API void      sipsnHeaderAnswerModeSetAnswerModeCstr( SipsnHeaderAnswerMode **hdr, const char *answerMode,
                                                         int64_t length );
PB_API void      sipsnHeaderAnswerModeSetAnswerModeWcstr( SipsnHeaderAnswerMode **hdr, const wchar_t *answerMode,
                                                          int64_t length );

PB_API bool sipsnHeaderAnswerModeRequire( SipsnHeaderAnswerMode *hdr );
PB_API void sipsnHeaderAnswerModeSetRequire( SipsnHeaderAnswerMode **hdr, bool require );

PB_API SipsnGenericParams *sipsnHeaderAnswerModeGenericParams( SipsnHeaderAnswerMode *hdr );
PB_API void sipsnHeaderAnswerModeSetGenericParams( SipsnHeaderAnswerMode **hdr, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
