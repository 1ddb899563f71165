# SPDX-License-Identifier: MIT
"""The methods of the Conan recipe, with stand-ins for Conan that install what a build has made.

What package_info() says must be enough to link and run a program with what package() leaves.
"""
import importlib.util
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import types
import unittest

SOURCE = pathlib.Path(os.environ["ZORCC_SOURCE"])
BUILD = pathlib.Path(os.environ["ZORCC_BUILD"])
RECIPE = SOURCE / "packaging/conan/conanfile.py"


class Info:
    """cpp_info: of the package, and of each of its components."""

    def __init__(self):
        self.libs, self.requires, self.system_libs, self.properties, self.components = [], [], [], {}, Components()

    def set_property(self, name, value):
        self.properties[name] = value


class Components(dict):
    def __missing__(self, name):
        return self.setdefault(name, Info())


class Toolchain:
    """Knows the options that the build knows."""

    def __init__(self, recipe):
        self.recipe, self.cache_variables = recipe, {}

    def generate(self):
        cache = (BUILD / "CMakeCache.txt").read_text(encoding="utf-8")
        self.recipe.unknown = [name for name in self.cache_variables if f"\n{name}:BOOL=" not in cache]


class CMake:
    """Installs what the build has made; it has both flavours, of which Conan makes one, and perhaps Python."""

    def __init__(self, recipe):
        self.recipe = recipe

    def install(self):
        folder = pathlib.Path(self.recipe.package_folder)
        subprocess.run(["cmake", "--install", BUILD, "--component", "Unspecified", "--prefix", folder], check=True,
                       stdout=subprocess.DEVNULL)
        for other in folder.glob("lib/*.a" if self.recipe.options.shared else "lib/*.so*"):
            other.unlink()


def copy(_, pattern, source, destination):
    for path in pathlib.Path(source).glob(pattern + "*" * pattern.endswith("/*")):
        files = [path] if path.is_file() else path.rglob("*")
        for file in filter(pathlib.Path.is_file, files):
            target = pathlib.Path(destination) / file.relative_to(source)
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(file, target)


def rm(_, pattern, folder):
    for path in pathlib.Path(folder).glob(pattern):
        path.unlink()


def module(name, **members):
    sys.modules[name] = types.ModuleType(name)
    vars(sys.modules[name]).update(members)


module("conan", ConanFile=object)
module("conan.errors", ConanInvalidConfiguration=type("ConanInvalidConfiguration", (Exception,), {}))
module("conan.tools")
module("conan.tools.build", can_run=None)
module("conan.tools.cmake", CMake=CMake, CMakeToolchain=Toolchain, cmake_layout=lambda recipe: None,
       CMakeDeps=lambda recipe: types.SimpleNamespace(generate=lambda: None))
module("conan.tools.files", copy=copy, load=lambda _, path: pathlib.Path(path).read_text(encoding="utf-8"), rm=rm,
       rmdir=lambda _, folder: shutil.rmtree(folder))


def recipe_of(path, name):
    spec = importlib.util.spec_from_file_location(name, path)
    loaded = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(loaded)
    return loaded


class ConanTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def recipe(self, **options):
        made = recipe_of(RECIPE, "recipe").Zorcc()
        made.recipe_folder, made.source_folder = str(RECIPE.parent), str(SOURCE)
        made.export_sources_folder, made.package_folder = str(self.folder / "sources"), str(self.folder / "package")
        made.options = types.SimpleNamespace(**(made.default_options | options))
        made.settings = types.SimpleNamespace(os="Linux", arch="x86_64", compiler="gcc", build_type="Release")
        made.folders, made.cpp_info = types.SimpleNamespace(), Info()
        return made

    def test_sources_are_exported_that_configure(self):
        recipe = self.recipe()
        recipe.set_version()
        self.assertRegex(recipe.version, r"^\d+\.\d+$")
        recipe.export_sources()
        recipe.generate()
        self.assertFalse(recipe.unknown)
        subprocess.run(["cmake", "-S", recipe.export_sources_folder, "-B", self.folder / "build", "-G", "Ninja",
                        "--log-level=WARNING", *(f"-DZORCC_BUILD_{part}=OFF" for part in (
                            "TESTS", "BENCHMARKS", "PYTHON", "GSTREAMER"))], check=True, stdout=subprocess.DEVNULL)

    def test_other_systems_are_refused(self):
        recipe = self.recipe()
        recipe.validate()
        for name, value in (("os", "Windows"), ("arch", "armv8")):
            recipe.settings = types.SimpleNamespace(**vars(recipe.settings) | {name: value})
            with self.assertRaises(sys.modules["conan.errors"].ConanInvalidConfiguration):
                recipe.validate()
            recipe.settings.os = "Linux"

    def test_programs_link_by_what_the_package_says(self):
        for shared in (True, False):
            with self.subTest(shared=shared):
                recipe = self.recipe(shared=shared)
                recipe.package_folder = str(self.folder / f"package-{shared}")
                recipe.package()
                recipe.package_info()
                package = pathlib.Path(recipe.package_folder)
                self.assertEqual(sorted(path.name for path in package.iterdir() if path.name not in ("bin", "share")),
                                 ["include", "lib", "licenses"])
                libs, left = [], ["convert"]
                while left:
                    component = recipe.cpp_info.components[left.pop()]
                    libs += component.libs + component.system_libs
                    left += component.requires
                program = self.folder / f"program-{shared}"
                subprocess.run([os.environ["CC"], SOURCE / "examples/nv12_to_rgb.c", "-o", program,
                                f"-I{package}/include", f"-L{package}/lib", f"-Wl,-rpath,{package}/lib",
                                *(f"-l{lib}" for lib in libs)], check=True)
                text = subprocess.run([program], capture_output=True, text=True, check=True).stdout
                self.assertIn("R 255 G 0 B 0", text)
                needed = subprocess.run(["objdump", "-p", program], capture_output=True, text=True, check=True).stdout
                self.assertEqual("libzor" in needed, shared)

    def test_the_package_has_a_program_to_try_it(self):
        recipe = recipe_of(RECIPE.parent / "test_package/conanfile.py", "test_package").ZorccTest()
        recipe.tested_reference_str = "zorcc/6.1"
        required = []
        recipe.requires = required.append
        recipe.requirements()
        self.assertEqual(required, ["zorcc/6.1"])
        targets = {info.properties["cmake_target_name"] for info in self.components()}
        text = (RECIPE.parent / "test_package/CMakeLists.txt").read_text(encoding="ascii")
        self.assertTrue([target for target in targets if target in text])

    def components(self):
        recipe = self.recipe()
        recipe.package_info()
        return recipe.cpp_info.components.values()
