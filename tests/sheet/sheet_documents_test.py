#!/usr/bin/env python3
"""The calculation sheet as word processors get it: what the companion writes as .docx and .odt is opened,
and holds the texts, the numbers and the tables of the sheet.

    sheet_documents_test.py FERNA_WSAD
"""

import json
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml
import zipfile

WSAD = sys.argv[1]

WORD = '{http://schemas.openxmlformats.org/wordprocessingml/2006/main}'
TEXT = '{urn:oasis:names:tc:opendocument:xmlns:text:1.0}'
TABLE = '{urn:oasis:names:tc:opendocument:xmlns:table:1.0}'

TASK = {
    'Nazwa_projektu': 'Hala <B> & C', 'Nazwa_stopy': 'F-3', 'Nr_jezyka': 3,
    'Dlug_plyty_mm': 600, 'Szer_plyty_mm': 400,
    'Kotwy': [{'x': x, 'y': y, 'fi': 24} for x in (250, -250) for y in (150, -150)],
    'Przypadki': [{'N': 100, 'M1': 40, 'M2': 10, 'Vx': 60, 'Vy': 5},
                  {'N': 900, 'M1': 10, 'M2': 8, 'Vx': 0, 'Vy': 0}],
    'Blacha': {'Nr_stali_blachy': 2, 'Sprawdzenia': {
        '1': {'bs': 120, 'ca': 60, 'S': 70}, '8': {'b': 120, 'a': 60, 'c': 50, 'S': 60}}},
    'Kotwa': {'rodzaj': 'F', 'g': 60},
}


def plain(text):
    """A text as all formats have it: no blanks, no joiners, which programs change."""
    return re.sub(r'[\s\u00a0\u202f\u2060]+', '', text)


class Documents(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        folder = pathlib.Path(cls.folder.name)
        task = folder / 'task.json'
        task.write_text(json.dumps(TASK), encoding='utf-8')
        sheets = {ending: folder / f'sheet.{ending}' for ending in ('html', 'odt', 'docx')}
        call = [WSAD, '--wynik', str(folder / 'result.json')]
        for sheet in sheets.values():
            call += ['--arkusz', str(sheet)]
        subprocess.run(call + [str(task)], check=True, timeout=200, stderr=subprocess.DEVNULL)
        cls.html = sheets['html'].read_text(encoding='utf-8')
        with zipfile.ZipFile(sheets['docx']) as packed:
            cls.names = packed.namelist()
            cls.docx = xml.fromstring(packed.read('word/document.xml'))
            cls.margins = b''.join(packed.read(name) for name in cls.names
                                   if re.fullmatch(r'word/(header|footer)\d*\.xml', name))
        with zipfile.ZipFile(sheets['odt']) as packed:
            assert packed.testzip() is None
            cls.odt = xml.fromstring(packed.read('content.xml'))

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def texts_of_the_sheet(self):
        """Headings, paragraphs, captions and cells of the page in HTML, without formulas."""
        body = self.html.split('<body>', 1)[1].split('<ul class="steps">', 1)[0]
        for found in re.finditer(r'<(h\d|p|caption|th|td)(?P<attributes>[^>]*)>(?P<text>.*?)</\1>', body,
                                 re.S):
            text = re.sub(r'<br/>', '', found['text'])
            if 'class="way"' in found['attributes'] or '<span class="' in text:
                continue
            text = re.sub(r'<[^>]*>', '', text)
            for entity, letter in (('&lt;', '<'), ('&gt;', '>'), ('&quot;', '"'), ('&emsp;', ''),
                                   ('&amp;', '&')):
                text = text.replace(entity, letter)
            if plain(text):
                yield plain(text)

    def check_texts(self, whole):
        texts = list(self.texts_of_the_sheet())
        self.assertGreater(len(texts), 400)
        missing = [text for text in texts if text not in whole]
        self.assertEqual(missing, [])

    def test_the_odt_holds_every_text_of_the_sheet(self):
        self.check_texts(plain(''.join(self.odt.itertext())))

    def test_the_docx_holds_every_text_of_the_sheet(self):
        self.check_texts(plain(''.join(part.text or '' for part in self.docx.iter(WORD + 't'))))

    def test_the_docx_has_the_tables_of_the_sheet_and_their_heads_repeat(self):
        tables = list(self.docx.iter(WORD + 'tbl'))
        self.assertEqual(len(tables), len(list(self.odt.iter(TABLE + 'table'))))
        self.assertGreater(len(tables), 15)
        with_head = sum(1 for table in tables if table.find(f'.//{WORD}tblHeader') is not None)
        self.assertEqual(with_head, self.html.count('<thead>'))
        self.assertEqual(with_head, len(list(self.odt.iter(TABLE + 'table-header-rows'))))
        for table in tables:
            widths = [int(column.get(WORD + 'w')) for column in table.iter(WORD + 'gridCol')]
            self.assertGreater(len(widths), 1)
            self.assertLess(sum(widths), 176 / 25.4 * 1440)

    def test_the_docx_has_headings_pictures_and_pages(self):
        headings = {style.get(WORD + 'val') for style in self.docx.iter(WORD + 'pStyle')}
        self.assertLessEqual({'Heading1', 'Heading2', 'Heading3'}, headings)
        self.assertEqual(sum(1 for name in self.names if name.startswith('word/media/')), 6)
        self.assertIn(b'PAGE', self.margins)
        self.assertIn(b'NUMPAGES', self.margins)
        self.assertIn('Hala &lt;B&gt; &amp; C'.encode(), self.margins)


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1], verbosity=2)
