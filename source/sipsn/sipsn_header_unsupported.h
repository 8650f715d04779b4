/* SipsnHeaderUnsupported: the Unsupported header field, RFC 3261 section 20.40; a set of option tags.
 *
 * Example: Unsupported: 100rel,resource-priority
 *
 * Option tags are kept in lower case, in whatever case they are given. All are encoded into one line. A header field
 * without lines is no header. */
#ifndef SIPSN_HEADER_UNSUPPORTED_H
#define SIPSN_HEADER_UNSUPPORTED_H

#include "sipsn_header.h"
#include "sipsn_option_tag.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderUnsupported, sipsnHeaderUnsupported )

PB_API SipsnHeaderUnsupported *sipsnHeaderUnsupportedCreate( void );

SIPSN_DECLARE_SET( SipsnHeaderUnsupported, sipsnHeaderUnsupported, OptionTags, OptionTag, optionTag )

PB_END_DECLS
#endif
