#!/usr/bin/env python3
"""Writes the workbooks in data/ that the tests of the reading take: a title, a blank row, column names,
units, two combinations; texts, shared texts, numbers, a formula with the value saved for it.

    make_workbooks.py FOLDER
"""

import sys
import zipfile
from pathlib import Path

# Texts are str, numbers int or float, a formula a pair of it and its value.
ROWS = [
    ["Zestawienie kombinacji słupa"],
    [],
    ["Kombinacja", "N", "My", "Mz", "Ty", "Tz"],
    ["[-]", "[N]", "[kNm]", "[kNm]", "[kN]", "[kN]"],
    ["KO-1 śnieg", 300125, 120.123456789, "10,5", ("2*10.0625", 20.125), 0],
    ["KO-2", 200000, "brak", 10.0625, 1, 0],
]


def packed(path, parts):
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as book:
        for name, text in parts.items():
            entry = zipfile.ZipInfo(name, (2024, 1, 1, 0, 0, 0))
            entry.compress_type = zipfile.ZIP_STORED if name == "mimetype" else zipfile.ZIP_DEFLATED
            book.writestr(entry, text)


def xlsx(path):
    shared = []
    rows = []
    for r, row in enumerate(ROWS, 1):
        cells = []
        for column, value in zip("ABCDEF", row):
            if isinstance(value, str):
                shared.append(value)
                cells.append(f'<c r="{column}{r}" t="s"><v>{len(shared) - 1}</v></c>')
            elif isinstance(value, tuple):
                cells.append(f'<c r="{column}{r}"><f>{value[0]}</f><v>{value[1]!r}</v></c>')
            else:
                cells.append(f'<c r="{column}{r}"><v>{value!r}</v></c>')
        rows.append(f'<row r="{r}">{"".join(cells)}</row>')
    head = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>'
    main = "http://schemas.openxmlformats.org/spreadsheetml/2006/main"
    office = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
    package = "http://schemas.openxmlformats.org/package/2006"
    kind = "application/vnd.openxmlformats-officedocument.spreadsheetml"
    packed(path, {
        "[Content_Types].xml":
            f'{head}<Types xmlns="{package}/content-types">'
            '<Default Extension="rels" ContentType='
            '"application/vnd.openxmlformats-package.relationships+xml"/>'
            f'<Override PartName="/xl/workbook.xml" ContentType="{kind}.sheet.main+xml"/>'
            f'<Override PartName="/xl/worksheets/sheet1.xml" ContentType="{kind}.worksheet+xml"/>'
            f'<Override PartName="/xl/sharedStrings.xml" ContentType="{kind}.sharedStrings+xml"/>'
            "</Types>",
        "_rels/.rels":
            f'{head}<Relationships xmlns="{package}/relationships"><Relationship Id="rId1" '
            f'Type="{office}/officeDocument" Target="xl/workbook.xml"/></Relationships>',
        "xl/_rels/workbook.xml.rels":
            f'{head}<Relationships xmlns="{package}/relationships"><Relationship Id="rId1" '
            f'Type="{office}/worksheet" Target="worksheets/sheet1.xml"/><Relationship Id="rId2" '
            f'Type="{office}/sharedStrings" Target="sharedStrings.xml"/></Relationships>',
        "xl/workbook.xml":
            f'{head}<workbook xmlns="{main}" xmlns:r="{office}"><sheets>'
            '<sheet name="Kombinacje" sheetId="1" r:id="rId1"/></sheets></workbook>',
        "xl/worksheets/sheet1.xml":
            f'{head}<worksheet xmlns="{main}"><sheetData>{"".join(rows)}</sheetData></worksheet>',
        "xl/sharedStrings.xml":
            f'{head}<sst xmlns="{main}" count="{len(shared)}" uniqueCount="{len(shared)}">'
            + "".join(f"<si><t>{text}</t></si>" for text in shared) + "</sst>",
    })


def ods(path):
    rows = []
    for row in ROWS:
        cells = []
        for value in row:
            if isinstance(value, str):
                cells.append('<table:table-cell office:value-type="string">'
                             f"<text:p>{value}</text:p></table:table-cell>")
                continue
            formula = f'table:formula="of:={value[0]}" ' if isinstance(value, tuple) else ""
            number = value[1] if isinstance(value, tuple) else value
            cells.append(f'<table:table-cell {formula}office:value-type="float" '
                         f'office:value="{number!r}"><text:p>{number:.2f}</text:p>'
                         "</table:table-cell>")
        rows.append(f'<table:table-row>{"".join(cells) or "<table:table-cell/>"}</table:table-row>')
    names = "urn:oasis:names:tc:opendocument:xmlns"
    kind = "application/vnd.oasis.opendocument.spreadsheet"
    packed(path, {
        "mimetype": kind,
        "META-INF/manifest.xml":
            f'<manifest:manifest xmlns:manifest="{names}:manifest:1.0" manifest:version="1.2">'
            f'<manifest:file-entry manifest:full-path="/" manifest:media-type="{kind}"/>'
            '<manifest:file-entry manifest:full-path="content.xml" manifest:media-type="text/xml"/>'
            "</manifest:manifest>",
        "content.xml":
            '<?xml version="1.0" encoding="UTF-8"?>'
            f'<office:document-content xmlns:office="{names}:office:1.0" '
            f'xmlns:table="{names}:table:1.0" xmlns:text="{names}:text:1.0" office:version="1.2">'
            '<office:body><office:spreadsheet><table:table table:name="Kombinacje">'
            f'{"".join(rows)}</table:table></office:spreadsheet></office:body>'
            "</office:document-content>",
    })


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    folder = Path(sys.argv[1])
    xlsx(folder / "combinations.xlsx")
    ods(folder / "combinations.ods")
