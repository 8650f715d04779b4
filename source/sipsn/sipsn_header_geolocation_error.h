/* SipsnHeaderGeolocationError: the Geolocation-Error header field, RFC 6442 section 4.4; why a location was of no use.
 *
 * Example: Geolocation-Error: 201;code="Permission To Retransmit Location Information to a Third Party";lang=en
 *
 *     Geolocation-Error = 1*3DIGIT *( SEMI ( "code" EQUAL quoted-string / generic-param ) )
 *
 *     error code       0 to 999; never absent
 *     text             what it means, free text; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_GEOLOCATION_ERROR_H
#define SIPSN_HEADER_GEOLOCATION_ERROR_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_number.h"
#include "sipsn_quotable_string.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderGeolocationError ), see sipsn_header.h */
typedef struct SipsnHeaderGeolocationError SipsnHeaderGeolocationError;

PB_API SipsnHeaderGeolocationError *sipsnHeaderGeolocationErrorCreateFrom( SipsnHeaderGeolocationError *source );
PB_API SipsnHeaderGeolocationError *sipsnHeaderGeolocationErrorRetain( SipsnHeaderGeolocationError *obj );
PB_API void                         sipsnHeaderGeolocationErrorRelease( SipsnHeaderGeolocationError *obj );
PB_API PbObj                       *sipsnHeaderGeolocationErrorObj( SipsnHeaderGeolocationError *obj );
PB_API SipsnHeaderGeolocationError *sipsnHeaderGeolocationErrorFrom( PbObj *obj );
PB_API PbSort                      *sipsnHeaderGeolocationErrorSort( void );
PB_API PbString                    *sipsnHeaderGeolocationErrorToString( SipsnHeaderGeolocationError *obj );
PB_API int64_t sipsnHeaderGeolocationErrorCompare( SipsnHeaderGeolocationError *a, SipsnHeaderGeolocationError *b );
PB_API bool    sipsnHeaderGeolocationErrorEquals( SipsnHeaderGeolocationError *a, SipsnHeaderGeolocationError *b );

PB_API SipsnHeaderGeolocationError *sipsnHeaderGeolocationErrorTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader          *sipsnHeaderGeolocationErrorEncode( SipsnHeaderGeolocationError *hdr );
PB_API SipsnHeaderGeolocationError *sipsnHeaderGeolocationErrorTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderGeolocationErrorEncodeToMessage( SipsnHeaderGeolocationError *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderGeolocationErrorPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderGeolocationErrorRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderGeolocationErrorStore( SipsnHeaderGeolocationError *hdr );
PB_API SipsnHeaderGeolocationError *sipsnHeaderGeolocationErrorTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderGeolocationError *sipsnHeaderGeolocationErrorCreate( int64_t errorCode );

PB_API int64_t sipsnHeaderGeolocationErrorErrorCode( SipsnHeaderGeolocationError *hdr );
PB_API void    sipsnHeaderGeolocationErrorSetErrorCode( SipsnHeaderGeolocationError **hdr, int64_t errorCode );

PB_API PbString *sipsnHeaderGeolocationErrorText( SipsnHeaderGeolocationError *hdr );
PB_API bool      sipsnHeaderGeolocationErrorHasText( SipsnHeaderGeolocationError *hdr );
PB_API void      sipsnHeaderGeolocationErrorSetText( SipsnHeaderGeolocationError **hdr, PbString *text );
PB_API void      sipsnHeaderGeolocationErrorSetTextCstr( SipsnHeaderGeolocationError **hdr, const char *text,
                                                         int64_t length );
PB_API void      sipsnHeaderGeolocationErrorSetTextWcstr( SipsnHeaderGeolocationError **hdr, const wchar_t *text,
                                                          int64_t length );
PB_API void      sipsnHeaderGeolocationErrorDelText( SipsnHeaderGeolocationError **hdr );

PB_API SipsnGenericParams *sipsnHeaderGeolocationErrorGenericParams( SipsnHeaderGeolocationError *hdr );
PB_API void                sipsnHeaderGeolocationErrorSetGenericParams( SipsnHeaderGeolocationError **hdr,
                                                                        SipsnGenericParams           *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
