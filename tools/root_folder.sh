# Sourced by the scripts that look at the program in a bare Debian of any release.
# shellcheck shell=bash

# set_up_root RELEASE: a root folder `root` with nothing but the essentials in it, or what an earlier
# run has left there; remove build/roots/RELEASE for a fresh start.
set_up_root() {
  [[ $EUID -eq 0 ]] || die "a root folder can only be set up by root"
  install_missing debootstrap
  root=$PWD/build/roots/$1
  mkdir -p "$root"
  [[ -e $root/etc/os-release ]] || debootstrap --variant=minbase "$1" "$root" >&2
  mount -t proc proc "$root/proc"
  mount --bind /dev "$root/dev"
  cp /etc/resolv.conf "$root/etc/"
  inside apt-get update >&2
}

leave_root() { umount "$root/proc" "$root/dev"; }

inside() {
  env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive chroot "$root" "$@"
}
