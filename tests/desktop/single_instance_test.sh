#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Two real kelmora processes on a private session bus: the second, started on
# a file as a file manager would (a relative path, from the file's folder),
# hands the file to the first and exits 0; the first opens and plays it, and
# stays the only player on the bus.
#
# Usage: single_instance_test.sh KELMORA FIXTURE
set -euo pipefail

if [ -z "${KELMORA_IN_SESSION:-}" ]; then
  export KELMORA_IN_SESSION=1
  exec dbus-run-session -- "$0" "$@"
fi

kelmora="$(realpath "$1")"
fixture="$2"
fail() { echo "FAIL: $*" >&2; [ -f "$work/first.log" ] && tail -5 "$work/first.log" >&2; exit 1; }

work="$(mktemp -d)"
first=""
cleanup() {
  [ -n "$first" ] && kill "$first" 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

export HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" XDG_RUNTIME_DIR="$work/xdg"
mkdir -p "$HOME" "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
export QT_QPA_PLATFORM=offscreen
name=org.mpris.MediaPlayer2.kelmora
bus() { gdbus call --session --dest "$@"; }
player_property() {
  bus "$name" --object-path /org/mpris/MediaPlayer2 \
    --method org.freedesktop.DBus.Properties.Get org.mpris.MediaPlayer2.Player "$1"
}
# Polls a condition for up to 30 s.
until_true() {
  local deadline=$((SECONDS + 30))
  while [ $SECONDS -lt $deadline ]; do
    if "$@"; then return 0; fi
    sleep 0.2
  done
  return 1
}
owned() { bus org.freedesktop.DBus --object-path /org/freedesktop/DBus \
  --method org.freedesktop.DBus.NameHasOwner "$name" 2>/dev/null | grep -q true; }

"$kelmora" > "$work/first.log" 2>&1 &
first=$!
until_true owned || fail "the first instance never owned $name"
echo "first instance (pid $first) owns $name"

# The second start returns at once, with success.
cd "$(dirname "$fixture")"
status=0
timeout 30 "$kelmora" "$(basename "$fixture")" > "$work/second.log" 2>&1 || status=$?
[ "$status" = 0 ] || fail "the second instance exited with $status: $(cat "$work/second.log")"
echo "second instance handed the file over and exited 0"

title="$(basename "$fixture")"
titled() { player_property Metadata | grep -q "'xesam:title': <'$title'>"; }
until_true titled || fail "the running window never opened $title: $(player_property Metadata)"
playing() { player_property PlaybackStatus | grep -q Playing; }
until_true playing || fail "the running window does not play: $(player_property PlaybackStatus)"
echo "running instance shows $title and plays it"

owner_pid="$(bus org.freedesktop.DBus --object-path /org/freedesktop/DBus \
  --method org.freedesktop.DBus.GetConnectionUnixProcessID "$name" | tr -dc '0-9 ' | awk '{print $NF}')"
[ "$owner_pid" = "$first" ] || fail "$name is owned by pid $owner_pid, not $first"
kill -0 "$first" || fail "the first instance is gone"
echo "one player: pid $first still owns the name"
