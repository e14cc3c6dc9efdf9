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

# Prints the numbers of the windows with a title like $1; fails if there are none. A search fails
# also when some other window closes under it, so it is done again.
list_windows() {
  for _ in 1 2 3; do
    xdotool search --onlyvisible --name "$1" 2>/dev/null && return 0
    sleep 0.2
  done
  return 1
}

# Waits for a window with a title like $1, gives it the focus, and sets `window` to its number.
# Fails after some minutes.
find_window() {
  for _ in $(seq 60); do
    sleep 0.5
    list_windows "$1" >/dev/null || continue
    sleep 1
    window=$(list_windows "$1" | tail -n 1)
    xdotool windowactivate "$window" 2>/dev/null || continue
    sleep 0.5
    [ "$(xdotool getwindowfocus -f 2>/dev/null)" != "$window" ] || return 0
  done
  echo "There is no window '$1'." >&2
  return 1
}

# Waits until no window has a title like $1. Fails after a minute.
lose_window() {
  for _ in $(seq 120); do
    list_windows "$1" >/dev/null || return 0
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

# Presses the keys $2... in the window with a title like $1, which closes it. A program that is busy
# may lose a key when its window has just come.
close_by() {
  title=$1
  shift
  find_window "$title"
  closing=$window
  for _ in 1 2 3; do
    press "$@"
    for _ in $(seq 10); do
      list_windows "$title" | grep -qx "$closing" || return 0
      sleep 0.5
    done
    xdotool windowactivate "$closing" 2>/dev/null || true
    sleep 0.5
  done
  echo "The window '$title' stays." >&2
  return 1
}

take_picture() {
  import -window root "$1"
}
