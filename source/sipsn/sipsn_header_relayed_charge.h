/* SipsnHeaderRelayedCharge: the Relayed-Charge header field, 3GPP TS 24.229; a list of charges.
 *
 * Example: Relayed-Charge: SCSCF:icid-value=1234bc;orig-ioi=home1.net
 *
 * The field is defined by 3GPP TS 24.229 alone; the grammar here is second-hand, to be checked against that text.
 *
 * Each charge is kept as its text, and decoded when TryDecodeRelayedChargeAt asks for it. A header field without
 * lines does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_RELAYED_CHARGE_H
#define SIPSN_HEADER_RELAYED_CHARGE_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_relayed_charge.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderRelayedCharge ), see sipsn_header.h */
typedef struct SipsnHeaderRelayedCharge SipsnHeaderRelayedCharge;

PB_API SipsnHeaderRelayedCharge *sipsnHeaderRelayedChargeCreateFrom( SipsnHeaderRelayedCharge *source );
PB_API SipsnHeaderRelayedCharge *sipsnHeaderRelayedChargeRetain( SipsnHeaderRelayedCharge *obj );
PB_API void                      sipsnHeaderRelayedChargeRelease( SipsnHeaderRelayedCharge *obj );
PB_API PbObj                    *sipsnHeaderRelayedChargeObj( SipsnHeaderRelayedCharge *obj );
PB_API SipsnHeaderRelayedCharge *sipsnHeaderRelayedChargeFrom( PbObj *obj );
PB_API PbSort                   *sipsnHeaderRelayedChargeSort( void );
PB_API PbString                 *sipsnHeaderRelayedChargeToString( SipsnHeaderRelayedCharge *obj );
PB_API int64_t sipsnHeaderRelayedChargeCompare( SipsnHeaderRelayedCharge *a, SipsnHeaderRelayedCharge *b );
PB_API bool    sipsnHeaderRelayedChargeEquals( SipsnHeaderRelayedCharge *a, SipsnHeaderRelayedCharge *b );

PB_API SipsnHeaderRelayedCharge *sipsnHeaderRelayedChargeTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader       *sipsnHeaderRelayedChargeEncode( SipsnHeaderRelayedCharge *hdr );
PB_API SipsnHeaderRelayedCharge *sipsnHeaderRelayedChargeTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderRelayedChargeEncodeToMessage( SipsnHeaderRelayedCharge *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderRelayedChargePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderRelayedChargeRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderRelayedChargeStore( SipsnHeaderRelayedCharge *hdr );
PB_API SipsnHeaderRelayedCharge *sipsnHeaderRelayedChargeTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( RelayedCharges, RelayedCharge, SipsnRelayedCharge ), see sipsn_header.h */
PB_API int64_t sipsnHeaderRelayedChargeRelayedChargesLength( SipsnHeaderRelayedCharge *hdr );
PB_API void    sipsnHeaderRelayedChargeAppendRelayedCharge( SipsnHeaderRelayedCharge **hdr,
                                                            SipsnRelayedCharge        *relayedCharge );
PB_API void    sipsnHeaderRelayedChargePrependRelayedCharge( SipsnHeaderRelayedCharge **hdr,
                                                             SipsnRelayedCharge        *relayedCharge );
PB_API void    sipsnHeaderRelayedChargeInsertRelayedCharge( SipsnHeaderRelayedCharge **hdr, int64_t index,
                                                            SipsnRelayedCharge *relayedCharge );
PB_API void    sipsnHeaderRelayedChargeSetRelayedChargeAt( SipsnHeaderRelayedCharge **hdr, int64_t index,
                                                           SipsnRelayedCharge *relayedCharge );
PB_API void    sipsnHeaderRelayedChargeDelRelayedChargeAt( SipsnHeaderRelayedCharge **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderRelayedCharge *sipsnHeaderRelayedChargeCreate( void );
PB_API SipsnRelayedCharge       *sipsnHeaderRelayedChargeTryDecodeRelayedChargeAt( SipsnHeaderRelayedCharge *hdr,
                                                                                   int64_t                   index );
PB_API void                      sipsnHeaderRelayedChargeClearRelayedCharges( SipsnHeaderRelayedCharge **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
