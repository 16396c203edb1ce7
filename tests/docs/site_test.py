#!/usr/bin/env python3
"""site_test.py FOLDER: looks into the pages and the Qt help that docs/build.sh has written to FOLDER."""
import contextlib
import json
import pathlib
import re
import sqlite3
import sys
import unittest

FOLDER = pathlib.Path(sys.argv.pop())
HTML = FOLDER / "html"


def pages(pattern):
    return {page.name: page.read_text() for page in sorted(HTML.glob(pattern))}


def pages_below(name):
    """The pages that an overview lists, in its order."""
    return re.findall(r'<li><a class="el" href="(page_\w+\.html)">', (HTML / f"page_{name}.html").read_text())


class Pages(unittest.TestCase):
    def test_headings_have_no_tags(self):
        for name, text in pages("page_*.html").items():
            for heading in re.findall(r"<h[1-4].*?</h[1-4]>|<div class=\"title\">.*?</div>|<div class=\"toc\">.*?</ul>", text, re.DOTALL):
                self.assertNotRegex(heading, "&lt;/?(tt|code)", name)
        for name, text in pages("nav*.js").items():
            self.assertNotRegex(text, "<(tt|code)>", name)

    def test_pages_have_contents(self):
        for name in ("page_attributes.html", "page_catalogue_format.html", "page_rules.html", "page_architecture.html"):
            self.assertIn('<div class="toc">', (HTML / name).read_text(), name)

    def test_guide_leads_from_page_to_page(self):
        chapters = pages_below("guide")
        self.assertGreater(len(chapters), 10)
        self.assertEqual(chapters[0], "page_first_program.html")
        for chapter, following in zip(chapters, chapters[1:]):
            self.assertRegex((HTML / chapter).read_text(), f'href="{following}">Next: ', chapter)
            self.assertRegex((HTML / following).read_text(), f'href="{chapter}">Previous: ', following)

    def test_pages_of_maintainers_are_apart(self):
        names = ("contributing", "architecture", "versioning", "performance", "coverage")
        self.assertEqual(pages_below("maintainers"), [f"page_{name}.html" for name in names])
        self.assertFalse(set(pages_below("maintainers")) & set(pages_below("guide") + pages_below("catalogues")))

    def test_first_page_is_the_readme(self):
        self.assertIn("./dev run", (HTML / "index.html").read_text())

    def test_classes_have_examples(self):
        classes = pages("classRV*.html") | pages("structRV*.html")
        classes = {name: text for name, text in classes.items() if not name.endswith("-members.html")}
        self.assertGreater(len(classes), 80)
        for name, text in classes.items():
            example = re.search(r'<dl class="section user"><dt>Example</dt><dd>.*?</dl>\s*(<div class="fragment">)?', text, re.DOTALL)
            self.assertTrue(example, f"{name} has no example")
            self.assertIn('class="fragment"', example[0], name)

    def test_nothing_comes_from_elsewhere(self):
        for name, text in pages("*.html").items():
            self.assertNotRegex(text, r'<(script|img|object)[^>]* (src|data)="https?:', name)
            self.assertNotRegex(text, r'<link[^>]* href="https?:', name)
        self.assertNotIn("url(http", (HTML / "site.css").read_text())


class Search(unittest.TestCase):
    def places(self, word):
        letters = re.search(r'0: "([^"]*)"', (HTML / "search/searchdata.js").read_text())[1]
        rows = (HTML / f"search/all_{letters.index(word[0]):x}.js").read_text()
        row = re.search(rf'^  (\["{word}_word\d+".*\]),?$', rows, re.MULTILINE)
        self.assertTrue(row, word)
        return [place[0] for place in json.loads(row[1])[1][1:]]

    def test_words_of_the_guide(self):
        self.assertIn("../page_attributes.html#page_attributes_names-for-people", self.places("umlaut"))
        self.assertTrue(any("page_reading_a_catalogue" in place for place in self.places("translator")))

    def test_places_are_there(self):
        for place in self.places("catalogue"):
            page, _, anchor = place.removeprefix("../").partition("#")
            self.assertIn(f'id="{anchor}"' if anchor else "", (HTML / page).read_text())


class Help(unittest.TestCase):
    def identifiers(self):
        help_file = FOLDER / "RVProductBase.qch"
        if not help_file.exists():
            return re.findall(r'<keyword name="[^"]*" id="([^"]*)"', (HTML / "index.qhp").read_text())
        with contextlib.closing(sqlite3.connect(help_file)) as database:
            return [row[0] for row in database.execute("SELECT Identifier FROM IndexTable")]

    def test_names_are_those_of_programs(self):
        identifiers = self.identifiers()
        for name in ("RVCoverType", "RVCoverType::humanReadableName", "RVCoverTypeEnum", "HARDCOVER", "RVCatalogueReader::find"):
            self.assertIn(name, identifiers)
        self.assertFalse([name for name in identifiers if re.search(r"[0-9a-f]{32}|_$", name)])


if __name__ == "__main__":
    unittest.main()
