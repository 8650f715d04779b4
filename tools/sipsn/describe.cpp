// Objects of the library by their members, as JSON: text as text, numbers as numbers, and no member that is absent; and
// JSON as trees.
#include "describe.h"

#include "text.h"

#include <algorithm>

namespace tool {

namespace {

std::string TextOf( PbObj *obj ) { return Utf8( Owned{ pbObjToString( obj ) } ); }

// As 2010-11-13T23:29:00Z.
std::string DescribeTime( PbObj *time )
{
    std::string text = TextOf( time );
    std::replace( text.begin(), text.end(), ' ', 'T' );
    return text + 'Z';
}

Json DescribeTexts( PbVector *vector )
{
    Json array = Json::array();
    for( int64_t at = 0; at < pbVectorLength( vector ); ++at )
        array.push_back( TextOf( Owned{ pbVectorAt( vector, at ) }.Get() ) );
    return array;
}

Json DescribeParam( SipsnGenericParam *param )
{
    Json object{ { "name", Utf8( Owned{ sipsnGenericParamName( param ) } ) } };
    if( const Owned value{ sipsnGenericParamValueNonNormalized( param ) } ) object[ "value" ] = Utf8( value );
    return object;
}

// From names to values, null where there is none.
Json DescribeParams( SipsnGenericParams *params )
{
    Json object = Json::object();
    for( int64_t at = 0; at < sipsnGenericParamsLength( params ); ++at ) {
        const Owned< SipsnGenericParam > param{ sipsnGenericParamsParamAt( params, at ) };
        const Owned< PbString >          value{ sipsnGenericParamValueNonNormalized( param.Get() ) };
        object[ Utf8( Owned{ sipsnGenericParamName( param.Get() ) } ) ] = value ? Json( Utf8( value ) ) : Json();
    }
    return object;
}

Json DescribeNumber( int64_t kind, int64_t number )
{
    if( kind == SIPSN_SCHEMA_KIND_FLAG ) return number ? Json( true ) : Json();
    if( number < 0 ) return {};
    return kind == SIPSN_SCHEMA_KIND_THOUSANDTHS ? Json( double( number ) / 1000 ) : Json( number );
}

Json DescribeObject( int64_t kind, PbObj *value )
{
    switch( kind ) {
    case SIPSN_SCHEMA_KIND_TIME: return DescribeTime( value );
    case SIPSN_SCHEMA_KIND_LIST:
    case SIPSN_SCHEMA_KIND_SET: return DescribeTexts( pbVectorFrom( value ) );
    case SIPSN_SCHEMA_KIND_OBJECT: return Describe( value );
    case SIPSN_SCHEMA_KIND_PARAMETERS: {
        Json params = Describe( value );
        return params.empty() ? Json() : params;
    }
    default: return TextOf( value );
    }
}

} // namespace

bool IsNumber( int64_t kind )
{
    return kind == SIPSN_SCHEMA_KIND_INTEGER || kind == SIPSN_SCHEMA_KIND_THOUSANDTHS || kind == SIPSN_SCHEMA_KIND_FLAG;
}

Json DescribeMember( PbObj *obj, int64_t member )
{
    const int64_t kind = sipsnSchemaMemberAt( sipsnSchemaTypeOf( obj ), member )->kind;
    if( IsNumber( kind ) ) return DescribeNumber( kind, sipsnSchemaNumber( obj, member ) );
    const Owned< PbObj > value{ sipsnSchemaObject( obj, member ) };
    return value ? DescribeObject( kind, value.Get() ) : Json();
}

Json Describe( PbObj *obj )
{
    if( pbObjSort( obj ) == sipsnGenericParamsSort() ) return DescribeParams( sipsnGenericParamsFrom( obj ) );
    if( pbObjSort( obj ) == sipsnGenericParamSort() ) return DescribeParam( sipsnGenericParamFrom( obj ) );
    const SipsnSchemaType *type   = sipsnSchemaTypeOf( obj );
    Json                   object = Json::object();
    for( int64_t member = 0; member < type->memberCount; ++member )
        if( Json described = DescribeMember( obj, member ); !described.is_null() )
            object[ sipsnSchemaMemberAt( type, member )->name ] = std::move( described );
    return object;
}

// ---- Trees -----------------------------------------------------------------------------------------

// Those of SIP, SIPS and tel URIs: of others only the scheme is told apart.
static void AddUriParts( Node &node, const std::string &iri )
{
    const Owned< SipsnUri > uri{ sipsnUriTryDecode( TryString( iri ).Get() ) };
    if( !uri || sipsnUriHasRest( uri.Get() ) ) return;
    const Json parts = Describe( sipsnUriObj( uri.Get() ) );
    for( const auto &[ name, part ] : parts.items() )
        if( !part.empty() ) node.children.push_back( MakeNode( name, part ) );
}

Node MakeNode( std::string_view label, const Json &value )
{
    Node node{ Paint( Ink::name, Escape( label ) ) };
    if( value.is_object() ) {
        for( const auto &[ name, member ] : value.items() ) node.children.push_back( MakeNode( name, member ) );
    } else if( value.is_array() ) {
        for( size_t at = 0; at < value.size(); ++at )
            node.children.push_back( MakeNode( std::to_string( at + 1 ), value[ at ] ) );
    } else if( !value.is_null() ) {
        const std::string text = value.is_string() ? value.get< std::string >() : value.dump();
        node.text += ": " + Escape( text );
        if( label == "iri" ) AddUriParts( node, text );
    }
    return node;
}

Node MakeValueNode( std::string text, const Json &members )
{
    Node node = MakeNode( "", members );
    node.text = std::move( text );
    return node;
}

} // namespace tool
