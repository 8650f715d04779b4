/* SipsnHeaderPChargingVector: the P-Charging-Vector header field, RFC 7315 section 5.6; what records of charging are
 * joined by.
 *
 * Example: P-Charging-Vector:
 * icid-value=1234bc9876e;icid-generated-at=192.0.6.8;orig-ioi=home1.net;term-ioi=home2.net;transit-ioi="operatorA.1,void";related-icid=ab;related-icid-generated-at=192.0.6.9;lang=en
 *
 *     P-Charging-Vector = "icid-value" EQUAL gen-value *( SEMI charge-param )
 *
 *     icid value                  the charging identity, a token, a host or a
 *                                 quoted string; never absent
 *     icid generated at           the host that made it; optional
 *     orig ioi                    the originating network; optional
 *     term ioi                    the terminating network; optional
 *     transit ioi                 the networks between, a quoted string; optional
 *     related icid                another charging identity; optional
 *     related icid generated at   the host that made that one; optional
 *     generic params              every other parameter; never absent, may be empty
 *
 * The icid-value is read wherever it stands, and written first. Only the last line of the header field counts;
 * without lines it does not decode. */
#ifndef SIPSN_HEADER_P_CHARGING_VECTOR_H
#define SIPSN_HEADER_P_CHARGING_VECTOR_H

#include "sipsn_header.h"
#include "sipsn_host.h"
#include "sipsn_member.h"
#include "sipsn_quotable_string.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPChargingVector ), see sipsn_header.h */
typedef struct SipsnHeaderPChargingVector SipsnHeaderPChargingVector;

PB_API SipsnHeaderPChargingVector *sipsnHeaderPChargingVectorCreateFrom( SipsnHeaderPChargingVector *source );
PB_API SipsnHeaderPChargingVector *sipsnHeaderPChargingVectorRetain( SipsnHeaderPChargingVector *obj );
PB_API void                        sipsnHeaderPChargingVectorRelease( SipsnHeaderPChargingVector *obj );
PB_API PbObj                      *sipsnHeaderPChargingVectorObj( SipsnHeaderPChargingVector *obj );
PB_API SipsnHeaderPChargingVector *sipsnHeaderPChargingVectorFrom( PbObj *obj );
PB_API PbSort                     *sipsnHeaderPChargingVectorSort( void );
PB_API PbString                   *sipsnHeaderPChargingVectorToString( SipsnHeaderPChargingVector *obj );
PB_API int64_t sipsnHeaderPChargingVectorCompare( SipsnHeaderPChargingVector *a, SipsnHeaderPChargingVector *b );
PB_API bool    sipsnHeaderPChargingVectorEquals( SipsnHeaderPChargingVector *a, SipsnHeaderPChargingVector *b );

PB_API SipsnHeaderPChargingVector *sipsnHeaderPChargingVectorTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader         *sipsnHeaderPChargingVectorEncode( SipsnHeaderPChargingVector *hdr );
PB_API SipsnHeaderPChargingVector *sipsnHeaderPChargingVectorTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPChargingVectorEncodeToMessage( SipsnHeaderPChargingVector *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPChargingVectorPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPChargingVectorRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPChargingVectorStore( SipsnHeaderPChargingVector *hdr );
PB_API SipsnHeaderPChargingVector *sipsnHeaderPChargingVectorTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPChargingVector *sipsnHeaderPChargingVectorCreate( PbString *icidValue );
PB_API SipsnHeaderPChargingVector *sipsnHeaderPChargingVectorCreateCstr( const char *icidValue, int64_t length );
PB_API SipsnHeaderPChargingVector *sipsnHeaderPChargingVectorCreateWcstr( const wchar_t *icidValue, int64_t length );

PB_API PbString *sipsnHeaderPChargingVectorIcidValue( SipsnHeaderPChargingVector *hdr );
PB_API void      sipsnHeaderPChargingVectorSetIcidValue( SipsnHeaderPChargingVector **hdr, PbString *icidValue );
PB_API void      sipsnHeaderPChargingVectorSetIcidValueCstr( SipsnHeaderPChargingVector **hdr, const char *icidValue,
                                                             int64_t length );
PB_API void sipsnHeaderPChargingVectorSetIcidValueWcstr( SipsnHeaderPChargingVector **hdr, const wchar_t *icidValue,
                                                         int64_t length );

PB_API PbString *sipsnHeaderPChargingVectorIcidGeneratedAt( SipsnHeaderPChargingVector *hdr );
PB_API bool      sipsnHeaderPChargingVectorHasIcidGeneratedAt( SipsnHeaderPChargingVector *hdr );
PB_API void sipsnHeaderPChargingVectorSetIcidGeneratedAt( SipsnHeaderPChargingVector **hdr, PbString *icidGeneratedAt );
PB_API void sipsnHeaderPChargingVectorSetIcidGeneratedAtCstr( SipsnHeaderPChargingVector **hdr,
                                                              const char *icidGeneratedAt, int64_t length );
PB_API void sipsnHeaderPChargingVectorSetIcidGeneratedAtWcstr( SipsnHeaderPChargingVector **hdr,
                                                               const wchar_t *icidGeneratedAt, int64_t length );
PB_API void sipsnHeaderPChargingVectorDelIcidGeneratedAt( SipsnHeaderPChargingVector **hdr );

PB_API PbString *sipsnHeaderPChargingVectorOrigIoi( SipsnHeaderPChargingVector *hdr );
PB_API bool      sipsnHeaderPChargingVectorHasOrigIoi( SipsnHeaderPChargingVector *hdr );
PB_API void      sipsnHeaderPChargingVectorSetOrigIoi( SipsnHeaderPChargingVector **hdr, PbString *origIoi );
PB_API void      sipsnHeaderPChargingVectorSetOrigIoiCstr( SipsnHeaderPChargingVector **hdr, const char *origIoi,
                                                           int64_t length );
PB_API void      sipsnHeaderPChargingVectorSetOrigIoiWcstr( SipsnHeaderPChargingVector **hdr, const wchar_t *origIoi,
                                                            int64_t length );
PB_API void      sipsnHeaderPChargingVectorDelOrigIoi( SipsnHeaderPChargingVector **hdr );

PB_API PbString *sipsnHeaderPChargingVectorTermIoi( SipsnHeaderPChargingVector *hdr );
PB_API bool      sipsnHeaderPChargingVectorHasTermIoi( SipsnHeaderPChargingVector *hdr );
PB_API void      sipsnHeaderPChargingVectorSetTermIoi( SipsnHeaderPChargingVector **hdr, PbString *termIoi );
PB_API void      sipsnHeaderPChargingVectorSetTermIoiCstr( SipsnHeaderPChargingVector **hdr, const char *termIoi,
                                                           int64_t length );
PB_API void      sipsnHeaderPChargingVectorSetTermIoiWcstr( SipsnHeaderPChargingVector **hdr, const wchar_t *termIoi,
                                                            int64_t length );
PB_API void      sipsnHeaderPChargingVectorDelTermIoi( SipsnHeaderPChargingVector **hdr );

PB_API PbString *sipsnHeaderPChargingVectorTransitIoi( SipsnHeaderPChargingVector *hdr );
PB_API bool      sipsnHeaderPChargingVectorHasTransitIoi( SipsnHeaderPChargingVector *hdr );
PB_API void      sipsnHeaderPChargingVectorSetTransitIoi( SipsnHeaderPChargingVector **hdr, PbString *transitIoi );
PB_API void      sipsnHeaderPChargingVectorSetTransitIoiCstr( SipsnHeaderPChargingVector **hdr, const char *transitIoi,
                                                              int64_t length );
PB_API void sipsnHeaderPChargingVectorSetTransitIoiWcstr( SipsnHeaderPChargingVector **hdr, const wchar_t *transitIoi,
                                                          int64_t length );
PB_API void sipsnHeaderPChargingVectorDelTransitIoi( SipsnHeaderPChargingVector **hdr );

PB_API PbString *sipsnHeaderPChargingVectorRelatedIcid( SipsnHeaderPChargingVector *hdr );
PB_API bool      sipsnHeaderPChargingVectorHasRelatedIcid( SipsnHeaderPChargingVector *hdr );
PB_API void      sipsnHeaderPChargingVectorSetRelatedIcid( SipsnHeaderPChargingVector **hdr, PbString *relatedIcid );
PB_API void sipsnHeaderPChargingVectorSetRelatedIcidCstr( SipsnHeaderPChargingVector **hdr, const char *relatedIcid,
                                                          int64_t length );
PB_API void sipsnHeaderPChargingVectorSetRelatedIcidWcstr( SipsnHeaderPChargingVector **hdr, const wchar_t *relatedIcid,
                                                           int64_t length );
PB_API void sipsnHeaderPChargingVectorDelRelatedIcid( SipsnHeaderPChargingVector **hdr );

PB_API PbString *sipsnHeaderPChargingVectorRelatedIcidGeneratedAt( SipsnHeaderPChargingVector *hdr );
PB_API bool      sipsnHeaderPChargingVectorHasRelatedIcidGeneratedAt( SipsnHeaderPChargingVector *hdr );
PB_API void      sipsnHeaderPChargingVectorSetRelatedIcidGeneratedAt( SipsnHeaderPChargingVector **hdr,
                                                                      PbString                    *relatedIcidGeneratedAt );
PB_API void      sipsnHeaderPChargingVectorSetRelatedIcidGeneratedAtCstr( SipsnHeaderPChargingVector **hdr,
                                                                          const char *relatedIcidGeneratedAt,
                                                                          int64_t     length );
PB_API void      sipsnHeaderPChargingVectorSetRelatedIcidGeneratedAtWcstr( SipsnHeaderPChargingVector **hdr,
                                                                           const wchar_t *relatedIcidGeneratedAt,
                                                                           int64_t        length );
PB_API void      sipsnHeaderPChargingVectorDelRelatedIcidGeneratedAt( SipsnHeaderPChargingVector **hdr );

PB_API SipsnGenericParams *sipsnHeaderPChargingVectorGenericParams( SipsnHeaderPChargingVector *hdr );
PB_API void                sipsnHeaderPChargingVectorSetGenericParams( SipsnHeaderPChargingVector **hdr,
                                                                       SipsnGenericParams          *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
