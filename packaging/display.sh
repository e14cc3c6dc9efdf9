# Shared by the checks of packages: a virtual display with a window manager, and a user's hands on
# it. Whoever sources it calls end_display at the end.
# shellcheck shell=sh

display_processes=''

# Sets DISPLAY. $1 is a folder to work in.
start_display() {
  Xvfb -displayfd 3 -screen 0 1366x768x24 3>"$1/display" 2>/dev/null &
  display_processes=$!
  until [ -s "$1/display" ]; do sleep 0.2; done
  DISPLAY=:$(cat "$1/display")
  export DISPLAY
  openbox >/dev/null 2>&1 &
  display_processes="$! $display_processes"
}

end_display() {
  # shellcheck disable=SC2086  # a list of words
  [ -z "$display_processes" ] || kill $display_processes 2>/dev/null || true
}

# Waits for a window whose title is like $1, and gives it the focus. Fails after a minute. A search
# fails also when some other window closes under it, so it is always done again.
find_window() {
  for _ in $(seq 120); do
    sleep 0.5
    xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 || continue
    sleep 1
    xdotool search --onlyvisible --name "$1" windowactivate 2>/dev/null || continue
    sleep 0.5
    return 0
  done
  echo "There is no window '$1'." >&2
  return 1
}

# Waits until no window has a title like $1. Fails after a minute.
lose_window() {
  for _ in $(seq 120); do
    xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 || return 0
    sleep 0.5
  done
  echo "The window '$1' stays." >&2
  return 1
}

# Presses keys, one after the other, in the window that has the focus.
press() {
  xdotool key --delay 60 "$@"
  sleep 0.5
}

take_picture() {
  import -window root "$1"
}
