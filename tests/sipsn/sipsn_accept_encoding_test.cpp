// Accept-Encoding values: the two ways to "*", where q stands, members.
#include "value_text.h"

namespace {

auto AcceptEncoding( std::string_view text ) { return Decoded< sipsn___AcceptEncodingTryDecode >( text ); }

TEST( SipsnAcceptEncoding, Wire )
{
    CheckWire< sipsn___AcceptEncodingTryDecode, sipsn___AcceptEncodingEncode >( {
        { "GZip", "gzip" },
        { "*", "*" },
        { "* ; q = 0.1 ", nullptr },
        { "identity;a=\"b\";Q=0.5", "identity;q=0.500;a=\"b\"" },
        { "gzip;q=7", "gzip;q=7" },
        { "", nullptr },
        { ";q=1", nullptr },
        { "gzip/x", nullptr },
        { "gzip;q=1.001", nullptr },
    } );
}

TEST( SipsnAcceptEncoding, ADecodedStarIsACodingAndACreatedOneIsNone )
{
    auto    decoded = AcceptEncoding( "*" );
    pb::Ref created{ sipsnAcceptEncodingCreate() };
    EXPECT_TRUE( sipsnAcceptEncodingHasContentCoding( decoded.Get() ) );
    EXPECT_FALSE( sipsnAcceptEncodingHasContentCoding( created.Get() ) );
    EXPECT_EQ( Take( sipsnAcceptEncodingToString( created.Get() ) ), "*" );
    EXPECT_LT( sipsnAcceptEncodingCompare( created.Get(), decoded.Get() ), 0 );
}

TEST( SipsnAcceptEncoding, ComparesQBeforeTheOtherParameters )
{
    EXPECT_LT( sipsnAcceptEncodingCompare( AcceptEncoding( "a;z" ).Get(), AcceptEncoding( "a;q=0" ).Get() ), 0 );
    EXPECT_LT( sipsnAcceptEncodingCompare( AcceptEncoding( "a;q=0;z" ).Get(), AcceptEncoding( "a;q=1" ).Get() ), 0 );
}

TEST( SipsnAcceptEncoding, ChangesItsOwnCopyOnly )
{
    pb::Ref acceptEncoding{ sipsnAcceptEncodingCreateWithContentCoding( Str( "GZIP" ).Get() ) };
    pb::Ref copy{ sipsnAcceptEncodingRetain( acceptEncoding.Get() ) };
    sipsnAcceptEncodingSetQvalue( copy.Slot(), 1000 );
    sipsnAcceptEncodingSetContentCoding( copy.Slot(), Str( "Deflate" ).Get() );
    sipsnAcceptEncodingSetGenericParams( copy.Slot(), Decoded< sipsn___GenericParamsTryDecode >( ";q=0;b" ).Get() );
    EXPECT_EQ( Take( sipsnAcceptEncodingToString( copy.Get() ) ), "deflate;q=1.000;b" );
    sipsnAcceptEncodingDelContentCoding( copy.Slot() );
    sipsnAcceptEncodingDelQvalue( copy.Slot() );
    EXPECT_EQ( Take( sipsnAcceptEncodingToString( copy.Get() ) ), "*;b;q=0" );
    EXPECT_EQ( Take( sipsnAcceptEncodingToString( acceptEncoding.Get() ) ), "gzip" );
    EXPECT_DEATH( sipsnAcceptEncodingSetContentCoding( copy.Slot(), Str( "" ).Get() ),
                  "\"sipsnContentCodingOk\\( contentCoding \\)\"" );
}

} // namespace
