import os

from conan import ConanFile
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, rmdir

required_conan_version = ">=2.0"


class DraftwickConan(ConanFile):
    """Builds the tree that this recipe stands in."""

    name = "draftwick"
    version = "1.0.29"
    description = "Writes documents as RTF, in constant memory"
    license = "MIT"
    topics = ("rtf", "document", "report", "word-processing")
    package_type = "library"
    settings = "os", "compiler", "build_type", "arch"
    options = {"shared": [True, False], "fPIC": [True, False]}
    default_options = {"shared": False, "fPIC": True}
    implements = ["auto_shared_fpic"]

    def export_sources(self):
        tree = os.path.join(self.recipe_folder, "..", "..")
        for pattern in ("CMakeLists.txt", "LICENSE", "*.md", "cmake/*", "draftwick/*"):
            copy(self, pattern, src=tree, dst=self.export_sources_folder)

    def layout(self):
        cmake_layout(self)

    def requirements(self):
        if self.settings.os != "Windows":
            self.requires("giflib/5.2.1")

    def validate(self):
        check_min_cppstd(self, 20)

    def generate(self):
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["DRAFTWICK_TESTS"] = False
        toolchain.cache_variables["DRAFTWICK_EXAMPLES"] = False
        toolchain.generate()
        CMakeDeps(self).generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        copy(self, "LICENSE", src=self.source_folder, dst=os.path.join(self.package_folder, "licenses"))
        for folder in ("cmake", "pkgconfig"):
            rmdir(self, os.path.join(self.package_folder, "lib", folder))
        rmdir(self, os.path.join(self.package_folder, "share"))

    def package_info(self):
        self.cpp_info.set_property("cmake_file_name", "draftwick")
        self.cpp_info.set_property("cmake_target_name", "draftwick::draftwick")
        self.cpp_info.set_property("pkg_config_name", "draftwick")
        self.cpp_info.libs = ["draftwick"]
        if self.settings.os == "Windows":
            self.cpp_info.system_libs = ["advapi32", "gdi32", "ole32", "oleaut32", "user32", "uuid"]
        else:
            self.cpp_info.system_libs = ["pthread"]
