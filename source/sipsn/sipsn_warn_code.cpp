// Codes of Warning: the range, the default texts, and the wire form.
#include "sipsn_warn_code.h"

#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

static constexpr sipsn::CodeText texts[] = {
    { 300, "Incompatible network protocol" },   { 301, "Incompatible network address formats" },
    { 302, "Incompatible transport protocol" }, { 303, "Incompatible bandwidth units" },
    { 304, "Media type not available" },        { 305, "Incompatible media format" },
    { 306, "Attribute not understood" },        { 307, "Session description parameter not understood" },
    { 330, "Multicast not available" },         { 331, "Unicast not available" },
    { 370, "Insufficient bandwidth" },          { 399, "Miscellaneous warning" },
};
static_assert( std::ranges::is_sorted( texts, {}, &sipsn::CodeText::code ) );

bool sipsnWarnCodeOk( int64_t warnCode ) { return warnCode >= 0 && warnCode <= 999; }

PbString *sipsnWarnCodeToString( int64_t warnCode )
{
    PB_ASSERT( sipsnWarnCodeOk( warnCode ) );
    if( const char *text = sipsn::TextOfCode( texts, warnCode ) ) return pbStringCreateFromCstr( text, -1 );
    return pbStringCreateFromFormatCstr( "Warning \"%03i\"", -1, warnCode );
}

int64_t sipsn___WarnCodeDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    int64_t    result    = -1;
    int64_t    charsRead = 0;
    const bool isInt     = pbFormatTryDecodeIntChars( chs, length, 10, &result, &charsRead );
    PB_ABORT_UNLESS( nullptr,
                     "pbFormatTryDecodeIntChars( chs, length, 10, &result, &charsRead ) && charsRead == length",
                     isInt && charsRead == length );
    return result;
}

PbString *sipsn___WarnCodeEncode( int64_t warnCode )
{
    PB_ASSERT( sipsnWarnCodeOk( warnCode ) );
    return pbFormatEncodeInt( warnCode, 10, 0, 0 );
}
