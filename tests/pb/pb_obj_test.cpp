// Objects: counts, casts, order and text without hooks, and what an abort prints.
#include "pb/pb_obj.h"

#include "pb/pb_internal.h"
#include "text.h"

#include <thread>
#include <vector>

namespace {

int64_t freed;

void CountFree( PbObj * ) { ++freed; }

PbSort PlainSort( const char *name )
{
    return { .header   = {},
             .module   = nullptr,
             .name     = name,
             .free     = CountFree,
             .compare  = nullptr,
             .toString = nullptr,
             .reserved = {} };
}

PbSort apple = PlainSort( "APPLE" );
PbSort pear  = PlainSort( "PEAR" );

pb::Ref< PbObj > Plain( PbSort &sort ) { return pb::Ref{ pb___ObjCreate( sizeof( PbObj ), &sort ) }; }

TEST( Obj, IsFreedOnceByItsLastRelease )
{
    freed      = 0;
    PbObj *obj = pb___ObjCreate( sizeof( PbObj ), &apple );
    EXPECT_EQ( pbObjRetain( obj ), obj );
    EXPECT_EQ( obj->count, 2u );
    pbObjRelease( obj );
    EXPECT_EQ( freed, 0 );
    pbObjRelease( obj );
    EXPECT_EQ( freed, 1 );
}

TEST( Obj, KeepsItsCountAcrossThreads )
{
    freed      = 0;
    PbObj *obj = pb___ObjCreate( sizeof( PbObj ), &apple );

    std::vector< std::thread > threads;
    for( int thread = 0; thread < 4; ++thread )
        threads.emplace_back( [ held = pbObjRetain( obj ) ] {
            for( int i = 0; i < 10'000; ++i ) pbObjRelease( pbObjRetain( held ) );
            pbObjRelease( held );
        } );
    for( std::thread &thread : threads ) thread.join();
    EXPECT_EQ( obj->count, 1u );
    EXPECT_EQ( freed, 0 );
    pbObjRelease( obj );
}

TEST( Obj, OfTwoSortsIsOrderedByTheirNames )
{
    auto a = Plain( pear );
    auto b = Plain( apple );
    EXPECT_GT( pbObjCompare( a.Get(), b.Get() ), 0 );
    EXPECT_LT( pbObjCompare( b.Get(), a.Get() ), 0 );
    EXPECT_STREQ( pbSortName( pbObjSort( a.Get() ) ), "PEAR" );
}

TEST( Obj, WithoutHooksIsOrderedByAddressAndNamedAfterItsSort )
{
    auto       a      = Plain( apple );
    auto       b      = Plain( apple );
    const bool aFirst = reinterpret_cast< uintptr_t >( a.Get() ) < reinterpret_cast< uintptr_t >( b.Get() );
    EXPECT_EQ( pbObjCompare( a.Get(), b.Get() ) < 0, aFirst );
    EXPECT_EQ( pbObjCompare( b.Get(), a.Get() ) < 0, !aFirst );
    EXPECT_EQ( pbObjCompare( a.Get(), a.Get() ), 0 );
    EXPECT_EQ( Take( pbObjToString( a.Get() ) ), "APPLE" );
}

TEST( Obj, CastsOnlyToItsSort )
{
    EXPECT_EQ( pbStringFrom( nullptr ), nullptr );
    auto string = Str( "x" );
    EXPECT_EQ( pbStringFrom( pbStringObj( string.Get() ) ), string.Get() );
    auto other = Plain( apple );
    EXPECT_DEATH(
        pbStringFrom( other.Get() ),
        "^source/pb/pb_string:[0-9]+: condition \"!obj \\|\\| pbObjSort\\(obj\\)==&pb___sort_PB_STRING\" failed "
        "\\(stdfunc from\\)\n$" );
}

TEST( Obj, AbortsInOneLine )
{
    EXPECT_DEATH( pb___Abort( nullptr, "source/sipsn/sipsn_accept", 41, "accept" ),
                  "^source/sipsn/sipsn_accept:41: condition \"accept\" failed\n$" );
    EXPECT_DEATH( pb___Abort( "stdfunc retain", "source/sipsn/sipsn_accept", 27, "obj" ),
                  "^source/sipsn/sipsn_accept:27: condition \"obj\" failed \\(stdfunc retain\\)\n$" );
}

TEST( ObjDeathTest, MisuseAborts )
{
    auto obj = Plain( apple );
    EXPECT_ABORT( "obj", pbObjSort( nullptr ) );
    EXPECT_ABORT( "obj", pbObjRetain( nullptr ) );
    EXPECT_ABORT( "obj", pbObjRelease( nullptr ) );
    EXPECT_ABORT( "obj", pbObjToString( nullptr ) );
    EXPECT_ABORT( "sort", pbSortName( nullptr ) );
    EXPECT_ABORT( "a", pbObjCompare( nullptr, obj.Get() ) );
    EXPECT_ABORT( "b", pbObjCompare( obj.Get(), nullptr ) );
    EXPECT_ABORT( "size >= int64_t( sizeof( PbObj ) )", pb___ObjCreate( sizeof( PbObj ) - 1, &apple ) );
}

TEST( MemDeathTest, RefusesWhatCannotBe )
{
    EXPECT_ABORT( "count >= 0", pbMemAllocN( -1, 1 ) );
    EXPECT_ABORT( "size >= 0", pbMemAllocN( 1, -1 ) );
    EXPECT_ABORT( "representable", pbMemAllocN( INT64_MAX / 2, 3 ) );
    void *none = pbMemAllocN( 0, 8 );
    EXPECT_NE( none, nullptr );
    pbMemFree( pbMemReallocN( none, 0, 0 ) );
    pbMemFree( nullptr );
}

} // namespace
