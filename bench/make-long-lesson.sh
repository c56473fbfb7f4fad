#!/usr/bin/env bash
# Makes a 60-minute VBR MP3 lesson for the playback benchmark: espeak-ng
# sentences with pauses, looped by ffmpeg. Usage: make-long-lesson.sh OUT.mp3
set -euo pipefail
out="$1"
[ -s "$out" ] && exit 0
tmp="$(mktemp -d)"; trap 'rm -rf "$tmp"' EXIT
espeak-ng -v en-gb -s 150 -m -w "$tmp/part.wav" '<speak>Good morning, everyone.<break time="900ms"/>Today we will practise listening.<break time="900ms"/>Please write down every sentence you hear.<break time="900ms"/>Take your time, and check your spelling.<break time="900ms"/>The train to the city leaves at half past eight.<break time="900ms"/>She bought three apples, a loaf of bread and some cheese.<break time="900ms"/>See you next week.<break time="1500ms"/></speak>'
ffmpeg -nostdin -v error -y -stream_loop -1 -i "$tmp/part.wav" -t 3600 -ar 44100 -ac 2 \
  -c:a libmp3lame -q:a 2 "$tmp/long.mp3"
mv "$tmp/long.mp3" "$out"
