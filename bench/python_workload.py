"""One workload as a whole process, for scripts/bench: the long document and the letters of Workload.cpp from Python.

usage: python_workload.py long PARAGRAPHS FILE         three runs a paragraph, a row of four cells after every tenth
       python_workload.py addtext PARAGRAPHS FILE      the same by add_text
       python_workload.py docx PARAGRAPHS FILE         the same with python-docx
       python_workload.py plain PARAGRAPHS FILE        the same RTF out of format strings, without a library
       python_workload.py letters COUNT CSV FOLDER     a letter with a table for each line of the file, on two processors
       python_workload.py csv COUNT CSV                writes that file
"""

import csv
import multiprocessing
import sys


def write_long(count, filename):
    import draftwick
    with draftwick.Document(filename, scale_mode=draftwick.ScaleMode.TWIPS, spelling=draftwick.Spelling.CLASSIC) as document:
        section = document.add_section()
        for number in range(1, count + 1):
            paragraph = section.add_paragraph()
            paragraph.add_text_item(f"Line {number:06} plain run, ")
            paragraph.add_text_item("bold run of this one, ").font_format.bold = True
            paragraph.add_text_item("red end of para.").font_format.color = 200
            if number % 10 == 0:
                row = section.add_table()
                for letter in "ABCD":
                    cell = row.add_cell()
                    cell.width = 2268
                    cell.add_paragraph().add_text_item(f"Cell {number:06} {letter}")


def write_text(count, filename):
    import draftwick
    with draftwick.Document(filename, scale_mode=draftwick.ScaleMode.TWIPS, spelling=draftwick.Spelling.CLASSIC) as document:
        document.text_styles.add("Bold").font_format.bold = True
        document.text_styles.add("Red").font_format.color = 200
        section = document.add_section()
        for number in range(1, count + 1):
            paragraph = section.add_paragraph()
            paragraph.add_text(f"Line {number:06} plain run, ")
            paragraph.add_text("bold run of this one, ", "Bold")
            paragraph.add_text("red end of para.", "Red")
            if number % 10 == 0:
                row = section.add_table()
                for letter in "ABCD":
                    cell = row.add_cell()
                    cell.width = 2268
                    cell.add_paragraph().add_text(f"Cell {number:06} {letter}")


def write_docx(count, filename):
    import docx
    from docx.shared import RGBColor
    document = docx.Document()
    for number in range(1, count + 1):
        paragraph = document.add_paragraph()
        paragraph.add_run(f"Line {number:06} plain run, ")
        paragraph.add_run("bold run of this one, ").bold = True
        paragraph.add_run("red end of para.").font.color.rgb = RGBColor(200, 0, 0)
        if number % 10 == 0:
            for cell, letter in zip(document.add_table(rows=1, cols=4).rows[0].cells, "ABCD"):
                cell.text = f"Cell {number:06} {letter}"
    document.save(filename)


def write_plain(count, filename):
    look, end = r"\plain\fs24\cf0 ", "\\sb0\\sa0\\sl240\\slmult1\r\n"
    with open(filename, "w", encoding="cp1252", newline="") as file:
        file.write("{\\rtf1\\ansi{\\colortbl;\\red0\\green0\\blue0;\\red200\\green0\\blue0;}\r\n")
        for number in range(1, count + 1):
            file.write(f"\\pard{look}{end}{{Line {number:06} plain run, }}{{\\b bold run of this one, }}"
                       f"{{\\cf2 red end of para.}}\\par\r\n")
            if number % 10 == 0:
                edges = "".join(f"\\cellx{2268 * cell}" for cell in range(1, 5))
                cells = "".join(f"\\pard\\intbl{look}{end}{{Cell {number:06} {letter}}}\\cell\r\n" for letter in "ABCD")
                file.write(f"\\trowd{edges}{cells}\\row\r\n")
        file.write("}\r\n")


def write_letter(line):
    import draftwick
    number, name, city, *amounts = line
    with draftwick.Document(f"{FOLDER}/{number}.rtf", body_in_memory=True) as document:
        document.fonts.add("Arial", family=draftwick.FontFamily.SWISS)
        document.default_font_name = "Arial"
        section = document.add_section()
        section.add_header(draftwick.HeaderKind.HEADER).add_paragraph().add_text_item("Statement of account")
        section.add_paragraph().add_text_item(f"Dear {name} of {city},")
        section.add_paragraph().add_text_item("these are your payments of the last five months.")
        for month, amount in enumerate(amounts, 1):
            row = section.add_table()
            for text in (f"Month {month}", amount):
                cell = row.add_cell()
                cell.width = 2
                cell.add_paragraph().add_text_item(text)


def write_letters(count, source):
    with open(source, newline="") as file, multiprocessing.Pool(2) as pool:
        done = sum(1 for _ in pool.imap_unordered(write_letter, csv.reader(file), chunksize=250))
    assert done == count


def write_csv(count, filename):
    with open(filename, "w", newline="") as file:
        csv.writer(file).writerows(
            [number, f"Customer {number}", "Bridgetown", *(f"{number % 900 + month}.00" for month in range(5))]
            for number in range(count))


kind, count, name, *FOLDER = sys.argv[1:]
FOLDER = "".join(FOLDER)
if __name__ == "__main__":
    {"long": write_long, "addtext": write_text, "docx": write_docx, "plain": write_plain, "letters": write_letters,
     "csv": write_csv}[kind](int(count), name)
