/* SipsnHeaderResourcePriority: the Resource-Priority header field, RFC 4412 section 3.1; a list of r-values.
 *
 * Example: Resource-Priority: dsn.flash
 *
 * R-values are kept as written. A header field without lines decodes to an empty list. Each is encoded as a line of its
 * own. An invalid one aborts. */
#ifndef SIPSN_HEADER_RESOURCE_PRIORITY_H
#define SIPSN_HEADER_RESOURCE_PRIORITY_H

#include "sipsn_header.h"
#include "sipsn_rvalue.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderResourcePriority, sipsnHeaderResourcePriority )

PB_API SipsnHeaderResourcePriority *sipsnHeaderResourcePriorityCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderResourcePriority, sipsnHeaderResourcePriority, Rvalues, Rvalue, PbString, rvalue )
PB_API PbString *sipsnHeaderResourcePriorityRvalueAt( SipsnHeaderResourcePriority *hdr, int64_t index );
PB_API void      sipsnHeaderResourcePriorityClearRvalues( SipsnHeaderResourcePriority **hdr );

PB_END_DECLS
#endif
