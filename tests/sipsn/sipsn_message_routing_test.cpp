// Replies, the top Via, routes, the hop count, and the identifiers of transactions and dialogs, with the examples of
// the RFCs.
#include "header_text.h"

#include <set>

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
const std::string invite = R"(INVITE sip:bob@biloxi.com SIP/2.0
Call-Id: a84b4c76e66710
Cseq: 314159 INVITE
From: Alice <sip:alice@atlanta.com>;tag=1928301774
Max-Forwards: 70
To: Bob <sip:bob@biloxi.com>
Via: SIP/2.0/UDP pc33.atlanta.com;branch=z9hG4bKnashds8

)";

// A request of which a line is another one, or several, or left out.
std::string Request( std::string_view line, std::string_view instead, const std::string &from = invite )
{
    std::string  text  = from;
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
        // A client claims to be somebody else
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
    EXPECT_EQ( Take( sipsnMessageReplyDestination( Message( invite ).Get(), nullptr ) ), "pc33.atlanta.com" );
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
    pb::Ref reply{ sipsnMessageCreateReply( Message( invite ).Get(), 200 ) };
    for( const char *tag : { "a6c85cf", "other" } )
        EXPECT_TRUE( sipsnMessageAddToTag( reply.Slot(), Str( tag ).Get() ) );
    EXPECT_THAT( Wire( reply.Get() ), HasSubstr( "To: \"Bob\" <sip:bob@biloxi.com>;tag=a6c85cf\n" ) );
    EXPECT_FALSE( sipsnMessageAddToTag( Message( Request( "To", "To: \"Bob <sip:b>\n" ) ).Slot(), Str( "x" ).Get() ) );
}

TEST( SipsnMessageRouting, AnswersWhatCanBeAnswered )
{
    const auto answer = []( const std::string &wire ) {
        return Wire( pb::Ref{ sipsnMessageCreateReply( Message( wire ).Get(), 400 ) }.Get() ).substr( 0, 11 );
    };
    for( const char *name : { "Via", "From", "To", "Call-Id", "Cseq" } )
        EXPECT_EQ( answer( Request( name, "" ) ), "(null)" ) << name;
    for( const char *name : { "From", "To", "Call-Id", "Cseq" } )
        EXPECT_EQ( answer( Request( name, std::string( name ) + ": \"\n" ) ), "SIP/2.0 400" ) << name;
    EXPECT_EQ( answer( "OPTIONS sip:a SIP/7.0" + invite.substr( invite.find( '\n' ) ) ), "SIP/2.0 400" );
    EXPECT_EQ( answer( "ACK" + invite.substr( 6 ) ), "(null)" );
    EXPECT_EQ( answer( "SIP/2.0 200 OK" + invite.substr( invite.find( '\n' ) ) ), "(null)" );
}

// ---- Routes and the hop count ------------------------------------------------------------------------

TEST( SipsnMessageRouting, RecordsRoutesAndFollowsThem )
{
    // RFC 3261 section 16.12.1.1: the proxies put themselves in front, and the callee's BYE goes back through them.
    pb::Ref msg = Message( invite );
    for( const char *proxy : { "sip:p1.example.com;lr", "sip:p2.domain.com;lr" } )
        EXPECT_TRUE(
            sipsnMessagePushRecordRoute( msg.Slot(), pb::Ref{ sipsnRouteCreate( Str( proxy ).Get() ) }.Get() ) );
    pb::Ref reply{ sipsnMessageCreateReply( msg.Get(), 200 ) };
    EXPECT_THAT( Wire( reply.Get() ), HasSubstr( "Record-Route: <sip:p2.domain.com;lr>\n"
                                                 "Record-Route: <sip:p1.example.com;lr>\n" ) );

    pb::Ref bye = Message( Request( "Max-Forwards", "Route: <sip:p2.domain.com;lr>,<sip:p1.example.com;lr>\n" ) );
    pb::Ref top{ sipsnMessageTopRoute( bye.Get() ) };
    EXPECT_TRUE( sipsnRouteEquals( top.Get(), pb::Ref{ sipsnMessagePopRoute( bye.Slot() ) }.Get() ) );
    EXPECT_EQ( Take( sipsnRouteIri( top.Get() ) ), "sip:p2.domain.com;lr" );
    EXPECT_THAT( Wire( bye.Get() ), HasSubstr( "Route: <sip:p1.example.com;lr>\n" ) );
    EXPECT_TRUE( pb::Ref{ sipsnMessagePopRoute( bye.Slot() ) } );
    EXPECT_FALSE( sipsnHeaderRoutePresentInMessage( bye.Get() ) );

    for( const char *bad : { "Subject: none\n", "Route: <sip:a\nRecord-Route: <sip:a\n" } ) {
        pb::Ref           left   = Message( Request( "Max-Forwards", bad ) );
        const std::string before = Wire( left.Get() );
        EXPECT_FALSE( pb::Ref{ sipsnMessageTopRoute( left.Get() ) } );
        EXPECT_FALSE( pb::Ref{ sipsnMessagePopRoute( left.Slot() ) } );
        EXPECT_EQ( Wire( left.Get() ), before );
        EXPECT_EQ( sipsnMessagePushRecordRoute( left.Slot(), top.Get() ), *bad == 'S' );
    }
}

TEST( SipsnMessageRouting, CountsHops )
{
    const struct
    {
        std::string number, counted;
        int64_t     result;
    } cases[] = {
        { "255", "254", SIPSN_MAX_FORWARDS_DECREMENTED },
        { "01", "0", SIPSN_MAX_FORWARDS_DECREMENTED },
        { "0", "0", SIPSN_MAX_FORWARDS_ZERO },
        { "256", "256", SIPSN_MAX_FORWARDS_MALFORMED },
        { "-1", "-1", SIPSN_MAX_FORWARDS_MALFORMED },
        { "", "", SIPSN_MAX_FORWARDS_MALFORMED },
    };
    const auto with = []( const std::string &number ) { return Request( "Max-F", "Max-Forwards: " + number + "\n" ); };
    for( const auto &row : cases ) {
        pb::Ref msg = Message( with( row.number ) );
        EXPECT_EQ( sipsnMessageDecrementMaxForwards( msg.Slot() ), row.result ) << row.number;
        EXPECT_EQ( Wire( msg.Get() ), Wire( Message( with( row.counted ) ).Get() ) );
    }
    pb::Ref without = Message( Request( "Max-Forwards", "" ) );
    EXPECT_EQ( sipsnMessageDecrementMaxForwards( without.Slot() ), SIPSN_MAX_FORWARDS_ADDED );
    EXPECT_EQ( Wire( without.Get() ), Wire( Message( invite ).Get() ) );
}

// ---- Transactions and dialogs ------------------------------------------------------------------------

std::string ServerKey( SipsnMessage *msg ) { return Take( sipsnMessageServerTransactionKey( msg ) ); }
std::string ServerKey( const std::string &wire ) { return ServerKey( Message( wire ).Get() ); }
std::string ClientKey( SipsnMessage *msg ) { return Take( sipsnMessageClientTransactionKey( msg ) ); }

TEST( SipsnMessageRouting, TellsServerTransactionsApart )
{
    const std::string key = "z9hg4bknashds8 pc33.atlanta.com:5060 INVITE";
    for( const std::string &same :
         { invite, "ACK" + invite.substr( 6 ), Request( "To", "" ), Request( "Cseq", "" ),
           Request( "Via", "v: SIP/2.0/TCP PC33.atlanta.COM:5060;received=10.1.1.1;branch=Z9HG4bKnashds8\n" ) } )
        EXPECT_EQ( ServerKey( same ), key );
    for( const std::string &other : { "CANCEL" + invite.substr( 6 ), "invite" + invite.substr( 6 ),
                                      Request( "Via", "v: SIP/2.0/UDP pc33.atlanta.com;branch=z9hG4bKnashds9\n" ),
                                      Request( "Via", "v: SIP/2.0/UDP pc34.atlanta.com;branch=z9hG4bKnashds8\n" ),
                                      Request( "Via", "v: SIP/2.0/TLS pc33.atlanta.com;branch=z9hG4bKnashds8\n" ) } )
        EXPECT_THAT( ServerKey( other ), AllOf( Not( key ), Not( "(null)" ) ) );
    EXPECT_EQ( ServerKey( Request( "Via", "" ) ), "(null)" );
}

TEST( SipsnMessageRouting, TellsServerTransactionsOfRfc2543Apart )
{
    // The magic cookie alone says nothing.
    const std::string old  = Request( "Via", "Via: SIP/2.0/UDP pc33.atlanta.com;branch=z9hG4bK\n" );
    const auto        with = [ & ]( const char *line, const char *instead ) { return Request( line, instead, old ); };
    std::set< std::string >                       keys;
    const std::pair< const char *, const char * > changes[] = {
        { "To", "To: Bob <sip:bob@biloxi.com>\n" },
        { "To", "To: Bob <sip:bob@biloxi.com>;tag=1\n" },
        { "From", "From: <sip:alice@atlanta.com>\n" },
        { "Call-Id", "Call-Id: A84b4c76e66710\n" },
        { "Cseq", "Cseq: 314160 INVITE\n" },
        { "Via", "Via: SIP/2.0/UDP pc33.atlanta.com\n" },
        { "Via", "Via: SIP/2.0/UDP pc33.atlanta.com;branch=1\n" },
    };
    for( const auto &[ line, instead ] : changes )
        EXPECT_TRUE( keys.insert( ServerKey( with( line, instead ) ) ).second );
    const std::string request = with( "To", "To: Bob <sip:bob@biloxi.com>\n" );
    EXPECT_TRUE( keys.insert( ServerKey( "INVITE sip:Bob@biloxi.com" + request.substr( 25 ) ) ).second );
    EXPECT_TRUE( keys.insert( ServerKey( "OPTIONS" + request.substr( 6 ) ) ).second );
    EXPECT_FALSE( keys.contains( "(null)" ) );

    EXPECT_TRUE( keys.contains( ServerKey( with( "To", "t:<sip:robert@biloxi.com> ; TAG=1\n" ) ) ) );
    const std::string ack      = with( "To", "To: Bob <sip:bob@biloxi.com>;tag=2\n" );
    pb::Ref           answered = Message( request );
    sipsnMessageAddToTag( answered.Slot(), Str( "2" ).Get() );
    EXPECT_EQ( ServerKey( answered.Get() ), ServerKey( "ACK" + ack.substr( 6 ) ) );

    for( const char *line : { "To", "From", "Call-Id", "Cseq" } ) EXPECT_EQ( ServerKey( with( line, "" ) ), "(null)" );
    EXPECT_EQ( ServerKey( pb::Ref{ sipsnMessageCreateReply( answered.Get(), 200 ) }.Get() ), "(null)" );
}

TEST( SipsnMessageRouting, NamesADialogFromBothSides )
{
    const auto id = []( std::string_view from, std::string_view to, bool uas, int64_t sc = 0 ) {
        pb::Ref msg = Message( Request( "From", from, Request( "To", to ) ) );
        if( sc > 0 ) sipsnMessageSetResponse( msg.Slot(), pb::Ref{ sipsnVersionCreateSip20() }.Get(), sc );
        return Take( sipsnMessageDialogId( msg.Get(), uas ) );
    };
    const char *fromA = "From: <sip:alice@atlanta.com>;tag=A\n", *fromNobody = "From: <sip:alice@atlanta.com>\n";
    const char *toB = "To: <sip:bob@biloxi.com>;tag=b\n", *toNobody = "To: <sip:bob@biloxi.com>\n";
    EXPECT_EQ( id( fromA, toB, true ), "a84b4c76e66710 b a" );
    EXPECT_EQ( id( fromA, toB, false ), "a84b4c76e66710 a b" );
    // The remote side may be one of RFC 2543, which has no tag; without that of the local side there is no dialog yet.
    EXPECT_EQ( id( fromNobody, toB, true ), "a84b4c76e66710 b " );
    EXPECT_EQ( id( fromA, toNobody, false, 299 ), "a84b4c76e66710 a " );
    EXPECT_EQ( id( fromNobody, toB, false ), "(null)" );
    EXPECT_EQ( id( fromA, toNobody, true, 200 ), "(null)" );
    for( int64_t sc : { 0, 199, 300 } ) EXPECT_EQ( id( fromA, toNobody, false, sc ), "(null)" ) << sc;
    EXPECT_EQ( id( "From: <sip:a\n", toB, true ), "(null)" );
}

TEST( SipsnMessageRouting, CarriesACallThroughTwoProxies )
{
    // RFC 3261 section 24.2, F1 to F12: each side writes where the message came from, and each proxy itself on top.
    const char *const lastVia = "Via: SIP/2.0/UDP pc33.atlanta.com;received=192.0.2.1;branch=z9hG4bKnashds8\n";
    pb::Ref           msg     = Message( invite );
    const auto        receive = [ & ]( const char *from ) {
        EXPECT_TRUE( sipsnMessageSetSource( msg.Slot(), Address( from ).Get(), 5060 ) );
    };
    receive( "192.0.2.1" );
    EXPECT_THAT( Wire( pb::Ref{ sipsnMessageCreateReply( msg.Get(), 100 ) }.Get() ), HasSubstr( lastVia ) );
    EXPECT_EQ( sipsnMessageDecrementMaxForwards( msg.Slot() ), SIPSN_MAX_FORWARDS_DECREMENTED );
    EXPECT_TRUE( PushVia( msg, "bigbox3.site3.atlanta.com", "77ef4c2312983.1" ) );
    receive( "192.0.2.2" );
    EXPECT_EQ( sipsnMessageDecrementMaxForwards( msg.Slot() ), SIPSN_MAX_FORWARDS_DECREMENTED );
    EXPECT_TRUE( PushVia( msg, "server10.biloxi.com", "4b43c2ff8.1" ) );
    const std::string clientKey = ClientKey( msg.Get() );
    receive( "192.0.2.3" );
    const std::string vias =
        "Via: SIP/2.0/UDP server10.biloxi.com;received=192.0.2.3;branch=z9hG4bK4b43c2ff8.1\n"
        "Via: SIP/2.0/UDP bigbox3.site3.atlanta.com;received=192.0.2.2;branch=z9hG4bK77ef4c2312983.1\n";
    EXPECT_THAT( Wire( msg.Get() ), AllOf( HasSubstr( "Max-Forwards: 68\n" ), HasSubstr( vias + lastVia ) ) );
    for( bool uas : { false, true } ) EXPECT_EQ( Take( sipsnMessageDialogId( msg.Get(), uas ) ), "(null)" );

    pb::Ref reply{ sipsnMessageCreateReply( msg.Get(), 200 ) };
    EXPECT_TRUE( sipsnMessageAddToTag( reply.Slot(), Str( "a6c85cf" ).Get() ) );
    EXPECT_EQ( ServerKey( reply.Get() ), ServerKey( msg.Get() ) );
    EXPECT_EQ( ClientKey( reply.Get() ), clientKey );
    EXPECT_EQ( clientKey, "z9hg4bk4b43c2ff8.1 INVITE" );
    for( const char *next : { "192.0.2.3 5060", "192.0.2.2 5060", "192.0.2.1 5060" } ) {
        EXPECT_EQ( Destination( reply.Get() ), next );
        EXPECT_NE( PopVia( reply ), "(null)" );
    }
    EXPECT_EQ( Take( sipsnMessageDialogId( reply.Get(), false ) ), "a84b4c76e66710 1928301774 a6c85cf" );
    EXPECT_EQ( ClientKey( reply.Get() ), "(null)" );
    EXPECT_EQ( sipsnMessageDecrementMaxForwards( reply.Slot() ), -1 );
    EXPECT_FALSE( sipsnMessageSetSource( reply.Slot(), Address( "192.0.2.1" ).Get(), 5060 ) );
}

TEST( SipsnMessageRoutingDeathTest, WantsValidArguments )
{
    pb::Ref msg     = Message( invite );
    pb::Ref address = Address( "10.1.1.1" );
    pb::Ref via{ sipsnMessageTopVia( msg.Get() ) };
    EXPECT_ABORT( "sipsnStatusCodeOk( sc )", sipsnMessageCreateReply( msg.Get(), 99 ) );
    EXPECT_ABORT( "sipsnTagOk( tag )", sipsnMessageAddToTag( msg.Slot(), Str( "a b" ).Get() ) );
    EXPECT_ABORT( "sipsnBranchOk( unique )", sipsnMessagePushVia( msg.Slot(), via.Get(), Str( "" ).Get() ) );
    EXPECT_ABORT( "sipsnPortOk( port )", sipsnMessageSetSource( msg.Slot(), address.Get(), -1 ) );
}

} // namespace
