// Runs of characters of one class.
#include "pb/pb_scan.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace {

constexpr uint8_t letter = 1, digit = 2;

constexpr pb::ClassTable< uint8_t > table = [] {
    pb::ClassTable< uint8_t > classes{};
    for( size_t ch = 'a'; ch <= 'z'; ++ch ) classes[ ch ] = letter;
    for( size_t ch = '0'; ch <= '9'; ++ch ) classes[ ch ] = digit;
    return classes;
}();

// Wherever the character that ends the run stands, in a text of any length up to three times four.
TEST( ScanTest, RunsEndAtTheFirstOtherCharacter )
{
    for( size_t length = 0; length <= 12; ++length )
        for( size_t end = 0; end <= length; ++end )
            for( PbChar ch : std::initializer_list< PbChar >{ '-', '5', 0, 127, 128, 0x661, -1, INT32_MIN } ) {
                std::vector< PbChar > chs( length, 'x' );
                if( end < length ) chs[ end ] = ch;
                EXPECT_EQ( pb::CountRun< true >( table, letter, chs.data(), int64_t( length ) ), int64_t( end ) ) << ch;
            }
}

// Characters beyond ASCII belong to no class and go on.
TEST( ScanTest, RunsOfOthersEndAtTheFirstOfTheClass )
{
    for( size_t length = 0; length <= 12; ++length )
        for( size_t end = 0; end <= length; ++end )
            for( size_t beyond = 0; beyond <= length; ++beyond ) {
                std::vector< PbChar > chs( length, '-' );
                if( beyond < length ) chs[ beyond ] = 0x661;
                if( end < length ) chs[ end ] = '5';
                EXPECT_EQ( pb::CountRun< false >( table, uint8_t( letter | digit ), chs.data(), int64_t( length ) ),
                           int64_t( end ) );
            }
}

} // namespace
