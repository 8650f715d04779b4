/* SipsnHeaderPDcsRedirect: the P-DCS-Redirect header field, RFC 5503 section 8.1; who redirected a call that is
 * intercepted.
 *
 * Example: P-Dcs-Redirect: "sip:a@example.com";redirector-uri="sip:c@example.com";count=2;lang=en
 *
 *     P-DCS-Redirect = DQUOTE URI DQUOTE *( SEMI ( "redirector-uri" EQUAL DQUOTE URI DQUOTE / "count" EQUAL 1*DIGIT /
 *                      generic-param ) )
 *
 *     called id        who was called, an IRI, quoted on the wire; never absent
 *     redirector uri   who redirected it, the same; optional
 *     count            how often, 0 or more; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_P_DCS_REDIRECT_H
#define SIPSN_HEADER_P_DCS_REDIRECT_H

#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"
#include "sipsn_number.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPDcsRedirect ), see sipsn_header.h */
typedef struct SipsnHeaderPDcsRedirect SipsnHeaderPDcsRedirect;

PB_API SipsnHeaderPDcsRedirect *sipsnHeaderPDcsRedirectCreateFrom( SipsnHeaderPDcsRedirect *source );
PB_API SipsnHeaderPDcsRedirect *sipsnHeaderPDcsRedirectRetain( SipsnHeaderPDcsRedirect *obj );
PB_API void                     sipsnHeaderPDcsRedirectRelease( SipsnHeaderPDcsRedirect *obj );
PB_API PbObj                   *sipsnHeaderPDcsRedirectObj( SipsnHeaderPDcsRedirect *obj );
PB_API SipsnHeaderPDcsRedirect *sipsnHeaderPDcsRedirectFrom( PbObj *obj );
PB_API PbSort                  *sipsnHeaderPDcsRedirectSort( void );
PB_API PbString                *sipsnHeaderPDcsRedirectToString( SipsnHeaderPDcsRedirect *obj );
PB_API int64_t sipsnHeaderPDcsRedirectCompare( SipsnHeaderPDcsRedirect *a, SipsnHeaderPDcsRedirect *b );
PB_API bool    sipsnHeaderPDcsRedirectEquals( SipsnHeaderPDcsRedirect *a, SipsnHeaderPDcsRedirect *b );

PB_API SipsnHeaderPDcsRedirect *sipsnHeaderPDcsRedirectTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader      *sipsnHeaderPDcsRedirectEncode( SipsnHeaderPDcsRedirect *hdr );
PB_API SipsnHeaderPDcsRedirect *sipsnHeaderPDcsRedirectTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPDcsRedirectEncodeToMessage( SipsnHeaderPDcsRedirect *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPDcsRedirectPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPDcsRedirectRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPDcsRedirectStore( SipsnHeaderPDcsRedirect *hdr );
PB_API SipsnHeaderPDcsRedirect *sipsnHeaderPDcsRedirectTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPDcsRedirect *sipsnHeaderPDcsRedirectCreate( PbString *calledId );
PB_API SipsnHeaderPDcsRedirect *sipsnHeaderPDcsRedirectCreateCstr( const char *calledId, int64_t length );
PB_API SipsnHeaderPDcsRedirect *sipsnHeaderPDcsRedirectCreateWcstr( const wchar_t *calledId, int64_t length );

PB_API PbString *sipsnHeaderPDcsRedirectCalledId( SipsnHeaderPDcsRedirect *hdr );
PB_API void      sipsnHeaderPDcsRedirectSetCalledId( SipsnHeaderPDcsRedirect **hdr, PbString *calledId );
PB_API void      sipsnHeaderPDcsRedirectSetCalledIdCstr( SipsnHeaderPDcsRedirect **hdr, const char *calledId,
                                                         int64_t length );
PB_API void      sipsnHeaderPDcsRedirectSetCalledIdWcstr( SipsnHeaderPDcsRedirect **hdr, const wchar_t *calledId,
                                                          int64_t length );

PB_API PbString *sipsnHeaderPDcsRedirectRedirectorUri( SipsnHeaderPDcsRedirect *hdr );
PB_API bool      sipsnHeaderPDcsRedirectHasRedirectorUri( SipsnHeaderPDcsRedirect *hdr );
PB_API void      sipsnHeaderPDcsRedirectSetRedirectorUri( SipsnHeaderPDcsRedirect **hdr, PbString *redirectorUri );
PB_API void      sipsnHeaderPDcsRedirectSetRedirectorUriCstr( SipsnHeaderPDcsRedirect **hdr, const char *redirectorUri,
                                                              int64_t length );
PB_API void sipsnHeaderPDcsRedirectSetRedirectorUriWcstr( SipsnHeaderPDcsRedirect **hdr, const wchar_t *redirectorUri,
                                                          int64_t length );
PB_API void sipsnHeaderPDcsRedirectDelRedirectorUri( SipsnHeaderPDcsRedirect **hdr );

PB_API int64_t sipsnHeaderPDcsRedirectCount( SipsnHeaderPDcsRedirect *hdr );
PB_API bool    sipsnHeaderPDcsRedirectHasCount( SipsnHeaderPDcsRedirect *hdr );
PB_API void    sipsnHeaderPDcsRedirectSetCount( SipsnHeaderPDcsRedirect **hdr, int64_t count );
PB_API void    sipsnHeaderPDcsRedirectDelCount( SipsnHeaderPDcsRedirect **hdr );

PB_API SipsnGenericParams *sipsnHeaderPDcsRedirectGenericParams( SipsnHeaderPDcsRedirect *hdr );
PB_API void sipsnHeaderPDcsRedirectSetGenericParams( SipsnHeaderPDcsRedirect **hdr, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
