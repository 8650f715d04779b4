// SipsnHeaderResourcePriority: the Resource-Priority header field, RFC 4412 section 3.1.
#include "sipsn_header_resource_priority.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderResourcePriority
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Items( "rvalues", &SipsnHeaderResourcePriority::items, sipsn::rule::rvalue ) };
    }
};

SIPSN_DEFINE_NAME( ResourcePriority, "Resource-Priority" )

static constexpr sipsn::List< SipsnHeaderResourcePriority > shape{ .noLines = sipsn::NoLines::givesEmptyHeader };

static PbString *Stored( PbString *rvalue )
{
    PB_ASSERT( sipsnRvalueOk( rvalue ) );
    return pb::Retain( rvalue );
}

SIPSN_DEFINE_HEADER( ResourcePriority, SIPSN_HEADER_RESOURCE_PRIORITY, shape )
SIPSN_DEFINE_LIST( ResourcePriority, Rvalues, Rvalue, PbString, rvalue, Stored )

SipsnHeaderResourcePriority *sipsnHeaderResourcePriorityCreate( void ) { return shape.Create(); }

void sipsnHeaderResourcePriorityClearRvalues( SipsnHeaderResourcePriority **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

PbString *sipsnHeaderResourcePriorityRvalueAt( SipsnHeaderResourcePriority *hdr, int64_t index )
{
    return SIPSN_LIST_AT( hdr, index );
}
