// Codes of Warning: default texts and the wire form.
#include "sipsn/sipsn_token_internal.h"
#include "sipsn/sipsn_warn_code.h"

#include "text.h"

#include <gmock/gmock.h>

namespace {

TEST( SipsnWarnCode, TextsNameTheNumberInThreeDigitsWhereThereIsNoOther )
{
    EXPECT_EQ( Take( sipsnWarnCodeToString( 300 ) ), "Incompatible network protocol" );
    EXPECT_EQ( Take( sipsnWarnCodeToString( 307 ) ), "Session description parameter not understood" );
    EXPECT_EQ( Take( sipsnWarnCodeToString( 399 ) ), "Miscellaneous warning" );
    EXPECT_EQ( Take( sipsnWarnCodeToString( 308 ) ), "Warning \"308\"" );
    EXPECT_EQ( Take( sipsnWarnCodeToString( 42 ) ), "Warning \"042\"" );
}

TEST( SipsnWarnCode, TheWireFormIsNotPaddedButMayBe )
{
    EXPECT_EQ( Take( sipsn___WarnCodeEncode( 42 ) ), "42" );
    EXPECT_EQ( sipsn___WarnCodeDecode( Chars( "042" ).data(), 3 ), 42 );
}

} // namespace
