"""Text of every script in every kind of text, in the standard spelling: it must come back as it is."""
import re
import unittest
import xml.etree.ElementTree as xml
import zipfile
from pathlib import Path

from model import Constant, dw

TEXTS = {
    "CJK": "漢字かな한글", "Cyrillic": "Пример", "Arabic": "مرحبا بالعالم", "Hebrew": "שלום עולם", "Devanagari": "नमस्ते क्षि",
    "emoji": "😀👩‍👩‍👧🇪🇺", "combining": "e\u0301a\u0308\u0323 q\u0307", "Greek": "Ελλάδα", "compatibility": "\ufb01\uffee",
    "negative": "\u8000\u7fff\uffdc", "Western": "é€ž—“”", "digits behind": "я2024 я-1", "open in the code page": "\u0081\u0090",
}
KINDS = ("body", "style", "run", "font", "header", "footer", "note", "cell", "box", "result", "link", "target", "instruction",
         "bookmark", "style name", "text style name", "font name", "title", "author", "keywords", "comment", "property name",
         "property value", "word art", "level")
FOLDER = Path(".")


def file(name):
    return FOLDER / f"script_{name.replace(' ', '_')}.rtf"


def record(script):
    for name, text in TEXTS.items():
        document = script.document(file(name))
        build(document, text)
        document.Finish()


def build(document, text):
    """Each kind of text has the name of its kind in front."""
    document.Spelling = dw.SpellingStandard
    document.Fonts.Add("font name " + text)
    document.ParagraphStyles.Add("style name " + text)
    document.TextStyles.Add("text style name " + text).FontFormat.Bold = True
    document.Lists.Add("List").Levels(1).Format = f"\\L1level {text}."
    for name, kind in (("Title", "title"), ("Author", "author"), ("Keywords", "keywords"), ("DocComment", "comment")):
        document.Properties.Items(Constant("dwBIP" + name)).Value = f"{kind} {text}"
    document.Properties.Add("property name " + text, "property value " + text)
    section = document.AddSection()

    def say(container, kind, **settings):
        container.AddParagraph(**settings).AddTextItem(f"{kind} {text}")

    say(section.AddHeader(dw.Header), "header")
    say(section.AddHeader(dw.Footer), "footer")
    say(section, "body")
    say(section, "style", StyleName="style name " + text)
    section.AddParagraph().AddTextItem("run " + text, StyleName="text style name " + text)
    section.AddParagraph().AddTextItem("font " + text, FontFormat_FontName="font name " + text)
    noted = section.AddParagraph()
    noted.AddTextItem("noted")
    say(noted.AddFootnote(), "note")
    say(section.AddTable().AddCell(Width=6.0), "cell")
    boxed = section.AddParagraph()
    say(boxed.AddShape(dw.SKTextBox).set(Width=5.0, Top=5.0), "box")
    boxed.AddShape(dw.SKTextPlainText).set(Top=7.0, WordArt_Text="word art " + text)
    fields = section.AddParagraph()
    fields.AddField("SOMETHING instruction " + text, "result " + text)
    fields.AddField(f'HYPERLINK "http://example.org/target {text}"', "link " + text)
    marked = section.AddParagraph()
    marked.AddBookmark("bookmark " + text)
    marked.AddTextItem("marked")
    marked.AddBookmark("bookmark " + text, False)
    say(section, "item", Format_ListName="List")


def shown(name):
    """All that LibreOffice has of a document: its texts and what names it gave."""
    with zipfile.ZipFile(file(name).with_suffix(".odt")) as package:
        roots = [xml.fromstring(package.read(part + ".xml")) for part in ("content", "styles", "meta")]
    texts = []
    for root in roots:
        texts += ["".join(element.itertext()) for element in root.iter()]
        texts += [value for element in root.iter() for value in element.attrib.values()]
    everything = "\n".join(texts)
    # Names of styles are encoded, and blanks in addresses.
    return everything + re.sub(r"_([0-9a-f]{1,6})_", lambda m: chr(int(m[1], 16)), everything) + everything.replace("%20", " ")


class Languages(unittest.TestCase):
    def test_come_back_from_every_kind_of_text(self):
        lost = []
        for name, text in TEXTS.items():
            everything = shown(name)
            lost += [(name, kind) for kind in KINDS if f"{kind} {text}" not in everything]
        self.assertEqual(lost, [])
