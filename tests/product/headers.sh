#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Each public header compiles alone, and twice in one file: headers.sh STANDARD_COMPILER INCLUDE-FOLDER...
# Those for C++ alone (.hpp) do so as C++, as C++20 without exceptions.
set -euo pipefail
standard=${1%%_*} compiler=${1#*_} language=${1%%[0-9]*}
shift
command -v "$compiler" >/dev/null || { echo "skipped: no $compiler"; exit 77; }

flags=(-Wall -Wextra -pedantic -Werror -Wconversion -Wundef)
[ "$language" = c ] && flags+=(-Wstrict-prototypes -Wc++-compat) || flags+=(-Wold-style-cast)
[ "$standard" = c++20 ] && flags+=(-fno-exceptions)
folders=("${@/#/-I}")
suffixes=(-name '*.h')
[ "$language" = c ] || suffixes+=(-o -name '*.hpp')
count=0
for name in $(find "$@" \( "${suffixes[@]}" \) -printf '%P\n' | sort); do
  echo "$compiler -x $language -std=$standard: $name"
  printf '#include "%s"\n#include "%s"\nint nothing(void);\nint nothing(void) { return 0; }\n' "$name" "$name" |
    "$compiler" -x "$language" -std="$standard" "${flags[@]}" "${folders[@]}" -fsyntax-only -
  count=$((count + 1))
done
[ "$count" -ge 3 ]
