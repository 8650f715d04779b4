// SipsnHeaderInReplyTo: the In-Reply-To header field, RFC 3261 section 20.21.
#include "sipsn_header_in_reply_to.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderInReplyTo
{
    PbObj   obj;
    PbDict *items; // each to itself

    using Members = pb::Members< &SipsnHeaderInReplyTo::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderInReplyTo, sipsn___PbsInReplyTo, "In-Reply-To" )

static constexpr sipsn::Set< SipsnHeaderInReplyTo > shape{
    .items = &SipsnHeaderInReplyTo::items,
    .item  = sipsn___SkipCallId,
};

SIPSN_DEFINE_HEADER( SipsnHeaderInReplyTo, sipsnHeaderInReplyTo, SIPSN_HEADER_IN_REPLY_TO, sipsn___PbsInReplyTo, shape )

static PbString *Key( PbString *callId )
{
    PB_ASSERT( sipsnCallIdOk( callId ) );
    return pb::Retain( callId );
}
SIPSN_DEFINE_SET( SipsnHeaderInReplyTo, sipsnHeaderInReplyTo, CallIds, CallId, callId, Key )

SipsnHeaderInReplyTo *sipsnHeaderInReplyToCreate( void ) { return shape.Create(); }
