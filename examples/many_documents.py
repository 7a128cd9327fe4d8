"""Many documents at a time: one thread for each statement of account.

usage: many_documents.py OUTPUT.rtf     also writes OUTPUT.rtf.2.rtf to OUTPUT.rtf.4.rtf
"""

import sys
from concurrent.futures import ThreadPoolExecutor

import draftwick
from draftwick import FontFamily, TabAlign, TabLeader

ACCOUNTS = [("A. Alder", 120), ("B. Birch", 75), ("C. Cedar", 230), ("D. Dogwood", 18)]


# [one]
def write_statement(holder: str, payment: int, filename: str) -> None:
    """A document and everything in it belongs to the thread that uses it. Nothing is shared with other documents, and
    the temporary files of two never meet."""
    with draftwick.Document(filename) as document:
        document.fonts.add("Arial", family=FontFamily.SWISS)
        document.default_font_name = "Arial"
        normal = document.paragraph_styles.add("Normal")
        normal.font_format.size = 11
        normal.format.space_after = 6
        normal.tab_stops.add(2.5, TabAlign.DECIMAL, TabLeader.DOTS)

        section = document.add_section()
        section.add_paragraph("Normal", f"Statement for {holder}")
        balance = 0
        for month in "January", "February", "March", "April":
            balance += payment
            section.add_paragraph("Normal", f"{month}\t{balance}.00")
# [one]


# [all]
def write_statements(filename: str) -> None:
    # Threads take turns, since the interpreter does; a ProcessPoolExecutor in place of this one uses all processors.
    with ThreadPoolExecutor() as pool:
        statements = []
        for number, (holder, payment) in enumerate(ACCOUNTS, 1):
            name = filename if number == 1 else f"{filename}.{number}.rtf"
            statements.append(pool.submit(write_statement, holder, payment, name))
        for statement in statements:
            statement.result()  # raises what its document raised
# [all]


if __name__ == "__main__":
    write_statements(sys.argv[1])
