#!/usr/bin/env bash
# Runs a command on what is committed, on a bare Debian in a root of its own: only git and what a Debian must have
# are there at first. Needs to be root, the package debootstrap and a mirror.
# usage: scripts/on_debian.sh VERSION COMMAND     VERSION is 12 or 13; the command, one word for a shell, begins in the
#                                                 top folder; exits with its status, or with 125 where there is no root
#
# The root stays in build/debian-VERSION and is taken again; without that folder the machine is a clean one. Compilers
# keep what they remember outside of it. Nothing stays mounted: mounts and processes end with the command.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
readonly noRoot=125 secondsToMake=300

case "${1:-}" in
  12) suite=bookworm ;;
  13) suite=trixie ;;
  *) sed -n 4,5p "$0" | cut -c 3- >&2; exit 2 ;;
esac
command=${2:?a command}
root=$PWD/build/debian-$1
mirror=${DEBIAN_MIRROR:-http://deb.debian.org/debian}
cache=${CCACHE_DIR:-$HOME/.cache/ccache}

give_up() {
  echo "There is no root of Debian $suite: $1" >&2
  exit $noRoot
}

make_root() {
  local made=$root.new
  rm -rf "$made"
  mkdir -p "$made"
  timeout $secondsToMake debootstrap --variant=minbase --include=ca-certificates,git "$suite" "$made" "$mirror" \
    >"$made.log" 2>&1 || { tail -n 3 "$made.log" >&2; return 1; }
  mv "$made" "$root"
}

[ "$(id -u)" = 0 ] || give_up "this user is not root"
command -v debootstrap >/dev/null || give_up "debootstrap is missing"
unshare --mount --pid --fork true 2>/dev/null || give_up "the kernel gives no namespaces of one's own"
[ -d "$root" ] || make_root || give_up "debootstrap failed"

cp -L /etc/resolv.conf "$root/etc/resolv.conf"
rm -rf "$root/tessara"
git clone --quiet --no-hardlinks . "$root/tessara"
mkdir -p "$cache" "$root/root/.cache/ccache"

# Expanded by the inner shell, which alone sees the mounts.
# shellcheck disable=SC2016
exec unshare --mount --pid --fork --kill-child --propagation private sh -c '
  set -e
  root=$1 cache=$2 command=$3
  mount -t proc proc "$root/proc"
  mount -t sysfs -o ro sysfs "$root/sys"
  mount --rbind /dev "$root/dev"
  mount -t tmpfs tmpfs "$root/dev/shm"
  mount --bind "$cache" "$root/root/.cache/ccache"
  exec chroot "$root" env -i HOME=/root LANG=C.UTF-8 PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
    ${http_proxy:+http_proxy="$http_proxy"} ${https_proxy:+https_proxy="$https_proxy"} \
    sh -c "cd /tessara && $command"
' sh "$root" "$cache" "$command"
