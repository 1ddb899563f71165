# SPDX-License-Identifier: MIT
"""A wheel with the libraries inside, built by CMake: pip wheel --no-build-isolation --no-deps bindings/python, or
python3 -m build --no-isolation --wheel bindings/python. ZORCC_BUILD_DIR names a folder that CMake has built in already.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import setuptools
from setuptools.command.build_py import build_py

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[1]
if not (ROOT / "include" / "zorcc.h").exists():
    sys.exit("zorcc is built from its whole repository, in bindings/python (no source distributions: build --wheel)")
TREE = os.environ.get("ZORCC_BUILD_DIR")
WORK = pathlib.Path(TREE) / "wheel" if TREE else HERE / "build"
WORK.mkdir(exist_ok=True)


def run(*command):
    subprocess.run([str(word) for word in command], check=True)


class BuildByCMake(build_py):
    """Installs the package and the libraries where setuptools takes a wheel's files from."""

    def run(self):
        tree = TREE
        if not tree:
            tree = WORK / "cmake"
            run("cmake", "-S", ROOT, "-B", tree, "-DCMAKE_BUILD_TYPE=Release", "-DZORCC_BUILD_PYTHON=ON",
                "-DZORCC_BUILD_TESTS=OFF", "-DZORCC_BUILD_TOOLS=OFF", "-DZORCC_BUILD_BENCHMARKS=OFF",
                f"-DPython_EXECUTABLE={sys.executable}")
            run("cmake", "--build", tree, "--target", "zorcc_python_package", "--parallel", os.cpu_count())
        with tempfile.TemporaryDirectory() as stage:
            for component in ("python", "python_libraries"):
                run("cmake", "--install", tree, "--component", component, "--strip", "--prefix", stage)
            package = next(pathlib.Path(stage).rglob("zorcc/__init__.py")).parent
            shutil.copytree(package, pathlib.Path(self.build_lib) / "zorcc", dirs_exist_ok=True)


class Distribution(setuptools.Distribution):
    def has_ext_modules(self):
        return True


setuptools.setup(
    version=re.search(r"project\(zorcc VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text())[1],
    packages=["zorcc"],
    package_dir={"zorcc": "package"},
    cmdclass={"build_py": BuildByCMake},
    distclass=Distribution,
    options={"egg_info": {"egg_base": str(WORK)}, "build": {"build_base": str(WORK)}},
)
