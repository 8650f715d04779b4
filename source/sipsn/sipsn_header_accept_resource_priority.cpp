// SipsnHeaderAcceptResourcePriority: the Accept-Resource-Priority header field, RFC 4412 section 3.2.
#include "sipsn_header_accept_resource_priority.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderAcceptResourcePriority
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderAcceptResourcePriority::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderAcceptResourcePriority, sipsn___PbsAcceptResourcePriority, "Accept-Resource-Priority" )

static constexpr sipsn::List< SipsnHeaderAcceptResourcePriority > shape{
    .items   = &SipsnHeaderAcceptResourcePriority::items,
    .item    = sipsn___SkipRvalue,
    .noLines = sipsn::NoLines::givesNull,
};

static PbString *Stored( PbString *rvalue )
{
    PB_ASSERT( sipsnRvalueOk( rvalue ) );
    return pb::Retain( rvalue );
}

SIPSN_DEFINE_HEADER( SipsnHeaderAcceptResourcePriority, sipsnHeaderAcceptResourcePriority,
                     SIPSN_HEADER_ACCEPT_RESOURCE_PRIORITY, sipsn___PbsAcceptResourcePriority, shape )
SIPSN_DEFINE_LIST( SipsnHeaderAcceptResourcePriority, sipsnHeaderAcceptResourcePriority, Rvalues, Rvalue, PbString,
                   rvalue, Stored )

SipsnHeaderAcceptResourcePriority *sipsnHeaderAcceptResourcePriorityCreate( void ) { return shape.Create(); }

void sipsnHeaderAcceptResourcePriorityClearRvalues( SipsnHeaderAcceptResourcePriority **hdr )
{
    SIPSN_LIST_CLEAR( hdr );
}

PbString *sipsnHeaderAcceptResourcePriorityRvalueAt( SipsnHeaderAcceptResourcePriority *hdr, int64_t index )
{
    return SIPSN_LIST_AT( hdr, index );
}
