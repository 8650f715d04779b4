// SipsnHeaderPUserDatabase: the P-User-Database header field, RFC 4457 section 4.
#include "sipsn_header_p_user_database.h"

#include "sipsn_header_frame.h"
#include "sipsn_uri_member.h"

struct SipsnHeaderPUserDatabase
{
    PbObj               obj;
    PbString           *iri;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnHeaderPUserDatabase::iri, sipsn::rule::iri ),
            sipsn::OtherParams( &SipsnHeaderPUserDatabase::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( PUserDatabase, "P-User-Database", SIPSN_HEADER_P_USER_DATABASE, sipsn::Address )

SIPSN_CREATE_TEXT( HeaderPUserDatabase, iri, sipsnIriOk )
SIPSN_TEXT( HeaderPUserDatabase, hdr, Iri, iri, sipsnIriOk )
SIPSN_PARAMS( HeaderPUserDatabase, hdr )
SIPSN_DEFINE_URI( HeaderPUserDatabase, hdr )
