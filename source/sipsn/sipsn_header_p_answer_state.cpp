// SipsnHeaderPAnswerState: the P-Answer-State header field, RFC 4964 section 7.1.
#include "sipsn_header_p_answer_state.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderPAnswerState
{
    PbObj               obj;
    PbString           *answerType;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "answerType", &SipsnHeaderPAnswerState::answerType, sipsn::rule::token ),
            sipsn::OtherParams( &SipsnHeaderPAnswerState::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( PAnswerState, "P-Answer-State", SIPSN_HEADER_P_ANSWER_STATE, sipsn::Params )

SIPSN_CREATE_TEXT( HeaderPAnswerState, answerType, sipsnTokenOk )
SIPSN_TEXT( HeaderPAnswerState, hdr, AnswerType, answerType, sipsnTokenOk )
SIPSN_PARAMS( HeaderPAnswerState, hdr )
