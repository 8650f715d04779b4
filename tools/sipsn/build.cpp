// Messages made of the JSON that decode --json prints.
#include "build.h"

#include "describe.h"
#include "family.h"
#include "text.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <map>
#include <optional>
#include <vector>

namespace tool {

namespace {

// ---- Parts of the JSON -----------------------------------------------------------------------------

// A deep value is not printed: what prints it would go as deep.
std::string Show( const Json &json )
{
    if( json.is_object() ) return "an object";
    if( json.is_array() ) return "an array";
    return json.is_string() ? Quote( json.get_ref< const std::string & >() ) : json.dump();
}

// A value and the path to it.
struct Part
{
    std::string path;
    const Json &json;

    [[noreturn]] void Refuse( const std::string &reason ) const
    {
        throw Refusal( path.empty() ? reason : path + ": " + reason );
    }
    [[noreturn]] void IsNot( const std::string &what ) const { Refuse( Show( json ) + " is not " + what ); }
};

using Parts = std::map< std::string, Part >;

Parts MembersOf( const Part &part )
{
    if( !part.json.is_object() ) part.IsNot( "an object" );
    Parts members;
    for( const auto &[ name, json ] : part.json.items() )
        members.emplace( name, Part{ ( part.path.empty() ? "" : part.path + '.' ) + Escape( name ), json } );
    return members;
}

// The members of an object that may have these.
Parts MembersOf( const Part &part, std::initializer_list< std::string_view > known )
{
    Parts members = MembersOf( part );
    for( const auto &[ name, member ] : members ) {
        if( std::find( known.begin(), known.end(), name ) != known.end() ) continue;
        std::string names;
        for( const std::string_view one : known ) names.append( names.empty() ? "" : ", " ).append( one );
        member.Refuse( "not known here, where there may be " + names );
    }
    return members;
}

const Part *Find( const Parts &parts, const std::string &name )
{
    const auto found = parts.find( name );
    return found == parts.end() ? nullptr : &found->second;
}

const Part &Need( const Part &part, const Parts &members, const std::string &name )
{
    const Part *found = Find( members, name );
    if( !found ) part.Refuse( name + " is missing" );
    return *found;
}

std::vector< Part > ItemsOf( const Part &part )
{
    if( !part.json.is_array() ) part.IsNot( "an array" );
    std::vector< Part > items;
    for( const Json &json : part.json )
        items.push_back( { part.path + '[' + std::to_string( items.size() ) + ']', json } );
    return items;
}

// Null for what is not a text.
Owned< PbString > TryText( const Json &json )
{
    return json.is_string() ? TryString( json.get_ref< const std::string & >() ) : Owned< PbString >{};
}

Owned< PbString > TextOf( const Part &part, const char *what, bool ( *ok )( PbString *text ) )
{
    Owned< PbString > text = TryText( part.json );
    if( !text || !ok( text.Get() ) ) part.IsNot( what );
    return text;
}

// Whether they are the same but for the order of members. The second sets how deep this goes.
bool Same( const Json &given, const Json &known )
{
    if( given.type() != known.type() || given.size() != known.size() || !known.is_structured() ) return given == known;
    if( known.is_array() ) return std::equal( given.begin(), given.end(), known.begin(), Same );
    for( const auto &[ name, member ] : known.items() )
        if( const auto found = given.find( name ); found == given.end() || !Same( *found, member ) ) return false;
    return true;
}

// ---- What members hold -----------------------------------------------------------------------------

Owned< PbObj > TryTime( PbString *text )
{
    constexpr std::string_view form = "0000-00-00T00:00:00Z";
    const std::string          time = Utf8( Owned{ pbStringRetain( text ) } );
    const auto                 fits = []( char given, char wanted ) {
        return wanted == '0' ? given >= '0' && given <= '9' : given == wanted;
    };
    if( time.size() != form.size() || !std::equal( time.begin(), time.end(), form.begin(), fits ) ) return {};
    const auto number = [ & ]( size_t at, size_t length ) { return std::stoll( time.substr( at, length ) ); };

    PbTime *result = pbTimeCreate();
    pbTimeSetYear( &result, number( 0, 4 ) );
    pbTimeSetMonth( &result, number( 5, 2 ) );
    pbTimeSetDay( &result, number( 8, 2 ) );
    pbTimeSetHour( &result, number( 11, 2 ) );
    pbTimeSetMinute( &result, number( 14, 2 ) );
    pbTimeSetSecond( &result, number( 17, 2 ) );
    return Owned{ pbTimeObj( result ) };
}

Owned< SipsnVersion > TryVersion( PbString *text )
{
    const std::string       version = Utf8( Owned{ pbStringRetain( text ) } );
    const size_t            slash   = std::min( version.find( '/' ), version.size() );
    const Owned< PbString > name    = TryString( version.substr( 0, slash ) );
    const Owned< PbString > number  = TryString( version.substr( std::min( slash + 1, version.size() ) ) );
    if( !sipsnProtocolNameOk( name.Get() ) || !sipsnProtocolVersionOk( number.Get() ) ) return {};
    return Owned{ sipsnVersionCreate( name.Get(), number.Get() ) };
}

// Whether the parameter has this value when it is read again.
bool ReadsAs( SipsnGenericParam *param, PbString *value )
{
    PbObj                  *obj = sipsnGenericParamObj( param );
    const Owned< PbString > text{ sipsnSchemaEncode( obj ) };
    const Owned< PbObj >    read{ sipsnSchemaTryDecode( sipsnSchemaTypeOf( obj ), text.Get() ) };
    if( !read ) return false;
    const Owned< PbString > again{ sipsnGenericParamValueNonNormalized( sipsnGenericParamFrom( read.Get() ) ) };
    return again && pbStringEquals( again.Get(), value );
}

// The value is of the first type that writes it as it is: a token, a host, a quoted string.
Owned< SipsnGenericParam > BuildParam( const std::string &name, const Part &part )
{
    const Owned< PbString > nameText = TryString( name );
    if( !nameText || !sipsnGenericParamNameOk( nameText.Get() ) ) part.Refuse( "not the name of a parameter" );
    if( part.json.is_null() ) return Owned{ sipsnGenericParamCreate( nameText.Get() ) };
    const Owned< PbString > value = TryText( part.json );
    if( value && sipsnMessageHeaderLineOk( value.Get() ) )
        for( const int64_t type : { SIPSN_GENERIC_PARAM_VALUE_TYPE_TOKEN, SIPSN_GENERIC_PARAM_VALUE_TYPE_HOST,
                                    SIPSN_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING } ) {
            if( !sipsnGenericParamValueOk( type, value.Get() ) ) continue;
            Owned param{ sipsnGenericParamCreateWithValue( nameText.Get(), type, value.Get() ) };
            if( ReadsAs( param.Get(), value.Get() ) ) return param;
        }
    part.IsNot( "the value of a parameter" );
}

Owned< PbObj > BuildParams( const Part &part )
{
    SipsnGenericParams *params = sipsnGenericParamsCreate();
    Owned< PbObj >      owned{ sipsnGenericParamsObj( params ) };
    for( const auto &[ name, value ] : MembersOf( part ) )
        sipsnGenericParamsSetParam( &params, BuildParam( name, value ).Get() );
    return owned;
}

std::optional< int64_t > TryNumber( int64_t kind, const Json &json )
{
    if( kind == SIPSN_SCHEMA_KIND_FLAG )
        return json.is_boolean() ? std::optional{ int64_t{ json.get< bool >() } } : std::nullopt;
    if( kind == SIPSN_SCHEMA_KIND_INTEGER ) {
        const bool fits =
            json.is_number_integer() && ( !json.is_number_unsigned() || json.get< uint64_t >() <= INT64_MAX );
        return fits ? std::optional{ json.get< int64_t >() } : std::nullopt;
    }
    const double number = json.is_number() ? json.get< double >() : -1;
    const double most   = 1e15; // up to here thousandths are whole
    if( !( number >= 0 && number <= most ) ) return std::nullopt;
    const int64_t thousandths = std::llround( number * 1000 );
    return double( thousandths ) / 1000 == number ? std::optional{ thousandths } : std::nullopt;
}

// Null for what is not an object of the kind.
Owned< PbObj > TryObject( int64_t kind, const Part &part )
{
    if( kind == SIPSN_SCHEMA_KIND_PARAMETERS ) return BuildParams( part );
    const Owned< PbString > text = TryText( part.json );
    if( !text ) return {};
    switch( kind ) {
    case SIPSN_SCHEMA_KIND_TIME: return TryTime( text.Get() );
    case SIPSN_SCHEMA_KIND_VERSION: {
        const Owned< SipsnVersion > version = TryVersion( text.Get() );
        return Owned{ version ? pbObjRetain( sipsnVersionObj( version.Get() ) ) : nullptr };
    }
    case SIPSN_SCHEMA_KIND_ADDRESS: {
        InAddress *address = inAddressTryCreateFromChars( pbStringBacking( text.Get() ), pbStringLength( text.Get() ) );
        return Owned{ address ? inAddressObj( address ) : nullptr };
    }
    default: return Owned{ pbStringObj( pbStringRetain( text.Get() ) ) };
    }
}

std::string WordsFor( const SipsnSchemaMember &member )
{
    if( member.holds ) return member.holds;
    switch( member.kind ) {
    case SIPSN_SCHEMA_KIND_FLAG: return "true or false";
    case SIPSN_SCHEMA_KIND_TIME: return "a time";
    case SIPSN_SCHEMA_KIND_ADDRESS: return "an address";
    case SIPSN_SCHEMA_KIND_VERSION: return "a version";
    default: return "what this member holds";
    }
}

void SetMember( Owned< PbObj > &obj, int64_t index, const Part &part )
{
    const SipsnSchemaMember &member = *sipsnSchemaMemberAt( sipsnSchemaTypeOf( obj.Get() ), index );
    bool                     set    = false;
    if( IsNumber( member.kind ) ) {
        const auto number = TryNumber( member.kind, part.json );
        set               = number && sipsnSchemaTrySetNumber( obj.Slot(), index, *number );
    } else {
        const Owned< PbObj > value = TryObject( member.kind, part );
        set                        = value && sipsnSchemaTrySetObject( obj.Slot(), index, value.Get() );
    }
    if( !set ) part.IsNot( WordsFor( member ) );
}

// ---- Objects ---------------------------------------------------------------------------------------

int64_t FindMember( const SipsnSchemaType *type, const std::string &name )
{
    const int64_t index = sipsnSchemaMemberIndex( type, name.c_str() );
    return index >= 0 && name == sipsnSchemaMemberAt( type, index )->name ? index : -1;
}

Owned< PbObj > BuildObject( const SipsnSchemaType *type, const Part &part )
{
    Owned< PbObj > obj{ sipsnSchemaCreate( type ) };
    const Parts    members = MembersOf( part );
    for( const auto &[ name, member ] : members ) {
        const int64_t index = FindMember( type, name );
        if( index < 0 ) member.Refuse( std::string( "not a member of " ) + type->name );
        SetMember( obj, index, member );
    }
    for( int64_t index = 0; index < type->memberCount; ++index ) {
        const SipsnSchemaMember &member = *sipsnSchemaMemberAt( type, index );
        const Part              *given  = Find( members, member.name );
        if( sipsnSchemaHas( obj.Get(), index ) || ( member.optional && ( !given || given->json == false ) ) ) continue;
        if( given ) given->Refuse( "does not go with another member" );
        part.Refuse( std::string( member.name ) + " is missing" );
    }
    return obj;
}

// ---- Header fields ---------------------------------------------------------------------------------

// The text of an item: a text itself, a value by its members, or one that decode --json told to be malformed.
Owned< PbString > BuildItem( const Family &family, const Part &part )
{
    if( !family.itemType || !part.json.is_object() ) return TryText( part.json );
    const auto text = part.json.find( "text" );
    if( part.json.contains( "error" ) && text != part.json.end() ) return TryText( *text );
    const Owned< PbObj > value = BuildObject( family.itemType, part );
    return Owned{ sipsnSchemaEncode( value.Get() ) };
}

bool TrySetItems( Owned< PbObj > &hdr, int64_t member, const Owned< PbVector > &items )
{
    return sipsnSchemaTrySetObject( hdr.Slot(), member, pbVectorObj( items.Get() ) );
}

[[noreturn]] void RefuseItem( const Family &family, const Part &part, const Owned< PbString > &text )
{
    if( text && family.itemType )
        if( const Owned< PbString > reason{ sipsnSchemaWhyNot( family.itemType, text.Get(), nullptr ) } )
            part.Refuse( Escape( Utf8( reason ) ) );
    part.IsNot( family.itemType ? "a value" : WordsFor( *sipsnSchemaMemberAt( family.type, ItemsMember( family ) ) ) );
}

Owned< PbObj > BuildItems( const Family &family, const Part &part )
{
    Owned< PbObj >    hdr{ sipsnSchemaCreate( family.type ) };
    Owned< PbVector > items{ pbVectorCreate() };
    const int64_t     member = ItemsMember( family );
    for( const Part &item : ItemsOf( part ) ) {
        const Owned< PbString > text = BuildItem( family, item );
        Owned< PbVector >       alone{ pbVectorCreate() };
        if( text ) pbVectorAppendString( alone.Slot(), text.Get() );
        if( !text || !TrySetItems( hdr, member, alone ) ) RefuseItem( family, item, text );
        pbVectorAppendString( items.Slot(), text.Get() );
    }
    if( !TrySetItems( hdr, member, items ) ) part.Refuse( "these items do not go together" );
    return hdr;
}

// Members that are good one by one may still not make a header field together.
Owned< SipsnMessageHeader > BuildTyped( const Family &family, const Part &part )
{
    const bool                  single = family.shape == SIPSN_SCHEMA_SHAPE_SINGLE;
    const Owned< PbObj >        hdr    = single ? BuildObject( family.type, part ) : BuildItems( family, part );
    Owned< SipsnMessageHeader > header{ sipsnSchemaEncodeHeader( &family, hdr.Get() ) };
    for( int64_t at = 0; at < sipsnMessageHeaderLinesLength( header.Get() ); ++at )
        if( const auto reason = WhyNotLine( family, Owned{ sipsnMessageHeaderLineAt( header.Get(), at ) }.Get() ) )
            part.Refuse( Escape( reason->words ) );
    return header;
}

Owned< SipsnMessageHeader > BuildLines( PbString *name, const Part *lines )
{
    Owned< SipsnMessageHeader > header{ sipsnMessageHeaderCreate( name ) };
    if( !lines ) return header;
    for( const Part &line : ItemsOf( *lines ) )
        sipsnMessageHeaderAppendLine( header.Slot(), TextOf( line, "a line", sipsnMessageHeaderLineOk ).Get() );
    return header;
}

// Lines that say the same as the members stay as they are.
Owned< SipsnMessageHeader > BuildHeader( const std::string &name, const Part &part )
{
    const Owned< PbString > nameText = TryString( name );
    if( !nameText || !sipsnMessageHeaderNameOk( nameText.Get() ) ) part.Refuse( "not the name of a header field" );
    const Family     *family  = sipsnSchemaFamilyByName( nameText.Get() );
    const std::string key     = family ? KeyOf( *family ) : "lines";
    const Parts       members = family ? MembersOf( part, { "lines", key, "error" } ) : MembersOf( part, { "lines" } );
    const Part       *typed   = Find( members, key );
    const Part       *lines   = Find( members, "lines" );
    if( !typed && !lines ) part.Refuse( "lines are missing" + ( family ? ", or " + key : "" ) );

    Owned< SipsnMessageHeader > header = BuildLines( nameText.Get(), lines );
    if( !family || !typed ) return header;
    const auto decoded = TryDecode( *family, header.Get() );
    if( lines && decoded && Same( typed->json, Describe( *family, *decoded ) ) ) return header;
    return BuildTyped( *family, *typed );
}

// ---- Messages --------------------------------------------------------------------------------------

Owned< SipsnVersion > BuildVersion( const Parts &members )
{
    const Part *given = Find( members, "version" );
    if( !given ) return Owned{ sipsnVersionCreateSip20() };
    const Owned< PbString > text    = TryText( given->json );
    Owned< SipsnVersion >   version = text ? TryVersion( text.Get() ) : Owned< SipsnVersion >{};
    if( !version ) given->IsNot( "a version" );
    return version;
}

Owned< SipsnMessage > BuildRequest( const Part &part )
{
    const Parts members = MembersOf( part, { "method", "iri", "version" } );
    const Owned method  = TextOf( Need( part, members, "method" ), "a method", sipsnMethodOk );
    const Owned iri     = TextOf( Need( part, members, "iri" ), "an IRI", sipsnIriOk );
    return Owned{ sipsnMessageCreateRequest( BuildVersion( members ).Get(), method.Get(), iri.Get() ) };
}

Owned< SipsnMessage > BuildResponse( const Part &part )
{
    const Parts members = MembersOf( part, { "version", "statusCode", "reasonPhrase" } );
    const Part &given   = Need( part, members, "statusCode" );
    const auto  code    = TryNumber( SIPSN_SCHEMA_KIND_INTEGER, given.json );
    if( !code || !sipsnStatusCodeOk( *code ) ) given.IsNot( "a status code" );
    const Owned< SipsnVersion > version = BuildVersion( members );
    const Part                 *phrase  = Find( members, "reasonPhrase" );
    if( !phrase ) return Owned{ sipsnMessageCreateResponse( version.Get(), *code ) };
    const Owned text = TextOf( *phrase, "a reason phrase", sipsnReasonPhraseOk );
    return Owned{ sipsnMessageCreateResponseWithReasonPhrase( version.Get(), *code, text.Get() ) };
}

// The bytes that pairs of hexadecimal digits stand for.
std::string BytesOf( const Part &part )
{
    constexpr std::string_view digits = "0123456789ABCDEFabcdef";
    const std::string          hex    = part.json.is_string() ? part.json.get< std::string >() : "?";
    if( hex.size() % 2 != 0 || hex.find_first_not_of( digits ) != hex.npos )
        part.IsNot( "pairs of hexadecimal digits" );
    std::string bytes;
    for( size_t at = 0; at < hex.size(); at += 2 ) bytes += char( std::stoi( hex.substr( at, 2 ), nullptr, 16 ) );
    return bytes;
}

// The length follows from the bytes.
Owned< PbBuffer > BuildBody( const Part &part )
{
    const Parts members = MembersOf( part, { "length", "text", "hex" } );
    const Part *hex     = Find( members, "hex" );
    if( hex && Find( members, "text" ) ) hex->Refuse( "does not go with text" );
    if( hex ) return MakeBuffer( BytesOf( *hex ) );
    const Part &text = Need( part, members, "text" );
    if( !text.json.is_string() ) text.IsNot( "a text" );
    return MakeBuffer( text.json.get_ref< const std::string & >() );
}

} // namespace

Owned< SipsnMessage > BuildMessage( const std::string &path, const Json &json )
{
    const Part  part{ path, json };
    const Parts members =
        MembersOf( part, { "file", "line", "column", "request", "response", "headers", "body", "error", "text" } );
    if( const Part *error = Find( members, "error" ) ) error->Refuse( "there is no message here" );
    const Part *request = Find( members, "request" ), *response = Find( members, "response" );
    if( request && response ) response->Refuse( "does not go with request" );
    if( !request && !response ) part.Refuse( "request is missing, or response" );

    Owned< SipsnMessage > message = request ? BuildRequest( *request ) : BuildResponse( *response );
    if( const Part *headers = Find( members, "headers" ) )
        for( const auto &[ name, given ] : MembersOf( *headers ) ) {
            const Owned< SipsnMessageHeader > header = BuildHeader( name, given );
            const Owned< PbString >           text{ sipsnMessageHeaderName( header.Get() ) };
            if( sipsnMessageHasHeader( message.Get(), text.Get() ) ) given.Refuse( "is there under another name, too" );
            sipsnMessageSetHeader( message.Slot(), header.Get() );
        }
    if( const Part *body = Find( members, "body" ) ) sipsnMessageSetBody( message.Slot(), BuildBody( *body ).Get() );
    return message;
}

} // namespace tool
