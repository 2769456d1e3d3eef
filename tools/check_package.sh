#!/usr/bin/env bash
# Installs a package in a bare Debian, starts it there and solves the quick spot by mouse. Run as root.
#
#   tools/check_package.sh PACKAGE [RELEASE] [OUTDIR]
#
# RELEASE is bookworm if not given, OUTDIR for the pictures build/package/pictures.
set -euo pipefail
package=$(realpath -- "${1:?a package is missing}")
release=${2:-bookworm}
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
source tools/setup.sh
out=${3:-build/package/pictures}

mkdir -p "$out"
source tools/root_folder.sh
trap leave_root EXIT
set_up_root "$release"
HOME_PARENT=$root/tmp
source tools/display.sh
leave() {
  stop_program
  leave_root
  rm -rf -- "$home"
}
trap leave EXIT
cp "$package" "$root/tmp/package.deb"

inside apt-get install --yes --no-install-recommends --reinstall /tmp/package.deb >&2
inside id user &>/dev/null || inside useradd --create-home user
inside dunmarrow --version
inside dunmarrow-cli --version

# The installed program, as a user of that system; it reaches the screen through the network.
chmod 755 "$home"
cat >"$home/program" <<PROGRAM
#!/bin/sh
chown -R --reference="$root/home/user" "$home"
exec chroot --userspec=user:user "$root" /usr/bin/env -i DISPLAY="\$DISPLAY" LANG=C.UTF-8 \\
  HOME=/home/user PATH=/usr/bin:/bin TMPDIR="${home#"$root"}/tmp" \\
  XDG_CONFIG_HOME="${home#"$root"}/config" XDG_CACHE_HOME="${home#"$root"}/cache" dunmarrow
PROGRAM
chmod 755 "$home/program"
start_program "$home/program" 1540x1200 dark
take_picture "$out/1-home.png" 3
click 180 415  # Quick Solve
take_picture "$out/2-setup.png" 3
until grep -q 'UI solve progress' "$home/tmp/dunmarrow.log"; do
  click 1420 103  # Continue to Solve, once the memory is known
  take_picture "$out/3-solve.png" 2
  click 110 454  # Start Solve
  sleep 1
done
wait_for_result
take_picture "$out/4-solved.png" 3
click 345 454  # View Results
take_picture "$out/5-results.png" 3
grep 'UI about to emit resultsChanged: root_actions=[1-9]' "$home/tmp/dunmarrow.log" ||
  die "the solve gave no result"
say "Pictures in $out"
