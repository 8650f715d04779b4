/* SipsnRelayedCharge: one item of Relayed-Charge, 3GPP TS 24.229.
 *
 * Example: SCSCF:icid-value=1234bc;orig-ioi=home1.net;term-ioi=home2.net;lang=en
 *
 *     relayed-charge-item = token HCOLON charge-param *( SEMI charge-param )
 *
 *     element          the element, a token such as "SCSCF", kept as written; never absent
 *     icid value       the charging identity, a token, a host or a quoted string; never absent
 *     orig ioi         the originating network; optional
 *     term ioi         the terminating network; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * The grammar is second-hand, to be checked against the text of 3GPP. A decoded parameter whose value does not fit
 * its member is kept as a generic one. Values compare in the order above. */
#ifndef SIPSN_RELAYED_CHARGE_H
#define SIPSN_RELAYED_CHARGE_H

#include "sipsn_member.h"
#include "sipsn_quotable_string.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnRelayedCharge ), see pb_types.h */
typedef struct SipsnRelayedCharge SipsnRelayedCharge;

PB_API SipsnRelayedCharge *sipsnRelayedChargeCreateFrom( SipsnRelayedCharge *source );
PB_API SipsnRelayedCharge *sipsnRelayedChargeRetain( SipsnRelayedCharge *obj );
PB_API void                sipsnRelayedChargeRelease( SipsnRelayedCharge *obj );
PB_API PbObj              *sipsnRelayedChargeObj( SipsnRelayedCharge *obj );
PB_API SipsnRelayedCharge *sipsnRelayedChargeFrom( PbObj *obj );
PB_API PbSort             *sipsnRelayedChargeSort( void );
PB_API PbString           *sipsnRelayedChargeToString( SipsnRelayedCharge *obj );
PB_API int64_t             sipsnRelayedChargeCompare( SipsnRelayedCharge *a, SipsnRelayedCharge *b );
PB_API bool                sipsnRelayedChargeEquals( SipsnRelayedCharge *a, SipsnRelayedCharge *b );
/* ./dev lists: end */

PB_API SipsnRelayedCharge *sipsnRelayedChargeCreate( PbString *element, PbString *icidValue );

/* ./dev lists: members, see sipsn_member.h */
PB_API PbString *sipsnRelayedChargeElement( SipsnRelayedCharge *charge );
PB_API void      sipsnRelayedChargeSetElement( SipsnRelayedCharge **charge, PbString *element );
PB_API void      sipsnRelayedChargeSetElementCstr( SipsnRelayedCharge **charge, const char *element, int64_t length );
PB_API void sipsnRelayedChargeSetElementWcstr( SipsnRelayedCharge **charge, const wchar_t *element, int64_t length );

PB_API PbString *sipsnRelayedChargeIcidValue( SipsnRelayedCharge *charge );
PB_API void      sipsnRelayedChargeSetIcidValue( SipsnRelayedCharge **charge, PbString *icidValue );
PB_API void sipsnRelayedChargeSetIcidValueCstr( SipsnRelayedCharge **charge, const char *icidValue, int64_t length );
PB_API void sipsnRelayedChargeSetIcidValueWcstr( SipsnRelayedCharge **charge, const wchar_t *icidValue,
                                                 int64_t length );

PB_API PbString *sipsnRelayedChargeOrigIoi( SipsnRelayedCharge *charge );
PB_API bool      sipsnRelayedChargeHasOrigIoi( SipsnRelayedCharge *charge );
PB_API void      sipsnRelayedChargeSetOrigIoi( SipsnRelayedCharge **charge, PbString *origIoi );
PB_API void      sipsnRelayedChargeSetOrigIoiCstr( SipsnRelayedCharge **charge, const char *origIoi, int64_t length );
PB_API void sipsnRelayedChargeSetOrigIoiWcstr( SipsnRelayedCharge **charge, const wchar_t *origIoi, int64_t length );
PB_API void sipsnRelayedChargeDelOrigIoi( SipsnRelayedCharge **charge );

PB_API PbString *sipsnRelayedChargeTermIoi( SipsnRelayedCharge *charge );
PB_API bool      sipsnRelayedChargeHasTermIoi( SipsnRelayedCharge *charge );
PB_API void      sipsnRelayedChargeSetTermIoi( SipsnRelayedCharge **charge, PbString *termIoi );
PB_API void      sipsnRelayedChargeSetTermIoiCstr( SipsnRelayedCharge **charge, const char *termIoi, int64_t length );
PB_API void sipsnRelayedChargeSetTermIoiWcstr( SipsnRelayedCharge **charge, const wchar_t *termIoi, int64_t length );
PB_API void sipsnRelayedChargeDelTermIoi( SipsnRelayedCharge **charge );

PB_API SipsnGenericParams *sipsnRelayedChargeGenericParams( SipsnRelayedCharge *charge );
PB_API void sipsnRelayedChargeSetGenericParams( SipsnRelayedCharge **charge, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
