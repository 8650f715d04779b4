/* SipsnChargingAddresses: one set of addresses of P-Charging-Function-Addresses, RFC 7315 section 5.5.
 *
 * Example: ccf=192.0.8.1;ecf=[5555::b99:c88:d77:e66];ccf-2=192.0.8.2;ecf-2=192.0.8.4;lang=en
 *
 *     charge-addr-params = charge-addr-param *( SEMI charge-addr-param )
 *     charge-addr-param  = ( "ccf" / "ecf" / "ccf-2" / "ecf-2" ) EQUAL gen-value / generic-param
 *
 *     ccf              the charging collection function, a host, a token or a quoted string;
 *                      optional
 *     ecf              the event charging function; optional
 *     ccf2             the second of the first; optional
 *     ecf2             the second of the other; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * A new one has no parameters, and wants some before it stands in a list. A decoded parameter whose value does not
 * fit its member is kept as a generic one. Values compare in the order above. */
#ifndef SIPSN_CHARGING_ADDRESSES_H
#define SIPSN_CHARGING_ADDRESSES_H

#include "sipsn_member.h"
#include "sipsn_quotable_string.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnChargingAddresses ), see pb_types.h */
typedef struct SipsnChargingAddresses SipsnChargingAddresses;

PB_API SipsnChargingAddresses *sipsnChargingAddressesCreateFrom( SipsnChargingAddresses *source );
PB_API SipsnChargingAddresses *sipsnChargingAddressesRetain( SipsnChargingAddresses *obj );
PB_API void                    sipsnChargingAddressesRelease( SipsnChargingAddresses *obj );
PB_API PbObj                  *sipsnChargingAddressesObj( SipsnChargingAddresses *obj );
PB_API SipsnChargingAddresses *sipsnChargingAddressesFrom( PbObj *obj );
PB_API PbSort                 *sipsnChargingAddressesSort( void );
PB_API PbString               *sipsnChargingAddressesToString( SipsnChargingAddresses *obj );
PB_API int64_t                 sipsnChargingAddressesCompare( SipsnChargingAddresses *a, SipsnChargingAddresses *b );
PB_API bool                    sipsnChargingAddressesEquals( SipsnChargingAddresses *a, SipsnChargingAddresses *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnChargingAddresses *sipsnChargingAddressesCreate( void );

PB_API PbString *sipsnChargingAddressesCcf( SipsnChargingAddresses *addresses );
PB_API bool      sipsnChargingAddressesHasCcf( SipsnChargingAddresses *addresses );
PB_API void      sipsnChargingAddressesSetCcf( SipsnChargingAddresses **addresses, PbString *ccf );
PB_API void sipsnChargingAddressesSetCcfCstr( SipsnChargingAddresses **addresses, const char *ccf, int64_t length );
PB_API void sipsnChargingAddressesSetCcfWcstr( SipsnChargingAddresses **addresses, const wchar_t *ccf, int64_t length );
PB_API void sipsnChargingAddressesDelCcf( SipsnChargingAddresses **addresses );

PB_API PbString *sipsnChargingAddressesEcf( SipsnChargingAddresses *addresses );
PB_API bool      sipsnChargingAddressesHasEcf( SipsnChargingAddresses *addresses );
PB_API void      sipsnChargingAddressesSetEcf( SipsnChargingAddresses **addresses, PbString *ecf );
PB_API void sipsnChargingAddressesSetEcfCstr( SipsnChargingAddresses **addresses, const char *ecf, int64_t length );
PB_API void sipsnChargingAddressesSetEcfWcstr( SipsnChargingAddresses **addresses, const wchar_t *ecf, int64_t length );
PB_API void sipsnChargingAddressesDelEcf( SipsnChargingAddresses **addresses );

PB_API PbString *sipsnChargingAddressesCcf2( SipsnChargingAddresses *addresses );
PB_API bool      sipsnChargingAddressesHasCcf2( SipsnChargingAddresses *addresses );
PB_API void      sipsnChargingAddressesSetCcf2( SipsnChargingAddresses **addresses, PbString *ccf2 );
PB_API void sipsnChargingAddressesSetCcf2Cstr( SipsnChargingAddresses **addresses, const char *ccf2, int64_t length );
PB_API void sipsnChargingAddressesSetCcf2Wcstr( SipsnChargingAddresses **addresses, const wchar_t *ccf2,
                                                int64_t length );
PB_API void sipsnChargingAddressesDelCcf2( SipsnChargingAddresses **addresses );

PB_API PbString *sipsnChargingAddressesEcf2( SipsnChargingAddresses *addresses );
PB_API bool      sipsnChargingAddressesHasEcf2( SipsnChargingAddresses *addresses );
PB_API void      sipsnChargingAddressesSetEcf2( SipsnChargingAddresses **addresses, PbString *ecf2 );
PB_API void sipsnChargingAddressesSetEcf2Cstr( SipsnChargingAddresses **addresses, const char *ecf2, int64_t length );
PB_API void sipsnChargingAddressesSetEcf2Wcstr( SipsnChargingAddresses **addresses, const wchar_t *ecf2,
                                                int64_t length );
PB_API void sipsnChargingAddressesDelEcf2( SipsnChargingAddresses **addresses );

PB_API SipsnGenericParams *sipsnChargingAddressesGenericParams( SipsnChargingAddresses *addresses );
PB_API void                sipsnChargingAddressesSetGenericParams( SipsnChargingAddresses **addresses,
                                                                   SipsnGenericParams      *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
