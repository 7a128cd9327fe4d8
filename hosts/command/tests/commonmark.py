"""The examples that define CommonMark: the text that LibreOffice reads in our file is the text that the
reference renderer shows."""
import html.parser
import json
import subprocess
from pathlib import Path

# Of Debian's package golang-github-yuin-goldmark-dev.
CASES = next(Path("/usr/share/gocode/src/github.com/yuin/goldmark/_test").glob("*.json"))
EXTENSIONS = ["-e", "table", "-e", "strikethrough", "-e", "autolink", "-e", "tasklist", "--unsafe"]
BLOCKS = set("address article aside blockquote br caption dd details dialog div dl dt fieldset figcaption figure footer form "
             "h1 h2 h3 h4 h5 h6 header hr li main nav ol option p pre section summary table tbody td tfoot th thead title tr "
             "ul".split())


class Shown(html.parser.HTMLParser):
    """The words that a browser shows."""

    def __init__(self):
        super().__init__()
        self.text, self.hidden = [], 0

    def handle_starttag(self, tag, attributes):
        if tag in ("script", "style"):
            self.hidden += 1
        if tag == "img":
            self.text.append(dict(attributes).get("alt") or "")
        elif tag in BLOCKS:
            self.text.append(" ")

    def handle_endtag(self, tag):
        if tag in ("script", "style"):
            self.hidden -= 1
        elif tag in BLOCKS:
            self.text.append(" ")

    def handle_data(self, data):
        if not self.hidden:
            self.text.append(data)


def cases():
    return [case["markdown"] for case in json.loads(CASES.read_text())]


def reference(markdown):
    """The words of the reference renderer's HTML."""
    rendered = subprocess.run(["cmark-gfm", *EXTENSIONS], input=markdown.encode(), capture_output=True, check=True)
    shown = Shown()
    shown.feed(rendered.stdout.decode())
    shown.close()
    return "".join(shown.text).split()


# HTML that never ends: browsers have rules for it that are not those of Markdown.
BROKEN_HTML = ("<div id=\"foo\"\n", "<div class\n", "<div *?", "<?php\n\n  echo '>'")


def groups(size=10):
    """Examples together in one text, each a few: a reader takes its time to open a file."""
    whole = [case for case in cases() if not case.startswith(BROKEN_HTML)]
    return ["\n\n".join(whole[i:i + size]) for i in range(0, len(whole), size)]
