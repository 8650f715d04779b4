// The `pb___` operations that the libraries on pb use beside the public ones: they hand over references instead of
// copying them, and borrow instead of retaining. Exported, but no part of the public interface; never installed.
#pragma once

#include "pb_frame.h"

PB_BEGIN_DECLS

typedef struct PbBuffer PbBuffer;
typedef struct PbDict   PbDict;
typedef struct PbVector PbVector;

PB_API extern PbModule             pb___module;
PB_API extern const PbModuleRecord pb___module_record;
PB_API extern const char *const    pb___module_version_string;

// A string of `length` characters that the caller writes to `chs` before anybody else sees it.
PB_API PbString *pb___StringCreateUninitialized( int64_t length );

// The bytes as a string; null when they are not well-formed UTF-8 (strict).
PB_API PbString *pb___StringTryCreateFromUtf8( const PbByte *bytes, int64_t length );

// Appends the bytes to a string; false, with the string unchanged, when they are not well-formed UTF-8.
PB_API bool pb___StringTryAppendUtf8( PbString **string, const PbByte *bytes, int64_t length );

// An empty vector with room for `capacity` elements.
PB_API PbVector *pb___VectorCreateWithCapacity( int64_t capacity );

// Takes over the caller's reference.
PB_API void pb___VectorAppendOwned( PbVector **vector, PbObj *owned );

// The element at an index, without a reference of its own: valid while the vector is unchanged and referenced.
PB_API PbObj *pb___VectorPeek( PbVector *vector, int64_t index );

// All elements, one behind the other, in the same way.
PB_API PbObj *const *pb___VectorPeekAll( PbVector *vector );

// An empty dictionary with room for `capacity` entries.
PB_API PbDict *pb___DictCreateWithCapacity( int64_t capacity );

// Takes over the caller's references of key and value.
PB_API void pb___DictSetOwned( PbDict **dict, PbString *key, PbObj *value );

// The same for a key that comes after all that are there.
PB_API void pb___DictAppendOwned( PbDict **dict, PbString *key, PbObj *value );

// Values and keys without references of their own; null when the key is absent.
PB_API PbObj    *pb___DictPeek( PbDict *dict, PbString *key );
PB_API PbObj    *pb___DictPeekValueAt( PbDict *dict, int64_t index );
PB_API PbString *pb___DictPeekKeyAt( PbDict *dict, int64_t index );

// Hands over every value in the order of the keys, without a reference of its own, in linear time. The dictionary must
// not change meanwhile.
PB_API void pb___DictVisitValues( PbDict *dict, void ( *visit )( void *context, PbObj *value ), void *context );

// The place that holds the value of a present key, in a dictionary made unique; null when the key is absent. What
// stands there may be replaced by another owned object; it must not be null afterwards.
PB_API PbObj **pb___DictSlot( PbDict **dict, PbString *key );

// A buffer of `length` bytes, which the caller writes to *bytes before anybody else sees it.
PB_API PbBuffer *pb___BufferCreateUninitialized( int64_t length, PbByte **bytes );

PB_END_DECLS

namespace pb {

// Gives an object that nobody shares a block of another size, `count` items of `size` bytes; its address may change.
template< class T > void Reallocate( T *&object, int64_t count, int64_t size )
{
    object = static_cast< T * >( pbMemReallocN( object, count, size ) );

    AsObj( object )->blockClass = 0; // it is the C library's from now on
}

} // namespace pb

// Defines the module of a library, and registers it while the library is loaded. The file that uses it includes
// product.h; the three data objects are declared in a header of the library, as those of pb are above. `startup` and
// `shutdown` are functions without arguments, or null. PB_DEFINE_MODULE( in, "Internet addresses", "0.0", "pb",
// Startup, Shutdown ) defines
//
//     const char *const    in___module_version_string
//     const PbModuleRecord in___module_record
//     PbModule             in___module
#define PB_DEFINE_MODULE( module_, description, version, dependencies_, startup_, shutdown_ )                          \
    const char *const    module_##___module_version_string = PRODUCT_VERSION_STRING( #module_, version );              \
    const PbModuleRecord module_##___module_record         = {                                                         \
                .recordVersion     = 2,                                                                                \
                .productName       = PRODUCT_NAME,                                                                     \
                .productTraceName  = PRODUCT_TRACE_NAME,                                                               \
                .productMajor      = PRODUCT_MAJOR,                                                                    \
                .productMinor      = PRODUCT_MINOR,                                                                    \
                .productPatch      = PRODUCT_PATCH,                                                                    \
                .buildTime         = PRODUCT_BUILD_TIME,                                                               \
                .companyName       = PRODUCT_COMPANY_NAME,                                                             \
                .rightsNotice      = PRODUCT_RIGHTS_NOTICE,                                                            \
                .moduleName        = #module_,                                                                         \
                .moduleDescription = description,                                                                      \
                .moduleVersion     = version,                                                                          \
                .dependencies      = dependencies_,                                                                    \
                .reserved          = "",                                                                               \
                .versionString     = PRODUCT_VERSION_STRING( #module_, version ),                                      \
    };                                                                                                         \
    PbModule module_##___module = {                                                                                    \
        .header   = {},                                                                                                \
        .record   = &module_##___module_record,                                                                        \
        .startup  = startup_,                                                                                          \
        .reserved = nullptr,                                                                                           \
        .shutdown = shutdown_,                                                                                         \
        .starts   = 0,                                                                                                 \
        .next     = nullptr,                                                                                           \
    };                                                                                                                 \
    [[gnu::constructor]] static void RegisterModule() { pb___ModuleRegister( &module_##___module ); }                  \
    [[gnu::destructor]] static void  UnregisterModule() { pb___ModuleUnregister( &module_##___module ); }
