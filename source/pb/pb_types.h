/* The words that all public headers are written with: export and linkage marks, the basic types, and what
 * every object type declares. C11 and C++. */
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
typedef struct PbString       PbString;
typedef struct PbModule       PbModule;
typedef struct PbModuleRecord PbModuleRecord;

/* TYPE( SipsnReason ) declares a type and its standard functions, which ./dev lists writes out in the type's header:
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
 * The tenth, Create, takes the type's mandatory values, so each type declares its own. CreateFrom, Retain, Release,
 * ToString and Compare abort on null; From aborts on an object of another sort.
 *
 * OBJECT declares the same for a type that is not copied: all but CreateFrom. */

#endif
