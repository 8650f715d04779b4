// SipsnHeaderResourcePriority: the Resource-Priority header field, RFC 4412 section 3.1.
#include "sipsn_header_resource_priority.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderResourcePriority
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderResourcePriority::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderResourcePriority, sipsn___PbsResourcePriority, "Resource-Priority" )

static constexpr sipsn::List< SipsnHeaderResourcePriority > shape{
    .items   = &SipsnHeaderResourcePriority::items,
    .item    = sipsn___SkipRvalue,
    .noLines = sipsn::NoLines::givesEmptyHeader,
};

static PbString *Stored( PbString *rvalue )
{
    PB_ASSERT( sipsnRvalueOk( rvalue ) );
    return pb::Retain( rvalue );
}

SIPSN_DEFINE_HEADER( SipsnHeaderResourcePriority, sipsnHeaderResourcePriority, SIPSN_HEADER_RESOURCE_PRIORITY,
                     sipsn___PbsResourcePriority, shape )
SIPSN_DEFINE_LIST( SipsnHeaderResourcePriority, sipsnHeaderResourcePriority, Rvalues, Rvalue, PbString, rvalue, Stored )

SipsnHeaderResourcePriority *sipsnHeaderResourcePriorityCreate( void ) { return shape.Create(); }

void sipsnHeaderResourcePriorityClearRvalues( SipsnHeaderResourcePriority **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

PbString *sipsnHeaderResourcePriorityRvalueAt( SipsnHeaderResourcePriority *hdr, int64_t index )
{
    return SIPSN_LIST_AT( hdr, index );
}
