// SipsnHeaderJoin: the Join header field, RFC 3911 section 7.1.
#include "sipsn_header_join.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderJoin
{
    PbObj               obj;
    PbString           *callId;
    PbString           *toTag;
    PbString           *fromTag;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "callId", &SipsnHeaderJoin::callId, sipsn::rule::callId ),
            sipsn::TextParam( "to-tag", &SipsnHeaderJoin::toTag, sipsn::rule::tag, "toTag" ),
            sipsn::TextParam( "from-tag", &SipsnHeaderJoin::fromTag, sipsn::rule::tag, "fromTag" ),
            sipsn::OtherParams( &SipsnHeaderJoin::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( Join, "Join", SIPSN_HEADER_JOIN, sipsn::Params )

SIPSN_CREATE_TEXT( HeaderJoin, callId, sipsnCallIdOk )
SIPSN_TEXT( HeaderJoin, hdr, CallId, callId, sipsnCallIdOk )
SIPSN_OPTIONAL_TEXT( HeaderJoin, hdr, ToTag, toTag, sipsnTagOk )
SIPSN_OPTIONAL_TEXT( HeaderJoin, hdr, FromTag, fromTag, sipsnTagOk )
SIPSN_PARAMS( HeaderJoin, hdr )
