/* SipsnVia: one via-parm of a Via header field, RFC 3261 section 20.42, with the rport of RFC 3581.
 *
 * Example: SIP/2.0/UDP 192.0.2.10:5060;ttl=16;maddr=224.0.1.75;received=198.51.100.7;rport;branch=z9hG4bK77as;keep
 *
 *     via-parm = protocol-name SLASH protocol-version SLASH transport LWS host [ COLON port ] *( SEMI via-param )
 *
 *     version          protocol name and version; never absent
 *     transport        a token, in lower case (in upper case on the wire); never absent
 *     host             may be Unicode, an IPv4 address or a bracketed IPv6 address; never absent
 *     port             0 or more; -1 when absent
 *     ttl              0 to 255; -1 when absent
 *     maddr            a host; optional
 *     received         an IPv4 or IPv6 address; optional
 *     rport            absent, empty (";rport") or a port
 *     branch           a token; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * A decoded ";rport=5060" is kept as a generic parameter: only the empty form becomes the member. On the wire a member
 * that is present takes the place of a generic parameter of its name.
 *
 * Getters return a new reference, null or -1 when the member is absent. Setters and deleters replace *via by a private
 * copy when it is shared. A null or invalid argument aborts. Values compare in the order above, rport left out. */
#ifndef SIPSN_VIA_H
#define SIPSN_VIA_H

#include "sipsn_generic_params.h"
#include "sipsn_version.h"

#include "in/in_address.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnVia ), see pb_types.h */
typedef struct SipsnVia SipsnVia;

PB_API SipsnVia *sipsnViaCreateFrom( SipsnVia *source );
PB_API SipsnVia *sipsnViaRetain( SipsnVia *obj );
PB_API void      sipsnViaRelease( SipsnVia *obj );
PB_API PbObj    *sipsnViaObj( SipsnVia *obj );
PB_API SipsnVia *sipsnViaFrom( PbObj *obj );
PB_API PbSort   *sipsnViaSort( void );
PB_API PbString *sipsnViaToString( SipsnVia *obj );
PB_API int64_t   sipsnViaCompare( SipsnVia *a, SipsnVia *b );
PB_API bool      sipsnViaEquals( SipsnVia *a, SipsnVia *b );
/* ./dev lists: end */

PB_API SipsnVia *sipsnViaCreate( SipsnVersion *version, PbString *transport, PbString *host );
PB_API SipsnVia *sipsnViaCreateWithPort( SipsnVersion *version, PbString *transport, PbString *host, int64_t port );
PB_API SipsnVia *sipsnViaCreateDummy( SipsnVersion *version ); /* transport "udp", host "localhost" */

PB_API SipsnVersion *sipsnViaVersion( SipsnVia *via );
PB_API void          sipsnViaSetVersion( SipsnVia **via, SipsnVersion *version );

PB_API PbString *sipsnViaTransport( SipsnVia *via );
PB_API void      sipsnViaSetTransport( SipsnVia **via, PbString *transport );

PB_API PbString *sipsnViaHost( SipsnVia *via );
PB_API void      sipsnViaSetHost( SipsnVia **via, PbString *host );

PB_API int64_t sipsnViaPort( SipsnVia *via );
PB_API bool    sipsnViaHasPort( SipsnVia *via );
PB_API void    sipsnViaSetPort( SipsnVia **via, int64_t port );
PB_API void    sipsnViaDelPort( SipsnVia **via );

PB_API int64_t sipsnViaTtl( SipsnVia *via );
PB_API bool    sipsnViaHasTtl( SipsnVia *via );
PB_API void    sipsnViaSetTtl( SipsnVia **via, int64_t ttl );
PB_API void    sipsnViaDelTtl( SipsnVia **via );

PB_API PbString *sipsnViaMaddr( SipsnVia *via );
PB_API bool      sipsnViaHasMaddr( SipsnVia *via );
PB_API void      sipsnViaSetMaddr( SipsnVia **via, PbString *host );
PB_API void      sipsnViaDelMaddr( SipsnVia **via );

PB_API InAddress *sipsnViaReceived( SipsnVia *via );
PB_API bool       sipsnViaHasReceived( SipsnVia *via );
PB_API void       sipsnViaSetReceived( SipsnVia **via, InAddress *received );
PB_API void       sipsnViaDelReceived( SipsnVia **via );

/* The empty and the numeric form exclude each other: setting one deletes the other. */
PB_API bool    sipsnViaHasRport( SipsnVia *via ); /* in either form */
PB_API bool    sipsnViaHasRportEmpty( SipsnVia *via );
PB_API void    sipsnViaSetRportEmpty( SipsnVia **via );
PB_API int64_t sipsnViaRportNumeric( SipsnVia *via );
PB_API bool    sipsnViaHasRportNumeric( SipsnVia *via );
PB_API void    sipsnViaSetRportNumeric( SipsnVia **via, int64_t rport );
PB_API void    sipsnViaDelRport( SipsnVia **via );

PB_API PbString *sipsnViaBranch( SipsnVia *via );
PB_API bool      sipsnViaHasBranch( SipsnVia *via );
PB_API void      sipsnViaSetBranch( SipsnVia **via, PbString *branch );
PB_API void      sipsnViaDelBranch( SipsnVia **via );

PB_API SipsnGenericParams *sipsnViaGenericParams( SipsnVia *via );
PB_API void                sipsnViaSetGenericParams( SipsnVia **via, SipsnGenericParams *params );

PB_END_DECLS
#endif
