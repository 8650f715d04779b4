/* SipsnHeaderPChargingFunctionAddresses: the P-Charging-Function-Addresses header field, RFC 7315 section 5.5; a list
 * of address sets.
 *
 * Example: P-Charging-Function-Addresses: ccf=192.0.8.1;ecf=192.0.8.3
 *
 * Each address set is kept as its text, and decoded when TryDecodeAddressAt asks for it. A header field without
 * lines does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_P_CHARGING_FUNCTION_ADDRESSES_H
#define SIPSN_HEADER_P_CHARGING_FUNCTION_ADDRESSES_H

#include "sipsn_charging_addresses.h"
#include "sipsn_header.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPChargingFunctionAddresses ), see sipsn_header.h */
typedef struct SipsnHeaderPChargingFunctionAddresses SipsnHeaderPChargingFunctionAddresses;

PB_API SipsnHeaderPChargingFunctionAddresses *sipsnHeaderPChargingFunctionAddressesCreateFrom(
    SipsnHeaderPChargingFunctionAddresses *source );
PB_API SipsnHeaderPChargingFunctionAddresses *sipsnHeaderPChargingFunctionAddressesRetain(
    SipsnHeaderPChargingFunctionAddresses *obj );
PB_API void   sipsnHeaderPChargingFunctionAddressesRelease( SipsnHeaderPChargingFunctionAddresses *obj );
PB_API PbObj *sipsnHeaderPChargingFunctionAddressesObj( SipsnHeaderPChargingFunctionAddresses *obj );
PB_API SipsnHeaderPChargingFunctionAddresses *sipsnHeaderPChargingFunctionAddressesFrom( PbObj *obj );
PB_API PbSort                                *sipsnHeaderPChargingFunctionAddressesSort( void );
PB_API PbString *sipsnHeaderPChargingFunctionAddressesToString( SipsnHeaderPChargingFunctionAddresses *obj );
PB_API int64_t   sipsnHeaderPChargingFunctionAddressesCompare( SipsnHeaderPChargingFunctionAddresses *a,
                                                               SipsnHeaderPChargingFunctionAddresses *b );
PB_API bool      sipsnHeaderPChargingFunctionAddressesEquals( SipsnHeaderPChargingFunctionAddresses *a,
                                                              SipsnHeaderPChargingFunctionAddresses *b );

PB_API SipsnHeaderPChargingFunctionAddresses *sipsnHeaderPChargingFunctionAddressesTryDecode(
    SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderPChargingFunctionAddressesEncode( SipsnHeaderPChargingFunctionAddresses *hdr );
PB_API SipsnHeaderPChargingFunctionAddresses *sipsnHeaderPChargingFunctionAddressesTryDecodeFromMessage(
    SipsnMessage *msg );
PB_API void     sipsnHeaderPChargingFunctionAddressesEncodeToMessage( SipsnHeaderPChargingFunctionAddresses *hdr,
                                                                      SipsnMessage                         **msg );
PB_API bool     sipsnHeaderPChargingFunctionAddressesPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPChargingFunctionAddressesRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPChargingFunctionAddressesStore( SipsnHeaderPChargingFunctionAddresses *hdr );
PB_API SipsnHeaderPChargingFunctionAddresses *sipsnHeaderPChargingFunctionAddressesTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Addresses, Address, SipsnChargingAddresses ), see sipsn_header.h */
PB_API int64_t sipsnHeaderPChargingFunctionAddressesAddressesLength( SipsnHeaderPChargingFunctionAddresses *hdr );
PB_API void    sipsnHeaderPChargingFunctionAddressesAppendAddress( SipsnHeaderPChargingFunctionAddresses **hdr,
                                                                   SipsnChargingAddresses *chargingAddresses );
PB_API void    sipsnHeaderPChargingFunctionAddressesPrependAddress( SipsnHeaderPChargingFunctionAddresses **hdr,
                                                                    SipsnChargingAddresses *chargingAddresses );
PB_API void    sipsnHeaderPChargingFunctionAddressesInsertAddress( SipsnHeaderPChargingFunctionAddresses **hdr,
                                                                   int64_t                                 index,
                                                                   SipsnChargingAddresses *chargingAddresses );
PB_API void    sipsnHeaderPChargingFunctionAddressesSetAddressAt( SipsnHeaderPChargingFunctionAddresses **hdr,
                                                                  int64_t                                 index,
                                                                  SipsnChargingAddresses *chargingAddresses );
PB_API void    sipsnHeaderPChargingFunctionAddressesDelAddressAt( SipsnHeaderPChargingFunctionAddresses **hdr,
                                                                  int64_t                                 index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPChargingFunctionAddresses *sipsnHeaderPChargingFunctionAddressesCreate( void );
PB_API SipsnChargingAddresses                *sipsnHeaderPChargingFunctionAddressesTryDecodeAddressAt(
                   SipsnHeaderPChargingFunctionAddresses *hdr, int64_t index );
PB_API void sipsnHeaderPChargingFunctionAddressesClearAddresses( SipsnHeaderPChargingFunctionAddresses **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
