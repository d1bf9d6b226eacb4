#!/usr/bin/env python3
"""Checks the help pages: links, nesting, the same pages and chapters in all languages, and that
every name in bold is a text of the program, or of the bench beside it, in that language.

Usage: help_check.py [help folder [translations folder]]
Prints one line a complaint; the exit status is 1 if there is any.
"""

import itertools
import pathlib
import re
import sys
import urllib.parse
import xml.etree.ElementTree as ElementTree
from html.parser import HTMLParser

LANGUAGES = ("en", "fr", "es")
VOID = {"img", "br", "hr", "meta", "link"}
KNOWN = VOID | {
    "html", "head", "title", "body", "h1", "h2", "h3", "p", "ul", "ol", "li", "table", "tr", "th",
    "td", "a", "b", "code", "pre",
}
# Which parents an element may have, where that is restricted.
PARENTS = {
    "head": {"html"}, "body": {"html"}, "title": {"head"}, "meta": {"head"}, "link": {"head"},
    "h1": {"body"}, "h2": {"body"}, "h3": {"body"}, "p": {"body"}, "pre": {"body"},
    "ul": {"body", "li"}, "ol": {"body", "li"}, "li": {"ul", "ol"},
    "table": {"body"}, "tr": {"table"}, "th": {"tr"}, "td": {"tr"},
}


class Page(HTMLParser):
    """One page: what it refers to, its chapters, its names in bold, and its faults of nesting."""

    def __init__(self, path):
        super().__init__(convert_charrefs=True)
        self.links = []
        self.anchors = set()
        self.headings = []
        self.names = []
        self.faults = []
        self.first_link = None
        self.cells = []
        self._open = []
        self._text = None
        self.feed(path.read_text(encoding="utf-8"))
        self.close()
        if self._open:
            self.faults.append(f"not closed: {' '.join(self._open)}")

    def handle_starttag(self, tag, attrs):
        parent = self._open[-1] if self._open else ""
        line = self.getpos()[0]
        if tag not in KNOWN:
            self.faults.append(f"line {line}: <{tag}> is not in the subset")
        if tag in PARENTS and parent not in PARENTS[tag]:
            self.faults.append(f"line {line}: <{tag}> inside <{parent}>")
        if tag == "a" and "a" in self._open:
            self.faults.append(f"line {line}: a link inside a link")
        values = dict(attrs)
        for name in ("id", "name"):
            if tag != "meta" and values.get(name):
                self.anchors.add(values[name])
        for name in ("href", "src"):
            if name in values:
                self.links.append((line, values[name] or ""))
        if tag == "img" and "alt" not in values:
            self.faults.append(f"line {line}: a picture without alt")
        if tag == "a" and self.first_link is None:
            self.first_link = values.get("href")
        if tag == "tr":
            self.cells.append((line, parent, 0))
        if tag in ("td", "th") and self.cells:
            line_of_row, table, count = self.cells[-1]
            self.cells[-1] = (line_of_row, table, count + 1)
        if tag == "table":
            self.cells = []
        if tag in ("h1", "h2", "b", "title"):
            self._text = ""
        if tag not in VOID:
            self._open.append(tag)

    def handle_endtag(self, tag):
        line = self.getpos()[0]
        if tag in VOID:
            self.faults.append(f"line {line}: </{tag}>")
            return
        if not self._open or self._open[-1] != tag:
            self.faults.append(f"line {line}: </{tag}> closes <{(self._open or [''])[-1]}>")
            if tag in self._open:
                while self._open.pop() != tag:
                    pass
            return
        self._open.pop()
        if tag == "table" and len({count for _, _, count in self.cells}) > 1:
            self.faults.append(f"line {line}: the rows of a table differ in length")
        if tag in ("h1", "h2", "title"):
            self.headings.append((tag, (self._text or "").strip()))
            self._text = None
        elif tag == "b":
            self.names.append((line, self._text or ""))
            self._text = None

    def handle_data(self, data):
        if self._text is not None:
            self._text += data


def normalised(text):
    """A text as it is compared: no mnemonic, single blanks, no colon or full stop at the end."""
    text = re.sub(r"\s+", " ", text.replace("&", "")).strip()
    return re.sub(r"\s*[:.]*$", "", text)


def program_texts(folder):
    """The texts of the program and the bench by language, from the translation files."""
    texts = {language: set() for language in LANGUAGES}
    for file, language in itertools.product(("lorimet", "bench"), ("fr", "es")):
        root = ElementTree.parse(folder / f"{file}_{language}.ts").getroot()
        for message in root.iter("message"):
            source = message.findtext("source") or ""
            texts["en"].add(normalised(source))
            texts[language].add(normalised(message.findtext("translation") or source))
    return texts


def check_links(help_folder, path, page, pages, complain):
    for line, link in page.links:
        parts = urllib.parse.urlsplit(link)
        if parts.scheme or parts.netloc:
            complain(path, f"line {line}: external link {link}")
            continue
        target = path if not parts.path else (path.parent / parts.path).resolve()
        if target.parent == help_folder / "pictures":  # where the build copies them
            if not (help_folder.parent / "packaging/pictures" / target.name).is_file():
                complain(path, f"line {line}: no such picture: {link}")
            continue
        if help_folder not in target.parents or not target.is_file():
            complain(path, f"line {line}: no such file: {link}")
        elif parts.fragment and parts.fragment not in pages[target].anchors:
            complain(path, f"line {line}: no such place: {link}")


def check_page(path, page, texts, complain):
    for fault in page.faults:
        complain(path, fault)
    if page.first_link != "index.html":
        complain(path, "does not begin with the link to the contents")
    tags = [tag for tag, _ in page.headings]
    if tags.count("h1") != 1 or tags.count("title") != 1:
        complain(path, "needs one title and one h1")
    for line, name in page.names:
        if normalised(name) not in texts:
            complain(path, f"line {line}: not a text of the program: {name}")


def check_languages(help_folder, pages, complain):
    names = {language: {path.name for path in pages if path.parent.name == language}
             for language in LANGUAGES}
    every = set().union(*names.values())
    for language in LANGUAGES:
        for name in sorted(every - names[language]):
            complain(help_folder / language / name, "is missing")
    for name in sorted(set.intersection(*names.values())):
        if not re.fullmatch(r"[a-z0-9_]+\.html", name):
            complain(help_folder / LANGUAGES[0] / name, "is not named in lower_snake")
        chapters = {language: sum(tag == "h2" for tag, _ in pages[
            help_folder / language / name].headings) for language in LANGUAGES}
        if len(set(chapters.values())) > 1:
            complain(help_folder / LANGUAGES[0] / name, f"chapters differ: {chapters}")
    for language in LANGUAGES:
        index = pages.get(help_folder / language / "index.html")
        linked = {link for _, link in index.links} if index else set()
        for name in sorted(names[language] - linked - {"index.html"}):
            complain(help_folder / language / name, "is not in the contents")


def main(arguments):
    root = pathlib.Path(__file__).resolve().parent.parent
    help_folder = pathlib.Path(arguments[0] if arguments else root / "help").resolve()
    translations = pathlib.Path(arguments[1] if len(arguments) > 1 else root / "translations")
    complaints = []

    def complain(path, text):
        complaints.append(f"{path.relative_to(help_folder)}: {text}")

    pages = {path: Page(path) for language in LANGUAGES
             for path in sorted((help_folder / language).glob("*.html"))}
    if not pages:
        complaints.append(f"no pages in {help_folder}")
    texts = program_texts(translations)
    check_languages(help_folder, pages, complain)
    for path, page in pages.items():
        check_links(help_folder, path, page, pages, complain)
        check_page(path, page, texts[path.parent.name], complain)
    print("\n".join(complaints) if complaints else f"{len(pages)} pages, no complaint")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
