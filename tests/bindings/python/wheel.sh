#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# A wheel of what is built works in an environment that has nothing else of it:
# wheel.sh PYTHON BUILD-FOLDER SOURCE-FOLDER
set -euo pipefail
python=$1 build=$2 source=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

ZORCC_BUILD_DIR=$build "$python" -m pip wheel --quiet --no-build-isolation --no-deps --no-index -w "$work" \
  "$source/bindings/python"
"$python" -m venv --system-site-packages --without-pip "$work/venv"
"$python" -m pip --python "$work/venv/bin/python" install --quiet --no-index --no-deps "$work"/zorcc-*.whl
cd "$work"
package=$(venv/bin/python -c 'import pathlib, zorcc; print(pathlib.Path(zorcc.__file__).parent)')
case $package in "$work"/venv/*) ;; *) echo "not of the wheel: $package"; exit 1 ;; esac
needed=$(ldd "$package"/_zorcc*.so)
for library in zorconvert zorccn8 zorcore; do
  grep -qF "$package/lib$library.so" <<<"$needed" || { echo "lib$library is not the wheel's"; exit 1; }
done
[ -e "$package/py.typed" ] && [ -e "$package/functions.pyi" ]
venv/bin/python - <<'END'
import numpy
import zorcc

red = numpy.full((4, 4, 3), (255, 0, 0), numpy.uint8)
y, u, v = zorcc.functions.zoriRGBToYUV420_8u_C3P3R(red)
assert (y[0, 0], u[0, 0], v[0, 0]) == (76, 90, 255), (y, u, v)
assert zorcc.convert(red, "rgb24", "bgr24")[0, 0].tolist() == [0, 0, 255]
END
