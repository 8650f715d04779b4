/* SipsnHeaderRestorationInfo: the Restoration-Info header field, 3GPP TS 24.229; what restores a registration.
 *
 * Example: Restoration-Info: imsi="262011234567890";noresponse;lang=en
 *
 *     Restoration-Info = "imsi" EQUAL quoted-string / "noresponse" / generic-param
 *
 *     imsi             the subscriber, a quoted string; optional
 *     noresponse       whether there was no response; false by default
 *     generic params   every other parameter; never absent, may be empty
 *
 * The field is defined by 3GPP TS 24.229 alone; the grammar here is second-hand, to be checked against that text.
 *
 * Several of these are read where the text has one. Only the last line of the header field counts; without lines it
 * does not decode. */
#ifndef SIPSN_HEADER_RESTORATION_INFO_H
#define SIPSN_HEADER_RESTORATION_INFO_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_quotable_string.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderRestorationInfo ), see sipsn_header.h */
typedef struct SipsnHeaderRestorationInfo SipsnHeaderRestorationInfo;

PB_API SipsnHeaderRestorationInfo *sipsnHeaderRestorationInfoCreateFrom( SipsnHeaderRestorationInfo *source );
PB_API SipsnHeaderRestorationInfo *sipsnHeaderRestorationInfoRetain( SipsnHeaderRestorationInfo *obj );
PB_API void                        sipsnHeaderRestorationInfoRelease( SipsnHeaderRestorationInfo *obj );
PB_API PbObj                      *sipsnHeaderRestorationInfoObj( SipsnHeaderRestorationInfo *obj );
PB_API SipsnHeaderRestorationInfo *sipsnHeaderRestorationInfoFrom( PbObj *obj );
PB_API PbSort                     *sipsnHeaderRestorationInfoSort( void );
PB_API PbString                   *sipsnHeaderRestorationInfoToString( SipsnHeaderRestorationInfo *obj );
PB_API int64_t sipsnHeaderRestorationInfoCompare( SipsnHeaderRestorationInfo *a, SipsnHeaderRestorationInfo *b );
PB_API bool    sipsnHeaderRestorationInfoEquals( SipsnHeaderRestorationInfo *a, SipsnHeaderRestorationInfo *b );

PB_API SipsnHeaderRestorationInfo *sipsnHeaderRestorationInfoTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader         *sipsnHeaderRestorationInfoEncode( SipsnHeaderRestorationInfo *hdr );
PB_API SipsnHeaderRestorationInfo *sipsnHeaderRestorationInfoTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderRestorationInfoEncodeToMessage( SipsnHeaderRestorationInfo *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderRestorationInfoPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderRestorationInfoRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderRestorationInfoStore( SipsnHeaderRestorationInfo *hdr );
PB_API SipsnHeaderRestorationInfo *sipsnHeaderRestorationInfoTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderRestorationInfo *sipsnHeaderRestorationInfoCreate( void );

PB_API PbString *sipsnHeaderRestorationInfoImsi( SipsnHeaderRestorationInfo *hdr );
PB_API bool      sipsnHeaderRestorationInfoHasImsi( SipsnHeaderRestorationInfo *hdr );
PB_API void      sipsnHeaderRestorationInfoSetImsi( SipsnHeaderRestorationInfo **hdr, PbString *imsi );
PB_API void sipsnHeaderRestorationInfoSetImsiCstr( SipsnHeaderRestorationInfo **hdr, const char *imsi, int64_t length );
PB_API void sipsnHeaderRestorationInfoSetImsiWcstr( SipsnHeaderRestorationInfo **hdr, const wchar_t *imsi,
                                                    int64_t length );
PB_API void sipsnHeaderRestorationInfoDelImsi( SipsnHeaderRestorationInfo **hdr );

PB_API bool sipsnHeaderRestorationInfoNoresponse( SipsnHeaderRestorationInfo *hdr );
PB_API void sipsnHeaderRestorationInfoSetNoresponse( SipsnHeaderRestorationInfo **hdr, bool noresponse );

PB_API SipsnGenericParams *sipsnHeaderRestorationInfoGenericParams( SipsnHeaderRestorationInfo *hdr );
PB_API void                sipsnHeaderRestorationInfoSetGenericParams( SipsnHeaderRestorationInfo **hdr,
                                                                       SipsnGenericParams          *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
