/* SipsnHeaderPAnswerState: the P-Answer-State header field, RFC 4964 section 7.1; whether the called user has
 * answered.
 *
 * Example: P-Answer-State: Unconfirmed;lang=en
 *
 *     P-Answer-State = token *( SEMI generic-param )
 *
 *     answer type      a token such as "Confirmed" or "Unconfirmed", kept as written; never
 *                      absent
 *     generic params   the parameters; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_P_ANSWER_STATE_H
#define SIPSN_HEADER_P_ANSWER_STATE_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPAnswerState ), see sipsn_header.h */
typedef struct SipsnHeaderPAnswerState SipsnHeaderPAnswerState;

PB_API SipsnHeaderPAnswerState *sipsnHeaderPAnswerStateCreateFrom( SipsnHeaderPAnswerState *source );
PB_API SipsnHeaderPAnswerState *sipsnHeaderPAnswerStateRetain( SipsnHeaderPAnswerState *obj );
PB_API void                     sipsnHeaderPAnswerStateRelease( SipsnHeaderPAnswerState *obj );
PB_API PbObj                   *sipsnHeaderPAnswerStateObj( SipsnHeaderPAnswerState *obj );
PB_API SipsnHeaderPAnswerState *sipsnHeaderPAnswerStateFrom( PbObj *obj );
PB_API PbSort                  *sipsnHeaderPAnswerStateSort( void );
PB_API PbString                *sipsnHeaderPAnswerStateToString( SipsnHeaderPAnswerState *obj );
PB_API int64_t sipsnHeaderPAnswerStateCompare( SipsnHeaderPAnswerState *a, SipsnHeaderPAnswerState *b );
PB_API bool    sipsnHeaderPAnswerStateEquals( SipsnHeaderPAnswerState *a, SipsnHeaderPAnswerState *b );

PB_API SipsnHeaderPAnswerState *sipsnHeaderPAnswerStateTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader      *sipsnHeaderPAnswerStateEncode( SipsnHeaderPAnswerState *hdr );
PB_API SipsnHeaderPAnswerState *sipsnHeaderPAnswerStateTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPAnswerStateEncodeToMessage( SipsnHeaderPAnswerState *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPAnswerStatePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPAnswerStateRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPAnswerStateStore( SipsnHeaderPAnswerState *hdr );
PB_API SipsnHeaderPAnswerState *sipsnHeaderPAnswerStateTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPAnswerState *sipsnHeaderPAnswerStateCreate( PbString *answerType );
PB_API SipsnHeaderPAnswerState *sipsnHeaderPAnswerStateCreateCstr( const char *answerType, int64_t length );
PB_API SipsnHeaderPAnswerState *sipsnHeaderPAnswerStateCreateWcstr( const wchar_t *answerType, int64_t length );

PB_API PbString *sipsnHeaderPAnswerStateAnswerType( SipsnHeaderPAnswerState *hdr );
PB_API void      sipsnHeaderPAnswerStateSetAnswerType( SipsnHeaderPAnswerState **hdr, PbString *answerType );
PB_API void      sipsnHeaderPAnswerStateSetAnswerTypeCstr( SipsnHeaderPAnswerState **hdr, const char *answerType,
                                                           int64_t length );
PB_API void      sipsnHeaderPAnswerStateSetAnswerTypeWcstr( SipsnHeaderPAnswerState **hdr, const wchar_t *answerType,
                                                            int64_t length );

PB_API SipsnGenericParams *sipsnHeaderPAnswerStateGenericParams( SipsnHeaderPAnswerState *hdr );
PB_API void sipsnHeaderPAnswerStateSetGenericParams( SipsnHeaderPAnswerState **hdr, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
