// The form of the JSON that decode --json prints and encode --json reads, as a JSON Schema.
#include "json_schema.h"

#include "describe.h"
#include "family.h"

namespace tool {

namespace {

Json Ref( const std::string &name ) { return { { "$ref", "#/$defs/" + name } }; }

Json ArrayOf( const Json &items ) { return { { "type", "array" }, { "items", items } }; }

// An object with these members alone.
Json ObjectOf( const Json &properties, const std::vector< std::string > &required = {} )
{
    Json schema{ { "type", "object" }, { "properties", properties }, { "additionalProperties", false } };
    if( !required.empty() ) schema[ "required" ] = required;
    return schema;
}

Json TextSchema( const char *pattern ) { return { { "type", "string" }, { "pattern", pattern } }; }

Json NumberSchema( const SipsnSchemaMember &member )
{
    if( member.kind == SIPSN_SCHEMA_KIND_THOUSANDTHS )
        return { { "type", "number" },
                 { "minimum", double( member.lowest ) / 1000 },
                 { "maximum", double( member.highest ) / 1000 } };
    return { { "type", "integer" }, { "minimum", member.lowest }, { "maximum", member.highest } };
}

Json MemberSchema( const SipsnSchemaMember &member )
{
    Json schema{ { "type", "string" } };
    switch( member.kind ) {
    case SIPSN_SCHEMA_KIND_INTEGER:
    case SIPSN_SCHEMA_KIND_THOUSANDTHS: schema = NumberSchema( member ); break;
    case SIPSN_SCHEMA_KIND_FLAG: schema = { { "type", "boolean" } }; break;
    case SIPSN_SCHEMA_KIND_TIME: schema = TextSchema( R"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ$)" ); break;
    case SIPSN_SCHEMA_KIND_VERSION: return Ref( "version" );
    case SIPSN_SCHEMA_KIND_PARAMETERS: return Ref( "params" );
    case SIPSN_SCHEMA_KIND_OBJECT: return Ref( member.type->name );
    default: break;
    }
    if( member.holds ) schema[ "description" ] = member.holds;
    return schema;
}

// Parameters that are none are left out.
Json TypeSchema( const SipsnSchemaType *type )
{
    Json                       properties = Json::object();
    std::vector< std::string > required;
    for( int64_t at = 0; at < type->memberCount; ++at ) {
        const SipsnSchemaMember &member = *sipsnSchemaMemberAt( type, at );
        properties[ member.name ]       = MemberSchema( member );
        if( !member.optional && member.kind != SIPSN_SCHEMA_KIND_PARAMETERS ) required.emplace_back( member.name );
    }
    return ObjectOf( properties, required );
}

// A value of a list is an object; as a text it is taken, too, and "*" for all Contacts is one.
Json TypedSchema( const Family &family )
{
    if( family.shape == SIPSN_SCHEMA_SHAPE_SINGLE ) return TypeSchema( family.type );
    if( !family.itemType ) return ArrayOf( MemberSchema( *sipsnSchemaMemberAt( family.type, ItemsMember( family ) ) ) );
    return ArrayOf( { { "anyOf", { Ref( family.itemType->name ), Ref( "malformed" ), { { "type", "string" } } } } } );
}

Json FamilySchema( const Family &family )
{
    const char *key    = KeyOf( family );
    Json        schema = ObjectOf(
               { { "lines", Ref( "lines" ) }, { key, TypedSchema( family ) }, { "error", { { "const", malformed } } } } );

    schema[ "description" ] = family.origin;
    schema[ "anyOf" ] =
        Json::array( { { { "required", Json::array( { "lines" } ) } }, { { "required", Json::array( { key } ) } } } );
    return schema;
}

Json HeadersSchema()
{
    Json properties = Json::object();
    for( int64_t at = 0; at < sipsnSchemaFamiliesLength(); ++at ) {
        const Family &family      = *sipsnSchemaFamilyAt( at );
        properties[ family.name ] = FamilySchema( family );
    }
    return { { "type", "object" },
             { "properties", properties },
             { "additionalProperties", ObjectOf( { { "lines", Ref( "lines" ) } }, { "lines" } ) } };
}

Json MessageSchema()
{
    Json schema = ObjectOf( { { "file", { { "type", "string" } } },
                              { "line", { { "type", "integer" } } },
                              { "column", { { "type", "integer" } } },
                              { "request", Ref( "request" ) },
                              { "response", Ref( "response" ) },
                              { "headers", Ref( "headers" ) },
                              { "body", Ref( "body" ) },
                              { "error", { { "type", "string" } } },
                              { "text", { { "type", "string" } } } } );

    schema[ "oneOf" ] = Json::array();
    for( const char *key : { "request", "response", "error" } )
        schema[ "oneOf" ].push_back( { { "required", Json::array( { key } ) } } );
    return schema;
}

Json BodySchema()
{
    Json schema = ObjectOf( { { "length", { { "type", "integer" }, { "minimum", 0 } } },
                              { "text", { { "type", "string" } } },
                              { "hex", TextSchema( "^([0-9A-Fa-f]{2})*$" ) } } );

    schema[ "oneOf" ] = Json::array();
    for( const char *key : { "text", "hex" } )
        schema[ "oneOf" ].push_back( { { "required", Json::array( { key } ) } } );
    return schema;
}

Json Definitions()
{
    const Json text{ { "type", "string" } };
    Json       definitions{
        { "message", MessageSchema() },
        { "request",
                ObjectOf( { { "method", text }, { "iri", text }, { "version", Ref( "version" ) } }, { "method", "iri" } ) },
        { "response", ObjectOf( { { "version", Ref( "version" ) },
                                        { "statusCode", { { "type", "integer" }, { "minimum", 100 }, { "maximum", 999 } } },
                                        { "reasonPhrase", text } },
                                      { "statusCode" } ) },
        { "version", TextSchema( "^[^/]+/[^/]+$" ) },
        { "lines", ArrayOf( text ) },
        { "params", { { "type", "object" }, { "additionalProperties", { { "type", { "string", "null" } } } } } },
        { "malformed", ObjectOf( { { "error", { { "const", malformed } } }, { "text", text } }, { "error", "text" } ) },
        { "body", BodySchema() },
    };
    for( int64_t at = 0; at < sipsnSchemaTypesLength(); ++at ) {
        const SipsnSchemaType *type = sipsnSchemaTypeAt( at );
        if( sipsnSchemaHasText( type ) && type->memberCount > 0 ) definitions[ type->name ] = TypeSchema( type );
    }
    definitions[ "headers" ] = HeadersSchema();
    return definitions;
}

} // namespace

Json MakeJsonSchema()
{
    return { { "$schema", "https://json-schema.org/draft/2020-12/schema" },
             { "title", "Messages as sipsn decode --json prints them and sipsn encode --json reads them" },
             { "anyOf", { ArrayOf( Ref( "message" ) ), Ref( "message" ) } },
             { "$defs", Definitions() } };
}

} // namespace tool
