/* Status codes, RFC 3261 sections 7.2 and 21: 100 to 999. */
#ifndef SIPSN_STATUS_CODE_H
#define SIPSN_STATUS_CODE_H

#include "pb/pb_string.h"

/* Stands for no status code. */
#define SIPSN_STATUS_CODE_INVALID ( -1 )

PB_BEGIN_DECLS

/* Whether the number is 100 to 999. */
PB_API bool sipsnStatusCodeOk( int64_t sc );

/* The class of a code: 100 to 199, 200 to 299 and so on to 600 to 699. Codes from 700 on belong to none. What is not a
 * status code aborts. */
PB_API bool sipsnStatusCodeInformational( int64_t sc );
PB_API bool sipsnStatusCodeSuccess( int64_t sc );
PB_API bool sipsnStatusCodeRedirection( int64_t sc );
PB_API bool sipsnStatusCodeClientError( int64_t sc );
PB_API bool sipsnStatusCodeServerError( int64_t sc );
PB_API bool sipsnStatusCodeGlobalFailure( int64_t sc );

/* The default reason phrase of a code, as a new reference; a code that has none gives a phrase that names its number.
 * What is not a status code aborts. */
PB_API PbString *sipsnStatusCodeReasonPhrase( int64_t sc );

PB_END_DECLS
#endif
