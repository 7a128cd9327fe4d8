"""A mail merge: letters in ten languages, two of which are written from right to left, each on a small page.

usage: mail_merge.py OUTPUT.rtf
"""

import csv
import io
import sys

import draftwick
from draftwick import Document, FontFamily, Section

# Of each language the greeting, the text, the seats and the closing, with the names of columns in braces.
LETTERS = {
    "English": ("Hello, {name}!",
                "The Lantern Theatre opens again on 3 May. The tram to “{town}” stops at the door.",
                "Row 1, seats {seats}", "See you soon! 🎈🎵"),
    "German": ("Guten Tag, {name}!",
               "Das Laternentheater öffnet am 3. Mai wieder. Die Straßenbahn nach „{town}“ hält vor der Tür.",
               "Reihe 1, Plätze {seats}", "Bis bald! 🎈🎵"),
    "French": ("Bonjour, {name} !",
               "Le théâtre de la Lanterne rouvre le 3 mai. Le tramway « {town} » s’arrête à la porte.",
               "Rang 1, places {seats}", "À bientôt ! 🎈🎵"),
    "Polish": ("Dzień dobry, {name}!",
               "Teatr Latarnia znów otwiera drzwi 3 maja. Tramwaj „{town}” zatrzymuje się przed wejściem.",
               "Rząd 1, miejsca {seats}", "Do zobaczenia! 🎈🎵"),
    "Greek": ("Καλημέρα, {name}!",
              "Το θέατρο «Φανάρι» ανοίγει ξανά στις 3 Μαΐου. Το τραμ «{town}» σταματά μπροστά στην πόρτα.",
              "Σειρά 1, θέσεις {seats}", "Τα λέμε σύντομα! 🎈🎵"),
    "Russian": ("Здравствуйте, {name}!",
                "Театр «Фонарь» снова открывается 3 мая. Трамвай «{town}» останавливается у входа.",
                "Ряд 1, места {seats}", "До скорой встречи! 🎈🎵"),
    "Hebrew": ("שלום, {name}!", "תיאטרון הפנס נפתח מחדש ב־3 במאי. החשמלית „{town}” עוצרת ליד הדלת.",
               "שורה 1, מושבים {seats}", "להתראות! 🎈🎵"),
    "Arabic": ("مرحبًا، {name}!", "يعيد مسرح الفانوس فتح أبوابه في 3 مايو. يتوقف ترام «{town}» أمام الباب.",
               "الصف 1، المقاعد {seats}", "إلى اللقاء! 🎈🎵"),
    "Hindi": ("नमस्ते, {name}!", "लालटेन थिएटर 3 मई को फिर खुल रहा है। “{town}” वाली ट्राम दरवाज़े पर रुकती है।",
              "पंक्ति 1, सीटें {seats}", "जल्दी मिलेंगे! 🎈🎵"),
    "Japanese": ("{name}様", "「ランタン劇場」は5月3日に再開します。路面電車「{town}」線は劇場の前に停まります。",
                 "1列目、座席 {seats}", "またお会いしましょう! 🎈🎵"),
}

# What a program would read from a file, opened with encoding="utf-8" and newline="".
GUESTS = """\
name,town,seats,language
Nguyễn Thị Hoa,Łódź,"1, 2",English
Jörg Weiß,Köln,3,German
Chloé Dvořáková,Besançon,"4, 5",French
Łucja Świątek,Gdańsk,6,Polish
Ελένη Παππά,Θεσσαλονίκη,"7, 8",Greek
Алёна Щукина,Ярославль,9,Russian
נועה לוי,באר שבע,"10, 11",Hebrew
ليلى حداد,بيروت,12,Arabic
अदिति श्रीवास्तव,वाराणसी,"13, 14",Hindi
渡邉 さくら,名古屋,15,Japanese
"""


# [merge]
def add_letter(section: Section, guest: dict[str, str]) -> None:
    """Nothing here depends on the language: a paragraph whose first letter is Hebrew or Arabic runs from right to left."""
    greeting, text, seats, closing = (part.format(**guest) for part in LETTERS[guest["language"]])
    section.add_paragraph("Greeting", greeting)
    section.add_paragraph("Letter", text)
    section.add_paragraph("Seats", seats)
    section.add_paragraph("Letter", closing)
# [merge]


def add_styles(document: Document) -> None:
    document.fonts.add("Arial", family=FontFamily.SWISS)
    document.default_font_name = "Arial"
    letter = document.paragraph_styles.add("Letter")
    letter.font_format.size = 12
    letter.format.space_after = 4
    greeting = document.paragraph_styles.add("Greeting", based_on="Letter")
    greeting.font_format.size = 15
    greeting.font_format.color = "#b42828"
    seats = document.paragraph_styles.add("Seats", based_on="Letter")
    seats.font_format.bold = True


def write_letters(filename: str) -> None:
    with draftwick.Document(filename, page_width=4.6, page_height=2, margin_top=0.3, margin_bottom=0.2) as document:
        add_styles(document)
        # [guests]
        # A section begins on a new page. For a file for each guest, a document would be created here.
        for guest in csv.DictReader(io.StringIO(GUESTS)):
            add_letter(document.add_section(), guest)
        # [guests]


if __name__ == "__main__":
    write_letters(sys.argv[1])
