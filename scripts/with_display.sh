#!/usr/bin/env bash
# Runs a command on a virtual display of its own, with a window manager, and ends both after it.
# usage: [SCREEN=WIDTHxHEIGHT] scripts/with_display.sh COMMAND...     exits with the status of the command
set -euo pipefail

work=$(mktemp -d)
started=()
end_display() {
  kill "${started[@]}" 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap end_display EXIT

fail() {
  echo "The $1 did not start:" >&2
  cat "$work/log" >&2
  return 1
}

# The server picks a free display and writes its number once it takes connections; should it die
# instead, the pipe ends and the read fails.
start_server() {
  Xvfb -displayfd 3 -screen 0 "${SCREEN:-1280x1024}x24" -nolisten tcp 3>"$work/number" >"$work/log" 2>&1 &
  started+=($!)
  if ! read -r number <"$work/number"; then
    fail "virtual display"
    return
  fi
  export DISPLAY=":$number"
}

# A desktop count is there as soon as the window manager manages.
start_window_manager() {
  local deadline=$((SECONDS + 30))
  openbox --sm-disable >"$work/log" 2>&1 &
  started+=($!)
  until xdotool get_num_desktops >/dev/null 2>&1; do
    if [ $SECONDS -ge $deadline ] || ! kill -0 "${started[-1]}" 2>/dev/null; then
      fail "window manager"
      return
    fi
    sleep 0.02
  done
}

start_display() {
  start_server && start_window_manager
}

mkfifo "$work/number"
unset WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb
if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
  mkdir -m 700 "$work/runtime"
  export XDG_RUNTIME_DIR="$work/runtime"
fi

# A server that ended just now can take the socket of the next one of its number with it.
start_display || start_display

"$@"
