#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Each public header compiles alone, and twice in one file: headers.sh INCLUDE-FOLDER STANDARD_COMPILER
set -euo pipefail
include=$1 standard=${2%%_*} compiler=${2#*_} language=${2%%[0-9]*}
command -v "$compiler" >/dev/null || { echo "skipped: no $compiler"; exit 77; }

flags=(-Wall -Wextra -pedantic -Werror -Wconversion -Wundef)
[ "$language" = c ] && flags+=(-Wstrict-prototypes -Wc++-compat) || flags+=(-Wold-style-cast)
count=0
for name in $(cd "$include" && find . -name '*.h' -printf '%P\n' | sort); do
  echo "$compiler -x $language -std=$standard: $name"
  printf '#include "%s"\n#include "%s"\nint nothing(void);\nint nothing(void) { return 0; }\n' "$name" "$name" |
    "$compiler" -x "$language" -std="$standard" "${flags[@]}" -I"$include" -fsyntax-only -
  count=$((count + 1))
done
[ "$count" -ge 3 ]
