// Values of the Subject header field: what is valid, and the form with single spaces.
#include "sipsn_subject.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnSubjectOk( PbString *subject )
{
    PB_ASSERT( subject );
    return sipsn::MatchesBetweenBlanks( subject, sipsn___SkipSubject );
}

PbString *sipsnSubjectNormalize( PbString *subject )
{
    PB_ABORT_UNLESS( "subject invalid", "sipsnSubjectOk( subject )", sipsnSubjectOk( subject ) );
    return sipsn::CollapseBlanks( subject );
}
