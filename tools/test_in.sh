#!/usr/bin/env bash
# Builds the sources and runs all tests in a Debian of another release, with its Qt. Run as root.
#
#   tools/test_in.sh [RELEASE] [ARGUMENT...]
#
# RELEASE is trixie if not given. The arguments go to ctest.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
source tools/setup.sh
source tools/root_folder.sh

trap leave_root EXIT
set_up_root "${1:-trixie}"
mkdir -p "$root/src"
git ls-files -z | tar --create --null --files-from - | tar --extract --directory "$root/src"
inside /src/test.sh "${@:2}"
