// The text parameters of Diversion (privacy, reason, screen), which follow the same rules.
#include "sipsn/sipsn_diversion_privacy.h"
#include "sipsn/sipsn_diversion_reason.h"
#include "sipsn/sipsn_diversion_screen.h"
#include "sipsn/sipsn_token_internal.h"

#include "text.h"

#include <gmock/gmock.h>

namespace {

struct Family
{
    PbString *( *normalize )( PbString * );
    PbString *( *encode )( PbString * );
    PbString *( *tryDecode )( const PbChar *, int64_t );
};

class SipsnDiversionPrivacy : public testing::TestWithParam< Family >
{
protected:
    std::string Decoded( std::string_view text )
    {
        const auto chs = Chars( text );
        return Take( GetParam().tryDecode( chs.data(), int64_t( chs.size() ) ) );
    }
    std::string Encoded( std::string_view text ) { return Take( GetParam().encode( Str( text ).Get() ) ); }
};

TEST_P( SipsnDiversionPrivacy, IsATokenOrTheContentOfAQuotedString )
{
    EXPECT_EQ( Decoded( "User-Busy" ), "User-Busy" );
    EXPECT_EQ( Decoded( "\"user  \\\"busy\\\"\"" ), "user  \"busy\"" );
    EXPECT_EQ( Decoded( "\"\"" ), "" );
    for( const char *text : { "", "user busy", "\"user", "\"user\"x" } ) EXPECT_EQ( Decoded( text ), "(null)" ) << text;
}

TEST_P( SipsnDiversionPrivacy, IsQuotedUnlessItIsAToken )
{
    EXPECT_EQ( Encoded( "user-busy" ), "user-busy" );
    EXPECT_EQ( Encoded( "user busy" ), "\"user busy\"" );
    EXPECT_EQ( Encoded( "" ), "\"\"" );
}

TEST_P( SipsnDiversionPrivacy, LowerCaseReachesBeyondAscii )
{
    EXPECT_EQ( Take( GetParam().normalize( Str( "User Busy" ).Get() ) ), "user busy" );
    EXPECT_EQ( Take( GetParam().normalize( Str( "\u00c4A" ).Get() ) ), "\u00e4a" );
}

INSTANTIATE_TEST_SUITE_P(, SipsnDiversionPrivacy,
                         testing::Values( Family{ sipsnDiversionPrivacyNormalize, sipsn___DiversionPrivacyEncode,
                                                  sipsn___DiversionPrivacyTryDecode },
                                          Family{ sipsnDiversionReasonNormalize, sipsn___DiversionReasonEncode,
                                                  sipsn___DiversionReasonTryDecode },
                                          Family{ sipsnDiversionScreenNormalize, sipsn___DiversionScreenEncode,
                                                  sipsn___DiversionScreenTryDecode } ) );

} // namespace
