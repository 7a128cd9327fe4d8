    def __enter__(self: _Self) -> _Self: ...
    def __exit__(
        self, kind: type[BaseException] | None, error: BaseException | None, trace: TracebackType | None
    ) -> None:
        """Finishes the document; gives it up when an exception leaves the block."""
        ...
    def finish(self, to: _Path | _Writes | None = None) -> None:
        """Writes the document to its filename, or to a path or file object instead. A file gets its name when it is
        complete.

        When that fails the document is not finished, and another finish() writes the whole once the cause is gone. On a
        document that is finished, finish() does nothing, and finish(to) is refused. UnicodeWarning when the file does not
        hold all characters, which only the classic spelling does not."""
        ...
    def to_bytes(self) -> bytes:
        """Finishes the document and gives the bytes of its file."""
        ...
    def add_table_from(
        self,
        rows: Iterable[Any],
        columns: Sequence[str] | Mapping[Any, str] | None = None,
        *,
        into: Section | Header | Footnote | Shape | None = None,
        widths: Sequence[_Length] | None = None,
        header: bool = True,
        lines: bool = True,
        stripes: _Color | None = "#f2f2f2",
        style_name: str = "",
        text: Callable[[Any], str] | None = None,
    ) -> int:
        """Adds a table of rows of data, one after the other: however many there are, none is kept.

        rows is any iterable of lists, tuples, mappings or rows of a database cursor, or a frame of pandas or polars. columns
        has the headings in their order; of mappings it picks the keys, and {key: heading} gives them headings. Without it
        they are those that the rows, the cursor or the frame have. The table goes to the end of `into`, a section, header,
        note or text box, or else to the document's last section, which is added when there is none.

        widths are lengths, by default shares of the page that the first rows call for. The row of headings is repeated on
        every page; every second row has the colour of stripes (None: none); lines draws the lines around the cells. Numbers
        stand at the right. style_name is the style of the paragraphs; text makes the text of a value in place of str, which
        gives "" for None. Returns how many rows there were."""
        ...
