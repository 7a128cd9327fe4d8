import os

from conan import ConanFile
from conan.tools.build import can_run
from conan.tools.cmake import CMake, cmake_layout


class DraftwickTest(ConanFile):
    settings = "os", "compiler", "build_type", "arch"
    generators = "CMakeDeps", "CMakeToolchain"

    def requirements(self):
        self.requires(self.tested_reference_str)

    def layout(self):
        cmake_layout(self)

    def build(self):
        cmake = CMake(self)
        cmake.configure(build_script_folder=os.path.join("..", "..", "..", "tests", "package"))
        cmake.build()

    def test(self):
        if can_run(self):
            host = os.path.join(self.cpp.build.bindir, "host")
            self.run(f"{host} {os.path.join(self.build_folder, 'host.rtf')}", env="conanrun")
