// sipsn encode: messages in their canonical wire form.
#include "commands.h"
#include "input.h"

#include <memory>

namespace tool {

namespace {

constexpr const char *footer =
    R"(Writes each message as the library writes it: long header names in canonical spelling and in their order, no folded lines, the
true Content-Length, lines that end in CR LF. What is written is fit to be sent, except on a terminal: there line ends are
the terminal's and control characters are escaped.

Examples:
  sipsn encode invite.sip > canonical.sip
  sipsn encode invite.sip | sipsn decode
  diff <(sipsn encode a.sip) <(sipsn encode b.sip))";

Status RunEncode( const std::vector< std::string > &files )
{
    return ForEachInput( files, []( const Input &input ) {
        const std::vector< FoundMessage > messages = FindMessages( input.bytes );
        for( const FoundMessage &found : messages )
            if( found.message ) PrintWire( found.message.Get() );
        return ComplainOfFaults( input, messages );
    } );
}

} // namespace

void AddEncode( CLI::App &app, Task &task )
{
    CLI::App *command = app.add_subcommand( "encode", "Write messages in canonical wire form" );
    auto      files   = std::make_shared< std::vector< std::string > >();
    command->footer( footer );
    command->add_option( "FILE", *files, filesHelp )->type_name( "" );
    command->callback( [ &task, files ] { task = [ files ] { return RunEncode( *files ); }; } );
}

} // namespace tool
