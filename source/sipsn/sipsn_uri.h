/* SipsnUri: a SIP, SIPS or tel URI in its parts, RFC 3261 section 19.1 and RFC 3966; any other URI as scheme and rest.
 *
 * Example: sip:alice:pw@example.com:5060;transport=tcp;user=phone;method=INVITE;ttl=16;maddr=224.0.1.75;lr;gr?to=bob
 *
 *     SIP-URI  = ( "sip:" / "sips:" ) [ user [ ":" password ] "@" ] host [ ":" port ] *( ";" parameter ) [ headers ]
 *     headers  = "?" name "=" [ value ] *( "&" name "=" [ value ] )
 *     tel-URI  = "tel:" number *( ";" parameter )
 *     other    = scheme ":" [ rest ]
 *
 *     scheme            in lower case; never absent
 *     user              of sip and sips: also a telephone number with parameters of its own; optional
 *     password          of sip and sips, may be empty; optional, and only beside a user
 *     host              of sip and sips, in Unicode, or an IPv6 address in brackets; always there for these
 *     port              of sip and sips, 0 or more; -1 when absent
 *     number            of tel: global, "+1-201-555-0123", or local; as written, with "-", ".", "(" and ")"; always
 *                       there for tel
 *     transport         a token, in lower case; optional
 *     userParam         the parameter user, a token, in lower case; optional
 *     method            a token; optional
 *     ttl               0 to 255; -1 when absent
 *     maddr             a host; optional
 *     lr                a flag; "lr=on" and the like count as lr
 *     isdnSubaddress    isub; optional
 *     extension         ext, digits and separators; optional
 *     phoneContext      a domain name, or "+" and digits; optional, but beside a local number always there
 *     cic, rn           carrier and routing number (RFC 4694): "+" and digits, or hexadecimal digits; optional
 *     cicContext, rnContext    a domain name, or "+" and digits; optional
 *     enumdi, npdi      flags (RFC 4759, RFC 4694)
 *     tgrp              a trunk group (RFC 4904); optional
 *     trunkContext      a domain name, or "+" and digits; optional
 *     other params      every other parameter, "name" or "name=value" with the name in lower case, in order
 *     headers           of sip and sips: "name=value" in order; a name may occur several times
 *     rest              of other schemes: everything behind ":", as it stands; optional, never empty
 *
 * The text is an IRI as other types give it: characters beyond ASCII for escapes of UTF-8, but hosts in ASCII, so that
 * it becomes a URI by escapes alone. Both forms of a host are read.
 *
 * Texts other than `host` and `rest` are held as they stand in a URI: what cannot stand there is an escape.
 * Escapes of letters, digits and "-_.!~*'()", and of UTF-8, become characters; all others stay, in upper case (RFC 3261
 * section 19.1.2). Setters do the same with the texts they are given. sipsnUriEscape makes such a text of any text, and
 * sipsnUriTryUnescape is the way back.
 *
 * sip, sips and tel share the parameters. One with a value that its member does not take is among the other ones; a
 * member that is present takes the place of another parameter of its name when the URI is written. A parameter that
 * occurs twice is refused. URIs of other schemes may hold any member, and are written as scheme and rest alone.
 *
 * Getters return a new reference, null or -1 when the member is absent. Setters and deleters replace *uri by a private
 * copy when it is shared. A null or invalid argument aborts, and so does a member that a sip, sips or tel URI does not
 * have. The Cstr and Wcstr forms take text with its length, -1 meaning up to the terminating zero. URIs compare by
 * their members in the order above, letter by letter; sipsnUriEquivalent compares them as RFC 3261 does. */
#ifndef SIPSN_URI_H
#define SIPSN_URI_H

#include "pb/pb_vector.h"

/* URI( contact ) of SipsnContact declares what types with an IRI have; `contact` is what such an object is called:
 *
 *     SipsnUri *sipsnContactTryDecodeUri( SipsnContact *contact ); -- null when the IRI is not one that is read here
 *     void      sipsnContactSetUri( SipsnContact **contact, SipsnUri *uri );
 *
 * They are sipsnUriTryDecode of the IRI and the setter of the IRI with sipsnUriEncode. Null aborts. */

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnUri ), see pb_types.h */
typedef struct SipsnUri SipsnUri;

PB_API SipsnUri *sipsnUriCreateFrom( SipsnUri *source );
PB_API SipsnUri *sipsnUriRetain( SipsnUri *obj );
PB_API void      sipsnUriRelease( SipsnUri *obj );
PB_API PbObj    *sipsnUriObj( SipsnUri *obj );
PB_API SipsnUri *sipsnUriFrom( PbObj *obj );
PB_API PbSort   *sipsnUriSort( void );
PB_API PbString *sipsnUriToString( SipsnUri *obj );
PB_API int64_t   sipsnUriCompare( SipsnUri *a, SipsnUri *b );
PB_API bool      sipsnUriEquals( SipsnUri *a, SipsnUri *b );
/* ./dev lists: end */

/* The URI that the whole text is, null when it is none: from an IRI, as the getters of other types give it, and from a
 * URI as it stands on the wire. */
PB_API SipsnUri *sipsnUriTryDecode( PbString *iri );
PB_API SipsnUri *sipsnUriTryDecodeUri( PbString *uri );

/* The text as an IRI, which sipsnIriOk takes, and as a URI in ASCII. */
PB_API PbString *sipsnUriEncode( SipsnUri *uri );
PB_API PbString *sipsnUriEncodeUri( SipsnUri *uri );

/* Create and CreateOther make URIs of schemes other than sip, sips and tel. The number for CreateTel is a global one.
 */
PB_API SipsnUri *sipsnUriCreate( PbString *scheme );
PB_API SipsnUri *sipsnUriCreateOther( PbString *scheme, PbString *rest );
PB_API SipsnUri *sipsnUriCreateSip( PbString *host );
PB_API SipsnUri *sipsnUriCreateSipCstr( const char *host, int64_t hostLength );
PB_API SipsnUri *sipsnUriCreateSipWcstr( const wchar_t *host, int64_t hostLength );
PB_API SipsnUri *sipsnUriCreateSips( PbString *host );
PB_API SipsnUri *sipsnUriCreateSipsCstr( const char *host, int64_t hostLength );
PB_API SipsnUri *sipsnUriCreateSipsWcstr( const wchar_t *host, int64_t hostLength );
PB_API SipsnUri *sipsnUriCreateTel( PbString *number );
PB_API SipsnUri *sipsnUriCreateTelCstr( const char *number, int64_t numberLength );
PB_API SipsnUri *sipsnUriCreateTelWcstr( const wchar_t *number, int64_t numberLength );
PB_API SipsnUri *sipsnUriCreateTelLocal( PbString *number, PbString *phoneContext );

PB_API bool sipsnUriIsSip( SipsnUri *uri ); /* sip or sips */
PB_API bool sipsnUriIsTel( SipsnUri *uri );

/* Whether they address the same: RFC 3261 section 19.1.4 for sip and sips, with addresses by value (RFC 5954); RFC 3966
 * section 4 for tel; equality for other schemes. Reflexive and symmetric, but not transitive. Null aborts. */
PB_API bool sipsnUriEquivalent( SipsnUri *a, SipsnUri *b );

/* Where URIs stand, RFC 3261 section 19.1.1, table 1. */
enum
{
    SIPSN_URI_PLACE_REQUEST          = 0, /* Request-URI */
    SIPSN_URI_PLACE_TO               = 1,
    SIPSN_URI_PLACE_FROM             = 2,
    SIPSN_URI_PLACE_REGISTER_CONTACT = 3, /* Contact in REGISTER and in 3xx responses */
    SIPSN_URI_PLACE_DIALOG           = 4, /* Contact in a dialog, Record-Route, Route */
    SIPSN_URI_PLACE_OUTSIDE          = 5  /* a web page, a business card */
};

/* Whether all parts of the URI are allowed in the place. A URI of another scheme than sip and sips is allowed
 * everywhere but in SIPSN_URI_PLACE_DIALOG. Null and another place abort. */
PB_API bool sipsnUriAllowedIn( SipsnUri *uri, int64_t place );

PB_API PbString *sipsnUriScheme( SipsnUri *uri );
PB_API void      sipsnUriSetScheme( SipsnUri **uri, PbString *scheme );
PB_API void      sipsnUriSetSchemeCstr( SipsnUri **uri, const char *scheme, int64_t schemeLength );
PB_API void      sipsnUriSetSchemeWcstr( SipsnUri **uri, const wchar_t *scheme, int64_t schemeLength );

PB_API PbString *sipsnUriUser( SipsnUri *uri );
PB_API bool      sipsnUriHasUser( SipsnUri *uri );
PB_API void      sipsnUriSetUser( SipsnUri **uri, PbString *user );
PB_API void      sipsnUriSetUserCstr( SipsnUri **uri, const char *user, int64_t userLength );
PB_API void      sipsnUriSetUserWcstr( SipsnUri **uri, const wchar_t *user, int64_t userLength );
PB_API void      sipsnUriDelUser( SipsnUri **uri );

PB_API PbString *sipsnUriPassword( SipsnUri *uri );
PB_API bool      sipsnUriHasPassword( SipsnUri *uri );
PB_API void      sipsnUriSetPassword( SipsnUri **uri, PbString *password );
PB_API void      sipsnUriSetPasswordCstr( SipsnUri **uri, const char *password, int64_t passwordLength );
PB_API void      sipsnUriSetPasswordWcstr( SipsnUri **uri, const wchar_t *password, int64_t passwordLength );
PB_API void      sipsnUriDelPassword( SipsnUri **uri );

PB_API PbString *sipsnUriHost( SipsnUri *uri );
PB_API bool      sipsnUriHasHost( SipsnUri *uri );
PB_API void      sipsnUriSetHost( SipsnUri **uri, PbString *host );
PB_API void      sipsnUriSetHostCstr( SipsnUri **uri, const char *host, int64_t hostLength );
PB_API void      sipsnUriSetHostWcstr( SipsnUri **uri, const wchar_t *host, int64_t hostLength );

PB_API int64_t sipsnUriPort( SipsnUri *uri );
PB_API bool    sipsnUriHasPort( SipsnUri *uri );
PB_API void    sipsnUriSetPort( SipsnUri **uri, int64_t port );
PB_API void    sipsnUriDelPort( SipsnUri **uri );

PB_API PbString *sipsnUriNumber( SipsnUri *uri );
PB_API bool      sipsnUriHasNumber( SipsnUri *uri );
PB_API void      sipsnUriSetNumber( SipsnUri **uri, PbString *number );
PB_API void      sipsnUriSetNumberCstr( SipsnUri **uri, const char *number, int64_t numberLength );
PB_API void      sipsnUriSetNumberWcstr( SipsnUri **uri, const wchar_t *number, int64_t numberLength );

PB_API PbString *sipsnUriTransport( SipsnUri *uri );
PB_API bool      sipsnUriHasTransport( SipsnUri *uri );
PB_API void      sipsnUriSetTransport( SipsnUri **uri, PbString *transport );
PB_API void      sipsnUriSetTransportCstr( SipsnUri **uri, const char *transport, int64_t transportLength );
PB_API void      sipsnUriSetTransportWcstr( SipsnUri **uri, const wchar_t *transport, int64_t transportLength );
PB_API void      sipsnUriDelTransport( SipsnUri **uri );

PB_API PbString *sipsnUriUserParam( SipsnUri *uri );
PB_API bool      sipsnUriHasUserParam( SipsnUri *uri );
PB_API void      sipsnUriSetUserParam( SipsnUri **uri, PbString *userParam );
PB_API void      sipsnUriSetUserParamCstr( SipsnUri **uri, const char *userParam, int64_t userParamLength );
PB_API void      sipsnUriSetUserParamWcstr( SipsnUri **uri, const wchar_t *userParam, int64_t userParamLength );
PB_API void      sipsnUriDelUserParam( SipsnUri **uri );

PB_API PbString *sipsnUriMethod( SipsnUri *uri );
PB_API bool      sipsnUriHasMethod( SipsnUri *uri );
PB_API void      sipsnUriSetMethod( SipsnUri **uri, PbString *method );
PB_API void      sipsnUriSetMethodCstr( SipsnUri **uri, const char *method, int64_t methodLength );
PB_API void      sipsnUriSetMethodWcstr( SipsnUri **uri, const wchar_t *method, int64_t methodLength );
PB_API void      sipsnUriDelMethod( SipsnUri **uri );

PB_API int64_t sipsnUriTtl( SipsnUri *uri );
PB_API bool    sipsnUriHasTtl( SipsnUri *uri );
PB_API void    sipsnUriSetTtl( SipsnUri **uri, int64_t ttl );
PB_API void    sipsnUriDelTtl( SipsnUri **uri );

PB_API PbString *sipsnUriMaddr( SipsnUri *uri );
PB_API bool      sipsnUriHasMaddr( SipsnUri *uri );
PB_API void      sipsnUriSetMaddr( SipsnUri **uri, PbString *host );
PB_API void      sipsnUriSetMaddrCstr( SipsnUri **uri, const char *host, int64_t hostLength );
PB_API void      sipsnUriSetMaddrWcstr( SipsnUri **uri, const wchar_t *host, int64_t hostLength );
PB_API void      sipsnUriDelMaddr( SipsnUri **uri );

PB_API bool sipsnUriLr( SipsnUri *uri );
PB_API void sipsnUriSetLr( SipsnUri **uri, bool lr );

PB_API PbString *sipsnUriIsdnSubaddress( SipsnUri *uri );
PB_API bool      sipsnUriHasIsdnSubaddress( SipsnUri *uri );
PB_API void      sipsnUriSetIsdnSubaddress( SipsnUri **uri, PbString *isdnSubaddress );
PB_API void sipsnUriSetIsdnSubaddressCstr( SipsnUri **uri, const char *isdnSubaddress, int64_t isdnSubaddressLength );
PB_API void sipsnUriSetIsdnSubaddressWcstr( SipsnUri **uri, const wchar_t *isdnSubaddress,
                                            int64_t isdnSubaddressLength );
PB_API void sipsnUriDelIsdnSubaddress( SipsnUri **uri );

PB_API PbString *sipsnUriExtension( SipsnUri *uri );
PB_API bool      sipsnUriHasExtension( SipsnUri *uri );
PB_API void      sipsnUriSetExtension( SipsnUri **uri, PbString *extension );
PB_API void      sipsnUriSetExtensionCstr( SipsnUri **uri, const char *extension, int64_t extensionLength );
PB_API void      sipsnUriSetExtensionWcstr( SipsnUri **uri, const wchar_t *extension, int64_t extensionLength );
PB_API void      sipsnUriDelExtension( SipsnUri **uri );

PB_API PbString *sipsnUriPhoneContext( SipsnUri *uri );
PB_API bool      sipsnUriHasPhoneContext( SipsnUri *uri );
PB_API void      sipsnUriSetPhoneContext( SipsnUri **uri, PbString *context );
PB_API void      sipsnUriSetPhoneContextCstr( SipsnUri **uri, const char *context, int64_t contextLength );
PB_API void      sipsnUriSetPhoneContextWcstr( SipsnUri **uri, const wchar_t *context, int64_t contextLength );
PB_API void      sipsnUriDelPhoneContext( SipsnUri **uri );

PB_API PbString *sipsnUriCic( SipsnUri *uri );
PB_API bool      sipsnUriHasCic( SipsnUri *uri );
PB_API void      sipsnUriSetCic( SipsnUri **uri, PbString *number );
PB_API void      sipsnUriSetCicCstr( SipsnUri **uri, const char *number, int64_t numberLength );
PB_API void      sipsnUriSetCicWcstr( SipsnUri **uri, const wchar_t *number, int64_t numberLength );
PB_API void      sipsnUriDelCic( SipsnUri **uri );

PB_API PbString *sipsnUriCicContext( SipsnUri *uri );
PB_API bool      sipsnUriHasCicContext( SipsnUri *uri );
PB_API void      sipsnUriSetCicContext( SipsnUri **uri, PbString *context );
PB_API void      sipsnUriSetCicContextCstr( SipsnUri **uri, const char *context, int64_t contextLength );
PB_API void      sipsnUriSetCicContextWcstr( SipsnUri **uri, const wchar_t *context, int64_t contextLength );
PB_API void      sipsnUriDelCicContext( SipsnUri **uri );

PB_API bool sipsnUriEnumdi( SipsnUri *uri );
PB_API void sipsnUriSetEnumdi( SipsnUri **uri, bool enumdi );

PB_API bool sipsnUriNpdi( SipsnUri *uri );
PB_API void sipsnUriSetNpdi( SipsnUri **uri, bool npdi );

PB_API PbString *sipsnUriRn( SipsnUri *uri );
PB_API bool      sipsnUriHasRn( SipsnUri *uri );
PB_API void      sipsnUriSetRn( SipsnUri **uri, PbString *number );
PB_API void      sipsnUriSetRnCstr( SipsnUri **uri, const char *number, int64_t numberLength );
PB_API void      sipsnUriSetRnWcstr( SipsnUri **uri, const wchar_t *number, int64_t numberLength );
PB_API void      sipsnUriDelRn( SipsnUri **uri );

PB_API PbString *sipsnUriRnContext( SipsnUri *uri );
PB_API bool      sipsnUriHasRnContext( SipsnUri *uri );
PB_API void      sipsnUriSetRnContext( SipsnUri **uri, PbString *context );
PB_API void      sipsnUriSetRnContextCstr( SipsnUri **uri, const char *context, int64_t contextLength );
PB_API void      sipsnUriSetRnContextWcstr( SipsnUri **uri, const wchar_t *context, int64_t contextLength );
PB_API void      sipsnUriDelRnContext( SipsnUri **uri );

PB_API PbString *sipsnUriTgrp( SipsnUri *uri );
PB_API bool      sipsnUriHasTgrp( SipsnUri *uri );
PB_API void      sipsnUriSetTgrp( SipsnUri **uri, PbString *tgrp );
PB_API void      sipsnUriSetTgrpCstr( SipsnUri **uri, const char *tgrp, int64_t tgrpLength );
PB_API void      sipsnUriSetTgrpWcstr( SipsnUri **uri, const wchar_t *tgrp, int64_t tgrpLength );
PB_API void      sipsnUriDelTgrp( SipsnUri **uri );

PB_API PbString *sipsnUriTrunkContext( SipsnUri *uri );
PB_API bool      sipsnUriHasTrunkContext( SipsnUri *uri );
PB_API void      sipsnUriSetTrunkContext( SipsnUri **uri, PbString *context );
PB_API void      sipsnUriSetTrunkContextCstr( SipsnUri **uri, const char *context, int64_t contextLength );
PB_API void      sipsnUriSetTrunkContextWcstr( SipsnUri **uri, const wchar_t *context, int64_t contextLength );
PB_API void      sipsnUriDelTrunkContext( SipsnUri **uri );

PB_API PbString *sipsnUriRest( SipsnUri *uri );
PB_API bool      sipsnUriHasRest( SipsnUri *uri );
PB_API void      sipsnUriSetRest( SipsnUri **uri, PbString *rest );
PB_API void      sipsnUriSetRestCstr( SipsnUri **uri, const char *rest, int64_t restLength );
PB_API void      sipsnUriSetRestWcstr( SipsnUri **uri, const wchar_t *rest, int64_t restLength );
PB_API void      sipsnUriDelRest( SipsnUri **uri );
/* The number without its separators: "+12015550123". Null when there is none. */
PB_API PbString *sipsnUriNumberDigits( SipsnUri *uri );

PB_API bool sipsnUriNumberIsGlobal( PbString *number ); /* a valid number that begins with "+" */

/* ---- Other parameters ---- */

PB_API PbVector *sipsnUriOtherParamsVector( SipsnUri *uri );
PB_API void      sipsnUriSetOtherParamsVector( SipsnUri **uri, PbVector *vec );

/* One by its name, in any letter case; the value of an absent one and of one without a value is null. Set adds one or
 * replaces it where it stands; a null value means none. Del of an absent one is not an error. */
PB_API bool      sipsnUriHasOtherParam( SipsnUri *uri, PbString *name );
PB_API bool      sipsnUriHasOtherParamCstr( SipsnUri *uri, const char *name, int64_t nameLength );
PB_API bool      sipsnUriHasOtherParamWcstr( SipsnUri *uri, const wchar_t *name, int64_t nameLength );
PB_API PbString *sipsnUriOtherParamValue( SipsnUri *uri, PbString *name );
PB_API PbString *sipsnUriOtherParamValueCstr( SipsnUri *uri, const char *name, int64_t nameLength );
PB_API PbString *sipsnUriOtherParamValueWcstr( SipsnUri *uri, const wchar_t *name, int64_t nameLength );
PB_API void      sipsnUriSetOtherParam( SipsnUri **uri, PbString *name, PbString *value );
PB_API void      sipsnUriSetOtherParamCstr( SipsnUri **uri, const char *name, int64_t nameLength, PbString *value );
PB_API void      sipsnUriSetOtherParamWcstr( SipsnUri **uri, const wchar_t *name, int64_t nameLength, PbString *value );
PB_API void      sipsnUriDelOtherParam( SipsnUri **uri, PbString *name );
PB_API void      sipsnUriDelOtherParamCstr( SipsnUri **uri, const char *name, int64_t nameLength );
PB_API void      sipsnUriDelOtherParamWcstr( SipsnUri **uri, const wchar_t *name, int64_t nameLength );

/* ---- Headers ---- */

PB_API PbVector *sipsnUriHeadersVector( SipsnUri *uri );
PB_API void      sipsnUriSetHeadersVector( SipsnUri **uri, PbVector *vec );

/* By name, in any letter case. HeaderValue gives the first of that name, or null. Append adds one at the end; Del
 * removes all of that name, an absent one is not an error. */
PB_API bool      sipsnUriHasHeader( SipsnUri *uri, PbString *name );
PB_API bool      sipsnUriHasHeaderCstr( SipsnUri *uri, const char *name, int64_t nameLength );
PB_API bool      sipsnUriHasHeaderWcstr( SipsnUri *uri, const wchar_t *name, int64_t nameLength );
PB_API PbString *sipsnUriHeaderValue( SipsnUri *uri, PbString *name );
PB_API PbString *sipsnUriHeaderValueCstr( SipsnUri *uri, const char *name, int64_t nameLength );
PB_API PbString *sipsnUriHeaderValueWcstr( SipsnUri *uri, const wchar_t *name, int64_t nameLength );
PB_API void      sipsnUriAppendHeader( SipsnUri **uri, PbString *name, PbString *value );
PB_API void      sipsnUriAppendHeaderCstr( SipsnUri **uri, const char *name, int64_t nameLength, PbString *value );
PB_API void      sipsnUriAppendHeaderWcstr( SipsnUri **uri, const wchar_t *name, int64_t nameLength, PbString *value );
PB_API void      sipsnUriDelHeader( SipsnUri **uri, PbString *name );
PB_API void      sipsnUriDelHeaderCstr( SipsnUri **uri, const char *name, int64_t nameLength );
PB_API void      sipsnUriDelHeaderWcstr( SipsnUri **uri, const wchar_t *name, int64_t nameLength );

/* ---- What members may hold ---- */

/* Whether the whole text is valid; see above. Null aborts. */
PB_API bool sipsnUriSchemeOk( PbString *scheme );
PB_API bool sipsnUriUserOk( PbString *user ); /* not beginning with "//", which begins an authority */
PB_API bool sipsnUriPasswordOk( PbString *password );
PB_API bool sipsnUriHostOk( PbString *host );
PB_API bool sipsnUriNumberOk( PbString *number );
PB_API bool sipsnUriTokenOk( PbString *token ); /* a token without "%" and "`" */
PB_API bool sipsnUriIsdnSubaddressOk( PbString *isdnSubaddress );
PB_API bool sipsnUriExtensionOk( PbString *extension );
PB_API bool sipsnUriContextOk( PbString *context );
PB_API bool sipsnUriRoutingNumberOk( PbString *number ); /* of cic and rn */
PB_API bool sipsnUriRoutingContextOk( PbString *context );
PB_API bool sipsnUriTrunkGroupOk( PbString *tgrp );
PB_API bool sipsnUriOtherParamOk( PbString *param ); /* "name" or "name=value", and not one of the members */
PB_API bool sipsnUriHeaderOk( PbString *header );    /* "name=value" */
PB_API bool sipsnUriRestOk( PbString *rest );

/* The text with an escape for every character of ASCII that not all texts of a URI may hold, as a new reference. */
PB_API PbString *sipsnUriEscape( PbString *text );

/* The text that one with escapes stands for; null when the escapes are not of UTF-8. Null aborts. */
PB_API PbString *sipsnUriTryUnescape( PbString *text );

PB_END_DECLS
#endif
