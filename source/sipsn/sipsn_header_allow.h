/* SipsnHeaderAllow: the Allow header field, RFC 3261 section 20.5; a set of methods.
 *
 * Example: Allow: ACK,BYE,CANCEL,INVITE,OPTIONS
 *
 * Methods are kept as written, and methods in different letter case are different. All are encoded into one line. A
 * header field without lines is no header. The Cstr and Wcstr forms take text with its length, -1 meaning up to the
 * terminating zero. */
#ifndef SIPSN_HEADER_ALLOW_H
#define SIPSN_HEADER_ALLOW_H

#include "sipsn_header.h"
#include "sipsn_method.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderAllow, sipsnHeaderAllow )

PB_API SipsnHeaderAllow *sipsnHeaderAllowCreate( void );

SIPSN_DECLARE_SET( SipsnHeaderAllow, sipsnHeaderAllow, Methods, Method, method )
PB_API bool sipsnHeaderAllowHasMethodCstr( SipsnHeaderAllow *hdr, const char *method, int64_t methodLength );
PB_API bool sipsnHeaderAllowHasMethodWcstr( SipsnHeaderAllow *hdr, const wchar_t *method, int64_t methodLength );
PB_API void sipsnHeaderAllowSetMethodCstr( SipsnHeaderAllow **hdr, const char *method, int64_t methodLength );
PB_API void sipsnHeaderAllowSetMethodWcstr( SipsnHeaderAllow **hdr, const wchar_t *method, int64_t methodLength );
PB_API void sipsnHeaderAllowDelMethodCstr( SipsnHeaderAllow **hdr, const char *method, int64_t methodLength );
PB_API void sipsnHeaderAllowDelMethodWcstr( SipsnHeaderAllow **hdr, const wchar_t *method, int64_t methodLength );

PB_END_DECLS
#endif
