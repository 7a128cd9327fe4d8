"""Shapes, pictures, WordArt and depth. Pages say where the ink is: a drawing's element alone proves no drawing."""
import struct

from model import dw
from text import BLUE, GREEN, RED, SAND
from topics import say, topic

QUARTERS = ((0xFF, 0, 0), (0, 0xC0, 0), (0, 0, 0xFF), (0xFF, 0xFF, 0))  # top left, top right, bottom left, bottom right


def bmp(size=96):
    """Four quarters in four colours, 96 pixels to the inch."""
    half = size // 2
    rows = [[QUARTERS[(y >= half) * 2 + (x >= half)] for x in range(size)] for y in reversed(range(size))]
    pixels = b"".join(bytes((b, g, r)) for line in rows for r, g, b in line)
    return (struct.pack("<2sIHHI", b"BM", 54 + len(pixels), 0, 0, 54)
            + struct.pack("<IiiHHIIiiII", 40, size, size, 1, 24, 0, len(pixels), 3780, 3780, 0, 0) + pixels)


def gif(size=96):
    """The same. Every code has eight bits, and the dictionary is emptied before a ninth is needed."""
    half = size // 2
    palette = bytes(v for color in QUARTERS for v in color).ljust(3 * 128, b"\0")
    indices = [(y >= half) * 2 + (x >= half) for y in range(size) for x in range(size)]
    codes = bytearray()
    for at in range(0, len(indices), 100):
        codes += bytes([128]) + bytes(indices[at:at + 100])
    codes.append(129)
    blocks = b"".join(bytes([len(codes[i:i + 255])]) + codes[i:i + 255] for i in range(0, len(codes), 255))
    return (b"GIF89a" + struct.pack("<HHBBB", size, size, 0xF6, 0, 0) + palette
            + b"," + struct.pack("<HHHHBB", 0, 0, size, size, 0, 7) + blocks + b"\0;")


def wmf():
    """A blue rectangle of one inch by one."""
    def record(function, *values):
        return struct.pack("<IH", 3 + len(values), function) + struct.pack(f"<{len(values)}H", *values)

    window = record(0x0103, 8) + record(0x020B, 0, 0) + record(0x020C, 1440, 1440)  # map mode, origin and extent
    brush = record(0x02FC, 0, 0x0000, 0x00C0, 0) + record(0x012D, 0)
    records = window + brush + record(0x041B, 1440, 1440, 0, 0) + record(0)
    placeable = struct.pack("<IHhhhhHI", 0x9AC6CDD7, 0, 0, 0, 1440, 1440, 1440, 0)
    checksum = 0
    for (word,) in struct.iter_unpack("<H", placeable):
        checksum ^= word
    header = struct.pack("<HHHIHIH", 1, 9, 0x300, 9 + len(records) // 2, 1, 7, 0)
    return placeable + struct.pack("<H", checksum) + header + records


def emf():
    """A blue rectangle of one inch by one."""
    brush = struct.pack("<IIIIII", 39, 24, 1, 0, 0xC00000, 0)
    select = struct.pack("<III", 37, 12, 1)
    shape = struct.pack("<IIiiii", 43, 24, 0, 0, 96, 96)
    end = struct.pack("<IIIII", 14, 20, 0, 0, 20)
    records = brush + select + shape + end
    header = struct.pack("<IIiiiiiiiiIIIIHHIIIiiii", 1, 100, 0, 0, 95, 95, 0, 0, 2540, 2540, 0x464D4520, 0x10000,
                         100 + len(records), 5, 2, 0, 0, 0, 0, 1920, 1080, 508, 286)
    return header.ljust(100, b"\0") + records


def shape(anchor, kind, left, top, width=1.0, height=1.0, **settings):
    return anchor.AddShape(kind).set(ReferenceX=dw.SRXPage, ReferenceY=dw.SRYPage, Left=left, Top=top, Width=width,
                                     Height=height, **settings)


SOLID = {"Fill_Style": dw.SFSSolid, "Fill_Color": RED}


@topic("Shapes")
def shapes(t):
    section = t.document.AddSection()
    say(section, "above")
    anchor = say(section, "anchor")
    places = []

    # A row of the page has three shapes: at 1, 3 and 5 inches from the left.
    def add(kind=dw.SKRectangle, **settings):
        place = 1.0 + 2 * (len(places) % 3), 1.0 + 1.3 * (len(places) // 3)
        places.append(place)
        shape(anchor, kind, *place, **{"Line_Style": dw.SLSNone, **settings})
        return place

    def ink(place, x=0.5, y=0.5):
        """The colour at a part of the shape's width and height."""
        return t.pdf.image().pixel(place[0] + x, place[1] + y)

    place = add(**SOLID)
    t.shows("Rectangle of one colour", r"{\sp{\sn ShapeType}{\sv 1}}",
            lambda p=place: (ink(p, 0.05, 0.05), ink(p, 0.95, 0.95), ink(p, 1.1, 0.5)), ("c00000", "c00000", "ffffff"))
    place = add(dw.SKEllipse, **SOLID)
    t.shows("Other figures: an ellipse", r"{\sp{\sn ShapeType}{\sv 3}}", lambda p=place: (ink(p), ink(p, 0.05, 0.05)),
            ("c00000", "ffffff"),
            instead=("c00000", "c00000"), partly=True, why="a rectangle, as every figure")
    place = add(dw.SKRightTriangle, FlipH=True, **SOLID)
    t.shows("Mirrored figure", r"{\sp{\sn FFlipH}{\sv 1}}", lambda p=place: (ink(p, 0.9, 0.9), ink(p, 0.1, 0.1)),
            ("c00000", "ffffff"),
            instead=("c00000", "c00000"), partly=True, why="a rectangle, as every figure")
    place = add(Rotation=45.0, **SOLID)
    t.shows("Turned figure", r"{\sp{\sn Rotation}", lambda p=place: (ink(p), ink(p, 0.05, 0.05)), ("c00000", "ffffff"),
            instead=("c00000", "c00000"), partly=True, why="not turned")
    place = add(Fill_Style=dw.SFSShade, Fill_Color=RED, Fill_BackColor=BLUE)
    t.shows("Shade from one colour to another", r"{\sn fillType}{\sv 7}",
            lambda p=place: len({ink(p, 0.5, y) for y in (0.1, 0.5, 0.9)}), 3)
    place = add(Fill_Style=dw.SFSShadeRect, Fill_Color=RED, Fill_BackColor=BLUE)
    t.shows("Shade around a rectangle", r"{\sn fillType}{\sv 6}",
            lambda p=place: len({ink(p, x, 0.5) for x in (0.05, 0.3, 0.5)}), 3, instead=1,
            partly=True, why="the first colour alone")
    place = add(Fill_Opacity=50.0, **SOLID)
    t.shows("Half transparent", r"{\sp{\sn fillOpacity}{\sv 32768}}", lambda p=place: ink(p), "df7f7f")
    place = add(Line_Style=dw.SLSSingle, Line_Width=6.0, Line_Color=GREEN, **SOLID)
    t.shows("Outline", r"{\sp{\sn lineColor}{\sv 40960}}", lambda p=place: (ink(p, 0.0, 0.5), ink(p)),
            ("00a000", "c00000"))
    place = add()
    t.shows("No outline and no fill", r"{\sp{\sn ShapeType}{\sv 1}}",
            lambda p=place: {ink(p, x / 50, 0.5) for x in range(-3, 4)}, {"ffffff"},
            instead={"ffffff", "000000"}, partly=True, why="it draws a thin black line where none is named")
    place = add(Line_Style=dw.SLSSingle, Line_Width=3.0, Line_Dash=dw.SLDDash)
    t.shows("Dashes", r"{\sp{\sn lineDashing}{\sv 6}}", lambda p=place: {ink(p, x / 100, 0.0) for x in range(10, 90)},
            {"000000", "ffffff"},
            instead={"000000"}, partly=True, why="a solid line")
    place = add(dw.SKLine, Line_Style=dw.SLSSingle, Line_EndArrow=dw.SLAArrow, Line_Width=3.0)
    t.shows("Line with an arrowhead", r"{\sp{\sn lineEndArrowhead}{\sv 1}}", lambda p=place: (ink(p), ink(p, 0.1, 0.9)),
            ("000000", "ffffff"),
            instead=("ffffff", "ffffff"), why="an empty rectangle")
    place = add(Shadow_Style=dw.SSSSingle, Shadow_Color=BLUE, Shadow_OffsetX=0.2, Shadow_OffsetY=0.2, **SOLID)
    t.shows("Shadow", r"{\sp{\sn fShadow}{\sv 1}}", lambda p=place: ink(p, 1.1, 1.1), "0000c0", instead="ffffff",
            why="the shape alone")
    place = add(Fill_Style=dw.SFSPicStretch, Fill_Picture=str(t.folder / "quarters.bmp"))
    t.shows("Filled with a picture", r"{\sn fillBlip}", lambda p=place: ink(p, 0.25, 0.25), "ff0000", instead="000000",
            why="filled with the first colour")
    place = add(Fill_Style=dw.SFSPicTile, Fill_Picture=str(t.folder / "quarters.bmp"))
    t.shows("Tiled with a picture", r"{\sn fillType}{\sv 2}", lambda p=place: ink(p, 0.25, 0.25), "ff0000",
            instead="000000",
            why="filled with the first colour")
    place = add(Fill_Style=dw.SFSShade, Fill_Color=RED, Fill_BackColor=RED, Fill_ShadeArray="192,0,40960,50,192,100")
    t.shows("Shade of three colours", r"{\sn fillShadeColors}", lambda p=place: ink(p)[2:4] > "80", True, instead=False,
            partly=True, why="the first and the last alone")
    place = add(Line_Style=dw.SLSDouble, Line_Width=9.0, Line_Color=GREEN)
    t.shows("Outline of two lines", r"{\sp{\sn lineStyle}{\sv 1}}",
            lambda p=place: {ink(p, x / 100, 0.5) for x in range(-6, 7)}
            == {"00a000", "ffffff"} and ink(p, 0.0, 0.5) == "ffffff", True, instead=False, partly=True, why="one")
    place = add(dw.SKRectangle, ThreeD_Visible=True, ThreeD_UseColor=True, ThreeD_Color=BLUE, **SOLID)
    t.shows("Depth", r"{\sp{\sn fc3D}{\sv 1}}", lambda p=place: ink(p, 1.1, -0.1) != "ffffff", True, instead=False,
            why="the shape alone")
    place = add(dw.SKTextPlainText, WordArt_Text="Art", **SOLID)
    t.shows("WordArt", r"{\sp{\sn gtextUNICODE}{\sv Art}}",
            lambda p=place: any(ink(p, x / 20, 0.5) == "ffffff" for x in range(1, 20))
            and any(ink(p, x / 20, 0.5) == "c00000" for x in range(1, 20)), True,
            instead=False, why="a rectangle without the text")


@topic("Places of shapes")
def shape_places(t):
    section = t.document.AddSection(MarginLeft=1.0, MarginTop=1.0)
    words = say(section, "start " + "words " * 450)
    around = words.AddShape(dw.SKRectangle)
    around.set(Left=2.0, Top=0.5, ReferenceX=dw.SRXMargin, ReferenceY=dw.SRYParagraph, Wrap=dw.SWAround, Width=2.0,
               Height=0.8, **SOLID)
    below = words.AddShape(dw.SKRectangle)
    below.set(Left=3.0, Top=5.0, ReferenceX=dw.SRXPage, ReferenceY=dw.SRYPage, Wrap=dw.SWTopBottom,
              Fill_Style=dw.SFSSolid, Fill_Color=GREEN)
    behind = words.AddShape(dw.SKRectangle)
    behind.set(Left=0.0, Top=0.0, Wrap=dw.SWNone, BehindText=True, Width=1.0, Height=0.3, Fill_Style=dw.SFSSolid,
               Fill_Color=BLUE,
               Line_Color=BLUE)
    image = lambda: t.pdf.image()

    def inside(color):
        """How many words reach into the box that has a colour."""
        left, top, right, bottom = image().box(color)
        return sum(w[2] > left and w[0] < right and w[3] > top + 0.05 and w[1] < bottom - 0.05 for w in t.pdf.pages[0])

    narrow = words.AddShape(dw.SKRectangle)
    narrow.set(Left=4.0, Top=7.0, ReferenceX=dw.SRXPage, ReferenceY=dw.SRYPage, Wrap=dw.SWAround, WrapSides=dw.SWSLeft,
               Width=1.5,
               Height=0.8, Fill_Style=dw.SFSSolid, Fill_Color=SAND, Line_Color=SAND)
    t.shows("Text on the left alone", r"\shpwrk1",
            lambda: len([w for w in t.pdf.pages[0] if w[0] > 5.5 and 7.1 < w[1] < 7.6]) == 0, True,
            instead=False, partly=True, why="on both sides")
    t.shows("Place from the margin and the paragraph", r"\shpbxmargin\shpbypara", lambda: image().box("c00000"),
            (3.0, 1.5, 5.0, 2.3))
    t.shows("Place on the page", r"\shpbxpage\shpbypage", lambda: image().box("00a000"), (3.0, 5.0, 4.0, 6.0))
    t.shows("Text around", r"\shpwr2", lambda: inside("c00000"), 0)
    t.shows("Text above and below", r"\shpwr1", lambda: len([w for w in t.pdf.pages[0] if w[3] > 5.1 and w[1] < 5.9]),
            0)
    t.shows("Place from the margins", r"\shpbxmargin\shpbymargin", lambda: image().box("0000c0")[:2], (1.0, 1.0))
    t.shows("Behind the text", r"\shpfblwtxt1", lambda: "000000" in image().colors(*image().box("0000c0")), True,
            instead=False,
            why="in front of it")


@topic("Text boxes")
def text_boxes(t):
    section = t.document.AddSection()
    anchor = say(section, "anchor")
    box = shape(anchor, dw.SKTextBox, 2.0, 2.0, 4.0, 1.5, TextFormat_SpacingLeft=0.5, TextFormat_SpacingTop=0.4,
                **SOLID)
    say(box, "boxed")
    cell = box.AddTable().AddCell(Width=2.0)
    say(cell, "boxed-row")
    upright = shape(anchor, dw.SKTextBox, 2.0, 5.0, 1.0, 3.0, TextFormat_Flow=dw.STFTopToBottom, Line_Color=GREEN)
    say(upright, "upright")
    say(section, "after")
    place_of = lambda word: next((w[:2] for w in t.pdf.pages[0] if w[4] == word and 2 < w[0] < 6 and 2 < w[1] < 3.5),
        None)
    t.shows("Text in a box", r"{\shptxt", lambda: t.odt.paragraph("boxed").text, "boxed", pandoc="boxed")
    t.shows("Text where its box is", r"\shpleft2880\shptop2880", lambda: place_of("boxed") is not None, True,
            instead=False,
            why="the text stands in a tiny frame of its own beside the anchor, too narrow for a word")
    t.shows("Margins of the box", r"{\sp{\sn dxTextLeft}{\sv 457200}}", lambda: (place_of("boxed") or [0])[0], 2.5,
            instead=0, why="as above")
    t.shows("Row in a box", "boxed-row", lambda: [p.text for c in t.odt.find("table-cell") for p in c.find("p")],
            ["boxed-row"])
    t.shows("Vertical text", r"{\sp{\sn txflTextFlow}{\sv 2}}",
            lambda: (w := t.pdf.word("upright")) and w[4] - w[2] > w[3] - w[1], True, why="as above")


@topic("Pictures")
def pictures(t):
    for name, data in (("quarters.bmp", bmp()), ("quarters.gif", gif()), ("square.wmf", wmf()), ("square.emf", emf())):
        (t.folder / name).write_bytes(data)
    section = t.document.AddSection()
    anchor = say(section, "anchor")
    kinds = (("BMP", "quarters.bmp", r"\emfblip", "ff0000"), ("GIF", "quarters.gif", r"\emfblip", "ff0000"),
             ("WMF", "square.wmf", r"\wmetafile8", "0000c0"), ("EMF", "square.emf", r"\emfblip", "0000c0"),
             ("JPEG", "photo.jpg", r"\jpegblip", None))
    for number, (name, file, written, color) in enumerate(kinds):
        place = 1.0 + 2.5 * (number % 3), 1.5 + 2.5 * (number // 3)
        shape(anchor, dw.SKPictureFrame, *place, 2.0, 2.0, Fill_Picture=str(t.folder / file))
        # A place in the first quarter, and one in the last.
        ink = lambda p=place: (t.pdf.image().pixel(p[0] + 0.5, p[1] + 0.5), t.pdf.image().pixel(p[0] + 1.5, p[1] + 1.5))
        if color:
            t.shows(f"Picture frame with {name}", "{\\pict" + written, ink, (color, color if number > 1 else "ffff00"))
        else:
            t.shows(f"Picture frame with {name}", "{\\pict" + written, lambda: "ffffff" not in ink(), True)
    t.shows("Size of a picture frame", r"\shpbottom5040\shpright4320",
            lambda: t.pdf.image().box("ff0000", "ffff00", "00c000", "0000ff")[2:], (5.5, 3.5))


@topic("Picture in the line")
def inline_picture(t):
    t.document.ScaleMode = dw.Twips
    section = t.document.AddSection()
    paragraph = say(section, "before ")
    paragraph.AddShape(dw.SKPictureFrame).set(InLine=True, Width=1440.0, Height=1440.0,
        Fill_Picture=str(t.folder / "quarters.bmp"))
    paragraph.AddTextItem(" behind")
    t.shows("Picture in the line", r"{\pict{\*\picprop", lambda: t.pdf.image().share("ff0000") > 0, True, instead=False,
            why="its data stand behind the group of the picture and become digits in the text; use a picture frame")
