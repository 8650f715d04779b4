/* SipsnVisitedNetwork: one network of P-Visited-Network-ID, RFC 7315 section 5.3.
 *
 * Example: "Visited network number 1";lang=en
 *
 *     vnetwork-spec = ( token / quoted-string ) *( SEMI generic-param )
 *
 *     network          free text, a token or a quoted string on the wire; never absent
 *     generic params   the parameters; never absent, may be empty
 *
 * A decoded parameter whose value does not fit its member is kept as a generic one. Values compare in the order
 * above. */
#ifndef SIPSN_VISITED_NETWORK_H
#define SIPSN_VISITED_NETWORK_H

#include "sipsn_member.h"
#include "sipsn_quotable_string.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnVisitedNetwork ), see pb_types.h */
typedef struct SipsnVisitedNetwork SipsnVisitedNetwork;

PB_API SipsnVisitedNetwork *sipsnVisitedNetworkCreateFrom( SipsnVisitedNetwork *source );
PB_API SipsnVisitedNetwork *sipsnVisitedNetworkRetain( SipsnVisitedNetwork *obj );
PB_API void                 sipsnVisitedNetworkRelease( SipsnVisitedNetwork *obj );
PB_API PbObj               *sipsnVisitedNetworkObj( SipsnVisitedNetwork *obj );
PB_API SipsnVisitedNetwork *sipsnVisitedNetworkFrom( PbObj *obj );
PB_API PbSort              *sipsnVisitedNetworkSort( void );
PB_API PbString            *sipsnVisitedNetworkToString( SipsnVisitedNetwork *obj );
PB_API int64_t              sipsnVisitedNetworkCompare( SipsnVisitedNetwork *a, SipsnVisitedNetwork *b );
PB_API bool                 sipsnVisitedNetworkEquals( SipsnVisitedNetwork *a, SipsnVisitedNetwork *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnVisitedNetwork *sipsnVisitedNetworkCreate( PbString *network );
PB_API SipsnVisitedNetwork *sipsnVisitedNetworkCreateCstr( const char *network, int64_t length );
PB_API SipsnVisitedNetwork *sipsnVisitedNetworkCreateWcstr( const wchar_t *network, int64_t length );

PB_API PbString *sipsnVisitedNetworkNetwork( SipsnVisitedNetwork *visited );
PB_API void      sipsnVisitedNetworkSetNetwork( SipsnVisitedNetwork **visited, PbString *network );
PB_API void sipsnVisitedNetworkSetNetworkCstr( SipsnVisitedNetwork **visited, const char *network, int64_t length );
PB_API void sipsnVisitedNetworkSetNetworkWcstr( SipsnVisitedNetwork **visited, const wchar_t *network, int64_t length );

PB_API SipsnGenericParams *sipsnVisitedNetworkGenericParams( SipsnVisitedNetwork *visited );
PB_API void sipsnVisitedNetworkSetGenericParams( SipsnVisitedNetwork **visited, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
