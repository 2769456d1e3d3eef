#!/usr/bin/env bash
# Builds the fuzzers and runs each for some seconds, as many at a time as there are processors.
#   tools/fuzz.sh [SECONDS [NAME...]]
# Without arguments: all of them, 25 seconds each. They start from the kept inputs of
# tests/fuzz/corpus and from what earlier runs found; what they find is in build/fuzz: inputs that
# reach new code in corpus/NAME, inputs that fail, with their logs, in failed/NAME.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

seconds=${1:-25}
shift || true
names=("$@")
if [[ ${#names[@]} -eq 0 ]]; then
  names=(board range sizing spot project manifest range_import)
fi

install_missing "${build_packages[@]}" clang-14 libclang-rt-14-dev
build_preset fuzz

# Nothing of the user's is read or written.
home=$(mktemp -d)
trap 'rm -rf -- "$home"' EXIT
export XDG_CONFIG_HOME=$home XDG_CACHE_HOME=$home XDG_DATA_HOME=$home QT_QPA_PLATFORM=offscreen
export UBSAN_OPTIONS=print_stacktrace=1

fuzz() {
  local name=$1 seconds=$2
  local failed=build/fuzz/failed/$name corpus=build/fuzz/corpus/$name options=()
  mkdir -p "$failed" "$corpus"
  if [[ -f tests/fuzz/dictionaries/$name.dict ]]; then
    options+=(-dict="tests/fuzz/dictionaries/$name.dict")
  fi
  if build/fuzz/tests/fuzz/velmora_"$name"_fuzzer -max_total_time="$seconds" -timeout=25 \
    -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$failed/" "${options[@]}" \
    "$corpus" "tests/fuzz/corpus/$name" >"$failed/log" 2>&1; then
    printf '%-14s %s inputs\n' "$name" \
      "$(sed -n 's/^stat::number_of_executed_units: *//p' "$failed/log")"
  else
    printf '%-14s FAILED, see %s/log\n' "$name" "$failed"
    tail -n 40 "$failed/log"
    return 1
  fi
}
export -f fuzz
# shellcheck disable=SC2016
printf '%s\n' "${names[@]}" | xargs -P "$(nproc)" -I{} bash -c 'fuzz "$1" "$2"' fuzz {} "$seconds"
