#!/usr/bin/env python3
"""mutate.py SOURCES WORK COUNT FOLDER SEED: makes random changes to the code of a folder, one at a time, and tells which of
them no test notices.

A change is what a slip of the fingers may do: "<" for "<=", "&&" for "||", a number that is one too large, a call that is
forgotten. Changes are made to the tokens that clang sees, in a copy of the sources, so texts and comments stay as they are.
A change that does not compile is replaced by another one.

Tests run from the nearest to the farthest, and no further than the first that fails: that of the class, those of the folder,
all others. The same seed makes the same changes of the same sources.
"""
import collections
import filecmp
import os
import pathlib
import random
import re
import resource
import shutil
import subprocess
import sys

TOKEN = re.compile(r"^(\w+) '(.*?)'(?:\t.*)?\tLoc=<[^<>]*:(\d+):(\d+)(?: <Spelling=.*)?>$", re.DOTALL)

REPLACEMENTS = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==",
    "&&": "||", "||": "&&", "+": "-", "-": "+", "*": "+", "/": "*", "%": "+",
    "+=": "-=", "-=": "+=", "++": "--", "--": "++",
    "true": "false", "false": "true", "break": "continue", "continue": "break",
    "qMin": "qMax", "qMax": "qMin", "all_of": "any_of", "any_of": "all_of",
}
# Between blanks these are operators, elsewhere also brackets of templates, references and signs.
BINARY = {"<", ">", "&&", "+", "-", "*"}

SECONDS_OF_A_TEST = 60
BYTES_OF_A_TEST = 8 << 30
# A test of Qt ends a function that takes too long by itself; the limit of ctest is for all others.
LIMITED = os.environ | {"QTEST_FUNCTION_TIMEOUT": str(SECONDS_OF_A_TEST * 1000)}
# Tests of what is no code of the folder: scripts, pages, packages, what a debugger prints and what does not run.
UNRELATED = "^(dev|docs|abi|gdb|package|translations|reuse|pre_commit|mutation)"

Token = collections.namedtuple("Token", "kind text line column")


class Change(collections.namedtuple("Change", "file line column length old new")):
    """A part of one line, and what stands there instead."""

    def __str__(self):
        return f"{self.file}:{self.line}:{self.column}: \"{self.old}\" → \"{self.new}\""

    def apply(self, text):
        lines = text.split("\n")
        line = lines[self.line - 1].encode()
        begin = self.column - 1
        lines[self.line - 1] = (line[:begin] + self.new.encode() + line[begin + self.length:]).decode()
        return "\n".join(lines)


def tokens(path):
    """The tokens of a file as clang sees them before the preprocessor, with the blanks between them."""
    command = ["clang++", "-fsyntax-only", "-Xclang", "-dump-raw-tokens", str(path)]
    output = subprocess.run(command, stderr=subprocess.PIPE, check=True).stderr.decode(errors="replace")
    # A token may hold line breaks, and its line ends with its place.
    for entry in re.split(r"(?<=>)\n", output):
        if match := TOKEN.match(entry):
            yield Token(match[1], match[2], int(match[3]), int(match[4]))


def changes_of(path, name):
    """Every change that can be made to a file."""
    every = list(tokens(path))
    skipped = {token.line for token in every if token.text in ("#", "static_assert")}
    code = [token for token in every if token.kind != "comment" and token.line not in skipped]
    for i, token in enumerate(code):
        new = replacement(code, i)
        if new is not None:
            yield Change(name, token.line, token.column, len(token.text.encode()), token.text, new)
    yield from forgotten_calls(path, name, code)


def replacement(code, i):
    """The token that takes the place of a token; None where it stays."""
    token = code[i]
    is_binary = is_blank(code, i - 1) and is_blank(code, i + 1)
    if token.kind == "numeric_constant" and token.text.isdigit():
        return str(int(token.text) + 1)
    if token.kind == "exclaim":
        return ""
    if token.kind in ("string_literal", "char_constant", "utf16_string_literal"):
        return None
    if token.text in BINARY and not is_binary:
        return None
    return REPLACEMENTS.get(token.text)


def is_blank(code, i):
    return 0 <= i < len(code) and code[i].kind == "unknown" and code[i].text.isspace()


def forgotten_calls(path, name, code):
    """Statements in one line that are nothing but a call."""
    lines = path.read_text().split("\n")
    solid = [token for token in code if not (token.kind == "unknown" and token.text.isspace())]
    for i, token in enumerate(solid[1:-2], 1):
        line = lines[token.line - 1]
        begins = solid[i - 1].text in (";", "{", "}", ")") and token.kind == "raw_identifier"
        is_alone = line[:token.column - 1].isspace() and line.endswith(");")
        if begins and is_alone and token.text != "return" and solid[i + 1].text in ("(", ".", "->", "::"):
            statement = line.strip()
            yield Change(name, token.line, token.column, len(statement.encode()), statement, ";")


class Tree:
    """A copy of the sources with a build of its own."""

    def __init__(self, sources, work, folder):
        self.copy, self.build, self.folder = work / "sources", work / "build", folder
        self.take(sources)
        # A library that changes inside needs no new link of what uses it. Most of the time goes into compiling, so the
        # compiler neither describes the code to a debugger nor tries hard.
        run(["cmake", "-S", self.copy, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None", "-DCMAKE_CXX_FLAGS=-O1",
             "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON"])
        self.compile(["all"]) or sys.exit("mutate: the sources do not compile")
        # Tests of libraries do not run programs.
        excluded = "slow|compile|library" if folder.parts[0] == "apps" else "slow|compile"
        listing = run(["ctest", "--test-dir", self.build, "-N", "-LE", excluded, "-E", UNRELATED]).stdout.decode()
        self.tests = re.findall(r"Test +#\d+: (\S+)", listing)

    def take(self, sources):
        """Makes the copy equal to the files that git knows. What has not changed stays, so that it is not compiled again."""
        listing = subprocess.run(["git", "-C", sources, "ls-files", "-z"], stdout=subprocess.PIPE, check=True).stdout
        names = list(filter(None, listing.decode().split("\0")))
        for name in names:
            copy = self.copy / name
            copy.parent.mkdir(parents=True, exist_ok=True)
            if not copy.is_file() or not filecmp.cmp(sources / name, copy, shallow=False):
                shutil.copy(sources / name, copy)
        for copy in set(path for path in self.copy.rglob("*") if path.is_file()) - {self.copy / name for name in names}:
            copy.unlink()

    def stages(self, file):
        """Tests and what is to be built for them, from the nearest to the farthest."""
        program = pathlib.Path(file).parts[1]
        own = {path.stem for path in (self.copy / "tests" / program).glob("tst_*.cpp")} & set(self.tests)
        nearest = own & {"tst_" + pathlib.Path(file).stem.removesuffix("_p")}
        yield from ((names, names) for names in (sorted(nearest), sorted(own - nearest)) if names)
        yield [name for name in self.tests if name not in own], ["all"]

    def changes(self):
        files = sorted(path for path in (self.copy / self.folder).rglob("*.cpp"))
        files = files or sorted((self.copy / self.folder).rglob("*.h"))
        return [change for path in files for change in changes_of(path, str(path.relative_to(self.copy)))]

    def compile(self, targets):
        return not run(["cmake", "--build", self.build, "--target", *targets], check=False).returncode

    def failing_test(self, names):
        """The first of the tests that fails; None where all of them pass."""
        expression = "^(" + "|".join(map(re.escape, names)) + ")$"
        result = run(["ctest", "--test-dir", self.build, "-R", expression, "--stop-on-failure", "-j", str(os.cpu_count()),
                      "--timeout", str(SECONDS_OF_A_TEST)], check=False, preexec_fn=limit_memory, env=LIMITED)
        failed = re.search(r"Test +#\d+: (\S+) .*\*\*\*", result.stdout.decode(errors="replace"))
        return failed[1] if failed else "ctest" if result.returncode else None

    def judge(self, change):
        """The test that notices the change, None where none does, and False where it does not compile."""
        path = self.copy / change.file
        original = path.read_text()
        path.write_text(change.apply(original))
        try:
            for names, targets in self.stages(change.file):
                if not self.compile(targets):
                    return False
                if failed := self.failing_test(names):
                    return failed
            return None
        finally:
            path.write_text(original)


def limit_memory():
    resource.setrlimit(resource.RLIMIT_AS, (BYTES_OF_A_TEST, BYTES_OF_A_TEST))


def run(command, check=True, **options):
    return subprocess.run(list(map(str, command)), stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=check, **options)


def main(sources, work, count, folder, seed):
    if not (sources / folder).is_dir():
        sys.exit(f"mutate: there is no folder {folder}")
    tree = Tree(sources, work, folder)
    if failed := tree.failing_test(tree.tests):
        sys.exit(f"mutate: {failed} fails before anything is changed")
    candidates = tree.changes()
    random.Random(seed).shuffle(candidates)
    noticed = unnoticed = 0
    while candidates and noticed + unnoticed < count:
        change = candidates.pop()
        test = tree.judge(change)
        if test is False:
            continue
        noticed += test is not None
        unnoticed += test is None
        print(f"{noticed + unnoticed}/{count} {test or 'NOT NOTICED'}: {change}", flush=True)
    print(f"{noticed} of {noticed + unnoticed} changes of {folder} were noticed; seed {seed}")
    return 1 if unnoticed else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), int(sys.argv[3]), pathlib.Path(sys.argv[4]),
                  int(sys.argv[5])))
