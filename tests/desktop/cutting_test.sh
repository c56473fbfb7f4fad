#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fixing the cutting at a real desktop: the real kelmora in Xvfb under a
# window manager with a PulseAudio null sink, driven by real key presses and
# a real mouse drag. A row is split at the play head and at its caret
# (Ctrl+B), merged back with the next (Ctrl+J), undone (Ctrl+Z), and a
# boundary is dragged in the waveform strip; then a subtitle file is attached
# and Alt+E, S cuts the lesson at its cues. The rows are read through the
# accessibility bus and the dragged start from the store file.
#
# Usage: cutting_test.sh KELMORA FIXTURE SCREENSHOT_DIR
set -euo pipefail

kelmora="$1"
fixture="$2"
shots="$3"
source "$(dirname "$0")/desktop_session.sh"
start_desktop

open_lesson "$kelmora" "$fixture"
until_equal "rows at the start" "5" probe rows

# The learner listens to the first sentence (a fresh sound server also runs
# slow for its first second or two). Down plays segment 1 (2.0 s to 4.78 s);
# the learner types while it plays and pauses with Return about a second in.
sleep 2
xdotool key Down
xdotool type --delay 30 "today we will practise"
sleep 0.8
xdotool key Return
until_equal "row 1" "today we will practise" probe cell 1 1

# The caret after "today we", then Ctrl+B: the row and the segment are cut.
xdotool key End
for _ in $(seq 14); do xdotool key Left; done
xdotool key ctrl+b
until_equal "rows after Ctrl+B" "6" probe rows
until_equal "row 1 after Ctrl+B" "today we" probe cell 1 1
until_equal "row 2 after Ctrl+B" "will practise" probe cell 2 1

# The caret is at the start of the new row: typing goes on there, and the
# first Ctrl+Z takes back that typing, not the split.
xdotool type --delay 30 "so "
until_equal "row 2 typed in" "so will practise" probe cell 2 1
xdotool key ctrl+z
until_equal "row 2 after the row's own undo" "will practise" probe cell 2 1
until_equal "rows after the row's own undo" "6" probe rows

# Up to row 1, Ctrl+J joins it with the next one.
xdotool key Up
xdotool key ctrl+j
until_equal "rows after Ctrl+J" "5" probe rows
until_equal "row 1 after Ctrl+J" "today we will practise" probe cell 1 1

# Ctrl+Z takes the merge back, then the split.
xdotool key ctrl+z
until_equal "rows after one Ctrl+Z" "6" probe rows
until_equal "row 2 after one Ctrl+Z" "will practise" probe cell 2 1
xdotool key ctrl+z
until_equal "rows after two Ctrl+Z" "5" probe rows
until_equal "row 1 after two Ctrl+Z" "today we will practise" probe cell 1 1
echo "split, merge and undo read back through AT-SPI"

# Drag segment 4's start marker (7.94 s, at 20 pixels a second) 40 pixels to
# the right in the strip's upper marker band: it starts at 9.94 s.
read -r sx sy sw sh < <(probe extents Waveform)
[ -n "${sh:-}" ] || fail "no waveform strip on the accessibility bus"
marker_x=$((sx + 159))
marker_y=$((sy + 27))
screenshot cutting-strip-before
xdotool mousemove "$marker_x" "$marker_y"
sleep 0.2
xdotool mousedown 1
for step in 10 20 30 40; do
  xdotool mousemove "$((marker_x + step))" "$marker_y"
  sleep 0.05
done
xdotool mouseup 1
store="$(find "$HOME" -path '*/Transcriptions/*' -type f ! -name '*.*' | head -n1)"
for _ in $(seq 25); do
  [ -n "$store" ] && grep -q '^\[00:09\.940\]' "$store" && break
  sleep 0.2
  store="$(find "$HOME" -path '*/Transcriptions/*' -type f ! -name '*.*' | head -n1)"
done
[ -n "$store" ] && grep -q '^\[00:09\.940\]' "$store" ||
  fail "the dragged start is not in the store: $(cat "$store" 2>/dev/null)"
sleep 0.3
screenshot cutting-strip-after
echo "the dragged start saved: $(grep -c '' "$store") lines, $(grep '^\[00:09' "$store")"

# Subtitles in three cues, attached through the File menu; Alt+E, S (Edit →
# Cut Segments at Sentences) makes one segment of each, and Ctrl+Z takes the
# cut back.
subtitles="$work/lesson.srt"
printf '%s\r\n' 1 "00:00:00,000 --> 00:00:04,700" "Good morning, everyone. Today we will practise." "" \
  2 "00:00:04,800 --> 00:00:07,900" "Please write down every sentence you hear." "" \
  3 "00:00:08,000 --> 00:00:14,000" "Take your time. See you next week." "" > "$subtitles"
xdotool key alt+f
sleep 0.3
xdotool key a
panel="$(window_named "Attach Reference Text…")" || fail "Alt+F, A opened no file panel"
xdotool windowactivate --sync "$panel"
xdotool type --delay 20 "$subtitles"
xdotool key Return
until_equal "the check bar once attached" "Press Ctrl+Return to check this segment." \
  probe described Check
xdotool windowactivate --sync "$main"
xdotool key alt+e
sleep 0.3
xdotool key s
until_equal "rows after Cut Segments at Sentences" "3" probe rows
screenshot cutting-at-sentences
xdotool key ctrl+z
until_equal "rows after undoing the cut" "5" probe rows
echo "cut at the subtitles' three cues through Alt+E, S, and undone"
