# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by the real-window tests: a private home, a real X server (Xvfb) and
# a private PulseAudio server with one null sink whose monitor is recorded.
# Expects the caller to be inside its own D-Bus session already. Defines
# work, pids, probe, until_equal, fail, start_sound, start_window_manager, screenshot,
# screenshot_window and open_lesson;
# cleans up on exit.

# A test that has not started its own D-Bus session runs again inside one.
if [ -z "${KELMORA_IN_SESSION:-}" ]; then
  export KELMORA_IN_SESSION=1
  exec dbus-run-session -- "$0" "$@"
fi

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
probe() { /usr/bin/python3 "$here/atspi_probe.py" "$@"; }

# until_equal WHAT EXPECTED COMMAND...: polls COMMAND for up to five seconds;
# a command that fails counts as reading nothing.
until_equal() {
  local what="$1" expected="$2" got=""
  shift 2
  # Up to ten seconds: a machine busy with a build starts the window slowly.
  for _ in $(seq 50); do
    got="$("$@" 2>/dev/null || true)"
    [ "$got" = "$expected" ] && { echo "$what: $got"; return 0; }
    sleep 0.2
  done
  fail "$what reads '$got', not '$expected'"
}

fail() { echo "FAIL: $*" >&2; [ -f "$work/kelmora.log" ] && tail -5 "$work/kelmora.log" >&2; exit 1; }

work="$(mktemp -d)"
pids=()
cleanup() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
  if [ -f "$work/pulse/runtime/pid" ]; then kill "$(cat "$work/pulse/runtime/pid")" 2>/dev/null || true; fi
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

# A private home: settings, documents and transcripts go there.
export HOME="$work/home"
export XDG_CONFIG_HOME="$HOME/.config" XDG_DATA_HOME="$HOME/.local/share"
export XDG_RUNTIME_DIR="$work/xdg"
mkdir -p "$HOME" "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
unset WAYLAND_DISPLAY

# The X server, on the first free display number. Without -noreset it resets
# whenever its last client leaves, and a client arriving then can be refused:
# the probe below leaving, openbox or Kelmora arriving.
exec 5> "$work/display"
Xvfb -displayfd 5 -noreset -screen 0 1280x900x24 -nolisten tcp > "$work/xvfb.log" 2>&1 &
xvfb=$!
pids+=($xvfb)
for _ in $(seq 50); do [ -s "$work/display" ] && break; sleep 0.1; done
[ -s "$work/display" ] || fail "Xvfb did not start: $(cat "$work/xvfb.log")"
export DISPLAY=":$(head -n1 "$work/display")"
# A window that cannot reach the server fails to load Qt's xcb plugin and
# aborts; a plain client gets in first, so that a failure says where it was.
reached=""
for _ in $(seq 50); do
  xdotool getdisplaygeometry > /dev/null 2>&1 && { reached=1; break; }
  sleep 0.1
done
kill -0 "$xvfb" 2>/dev/null || fail "Xvfb on $DISPLAY ended: $(cat "$work/xvfb.log")"
[ -n "$reached" ] || fail "no client reaches the X server on $DISPLAY: $(cat "$work/xvfb.log")"

# The sound server with one null sink; a silent stream keeps it awake, and the
# sink's monitor is recorded into $work/capture.raw (48 kHz mono s16).
start_sound() {
  mkdir -p "$work/pulse/runtime" "$work/pulse/state"
  export PULSE_RUNTIME_PATH="$work/pulse/runtime" PULSE_STATE_PATH="$work/pulse/state"
  local socket="$work/pulse/native"
  pulseaudio --daemonize=yes -n --exit-idle-time=-1 --use-pid-file=yes \
    --load="module-null-sink sink_name=testsink rate=48000 channels=2" \
    --load="module-native-protocol-unix auth-anonymous=1 socket=$socket" \
    --load=module-always-sink > "$work/pulse.log" 2>&1 || fail "pulseaudio: $(cat "$work/pulse.log")"
  export PULSE_SERVER="unix:$socket"
  for _ in $(seq 50); do pactl info > /dev/null 2>&1 && break; sleep 0.1; done
  pacat -p --latency-msec=20 < /dev/zero &
  pids+=($!)
  parec --latency-msec=20 -d testsink.monitor --format=s16le --rate=48000 --channels=1 > "$work/capture.raw" &
  pids+=($!)
}

# A window manager (openbox), for what focus, activation and dialogs need;
# waits until it has taken the screen.
start_window_manager() {
  openbox --sm-disable > "$work/openbox.log" 2>&1 &
  pids+=($!)
  for _ in $(seq 50); do
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && return 0
    sleep 0.1
  done
  fail "openbox did not start: $(cat "$work/openbox.log")"
}

# screenshot NAME [WINDOW]: the whole screen into SHOTS/NAME.png. Without a
# window manager the root picture leaves a second window black, so WINDOW's
# own picture is laid over it at its place.
screenshot() {
  mkdir -p "$shots"
  xwd -root -silent -display "$DISPLAY" > "$work/screen.xwd"
  if [ -z "${2:-}" ]; then
    ffmpeg -nostdin -v error -y -i "$work/screen.xwd" "$shots/$1.png"
    return
  fi
  local X Y WIDTH HEIGHT SCREEN WINDOW
  eval "$(xdotool getwindowgeometry --shell "$2")"
  xwd -id "$2" -silent -display "$DISPLAY" > "$work/window.xwd"
  ffmpeg -nostdin -v error -y -i "$work/screen.xwd" -i "$work/window.xwd" \
    -filter_complex "overlay=$X:$Y" "$shots/$1.png"
}

# screenshot_window NAME ID: one window into SHOTS/NAME.png. A dialog over the
# main window reads as black from the root window here, but whole from itself.
screenshot_window() {
  mkdir -p "$shots"
  xwd -id "$2" -silent -display "$DISPLAY" > "$work/window.xwd"
  ffmpeg -nostdin -v error -y -i "$work/window.xwd" "$shots/$1.png"
}

# window_named TITLE: waits up to ten seconds for a visible window of that title.
window_named() {
  local id=""
  for _ in $(seq 50); do
    id="$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n1 || true)"
    [ -n "$id" ] && { echo "$id"; return 0; }
    sleep 0.2
  done
  return 1
}

# gone TITLE: waits up to five seconds for no visible window of that title.
gone() {
  for _ in $(seq 25); do
    xdotool search --onlyvisible --name "^$1\$" > /dev/null 2>&1 || return 0
    sleep 0.2
  done
  return 1
}

# open_lesson KELMORA FIXTURE: starts Kelmora on the fixture and waits until
# its window, titled after the file, is shown and active. Sets title, app
# (the process) and main (the window).
open_lesson() {
  title="$(basename "${2%.*}")"
  "$1" "$2" > "$work/kelmora.log" 2>&1 &
  app=$!
  pids+=($app)
  probe wait-window "$title" > /dev/null || fail "no window titled $title"
  main="$(window_named "$title")" || fail "no visible window titled $title"
  xdotool windowactivate --sync "$main"
}

# start_desktop: the sound server, the window manager, and Kelmora's
# environment for a real window read over the accessibility bus.
start_desktop() {
  start_sound
  start_window_manager
  export LANG=C.UTF-8 LANGUAGE=
  export QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1
}
