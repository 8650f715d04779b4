/* Objects: reference-counted values described by a sort, and the abort that misuse ends in.
 *
 * An object is created with one reference. A function that returns an object returns a new reference that the
 * caller releases; an argument's reference stays with the caller. Counts change atomically, so shared objects may be
 * retained, released and read from several threads at once. */
#ifndef PB_OBJ_H
#define PB_OBJ_H

#include "pb_types.h"

PB_BEGIN_DECLS

/* The sort of an object; its name, such as "PB_STRING". Null aborts. */
PB_API PbSort     *pbObjSort( PbObj *obj );
PB_API const char *pbSortName( PbSort *sort );

/* Any object as such. Null aborts. */
PB_API PbObj *pbObjRetain( PbObj *obj );
PB_API void   pbObjRelease( PbObj *obj );

/* Orders two objects: negative, 0 or positive. Objects of one sort are compared by the sort's hook, or by address
 * when it has none; objects of different sorts by the names of their sorts. Null aborts. */
PB_API int64_t pbObjCompare( PbObj *a, PbObj *b );

/* The object's text as a new string: what the sort's hook makes, or the sort's name when it has none. */
PB_API PbString *pbObjToString( PbObj *obj );

/* A block of `size` bytes, at least that of the object header, with a count of 1. The rest is not initialised. */
PB_API PbObj *pb___ObjCreate( int64_t size, PbSort *sort );

/* Runs the sort's free hook and returns the memory; called when the count has dropped to 0. */
PB_API void pb___ObjFree( PbObj *obj );

/* Prints one line on standard error and calls abort():
 *
 *     source/sipsn/sipsn_accept:41: condition "accept" failed
 *     source/sipsn/sipsn_accept:27: condition "obj" failed (stdfunc retain)
 *
 * which is the file, the line, the condition as it stands in the check and, unless null, the context. */
PB_NORETURN PB_API __attribute__( ( cold ) ) void pb___Abort( const char *context, const char *file, int line,
                                                              const char *condition );

PB_END_DECLS
#endif
