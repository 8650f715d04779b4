/* SipsnHeaderPrivacy: the Privacy header field, RFC 3323 section 4.2; a set of priv-values.
 *
 * Example: Privacy: critical;header;id
 *
 * Priv-values are kept in lower case, in whatever case they are given. All are encoded into one line, separated by
 * semicolons, as they are read. A header field without lines is no header. The Cstr and Wcstr forms take text with its
 * length, -1 meaning up to the terminating zero. */
#ifndef SIPSN_HEADER_PRIVACY_H
#define SIPSN_HEADER_PRIVACY_H

#include "sipsn_header.h"
#include "sipsn_priv_value.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderPrivacy, sipsnHeaderPrivacy )

PB_API SipsnHeaderPrivacy *sipsnHeaderPrivacyCreate( void );

SIPSN_DECLARE_SET( SipsnHeaderPrivacy, sipsnHeaderPrivacy, PrivValues, PrivValue, privValue )
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
