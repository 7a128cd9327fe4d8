"""The command: what it writes, what it refuses, and what LibreOffice and pandoc make of it.

usage: suite.py write FOLDER PROGRAM   the documents that LibreOffice is to convert to ODT
       suite.py test FOLDER PROGRAM    the tests
       suite.py guide FOLDER           writes the guide's table
"""
import json
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
sys.path.append(str(ROOT / "tests/interop"))
import constructs  # noqa: E402
import refusals  # noqa: E402
import commonmark  # noqa: E402
from readers import Odt, local, plain  # noqa: E402

GUIDE = ROOT / "docs/guide/command.md"
FOLDER, PROGRAM = Path(), ""


def run(*arguments, data=b"", folder=None):
    return subprocess.run([PROGRAM, *arguments], input=data, capture_output=True, cwd=folder)


def write():
    for construct in constructs.CONSTRUCTS:
        source = FOLDER / f"{construct.file}.md"
        source.write_text(construct.markdown)
        subprocess.run([PROGRAM, source, *construct.options, "-o", FOLDER / f"{construct.file}.rtf"], check=True)
        subprocess.run(["pandoc", "-f", "markdown+task_lists-implicit_figures", "-t", "rtf", "-s", *construct.options,
                        source, "-o", FOLDER / f"pandoc-{construct.file}.rtf"], check=True)
    for i, group in enumerate(commonmark.groups()):
        subprocess.run([PROGRAM, "-", "-o", FOLDER / f"group-{i}.rtf"], input=group.encode(), check=True,
                       stderr=subprocess.DEVNULL)


def fault(rtf):
    """What keeps the bytes from being one whole RTF document; None when nothing does."""
    depth, at = 0, 0
    while at < len(rtf):
        if rtf[at] == 0x5C:
            at += 1
        elif rtf[at] in b"{}":
            depth += 1 if rtf[at] == 0x7B else -1
            if depth < 1 and rtf[at + 1:].strip():
                return f"text behind the end, at {at}"
        at += 1
    return None if rtf.startswith(b"{\\rtf1") and depth == 0 else f"{depth} braces are open"


class Command(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory())) if hasattr(self, "enterContext") else (
            Path(tempfile.mkdtemp()))

    def files(self, **files):
        for name, content in files.items():
            (self.folder / name.replace("_", ".")).write_text(content, newline="")

    def names(self):
        return sorted(p.name for p in self.folder.iterdir())

    def test_constructs(self):
        for c in constructs.CONSTRUCTS:
            with self.subTest(c.name):
                self.assertEqual(c.probe(Odt(FOLDER / f"{c.file}.odt")), c.ours)
                self.assertEqual(c.probe(Odt(FOLDER / f"pandoc-{c.file}.odt")), c.pandoc, "pandoc")

    def test_guide_has_the_measured_table(self):
        self.assertIn(constructs.guide_table(), GUIDE.read_text(), "suite.py guide writes it")

    def test_every_example_of_commonmark_is_a_whole_document(self):
        for case in commonmark.cases():
            result = run("-", "--toc", "--number-sections", data=case.encode())
            self.assertEqual((result.returncode, fault(result.stdout)), (0, None), (case, result.stderr))

    def test_libreoffice_reads_the_text_that_the_reference_renderer_shows(self):
        for i, group in enumerate(commonmark.groups()):
            root = Odt(FOLDER / f"group-{i}.odt").roots["content"]
            words = [w for e in root.iter() if local(e.tag) in ("p", "h") for w in plain(e).split()]
            self.assertEqual(words, commonmark.reference(group), group)

    def test_refusals(self):
        """Exit status and message, and that nothing is left: neither the output nor half of it."""
        for arguments, content, status, message in refusals.ROWS:
            with self.subTest(arguments=arguments, content=content), tempfile.TemporaryDirectory() as folder:
                (Path(folder) / "in").write_bytes(content if isinstance(content, bytes) else content.encode())
                result = run(*arguments.split(), folder=folder)
                said = result.stderr.decode().splitlines()[0]
                # "..." stands for the library's own advice.
                if message.endswith("..."):
                    said = said[:len(message) - 3] + "..."
                self.assertEqual((result.returncode, said), (status, message))
                self.assertEqual(result.stdout, b"")
                self.assertEqual([p.name for p in Path(folder).iterdir()], ["in"])

    def test_a_refused_input_leaves_the_old_output(self):
        self.files(a_md="[x", a_json='{"Content": [{"Section": {"Content": ["x", 1]}}]}', out_rtf="old")
        self.assertEqual(run("a.json", "-o", "out.rtf", folder=self.folder).returncode, 1)
        self.assertEqual((self.folder / "out.rtf").read_text(), "old")
        self.assertEqual(run("a.md", "-o", "out.rtf", folder=self.folder).returncode, 0)
        self.assertIsNone(fault((self.folder / "out.rtf").read_bytes()))
        self.assertEqual(self.names(), ["a.json", "a.md", "out.rtf"])

    def test_standard_input_and_output_are_the_file(self):
        self.files(a_md="# A\n\ntext\n")
        run("a.md", folder=self.folder)
        self.assertEqual(run("-", data=b"# A\n\ntext\n").stdout, (self.folder / "a.rtf").read_bytes())
        with open("/dev/full", "wb") as full:
            result = subprocess.run([PROGRAM, "-"], input=b"text", stdout=full, stderr=subprocess.PIPE)
        self.assertEqual((result.returncode, b"No space left" in result.stderr), (1, True), result.stderr)

    def test_clean_deletes_what_killed_processes_left(self):
        names = {"~dw1.tmp": "deleted", "~dwout12.tmp": "deleted", "~DWGC1.tmp": "deleted", "~dw2.tmp": "left",
                 "~dw.tmp": None, "~dw1.tmp.rtf": None, "~dwx1.tmp": None}
        for name in names:
            (self.folder / name).write_bytes(b"x")
            if name != "~dw2.tmp":
                os.utime(self.folder / name, (1e9, 1e9))
        said = run("--clean", str(self.folder)).stdout.decode().splitlines()
        self.assertEqual(sorted(line.split(",")[0] for line in said),
                         sorted(f"{self.folder}/{name}: {what}" for name, what in names.items() if what))
        self.assertEqual({path.name for path in self.folder.iterdir()},
                         {name for name, what in names.items() if what != "deleted"})

    def test_documents_in_json(self):
        """Every way to say something, beside the same in Markdown or in other words."""
        for document, words in refusals.JSON_WORDS:
            with self.subTest(document):
                rtf = run("-", data=document.encode())
                self.assertEqual(rtf.stderr, b"")
                self.assertIn(words, rtf.stdout.replace(b"\r\n", b"").decode())

    def test_schema_knows_every_document_that_is_taken(self):
        import jsonschema
        schema = json.loads(run("--schema").stdout)
        jsonschema.Draft202012Validator.check_schema(schema)
        validator = jsonschema.Draft202012Validator(schema)
        for document, _ in refusals.JSON_WORDS:
            validator.validate(json.loads(document))
        for arguments, content, _, _ in refusals.ROWS:
            if content and content[:1] == "{" and "/*schema*/" in arguments:
                self.assertFalse(validator.is_valid(json.loads(content)), content)

    def test_merge(self):
        self.files(
            a_md="# {{name}}\n\n{{#paid}}Thanks.{{/paid}}{{^paid}}Pay *{{sum}}*.{{/paid}}\n\n"
                 "| What | Price |\n| - | -: |\n| {{#items}}{{what}} | {{price}}{{/items}} |\n\n"
                 "- {{#items}}a {{what}}{{/items}}\n\n{{#items}}\n\nLook at `{{what}}` [here](http://a/{{what}}).\n\n{{/items}}\n",
            rows_json='[{"name": "A/B {x}", "sum": 12.50, "items": [{"what": "*x*", "price": 1}, {"what": "y", "price": 2}]},'
                      '{"name": "C", "paid": true, "items": []}]')
        result = run("a.md", "--data", "rows.json", "-o", "{name}.rtf", folder=self.folder)
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        self.assertEqual(self.names(), ["A_B {x}.rtf", "C.rtf", "a.md", "rows.json"])
        first, second = ((self.folder / name).read_bytes().replace(b"\r\n", b"") for name in ("A_B {x}.rtf", "C.rtf"))
        for rtf, text, times in ((first, rb"A/B \{x\}", 1), (first, b"Pay }{\\i 12.50}", 1), (first, b"{*x*}", 1),
                                 (first, b"\\row", 3), (first, b"{a y}", 1), (first, b"http://a/*x*", 1),
                                 (second, b"Thanks.", 1), (second, b"Pay", 0), (second, b"\\row", 1), (second, b"Look", 0)):
            self.assertEqual(rtf.count(text), times, (text, rtf))

    def test_rows_of_csv_in_one_document(self):
        self.files(a_md="Dear {{name}} of {{city}}.\n",
                   rows_csv='name;city\r\n"Ann; ""A""";"Up\ntown"\r\n\r\nBob\r\nCy;Down\r\n')
        failed = "rows.csv:5: error: row 2: 1 values for 2 columns"
        result = run("a.md", "--data", "rows.csv", folder=self.folder)
        self.assertEqual((result.returncode, result.stderr.decode().splitlines()[0]), (1, failed))
        self.assertNotIn("a.rtf", self.names())
        result = run("a.md", "--data", "rows.csv", "--continue", folder=self.folder)
        self.assertEqual(result.returncode, 1)
        rtf = (self.folder / "a.rtf").read_bytes().replace(b"\r\n", b"").decode()
        self.assertIn('{Dear Ann; "A" of Up\\line town.}', rtf)
        self.assertEqual((rtf.count("\\sectd"), rtf.count("Cy of Down")), (2, 1))

    def test_of_rows_with_one_name_the_first_is_written(self):
        self.files(a_md="number {{n}}\n", rows_csv="n,x\n" + "".join(f"{i},{i % 50}\n" for i in range(1000)))
        result = run("a.md", "--data", "rows.csv", "-o", "{x}.rtf", "--continue", "--jobs", "8", folder=self.folder)
        self.assertEqual((result.returncode, len(self.names()) - 2), (1, 50), result.stderr)
        for i in range(50):
            self.assertIn(b"{number %d}" % i, (self.folder / f"{i}.rtf").read_bytes())

    def test_failures_of_rows_are_numbered_and_the_others_written(self):
        rows = "".join(f"{i},{'x' if i % 40 else ''}\n" for i in range(100))
        self.files(a_md="{{n}}\n", rows_csv="n,x\n" + rows)
        result = run("a.md", "--data", "rows.csv", "-o", "{x}{n}{x}.rtf", "--continue", folder=self.folder)
        self.assertEqual(result.returncode, 1)
        self.assertTrue(result.stderr.decode().endswith("3 failed: row 1, 41, 81\n"), result.stderr)
        self.assertEqual(len(self.names()), 97 + 2)


def main():
    global FOLDER, PROGRAM
    FOLDER, PROGRAM = Path(sys.argv[2]).resolve(), str(Path(sys.argv[3]).resolve()) if len(sys.argv) > 3 else ""
    if sys.argv[1] == "write":
        write()
    elif sys.argv[1] == "guide":
        text = GUIDE.read_text()
        start = text.index(constructs.TABLE_HEAD)
        end = text.find("\n\n", start) + 1
        GUIDE.write_text(text[:start] + constructs.guide_table() + (text[end:] if end else ""))
    else:
        unittest.main(argv=sys.argv[:1], verbosity=1)


if __name__ == "__main__":
    main()
