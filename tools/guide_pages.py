#!/usr/bin/env python3
"""Turns the guides into pages for the help and for the package, laid out as they lie in docs/, with
their pictures and examples. cmark-gfm does the Markdown; headings get the anchors that links within
the guides use.

Usage: guide_pages.py ROOT_OF_THE_TREE FOLDER_FOR_THE_PAGES
"""

import glob
import html
import os
import re
import shutil
import subprocess
import sys

PAGE = """<!DOCTYPE html>
<html lang="{language}">
<head>
<meta charset="utf-8">
<title>{title}</title>
<link rel="stylesheet" type="text/css" href="../styl.css">
</head>
<body>
{body}</body>
</html>
"""
SKETCHES = "../../data/help/szkice/"  # where a guide finds the sketches of the help
LARGEST_WIDTH = 772  # of a picture: that of the main window


def anchor(heading):
    text = html.unescape(re.sub(r"<[^>]*>", "", heading)).strip().lower()
    return re.sub(r"[^\w\- ]", "", text).replace(" ", "-")


def with_anchors(body):
    return re.sub(r"<(h[1-6])>(.*?)</\1>",
                  lambda found: f'<{found[1]} id="{anchor(found[2])}">{found[2]}</{found[1]}>', body)


def with_links(body):
    """Links between the guides lead to pages; those to the project's own folders are no links here."""
    def link(found):
        target, words = html.unescape(found[1]), found[2]
        if target.startswith(("../../", "http")):
            return words
        return f'<a href="{html.escape(re.sub(r"[.]md(?=#|$)", ".html", target))}">{words}</a>'

    body = re.sub(r'<a href="([^"]*)">(.*?)</a>', link, body, flags=re.DOTALL)
    return body.replace(f'src="{SKETCHES}', 'src="../pictures/')


def width_of(path):
    """Of a PNG file: bytes 16 to 19."""
    with open(path, "rb") as file:
        return int.from_bytes(file.read(20)[16:20], "big")


def with_widths(body, pictures):
    def picture(found):
        name = os.path.join(pictures, os.path.basename(found[1]))
        if not name.endswith(".png") or width_of(name) <= LARGEST_WIDTH:
            return found[0]
        return found[0].replace("<img ", f'<img width="{LARGEST_WIDTH}" ')

    return re.sub(r'<img src="([^"]*)"[^>]*>', picture, body)


def page_of(path, pictures):
    body = subprocess.run(["cmark-gfm", "--extension", "table", "--to", "html", path], check=True,
                          capture_output=True, encoding="utf-8").stdout
    body = re.sub(r"<!-- .*? -->\n", "", body)
    title = html.unescape(re.search(r"<h1>(.*?)</h1>", body)[1])
    return PAGE.format(language=os.path.basename(os.path.dirname(path)), title=html.escape(title),
                       body=with_widths(with_links(with_anchors(body)), pictures))


def main():
    root, output = map(os.path.abspath, sys.argv[1:])
    docs = os.path.join(root, "docs")
    shutil.rmtree(output, ignore_errors=True)
    for folder in ("pictures", "examples"):
        shutil.copytree(os.path.join(docs, folder), os.path.join(output, folder))
    shutil.copy(os.path.join(root, "data", "help", "styl.css"), output)
    for sketch in glob.glob(os.path.join(root, "data", "help", "szkice", "*.svg")):
        shutil.copy(sketch, os.path.join(output, "pictures"))
    for path in sorted(glob.glob(os.path.join(docs, "[ep][nl]", "*.md"))):
        target = os.path.join(output, os.path.relpath(path, docs)[:-3] + ".html")
        os.makedirs(os.path.dirname(target), exist_ok=True)
        with open(target, "w", encoding="utf-8") as file:
            file.write(page_of(path, os.path.join(docs, "pictures")))


if __name__ == "__main__":
    main()
