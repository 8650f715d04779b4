// SipsnHeaderAnswerMode: the Answer-Mode header field, RFC 5373 section 2.
#include "sipsn_header_answer_mode.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderAnswerMode
{
    PbObj               obj;
    PbString           *answerMode;
    bool                require;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "answerMode", &SipsnHeaderAnswerMode::answerMode, sipsn::rule::token ),
            sipsn::FlagParam( "require", &SipsnHeaderAnswerMode::require ),
            sipsn::OtherParams( &SipsnHeaderAnswerMode::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( AnswerMode, "Answer-Mode", SIPSN_HEADER_ANSWER_MODE, sipsn::Params )

SIPSN_CREATE_TEXT( HeaderAnswerMode, answerMode, sipsnTokenOk )
SIPSN_TEXT( HeaderAnswerMode, hdr, AnswerMode, answerMode, sipsnTokenOk )
SIPSN_FLAG( HeaderAnswerMode, hdr, Require, require )
SIPSN_PARAMS( HeaderAnswerMode, hdr )
