// sipsn headers: the header fields that have a type.
#include "commands.h"
#include "json_schema.h"
#include "text.h"

#include <algorithm>
#include <memory>

namespace tool {

namespace {

constexpr const char *footer =
    R"(Prints for each the canonical name, the compact form (RFC 3261 section 7.3.3), what it holds and where it is specified:

  value        one value with its members, on one line; the last one counts
  list         values, in order, on lines of their own or between commas
  token list   tokens, in order
  token set    tokens, each once, in any order

With --json-schema, the members of each are told: the JSON Schema of what "sipsn decode --json" prints and "sipsn encode --json"
reads.

Examples:
  sipsn headers | grep -w list
  sipsn headers --json | jq -r '.[] | select( .compact ).name')";

const char *NameOf( int64_t shape )
{
    switch( shape ) {
    case SIPSN_SCHEMA_SHAPE_LIST: return "list";
    case SIPSN_SCHEMA_SHAPE_TOKEN_LIST: return "token list";
    case SIPSN_SCHEMA_SHAPE_TOKEN_SET: return "token set";
    default: return "value";
    }
}

Json DescribeFamilies()
{
    Json array = Json::array();
    for( int64_t at = 0; at < sipsnSchemaFamiliesLength(); ++at ) {
        const SipsnSchemaFamily *family = sipsnSchemaFamilyAt( at );
        Json                     described{ { "name", family->name } };
        if( family->compact ) described[ "compact" ] = family->compact;
        described[ "holds" ]  = NameOf( family->shape );
        described[ "origin" ] = family->origin;
        array.push_back( described );
    }
    return array;
}

std::string Padded( std::string text, size_t width )
{
    return text.append( width - std::min( width, text.size() ), ' ' );
}

Status RunHeaders( bool json, bool jsonSchema )
{
    if( jsonSchema ) {
        PrintJson( MakeJsonSchema() );
        return allWell;
    }
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
    auto      schema  = std::make_shared< bool >( false );
    command->footer( footer );
    command->add_flag( "--json", *json, "Print JSON" );
    command->add_flag( "--json-schema", *schema, "Print the JSON Schema of messages" );
    command->callback( [ &task, json, schema ] { task = [ json, schema ] { return RunHeaders( *json, *schema ); }; } );
}

} // namespace tool
