// SipsnHeaderTargetDialog: the Target-Dialog header field, RFC 4538 section 7.
#include "sipsn_header_target_dialog.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderTargetDialog
{
    PbObj               obj;
    PbString           *callId;
    PbString           *localTag;
    PbString           *remoteTag;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "callId", &SipsnHeaderTargetDialog::callId, sipsn::rule::callId ),
            sipsn::TextParam( "local-tag", &SipsnHeaderTargetDialog::localTag, sipsn::rule::tag, "localTag" ),
            sipsn::TextParam( "remote-tag", &SipsnHeaderTargetDialog::remoteTag, sipsn::rule::tag, "remoteTag" ),
            sipsn::OtherParams( &SipsnHeaderTargetDialog::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( TargetDialog, "Target-Dialog", SIPSN_HEADER_TARGET_DIALOG, sipsn::Params )

SIPSN_CREATE_TEXT( HeaderTargetDialog, callId, sipsnCallIdOk )
SIPSN_TEXT( HeaderTargetDialog, hdr, CallId, callId, sipsnCallIdOk )
SIPSN_OPTIONAL_TEXT( HeaderTargetDialog, hdr, LocalTag, localTag, sipsnTagOk )
SIPSN_OPTIONAL_TEXT( HeaderTargetDialog, hdr, RemoteTag, remoteTag, sipsnTagOk )
SIPSN_PARAMS( HeaderTargetDialog, hdr )
