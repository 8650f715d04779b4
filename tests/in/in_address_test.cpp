// InAddress: what is an address, its canonical text, and its order.
#include "in/in.h"

#include "text.h"

#include <arpa/inet.h>
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

// Beside what the C library writes: an IPv4 address has a dotted quad behind ::ffff: alone (RFC 5952 section 5).
TEST( InAddress, TextIsThatOfRfc5952 )
{
    static constexpr struct
    {
        const char *text;
        const char *canonical;
    } cases[] = {
        { "255.255.255.255", "255.255.255.255" },
        { "2001:DB8:AaaA::FfFf", "2001:db8:aaaa::ffff" },
        { "::FFFF:c000:209", "::ffff:192.0.2.9" },
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
    for( const char *text : { "", "1.2.3.4 ", " ::1", "[::1]", "::1%1", "host", "\u0661.2.3.4" } )
        EXPECT_FALSE( Address( text ) ) << text;
}

std::string RandomAddress( std::mt19937 &random )
{
    std::string text;
    if( random() % 8 == 0 ) {
        for( auto octets = random() % 6; octets > 0; --octets )
            text += ( text.empty() ? "" : "." ) + std::to_string( random() % 300 );
        return text;
    }
    const auto groups = random() % 10;
    for( unsigned group = 0; group < groups; ++group ) {
        char digits[ 8 ];
        snprintf( digits, sizeof digits, random() % 2 ? "%04X" : "%x",
                  random() % 3 ? 0u : unsigned( random() ) >> random() % 16 & 0xFFFF );
        if( group > 0 || random() % 8 == 0 ) text += random() % 6 ? ":" : "::";
        text += digits;
    }
    if( random() % 8 == 0 ) text += "::";
    if( random() % 4 == 0 ) text += ":1.20.255.0";
    return text;
}

TEST( InAddress, ValueAndTextAgreeWithTheCLibrary )
{
    std::mt19937 random{ 1 };
    for( int round = 0; round < 50'000; ++round ) {
        const std::string text    = RandomAddress( random );
        const bool        isV4    = text.find( ':' ) == text.npos;
        const auto        address = Address( text );

        char       expected[ 16 ];
        const bool valid = inet_pton( isV4 ? AF_INET : AF_INET6, text.c_str(), expected ) == 1;
        ASSERT_EQ( bool( address ), valid ) << text;
        if( !valid ) continue;
        ASSERT_EQ( Bytes( address.Get() ), std::string( expected, isV4 ? 4 : 16 ) ) << text;

        char canonical[ INET6_ADDRSTRLEN ];
        inet_ntop( isV4 ? AF_INET : AF_INET6, expected, canonical, sizeof canonical );
        const bool isCompatible = !isV4 && std::string( canonical ).find_first_of( '.' ) != std::string::npos &&
                                  std::string_view( canonical ).substr( 0, 7 ) != "::ffff:";
        if( !isCompatible ) {
            ASSERT_EQ( Take( inAddressToStringShrink( address.Get() ) ), canonical ) << text;
        }
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
    std::vector< pb::Ref< InAddress > > ascending;
    for( const char *text : { "0.0.0.0", "1.2.3.4", "127.255.255.255", "128.0.0.0", "255.255.255.255", "::", "::1",
                              "::8000:0:0:0", "0:0:0:1::", "7fff::", "8000::", "ffff::" } )
        ascending.push_back( Address( text ) );
    ExpectAscending( ascending, inAddressCompare );
}

TEST( InAddressDeathTest, MisuseAborts )
{
    const PbChar ch = '1';
    EXPECT_ABORT( "length >= 0", inAddressTryCreateFromChars( &ch, -1 ) );
    EXPECT_ABORT( "chs || length == 0", inAddressTryCreateFromChars( nullptr, 1 ) );
    EXPECT_ABORT( "address", inAddressToStringShrink( nullptr ) );
    EXPECT_ABORT( "address", inAddressBytes( nullptr ) );
}

} // namespace
