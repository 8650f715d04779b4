// sipsn reply: the response to a request.
#include "commands.h"
#include "family.h"
#include "fault.h"
#include "input.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <memory>
#include <random>

namespace tool {

namespace {

constexpr const char *footer =
    R"(Writes the response on the wire (RFC 3261 section 8.2.6): Via, From, Call-Id, Cseq and Record-Route of the request, To with a tag
of its own when it has none, and a Contact when one is given; a 100 has the request's Timestamp too. An ACK has no response.

Examples:
  sipsn reply 486 invite.sip
  sipsn reply 200 --contact sip:bob@192.0.2.20 invite.sip | sipsn decode
  sipsn reply 404 --reason 'No Such Subscriber' < invite.sip)";

struct Options
{
    std::string file = "-";
    int64_t     code = 0;
    std::string reason;
    std::string contact;
    std::string tag;
};

// ---- The response ----------------------------------------------------------------------------------

// 64 bits; RFC 3261 section 19.3 asks for 32.
std::string RandomTag()
{
    std::random_device random;
    char               tag[ 17 ];
    std::snprintf( tag, sizeof( tag ), "%08x%08x", random(), random() );
    return tag;
}

Owned< SipsnMessage > CreateResponse( SipsnMessage *request, const Options &options )
{
    const Owned< SipsnVersion > version{ sipsnMessageVersion( request ) };
    if( options.reason.empty() ) return Owned{ sipsnMessageCreateResponse( version.Get(), options.code ) };
    const Owned< PbString > reason = TryString( options.reason );
    return Owned{ sipsnMessageCreateResponseWithReasonPhrase( version.Get(), options.code, reason.Get() ) };
}

void CopyHeader( SipsnMessage *request, Owned< SipsnMessage > &response, const char *name )
{
    const Owned< SipsnMessageHeader > header{ sipsnMessageHeaderCstr( request, name, -1 ) };
    if( header ) sipsnMessageSetHeader( response.Slot(), header.Get() );
}

void EnsureToTag( Owned< SipsnMessage > &response, const Options &options )
{
    Owned< SipsnHeaderTo > to{ sipsnHeaderToTryDecodeFromMessage( response.Get() ) };
    if( sipsnHeaderToHasTag( to.Get() ) ) return;
    const Owned< PbString > tag = TryString( options.tag.empty() ? RandomTag() : options.tag );
    sipsnHeaderToSetTag( to.Slot(), tag.Get() );
    sipsnHeaderToEncodeToMessage( to.Get(), response.Slot() );
}

void AddContact( Owned< SipsnMessage > &response, const std::string &uri )
{
    const Owned< PbString >     iri = TryString( uri );
    const Owned< SipsnContact > contact{ sipsnContactCreate( iri.Get() ) };
    Owned< SipsnHeaderContact > header{ sipsnHeaderContactCreate() };
    sipsnHeaderContactAppendContact( header.Slot(), contact.Get() );
    sipsnHeaderContactEncodeToMessage( header.Get(), response.Slot() );
}

Owned< SipsnMessage > MakeResponse( SipsnMessage *request, const Options &options )
{
    Owned< SipsnMessage > response = CreateResponse( request, options );
    for( const char *name : { "Via", "From", "To", "Call-Id", "Cseq", "Record-Route" } )
        CopyHeader( request, response, name );
    if( options.code == 100 ) CopyHeader( request, response, "Timestamp" );
    EnsureToTag( response, options );
    if( !options.contact.empty() ) AddContact( response, options.contact );
    return response;
}

// ---- What can be answered --------------------------------------------------------------------------

constexpr const char *required[] = { "Via", "From", "To", "Call-Id", "Cseq" };

// Why a message has no response; none when it has one, if its header fields decode.
std::string ReasonNotToAnswer( SipsnMessage *message )
{
    if( !sipsnMessageIsRequest( message ) ) return "a response, not a request";
    if( Utf8( Owned{ sipsnMessageRequestMethod( message ) } ) == "ACK" ) return "an ACK, which has no response";
    for( const char *name : required ) {
        const Owned< SipsnMessageHeader > header{ sipsnMessageHeaderCstr( message, name, -1 ) };
        const Family                     &family = *FindFamily( name );
        const auto                        typed  = header ? TryDecode( family, header.Get() ) : Typed{};
        if( !header || ( typed && family.shape == SIPSN_SCHEMA_SHAPE_LIST && typed->items.empty() ) )
            return std::string( "no " ) + name + ", without which there is no response";
    }
    return {};
}

Status AnswerMessage( const Input &input, const FoundMessage &found, const Options &options )
{
    const std::string reason = ReasonNotToAnswer( found.message.Get() );
    if( !reason.empty() ) {
        Complain( Place( input, found.place.begin.line ), reason );
        return someFailed;
    }
    for( const Finding &bad : FindBadFields( input, found ) )
        if( std::find( std::begin( required ), std::end( required ), bad.header ) != std::end( required ) ) {
            ComplainInLines( DescribeFinding( input, bad, ErrorsAreOnTerminal() ) );
            return someFailed;
        }
    PrintWire( MakeResponse( found.message.Get(), options ).Get() );
    return allWell;
}

Status RunReply( const Options &options )
{
    return ForEachInput( { options.file }, [ & ]( const Input &input ) {
        const std::vector< FoundMessage > messages = FindMessages( input, Framing::datagram );
        Status                            status   = allWell;
        for( const FoundMessage &found : messages )
            if( found.message ) Worsen( status, AnswerMessage( input, found, options ) );
        Worsen( status, ComplainOfFaults( input, messages ) );
        return status;
    } );
}

// An argument that the library must take.
CLI::Validator Valid( bool ( *ok )( PbString * ), const char *what )
{
    return { [ ok, what ]( const std::string &argument ) -> std::string {
                const Owned< PbString > text = TryString( argument );
                return text && ok( text.Get() ) ? "" : "no " + std::string( what ) + ": " + Quote( argument );
            },
             "" };
}

} // namespace

void AddReply( CLI::App &app, Task &task )
{
    CLI::App *command = app.add_subcommand( "reply", "Write the response to a request" );
    auto      options = std::make_shared< Options >();
    command->footer( footer );
    command->add_option( "CODE", options->code, "The status code, from 100 to 699" )
        ->type_name( "" )
        ->required()
        ->check( CLI::Range( 100, 699 ).description( "" ) );
    command->add_option( "FILE", options->file, "A file; standard input for \"-\" or none" )->type_name( "" );
    command->add_option( "--reason", options->reason, "A reason phrase other than the usual one" )
        ->check( Valid( sipsnReasonPhraseOk, "reason phrase" ) );
    command->add_option( "--contact", options->contact, "The URI of a Contact" )
        ->type_name( "URI" )
        ->check( Valid( sipsnIriOk, "URI" ) );
    command->add_option( "--tag", options->tag, "The tag that To gets when it has none, instead of a random one" )
        ->check( Valid( sipsnTagOk, "tag" ) );
    command->callback( [ &task, options ] { task = [ options ] { return RunReply( *options ); }; } );
}

} // namespace tool
