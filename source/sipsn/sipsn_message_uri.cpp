// The request line's IRI of messages and fragments in its parts.
#include "sipsn_message_uri.h"

#include "sipsn_internal.h"

static SipsnUri *TryDecode( PbString *owned )
{
    pb::Ref iri{ owned };
    return iri ? sipsnUriTryDecode( iri.Get() ) : nullptr;
}

SipsnUri *sipsnMessageTryDecodeRequestUri( SipsnMessage *msg ) { return TryDecode( sipsnMessageRequestIri( msg ) ); }
SipsnUri *sipsnMessageFragmentTryDecodeRequestUri( SipsnMessageFragment *frag )
{
    return TryDecode( sipsnMessageFragmentRequestIri( frag ) );
}

void sipsnMessageSetRequestUri( SipsnMessage **msg, SipsnUri *uri )
{
    sipsnMessageSetRequestIri( msg, pb::Ref{ sipsnUriEncode( uri ) }.Get() );
}

void sipsnMessageFragmentSetRequestUri( SipsnMessageFragment **frag, SipsnUri *uri )
{
    sipsnMessageFragmentSetRequestIri( frag, pb::Ref{ sipsnUriEncode( uri ) }.Get() );
}
