#!/usr/bin/env python3
"""guide_pages.py GUIDE WORK COMPILER ARGUMENTS...: compiles the code of each page of the guide as a reader would put it
together: the #include lines of the page, its classes and functions, and its other pieces one after another in a function.
So no piece needs what its page does not show.
"""
import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys

GUIDE, WORK = map(pathlib.Path, sys.argv[1:3])
COMPILER = sys.argv[3:]
# The header that every page includes takes longest, so it is precompiled.
HEADER = WORK / "test.h"
# The first page has whole programs, and another test builds them.
WHOLE_PROGRAMS = "first-program"
DEFINITION = re.compile(r"(enum|class|constexpr|inline|QString \w+\()")


def blocks(page):
    return re.findall(r"^```cpp\n(.*?)^```$", page.read_text(), re.DOTALL | re.MULTILINE)


def program(page):
    """One file of a page. Each piece begins a block within that of the piece before, so it may use the same names."""
    code = blocks(page)
    if "guideProduct(" in page.read_text() and page.stem != "reading-a-product":
        code.insert(0, next(block for block in blocks(GUIDE / "reading-a-product.md") if "inline QDomElement" in block))
    includes = [block for block in code if block.startswith("#include")]
    definitions = [block for block in code if DEFINITION.match(block)]
    pieces = [block for block in code if block not in includes and block not in definitions]
    return "\n".join([*includes, *definitions, "void page()", "{", "{\n".join(pieces), "}" * len(pieces), ""])


def compile_page(page):
    file = WORK / f"{page.stem}.cpp"
    file.write_text(program(page))
    return subprocess.run([*COMPILER, "-fsyntax-only", "-include", HEADER, file], capture_output=True, text=True)


def main():
    WORK.mkdir(parents=True, exist_ok=True)
    HEADER.write_text("#include <QTest>\n")
    subprocess.run([*COMPILER, "-x", "c++-header", HEADER, "-o", f"{HEADER}.gch"], check=True)
    pages = [page for page in sorted(GUIDE.glob("*.md")) if page.stem != WHOLE_PROGRAMS and blocks(page)]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(compile_page, pages))
    for page, result in zip(pages, results):
        if result.returncode:
            print(f"{page} does not show all that its code needs:\n{result.stderr}", file=sys.stderr)
    return 1 if not pages or any(result.returncode for result in results) else 0


if __name__ == "__main__":
    sys.exit(main())
