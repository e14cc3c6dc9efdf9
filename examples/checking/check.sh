#!/bin/sh
# Checks every project of a folder: opens it, assembles it, steps it to its halt, and compares the
# cells that matter with answer.txt. A line for each project; 0 if all are right, 1 if not.
#   check.sh FOLDER
# QUILLA_ROBOT names the robot if it is neither installed with this folder nor on the path.
set -eu
[ $# -eq 1 ] || { echo "usage: $0 FOLDER" >&2 && exit 2; }
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
installed=$here/../../../../../bin/quilla-robot
[ -x "$installed" ] || installed=quilla-robot
robot=${QUILLA_ROBOT:-$installed}
most_steps=100
most_seconds=60 # some programs never finish assembling

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
{
  cat "$here/start.robot"
  yes 'click WatchWindowDialog.ExecuteButton' | head -n "$most_steps"
  cat "$here/cells.robot"
} >"$scratch/script"

# Prints what becomes of the project $1.
verdict() {
  if ! cp -- "$1" "$scratch/project.baf" ||
    ! (cd "$scratch" && timeout "$most_seconds" "$robot" <script >transcript); then
    echo 'could not be played'
    return
  fi
  refusal=$(sed -n 's/^box critical "\(.*\)" ok -> ok$/\1/p' "$scratch/transcript" | head -n 1)
  grep '^WatchWindowDialog' "$scratch/transcript" >"$scratch/cells" || true
  if [ -n "$refusal" ]; then
    echo "broken: $refusal"
  elif ! grep -q '^box information "Program execution halted\."' "$scratch/transcript"; then
    echo "wrong: no halt in $most_steps steps"
  elif cmp -s "$here/answer.txt" "$scratch/cells"; then
    echo 'right'
  else
    echo "wrong: $(grep -Fxv -f "$here/answer.txt" "$scratch/cells")"
  fi
}

result=0
for project in "$1"/*.baf; do
  [ -e "$project" ] || continue
  outcome=$(verdict "$project")
  printf '%s: %s\n' "$(basename -- "$project" .baf)" "$outcome"
  [ "$outcome" = right ] || result=1
done
exit "$result"
