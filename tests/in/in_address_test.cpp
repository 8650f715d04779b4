// InAddress: what is an address, its canonical text, and its order.
#include "in/in.h"

#include "text.h"

#include <arpa/inet.h>
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace {

pb::Ref< InAddress > Address( std::string_view text )
{
    const auto chs = Chars( text );
    return pb::Ref{ inAddressTryCreateFromChars( chs.data(), int64_t( chs.size() ) ) };
}

std::string Bytes( InAddress *address )
{
    pb::Ref bytes{ inAddressBytes( address ) };
    return { reinterpret_cast< const char * >( pbBufferBacking( bytes.Get() ) ),
             size_t( pbBufferLength( bytes.Get() ) ) };
}

TEST( InAddress, TextIsThatOfRfc5952 )
{
    static constexpr struct
    {
        const char *text;
        const char *canonical;
    } cases[] = {
        { "192.0.2.9", "192.0.2.9" },
        { "0.0.0.0", "0.0.0.0" },
        { "255.255.255.255", "255.255.255.255" },
        // section 4.1, leading zeros; 4.2.1, as short as possible; 4.2.2, one zero group; 4.2.3, which run; 4.3, case
        { "2001:0db8:0000:0000:0001:0000:0000:0001", "2001:db8::1:0:0:1" },
        { "2001:db8:0:0:0:0:2:1", "2001:db8::2:1" },
        { "2001:db8::1:1:1:1:1", "2001:db8:0:1:1:1:1:1" },
        { "2001:0:0:1:0:0:0:1", "2001:0:0:1::1" },
        { "2001:db8:0:0:1:0:0:1", "2001:db8::1:0:0:1" },
        { "2001:DB8:AaaA::FfFf", "2001:db8:aaaa::ffff" },
        { "0:0:0:0:0:0:0:0", "::" },
        { "0:0:0:0:0:0:0:1", "::1" },
        { "1:0:0:0:0:0:0:0", "1::" },
        { "1:2:3:4:5:6:7::", "1:2:3:4:5:6:7:0" },
        { "1:2:3:4:5:6:0:0", "1:2:3:4:5:6::" },
        { "fe80:1111:2222:3333:4444:5555:6666:7777", "fe80:1111:2222:3333:4444:5555:6666:7777" },
        // section 5, IPv4-mapped and others that were written with a dotted quad
        { "::ffff:c000:209", "::ffff:192.0.2.9" },
        { "::FFFF:192.0.2.9", "::ffff:192.0.2.9" },
        { "::ffff:0:0", "::ffff:0.0.0.0" },
        { "::192.0.2.9", "::c000:209" },
        { "64:ff9b::192.0.2.9", "64:ff9b::c000:209" },
        { "1::ffff:c000:209", "1::ffff:c000:209" },
    };
    for( const auto &[ text, canonical ] : cases ) {
        const auto address = Address( text );
        ASSERT_TRUE( address ) << text;
        EXPECT_EQ( Take( inAddressToStringShrink( address.Get() ) ), canonical );
        EXPECT_EQ( Take( inAddressToString( address.Get() ) ), canonical );
        EXPECT_TRUE( inAddressEquals( address.Get(), Address( canonical ).Get() ) ) << text;
    }
}

TEST( InAddress, WhatIsNotWhollyAnAddressIsNone )
{
    for( const char *text : { "",
                              "1.2.3",
                              "1.2.3.4.5",
                              "1.2.3.04",
                              "1.2.3.256",
                              " 1.2.3.4",
                              "1.2.3.4 ",
                              "[::1]",
                              "::1%1",
                              "::1]",
                              ":",
                              ":::",
                              "1:2:3:4:5:6:7",
                              "1:2:3:4:5:6:7:8:9",
                              "1::2::3",
                              "12345::",
                              "::g",
                              "::1.2.3",
                              "1:2:3:4:5:6:7:1.2.3.4",
                              "host",
                              "\u0661.2.3.4" } )
        EXPECT_FALSE( Address( text ) ) << text;
    EXPECT_FALSE( pb::Ref{ inAddressTryCreateFromChars( nullptr, 0 ) } );
}

// The bytes are those that the C library reads from any form of the text, and the canonical text leads back to them.
TEST( InAddress, ValueAgreesWithTheCLibrary )
{
    std::mt19937 random{ 1 };
    for( int round = 0; round < 50'000; ++round ) {
        std::string text;
        const auto  groups = random() % 10;
        for( unsigned group = 0; group < groups; ++group ) {
            char digits[ 8 ];
            snprintf( digits, sizeof digits, random() % 2 ? "%04X" : "%x",
                      random() % 3 ? 0u : unsigned( random() ) >> random() % 16 & 0xFFFF );
            if( group > 0 || random() % 8 == 0 ) text += random() % 6 ? ":" : "::";
            text += digits;
        }
        if( random() % 8 == 0 ) text += "::";
        if( random() % 4 == 0 ) text += ":1.20.255.0";

        in6_addr   expected;
        const bool valid   = inet_pton( AF_INET6, text.c_str(), &expected ) == 1;
        const auto address = Address( text );
        ASSERT_EQ( bool( address ), valid ) << text;
        if( !valid ) continue;
        ASSERT_EQ( Bytes( address.Get() ), std::string( reinterpret_cast< const char * >( &expected ), 16 ) ) << text;

        const std::string canonical = Take( inAddressToStringShrink( address.Get() ) );
        ASSERT_EQ( inet_pton( AF_INET6, canonical.c_str(), &expected ), 1 ) << text << " " << canonical;
        ASSERT_EQ( Bytes( address.Get() ), std::string( reinterpret_cast< const char * >( &expected ), 16 ) ) << text;
    }
}

TEST( InAddress, FamilyAndBytes )
{
    const auto v4 = Address( "192.0.2.9" );
    EXPECT_TRUE( inAddressIsV4( v4.Get() ) );
    EXPECT_FALSE( inAddressIsV6( v4.Get() ) );
    EXPECT_EQ( Bytes( v4.Get() ), std::string( "\xC0\x00\x02\x09", 4 ) );

    const auto v6 = Address( "::ffff:192.0.2.9" );
    EXPECT_FALSE( inAddressIsV4( v6.Get() ) );
    EXPECT_TRUE( inAddressIsV6( v6.Get() ) );
}

TEST( InAddress, OrderIsByFamilyThenByUnsignedBytes )
{
    const char *const ascending[] = { "0.0.0.0", "1.2.3.4", "127.255.255.255", "128.0.0.0", "255.255.255.255",
                                      "::",      "::1",     "::8000:0:0:0",    "0:0:0:1::", "7fff::",
                                      "8000::",  "ffff::" };
    for( size_t a = 0; a < std::size( ascending ); ++a )
        for( size_t b = 0; b < std::size( ascending ); ++b ) {
            const int64_t order = inAddressCompare( Address( ascending[ a ] ).Get(), Address( ascending[ b ] ).Get() );
            EXPECT_EQ( ( order > 0 ) - ( order < 0 ), ( a > b ) - ( a < b ) )
                << ascending[ a ] << " " << ascending[ b ];
        }
}

TEST( InAddressDeathTest, MisuseAborts )
{
    const PbChar ch = '1';
    EXPECT_DEATH( inAddressTryCreateFromChars( &ch, -1 ), "length >= 0" );
    EXPECT_DEATH( inAddressTryCreateFromChars( nullptr, 1 ), "chs \\|\\| length == 0" );
    EXPECT_DEATH( inAddressToStringShrink( nullptr ), "address" );
    EXPECT_DEATH( inAddressBytes( nullptr ), "address" );
}

} // namespace
