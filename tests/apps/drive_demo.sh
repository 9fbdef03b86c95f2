#!/usr/bin/env bash
# Drives the demo in a real window on a virtual X display, as a user would: clicks the OK button
# and presses F12 for a screenshot. Usage: drive_demo.sh GLYPHON_PROGRAM OUTPUT_FOLDER
# Leaves OUTPUT_FOLDER/events.log and OUTPUT_FOLDER/glyphon-demo-1.png.
set -euo pipefail
program=$1
out=$2

# Waits up to ten seconds for a command to succeed.
wait_for() {
  for _ in $(seq 100); do
    if "$@"; then return 0; fi
    sleep 0.1
  done
  echo "timed out waiting for: $*" >&2
  return 1
}

"$program" demo --event-log "$out/events.log" --screenshots "$out" >"$out/demo.out" 2>&1 &
demo=$!
trap 'kill $demo 2>/dev/null || true' EXIT

window=$(wait_for xdotool search --onlyvisible --name "Glyphon demo" | head -n 1)
# Without a window manager nothing raises the window: give it time to show its first frame, and
# come into it from outside so that it sees the pointer enter.
sleep 1
# The form is drawn 8 pixels in; the OK button is at (16, 16) on the form, 120 by 32.
xdotool mousemove 0 0
sleep 0.2
xdotool mousemove --window "$window" 84 40
sleep 0.3
xdotool mousedown 1
sleep 0.2
xdotool mouseup 1
wait_for grep -q "cmdOK: Click" "$out/events.log"
xdotool key F12
wait_for test -s "$out/glyphon-demo-1.png"
