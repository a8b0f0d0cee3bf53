#!/usr/bin/env bash
# The one list of the Debian packages that Tessara needs, in groups.
# usage: scripts/packages.sh GROUP...     installs what is missing of these groups
# The rules of format and lint are those of clang 14, which only Debian 12 has: elsewhere the group lint is empty.
set -euo pipefail
scripts=$(dirname "${BASH_SOURCE[0]}")

declare -A packages=(
  [build]="g++ cmake ninja-build ccache pkgconf python3 file dpkg-dev qt6-base-dev libfontconfig-dev libgl1-mesa-dev libglib2.0-dev
    libchm-dev fp-utils-3.2.2 libreoffice-calc libreoffice-dev libcups2-dev libqpdf-dev libcli11-dev libcsv-dev
    libpugixml-dev libxml2-dev nlohmann-json3-dev libpng-dev libunistring-dev"
  [run]="fonts-dejavu-core fonts-liberation libreoffice-calc"
  [wayland]="qt6-wayland"
  [virtual-display]="xvfb openbox xdotool x11-utils python3-pil"
  [test]="doctest-dev fonts-cantarell fonts-inter fonts-noto-core at-spi2-core cups-daemon dbus-daemon gdb gir1.2-atspi-2.0 poppler-utils python3-gi
    fonts-freefont-ttf fonts-noto-cjk fonts-noto-color-emoji fonts-symbola locales"
  [package]="appstream desktop-file-utils dpkg-dev libfile-mimeinfo-perl libglib2.0-bin lintian shared-mime-info xdg-utils"
  [coverage]="gcovr"
  [bare-root]="debootstrap"
  [release]="librsvg2-bin python3-pil"
  [debian-package]="build-essential debhelper lintian"
  [lint]="$([ "$(. /etc/os-release && echo "${VERSION_ID:-}")" != 12 ] || echo clang-format-14 clang-tidy-14)"
  [sanitizers]="clang libclang-rt-dev llvm"
)

missing_packages() {
  local wanted="" group
  for group; do
    wanted+=" ${packages[$group]?there is no package group $group}"
  done
  # A name that dpkg has never met makes its query fail; the others are told all the same.
  # shellcheck disable=SC2086 # names without blanks
  { dpkg-query -W -f '${Package} ${db:Status-Status}\n' $wanted 2>/dev/null || true; } |
    awk -v wanted="$wanted" '
      $2 == "installed" { present[$1] = 1 }
      END { n = split(wanted, names); for (i = 1; i <= n; i++) if (!present[names[i]]) print names[i] }'
}

as_root() {
  if [ "$(id -u)" = 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    echo "Install them as root, then try again:  apt-get install $missing" >&2
    return 1
  fi
}

missing=$(missing_packages "$@" | xargs)
[ -n "$missing" ] || exit 0

echo "Installing Debian packages: $missing" >&2
# One shell for both steps: the password is asked for once. A package list that cannot be refreshed
# may still hold what is wanted.
# shellcheck disable=SC2016,SC2086 # expanded by the inner shell; names without blanks
as_root "$scripts/quietly.sh" sh -c '
  export DEBIAN_FRONTEND=noninteractive
  apt-get -qq update || true
  apt-get -qq -o DPkg::Lock::Timeout=300 install --yes --no-install-recommends "$@"
' sh $missing
