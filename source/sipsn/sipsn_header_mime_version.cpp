// SipsnHeaderMimeVersion: the MIME-Version header field, RFC 3261 section 20.24.
#include "sipsn_header_mime_version.h"

#include "sipsn_header_frame.h"
#include "sipsn_param_forms.h"

struct SipsnHeaderMimeVersion
{
    PbObj   obj;
    int64_t major;
    int64_t minor;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Int( "major", &SipsnHeaderMimeVersion::major, sipsn::rule::number ),
            sipsn::Int( "minor", &SipsnHeaderMimeVersion::minor, sipsn::rule::number ),
        };
    }
};

// Two numbers with a dot between them.
template< class T > using DottedNumbers = sipsn::PairAndParams< T, sipsn::SkipOne< '.' >, '.' >;

SIPSN_SINGLE_HEADER( MimeVersion, "Mime-Version", SIPSN_HEADER_MIME_VERSION, DottedNumbers )

SipsnHeaderMimeVersion *sipsnHeaderMimeVersionCreate( int64_t major, int64_t minor )
{
    PB_ASSERT( sipsnNumberOk( major ) );
    PB_ASSERT( sipsnNumberOk( minor ) );
    SipsnHeaderMimeVersion *value = sipsn::NewWith( &SipsnHeaderMimeVersion::major, major );
    value->minor                  = minor;
    return value;
}

SIPSN_INT( HeaderMimeVersion, hdr, Major, major, sipsnNumberOk )
SIPSN_INT( HeaderMimeVersion, hdr, Minor, minor, sipsnNumberOk )
