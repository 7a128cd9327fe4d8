"""Pages: paper and margins, headers and footers, a first page that differs, text in two columns.

usage: pages.py OUTPUT.rtf
"""

import sys

import draftwick
from draftwick import Document, FontFamily, HeaderKind, PaperSize, ParagraphAlign, Section

ENTRIES = [
    "3 January. Wind from the north-west, cloud at noon. Two colliers and a brig passed inside the bank; the "
    "brig showed no light. Trimmed the wicks at four and wound the clock. The hens do not lay.",
    "9 January. Fog since Tuesday. Rang the bell every two minutes by turns with my wife, who says that I "
    "ring it too fast. Heard oars about midnight and called; a voice asked the way to the Hook and did not "
    "wait for the answer.",
    "17 January. Clear, hard frost. Counted forty sail from the gallery. The supply boat brought oil, flour, "
    "a letter for the keeper before me and no tobacco.",
    "2 February. Gale. The spray froze on the panes and had to be scraped off from outside, on a rope. Light "
    "burning all night. One pane cracked.",
    "11 February. The hens lay. Sold six eggs to the pilot, who paid in tobacco.",
    "24 February. Inspector on the rock for two hours. He found the brass bright and the log too long.",
    "6 March. Fair.",
    "19 March. First swallow, or a bat. Painted the boat and, while there was paint, the door, the bench and "
    "one of the hens, which had sat on it.",
]


# [header]
# Headers and footers belong to a section and come before its text. The first page has its own once title_page is on.
def add_headers(section: Section) -> None:
    section.add_header(HeaderKind.HEADER).add_paragraph("Running title", "The lighthouse keeper’s log")
    footer = section.add_header(HeaderKind.FOOTER).add_paragraph("Running title", "Page ")
    footer.add_field("PAGE", "1")  # readers compute it; 1 is shown until they do
# [header]


def add_styles(document: Document) -> None:
    document.fonts.add("Times New Roman", family=FontFamily.ROMAN)
    document.default_font_name = "Times New Roman"
    normal = document.paragraph_styles.add("Normal")
    normal.font_format.size = 10
    normal.format.space_after = 5
    for name, align, size in (("Cover", ParagraphAlign.CENTER, 22), ("Entry", ParagraphAlign.LEFT, 12.5),
                              ("Running title", ParagraphAlign.CENTER, 8.5)):
        style = document.paragraph_styles.add(name, based_on="Normal")
        style.format.align = align
        style.font_format.size = size
    document.paragraph_styles["Cover"].format.space_before = 170


def write_pages(filename: str) -> None:
    with draftwick.Document(filename) as document:
        # [paper]
        document.paper_size = PaperSize.A5
        document.margin_top = document.margin_bottom = 0.9  # inches, unless it has a unit of its own: "2.3cm"
        document.margin_left = document.margin_right = 0.7
        # [paper]
        add_styles(document)

        # [sections]
        # A section starts with the document's page and can have another. Its settings are written when it gets its first
        # header, paragraph or row.
        cover = document.add_section(title_page=True)
        cover.add_header(HeaderKind.FOOTER_FIRST).add_paragraph("Running title", "Not to be taken ashore")
        cover.add_paragraph("Cover", "The lighthouse keeper’s log")
        cover.add_paragraph("Running title", "January to March")

        log = document.add_section(header_y=0.4, footer_y=0.4)
        log.columns.auto(2, 0.3)
        log.columns.line_between = True
        add_headers(log)
        for entry in ENTRIES:
            log.add_paragraph("Entry", entry)
        # [sections]


if __name__ == "__main__":
    write_pages(sys.argv[1])
