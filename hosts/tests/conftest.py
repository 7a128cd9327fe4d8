"""What the tests of the hosts need: DRAFTWICK_BUILD names the folder of a build with the options DRAFTWICK_C and
DRAFTWICK_PYTHON, DRAFTWICK_PROGRAMS that of one with the programs in C++ whose files are compared, by default the same."""

import os
import pathlib
import sys

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("DRAFTWICK_BUILD", ROOT / "build/dev")).resolve()
PROGRAMS = pathlib.Path(os.environ.get("DRAFTWICK_PROGRAMS", BUILD)).resolve()
sys.path.insert(0, str(BUILD / "hosts/python"))


@pytest.fixture(autouse=True)
def temporary_files(tmp_path, monkeypatch):
    monkeypatch.setenv("TMPDIR", str(tmp_path))


def interface():
    import c_interface
    return c_interface.Interface(next((BUILD / "hosts/c").glob("libdraftwick_c.so")))


@pytest.fixture(scope="session", params=["python", "c"])
def host(request):
    if request.param == "python":
        import python_host
        return python_host.Host()
    return interface()
