// sipsn check: one verdict for each message, or one for each header field that does not decode.
#include "commands.h"
#include "fault.h"
#include "input.h"

#include <memory>

namespace tool {

namespace {

constexpr const char *footer =
    R"(Prints "FILE: ok", or "FILE:LINE:COLUMN: reason" with the place and the text at fault: where a message stops to be one, and
each header field that has a type (sipsn headers) and does not decode. On a terminal the line is shown with a mark under the
place. In a file of several messages the good ones have the line that they begin in. What follows a message that cannot be
read is not looked at, as nobody can know where it begins.

A message is ok when a stream decoder reads it; "ok as a datagram" is one that only lacks the Content-Length that a stream needs,
and that reaches to the end of its file. The last line, on standard error, counts messages.

A comma in a URI that no angle brackets enclose gets a warning: to others it begins another address (RFC 3261 20.10). The message
is ok all the same.

JSON is a line for each finding: "file", "line", "column" and "offset" of the place, "header" when it is in the value of a
header field (else null), "reason" and "text"; "warning" is true in one that does not make the message bad.

Examples:
  sipsn check invite.sip
  sipsn check captures/*.sip | grep -v ': ok$'
  sipsn check --json captures/*.sip | jq -r .header | sort | uniq -c
  sipsn check invite.sip > /dev/null && echo good)";

struct Options
{
    std::vector< std::string > files;
    bool                       json = false;
};

struct Tally
{
    int64_t messages = 0, bad = 0, badFields = 0;
};

// JSON says of a warning that it is one.
void PrintFinding( const Input &input, const Finding &finding, const Options &options, bool isWarning = false )
{
    if( !options.json ) return Print( DescribeFinding( input, finding, OutputIsTerminal() ) );
    Json line( { { "file", input.name },
                 { "line", finding.place.line },
                 { "column", finding.place.column },
                 { "offset", finding.place.offset },
                 { "header", finding.header.empty() ? Json() : Json( finding.header ) },
                 { "reason", finding.reason },
                 { "text", finding.text } } );
    if( isWarning ) line[ "warning" ] = true;
    PrintJsonLine( line );
}

// `onlyOne` in its file, a good message needs no line.
void CheckMessage( const Input &input, const FoundMessage &found, bool onlyOne, const Options &options, Tally &tally )
{
    std::vector< Finding > findings;
    if( found.message ) findings = FindBadFields( input, found );
    tally.badFields += int64_t( findings.size() );
    const bool onlyDatagram = found.fault.kind == SIPSN_FAULT_CONTENT_LENGTH_MISSING;
    if( found.fault.kind != SIPSN_FAULT_NONE && !onlyDatagram ) findings.push_back( FindingOf( input, found.fault ) );

    for( const Finding &finding : findings ) PrintFinding( input, finding, options );
    if( found.message )
        for( Finding warning : FindBareCommas( input, found ) ) {
            warning.reason = "warning: " + warning.reason;
            PrintFinding( input, warning, options, true );
        }
    ++tally.messages;
    tally.bad += !findings.empty();
    if( findings.empty() && !options.json )
        PrintLine( ( onlyOne ? input.name : Place( input, found.place.begin.line ) ) + ": " +
                   Paint( Ink::good, onlyDatagram ? "ok as a datagram" : "ok" ) );
}

Status RunCheck( const Options &options )
{
    Tally        tally;
    const Status status = ForEachInput( options.files, [ & ]( const Input &input ) {
        const int64_t                     badBefore = tally.bad;
        const std::vector< FoundMessage > messages  = FindMessages( input, Framing::either );
        for( const FoundMessage &found : messages ) CheckMessage( input, found, messages.size() == 1, options, tally );
        return tally.bad > badBefore ? someFailed : allWell;
    } );
    ComplainInLines( Count( tally.messages, "message" ) + ", " + std::to_string( tally.bad ) + " bad, " +
                     Count( tally.badFields, "bad header field" ) + '\n' );
    return status;
}

} // namespace

void AddCheck( CLI::App &app, Task &task )
{
    CLI::App *command = app.add_subcommand( "check", "Say of each message and header field whether it is well-formed" );
    auto      options = std::make_shared< Options >();
    command->footer( footer );
    command->add_option( "FILE", options->files, filesHelp )->type_name( "" );
    command->add_flag( "--json", options->json, "Print findings as JSON, one a line" );
    command->callback( [ &task, options ] { task = [ options ] { return RunCheck( *options ); }; } );
}

} // namespace tool
