"""A build backend (PEP 517) without dependencies: CMake builds and installs the package, this packs it into a wheel.

It needs CMake, a C++20 compiler, giflib and the headers of Python. The folder build/wheel is kept: the next build is fast.
"""

import base64
import hashlib
import io
import os
import re
import shutil
import subprocess
import sys
import sysconfig
import tarfile
import tempfile
import zipfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
NAME = "draftwick"
SOURCES = ["CMakeLists.txt", "LICENSE", "README.md", "pyproject.toml", "cmake", "docs/generate", "draftwick", "hosts"]


def _version():
    header = (ROOT / "draftwick/base/Version.h").read_text(encoding="utf-8")
    return ".".join(re.search(rf"Version{part} = (\d+)", header)[1] for part in ("Major", "Minor", "Revision"))


def _metadata():
    return (f"Metadata-Version: 2.1\nName: {NAME}\nVersion: {_version()}\n"
            "Summary: Writes documents as RTF, in constant memory\nLicense: MIT\nRequires-Python: >=3.10\n"
            "Description-Content-Type: text/markdown\n\n" + (ROOT / "README.md").read_text(encoding="utf-8"))


def _install(folder):
    build = ROOT / "build/wheel"
    configure = ["cmake", "-S", ROOT, "-B", build, "-DCMAKE_BUILD_TYPE=Release", "-DDRAFTWICK_PYTHON=ON",
                 "-DDRAFTWICK_TESTS=OFF", "-DDRAFTWICK_EXAMPLES=OFF", "-DDRAFTWICK_PYTHON_FOLDER=.",
                 f"-DPython_EXECUTABLE={sys.executable}"]
    if shutil.which("ninja") and not (build / "Makefile").exists():
        configure += ["-G", "Ninja"]
    (build / "CMakeCache.txt").unlink(missing_ok=True)  # another Python may have been here
    subprocess.run(configure, check=True)
    subprocess.run(["cmake", "--build", build, "--target", "draftwick_package", "--parallel", str(os.cpu_count())],
                   check=True)
    subprocess.run(["cmake", "--install", build, "--component", "python", "--prefix", folder, "--strip"], check=True)


def build_wheel(wheel_directory, config_settings=None, metadata_directory=None):
    version, info = _version(), f"{NAME}-{_version()}.dist-info"
    tag = f"cp310-abi3-{re.sub('[-.]', '_', sysconfig.get_platform())}"
    with tempfile.TemporaryDirectory() as folder:
        _install(folder)
        files = {path.relative_to(folder).as_posix(): path.read_bytes()
                 for path in sorted(Path(folder).rglob("*")) if path.is_file()}
    files[f"{info}/METADATA"] = _metadata().encode()
    files[f"{info}/WHEEL"] = f"Wheel-Version: 1.0\nGenerator: {NAME}\nRoot-Is-Purelib: false\nTag: {tag}\n".encode()
    files[f"{info}/LICENSE"] = (ROOT / "LICENSE").read_bytes()
    record = ""
    for path, data in files.items():
        digest = base64.urlsafe_b64encode(hashlib.sha256(data).digest()).rstrip(b"=").decode()
        record += f"{path},sha256={digest},{len(data)}\n"
    files[f"{info}/RECORD"] = (record + f"{info}/RECORD,,\n").encode()
    wheel = f"{NAME}-{version}-{tag}.whl"
    with zipfile.ZipFile(Path(wheel_directory) / wheel, "w", zipfile.ZIP_DEFLATED) as archive:
        for path, data in files.items():
            entry = zipfile.ZipInfo(path, (1980, 1, 1, 0, 0, 0))  # the same files, the same bytes
            entry.compress_type, entry.external_attr = zipfile.ZIP_DEFLATED, 0o644 << 16
            archive.writestr(entry, data)
    return wheel


def build_sdist(sdist_directory, config_settings=None):
    base = f"{NAME}-{_version()}"
    with tarfile.open(Path(sdist_directory) / f"{base}.tar.gz", "w:gz") as archive:
        for path in SOURCES:
            archive.add(ROOT / path, f"{base}/{path}")
        data = _metadata().encode()
        entry = tarfile.TarInfo(f"{base}/PKG-INFO")
        entry.size = len(data)
        archive.addfile(entry, io.BytesIO(data))
    return f"{base}.tar.gz"
