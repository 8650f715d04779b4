/* SipsnHeaderWarning: the Warning header field, RFC 3261 section 20.43; a list of warning-values.
 *
 * Example: Warning: 307 proxy.example.com "Session parameter 'foo' not understood"
 *
 * Each value is kept as its text and decoded when TryDecodeWarningAt asks for it, which gives null when it is no
 * warning-value. A header field without lines decodes to an empty list. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_WARNING_H
#define SIPSN_HEADER_WARNING_H

#include "sipsn_header.h"
#include "sipsn_warning_value.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderWarning, sipsnHeaderWarning )

PB_API SipsnHeaderWarning *sipsnHeaderWarningCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderWarning, sipsnHeaderWarning, Warnings, Warning, SipsnWarningValue, warningValue )
PB_API SipsnWarningValue *sipsnHeaderWarningTryDecodeWarningAt( SipsnHeaderWarning *hdr, int64_t index );
PB_API void               sipsnHeaderWarningWarningsClear( SipsnHeaderWarning **hdr );

PB_END_DECLS
#endif
