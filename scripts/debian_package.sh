#!/usr/bin/env bash
# Builds Debian's source package and the package made of it, from what is committed, and has lintian look at both.
# usage: scripts/debian_package.sh FOLDER     where they are left
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
target=$(mkdir -p "${1:?the folder for the packages}" && cd "$1" && pwd)

scripts/packages.sh debian-package
source=$target/tessara-$(dpkg-parsechangelog --file packaging/debian/changelog --show-field Version)
rm -rf "$source"
mkdir "$source"
git archive HEAD | tar -x -C "$source"
cp -r "$source/packaging/debian" "$source/debian"
cd "$source"
# Only what the package itself names: in a bare root it shows what it does not.
dpkg-checkbuilddeps || apt-get -qq build-dep --yes --no-install-recommends .
dpkg-buildpackage --no-sign
cd "$target"
rm -rf "$source"
lintian --allow-root --fail-on error,warning tessara_*.changes
