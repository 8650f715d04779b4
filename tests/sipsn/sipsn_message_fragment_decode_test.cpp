// Decoding: which bytes are a message, and what comes out of them.
#include "message_text.h"

#include <gmock/gmock.h>

#include <cctype>
#include <sstream>

namespace {

// Each case: the wire text, and its canonical form, which tells nearly everything about what was read. What is refused
// stands with the reader of messages.
struct Case
{
    const char *what, *wire, *canonical;
};

const Case startLines[] = {
    { "a request", "OPTIONS sip:a@b SIP/2.0\r\n\r\n", "OPTIONS sip:a@b SIP/2.0\r\nContent-Length: 0\r\n\r\n" },
    { "the method is a token in any case", "x.Y sip:a sip/2.0\r\n\r\n",
      "x.Y sip:a SIP/2.0\r\nContent-Length: 0\r\n\r\n" },
    { "an escaped URI", "A sip:%C3%BC@b SIP/2.0\r\n\r\n", "A sip:%C3%BC@b SIP/2.0\r\nContent-Length: 0\r\n\r\n" },
    { "a URI in UTF-8", "A sip:\xc3\xbc@b SIP/2.0\r\n\r\n", "A sip:%C3%BC@b SIP/2.0\r\nContent-Length: 0\r\n\r\n" },
    { "another protocol", "A sip:a HTTP/1.1\r\n\r\n", "A sip:a HTTP/1.1\r\nContent-Length: 0\r\n\r\n" },
    { "a response", "SIP/2.0 200 OK\r\n\r\n", "SIP/2.0 200 OK\r\nContent-Length: 0\r\n\r\n" },
    { "blanks in the phrase", "SIP/2.0 404 Not  here \r\n\r\n", "SIP/2.0 404 Not  here \r\nContent-Length: 0\r\n\r\n" },
    { "no phrase", "SIP/2.0 200\r\n\r\n", "SIP/2.0 200 \r\nContent-Length: 0\r\n\r\n" },
    { "an escaped phrase", "SIP/2.0 200 a%5eb%zz\r\n\r\n", "SIP/2.0 200 a%5Eb%25zz\r\nContent-Length: 0\r\n\r\n" },
    { "leading zeros", "SIP/2.0 00200 OK\r\n\r\n", "SIP/2.0 200 OK\r\nContent-Length: 0\r\n\r\n" },
};

const Case fields[] = {
    { "more names that are not known", "via:1\nzz:2\nb-b:3\naa:4\nvia:5\nzz:6\n\n",
      "Aa: 4\r\nB-B: 3\r\nVia: 1\r\nVia: 5\r\nZz: 2\r\nZz: 6\r\nContent-Length: 0\r\n\r\n" },
    { "more names that are known", "to:1\nzz:2\nvia:3\nfrom:4\nb-b:5\naccept:6\nzz:7\n\n",
      "Accept: 6\r\nB-B: 5\r\nFrom: 4\r\nTo: 1\r\nVia: 3\r\nZz: 2\r\nZz: 7\r\nContent-Length: 0\r\n\r\n" },
    { "no start line", "Via: a\r\nv: b\r\n\r\n", "Via: a\r\nVia: b\r\nContent-Length: 0\r\n\r\n" },
    { "nothing at all", "", "Content-Length: 0\r\n\r\n" },
    { "nothing but line ends", "\r\n\n\r\r\n", "Content-Length: 0\r\n\r\n" },
    { "names in order of the alphabet", "b: 1\r\nQ: 2\r\na: 3\r\n",
      "Accept-Contact: 3\r\nQ: 2\r\nReferred-By: 1\r\nContent-Length: 0\r\n\r\n" },
    { "an empty value", "Subject:\r\n\r\n", "Subject: \r\nContent-Length: 0\r\n\r\n" },
    { "blanks around name and value", "Q: a\r\nTo \t : \t x y \t\r\n\r\n",
      "Q: a\r\nTo: x y\r\nContent-Length: 0\r\n\r\n" },
    { "only the first colon cuts", "To: a:b:c\r\n\r\n", "To: a:b:c\r\nContent-Length: 0\r\n\r\n" },
    { "values are not cut at commas", "Via: a, b\r\n\r\n", "Via: a, b\r\nContent-Length: 0\r\n\r\n" },
    { "a folded field", "To: a\r\n  b\r\n\t c \r\n\r\n", "To: a b c\r\nContent-Length: 0\r\n\r\n" },
    { "folded before the colon", "To\r\n : a\r\n\r\n", "To: a\r\nContent-Length: 0\r\n\r\n" },
    { "a blank line folds nothing away", "To: a\r\n \t\r\n b\r\n\r\n", "To: a b\r\nContent-Length: 0\r\n\r\n" },
    { "an empty line ends a field", "To: a\n\n From: b\n", "From: b\r\nTo: a\r\nContent-Length: 0\r\n\r\n" },
    { "a continuation of nothing is a field", " To: a\r\n\r\n", "To: a\r\nContent-Length: 0\r\n\r\n" },
    { "lone LF and lone CR end lines", "To: a\nFrom: b\rQ: c",
      "From: b\r\nQ: c\r\nTo: a\r\nContent-Length: 0\r\n\r\n" },
    { "LF CR are two line ends", "To: a\n\r b: c\r\n", "Referred-By: c\r\nTo: a\r\nContent-Length: 0\r\n\r\n" },
    { "Unicode in a value", "Subject: \xe2\x82\xac \xf0\x9f\x93\x9e\r\n\r\n",
      "Subject: \xe2\x82\xac \xf0\x9f\x93\x9e\r\nContent-Length: 0\r\n\r\n" },
};

const Case bodies[] = {
    { "all bytes without a length", "Q: a\r\n\r\nbody", "Q: a\r\nContent-Length: 4\r\n\r\nbody" },
    { "as long as it says", "l: 3\r\n\r\nbody", "Content-Length: 3\r\n\r\nbod" },
    { "none at length 0", "l: 0\r\n\r\nbody", "Content-Length: 0\r\n\r\n" },
    { "none at all", "l: 0\r\n\r\n", "Content-Length: 0\r\n\r\n" },
    { "the last length counts", "l: 9\r\nContent-Length: 3\r\n\r\nbody", "Content-Length: 3\r\n\r\nbod" },
    { "zeros before the length", "l: 0003\r\n\r\nbody", "Content-Length: 3\r\n\r\nbod" },
    { "the first empty line ends the headers", "Q: a\r\n\r\n\r\n\r\n", "Q: a\r\nContent-Length: 4\r\n\r\n\r\n\r\n" },
    { "bare LF is no empty line", "Q: a\n\nW: b", "Q: a\r\nW: b\r\nContent-Length: 0\r\n\r\n" },
};

void Check( const Case &test )
{
    pb::Ref frag = Fragment( test.wire );
    ASSERT_TRUE( frag ) << test.what;
    const std::string encoded = Take( sipsnMessageFragmentEncode( frag.Get() ) );
    EXPECT_EQ( encoded, test.canonical ) << test.what;
    // A Content-Length that was added at the end moves to its place in the alphabet; then nothing moves any more.
    const std::string again = Take( sipsnMessageFragmentEncode( Fragment( encoded ).Get() ) );
    EXPECT_EQ( again.size(), encoded.size() ) << test.what;
    EXPECT_EQ( Take( sipsnMessageFragmentEncode( Fragment( again ).Get() ) ), again ) << test.what;
}

TEST( SipsnMessageFragmentDecode, StartLines )
{
    for( const Case &test : startLines ) Check( test );
}

TEST( SipsnMessageFragmentDecode, Fields )
{
    for( const Case &test : fields ) Check( test );
    pb::Ref frag = Fragment( std::string_view{ "Q: a\0b\r\n", 8 } );
    EXPECT_EQ( Lines( frag.Get(), "Q" ), std::string( "a\0b", 3 ) );
    for( const char *name : { "Replaces", "Flow-Timer", "Service-Interact-Info" } )
        for( size_t zeros = 1; zeros < 16; ++zeros )
            EXPECT_FALSE( Fragment( name + std::string( zeros, '\0' ) + ": " + std::string( 32, '1' ) ) ) << name;
}

// Names are read from bytes in blocks where there are enough, and one by one where not; from a string always one by
// one. Both must come to the same name.
TEST( SipsnMessageFragmentDecode, NamesAreThoseOfStrings )
{
    const std::string names =
        "to q l via from xvia vib content-type content-length content-lengtx content-encoding x[via "
        "suppress-if-match authorization-x proxy-authentication-info p-charging-function-addresses "
        "p-charging-function-addressez a-name-of-more-than-32-characters-in-all";
    std::istringstream words{ names };
    for( std::string name; words >> name; )
        for( const bool upper : { false, true } )
            for( const char *const rest :
                 { ":", " :", ":a", "\t: 123456789", ":1234567890123456789012345678901234567890" } ) {
                if( upper )
                    for( char &ch : name ) ch = char( std::toupper( ch ) );
                pb::Ref string = Str( name );
                pb::Ref bytes  = Bytes( name + rest );
                pb::Ref frag{ sipsnMessageFragmentTryDecodeHeaders( bytes.Get(), nullptr ) };
                ASSERT_EQ( bool( frag ), sipsnMessageHeaderNameOk( string.Get() ) ) << name;
                if( !frag ) continue;
                pb::Ref headers{ sipsnMessageFragmentHeadersVector( frag.Get() ) };
                pb::Ref header{ sipsnMessageHeaderFrom( pbVectorAt( headers.Get(), 0 ) ) };
                EXPECT_EQ( Take( sipsnMessageHeaderName( header.Get() ) ),
                           Take( sipsnMessageHeaderNameNormalize( string.Get() ) ) )
                    << name << rest;
            }
}

TEST( SipsnMessageFragmentDecode, Bodies )
{
    for( const Case &test : bodies ) Check( test );
    EXPECT_FALSE( sipsnMessageFragmentHasBody( Fragment( "Q: a\r\n\r\n" ).Get() ) );
    EXPECT_FALSE( sipsnMessageFragmentHasBody( Fragment( "l: 0\r\n\r\nrest" ).Get() ) );
}

TEST( SipsnMessageFragmentDecode, KeepsEveryLineOfALength )
{
    pb::Ref frag = Fragment( "l: 5\r\nContent-Length: 3\r\n\r\nbody" );
    EXPECT_EQ( Lines( frag.Get(), "Content-Length" ), "5|3" );
}

TEST( SipsnMessageFragmentDecode, HeadersAloneGiveTheLength )
{
    int64_t length = 77;
    pb::Ref none{ sipsnMessageFragmentTryDecodeHeaders( Bytes( "Q: a" ).Get(), &length ) };
    EXPECT_TRUE( none );
    EXPECT_EQ( length, -1 );
    pb::Ref some{ sipsnMessageFragmentTryDecodeHeaders( Bytes( "Q: a\r\nl: 12\r\n" ).Get(), &length ) };
    EXPECT_TRUE( some );
    EXPECT_EQ( length, 12 );
    EXPECT_EQ( sipsnMessageFragmentTryDecodeHeaders( Bytes( "X" ).Get(), &length ), nullptr );
    EXPECT_EQ( length, -1 );
    pb::Ref unasked{ sipsnMessageFragmentTryDecodeHeaders( Bytes( "l: x" ).Get(), nullptr ) };
    EXPECT_TRUE( unasked ) << "the length is only read when it is asked for";
}

TEST( SipsnMessageFragmentDecode, OnlyAStartLineMakesAMessage )
{
    EXPECT_FALSE( Message( "Via: a\r\n\r\n" ) );
    EXPECT_TRUE( sipsnMessageIsRequest( Message( "A sip:a SIP/2.0\r\n\r\n" ).Get() ) );
    pb::Ref response = Message( "SIP/2.0 200\r\n\r\n" );
    EXPECT_TRUE( sipsnMessageIsResponse( response.Get() ) );
    EXPECT_EQ( Take( sipsnMessageResponseReasonPhrase( response.Get() ) ), "" );
}

} // namespace
