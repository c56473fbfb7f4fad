#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# A transcription pedal at a real desktop: with "hold to play" on, the real
# kelmora in Xvfb plays while the play/pause key (Return) is held down and
# falls silent when it comes up. The keys are real X key press and release
# events; what is heard is the PulseAudio null sink's monitor. The held key
# types nothing into the row being typed in.
#
# Usage: hold_to_play_test.sh KELMORA FIXTURE
set -euo pipefail

kelmora="$1"
fixture="$2"
source "$(dirname "$0")/desktop_session.sh"
start_desktop

mkdir -p "$XDG_CONFIG_HOME/Kelmora"
printf '[General]\nkHoldToPlay=true\n' > "$XDG_CONFIG_HOME/Kelmora/Kelmora.ini"

open_lesson "$kelmora" "$fixture"
until_equal "rows at the start" "5" probe rows

# The lesson starts playing on its own (a fresh sound server also runs slow
# for its first second or two); a press and release of the pedal stops it.
sleep 2
xdotool keydown Return
sleep 0.3
xdotool keyup Return
# How much the monitor has recorded, read just after a key event: the sink
# plays what it was given a little before, so this is never late.
captured() { stat -c %s "$work/capture.raw"; }
stopped=$(captured)
xdotool type --delay 30 "good"
sleep 1

# Held for two seconds: X repeats the key all the while.
pressed=$(captured)
xdotool keydown Return
sleep 2
xdotool keyup Return
released=$(captured)
sleep 1
end=$(captured)
until_equal "row 0 after the held key" "good" probe cell 0 1

# The capture is 48 kHz mono s16: two bytes a sample. Read it and judge. What
# the device was already given when the key came up is dropped, so the sound
# must stop within 150 ms of the release.
python3 - "$work/capture.raw" "$stopped" "$pressed" "$released" "$end" <<'PY' || fail "the sound did not follow the key"
import array, sys
path, stopped, pressed, released, end = sys.argv[1], *map(int, sys.argv[2:])
samples = array.array('h', open(path, 'rb').read())
rate = 48000
def peak(a, b):
    return max((abs(x) for x in samples[a // 2:b // 2]), default=0)
def last_sound(a, b, floor=300):
    last = None
    for i in range(a // 2, min(b // 2, len(samples))):
        if abs(samples[i]) > floor:
            last = i
    return last
ms = lambda n: 1000.0 * n / rate
# After the first release: silence from 150 ms on, until the next press.
quiet = peak(stopped + 2 * rate * 150 // 1000, pressed)
# While held, past the device's start: sound.
held = peak(pressed + 2 * rate * 400 // 1000, released)
# After the second release: the last sound within 150 ms, then silence.
tail = last_sound(released, end)
after = ms(tail - released // 2) if tail is not None else 0.0
first = next((i for i in range(pressed // 2, released // 2) if abs(samples[i]) > 300), None)
onset = ms(first - pressed // 2) if first is not None else -1
print(f"peak after the first release {quiet}, while held {held} (first sound {onset:.0f} ms "
      f"after the press), last sound {after:.0f} ms after the release")
ok = quiet < 300 and held > 3000 and after <= 150
sys.exit(0 if ok else 1)
PY
grep -q "kHoldToPlay=true" "$XDG_CONFIG_HOME/Kelmora/Kelmora.ini" || fail "the setting was lost"
echo "PASS"
