// Status codes: classes and default reason phrases.
#include "sipsn/sipsn_status_code.h"

#include "text.h"

#include <gmock/gmock.h>

namespace {

std::string Phrase( int64_t sc ) { return Take( sipsnStatusCodeReasonPhrase( sc ) ); }

TEST( SipsnStatusCode, EveryCodeBelow700HasItsClassAndTheRestHaveNone )
{
    for( int64_t sc = 100; sc <= 999; ++sc ) {
        const bool classes[] = { sipsnStatusCodeInformational( sc ), sipsnStatusCodeSuccess( sc ),
                                 sipsnStatusCodeRedirection( sc ),   sipsnStatusCodeClientError( sc ),
                                 sipsnStatusCodeServerError( sc ),   sipsnStatusCodeGlobalFailure( sc ) };
        for( int64_t n = 0; n < 6; ++n ) ASSERT_EQ( classes[ n ], sc / 100 == n + 1 ) << sc;
    }
}

TEST( SipsnStatusCode, PhrasesAreTheDefaultOnes )
{
    EXPECT_EQ( Phrase( 100 ), "Trying" );
    EXPECT_EQ( Phrase( 200 ), "OK" );
    EXPECT_EQ( Phrase( 424 ), "Bad Location Information" );
    EXPECT_EQ( Phrase( 481 ), "Call leg/transaction does not exist" );
    EXPECT_EQ( Phrase( 606 ), "Not acceptable" );
    EXPECT_EQ( Phrase( 406 ), Phrase( 606 ) );
}

TEST( SipsnStatusCode, LengthRequiredIsThePhraseOf412AndNotOf411 )
{
    EXPECT_EQ( Phrase( 412 ), "Length required" );
    EXPECT_EQ( Phrase( 411 ), "Unknown reason \"411\"" );
}

TEST( SipsnStatusCode, OtherCodesNameTheirNumber )
{
    EXPECT_EQ( Phrase( 101 ), "Unknown reason \"101\"" );
    EXPECT_EQ( Phrase( 999 ), "Unknown reason \"999\"" );

    int known = 0;
    for( int64_t sc = 100; sc <= 999; ++sc ) known += Phrase( sc ).find( "Unknown" ) != 0;
    EXPECT_EQ( known, 58 );
}

} // namespace
