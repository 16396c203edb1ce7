#!/usr/bin/env python3
"""usage: guide.py [--check]

Brings docs/guide up to date: the code in it, which stands in programs that the tests run, the links from page to page and
the list of pages in docs/guide/README.md. With --check nothing is written, and a page that would change is an error.

A comment in front of a code block says where the code comes from:

    <!-- snippet tests/guide/tst_guide_pages.cpp spine -->      what stands between two lines "//! [spine]"
    <!-- snippet tests/guide/products.xml <forms> </forms> -->  from a line with the one text to the next with the other
    <!-- snippet examples/reader/main.cpp -->                   the whole file

A page may also be written with doxygen's commands: "@snippet FILE NAME", "@include FILE" and '@ref page_name "text"' become
such comments and links.
"""
import pathlib
import re
import sys
import textwrap

ROOT = pathlib.Path(__file__).resolve().parent.parent
GUIDE = ROOT / "docs/guide"
# The order of the pages for reading. A missing page is skipped.
PAGES = [
    "first-program",
    "reading-a-catalogue",
    "comparing-catalogues",
    "attributes",
    "reading-a-product",
    "page-counts-and-spine",
    "options-and-order-lines",
    "prices",
    "services-and-threads",
    "qt-integration",
    "a-new-attribute",
    "glossary",
]
LANGUAGES = {"CMakeLists.txt": "cmake", ".cpp": "cpp", ".h": "cpp", ".xml": "xml", ".toml": "toml", ".qml": "qml"}

SNIPPET = re.compile(r"^<!-- snippet (\S+)(?: ([^\n]+))? -->\n(?:```.*?\n```\n)?", re.DOTALL | re.MULTILINE)
MARK = re.compile(r"\s*(//!|<!--|#) \[\w+\]( -->)?$")
NAVIGATION = re.compile(r"\n<!-- navigation -->\n.*", re.DOTALL)
LIST = re.compile(r"(<!-- pages -->\n).*?(<!-- /pages -->)", re.DOTALL)


class Problem(Exception):
    pass


def between(lines, first, last):
    """The lines from the one that contains the first text to the one that contains the last, marks included."""
    begin = next((i for i, line in enumerate(lines) if first in line), None)
    if begin is None:
        return None
    end = next((i for i in range(begin + (first == last), len(lines)) if last in lines[i]), None)
    return None if end is None else lines[begin:end + 1]


def code(file, place):
    """The code that a comment names, without marks and without the indentation that all of it has."""
    try:
        lines = (ROOT / file).read_text().splitlines()
    except OSError as error:
        raise Problem(f"{file}: {error.strerror}") from error
    if place:
        ends = place.split() if " " in place else [f"[{place}]"] * 2
        lines = between(lines, ends[0], ends[-1])
        if lines is None:
            raise Problem(f"{file} has no \"{place}\"")
    return textwrap.dedent("\n".join(line for line in lines if not MARK.match(line))).strip("\n")


def block(match):
    file, place = match.groups()
    path = pathlib.Path(file)
    language = LANGUAGES.get(path.name) or LANGUAGES.get(path.suffix, "")
    return f"<!-- snippet {' '.join(filter(None, match.groups()))} -->\n```{language}\n{code(file, place)}\n```\n"


def as_markdown(text):
    """Turns doxygen's commands into Markdown."""
    text = re.sub(r"^@snippet (\S+) (\w+)$", r"<!-- snippet \1 \2 -->", text, flags=re.MULTILINE)
    text = re.sub(r"^@include (\S+)$", r"<!-- snippet \1 -->", text, flags=re.MULTILINE)

    def link(match):
        name = match[1].replace("_", "-")
        folder = "" if (GUIDE / f"{name}.md").exists() else "../"
        return f"[{match[2] or name.replace('-', ' ')}]({folder}{name}.md)"

    return re.sub(r'@(?:ref|subpage) page_(\w+)(?: "([^"]*)")?', link, text)


def title(page):
    return (GUIDE / f"{page}.md").read_text().split("\n", 1)[0].lstrip("# ")


def navigation(pages, page):
    index = pages.index(page)
    links = ["[The guide](README.md)"]
    if index > 0:
        links.insert(0, f"[Previous: {title(pages[index - 1])}]({pages[index - 1]}.md)")
    if index + 1 < len(pages):
        links.append(f"[Next: {title(pages[index + 1])}]({pages[index + 1]}.md)")
    return "\n<!-- navigation -->\n---\n\n" + " · ".join(links) + "\n"


def updated(pages, path):
    text = path.read_text()
    if path.name == "README.md":
        links = "".join(f"- [{title(page)}]({page}.md)\n" for page in pages)
        return LIST.sub(lambda match: match[1] + links + match[2], text)
    text = SNIPPET.sub(block, as_markdown(text))
    return NAVIGATION.sub("", text).rstrip("\n") + "\n" + navigation(pages, path.stem)


def main(arguments):
    check = arguments == ["--check"]
    if arguments and not check:
        print(__doc__, file=sys.stderr)
        return 2
    paths = sorted(GUIDE.glob("*.md"))
    unknown = [path.name for path in paths if path.stem not in PAGES and path.name != "README.md"]
    problems = [f"{name}: name it in PAGES of docs/guide.py, which has the order of the pages" for name in unknown]
    pages = [page for page in PAGES if (GUIDE / f"{page}.md").exists()]
    for path in paths:
        if path.name in unknown:
            continue
        try:
            text = updated(pages, path)
        except Problem as problem:
            problems.append(f"{path.name}: {problem}")
            continue
        if text == path.read_text():
            continue
        if check:
            problems.append(f"{path.name}: not up to date; \"./dev guide\" brings it up to date")
        else:
            path.write_text(text)
    for problem in problems:
        print(f"docs/guide/{problem}", file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
