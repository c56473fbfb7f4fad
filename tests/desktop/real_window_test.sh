#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs the real kelmora in a real X server (Xvfb) with a private PulseAudio
# null sink and a private D-Bus session, and uses it the way a learner does:
# it opens a lesson, segment 0 is heard, typing lands in row 0, and the close
# prompt's "Don't Save" ends the program with exit status 0. What the window
# shows is read through the accessibility bus (AT-SPI).
#
# Usage: real_window_test.sh KELMORA FIXTURE SCREENSHOT_DIR
# The script re-runs itself inside a private D-Bus session.
set -euo pipefail

kelmora="$1"
fixture="$2"
shots="$3"
source "$(dirname "$0")/desktop_session.sh"
start_sound

# Kelmora, as a file manager would start it, with its accessibility bridge on.
export QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1
"$kelmora" "$fixture" > "$work/kelmora.log" 2>&1 &
app=$!
pids+=($app)

title="$(basename "${fixture%.*}")"
probe wait-window "$title" > /dev/null || fail "no window titled $title"
echo "window titled: $title"

# The table has one row per segment, and row 0 has the focus.
rows="$(probe rows)"
[ "$rows" -gt 1 ] || fail "the table has $rows rows"
echo "rows: $rows"

# Segment 0 is heard: the capture holds sound within a few seconds.
heard=0
for _ in $(seq 40); do
  bytes=$(stat -c %s "$work/capture.raw")
  if [ "$bytes" -gt 96000 ]; then
    peak=$(sox -t raw -r 48000 -e signed -b 16 -c 1 "$work/capture.raw" -n stat 2>&1 | awk '/Maximum amplitude/ {print $3}')
    if awk -v p="$peak" 'BEGIN { exit !(p > 0.05) }'; then heard=1; break; fi
  fi
  sleep 0.25
done
[ "$heard" = 1 ] || fail "no sound in the capture (peak ${peak:-none})"
echo "heard: peak amplitude $peak"

# Typing goes into row 0.
window="$(xdotool search --sync --name "^$title\$" | head -n1)"
xdotool windowfocus --sync "$window"
xdotool type --delay 30 "Good morning"
typed=""
for _ in $(seq 25); do
  typed="$(probe cell 0 1)"
  [ "$typed" = "Good morning" ] && break
  sleep 0.2
done
[ "$typed" = "Good morning" ] || fail "row 0 reads '$typed'"
echo "row 0: $typed"
status="$(probe status)"
case "$status" in *"$title"*) ;; *) fail "status bar reads '$status'";; esac
echo "status bar: $status"

# The window as it looks now.
screenshot real-window

# Closing asks whether to save; "Don't Save" ends the program. The prompt
# opens with "Save" as its default button; Tab moves to "Don't Save".
xdotool key --clearmodifiers ctrl+q
prompt="$(timeout 20 xdotool search --sync --name "^Save Dictation\?\$" | head -n1)" ||
  fail "no close prompt"
xdotool windowfocus --sync "$prompt"
xdotool key Tab space
for _ in $(seq 50); do kill -0 "$app" 2>/dev/null || break; sleep 0.1; done
if kill -0 "$app" 2>/dev/null; then fail "kelmora still runs after Don't Save"; fi
status=0
wait "$app" || status=$?
[ "$status" = 0 ] || fail "kelmora exited with $status: $(tail -5 "$work/kelmora.log")"
echo "closed with Don't Save: exit status 0"
