// sipsn headers: the header fields that have a type.
#include "commands.h"
#include "family.h"
#include "text.h"

#include <algorithm>
#include <map>
#include <memory>

namespace tool {

namespace {

constexpr const char *footer =
    R"(Prints for each the canonical name, the compact form (RFC 3261 section 7.3.3), what it holds and where it is specified:

  value        one value with its members, on one line; the last one counts
  list         values, in order, on lines of their own or between commas
  token list   tokens, in order
  token set    tokens, each once, in any order

Examples:
  sipsn headers | grep -w list
  sipsn headers --json | jq -r '.[] | select( .compact ).name')";

const char *NameOf( Shape shape )
{
    switch( shape ) {
    case Shape::list: return "list";
    case Shape::tokenList: return "token list";
    case Shape::tokenSet: return "token set";
    case Shape::single: return "value";
    }
    return "";
}

// Which letter stands for a name; the library knows which name stands for a letter.
std::map< std::string, char > CompactForms()
{
    std::map< std::string, char > forms;
    for( char letter = 'a'; letter <= 'z'; ++letter ) {
        const Owned< SipsnMessageHeader > header{ sipsnMessageHeaderCreateCstr( &letter, 1 ) };
        forms[ Utf8( Owned{ sipsnMessageHeaderName( header.Get() ) } ) ] = letter;
    }
    return forms;
}

Json DescribeFamilies()
{
    Json       array = Json::array();
    const auto forms = CompactForms();
    for( const Family &family : Families() ) {
        Json       described{ { "name", family.name } };
        const auto compact = forms.find( family.name );
        if( compact != forms.end() ) described[ "compact" ] = std::string( 1, compact->second );
        described[ "holds" ]  = NameOf( family.shape );
        described[ "origin" ] = family.origin;
        array.push_back( described );
    }
    return array;
}

std::string Padded( std::string text, size_t width )
{
    return text.append( width - std::min( width, text.size() ), ' ' );
}

Status RunHeaders( bool json )
{
    const Json described = DescribeFamilies();
    if( json ) {
        PrintJson( described );
        return allWell;
    }
    for( const Json &family : described )
        PrintLine( Paint( Ink::name, Padded( family[ "name" ], 26 ) ) + Padded( family.value( "compact", "" ), 3 ) +
                   Padded( family[ "holds" ], 12 ) + Paint( Ink::note, family[ "origin" ].get< std::string >() ) );
    return allWell;
}

} // namespace

void AddHeaders( CLI::App &app, Task &task )
{
    CLI::App *command = app.add_subcommand( "headers", "List the header fields that have a type" );
    auto      json    = std::make_shared< bool >( false );
    command->footer( footer );
    command->add_flag( "--json", *json, "Print JSON" );
    command->callback( [ &task, json ] { task = [ json ] { return RunHeaders( *json ); }; } );
}

} // namespace tool
