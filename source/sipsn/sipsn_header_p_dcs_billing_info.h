/* SipsnHeaderPDcsBillingInfo: the P-DCS-Billing-Info header field, RFC 5503 section 7.1; what a call is billed by.
 *
 * Example: P-Dcs-Billing-Info:
 * 510f0000000000001234/A1B2C3D4E5F60718@ex.example.com;rksgroup=rks1;charge="tel:+1-212-555-2222";calling="tel:+1";called="tel:+2";routing="tel:+3";locroute="tel:+4";jip="415;jip-context=+1-201";lang=en
 *
 *     P-DCS-Billing-Info = 1*48HEXDIG "/" 1*16HEXDIG "@" host *( SEMI Billing-Info-param )
 *
 *     correlation id   1 to 48 hexadecimal digits; never absent
 *     element id       1 to 16 hexadecimal digits; never absent
 *     element host     the host of the element; never absent
 *     rksgroup         the group of record keepers, a token; optional
 *     charge           who is charged, an IRI, quoted on the wire; optional
 *     calling          who calls, the same; optional
 *     called           who is called, the same; optional
 *     routing          where it was routed, the same; optional
 *     locroute         where it was routed locally, the same; optional
 *     jip              the jurisdiction, a quoted string; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_P_DCS_BILLING_INFO_H
#define SIPSN_HEADER_P_DCS_BILLING_INFO_H

#include "sipsn_header.h"
#include "sipsn_hex_digits.h"
#include "sipsn_host.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"
#include "sipsn_quotable_string.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPDcsBillingInfo ), see sipsn_header.h */
typedef struct SipsnHeaderPDcsBillingInfo SipsnHeaderPDcsBillingInfo;

PB_API SipsnHeaderPDcsBillingInfo *sipsnHeaderPDcsBillingInfoCreateFrom( SipsnHeaderPDcsBillingInfo *source );
PB_API SipsnHeaderPDcsBillingInfo *sipsnHeaderPDcsBillingInfoRetain( SipsnHeaderPDcsBillingInfo *obj );
PB_API void                        sipsnHeaderPDcsBillingInfoRelease( SipsnHeaderPDcsBillingInfo *obj );
PB_API PbObj                      *sipsnHeaderPDcsBillingInfoObj( SipsnHeaderPDcsBillingInfo *obj );
PB_API SipsnHeaderPDcsBillingInfo *sipsnHeaderPDcsBillingInfoFrom( PbObj *obj );
PB_API PbSort                     *sipsnHeaderPDcsBillingInfoSort( void );
PB_API PbString                   *sipsnHeaderPDcsBillingInfoToString( SipsnHeaderPDcsBillingInfo *obj );
PB_API int64_t sipsnHeaderPDcsBillingInfoCompare( SipsnHeaderPDcsBillingInfo *a, SipsnHeaderPDcsBillingInfo *b );
PB_API bool    sipsnHeaderPDcsBillingInfoEquals( SipsnHeaderPDcsBillingInfo *a, SipsnHeaderPDcsBillingInfo *b );

PB_API SipsnHeaderPDcsBillingInfo *sipsnHeaderPDcsBillingInfoTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader         *sipsnHeaderPDcsBillingInfoEncode( SipsnHeaderPDcsBillingInfo *hdr );
PB_API SipsnHeaderPDcsBillingInfo *sipsnHeaderPDcsBillingInfoTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPDcsBillingInfoEncodeToMessage( SipsnHeaderPDcsBillingInfo *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPDcsBillingInfoPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPDcsBillingInfoRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPDcsBillingInfoStore( SipsnHeaderPDcsBillingInfo *hdr );
PB_API SipsnHeaderPDcsBillingInfo *sipsnHeaderPDcsBillingInfoTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderPDcsBillingInfo *sipsnHeaderPDcsBillingInfoCreate( PbString *correlationId, PbString *elementId,
                                                                     PbString *elementHost );

/* ./dev lists: members, see sipsn_member.h */
PB_API PbString *sipsnHeaderPDcsBillingInfoCorrelationId( SipsnHeaderPDcsBillingInfo *hdr );
PB_API void sipsnHeaderPDcsBillingInfoSetCorrelationId( SipsnHeaderPDcsBillingInfo **hdr, PbString *correlationId );
PB_API void sipsnHeaderPDcsBillingInfoSetCorrelationIdCstr( SipsnHeaderPDcsBillingInfo **hdr, const char *correlationId,
                                                            int64_t length );
PB_API void sipsnHeaderPDcsBillingInfoSetCorrelationIdWcstr( SipsnHeaderPDcsBillingInfo **hdr,
                                                             const wchar_t *correlationId, int64_t length );

PB_API PbString *sipsnHeaderPDcsBillingInfoElementId( SipsnHeaderPDcsBillingInfo *hdr );
PB_API void      sipsnHeaderPDcsBillingInfoSetElementId( SipsnHeaderPDcsBillingInfo **hdr, PbString *elementId );
PB_API void      sipsnHeaderPDcsBillingInfoSetElementIdCstr( SipsnHeaderPDcsBillingInfo **hdr, const char *elementId,
                                                             int64_t length );
PB_API void sipsnHeaderPDcsBillingInfoSetElementIdWcstr( SipsnHeaderPDcsBillingInfo **hdr, const wchar_t *elementId,
                                                         int64_t length );

PB_API PbString *sipsnHeaderPDcsBillingInfoElementHost( SipsnHeaderPDcsBillingInfo *hdr );
PB_API void      sipsnHeaderPDcsBillingInfoSetElementHost( SipsnHeaderPDcsBillingInfo **hdr, PbString *elementHost );
PB_API void sipsnHeaderPDcsBillingInfoSetElementHostCstr( SipsnHeaderPDcsBillingInfo **hdr, const char *elementHost,
                                                          int64_t length );
PB_API void sipsnHeaderPDcsBillingInfoSetElementHostWcstr( SipsnHeaderPDcsBillingInfo **hdr, const wchar_t *elementHost,
                                                           int64_t length );

PB_API PbString *sipsnHeaderPDcsBillingInfoRksgroup( SipsnHeaderPDcsBillingInfo *hdr );
PB_API bool      sipsnHeaderPDcsBillingInfoHasRksgroup( SipsnHeaderPDcsBillingInfo *hdr );
PB_API void      sipsnHeaderPDcsBillingInfoSetRksgroup( SipsnHeaderPDcsBillingInfo **hdr, PbString *rksgroup );
PB_API void      sipsnHeaderPDcsBillingInfoSetRksgroupCstr( SipsnHeaderPDcsBillingInfo **hdr, const char *rksgroup,
                                                            int64_t length );
PB_API void      sipsnHeaderPDcsBillingInfoSetRksgroupWcstr( SipsnHeaderPDcsBillingInfo **hdr, const wchar_t *rksgroup,
                                                             int64_t length );
PB_API void      sipsnHeaderPDcsBillingInfoDelRksgroup( SipsnHeaderPDcsBillingInfo **hdr );

PB_API PbString *sipsnHeaderPDcsBillingInfoCharge( SipsnHeaderPDcsBillingInfo *hdr );
PB_API bool      sipsnHeaderPDcsBillingInfoHasCharge( SipsnHeaderPDcsBillingInfo *hdr );
PB_API void      sipsnHeaderPDcsBillingInfoSetCharge( SipsnHeaderPDcsBillingInfo **hdr, PbString *charge );
PB_API void      sipsnHeaderPDcsBillingInfoSetChargeCstr( SipsnHeaderPDcsBillingInfo **hdr, const char *charge,
                                                          int64_t length );
PB_API void      sipsnHeaderPDcsBillingInfoSetChargeWcstr( SipsnHeaderPDcsBillingInfo **hdr, const wchar_t *charge,
                                                           int64_t length );
PB_API void      sipsnHeaderPDcsBillingInfoDelCharge( SipsnHeaderPDcsBillingInfo **hdr );

PB_API PbString *sipsnHeaderPDcsBillingInfoCalling( SipsnHeaderPDcsBillingInfo *hdr );
PB_API bool      sipsnHeaderPDcsBillingInfoHasCalling( SipsnHeaderPDcsBillingInfo *hdr );
PB_API void      sipsnHeaderPDcsBillingInfoSetCalling( SipsnHeaderPDcsBillingInfo **hdr, PbString *calling );
PB_API void      sipsnHeaderPDcsBillingInfoSetCallingCstr( SipsnHeaderPDcsBillingInfo **hdr, const char *calling,
                                                           int64_t length );
PB_API void      sipsnHeaderPDcsBillingInfoSetCallingWcstr( SipsnHeaderPDcsBillingInfo **hdr, const wchar_t *calling,
                                                            int64_t length );
PB_API void      sipsnHeaderPDcsBillingInfoDelCalling( SipsnHeaderPDcsBillingInfo **hdr );

PB_API PbString *sipsnHeaderPDcsBillingInfoCalled( SipsnHeaderPDcsBillingInfo *hdr );
PB_API bool      sipsnHeaderPDcsBillingInfoHasCalled( SipsnHeaderPDcsBillingInfo *hdr );
PB_API void      sipsnHeaderPDcsBillingInfoSetCalled( SipsnHeaderPDcsBillingInfo **hdr, PbString *called );
PB_API void      sipsnHeaderPDcsBillingInfoSetCalledCstr( SipsnHeaderPDcsBillingInfo **hdr, const char *called,
                                                          int64_t length );
PB_API void      sipsnHeaderPDcsBillingInfoSetCalledWcstr( SipsnHeaderPDcsBillingInfo **hdr, const wchar_t *called,
                                                           int64_t length );
PB_API void      sipsnHeaderPDcsBillingInfoDelCalled( SipsnHeaderPDcsBillingInfo **hdr );

PB_API PbString *sipsnHeaderPDcsBillingInfoRouting( SipsnHeaderPDcsBillingInfo *hdr );
PB_API bool      sipsnHeaderPDcsBillingInfoHasRouting( SipsnHeaderPDcsBillingInfo *hdr );
PB_API void      sipsnHeaderPDcsBillingInfoSetRouting( SipsnHeaderPDcsBillingInfo **hdr, PbString *routing );
PB_API void      sipsnHeaderPDcsBillingInfoSetRoutingCstr( SipsnHeaderPDcsBillingInfo **hdr, const char *routing,
                                                           int64_t length );
PB_API void      sipsnHeaderPDcsBillingInfoSetRoutingWcstr( SipsnHeaderPDcsBillingInfo **hdr, const wchar_t *routing,
                                                            int64_t length );
PB_API void      sipsnHeaderPDcsBillingInfoDelRouting( SipsnHeaderPDcsBillingInfo **hdr );

PB_API PbString *sipsnHeaderPDcsBillingInfoLocroute( SipsnHeaderPDcsBillingInfo *hdr );
PB_API bool      sipsnHeaderPDcsBillingInfoHasLocroute( SipsnHeaderPDcsBillingInfo *hdr );
PB_API void      sipsnHeaderPDcsBillingInfoSetLocroute( SipsnHeaderPDcsBillingInfo **hdr, PbString *locroute );
PB_API void      sipsnHeaderPDcsBillingInfoSetLocrouteCstr( SipsnHeaderPDcsBillingInfo **hdr, const char *locroute,
                                                            int64_t length );
PB_API void      sipsnHeaderPDcsBillingInfoSetLocrouteWcstr( SipsnHeaderPDcsBillingInfo **hdr, const wchar_t *locroute,
                                                             int64_t length );
PB_API void      sipsnHeaderPDcsBillingInfoDelLocroute( SipsnHeaderPDcsBillingInfo **hdr );

PB_API PbString *sipsnHeaderPDcsBillingInfoJip( SipsnHeaderPDcsBillingInfo *hdr );
PB_API bool      sipsnHeaderPDcsBillingInfoHasJip( SipsnHeaderPDcsBillingInfo *hdr );
PB_API void      sipsnHeaderPDcsBillingInfoSetJip( SipsnHeaderPDcsBillingInfo **hdr, PbString *jip );
PB_API void sipsnHeaderPDcsBillingInfoSetJipCstr( SipsnHeaderPDcsBillingInfo **hdr, const char *jip, int64_t length );
PB_API void sipsnHeaderPDcsBillingInfoSetJipWcstr( SipsnHeaderPDcsBillingInfo **hdr, const wchar_t *jip,
                                                   int64_t length );
PB_API void sipsnHeaderPDcsBillingInfoDelJip( SipsnHeaderPDcsBillingInfo **hdr );

PB_API SipsnGenericParams *sipsnHeaderPDcsBillingInfoGenericParams( SipsnHeaderPDcsBillingInfo *hdr );
PB_API void                sipsnHeaderPDcsBillingInfoSetGenericParams( SipsnHeaderPDcsBillingInfo **hdr,
                                                                       SipsnGenericParams          *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
