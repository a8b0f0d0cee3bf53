#!/usr/bin/env bash
# Small habits that no compiler keeps up: fails with the places that break one.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1
status=0

# complain MESSAGE PLACES: nothing when there are no places.
complain() {
  [ -n "$2" ] || return 0
  printf '%s:\n%s\n' "$1" "$2"
  status=1
}

without_final_newline() {
  git grep -Il '' -- "${code[@]}" '*.md' | while read -r file; do
    [ -z "$(tail -c 1 "$file")" ] || echo "$file"
  done
}

not_executable() {
  git ls-files -s | awk '$1 != "100755" { print $4 }' | while read -r file; do
    [ ! -f "$file" ] || [ "$(head -c 2 "$file" | tr -d '\0')" != '#!' ] || echo "$file"
  done
}

broken_links() {
  git grep -noE '\]\([^)#: ]+' -- '*.md' | while IFS=: read -r file line link; do
    [ -e "$(dirname "$file")/${link#](}" ] || echo "$file:$line: ${link#](}"
  done
}

code=('*.h' '*.cpp' '*.cmake' 'CMakeLists.txt' '*/CMakeLists.txt' '*.json' '*.py' '*.sh' run test .ci/run)
complain "Unfinished work" "$(git grep -nIwE 'TO''DO|FIX''ME|XX''X' -- .)"
complain "Tabs" "$(git grep -nIP '\t' -- "${code[@]}")"
complain "Blanks at the end of a line" "$(git grep -nIE ' +$' -- "${code[@]}")"
complain "No newline at the end" "$(without_final_newline)"
complain "Scripts that are not executable" "$(not_executable)"
complain "Headers without #pragma once" "$(git grep -LE '^#pragma once' -- '*.h')"
complain "Links that lead nowhere" "$(broken_links)"
exit $status
