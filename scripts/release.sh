#!/usr/bin/env bash
# Looks whether all that tells the version agrees, then builds the source archive and the packages of a release.
# usage: scripts/release.sh [check]     check: looks only, and takes a version that is not released yet
# Leaves all of it in build/release-VERSION.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
status=0
looking=false
[ "${1:-}" != check ] || looking=true

complain() {
  echo "$1" >&2
  status=1
}

value_in_cmake() {
  sed -nE "s/^($1)([0-9.-]+).*/\2/p" CMakeLists.txt
}

version=$(value_in_cmake 'project\(Tessara VERSION ')
released=$(value_in_cmake 'set\(TESSARA_RELEASED ')

check_changelogs() {
  local packaged
  packaged=$(dpkg-parsechangelog --file packaging/debian/changelog --show-field Version)
  [ "$packaged" = "$version" ] || complain "packaging/debian/changelog is of $packaged, the program of $version"
  [ "$(date -u -d "$(dpkg-parsechangelog --file packaging/debian/changelog --show-field Date)" +%F)" = "$released" ] ||
    complain "packaging/debian/changelog has another day than CMakeLists.txt, $released"
  local heading="## $version, $released"
  grep -qx "$heading" CHANGELOG.md || { $looking && grep -qx "## $version, unreleased" CHANGELOG.md; } ||
    complain "CHANGELOG.md has no heading \"$heading\""
}

# Made from templates, which must not tell a version of their own.
check_templates() {
  local template
  for template in packaging/*.in; do
    grep -q '@PROJECT_VERSION@' "$template" || complain "$template does not take the program's version"
  done
}

check_pictures() {
  data/pictures/check.py || complain "the pictures are not as they should be"
}

check_tree() {
  [ -z "$(git status --porcelain)" ] || complain "there are changes that are not committed"
}

$looking || scripts/packages.sh release package
check_changelogs
check_templates
check_pictures
# Drawn anew, the pictures are the committed ones.
$looking || { data/pictures/draw.py && check_tree; }
[ $status = 0 ] || exit 1
echo "Version $version of $released: all that tells it agrees"
! $looking || exit 0

target=build/release-$version
mkdir -p "$target"
git archive --prefix="tessara-$version/" HEAD | gzip -9n >"$target/tessara-$version.tar.gz"
sed "s/@PROJECT_VERSION@/$version/" packaging/tessara.spec.in >"$target/tessara.spec"
scripts/debian_package.sh "$target"
ls "$target"
