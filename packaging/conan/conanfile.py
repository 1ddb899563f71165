# SPDX-License-Identifier: MIT
"""Conan 2: conan create packaging/conan"""
import os
import re

from conan import ConanFile
from conan.errors import ConanInvalidConfiguration
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load, rm, rmdir

ROOT = os.path.join("..", "..")
# What of the sources is built.
SOURCES = ["CMakeLists.txt", "LICENSE", "bindings/cpp/*", "cmake/*", "include/*", "interface/*", "src/*", "tools/*"]


class Zorcc(ConanFile):
    name = "zorcc"
    description = "Exact colour conversion of raster images"
    license = "MIT"
    topics = "color", "image", "rgb", "simd", "yuv"
    package_type = "library"
    settings = "os", "arch", "compiler", "build_type"
    options = {"shared": [True, False], "tool": [True, False]}
    default_options = {"shared": True, "tool": False}

    def set_version(self):
        text = load(self, os.path.join(self.recipe_folder, ROOT, "CMakeLists.txt"))
        self.version = re.search(r"project\(zorcc VERSION ([\d.]+)", text)[1]

    def export_sources(self):
        for pattern in SOURCES:
            copy(self, pattern, os.path.join(self.recipe_folder, ROOT), self.export_sources_folder)

    def layout(self):
        self.folders.root = ROOT
        cmake_layout(self)

    def validate(self):
        if self.settings.os != "Linux" or self.settings.arch != "x86_64":
            raise ConanInvalidConfiguration("zorcc runs on Linux on x86-64")

    def requirements(self):
        if self.options.tool:
            self.requires("cli11/[>=2.3 <3]", visible=False)
            self.requires("libjpeg-turbo/[>=2.1 <4]", visible=False)
            self.requires("libpng/[>=1.6 <2]", visible=False)

    def build_requirements(self):
        self.tool_requires("cmake/[>=3.25]")

    def generate(self):
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables.update(ZORCC_BUILD_TOOLS=bool(self.options.tool), ZORCC_BUILD_TESTS=False,
                                         ZORCC_BUILD_BENCHMARKS=False, ZORCC_BUILD_PYTHON=False,
                                         ZORCC_BUILD_GSTREAMER=False)
        toolchain.generate()
        CMakeDeps(self).generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        copy(self, "LICENSE", self.source_folder, os.path.join(self.package_folder, "licenses"))
        CMake(self).install()
        # Conan makes its own of these from package_info().
        for folder in ("cmake", "pkgconfig"):
            rmdir(self, os.path.join(self.package_folder, "lib", folder))
        rm(self, "libzorcc.*", os.path.join(self.package_folder, "lib"))

    def package_info(self):
        self.cpp_info.set_property("cmake_file_name", "zorcc")
        self.cpp_info.set_property("cmake_target_name", "zorcc::all") # zorcc::zorcc is a component
        for component, library, requires, config in (("zorcore", "zorcore", [], None),
                                                     ("zorcc", "zorccn8", ["zorcore"], "zorcc"),
                                                     ("cpp", None, ["zorcc"], None),
                                                     ("convert", "zorconvert", ["zorcc"], "zorconvert")):
            info = self.cpp_info.components[component]
            info.libs = [library] if library else []
            info.requires = requires
            info.set_property("cmake_target_name", f"zorcc::{component}")
            if config:
                info.set_property("pkg_config_name", config)
        if not self.options.shared:
            runtime = "omp" if "clang" in str(self.settings.compiler) else "gomp"
            self.cpp_info.components["zorcore"].system_libs = [runtime, "pthread", "m"]
