// Objects of all types that the schema describes, made without naming a type, for what holds for all of them.
#pragma once

#include "exports.h"
#include "message_text.h"

#include "in/in_address.h"
#include "sipsn/sipsn_schema.h"

#include <gmock/gmock.h>

#include <cctype>
#include <csignal>
#include <filesystem>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using ObjPtr = pb::Ref< PbObj >;

inline ObjPtr StrObj( std::string_view text ) { return ObjPtr{ pb::AsObj( Str( text ).Detach() ) }; }

inline ObjPtr Retained( PbObj *obj ) { return ObjPtr{ pb::Retain( obj ) }; }

inline std::string TextOf( PbObj *obj ) { return obj ? Take( pbObjToString( obj ) ) : "(null)"; }

inline std::string Capital( std::string name )
{
    name[ 0 ] = char( std::toupper( name[ 0 ] ) );
    return name;
}

// What the public headers declare, in one line.
inline const std::string &Declarations()
{
    static const std::string all = [] {
        std::string text, word;
        for( const auto &entry : std::filesystem::directory_iterator( SIPSN_SOURCE_DIR "/source/sipsn" ) )
            if( std::ifstream header{ entry.path() }; entry.path().extension() == ".h" )
                while( header >> word ) text += word + ' ';
        return text;
    }();
    return all;
}

// ---- Members ---------------------------------------------------------------------------------------

// A number or an object; -1 and null when it is absent.
struct Value
{
    int64_t number = -1;
    ObjPtr  object = {};

    std::string Text() const { return object ? TextOf( object.Get() ) : std::to_string( number ); }
    Value       Share() const { return { number, Retained( object.Get() ) }; }
};

inline const SipsnSchemaMember *MemberOf( PbObj *obj, int64_t member )
{
    return sipsnSchemaMemberAt( sipsnSchemaTypeOf( obj ), member );
}

inline bool IsNumber( int64_t kind ) { return kind >= SIPSN_SCHEMA_KIND_INTEGER && kind <= SIPSN_SCHEMA_KIND_FLAG; }

inline Value SchemaValue( PbObj *obj, int64_t member )
{
    if( IsNumber( MemberOf( obj, member )->kind ) ) return { sipsnSchemaNumber( obj, member ) };
    return { -1, ObjPtr{ sipsnSchemaObject( obj, member ) } };
}

inline bool TrySet( ObjPtr &obj, int64_t member, const Value &value )
{
    return IsNumber( MemberOf( obj.Get(), member )->kind )
               ? sipsnSchemaTrySetNumber( obj.Slot(), member, value.number )
               : sipsnSchemaTrySetObject( obj.Slot(), member, value.object.Get() );
}

inline std::vector< std::string > MembersOf( PbObj *obj )
{
    std::vector< std::string > members;
    for( int64_t at = 0; at < sipsnSchemaTypeOf( obj )->memberCount; ++at )
        members.push_back( SchemaValue( obj, at ).Text() );
    return members;
}

// ---- Samples ---------------------------------------------------------------------------------------

// Every text member takes at least two of these, and refuses at least one.
constexpr const char *texts[] = {
    "Token-1",
    "tok",
    "x y",
    "a.B",
    "c.d",
    "1",
    "2",
    "1.5",
    "sip:a",
    "sip:b",
    "<sip:a>",
    "<sip:b>",
    "a@b",
    "c@d",
    "uac",
    "uas",
    "0123456789abcdef0123456789abcdef",
    "00000000000000000000000000000000",
    "(a)",
    "<a@b>",
    "<c@d>",
    "true",
    "false",
    "proxy",
    "cancel",
    "urn:urn-7:a",
    "urn:urn-7:b",
    "00000000-0000-0000-0000-000000000000",
    "00000000-0000-0000-0000-00000000abcd",
    "",
    "*",
    "a;b",
    "a,b",
    "a=b",
    "c=d",
    "\u00fc",
    "\"",
    "\x01",
    "\r\n",
    "a\nb",
};

inline ObjPtr Vector( const std::vector< std::string > &items )
{
    pb::Ref vector{ pbVectorCreate() };
    for( const std::string &item : items ) pbVectorAppendString( vector.Slot(), Str( item ).Get() );
    return ObjPtr{ pbVectorObj( vector.Detach() ) };
}

inline ObjPtr Filled( const SipsnSchemaType *type, int which );

// Values that the member may hold; it holds at least two of them that differ.
inline std::vector< Value > Candidates( const SipsnSchemaMember *member )
{
    std::vector< Value > found;
    const auto           add = [ & ]( auto *owned ) { found.push_back( { -1, ObjPtr{ pb::AsObj( owned ) } } ); };
    switch( member->kind ) {
    case SIPSN_SCHEMA_KIND_INTEGER:
    case SIPSN_SCHEMA_KIND_THOUSANDTHS:
    case SIPSN_SCHEMA_KIND_FLAG:
        for( int64_t number : { member->highest, member->highest - 1, member->lowest, member->lowest - 1, INT64_MIN } )
            found.push_back( { number } );
        if( member->highest < INT64_MAX ) found.push_back( { member->highest + 1 } );
        break;
    case SIPSN_SCHEMA_KIND_TEXT:
        for( const char *text : texts ) add( Str( text ).Detach() );
        break;
    case SIPSN_SCHEMA_KIND_TIME:
        for( int64_t year : { 2000, 2001 } ) {
            PbTime *time = pbTimeCreate();
            pbTimeSetYear( &time, year );
            add( time );
        }
        break;
    case SIPSN_SCHEMA_KIND_ADDRESS:
        for( const char *text : { "192.0.2.1", "2001:db8::1" } )
            add( inAddressTryCreateFromChars( Chars( text ).data(), int64_t( Chars( text ).size() ) ) );
        break;
    case SIPSN_SCHEMA_KIND_VERSION:
        for( const char *text : { "2.0", "3.0" } ) add( sipsnVersionCreate( Str( "SIP" ).Get(), Str( text ).Get() ) );
        break;
    case SIPSN_SCHEMA_KIND_PARAMETERS:
        for( const char *text : { "p", "z" } ) {
            SipsnGenericParams *params = sipsnGenericParamsCreate();
            sipsnGenericParamsSetParam( &params, pb::Ref{ sipsnGenericParamCreateCstr( text, -1 ) }.Get() );
            add( params );
        }
        break;
    case SIPSN_SCHEMA_KIND_LIST:
    case SIPSN_SCHEMA_KIND_SET:
        if( !member->type ) {
            for( const char *text : texts ) found.push_back( { -1, Vector( { text } ) } );
        } else {
            for( int which : { 0, 1 } )
                found.push_back(
                    { -1, Vector( { Take( sipsnSchemaEncode( Filled( member->type, which ).Get() ) ) } ) } );
        }
    }
    return found;
}

// The which-th different value that the member of an object can hold.
inline void Fill( ObjPtr &obj, int64_t member, int which )
{
    std::vector< std::string > held;
    for( const Value &value : Candidates( MemberOf( obj.Get(), member ) ) ) {
        if( !TrySet( obj, member, value ) ) continue;
        const std::string text = SchemaValue( obj.Get(), member ).Text();
        if( std::ranges::find( held, text ) == held.end() ) held.push_back( text );
        if( int( held.size() ) > which ) return;
    }
    ADD_FAILURE() << MemberOf( obj.Get(), member )->name << " holds too few of the candidates";
}

// An object with every member, but for those that another one excludes. Objects filled with 0 and 1 differ in them all.
inline ObjPtr Filled( const SipsnSchemaType *type, int which )
{
    ObjPtr obj{ sipsnSchemaCreate( type ) };
    for( int64_t member = 0; member < type->memberCount; ++member ) Fill( obj, member, which );
    return obj;
}

// Calls check( type ) for every type whose members are described.
template< class Check > void ForEveryDescribedType( Check check )
{
    for( int64_t at = 0; at < sipsnSchemaTypesLength(); ++at )
        if( const SipsnSchemaType *type = sipsnSchemaTypeAt( at ); type->memberCount > 0 ) {
            SCOPED_TRACE( type->name );
            check( type );
        }
}

// "sipsnVia" of SipsnVia: how the names of its functions begin.
inline std::string PrefixOf( const SipsnSchemaType *type ) { return "s" + std::string( type->name + 1 ); }

// ---- Aborts ----------------------------------------------------------------------------------------

// What a call prints before it aborts, tried in a process of its own; empty when it does not abort.
template< class Call > std::string AbortOf( Call call )
{
    int ends[ 2 ];
    if( pipe( ends ) != 0 ) return "no pipe";
    const pid_t child = fork();
    if( child == 0 ) {
        dup2( ends[ 1 ], STDERR_FILENO );
        call();
        _exit( 0 );
    }
    close( ends[ 1 ] );
    std::string printed;
    char        some[ 512 ];
    for( ssize_t size; ( size = read( ends[ 0 ], some, sizeof( some ) ) ) > 0; ) printed.append( some, size_t( size ) );
    close( ends[ 0 ] );
    int status = 0;
    waitpid( child, &status, 0 );
    return WIFSIGNALED( status ) && WTERMSIG( status ) == SIGABRT ? printed : std::string{};
}
