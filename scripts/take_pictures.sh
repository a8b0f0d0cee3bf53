#!/usr/bin/env bash
# Takes the pictures of docs/pictures from the running program, with the sample decks, at twice the size for sharp screens.
# It brings a display that is no larger than the windows need: so little of each picture is backdrop.
# usage: scripts/take_pictures.sh [FOLDER]     after ./run; FOLDER for a look before they change
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
readonly screen=1328x1112 scale=2
if [ "${SCREEN:-}" != $screen ]; then
  SCREEN=$screen exec "$root/scripts/with_display.sh" "${BASH_SOURCE[0]}" "$@"
fi
build=$root/build/release
pictures=${1:-$root/docs/pictures}
mkdir -p "$pictures"

# A home of its own: the pictures show the program as it comes, and everywhere in the same letters.
HOME=$(mktemp -d)
export HOME LC_ALL=C.UTF-8 QT_SCALE_FACTOR=$scale
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_STATE_HOME XDG_CACHE_HOME
mkdir -p "$HOME/.config/fontconfig"
cat >"$HOME/.config/fontconfig/fonts.conf" <<'END'
<fontconfig><alias><family>sans-serif</family><prefer><family>Noto Sans</family></prefer></alias></fontconfig>
END
program=
window=
readonly endedBySigterm=143

# A program that has ended before, or in another way, has broken down.
end_program() {
  local status=0
  kill "$program" 2>/dev/null || true
  wait "$program" 2>/dev/null || status=$?
  program=
  [ $status = $endedBySigterm ] || { echo "The program ended with status $status." >&2; exit 1; }
}
trap '[ -z "$program" ] || kill "$program" 2>/dev/null; rm -rf "$HOME"' EXIT

# settings MAIN_COLOR MAIN_3D SMALL_COLOR SMALL_3D
settings() {
  printf '[Settings]\nShowSplash=0\nFirstLoad=False\nLargeCardColor=%s\nLargeCard3D=%s\nSmallCardColor=%s\nSmallCard3D=%s\n' \
    "$@" >"$HOME/.config/Tessara.conf"
}

# shown NAME: waits for a window whose title matches, and leaves its number in `window`.
shown() {
  local deadline=$((SECONDS + 20))
  until window=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1) && [ -n "$window" ]; do
    [ $SECONDS -lt $deadline ] || { echo "No window \"$1\" came." >&2; exit 1; }
    sleep 0.05
  done
  xdotool windowactivate --sync "$window"
  sleep 0.4
}

open() {
  "$build/tessara" "$@" &
  program=$!
  shown '^Tessara 1.0'
}

press() {
  xdotool key --delay 60 "$@"
  sleep 0.3
}

# at LEFT TOP [ACTION...]: moves the pointer to that place of the window, in unscaled pixels, and does the rest there.
at() {
  xdotool mousemove --window "$window" $(($1 * scale)) $(($2 * scale)) "${@:3}"
}

# menu LEFT KEY...: clicks the menu at that place of the bar and chooses with the keys.
menu() {
  at "$1" 9 click 1
  sleep 0.4
  press "${@:2}"
  # Away from the buttons, which would show that the pointer is on them.
  at 20 480
}
readonly file=15 mode=60 utility=105 help=150

enter() {
  xdotool type --delay 15 "$1"
  sleep 0.2
}

# builder [FROM_BELOW]: opens the builder, whose menu entry stands so many places above the end of
# the menu; disabled entries are passed over.
builder() {
  local up=()
  for _ in $(seq "${1:-3}"); do up+=(Up); done
  menu $file "${up[@]}" Return
}

take() {
  sleep 0.3
  "$root/scripts/screen_picture.py" "$pictures/$1.png" "$window"
}

capitals=$build/samples/capitals.tsr
science=$build/samples/science.tsr

settings 0 1 0 1
open
press alt+c
at $file 9 click 1
take frame
press Escape
end_program

mkdir "$HOME/Texts"
cp "$root"/data/samples/*.txt "$HOME/Texts"
open
press alt+c
menu $file Up Up Return
shown '^Open'
enter "$HOME/Texts"
press Return
enter capitals.txt
# Away with the list of names that begin so.
press Escape
take import
press Escape
end_program

open "$capitals"
frame=$window
press F1
shown '^Tessara Help'
take help
press Escape
window=$frame
menu $help a
shown '^About'
take about
press Escape
window=$frame
menu $utility Up Return
press ctrl+a
enter 'Capital cities'
press Tab
enter 'Ann'
take info
end_program

open
builder 2
enter 'What is the capital of Norway?'
press Tab
enter 'Oslo'
take builder-standard-new
end_program

open "$capitals"
builder
press ctrl+Page_Down
take builder-standard-edit
end_program

open
press alt+c
menu $file n x
builder 2
enter 'Which number is prime?'
press Tab
enter 'Four'
press Tab
enter 'Seven'
press shift+Tab space
take builder-question-new
end_program

open "$science"
builder
press ctrl+Page_Down ctrl+Page_Down
take builder-question-edit
end_program

open
press alt+c
menu $file u
take setup
end_program

open "$capitals"
take standard-front
press alt+s
take standard-back
menu $mode q
take quiz-standard
press alt+s
menu $mode t
press alt+s
take test-standard
press space
take test-next-card
end_program

open "$science"
take extended-front
press Page_Down
press alt+s
take extended-back
menu $mode q
press Page_Down
take quiz-extended
menu $mode t
press Down space
take test-graded
for _ in $(seq 59); do press space space; done
press Return
press space
take score
end_program

for skin in 'white-flat 0 0' 'white-3d 0 1' 'yellow-flat 1 0' 'yellow-3d 1 1'; do
  read -r name color is3d <<<"$skin"
  settings "$color" "$is3d" "$color" "$is3d"
  # A deck from the command line comes on the card that the program is drawn with.
  open
  menu $file o
  xdotool type --delay 20 "$science"
  press Return
  sleep 1
  press alt+s
  take "skin-$name"
  end_program
done
settings 0 1 0 1

# answer TITLE: waits for the box and takes its default button.
answer() {
  local frame=$window
  shown "^$1\$"
  press Return
  window=$frame
}

open "$capitals"
menu $file Up Up Return
# The button that selects all cards has no letter, the one beside it has.
at 346 437 click 1
sleep 0.5
# A click on a card shows its back.
at 224 164 click 1
take print-window
press alt+p
answer Print
answer 'PRINT FRONT'
answer 'PRINT BACK'
answer PRINT
end_program
for side in front:1 back:26; do
  pdftoppm -r 120 -f "${side#*:}" -singlefile -png "$HOME/print.pdf" "$pictures/sheet-${side%:*}"
done

open "$capitals"
menu $help Up Return
shown Separating
take separating
end_program
