#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs the real kelmora in a real X server (Xvfb) with a private D-Bus session
# and uses its preferences the way a learner does, with real key presses and
# clicks: Ctrl+, opens the window, the Up key raises the play speed, which is
# written at once; a shortcut field records Shift+N and keeps Ctrl+Q from
# quitting; a new language asks for a restart, and "Restart Now" starts a new
# kelmora in that language. What the windows show is read through AT-SPI.
#
# Usage: preferences_window_test.sh KELMORA SCREENSHOT_DIR
set -euo pipefail

kelmora="$1"
shots="$2"
source "$(dirname "$0")/desktop_session.sh"
# No sound server: the preferences make no sound. Texts in English to start.
unset PULSE_SERVER
export LANG=C.UTF-8 LANGUAGE=

export QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1
"$kelmora" > "$work/kelmora.log" 2>&1 &
app=$!
pids+=($app)

probe wait-window Kelmora > /dev/null || fail "no main window"
main="$(xdotool search --sync --name '^Kelmora$' | head -n1)"
xdotool windowfocus --sync "$main"
xdotool key --clearmodifiers ctrl+comma
probe wait-window Preferences > /dev/null || fail "Ctrl+, opened no preferences window"
prefs="$(xdotool search --sync --name '^Preferences$' | head -n1)"
xdotool windowfocus --sync "$prefs"
echo "Ctrl+, opened the preferences"

click() { # NAME: a left click in the middle of the named control
  local at; at="$(probe centre "$1")" || fail "no control $1"
  # shellcheck disable=SC2086
  xdotool mousemove --sync $at click 1
}

# The play speed: two presses of Up, each written to the settings file at once.
click "Play speed"
xdotool key Up Up
settings="$XDG_CONFIG_HOME/Kelmora/Kelmora.ini"
for _ in $(seq 25); do grep -q '^kPlaySpeed=1.2' "$settings" 2>/dev/null && break; sleep 0.2; done
grep -q '^kPlaySpeed=1.2' "$settings" || fail "kPlaySpeed not 1.2: $(grep kPlaySpeed "$settings" || true)"
echo "play speed: $(probe text 'Play speed'), stored $(grep '^kPlaySpeed' "$settings")"

# A shortcut field records Shift+N; Ctrl+Q while recording neither records nor quits.
click "Shortcuts"
click "Next segment"
xdotool key --clearmodifiers ctrl+q
sleep 0.3
kill -0 "$app" 2>/dev/null || fail "Ctrl+Q quit while a field recorded"
xdotool key shift+n
shown="$(probe text 'Next segment')"
[ "$shown" = "Shift+N" ] || fail "the field shows '$shown'"
echo "next segment field: $shown (Ctrl+Q ignored)"

# Without a window manager Xvfb's root picture leaves a second window black;
# the window's own picture is what it shows.
mkdir -p "$shots"
xwd -id "$prefs" -silent -display "$DISPLAY" > "$work/prefs.xwd"
ffmpeg -nostdin -v error -y -i "$work/prefs.xwd" "$shots/real-preferences.png"

# A new language: the restart prompt, then a new kelmora in Russian.
click "General"
# The pop-up opens on English; Russian is the eighth item.
click "English" # a pop-up is named by its current item
sleep 0.3
for _ in $(seq 7); do xdotool key Down; done
xdotool key Return
probe press "Restart Now" > /dev/null || fail "no restart prompt"
for _ in $(seq 100); do kill -0 "$app" 2>/dev/null || break; sleep 0.1; done
kill -0 "$app" 2>/dev/null && fail "kelmora still runs after Restart Now"
status=0
wait "$app" || status=$?
[ "$status" = 0 ] || fail "kelmora exited with $status"
grep -q '^AppLanguage=ru' "$settings" || fail "language not stored: $(grep AppLanguage "$settings" || true)"

title="Kelmora"
window="$(timeout 20 xdotool search --sync --name "^$title\$" | head -n1)" || fail "no restarted window"
again="$(xdotool getwindowpid "$window")"
pids+=($again)
[ "$again" != "$app" ] || fail "the same process"
buttons="$(probe buttons)"
echo "$buttons" | grep -qx "Открыть" || fail "the restarted window is not in Russian: $buttons"
echo "restarted as process $again, toolbar in Russian: $(echo "$buttons" | head -n3 | tr '\n' ' ')"
screenshot real-restarted-ru
kill "$again"
