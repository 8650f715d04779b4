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
 * Only the last line of the header field counts; without lines it does not decode. The getter returns a new reference.
 * The setter replaces *hdr by a private copy when it is shared. A null argument aborts. */
#ifndef SIPSN_HEADER_DATE_H
#define SIPSN_HEADER_DATE_H

#include "pb/pb_time.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderDate ), see sipsn_header.h */
typedef struct SipsnHeaderDate SipsnHeaderDate;

PB_API SipsnHeaderDate *sipsnHeaderDateCreateFrom( SipsnHeaderDate *source );
PB_API SipsnHeaderDate *sipsnHeaderDateRetain( SipsnHeaderDate *obj );
PB_API void             sipsnHeaderDateRelease( SipsnHeaderDate *obj );
PB_API PbObj           *sipsnHeaderDateObj( SipsnHeaderDate *obj );
PB_API SipsnHeaderDate *sipsnHeaderDateFrom( PbObj *obj );
PB_API PbSort          *sipsnHeaderDateSort( void );
PB_API PbString        *sipsnHeaderDateToString( SipsnHeaderDate *obj );
PB_API int64_t          sipsnHeaderDateCompare( SipsnHeaderDate *a, SipsnHeaderDate *b );
PB_API bool             sipsnHeaderDateEquals( SipsnHeaderDate *a, SipsnHeaderDate *b );

PB_API SipsnHeaderDate    *sipsnHeaderDateTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderDateEncode( SipsnHeaderDate *hdr );
PB_API SipsnHeaderDate    *sipsnHeaderDateTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderDateEncodeToMessage( SipsnHeaderDate *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderDatePresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderDateRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderDateStore( SipsnHeaderDate *hdr );
PB_API SipsnHeaderDate    *sipsnHeaderDateTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderDate *sipsnHeaderDateCreate( PbTime *tm );
PB_API SipsnHeaderDate *sipsnHeaderDateCreateFromCurrentTime( void ); /* the system clock */

PB_API PbTime *sipsnHeaderDateTime( SipsnHeaderDate *hdr );
PB_API void    sipsnHeaderDateSetTime( SipsnHeaderDate **hdr, PbTime *tm );

PB_END_DECLS
#endif
