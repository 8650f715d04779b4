// The functions that give the IRI of a type as a SipsnUri and set it from one. C++ only; never installed.
#pragma once

#include "sipsn_internal.h"
#include "sipsn_uri.h"

// Defines what the directive URI declares (sipsn_uri.h), for a type with a member `iri`. `self` is the name that the
// type's conditions use for an object. SIPSN_DEFINE_URI( Contact, contact ) defines
//
//     sipsnContactTryDecodeUri, sipsnContactSetUri
#define SIPSN_DEFINE_URI( Type, self )                                                                                 \
    SipsnUri *sipsn##Type##TryDecodeUri( Sipsn##Type *self )                                                           \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, #self, self );                                                                       \
        return sipsnUriTryDecode( self->iri );                                                                         \
    }                                                                                                                  \
    void sipsn##Type##SetUri( Sipsn##Type **self, SipsnUri *uri )                                                      \
    {                                                                                                                  \
        PB_ASSERT_SLOT( self );                                                                                        \
        PB_ABORT_UNLESS( nullptr, "uri", uri );                                                                        \
        PB_PUT( self, iri, sipsnUriEncode( uri ) );                                                                    \
    }
