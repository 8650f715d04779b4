// Reason phrases: what a status line holds as it is and what as percent escapes.
#include "sipsn/sipsn_reason_phrase.h"
#include "sipsn/sipsn_token_internal.h"

#include "text.h"

#include <gmock/gmock.h>

namespace {

std::string Encode( std::string_view phrase ) { return Take( sipsn___ReasonPhraseEncode( Str( phrase ).Get() ) ); }

std::string Decode( std::string_view text )
{
    const auto chs = Chars( text );
    return Take( sipsn___ReasonPhraseDecode( chs.data(), int64_t( chs.size() ) ) );
}

TEST( SipsnReasonPhrase, OnlyNullIsInvalid )
{
    EXPECT_TRUE( sipsnReasonPhraseOk( Str( "" ).Get() ) );
    EXPECT_TRUE( sipsnReasonPhraseOk( Str( "a\r\nb" ).Get() ) );
    EXPECT_FALSE( sipsnReasonPhraseOk( nullptr ) );
}

TEST( SipsnReasonPhrase, EscapesWithUpperCaseDigits )
{
    EXPECT_EQ( Encode( "Call leg/transaction\tdoes not exist; (really)" ),
               "Call leg/transaction\tdoes not exist; (really)" );
    EXPECT_EQ( Encode( "100% \"sure\"" ), "100%25 %22sure%22" );
    EXPECT_EQ( Encode( "a\r\nb{\x7f" ), "a%0D%0Ab%7B%7F" );
    EXPECT_EQ( Encode( "\u00e9\U0010ffff#" ), "\u00e9\U0010ffff%23" );
}

TEST( SipsnReasonPhrase, WhatNeedsNoEscapeIsNotCopied )
{
    pb::Ref phrase = Str( "Busy here" );
    pb::Ref encoded{ sipsn___ReasonPhraseEncode( phrase.Get() ) };
    EXPECT_EQ( encoded.Get(), phrase.Get() );
}

TEST( SipsnReasonPhrase, DecodesEscapesAndKeepsOtherPercentSigns )
{
    EXPECT_EQ( Decode( "" ), "" );
    EXPECT_EQ( Decode( "a%20b%4a%4Ac" ), "a bJJc" );
    EXPECT_EQ( Decode( "100%" ), "100%" );
    EXPECT_EQ( Decode( "%4" ), "%4" );
    EXPECT_EQ( Decode( "%4g%%41%" ), "%4g%A%" );
    EXPECT_EQ( Decode( "%2541" ), "%41" ); // once only
    EXPECT_EQ( Decode( "%E9" ), "\u00e9" );
}

TEST( SipsnReasonPhrase, EveryCharacterComesBack )
{
    for( PbChar ch = 0; ch < 0x180; ++ch ) {
        pb::Ref phrase{ pbStringCreateFromCharsCopy( &ch, 1 ) };
        pb::Ref encoded{ sipsn___ReasonPhraseEncode( phrase.Get() ) };
        pb::Ref decoded{
            sipsn___ReasonPhraseDecode( pbStringBacking( encoded.Get() ), pbStringLength( encoded.Get() ) ) };
        EXPECT_TRUE( pbStringEquals( decoded.Get(), phrase.Get() ) ) << ch;
    }
}

} // namespace
