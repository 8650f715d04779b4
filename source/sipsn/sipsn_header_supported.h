/* SipsnHeaderSupported: the Supported header field, RFC 3261 section 20.37; a set of option tags.
 *
 * Example: Supported: 100rel,replaces,timer
 *
 * Option tags are kept in lower case, in whatever case they are given. All are encoded into one line. A header field
 * without lines is no header. The Cstr and Wcstr forms take text with its length, -1 meaning up to the terminating
 * zero. */
#ifndef SIPSN_HEADER_SUPPORTED_H
#define SIPSN_HEADER_SUPPORTED_H

#include "sipsn_header.h"
#include "sipsn_option_tag.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderSupported, sipsnHeaderSupported )

PB_API SipsnHeaderSupported *sipsnHeaderSupportedCreate( void );

SIPSN_DECLARE_SET( SipsnHeaderSupported, sipsnHeaderSupported, OptionTags, OptionTag, optionTag )
PB_API bool sipsnHeaderSupportedHasOptionTagCstr( SipsnHeaderSupported *hdr, const char *optionTag,
                                                  int64_t optionTagLength );
PB_API bool sipsnHeaderSupportedHasOptionTagWcstr( SipsnHeaderSupported *hdr, const wchar_t *optionTag,
                                                   int64_t optionTagLength );
PB_API void sipsnHeaderSupportedSetOptionTagCstr( SipsnHeaderSupported **hdr, const char *optionTag,
                                                  int64_t optionTagLength );
PB_API void sipsnHeaderSupportedSetOptionTagWcstr( SipsnHeaderSupported **hdr, const wchar_t *optionTag,
                                                   int64_t optionTagLength );
PB_API void sipsnHeaderSupportedDelOptionTagCstr( SipsnHeaderSupported **hdr, const char *optionTag,
                                                  int64_t optionTagLength );
PB_API void sipsnHeaderSupportedDelOptionTagWcstr( SipsnHeaderSupported **hdr, const wchar_t *optionTag,
                                                   int64_t optionTagLength );

PB_END_DECLS
#endif
