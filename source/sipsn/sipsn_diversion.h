/* SipsnDiversion: one value of a Diversion header field, RFC 5806 section 3.
 *
 * Example: "Bob" <sip:bob@example.com>;reason=user-busy;counter=1;limit=5;privacy=full;screen=yes;lang=en
 *
 *     diversion-value = ( name-addr / addr-spec ) *( SEMI ( reason / counter / limit / privacy / screen /
 *                       generic-param ) )
 *
 *     iri              the address, an IRI (a URI on the wire); never absent
 *     display name     free text without line ends; optional
 *     reason           why the call was diverted, such as "user-busy"; in lower case; optional
 *     counter          how often it has been diverted, 0 to 99; -1 when absent
 *     limit            how often it may be diverted, 0 to 99; -1 when absent
 *     privacy          such as "full", "name", "uri", "off"; in lower case; optional
 *     screen           such as "yes", "no"; in lower case; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * Reason, privacy and screen hold the content of what was a token or a quoted string. Setters take any text for them
 * but null, and store it in lower case; it is written as it is stored, never quoted. So a content that is not a token
 * makes a text that need not decode to the same value.
 *
 * Without angle brackets a ";" ends the address. They are always written. A decoded parameter whose value does not fit
 * its member is kept as a generic one. On the wire a member that is present takes the place of a generic parameter of
 * its name.
 *
 * Getters return a new reference, null or -1 when the member is absent. Setters and deleters replace *diversion by a
 * private copy when it is shared. A null or invalid argument aborts. Values compare in the order above. */
#ifndef SIPSN_DIVERSION_H
#define SIPSN_DIVERSION_H

#include "sipsn_generic_params.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnDiversion ), see pb_types.h */
typedef struct SipsnDiversion SipsnDiversion;

PB_API SipsnDiversion *sipsnDiversionCreateFrom( SipsnDiversion *source );
PB_API SipsnDiversion *sipsnDiversionRetain( SipsnDiversion *obj );
PB_API void            sipsnDiversionRelease( SipsnDiversion *obj );
PB_API PbObj          *sipsnDiversionObj( SipsnDiversion *obj );
PB_API SipsnDiversion *sipsnDiversionFrom( PbObj *obj );
PB_API PbSort         *sipsnDiversionSort( void );
PB_API PbString       *sipsnDiversionToString( SipsnDiversion *obj );
PB_API int64_t         sipsnDiversionCompare( SipsnDiversion *a, SipsnDiversion *b );
PB_API bool            sipsnDiversionEquals( SipsnDiversion *a, SipsnDiversion *b );
/* ./dev lists: end */

PB_API SipsnDiversion *sipsnDiversionCreate( PbString *iri );
PB_API SipsnDiversion *sipsnDiversionCreateWithDisplayName( PbString *iri, PbString *displayName );

PB_API PbString *sipsnDiversionIri( SipsnDiversion *diversion );
PB_API void      sipsnDiversionSetIri( SipsnDiversion **diversion, PbString *iri );

/* ./dev lists: URI( diversion ), see sipsn_uri.h */
PB_API SipsnUri *sipsnDiversionTryDecodeUri( SipsnDiversion *diversion );
PB_API void      sipsnDiversionSetUri( SipsnDiversion **diversion, SipsnUri *uri );
/* ./dev lists: end */

PB_API PbString *sipsnDiversionDisplayName( SipsnDiversion *diversion );
PB_API bool      sipsnDiversionHasDisplayName( SipsnDiversion *diversion );
PB_API void      sipsnDiversionSetDisplayName( SipsnDiversion **diversion, PbString *displayName );
PB_API void      sipsnDiversionDelDisplayName( SipsnDiversion **diversion );

PB_API PbString *sipsnDiversionReason( SipsnDiversion *diversion );
PB_API bool      sipsnDiversionHasReason( SipsnDiversion *diversion );
PB_API void      sipsnDiversionSetReason( SipsnDiversion **diversion, PbString *diversionReason );
PB_API void      sipsnDiversionDelReason( SipsnDiversion **diversion );

PB_API int64_t sipsnDiversionCounter( SipsnDiversion *diversion );
PB_API bool    sipsnDiversionHasCounter( SipsnDiversion *diversion );
PB_API void    sipsnDiversionSetCounter( SipsnDiversion **diversion, int64_t diversionCounter );
PB_API void    sipsnDiversionDelCounter( SipsnDiversion **diversion );

PB_API int64_t sipsnDiversionLimit( SipsnDiversion *diversion );
PB_API bool    sipsnDiversionHasLimit( SipsnDiversion *diversion );
PB_API void    sipsnDiversionSetLimit( SipsnDiversion **diversion, int64_t diversionLimit );
PB_API void    sipsnDiversionDelLimit( SipsnDiversion **diversion );

PB_API PbString *sipsnDiversionPrivacy( SipsnDiversion *diversion );
PB_API bool      sipsnDiversionHasPrivacy( SipsnDiversion *diversion );
PB_API void      sipsnDiversionSetPrivacy( SipsnDiversion **diversion, PbString *diversionPrivacy );
PB_API void      sipsnDiversionDelPrivacy( SipsnDiversion **diversion );

PB_API PbString *sipsnDiversionScreen( SipsnDiversion *diversion );
PB_API bool      sipsnDiversionHasScreen( SipsnDiversion *diversion );
PB_API void      sipsnDiversionSetScreen( SipsnDiversion **diversion, PbString *diversionScreen );
PB_API void      sipsnDiversionDelScreen( SipsnDiversion **diversion );

PB_API SipsnGenericParams *sipsnDiversionGenericParams( SipsnDiversion *diversion );
PB_API void sipsnDiversionSetGenericParams( SipsnDiversion **diversion, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
