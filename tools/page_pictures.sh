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

install_missing xvfb xauth xdotool imagemagick x11-utils
[[ -x $program ]] || die "no program at $program; ./run.sh builds it"
mkdir -p "$out"

home=$(mktemp -d)
server= app=
stop() {
  [[ -z $app ]] || kill "$app" 2>/dev/null || true
  [[ -z $server ]] || kill "$server" 2>/dev/null || true
  wait
  app= server=
}
trap 'stop; rm -rf -- "$home"' EXIT

picture() { sleep "${2:-0.8}"; import -window root "$out/$1-$mode-$size.png"; }
click() { xdotool mousemove "$1" "$2" click 1; }

# Starts the program on a screen that is just as large as its window shall be.
start() {
  exec 3< <(exec Xvfb -displayfd 1 -screen 0 "${size}x24" -nolisten tcp 2>/dev/null)
  server=$!
  read -r display <&3
  export DISPLAY=":$display"
  mkdir -p "$home/config/Dunmarrow" "$home/tmp"
  printf '[ui]\ndarkMode=%s\nlanguage=%s\n' "$([[ $mode == dark ]] && echo true || echo false)" \
    "${UI_LANGUAGE:-en}" >"$home/config/Dunmarrow/Dunmarrow.conf"
  env XDG_CONFIG_HOME="$home/config" TMPDIR="$home/tmp" "$program" &
  app=$!
  for _ in {1..100}; do
    xdotool search --onlyvisible --name '^Dunmarrow$' >/dev/null 2>&1 && break
    sleep 0.2
  done
  sleep 1
  xdotool search --onlyvisible --name '^Dunmarrow$' windowfocus
}

for size in "${sizes[@]}"; do
  for mode in "${modes[@]}"; do
    say "$size, $mode"
    start
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
      until grep -q 'UI emitted resultsChanged' <(tail -n 3 "$home/tmp/dunmarrow.log"); do sleep 1; done
      picture solved
      xdotool key ctrl+4
      picture results
    fi
    stop
  done
done
say "Pictures in $out"
