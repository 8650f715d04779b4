// Free text as a quoted string: that nothing is lost on the way.
#include "sipsn/sipsn_quotable_string.h"
#include "sipsn/sipsn_skip_internal.h"
#include "sipsn/sipsn_token_internal.h"

#include "text.h"

#include <gmock/gmock.h>

#include <random>

namespace {

TEST( SipsnQuotableString, AnyContentComesBack )
{
    std::mt19937       random{ 7 };
    constexpr char32_t alphabet[] = { ' ', ' ', ' ', '"', '\\', '\t', 0, 0x1f, 0x7f, 'a', '%', 0x80, 0xe9, 0x10ffff };
    for( int run = 0; run < 5000; ++run ) {
        pb::Ref content{ pbStringCreate() };
        for( auto left = random() % 12; left > 0; --left )
            pbStringAppendChar( content.Slot(), PbChar( alphabet[ random() % std::size( alphabet ) ] ) );

        pb::Ref       encoded{ sipsn___QuotableStringEncode( content.Get() ) };
        const PbChar *chs    = pbStringBacking( encoded.Get() );
        const int64_t length = pbStringLength( encoded.Get() );
        ASSERT_EQ( sipsn___SkipQuotedString( chs, length ), length ) << Text( encoded.Get() );
        pb::Ref decoded{ sipsn___QuotableStringTryDecode( chs, length ) };
        ASSERT_TRUE( decoded ) << Text( encoded.Get() );
        ASSERT_TRUE( pbStringEquals( decoded.Get(), content.Get() ) ) << Text( encoded.Get() );
    }
}

} // namespace
