// Reason phrases: any text is one, and comes back from the wire.
#include "sipsn/sipsn_reason_phrase.h"
#include "sipsn/sipsn_token_internal.h"

#include "text.h"

#include <gmock/gmock.h>

namespace {

TEST( SipsnReasonPhrase, OnlyNullIsInvalid )
{
    EXPECT_TRUE( sipsnReasonPhraseOk( Str( "a\r\nb" ).Get() ) );
    EXPECT_FALSE( sipsnReasonPhraseOk( nullptr ) );
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
