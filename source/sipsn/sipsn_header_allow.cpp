// SipsnHeaderAllow: the Allow header field, RFC 3261 section 20.5.
#include "sipsn_header_allow.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

using sipsn::StringFrom;

struct SipsnHeaderAllow
{
    PbObj   obj;
    PbDict *items; // each to itself

    using Members = pb::Members< &SipsnHeaderAllow::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderAllow, sipsn___PbsAllow, "Allow" )

static constexpr sipsn::Set< SipsnHeaderAllow > shape{ .items = &SipsnHeaderAllow::items, .item = sipsn___SkipMethod };

SIPSN_DEFINE_HEADER( SipsnHeaderAllow, sipsnHeaderAllow, SIPSN_HEADER_ALLOW, sipsn___PbsAllow, shape )

static PbString *Key( PbString *method )
{
    PB_ASSERT( sipsnMethodOk( method ) );
    return pb::Retain( method );
}
SIPSN_DEFINE_SET( SipsnHeaderAllow, sipsnHeaderAllow, Methods, Method, method, Key )

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
