// Hosts: Unicode within, ASCII on the wire.
#include "sipsn/sipsn_host.h"
#include "sipsn/sipsn_token_internal.h"

#include "text.h"

#include <gmock/gmock.h>

namespace {

std::string Decode( std::string_view text )
{
    const auto chs = Chars( text );
    return Take( sipsn___HostTryDecode( chs.data(), int64_t( chs.size() ) ) );
}

TEST( SipsnHost, IsAnAddressOrANameInEitherForm )
{
    for( const char *host : { "example.com", "EXAMPLE.com.", "192.0.2.1", "[2001:db8::1]", "a", "1.2.3",
                              "b\u00fccher.example", "xn--bcher-kva.example" } )
        EXPECT_TRUE( sipsnHostOk( Str( host ).Get() ) ) << host;
    for( const char *host :
         { "", "a b", "-a", "a..b", "2001:db8::1", "[2001:db8::1", "[1.2.3.4]", "a:5060", "b\u00fc cher" } )
        EXPECT_FALSE( sipsnHostOk( Str( host ).Get() ) ) << host;
}

TEST( SipsnHost, IsReadAsUnicode )
{
    EXPECT_EQ( Decode( "Example.com" ), "Example.com" );
    EXPECT_EQ( Decode( "example.com." ), "example.com." );
    EXPECT_EQ( Decode( "192.0.2.1" ), "192.0.2.1" );
    EXPECT_EQ( Decode( "[2001:DB8::1]" ), "[2001:DB8::1]" );
    EXPECT_EQ( Decode( "xn--bcher-kva.example" ), "b\u00fccher.example" );
}

TEST( SipsnHost, OnTheWireItIsAsciiAndWhole )
{
    for( const char *text : { "", "b\u00fccher.example", "a b", "a:5060", "a..b", "[::1", "-a" } )
        EXPECT_EQ( Decode( text ), "(null)" ) << text;
}

TEST( SipsnHost, IsWrittenAsAscii )
{
    EXPECT_EQ( Take( sipsn___HostEncode( Str( "b\u00fccher.example" ).Get() ) ), "xn--bcher-kva.example" );

    pb::Ref ascii = Str( "Example.com" );
    pb::Ref encoded{ sipsn___HostEncode( ascii.Get() ) };
    EXPECT_EQ( encoded.Get(), ascii.Get() );
}

TEST( SipsnHost, ComesBackFromTheWireAsItWent )
{
    for( const char *text : { "xn--bcher-kva.example", "XN--BCHER-KVA.Example", "xn--cchervea-akX-fple", "xn--a" } ) {
        const std::string decoded = Decode( text );
        const std::string encoded = Take( sipsn___HostEncode( Str( decoded ).Get() ) );
        EXPECT_EQ( Decode( encoded ), decoded ) << text;
    }
}

} // namespace
