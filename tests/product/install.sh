#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The installed tree, moved elsewhere, serves C and C++ projects by find_package, programs by pkg-config and anybody by
# -lzorcc, with shared libraries and with archives: install.sh BUILD-FOLDER SOURCE-FOLDER CC CXX
set -euo pipefail
build=$1 source=$2 cc=$3 cxx=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/moved"
lib=$(dirname "$(find "$work/moved" -name libzorccn8.so.6.1)")
for file in "$lib/"lib{zorccn8,zorcore,zorconvert}.{so,so.6.1,a} "$lib/"libzorcc.{so,a}; do
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
export LD_LIBRARY_PATH=$lib PKG_CONFIG_PATH=$lib/pkgconfig

# needs PROGRAM LIBRARY...: these of the libraries the program needs, no others, and it runs.
needs() {
  diff <(objdump -p "$1" | sed -n 's/.*NEEDED *\(libzor.*\)\.so\.6\.1$/\1/p' | sort) \
    <([ $# -eq 1 ] || printf '%s\n' "${@:2}" | sort)
  "$1" <"$work/photo.ppm" >/dev/null
}
printf 'P6 2 2 255\n123456789abc' >"$work/photo.ppm"

consumer=$source/tests/product/consumer
project() { # FOLDER COMPONENT...
  echo "-- C and C++ project, find_package(zorcc COMPONENTS ${*:2})"
  cmake -G Ninja -S "$consumer" -B "$work/$1" -DCMAKE_PREFIX_PATH="$work/moved" -DCOMPONENTS="${*:2}" \
    -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" --log-level=WARNING
  cmake --build "$work/$1"
  "$work/$1/consumer_cpp"
}
project plain
needs "$work/plain/consumer" libzor{ccn8,core,convert}
project archives static
needs "$work/archives/consumer"
if project neither unheard-of 2>"$work/refusal" >&2; then echo "found what there is not"; exit 1; fi
grep "not installed: unheard-of" "$work/refusal"

[ "$(pkg-config --modversion zorcc)" = 6.1 ] && [ "$(pkg-config --modversion zorconvert)" = 6.1 ]
program() { # NAME FLAG...
  echo "-- C++ programs: ${*:2}"
  for file in consumer.cpp consumer.c; do
    "$cxx" -std=c++17 -Wall -Wextra -pedantic -Werror -x c++ "$consumer/$file" -x none "${@:2}" -o "$work/$1"
    "$work/$1"
  done
}
# shellcheck disable=SC2046
program pkg-config $(pkg-config --cflags --libs zorconvert)
needs "$work/pkg-config" libzor{ccn8,core,convert}
# shellcheck disable=SC2046
program pkg-config-static -Wl,-Bstatic $(pkg-config --static --cflags --libs zorconvert) -Wl,-Bdynamic
needs "$work/pkg-config-static"

# Once by each linker that is there, then where archives are all there is.
for linker in bfd gold lld; do
  flags=("-fuse-ld=$linker" -I"$work/moved/include" -L"$lib")
  "$cxx" "-fuse-ld=$linker" -Wl,--version 2>/dev/null >&2 || { echo "-- no linker $linker"; continue; }
  program link-$linker "${flags[@]}" -lzorcc
  needs "$work/link-$linker" libzor{ccn8,core,convert}
  echo "-- C program: ${flags[*]} -lzorcc"
  "$cc" "$source/examples/photo_to_video.c" "${flags[@]}" -lzorcc -o "$work/example-$linker"
  needs "$work/example-$linker" libzorccn8
done
rm "$lib/"*.so* "$lib/cmake/zorcc/zorccShared"*
program link-archives -I"$work/moved/include" -L"$lib" -lzorcc
needs "$work/link-archives"
project only-archives
needs "$work/only-archives/consumer"
