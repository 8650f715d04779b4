// The SIP version: which texts are one, normal forms, and the shared "SIP/2.0".
#include "message_text.h"
#include "sipsn/sipsn_message_internal.h"

#include <gmock/gmock.h>

namespace {

std::string Recode( std::string_view text )
{
    const auto chs = Chars( text );
    pb::Ref    version{ sipsn___VersionTryDecode( chs.data(), int64_t( chs.size() ) ) };
    return version ? Take( sipsn___VersionEncode( version.Get() ) ) : "(null)";
}

TEST( SipsnVersion, DecodesNameSlashVersionAndNothingElse )
{
    EXPECT_EQ( Recode( "SIP/2.0" ), "SIP/2.0" );
    EXPECT_EQ( Recode( "sip/2.0" ), "SIP/2.0" );
    EXPECT_EQ( Recode( "sip \t/ 2.0" ), "SIP/2.0" );
    EXPECT_EQ( Recode( "Http/1.1-Beta" ), "HTTP/1.1-beta" );
    EXPECT_EQ( Recode( "SIP/2.0x" ), "SIP/2.0x" );
    for( const char *bad :
         { "", "SIP", "SIP/", "/2.0", "SIP/2.0 ", " SIP/2.0", "SIP/2.0/UDP", "SIP//2.0", "S\xc3\xa9/2.0" } )
        EXPECT_EQ( Recode( bad ), "(null)" ) << bad;
}

TEST( SipsnVersion, TellsSip20FromOthers )
{
    pb::Ref shared{ sipsnVersionCreateSip20() };
    pb::Ref again{ sipsnVersionCreateSip20() };
    EXPECT_EQ( shared.Get(), again.Get() );

    pb::Ref lower{ sipsnVersionCreate( Str( "sip" ).Get(), Str( "2.0" ).Get() ) };
    EXPECT_TRUE( sipsnVersionIsSip20( lower.Get() ) );
    EXPECT_TRUE( sipsnVersionEquals( shared.Get(), lower.Get() ) );

    sipsnVersionSetProtocolVersion( again.Slot(), Str( "3.0" ).Get() );
    EXPECT_TRUE( sipsnVersionIsSip( again.Get() ) );
    EXPECT_FALSE( sipsnVersionIsSip20( again.Get() ) );
    EXPECT_TRUE( sipsnVersionIsSip20( shared.Get() ) ) << "the shared version was changed";
    EXPECT_LT( sipsnVersionCompare( shared.Get(), again.Get() ), 0 );

    sipsnVersionSetProtocolName( again.Slot(), Str( "sips" ).Get() );
    EXPECT_FALSE( sipsnVersionIsSip( again.Get() ) );
    EXPECT_EQ( Take( sipsnVersionToString( again.Get() ) ), "SIPS/3.0" );
}

} // namespace
