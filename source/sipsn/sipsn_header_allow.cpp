// SipsnHeaderAllow: the Allow header field, RFC 3261 section 20.5.
#include "sipsn_header_allow.h"

#include "sipsn_header_frame.h"

using sipsn::StringFrom;

struct SipsnHeaderAllow
{
    PbObj   obj;
    PbDict *items; // each to itself

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Items( "methods", &SipsnHeaderAllow::items, sipsn::rule::method ) };
    }
};

SIPSN_DEFINE_NAME( Allow, "Allow" )

static constexpr sipsn::Set< SipsnHeaderAllow > shape{};

SIPSN_DEFINE_HEADER( Allow, SIPSN_HEADER_ALLOW, shape )

static PbString *Key( PbString *method )
{
    PB_ASSERT( sipsnMethodOk( method ) );
    return pb::Retain( method );
}
SIPSN_DEFINE_SET( Allow, Methods, Method, method, Key )

SipsnHeaderAllow *sipsnHeaderAllowCreate( void ) { return shape.Create(); }

bool sipsnHeaderAllowHasMethodCstr( SipsnHeaderAllow *hdr, const char *method, int64_t methodLength )
{
    return sipsnHeaderAllowHasMethod( hdr, StringFrom( method, methodLength ).Get() );
}

bool sipsnHeaderAllowHasMethodWcstr( SipsnHeaderAllow *hdr, const wchar_t *method, int64_t methodLength )
{
    return sipsnHeaderAllowHasMethod( hdr, StringFrom( method, methodLength ).Get() );
}

void sipsnHeaderAllowSetMethodCstr( SipsnHeaderAllow **hdr, const char *method, int64_t methodLength )
{
    sipsnHeaderAllowSetMethod( hdr, StringFrom( method, methodLength ).Get() );
}

void sipsnHeaderAllowSetMethodWcstr( SipsnHeaderAllow **hdr, const wchar_t *method, int64_t methodLength )
{
    sipsnHeaderAllowSetMethod( hdr, StringFrom( method, methodLength ).Get() );
}

void sipsnHeaderAllowDelMethodCstr( SipsnHeaderAllow **hdr, const char *method, int64_t methodLength )
{
    sipsnHeaderAllowDelMethod( hdr, StringFrom( method, methodLength ).Get() );
}

void sipsnHeaderAllowDelMethodWcstr( SipsnHeaderAllow **hdr, const wchar_t *method, int64_t methodLength )
{
    sipsnHeaderAllowDelMethod( hdr, StringFrom( method, methodLength ).Get() );
}
