#!/bin/sh
# zerbal automation end to end: the worked session of the README, replayed.
# Its "> " lines, with /tmp/zb replaced by a folder made by `zerbal init`,
# piped through the tool must give exactly its "< " lines. Then a declarant
# and a declaration of 2014 saved the same way must export with the
# presenter that the session saved.
# Usage: automation_session.sh ZERBAL
set -eu
zerbal=$1
here=$(dirname "$0")
readme="$here/../../README.md"
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT

# The JSON library's own words for a line that is not JSON are not ours to pin.
unpin() { sed 's/\[json\.exception[^"]*/.../'; }
# The lines of the README's session block that begin with $1.
session() {
  awk '/^\$ build\/cli\/zerbal automation$/ { on = 1; next } on && /^```/ { on = 0 } on' "$readme" |
    sed -n "s/^$1 //p"
}

"$zerbal" init "$dir" >/dev/null
session '>' | sed "s|/tmp/zb|$dir|g" >"$dir/requests"
session '<' | unpin >"$dir/expected"
[ -s "$dir/requests" ] || { echo "no session in $readme" >&2; exit 1; }
"$zerbal" automation <"$dir/requests" | unpin >"$dir/got"
if ! cmp -s "$dir/expected" "$dir/got"; then
  echo "expected (README):" >&2
  cat "$dir/expected" >&2
  echo "got:" >&2
  cat "$dir/got" >&2
  exit 1
fi

"$zerbal" automation >"$dir/saved" <<EOF
{"op": "create", "class": "zerbal.cDeclarante"}
{"op": "let", "handle": 1, "name": "mdbmod", "value": "$dir/347mod.db"}
{"op": "call", "handle": 1, "name": "GuardarDeclarante", "args": [{"type": "Array", "bounds": [[0, 17]], "elements": [0, "12345678Z", "Iturri, Miren", "CL", "Kale Berria", 5, "", "", "2", "A", 20, "20600", "Eibar", 943, "700100", "", 0, ""]}]}
{"op": "create", "class": "zerbal.cDeclaraciones"}
{"op": "let", "handle": 2, "name": "mdbmod", "value": "$dir/347mod.db"}
{"op": "call", "handle": 2, "name": "GuardarDeclaracion", "args": [2014, "E", 1]}
EOF
if grep -q '"ok":false' "$dir/saved"; then
  cat "$dir/saved" >&2
  exit 1
fi
"$zerbal" export --dir "$dir" --year 2014 --out "$dir/347_2014.txt"
