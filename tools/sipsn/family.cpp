// The header fields that have a type, and what the type makes of a header field.
#include "family.h"

#include "describe.h"
#include "text.h"

namespace tool {

namespace {

bool IsItems( int64_t kind ) { return kind == SIPSN_SCHEMA_KIND_LIST || kind == SIPSN_SCHEMA_KIND_SET; }

// A token is its text. A value keeps its text as it was received, and is decoded only here; all Contacts are "*".
Json DescribeItem( const Family &family, const std::string &text )
{
    if( !family.itemType ) return text;
    const Owned value{ sipsnSchemaTryDecode( family.itemType, TryString( text ).Get() ) };
    if( value ) return Describe( value.Get() );
    return text == "*" ? Json( text ) : Json();
}

std::vector< Item > ItemsOf( const Family &family, PbObj *hdr )
{
    std::vector< Item > items;
    for( const Json &text : DescribeMember( hdr, ItemsMember( family ) ) )
        items.push_back( { text, DescribeItem( family, text ) } );
    return items;
}

} // namespace

const Family *FindFamily( std::string_view name )
{
    const Owned< PbString > text = TryString( name );
    return text ? sipsnSchemaFamilyByName( text.Get() ) : nullptr;
}

std::optional< Typed > TryDecode( const Family &family, SipsnMessageHeader *header )
{
    const Owned hdr{ sipsnSchemaTryDecodeHeader( &family, header ) };
    if( !hdr ) return std::nullopt;
    if( family.shape == SIPSN_SCHEMA_SHAPE_SINGLE ) return Typed{ Describe( hdr.Get() ) };
    return Typed{ {}, ItemsOf( family, hdr.Get() ) };
}

const char *KeyOf( const Family &family ) { return family.shape == SIPSN_SCHEMA_SHAPE_SINGLE ? "members" : "items"; }

Json Describe( const Family &family, const Typed &typed )
{
    if( family.shape == SIPSN_SCHEMA_SHAPE_SINGLE ) return typed.members;
    Json items = Json::array();
    for( const Item &item : typed.items )
        items.push_back( item.value.is_null() ? Json{ { "error", malformed }, { "text", item.text } } : item.value );
    return items;
}

int64_t ItemsMember( const Family &family )
{
    int64_t member = 0;
    while( !IsItems( sipsnSchemaMemberAt( family.type, member )->kind ) ) ++member;
    return member;
}

std::optional< Reason > WhyNotLine( const Family &family, PbString *line )
{
    int64_t     place = 0;
    const Owned words{ sipsnSchemaWhyNotLine( &family, line, &place ) };
    if( !words ) return std::nullopt;
    return Reason{ Utf8( words ), place };
}

} // namespace tool
