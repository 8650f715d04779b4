// sipsn encode: messages in their canonical wire form.
#include "build.h"
#include "commands.h"
#include "fault.h"
#include "input.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <sstream>

namespace tool {

namespace {

constexpr const char *footer =
    R"(Writes each message as the library writes it: long header names in canonical spelling and in their order, no folded lines, the
true Content-Length, lines that end in CR LF. What is written is fit to be sent, except on a terminal: there line ends are
the terminal's and control characters are escaped.

With --json the files hold what "sipsn decode --json" prints: an array of messages, or messages one after another. A header
field is made of its "members" or "items"; as long as its "lines" say the same, or without members, these are written as
they are. What a member cannot hold is refused with its path, and its message left out. "file", "line" and the "length" of a
body are not looked at.

Examples:
  sipsn encode invite.sip > canonical.sip
  sipsn encode invite.sip | sipsn decode
  diff <(sipsn encode a.sip) <(sipsn encode b.sip)
  sipsn decode --json a.sip | jq '.[].headers.Via.items[0].port = 5070' | sipsn encode --json)";

Status EncodeObject( const Input &input, const std::string &path, const Json &json )
{
    try {
        PrintWire( BuildMessage( path, json ).Get() );
        return allWell;
    } catch( const Refusal &refusal ) {
        Complain( input.name, refusal.what() );
        return someFailed;
    }
}

// The values that stand one after another; where there is something else, its place in the bytes.
std::optional< size_t > ParseAll( const std::string &bytes, std::vector< Json > &values )
{
    std::istringstream stream{ bytes };
    while( stream >> std::ws, stream.peek() != std::istringstream::traits_type::eof() ) {
        const auto begin = size_t( stream.tellg() );
        try {
            stream >> values.emplace_back();
        } catch( const Json::parse_error &error ) {
            return begin + error.byte - 1;
        } catch( const Json::exception & ) { // a number that is too large
            return begin;
        }
    }
    return std::nullopt;
}

Status EncodeJson( const Input &input )
{
    const std::string   bytes{ Bytes( input.buffer.Get() ) };
    std::vector< Json > values;
    if( const auto bad = ParseAll( bytes, values ) ) {
        const auto end = bytes.begin() + std::ptrdiff_t( std::min( *bad, bytes.size() ) );
        Complain( Place( input, 1 + std::count( bytes.begin(), end, '\n' ) ), "not JSON" );
        return someFailed;
    }
    std::vector< const Json * > objects;
    for( const Json &value : values ) {
        if( !value.is_array() )
            objects.push_back( &value );
        else
            for( const Json &object : value ) objects.push_back( &object );
    }
    Status status = allWell;
    for( size_t at = 0; at < objects.size(); ++at )
        Worsen( status,
                EncodeObject( input, objects.size() > 1 ? '[' + std::to_string( at ) + ']' : "", *objects[ at ] ) );
    return status;
}

Status RunEncode( const std::vector< std::string > &files, bool json )
{
    if( json ) return ForEachInput( files, EncodeJson );
    return ForEachInput( files, []( const Input &input ) {
        const std::vector< FoundMessage > messages = FindMessages( input, Framing::datagram );
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
    auto      json    = std::make_shared< bool >( false );
    command->footer( footer );
    command->add_option( "FILE", *files, filesHelp )->type_name( "" );
    command->add_flag( "--json", *json, "Read JSON, as decode --json prints it" );
    command->callback( [ &task, files, json ] { task = [ files, json ] { return RunEncode( *files, *json ); }; } );
}

} // namespace tool
