#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# A learner at a real desktop: the real kelmora in Xvfb under a window manager
# (openbox), a PulseAudio null sink and a private D-Bus session, driven only by
# real key presses and clicks, read through the accessibility bus.
#  - Typing goes where it belongs: back in a row the caret is at the end of its
#    text; a click in the waveform strip gives the keyboard to the row it chose.
#  - A rejected open leaves the lesson as it was: title, status bar, and the
#    typing is saved under the shown lesson, never under the rejected file.
#  - Every command from the keyboard: F10 opens the menu bar, menus have
#    mnemonics, Clear is a menu item, Escape closes the preferences.
#  - The close prompt's "Save" can create a new transcript file.
#  - The log: plain lines, no idle sound device taken for an error.
#
# Usage: learner_desk_test.sh KELMORA KELMORA_CLI FIXTURE SCREENSHOT_DIR
set -euo pipefail

kelmora="$1"
cli="$2"
fixture="$3"
shots="$4"
source "$(dirname "$0")/desktop_session.sh"
start_desktop


open_lesson "$kelmora" "$fixture"
until_equal "row 0 at the start" "" probe focused-text

# Back in a row, the caret is at the end of what is there.
xdotool type --delay 30 "first"
until_equal "row 0" "first" probe cell 0 1
xdotool key Down
xdotool type --delay 30 "second"
until_equal "row 1" "second" probe cell 1 1
xdotool key Up
xdotool type --delay 30 " more"
until_equal "row 0 after Up and typing" "first more" probe cell 0 1

# A click in the waveform strip on the first segment: the keys go to row 0.
# Down first, so that keys not handed back would land in row 1.
xdotool key Down
at="$(probe left-of "Waveform" 6)" || fail "no waveform strip"
# shellcheck disable=SC2086
xdotool mousemove --sync $at click 1
xdotool type --delay 30 "!"
until_equal "row 0 after a click in the strip" "first more!" probe cell 0 1
until_equal "row 1 after a click in the strip" "second" probe cell 1 1
screenshot learner-desk
status_before="$(probe status)"
case "$status_before" in *"$fixture"*) ;; *) fail "the status bar reads '$status_before'";; esac

# F10 opens the menu bar at File, whose first item is Open: the open panel. A text file named .mp3 is refused, and the lesson stays.
bad="$work/notes.mp3"
echo "not a recording" > "$bad"
xdotool key F10
sleep 0.3
xdotool key Down Return
panel="$(window_named "Open.*")" || fail "F10, Down, Return opened no panel"
echo "F10, Down, Return: $(xdotool getwindowname "$panel")"
xdotool windowactivate --sync "$panel"
xdotool type --delay 20 "$bad"
xdotool key Return
alert="$(window_named "Invalid File Type|Kelmora")" || fail "no alert for a text file"
xdotool windowactivate --sync "$alert"
xdotool key Return
gone "Invalid File Type" || fail "the alert stays"
until_equal "the title after the refused open" "$title" xdotool getwindowname "$main"
until_equal "the status bar after the refused open" "$status_before" probe status
until_equal "row 0 after the refused open" "first more!" probe cell 0 1

# Alt+E opens Edit; C is Clear Dictation…, which asks first; Escape keeps the rows.
xdotool windowactivate --sync "$main"
xdotool key alt+e
sleep 0.3
xdotool key c
warning="$(window_named "Warning")" || fail "Alt+E, C did not ask to clear"
xdotool windowactivate --sync "$warning"
xdotool key Escape
gone "Warning" || fail "Escape left the clear prompt open"
until_equal "row 0 after cancelling the clear" "first more!" probe cell 0 1
echo "Alt+E, C asked to clear; Escape kept the rows"

# Ctrl+, opens the preferences; Escape closes them.
xdotool windowactivate --sync "$main"
xdotool key --clearmodifiers ctrl+comma
prefs="$(window_named "Preferences")" || fail "Ctrl+, opened no preferences"
xdotool windowactivate --sync "$prefs"
xdotool key Escape
gone "Preferences" || fail "Escape left the preferences open"
echo "Escape closed the preferences"

# Closing with "Save" shows a save panel; a new file name creates the file.
xdotool windowactivate --sync "$main"
xdotool key --clearmodifiers ctrl+q
prompt="$(window_named "Save Dictation\?")" || fail "no close prompt"
xdotool windowactivate --sync "$prompt"
xdotool key Return
saved="$HOME/new-transcript.lrc"
panel="$(window_named "Save Transcript")" || fail "Save showed no save panel"
xdotool windowactivate --sync "$panel"
xdotool key ctrl+a
xdotool type --delay 20 "$saved"
xdotool key Return
status=0
for _ in $(seq 50); do kill -0 "$app" 2>/dev/null || break; sleep 0.1; done
wait "$app" || status=$?
[ "$status" = 0 ] || fail "kelmora exited with $status after Save"
grep -q "first more!" "$saved" || fail "the new transcript reads '$(cat "$saved" 2>/dev/null)'"
echo "Save created $(basename "$saved"): $(grep -c . "$saved") lines"

# The store holds the rows under the lesson, and nothing under the refused file.
store="$("$cli" identity "$fixture" | tail -n1)"
grep -q "first more!" "$store" || fail "the lesson's store file does not hold row 0"
refused="$("$cli" identity "$bad" 2>/dev/null | tail -n1 || true)"
[ -z "$refused" ] || [ ! -e "$refused" ] || fail "a transcript was saved under the refused file"
echo "the store file holds the rows under the lesson only"

# Kelmora's own log lines read as they are worded, and a sound device that
# ran dry between segments is no error.
grep -qx "File identifier: [0-9a-f]\{64\}" "$work/kelmora.log" || fail "no plain 'File identifier:' line in the log"
! grep -q "^kelmora\." "$work/kelmora.log" || fail "log lines carry their category"
! grep -q "ran out of data" "$work/kelmora.log" || fail "an idle sound device was logged as an error"
echo "the log reads as worded: $(grep -c . "$work/kelmora.log") lines"
