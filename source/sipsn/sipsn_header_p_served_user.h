/* SipsnHeaderPServedUser: the P-Served-User header field, RFC 8498 section 6.2; the user that is served.
 *
 * Example: P-Served-User: "Bob" <sip:user@example.com>;sescase=term;regstate=unreg;orig-cdiv;lang=en
 *
 *     P-Served-User = ( name-addr / addr-spec ) *( SEMI ( "sescase" EQUAL token / "regstate" EQUAL token /
 *                     "orig-cdiv" / generic-param ) )
 *
 *     iri              an address, an IRI (a URI on the wire); never absent
 *     display name     free text without line ends; optional
 *     sescase          the session case, "orig" or "term", a token; optional
 *     regstate         the state of registration, "reg" or "unreg", a token; optional
 *     orig cdiv        whether the session is an originating one behind a diversion; false by
 *                      default
 *     generic params   every other parameter; never absent, may be empty
 *
 * That sescase and orig-cdiv exclude each other is not enforced. Only the last line of the header field counts;
 * without lines it does not decode. */
#ifndef SIPSN_HEADER_P_SERVED_USER_H
#define SIPSN_HEADER_P_SERVED_USER_H

#include "sipsn_display_name.h"
#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"
#include "sipsn_token.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPServedUser ), see sipsn_header.h */
typedef struct SipsnHeaderPServedUser SipsnHeaderPServedUser;

PB_API SipsnHeaderPServedUser *sipsnHeaderPServedUserCreateFrom( SipsnHeaderPServedUser *source );
PB_API SipsnHeaderPServedUser *sipsnHeaderPServedUserRetain( SipsnHeaderPServedUser *obj );
PB_API void                    sipsnHeaderPServedUserRelease( SipsnHeaderPServedUser *obj );
PB_API PbObj                  *sipsnHeaderPServedUserObj( SipsnHeaderPServedUser *obj );
PB_API SipsnHeaderPServedUser *sipsnHeaderPServedUserFrom( PbObj *obj );
PB_API PbSort                 *sipsnHeaderPServedUserSort( void );
PB_API PbString               *sipsnHeaderPServedUserToString( SipsnHeaderPServedUser *obj );
PB_API int64_t                 sipsnHeaderPServedUserCompare( SipsnHeaderPServedUser *a, SipsnHeaderPServedUser *b );
PB_API bool                    sipsnHeaderPServedUserEquals( SipsnHeaderPServedUser *a, SipsnHeaderPServedUser *b );

PB_API SipsnHeaderPServedUser *sipsnHeaderPServedUserTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader     *sipsnHeaderPServedUserEncode( SipsnHeaderPServedUser *hdr );
PB_API SipsnHeaderPServedUser *sipsnHeaderPServedUserTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderPServedUserEncodeToMessage( SipsnHeaderPServedUser *hdr, SipsnMessage **msg );
PB_API bool                    sipsnHeaderPServedUserPresentInMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderPServedUserRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                *sipsnHeaderPServedUserStore( SipsnHeaderPServedUser *hdr );
PB_API SipsnHeaderPServedUser *sipsnHeaderPServedUserTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPServedUser *sipsnHeaderPServedUserCreate( PbString *iri );
PB_API SipsnHeaderPServedUser *sipsnHeaderPServedUserCreateCstr( const char *iri, int64_t length );
PB_API SipsnHeaderPServedUser *sipsnHeaderPServedUserCreateWcstr( const wchar_t *iri, int64_t length );

PB_API PbString *sipsnHeaderPServedUserIri( SipsnHeaderPServedUser *hdr );
PB_API void      sipsnHeaderPServedUserSetIri( SipsnHeaderPServedUser **hdr, PbString *iri );
PB_API void      sipsnHeaderPServedUserSetIriCstr( SipsnHeaderPServedUser **hdr, const char *iri, int64_t length );
PB_API void      sipsnHeaderPServedUserSetIriWcstr( SipsnHeaderPServedUser **hdr, const wchar_t *iri, int64_t length );

PB_API PbString *sipsnHeaderPServedUserDisplayName( SipsnHeaderPServedUser *hdr );
PB_API bool      sipsnHeaderPServedUserHasDisplayName( SipsnHeaderPServedUser *hdr );
PB_API void      sipsnHeaderPServedUserSetDisplayName( SipsnHeaderPServedUser **hdr, PbString *displayName );
PB_API void      sipsnHeaderPServedUserSetDisplayNameCstr( SipsnHeaderPServedUser **hdr, const char *displayName,
                                                           int64_t length );
PB_API void      sipsnHeaderPServedUserSetDisplayNameWcstr( SipsnHeaderPServedUser **hdr, const wchar_t *displayName,
                                                            int64_t length );
PB_API void      sipsnHeaderPServedUserDelDisplayName( SipsnHeaderPServedUser **hdr );

PB_API PbString *sipsnHeaderPServedUserSescase( SipsnHeaderPServedUser *hdr );
PB_API bool      sipsnHeaderPServedUserHasSescase( SipsnHeaderPServedUser *hdr );
PB_API void      sipsnHeaderPServedUserSetSescase( SipsnHeaderPServedUser **hdr, PbString *sescase );
PB_API void sipsnHeaderPServedUserSetSescaseCstr( SipsnHeaderPServedUser **hdr, const char *sescase, int64_t length );
PB_API void sipsnHeaderPServedUserSetSescaseWcstr( SipsnHeaderPServedUser **hdr, const wchar_t *sescase,
                                                   int64_t length );
PB_API void sipsnHeaderPServedUserDelSescase( SipsnHeaderPServedUser **hdr );

PB_API PbString *sipsnHeaderPServedUserRegstate( SipsnHeaderPServedUser *hdr );
PB_API bool      sipsnHeaderPServedUserHasRegstate( SipsnHeaderPServedUser *hdr );
PB_API void      sipsnHeaderPServedUserSetRegstate( SipsnHeaderPServedUser **hdr, PbString *regstate );
PB_API void sipsnHeaderPServedUserSetRegstateCstr( SipsnHeaderPServedUser **hdr, const char *regstate, int64_t length );
PB_API void sipsnHeaderPServedUserSetRegstateWcstr( SipsnHeaderPServedUser **hdr, const wchar_t *regstate,
                                                    int64_t length );
PB_API void sipsnHeaderPServedUserDelRegstate( SipsnHeaderPServedUser **hdr );

PB_API bool sipsnHeaderPServedUserOrigCdiv( SipsnHeaderPServedUser *hdr );
PB_API void sipsnHeaderPServedUserSetOrigCdiv( SipsnHeaderPServedUser **hdr, bool origCdiv );

PB_API SipsnGenericParams *sipsnHeaderPServedUserGenericParams( SipsnHeaderPServedUser *hdr );
PB_API void sipsnHeaderPServedUserSetGenericParams( SipsnHeaderPServedUser **hdr, SipsnGenericParams *genericParams );
/* ./dev lists: end */

/* ./dev lists: URI( hdr ), see sipsn_uri.h */
PB_API SipsnUri *sipsnHeaderPServedUserTryDecodeUri( SipsnHeaderPServedUser *hdr );
PB_API void      sipsnHeaderPServedUserSetUri( SipsnHeaderPServedUser **hdr, SipsnUri *uri );
/* ./dev lists: end */

PB_END_DECLS
#endif
