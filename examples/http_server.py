"""A web server that answers with documents. It asks itself a thousand times, by four clients at once, and ends.

usage: http_server.py OUTPUT.rtf     writes the last answer
"""

import re
import sys
import threading
from concurrent.futures import ThreadPoolExecutor
from http.client import HTTPConnection
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer
from urllib.parse import parse_qs, quote, urlsplit

import draftwick
from draftwick import FontFamily, PaperSize, ParagraphAlign


# [document]
def make_receipt(customer: str, order: int) -> bytes:
    """The receipt for an order, as the bytes of a file. Nothing is written to any folder."""
    document = draftwick.Document(body_in_memory=True, paper_size=PaperSize.A5)
    document.fonts.add("Liberation Sans", family=FontFamily.SWISS)
    document.default_font_name = "Liberation Sans"
    document.paragraph_styles.add("Title").font_format.size = 18
    document.paragraph_styles.add("Amount").format.align = ParagraphAlign.RIGHT
    section = document.add_section()
    section.add_paragraph("Title", f"Receipt {order}")
    section.add_paragraph(text=f"For {customer}")
    for line in 1, 2, 3:
        row = section.add_table()
        row.add_cell(width="8cm").add_paragraph(text=f"Item {line}")
        row.add_cell(width="3cm").add_paragraph("Amount", f"{order * line}.00 €")
    return document.to_bytes()
# [document]


# [handler]
class Receipts(BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"  # a connection stays open for more requests
    wbufsize = -1  # the head of an answer goes out with its body

    def do_GET(self) -> None:
        url = urlsplit(self.path)
        order = re.fullmatch(r"/receipt/(\d+)", url.path)
        if order is None:
            self.send_error(404)
            return
        customer, = parse_qs(url.query).get("for", [""])
        receipt = make_receipt(customer, int(order[1]))
        self.send_response(200)
        self.send_header("Content-Type", "application/rtf")
        self.send_header("Content-Length", str(len(receipt)))
        self.end_headers()
        self.wfile.write(receipt)
# [handler]

    def log_message(self, format: str, *args: object) -> None:
        pass  # it would be a thousand lines


CLIENTS, REQUESTS = 4, 250


def ask(port: int, client: int) -> bytes:
    """Asks for receipts and gives the last; each must be the one that was asked for."""
    server = HTTPConnection("127.0.0.1", port)
    body = b""
    for order in range(client * REQUESTS, (client + 1) * REQUESTS):
        server.request("GET", f"/receipt/{order}?for={quote('Łucja')}")
        body = server.getresponse().read()
        if body != make_receipt("Łucja", order):
            raise RuntimeError(f"receipt {order} is not right")
    server.close()
    return body


def serve(filename: str) -> None:
    with ThreadingHTTPServer(("127.0.0.1", 0), Receipts) as server:
        listening = threading.Thread(target=server.serve_forever)
        listening.start()
        try:
            with ThreadPoolExecutor(CLIENTS) as clients:
                *_, last = clients.map(ask, [server.server_port] * CLIENTS, range(CLIENTS))
        finally:
            server.shutdown()
            listening.join()
    with open(filename, "wb") as file:
        file.write(last)


if __name__ == "__main__":
    serve(sys.argv[1])
