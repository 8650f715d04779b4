// What the schema lists, and the law of texts: for every type and header field, what decodes, and why the rest does
// not.
#include "header_text.h"
#include "schema_text.h"

namespace {

struct Example
{
    const char *type, *text; // "HeaderVia", "Via: ..."
};

constexpr Example examples[] = {
#define TYPE( Type, example ) { "Sipsn" #Type, example },
#include "sipsn/sipsn_types.inc"
};

// Calls check( text ) for every beginning of a text and every text that differs from it in one character.
template< class Check > void ForEveryNearText( const std::string &text, Check check )
{
    for( size_t at = 0; at <= text.size(); ++at ) {
        check( text.substr( 0, at ) );
        if( at < text.size() ) check( std::string{ text }.erase( at, 1 ) );
        for( const char *piece : { ";", ",", "=", "\"", " ", "<", ">", ":", "a", "1", "\\", "\xc3\xbc", "\x01" } ) {
            check( std::string{ text }.insert( at, piece ) );
            if( at < text.size() ) check( std::string{ text }.replace( at, 1, piece ) );
        }
    }
}

// Checks why a text is not what it should be: no reason if it is that, else one with a place in the text.
template< class WhyNot > void CheckReason( bool decodes, PbString *text, WhyNot whyNot )
{
    int64_t       place = -1;
    const pb::Ref reason{ whyNot( &place ) };
    ASSERT_EQ( bool( reason ), !decodes ) << Text( text ) << ": " << Text( reason.Get() );
    if( decodes ) return;
    EXPECT_THAT( Text( reason.Get() ), testing::ContainsRegex( "^(expected .|\".+\" is not ).+" ) ) << Text( text );
    EXPECT_TRUE( place >= 0 && place <= pbStringLength( text ) ) << Text( text ) << ": " << place;
    EXPECT_EQ( Take( whyNot( nullptr ) ), Text( reason.Get() ) );
}

TEST( SipsnSchema, TellsWhyATextIsNotAValue )
{
    for( const auto &[ name, example ] : examples ) {
        const SipsnSchemaType *type = sipsnSchemaTypeByName( name );
        ASSERT_TRUE( type ) << name;
        EXPECT_STREQ( sipsnSchemaExample( type ), example ) << name;
        if( !example || !sipsnSchemaHasText( type ) ) continue;
        SCOPED_TRACE( name );
        const ObjPtr value{ sipsnSchemaTryDecode( type, Str( example ).Get() ) };
        ASSERT_TRUE( value );
        EXPECT_EQ( Take( sipsnSchemaEncode( value.Get() ) ), example );
        ForEveryNearText( example, [ & ]( const std::string &near ) {
            const auto   text = Str( near );
            const ObjPtr nearValue{ sipsnSchemaTryDecode( type, text.Get() ) };
            CheckReason( bool( nearValue ), text.Get(),
                         [ & ]( int64_t *place ) { return sipsnSchemaWhyNot( type, text.Get(), place ); } );
        } );
    }
}

// Whether the line decodes, and all its items do.
bool LineDecodes( const SipsnSchemaFamily *family, SipsnMessageHeader *field )
{
    const ObjPtr hdr{ sipsnSchemaTryDecodeHeader( family, field ) };
    if( !hdr || !family->itemType ) return bool( hdr );
    const Value items = SchemaValue( hdr.Get(), 0 );
    for( int64_t at = 0; at < pbVectorLength( pbVectorFrom( items.object.Get() ) ); ++at ) {
        pb::Ref item{ pbVectorStringAt( pbVectorFrom( items.object.Get() ), at ) };
        if( Text( item.Get() ) != "*" && !ObjPtr{ sipsnSchemaTryDecode( family->itemType, item.Get() ) } ) return false;
    }
    return true;
}

TEST( SipsnSchema, TellsWhyALineDoesNotDecode )
{
    for( const auto &[ name, example ] : examples ) {
        const std::string text  = example ? example : "";
        const size_t      colon = text.find( ": " );
        if( !std::string_view{ name }.starts_with( "SipsnHeader" ) ) continue;
        SCOPED_TRACE( name );
        const SipsnSchemaFamily *family = sipsnSchemaFamilyByName( Str( text.substr( 0, colon ) ).Get() );
        ASSERT_TRUE( family );
        EXPECT_STREQ( family->type->name, name );
        ForEveryNearText( text.substr( colon + 2 ), [ & ]( const std::string &near ) {
            const auto line  = Str( near );
            const auto field = Field( family->name, {} );
            if( !sipsnMessageHeaderLineOk( line.Get() ) ) return;
            pb::Ref changed{ sipsnMessageHeaderRetain( field.Get() ) };
            sipsnMessageHeaderAppendLine( changed.Slot(), line.Get() );
            CheckReason( LineDecodes( family, changed.Get() ), line.Get(),
                         [ & ]( int64_t *place ) { return sipsnSchemaWhyNotLine( family, line.Get(), place ); } );
        } );
    }
}

// Objects compare by their members in this order, and JSON shows them in it; types that came later have no row.
TEST( SipsnSchema, MembersHaveTheirOrder )
{
    std::ifstream              expected{ SIPSN_SOURCE_DIR "/tests/sipsn/members.txt" };
    std::vector< std::string > rows, types;
    for( std::string row; std::getline( expected, row ); )
        if( !row.starts_with( "#" ) ) rows.push_back( row );
    ForEveryDescribedType( [ & ]( const SipsnSchemaType *type ) {
        std::string row = type->name;
        for( int64_t at = 0; at < type->memberCount; ++at )
            row += std::string( at ? " " : ": " ) + sipsnSchemaMemberAt( type, at )->name +
                   ( sipsnSchemaMemberAt( type, at )->optional ? "?" : "" );
        types.push_back( row );
    } );
    EXPECT_THAT( types, testing::IsSupersetOf( rows ) );
}

// A member that is written as a parameter takes the place of a generic parameter of its name.
TEST( SipsnSchema, MembersHideTheParametersOfTheirNames )
{
    ForEveryDescribedType( []( const SipsnSchemaType *type ) {
        const int64_t params = sipsnSchemaMemberIndex( type, "params" );
        for( int64_t at = 0; at < type->memberCount; ++at ) {
            const SipsnSchemaMember *member = sipsnSchemaMemberAt( type, at );
            if( !member->param ) continue;
            SCOPED_TRACE( member->name );
            const auto        param = Str( std::string( ";" ) + member->param + "=hidden" );
            const std::string text  = std::string( member->param ) + "=hidden"; // behind ";" or ","
            const ObjPtr generic{ sipsnSchemaTryDecode( sipsnSchemaTypeByName( "SipsnGenericParams" ), param.Get() ) };
            ObjPtr       obj = Filled( type, 0 );
            Fill( obj, at, 0 );
            if( const int64_t instead = sipsnSchemaMemberIndex( type, "token68" ); instead >= 0 ) {
                ASSERT_TRUE( sipsnSchemaTryDel( obj.Slot(), instead ) );
            }
            ASSERT_TRUE( sipsnSchemaTrySetObject( obj.Slot(), params, generic.Get() ) );
            EXPECT_THAT( TextOf( obj.Get() ), testing::Not( testing::HasSubstr( text ) ) );
            if( !sipsnSchemaTryDel( obj.Slot(), at ) ) continue;
            EXPECT_THAT( TextOf( obj.Get() ), testing::HasSubstr( text ) );
            EXPECT_EQ( SchemaValue( obj.Get(), params ).Text(), ";" + text );
        }
    } );
}

} // namespace
