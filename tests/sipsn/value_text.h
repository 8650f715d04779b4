// The driver of the tables of wire texts that the tests of values and header types share.
#pragma once

#include "sipsn/sipsn.h"
#include "sipsn/sipsn_value_internal.h"
#include "text.h"

#include <gmock/gmock.h>

#include <initializer_list>
#include <string>
#include <string_view>

// A value decoded from a text; null when it does not decode.
template< auto tryDecode > auto Decoded( std::string_view text )
{
    const auto chs = Chars( text );
    return pb::Ref{ tryDecode( chs.data(), int64_t( chs.size() ) ) };
}

// A text and the canonical form of the value that it is; null when it is none.
struct WireCase
{
    const char *wire, *canonical;
};

// Checks each case, that the canonical form is a fixed point, that it is the object's text, and that it decodes to an
// equal value.
template< auto tryDecode, auto encode > void CheckWire( std::initializer_list< WireCase > cases )
{
    for( const auto &[ wire, canonical ] : cases ) {
        auto value = Decoded< tryDecode >( wire );
        if( !canonical ) {
            EXPECT_FALSE( value ) << wire;
            continue;
        }
        ASSERT_TRUE( value ) << wire;
        EXPECT_EQ( Take( encode( value.Get() ) ), canonical ) << wire;
        EXPECT_EQ( Take( pbObjToString( pb::AsObj( value.Get() ) ) ), canonical ) << wire;
        auto again = Decoded< tryDecode >( canonical );
        ASSERT_TRUE( again ) << canonical;
        EXPECT_EQ( Take( encode( again.Get() ) ), canonical );
        EXPECT_EQ( pbObjCompare( pb::AsObj( value.Get() ), pb::AsObj( again.Get() ) ), 0 ) << wire;
    }
}
