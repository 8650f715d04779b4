// SipsnHeaderAcceptResourcePriority: the Accept-Resource-Priority header field, RFC 4412 section 3.2.
#include "sipsn_header_accept_resource_priority.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderAcceptResourcePriority
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Items( "rvalues", &SipsnHeaderAcceptResourcePriority::items, sipsn::rule::rvalue ) };
    }
};

SIPSN_DEFINE_NAME( AcceptResourcePriority, "Accept-Resource-Priority" )

static constexpr sipsn::List< SipsnHeaderAcceptResourcePriority > shape{ .noLines = sipsn::NoLines::givesNull };

static PbString *Stored( PbString *rvalue )
{
    PB_ASSERT( sipsnRvalueOk( rvalue ) );
    return pb::Retain( rvalue );
}

SIPSN_DEFINE_HEADER( AcceptResourcePriority, SIPSN_HEADER_ACCEPT_RESOURCE_PRIORITY, shape )
SIPSN_DEFINE_LIST( AcceptResourcePriority, Rvalues, Rvalue, PbString, rvalue, Stored )

SipsnHeaderAcceptResourcePriority *sipsnHeaderAcceptResourcePriorityCreate( void ) { return shape.Create(); }

void sipsnHeaderAcceptResourcePriorityClearRvalues( SipsnHeaderAcceptResourcePriority **hdr )
{
    SIPSN_LIST_CLEAR( hdr );
}

PbString *sipsnHeaderAcceptResourcePriorityRvalueAt( SipsnHeaderAcceptResourcePriority *hdr, int64_t index )
{
    return SIPSN_LIST_AT( hdr, index );
}
