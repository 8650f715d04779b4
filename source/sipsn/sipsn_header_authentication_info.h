/* SipsnHeaderAuthenticationInfo: the Authentication-Info header field, RFC 3261 section 20.6 and RFC 7616 section 3.5;
 * how a server proves itself, and the next nonce.
 *
 * Example: Authentication-Info: nextnonce="47364c23",qop=auth,rspauth="6629fae4",cnonce="0a4f113b",nc=00000001,lang=en
 *
 *     Authentication-Info = auth-param *( COMMA auth-param )
 *
 *     nextnonce        the content of a quoted string; optional
 *     qop              a token; optional
 *     rspauth          hexadecimal digits; optional
 *     cnonce           the content of a quoted string; optional
 *     nc               0 to 4,294,967,295, eight hexadecimal digits on the wire; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_AUTHENTICATION_INFO_H
#define SIPSN_HEADER_AUTHENTICATION_INFO_H

#include "sipsn_digest_text.h"
#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_number.h"
#include "sipsn_quotable_string.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderAuthenticationInfo ), see sipsn_header.h */
typedef struct SipsnHeaderAuthenticationInfo SipsnHeaderAuthenticationInfo;

PB_API SipsnHeaderAuthenticationInfo *sipsnHeaderAuthenticationInfoCreateFrom( SipsnHeaderAuthenticationInfo *source );
PB_API SipsnHeaderAuthenticationInfo *sipsnHeaderAuthenticationInfoRetain( SipsnHeaderAuthenticationInfo *obj );
PB_API void                           sipsnHeaderAuthenticationInfoRelease( SipsnHeaderAuthenticationInfo *obj );
PB_API PbObj                         *sipsnHeaderAuthenticationInfoObj( SipsnHeaderAuthenticationInfo *obj );
PB_API SipsnHeaderAuthenticationInfo *sipsnHeaderAuthenticationInfoFrom( PbObj *obj );
PB_API PbSort                        *sipsnHeaderAuthenticationInfoSort( void );
PB_API PbString                      *sipsnHeaderAuthenticationInfoToString( SipsnHeaderAuthenticationInfo *obj );
PB_API int64_t                        sipsnHeaderAuthenticationInfoCompare( SipsnHeaderAuthenticationInfo *a,
                                                                            SipsnHeaderAuthenticationInfo *b );
PB_API bool sipsnHeaderAuthenticationInfoEquals( SipsnHeaderAuthenticationInfo *a, SipsnHeaderAuthenticationInfo *b );

PB_API SipsnHeaderAuthenticationInfo *sipsnHeaderAuthenticationInfoTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader            *sipsnHeaderAuthenticationInfoEncode( SipsnHeaderAuthenticationInfo *hdr );
PB_API SipsnHeaderAuthenticationInfo *sipsnHeaderAuthenticationInfoTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAuthenticationInfoEncodeToMessage( SipsnHeaderAuthenticationInfo *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderAuthenticationInfoPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAuthenticationInfoRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderAuthenticationInfoStore( SipsnHeaderAuthenticationInfo *hdr );
PB_API SipsnHeaderAuthenticationInfo *sipsnHeaderAuthenticationInfoTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderAuthenticationInfo *sipsnHeaderAuthenticationInfoCreate( void );

PB_API PbString *sipsnHeaderAuthenticationInfoNextnonce( SipsnHeaderAuthenticationInfo *hdr );
PB_API bool      sipsnHeaderAuthenticationInfoHasNextnonce( SipsnHeaderAuthenticationInfo *hdr );
PB_API void      sipsnHeaderAuthenticationInfoSetNextnonce( SipsnHeaderAuthenticationInfo **hdr, PbString *nextnonce );
PB_API void sipsnHeaderAuthenticationInfoSetNextnonceCstr( SipsnHeaderAuthenticationInfo **hdr, const char *nextnonce,
                                                           int64_t length );
PB_API void sipsnHeaderAuthenticationInfoSetNextnonceWcstr( SipsnHeaderAuthenticationInfo **hdr,
                                                            const wchar_t *nextnonce, int64_t length );
PB_API void sipsnHeaderAuthenticationInfoDelNextnonce( SipsnHeaderAuthenticationInfo **hdr );

PB_API PbString *sipsnHeaderAuthenticationInfoQop( SipsnHeaderAuthenticationInfo *hdr );
PB_API bool      sipsnHeaderAuthenticationInfoHasQop( SipsnHeaderAuthenticationInfo *hdr );
PB_API void      sipsnHeaderAuthenticationInfoSetQop( SipsnHeaderAuthenticationInfo **hdr, PbString *qop );
PB_API void      sipsnHeaderAuthenticationInfoSetQopCstr( SipsnHeaderAuthenticationInfo **hdr, const char *qop,
                                                          int64_t length );
PB_API void      sipsnHeaderAuthenticationInfoSetQopWcstr( SipsnHeaderAuthenticationInfo **hdr, const wchar_t *qop,
                                                           int64_t length );
PB_API void      sipsnHeaderAuthenticationInfoDelQop( SipsnHeaderAuthenticationInfo **hdr );

PB_API PbString *sipsnHeaderAuthenticationInfoRspauth( SipsnHeaderAuthenticationInfo *hdr );
PB_API bool      sipsnHeaderAuthenticationInfoHasRspauth( SipsnHeaderAuthenticationInfo *hdr );
PB_API void      sipsnHeaderAuthenticationInfoSetRspauth( SipsnHeaderAuthenticationInfo **hdr, PbString *rspauth );
PB_API void      sipsnHeaderAuthenticationInfoSetRspauthCstr( SipsnHeaderAuthenticationInfo **hdr, const char *rspauth,
                                                              int64_t length );
PB_API void sipsnHeaderAuthenticationInfoSetRspauthWcstr( SipsnHeaderAuthenticationInfo **hdr, const wchar_t *rspauth,
                                                          int64_t length );
PB_API void sipsnHeaderAuthenticationInfoDelRspauth( SipsnHeaderAuthenticationInfo **hdr );

PB_API PbString *sipsnHeaderAuthenticationInfoCnonce( SipsnHeaderAuthenticationInfo *hdr );
PB_API bool      sipsnHeaderAuthenticationInfoHasCnonce( SipsnHeaderAuthenticationInfo *hdr );
PB_API void      sipsnHeaderAuthenticationInfoSetCnonce( SipsnHeaderAuthenticationInfo **hdr, PbString *cnonce );
PB_API void      sipsnHeaderAuthenticationInfoSetCnonceCstr( SipsnHeaderAuthenticationInfo **hdr, const char *cnonce,
                                                             int64_t length );
PB_API void sipsnHeaderAuthenticationInfoSetCnonceWcstr( SipsnHeaderAuthenticationInfo **hdr, const wchar_t *cnonce,
                                                         int64_t length );
PB_API void sipsnHeaderAuthenticationInfoDelCnonce( SipsnHeaderAuthenticationInfo **hdr );

PB_API int64_t sipsnHeaderAuthenticationInfoNc( SipsnHeaderAuthenticationInfo *hdr );
PB_API bool    sipsnHeaderAuthenticationInfoHasNc( SipsnHeaderAuthenticationInfo *hdr );
PB_API void    sipsnHeaderAuthenticationInfoSetNc( SipsnHeaderAuthenticationInfo **hdr, int64_t nc );
PB_API void    sipsnHeaderAuthenticationInfoDelNc( SipsnHeaderAuthenticationInfo **hdr );

PB_API SipsnGenericParams *sipsnHeaderAuthenticationInfoGenericParams( SipsnHeaderAuthenticationInfo *hdr );
PB_API void                sipsnHeaderAuthenticationInfoSetGenericParams( SipsnHeaderAuthenticationInfo **hdr,
                                                                          SipsnGenericParams             *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
