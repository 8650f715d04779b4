// sipsn: SIP messages on the command line.
#include "commands.h"
#include "text.h"

#include <cstdio>
#include <exception>
#include <iostream>
#include <sstream>

namespace {

constexpr const char *footer =
    R"(A file holds one message or several, one after another. A message without Content-Length reaches to the end of its file.
Control characters of a message are printed as \x1B or \u202E.

Exit status: 0 when all went well, 1 when something is malformed, 2 when a file cannot be read or the arguments are wrong.

Examples:
  sipsn decode invite.sip                 look at a message
  sipsn decode --json *.sip | jq '.[].request.method'
  sipsn check captures/*.sip              which of them are malformed, and where
  sipsn COMMAND --help                    more on a command)";

void PrintVersion()
{
    const PbModuleRecord *record = pbModuleRecord( sipsnModule() );
    const auto            print  = []( const std::string &name, const std::string &text ) {
        tool::PrintLine( name + std::string( 14 - name.size(), ' ' ) + text );
    };
    const auto number = []( int64_t part ) { return std::to_string( part ); };
    print( "product", std::string( record->productName ) + ' ' + number( record->productMajor ) + '.' +
                          number( record->productMinor ) + '.' + number( record->productPatch ) + " (" +
                          record->productTraceName + ')' );
    print( "company", record->companyName );
    print( "rights", record->rightsNotice );
    print( "module",
           std::string( record->moduleName ) + ' ' + record->moduleVersion + ", " + record->moduleDescription );
    print( "needs", record->dependencies );
    print( "built", record->buildTime );
    print( "build", record->versionString );
}

// Started for as long as the object lives.
struct Module
{
    Module() { pbModuleStart( sipsnModule() ); }
    ~Module() { pbModuleStop( sipsnModule() ); }
};

tool::Status Run( int count, char **arguments )
{
    CLI::App   app{ "Decodes, encodes, splits, checks and answers SIP messages.", "sipsn" };
    tool::Task task;
    app.footer( footer );
    app.add_flag_callback(
        "--version",
        [ & ] {
            task = [] {
                PrintVersion();
                return tool::allWell;
            };
        },
        "Print what this build is" );
    tool::AddDecode( app, task );
    tool::AddEncode( app, task );
    tool::AddSplit( app, task );
    tool::AddCheck( app, task );
    tool::AddReply( app, task );
    tool::AddValue( app, task );
    tool::AddHeaders( app, task );
    try {
        app.parse( count, arguments );
    } catch( const CLI::ParseError &error ) {
        std::ostringstream complaint; // holds arguments as they were given
        const int          status = app.exit( error, std::cout, complaint );
        std::fputs( tool::EscapeLines( complaint.str() ).c_str(), stderr );
        return status == 0 ? tool::allWell : tool::cannotRun;
    }
    if( task ) return task();
    std::fputs( app.help().c_str(), stderr );
    return tool::cannotRun;
}

} // namespace

int main( int count, char **arguments )
try {
    tool::Status status;
    {
        const Module module;
        status = Run( count, arguments );
    }
    if( !tool::FinishOutput() ) status = tool::cannotRun;
    return status;
} catch( const std::exception &error ) {
    std::fprintf( stderr, "sipsn: %s\n", error.what() );
    return tool::cannotRun;
}
