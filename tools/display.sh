# Sourced by the scripts that take pictures: the program on a screen of its own, with settings, a
# home and a log of its own, driven by mouse and keyboard.
# shellcheck shell=bash

install_missing xvfb xauth xdotool imagemagick x11-utils

# HOME_PARENT is the folder in which the program's home is made, if not that for temporary files.
home=$(mktemp -d -p "${HOME_PARENT:-${TMPDIR:-/tmp}}")
server='' app=''

# start_program PROGRAM WIDTHxHEIGHT dark|light [FILE]: on a screen just as large as the window shall
# be. UI_LANGUAGE is the code of its language.
start_program() {
  local program=$1 size=$2 mode=$3
  exec 3< <(exec Xvfb -displayfd 1 -screen 0 "${size}x24" -nolisten tcp 2>/dev/null)
  server=$!
  read -r display <&3
  export DISPLAY=":$display"
  mkdir -p "$home/config/Dunmarrow" "$home/cache" "$home/tmp"
  printf '[ui]\ndarkMode=%s\nlanguage=%s\n' "$([[ $mode == dark ]] && echo true || echo false)" \
    "${UI_LANGUAGE:-en}" >"$home/config/Dunmarrow/Dunmarrow.conf"
  env XDG_CONFIG_HOME="$home/config" XDG_CACHE_HOME="$home/cache" XDG_DATA_HOME="$home/data" TMPDIR="$home/tmp" \
    "$program" "${@:4}" &
  app=$!
  for _ in {1..300}; do
    xdotool search --onlyvisible --name 'Dunmarrow' >/dev/null 2>&1 && break
    kill -0 "$app" 2>/dev/null || die "the program has ended"
    sleep 0.2
  done
  sleep 2
  xdotool search --onlyvisible --name 'Dunmarrow' windowfocus
}

stop_program() {
  [[ -z $app ]] || kill "$app" 2>/dev/null || true
  [[ -z $server ]] || kill "$server" 2>/dev/null || true
  wait
  app='' server=''
}
trap 'stop_program; rm -rf -- "$home"' EXIT

# take_picture FILE [SECONDS]: after so long.
take_picture() {
  sleep "${2:-0.8}"
  import -window root "$1"
}

click() { xdotool mousemove "$1" "$2" click 1; }

# wait_for_result: until the solve that runs has handed its result over. Each waits for one.
results_seen=0
wait_for_result() {
  results_seen=$((results_seen + 1))
  until [[ $(grep -c 'UI emitted resultsChanged' "$home/tmp/dunmarrow.log") -ge $results_seen ]]; do
    kill -0 "$app" 2>/dev/null || die "the program has ended"
    sleep 1
  done
}
