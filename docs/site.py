#!/usr/bin/env python3
"""usage: site.py FOLDER

Completes what doxygen has written to FOLDER: the search finds the words of the pages, the name in the title leads to the
first page, cells of tables know their columns, and the index of the Qt help has the names that Qt Creator asks for.
"""
import html
import html.parser
import json
import pathlib
import re
import sys

# Words that occur in every text are not searched.
COMMON = set("""
    about above after again all also and any are because before behind below between both but can does each else even every
    first for from has have here how into its itself last like made make many may more most must need next not nothing once
    one only other others own same see several since some such take than that the their them then there these they this those
    through two under until what when where which while who whose with without would you your
""".split())
MOST_PLACES = 12


class Words(html.parser.HTMLParser):
    """The words of a page, each with the headings under which it stands."""

    def __init__(self, page):
        super().__init__()
        self.page, self.title, self.section = page, "", ("", "")
        self.words = {}
        self.depth, self.heading, self.anchor = 0, None, ""

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        classes = (attributes.get("class") or "").split()
        if tag == "div" and (self.depth or "textblock" in classes or "title" in classes):
            self.depth += 1
        if "title" in classes:
            self.heading = []
        elif self.depth and re.fullmatch(r"h[1-4]", tag):
            self.heading, self.anchor = [], ""
        elif self.heading is not None and tag == "a" and "id" in attributes:
            self.anchor = attributes["id"]

    def handle_endtag(self, tag):
        if self.heading is not None and (re.fullmatch(r"h[1-4]", tag) or tag == "div"):
            text = " ".join("".join(self.heading).split())
            if tag == "div":
                self.title = text
            else:
                self.section = (self.anchor, text)
            self.heading = None
            self.add(text)
        if tag == "div" and self.depth:
            self.depth -= 1

    def handle_data(self, text):
        if self.heading is not None:
            self.heading.append(text)
        elif self.depth:
            self.add(text)

    def add(self, text):
        anchor, heading = self.section
        link = f"../{self.page}" + (f"#{anchor}" if anchor else "")
        label = ": ".join(filter(None, (self.title, heading)))
        for name in re.findall(r"[A-Za-z]{3,}", text):
            # QTranslator is found by "translator", too.
            for word in {name.lower(), *(part.lower() for part in re.findall(r"[A-Z][a-z]{3,}", name))} - COMMON:
                self.words.setdefault(word, {})[link] = label


def words_of_pages(folder):
    """Words in alphabetical order, each with its places: the guide's first."""
    result = {}
    guide = (folder / "page_guide.html").read_text()
    pages = sorted(folder.glob("page_*.html"), key=lambda page: (page.name not in guide, page.name))
    for page in [folder / "index.html", *pages]:
        parser = Words(page.name)
        parser.feed(page.read_text())
        for word, places in parser.words.items():
            result.setdefault(word, {}).update(places)
    return sorted(result.items())


def add_to_search(folder):
    """Adds the words to the lists that doxygen's own search reads: a file for each first letter."""
    search = folder / "search"
    data = search / "searchdata.js"
    text = data.read_text()
    letters = re.search(r'0: "([^"]*)"', text)[1]
    entries = {}
    for word, places in words_of_pages(folder):
        targets = [[link, 1, label] for link, label in list(places.items())[:MOST_PLACES]]
        entries.setdefault(word[0], []).append((word, targets))
    for letter, words in entries.items():
        if letter not in letters:
            letters += letter
            name = f"all_{len(letters) - 1:x}"
            (search / f"{name}.js").write_text("var searchData=\n[\n];\n")
            if (search / "all_0.html").exists():
                frame = (search / "all_0.html").read_text().replace("all_0.js", f"{name}.js")
                (search / f"{name}.html").write_text(frame)
        file = search / f"all_{letters.index(letter):x}.js"
        list_, _, end = file.read_text().rpartition("\n];")
        rows = [json.dumps([f"{word}_word{i}", [word, *targets]]) for i, (word, targets) in enumerate(words)]
        comma = "," if list_.rstrip().endswith("]") else ""
        file.write_text(list_ + comma + "\n  " + ",\n  ".join(rows) + "\n];" + end)
    data.write_text(re.sub(r'0: "[^"]*"', f'0: "{letters}"', text, count=1))


def keyword(match):
    """A name as one writes it in a program, such as RVCoverType::humanReadableName, instead of one with a hash."""
    name = re.sub(r"_(g?g?a[0-9a-f]{32,})?$", "", match[2])
    if match[3].startswith("group__"):
        name = name.rpartition("::")[2]  # doxygen names the group, which is no scope
    return f'<keyword name="{name}" id="{name}" ref="{match[3]}"/>'


def name_keywords(project):
    text = re.sub(r'<keyword name="([^"]*)" id="([^"]*)" ref="([^"]*)"/>', keyword, project.read_text())
    seen, lines = set(), []
    for line in text.splitlines():
        name = re.match(r'<keyword name="([^"]*)"', line)
        # Of several functions of a name, the first leads to all: they stand together.
        if name and name[1] in seen:
            continue
        if name:
            seen.add(name[1])
        lines.append(line)
    project.write_text("\n".join(lines) + "\n")


def with_heads(table):
    """The table with the head of its column at each cell but the first, for screens that are too narrow for columns."""
    heads = [html.unescape(re.sub("<.*?>", "", head)).strip() for head in re.findall(r"<th.*?>(.*?)</th>", table[0])]

    def row(match):
        number = iter(range(len(heads)))
        return re.sub(r"<td(?=[ >])", lambda cell: head_of(next(number, 0)), match[0])

    def head_of(number):
        return f'<td data-head="{html.escape(heads[number])}"' if number and heads[number] else "<td"

    return re.sub(r'<tr class="markdownTableRow.*?</tr>', row, table[0], flags=re.DOTALL)


def complete(page):
    text = page.read_text()
    result = re.sub(r'(<div id="projectname">)(\w+)', r'\1<a href="index.html">\2</a>', text)
    result = re.sub(r'<table class="markdownTable">.*?</table>', with_heads, result, flags=re.DOTALL)
    if result != text:
        page.write_text(result)


def main(folder):
    for page in folder.glob("*.html"):
        complete(page)
    add_to_search(folder)
    name_keywords(folder / "index.qhp")


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]))
