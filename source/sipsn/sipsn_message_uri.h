/* The request line's IRI of messages and fragments in its parts; see sipsn_uri.h. */
#ifndef SIPSN_MESSAGE_URI_H
#define SIPSN_MESSAGE_URI_H

#include "sipsn_message.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* The URI, a new reference; null for what is not a request, and where the IRI is not a URI that sipsnUriTryDecode
 * reads. Null aborts. */
PB_API SipsnUri *sipsnMessageTryDecodeRequestUri( SipsnMessage *msg );
PB_API SipsnUri *sipsnMessageFragmentTryDecodeRequestUri( SipsnMessageFragment *frag );

/* Sets the IRI as sipsnMessageSetRequestIri does, and aborts as that does. */
PB_API void sipsnMessageSetRequestUri( SipsnMessage **msg, SipsnUri *uri );
PB_API void sipsnMessageFragmentSetRequestUri( SipsnMessageFragment **frag, SipsnUri *uri );

PB_END_DECLS
#endif
