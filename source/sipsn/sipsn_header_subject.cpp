// SipsnHeaderSubject: the Subject header field, RFC 3261 section 20.36.
#include "sipsn_header_subject.h"

#include "sipsn_header_frame.h"

namespace sipsn::rule {

static constexpr TextRule subject{
    .words = "a text", .ok = sipsnSubjectOk, .production = sipsn___SkipSubject, .normal = CollapseBlanks };

} // namespace sipsn::rule

struct SipsnHeaderSubject
{
    PbObj     obj;
    PbString *subject;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "subject", &SipsnHeaderSubject::subject, sipsn::rule::subject ),
        };
    }
};

SIPSN_DEFINE_NAME( Subject, "Subject" )

static constexpr sipsn::WholeLine< SipsnHeaderSubject > shape{};

SIPSN_DEFINE_HEADER( Subject, SIPSN_HEADER_SUBJECT, shape )

// The normaliser checks the text.
SipsnHeaderSubject *sipsnHeaderSubjectCreate( PbString *subject )
{
    return shape.Create( sipsnSubjectNormalize( subject ) );
}

PbString *sipsnHeaderSubjectSubject( SipsnHeaderSubject *hdr ) { return PB_GET( hdr, subject ); }
void      sipsnHeaderSubjectSetSubject( SipsnHeaderSubject **hdr, PbString *subject )
{
    PB_PUT( hdr, subject, sipsnSubjectNormalize( subject ) );
}
