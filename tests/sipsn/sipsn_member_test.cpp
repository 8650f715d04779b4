// The law of members, for every member of every type: what its public functions do to it, to the other members and to
// whoever shares the object, and that the schema does the same.
#include "schema_text.h"

#include <map>
#include <set>

namespace {

using testing::AnyOf, testing::ContainsRegex, testing::HasSubstr;

// ---- Public functions of a member ------------------------------------------------------------------

// The names of the functions are made of the member's, but for these.
std::string FunctionName( const SipsnSchemaMember *member )
{
    static const std::map< std::string, std::string > others{
        { "q", "Qvalue" }, { "params", "GenericParams" }, { "rport", "RportNumeric" } };
    if( const auto found = others.find( member->name ); found != others.end() ) return found->second;
    const bool isList = member->kind == SIPSN_SCHEMA_KIND_LIST || member->kind == SIPSN_SCHEMA_KIND_SET;
    return Capital( member->name ) + ( isList ? "Vector" : "" );
}

struct Accessors
{
    std::string prefix; // "sipsnVia"
    std::string name;   // "Port"
    int64_t     kind;

    template< class Function > Function *Find( const char *verb ) const
    {
        return Exported< Function >( prefix + verb + name );
    }

    bool IsFlag() const { return kind == SIPSN_SCHEMA_KIND_FLAG; }

    // These codes are set with their default text, or without.
    bool IsCode() const { return name == "WarnCode" || name == "ResponseStatusCode"; }

    bool Exist() const { return Find< void >( "Set" ) && Find< void >( "" ); }

    Value Get( PbObj *obj ) const
    {
        if( IsFlag() ) return { Find< bool( PbObj * ) >( "" )( obj ) };
        if( IsNumber( kind ) ) return { Find< int64_t( PbObj * ) >( "" )( obj ) };
        return { -1, ObjPtr{ Find< PbObj *( PbObj * ) >( "" )( obj ) } };
    }

    void Set( PbObj **obj, const Value &value ) const
    {
        if( IsFlag() ) return Find< void( PbObj **, bool ) >( "Set" )( obj, value.number );
        if( IsCode() ) return Find< void( PbObj **, int64_t, bool ) >( "Set" )( obj, value.number, false );
        if( IsNumber( kind ) ) return Find< void( PbObj **, int64_t ) >( "Set" )( obj, value.number );
        Find< void( PbObj **, PbObj * ) >( "Set" )( obj, value.object.Get() );
    }

    bool ( *has )( PbObj *obj )  = Find< bool( PbObj  *) >( "Has" );  // null: the member is never absent
    void ( *del )( PbObj **obj ) = Find< void( PbObj ** ) >( "Del" ); // null: the same
};

// What a setter's declaration calls the value: "port".
std::string ParameterOf( const Accessors &member )
{
    const std::string &all   = Declarations();
    const size_t       begin = all.find( member.prefix + "Set" + member.name + "( " );
    const size_t       comma = all.find( ',', begin ), end = all.find_first_of( ",)", comma + 1 );
    std::string        parameter = all.substr( comma + 1, end - comma - 1 );
    if( parameter.ends_with( ' ' ) ) parameter.pop_back();
    return parameter.substr( parameter.find_last_of( " *" ) + 1 );
}

// Two objects of a type that differ in all of some members.
struct Pair
{
    ObjPtr                   a, b;
    std::vector< Accessors > members;

    std::vector< std::string > Read( PbObj *obj ) const
    {
        std::vector< std::string > values;
        for( const Accessors &member : members ) values.push_back( member.Get( obj ).Text() );
        return values;
    }
};

Pair PairOf( const SipsnSchemaType *type )
{
    Pair pair{ Filled( type, 0 ), Filled( type, 1 ), {} };
    for( int64_t at = 0; at < type->memberCount; ++at ) {
        const SipsnSchemaMember *member = sipsnSchemaMemberAt( type, at );
        const Accessors          accessors{ PrefixOf( type ), FunctionName( member ), member->kind };
        if( accessors.Exist() ) pair.members.push_back( accessors );
    }
    return pair;
}

Pair MessagePair( const std::string &prefix, const char *a, const char *b, std::vector< Accessors > members )
{
    const auto decode = Exported< PbObj *( PbBuffer * ) >( prefix + "TryDecode" );
    Pair       pair{ ObjPtr{ decode( Bytes( a ).Get() ) }, ObjPtr{ decode( Bytes( b ).Get() ) }, {} };
    for( Accessors member : members ) pair.members.push_back( { prefix, member.name, member.kind } );
    return pair;
}

// Calls check( pair ) for every type that has members.
template< class Check > void ForEveryPair( Check check )
{
    ForEveryDescribedType( [ & ]( const SipsnSchemaType *type ) { check( PairOf( type ) ); } );

    constexpr int64_t text = SIPSN_SCHEMA_KIND_TEXT, object = SIPSN_SCHEMA_KIND_OBJECT;
    for( const std::string prefix : { "sipsnMessage", "sipsnMessageFragment" } ) {
        check( MessagePair( prefix, "INVITE sip:a SIP/2.0\r\n\r\na", "BYE sip:b SIP/3.0\r\n\r\nb",
                            { { "", "Version", object },
                              { "", "RequestMethod", text },
                              { "", "RequestIri", text },
                              { "", "Body", object } } ) );
        check( MessagePair( prefix, "SIP/2.0 200 a\r\n\r\na", "SIP/3.0 404 b\r\n\r\nb",
                            { { "", "Version", object },
                              { "", "ResponseStatusCode", SIPSN_SCHEMA_KIND_INTEGER },
                              { "", "ResponseReasonPhrase", object }, // any text
                              { "", "Body", object } } ) );
    }
    const auto named = []( const char *prefix, PbObj *a, PbObj *b, std::vector< Accessors > members ) {
        Pair pair{ ObjPtr{ a }, ObjPtr{ b }, {} };
        for( Accessors member : members ) pair.members.push_back( { prefix, member.name, member.kind } );
        return pair;
    };
    const auto version = []( const char *name, const char *number ) {
        return sipsnVersionObj( sipsnVersionCreate( Str( name ).Get(), Str( number ).Get() ) );
    };
    check( named( "sipsnVersion", version( "A", "1" ), version( "B", "2" ),
                  { { "", "ProtocolName", text }, { "", "ProtocolVersion", text } } ) );
    const auto field = []( const char *name, const char *line ) {
        SipsnMessageHeader *header = sipsnMessageHeaderCreateCstr( name, -1 );
        sipsnMessageHeaderAppendLineCstr( &header, line, -1 );
        return sipsnMessageHeaderObj( header );
    };
    check( named( "sipsnMessageHeader", field( "X", "1" ), field( "Y", "2" ),
                  { { "", "Name", text }, { "", "LinesVector", SIPSN_SCHEMA_KIND_LIST } } ) );
    const auto param = []( const char *name ) { return pb::Ref{ sipsnGenericParamCreateCstr( name, -1 ) }; };
    check( named( "sipsnGenericParam", sipsnGenericParamObj( param( "a" ).Detach() ),
                  sipsnGenericParamObj( param( "b" ).Detach() ), { { "", "Name", text } } ) );
    const auto params = [ & ]( const char *name ) {
        SipsnGenericParams *all = sipsnGenericParamsCreate();
        sipsnGenericParamsSetParam( &all, param( name ).Get() );
        return sipsnGenericParamsObj( all );
    };
    check( named( "sipsnGenericParams", params( "a" ), params( "b" ),
                  { { "", "ParamsVector", SIPSN_SCHEMA_KIND_LIST } } ) );
}

// ---- The law ---------------------------------------------------------------------------------------

TEST( SipsnMember, SettersChangeOneMemberOfAPrivateCopy )
{
    ForEveryPair( []( const Pair &pair ) {
        const auto a = pair.Read( pair.a.Get() ), b = pair.Read( pair.b.Get() );
        for( size_t at = 0; at < pair.members.size(); ++at ) {
            const Accessors &member = pair.members[ at ];
            SCOPED_TRACE( member.prefix + member.name );
            ASSERT_NE( a[ at ], b[ at ] );
            auto expected     = a;
            expected[ at ]    = b[ at ];
            const Value given = member.Get( pair.b.Get() );
            const auto  count = given.object ? given.object->count : 0;

            ObjPtr changed = Retained( pair.a.Get() );
            member.Set( changed.Slot(), given );
            EXPECT_NE( changed.Get(), pair.a.Get() ) << "a shared object is copied";
            EXPECT_EQ( pair.Read( changed.Get() ), expected );
            EXPECT_EQ( pair.Read( pair.a.Get() ), a );

            PbObj *const alone = changed.Get();
            member.Set( changed.Slot(), given );
            EXPECT_EQ( changed.Get(), alone ) << "an object that is not shared is changed itself";
            changed = {};
            EXPECT_EQ( given.object ? given.object->count : 0, count ) << "a reference too few or too many";
            EXPECT_TRUE( !member.has || member.has( pair.a.Get() ) );
        }
    } );
}

TEST( SipsnMember, GettersGiveReferences )
{
    ForEveryPair( []( const Pair &pair ) {
        for( const Accessors &member : pair.members ) {
            SCOPED_TRACE( member.prefix + member.name );
            const Value first = member.Get( pair.a.Get() );
            if( !first.object ) continue;
            const auto  count = first.object->count;
            const Value again = member.Get( pair.a.Get() );
            const bool  same  = again.object.Get() == first.object.Get();
            EXPECT_EQ( again.object->count, !same ? 1 : count < pb::uncounted ? count + 1 : count );
        }
    } );
}

TEST( SipsnMember, DeletersLeaveOneMemberOutOfAPrivateCopy )
{
    ForEveryPair( []( const Pair &pair ) {
        const auto a = pair.Read( pair.a.Get() );
        for( size_t at = 0; at < pair.members.size(); ++at ) {
            const Accessors &member = pair.members[ at ];
            if( !member.del ) continue;
            SCOPED_TRACE( member.prefix + member.name );
            auto expected  = a;
            expected[ at ] = "-1";
            ObjPtr changed = Retained( pair.a.Get() );
            member.del( changed.Slot() );
            EXPECT_NE( changed.Get(), pair.a.Get() );
            EXPECT_EQ( pair.Read( changed.Get() ), expected );
            EXPECT_EQ( pair.Read( pair.a.Get() ), a );
            ASSERT_TRUE( member.has );
            EXPECT_FALSE( member.has( changed.Get() ) );
            PbObj *const alone = changed.Get();
            member.del( changed.Slot() );
            EXPECT_EQ( changed.Get(), alone );
        }
    } );
}

// What a setter prints about a value that it does not take: a flag takes any, and a list names its item.
testing::Matcher< const std::string & > RefusalBy( const Accessors &member )
{
    if( member.IsFlag() ) return testing::StrEq( "" );
    return HasSubstr( "Ok( " + ( member.name.ends_with( "Vector" ) ? "" : ParameterOf( member ) + " )" ) );
}

TEST( SipsnMemberDeathTest, MisuseAborts )
{
    ForEveryPair( []( const Pair &pair ) {
        for( const Accessors &member : pair.members ) {
            SCOPED_TRACE( member.prefix + member.name );
            const Value absent{ INT64_MIN };
            ObjPtr      obj = Retained( pair.a.Get() ), none;
            EXPECT_NE( AbortOf( [ & ] { member.Set( nullptr, absent ); } ), "" );
            EXPECT_THAT( AbortOf( [ & ] { member.Set( none.Slot(), absent ); } ), HasSubstr( "condition \"*" ) );
            const std::string refused = AbortOf( [ & ] { member.Set( obj.Slot(), absent ); } );
            EXPECT_THAT( refused, AnyOf( ContainsRegex( "condition \"[a-zA-Z0-9]+\" failed" ), RefusalBy( member ) ) );
            EXPECT_NE( AbortOf( [ & ] { member.Get( nullptr ); } ), "" );
            if( !member.has ) continue;
            EXPECT_NE( AbortOf( [ & ] { member.has( nullptr ); } ), "" );
            if( member.del ) {
                EXPECT_NE( AbortOf( [ & ] { member.del( nullptr ); } ), "" );
            }
        }
    } );
}

// ---- Creation --------------------------------------------------------------------------------------

// Calls Create with these values.
ObjPtr Create( const SipsnSchemaType *type, const std::vector< Value > &values )
{
    using O = PbObj *;
    using N = int64_t;

    const bool        isWarning = PrefixOf( type ) == "sipsnWarningValue";
    const std::string name      = PrefixOf( type ) + ( isWarning ? "CreateWithWarnText" : "Create" );
    const auto        object    = [ & ]( size_t at ) { return values[ at ].object.Get(); };
    const auto        number    = [ & ]( size_t at ) { return values[ at ].number; };
    std::string       kinds;
    for( const Value &value : values ) kinds += value.object ? 'o' : 'n';
    if( kinds == "" ) return ObjPtr{ Exported< O() >( name )() };
    if( kinds == "n" ) return ObjPtr{ Exported< O( N ) >( name )( number( 0 ) ) };
    if( kinds == "o" ) return ObjPtr{ Exported< O( O ) >( name )( object( 0 ) ) };
    if( kinds == "nn" ) return ObjPtr{ Exported< O( N, N ) >( name )( number( 0 ), number( 1 ) ) };
    if( kinds == "no" ) return ObjPtr{ Exported< O( N, O ) >( name )( number( 0 ), object( 1 ) ) };
    if( kinds == "oo" ) return ObjPtr{ Exported< O( O, O ) >( name )( object( 0 ), object( 1 ) ) };
    if( kinds == "nno" ) return ObjPtr{ Exported< O( N, N, O ) >( name )( number( 0 ), number( 1 ), object( 2 ) ) };
    if( kinds == "noo" ) return ObjPtr{ Exported< O( N, O, O ) >( name )( number( 0 ), object( 1 ), object( 2 ) ) };
    if( kinds == "ooo" ) return ObjPtr{ Exported< O( O, O, O ) >( name )( object( 0 ), object( 1 ), object( 2 ) ) };
    ADD_FAILURE() << name << " takes " << kinds;
    return {};
}

TEST( SipsnMember, CreateTakesWhatIsRequired )
{
    const ObjPtr none = StrObj( "\r\n" ); // as valid as no object
    ForEveryDescribedType( [ & ]( const SipsnSchemaType *type ) {
        const ObjPtr           a = Filled( type, 0 );
        std::vector< int64_t > required;
        std::vector< Value >   values;
        for( int64_t at = 0; at < type->memberCount; ++at ) {
            const SipsnSchemaMember *member  = sipsnSchemaMemberAt( type, at );
            const bool               isEmpty = member->kind >= SIPSN_SCHEMA_KIND_PARAMETERS; // to begin with
            if( member->optional || isEmpty ) continue;
            required.push_back( at );
            values.push_back( SchemaValue( a.Get(), at ) );
        }
        const ObjPtr made = Create( type, values );
        EXPECT_TRUE( sipsnSchemaComplete( made.Get() ) );
        for( size_t at = 0; at < values.size(); ++at )
            EXPECT_EQ( SchemaValue( made.Get(), required[ at ] ).Text(), values[ at ].Text() );
        for( int64_t at = 0; at < type->memberCount; ++at )
            EXPECT_FALSE( sipsnSchemaMemberAt( type, at )->optional && sipsnSchemaHas( made.Get(), at ) );
        for( Value &value : values ) {
            if( value.object && value.object->sort != none->sort ) continue;
            Value good{ INT64_MIN, value.object ? Retained( none.Get() ) : ObjPtr{} };
            std::swap( good, value );
            EXPECT_THAT( AbortOf( [ & ] { Create( type, values ); } ), HasSubstr( "Ok( " ) );
            std::swap( good, value );
        }
    } );
}

// A setter without a row above would be seen here.
TEST( SipsnMember, EverySetterIsVisited )
{
    std::set< std::string > visited;
    ForEveryPair( [ & ]( const Pair &pair ) {
        for( const Accessors &member : pair.members ) visited.insert( member.prefix + "Set" + member.name );
    } );
    for( const std::string &name : ExportsBetween( "sipsn", "" ) ) {
        const size_t set = name.find( "Set" );
        if( set == name.npos || name.ends_with( "At" ) ) continue;
        const bool byName   = name.ends_with( "SetHeader" ) || name.ends_with( "SetParam" );
        const bool isSetter = Exported< void >( "sipsn" + name.substr( 0, set ) + name.substr( set + 3 ) );
        EXPECT_EQ( visited.contains( "sipsn" + name ), isSetter && !byName ) << name;
    }
}

// ---- The schema ------------------------------------------------------------------------------------

// Line ends in a Diversion's contents: a setter takes them, and the schema does not.
bool IsForSettersOnly( const Accessors &member, const Value &value )
{
    const std::string text = value.Text();
    return member.prefix == "sipsnDiversion" && text.find( '\n' ) != text.npos && member.name != "Iri" &&
           member.name != "DisplayName";
}

TEST( SipsnSchema, TakesWhatTheSetterTakes )
{
    ForEveryDescribedType( []( const SipsnSchemaType *type ) {
        const ObjPtr a      = Filled( type, 0 );
        const auto   before = MembersOf( a.Get() );
        for( int64_t at = 0; at < type->memberCount; ++at ) {
            const SipsnSchemaMember *shown = sipsnSchemaMemberAt( type, at );
            const Accessors          member{ PrefixOf( type ), FunctionName( shown ), shown->kind };
            if( !member.Exist() ) continue;
            SCOPED_TRACE( shown->name );
            for( const Value &value : Candidates( shown ) ) {
                SCOPED_TRACE( value.Text() );
                ObjPtr     bySchema = Retained( a.Get() ), bySetter = Retained( a.Get() );
                const auto set = [ & ] { member.Set( bySetter.Slot(), value ); };
                if( TrySet( bySchema, at, value ) ) {
                    set();
                    if( member.name == "ContentCodingsVector" ) continue; // its setter keeps the letter case
                    EXPECT_EQ( MembersOf( bySchema.Get() ), MembersOf( bySetter.Get() ) );
                    EXPECT_EQ( SchemaValue( bySchema.Get(), at ).Text(), member.Get( bySetter.Get() ).Text() );
                } else {
                    EXPECT_EQ( bySchema.Get(), a.Get() );
                    EXPECT_THAT( AbortOf( set ),
                                 IsForSettersOnly( member, value ) ? testing::StrEq( "" ) : RefusalBy( member ) );
                }
                EXPECT_EQ( MembersOf( a.Get() ), before );
            }
            ObjPtr other = Retained( a.Get() );
            EXPECT_TRUE( IsNumber( shown->kind ) || !TrySet( other, at, {} ) );
            EXPECT_TRUE( IsNumber( shown->kind ) || !TrySet( other, at, { -1, Retained( a.Get() ) } ) );
            EXPECT_EQ( other.Get(), a.Get() );
        }
    } );
}

TEST( SipsnSchema, DeletesWhatIsOptional )
{
    ForEveryDescribedType( []( const SipsnSchemaType *type ) {
        const ObjPtr a      = Filled( type, 0 );
        const auto   before = MembersOf( a.Get() );
        for( int64_t at = 0; at < type->memberCount; ++at ) {
            const SipsnSchemaMember *shown = sipsnSchemaMemberAt( type, at );
            const Accessors          member{ PrefixOf( type ), FunctionName( shown ), shown->kind };
            SCOPED_TRACE( shown->name );
            EXPECT_EQ( sipsnSchemaMemberIndex( type, shown->name ), at );
            ObjPtr     bySchema = Retained( a.Get() ), bySetter = Retained( a.Get() );
            const bool present = sipsnSchemaHas( a.Get(), at );
            ASSERT_EQ( sipsnSchemaTryDel( bySchema.Slot(), at ), shown->optional );
            EXPECT_EQ( sipsnSchemaHas( bySchema.Get(), at ), !shown->optional );
            EXPECT_EQ( MembersOf( a.Get() ), before );
            EXPECT_TRUE( !member.has || member.has( a.Get() ) == present );
            EXPECT_FALSE( member.has && shown->optional && member.has( bySchema.Get() ) );
            if( !member.del ) continue;
            member.del( bySetter.Slot() );
            EXPECT_EQ( MembersOf( bySchema.Get() ), MembersOf( bySetter.Get() ) );
        }
    } );
}

TEST( SipsnSchema, MakesAnEqualObjectOfMembers )
{
    ForEveryDescribedType( []( const SipsnSchemaType *type ) {
        const ObjPtr a = Filled( type, 0 );
        ObjPtr       made{ sipsnSchemaCreate( type ) };
        EXPECT_EQ( sipsnSchemaTypeOf( made.Get() ), type );
        EXPECT_EQ( sipsnSchemaTypeByName( type->name ), type );
        for( int64_t at = 0; at < type->memberCount; ++at ) {
            if( !sipsnSchemaHas( a.Get(), at ) ) continue;
            const bool isRequired = !sipsnSchemaHas( made.Get(), at ) && !MemberOf( made.Get(), at )->optional;
            EXPECT_FALSE( isRequired && sipsnSchemaComplete( made.Get() ) );
            EXPECT_TRUE( TrySet( made, at, SchemaValue( a.Get(), at ) ) );
        }
        EXPECT_TRUE( sipsnSchemaComplete( made.Get() ) );
        EXPECT_EQ( pbObjCompare( made.Get(), a.Get() ), 0 );
        EXPECT_EQ( TextOf( made.Get() ), TextOf( a.Get() ) );
    } );
}

// ---- Comparison ------------------------------------------------------------------------------------

int Sign( int64_t number ) { return ( number > 0 ) - ( number < 0 ); }

int SignOf( const Value &a, const Value &b )
{
    if( a.object && b.object ) return Sign( pbObjCompare( a.object.Get(), b.object.Get() ) );
    return Sign( a.object ? 1 : b.object ? -1 : a.number < b.number ? -1 : a.number > b.number );
}

// Objects that differ in one of these alone are equal.
bool IsCompared( const SipsnSchemaType *type, int64_t member )
{
    const std::string name = sipsnSchemaMemberAt( type, member )->name;
    return !name.starts_with( "rport" ) && name != "sipSrc" && name != "sipSrs";
}

// The first member that differs decides, in the order of the schema; an absent one comes first.
TEST( SipsnMember, ObjectsCompareMemberByMember )
{
    ForEveryDescribedType( []( const SipsnSchemaType *type ) {
        const ObjPtr          a = Filled( type, 0 ), b = Filled( type, 1 );
        std::vector< ObjPtr > changed; // the n-th has the member of b in the place of that of a
        std::vector< int >    order;   // and compares to a like this
        for( int64_t at = 0; at < type->memberCount; ++at ) {
            SCOPED_TRACE( sipsnSchemaMemberAt( type, at )->name );
            changed.push_back( Retained( a.Get() ) );
            ASSERT_TRUE( TrySet( changed.back(), at, SchemaValue( b.Get(), at ) ) );
            const int sign = SignOf( SchemaValue( b.Get(), at ), SchemaValue( a.Get(), at ) );
            order.push_back( IsCompared( type, at ) ? sign : 0 );
            EXPECT_EQ( Sign( pbObjCompare( changed.back().Get(), a.Get() ) ), order.back() );

            ObjPtr     without = Retained( a.Get() );
            const bool gone    = sipsnSchemaTryDel( without.Slot(), at ) && sipsnSchemaHas( a.Get(), at );
            EXPECT_EQ( Sign( pbObjCompare( without.Get(), a.Get() ) ), gone && IsCompared( type, at ) ? -1 : 0 );
            for( size_t first = 0; first + 1 < changed.size(); ++first )
                EXPECT_EQ( Sign( pbObjCompare( changed[ first ].Get(), changed.back().Get() ) ),
                           order[ first ] ? order[ first ] : -order.back() );
        }
    } );
}

} // namespace
