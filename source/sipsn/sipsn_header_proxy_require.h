/* SipsnHeaderProxyRequire: the Proxy-Require header field, RFC 3261 section 20.29; a set of option tags.
 *
 * Example: Proxy-Require: gruu,sec-agree
 *
 * Option tags are kept in lower case, in whatever case they are given. All are encoded into one line. A header field
 * without lines is no header. The Cstr and Wcstr forms take text with its length, -1 meaning up to the terminating
 * zero. */
#ifndef SIPSN_HEADER_PROXY_REQUIRE_H
#define SIPSN_HEADER_PROXY_REQUIRE_H

#include "sipsn_header.h"
#include "sipsn_option_tag.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderProxyRequire, sipsnHeaderProxyRequire )

PB_API SipsnHeaderProxyRequire *sipsnHeaderProxyRequireCreate( void );

SIPSN_DECLARE_SET( SipsnHeaderProxyRequire, sipsnHeaderProxyRequire, OptionTags, OptionTag, optionTag )
PB_API bool sipsnHeaderProxyRequireHasOptionTagCstr( SipsnHeaderProxyRequire *hdr, const char *optionTag,
                                                     int64_t optionTagLength );
PB_API bool sipsnHeaderProxyRequireHasOptionTagWcstr( SipsnHeaderProxyRequire *hdr, const wchar_t *optionTag,
                                                      int64_t optionTagLength );
PB_API void sipsnHeaderProxyRequireSetOptionTagCstr( SipsnHeaderProxyRequire **hdr, const char *optionTag,
                                                     int64_t optionTagLength );
PB_API void sipsnHeaderProxyRequireSetOptionTagWcstr( SipsnHeaderProxyRequire **hdr, const wchar_t *optionTag,
                                                      int64_t optionTagLength );
PB_API void sipsnHeaderProxyRequireDelOptionTagCstr( SipsnHeaderProxyRequire **hdr, const char *optionTag,
                                                     int64_t optionTagLength );
PB_API void sipsnHeaderProxyRequireDelOptionTagWcstr( SipsnHeaderProxyRequire **hdr, const wchar_t *optionTag,
                                                      int64_t optionTagLength );

PB_END_DECLS
#endif
