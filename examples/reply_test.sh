# reply_test.sh PROGRAM: the program answers a request, and README.md shows the program as it is.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

fail() { printf '%s\n' "$*"; exit 1; }

answer=$("$1" < examples/messages/ims_invite.sip | tr -d '\r')
[[ $answer =~ $'\nTo: <tel:+12025550190;phone-context=ims.example.net>;tag='[0-9a-f]{16}$'\n' ]] ||
    fail "To has no tag: $answer"
expected='SIP/2.0 200 OK
Call-Id: cb03a0s09a2sdfglkj490333
Cseq: 127 INVITE
From: <sip:+12025550123@home1.example.net;user=phone>;tag=171828
Record-Route: <sip:scscf1.home1.example.net;lr>, <sip:pcscf1.visited1.example.org;lr>
Via: SIP/2.0/UDP scscf1.home1.example.net;branch=z9hG4bK332b23.1
Via: SIP/2.0/UDP pcscf1.visited1.example.org;branch=z9hG4bK240f34.1
Via: SIP/2.0/UDP [2001:db8:5555::aaa]:1357;comp=sigcomp;rport=5060;branch=z9hG4bKnashds7;keep
Content-Length: 0'
[ "$(grep -v '^To:' <<< "$answer")" = "$expected" ] || fail "Another answer: $answer"

within=$("$1" < examples/messages/bye_reason.sip | tr -d '\r')
[[ $within == *$'\nTo: "Alice" <sip:alice@example.com>;tag=9fxced76sl\n'* ]] || fail "The tag is not kept: $within"
for message in malformed ok_record_route; do
    if "$1" < examples/messages/$message.sip; then fail "$message was answered"; fi
done

shown=$(awk -v wanted=2 '/^```c$/ { ++at; inside = 1; next } /^```$/ { inside = 0 } inside && at == wanted' README.md)
[ -n "$shown" ] && [[ $(cat examples/reply.c) == *"$shown"* ]] || fail 'README.md shows another program'
