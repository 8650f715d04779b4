/* PbTime: a calendar date and a time of day, in the proleptic Gregorian calendar, without a zone.
 *
 * Setters take any number; pbTimeValid decides. Times compare by year, month, day, hour, minute, second. The text is
 * "2010-11-13 23:29:00". Functions that take `PbTime **` replace *time by a private copy when it is shared. */
#ifndef PB_TIME_H
#define PB_TIME_H

#include "pb_string.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( PbTime ), see pb_types.h */
typedef struct PbTime PbTime;

PB_API PbTime   *pbTimeCreateFrom( PbTime *source );
PB_API PbTime   *pbTimeRetain( PbTime *obj );
PB_API void      pbTimeRelease( PbTime *obj );
PB_API PbObj    *pbTimeObj( PbTime *obj );
PB_API PbTime   *pbTimeFrom( PbObj *obj );
PB_API PbSort   *pbTimeSort( void );
PB_API PbString *pbTimeToString( PbTime *obj );
PB_API int64_t   pbTimeCompare( PbTime *a, PbTime *b );
PB_API bool      pbTimeEquals( PbTime *a, PbTime *b );
/* ./dev lists: end */

PB_API PbTime *pbTimeCreate( void ); /* 1970-01-01 00:00:00 */
PB_API PbTime *pbTimeNow( void );    /* the system clock, UTC */

PB_API int64_t pbTimeYear( PbTime *time );
PB_API int64_t pbTimeMonth( PbTime *time ); /* 1 = January */
PB_API int64_t pbTimeDay( PbTime *time );   /* 1 to 31 */
PB_API int64_t pbTimeHour( PbTime *time );
PB_API int64_t pbTimeMinute( PbTime *time );
PB_API int64_t pbTimeSecond( PbTime *time );

PB_API void pbTimeSetYear( PbTime **time, int64_t year );
PB_API void pbTimeSetMonth( PbTime **time, int64_t month );
PB_API void pbTimeSetDay( PbTime **time, int64_t day );
PB_API void pbTimeSetHour( PbTime **time, int64_t hour );
PB_API void pbTimeSetMinute( PbTime **time, int64_t minute );
PB_API void pbTimeSetSecond( PbTime **time, int64_t second );

/* Whether the fields name a moment: a day that its month has, hours to 23, minutes to 59, seconds to 59, or 60 at
 * 23:59:60. Years are 0 to 9999. */
PB_API bool pbTimeValid( PbTime *time );

/* 0 = Monday to 6 = Sunday. Aborts unless the time is valid. */
PB_API int64_t pbTimeWeekday( PbTime *time );

PB_END_DECLS
#endif
