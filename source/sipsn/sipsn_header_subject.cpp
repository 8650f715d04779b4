// SipsnHeaderSubject: the Subject header field, RFC 3261 section 20.36.
#include "sipsn_header_subject.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_token_frame.h"

struct SipsnHeaderSubject
{
    PbObj     obj;
    PbString *subject;

    using Members = pb::Members< &SipsnHeaderSubject::subject >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderSubject, sipsn___PbsSubject, "Subject" )

static constexpr sipsn::WholeLine< SipsnHeaderSubject > shape{
    .text = &SipsnHeaderSubject::subject, .ok = sipsnSubjectOk, .normalized = sipsn::CollapseBlanks };

SIPSN_DEFINE_HEADER( SipsnHeaderSubject, sipsnHeaderSubject, SIPSN_HEADER_SUBJECT, sipsn___PbsSubject, shape )

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
