// sipsn value: one value of a header field, tried by hand.
#include "commands.h"
#include "describe.h"
#include "text.h"

#include <cctype>
#include <cstring>
#include <map>
#include <memory>

namespace tool {

namespace {

constexpr const char *footer =
    R"(Prints the value in canonical form and its members by name. Exit status 1 when TEXT is no such value.

Types: )";

constexpr const char *examples = R"(

Examples:
  sipsn value via 'SIP/2.0/UDP 192.0.2.1:5060;branch=z9hG4bK1;rport'
  sipsn value --json reason 'Q.850;cause=16;text="Normal call clearing"')";

// "accept-encoding" for "SipsnAcceptEncoding".
std::string NameOf( const SipsnSchemaType *type )
{
    std::string name;
    for( const char letter : std::string_view( type->name ).substr( std::strlen( "Sipsn" ) ) ) {
        if( std::isupper( letter ) && !name.empty() ) name += '-';
        name += char( std::tolower( letter ) );
    }
    return name;
}

// The types whose values have a text of their own.
std::map< std::string, const SipsnSchemaType * > Types()
{
    std::map< std::string, const SipsnSchemaType * > types;
    for( int64_t at = 0; at < sipsnSchemaTypesLength(); ++at )
        if( const SipsnSchemaType *type = sipsnSchemaTypeAt( at ); sipsnSchemaHasText( type ) )
            types[ NameOf( type ) ] = type;
    return types;
}

std::vector< std::string > TypeNames()
{
    std::vector< std::string > names;
    for( const auto &[ name, type ] : Types() ) names.push_back( name );
    return names;
}

struct Options
{
    std::string type;
    std::string text;
    bool        json = false;
};

Status RunValue( const Options &options )
{
    const Owned< PbString > text = TryString( options.text );
    const Owned             value{ text ? sipsnSchemaTryDecode( Types().at( options.type ), text.Get() ) : nullptr };
    if( !value ) {
        Complain( options.type, ( text ? "no such value: " : "not UTF-8: " ) + Quote( options.text ) );
        return someFailed;
    }
    const std::string canonical = Utf8( Owned{ sipsnSchemaEncode( value.Get() ) } );
    const Json        members   = Describe( value.Get() );
    if( options.json )
        PrintJson( { { "type", options.type }, { "text", canonical }, { "members", members } } );
    else
        PrintTree( MakeValueNode( Paint( Ink::strong, Escape( canonical ) ), members ) );
    return allWell;
}

} // namespace

void AddValue( CLI::App &app, Task &task )
{
    CLI::App *command = app.add_subcommand( "value", "Decode one value of a header field" );
    auto      options = std::make_shared< Options >();
    command->footer( footer + CLI::detail::join( TypeNames(), ", " ) + examples );
    command->add_option( "TYPE", options->type, "The type of the value, one of those below" )
        ->type_name( "" )
        ->required()
        ->transform( CLI::IsMember( TypeNames(), CLI::ignore_case ).description( "" ) );
    command->add_option( "TEXT", options->text, "The value" )->type_name( "" )->required();
    command->add_flag( "--json", options->json, "Print JSON" );
    command->callback( [ &task, options ] { task = [ options ] { return RunValue( *options ); }; } );
}

} // namespace tool
