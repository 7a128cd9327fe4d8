"""The documents of tests/words and tests/golden through each host: the bytes are those of C++ for the same calls."""

import os
import subprocess

import pytest
from conftest import PROGRAMS, ROOT
from script import Script, rows

pytestmark = pytest.mark.filterwarnings("ignore::UnicodeWarning")  # rows about characters that are lost
SPELLINGS = {"classic": 1, "standard": 2}


def replay(host, steps):
    script = Script(host, host.constants, host.create("Document"), host.create("Special"))
    for step in steps:
        script.run(step)


def to_file(steps, spelling, path):
    return [f"document Spelling={spelling} Filename='{path}'", *steps, "document.Finish"]


@pytest.mark.parametrize("spelling", SPELLINGS)
@pytest.mark.parametrize("name", sorted(path.stem for path in (ROOT / "tests/words").glob("*.txt")))
def test_bytes_are_those_of_cpp(host, name, spelling, tmp_path):
    documents = list(rows(ROOT / f"tests/words/{name}.txt"))
    steps = [to_file(steps, SPELLINGS[spelling], tmp_path / f"cpp{line}.rtf") for line, steps in documents]
    text = "\n\n".join("\n".join(document) for document in steps)
    program = [PROGRAMS / "tests/draftwick_script"]
    # What is preloaded is for this process: a sanitizer's library.
    subprocess.run(program, input=text + "\n", text=True, check=True, env={**os.environ, "LD_PRELOAD": ""})
    different = []
    for line, document in documents:
        replay(host, to_file(document, SPELLINGS[spelling], tmp_path / "host.rtf"))
        if (tmp_path / "host.rtf").read_bytes() != (tmp_path / f"cpp{line}.rtf").read_bytes():
            different.append(f"{name}.txt:{line}: {document}")
    assert different == [] and documents != []


@pytest.mark.parametrize("name", sorted(path.stem for path in (ROOT / "tests/golden").glob("*.txt")))
def test_golden_files(host, name, tmp_path):
    steps = [line for line in (ROOT / f"tests/golden/{name}.txt").read_text(encoding="utf-8").split("\n")
             if line and not line.startswith("#")]
    replay(host, to_file(steps, SPELLINGS["classic"], tmp_path / "host.rtf"))
    assert (tmp_path / "host.rtf").read_bytes() == (ROOT / f"tests/golden/{name}.rtf").read_bytes()
