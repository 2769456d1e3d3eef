#!/usr/bin/env bash
# Takes the pictures of the user's guide: drives the real program through the quick spot with a turn
# card, which is solved in seconds.
#
#   tools/guide_pictures.sh [OUTDIR] [PROGRAM]
#
# OUTDIR is docs/pictures if not given, PROGRAM build/release/app/dunmarrow.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

out=${1:-docs/pictures}
program=${2:-build/release/app/dunmarrow}
[[ -x $program ]] || die "no program at $program; ./run.sh builds it"
source tools/display.sh
mkdir -p "$out"

# Small enough to be kept among the sources: 256 colours are plenty for this window.
picture() {
  take_picture "$home/$1.png" "${2:-}"
  convert "$home/$1.png" +dither -colors 256 -strip -define png:compression-level=9 "png8:$out/$1.png"
}
# One after the other, at a pace that the window follows: points as X,Y.
clicks() {
  local point
  for point in "$@"; do
    click "${point%,*}" "${point#*,}"
    sleep 0.8
  done
}
# The centre of a cell of the strategy grid beside the lock panel, by row and column from 0.
cell() { printf '%d,%d' $((373 + 37 * $2)) $((308 + 37 * $1)); }

start_program "$program" 1540x1060 dark
picture home 3

clicks 180,415           # Quick Solve
clicks 299,267 391,514   # the turn, the five of clubs
xdotool mousemove 770 90
picture setup 2
# The standard library of OOP: six players, a rake, against a raise, of the button, the call in the big blind.
clicks 645,505 599,629 611,707 611,707 611,785 611,785
picture library
clicks 235,30 180,415  # Home, and the quick spot again,
xdotool key shift+Tab space  # without saving the one at hand
sleep 0.8
clicks 299,267 391,514

# The key does nothing before the memory is known.
until grep -q 'UI solve progress' "$home/tmp/dunmarrow.log"; do
  xdotool key F5
  sleep 1
done
until grep -q 'Iter 5[0-9]' "$home/tmp/dunmarrow.log"; do sleep 0.3; done
picture solve 0.1
wait_for_result
sleep 1
xdotool key ctrl+4 mousemove 770 180
picture results 2
clicks 200,212  # OOP bets
xdotool mousemove 770 180
picture node
clicks 823,903 438,932  # Node-lock mode, Call
clicks "$(cell 6 7)" "$(cell 7 7)" "$(cell 7 8)" "$(cell 9 9)" "$(cell 10 10)" "$(cell 11 11)"
xdotool mousemove 770 180
picture locks
clicks 548,969 769,821 985,119 648,608  # Reset weights, Standard mode, the trainer, as OOP
# The first action until a hand or two have ended.
for _ in {1..8}; do
  sleep 2.5
  xdotool key 1
done
xdotool key Return
picture trainer 3
say "Pictures in $out"
