/* SipsnHeaderPrivAnswerMode: the Priv-Answer-Mode header field, RFC 5373 section 2; who is to answer a call.
 *
 * Example: Priv-Answer-Mode: Auto;require;lang=en
 *
 *     Priv-Answer-Mode = token *( SEMI ( "require" / generic-param ) )
 *
 *     answer mode      a token such as "Manual" or "Auto", kept as written; never absent
 *     require          whether the mode is a condition; false by default
 *     generic params   every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_PRIV_ANSWER_MODE_H
#define SIPSN_HEADER_PRIV_ANSWER_MODE_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPrivAnswerMode ), see sipsn_header.h */
typedef struct SipsnHeaderPrivAnswerMode SipsnHeaderPrivAnswerMode;

PB_API SipsnHeaderPrivAnswerMode *sipsnHeaderPrivAnswerModeCreateFrom( SipsnHeaderPrivAnswerMode *source );
PB_API SipsnHeaderPrivAnswerMode *sipsnHeaderPrivAnswerModeRetain( SipsnHeaderPrivAnswerMode *obj );
PB_API void                       sipsnHeaderPrivAnswerModeRelease( SipsnHeaderPrivAnswerMode *obj );
PB_API PbObj                     *sipsnHeaderPrivAnswerModeObj( SipsnHeaderPrivAnswerMode *obj );
PB_API SipsnHeaderPrivAnswerMode *sipsnHeaderPrivAnswerModeFrom( PbObj *obj );
PB_API PbSort                    *sipsnHeaderPrivAnswerModeSort( void );
PB_API PbString                  *sipsnHeaderPrivAnswerModeToString( SipsnHeaderPrivAnswerMode *obj );
PB_API int64_t sipsnHeaderPrivAnswerModeCompare( SipsnHeaderPrivAnswerMode *a, SipsnHeaderPrivAnswerMode *b );
PB_API bool    sipsnHeaderPrivAnswerModeEquals( SipsnHeaderPrivAnswerMode *a, SipsnHeaderPrivAnswerMode *b );

PB_API SipsnHeaderPrivAnswerMode *sipsnHeaderPrivAnswerModeTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader        *sipsnHeaderPrivAnswerModeEncode( SipsnHeaderPrivAnswerMode *hdr );
PB_API SipsnHeaderPrivAnswerMode *sipsnHeaderPrivAnswerModeTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPrivAnswerModeEncodeToMessage( SipsnHeaderPrivAnswerMode *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPrivAnswerModePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPrivAnswerModeRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPrivAnswerModeStore( SipsnHeaderPrivAnswerMode *hdr );
PB_API SipsnHeaderPrivAnswerMode *sipsnHeaderPrivAnswerModeTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPrivAnswerMode *sipsnHeaderPrivAnswerModeCreate( PbString *answerMode );
PB_API SipsnHeaderPrivAnswerMode *sipsnHeaderPrivAnswerModeCreateCstr( const char *answerMode, int64_t length );
PB_API SipsnHeaderPrivAnswerMode *sipsnHeaderPrivAnswerModeCreateWcstr( const wchar_t *answerMode, int64_t length );

PB_API PbString *sipsnHeaderPrivAnswerModeAnswerMode( SipsnHeaderPrivAnswerMode *hdr );
PB_API void      sipsnHeaderPrivAnswerModeSetAnswerMode( SipsnHeaderPrivAnswerMode **hdr, PbString *answerMode );
PB_API void      sipsnHeaderPrivAnswerModeSetAnswerModeCstr( SipsnHeaderPrivAnswerMode **hdr, const char *answerMode,
                                                             int64_t length );
PB_API void sipsnHeaderPrivAnswerModeSetAnswerModeWcstr( SipsnHeaderPrivAnswerMode **hdr, const wchar_t *answerMode,
                                                         int64_t length );

PB_API bool sipsnHeaderPrivAnswerModeRequire( SipsnHeaderPrivAnswerMode *hdr );
PB_API void sipsnHeaderPrivAnswerModeSetRequire( SipsnHeaderPrivAnswerMode **hdr, bool require );

PB_API SipsnGenericParams *sipsnHeaderPrivAnswerModeGenericParams( SipsnHeaderPrivAnswerMode *hdr );
PB_API void                sipsnHeaderPrivAnswerModeSetGenericParams( SipsnHeaderPrivAnswerMode **hdr,
                                                                      SipsnGenericParams         *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
