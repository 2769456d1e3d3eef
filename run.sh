#!/usr/bin/env bash
# Builds Dunmarrow and starts it. Without a display it solves an example spot in the terminal.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")"
source tools/setup.sh

install_build_packages
build_preset release dunmarrow dunmarrow-cli

if [[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]]; then
  exec build/release/app/dunmarrow "$@"
fi
spot=examples/single_size_flop.json
say "No display: solving $spot in the terminal."
exec build/release/cli/dunmarrow-cli solve "$spot"
