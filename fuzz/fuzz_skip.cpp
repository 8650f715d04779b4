// No production answers less than 0 or more than the length, looks past the end, or matches less of a text that it has
// matched when that text stands alone. Where the texts of a production are a family, the family's Ok says what the
// production says. An addr-spec is the IRI before the first semicolon. All productions are tried on every input.
#include "fuzz.h"

#include "exports.h"
#include "iri/iri_internal.h"
#include "sipsn/sipsn_skip_internal.h"

#include <map>
#include <set>

namespace {

using Skip = int64_t( const PbChar *chs, int64_t length );
using Ok   = bool( PbString *string );

template< auto production > int64_t WithColon( const PbChar *chs, int64_t length )
{
    return production( chs, length, ':' );
}

// Patterns are beginnings of the text, so that they match.
template< auto production > int64_t WithPattern( const PbChar *chs, int64_t length )
{
    REQUIRE( production( chs, length, chs, length / 2 ) == length / 2 );
    REQUIRE( length == 0 || production( chs, length - 1, chs, length ) == 0 );
    return production( chs, length, chs, length );
}

template< auto production, int64_t lowest, int64_t highest > int64_t WithNumber( const PbChar *chs, int64_t length )
{
    int64_t       number = -1;
    const int64_t count  = production( chs, length, &number );
    REQUIRE( production( chs, length, nullptr ) == count );
    REQUIRE( count == 0 ? number == -1 : lowest <= number && number <= highest );
    return count;
}

struct Production
{
    Skip *skip;
    Ok   *ok; // whether the production covers the text; or null
};

std::vector< Production > AllProductions()
{
    const std::map< std::string, Skip * > withArgument{
        { "Char", WithColon< sipsn___SkipChar > },
        { "CharSws", WithColon< sipsn___SkipCharSws > },
        { "SwsChar", WithColon< sipsn___SkipSwsChar > },
        { "SwsCharSws", WithColon< sipsn___SkipSwsCharSws > },
        { "Chars", WithPattern< sipsn___SkipChars > },
        { "CharsAsciiCaseFold", WithPattern< sipsn___SkipCharsAsciiCaseFold > },
        { "Month", WithNumber< sipsn___SkipMonth, 1, 12 > },
        { "Wkday", WithNumber< sipsn___SkipWkday, 0, 6 > },
    };
    // Whose Ok is about a number, or about what the text stands for.
    const std::set< std::string > otherOk{
        "DeltaSeconds", "DisplayName", "DiversionCounter", "DiversionLimit", "Host",
        "Organization", "Port",        "Qvalue",           "ReasonText",     "Subject",
        "Ttl",          "WarnCode",    "WarnText" };

    std::vector< Production > productions;
    for( const std::string &name : ExportsBetween( "sipsn___Skip", "" ) ) {
        const auto found = withArgument.find( name );
        Skip      *skip  = found != withArgument.end() ? found->second : Exported< Skip >( "sipsn___Skip" + name );
        REQUIRE( skip && skip( nullptr, 0 ) == 0 );
        productions.push_back( { skip, otherOk.contains( name ) ? nullptr : Exported< Ok >( "sipsn" + name + "Ok" ) } );
    }
    REQUIRE( !productions.empty() );
    return productions;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput( const uint8_t *data, size_t size )
{
    fuzz::Start();
    static const std::vector< Production > productions = AllProductions();

    pb::Ref          string = fuzz::String( data, size );
    const fuzz::Text text{ string.Get() };
    for( const auto &[ skip, ok ] : productions ) {
        const int64_t count = skip( text.Chs(), text.Length() );
        REQUIRE( 0 <= count && count <= text.Length() );
        REQUIRE( !ok || ok( string.Get() ) == ( count > 0 && count == text.Length() ) );

        pb::Ref          matched{ pbStringLeading( string.Get(), count ) };
        const fuzz::Text alone{ matched.Get() };
        REQUIRE( skip( alone.Chs(), count ) == count );
    }
    const PbChar *const semicolon = std::find( text.Chs(), text.Chs() + text.Length(), ';' );
    REQUIRE( sipsn___SkipAddrSpec( text.Chs(), text.Length() ) == iri___SkipIri( text.Chs(), semicolon - text.Chs() ) );
    return 0;
}
