#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Checking typing against a reference text at a real desktop: the real kelmora
# in Xvfb under a window manager with a PulseAudio null sink, driven by real
# key presses. The lesson's text is attached through the File menu's file
# panel and aligned with Return on the language question, a sentence is
# typed with one typo and one word left out, Ctrl+Return checks it, and the
# check bar is read through the accessibility bus.
#
# Usage: reference_check_test.sh KELMORA FIXTURE SCREENSHOT_DIR
set -euo pipefail

kelmora="$1"
fixture="$2"
shots="$3"
source "$(dirname "$0")/desktop_session.sh"
start_desktop


# The fixture's five sentences, one line each: line i is segment i.
reference="$work/lesson.txt"
printf '%s\n' "Good morning, everyone." "Today we will practise listening." \
  "Please write down every sentence you hear." "Take your time, and check your spelling." \
  "See you next week." > "$reference"

open_lesson "$kelmora" "$fixture"
until_equal "row 0 at the start" "" probe focused-text

# Alt+F, A: File → Attach Reference Text…, a file panel.
xdotool key alt+f
sleep 0.3
xdotool key a
panel="$(window_named "Attach Reference Text…")" || fail "Alt+F, A opened no file panel"
xdotool windowactivate --sync "$panel"
xdotool type --delay 20 "$reference"
xdotool key Return
until_equal "the check bar once attached" "Press Ctrl+Return to check this segment." \
  probe described Check
echo "attached $(basename "$reference") through the File menu"

# A plain text brings the question of its language, English guessed; Return
# aligns its sentences on the recording behind a progress window of the same
# title, gone once they are placed.
question="$(window_named "Align Reference Text")" || fail "no language question for a plain text"
xdotool windowactivate --sync "$question"
screenshot align-question "$question"
xdotool key Return
gone "Align Reference Text" || fail "the alignment did not end"
grep -q "Aligned 5 sentences" "$work/kelmora.log" || fail "the five sentences were not aligned"
echo "aligned the five sentences with Return"

# Back in row 0: one typo, one word left out, then the Check key.
xdotool windowactivate --sync "$main"
xdotool type --delay 30 "Good mornin"
until_equal "row 0" "Good mornin" probe cell 0 1
xdotool key ctrl+Return
summary="2 mistakes: 'mornin' should be 'morning'; missing 'everyone'. Segment 50%, lesson 50%."
until_equal "the check bar after Ctrl+Return" "$summary" probe described Check
echo "check bar: $summary"
screenshot reference-check

# Typing takes the marks away until the next check; Ctrl+H gives a hint.
xdotool type --delay 30 "g"
until_equal "the check bar after typing" "Press Ctrl+Return to check this segment." \
  probe described Check
xdotool key ctrl+h
until_equal "the hint" "Press Ctrl+Return to check this segment. Next word: everyone" \
  probe described Check
echo "a change takes the check away; Ctrl+H names the next word"
