#!/usr/bin/env python3
"""Tries mutate.py: which changes it makes to a source, and what it says of tests that notice them or not."""
import contextlib
import io
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
import mutate

SOURCE = """#include "number.h"
#define LIMIT 3
static_assert(2 > 1);

// 1 < 2 && true
template<typename T>
int clamped(const QList<T> &&values, int number)
{
    const char *text = "1 < 2";
    if (number <= 10 && !isEmpty())
        values.clear();
    QString name(text);
    return -number + 4;
}
"""

CHANGES = [
    '10:16: "<=" → "<"',
    '10:19: "10" → "11"',
    '10:22: "&&" → "||"',
    '10:25: "!" → ""',
    '11:9: "values.clear();" → ";"',
    '13:20: "+" → "-"',
    '13:22: "4" → "5"',
]

TREE = {
    "CMakeLists.txt": """cmake_minimum_required(VERSION 3.25)
project(Numbers CXX)
enable_testing()
add_library(numbers STATIC libs/numbers/Number.cpp)
foreach(name tst_Number tst_all)
    add_executable(${name} tests/numbers/${name}.cpp)
    target_link_libraries(${name} PRIVATE numbers)
    add_test(NAME ${name} COMMAND ${name})
endforeach()
""",
    "libs/numbers/Number.cpp": """bool isSmall(int number)
{
    return number < 10;
}

bool isSeen(int number)
{
    return number > 0 && number < 1000;
}
""",
    "tests/numbers/tst_Number.cpp": """bool isSmall(int);
int main()
{
    return isSmall(9) && !isSmall(10) ? 0 : 1;
}
""",
    "tests/numbers/tst_all.cpp": """bool isSeen(int);
int main()
{
    return isSeen(1) && !isSeen(0) ? 0 : 1;
}
""",
}

JUDGED = {
    '3:19: "<" → "<="': "tst_Number",
    '3:21: "10" → "11"': "tst_Number",
    '8:19: ">" → ">="': "tst_all",
    '8:21: "0" → "1"': "tst_all",
    '8:23: "&&" → "||"': "tst_all",
    '8:33: "<" → "<="': "NOT NOTICED",
    '8:35: "1000" → "1001"': "NOT NOTICED",
}


class Mutate(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def test_changes(self):
        path = self.folder / "number.cpp"
        path.write_text(SOURCE)
        changes = sorted(mutate.changes_of(path, "number.cpp"), key=lambda change: (change.line, change.column))
        self.assertEqual([str(change).removeprefix("number.cpp:") for change in changes], CHANGES)
        for change in changes:
            self.assertEqual(len(change.apply(SOURCE).split("\n")), len(SOURCE.split("\n")))
        self.assertIn("if (number < 10 && !isEmpty())", changes[0].apply(SOURCE))
        self.assertIn("\n        ;\n", changes[4].apply(SOURCE))

    def test_changes_behind_other_letters(self):
        change = mutate.Change("file", 1, 11, 1, "1", "2")
        self.assertEqual(change.apply("u\"ß€\", 1"), "u\"ß€\", 1".replace("1", "2"))

    def test_tree(self):
        sources = self.folder / "sources"
        for name, text in TREE.items():
            (sources / name).parent.mkdir(parents=True, exist_ok=True)
            (sources / name).write_text(text)
        subprocess.run(["git", "init", "--quiet", sources], check=True)
        subprocess.run(["git", "-C", sources, "add", "."], check=True)
        code, lines, last = self.mutate(sources)
        judged = dict(reversed(line.split(" ", 1)[1].split(": libs/numbers/Number.cpp:")) for line in lines)
        self.assertEqual(judged, JUDGED)
        self.assertEqual(last, "5 of 7 changes of libs/numbers were noticed; seed 1")
        self.assertEqual(code, 1)
        self.assertEqual((sources / "libs/numbers/Number.cpp").read_text(), TREE["libs/numbers/Number.cpp"])

        # The build is newer than the test that has changed, and a file is no longer there.
        test = sources / "tests/numbers/tst_all.cpp"
        test.write_text(test.read_text().replace("isSeen(1) &&", "isSeen(1) && isSeen(999) && !isSeen(1000) &&"))
        os.utime(test, (0, 0))
        (self.folder / "work/sources/libs/numbers/Removed.cpp").write_text("bool isOld(int number) { return number < 3; }")
        code, lines, last = self.mutate(sources)
        self.assertEqual(last, "7 of 7 changes of libs/numbers were noticed; seed 1")
        self.assertEqual(code, 0)

    def mutate(self, sources):
        """The exit code, the lines and the last line of a run."""
        output = io.StringIO()
        with contextlib.redirect_stdout(output):
            code = mutate.main(sources, self.folder / "work", 100, pathlib.Path("libs/numbers"), 1)
        *lines, last = output.getvalue().splitlines()
        return code, lines, last

    def test_missing_folder(self):
        with self.assertRaisesRegex(SystemExit, "there is no folder"):
            mutate.main(self.folder, self.folder / "work", 1, pathlib.Path("libs"), 1)


if __name__ == "__main__":
    unittest.main()
