/* SipsnHeaderDate: the Date header field, RFC 3261 section 20.17; when a message was first sent.
 *
 * Example: Date: Sat, 13 Nov 2010 23:29:00 GMT
 *
 *     Date = wkday ", " 2DIGIT " " month " " 4DIGIT " " 2DIGIT ":" 2DIGIT ":" 2DIGIT " GMT"
 *
 *     time   in UTC; never absent
 *
 * Exactly this form decodes, in this letter case, and only a time that pbTimeValid takes on the weekday that it fell
 * on. A caller's time that is not valid is written without a weekday, and a month beyond 1 to 12 without its name.
 *
 * The last line of the header field counts, and no line is no header. The getter returns a new reference. The setter
 * replaces *hdr by a private copy when it is shared. A null argument aborts. */
#ifndef SIPSN_HEADER_DATE_H
#define SIPSN_HEADER_DATE_H

#include "pb/pb_time.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderDate, sipsnHeaderDate )

PB_API SipsnHeaderDate *sipsnHeaderDateCreate( PbTime *tm );
PB_API SipsnHeaderDate *sipsnHeaderDateCreateFromCurrentTime( void ); /* the system clock */

PB_API PbTime *sipsnHeaderDateTime( SipsnHeaderDate *hdr );
PB_API void    sipsnHeaderDateSetTime( SipsnHeaderDate **hdr, PbTime *tm );

PB_END_DECLS
#endif
