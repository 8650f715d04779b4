/* SipsnHeaderAlertmsgError: the AlertMsg-Error header field, RFC 8876 section 5.2; why an alert was of no use.
 *
 * Example: Alertmsg-Error: 103;message="Alert payload was corrupted";lang=en
 *
 *     AlertMsg-Error = 3DIGIT *( SEMI ( "message" EQUAL quoted-string / generic-param ) )
 *
 *     error code       0 to 999; never absent
 *     text             what it means, free text; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * The text under the name "code", as it was registered by mistake, is a generic parameter. Only the last line of the
 * header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_ALERTMSG_ERROR_H
#define SIPSN_HEADER_ALERTMSG_ERROR_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_number.h"
#include "sipsn_quotable_string.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderAlertmsgError ), see sipsn_header.h */
typedef struct SipsnHeaderAlertmsgError SipsnHeaderAlertmsgError;

PB_API SipsnHeaderAlertmsgError *sipsnHeaderAlertmsgErrorCreateFrom( SipsnHeaderAlertmsgError *source );
PB_API SipsnHeaderAlertmsgError *sipsnHeaderAlertmsgErrorRetain( SipsnHeaderAlertmsgError *obj );
PB_API void                      sipsnHeaderAlertmsgErrorRelease( SipsnHeaderAlertmsgError *obj );
PB_API PbObj                    *sipsnHeaderAlertmsgErrorObj( SipsnHeaderAlertmsgError *obj );
PB_API SipsnHeaderAlertmsgError *sipsnHeaderAlertmsgErrorFrom( PbObj *obj );
PB_API PbSort                   *sipsnHeaderAlertmsgErrorSort( void );
PB_API PbString                 *sipsnHeaderAlertmsgErrorToString( SipsnHeaderAlertmsgError *obj );
PB_API int64_t sipsnHeaderAlertmsgErrorCompare( SipsnHeaderAlertmsgError *a, SipsnHeaderAlertmsgError *b );
PB_API bool    sipsnHeaderAlertmsgErrorEquals( SipsnHeaderAlertmsgError *a, SipsnHeaderAlertmsgError *b );

PB_API SipsnHeaderAlertmsgError *sipsnHeaderAlertmsgErrorTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader       *sipsnHeaderAlertmsgErrorEncode( SipsnHeaderAlertmsgError *hdr );
PB_API SipsnHeaderAlertmsgError *sipsnHeaderAlertmsgErrorTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAlertmsgErrorEncodeToMessage( SipsnHeaderAlertmsgError *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderAlertmsgErrorPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAlertmsgErrorRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderAlertmsgErrorStore( SipsnHeaderAlertmsgError *hdr );
PB_API SipsnHeaderAlertmsgError *sipsnHeaderAlertmsgErrorTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderAlertmsgError *sipsnHeaderAlertmsgErrorCreate( int64_t errorCode );

PB_API int64_t sipsnHeaderAlertmsgErrorErrorCode( SipsnHeaderAlertmsgError *hdr );
PB_API void    sipsnHeaderAlertmsgErrorSetErrorCode( SipsnHeaderAlertmsgError **hdr, int64_t errorCode );

PB_API PbString *sipsnHeaderAlertmsgErrorText( SipsnHeaderAlertmsgError *hdr );
PB_API bool      sipsnHeaderAlertmsgErrorHasText( SipsnHeaderAlertmsgError *hdr );
PB_API void      sipsnHeaderAlertmsgErrorSetText( SipsnHeaderAlertmsgError **hdr, PbString *text );
PB_API void sipsnHeaderAlertmsgErrorSetTextCstr( SipsnHeaderAlertmsgError **hdr, const char *text, int64_t length );
PB_API void sipsnHeaderAlertmsgErrorSetTextWcstr( SipsnHeaderAlertmsgError **hdr, const wchar_t *text, int64_t length );
PB_API void sipsnHeaderAlertmsgErrorDelText( SipsnHeaderAlertmsgError **hdr );

PB_API SipsnGenericParams *sipsnHeaderAlertmsgErrorGenericParams( SipsnHeaderAlertmsgError *hdr );
PB_API void                sipsnHeaderAlertmsgErrorSetGenericParams( SipsnHeaderAlertmsgError **hdr,
                                                                     SipsnGenericParams        *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
