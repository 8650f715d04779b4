// Cutting a byte stream into messages: whole, in pieces, with keep-alives, and what puts the decoder in error.
#include "message_text.h"

#include <gmock/gmock.h>

#include <vector>

namespace {

pb::Ref< SipsnMessageStreamDecoder > Decoder() { return pb::Ref{ sipsnMessageStreamDecoderCreate() }; }

bool Write( SipsnMessageStreamDecoder *decoder, std::string_view bytes )
{
    return sipsnMessageStreamDecoderWrite( decoder, Bytes( bytes ).Get() );
}

// The wire forms of all messages that can be read now.
std::vector< std::string > ReadAll( SipsnMessageStreamDecoder *decoder )
{
    std::vector< std::string > messages;
    while( pb::Ref msg{ sipsnMessageStreamDecoderRead( decoder ) } )
        messages.push_back( Take( sipsnMessageEncode( msg.Get() ) ) );
    return messages;
}

const std::string ack    = "ACK sip:a SIP/2.0\r\nContent-Length: 0\r\n\r\n";
const std::string info   = "INFO sip:a SIP/2.0\r\nContent-Length: 4\r\n\r\n\r\n\r\n";
const std::string busy   = "SIP/2.0 486 Busy here\r\nContent-Length: 10\r\n\r\n0123456789";
const std::string stream = "\r\n\r\n" + ack + info + "\r\n" + busy + ack;

TEST( SipsnMessageStreamDecoder, EverySplitGivesTheSameMessages )
{
    for( size_t first = 0; first <= stream.size(); ++first )
        for( size_t second : { first, ( first + stream.size() ) / 2, stream.size() } ) {
            pb::Ref                    decoder = Decoder();
            std::vector< std::string > messages;
            for( const std::string &piece :
                 { stream.substr( 0, first ), stream.substr( first, second - first ), stream.substr( second ) } ) {
                EXPECT_TRUE( Write( decoder.Get(), piece ) );
                for( const std::string &message : ReadAll( decoder.Get() ) ) messages.push_back( message );
            }
            EXPECT_THAT( messages, testing::ElementsAre( ack, info, busy, ack ) ) << first << " " << second;
            EXPECT_EQ( sipsnMessageStreamDecoderLength( decoder.Get() ), 0 );
            EXPECT_FALSE( sipsnMessageStreamDecoderError( decoder.Get() ) );
        }
}

TEST( SipsnMessageStreamDecoder, AMessageComesWithItsLastByteAndNotBefore )
{
    pb::Ref decoder = Decoder();
    for( size_t at = 0; at < busy.size(); ++at ) {
        EXPECT_EQ( sipsnMessageStreamDecoderRead( decoder.Get() ), nullptr );
        EXPECT_EQ( sipsnMessageStreamDecoderLength( decoder.Get() ), int64_t( at ) );
        EXPECT_GE( sipsnMessageStreamDecoderSpace( decoder.Get() ), 0 );
        Write( decoder.Get(), busy.substr( at, 1 ) );
    }
    EXPECT_THAT( ReadAll( decoder.Get() ), testing::ElementsAre( busy ) );
}

TEST( SipsnMessageStreamDecoder, AnEmptyBodyIsPresent )
{
    pb::Ref decoder = Decoder();
    Write( decoder.Get(), ack );
    pb::Ref msg{ sipsnMessageStreamDecoderRead( decoder.Get() ) };
    EXPECT_TRUE( sipsnMessageHasBody( msg.Get() ) );
    EXPECT_FALSE( sipsnMessageHasBody( Message( ack ).Get() ) );
}

TEST( SipsnMessageStreamDecoder, TakesPartsOfBuffers )
{
    pb::Ref       decoder = Decoder();
    pb::Ref       source  = Bytes( "xx" + ack + "yy" );
    const int64_t length  = int64_t( ack.size() );
    EXPECT_TRUE( sipsnMessageStreamDecoderWriteInner( decoder.Get(), source.Get(), 2, length ) );
    EXPECT_TRUE( sipsnMessageStreamDecoderWriteLeading( decoder.Get(), Bytes( ack + "zz" ).Get(), length ) );
    EXPECT_TRUE( sipsnMessageStreamDecoderWriteTrailing( decoder.Get(), Bytes( "zz" + ack ).Get(), length ) );
    EXPECT_TRUE( sipsnMessageStreamDecoderWriteOuter( decoder.Get(), Bytes( "ACKzz" + ack.substr( 3 ) ).Get(), 3, 2 ) );
    EXPECT_THAT( ReadAll( decoder.Get() ), testing::ElementsAre( ack, ack, ack, ack ) );
    EXPECT_DEATH( sipsnMessageStreamDecoderWriteInner( decoder.Get(), source.Get(), 2, length + 3 ), "pb_buffer" );
}

TEST( SipsnMessageStreamDecoder, OnlyPairsBetweenMessagesAreKeepAlives )
{
    pb::Ref decoder = Decoder();
    Write( decoder.Get(), "\r\n\r" );
    EXPECT_TRUE( ReadAll( decoder.Get() ).empty() );
    EXPECT_EQ( sipsnMessageStreamDecoderLength( decoder.Get() ), 1 );
    Write( decoder.Get(), "\n" + ack );
    EXPECT_THAT( ReadAll( decoder.Get() ), testing::ElementsAre( ack ) );
    Write( decoder.Get(), "\n" + ack );
    EXPECT_THAT( ReadAll( decoder.Get() ), testing::IsEmpty() ) << "a lone line feed is part of the message";
    EXPECT_TRUE( sipsnMessageStreamDecoderError( decoder.Get() ) );
}

TEST( SipsnMessageStreamDecoder, ErrorsStick )
{
    for( const char *bad : { "ACK sip:a SIP/2.0\r\n\r\n", "Via: a\r\nl: 0\r\n\r\n", "ACK sip:a SIP/2.0\r\nl: x\r\n\r\n",
                             "ACK sip:a SIP/2.0\r\nl: -1\r\n\r\n", "ACK sip:a SIP/2.0\r\nl: 0\r\nnonsense\r\n\r\n" } ) {
        pb::Ref decoder = Decoder();
        EXPECT_TRUE( Write( decoder.Get(), ack + bad + ack ) );
        EXPECT_THAT( ReadAll( decoder.Get() ), testing::ElementsAre( ack ) ) << bad;
        EXPECT_TRUE( sipsnMessageStreamDecoderError( decoder.Get() ) ) << bad;
        const int64_t length = sipsnMessageStreamDecoderLength( decoder.Get() );
        EXPECT_FALSE( Write( decoder.Get(), ack ) );
        EXPECT_EQ( sipsnMessageStreamDecoderLength( decoder.Get() ), length );
        EXPECT_THAT( ReadAll( decoder.Get() ), testing::IsEmpty() );
    }
}

TEST( SipsnMessageStreamDecoder, WaitsForAnyLength )
{
    pb::Ref decoder = Decoder();
    Write( decoder.Get(), "ACK sip:a SIP/2.0\r\nl: 9223372036854775807\r\n\r\nx" );
    EXPECT_THAT( ReadAll( decoder.Get() ), testing::IsEmpty() );
    EXPECT_FALSE( sipsnMessageStreamDecoderError( decoder.Get() ) );
}

} // namespace
