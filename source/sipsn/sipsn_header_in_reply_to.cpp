// SipsnHeaderInReplyTo: the In-Reply-To header field, RFC 3261 section 20.21.
#include "sipsn_header_in_reply_to.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderInReplyTo
{
    PbObj   obj;
    PbDict *items; // each to itself

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Items( "callIds", &SipsnHeaderInReplyTo::items, sipsn::rule::callId ) };
    }
};

SIPSN_DEFINE_NAME( InReplyTo, "In-Reply-To" )

static constexpr sipsn::Set< SipsnHeaderInReplyTo > shape{};

SIPSN_DEFINE_HEADER( InReplyTo, SIPSN_HEADER_IN_REPLY_TO, shape )

static PbString *Key( PbString *callId )
{
    PB_ASSERT( sipsnCallIdOk( callId ) );
    return pb::Retain( callId );
}
SIPSN_DEFINE_SET( InReplyTo, CallIds, CallId, callId, Key )

SipsnHeaderInReplyTo *sipsnHeaderInReplyToCreate( void ) { return shape.Create(); }
