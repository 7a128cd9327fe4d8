"""Writes what scripts/bench gives the command to read to a folder: a long Markdown text, JSON, a letter and its rows."""
import json
import sys
from pathlib import Path

FOLDER = Path(sys.argv[1])
LETTER = """---
title: Invoice {{number}}
footer: "| {page} |"
---

{{name}}  
{{street}}

Dear {{name}},

please pay **{{sum}}** euros.{{#late}} It is *late*.{{/late}} All the words that such a letter has stand here, so that it
has the length of one that somebody would send.

| What | Price |
| --- | ---: |
| Membership | {{sum}} |
| Postage | 0.00 |

Yours, the committee
"""


def manuscript():
    """The chapters of the guide, repeated to 3 MB."""
    chapters = sorted((Path(__file__).parents[1] / "docs/guide").glob("*.md"))
    text = "\n\n".join(chapter.read_text() for chapter in chapters) + "\n\n"
    (FOLDER / "manuscript.md").write_text(text * (3_000_000 // len(text.encode()) + 1))


def documents(name, count):
    with open(FOLDER / name, "w") as file:
        file.write('{"Fonts": ["Georgia"], "ParagraphStyles": [{"Name": "Normal", "FontFormat": {"Size": 11}}],\n"Content": [{"Section": '
                   '{"Content": [\n')
        for i in range(count):
            paragraph = {"StyleName": "Normal", "Format": {"Align": "dwAlignJustify"}, "Content": [
                f"Paragraph {i} has some words in it and then ",
                {"TextItem": {"Text": "bold ones", "FontFormat": {"Bold": True}}}, " to end it."]}
            file.write((",\n" if i else "") + json.dumps({"Paragraph": paragraph}))
        file.write("]}}]}\n")


def rows():
    (FOLDER / "letter.md").write_text(LETTER)
    with open(FOLDER / "rows.csv", "w") as file:
        file.write("number,name,street,sum,late\n")
        for i in range(10_000):
            file.write(f'{i},Name {i},"{i}, Long Lane",{i % 500}.50,{"yes" if i % 3 == 0 else ""}\n')


manuscript()
documents("million.json", 1_000_000)
documents("thousand.json", 1_000)
rows()
