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

PbString *sipsn___PbsAcceptResourcePriority;

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

void sipsn___HeaderAcceptResourcePriorityStartup( void )
{
    sipsn::CreateName( sipsn___PbsAcceptResourcePriority, "Accept-Resource-Priority" );
}
void sipsn___HeaderAcceptResourcePriorityShutdown( void ) { sipsn::DropName( sipsn___PbsAcceptResourcePriority ); }
