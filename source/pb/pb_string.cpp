// PbString: one block with the characters behind the header.
#include "pb_string.h"

#include "pb_block.h"
#include "pb_format.h"
#include "pb_internal.h"
#include "pb_text.h"

#include <unicase.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>

struct PbString::Content
{
    static void Free( PbString & ) {} // nothing to release

    static int64_t Compare( PbString &a, PbString &b )
    {
        const int64_t common = std::min( a.length, b.length );
        for( int64_t i = 0; i < common; ++i )
            if( a.chs[ i ] != b.chs[ i ] ) return a.chs[ i ] < b.chs[ i ] ? -1 : 1;
        return ( a.length > b.length ) - ( a.length < b.length );
    }
};

static_assert( offsetof( pb::ConstantString< 1 >, chs ) == offsetof( PbString, chs ) );

PB_DEFINE_TYPE( PbString, pbString, pb___sort_PB_STRING, "PB_STRING", pb___module, string, string, pbStringRetain )

namespace {

// What a string that is created to be appended to holds without growing: a block of 120 bytes.
constexpr int64_t initialCapacity = 22;
constexpr int64_t maxKeptLength =
    int64_t( ( pb::blockClassCount * pb::blockGranule - sizeof( PbString ) ) / sizeof( PbChar ) );
constexpr int64_t maxLength = ( INT64_MAX - int64_t( sizeof( PbString ) ) ) / int64_t( sizeof( PbChar ) );

size_t  Bytes( int64_t chars ) { return static_cast< size_t >( chars ) * sizeof( PbChar ); }
int64_t BlockSize( int64_t capacity ) { return int64_t( sizeof( PbString ) + Bytes( capacity ) ); }

PbString *AsString( void *block ) { return static_cast< PbString * >( block ); }

PbString *CreateWithCapacity( int64_t capacity )
{
    PB_ASSERT( capacity <= maxLength );
    PbString *string = AsString( pb::CreateObject( BlockSize( capacity ), &pb___sort_PB_STRING ) );
    string->length   = 0;
    string->capacity = capacity;
    return string;
}

// A string of that length whose characters are not set; null when that takes a new block.
PbString *TryCreateInKeptBlock( int64_t length )
{
    if( length > maxKeptLength ) return nullptr;
    const size_t blockClass = pb::BlockClass( BlockSize( length ) );
    void        *block      = pb::TryTakeBlock( blockClass );
    if( !block ) return nullptr;
    PbString *string = AsString( pb::InitObject( block, &pb___sort_PB_STRING, uint32_t( blockClass ) ) );
    string->length   = length;
    string->capacity = length;
    return string;
}

[[gnu::noinline]] PbString *CopyInNewBlock( const PbChar *chs, int64_t length )
{
    PbString *string = CreateWithCapacity( length );
    string->length   = length;
    if( length ) std::memcpy( string->chs, chs, Bytes( length ) );
    return string;
}

// For texts of some ten characters, where a call costs more than the copying.
void CopyFew( PbChar *to, const PbChar *from, int64_t length )
{
    constexpr int64_t step     = 4;
    const auto        copyStep = [ = ]( int64_t at ) { std::memcpy( to + at, from + at, step * sizeof( PbChar ) ); };
    if( length < step ) {
        for( int64_t at = 0; at < length; ++at ) to[ at ] = from[ at ];
        return;
    }
    for( int64_t at = 0; at < length - step; at += step ) copyStep( at );
    copyStep( length - step );
}

void Resize( PbString *&string, int64_t capacity )
{
    pb::Reallocate( string, 1, BlockSize( capacity ) );
    string->capacity = capacity;
}

// Makes the string private, with room for `count` more characters; their place.
[[gnu::noinline]] PbChar *Grow( PbString *&string, int64_t count )
{
    PB_ASSERT( count <= maxLength - string->length );
    const int64_t needed = string->length + count;
    if( pb::IsShared( string ) ) {
        PbString *copy = CreateWithCapacity( needed );
        std::copy_n( string->chs, string->length, copy->chs );
        copy->length = string->length;
        pb::Release( std::exchange( string, copy ) );
    } else
        Resize( string, std::min( std::max( needed, 2 * string->capacity ), maxLength ) );
    return string->chs + string->length;
}

PbChar *Reserve( PbString *&string, int64_t count )
{
    const bool ready = count <= string->capacity - string->length && !pb::IsShared( string );
    return ready ? string->chs + string->length : Grow( string, count );
}

// Makes room as Reserve does and appends. The characters may be the string's own, which move with it.
void AppendChars( PbString *&string, const PbChar *chs, int64_t length )
{
    if( length == 0 ) return;
    const bool    own  = chs >= string->chs && chs < string->chs + string->length;
    const int64_t from = own ? chs - string->chs : 0;
    PbChar *const to   = Reserve( string, length );
    std::memcpy( to, own ? string->chs + from : chs, Bytes( length ) );
    string->length += length;
}

// Decodes UTF-8 into the room behind the string; false when strict decoding fails.
bool AppendUtf8( PbString *&string, const PbByte *bytes, int64_t length, bool strict )
{
    PbChar *const to      = Reserve( string, length );
    const int64_t decoded = pb::DecodeUtf8( to, bytes, length, strict );
    if( decoded < 0 ) return false;
    string->length += decoded;
    return true;
}

// Gives back memory that text with few characters for its bytes has left over.
void Trim( PbString *&string )
{
    const int64_t spare = string->capacity - string->length;
    if( spare > 16 && spare > string->length / 4 ) Resize( string, string->length );
}

// Null when strict decoding fails.
PbString *CreateFromUtf8( const PbByte *bytes, int64_t length, bool strict )
{
    PbString *string = TryCreateInKeptBlock( length );
    if( !string ) string = CreateWithCapacity( length );
    const int64_t decoded = pb::DecodeUtf8( string->chs, bytes, length, strict );
    if( decoded == length ) [[likely]] {
        string->length = length;
        return string;
    }
    if( decoded < 0 ) {
        pb::Release( string );
        return nullptr;
    }
    string->length = decoded;
    Trim( string );
    return string;
}

const PbByte *AsBytes( const char *text ) { return reinterpret_cast< const PbByte * >( text ); }

int64_t ZeroTerminatedLength( const char *text ) { return int64_t( std::strlen( text ) ); }
int64_t ZeroTerminatedLength( const wchar_t *text ) { return int64_t( std::wcslen( text ) ); }

// The length that is meant by a text and the length given with it.
template< class Unit > int64_t TextLength( const Unit *text, int64_t length )
{
    PB_ASSERT( text || length == 0 );
    if( length == -1 ) length = ZeroTerminatedLength( text );
    PB_ASSERT( length >= 0 );
    return length;
}

} // namespace

// ---- Creation --------------------------------------------------------------------------------------

PbString *pbStringCreate( void ) { return CreateWithCapacity( initialCapacity ); }

PbString *pbStringCreateFromCstr( const char *text, int64_t length )
{
    return CreateFromUtf8( AsBytes( text ), TextLength( text, length ), false );
}

PbString *pbStringCreateFromWcstr( const wchar_t *text, int64_t length )
{
    static_assert( sizeof( wchar_t ) == sizeof( PbChar ), "a wide character is a code point" );
    length           = TextLength( text, length );
    PbString *string = pb___StringCreateUninitialized( length );
    std::transform( text, text + length, string->chs, []( wchar_t ch ) { return PbChar( ch ); } );
    return string;
}

PbString *pbStringCreateFromCharsCopy( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    PbString *string = TryCreateInKeptBlock( length );
    if( !string ) return CopyInNewBlock( chs, length );
    CopyFew( string->chs, chs, length );
    return string;
}

PbString *pb___StringCreateUninitialized( int64_t length )
{
    PB_ASSERT( length >= 0 );
    PbString *string = CreateWithCapacity( length );
    string->length   = length;
    return string;
}

PbString *pb___StringTryCreateFromUtf8( const PbByte *bytes, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( bytes || length == 0 );
    return CreateFromUtf8( bytes, length, true );
}

// ---- Characters ------------------------------------------------------------------------------------

int64_t pbStringLength( PbString *string )
{
    PB_ASSERT( string );
    return string->length;
}

const PbChar *pbStringBacking( PbString *string )
{
    PB_ASSERT( string );
    return string->chs;
}

PbChar pbStringCharAt( PbString *string, int64_t index )
{
    PB_ASSERT( string );
    PB_ASSERT( index >= 0 );
    PB_ASSERT( index < string->length );
    return string->chs[ index ];
}

// ---- Appending -------------------------------------------------------------------------------------

void pbStringAppend( PbString **string, PbString *tail )
{
    PB_ASSERT_SLOT( string );
    PB_ASSERT( tail );
    AppendChars( *string, tail->chs, tail->length );
}

void pbStringAppendChar( PbString **string, PbChar ch )
{
    PB_ASSERT_SLOT( string );
    *Reserve( *string, 1 ) = ch;
    ++( *string )->length;
}

void pbStringAppendChars( PbString **string, const PbChar *chs, int64_t length )
{
    PB_ASSERT_SLOT( string );
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    AppendChars( *string, chs, length );
}

void pbStringAppendCstr( PbString **string, const char *text, int64_t length )
{
    PB_ASSERT_SLOT( string );
    AppendUtf8( *string, AsBytes( text ), TextLength( text, length ), false );
}

bool pb___StringTryAppendUtf8( PbString **string, const PbByte *bytes, int64_t length )
{
    PB_ASSERT_SLOT( string );
    PB_ASSERT( length >= 0 );
    PB_ASSERT( bytes || length == 0 );
    return AppendUtf8( *string, bytes, length, true );
}

void pbStringDelimitedAppendCharDelimiter( PbString **string, PbChar delimiter, PbString *tail )
{
    PB_ASSERT_SLOT( string );
    PB_ASSERT( tail );
    const PbChar *chs    = tail->chs;
    const int64_t length = tail->length;
    if( ( *string )->length ) {
        const bool own         = tail == *string;
        *Reserve( *string, 1 ) = delimiter;
        ++( *string )->length;
        if( own ) chs = ( *string )->chs;
    }
    AppendChars( *string, chs, length );
}

// ---- Parts -----------------------------------------------------------------------------------------

PbString *pbStringInner( PbString *string, int64_t index, int64_t count )
{
    PB_ASSERT( string );
    PB_ASSERT( index >= 0 );
    PB_ASSERT( count >= 0 );
    PB_ASSERT( index <= string->length );
    PB_ASSERT( count <= string->length - index );
    return count == string->length ? pb::Retain( string ) : pbStringCreateFromCharsCopy( string->chs + index, count );
}

PbString *pbStringLeading( PbString *string, int64_t count )
{
    PB_ASSERT( string );
    PB_ASSERT( count >= 0 );
    PB_ASSERT( count <= string->length );
    return pbStringInner( string, 0, count );
}

PbString *pbStringTrailing( PbString *string, int64_t count )
{
    PB_ASSERT( string );
    PB_ASSERT( count >= 0 );
    PB_ASSERT( count <= string->length );
    return pbStringInner( string, string->length - count, count );
}

PbString *pbStringOuter( PbString *string, int64_t index, int64_t count )
{
    PB_ASSERT( string );
    PB_ASSERT( index >= 0 );
    PB_ASSERT( count >= 0 );
    PB_ASSERT( index <= string->length );
    PB_ASSERT( count <= string->length - index );
    if( count == 0 ) return pb::Retain( string );
    PbString *outer = pb___StringCreateUninitialized( string->length - count );
    std::copy_n( string->chs, index, outer->chs );
    std::copy_n( string->chs + index + count, string->length - index - count, outer->chs + index );
    return outer;
}

// ---- Equality --------------------------------------------------------------------------------------

bool pbStringEqualsChars( PbString *string, const PbChar *chs, int64_t length )
{
    PB_ASSERT( string );
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    return string->length == length && ( length == 0 || std::memcmp( string->chs, chs, Bytes( length ) ) == 0 );
}

bool pbStringEqualsCstr( PbString *string, const char *text, int64_t length )
{
    PB_ASSERT( string );
    length              = TextLength( text, length );
    const PbByte *bytes = AsBytes( text );
    int64_t       used  = 0;
    for( int64_t i = 0; i < string->length; ++i ) {
        if( used == length ) return false;
        PbChar ch;
        used += pb::DecodeUtf8Sequence( ch, bytes + used, length - used );
        if( string->chs[ i ] != ( ch < 0 ? pb::replacementChar : ch ) ) return false;
    }
    return used == length;
}

// ---- Case ------------------------------------------------------------------------------------------

namespace {

using CaseMapper = decltype( &u32_tolower );

// What Unicode can map: the library turns other numbers into U+FFFD.
bool IsScalar( PbChar ch ) { return PB_CHAR_OK( ch ) && ( ch < 0xD800 || ch > 0xDFFF ); }

// Appends the mapping of a run of Unicode characters.
void AppendMapped( PbString *&string, const PbChar *chs, int64_t length, CaseMapper mapper )
{
    size_t    mappedLength = 0;
    uint32_t *mapped = mapper( reinterpret_cast< const uint32_t * >( chs ), static_cast< size_t >( length ), nullptr,
                               nullptr, nullptr, &mappedLength );
    PB_ASSERT( mapped );
    AppendChars( string, reinterpret_cast< const PbChar * >( mapped ), int64_t( mappedLength ) );
    std::free( mapped );
}

void MapUnicodeCase( PbString *&string, CaseMapper mapper )
{
    pb::Ref             mapped{ CreateWithCapacity( string->length ) };
    const PbChar       *chs = string->chs;
    const PbChar *const end = chs + string->length;
    while( chs < end ) {
        const PbChar *other = std::find_if_not( chs, end, IsScalar );
        if( other > chs ) AppendMapped( *mapped.Slot(), chs, other - chs, mapper );
        chs = std::find_if( other, end, IsScalar );
        AppendChars( *mapped.Slot(), other, chs - other );
    }
    if( !pbStringEquals( mapped.Get(), string ) ) pb::Release( std::exchange( string, mapped.Detach() ) );
}

// Puts the letters from `first` on into the other case; text without one is not even copied. A single character that is
// not ASCII leaves the whole text to `mapper`, since a mapping may depend on the neighbours.
template< PbChar first > void MapCase( PbString *&string, CaseMapper mapper )
{
    const auto          changes = []( PbChar ch ) { return !pb::IsAscii( ch ) || pb::IsLetterFrom( first, ch ); };
    const PbChar *const end     = string->chs + string->length;
    const PbChar *const found   = std::find_if( end - string->length, end, changes );
    if( found == end ) return;
    if( !std::all_of( found, end, pb::IsAscii ) ) return MapUnicodeCase( string, mapper );

    const int64_t at = found - string->chs;
    pb::MakeUnique( string );
    pb::CopyInOtherCase< first >( string->chs + at, string->chs + at, string->length - at );
}

} // namespace

void pbStringToLower( PbString **string )
{
    PB_ASSERT_SLOT( string );
    MapCase< 'A' >( *string, u32_tolower );
}

void pbStringToUpper( PbString **string )
{
    PB_ASSERT_SLOT( string );
    MapCase< 'a' >( *string, u32_toupper );
}

// ---- Splitting -------------------------------------------------------------------------------------

PbVector *pbStringSplitChar( PbString *string, PbChar ch, int64_t limit )
{
    return pbStringSplitChars( string, &ch, 1, limit );
}

PbVector *pbStringSplitChars( PbString *string, const PbChar *chs, int64_t count, int64_t limit )
{
    PB_ASSERT( string );
    PB_ASSERT( count >= 0 );
    PB_ASSERT( chs || count == 0 );
    PB_ASSERT( limit == -1 || limit > 0 );

    const PbChar *const chsEnd   = chs + count;
    const auto          cutsAt   = [ = ]( PbChar ch ) { return std::find( chs, chsEnd, ch ) != chsEnd; };
    const bool          joinCrLf = cutsAt( '\r' ) && cutsAt( '\n' );
    const PbChar        highest  = count ? *std::max_element( chs, chsEnd ) : -1;

    pb::Ref             pieces{ pb___VectorCreateWithCapacity( 4 ) };
    const PbChar       *piece  = string->chs;
    const PbChar *const end    = piece + string->length;
    const auto          append = [ & ]( const PbChar *pieceEnd ) {
        PbString *text = pbStringInner( string, piece - string->chs, pieceEnd - piece );
        pb___VectorAppendOwned( pieces.Slot(), pbStringObj( text ) );
    };
    for( const PbChar *at = piece; at < end && --limit; ) {
        // Line ends are below all other text, so that one comparison passes over most of it.
        while( at < end && ( *at > highest || !cutsAt( *at ) ) ) ++at;
        if( at == end ) break;
        append( at );
        at += joinCrLf && *at == '\r' && at + 1 < end && at[ 1 ] == '\n' ? 2 : 1;
        piece = at;
    }
    append( end );
    return pieces.Detach();
}

// ---- Numbers ---------------------------------------------------------------------------------------

bool pbStringScanInt( PbString *string, int64_t position, int64_t length, int64_t radix, int64_t *value,
                      int64_t *charsRead )
{
    PB_ASSERT( string );
    PB_ASSERT( position >= 0 );
    PB_ASSERT( position <= string->length );
    if( length == -1 ) length = string->length - position;
    PB_ASSERT( length >= 0 );
    PB_ASSERT( length <= string->length - position );
    return pbFormatTryDecodeIntChars( string->chs + position, length, radix, value, charsRead );
}
