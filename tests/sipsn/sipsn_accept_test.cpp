// Accept values: ranges, where q stands, members.
#include "value_text.h"

namespace {

auto Accept( std::string_view text ) { return Decoded< sipsn___AcceptTryDecode >( text ); }

TEST( SipsnAccept, Wire )
{
    CheckWire< sipsn___AcceptTryDecode, sipsn___AcceptEncode >( {
        { "*/*", "*/*" },
        { "Text/*", "text/*" },
        { "text/html;level=1;q=0.5", "text/html;q=0.500;level=1" },
        { "application / SDP ; Q = 1", "application/sdp;q=1.000" },
        { "a/b;q=0;q=0.25", "a/b;q=0.250" },
        { "a/b;quality=1", "a/b;quality=1" },
        { "a/b;q", "a/b;q" },
        { "a/b;q=x", "a/b;q=x" },
        { "a/b;q=2", "a/b;q=2" },
        { "a*/*b", "a*/*b" },
        { "**/**", "**/**" },
        { "", nullptr },
        { "*", nullptr },
        { "text", nullptr },
        { "text/", nullptr },
        { "/plain", nullptr },
        { "*/plain", nullptr },
        { "text/plain;", nullptr },
        { "text/plain ", nullptr },
        { "text/plain;q=0.5x", nullptr },
        { "text/plain;q=0.1234", nullptr },
        { "text/plain;q=", nullptr },
        { "text/plain,a/b", nullptr },
    } );
}

TEST( SipsnAccept, WithoutATypeTheSubtypeIsNotWritten )
{
    auto accept = Accept( "text/plain;q=0.5" );
    sipsnAcceptDelMediaType( accept.Slot() );
    EXPECT_EQ( Take( sipsnAcceptToString( accept.Get() ) ), "*/*;q=0.500" );
    EXPECT_FALSE( sipsnAcceptHasMediaType( accept.Get() ) );
    EXPECT_TRUE( sipsnAcceptHasMediaSubtype( accept.Get() ) );
}

TEST( SipsnAccept, ComparesQBeforeTheOtherParameters )
{
    const auto compare = []( const char *a, const char *b ) {
        return sipsnAcceptCompare( Accept( a ).Get(), Accept( b ).Get() );
    };
    EXPECT_LT( compare( "*/*;z", "a/*" ), 0 ) << "any type comes first";
    EXPECT_LT( compare( "a/*;z", "a/a" ), 0 ) << "any subtype comes first";
    EXPECT_LT( compare( "a/b;z", "a/b;q=0" ), 0 ) << "an absent q comes first";
    EXPECT_LT( compare( "a/b;z;q=0.9", "a/b;a;q=1" ), 0 );
    EXPECT_LT( compare( "a/b;q=1", "a/b;q=1;a" ), 0 );
}

TEST( SipsnAccept, ChangesItsOwnCopyOnly )
{
    auto    accept = Accept( "text/plain;q=0.5;a" );
    pb::Ref copy{ sipsnAcceptRetain( accept.Get() ) };
    sipsnAcceptSetMediaType( copy.Slot(), Str( "Audio" ).Get() );
    sipsnAcceptSetMediaSubtype( copy.Slot(), Str( "G729" ).Get() );
    sipsnAcceptSetQvalue( copy.Slot(), 5 );
    sipsnAcceptSetGenericParams( copy.Slot(), Decoded< sipsn___GenericParamsTryDecode >( ";q=1;b" ).Get() );
    EXPECT_EQ( Take( sipsnAcceptToString( copy.Get() ) ), "audio/g729;q=0.005;b" ) << "q hides the generic q";
    sipsnAcceptDelQvalue( copy.Slot() );
    sipsnAcceptDelMediaSubtype( copy.Slot() );
    EXPECT_EQ( Take( sipsnAcceptToString( copy.Get() ) ), "audio/*;b;q=1" );
    EXPECT_EQ( sipsnAcceptQvalue( copy.Get() ), -1 );
    EXPECT_EQ( Take( sipsnAcceptToString( accept.Get() ) ), "text/plain;q=0.500;a" );
}

TEST( SipsnAccept, RefusesWhatIsNoName )
{
    pb::Ref accept{ sipsnAcceptCreate() };
    EXPECT_DEATH( sipsnAcceptSetMediaType( accept.Slot(), nullptr ), "\"mediaType\"" );
    EXPECT_DEATH( sipsnAcceptSetMediaType( accept.Slot(), Str( "*" ).Get() ), "\"sipsnMediaTypeOk\\( mediaType \\)\"" );
    EXPECT_DEATH( sipsnAcceptSetMediaSubtype( accept.Slot(), Str( "a b" ).Get() ),
                  "\"sipsnMediaSubtypeOk\\( mediaSubtype \\)\"" );
    EXPECT_DEATH( sipsnAcceptSetQvalue( accept.Slot(), 1001 ), "\"sipsnQvalueOk\\( qvalue \\)\"" );
}

} // namespace
