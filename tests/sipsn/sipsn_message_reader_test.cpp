// Reading messages one after another: which bytes are refused, where and for what, and where header fields stand.
#include "message_text.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

struct Reading
{
    std::vector< std::string > messages; // encoded
    SipsnFault                 fault;    // that ends it
};

Reading ReadAll( std::string_view bytes, int64_t framing )
{
    Reading           reading;
    pb::Ref           buf = Bytes( bytes );
    SipsnMessagePlace place{};
    while( pb::Ref message{ sipsnMessageTryDecodeNext( buf.Get(), framing, &place, &reading.fault ) } )
        reading.messages.push_back( Take( sipsnMessageEncode( message.Get() ) ) );
    return reading;
}

// ---- Faults ----------------------------------------------------------------------------------------

// "LINE:COLUMN", and the bytes that are at fault.
std::string PlaceOf( std::string_view bytes, const SipsnFault &fault )
{
    const std::string_view where = bytes.substr( size_t( fault.place.offset ), size_t( fault.length ) );
    return std::to_string( fault.place.line ) + ':' + std::to_string( fault.place.column ) + ' ' + std::string( where );
}

struct Refused
{
    const char *wire;
    int64_t     kind;
    const char *place;
};

const Refused startLines[] = {
    { "", SIPSN_FAULT_NO_MESSAGE, "1:1 " },
    { "\r\n\n\r", SIPSN_FAULT_NO_MESSAGE, "4:1 " },
    { "\r\n\nA sip:a SIP/2.0\r\n", SIPSN_FAULT_LINE_END_BEFORE_MESSAGE, "2:1 " },
    { "Via: a\r\nVia: b\r\n", SIPSN_FAULT_START_LINE, "1:1 Via: a" },
    { "a/b 99 X\r\n", SIPSN_FAULT_START_LINE, "1:1 a/b 99 X" },
    { "  \r\n", SIPSN_FAULT_START_LINE, "1:1   " },
    { "SIP/2.0\r\n", SIPSN_FAULT_STATUS_CODE, "1:8 " },
    { "SIP/2.0 \r\n", SIPSN_FAULT_STATUS_CODE, "1:9 " },
    { "SIP/2.0  200 OK\r\n", SIPSN_FAULT_STATUS_CODE, "1:9 " },
    { "SIP/2.0 99 X\r\n", SIPSN_FAULT_STATUS_CODE, "1:9 99" },
    { "SIP/2.0 1000 X\r\n", SIPSN_FAULT_STATUS_CODE, "1:9 1000" },
    { "SIP/2.0 +200 OK\r\n", SIPSN_FAULT_STATUS_CODE, "1:9 +200" },
    { "SIP/2.0 200x OK\r\n", SIPSN_FAULT_STATUS_CODE, "1:9 200x" },
    { "SIP/ 200 OK\r\n", SIPSN_FAULT_VERSION, "1:1 SIP/" },
    { "SIP/2.0 200 \xc3\xbc\xc3(\r\n", SIPSN_FAULT_UTF8, "1:14 \xc3" },
    { "A@ sip:a SIP/2.0\r\n", SIPSN_FAULT_METHOD, "1:2 @" },
    { "A\xc3\xa9 sip:a SIP/2.0\r\n", SIPSN_FAULT_METHOD, "1:2 \xc3\xa9" },
    { "A sip:a\r\n", SIPSN_FAULT_VERSION, "1:8 " },
    { "A sip:a SIP2.0\r\n", SIPSN_FAULT_VERSION, "1:9 SIP2.0" },
    { "A sip:a SIP/\r\n", SIPSN_FAULT_VERSION, "1:9 SIP/" },
    { "A SIP/2.0\r\n", SIPSN_FAULT_URI, "1:3 " },
    { "A b SIP/2.0\r\n", SIPSN_FAULT_URI, "1:3 b" },
    { "A <sip:a> SIP/2.0\r\n", SIPSN_FAULT_URI, "1:3 <" },
    { "A sip:\xc3\xbc%4 SIP/2.0\r\n", SIPSN_FAULT_URI, "1:8 %" },
    { "A sip:a; lr SIP/2.0\r\n", SIPSN_FAULT_URI_BLANK, "1:9  " },
    { "A sip:\xed\xa0\x80 SIP/2.0\r\n", SIPSN_FAULT_UTF8, "1:7 \xed" },
    { " A sip:a SIP/2.0\r\n", SIPSN_FAULT_START_LINE_BLANK, "1:1  " },
    { "A  sip:a SIP/2.0\r\n", SIPSN_FAULT_START_LINE_BLANK, "1:3  " },
    { "A sip:a  SIP/2.0\r\n", SIPSN_FAULT_START_LINE_BLANK, "1:8  " },
    { "A sip:a\tSIP/2.0\r\n", SIPSN_FAULT_START_LINE_BLANK, "1:8 \t" },
    { "A\tsip:a SIP/2.0\r\n", SIPSN_FAULT_START_LINE_BLANK, "1:2 \t" },
    { "A sip:a SIP/2.0 \r\n", SIPSN_FAULT_START_LINE_BLANK, "1:16  " },
};

// Behind a good start line.
const Refused fields[] = {
    { "Via\r\n\r\n", SIPSN_FAULT_COLON, "2:4 " },
    { "Via <a>\r\n\r\n", SIPSN_FAULT_COLON, "2:4  " },
    { "Via\r\n <a>\r\n\r\n", SIPSN_FAULT_COLON, "2:4 " },
    { "Via<a>\r\n\r\n", SIPSN_FAULT_COLON, "2:4 <" },
    { "V\xc3\xa9: b\r\n\r\n", SIPSN_FAULT_FIELD_NAME, "2:2 \xc3\xa9" },
    { "\xef\xbb\xbfTo: a\r\n\r\n", SIPSN_FAULT_FIELD_NAME, "2:1 \xef\xbb\xbf" },
    { ": a\r\n\r\n", SIPSN_FAULT_FIELD_NAME_MISSING, "2:1 :" },
    { "Call ID: b\r\n\r\n", SIPSN_FAULT_FIELD_NAME_BLANK, "2:5  " },
    { " Via\r\n\r\n", SIPSN_FAULT_FIELD_NAME_BLANK, "2:1  " },
    { "To: a\r\n\tb\xc3\xbc\xc0\xaf\r\n\r\n", SIPSN_FAULT_UTF8, "3:4 \xc0" },
    { "To: \xf4\x90\x80\x80\r\n\r\n", SIPSN_FAULT_UTF8, "2:5 \xf4" },
    { "To: a\xe2\x82\r\n\xac: b\r\n\r\n", SIPSN_FAULT_UTF8, "2:6 \xe2" },
    { "To: a\r\nA sip:a SIP/2.0\r\n\r\n", SIPSN_FAULT_SECOND_START_LINE, "3:1 A sip:a SIP/2.0" },
    { "l: 1\r\nTo: a\n\nv=0\n", SIPSN_FAULT_LINE_FEED, "4:1 " },
    { "To: a\n\r\nv=0\r\n", SIPSN_FAULT_LINE_FEED, "3:1 " },
    { "To: a\r\rv=0\r\n\r\n", SIPSN_FAULT_CARRIAGE_RETURN, "3:1 " },
    { "To: a\r\n\rv=0\r\n\r\n", SIPSN_FAULT_CARRIAGE_RETURN, "3:1 " },
    { "l: 1\r\n", SIPSN_FAULT_EMPTY_LINE, "3:1 " },
    { "Vi", SIPSN_FAULT_EMPTY_LINE, "2:3 " },
    { "l: -1\r\n\r\n", SIPSN_FAULT_CONTENT_LENGTH, "2:4 -1" },
    { "l: +3\r\n\r\nbody", SIPSN_FAULT_CONTENT_LENGTH, "2:4 +3" },
    { "l: -0\r\n\r\nbody", SIPSN_FAULT_CONTENT_LENGTH, "2:4 -0" },
    { "l: 3.0\r\n\r\nbody", SIPSN_FAULT_CONTENT_LENGTH, "2:4 3.0" },
    { "l: 1\r\nl:\r\n\t 3 3 \r\n\r\n3", SIPSN_FAULT_CONTENT_LENGTH, "4:3 3 3" },
    { "l:\r\n\r\n3", SIPSN_FAULT_CONTENT_LENGTH, "2:3 " },
    { "l: 9223372036854775808\r\n\r\n", SIPSN_FAULT_CONTENT_LENGTH, "2:4 9223372036854775808" },
    { "l: 9\r\nTo: a\r\n\r\nbody", SIPSN_FAULT_BODY_SHORT, "2:4 9" },
    { "l: 9223372036854775807\r\n\r\nbody", SIPSN_FAULT_BODY_SHORT, "2:4 9223372036854775807" },
    { "l: 3\r\n\r\nv=0\n", SIPSN_FAULT_BODY_LONG, "2:4 3" },
    { "l: 3\r\n\r\nv=0\r\ns=\r\n", SIPSN_FAULT_BODY_LONG, "2:4 3" },
    { "l: 3\r\n\r\nv=0\r\ns=\r\nSIP/2.0 200 OK\r\n", SIPSN_FAULT_BODY_RUNS_OVER, "2:4 3" },
    { "l: 22\r\n\r\nv=0\r\nSIP/2.0 200 OK\r\nl: 0\r\n\r\n", SIPSN_FAULT_BODY_RUNS_OVER, "2:4 22" },
};

void CheckRefused( const std::string &wire, const Refused &expected )
{
    const SipsnFault fault = ReadAll( wire, SIPSN_FRAMING_DATAGRAM ).fault;
    EXPECT_EQ( fault.kind, expected.kind ) << expected.wire << Take( sipsnFaultToString( &fault ) );
    EXPECT_EQ( PlaceOf( wire, fault ), expected.place ) << expected.wire;
    EXPECT_EQ( bool( Message( wire ) ), expected.kind >= SIPSN_FAULT_BODY_LONG ) << expected.wire;
}

TEST( SipsnMessageReader, SaysWhereAndForWhatItStops )
{
    for( const Refused &test : startLines ) CheckRefused( test.wire, test );
    for( Refused test : fields ) CheckRefused( std::string( "A sip:a SIP/2.0\r\n" ) + test.wire, test );
}

TEST( SipsnMessageReader, CountsWhatFollowsTheHeaderFields )
{
    const auto words = []( const std::string &wire ) {
        const SipsnFault fault = ReadAll( "A sip:a SIP/2.0\r\n" + wire, SIPSN_FRAMING_STREAM ).fault;
        return Take( sipsnFaultToString( &fault ) );
    };
    EXPECT_EQ( words( "l: 2\r\n\r\n1" ), "Content-Length is 2, but only 1 byte follows" );
    EXPECT_EQ( words( "l: 0\r\n\r\n1234" ), "Content-Length is 0, but 4 bytes follow" );
    EXPECT_EQ( words( "l: 1\r\n\r\n1\n23\r\nSIP/2.0 200 OK\r\n" ),
               "Content-Length is 1, but the next message begins after 6 bytes" );
    EXPECT_EQ( words( "\r\n1" ), "expected a Content-Length, which every message on a stream needs" );
}

// ---- What is accepted ------------------------------------------------------------------------------

void CheckFault( const std::string &bytes, const SipsnFault &fault )
{
    ASSERT_NE( fault.kind, SIPSN_FAULT_NONE );
    ASSERT_GE( fault.length, 0 );
    ASSERT_LE( fault.place.offset + fault.length, int64_t( bytes.size() ) );
    SipsnPlace place{ 0, 1, 1 };
    sipsnPlaceAdvance( &place, Bytes( bytes ).Get(), fault.place.offset );
    ASSERT_EQ( place.line, fault.place.line );
    ASSERT_EQ( place.column, fault.place.column );
}

void CheckDatagram( const std::string &bytes )
{
    size_t keepAlives = 0;
    while( bytes.compare( keepAlives, 2, "\r\n" ) == 0 ) keepAlives += 2;
    pb::Ref           whole = Message( std::string_view( bytes ).substr( keepAlives ) );
    pb::Ref           buf   = Bytes( bytes );
    SipsnMessagePlace place{};
    SipsnFault        fault;
    pb::Ref           first{ sipsnMessageTryDecodeNext( buf.Get(), SIPSN_FRAMING_DATAGRAM, &place, &fault ) };
    ASSERT_EQ( bool( first ), bool( whole ) );
    if( !first ) return CheckFault( bytes, fault );
    ASSERT_EQ( Take( sipsnMessageEncode( first.Get() ) ), Take( sipsnMessageEncode( whole.Get() ) ) );
}

void CheckStream( const std::string &bytes )
{
    pb::Ref decoder{ sipsnMessageStreamDecoderCreate() };
    sipsnMessageStreamDecoderWrite( decoder.Get(), Bytes( bytes ).Get() );
    std::vector< std::string > messages;
    while( pb::Ref message{ sipsnMessageStreamDecoderRead( decoder.Get() ) } )
        messages.push_back( Take( sipsnMessageEncode( message.Get() ) ) );

    const Reading reading = ReadAll( bytes, SIPSN_FRAMING_STREAM );
    ASSERT_EQ( reading.messages, messages );
    CheckFault( bytes, reading.fault );
    const int64_t kind      = reading.fault.kind;
    const bool    needsMore = kind == SIPSN_FAULT_EMPTY_LINE || kind == SIPSN_FAULT_BODY_SHORT;
    ASSERT_FALSE( needsMore && sipsnMessageStreamDecoderError( decoder.Get() ) );
    ASSERT_TRUE( kind == SIPSN_FAULT_NO_MESSAGE || sipsnMessageStreamDecoderLength( decoder.Get() ) > 0 );
}

// For every beginning of every example, and for each byte of it replaced by some that mean something.
TEST( SipsnMessageReader, AcceptsWhatTheDecodersAccept )
{
    for( const auto &entry : std::filesystem::directory_iterator( SIPSN_SOURCE_DIR "/examples/messages" ) ) {
        std::ifstream file{ entry.path(), std::ios::binary };
        std::string   bytes{ std::istreambuf_iterator< char >{ file }, {} };
        for( size_t at = 0; at < bytes.size() && !HasFatalFailure(); ++at ) {
            SCOPED_TRACE( entry.path().string() + " at " + std::to_string( at ) );
            CheckDatagram( bytes.substr( 0, at ) );
            CheckStream( bytes.substr( 0, at ) );
            const char original = bytes[ at ];
            for( const char other : { '\0', '\t', '\n', '\r', ' ', '1', ':', '<', 'A', '\xc3' } ) {
                bytes[ at ] = other;
                CheckDatagram( bytes );
                CheckStream( bytes );
            }
            bytes[ at ] = original;
        }
    }
}

// ---- Header fields ---------------------------------------------------------------------------------

TEST( SipsnMessageReader, FindsFieldsAndTheirCharacters )
{
    pb::Ref buf = Bytes( "\r\nA sip:a SIP/2.0\r\nTO : \xc3\xbc\xe2\x82\xac, x\r\n\t \r\n  y \rl: 0\r\nq\n :\r\n\r\n" );
    SipsnMessagePlace message{};
    SipsnFault        fault;
    ASSERT_TRUE( pb::Ref{ sipsnMessageTryDecodeNext( buf.Get(), SIPSN_FRAMING_STREAM, &message, &fault ) } );

    std::string     found;
    SipsnFieldPlace field{};
    while( sipsnMessagePlaceNextField( buf.Get(), &message, &field ) ) {
        found += Take( sipsnFieldPlaceName( buf.Get(), &field ) ) + " of " + std::to_string( field.length ) + ": ";
        const int64_t indexes[] = { 0, 1, 4, 5, 6, 7, 99 };
        SipsnPlace    places[ std::size( indexes ) ];
        sipsnFieldPlacesOfChars( buf.Get(), &field, indexes, places, std::size( indexes ) );
        for( const SipsnPlace &place : places )
            found += std::to_string( place.line ) + ':' + std::to_string( place.column ) + ' ';
    }
    EXPECT_EQ( found, "To of 22: 3:6 3:7 3:10 3:11 5:3 5:4 5:4 Content-Length of 4: 6:4 6:5 6:5 6:5 6:5 6:5 6:5 "
                      "Q of 4: 8:3 8:3 8:3 8:3 8:3 8:3 8:3 " );
}

} // namespace
