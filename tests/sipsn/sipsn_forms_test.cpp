// Functions that take a text in three forms, as a string, as char and as wchar_t: all forms do the same, for every
// function that has them. What messages have of their fragments does the same with either.
#include "schema_text.h"

#include <map>
#include <regex>
#include <set>

namespace {

std::string Shown( bool result ) { return result ? "yes" : "no"; }
std::string Shown( int64_t result ) { return std::to_string( result ); }
std::string Shown( PbObj *owned )
{
    const ObjPtr obj{ owned };
    if( obj && pbObjSort( owned ) == sipsnMessageSort() )
        return Take( sipsnMessageEncode( sipsnMessageFrom( owned ) ) );
    if( obj && pbObjSort( owned ) == sipsnMessageFragmentSort() )
        return Take( sipsnMessageFragmentEncode( sipsnMessageFragmentFrom( owned ) ) );
    return TextOf( owned );
}

// What with( form, text... ) gives in all forms.
template< class With > std::string Same( const std::string &text, With with )
{
    const std::string  longer = text + "-and-more";
    const std::wstring wide( longer.begin(), longer.end() );
    const int64_t      length   = int64_t( text.size() );
    const std::string  expected = with( "", Str( text ).Get() );
    EXPECT_EQ( with( "Cstr", longer.c_str(), length ), expected );
    EXPECT_EQ( with( "Cstr", text.c_str(), int64_t{ -1 } ), expected );
    EXPECT_EQ( with( "Wcstr", wide.c_str(), length ), expected );
    EXPECT_EQ( with( "Wcstr", wide.substr( 0, text.size() ).c_str(), int64_t{ -1 } ), expected );
    return expected;
}

// An object that has something of the name "Token-1".
ObjPtr SampleFor( const std::string &function )
{
    const bool isResponse = function.find( "Response" ) != function.npos;
    const auto wire =
        Bytes( ( isResponse ? "SIP/2.0 200 OK" : "A sip:a SIP/2.0" ) + std::string{ "\r\nToken-1: x\r\n\r\n" } );
    if( function.starts_with( "sipsnMessageFragment" ) )
        return ObjPtr{ sipsnMessageFragmentObj( sipsnMessageFragmentTryDecode( wire.Get() ) ) };
    if( function.starts_with( "sipsnGenericParam" ) ) {
        const char *name = function.starts_with( "sipsnGenericParams" ) ? "SipsnGenericParams" : "SipsnGenericParam";
        const auto  text = Str( name[ 17 ] ? ";Token-1=Ab;z" : "Token-1=Ab" );
        return ObjPtr{ sipsnSchemaTryDecode( sipsnSchemaTypeByName( name ), text.Get() ) };
    }
    if( function.starts_with( "sipsnUri" ) ) return Filled( sipsnSchemaTypeByName( "SipsnUri" ), 0 );
    for( int64_t at = 0; at < sipsnSchemaTypesLength(); ++at ) {
        const SipsnSchemaType *type = sipsnSchemaTypeAt( at );
        const auto rest   = function.find( PrefixOf( type ) ) == 0 ? function[ PrefixOf( type ).size() ] : ' ';
        const bool isVerb = rest == 'S' || rest == 'H' || rest == 'D';
        if( type->memberCount > 0 && isVerb ) return Filled( type, 0 );
    }
    pb::Ref msg{ sipsnMessageTryDecode( wire.Get() ) };
    if( Declarations().find( function + "( SipsnMessageHeader *" ) == std::string::npos )
        return ObjPtr{ sipsnMessageObj( msg.Detach() ) };
    return ObjPtr{ sipsnMessageHeaderObj( sipsnMessageHeaderCstr( msg.Get(), "Token-1", -1 ) ) };
}

// What a function gives in all forms, or what it makes of an object. `before` and `after` stand around the text.
template< class R, class Before, class After = std::tuple<> >
std::string ResultOf( const std::string &function, const std::string &text, Before before, After after = {} )
{
    return Same( text, [ & ]( const char *form, auto... forms ) {
        const auto call = [ & ]< class... All >( All... all ) {
            if constexpr( !std::is_void_v< R > )
                return Shown( Exported< R( All... ) >( function + form )( all... ) );
            else {
                ObjPtr changed = SampleFor( function );
                Exported< void( PbObj **, All... ) >( function + form )( changed.Slot(), all... );
                return Shown( changed.Detach() );
            }
        };
        return std::apply( call, std::tuple_cat( before, std::tuple{ forms... }, after ) );
    } );
}

// By how the function with char is declared: what it returns, and its parameters.
std::string ResultOf( const std::string &function, const std::string &result, const std::string &parameters,
                      const std::string &text )
{
    static const pb::Ref version{ sipsnVersionCreate( Str( "A" ).Get(), Str( "1" ).Get() ) };
    static const auto    other = Str( "sip:b" );
    static const pb::Ref store{ pbStoreCreate() };
    const ObjPtr         obj      = SampleFor( function );
    const auto           self     = std::tuple{ obj.Get() };
    const auto           index    = std::tuple{ int64_t{ 0 } };
    const auto           start    = std::tuple{ version.Get() };
    const auto           iri      = std::tuple{ other.Get() };
    const auto           response = std::tuple{ version.Get(), int64_t{ 404 } };
    const auto           value = std::tuple{ int64_t{ SIPSN_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING }, other.Get() };

    if( parameters == "T **, TEXT" ) return ResultOf< void >( function, text, std::tuple{} );
    if( parameters == "T **, TEXT, PbString *" ) return ResultOf< void >( function, text, std::tuple{}, iri );
    if( parameters == "T **, int64_t, TEXT" ) return ResultOf< void >( function, text, index );
    if( parameters == "T **, TEXT, int64_t, PbString *" )
        return ResultOf< void >( function, text, std::tuple{}, value );
    if( parameters == "T **, T *, TEXT, PbString *" ) return ResultOf< void >( function, text, start, iri );
    if( parameters == "T **, T *, int64_t, TEXT" ) return ResultOf< void >( function, text, response );
    if( parameters == "T *, TEXT" && result == "bool " ) return ResultOf< bool >( function, text, self );
    if( parameters == "T *, TEXT" && result == "int64_t " ) return ResultOf< int64_t >( function, text, self );
    if( parameters == "T *, TEXT" ) return ResultOf< PbObj * >( function, text, self );
    if( parameters == "T *, TEXT, PbString *" ) return ResultOf< PbObj * >( function, text, start, iri );
    if( parameters == "T *, int64_t, TEXT" ) return ResultOf< PbObj * >( function, text, response );
    if( parameters == "TEXT, int64_t, PbString *" ) return ResultOf< PbObj * >( function, text, std::tuple{}, value );
    if( parameters == "TEXT, PbStore *" )
        return ResultOf< PbObj * >( function, text, std::tuple{}, std::tuple{ store.Get() } );
    if( parameters == "TEXT" ) return ResultOf< PbObj * >( function, text, std::tuple{} );
    EXPECT_THAT( parameters, testing::EndsWith( "..." ) ) << function; // formats are tried elsewhere
    return "";
}

// A text that the function takes.
std::string ArgumentFor( const std::string &function, const std::string &text )
{
    if( function == "sipsnUriCreateTel" ) return "+" + std::to_string( text.size() );
    if( std::regex_match( function, std::regex{ "sipsnUriSet(Number|Cic|Rn|Extension)" } ) )
        return std::to_string( text.size() );
    return ( function.ends_with( "Iri" ) ? "sip:" : "" ) + text;
}

// Texts that a function takes: a member's setter, or Create, what the member may hold.
std::vector< std::string > TextsFor( const std::string &function )
{
    std::vector< std::string > texts;
    ForEveryDescribedType( [ & ]( const SipsnSchemaType *type ) {
        for( int64_t at = 0; at < type->memberCount; ++at ) {
            const SipsnSchemaMember *member   = sipsnSchemaMemberAt( type, at );
            const bool               isCreate = function == PrefixOf( type ) + "Create" && !member->optional;
            if( member->kind != SIPSN_SCHEMA_KIND_TEXT ||
                !( isCreate || function == PrefixOf( type ) + "Set" + Capital( member->name ) ) )
                continue;
            ObjPtr obj = Filled( type, 0 );
            for( const Value &value : Candidates( member ) )
                if( value.Text().find_first_not_of( "\x01\r\n\xc3\xbc" ) == 0 && TrySet( obj, at, value ) )
                    texts.push_back( value.Text() );
        }
    } );
    if( texts.size() < 2 ) return { ArgumentFor( function, "Token-1" ), ArgumentFor( function, "other" ) };
    texts.resize( 2 );
    return texts;
}

TEST( SipsnForms, AllGiveTheSame )
{
    const std::regex   declaration{ R"(PB_API ([\w ]+[ *]+)(sipsn\w+)Cstr\( ([^)]*) \))" };
    const std::regex   type{ R"(Sipsn\w+)" }, name{ R"( ?\w+(,|$))" }, chars{ R"(const char \*, int64_t)" };
    const std::string &all = Declarations();

    std::map< std::string, std::string > ofMessages;
    for( auto at = std::sregex_iterator( all.begin(), all.end(), declaration ); at != std::sregex_iterator(); ++at )
        for( const std::string &text : TextsFor( at->str( 2 ) ) ) {
            SCOPED_TRACE( at->str() );
            const auto        types = std::regex_replace( std::regex_replace( at->str( 3 ), type, "T" ), name, "$1" );
            const std::string given =
                ResultOf( at->str( 2 ), at->str( 1 ), std::regex_replace( types, chars, "TEXT" ), text );
            const std::string ofMessage = std::regex_replace( at->str( 2 ), std::regex{ "Fragment" }, "" ) + text;
            EXPECT_EQ( ofMessages.try_emplace( ofMessage, given ).first->second, given );
        }
    EXPECT_GT( ofMessages.size(), 80u );
}

} // namespace
