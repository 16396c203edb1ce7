#!/usr/bin/env python3
"""usage: page.py PAGE

Writes what doxygen reads instead of a Markdown page. The page and its headings get names that stay the same, so links to
them become references; a table of contents comes behind the title. Links that leave the documentation lead nowhere.
"""
import os
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LINK = re.compile(r"(!?)\[([^\]]*)\]\(([^)\s]+)\)")
# The languages that doxygen colours.
LANGUAGES = {"cpp": "{.cpp}", "xml": "{.xml}"}
# The first page has these below it; main.dox has the pages below the last two.
BELOW_README = ["page_guide", "page_catalogues", "page_maintainers"]


def page_name(path):
    """The name of a page: page_guide for docs/guide/README.md, page_versioning for docs/versioning.md."""
    if path == pathlib.Path("README.md"):
        return "mainpage"
    stem = path.parent.name if path.stem == "README" else path.stem
    return "page_" + re.sub(r"\W", "_", stem.lower())


def anchor(title):
    """The name that code hosts give to a heading."""
    return re.sub(r"[^\w -]", "", title.lower()).replace(" ", "-")


def plain(title):
    return title.replace("`", "")


class Page:
    def __init__(self, path):
        self.path = path.resolve().relative_to(ROOT)
        self.name = page_name(self.path)
        self.is_index = self.path == pathlib.Path("docs/guide/README.md")

    def link(self, match):
        image, text, target = match.groups()
        if "://" in target:
            return match[0]
        file, _, heading = target.partition("#")
        path = pathlib.Path(os.path.normpath(self.path.parent / file)) if file else self.path
        if image:
            return f"![{text}]({path.name})"
        if path == pathlib.Path("docs/guide"):
            path /= "README.md"
        if path.suffix != ".md" or not self.is_documented(path):
            return f"{text} (`{path}`)" if plain(text) != str(path) else f"`{path}`"
        if self.is_index:
            return f"@subpage {page_name(path)}"
        name = page_name(path) + (f"_{anchor(heading)}" if heading else "")
        text = plain(text).replace("\n", " ")
        return f'@ref {name} "{text}"'

    @staticmethod
    def is_documented(path):
        return (ROOT / path).exists() and (path.parts[0] == "docs" or str(path) in ("README.md", "CONTRIBUTING.md"))

    def heading(self, match):
        level, title = match.groups()
        return f"{level} {plain(title)} {{#{self.name}_{anchor(title)}}}"

    def text(self, lines):
        text = re.sub(r"^(##+) (.+)$", self.heading, "\n".join(lines), flags=re.MULTILINE)
        text = re.sub(r"^<!-- .* -->$", "", text, flags=re.MULTILINE)
        pieces = re.split(r"(``.*?``|(?<!\[)`[^`]*`)", text)
        return "".join(piece if piece.startswith("`") else LINK.sub(self.link, piece) for piece in pieces)

    def pieces(self):
        """Pieces of text and lines of code blocks."""
        title, *lines = (ROOT / self.path).read_text().splitlines()
        yield f"{plain(title)} {{#{self.name}}}\n"
        if sum(line.startswith("## ") for line in lines) > 1:
            yield "@tableofcontents\n"
        fence, text = None, []
        for line in lines:
            mark = re.match(r"\s*(```+)(\w*)", line)
            if mark and fence in (None, mark[1]):
                yield self.text(text)
                text = []
                fence = None if fence else mark[1]
                yield line.replace(mark[2], LANGUAGES.get(mark[2], "")) if mark[2] else line
            elif fence:
                yield line
            else:
                text.append(line)
        yield self.text(text)
        if self.name == "mainpage":
            yield "## All pages\n\n" + "\n".join(f"- @subpage {page}" for page in BELOW_README)


if __name__ == "__main__":
    print("\n".join(Page(pathlib.Path(sys.argv[1])).pieces()))
