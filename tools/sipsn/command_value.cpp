// sipsn value: one value of a header field, tried by hand.
#include "commands.h"
#include "describe.h"
#include "text.h"

#include "sipsn/sipsn_value_internal.h"

#include <algorithm>
#include <memory>
#include <optional>

namespace tool {

namespace {

constexpr const char *footer =
    R"(Prints the value in canonical form and its members by name. Exit status 1 when TEXT is no such value.

Types: )";

constexpr const char *examples = R"(

Examples:
  sipsn value via 'SIP/2.0/UDP 192.0.2.1:5060;branch=z9hG4bK1;rport'
  sipsn value --json reason 'Q.850;cause=16;text="Normal call clearing"')";

// A value that was decoded: its members and its canonical text.
struct Value
{
    Json        members;
    std::string text;
};

template< auto tryDecode, auto encode > std::optional< Value > DecodeAs( PbString *text )
{
    const Owned value{ tryDecode( pbStringBacking( text ), pbStringLength( text ) ) };
    if( !value ) return std::nullopt;
    return Value{ Describe( value.Get() ), Utf8( Owned{ encode( value.Get() ) } ) };
}

struct Type
{
    const char *name;
    std::optional< Value > ( *tryDecode )( PbString *text );
};

constexpr Type types[] = {
    { "accept", DecodeAs< sipsn___AcceptTryDecode, sipsn___AcceptEncode > },
    { "accept-encoding", DecodeAs< sipsn___AcceptEncodingTryDecode, sipsn___AcceptEncodingEncode > },
    { "alert-info", DecodeAs< sipsn___AlertInfoTryDecode, sipsn___AlertInfoEncode > },
    { "call-info", DecodeAs< sipsn___CallInfoTryDecode, sipsn___CallInfoEncode > },
    { "contact", DecodeAs< sipsn___ContactTryDecode, sipsn___ContactEncode > },
    { "diversion", DecodeAs< sipsn___DiversionTryDecode, sipsn___DiversionEncode > },
    { "error-info", DecodeAs< sipsn___ErrorInfoTryDecode, sipsn___ErrorInfoEncode > },
    { "generic-param", DecodeAs< sipsn___GenericParamTryDecode, sipsn___GenericParamEncode > },
    { "generic-params", DecodeAs< sipsn___GenericParamsTryDecode, sipsn___GenericParamsEncode > },
    { "history-info", DecodeAs< sipsn___HistoryInfoTryDecode, sipsn___HistoryInfoEncode > },
    { "identity-value", DecodeAs< sipsn___IdentityValueTryDecode, sipsn___IdentityValueEncode > },
    { "reason", DecodeAs< sipsn___ReasonTryDecode, sipsn___ReasonEncode > },
    { "route", DecodeAs< sipsn___RouteTryDecode, sipsn___RouteEncode > },
    { "uui-value", DecodeAs< sipsn___UuiValueTryDecode, sipsn___UuiValueEncode > },
    { "via", DecodeAs< sipsn___ViaTryDecode, sipsn___ViaEncode > },
    { "warning-value", DecodeAs< sipsn___WarningValueTryDecode, sipsn___WarningValueEncode > },
};

std::vector< std::string > TypeNames()
{
    std::vector< std::string > names;
    for( const Type &type : types ) names.emplace_back( type.name );
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
    const Type &type = *std::find_if( std::begin( types ), std::end( types ),
                                      [ & ]( const Type &candidate ) { return candidate.name == options.type; } );

    const Owned< PbString > text  = TryString( options.text );
    const auto              value = text ? type.tryDecode( text.Get() ) : std::nullopt;
    if( !value ) {
        Complain( type.name, ( text ? "no such value: " : "not UTF-8: " ) + Quote( options.text ) );
        return someFailed;
    }
    if( options.json ) {
        PrintJson( { { "type", type.name }, { "text", value->text }, { "members", value->members } } );
        return allWell;
    }
    PrintTree( MakeValueNode( Paint( Ink::strong, Escape( value->text ) ), value->members ) );
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
