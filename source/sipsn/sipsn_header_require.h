/* SipsnHeaderRequire: the Require header field, RFC 3261 section 20.32; a set of option tags.
 *
 * Example: Require: 100rel,timer
 *
 * Option tags are kept in lower case, in whatever case they are given. All are encoded into one line. A header field
 * without lines is no header. The Cstr and Wcstr forms take text with its length, -1 meaning up to the terminating
 * zero. */
#ifndef SIPSN_HEADER_REQUIRE_H
#define SIPSN_HEADER_REQUIRE_H

#include "sipsn_header.h"
#include "sipsn_option_tag.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderRequire, sipsnHeaderRequire )

PB_API SipsnHeaderRequire *sipsnHeaderRequireCreate( void );

SIPSN_DECLARE_SET( SipsnHeaderRequire, sipsnHeaderRequire, OptionTags, OptionTag, optionTag )
PB_API bool sipsnHeaderRequireHasOptionTagCstr( SipsnHeaderRequire *hdr, const char *optionTag,
                                                int64_t optionTagLength );
PB_API bool sipsnHeaderRequireHasOptionTagWcstr( SipsnHeaderRequire *hdr, const wchar_t *optionTag,
                                                 int64_t optionTagLength );
PB_API void sipsnHeaderRequireSetOptionTagCstr( SipsnHeaderRequire **hdr, const char *optionTag,
                                                int64_t optionTagLength );
PB_API void sipsnHeaderRequireSetOptionTagWcstr( SipsnHeaderRequire **hdr, const wchar_t *optionTag,
                                                 int64_t optionTagLength );
PB_API void sipsnHeaderRequireDelOptionTagCstr( SipsnHeaderRequire **hdr, const char *optionTag,
                                                int64_t optionTagLength );
PB_API void sipsnHeaderRequireDelOptionTagWcstr( SipsnHeaderRequire **hdr, const wchar_t *optionTag,
                                                 int64_t optionTagLength );

PB_END_DECLS
#endif
