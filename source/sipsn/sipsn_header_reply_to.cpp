// SipsnHeaderReplyTo: the Reply-To header field, RFC 3261 section 20.31.
#include "sipsn_header_reply_to.h"

#include "sipsn_header_frame.h"
#include "sipsn_uri_member.h"

struct SipsnHeaderReplyTo
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnHeaderReplyTo::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnHeaderReplyTo::displayName, sipsn::rule::displayName ),
            sipsn::OtherParams( &SipsnHeaderReplyTo::genericParams ),
        };
    }
};

SIPSN_DEFINE_NAME( ReplyTo, "Reply-To" )

static constexpr sipsn::LastLine< SipsnHeaderReplyTo, sipsn::Address< SipsnHeaderReplyTo > > shape{};

SIPSN_DEFINE_HEADER( ReplyTo, SIPSN_HEADER_REPLY_TO, shape )

SipsnHeaderReplyTo *sipsnHeaderReplyToCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return sipsn::NewWith( &SipsnHeaderReplyTo::iri, pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderReplyToIri( SipsnHeaderReplyTo *hdr ) { return PB_GET( hdr, iri ); }
void      sipsnHeaderReplyToSetIri( SipsnHeaderReplyTo **hdr, PbString *iri )
{
    PB_SET( hdr, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}
SIPSN_DEFINE_URI( HeaderReplyTo, hdr )

PbString *sipsnHeaderReplyToDisplayName( SipsnHeaderReplyTo *hdr ) { return PB_GET( hdr, displayName ); }
bool      sipsnHeaderReplyToHasDisplayName( SipsnHeaderReplyTo *hdr ) { return PB_HAS( hdr, displayName ); }
void      sipsnHeaderReplyToSetDisplayName( SipsnHeaderReplyTo **hdr, PbString *displayName )
{
    PB_SET( hdr, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}
void sipsnHeaderReplyToDelDisplayName( SipsnHeaderReplyTo **hdr ) { PB_DEL( hdr, displayName ); }

SipsnGenericParams *sipsnHeaderReplyToGenericParams( SipsnHeaderReplyTo *hdr ) { return PB_GET( hdr, genericParams ); }
void                sipsnHeaderReplyToSetGenericParams( SipsnHeaderReplyTo **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
