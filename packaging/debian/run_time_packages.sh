#!/usr/bin/env bash
# Prints the packages that the program loads from at run time and that no library names, one a line
# with the lowest version that will do: that of the Qt it was built with.
#
#   run_time_packages.sh MODULE
#
# MODULE is the folder of the built QML module.
set -euo pipefail

qml=$(qtpaths6 --query QT_INSTALL_QML)
plugins=$(qtpaths6 --query QT_INSTALL_PLUGINS)
translations=$(qtpaths6 --query QT_INSTALL_TRANSLATIONS)
scanner=$(qtpaths6 --query QT_INSTALL_LIBEXECS)/qmlimportscanner

{
  # Each module that the pages import, and what that imports itself.
  "$scanner" -rootPath "$1" -importPath "$qml" | grep -oP '"path": "\K[^"]+' | sort -u |
    while read -r path; do
      if [[ $path == "$qml"/* ]]; then printf '%s\n' "$path/qmldir"; fi
    done
  # The texts of Qt's own dialogs in the languages of the program.
  printf '%s\n' "$translations/qtbase_de.qm"
  # Icons are SVG files; the window needs a platform.
  printf '%s\n' "$plugins/imageformats/libqsvg.so" "$plugins/platforms/libqxcb.so"
} | xargs -d '\n' dpkg-query --search | cut -d: -f1 | sort -u |
  while read -r package; do
    version=$(dpkg-query --show --showformat='${source:Upstream-Version}' "$package")
    printf '%s (>= %s)\n' "$package" "${version%%[+~-]*}"
  done
