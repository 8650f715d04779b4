// The functions of members, a line for each: what a type's file says of a member beside its row. ./dev lists reads
// these lines, and writes the declarations that they stand for into the type's header, under the directive `members`,
// where sipsn_header.h describes them. C++ only; never installed.
//
//     SIPSN_CREATE_TEXT( HeaderJoin, callId, sipsnCallIdOk )
//     SIPSN_TEXT( HeaderJoin, hdr, CallId, callId, sipsnCallIdOk )
//     SIPSN_OPTIONAL_TEXT( HeaderJoin, hdr, ToTag, toTag, sipsnTagOk )
//     SIPSN_PARAMS( HeaderJoin, hdr )
//
// `hdr` is the name that the type's conditions use for an object, and `sipsnTagOk( toTag )` what they say of a value.
#pragma once

#include "sipsn_internal.h"

namespace sipsn {

// How a text that a caller gives is kept: by the rule of the member's row.
template< class T > PbString *Normal( PbString *T::*member, PbString *text )
{
    PbString *normal = nullptr;
    pb::membersOf< T >.All( [ & ]( const auto &row ) {
        if constexpr( requires {
                          row.rule->normal;
                          row.member == member;
                      } )
            if( row.member == member ) normal = row.rule->normal( text );
        return !normal;
    } );
    return normal;
}

} // namespace sipsn

// The one text that an object cannot be without.
#define SIPSN_CREATE_TEXT( T, field, Ok )                                                                              \
    Sipsn##T *sipsn##T##Create( PbString *field )                                                                      \
    {                                                                                                                  \
        PB_ASSERT( Ok( field ) );                                                                                      \
        return sipsn::NewWith( &Sipsn##T::field, sipsn::Normal( &Sipsn##T::field, field ) );                           \
    }                                                                                                                  \
    Sipsn##T *sipsn##T##CreateCstr( const char *field, int64_t length )                                                \
    {                                                                                                                  \
        return sipsn##T##Create( sipsn::StringFrom( field, length ).Get() );                                           \
    }                                                                                                                  \
    Sipsn##T *sipsn##T##CreateWcstr( const wchar_t *field, int64_t length )                                            \
    {                                                                                                                  \
        return sipsn##T##Create( sipsn::StringFrom( field, length ).Get() );                                           \
    }

// The same as a number.
#define SIPSN_CREATE_INT( T, field, Ok )                                                                               \
    Sipsn##T *sipsn##T##Create( int64_t field )                                                                        \
    {                                                                                                                  \
        PB_ASSERT( Ok( field ) );                                                                                      \
        return sipsn::NewWith( &Sipsn##T::field, field );                                                              \
    }

// Nothing.
#define SIPSN_CREATE( T )                                                                                              \
    Sipsn##T *sipsn##T##Create( void ) { return sipsn::New< Sipsn##T >(); }

#define SIPSN_TEXT( T, self, Name, field, Ok )                                                                         \
    PbString *sipsn##T##Name( Sipsn##T *self ) { return PB_GET( self, field ); }                                       \
    void      sipsn##T##Set##Name( Sipsn##T **self, PbString *field )                                                  \
    {                                                                                                                  \
        PB_SET( self, field, Ok( field ), sipsn::Normal( &Sipsn##T::field, field ) );                                  \
    }                                                                                                                  \
    void sipsn##T##Set##Name##Cstr( Sipsn##T **self, const char *field, int64_t length )                               \
    {                                                                                                                  \
        sipsn##T##Set##Name( self, sipsn::StringFrom( field, length ).Get() );                                         \
    }                                                                                                                  \
    void sipsn##T##Set##Name##Wcstr( Sipsn##T **self, const wchar_t *field, int64_t length )                           \
    {                                                                                                                  \
        sipsn##T##Set##Name( self, sipsn::StringFrom( field, length ).Get() );                                         \
    }

#define SIPSN_OPTIONAL( T, self, Name, field )                                                                         \
    bool sipsn##T##Has##Name( Sipsn##T *self ) { return PB_HAS( self, field ); }                                       \
    void sipsn##T##Del##Name( Sipsn##T **self ) { PB_DEL( self, field ); }

#define SIPSN_OPTIONAL_TEXT( T, self, Name, field, Ok )                                                                \
    SIPSN_TEXT( T, self, Name, field, Ok )                                                                             \
    SIPSN_OPTIONAL( T, self, Name, field )

#define SIPSN_INT( T, self, Name, field, Ok )                                                                          \
    int64_t sipsn##T##Name( Sipsn##T *self ) { return PB_GET( self, field ); }                                         \
    void    sipsn##T##Set##Name( Sipsn##T **self, int64_t field ) { PB_SET( self, field, Ok( field ), field ); }

#define SIPSN_OPTIONAL_INT( T, self, Name, field, Ok )                                                                 \
    SIPSN_INT( T, self, Name, field, Ok )                                                                              \
    SIPSN_OPTIONAL( T, self, Name, field )

#define SIPSN_FLAG( T, self, Name, field )                                                                             \
    bool sipsn##T##Name( Sipsn##T *self ) { return PB_GET( self, field ); }                                            \
    void sipsn##T##Set##Name( Sipsn##T **self, bool field ) { PB_PUT( self, field, field ); }

#define SIPSN_PARAMS( T, self )                                                                                        \
    SipsnGenericParams *sipsn##T##GenericParams( Sipsn##T *self ) { return PB_GET( self, genericParams ); }            \
    void                sipsn##T##SetGenericParams( Sipsn##T **self, SipsnGenericParams *genericParams )               \
    {                                                                                                                  \
        PB_SET( self, genericParams, genericParams, pb::Retain( genericParams ) );                                     \
    }
