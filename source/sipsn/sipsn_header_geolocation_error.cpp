// SipsnHeaderGeolocationError: the Geolocation-Error header field, RFC 6442 section 4.4.
#include "sipsn_header_geolocation_error.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderGeolocationError
{
    PbObj               obj;
    int64_t             errorCode;
    PbString           *text;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Int( "errorCode", &SipsnHeaderGeolocationError::errorCode, sipsn::rule::errorCode ),
            sipsn::TextParam( "code", &SipsnHeaderGeolocationError::text, sipsn::rule::quotedWord, "text" ),
            sipsn::OtherParams( &SipsnHeaderGeolocationError::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( GeolocationError, "Geolocation-Error", SIPSN_HEADER_GEOLOCATION_ERROR, sipsn::Params )

SIPSN_CREATE_INT( HeaderGeolocationError, errorCode, sipsnErrorCodeOk )
SIPSN_INT( HeaderGeolocationError, hdr, ErrorCode, errorCode, sipsnErrorCodeOk )
SIPSN_OPTIONAL_TEXT( HeaderGeolocationError, hdr, Text, text, sipsnQuotableStringOk )
SIPSN_PARAMS( HeaderGeolocationError, hdr )
