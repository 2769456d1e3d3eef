#!/usr/bin/env bash
# Takes a picture of every page of the real program, in both modes and at three window sizes, by
# driving it with mouse and keyboard on a display of its own.
#
#   tools/page_pictures.sh [OUTDIR] [PROGRAM]
#
# OUTDIR is build/pictures if not given, PROGRAM build/release/app/dunmarrow. SIZES and MODES narrow
# down what is taken; UI_LANGUAGE is the code of another language than English; SOLVE=1 also waits
# for the quick solve to end, for the Results page. With QT_QUICK_BACKEND=software the pictures show
# what that renderer draws.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

out=${1:-build/pictures}
program=${2:-build/release/app/dunmarrow}
read -ra sizes <<<"${SIZES:-1540x1200 1366x768 1100x700}"
read -ra modes <<<"${MODES:-dark light}"

[[ -x $program ]] || die "no program at $program; ./run.sh builds it"
source tools/display.sh
mkdir -p "$out"

picture() { take_picture "$out/$1-$mode-$size.png" "${2:-}"; }

for size in "${sizes[@]}"; do
  for mode in "${modes[@]}"; do
    say "$size, $mode"
    start_program "$program" "$size" "$mode"
    picture home
    xdotool key ctrl+comma
    picture settings
    xdotool key ctrl+1
    click 180 415  # Quick Solve
    picture setup 2
    click 80 270  # The first card of the board
    picture picker
    xdotool key Escape
    sleep 0.5
    if [[ ${size#*x} -lt 900 ]]; then
      xdotool mousemove 400 500 click --repeat 12 5
      picture setup-lower
    fi
    xdotool key ctrl+3
    picture solve
    xdotool key F5
    picture solving 12
    if [[ -n ${SOLVE:-} ]]; then
      wait_for_result
      picture solved
      xdotool key ctrl+4
      picture results
    fi
    stop_program
  done
done
say "Pictures in $out"
