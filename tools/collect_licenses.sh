#!/usr/bin/env bash
# Collects the licences of what the program links to, from the copyright files of the packages it is
# built with, into packaging/licenses. Run it again when a library comes or goes.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

out=packaging/licenses
rm -rf "$out"
mkdir -p "$out"

# Component, package whose copyright file tells its licences, and what the program has of it.
components=(
  "Qt Base|libqt6core6|Core, Gui, Network and the platform plugins; dynamic linking; LGPL v3"
  "Qt Declarative|libqt6quick6|Qml, Quick, Quick Controls, Layouts, Dialogs and Settings; dynamic linking; LGPL v3"
  "Qt SVG|libqt6svg6|the image plugin for SVG files; dynamic linking; LGPL v3"
  "Qt 5 Compatibility|qml6-module-qt5compat-graphicaleffects|graphical effects; dynamic linking; LGPL v3"
  "GCC runtime|libstdc++6|libstdc++ and libgcc; dynamic linking; GPL v3 with the runtime library exception"
  "GNU C Library|libc6|dynamic linking; LGPL v2.1"
)

{
  echo "Third-party notices of Dunmarrow"
  echo "================================"
  echo
  echo "Dunmarrow uses the components below, which belong to their authors. Each is used under the"
  echo "licence named with it. The file named last holds the copyright notices and licences of the"
  echo "component and of everything that it contains itself; the full texts of the licences that it"
  echo "refers to stand beside it."
  for component in "${components[@]}"; do
    IFS='|' read -r name package use <<<"$component"
    file=$(tr '[:upper:] ' '[:lower:]-' <<<"$name").txt
    cp "/usr/share/doc/$package/copyright" "$out/$file"
    echo
    echo "$name $(dpkg-query --show --showformat='${Version}' "$package")"
    echo "  Use: ${use}"
    echo "  Notices: $file"
  done
} >"$out/THIRD_PARTY_NOTICES.txt"

grep -ho '/usr/share/common-licenses/[A-Za-z0-9.-]*[A-Za-z0-9]' "$out"/*.txt | sort -u |
  while read -r license; do
    cp -L "$license" "$out/$(basename "$license").txt"
  done
chmod 644 "$out"/*
