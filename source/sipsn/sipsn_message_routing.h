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

/* ---- Routes ------------------------------------------------------------------------------------------- */

/* The first Route; PopRoute takes it out, and the field with the last one, RFC 3261 sections 16.4 and 16.6. Null when
 * there is none, or when Route does not decode. */
PB_API SipsnRoute *sipsnMessageTopRoute( SipsnMessage *msg );
PB_API SipsnRoute *sipsnMessagePopRoute( SipsnMessage **msg );

/* Puts a Record-Route before the others, RFC 3261 section 16.6 item 4. False when the Record-Route that is there does
 * not decode. */
PB_API bool sipsnMessagePushRecordRoute( SipsnMessage **msg, SipsnRoute *route );

/* ---- The hop count ------------------------------------------------------------------------------------ */

enum
{
    SIPSN_MAX_FORWARDS_DECREMENTED = 0, /* forward the request: the number was above 0, and is one less now */
    SIPSN_MAX_FORWARDS_ADDED       = 1, /* forward the request: there was no Max-Forwards, now it is 70 */
    SIPSN_MAX_FORWARDS_ZERO        = 2, /* answer 483 (Too many hops), or an OPTIONS oneself; unchanged */
    SIPSN_MAX_FORWARDS_MALFORMED   = 3  /* answer 400 (Bad request); unchanged */
};

/* Counts a hop of a request that is to be forwarded, RFC 3261 section 16.3 item 3 and section 16.6 item 3; one of the
 * above, or -1 for a response. */
PB_API int64_t sipsnMessageDecrementMaxForwards( SipsnMessage **msg );

/* ---- Transactions and dialogs ------------------------------------------------------------------------- */

/* Identifiers are texts to look things up by: no two transactions or dialogs have the same one. Tags, branches and
 * hosts are in lower case, as tokens and hosts compare (RFC 3261 section 7.3.1); Call-IDs, methods and request IRIs are
 * as they stand in the message. */

/* The client transaction of a response, or of the request itself, RFC 3261 section 17.1.3: the branch of the top Via,
 * and the method of CSeq or of the request. Null without them. */
PB_API PbString *sipsnMessageClientTransactionKey( SipsnMessage *msg );

/* The server transaction of a request, or of its response, RFC 3261 section 17.2.3: branch and sent-by of the top Via,
 * and the method, which is INVITE for an ACK. With another method set, a CANCEL has the key of what it cancels (section
 * 9.2).
 *
 * A request whose branch lacks the magic cookie has that of RFC 2543: method, request IRI, tags, Call-ID, CSeq number
 * and the whole top Via, so ask always before or always after sipsnMessageSetSource. Its ACK has the To tag of the
 * response, so it has the key that the INVITE has once sipsnMessageAddToTag has added that tag. A response without the
 * cookie has none. Null when a field that counts is absent or does not decode. */
PB_API PbString *sipsnMessageServerTransactionKey( SipsnMessage *msg );

/* The dialog of a message, RFC 3261 section 12: Call-ID, local tag and remote tag. `uas`: this side is the one that
 * received the request, and sent the response. The tag of a remote side that knows only RFC 2543 may be missing, in
 * From and in the To of a 2xx (sections 12.1.1 and 12.1.2); null without any other of the three. */
PB_API PbString *sipsnMessageDialogId( SipsnMessage *msg, bool uas );

PB_END_DECLS
#endif
