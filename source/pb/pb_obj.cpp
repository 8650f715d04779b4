// What all objects have in common: their memory, order and text, and the abort.
#include "pb_obj.h"

#include "pb_block.h"
#include "pb_internal.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

PbSort *pbObjSort( PbObj *obj )
{
    PB_ASSERT( obj );
    return obj->sort;
}

const char *pbSortName( PbSort *sort )
{
    PB_ASSERT( sort );
    return sort->name;
}

PbObj *pbObjRetain( PbObj *obj )
{
    PB_ASSERT( obj );
    return pb::Retain( obj );
}

void pbObjRelease( PbObj *obj )
{
    PB_ASSERT( obj );
    pb::Release( obj );
}

int64_t pbObjCompare( PbObj *a, PbObj *b )
{
    PB_ASSERT( a );
    PB_ASSERT( b );
    if( a == b ) return 0;
    if( a->sort != b->sort ) return std::strcmp( a->sort->name, b->sort->name );
    if( a->sort->compare ) return a->sort->compare( a, b );
    return reinterpret_cast< uintptr_t >( a ) < reinterpret_cast< uintptr_t >( b ) ? -1 : 1;
}

PbString *pbObjToString( PbObj *obj )
{
    PB_ASSERT( obj );
    return obj->sort->toString ? obj->sort->toString( obj ) : pbStringCreateFromCstr( obj->sort->name, -1 );
}

PbObj *pb___ObjCreate( int64_t size, PbSort *sort )
{
    PB_ASSERT( size >= int64_t( sizeof( PbObj ) ) );
    PB_ASSERT( sort );
    return pb::CreateObject( size, sort );
}

void pb___ObjFree( PbObj *obj )
{
    PB_ASSERT( obj );
    if( obj->sort != &pb___sort_PB_STRING ) obj->sort->free( obj ); // half of all objects, and nothing to release
    pb::FreeBlock( obj, obj->blockClass );
}

[[gnu::noinline]] void pb___Abort( const char *context, const char *file, int line, const char *condition )
{
    if( context )
        std::fprintf( stderr, "%s:%d: condition \"%s\" failed (%s)\n", file, line, condition, context );
    else
        std::fprintf( stderr, "%s:%d: condition \"%s\" failed\n", file, line, condition );
    std::abort();
}
