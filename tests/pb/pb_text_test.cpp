// The kit for text: runs of one class, and what vector instructions do beside plain code.
#include "pb/pb_text.h"

#include <gtest/gtest.h>

#include <cstring>
#include <initializer_list>
#include <vector>

namespace {

using Chars = std::vector< PbChar >;

constexpr uint8_t letter = 1, digit = 2;

// What lies behind the table belongs to every class, so that a look past its end is seen.
struct Classes
{
    pb::ClassTable< uint8_t > table{};
    uint8_t                   behind[ 128 ];

    Classes()
    {
        for( size_t ch = 'a'; ch <= 'z'; ++ch ) table[ ch ] = letter;
        for( size_t ch = '0'; ch <= '9'; ++ch ) table[ ch ] = digit;
        std::memset( behind, 0xFF, sizeof behind );
    }
};
const Classes classes;

template< bool in > int64_t CountRun( uint8_t mask, const Chars &chs )
{
    return pb::CountRun< in >( classes.table, mask, chs.data(), int64_t( chs.size() ) );
}

// Wherever the run ends, in a text of any length up to three times four.
TEST( TextRun, EndsAtTheFirstOtherCharacter )
{
    for( size_t length = 0; length <= 12; ++length )
        for( size_t end = 0; end <= length; ++end )
            for( PbChar ch : std::initializer_list< PbChar >{ '-', '5', 0, 127, 128, 0x661, -1, INT32_MIN } ) {
                Chars chs( length, 'x' );
                if( end < length ) chs[ end ] = ch;
                EXPECT_EQ( CountRun< true >( letter, chs ), int64_t( end ) ) << ch;
                std::fill( chs.begin() + int64_t( end ), chs.end(), ch );
                EXPECT_EQ( CountRun< true >( letter, chs ), int64_t( end ) ) << ch;
            }
}

// Characters beyond ASCII belong to no class and go on.
TEST( TextRun, OfOthersEndsAtTheFirstOfTheClass )
{
    for( size_t length = 0; length <= 12; ++length )
        for( size_t end = 0; end <= length; ++end )
            for( size_t beyond = 0; beyond <= length; ++beyond ) {
                Chars chs( length, '-' );
                if( beyond < length ) chs[ beyond ] = 0x80;
                if( end < length ) chs[ end ] = '5';
                EXPECT_EQ( CountRun< false >( letter | digit, chs ), int64_t( end ) );
            }
}

// ---- Plain code and vector instructions ------------------------------------------------------------

template< class Block > void CheckBlock()
{
    PbByte bytes[ 256 ];
    for( size_t n = 0; n < sizeof bytes; ++n ) bytes[ n ] = PbByte( n );
    for( size_t from = 0; from + 16 <= sizeof bytes; ++from ) {
        const Block block = Block::Load( bytes + from );
        PbChar      wide[ 16 ];
        block.Widen( wide );
        for( size_t at = 0; at < 16; ++at ) {
            const PbByte byte = bytes[ from + at ];
            EXPECT_EQ( block.Equal( Block::Of( byte ) ), 1u << at );
            const Block other = Block::Of( byte ^ 0x20 );
            EXPECT_EQ( block.Differs( other, Block::Of( 0 ) ) >> at & 1, 1u );
            EXPECT_EQ( block.Differs( other, Block::Of( 0x20 ) ) >> at & 1, 0u );
            EXPECT_EQ( block.NotAscii() >> at & 1, uint32_t( byte >> 7 ) );
            EXPECT_EQ( wide[ at ], byte );
        }
    }
}

TEST( TextBlock, FindsBytesAndWidensThem )
{
    CheckBlock< pb::PlainBlock >();
    CheckBlock< pb::Block >();
}

// The bytes end where the text does, so that a sanitizer sees what is written past them.
template< class Narrower > void CheckNarrower()
{
    for( size_t length = 0; length <= 20; ++length ) {
        Chars chs;
        for( size_t n = 0; n < length; ++n ) chs.push_back( PbChar( 0x7F - n ) );
        std::vector< PbByte > bytes( length );
        Narrower              narrower;
        narrower.Write( bytes.data(), chs.data(), int64_t( length ) );
        EXPECT_TRUE( std::equal( chs.begin(), chs.end(), bytes.begin(), bytes.end() ) ) << length;
        EXPECT_TRUE( narrower.AllAscii() );

        for( size_t at = 0; at < length; ++at )
            for( PbChar ch : std::initializer_list< PbChar >{ 0x80, 0x10041, -1, INT32_MIN } ) {
                Chars    other = chs;
                Narrower found;
                other[ at ] = ch;
                found.Write( bytes.data(), other.data(), int64_t( length ) );
                found.Write( bytes.data(), chs.data(), int64_t( length ) );
                EXPECT_FALSE( found.AllAscii() ) << ch << " at " << at << " of " << length;
            }
    }
}

TEST( TextNarrower, WritesAsciiAndSeesWhatIsNone )
{
    CheckNarrower< pb::PlainNarrower >();
    CheckNarrower< pb::Narrower >();
}

} // namespace
