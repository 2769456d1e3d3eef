#!/usr/bin/env bash
# Brings the translation sources in i18n/ up to date with the texts of the pages and the program.
# New texts come in untranslated; those that are gone go.
#
#   tools/update_translations.sh [OUTDIR]
#
# OUTDIR is i18n if not given.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

out=${1:-i18n}
lupdate=$(command -v lupdate6 || echo /usr/lib/qt6/bin/lupdate)
for language in de es fr it pl pt_BR ru; do
  "$lupdate" -silent -no-obsolete -locations none -source-language en_US \
    -target-language "$language" Main.qml qml app project -ts "$out/velmora_$language.ts"
done
