"""The guide's programs in Python write the files of those in C++, through the extension and through the C interface."""

import os
import runpy
import subprocess
import sys

import draftwick
import pytest
from conftest import PROGRAMS, ROOT, interface
from package_over_c import Package

NAMES = sorted(path.stem for path in (ROOT / "examples").glob("*.py"))
IN_BOTH = [name for name in NAMES if (ROOT / f"examples/{name}.cpp").exists()]
# To memory and to streams a document is finished by what only the extension has.
THROUGH_C = [name for name in IN_BOTH if name not in ("how_do_i_deliver", "http_server")]
INPUT = {"text_to_document": [ROOT / "README.md"]}


def run(name, monkeypatch, *arguments):
    monkeypatch.setattr(sys, "argv", [f"{name}.py", *map(str, arguments)])
    runpy.run_path(str(ROOT / f"examples/{name}.py"), run_name="__main__")


def package(host):
    """What the program imports."""
    if host == "c":
        import c_interface
        return Package(interface(), c_interface.Error)
    return draftwick


@pytest.mark.parametrize("host, name", [("python", name) for name in IN_BOTH] + [("c", name) for name in THROUGH_C])
def test_bytes_are_those_of_cpp(host, name, tmp_path, monkeypatch):
    program, out = PROGRAMS / "examples" / name, tmp_path / f"{name}.rtf"
    if name == "http_server" and not program.exists():
        pytest.skip("the program in C++ needs a library that is not here")
    arguments = [*INPUT.get(name, []), out]
    subprocess.run([program, *arguments], check=True, stdout=subprocess.DEVNULL, env={**os.environ, "LD_PRELOAD": ""})
    expected = {path.name: path.read_bytes() for path in tmp_path.glob("*.rtf")}
    pictures = sorted([*tmp_path.glob("*.jpg"), *tmp_path.glob("*.gif")], reverse=True)
    for path in tmp_path.glob("*.rtf"):
        path.unlink()
    monkeypatch.setitem(sys.modules, "draftwick", package(host))
    run(name, monkeypatch, *arguments, *pictures)
    assert {path.name: path.read_bytes() for path in tmp_path.glob("*.rtf")} == expected


@pytest.mark.parametrize("name", sorted(set(NAMES) - set(IN_BOTH)))
def test_programs_run(name, tmp_path, monkeypatch):
    out = tmp_path / f"{name}.rtf"
    run(name, monkeypatch, out)
    assert out.read_bytes().startswith(b"{\\rtf1")
