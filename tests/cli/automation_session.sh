#!/bin/sh
# zerbal automation end to end: the requests of automation_session.requests,
# with @MOD@ replaced by a data database made by `zerbal init`, piped through
# the tool must give exactly the answers of automation_session.answers.
# Usage: automation_session.sh ZERBAL
set -eu
zerbal=$1
here=$(dirname "$0")
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT

"$zerbal" init "$dir" >/dev/null
sed "s|@MOD@|$dir/347mod.db|g" "$here/automation_session.requests" |
  "$zerbal" automation >"$dir/answers"
# The JSON library's own words for a line that is not JSON are not ours to pin.
sed 's/\[json\.exception[^"]*/.../' "$dir/answers" >"$dir/got"

if [ "$(cat "$dir/got")" != "$(cat "$here/automation_session.answers")" ]; then
  echo "expected:" >&2
  cat "$here/automation_session.answers" >&2
  echo "got:" >&2
  cat "$dir/got" >&2
  exit 1
fi
