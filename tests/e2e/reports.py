"""What stands in the outputs of the program, read by other programs or from their bytes."""

import json
import os
import re
import struct
import subprocess

from program import expect, read

DATE = re.compile(rb"\d\d/\d\d/\d\d {5}\d\d:\d\d")
WRITER = "/usr/lib/libreoffice/program/soffice"


def companion_reports(folder, work, name, task, *endings):
    """The reports that the batch companion writes for a task, and its result, as bytes."""
    path = os.path.join(work, name)
    with open(path + ".json", "w", encoding="utf-8") as file:
        json.dump(task, file)
    wanted = [part for ending in endings for part in ("--raport", path + ending)]
    subprocess.run([os.path.join(folder, "ferna-wsad"), *wanted, "--wynik", path + ".wynik.json",
                    path + ".json"], check=True, timeout=60,
                   env={"SOURCE_DATE_EPOCH": "1700000000", "LC_ALL": "C.UTF-8",
                        "QT_QPA_PLATFORM": "offscreen"})
    return *[read(path + ending) for ending in endings], json.loads(read(path + ".wynik.json"))


def without_date(report):
    """The report with its dates and times masked; a report without one is refused."""
    masked, dates = DATE.subn(b"<date>", report)
    expect(dates > 0, "no date in a report")
    return masked


def lines_of(text_report):
    """The lines of a plain text report, without the empty ones and without the date."""
    lines = without_date(text_report).decode("cp1250").split("\r\n")
    return [" ".join(line.split()) for line in lines if line.strip() and "<date>" not in line]


def pages_of_pdf(path):
    text = subprocess.run(["pdftotext", "-layout", path, "-"], check=True, timeout=60,
                          capture_output=True).stdout.decode("utf-8")
    return [" ".join(page.split()) for page in text.split("\f")[:-1]]


def texts_of_emf(metafile):
    """The texts that a metafile draws, every record walked from the header to the end."""
    EMR_HEADER, EMR_EOF, EMR_EXTTEXTOUTW = 1, 14, 84
    kind, = struct.unpack_from("<I", metafile)
    signature, version, size, records = struct.unpack_from("<4sIII", metafile, 40)
    expect((kind, signature) == (EMR_HEADER, b" EMF") and size == len(metafile), "no metafile")
    texts, at, count = [], 0, 0
    while at < size:
        kind, length = struct.unpack_from("<II", metafile, at)
        expect(length >= 8 and length % 4 == 0 and at + length <= size, "a record that is cut")
        if kind == EMR_EXTTEXTOUTW:
            letters, offset = struct.unpack_from("<II", metafile, at + 44)
            texts.append(metafile[at + offset:at + offset + 2 * letters].decode("utf-16-le"))
        at, count = at + length, count + 1
    expect(kind == EMR_EOF and count == records, "a metafile without its end")
    return texts


def has_word_processor(folder):
    """LibreOffice, and the module of the program that drives it."""
    return os.path.exists(WRITER) and os.path.exists(os.path.join(folder, "libferna_writer.so"))


def text_of_document(path, work):
    """The paragraphs of a document, opened by the word processor."""
    profile = os.path.join(work, "profile")
    subprocess.run([WRITER, f"-env:UserInstallation=file://{profile}", "--headless",
                    "--convert-to", "txt:Text (encoded):UTF8", "--outdir", work, path],
                   check=True, timeout=100, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                   env=os.environ | {"SAL_USE_VCLPLUGIN": "svp"})
    name = os.path.splitext(os.path.basename(path))[0]
    return read(work, name + ".txt").decode("utf-8-sig")
