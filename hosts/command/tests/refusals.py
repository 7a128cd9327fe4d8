"""What the command says to wrong input, and documents in JSON with words of their files, as rows."""


def in_paragraph(member):
    return '{"Content": [{"Section": {"Content": [\n{"Paragraph": {%s}}]}}]}' % member


# Arguments, the content of the file "in", exit status, the first line of the message.
ROWS = [
    ("", "", 2, "draftwick: no input"),
    ("in other", "x", 2, "draftwick: one input at a time; what is other?"),
    ("in --colour red", "x", 2, "draftwick: there is no option --colour"),
    ("in -o", "x", 2, "draftwick: -o wants a value"),
    ("in -o in", "x", 2, "draftwick: the output would replace the input in"),
    ("in --page b9", "x", 2,
     'draftwick: --page is a3, a4, a5, letter, legal or WIDTHxHEIGHT as in 20cmx15cm, not "b9"'),
    ("in --set title", "x", 2, 'draftwick: --set wants name=value, not "title"'),
    ("in --toc", "{}", 2, "draftwick: a document in JSON says all of this itself: --style, --data, --set, --toc and "
     "--number-sections are for Markdown"),
    ("--clean none", "", 1, "none: error: cannot be read: No such file or directory"),
    ("none.md", "", 1, "none.md: error: cannot be read: No such file or directory"),
    ("in --style lettr", "x", 1, 'lettr: error: no such style file, and no look of this name; did you mean "letter"?'),
    ("in --data none", "x", 1, "none: error: cannot be read: No such file or directory"),
    ("in -o no/such.rtf", "x", 1, "draftwick: error: cannot create 'no/such.rtf': No such file or directory"),
    # Front matter.
    ("in", "---\ntitle: x\n", 1, "in:1: error: the front matter has no end, which is a line of three dashes"),
    ("in", "---\ntitle: x\nwhat?\n---\n", 1, 'in:3: error: expected "name: value", or --- at the end'),
    ("in", ">" * 2000 + "x", 1, "in:1: error: nested more than 400 levels deep"),
    # JSON.
    ("in", '{"MarginTop": 1,\n "MarginTop" 2}', 1, "in:2:14: error: Missing a colon after a name of object member."),
    ("in", '{"MarginTop": 1} x', 1, "in:1:18: error: The document root must not be followed by other values."),
    ("in", b'{"Caption": "\xff"}', 1, "in:1:14: error: Invalid encoding in string."),
    ("in", '{"MarginTpo": 1}', 1, 'in:1:2: error: Document has no "MarginTpo"; did you mean "MarginTop"?'),
    ("in", '{"content": []}', 1, 'in:1:2: error: Document has no "content"; did you mean "Content"?'),
    ("in", '{"MarginTop": "2 miles"}', 1,
     "in:1:15: error: '2 miles' is no length; write a number and one of in, cm, mm, pt, pc, tw, as in '2.5cm'"),
    ("in", '{"Filename": "x"}', 1, 'in:1:2: error: "Filename" is for the command line to say'),
    ("in", '{"Content": [{"Section": {"Columns": {"Items": 1}}}]}', 1,
     'in:1:48: error: "Items" of Columns has members of its own, in braces'),
    ("in", '{"Content": ["x"]}', 1, 'in:1:14: error: Document cannot hold "Paragraph"; there are Section'),
    ("in", '{"Content": [{"Section": {}, "Section": {}}]}', 1,
     'in:1:30: error: only one thing in each object of a list; put braces around "Section"'),
    # Farther away than the reader looks at once.
    ("in", '{"Content": [{"Section": {"Content": [\n' + '"x",\n' * 30000 + " 1]}}]}", 1,
     "in:30002:2: error: what an object holds is a text or an object"),
    ("in", in_paragraph('"Format": {"Align": "dwAlignCentre"}'), 1,
     'in:2:36: error: "dwAlignCentre" is no dwParagraphAlign; did you mean "dwAlignCenter"?'),
    ("in", in_paragraph('"Format": {"OutlineLevel": 10}'), 1,
     "in:2:43: error: Property ParagraphFormat.OutlineLevel set to out of range value..."),
    ("in", in_paragraph('"Content": [{"Bookmark": {"IsStart": true}}]'), 1,
     'in:2:57: error: "Name" must be given, before all else'),
    ("in", in_paragraph('"Content": ["x"], "StyleName": ""'), 1,
     "in:2:47: error: Invalid operation.  Target already emitted Paragraph..."),
    ("in", in_paragraph('"Borders": {"dwPBorderLeft": {"Color": "red"}}'), 1,
     "in:2:55: error: 'red' is no colour; write '#' and two hexadecimal digits each for red, green and blue, as in "
     "'#ff8000'"),
    ("in --spelling classic", "![x](in \"t\")", 1, "in:1: error: in: ..."),
    # Merging.
    ("in --set a=1", "{{b}}", 1, 'in:1: error: there is no value "b"; there are a'),
    ("in --set a=1", "x\n\n{{#a}}", 1, "in:3: error: {{#a}} without {{/a}} in the same place"),
    ("in --set a=1", "*{{#a}}* {{/a}}", 1, "in:1: error: {{/a}} ends nothing that begins in the same place"),
    ("in --set a=1", "`{{b}}`", 1, 'in: error: there is no value "b"; there are a'),
]

# A document, and words of its file.
JSON_WORDS = [
    ('{"MarginTop": "2.54 cm", "Content": [{"Section": {"Content": ["x"]}}]}', r"\margt1440"),
    ('{"ScaleMode": "dwPoints", "MarginTop": "1 in", "MarginLeft": 36, "Content": [{"Section": null}]}',
     r"\margt1440\margl720"),
    ('{"Fonts": ["Arial", {"Name": "Georgia", "Family": "dwRoman"}], "Content": [{"Section": {}}]}',
     r"\froman\fcharset0 Georgia;"),
    ('{"Properties": {"Title": {"Value": "T"}, "CreationTime": {"Value": "2026-04-01T09:30"}}, '
     '"Content": [{"Section": {}}]}', r"{\creatim\yr2026\mo4\dy1\hr9\min30"),
    ('{"Lists": [{"Name": "L", "Levels": {"1": {"Style": "dwLNSRomanLower"}}}], "Content": [{"Section": '
     '{"Content": [{"Paragraph": {"Format.ListName": "L", "Content": ["x"]}}]}}]}', r"\levelnfc2"),
    ('{"Content": [{"Section": {"Content": [{"Paragraph": {"Borders.dwPBorderLeft": {"Style": "dwBSSingle", '
     '"Color": "#ff8000"}, "TabStops": [{"Position": "1 in", "Align": "dwTabRight", "Leader": "dwTabLeaderDots"}], '
     '"Content": ["a ", {"TextItem": {"Text": "b", "FontFormat": {"Bold": true}}}, {"TextItem": {"Text": "c", '
     '"Content": ["d", {"Special": "line"}, {"RawText": "{\\\\i e}"}]}}]}}]}}]}',
     r"{\b b}{cd\line {\i e}}"),
    ('{"Content": [{"Section": {"Content": [{"Table": {"Content": [{"Cell": {"Width": "1 in", "Content": ["x"]}}]}}]}}]}',
     r"\cellx1345"),
    ('{"Content": [{"Section": {"Columns": {"Auto": {"Count": 2, "Spacing": "1 in"}}, "Content": ["x"]}}]}',
     r"\cols2\colsx1440"),
    ('{"Content": [{"Section": {"Content": [{"Header": {"Kind": "dwFooter", "Content": ["f"]}}]}}]}', r"{\footer"),
]
