/* The words that all public headers are written with: export and linkage marks, the basic types, and the
 * declaration of an object type. C11 and C++. */
#ifndef PB_TYPES_H
#define PB_TYPES_H

#include <stdarg.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#include <wchar.h>

#define PB_API __attribute__( ( visibility( "default" ) ) )

#ifdef __cplusplus
#define PB_BEGIN_DECLS extern "C" {
#define PB_END_DECLS   }
#define PB_NORETURN    [[noreturn]]
#else
#define PB_BEGIN_DECLS
#define PB_END_DECLS
#define PB_NORETURN _Noreturn
#endif

#define PB_FALSE false
#define PB_TRUE  true

typedef int32_t PbChar; /* a Unicode code point */
typedef uint8_t PbByte;

/* Whether a character is a code point, 0 to 0x10FFFF. */
#define PB_CHAR_OK( ch ) ( (uint32_t)( ch ) <= 0x10FFFFu )

typedef struct PbObj          PbObj;
typedef struct PbSort         PbSort;
typedef struct PbModule       PbModule;
typedef struct PbModuleRecord PbModuleRecord;

/* PB_DECLARE_TYPE( SipsnReason, sipsnReason ) declares a type and its standard functions:
 *
 *     typedef struct SipsnReason SipsnReason;
 *
 *     SipsnReason *sipsnReasonCreateFrom( SipsnReason *source );   -- new object sharing every member
 *     SipsnReason *sipsnReasonRetain( SipsnReason *obj );          -- returns obj
 *     void         sipsnReasonRelease( SipsnReason *obj );
 *     PbObj       *sipsnReasonObj( SipsnReason *obj );             -- upcast, null passes
 *     SipsnReason *sipsnReasonFrom( PbObj *obj );                  -- checked downcast, null passes
 *     PbSort      *sipsnReasonSort( void );
 *     PbString    *sipsnReasonToString( SipsnReason *obj );        -- new reference
 *     int64_t      sipsnReasonCompare( SipsnReason *a, SipsnReason *b );   -- negative, 0 or positive
 *     bool         sipsnReasonEquals( SipsnReason *a, SipsnReason *b );
 *
 * The tenth, Create, takes the type's mandatory values, so each type declares its own. CreateFrom, Retain,
 * Release, ToString and Compare abort on null; From aborts on an object of another sort. */
#define PB_DECLARE_TYPE( Type, prefix )                                                                                \
    PB_DECLARE_OBJECT( Type, prefix )                                                                                  \
    PB_API Type *prefix##CreateFrom( Type *source );

/* The same for a type that is not copied: all but CreateFrom. */
#define PB_DECLARE_OBJECT( Type, prefix )                                                                              \
    typedef struct Type     Type;                                                                                      \
    PB_API Type            *prefix##Retain( Type *obj );                                                               \
    PB_API void             prefix##Release( Type *obj );                                                              \
    PB_API PbObj           *prefix##Obj( Type *obj );                                                                  \
    PB_API Type            *prefix##From( PbObj *obj );                                                                \
    PB_API PbSort          *prefix##Sort( void );                                                                      \
    PB_API struct PbString *prefix##ToString( Type *obj );                                                             \
    PB_API int64_t          prefix##Compare( Type *a, Type *b );                                                       \
    PB_API bool             prefix##Equals( Type *a, Type *b );

#endif
