// The `sipsn___` functions of the structured values, and how a value's file defines them from its form.
//
// sipsn___<X>TryDecode gives the value that the whole text is, or null; sipsn___<X>Encode its canonical text. Both
// return new references. A null object, a negative length and null characters with a length above 0 abort.
#pragma once

#include "sipsn_describe.h"
#include "sipsn_internal.h"
#include "sipsn_member_functions.h"

PB_BEGIN_DECLS

// What these files keep while the module is started.
PB_API void sipsn___UriStartup( void );
PB_API void sipsn___UriShutdown( void );
PB_API void sipsn___UuiValueStartup( void );
PB_API void sipsn___UuiValueShutdown( void );
PB_API void sipsn___ViaStartup( void );
PB_API void sipsn___ViaShutdown( void );

PB_END_DECLS

// Declares the text form of a value and its record in the schema, for its own file and for those that keep such values.
#define SIPSN_DECLARE_TEXT( Type )                                                                                     \
    PB_BEGIN_DECLS                                                                                                     \
    struct Sipsn##Type;                                                                                                \
    PB_API Sipsn##Type *sipsn___##Type##TryDecode( const PbChar *chs, int64_t length );                                \
    PB_API PbString    *sipsn___##Type##Encode( Sipsn##Type *value );                                                  \
    PB_END_DECLS                                                                                                       \
    SIPSN_DECLARE_RECORD( Type )

// Defines what SIPSN_DECLARE_TEXT declares, behind SIPSN_DEFINE_TYPE. `self` is the name that the
// type's conditions use for an object. SIPSN_DEFINE_TEXT( Reason, reason, form ) defines
//
//     sipsn___ReasonTryDecode, sipsn___ReasonEncode, sipsn::schemaReason
#define SIPSN_DEFINE_TEXT( Type, self, form )                                                                          \
    Sipsn##Type *sipsn___##Type##TryDecode( const PbChar *chs, int64_t length )                                        \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "length >= 0", length >= 0 );                                                        \
        PB_ABORT_UNLESS( nullptr, "chs || length == 0", chs || length == 0 );                                          \
        sipsn::Cursor in{ chs, length };                                                                               \
        return form.TryDecode( in );                                                                                   \
    }                                                                                                                  \
    PbString *sipsn___##Type##Encode( Sipsn##Type *self )                                                              \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, #self, self );                                                                       \
        sipsn::TextWriter out;                                                                                         \
        form.Write( out, *self );                                                                                      \
        return out.ToString();                                                                                         \
    }                                                                                                                  \
    constexpr sipsn::TypeRecord sipsn::schema##Type = sipsn::MakeTypeRecord< Sipsn##Type >(                            \
        "Sipsn" #Type,                                                                                                 \
        { []( const PbChar *chs, int64_t length ) { return pb::AsObj( sipsn___##Type##TryDecode( chs, length ) ); },   \
          []( PbObj *value ) { return sipsn___##Type##Encode( reinterpret_cast< Sipsn##Type * >( value ) ); },         \
          []( sipsn::Span text, sipsn::Watch &watch ) { return sipsn::WatchForm( form, text, watch ); } } );

// All of a value that a form of sipsn_form.h reads, but for the functions of its members.
#define SIPSN_VALUE( Type, self, SORT, Form )                                                                          \
    SIPSN_DEFINE_TYPE( Sipsn##Type, sipsn##Type, SORT, self, self, sipsn___##Type##Encode )                            \
    static constexpr Form< Sipsn##Type > form{};                                                                       \
    SIPSN_DEFINE_TEXT( Type, self, form )
