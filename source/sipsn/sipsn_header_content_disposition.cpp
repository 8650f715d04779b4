// SipsnHeaderContentDisposition: the Content-Disposition header field, RFC 3261 section 20.11.
#include "sipsn_header_content_disposition.h"

#include "sipsn_header_frame.h"

namespace sipsn::rule {

static constexpr TextRule dispositionType{ .words      = "a disposition type",
                                           .ok         = sipsnDispositionTypeOk,
                                           .production = sipsn___SkipDispositionType,
                                           .decoded    = LowerFromChars,
                                           .normal     = ToLower };
static constexpr TextRule handling{ .words      = "a handling",
                                    .ok         = sipsnHandlingOk,
                                    .production = sipsn___SkipHandling,
                                    .decoded    = LowerFromChars,
                                    .normal     = ToLower };

} // namespace sipsn::rule

struct SipsnHeaderContentDisposition
{
    PbObj               obj;
    PbString           *dispositionType;
    PbString           *handling;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "dispositionType", &SipsnHeaderContentDisposition::dispositionType,
                         sipsn::rule::dispositionType ),
            sipsn::TextParam( "handling", &SipsnHeaderContentDisposition::handling, sipsn::rule::handling ),
            sipsn::OtherParams( &SipsnHeaderContentDisposition::genericParams ),
        };
    }
};

SIPSN_DEFINE_NAME( ContentDisposition, "Content-Disposition" )

static constexpr sipsn::LastLine< SipsnHeaderContentDisposition, sipsn::Params< SipsnHeaderContentDisposition > >
    shape{};

SIPSN_DEFINE_HEADER( ContentDisposition, SIPSN_HEADER_CONTENT_DISPOSITION, shape )

// The normaliser checks the text.
SipsnHeaderContentDisposition *sipsnHeaderContentDispositionCreate( PbString *dispositionType )
{
    return sipsn::NewWith( &SipsnHeaderContentDisposition::dispositionType,
                           sipsnDispositionTypeNormalize( dispositionType ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderContentDispositionDispositionType( SipsnHeaderContentDisposition *hdr )
{
    return PB_GET( hdr, dispositionType );
}

void sipsnHeaderContentDispositionSetDispositionType( SipsnHeaderContentDisposition **hdr, PbString *dispositionType )
{
    PB_PUT( hdr, dispositionType, sipsnDispositionTypeNormalize( dispositionType ) );
}

PbString *sipsnHeaderContentDispositionHandling( SipsnHeaderContentDisposition *hdr )
{
    return PB_GET( hdr, handling );
}

bool sipsnHeaderContentDispositionHasHandling( SipsnHeaderContentDisposition *hdr ) { return PB_HAS( hdr, handling ); }
void sipsnHeaderContentDispositionSetHandling( SipsnHeaderContentDisposition **hdr, PbString *handling )
{
    PB_PUT( hdr, handling, sipsnHandlingNormalize( handling ) );
}
void sipsnHeaderContentDispositionDelHandling( SipsnHeaderContentDisposition **hdr ) { PB_DEL( hdr, handling ); }

SipsnGenericParams *sipsnHeaderContentDispositionGenericParams( SipsnHeaderContentDisposition *hdr )
{
    return PB_GET( hdr, genericParams );
}

void sipsnHeaderContentDispositionSetGenericParams( SipsnHeaderContentDisposition **hdr,
                                                    SipsnGenericParams             *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
