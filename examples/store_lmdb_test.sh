# store_lmdb_test.sh PROGRAM: what one process keeps in a database, another restores.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
program=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
database=$scratch/database
mkdir "$database"

# The order of keys is not quite that of names ("Accept-Encoding/" stands before "Accept/"); that of one field's lines stays.
by_name() { LC_ALL=C sort -s -t : -k 1,1; }
fail() { printf '%s\n' "$*"; exit 1; }

# All messages first, so that each is restored from between the others. The identifier of one is the beginning of another's.
messages=(tests/tool/messages/all_types.sip examples/messages/{ims_invite,ok_record_route,unicode,bad_headers}.sip)
for message in "${messages[@]}"; do
    "$program" store "$database" "$message" < "$message" | by_name > "$scratch/$(basename "$message").kept"
done
"$program" store "$database" tests/tool < examples/messages/options.sip | by_name > "$scratch/options"
for message in "${messages[@]}"; do
    kept=$scratch/$(basename "$message").kept
    "$program" show "$database" "$message" | by_name > "$scratch/restored"
    cmp "$kept" "$scratch/restored" || fail "$message is not restored as it was kept"
done
"$program" show "$database" tests/tool | by_name | cmp "$scratch/options" - || fail 'Entries of another message were taken'

# In the canonical form of each type, line by line, and what has no type or does not decode as it came.
contains() { grep -qxF -- "$2" "$scratch/$1.kept" || fail "$1 lacks: $2"; }
[ "$(grep '^lines' "$scratch/all_types.sip.kept")" = 'lines  Content-Length: 0' ] || fail 'A type was not used'
contains all_types.sip 'typed  Session-Expires: 4000;refresher=uac;x=y'
contains all_types.sip 'typed  Supported: 100rel,timer'
contains all_types.sip 'typed  User-To-User: 56a390f3;encoding=hex;purpose=isdn-uui;content=isdn-uui;x=y'
contains ok_record_route.sip 'typed  Record-Route: <sip:core.example.net;transport=tcp;lr>'
contains ok_record_route.sip 'lines  Content-Type: application/sdp'
contains unicode.sip 'typed  Subject: 会議は三時から'
contains bad_headers.sip 'lines  Cseq: 4711INVITE'

# A message of the same name takes the place of the earlier one.
"$program" store "$database" "${messages[0]}" < examples/messages/options.sip | by_name > "$scratch/second"
"$program" show "$database" "${messages[0]}" | by_name | cmp "$scratch/second" - || fail 'Entries of the earlier message are left'

if "$program" show "$database" none 2> /dev/null; then fail 'A message was found that is not there'; fi
if "$program" store "$database" none < examples/messages/malformed.sip 2> /dev/null; then fail 'A malformed message was kept'; fi
