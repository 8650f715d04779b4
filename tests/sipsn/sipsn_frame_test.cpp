// What all types have in common, for every type that the library exports: the standard functions, their aborts, copies,
// sort records, and members that are gone after the last release.
#include "exports.h"
#include "message_text.h"

#include "pb/pb_block.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <bit>
#include <cctype>
#include <cstring>
#include <map>

namespace {

using testing::AllOf;
using testing::HasSubstr;

// ---- How large objects are -------------------------------------------------------------------------

thread_local bool             recordsSizes = false;
std::map< PbSort *, int64_t > sizes;

} // namespace

// Stands before the function of pb: tells the size of what is created, and clears what lies between the members, so
// that objects can be compared byte by byte.
extern "C" PbObj *pb___ObjCreate( int64_t size, PbSort *sort )
{
    static const auto create = reinterpret_cast< decltype( &pb___ObjCreate ) >( dlsym( RTLD_NEXT, "pb___ObjCreate" ) );
    PbObj            *obj    = create( size, sort );
    if( recordsSizes ) {
        sizes[ sort ] = size;
        std::memset( obj + 1, 0, size_t( size ) - sizeof( PbObj ) );
    }
    return obj;
}

namespace {

// ---- Types -----------------------------------------------------------------------------------------

struct Type
{
    explicit Type( const std::string &name_, const char *module_ = "sipsn" ) : module{ module_ }, name{ name_ } {}

    template< class F > F *Function( const char *operation ) const
    {
        return Exported< F >( module + name + operation );
    }

    std::string module;
    std::string name; // "HeaderVia"

    using Unary                  = PbObj *( PbObj                  *);
    using Binary                 = int64_t( PbObj *, PbObj                 *);
    Unary *createFrom            = Function< Unary >( "CreateFrom" ); // null for the one type that cannot be copied
    Unary *retain                = Function< Unary >( "Retain" );
    void ( *release )( PbObj * ) = Function< void( PbObj * ) >( "Release" );
    Unary *obj                   = Function< Unary >( "Obj" );
    Unary *from                  = Function< Unary >( "From" );
    PbSort *( *sort )()          = Function< PbSort *() >( "Sort" );
    PbString *( *toString )( PbObj * )   = Function< PbString *( PbObj   *) >( "ToString" );
    Binary *compare                      = Function< Binary >( "Compare" );
    bool ( *equals )( PbObj *, PbObj * ) = Function< bool( PbObj *, PbObj * ) >( "Equals" );

    // "SIPSN_HEADER_VIA"
    std::string SortName() const
    {
        std::string sortName = "SIPSN";
        for( char ch : name ) {
            if( std::isupper( ch ) ) sortName += '_';
            sortName += char( std::toupper( ch ) );
        }
        return sortName;
    }

    // "source/sipsn/sipsn_header_via"
    std::string File() const
    {
        std::string file = SortName();
        std::ranges::transform( file, file.begin(), []( char ch ) { return char( std::tolower( ch ) ); } );
        return "source/sipsn/" + file;
    }
};

// Those whose sort function is exported.
const std::vector< Type > &Types()
{
    static const auto types = [] {
        std::vector< Type > found;
        for( const std::string &name : ExportsBetween( "sipsn", "Sort" ) ) found.emplace_back( name );
        return found;
    }();
    return types;
}

// ---- Samples ---------------------------------------------------------------------------------------

struct Sample
{
    const char *type;
    const char *text; // canonical; a header's with its name; null when the text is the name of the sort
    PbObj *( *make )( const Sample &sample );
};

PbObj *Value( const Sample &sample )
{
    const auto tryDecode =
        Exported< PbObj *( const PbChar *, int64_t ) >( "sipsn___" + std::string{ sample.type } + "TryDecode" );
    const auto chs = Chars( sample.text );
    return tryDecode ? tryDecode( chs.data(), int64_t( chs.size() ) ) : nullptr;
}

PbObj *Field( const Sample &sample )
{
    const std::string_view text  = sample.text;
    const size_t           colon = text.find( ": " );
    pb::Ref                field{ sipsnMessageHeaderCreateCstr( text.data(), int64_t( colon ) ) };
    sipsnMessageHeaderAppendLineCstr( field.Slot(), text.data() + colon + 2, -1 );
    return sipsnMessageHeaderObj( field.Detach() );
}

PbObj *Header( const Sample &sample )
{
    const auto tryDecode = Exported< PbObj *( PbObj * ) >( "sipsn" + std::string{ sample.type } + "TryDecode" );
    pb::Ref    field{ Field( sample ) };
    return tryDecode ? tryDecode( field.Get() ) : nullptr;
}

constexpr char wire[] = "OPTIONS sip:bob@example.com SIP/2.0\r\nCall-Id: a\r\nContent-Length: 1\r\n\r\nx";

PbObj *WholeMessage( const Sample & ) { return sipsnMessageObj( Message( wire ).Detach() ); }
PbObj *WholeFragment( const Sample & ) { return sipsnMessageFragmentObj( Fragment( wire ).Detach() ); }
PbObj *Stream( const Sample & )
{
    pb::Ref decoder{ sipsnMessageStreamDecoderCreate() };
    sipsnMessageStreamDecoderWrite( decoder.Get(), Bytes( wire ).Get() );
    return sipsnMessageStreamDecoderObj( decoder.Detach() );
}

constexpr Sample samples[] = {
#define HEADER( Type, example ) { "Header" #Type, example, Header },
#define VALUE( Type, example )  { #Type, example, Value },
#define OBJECT( Type )
#include "sipsn/sipsn_types.inc"
    { "Message", nullptr, WholeMessage },
    { "MessageFragment", nullptr, WholeFragment },
    { "MessageHeader", "Subject: a b", Field },
    { "MessageStreamDecoder", nullptr, Stream },
    { "Version", "SIP/3.1", Value },
};

// Calls check( type, sample, object ) for every type.
template< class Check > void ForEveryType( Check check )
{
    ASSERT_GT( Types().size(), 70u );
    for( const Type &type : Types() ) {
        SCOPED_TRACE( type.name );
        const Sample *sample = std::ranges::find( samples, type.name, &Sample::type );
        if( sample == std::end( samples ) ) {
            ADD_FAILURE() << "has no sample";
            continue;
        }
        pb::Ref object{ sample->make( *sample ) };
        if( !object )
            ADD_FAILURE() << "the sample does not decode: " << sample->text;
        else
            check( type, *sample, object );
    }
}

// ---- Members ---------------------------------------------------------------------------------------

// What follows the object header.
std::vector< uintptr_t > Words( const volatile void *object, PbSort *sort )
{
    const auto words = static_cast< const volatile uintptr_t * >( object ) + sizeof( PbObj ) / sizeof( uintptr_t );
    return { words, words + ( size_t( sizes[ sort ] ) - sizeof( PbObj ) ) / sizeof( uintptr_t ) };
}

// The numbers of the samples are smaller than any address; a flag that stands first in its word is smaller, or in the
// other byte order larger.
bool IsObject( uint64_t word ) { return word > UINT32_MAX && std::countl_zero( word ) >= 8; }

// A further object of the type, whose size is known afterwards.
PbObj *MakeAnother( const Type &type, const Sample &sample, PbObj *object )
{
    recordsSizes   = true;
    PbObj *another = type.createFrom ? type.createFrom( object ) : sample.make( sample );
    recordsSizes   = false;
    return another;
}

// ---- Tests -----------------------------------------------------------------------------------------

const auto checkReferences = []( const Type &type, const Sample &, pb::Ref< PbObj > &object ) {
    EXPECT_EQ( object->count, 1u );
    EXPECT_EQ( type.retain( object.Get() ), object.Get() );
    EXPECT_EQ( object->count, 2u );
    EXPECT_EQ( type.obj( object.Get() ), object.Get() );
    EXPECT_EQ( type.from( object.Get() ), object.Get() );
    EXPECT_EQ( type.from( nullptr ), nullptr );
    EXPECT_EQ( type.compare( object.Get(), object.Get() ), 0 );
    EXPECT_TRUE( type.equals( object.Get(), object.Get() ) );
    EXPECT_EQ( object->count, 2u );
    type.release( object.Get() );
    EXPECT_EQ( object->count, 1u );
};

TEST( SipsnFrame, ReferencesAreCounted )
{
    ForEveryType( checkReferences );

    const std::pair< const char *, const char * > base[] = { { "pb", "Buffer" }, { "pb", "Dict" },   { "pb", "Store" },
                                                             { "pb", "String" }, { "pb", "Vector" }, { "pb", "Time" },
                                                             { "in", "Address" } };
    for( const auto &[ module, name ] : base ) {
        const Type type{ name, module };
        SCOPED_TRACE( module + type.name );
        pb::Ref object{ type.name == "Address" ? inAddressObj( inAddressTryCreateFromChars( Chars( "::1" ).data(), 3 ) )
                        : type.name == "String" ? pbStringObj( pbStringCreateFromCstr( "text", -1 ) )
                                                : type.Function< PbObj *() >( "Create" )() };
        checkReferences( type, {}, object );
        EXPECT_EQ( type.sort(), object->sort );
        EXPECT_TRUE( type.equals( pb::Ref{ type.createFrom( object.Get() ) }.Get(), object.Get() ) );
        EXPECT_TRUE( pb::Ref{ type.toString( object.Get() ) } );
    }
}

TEST( SipsnFrame, TheTextIsTheEncodedOne )
{
    ForEveryType( []( const Type &type, const Sample &sample, pb::Ref< PbObj > &object ) {
        std::string expected = sample.text ? sample.text : type.SortName();
        if( sample.make == Header ) expected.erase( 0, expected.find( ": " ) + 2 );
        EXPECT_EQ( Take( type.toString( object.Get() ) ), expected );
        EXPECT_EQ( object->count, 1u );
        if( sample.make != Value ) return;
        const auto encode = Exported< PbString *( PbObj * ) >( "sipsn___" + type.name + "Encode" );
        ASSERT_TRUE( encode );
        EXPECT_EQ( Take( encode( object.Get() ) ), expected );
    } );
}

TEST( SipsnFrame, ACopySharesTheMembers )
{
    ForEveryType( []( const Type &type, const Sample &sample, pb::Ref< PbObj > &object ) {
        if( !type.createFrom ) {
            EXPECT_EQ( type.name, "MessageStreamDecoder" );
            return;
        }
        object             = pb::Ref{ MakeAnother( type, sample, object.Get() ) }; // clear between its members
        const auto members = Words( object.Get(), type.sort() );
        const auto count   = []( uintptr_t word ) { return reinterpret_cast< PbObj   *>( word )->count; };

        std::vector< uint32_t > counts;
        for( uintptr_t word : members ) counts.push_back( IsObject( word ) ? count( word ) : 0 );
        pb::Ref copy{ MakeAnother( type, sample, object.Get() ) };
        EXPECT_NE( copy.Get(), object.Get() );
        EXPECT_EQ( copy->count, 1u );
        EXPECT_EQ( copy->sort, type.sort() );
        EXPECT_EQ( Words( copy.Get(), type.sort() ), members );
        for( size_t n = 0; n < members.size(); ++n ) {
            if( !IsObject( members[ n ] ) ) continue;
            if( counts[ n ] >= pb::uncounted ) continue;
            EXPECT_EQ( count( members[ n ] ), counts[ n ] + std::ranges::count( members, members[ n ] ) ) << n;
        }
        if( sample.text ) {
            EXPECT_EQ( type.compare( copy.Get(), object.Get() ), 0 );
        }
    } );
}

// The memory of the last object that was released is at the head of a list that its first word makes.
TEST( SipsnFrame, MembersAreAllOnesAfterTheLastRelease )
{
#if PB_KEEP_BLOCKS
    ForEveryType( []( const Type &type, const Sample &sample, pb::Ref< PbObj > &object ) {
        pb::Ref                 another{ MakeAnother( type, sample, object.Get() ) };
        const auto              members = Words( another.Get(), type.sort() );
        const volatile uint8_t *block   = reinterpret_cast< uint8_t   *>( another.Get() );
        ASSERT_NE( another->blockClass, 0u ) << "its memory goes to the C library";
        type.release( another.Detach() );
        const auto remains = Words( block, type.sort() );
        for( size_t n = 0; n < members.size(); ++n ) {
            if( !IsObject( members[ n ] ) ) continue;
            EXPECT_EQ( remains[ n ], UINTPTR_MAX ) << "word " << n;
        }
    } );
#else
    GTEST_SKIP() << "sanitizers do not let freed memory be read";
#endif
}

TEST( SipsnFrame, SortRecordsLieInOneSectionWithoutGaps )
{
    std::vector< PbSort * > sorts;
    for( const Type &type : Types() ) {
        sorts.push_back( type.sort() );
        EXPECT_EQ( type.SortName(), pbSortName( type.sort() ) );
        EXPECT_EQ( Exported< PbSort >( "sipsn___sort_" + type.SortName() ), type.sort() );
    }
    std::ranges::sort( sorts );
    for( size_t n = 1; n < sorts.size(); ++n )
        EXPECT_EQ( sorts[ n ] - sorts[ n - 1 ], 1 ) << pbSortName( sorts[ n - 1 ] ) << ", " << pbSortName( sorts[ n ] );
}

TEST( SipsnFrameDeathTest, MisuseAborts )
{
    pb::Ref foreign{ pb::AsObj( Str( "x" ).Detach() ) };
    ForEveryType( [ & ]( const Type &type, const Sample &, pb::Ref< PbObj > &object ) {
        const auto fails = [ & ]( const std::string &condition, const std::string &context ) {
            return AllOf( HasSubstr( type.File() + ":" ),
                          HasSubstr( "condition \"" + condition + "\" failed" + context + "\n" ) );
        };
        const std::string isSort = "!obj || pbObjSort(obj)==&sipsn___sort_" + type.SortName();
        EXPECT_DEATH( type.retain( nullptr ), fails( "obj", " (stdfunc retain)" ) );
        EXPECT_DEATH( type.release( nullptr ), fails( "obj", " (stdfunc release)" ) );
        EXPECT_DEATH( type.from( foreign.Get() ), fails( isSort, " (stdfunc from)" ) );
        EXPECT_DEATH( type.toString( nullptr ), fails( "obj", " (stdfunc tostring)" ) );
        EXPECT_DEATH( type.compare( nullptr, object.Get() ), fails( "objA", " (stdfunc compare a)" ) );
        EXPECT_DEATH( type.compare( object.Get(), nullptr ), fails( "objB", " (stdfunc compare b)" ) );
        if( type.createFrom ) {
            EXPECT_DEATH( type.createFrom( nullptr ), fails( "source", "" ) );
        }
    } );
}

} // namespace
