// SipsnHeaderPrivAnswerMode: the Priv-Answer-Mode header field, RFC 5373 section 2.
#include "sipsn_header_priv_answer_mode.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderPrivAnswerMode
{
    PbObj               obj;
    PbString           *answerMode;
    bool                require;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "answerMode", &SipsnHeaderPrivAnswerMode::answerMode, sipsn::rule::token ),
            sipsn::FlagParam( "require", &SipsnHeaderPrivAnswerMode::require ),
            sipsn::OtherParams( &SipsnHeaderPrivAnswerMode::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( PrivAnswerMode, "Priv-Answer-Mode", SIPSN_HEADER_PRIV_ANSWER_MODE, sipsn::Params )

SIPSN_CREATE_TEXT( HeaderPrivAnswerMode, answerMode, sipsnTokenOk )
SIPSN_TEXT( HeaderPrivAnswerMode, hdr, AnswerMode, answerMode, sipsnTokenOk )
SIPSN_FLAG( HeaderPrivAnswerMode, hdr, Require, require )
SIPSN_PARAMS( HeaderPrivAnswerMode, hdr )
