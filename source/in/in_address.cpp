// InAddress: the scanners of iri vouch for a text, so that the two libraries never differ on what an address is.
#include "in_address.h"

#include "in_internal.h"
#include "iri/iri_internal.h"
#include "pb/pb_text.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

struct InAddress
{
    PbObj    obj;
    int64_t  length; // in bytes, 4 or 16
    uint64_t high;   // the bytes in network order as one number: its upper half, 0 for IPv4, and the lower one
    uint64_t low;

    static constexpr auto Members() { return pb::Members{ &InAddress::length, &InAddress::high, &InAddress::low }; }
};

PB_DEFINE_TYPE( InAddress, inAddress, in___sort_IN_ADDRESS, "IN_ADDRESS", in___module, address, address,
                inAddressToStringShrink )

namespace {

using pb::Text;
using Groups = std::array< uint16_t, 8 >; // of an IPv6 address

InAddress *Create( int64_t length, uint64_t high, uint64_t low )
{
    InAddress *address = pb::New< InAddress >();
    address->length    = length;
    address->high      = high;
    address->low       = low;
    return address;
}

// An IPv4 address that the scanner has matched.
uint32_t ReadV4( Text text )
{
    uint32_t address = 0;
    uint32_t octet   = 0;
    for( int64_t n = 0; n < text.length; ++n ) {
        if( text[ n ] != '.' ) {
            octet = octet * 10 + uint32_t( text[ n ] - '0' );
        } else {
            address = address << 8 | octet;
            octet   = 0;
        }
    }
    return address << 8 | octet;
}

// An IPv6 address that the scanner has matched. The groups after "::" are read into place behind those before it, and
// then moved to the end.
Groups ReadV6( Text text )
{
    Groups groups{};
    auto   next   = groups.begin();
    auto   elided = groups.end(); // where "::" stands
    while( text.length > 0 ) {
        if( text.Has( 0, ':' ) ) {
            if( text.Has( 1, ':' ) ) elided = next;
            text = text.From( text.Has( 1, ':' ) ? 2 : 1 );
            continue;
        }
        const auto [ value, length ] = pb::ReadNumber( text.chs, text.length, pb::Radix< 16 >{}, 0xFFFF );
        if( text.Has( length, '.' ) ) {
            const uint32_t address = ReadV4( text );

            *next++ = uint16_t( address >> 16 );
            *next++ = uint16_t( address );
            break;
        }
        *next++ = uint16_t( value );
        text    = text.From( length );
    }
    if( elided != groups.end() ) {
        const auto tail = std::move_backward( elided, next, groups.end() );
        std::fill( elided, tail, uint16_t( 0 ) );
    }
    return groups;
}

Groups GroupsOf( const InAddress *address )
{
    Groups groups;
    for( size_t n = 0; n < groups.size(); ++n )
        groups[ n ] = uint16_t( ( n < 4 ? address->high : address->low ) >> ( 48 - 16 * ( n % 4 ) ) );
    return groups;
}

// Collects a text; the longest is eight groups of four digits.
struct Output
{
    PbChar  chs[ 40 ];
    PbChar *end = chs;

    void Put( std::string_view text )
    {
        for( char ch : text ) *end++ = ch;
    }

    template< uint64_t radix > void PutNumber( uint32_t number )
    {
        end = pb::WriteNumber( end, number, pb::Radix< radix >{} );
    }

    void PutV4( uint32_t address )
    {
        for( int shift = 24; shift >= 0; shift -= 8 ) {
            PutNumber< 10 >( address >> shift & 255 );
            if( shift > 0 ) Put( "." );
        }
    }

    void PutGroups( const uint16_t *from, const uint16_t *to )
    {
        for( const uint16_t *group = from; group != to; ++group ) {
            if( group != from ) Put( ":" );
            PutNumber< 16 >( *group );
        }
    }
};

// RFC 5952 section 4.2.3: of the runs of zero groups the longest, and the first of several; one group alone is not a
// run.
std::pair< size_t, size_t > LongestZeroRun( const Groups &groups )
{
    size_t longest = 1;
    size_t end     = 0;
    size_t run     = 0;
    for( size_t n = 0; n < groups.size(); ++n ) {
        run = groups[ n ] == 0 ? run + 1 : 0;
        if( run > longest ) {
            longest = run;
            end     = n + 1;
        }
    }
    return end > 0 ? std::pair{ end - longest, end } : std::pair{ groups.size(), groups.size() };
}

void PutV6( Output &output, const Groups &groups )
{
    const auto [ zeros, behind ] = LongestZeroRun( groups );
    output.PutGroups( groups.data(), groups.data() + zeros );
    if( zeros == behind ) return;
    output.Put( "::" );
    output.PutGroups( groups.data() + behind, groups.data() + groups.size() );
}

// Section 5: the prefix ::ffff:0:0/96 says that the rest is an IPv4 address.
bool IsV4Mapped( const InAddress *address ) { return address->high == 0 && address->low >> 32 == 0xFFFF; }

} // namespace

InAddress *inAddressTryCreateFromChars( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    if( length == 0 ) return nullptr;
    if( iri___SkipIpV4Address( chs, length ) == length ) return Create( 4, 0, ReadV4( { chs, length } ) );
    if( iri___SkipIpV6Address( chs, length ) != length ) return nullptr;

    uint64_t high = 0;
    uint64_t low  = 0;
    for( uint16_t group : ReadV6( { chs, length } ) ) {
        high = high << 16 | low >> 48;
        low  = low << 16 | group;
    }
    return Create( 16, high, low );
}

bool inAddressIsV4( InAddress *address )
{
    PB_ASSERT( address );
    return address->length == 4;
}

bool inAddressIsV6( InAddress *address )
{
    PB_ASSERT( address );
    return address->length == 16;
}

PbBuffer *inAddressBytes( InAddress *address )
{
    PB_ASSERT( address );
    PbByte   *bytes;
    PbBuffer *buffer = pb___BufferCreateUninitialized( address->length, &bytes );
    for( int64_t n = 0; n < address->length; ++n ) {
        const int64_t bit = 8 * ( address->length - 1 - n );
        bytes[ n ]        = PbByte( bit < 64 ? address->low >> bit : address->high >> ( bit - 64 ) );
    }
    return buffer;
}

PbString *inAddressToStringShrink( InAddress *address )
{
    PB_ASSERT( address );
    Output output;
    if( address->length == 4 ) {
        output.PutV4( uint32_t( address->low ) );
    } else if( IsV4Mapped( address ) ) {
        output.Put( "::ffff:" );
        output.PutV4( uint32_t( address->low ) );
    } else {
        PutV6( output, GroupsOf( address ) );
    }
    return pbStringCreateFromCharsCopy( output.chs, output.end - output.chs );
}
