// sipsn split: cuts the bytes of a stream transport into messages.
#include "commands.h"
#include "fault.h"
#include "input.h"

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

// The bytes of a message in the stream.
struct Piece
{
    size_t begin, size;
};

bool WriteFile( const std::filesystem::path &path, std::string_view bytes )
{
    std::FILE *file    = std::fopen( path.c_str(), "wb" );
    bool       written = file && std::fwrite( bytes.data(), 1, bytes.size(), file ) == bytes.size();
    if( file && std::fclose( file ) != 0 ) written = false;
    if( !written ) Complain( Escape( path.string() ), std::strerror( errno ) );
    return written;
}

Status ReportMessage( const Options &options, std::string_view stream, Piece piece, int64_t number,
                      SipsnMessage *message )
{
    const std::string digits = std::to_string( number );
    const std::string padded = std::string( 3 - std::min< size_t >( digits.size(), 3 ), '0' ) + digits;
    std::string       where  = "byte " + std::to_string( piece.begin );
    if( !options.folder.empty() ) {
        const auto path = std::filesystem::path( options.folder ) / ( padded + ".sip" );
        if( !WriteFile( path, stream.substr( piece.begin, piece.size ) ) ) return cannotRun;
        where = Escape( path.string() );
    }
    PrintLine( padded + "  " + where + "  " + Count( int64_t( piece.size ), "byte" ) + "  " +
               Paint( Ink::strong, StartLine( message ) ) );
    return allWell;
}

// What the decoder held on to when no message came any more.
Status ReportRest( const Input &input, size_t begin, bool error )
{
    const std::string_view rest  = std::string_view( input.bytes ).substr( begin );
    const size_t           start = rest.find_first_not_of( "\r\n" );
    if( start == rest.npos && rest.size() % 2 == 0 ) return allWell;

    const size_t skipped = start == rest.npos ? 0 : start;
    const Fault  fault   = FindFault( rest.substr( skipped ), Transport::stream );
    const auto   line    = LineAt( input.bytes, begin + skipped + fault.offset );
    Complain( Place( input, line ),
              ( error ? "" : "incomplete, " + Count( int64_t( rest.size() - skipped ), "byte" ) + " left: " ) +
                  fault.reason );
    return someFailed;
}

Status SplitStream( const Options &options, const Input &input )
{
    const Owned< SipsnMessageStreamDecoder > decoder{ sipsnMessageStreamDecoderCreate() };
    const Owned< PbBuffer >                  bytes = MakeBuffer( input.bytes );
    sipsnMessageStreamDecoderWrite( decoder.Get(), bytes.Get() );

    Status  status = allWell;
    size_t  begin  = 0;
    int64_t number = 0;
    while( const Owned< SipsnMessage > message{ sipsnMessageStreamDecoderRead( decoder.Get() ) } ) {
        const size_t end = input.bytes.size() - size_t( sipsnMessageStreamDecoderLength( decoder.Get() ) );
        begin            = input.bytes.find_first_not_of( "\r\n", begin );
        Worsen( status, ReportMessage( options, input.bytes, { begin, end - begin }, ++number, message.Get() ) );
        begin = end;
    }
    Worsen( status, ReportRest( input, begin, sipsnMessageStreamDecoderError( decoder.Get() ) ) );
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
