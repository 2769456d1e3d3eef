#!/usr/bin/env bash
# Builds the program and makes a Debian package of it, for the release that this system runs.
#
#   tools/package.sh [OUTDIR]
#
# OUTDIR is build/package if not given. The name of the package goes to standard output.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

out=$(realpath -m -- "${1:-build/package}")
install_build_packages dpkg-dev file
build_preset release
cpack --config build/release/CPackConfig.cmake -B "$out" >&2
package=("$out"/*.deb)
rm -rf "$out/_CPack_Packages"
if command -v lintian >/dev/null; then lintian --allow-root "${package[-1]}" >&2 || true; fi
printf '%s\n' "${package[-1]}"
