// sipsn split: cuts the bytes of a stream transport into messages.
#include "commands.h"
#include "fault.h"
#include "input.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <memory>

namespace tool {

namespace {

constexpr const char *footer =
    R"(FILE holds the bytes of one direction of a TCP or TLS connection. Keep-alives (CR LF pairs) between messages are skipped;
each message must have a Content-Length. Prints a line for each message: its number, where it begins, its size and its
start line. With --out the messages are written as they were to DIR/001.sip, DIR/002.sip and so on; DIR is made when missing.
Bytes that are left over are told, with exit status 1.

Examples:
  sipsn split stream.sip
  sipsn split --out messages stream.sip && sipsn check messages/*.sip)";

struct Options
{
    std::string file = "-";
    std::string folder;
};

bool WriteFile( const std::filesystem::path &path, std::string_view bytes )
{
    std::FILE *file    = std::fopen( path.c_str(), "wb" );
    bool       written = file && std::fwrite( bytes.data(), 1, bytes.size(), file ) == bytes.size();
    if( file && std::fclose( file ) != 0 ) written = false;
    if( !written ) Complain( Escape( path.string() ), std::strerror( errno ) );
    return written;
}

Status ReportMessage( const Options &options, const Input &input, const FoundMessage &found, size_t number )
{
    const auto  begin = size_t( found.place.begin.offset ), size = size_t( found.place.length );
    std::string digits = std::to_string( number );
    std::string where  = "byte " + std::to_string( begin );
    digits.insert( 0, 3 - std::min< size_t >( digits.size(), 3 ), '0' );
    if( !options.folder.empty() ) {
        const auto path = std::filesystem::path( options.folder ) / ( digits + ".sip" );
        if( !WriteFile( path, Bytes( input.buffer.Get() ).substr( begin, size ) ) ) return cannotRun;
        where = Escape( path.string() );
    }
    PrintLine( digits + "  " + where + "  " + Count( int64_t( size ), "byte" ) + "  " +
               Paint( Ink::strong, StartLine( found.message.Get() ) ) );
    return allWell;
}

// What stands behind the last message. More bytes might complete it, if its fault is that bytes are missing.
Status ReportRest( const Input &input, const FoundMessage &found )
{
    Finding finding = FindingOf( input, found.fault );
    if( found.fault.kind == SIPSN_FAULT_EMPTY_LINE || found.fault.kind == SIPSN_FAULT_BODY_SHORT )
        finding.reason = "incomplete, " + Count( found.place.length, "byte" ) + " left: " + finding.reason;
    ComplainInLines( DescribeFinding( input, finding, ErrorsAreOnTerminal() ) );
    return someFailed;
}

bool HasOnlyKeepAlives( const Input &input, const SipsnFault &fault )
{
    return fault.kind == SIPSN_FAULT_NO_MESSAGE && Bytes( input.buffer.Get() ).size() % 2 == 0;
}

Status SplitStream( const Options &options, const Input &input )
{
    Status status = allWell;
    size_t number = 0;
    for( const FoundMessage &found : FindMessages( input, Framing::stream ) ) {
        if( found.message ) Worsen( status, ReportMessage( options, input, found, ++number ) );
        if( found.fault.kind != SIPSN_FAULT_NONE && !HasOnlyKeepAlives( input, found.fault ) )
            Worsen( status, ReportRest( input, found ) );
    }
    return status;
}

Status RunSplit( const Options &options )
{
    if( !options.folder.empty() ) {
        std::error_code error;
        std::filesystem::create_directories( options.folder, error );
        if( error ) {
            Complain( Escape( options.folder ), error.message() );
            return cannotRun;
        }
    }
    return ForEachInput( { options.file }, [ & ]( const Input &input ) { return SplitStream( options, input ); } );
}

} // namespace

void AddSplit( CLI::App &app, Task &task )
{
    CLI::App *command = app.add_subcommand( "split", "Cut a byte stream into messages" );
    auto      options = std::make_shared< Options >();
    command->footer( footer );
    command->add_option( "FILE", options->file, "A file; standard input for \"-\" or none" )->type_name( "" );
    command->add_option( "--out", options->folder, "Write the messages to files in DIR" )->type_name( "DIR" );
    command->callback( [ &task, options ] { task = [ options ] { return RunSplit( *options ); }; } );
}

} // namespace tool
