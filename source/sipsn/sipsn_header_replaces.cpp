// SipsnHeaderReplaces: the Replaces header field, RFC 3891 section 6.1.
#include "sipsn_header_replaces.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderReplaces
{
    PbObj               obj;
    PbString           *callId;
    PbString           *toTag;
    PbString           *fromTag;
    bool                earlyOnly;
    SipsnGenericParams *genericParams;

    // RFC 3891 writes from-tag before to-tag.
    using WireOrder = std::index_sequence< 0, 2, 1, 3, 4 >;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "callId", &SipsnHeaderReplaces::callId, sipsn::rule::callId ),
            sipsn::TextParam( "to-tag", &SipsnHeaderReplaces::toTag, sipsn::rule::tag, "toTag" ),
            sipsn::TextParam( "from-tag", &SipsnHeaderReplaces::fromTag, sipsn::rule::tag, "fromTag" ),
            sipsn::FlagParam( "early-only", &SipsnHeaderReplaces::earlyOnly, "earlyOnly" ),
            sipsn::OtherParams( &SipsnHeaderReplaces::genericParams ),
        };
    }
};

SIPSN_DEFINE_NAME( Replaces, "Replaces" )

static constexpr sipsn::LastLine< SipsnHeaderReplaces, sipsn::Params< SipsnHeaderReplaces > > shape{};

SIPSN_DEFINE_HEADER( Replaces, SIPSN_HEADER_REPLACES, shape )

SipsnHeaderReplaces *sipsnHeaderReplacesCreate( PbString *callId )
{
    PB_ASSERT( sipsnCallIdOk( callId ) );
    return sipsn::NewWith( &SipsnHeaderReplaces::callId, pb::Retain( callId ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderReplacesCallId( SipsnHeaderReplaces *hdr ) { return PB_GET( hdr, callId ); }
void      sipsnHeaderReplacesSetCallId( SipsnHeaderReplaces **hdr, PbString *callId )
{
    PB_SET( hdr, callId, sipsnCallIdOk( callId ), pb::Retain( callId ) );
}

PbString *sipsnHeaderReplacesToTag( SipsnHeaderReplaces *hdr ) { return PB_GET( hdr, toTag ); }
bool      sipsnHeaderReplacesHasToTag( SipsnHeaderReplaces *hdr ) { return PB_HAS( hdr, toTag ); }
void      sipsnHeaderReplacesSetToTag( SipsnHeaderReplaces **hdr, PbString *tag )
{
    PB_SET( hdr, toTag, sipsnTagOk( tag ), pb::Retain( tag ) );
}
void sipsnHeaderReplacesDelToTag( SipsnHeaderReplaces **hdr ) { PB_DEL( hdr, toTag ); }

PbString *sipsnHeaderReplacesFromTag( SipsnHeaderReplaces *hdr ) { return PB_GET( hdr, fromTag ); }
bool      sipsnHeaderReplacesHasFromTag( SipsnHeaderReplaces *hdr ) { return PB_HAS( hdr, fromTag ); }
void      sipsnHeaderReplacesSetFromTag( SipsnHeaderReplaces **hdr, PbString *tag )
{
    PB_SET( hdr, fromTag, sipsnTagOk( tag ), pb::Retain( tag ) );
}
void sipsnHeaderReplacesDelFromTag( SipsnHeaderReplaces **hdr ) { PB_DEL( hdr, fromTag ); }

bool sipsnHeaderReplacesEarlyOnly( SipsnHeaderReplaces *hdr ) { return PB_GET( hdr, earlyOnly ); }
void sipsnHeaderReplacesSetEarlyOnly( SipsnHeaderReplaces **hdr, bool earlyOnly )
{
    PB_PUT( hdr, earlyOnly, earlyOnly );
}

SipsnGenericParams *sipsnHeaderReplacesGenericParams( SipsnHeaderReplaces *hdr )
{
    return PB_GET( hdr, genericParams );
}
void sipsnHeaderReplacesSetGenericParams( SipsnHeaderReplaces **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
