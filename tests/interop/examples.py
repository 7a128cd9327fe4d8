"""The examples, as readers show them."""
import re
import unittest
from pathlib import Path

from model import ROOT
from readers import Odt, Pdf, pandoc

FOLDER = Path(".")


class Examples(unittest.TestCase):
    maxDiff = None

    def read(self, name):
        file = FOLDER / f"{name}.rtf"
        self.odt, self.pdf, self.html = Odt(file.with_suffix(".odt")), Pdf(file.with_suffix(".pdf")), pandoc(file)

    def cells(self, table):
        return [[" ".join(p.text for p in c.find("p")) for c in row.children("table-cell", "covered-table-cell")]
                for row in table.find("table-row")]

    def test_letter(self):
        self.read("letter")
        self.assertEqual(len(self.pdf.pages), 1)
        self.assertEqual(self.odt.paragraph("Fenwick").text, "Fenwick & Daughters, bookbinders\n12 Mill Lane\nAshford")
        self.assertEqual(self.odt.look("3 March")["text-align"], "end")
        self.assertEqual(self.odt.look("Repair of nine volumes — our offer")["font-weight"], "bold")
        self.assertEqual(self.odt.look("Repair of nine volumes — our offer")["margin-top"], "18pt")
        self.assertEqual(self.odt.look("their")["text-underline-style"], "solid")
        self.assertIn("<u>their</u> condition.", self.html)
        self.assertIn("whole work for €1,240 and need “about six weeks”", " ".join(self.odt.lines()))

    def test_report(self):
        self.read("report")
        self.assertEqual([self.pdf.word(w)[0] for w in ("volumes", "Wednesday")], [2, 3])
        self.assertEqual(len(self.pdf.pages), 3)
        self.assertEqual(self.odt.meta("title"), "The library’s year")
        self.assertEqual(self.odt.meta("Volumes lent"), "95805")
        self.assertIn("The library’s year, printed on", self.pdf.text)
        self.assertEqual(re.findall(r"Page (\d of \d)", self.pdf.text), ["1 of 3", "2 of 3", "3 of 3"])
        self.assertIn("“Repairs” on page 3", self.pdf.text.replace("\n", " "))
        self.assertEqual([self.odt.paragraph(h).get("outline-level")
                          for h in ("The night of the long", "Opening hours")], ["2", "2"])
        self.assertEqual(self.pdf.image().box("145348"), (0.3, 0.3, 8.2, 10.7), "the border of the first page")
        self.assertIn("<h2", self.html)

    def test_outline(self):
        self.read("outline")
        for line in ("1. Welcome", "2.1 Loans", "(a) the missing atlas", "(b) the atlas that nobody", "(a) offers",
                     "3. Thanks", "• your reader"):
            self.assertIn(line, self.pdf.text)
        self.assertIn('<ol type="1">', self.html)

    def test_invoice(self):
        self.read("invoice")
        table = next(t for t in self.odt.find("table") if "Week" in self.cells(t)[0])
        rows = self.cells(table)
        self.assertEqual(rows[0], ["Week", "Service", "Hours", "Rate", "Amount, EUR"])
        self.assertEqual({len(r) for r in rows[1:-3]}, {5})
        weeks = [c for c in table.find("table-cell")
                 if re.fullmatch(r"\d+/2026", c.text or "".join(p.text for p in c.find("p")))]
        self.assertEqual(len(weeks), 4)
        spans = {int(c.get("number-rows-spanned", "1")) for c in weeks}
        self.assertEqual(spans, {(len(rows) - 4) // 4}, "weeks are merged down over their services")
        amounts = [r[4] for r in rows[1:-3]]
        self.assertEqual(self.cents(rows[-3][-1]), sum(map(self.cents, amounts)),
                         "the net amount is the sum of the rows")
        self.assertEqual([self.columns(table, n) for n in (-3, -1)], ["4", "4"])
        self.assertIn("Nordlicht Stage Services", " ".join(w[4] for w in self.pdf.pages[0]))
        self.assertEqual(self.pdf.text.count("IBAN DE02 1203 0000 0000 2020 51"), len(self.pdf.pages))

    @staticmethod
    def cents(text):
        return int(re.sub(r"\D", "", text))

    @staticmethod
    def columns(table, row):
        return table.find("table-row")[row].children("table-cell")[0].get("number-columns-spanned")

    def test_newsletter(self):
        self.read("newsletter")
        notes = [n.get("note-class") for n in self.odt.find("note")]
        self.assertEqual((notes.count("footnote"), notes.count("endnote")), (2, 2))
        self.assertEqual([n.first("note-citation").text for n in self.odt.find("note") if n.get("note-class")
                          == "endnote"], ["i", "ii"])
        self.assertEqual([b.get("name") for b in self.odt.find("bookmark-start")], ["Harvest", "Bridge", "Dates"])
        self.assertIn("2", [c.get("column-count") for c in self.odt.find("columns")])
        columns = [w for w in self.pdf.pages[0] if self.pdf.word("orchard")[2] < w[1] < self.pdf.word("orchard")[2] + 2]
        self.assertEqual([w for w in columns if w[0] < 4.25 < w[2]], [], "no word stands between the columns")
        self.assertTrue(any(w[0] > 4.25 for w in columns), "text in the second column")
        cap, rest = self.pdf.word("T"), self.pdf.word("he")
        self.assertLess(cap[1], rest[1])
        self.assertLess(abs(cap[2] - rest[2]), 0.3)
        self.assertEqual(len(re.findall('<li id="fn', self.html)), 4)

    def test_flyer(self):
        self.read("flyer")
        self.assertEqual(len(self.pdf.pages), 1)
        frames = {(round(float(f.get("width")[:-2])), round(float(f.get("height")[:-2])))
                  for f in self.odt.find("frame") + self.odt.find("custom-shape")}
        self.assertIn((223, 153), frames, "the sunset has the size of its frame")
        self.assertIn((25, 25), frames, "and so has the cloth")
        page = self.pdf.image()
        self.assertGreater(page.share("ffd23c"), 0.5, "the colour of the sun")

    def test_texts(self):
        for name, source in (("LICENSE", "LICENSE"), ("README", "README.md")):
            self.read(name)
            words = re.sub(r"^(#+ |- |```.*)", "", (ROOT / source).read_text(), flags=re.M).split()
            shown = " ".join(self.odt.lines()).replace("•", "").split()
            for i, word in enumerate(words):
                self.assertEqual(shown[i:i + 1], [word], f"{name}, behind “{' '.join(words[max(0, i - 5):i])}”")
            self.assertEqual(len(shown), len(words))
