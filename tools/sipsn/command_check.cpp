// sipsn check: one verdict for each message, or one for each header field that does not decode.
#include "commands.h"
#include "family.h"
#include "fault.h"
#include "input.h"

#include <algorithm>
#include <map>
#include <memory>

namespace tool {

namespace {

constexpr const char *footer =
    R"(Prints "FILE: ok", or "FILE:LINE: reason" with the line at fault: that of a message that cannot be read, or each header field
that has a type (sipsn headers) and does not decode. In a file of several messages the good ones have the line that they
begin in. What follows a message that cannot be read is not looked at, as nobody can know where it begins.

Examples:
  sipsn check invite.sip
  sipsn check captures/*.sip | grep -v ': ok$'
  sipsn check invite.sip > /dev/null && echo good)";

// The lines in the file of the header fields of each name, in order.
std::map< std::string, std::vector< int64_t > > FieldLines( const FoundMessage &found )
{
    std::map< std::string, std::vector< int64_t > > lines;
    int64_t                                         line    = found.line;
    size_t                                          counted = 0;
    ForEachHeaderField( found.bytes, [ & ]( const std::string &name, size_t offset ) {
        line += LineAt( found.bytes.substr( counted ), offset - counted ) - 1;
        counted = offset;
        lines[ name ].push_back( line );
    } );
    return lines;
}

// What is malformed in a message that decodes, by line; only its offset is the number of a line here.
std::vector< BadLine > FindBadFields( const FoundMessage &found )
{
    std::vector< BadLine >  bad;
    const auto              lines = FieldLines( found );
    const Owned< PbVector > headers{ sipsnMessageHeadersVector( found.message.Get() ) };
    for( int64_t at = 0; at < pbVectorLength( headers.Get() ); ++at ) {
        const Owned< SipsnMessageHeader > header{ sipsnMessageHeaderFrom( pbVectorAt( headers.Get(), at ) ) };
        const std::string                 name   = Utf8( Owned{ sipsnMessageHeaderName( header.Get() ) } );
        const Family                     *family = FindFamily( name );
        if( !family ) continue;
        for( const BadLine &line : FindBadLines( *family, header.Get() ) )
            bad.push_back( { lines.at( name ).at( size_t( line.index ) ), line.reason } );
    }
    std::stable_sort( bad.begin(), bad.end(), []( const auto &a, const auto &b ) { return a.index < b.index; } );
    return bad;
}

// `onlyOne` in its file, a good message needs no line.
Status CheckMessage( const Input &input, const FoundMessage &found, bool onlyOne )
{
    const auto bad =
        found.message ? FindBadFields( found ) : std::vector< BadLine >{ { found.faultLine, found.reason } };
    for( const BadLine &line : bad ) PrintLine( Place( input, line.index ) + ": " + Paint( Ink::bad, line.reason ) );
    if( !bad.empty() ) return someFailed;
    PrintLine( ( onlyOne ? input.name : Place( input, found.line ) ) + ": " + Paint( Ink::good, "ok" ) );
    return allWell;
}

Status RunCheck( const std::vector< std::string > &files )
{
    return ForEachInput( files, []( const Input &input ) {
        Status                            status   = allWell;
        const std::vector< FoundMessage > messages = FindMessages( input.bytes );
        for( const FoundMessage &found : messages )
            Worsen( status, CheckMessage( input, found, messages.size() == 1 ) );
        return status;
    } );
}

} // namespace

void AddCheck( CLI::App &app, Task &task )
{
    CLI::App *command = app.add_subcommand( "check", "Say of each message and header field whether it is well-formed" );
    auto      files   = std::make_shared< std::vector< std::string > >();
    command->footer( footer );
    command->add_option( "FILE", *files, filesHelp )->type_name( "" );
    command->callback( [ &task, files ] { task = [ files ] { return RunCheck( *files ); }; } );
}

} // namespace tool
