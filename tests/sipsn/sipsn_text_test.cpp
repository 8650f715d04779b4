// What texts become: the rows of tokens.txt for single texts, those of values.txt for structured values and those of
// headers.txt for header fields, by every function that decodes or encodes.
#include "header_functions.h"
#include "header_text.h"
#include "schema_text.h"

#include <cstring>
#include <sstream>

namespace {

using Texts = std::vector< std::string >;

// ---- Rows ------------------------------------------------------------------------------------------

// What stands between each two of the marks.
Texts Between( std::string_view line )
{
    Texts texts;
    for( size_t begin; ( begin = line.find( '`' ) ) != line.npos; ) {
        const size_t end = line.find( '`', begin + 1 );
        texts.emplace_back( line.substr( begin + 1, end - begin - 1 ) );
        line.remove_prefix( end + 1 );
        std::string &text = texts.back();
        for( size_t at = 0; ( at = text.find( '<', at ) ) != std::string::npos; ++at )
            if( text.compare( at, 5, "<TAB>" ) == 0 )
                text.replace( at, 5, "\t" );
            else if( text.size() >= at + 4 && text[ at + 3 ] == '>' && std::isxdigit( text[ at + 1 ] ) )
                text.replace( at, 4, 1, char( std::stoi( text.substr( at + 1, 2 ), nullptr, 16 ) ) );
    }
    return texts;
}

// Calls check( name, texts, decodes, expected ) for each row of a file and each name that stands above it.
template< class Check > void ForEveryRow( const char *file, Check check )
{
    std::ifstream rows{ std::string{ SIPSN_SOURCE_DIR "/tests/sipsn/" } + file };
    ASSERT_TRUE( rows );
    std::string names;
    for( std::string line; std::getline( rows, line ); ) {
        const size_t arrow = line.rfind( "-> " );
        if( !line.empty() && line[ 0 ] != ' ' && line[ 0 ] != '#' ) names = line;
        if( line.empty() || line[ 0 ] != ' ' || arrow == line.npos ) continue;
        const std::string result = line.substr( arrow + 3 );
        const Texts       texts  = Between( line.substr( 0, arrow ) );
        std::stringstream all{ names };
        for( std::string name; std::getline( all >> std::ws, name, ',' ); ) {
            SCOPED_TRACE( name + ":" + line );
            check( name, texts, result != "none", result == "same" ? texts : Between( result ) );
        }
    }
}

bool Same( PbObj *a, PbObj *b ) { return a && b ? pbObjCompare( a, b ) == 0 : a == b; }

// ---- Single texts ----------------------------------------------------------------------------------

// What a function gives; "none" for null, false and -1.
std::string ResultOf( const std::string &function, const std::string &given )
{
    const auto text = Str( given );
    if( function.ends_with( "Ok" ) ) return Exported< bool( PbString * ) >( function )( text.Get() ) ? given : "none";
    pb::Ref result{ function.ends_with( "Decode" ) ? Exported< PbString *( const PbChar *, int64_t ) >( function )(
                                                         Chars( given ).data(), pbStringLength( text.Get() ) )
                                                   : Exported< PbString *( PbString * ) >( function )( text.Get() ) };
    EXPECT_EQ( result.Get() == text.Get(), Text( result.Get() ) == given && !function.ends_with( "Decode" ) );
    return result ? Text( result.Get() ) : "none";
}

TEST( SipsnText, OfTokens )
{
    ForEveryRow( "tokens.txt", []( const std::string &name, const Texts &texts, bool decodes, const Texts &expected ) {
        ASSERT_TRUE( Exported< void >( name ) );
        for( size_t at = 0; at < texts.size(); ++at )
            EXPECT_EQ( ResultOf( name, texts[ at ] ), decodes ? expected[ at ] : "none" );
    } );
}

// ---- Values ----------------------------------------------------------------------------------------

TEST( SipsnText, OfValues )
{
    int count = 0;
    ForEveryRow( "values.txt",
                 [ & ]( const std::string &name, const Texts &texts, bool decodes, const Texts &expected ) {
                     const SipsnSchemaType *type = sipsnSchemaTypeByName( ( "Sipsn" + name ).c_str() );
                     ASSERT_TRUE( type );
                     const ObjPtr value{ sipsnSchemaTryDecode( type, Str( texts[ 0 ] ).Get() ) };
                     ASSERT_EQ( bool( value ), decodes );
                     ++count;
                     if( !decodes ) return;
                     EXPECT_EQ( Take( sipsnSchemaEncode( value.Get() ) ), expected[ 0 ] );
                     EXPECT_EQ( TextOf( value.Get() ), expected[ 0 ] );
                     const ObjPtr again{ sipsnSchemaTryDecode( type, Str( expected[ 0 ] ).Get() ) };
                     ASSERT_TRUE( again );
                     EXPECT_EQ( TextOf( again.Get() ), expected[ 0 ] );
                     EXPECT_TRUE( Same( value.Get(), again.Get() ) );
                 } );
    EXPECT_GT( count, 250 );
}

// ---- Headers ---------------------------------------------------------------------------------------

struct Family : HeaderFunctions
{
    explicit Family( const SipsnSchemaFamily *family )
        : HeaderFunctions{ family->type->name + std::strlen( "SipsnHeader" ) }, schema{ family }
    {}

    const SipsnSchemaFamily *schema;
};

// Into a message that has such a field already, over the wire, and out of it again.
void CheckInMessage( const Family &family, PbObj *hdr, const Texts &lines )
{
    auto    msg = Message( "OPTIONS sip:a@b SIP/2.0\r\nX-Other: 1\r\n\r\n" );
    pb::Ref other{ sipsnMessageRetain( msg.Get() ) };
    sipsnMessageSetHeader( msg.Slot(), Field( family.schema->name, { "to be replaced", "" } ).Get() );
    family.encodeToMessage( hdr, msg.Slot() );
    EXPECT_TRUE( family.presentInMessage( msg.Get() ) );
    EXPECT_FALSE( family.presentInMessage( other.Get() ) );

    const pb::Ref field{ sipsnMessageHeaderCstr( msg.Get(), family.schema->name, -1 ) };
    const ObjPtr  found{ family.tryDecodeFromMessage( msg.Get() ) };
    EXPECT_EQ( Lines( field.Get() ), lines );
    EXPECT_TRUE( lines.empty() ? !found : Same( found.Get(), hdr ) );

    pb::Ref wire{ sipsnMessageEncode( msg.Get() ) };
    pb::Ref decoded{ sipsnMessageTryDecode( wire.Get() ) };
    EXPECT_EQ( family.presentInMessage( decoded.Get() ), !lines.empty() );

    family.removeFromMessage( msg.Slot() );
    EXPECT_FALSE( family.presentInMessage( msg.Get() ) );
    EXPECT_FALSE( ObjPtr{ family.tryDecodeFromMessage( msg.Get() ) } );
    EXPECT_TRUE( sipsnMessageHasHeaderCstr( msg.Get(), "X-Other", -1 ) );
}

// What the header is encoded to, that decoding and restoring give an equal header, and the way through a message.
void CheckEncoded( const Family &family, PbObj *hdr, const Texts &expected )
{
    const pb::Ref field{ family.encode( hdr ) };
    const pb::Ref bySchema{ sipsnSchemaEncodeHeader( family.schema, hdr ) };
    EXPECT_TRUE( sipsnMessageHeaderEquals( field.Get(), bySchema.Get() ) );
    EXPECT_TRUE( sipsnMessageHeaderNameEqualsCstr( field.Get(), family.schema->name, -1 ) );
    EXPECT_EQ( Lines( field.Get() ), expected );
    EXPECT_EQ( TextOf( hdr ), expected.size() == 1 ? expected[ 0 ]
                              : expected.empty()   ? ""
                                                   : TextOf( Vector( expected ).Get() ) );

    const pb::Ref store{ family.store( hdr ) };
    EXPECT_EQ( pbStoreLength( store.Get() ), int64_t( expected.size() ) );
    const ObjPtr again{ family.tryDecode( field.Get() ) };
    EXPECT_TRUE( Same( again.Get(), ObjPtr{ family.tryRestore( store.Get() ) }.Get() ) );
    EXPECT_TRUE( again ? Same( again.Get(), hdr ) : expected.empty() ); // not every type has a header without lines
    CheckInMessage( family, hdr, expected );
}

TEST( SipsnText, OfHeaders )
{
    int count = 0;
    ForEveryRow(
        "headers.txt", [ & ]( const std::string &name, const Texts &lines, bool decodes, const Texts &expected ) {
            const SipsnSchemaFamily *schema = sipsnSchemaFamilyByName( Str( name ).Get() );
            ASSERT_TRUE( schema );
            const Family family{ schema };
            const auto   field = Field( name, lines );
            const ObjPtr hdr{ family.tryDecode( field.Get() ) };
            ASSERT_EQ( bool( hdr ), decodes );
            ++count;
            const pb::Ref store{ sipsnMessageHeaderStoreLines( field.Get() ) };
            EXPECT_TRUE( Same( ObjPtr{ family.tryRestore( store.Get() ) }.Get(), hdr.Get() ) );
            EXPECT_TRUE( Same( ObjPtr{ sipsnSchemaTryDecodeHeader( schema, field.Get() ) }.Get(), hdr.Get() ) );

            auto msg = Message( "OPTIONS sip:a@b SIP/2.0\r\n\r\n" );
            EXPECT_FALSE( family.presentInMessage( msg.Get() ) );
            EXPECT_FALSE( ObjPtr{ family.tryDecodeFromMessage( msg.Get() ) } );
            sipsnMessageSetHeader( msg.Slot(), field.Get() );
            EXPECT_TRUE( family.presentInMessage( msg.Get() ) );
            const ObjPtr found{ family.tryDecodeFromMessage( msg.Get() ) };
            EXPECT_TRUE( lines.empty() ? !found : Same( found.Get(), hdr.Get() ) );
            if( hdr ) CheckEncoded( family, hdr.Get(), expected );
        } );
    EXPECT_GT( count, 600 );
}

TEST( SipsnText, EveryFamilyIsFoundByItsNames )
{
    for( int64_t at = 0; at < sipsnSchemaFamiliesLength(); ++at ) {
        const Family family{ sipsnSchemaFamilyAt( at ) };
        SCOPED_TRACE( family.schema->name );
        EXPECT_EQ( sipsnSchemaFamilyByName( Str( family.schema->name ).Get() ), family.schema );
        const char *compact = family.schema->compact ? family.schema->compact : family.schema->name;
        EXPECT_EQ( sipsnSchemaFamilyByName( Str( compact ).Get() ), family.schema );
        const ObjPtr  filled = Filled( family.schema->type, 0 );
        const pb::Ref field{ family.encode( filled.Get() ) };
        CheckEncoded( family, filled.Get(), Lines( field.Get() ) );
    }
}

} // namespace
