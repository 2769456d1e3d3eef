# Sourced by the scripts at the root: what the program needs from the system, and how it is built.
# shellcheck shell=bash

# shellcheck disable=SC2034
build_packages=(
  build-essential
  cmake
  ninja-build
  qt6-base-dev
  qt6-declarative-dev
  qt6-tools-dev
  qt6-tools-dev-tools
  qt6-l10n-tools
  qt6-translations-l10n
  qt6-svg-dev
  libqt6svg6
  libgl1-mesa-dev
  libgl1-mesa-dri
  librsvg2-bin
  qml6-module-qtquick
  qml6-module-qtquick-window
  qml6-module-qtquick-controls
  qml6-module-qtquick-templates
  qml6-module-qtquick-layouts
  qml6-module-qtquick-dialogs
  qml6-module-qt-labs-settings
  qml6-module-qt-labs-folderlistmodel
  qml6-module-qt5compat-graphicaleffects
  qml6-module-qtqml
  qml6-module-qtqml-models
  qml6-module-qtqml-workerscript
)
# What newer releases have split off; installed where the system knows it.
split_off_packages=(
  qt6-svg-plugins
  qml6-module-qtquick-effects
)
# shellcheck disable=SC2034
test_packages=(
  appstream
  desktop-file-utils
  libbenchmark-dev
  libgmock-dev
  libgtest-dev
  locales
  man-db
  qml6-module-qttest
  shared-mime-info
)

say() { printf '%s\n' "$*" >&2; }
die() {
  say "error: $*"
  exit 1
}

is_installed() {
  [[ "$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null)" == installed ]]
}

as_root() {
  if [[ $EUID -eq 0 ]]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    die "not root, and there is no sudo. Run as root: $*"
  fi
}

# install_missing PACKAGE...: touches the system only if something is missing.
install_missing() {
  if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    if [[ -n "${DUNMARROW_SKIP_INSTALL:-}" ]]; then return; fi
    say "This system has no apt-get. Install what these Debian packages hold, then run again"
    say "with DUNMARROW_SKIP_INSTALL=1 set:"
    say "  $*"
    die "can't install packages here"
  fi
  local missing=()
  local package
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  if [[ ${#missing[@]} -eq 0 ]]; then return; fi
  say "Installing: ${missing[*]}"
  as_root apt-get update >&2
  as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install --yes --no-install-recommends "${missing[@]}" >&2 </dev/null
}

# install_build_packages [PACKAGE...]: what a build takes, and what is named.
install_build_packages() {
  install_missing "${build_packages[@]}" "$@"
  local known=()
  local package
  for package in "${split_off_packages[@]}"; do
    if apt-cache show "$package" &>/dev/null; then known+=("$package"); fi
  done
  install_missing "${known[@]}"
}

# build_preset PRESET [TARGET...]: configures and builds in build/PRESET; all targets if none given.
build_preset() {
  local preset=$1
  shift
  cmake --preset "$preset" >&2
  if [[ $# -gt 0 ]]; then
    cmake --build --preset "$preset" --target "$@" >&2
  else
    cmake --build --preset "$preset" >&2
  fi
}
