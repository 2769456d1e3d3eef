#!/usr/bin/env bash
# Installs a build into a folder of its own and looks at what is there: every file that must be, and
# none besides; and each that has a format is well formed.
#
#   installed_tree.sh BUILD SOURCE
set -euo pipefail
build=$1 source=$2

root=$(mktemp -d)
trap 'rm -rf -- "$root"' EXIT
DESTDIR=$root cmake --install "$build" --prefix /usr >/dev/null
share=$root/usr/share

fail() {
  echo "$*" >&2
  failed=1
}
failed=0

expected() {
  printf '%s\n' bin/dunmarrow bin/dunmarrow-cli libexec/dunmarrow/dunmarrow \
    share/applications/dunmarrow.desktop \
    share/metainfo/example.dunmarrow.dunmarrow.metainfo.xml \
    share/mime/packages/dunmarrow.xml \
    share/icons/hicolor/scalable/apps/dunmarrow.svg \
    share/icons/hicolor/{16x16,22x22,24x24,32x32,48x48,64x64,128x128,256x256,512x512}/apps/dunmarrow.png \
    share/man/man1/dunmarrow{,-cli}.1.gz \
    share/doc/dunmarrow/{guide.md,changelog.gz}
  (cd "$source/packaging" && find licenses -type f -printf 'libexec/dunmarrow/%p\n')
  (cd "$source/docs" && find pictures -type f -printf 'share/doc/dunmarrow/%p\n')
  (cd "$source" && find examples -type f -printf 'share/doc/dunmarrow/%p\n')
}
diff <(expected | sort) <(cd "$root/usr" && find . ! -type d -printf '%P\n' | sort) ||
  fail "The tree lacks what is marked <, and must not have what is marked >."

[[ $(readlink -f "$root/usr/bin/dunmarrow") == "$root/usr/libexec/dunmarrow/dunmarrow" ]] ||
  fail "bin/dunmarrow leads nowhere."
for program in dunmarrow dunmarrow-cli; do
  "$root/usr/bin/$program" --version | grep -qx "$program [0-9.]*" || fail "No version of $program."
  errors=$(man --warnings -l "$share/man/man1/$program.1.gz" 2>&1 >/dev/null) || true
  [[ -z $errors ]] || fail "$errors"
done
"$root/usr/bin/dunmarrow-cli" estimate "$share/doc/dunmarrow/examples/river.json" >/dev/null ||
  fail "The examples are of no use."

for icon in "$share"/icons/hicolor/*x*/apps/dunmarrow.png; do
  size=$(basename "$(dirname "$(dirname "$icon")")")
  # Width and height stand behind the first 16 bytes of a PNG file.
  read -r width height < <(od -An -tu4 --endian=big -j16 -N8 "$icon")
  [[ ${width}x$height == "$size" ]] || fail "The icon of $size has ${width}x$height pixels."
done

desktop-file-validate "$share/applications/dunmarrow.desktop" || fail "The desktop entry is wrong."
appstreamcli validate --no-net "$share"/metainfo/*.xml || fail "The metainfo is wrong."
XDG_DATA_DIRS=$share update-mime-database "$share/mime"
type=$(sed -n 's/^[0-9]*:\(.*\):\*\.velmoraproj$/\1/p' "$share/mime/globs2")
grep -q "^MimeType=$type;$" "$share/applications/dunmarrow.desktop" ||
  fail "The program does not open the type of .velmoraproj files, '$type'."

# Each picture that the guide shows is there.
grep -o '](pictures/[^)]*' "$share/doc/dunmarrow/guide.md" | cut -c3- | while read -r picture; do
  [[ -f $share/doc/dunmarrow/$picture ]] || { echo "The guide lacks $picture." >&2; exit 1; }
done || failed=1
exit "$failed"
