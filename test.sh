#!/usr/bin/env bash
# Builds everything with warnings as errors and runs all tests. Further arguments go to ctest.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")"
source tools/setup.sh

install_build_packages "${test_packages[@]}"
build_preset dev

# No test may see or write what belongs to the user.
home=$(mktemp -d)
trap 'rm -rf -- "$home"' EXIT
mkdir -m 700 "$home/runtime"
export XDG_CONFIG_HOME="$home/config" XDG_DATA_HOME="$home/data" XDG_CACHE_HOME="$home/cache"
export XDG_STATE_HOME="$home/state" XDG_RUNTIME_DIR="$home/runtime"
export QT_QPA_PLATFORM=offscreen
# Numbers in files and texts must not follow a locale with a decimal comma, so there must be one.
mkdir -p "$home/locale"
localedef --no-archive -i de_DE -f UTF-8 "$home/locale/de_DE.UTF-8"
export LOCPATH="$home/locale"
ctest --preset dev "$@"
