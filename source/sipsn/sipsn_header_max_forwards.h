/* SipsnHeaderMaxForwards: the Max-Forwards header field, RFC 3261 section 20.22; how many hops are left.
 *
 * Example: Max-Forwards: 70
 *
 *     Max-Forwards = 1*DIGIT
 *
 *     max forwards   0 to 255; never absent
 *
 * The last line of the header field counts, and no line is no header. The setter replaces *hdr by a private copy when
 * it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_MAX_FORWARDS_H
#define SIPSN_HEADER_MAX_FORWARDS_H

#include "sipsn_header.h"
#include "sipsn_max_forwards.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderMaxForwards, sipsnHeaderMaxForwards )

PB_API SipsnHeaderMaxForwards *sipsnHeaderMaxForwardsCreate( int64_t maxForwards );

PB_API int64_t sipsnHeaderMaxForwardsMaxForwards( SipsnHeaderMaxForwards *hdr );
PB_API void    sipsnHeaderMaxForwardsSetMaxForwards( SipsnHeaderMaxForwards **hdr, int64_t maxForwards );

PB_END_DECLS
#endif
