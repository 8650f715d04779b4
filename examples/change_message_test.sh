# change_message_test.sh PROGRAM: the program changes a request as it says, and README.md shows the program as it is.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

fail() { printf '%s\n' "$*"; exit 1; }

changed=$("$1" < examples/messages/options.sip | tr -d '\r')
[[ $changed == 'OPTIONS sip:bob@backup.example.com SIP/2.0'* ]] || fail "The request line is not changed: $changed"
[[ $changed == *$'\nSubject: Redirected'* ]] || fail "The header field is missing: $changed"
if "$1" < examples/messages/malformed.sip; then fail 'A malformed message was taken'; fi

shown=$(awk -v wanted=1 '/^```c$/ { ++at; inside = 1; next } /^```$/ { inside = 0 } inside && at == wanted' README.md)
[ -n "$shown" ] && [[ $(cat examples/change_message.c) == *"$shown"* ]] || fail 'README.md shows another program'
