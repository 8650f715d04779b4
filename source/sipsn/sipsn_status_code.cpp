// Status codes: the range, the classes, and the default reason phrases.
#include "sipsn_status_code.h"

#include "sipsn_token_frame.h"

// Fixed as they stand: "Length required" is the phrase of 412, and 411 has none.
static constexpr sipsn::CodeText phrases[] = {
    { 100, "Trying" },
    { 180, "Ringing" },
    { 181, "Call is being forwarded" },
    { 182, "Queued" },
    { 183, "Session progress" },
    { 200, "OK" },
    { 202, "Accepted" },
    { 300, "Multiple choices" },
    { 301, "Moved permanently" },
    { 302, "Moved temporarily" },
    { 305, "Use proxy" },
    { 380, "Alternative service" },
    { 400, "Bad request" },
    { 401, "Unauthorized" },
    { 402, "Payment required" },
    { 403, "Forbidden" },
    { 404, "Not found" },
    { 405, "Method not allowed" },
    { 406, "Not acceptable" },
    { 407, "Proxy authentication required" },
    { 408, "Request timeout" },
    { 409, "Conflict" },
    { 410, "Gone" },
    { 412, "Length required" },
    { 413, "Request entity too large" },
    { 414, "Request-URI too long" },
    { 415, "Unsupported media type" },
    { 416, "Unsupported URI scheme" },
    { 420, "Bad extension" },
    { 421, "Extension required" },
    { 422, "Session interval too small" },
    { 423, "Interval too brief" },
    { 424, "Bad Location Information" },
    { 429, "Provide referrer identity" },
    { 480, "Temporarily not available" },
    { 481, "Call leg/transaction does not exist" },
    { 482, "Loop detected" },
    { 483, "Too many hops" },
    { 484, "Address incomplete" },
    { 485, "Ambiguous" },
    { 486, "Busy here" },
    { 487, "Request terminated" },
    { 488, "Not acceptable here" },
    { 489, "Bad event" },
    { 491, "Request pending" },
    { 493, "Undecipherable" },
    { 500, "Internal server error" },
    { 501, "Not implemented" },
    { 502, "Bad gateway" },
    { 503, "Service unavailable" },
    { 504, "Server timeout" },
    { 505, "SIP version not supported" },
    { 513, "Message too large" },
    { 580, "Precondition failed" },
    { 600, "Busy everywhere" },
    { 603, "Decline" },
    { 604, "Does not exist anywhere" },
    { 606, "Not acceptable" },
};
static_assert( std::ranges::is_sorted( phrases, {}, &sipsn::CodeText::code ) );

bool sipsnStatusCodeOk( int64_t sc ) { return sc >= 100 && sc <= 999; }

bool sipsnStatusCodeInformational( int64_t sc )
{
    PB_ASSERT( sipsnStatusCodeOk( sc ) );
    return sc / 100 == 1;
}

bool sipsnStatusCodeSuccess( int64_t sc )
{
    PB_ASSERT( sipsnStatusCodeOk( sc ) );
    return sc / 100 == 2;
}

bool sipsnStatusCodeRedirection( int64_t sc )
{
    PB_ASSERT( sipsnStatusCodeOk( sc ) );
    return sc / 100 == 3;
}

bool sipsnStatusCodeClientError( int64_t sc )
{
    PB_ASSERT( sipsnStatusCodeOk( sc ) );
    return sc / 100 == 4;
}

bool sipsnStatusCodeServerError( int64_t sc )
{
    PB_ASSERT( sipsnStatusCodeOk( sc ) );
    return sc / 100 == 5;
}

bool sipsnStatusCodeGlobalFailure( int64_t sc )
{
    PB_ASSERT( sipsnStatusCodeOk( sc ) );
    return sc / 100 == 6;
}

PbString *sipsnStatusCodeReasonPhrase( int64_t sc )
{
    PB_ASSERT( sipsnStatusCodeOk( sc ) );
    if( const char *phrase = sipsn::TextOfCode( phrases, sc ) ) return pbStringCreateFromCstr( phrase, -1 );
    return pbStringCreateFromFormatCstr( "Unknown reason \"%03i\"", -1, sc );
}
