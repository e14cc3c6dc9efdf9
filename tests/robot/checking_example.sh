#!/bin/sh
# The example is as it says: its projects are those that its script makes, and checking them gives
# its report; an endless program is stopped.   checking_example.sh ROBOT
set -eu
example=$(CDPATH='' cd -- "$(dirname -- "$0")/../../examples/checking" && pwd)
export QUILLA_ROBOT="$1"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
"$QUILLA_ROBOT" <"$example/make-projects.robot" >made.txt
for project in *.baf; do cmp "$project" "$example/projects/$project"; done
status=0
"$example/check.sh" "$example/projects" >report.txt || status=$?
[ "$status" -eq 1 ]
diff "$example/report.txt" report.txt
# Asked to end while it waits for a line, it leaves its work in a file and ends as the signal would.
mkfifo lines
XDG_STATE_HOME=$folder "$QUILLA_ROBOT" <lines >made.txt &
exec 3>lines
echo 'row NOP' >&3
until grep -q NOP made.txt; do sleep 0.1; done
kill $!
status=0
wait $! || status=$?
[ "$status" -eq 143 ]
grep -q NOP quilla/Pgm1.baf.rescue
mkdir 'one more'
printf 'row NOP "JMP a"\nclick PlaceLabelTool ; cell Table1 1 0 ; click ExistingPlaceOption
click PlaceAcceptButton ; click PlaceDoneButton ; path "one more/endless.baf" ; click SaveFile
' | "$QUILLA_ROBOT" >made.txt
"$example/check.sh" 'one more' | grep -Fx 'endless: wrong: no halt in 100 steps'
