#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The installed tree, moved elsewhere, serves a C and C++ project by find_package and C++ programs by pkg-config:
# install.sh BUILD-FOLDER SOURCE-FOLDER CC CXX
set -euo pipefail
build=$1 source=$2 cc=$3 cxx=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/moved"
lib=$(dirname "$(find "$work/moved" -name libzorccn8.so.6.1)")
for file in "$lib/"lib{zorccn8,zorcore,zorconvert}.so{,.6.1}; do
  [ -e "$file" ] || { echo "not installed: ${file#"$work/moved/"}"; exit 1; }
done
diff -r -x '*.hpp' "$source/include" "$work/moved/include"
for header in $(cd "$source/bindings/cpp/include" && find . -name '*.hpp'); do
  cmp "$source/bindings/cpp/include/$header" "$work/moved/include/$header"
done
if grep -rlF -e "$source" -e "$build" -e "$work/first" "$work/moved"; then
  echo "paths of this machine stand in the files above"
  exit 1
fi

echo "-- C and C++ project, find_package"
cmake -G Ninja -S "$source/tests/product/consumer" -B "$work/consumer" -DCMAKE_PREFIX_PATH="$work/moved" \
  -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" --log-level=WARNING
cmake --build "$work/consumer"
"$work/consumer/consumer"
"$work/consumer/consumer_cpp"
if ldd "$work/consumer/consumer" | grep -E 'libzor.*(not found|=> /usr)'; then exit 1; fi

echo "-- C++ programs, pkg-config"
export PKG_CONFIG_PATH=$lib/pkgconfig
[ "$(pkg-config --modversion zorcc)" = 6.1 ] && [ "$(pkg-config --modversion zorconvert)" = 6.1 ]
for program in consumer.c consumer.cpp; do
  # shellcheck disable=SC2046
  "$cxx" -std=c++17 -Wall -Wextra -pedantic -Werror -x c++ "$source/tests/product/consumer/$program" -x none \
    $(pkg-config --cflags --libs zorconvert) -o "$work/program"
  LD_LIBRARY_PATH=$lib "$work/program"
done
