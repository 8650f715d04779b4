/* What servers, proxies and clients do with the header fields that take a message to its place: replies, the top Via,
 * routes, the hop count, and the identifiers of transactions and dialogs; RFC 3261 sections 8, 12 and 16 to 18. There
 * are no transactions, timers or sockets here.
 *
 * Results are new references, and null where a message has nothing to make them from, because a field is absent or does
 * not decode. Changing functions replace *msg by a private copy when it is shared; what gives null, false or -1 changes
 * nothing. A null or invalid argument aborts. */
#ifndef SIPSN_MESSAGE_ROUTING_H
#define SIPSN_MESSAGE_ROUTING_H

#include "sipsn_message.h"
#include "sipsn_route.h"
#include "sipsn_via.h"

PB_BEGIN_DECLS

/* ---- Replies ------------------------------------------------------------------------------------------ */

/* The response to a request, RFC 3261 section 8.2.6: SIP/2.0, the code with its default reason phrase, and Via, From,
 * To, Call-ID and CSeq as they stand in the request, so that a 400 can answer fields that do not decode; Timestamp for
 * a 100; Record-Route for 101 to 299, which can make a dialog (section 12.1.1). Null for a response, for an ACK, which
 * is never answered, without one of the five fields, and when Via does not decode: there is nowhere to send it then. */
PB_API SipsnMessage *sipsnMessageCreateReply( SipsnMessage *request, int64_t sc );

/* Gives To the tag unless it has one, as every reply but a 100 needs it, RFC 3261 section 8.2.6.2. False when there is
 * no To that decodes. */
PB_API bool sipsnMessageAddToTag( SipsnMessage **msg, PbString *tag );

/* The host that a response goes to, as its top Via says, and the port in *port, which may be null: RFC 3261 section
 * 18.2.2, and for UDP RFC 3581 section 4. IPv6 addresses are in square brackets; a port that is not given is that of
 * the transport. Over a connection this is for when it is lost. The result null sets *port to -1. */
PB_API PbString *sipsnMessageReplyDestination( SipsnMessage *msg, int64_t *port );

/* ---- Via ---------------------------------------------------------------------------------------------- */

/* The first Via; PopVia takes it out, and the field with the last one, RFC 3261 section 16.7 item 3. Null when there is
 * none, or when Via does not decode. */
PB_API SipsnVia *sipsnMessageTopVia( SipsnMessage *msg );
PB_API SipsnVia *sipsnMessagePopVia( SipsnMessage **msg );

/* Puts a Via before the others, with the branch "z9hG4bK" and `unique`, which is a token, RFC 3261 sections 8.1.1.7 and
 * 16.6 item 8. False when the Via that is there does not decode. */
PB_API bool sipsnMessagePushVia( SipsnMessage **msg, SipsnVia *via, PbString *unique );

/* Writes where a request came from into its top Via: "received" when the host there is another one or a name, RFC 3261
 * section 18.2.1; "rport", with "received" in any case, when the client asks for it, RFC 3581 section 4. What a client
 * wrote there itself is replaced or deleted. False for a response, and when there is no Via that decodes. */
PB_API bool sipsnMessageSetSource( SipsnMessage **msg, InAddress *source, int64_t port );

PB_END_DECLS
#endif
