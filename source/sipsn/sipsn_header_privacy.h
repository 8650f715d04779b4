/* SipsnHeaderPrivacy: the Privacy header field, RFC 3323 section 4.2; a set of priv-values.
 *
 * Example: Privacy: critical;header;id
 *
 * Priv-values are kept in lower case, in whatever case they are given. All are encoded into one line, separated by
 * semicolons, as they are read. A header field without lines does not decode. The Cstr and Wcstr forms take text with
 * its length, -1 meaning up to the terminating zero. */
#ifndef SIPSN_HEADER_PRIVACY_H
#define SIPSN_HEADER_PRIVACY_H

#include "sipsn_header.h"
#include "sipsn_priv_value.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPrivacy ), see sipsn_header.h */
typedef struct SipsnHeaderPrivacy SipsnHeaderPrivacy;

PB_API SipsnHeaderPrivacy *sipsnHeaderPrivacyCreateFrom( SipsnHeaderPrivacy *source );
PB_API SipsnHeaderPrivacy *sipsnHeaderPrivacyRetain( SipsnHeaderPrivacy *obj );
PB_API void                sipsnHeaderPrivacyRelease( SipsnHeaderPrivacy *obj );
PB_API PbObj              *sipsnHeaderPrivacyObj( SipsnHeaderPrivacy *obj );
PB_API SipsnHeaderPrivacy *sipsnHeaderPrivacyFrom( PbObj *obj );
PB_API PbSort             *sipsnHeaderPrivacySort( void );
PB_API PbString           *sipsnHeaderPrivacyToString( SipsnHeaderPrivacy *obj );
PB_API int64_t             sipsnHeaderPrivacyCompare( SipsnHeaderPrivacy *a, SipsnHeaderPrivacy *b );
PB_API bool                sipsnHeaderPrivacyEquals( SipsnHeaderPrivacy *a, SipsnHeaderPrivacy *b );

PB_API SipsnHeaderPrivacy *sipsnHeaderPrivacyTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderPrivacyEncode( SipsnHeaderPrivacy *hdr );
PB_API SipsnHeaderPrivacy *sipsnHeaderPrivacyTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderPrivacyEncodeToMessage( SipsnHeaderPrivacy *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderPrivacyPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderPrivacyRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderPrivacyStore( SipsnHeaderPrivacy *hdr );
PB_API SipsnHeaderPrivacy *sipsnHeaderPrivacyTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderPrivacy *sipsnHeaderPrivacyCreate( void );

/* ./dev lists: SET( PrivValues, PrivValue ), see sipsn_header.h */
PB_API int64_t   sipsnHeaderPrivacyPrivValuesLength( SipsnHeaderPrivacy *hdr );
PB_API PbString *sipsnHeaderPrivacyPrivValueAt( SipsnHeaderPrivacy *hdr, int64_t index );
PB_API PbVector *sipsnHeaderPrivacyPrivValuesVector( SipsnHeaderPrivacy *hdr );
PB_API void      sipsnHeaderPrivacySetPrivValuesVector( SipsnHeaderPrivacy **hdr, PbVector *vec );
PB_API bool      sipsnHeaderPrivacyHasPrivValue( SipsnHeaderPrivacy *hdr, PbString *privValue );
PB_API void      sipsnHeaderPrivacySetPrivValue( SipsnHeaderPrivacy **hdr, PbString *privValue );
PB_API void      sipsnHeaderPrivacyDelPrivValue( SipsnHeaderPrivacy **hdr, PbString *privValue );
PB_API void      sipsnHeaderPrivacyClearPrivValues( SipsnHeaderPrivacy **hdr );
/* ./dev lists: end */

PB_API bool sipsnHeaderPrivacyHasPrivValueCstr( SipsnHeaderPrivacy *hdr, const char *privValue,
                                                int64_t privValueLength );
PB_API bool sipsnHeaderPrivacyHasPrivValueWcstr( SipsnHeaderPrivacy *hdr, const wchar_t *privValue,
                                                 int64_t privValueLength );
PB_API void sipsnHeaderPrivacySetPrivValueCstr( SipsnHeaderPrivacy **hdr, const char *privValue,
                                                int64_t privValueLength );
PB_API void sipsnHeaderPrivacySetPrivValueWcstr( SipsnHeaderPrivacy **hdr, const wchar_t *privValue,
                                                 int64_t privValueLength );
PB_API void sipsnHeaderPrivacyDelPrivValueCstr( SipsnHeaderPrivacy **hdr, const char *privValue,
                                                int64_t privValueLength );
PB_API void sipsnHeaderPrivacyDelPrivValueWcstr( SipsnHeaderPrivacy **hdr, const wchar_t *privValue,
                                                 int64_t privValueLength );

PB_END_DECLS
#endif
