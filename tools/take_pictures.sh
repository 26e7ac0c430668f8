#!/bin/sh
# Takes the pictures of README.md: the launcher and every game in play, on a display that nobody sees.
# Usage: tools/take_pictures.sh [FOLDER]; needs Xvfb, openbox, xdotool and ImageMagick.
set -e
cd "$(dirname "$0")/.."
folder=${1:-documents/pictures}
home=$(mktemp -d)
export PASTIMO_HOME="$home" DISPLAY=:97
Xvfb :97 -screen 0 1000x800x24 >/dev/null 2>&1 &
server=$!
trap 'kill $program $server 2>/dev/null; rm -rf "$home"' EXIT
sleep 1
openbox >/dev/null 2>&1 &
build/apps/pastimo >/dev/null 2>&1 &
program=$!
sleep 3

picture() { import -window "$(xdotool getactivewindow)" "$folder/$1.png"; }
picture launcher

# The launcher's buttons stand in two rows of five, in this order.
at=0
for game in quindle mozaro brenlock harvel ostrel pellow vermoy kestrane glimmard fandrel; do
  xdotool mousemove --window "$(xdotool getactivewindow)" $((84 + at % 5 * 124)) $((188 + at / 5 * 74))
  xdotool click 1
  sleep 1.2
  xdotool key alt+p
  sleep 2.5
  picture $game
  xdotool key alt+F4
  sleep 0.8
  xdotool key alt+y
  sleep 1
  at=$((at + 1))
done
