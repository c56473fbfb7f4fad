#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Re-creates the demo lesson (lesson.mp3) with espeak-ng and ffmpeg. The result
# is committed, so this only runs when the lesson text changes.
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
tmp="$(mktemp -d)"; trap 'rm -rf "$tmp"' EXIT
espeak-ng -v en-gb -s 150 -m -w "$tmp/lesson.wav" '<speak>Good morning, everyone.<break time="900ms"/>Today we will practise listening.<break time="900ms"/>Please write down every sentence you hear.<break time="900ms"/>Take your time, and check your spelling.<break time="900ms"/>The train to the city leaves at half past eight.<break time="900ms"/>See you next week.<break time="1500ms"/></speak>'
ffmpeg -v error -y -i "$tmp/lesson.wav" -ac 1 -b:a 48k "$here/lesson.mp3"
