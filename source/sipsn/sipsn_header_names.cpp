// The header names of the SIP registry as shared strings, and a hash table over them that is made at compile time.
#include "sipsn_header_names.h"

#include "sipsn_char_class.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

namespace sipsn {

static constexpr auto  &names = headerNames;
static constexpr size_t count = std::size( names );
static_assert( std::ranges::is_sorted( names ) );

// RFC 3261 section 7.3.3 and the RFCs that registered compact names since.
struct CompactName
{
    char             letter;
    std::string_view name;
};
static constexpr CompactName compactNames[] = {
    { 'a', "Accept-Contact" },
    { 'u', "Allow-Events" },
    { 'i', "Call-Id" },
    { 'm', "Contact" },
    { 'e', "Content-Encoding" },
    { 'l', "Content-Length" },
    { 'c', "Content-Type" },
    { 'o', "Event" },
    { 'f', "From" },
    { 'y', "Identity" },
    { 'n', "Identity-Info" },
    { 'r', "Refer-To" },
    { 'b', "Referred-By" },
    { 'j', "Reject-Contact" },
    { 'd', "Request-Disposition" },
    { 'x', "Session-Expires" },
    { 's', "Subject" },
    { 'k', "Supported" },
    { 't', "To" },
    { 'v', "Via" },
};

static constexpr uint8_t none = 255;
static_assert( count < none );

// A token character in lower case; 0 for every other byte.
static constexpr auto lowerToken = [] {
    std::array< uint8_t, 256 > table{};
    for( int ch = 0; ch < 128; ++ch )
        if( Is( ch, Token ) ) table[ size_t( ch ) ] = uint8_t( AsciiLower( ch ) );
    return table;
}();

template< class Ch > static constexpr uint8_t Lower( Ch ch )
{
    return uint32_t( ch ) < 256 ? lowerToken[ uint32_t( ch ) ] : uint8_t( 0 );
}

// A name in lower case, zeros behind it. What is not of a token is 0 in lower case, too: equal lengths tell them apart.
using LowerName = std::array< uint8_t, longestHeaderName >;

static constexpr auto lowerNames = [] {
    std::array< LowerName, count > table{};
    for( size_t at = 0; at < count; ++at )
        for( size_t n = 0; n < names[ at ].size(); ++n ) table[ at ][ n ] = Lower( names[ at ][ n ] );
    return table;
}();

// Length and three letters, in whatever case, tell nearly all names apart: with these factors, two share a slot.
static constexpr size_t                      slotCount = 1024;
template< class Ch > static constexpr size_t FirstSlot( const Ch *name, size_t length )
{
    const auto letter = [ = ]( size_t n ) { return size_t( uint32_t( name[ n ] ) | 0x20 ); };
    return ( length * 35 + letter( 0 ) * 63 + letter( length / 2 ) * 61 + letter( length - 1 ) * 93 ) % slotCount;
}

static constexpr auto slots = [] {
    std::array< uint8_t, slotCount > table{};
    for( uint8_t &slot : table ) slot = none;
    for( size_t at = 0; at < count; ++at ) {
        size_t slot = FirstSlot( lowerNames[ at ].data(), names[ at ].size() );
        while( table[ slot ] != none ) slot = ( slot + 1 ) % slotCount;
        table[ slot ] = uint8_t( at );
    }
    return table;
}();

static constexpr auto compact = [] {
    std::array< uint8_t, 26 > table{};
    for( uint8_t &index : table ) index = none;
    for( const CompactName &entry : compactNames )
        for( size_t at = 0; at < count; ++at )
            if( names[ at ] == entry.name ) table[ size_t( entry.letter - 'a' ) ] = uint8_t( at );
    return table;
}();

template< size_t... at > static consteval auto MakeStrings( std::index_sequence< at... > )
{
    return std::array{ pb::ConstantString< longestHeaderName >{ names[ at ] }... };
}
constinit const decltype( headerNameStrings ) headerNameStrings = MakeStrings( std::make_index_sequence< count >{} );

template< class Ch > static int64_t NumberOf( const Ch *name, int64_t length )
{
    if( length == 1 ) {
        const uint8_t letter = Lower( name[ 0 ] );
        const uint8_t found  = letter >= 'a' && letter <= 'z' ? compact[ size_t( letter - 'a' ) ] : none;
        return found == none ? -1 : found;
    }
    if( length < 1 || length >= int64_t( longestHeaderName ) ) return -1;
    for( size_t slot = FirstSlot( name, size_t( length ) ); slots[ slot ] != none; slot = ( slot + 1 ) % slotCount ) {
        const size_t number = slots[ slot ];
        if( names[ number ].size() != size_t( length ) ) continue;
        int64_t left = length;
        while( left > 0 && Lower( name[ left - 1 ] ) == lowerNames[ number ][ size_t( left - 1 ) ] ) --left;
        if( left == 0 ) return int64_t( number );
    }
    return -1;
}

int64_t KnownHeaderNumber( const PbChar *chs, int64_t length ) { return NumberOf( chs, length ); }
int64_t KnownHeaderNumber( const PbByte *bytes, int64_t length ) { return NumberOf( bytes, length ); }

template< class Ch > static HeaderNameToken Scan( const Ch *chs, int64_t length )
{
    int64_t at = 0;
    while( at < length && Lower( chs[ at ] ) ) ++at;
    return { at, NumberOf( chs, at ) };
}

HeaderNameToken ScanHeaderName( const PbChar *chs, int64_t length ) { return Scan( chs, length ); }
HeaderNameToken ScanHeaderName( const PbByte *bytes, int64_t length ) { return Scan( bytes, length ); }

// A name as it may be written: where a letter stands, its bit of the case does not matter, and behind the end nothing.
struct Pattern
{
    LowerName lower, anyBits;
    size_t    size;
};
static constexpr auto patterns = [] {
    std::array< Pattern, count > table{};
    for( size_t at = 0; at < count; ++at ) {
        Pattern &pattern = table[ at ];
        pattern.lower    = lowerNames[ at ];
        pattern.size     = names[ at ].size();
        for( size_t n = 0; n < longestHeaderName; ++n ) {
            const bool letter    = pattern.lower[ n ] >= 'a' && pattern.lower[ n ] <= 'z';
            pattern.anyBits[ n ] = n >= pattern.size ? 0xFF : letter ? 0x20 : 0;
        }
    }
    return table;
}();

HeaderNameToken ScanUsualHeaderName( const PbByte *bytes, int64_t length )
{
    if( length < 32 ) return { 0, -1 };
    const pb::Block colon = pb::Block::Of( ':' );
    const pb::Block low   = pb::Block::Load( bytes );
    uint32_t        found = low.Equal( colon );
    if( found == 0 ) found = pb::Block::Load( bytes + 16 ).Equal( colon ) << 16; // few names are so long
    if( found == 0 ) return { 0, -1 };
    const size_t size = size_t( std::countr_zero( found ) );
    if( size < 2 ) return { int64_t( size ), size == 1 ? NumberOf( bytes, 1 ) : -1 };

    for( size_t slot = FirstSlot( bytes, size ); slots[ slot ] != none; slot = ( slot + 1 ) % slotCount ) {
        const Pattern &pattern = patterns[ slots[ slot ] ];
        const auto     fits    = [ & ]( size_t at ) {
            const pb::Block lower = pb::Block::Load( pattern.lower.data() + at );
            return pb::Block::Load( bytes + at ).Differs( lower, pb::Block::Load( pattern.anyBits.data() + at ) ) == 0;
        };
        if( pattern.size == size && fits( 0 ) && ( size <= 16 || fits( 16 ) ) )
            return { int64_t( size ), slots[ slot ] };
    }
    return { 0, -1 };
}

// Tokens are ASCII, so that upper and lower case are too.
template< class Ch > static PbString *Capitalise( const Ch *chs, int64_t length )
{
    PbString *name      = pb___StringCreateUninitialized( length );
    bool      wordBegin = true;
    for( int64_t at = 0; at < length; ++at ) {
        const uint8_t lower = Lower( chs[ at ] );
        name->chs[ at ]     = wordBegin ? pb::AsciiUpper( lower ) : lower;
        wordBegin           = lower == '-';
    }
    return name;
}

PbString *CapitaliseHeaderName( const PbChar *chs, int64_t length ) { return Capitalise( chs, length ); }
PbString *CapitaliseHeaderName( const PbByte *bytes, int64_t length ) { return Capitalise( bytes, length ); }

} // namespace sipsn
