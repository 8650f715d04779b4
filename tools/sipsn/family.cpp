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

// ---- Lines at fault --------------------------------------------------------------------------------

// The header field with some of its lines.
Owned< SipsnMessageHeader > WithLines( SipsnMessageHeader *header, int64_t begin, int64_t end )
{
    const Owned< PbString >     name{ sipsnMessageHeaderName( header ) };
    Owned< SipsnMessageHeader > some{ sipsnMessageHeaderCreate( name.Get() ) };
    for( int64_t at = begin; at < end; ++at ) {
        const Owned< PbString > line{ sipsnMessageHeaderLineAt( header, at ) };
        sipsnMessageHeaderAppendLine( some.Slot(), line.Get() );
    }
    return some;
}

bool Decodes( const Family &family, SipsnMessageHeader *header, int64_t begin, int64_t end )
{
    return TryDecode( family, WithLines( header, begin, end ).Get() ).has_value();
}

std::string Malformed( const Family &family, std::string_view text )
{
    return "malformed " + std::string( family.name ) + ": " + Quote( text );
}

void AddBadItems( std::vector< BadLine > &bad, const Family &family, SipsnMessageHeader *header, int64_t index )
{
    const auto typed = TryDecode( family, WithLines( header, index, index + 1 ).Get() );
    if( !typed ) {
        bad.push_back( { index, Malformed( family, Utf8( Owned{ sipsnMessageHeaderLineAt( header, index ) } ) ) } );
        return;
    }
    for( const Item &item : typed->items )
        if( item.value.is_null() ) bad.push_back( { index, Malformed( family, item.text ) } );
}

// The first line that is good alone, but not behind those before it.
BadLine FindMisplacedLine( const Family &family, SipsnMessageHeader *header )
{
    int64_t good = 1, length = sipsnMessageHeaderLinesLength( header );
    while( length - good > 1 ) {
        const int64_t middle                                     = good + ( length - good ) / 2;
        ( Decodes( family, header, 0, middle ) ? good : length ) = middle;
    }
    return { length - 1, Malformed( family, Utf8( Owned{ sipsnMessageHeaderLineAt( header, length - 1 ) } ) ) +
                             ", which does not go with the lines before it" };
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

std::vector< BadLine > FindBadLines( const Family &family, SipsnMessageHeader *header )
{
    std::vector< BadLine > bad;
    const int64_t          length = sipsnMessageHeaderLinesLength( header );
    const int64_t first = family.shape == SIPSN_SCHEMA_SHAPE_SINGLE ? length - 1 : 0; // of which the last line counts
    for( int64_t at = first; at < length; ++at ) AddBadItems( bad, family, header, at );
    if( bad.empty() && !TryDecode( family, header ) ) bad.push_back( FindMisplacedLine( family, header ) );
    return bad;
}

} // namespace tool
