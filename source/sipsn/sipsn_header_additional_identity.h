/* SipsnHeaderAdditionalIdentity: the Additional-Identity header field, 3GPP TS 24.229; another identity of a user.
 *
 * Example: Additional-Identity: "Alice" <sip:alice@example.com>;lang=en
 *
 *     Additional-Identity = ( name-addr / addr-spec ) *( SEMI generic-param )
 *
 *     iri              an address, an IRI (a URI on the wire); never absent
 *     display name     free text without line ends; optional
 *     generic params   the parameters; never absent, may be empty
 *
 * The field is defined by 3GPP TS 24.229 alone; the grammar here is second-hand, to be checked against that text.
 *
 * The form that is a token alone is read as malformed. Only the last line of the header field counts; without lines
 * it does not decode. */
#ifndef SIPSN_HEADER_ADDITIONAL_IDENTITY_H
#define SIPSN_HEADER_ADDITIONAL_IDENTITY_H

#include "sipsn_display_name.h"
#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderAdditionalIdentity ), see sipsn_header.h */
typedef struct SipsnHeaderAdditionalIdentity SipsnHeaderAdditionalIdentity;

PB_API SipsnHeaderAdditionalIdentity *sipsnHeaderAdditionalIdentityCreateFrom( SipsnHeaderAdditionalIdentity *source );
PB_API SipsnHeaderAdditionalIdentity *sipsnHeaderAdditionalIdentityRetain( SipsnHeaderAdditionalIdentity *obj );
PB_API void                           sipsnHeaderAdditionalIdentityRelease( SipsnHeaderAdditionalIdentity *obj );
PB_API PbObj                         *sipsnHeaderAdditionalIdentityObj( SipsnHeaderAdditionalIdentity *obj );
PB_API SipsnHeaderAdditionalIdentity *sipsnHeaderAdditionalIdentityFrom( PbObj *obj );
PB_API PbSort                        *sipsnHeaderAdditionalIdentitySort( void );
PB_API PbString                      *sipsnHeaderAdditionalIdentityToString( SipsnHeaderAdditionalIdentity *obj );
PB_API int64_t                        sipsnHeaderAdditionalIdentityCompare( SipsnHeaderAdditionalIdentity *a,
                                                                            SipsnHeaderAdditionalIdentity *b );
PB_API bool sipsnHeaderAdditionalIdentityEquals( SipsnHeaderAdditionalIdentity *a, SipsnHeaderAdditionalIdentity *b );

PB_API SipsnHeaderAdditionalIdentity *sipsnHeaderAdditionalIdentityTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader            *sipsnHeaderAdditionalIdentityEncode( SipsnHeaderAdditionalIdentity *hdr );
PB_API SipsnHeaderAdditionalIdentity *sipsnHeaderAdditionalIdentityTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAdditionalIdentityEncodeToMessage( SipsnHeaderAdditionalIdentity *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderAdditionalIdentityPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAdditionalIdentityRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderAdditionalIdentityStore( SipsnHeaderAdditionalIdentity *hdr );
PB_API SipsnHeaderAdditionalIdentity *sipsnHeaderAdditionalIdentityTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderAdditionalIdentity *sipsnHeaderAdditionalIdentityCreate( PbString *iri );
PB_API SipsnHeaderAdditionalIdentity *sipsnHeaderAdditionalIdentityCreateCstr( const char *iri, int64_t length );
PB_API SipsnHeaderAdditionalIdentity *sipsnHeaderAdditionalIdentityCreateWcstr( const wchar_t *iri, int64_t length );

PB_API PbString *sipsnHeaderAdditionalIdentityIri( SipsnHeaderAdditionalIdentity *hdr );
PB_API void      sipsnHeaderAdditionalIdentitySetIri( SipsnHeaderAdditionalIdentity **hdr, PbString *iri );
PB_API void      sipsnHeaderAdditionalIdentitySetIriCstr( SipsnHeaderAdditionalIdentity **hdr, const char *iri,
                                                          int64_t length );
PB_API void      sipsnHeaderAdditionalIdentitySetIriWcstr( SipsnHeaderAdditionalIdentity **hdr, const wchar_t *iri,
                                                           int64_t length );

PB_API PbString *sipsnHeaderAdditionalIdentityDisplayName( SipsnHeaderAdditionalIdentity *hdr );
PB_API bool      sipsnHeaderAdditionalIdentityHasDisplayName( SipsnHeaderAdditionalIdentity *hdr );
PB_API void sipsnHeaderAdditionalIdentitySetDisplayName( SipsnHeaderAdditionalIdentity **hdr, PbString *displayName );
PB_API void sipsnHeaderAdditionalIdentitySetDisplayNameCstr( SipsnHeaderAdditionalIdentity **hdr,
                                                             const char *displayName, int64_t length );
PB_API void sipsnHeaderAdditionalIdentitySetDisplayNameWcstr( SipsnHeaderAdditionalIdentity **hdr,
                                                              const wchar_t *displayName, int64_t length );
PB_API void sipsnHeaderAdditionalIdentityDelDisplayName( SipsnHeaderAdditionalIdentity **hdr );

PB_API SipsnGenericParams *sipsnHeaderAdditionalIdentityGenericParams( SipsnHeaderAdditionalIdentity *hdr );
PB_API void                sipsnHeaderAdditionalIdentitySetGenericParams( SipsnHeaderAdditionalIdentity **hdr,
                                                                          SipsnGenericParams             *genericParams );
/* ./dev lists: end */

/* ./dev lists: URI( hdr ), see sipsn_uri.h */
PB_API SipsnUri *sipsnHeaderAdditionalIdentityTryDecodeUri( SipsnHeaderAdditionalIdentity *hdr );
PB_API void      sipsnHeaderAdditionalIdentitySetUri( SipsnHeaderAdditionalIdentity **hdr, SipsnUri *uri );
/* ./dev lists: end */

PB_END_DECLS
#endif
