# demo.sh: what the tool does with the messages beside this file. Run by ./dev demo, which puts the tool in front of PATH.
set -euo pipefail
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cp "$(dirname "${BASH_SOURCE[0]}")"/messages/*.sip "$scratch"
cd "$scratch"

step() { printf '\n\033[1m# %s\033[0m\n' "$1"; }
[ -t 1 ] && [ -z "${NO_COLOR:-}" ] || step() { printf '\n# %s\n' "$1"; }
run() { printf '$ %s\n' "$1"; bash -c "$1"; }

step 'A call is set up: the message as a tree'
run 'sipsn decode invite.sip'
run "sipsn decode --json invite.sip | sed -n '/\"Session-Expires\"/,/^      }/p'"

step 'It is answered: busy here, and decoded again'
run 'sipsn reply 486 invite.sip | sipsn decode --raw'

step 'Folded lines, odd blanks, any spelling: the same message in canonical form'
run 'cat folded.sip'
run 'sipsn encode folded.sip'

step 'Encoding what was encoded changes nothing'
for file in *.sip; do
    sipsn encode "$file" > once 2> /dev/null || continue # the malformed ones
    sipsn encode once > twice
    cmp once twice
    printf '%-22s %5d bytes as received, %5d in canonical form, stable\n' "$file" "$(wc -c < "$file")" "$(wc -c < once)"
done

step 'A TCP stream with keep-alives: cut into messages'
run 'sipsn split --out cut stream.sip'
run 'sipsn check cut/*.sip'

step 'What is wrong, and where'
run 'sipsn check malformed.sip body_too_short.sip line_feeds.sip stream_cut_off.sip bad_headers.sip' || true

step 'Hostile text stays text'
run 'sipsn decode hostile.sip'
