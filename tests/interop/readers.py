"""What readers made of a document: LibreOffice's ODT and PDF, and pandoc's tree of the RTF itself."""
import functools
import re
import subprocess
import xml.etree.ElementTree as xml
import zipfile

POINTS = {"in": 72, "cm": 72 / 2.54, "mm": 72 / 25.4, "pt": 1}


def points(text):
    """Lengths in a text in points, to a tenth: "0.5in" is "36pt"."""
    return re.sub(r"(-?\d*\.?\d+)(in|cm|mm|pt)\b", lambda m: f"{round(float(m[1]) * POINTS[m[2]], 1) + 0:g}pt", text)


def local(name):
    return name.rpartition("}")[2]


def plain(element):
    """The text in an element as a reader shows it, without the notes and frames that hang on it."""
    parts = [element.text or ""]
    for child in element:
        tag = local(child.tag)
        if tag == "s":
            count = next((v for k, v in child.attrib.items() if local(k) == "c"), "1")
            parts.append(" " * int(count))
        elif tag in ("tab", "line-break"):
            parts.append("\t" if tag == "tab" else "\n")
        elif tag not in ("note", "frame", "custom-shape", "rect", "text-box", "annotation"):
            parts.append(plain(child))
        parts.append(child.tail or "")
    return "".join(parts)


class Node:
    """An element of a document: attributes without name spaces, lengths in points, and those of its style."""

    def __init__(self, odt, element):
        self.odt, self.element, self.tag = odt, element, local(element.tag)
        self.attributes = {local(k): points(v) for k, v in element.attrib.items()}
        self.text = plain(element)

    def get(self, name, default=None):
        """An attribute, or a property of the style."""
        return self.attributes.get(name, self.style.get(name, default))

    @functools.cached_property
    def style(self):
        return self.odt.style(self.attributes.get("style-name"))

    def find(self, tag):
        return [Node(self.odt, e) for e in self.element.iter() if local(e.tag) == tag]

    def first(self, tag):
        return next(iter(self.find(tag)), None)

    def children(self, *tags):
        return [Node(self.odt, e) for e in self.element if local(e.tag) in tags]


class Odt:
    def __init__(self, file):
        with zipfile.ZipFile(file) as package:
            self.names = package.namelist()
            self.roots = {name: xml.fromstring(package.read(name + ".xml"))
                          for name in ("content", "styles", "meta")}
        self.styles, self.defaults = {}, {}
        for root in self.roots.values():
            for element in root.iter():
                tag = local(element.tag)
                attributes = {local(k): v for k, v in element.attrib.items()}
                if tag == "default-style":
                    self.defaults[attributes["family"]] = self._properties(element)
                elif tag in ("style", "page-layout", "list-style", "master-page") and "name" in attributes:
                    self.styles[attributes["name"]] = (attributes, self._properties(element), element)
        self.parents = {child: parent for root in self.roots.values() for parent in root.iter() for child in parent}

    @staticmethod
    def _properties(element):
        found = {}
        for child in element:
            if local(child.tag).endswith("-properties"):
                for part in child.iter():
                    if part is child or local(part.tag) in ("columns", "column-sep", "background-image", "drop-cap"):
                        found.update({local(k): points(v) for k, v in part.attrib.items()})
        return found

    def style(self, name):
        """All properties of a style, with those that it has from its parents and from the defaults."""
        chain, family = [], None
        while name in self.styles:
            attributes, properties, _ = self.styles[name]
            chain.append(properties)
            family, name = attributes.get("family", family), attributes.get("parent-style-name")
        chain.append(self.defaults.get(family, {}))
        return {k: v for properties in reversed(chain) for k, v in properties.items()}

    @functools.cached_property
    def body(self):
        return Node(self, next(e for e in self.roots["content"].iter() if local(e.tag) == "text" and len(e)))

    def find(self, tag, part="content"):
        return [Node(self, e) for e in self.roots[part].iter() if local(e.tag) == tag]

    def first(self, tag, part="content"):
        return next(iter(self.find(tag, part)), None)

    def paragraph(self, text, part="content"):
        """The paragraph or heading that begins with a text."""
        for element in self.roots[part].iter():
            if local(element.tag) in ("p", "h") and plain(element).startswith(text):
                return Node(self, element)
        return None

    def look(self, text):
        """The look of a text that stands in one paragraph or span: all properties that it has from there upward."""
        for element in reversed(list(self.roots["content"].iter())):
            if local(element.tag) in ("p", "h", "span", "a") and plain(element) == text:
                break
        else:
            return {}
        inner = element
        while local(inner.tag) in ("p", "h", "span", "a") and len(inner) == 1 and plain(inner[0]) == text:
            inner = inner[0]
        chain = []
        while local(inner.tag) in ("p", "h", "span", "a"):
            chain.append(Node(self, inner).style)
            inner = self.parents[inner]
        return {k: v for style in reversed(chain) for k, v in style.items()}

    def lines(self):
        """Every paragraph of the document, its headers and its notes."""
        return [plain(e) for root in self.roots.values() for e in root.iter() if local(e.tag) in ("p", "h")]

    def meta(self, name):
        """A property of the document, or a user-defined one by its name."""
        for element in self.roots["meta"].iter():
            if local(element.tag) == name or name in (v for k, v in element.attrib.items() if local(k) == "name"):
                return element.text
        return None

    def dump(self):
        for name in ("content", "styles", "meta"):
            root = self.roots[name]
            xml.indent(root)
            yield xml.tostring(root, encoding="unicode")


class Page:
    """A page as it is printed, at 100 dots per inch."""

    DPI = 100

    def __init__(self, ppm):
        header = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", ppm)
        self.width, self.height = int(header[1]), int(header[2])
        data = ppm[header.end():]
        self.pixels = [data[i:i + 3].hex() for i in range(0, len(data), 3)]

    def pixel(self, x, y):
        """The colour at a place in inches."""
        return self.pixels[round(y * self.DPI) * self.width + round(x * self.DPI)]

    def box(self, *colors):
        """Left, top, right and bottom of what has one of the colours, in inches to a tenth."""
        found = [i for i, p in enumerate(self.pixels) if p in colors]
        if not found:
            return None
        xs, ys = [i % self.width for i in found], [i // self.width for i in found]
        return tuple(round(v / self.DPI, 1) for v in (min(xs), min(ys), max(xs) + 1, max(ys) + 1))

    def colors(self, left, top, right, bottom):
        """The colours within a box in inches."""
        xs = slice(round(left * self.DPI), round(right * self.DPI))
        rows = range(round(top * self.DPI), round(bottom * self.DPI))
        return {p for y in rows for p in self.pixels[y * self.width:(y + 1) * self.width][xs]}

    def share(self, color):
        """How much of the page has a colour: square inches to a tenth."""
        return round(self.pixels.count(color) / self.DPI**2, 1)


class Pdf:
    def __init__(self, file):
        self.file = file

    @functools.cached_property
    def text(self):
        return subprocess.run(["pdftotext", "-raw", self.file, "-"], capture_output=True, check=True).stdout.decode()

    @functools.cached_property
    def pages(self):
        """The words of each page with their places: (left, top, right, bottom, word) in inches."""
        tree = xml.fromstring(subprocess.run(["pdftotext", "-bbox", self.file, "-"], capture_output=True,
                                             check=True).stdout)
        return [[tuple(round(float(w.get(k)) / 72, 2) for k in ("xMin", "yMin", "xMax", "yMax")) + (w.text,)
                 for w in page if local(w.tag) == "word"] for page in tree.iter() if local(page.tag) == "page"]

    def word(self, word):
        """The number of the page and the place of a word."""
        for number, page in enumerate(self.pages, 1):
            for entry in page:
                if entry[4] == word:
                    return number, *entry[:4]
        return None

    @functools.lru_cache(None)
    def image(self, number=1):
        return Page(subprocess.run(["pdftoppm", "-r", str(Page.DPI), "-aa", "no", "-f", str(number), "-l", str(number),
                                    self.file], capture_output=True, check=True).stdout)


@functools.lru_cache(None)
def pandoc(file):
    """What pandoc reads, as HTML on one line."""
    html = subprocess.run(["pandoc", "-f", "rtf", "-t", "html", "--wrap=none", file], capture_output=True,
                          check=True).stdout.decode()
    return re.sub(r">\s*\n\s*<", "><", html)


@functools.lru_cache(None)
def version(*command):
    output = subprocess.run([*command, "--version"], capture_output=True, check=True).stdout.decode()
    return re.search(r"(\d+\.\d+)", output)[1]
