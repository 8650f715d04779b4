// The format engine, the string functions that are built on it, and integers as text.
#include "pb_format.h"

#include "pb_frame.h"
#include "pb_text.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <iterator>

namespace {

constexpr uint64_t maxWidth = 1'000'000; // of a conversion in a format

// ---- Integers as text ------------------------------------------------------------------------------

struct Digits
{
    PbChar  chs[ pb::maxDigits ];
    int64_t length;

    explicit Digits( uint64_t number, int64_t base = 10, bool upperCase = false )
    {
        const char *const digits = upperCase ? pb::upperDigits : pb::lowerDigits;
        const PbChar     *end    = base == 10 ? pb::WriteNumber( chs, number, pb::Radix< 10 >{}, digits )
                                              : pb::WriteNumber( chs, number, uint64_t( base ), digits );
        length                   = end - chs;
    }
};

void AppendRepeated( PbString **string, PbChar ch, int64_t count )
{
    for( ; count > 0; --count ) pbStringAppendChar( string, ch );
}

void AppendInt( PbString **string, int64_t value, int64_t base, int64_t width, int64_t flags )
{
    const bool   negative  = value < 0;
    const auto   magnitude = negative ? 0 - static_cast< uint64_t >( value ) : static_cast< uint64_t >( value );
    const Digits digits( magnitude, base, flags & PB_FORMAT_FLAG_UPPER_CASE );

    const int64_t padding  = width - digits.length - negative;
    const bool    zeroPads = flags & PB_FORMAT_FLAG_ZERO_PAD;
    if( !zeroPads ) AppendRepeated( string, ' ', padding );
    if( negative ) pbStringAppendChar( string, '-' );
    if( zeroPads ) AppendRepeated( string, '0', padding );
    pbStringAppendChars( string, digits.chs, digits.length );
}

// ---- The engine ------------------------------------------------------------------------------------

struct Conversion
{
    bool    consumes = false; // "~"
    int64_t flags    = 0;     // PB_FORMAT_FLAG_...
    int64_t width    = 0;
    int64_t base     = 10;
    bool    starred  = false; // ".*"
    PbChar  letter   = 0;     // 0 when the format ends before it
};

// Reads a decimal number, 0 when there is none.
template< class Unit > int64_t ReadDecimal( const Unit *&at, const Unit *end )
{
    const auto [ number, length ] = pb::ReadNumber( at, end - at, pb::Radix< 10 >{}, maxWidth );
    PB_ASSERT( number <= maxWidth );
    at += length;
    return int64_t( number );
}

template< class Unit > bool ReadFlag( Conversion &conversion, const Unit *&at )
{
    switch( *at ) {
    case '~': conversion.consumes = true; break;
    case '^': conversion.flags |= PB_FORMAT_FLAG_UPPER_CASE; break;
    case '0': conversion.flags |= PB_FORMAT_FLAG_ZERO_PAD; break;
    default: return false;
    }
    ++at;
    return true;
}

// Reads what follows a "%".
template< class Unit > Conversion ReadConversion( const Unit *&at, const Unit *end )
{
    Conversion conversion;
    while( at < end && ReadFlag( conversion, at ) ) {
    }
    conversion.width = ReadDecimal( at, end );
    if( at < end && *at == '!' ) {
        conversion.base = ReadDecimal( ++at, end );
        PB_ASSERT( conversion.base >= 2 && conversion.base <= 36 );
    }
    if( end - at >= 2 && at[ 0 ] == '.' && at[ 1 ] == '*' ) {
        conversion.starred = true;
        at += 2;
    }
    if( at < end ) conversion.letter = static_cast< PbChar >( *at++ );
    return conversion;
}

void AppendLiteral( PbString **string, const char *text, int64_t length )
{
    pbStringAppendCstr( string, text, length );
}
void AppendLiteral( PbString **string, const PbChar *text, int64_t length )
{
    pbStringAppendChars( string, text, length );
}
void AppendLiteral( PbString **string, const wchar_t *text, int64_t length )
{
    for( int64_t i = 0; i < length; ++i ) pbStringAppendChar( string, static_cast< PbChar >( text[ i ] ) );
}

// Appends to one string what a format makes of its arguments.
class Formatter
{
public:
    Formatter( PbString **string, va_list arguments )
        : string_( string ), original_( *string ), originalLength_( pbStringLength( *string ) )
    {
        va_copy( arguments_, arguments );
    }
    Formatter( const Formatter & )            = delete;
    Formatter &operator=( const Formatter & ) = delete;
    ~Formatter() { va_end( arguments_ ); }

    template< class Unit > void Append( const Unit *format, int64_t length )
    {
        const Unit *const end = format + length;
        while( format < end ) {
            const Unit *percent = std::find( format, end, Unit( '%' ) );
            AppendLiteral( string_, format, percent - format );
            if( percent == end ) break;
            format = percent + 1;
            Convert( ReadConversion( format, end ) );
        }
    }

private:
    void Convert( const Conversion &conversion )
    {
        switch( conversion.letter ) {
        case 's': return AppendString( conversion.consumes );
        case 'i': return AppendInt( string_, NextInt(), conversion.base, conversion.width, conversion.flags );
        case 'A': return AppendIndex( conversion );
        case '%': return pbStringAppendChar( string_, '%' );
        default: PB_ABORT_UNLESS( nullptr, "the conversion is known", false );
        }
    }

    // The string that is appended to may be an argument too. Once it has grown, its text is the beginning of the new
    // one.
    void AppendString( bool consumes )
    {
        PbString *argument = va_arg( arguments_, PbString * );
        PB_ASSERT( argument );
        if( argument == original_ )
            pbStringAppendChars( string_, pbStringBacking( *string_ ), originalLength_ );
        else
            pbStringAppend( string_, argument );
        if( consumes ) pb::Release( argument );
    }

    void AppendIndex( const Conversion &conversion )
    {
        PB_ABORT_UNLESS( nullptr, "the conversion is known", conversion.starred );
        const int64_t highest = NextInt();
        PB_ASSERT( highest >= 0 );
        const Digits digits( static_cast< uint64_t >( highest ) );
        AppendInt( string_, NextInt(), 10, digits.length, PB_FORMAT_FLAG_ZERO_PAD );
    }

    int64_t NextInt() { return va_arg( arguments_, int64_t ); }

    PbString **const      string_;
    const PbString *const original_; // only ever compared: it may have moved
    const int64_t         originalLength_;
    va_list               arguments_;
};

template< class Unit > void AppendFormat( PbString **string, const Unit *format, int64_t length, va_list arguments )
{
    Formatter( string, arguments ).Append( format, length );
}

template< class Unit > PbString *CreateFromFormat( const Unit *format, int64_t length, va_list arguments )
{
    PbString *string = pbStringCreate();
    AppendFormat( &string, format, length, arguments );
    return string;
}

} // namespace

// ---- Strings from formats --------------------------------------------------------------------------

PbString *pbStringCreateFromFormat( PbString *format, ... )
{
    va_list arguments;
    va_start( arguments, format );
    PbString *string = pbStringCreateFromFormatArgList( format, arguments );
    va_end( arguments );
    return string;
}

PbString *pbStringCreateFromFormatArgList( PbString *format, va_list arguments )
{
    PB_ASSERT( format );
    return CreateFromFormat( format->chs, format->length, arguments );
}

PbString *pbStringCreateFromFormatCstr( const char *format, int64_t length, ... )
{
    va_list arguments;
    va_start( arguments, length );
    PbString *string = pbStringCreateFromFormatCstrArgList( format, length, arguments );
    va_end( arguments );
    return string;
}

PbString *pbStringCreateFromFormatCstrArgList( const char *format, int64_t length, va_list arguments )
{
    PbString *string = pbStringCreate();
    pbStringAppendFormatCstrArgList( &string, format, length, arguments );
    return string;
}

PbString *pbStringCreateFromFormatWcstr( const wchar_t *format, int64_t length, ... )
{
    va_list arguments;
    va_start( arguments, length );
    PbString *string = pbStringCreateFromFormatWcstrArgList( format, length, arguments );
    va_end( arguments );
    return string;
}

PbString *pbStringCreateFromFormatWcstrArgList( const wchar_t *format, int64_t length, va_list arguments )
{
    PB_ASSERT( format || length == 0 );
    if( length == -1 ) length = int64_t( std::wcslen( format ) );
    PB_ASSERT( length >= 0 );
    return CreateFromFormat( format, length, arguments );
}

void pbStringAppendFormat( PbString **string, PbString *format, ... )
{
    va_list arguments;
    va_start( arguments, format );
    pbStringAppendFormatArgList( string, format, arguments );
    va_end( arguments );
}

void pbStringAppendFormatArgList( PbString **string, PbString *format, va_list arguments )
{
    PB_ASSERT_SLOT( string );
    PB_ASSERT( format );
    const pb::Ref unmoved{ pb::Retain( format ) }; // also when it is the string that is appended to
    AppendFormat( string, format->chs, format->length, arguments );
}

void pbStringAppendFormatCstr( PbString **string, const char *format, int64_t length, ... )
{
    va_list arguments;
    va_start( arguments, length );
    pbStringAppendFormatCstrArgList( string, format, length, arguments );
    va_end( arguments );
}

void pbStringAppendFormatCstrArgList( PbString **string, const char *format, int64_t length, va_list arguments )
{
    PB_ASSERT_SLOT( string );
    PB_ASSERT( format || length == 0 );
    if( length == -1 ) length = int64_t( std::strlen( format ) );
    PB_ASSERT( length >= 0 );
    AppendFormat( string, format, length, arguments );
}

// ---- Integers --------------------------------------------------------------------------------------

PbString *pbFormatEncodeInt( int64_t value, int64_t base, int64_t width, int64_t flags )
{
    PB_ASSERT( base >= 2 && base <= 36 );
    PB_ASSERT( width >= 0 );
    PbString *string = pbStringCreate();
    AppendInt( &string, value, base, width, flags );
    return string;
}

namespace {

bool ReadInt( const PbChar *chs, int64_t length, uint64_t radix, int64_t &value, int64_t &charsRead )
{
    const bool     negative = length > 0 && chs[ 0 ] == '-';
    const uint64_t most     = static_cast< uint64_t >( INT64_MAX ) + negative;
    const auto read = [ & ]( auto base ) { return pb::ReadNumber( chs + negative, length - negative, base, most ); };

    const pb::Number number = radix == 10 ? read( pb::Radix< 10 >{} ) : read( radix );
    if( number.length == 0 || number.value > most || ( negative && number.value == 0 ) ) return false;
    value     = static_cast< int64_t >( negative ? 0 - number.value : number.value );
    charsRead = negative + number.length;
    return true;
}

} // namespace

bool pbFormatTryDecodeIntChars( const PbChar *chs, int64_t length, int64_t radix, int64_t *result, int64_t *charsRead )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    PB_ASSERT( radix >= 2 && radix <= 36 );
    int64_t    value = -1;
    int64_t    read  = 0;
    const bool found = ReadInt( chs, length, static_cast< uint64_t >( radix ), value, read );
    if( result ) *result = value;
    if( charsRead ) *charsRead = read;
    return found;
}
