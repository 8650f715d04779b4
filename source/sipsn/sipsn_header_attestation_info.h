/* SipsnHeaderAttestationInfo: the Attestation-Info header field, 3GPP TS 24.229; how far a caller is attested.
 *
 * Example: Attestation-Info: A
 *
 *     Attestation-Info = token
 *
 *     attestation   a token such as "A", "B" or "C", kept as written; never absent
 *
 * The field is defined by 3GPP TS 24.229 alone; the grammar here is second-hand, to be checked against that text.
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_ATTESTATION_INFO_H
#define SIPSN_HEADER_ATTESTATION_INFO_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderAttestationInfo ), see sipsn_header.h */
typedef struct SipsnHeaderAttestationInfo SipsnHeaderAttestationInfo;

PB_API SipsnHeaderAttestationInfo *sipsnHeaderAttestationInfoCreateFrom( SipsnHeaderAttestationInfo *source );
PB_API SipsnHeaderAttestationInfo *sipsnHeaderAttestationInfoRetain( SipsnHeaderAttestationInfo *obj );
PB_API void                        sipsnHeaderAttestationInfoRelease( SipsnHeaderAttestationInfo *obj );
PB_API PbObj                      *sipsnHeaderAttestationInfoObj( SipsnHeaderAttestationInfo *obj );
PB_API SipsnHeaderAttestationInfo *sipsnHeaderAttestationInfoFrom( PbObj *obj );
PB_API PbSort                     *sipsnHeaderAttestationInfoSort( void );
PB_API PbString                   *sipsnHeaderAttestationInfoToString( SipsnHeaderAttestationInfo *obj );
PB_API int64_t sipsnHeaderAttestationInfoCompare( SipsnHeaderAttestationInfo *a, SipsnHeaderAttestationInfo *b );
PB_API bool    sipsnHeaderAttestationInfoEquals( SipsnHeaderAttestationInfo *a, SipsnHeaderAttestationInfo *b );

PB_API SipsnHeaderAttestationInfo *sipsnHeaderAttestationInfoTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader         *sipsnHeaderAttestationInfoEncode( SipsnHeaderAttestationInfo *hdr );
PB_API SipsnHeaderAttestationInfo *sipsnHeaderAttestationInfoTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAttestationInfoEncodeToMessage( SipsnHeaderAttestationInfo *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderAttestationInfoPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAttestationInfoRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderAttestationInfoStore( SipsnHeaderAttestationInfo *hdr );
PB_API SipsnHeaderAttestationInfo *sipsnHeaderAttestationInfoTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderAttestationInfo *sipsnHeaderAttestationInfoCreate( PbString *attestation );
PB_API SipsnHeaderAttestationInfo *sipsnHeaderAttestationInfoCreateCstr( const char *attestation, int64_t length );
PB_API SipsnHeaderAttestationInfo *sipsnHeaderAttestationInfoCreateWcstr( const wchar_t *attestation, int64_t length );

PB_API PbString *sipsnHeaderAttestationInfoAttestation( SipsnHeaderAttestationInfo *hdr );
PB_API void      sipsnHeaderAttestationInfoSetAttestation( SipsnHeaderAttestationInfo **hdr, PbString *attestation );
PB_API void sipsnHeaderAttestationInfoSetAttestationCstr( SipsnHeaderAttestationInfo **hdr, const char *attestation,
                                                          int64_t length );
PB_API void sipsnHeaderAttestationInfoSetAttestationWcstr( SipsnHeaderAttestationInfo **hdr, const wchar_t *attestation,
                                                           int64_t length );
/* ./dev lists: end */

PB_END_DECLS
#endif
