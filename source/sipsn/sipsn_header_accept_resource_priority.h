/* SipsnHeaderAcceptResourcePriority: the Accept-Resource-Priority header field, RFC 4412 section 3.2; a list of
 * r-values.
 *
 * Example: Accept-Resource-Priority: dsn.flash-override
 *
 * R-values are kept as written. A header field without lines is no header. Each is encoded as a line of its own. An
 * invalid one aborts. */
#ifndef SIPSN_HEADER_ACCEPT_RESOURCE_PRIORITY_H
#define SIPSN_HEADER_ACCEPT_RESOURCE_PRIORITY_H

#include "sipsn_header.h"
#include "sipsn_rvalue.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderAcceptResourcePriority, sipsnHeaderAcceptResourcePriority )

PB_API SipsnHeaderAcceptResourcePriority *sipsnHeaderAcceptResourcePriorityCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderAcceptResourcePriority, sipsnHeaderAcceptResourcePriority, Rvalues, Rvalue, PbString,
                    rvalue )
PB_API PbString *sipsnHeaderAcceptResourcePriorityRvalueAt( SipsnHeaderAcceptResourcePriority *hdr, int64_t index );
PB_API void      sipsnHeaderAcceptResourcePriorityClearRvalues( SipsnHeaderAcceptResourcePriority **hdr );

PB_END_DECLS
#endif
