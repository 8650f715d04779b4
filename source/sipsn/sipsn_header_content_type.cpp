// SipsnHeaderContentType: the Content-Type header field, RFC 3261 section 20.15.
#include "sipsn_header_content_type.h"

#include "sipsn_header_frame.h"
#include "sipsn_param_forms.h"

struct SipsnHeaderContentType
{
    PbObj               obj;
    PbString           *mediaType;
    PbString           *mediaSubtype;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "mediaType", &SipsnHeaderContentType::mediaType, sipsn::rule::mediaType ),
            sipsn::Text( "mediaSubtype", &SipsnHeaderContentType::mediaSubtype, sipsn::rule::mediaSubtype ),
            sipsn::OtherParams( &SipsnHeaderContentType::genericParams ),
        };
    }
};

template< class T > using MediaTypeForm = sipsn::PairAndParams< T, sipsn___SkipSlash, '/' >;

SIPSN_SINGLE_HEADER( ContentType, "Content-Type", SIPSN_HEADER_CONTENT_TYPE, MediaTypeForm )

SipsnHeaderContentType *sipsnHeaderContentTypeCreate( PbString *mediaType, PbString *mediaSubtype )
{
    PB_ASSERT( sipsnMediaTypeOk( mediaType ) );
    PB_ASSERT( sipsnMediaSubtypeOk( mediaSubtype ) );
    SipsnHeaderContentType *value = sipsn::NewWith( &SipsnHeaderContentType::mediaType,
                                                    sipsn::Normal( &SipsnHeaderContentType::mediaType, mediaType ) );
    value->mediaSubtype           = sipsn::Normal( &SipsnHeaderContentType::mediaSubtype, mediaSubtype );
    return value;
}

SIPSN_TEXT( HeaderContentType, hdr, MediaType, mediaType, sipsnMediaTypeOk )
SIPSN_TEXT( HeaderContentType, hdr, MediaSubtype, mediaSubtype, sipsnMediaSubtypeOk )
SIPSN_PARAMS( HeaderContentType, hdr )
