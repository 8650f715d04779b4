// Replies, the top Via, routes, the hop count, and the identifiers of transactions and dialogs, with the examples of
// the RFCs.
#include "header_text.h"

namespace {

using testing::AllOf, testing::HasSubstr, testing::Not;

// Without CR; the field that the library adds to every message is left out.
std::string Wire( SipsnMessage *msg )
{
    if( !msg ) return "(null)";
    std::string text = Take( sipsnMessageEncode( msg ) );
    std::erase( text, '\r' );
    const std::string end = "Content-Length: 0\n\n";
    return text.ends_with( end ) ? text.substr( 0, text.size() - end.size() ) : text;
}

pb::Ref< InAddress > Address( std::string_view text )
{
    const auto chs = Chars( text );
    return pb::Ref{ inAddressTryCreateFromChars( chs.data(), int64_t( chs.size() ) ) };
}

std::string Destination( SipsnMessage *msg )
{
    int64_t           port = 7;
    const std::string host = Take( sipsnMessageReplyDestination( msg, &port ) );
    return host + " " + std::to_string( port );
}

bool PushVia( pb::Ref< SipsnMessage > &msg, std::string_view host, std::string_view unique )
{
    pb::Ref via{ sipsnViaCreate( pb::Ref{ sipsnVersionCreateSip20() }.Get(), Str( "UDP" ).Get(), Str( host ).Get() ) };
    return sipsnMessagePushVia( msg.Slot(), via.Get(), Str( unique ).Get() );
}

std::string PopVia( pb::Ref< SipsnMessage > &msg )
{
    pb::Ref via{ sipsnMessagePopVia( msg.Slot() ) };
    return via ? Take( sipsnViaToString( via.Get() ) ) : "(null)";
}

// RFC 3261 section 24.2, F1, without Contact and body.
const std::string invite = "INVITE sip:bob@biloxi.com SIP/2.0\n"
                           "Call-Id: a84b4c76e66710\n"
                           "Cseq: 314159 INVITE\n"
                           "From: Alice <sip:alice@atlanta.com>;tag=1928301774\n"
                           "Max-Forwards: 70\n"
                           "To: Bob <sip:bob@biloxi.com>\n"
                           "Via: SIP/2.0/UDP pc33.atlanta.com;branch=z9hG4bKnashds8\n";

// A request of which some lines are other ones, or left out.
std::string Request( std::string_view line, std::string_view instead )
{
    std::string  text  = invite + "\n";
    const size_t begin = text.find( "\n" + std::string( line ) ) + 1;
    return text.replace( begin, text.find( '\n', begin ) + 1 - begin, instead );
}

// ---- Vias --------------------------------------------------------------------------------------------

struct SourceCase
{
    std::string via, source;
    int64_t     port;
    std::string written, destination;
};

TEST( SipsnMessageRouting, WritesTheSourceIntoTheTopVia )
{
    const SourceCase cases[] = {
        // RFC 3261 section 18.2.1; RFC 3581 sections 4 and 5
        { "bobspc.biloxi.com:5060", "192.0.2.4", 99, "bobspc.biloxi.com:5060;received=192.0.2.4", "192.0.2.4 5060" },
        { "10.1.1.1:4540;rport;branch=z9hG4bKkjshdyff", "192.0.2.1", 9988,
          "10.1.1.1:4540;received=192.0.2.1;rport=9988;branch=z9hG4bKkjshdyff", "192.0.2.1 9988" },
        { "10.1.1.1:4540;rport", "10.1.1.1", 4540, "10.1.1.1:4540;received=10.1.1.1;rport=4540", "10.1.1.1 4540" },
        // Nothing to say, and then not a letter is changed
        { "10.1.1.1 ; branch=z9hG4bK1", "10.1.1.1", 99, "10.1.1.1 ; branch=z9hG4bK1", "10.1.1.1 5060" },
        { "[2001:DB8:0::1]", "2001:db8::1", 99, "[2001:DB8:0::1]", "[2001:DB8:0::1] 5060" },
        { "[2001:db8::1]:7", "2001:db8::2", 99, "[2001:db8::1]:7;received=2001:db8::2", "[2001:db8::2] 7" },
        // Another host gives its own address as that of a third one
        { "10.1.1.1;received=192.0.2.9", "10.1.1.1", 99, "10.1.1.1", "10.1.1.1 5060" },
        { "10.1.1.1;received=192.0.2.9;rport=53", "10.1.1.1", 99, "10.1.1.1;received=10.1.1.1;rport=99",
          "10.1.1.1 99" },
        { "10.1.1.1;rport=x", "10.1.1.1", 99, "10.1.1.1;rport=x", "10.1.1.1 5060" },
        // RFC 3261 section 18.2.2
        { "a.example.com:7;maddr=b.example.com", "10.1.1.1", 99,
          "a.example.com:7;maddr=b.example.com;received=10.1.1.1", "b.example.com 7" },
    };
    for( const SourceCase &row : cases ) {
        const std::string below = "Via: SIP/2.0/TCP  below.example.com\n";
        pb::Ref           msg   = Message( Request( "Via", "Via: SIP/2.0/UDP " + row.via + "\n" + below ) );
        pb::Ref           before{ sipsnMessageRetain( msg.Get() ) };
        EXPECT_TRUE( sipsnMessageSetSource( msg.Slot(), Address( row.source ).Get(), row.port ) );
        EXPECT_EQ( Lines( pb::Ref{ sipsnMessageFragment( msg.Get() ) }.Get(), "Via" ),
                   "SIP/2.0/UDP " + row.written + "|SIP/2.0/TCP  below.example.com" );
        EXPECT_THAT( Wire( before.Get() ), HasSubstr( row.via ) );

        pb::Ref decoded = Message( Wire( msg.Get() ) + "\n" );
        EXPECT_TRUE( sipsnMessageSetSource( decoded.Slot(), Address( row.source ).Get(), row.port ) );
        EXPECT_EQ( Wire( decoded.Get() ), Wire( msg.Get() ) ) << "done twice";
        for( const auto &each : { msg.Get(), decoded.Get() } ) EXPECT_EQ( Destination( each ), row.destination );
    }
}

TEST( SipsnMessageRouting, SendsRepliesByTheRulesOfTheTransport )
{
    const std::pair< std::string, std::string > cases[] = {
        { "TCP 10.1.1.1:7;received=192.0.2.1;rport=9988;maddr=b.example.com", "192.0.2.1 7" },
        { "TLS a.example.com", "a.example.com 5061" },
        { "WSS a.example.com", "a.example.com 443" },
        { "TCP a.example.com", "a.example.com 5060" },
        { "UDP a.example.com;rport=9988", "a.example.com 5060" },
        { "UDP", "(null) -1" },
    };
    for( const auto &[ via, destination ] : cases )
        EXPECT_EQ( Destination( Message( Request( "Via", "Via: SIP/2.0/" + via + "\n" ) ).Get() ), destination );
    EXPECT_EQ( Take( sipsnMessageReplyDestination( Message( invite + "\n" ).Get(), nullptr ) ), "pc33.atlanta.com" );
}

TEST( SipsnMessageRouting, PopsAndPushesVias )
{
    const char *two = "Via: SIP/2.0/UDP a;branch=1, SIP / 2.0 / TCP b\n";
    pb::Ref     msg = Message( Request( "Via", two ) );
    pb::Ref     top{ sipsnMessageTopVia( msg.Get() ) };
    EXPECT_EQ( Take( sipsnViaToString( top.Get() ) ), "SIP/2.0/UDP a;branch=1" );
    EXPECT_TRUE( sipsnMessagePushVia( msg.Slot(), top.Get(), Str( "x.1" ).Get() ) );
    EXPECT_THAT( Wire( msg.Get() ), HasSubstr( "Via: SIP/2.0/UDP a;branch=z9hG4bKx.1\n"
                                               "Via: SIP/2.0/UDP a;branch=1\nVia: SIP / 2.0 / TCP b\n" ) );
    EXPECT_EQ( Take( sipsnViaBranch( top.Get() ) ), "1" ) << "the caller's own";

    for( const char *popped :
         { "SIP/2.0/UDP a;branch=z9hG4bKx.1", "SIP/2.0/UDP a;branch=1", "SIP/2.0/TCP b", "(null)" } )
        EXPECT_EQ( PopVia( msg ), popped );
    EXPECT_FALSE( sipsnHeaderViaPresentInMessage( msg.Get() ) );
    EXPECT_TRUE( PushVia( msg, "c", "2" ) );
    EXPECT_EQ( PopVia( msg ), "SIP/2.0/UDP c;branch=z9hG4bK2" );
}

TEST( SipsnMessageRouting, LeavesAViaThatDoesNotDecode )
{
    for( const char *bad : { "", "Via:\n", "Via: x\n", "Via: SIP/2.0/UDP\n", "Via: SIP/2.0/UDP a;;b\n",
                             "Via: SIP/2.0/UDP a, \n", "Via: SIP/2.0/UDP a\nVia: x\n", "Via: SIP/2.0/UDP a_b-\n" } ) {
        pb::Ref           msg    = Message( Request( "Via", bad ) );
        const std::string before = Wire( msg.Get() );
        EXPECT_EQ( pb::Ref{ sipsnMessageTopVia( msg.Get() ) }.Get(), nullptr ) << bad;
        EXPECT_EQ( PopVia( msg ), "(null)" );
        EXPECT_FALSE( sipsnMessageSetSource( msg.Slot(), Address( "10.1.1.1" ).Get(), 5060 ) );
        EXPECT_EQ( Destination( msg.Get() ), "(null) -1" );
        EXPECT_EQ( Wire( pb::Ref{ sipsnMessageCreateReply( msg.Get(), 400 ) }.Get() ), "(null)" );
        EXPECT_EQ( Wire( msg.Get() ), before );
    }
    pb::Ref msg = Message( Request( "Via", "Via: x\n" ) );
    EXPECT_FALSE( PushVia( msg, "c", "2" ) );
}

// ---- Replies -----------------------------------------------------------------------------------------

TEST( SipsnMessageRouting, RepliesWithWhatTheCodeWants )
{
    const std::string extra   = "Timestamp: 54\nRecord-Route: <sip:p2;lr>, <sip:p1;lr>\nSubject: no\nRoute: <sip:x>\n";
    pb::Ref           request = Message( Request( "Max-Forwards", extra + "Require: x\n" ) );
    const auto        reply   = [ & ]( int64_t sc ) {
        return Wire( pb::Ref{ sipsnMessageCreateReply( request.Get(), sc ) }.Get() );
    };
    EXPECT_EQ( reply( 100 ), "SIP/2.0 100 Trying\nCall-Id: a84b4c76e66710\nCseq: 314159 INVITE\n"
                             "From: Alice <sip:alice@atlanta.com>;tag=1928301774\nTimestamp: 54\n"
                             "To: Bob <sip:bob@biloxi.com>\n"
                             "Via: SIP/2.0/UDP pc33.atlanta.com;branch=z9hG4bKnashds8\n" );
    for( int64_t sc : { 101, 299 } )
        EXPECT_THAT( reply( sc ), AllOf( HasSubstr( "\nRecord-Route: <sip:p2;lr>, <sip:p1;lr>\n" ),
                                         Not( HasSubstr( "Timestamp" ) ) ) );
    EXPECT_THAT( reply( 300 ), Not( HasSubstr( "Record-Route" ) ) );
}

TEST( SipsnMessageRouting, GivesToATagOnce )
{
    pb::Ref reply{ sipsnMessageCreateReply( Message( invite + "\n" ).Get(), 200 ) };
    EXPECT_TRUE( sipsnMessageAddToTag( reply.Slot(), Str( "a6c85cf" ).Get() ) );
    EXPECT_TRUE( sipsnMessageAddToTag( reply.Slot(), Str( "other" ).Get() ) );
    EXPECT_THAT( Wire( reply.Get() ), HasSubstr( "To: \"Bob\" <sip:bob@biloxi.com>;tag=a6c85cf\n" ) );
    for( const char *bad : { "To: \"Bob <sip:bob@biloxi.com>\n", "" } ) {
        pb::Ref request = Message( Request( "To", bad ) );
        EXPECT_FALSE( sipsnMessageAddToTag( request.Slot(), Str( "x" ).Get() ) );
    }
}

TEST( SipsnMessageRouting, AnswersWhatCanBeAnswered )
{
    const auto answers = []( const std::string &wire ) {
        return bool( pb::Ref{ sipsnMessageCreateReply( Message( wire ).Get(), 400 ) } );
    };
    for( const char *name : { "Via", "From", "To", "Call-Id", "Cseq" } ) {
        EXPECT_FALSE( answers( Request( name, "" ) ) ) << name;
        EXPECT_EQ( answers( Request( name, std::string( name ) + ": \"\n" ) ), name != std::string( "Via" ) ) << name;
    }
    EXPECT_TRUE( answers( Request( "Max-Forwards", "" ) ) );
    EXPECT_FALSE( answers( "ACK" + invite.substr( 6 ) + "\n" ) );
    EXPECT_FALSE( answers( "SIP/2.0 200 OK" + invite.substr( invite.find( '\n' ) ) + "\n" ) );
    EXPECT_THAT( Wire( pb::Ref{ sipsnMessageCreateReply(
                                    Message( "OPTIONS sip:a SIP/7.0" + invite.substr( 33 ) + "\n" ).Get(), 505 ) }
                           .Get() ),
                 HasSubstr( "SIP/2.0 505 SIP version" ) );
}

TEST( SipsnMessageRoutingDeathTest, WantsValidArguments )
{
    pb::Ref msg     = Message( invite + "\n" );
    pb::Ref address = Address( "10.1.1.1" );
    pb::Ref via{ sipsnMessageTopVia( msg.Get() ) };
    EXPECT_ABORT( "sipsnStatusCodeOk( sc )", sipsnMessageCreateReply( msg.Get(), 99 ) );
    EXPECT_ABORT( "sipsnTagOk( tag )", sipsnMessageAddToTag( msg.Slot(), Str( "a b" ).Get() ) );
    EXPECT_ABORT( "sipsnBranchOk( unique )", sipsnMessagePushVia( msg.Slot(), via.Get(), Str( "" ).Get() ) );
    EXPECT_ABORT( "sipsnPortOk( port )", sipsnMessageSetSource( msg.Slot(), address.Get(), -1 ) );
}

} // namespace
