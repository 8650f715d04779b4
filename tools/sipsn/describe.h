// The members of values and of single-valued header types by name, for JSON and trees.
#pragma once

#include "output.h"
#include "owned.h"

namespace tool {

// An object of members: text as text, numbers as numbers; an absent member is absent. References are taken over.
class Members
{
public:
    Members &Text( const char *name, PbString *text );
    Members &Number( const char *name, int64_t number );
    Members &Thousandths( const char *name, int64_t number ); // as the number that they are thousandths of
    Members &Flag( const char *name, bool flag );             // true, or absent
    Members &Time( const char *name, PbTime *time );          // as 2010-11-13T23:29:00Z
    Members &Params( SipsnGenericParams *params );

    const Json &Object() const { return object_; }

private:
    Json object_ = Json::object();
};

Json Describe( SipsnAccept *accept );
Json Describe( SipsnAcceptEncoding *acceptEncoding );
Json Describe( SipsnAlertInfo *alertInfo );
Json Describe( SipsnCallInfo *callInfo );
Json Describe( SipsnContact *contact );
Json Describe( SipsnDiversion *diversion );
Json Describe( SipsnErrorInfo *errorInfo );
Json Describe( SipsnGenericParam *param );
Json Describe( SipsnGenericParams *params ); // an object, null where a parameter has no value
Json Describe( SipsnHistoryInfo *historyInfo );
Json Describe( SipsnIdentityValue *identity );
Json Describe( SipsnReason *reason );
Json Describe( SipsnRoute *route );
Json Describe( SipsnUuiValue *uui );
Json Describe( SipsnVia *via );
Json Describe( SipsnWarningValue *warning );

Json Describe( SipsnHeaderCallId *hdr );
Json Describe( SipsnHeaderContentDisposition *hdr );
Json Describe( SipsnHeaderCseq *hdr );
Json Describe( SipsnHeaderDate *hdr );
Json Describe( SipsnHeaderEvent *hdr );
Json Describe( SipsnHeaderExpires *hdr );
Json Describe( SipsnHeaderFrom *hdr );
Json Describe( SipsnHeaderMaxForwards *hdr );
Json Describe( SipsnHeaderMinExpires *hdr );
Json Describe( SipsnHeaderMinSe *hdr );
Json Describe( SipsnHeaderOrganization *hdr );
Json Describe( SipsnHeaderPCalledPartyId *hdr );
Json Describe( SipsnHeaderPriority *hdr );
Json Describe( SipsnHeaderRack *hdr );
Json Describe( SipsnHeaderReferTo *hdr );
Json Describe( SipsnHeaderReferredBy *hdr );
Json Describe( SipsnHeaderRemotePartyId *hdr );
Json Describe( SipsnHeaderReplaces *hdr );
Json Describe( SipsnHeaderReplyTo *hdr );
Json Describe( SipsnHeaderRetryAfter *hdr );
Json Describe( SipsnHeaderRseq *hdr );
Json Describe( SipsnHeaderServer *hdr );
Json Describe( SipsnHeaderSessionExpires *hdr );
Json Describe( SipsnHeaderSessionId *hdr );
Json Describe( SipsnHeaderSubject *hdr );
Json Describe( SipsnHeaderSubscriptionState *hdr );
Json Describe( SipsnHeaderTimestamp *hdr );
Json Describe( SipsnHeaderTo *hdr );
Json Describe( SipsnHeaderUserAgent *hdr );

} // namespace tool
