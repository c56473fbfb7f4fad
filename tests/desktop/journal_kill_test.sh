#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Typing survives kill -9: the real kelmora in Xvfb under a window manager,
# typed into with real key presses and killed at random moments, fifty times,
# each time relaunched on the same recording. Even kills come once the keys
# have reached the row (read through AT-SPI), after a random wait of up to
# 1.5 s (across the journal's one-second sync and the auto-save of a row
# change); odd kills come while xdotool is still typing. Every character that
# reached the row before the kill must be back; a kill in the middle of the
# typing may lose only keys that had not arrived.
#
# Then the store file gets a byte that is not UTF-8 at its end (a damaged
# block) and the journal is removed: the next launch shows empty rows, the
# first save sets the file aside instead of writing over it, and File ->
# Recover Earlier Dictation... brings the typing back.
#
# Last, the recording is copied elsewhere: opening the copy, which has no
# transcript of its own, offers the dictation found for the same audio, and
# "Use It" (the default button, Return) brings row 0 back.
#
# Usage: journal_kill_test.sh KELMORA FIXTURE SCREENSHOT_DIR [KILLS]
set -euo pipefail

kelmora="$1"
fixture="$2"
shots="$3"
kills="${4:-50}"
source "$(dirname "$0")/desktop_session.sh"
start_desktop

title="$(basename "${fixture%.*}")"
RANDOM=20261125 # the same kill moments every run

launch() {
  "$kelmora" "${1:-$fixture}" >> "$work/kelmora.log" 2>&1 &
  app=$!
  pids+=($app)
  probe wait-window "$title" > /dev/null || fail "no window titled $title"
  main="$(window_named "$title")" || fail "no visible window titled $title"
  xdotool windowactivate --sync "$main"
}

# No spaces: the store keeps a row trimmed, and a kill while typing could
# leave a row ending in one.
words=(alpha beta gamma delta "" echo foxtrot golf hotel india)
confirmed=""
recovered=0
for kill in $(seq "$kills"); do
  launch
  until_equal "row 0 after launch $kill" "$confirmed" probe cell 0 1 > /dev/null
  word="${words[RANDOM % ${#words[@]}]}$kill-"
  if (( kill % 2 == 0 )); then
    xdotool type --delay 20 "$word"
    until_equal "row 0 typed" "$confirmed$word" probe cell 0 1 > /dev/null
    confirmed="$confirmed$word"
    sleep "$(printf '0.%03d' $((RANDOM % 1000)))"
    (( RANDOM % 2 )) && sleep 0.5
    kill -9 "$app"
    wait "$app" 2>/dev/null || true
  else
    xdotool type --delay 40 "$word" &
    typing=$!
    sleep "$(printf '0.%03d' $((RANDOM % 400)))"
    kill -9 "$app"
    wait "$app" 2>/dev/null || true
    wait "$typing" 2>/dev/null || true
    # What arrived is whatever prefix of the word the row had; the next
    # launch says which.
    launch
    got="$(probe cell 0 1 || true)"
    case "$confirmed$word" in "$got"*) ;; *) fail "after a kill while typing, row 0 reads '$got'";; esac
    case "$got" in "$confirmed"*) ;; *) fail "a kill while typing lost earlier typing: '$got'";; esac
    confirmed="$got"
    kill -9 "$app"
    wait "$app" 2>/dev/null || true
  fi
  recovered=$((recovered + 1))
done
launch
until_equal "row 0 after the last kill" "$confirmed" probe cell 0 1
echo "$recovered kills: every character that reached the row came back (${#confirmed} characters)"
grep -c "Recovered [0-9]* rows of typing" "$work/kelmora.log" | sed 's/^/launches that recovered typing from the journal: /'

# A store file that cannot be used whole is set aside, then recovered.
kill -9 "$app"
wait "$app" 2>/dev/null || true
store="$(find "$HOME" -path '*/Transcriptions/*' -type f ! -name '*.*' | head -n1)"
[ -n "$store" ] || fail "no store file under $HOME"
{ cat "$store"; printf '\xff'; } > "$work/cut" && cp "$work/cut" "$store"
find "$HOME" -type d -name journal -exec rm -rf {} +
launch
until_equal "row 0 over a damaged store file" "" probe cell 0 1
# The first save of a launch comes with the open, and moves the file aside.
until_equal "the status bar's message" \
  "A saved dictation that could not be used was set aside; File → Recover Earlier Dictation… brings it back" \
  probe status-message
cmp -s "$work/cut" "$(ls "$store".unused-* | head -n1)" || fail "the set-aside copy is not the file as it was"
xdotool key alt+f
sleep 0.3
xdotool key d
dialog="$(window_named "Recover Earlier Dictation")" || fail "Alt+F, D opened no recovery dialog"
xdotool windowactivate --sync "$dialog"
sleep 0.5 # painted before the picture
screenshot recover-dictation-window
screenshot_window recover-dictation "$dialog"
xdotool key Return
gone "Recover Earlier Dictation" || fail "the recovery dialog stayed open"
until_equal "row 0 after Recover" "$confirmed" probe cell 0 1
echo "a damaged store file was set aside whole and Recover brought row 0 back"

# The recovered rows reach the store (and its fingerprint index) at the next
# save, five seconds after the last.
sleep 5.2
xdotool key Down
for _ in $(seq 25); do grep -q "$confirmed" "$store" 2>/dev/null && break; sleep 0.2; done
grep -q "$confirmed" "$store" || fail "the recovered row was not saved"
kill -9 "$app"
wait "$app" 2>/dev/null || true
mkdir -p "$work/moved"
cp "$fixture" "$work/moved/$(basename "$fixture")"
launch "$work/moved/$(basename "$fixture")"
sheet="$(window_named "Kelmora")" || fail "opening a copy of the recording offered nothing"
xdotool windowactivate --sync "$sheet"
sleep 0.5 # painted before the picture
screenshot_window found-dictation "$sheet"
xdotool key Return
gone "Kelmora" || fail "the sheet stayed open"
until_equal "row 0 of the copy after Use It" "$confirmed" probe cell 0 1
echo "a copy of the recording found its dictation, and Use It brought row 0 back"
