#!/usr/bin/env python3
"""usage: bench.py PROGRAMS FOLDER [--summary]

Runs the benchmark programs in the folder PROGRAMS, once with QT_HASH_SEED=0 and once with Qt's own seed, prints the table
of operations and goals and writes all figures to FOLDER/benchmarks.json. With --summary it prints nothing but a line
"NAME FIGURE GOAL" for each goal.
"""
import itertools
import json
import math
import os
import re
import statistics
import subprocess
import sys

PROGRAMS = ["keywords", "bits", "variants", "producttype", "services", "xml", "priceclasses", "reader", "search", "threads",
            "complexity", "catalogue", "memory"]
SEEDS = {"seed 0": "0", "own seed": None}
# Runs of a program with each seed, repetitions in a run, and seconds of each.
USUAL_ROUNDS = (3, 5, 0.05)
ROUNDS = {"complexity": (1, 3, 0.02), "catalogue": (1, 5, 1), "memory": (1, 1, 1), "threads": (3, 3, 0.1)}

# name, operation and peer, benchmark of ours, of the peer, highest ratio, most allocations (None: any number)
TIMES = [
    ("decodeCSV-qt", "decodeCSV, three keywords; split, QHash", "decodeCSV/ours", "decodeCSV/qt", 0.12, 0),
    ("decodeCSV-string_view", "decodeCSV; std::string_view, std::unordered_map", "decodeCSV/ours",
     "decodeCSV/string_view", 1.0, None),
    ("decodeCSV-article_class-qt", "decodeCSV of the largest table; split, QHash", "decodeCSV_article_class/ours",
     "decodeCSV_article_class/qt", 0.12, 0),
    ("decodeCSV-article_class-string_view", "the same; std::string_view, std::unordered_map",
     "decodeCSV_article_class/ours", "decodeCSV_article_class/string_view", 1.0, None),
    ("encodeCSV", "encodeCSV, three bits; QMetaEnum::valueToKeys", "encodeCSV/ours", "encodeCSV/qt", 0.3, 1),
    ("encode", "encode, one value; QHash::value", "encode/ours", "encode/qt", 0.35, 0),
    ("countBits", "countBits; 64 masks", "countBits/ours", "countBits/masks", 0.1, None),
    ("hasExactlyOneBit", "hasExactlyOneBit; 64 masks", "hasExactlyOneBit/ours", "hasExactlyOneBit/masks", 0.03, None),
    ("splitToBitsSorted", "splitToBitsSorted, three bits; 64 masks into a QList", "splitToBitsSorted/ours",
     "splitToBitsSorted/masks", 0.5, None),
    ("toggleBits", "toggleBits, three bits; 64 masks into a QSet", "toggleBits/ours", "toggleBits/set", 0.05, None),
    ("createFromKTX", "createFromKTX, three pairs; QUrlQuery into a QHash", "createFromKTX/ours",
     "createFromKTX/url_query", 0.6, None),
    ("RVProductType-family", "RVProductType, family code; QRegularExpression", "RVProductType_family/ours",
     "RVProductType_family/expression", 0.2, None),
    ("RVProductType-other", "RVProductType, other code; QRegularExpression", "RVProductType_other/ours",
     "RVProductType_other/expression", 0.2, None),
    ("organization", "organization, cached; QRecursiveMutex, QHash", "organization/ours", "organization/cache", 1.15,
     None),
    ("isValid", "isValid, cached; QRecursiveMutex, QHash", "isValid/ours", "isValid/cache", 1.15, None),
    ("product-element", "one product element; QDomElement::attribute", "product_element/ours", "product_element/dom",
     0.5, None),
    ("price-class-set", "a named price class set; QSet from literals", "price_class_set/ours",
     "price_class_set/literals", 0.07, None),
    ("reader", "RVCatalogueReader, 1,000 products; libxml2 alone", "reader/ours", "reader/libxml2", 2.0, None),
    ("search", "a key in the search line, 100,000 products; QSortFilterProxyModel", "search/ours", "search/proxy", 0.8,
     None),
    ("catalogue-time", "rvcatalog show --json, 20,000 products; QDomDocument", "catalogue/ours", "catalogue/dom", 0.15,
     None),
]
# operation, its unavoidable part, benchmark of ours, of that part, highest ratio
FLOORS = [
    ("decodeCSV, three keywords", "a look at each letter", "decodeCSV/ours", "decodeCSV/floor", None),
    ("encodeCSV, three bits", "one allocation, one copy", "encodeCSV/ours", "encodeCSV/floor", 1.5),
    ("encode, one value", "a copy of a QString", "encode/ours", "encode/floor", 1.5),
    ("splitToBitsSorted, three bits", "a list of three", "splitToBitsSorted/ours", "splitToBitsSorted/floor", 1.5),
    ("createFromKTX, three pairs", "a hash of three", "createFromKTX/ours", "createFromKTX/floor", 1.5),
    ("RVProductType, family code", "a copy and its hash", "RVProductType_family/ours", "RVProductType_family/floor", None),
    ("RVProductType, other code", "a copy and its hash", "RVProductType_other/ours", "RVProductType_other/floor", 1.5),
    ("organization, cached", "a lock, a look-up, a call", "organization/ours", "organization/cache", 1.15),
    ("isValid, cached", "a lock, a look-up, a call", "isValid/ours", "isValid/cache", 1.15),
    ("one product element", "QDomElement::attribute for each", "product_element/ours", "product_element/floor", 1.5),
    ("a named price class set", "a copy of a QSet", "price_class_set/ours", "price_class_set/floor", 1.5),
    ("RVCatalogueReader, 1,000 products", "libxml2", "reader/ours", "reader/libxml2", 2.0),
]
# name, operation and peer, benchmark of ours, of the peer, highest ratio of the processor time of both processes
PROCESSES = [
    ("catalogue-check", "rvcatalog check, processor; xmllint --schema", "check/ours", "check/xmllint", 0.6),
    ("catalogue-show", "rvcatalog show --json, processor; xmllint", "catalogue/ours", "catalogue/xmllint", 2.5),
    ("catalogue-diff", "rvcatalog diff, processor; xmllint --c14n of both, then diff", "diff/ours", "diff/xmllint", 0.6),
    ("catalogue-typed", "every value of 20,000 products; readers of a QDomDocument", "typed/ours", "typed/readers", 0.15),
    ("parse-qt", "a bare pass, libxml2; QXmlStreamReader", "parse/libxml2", "parse/qt", 0.3),
    ("parse-expat", "a bare pass, libxml2; expat", "parse/libxml2", "parse/expat", 1.0),
]
MOST_MEMORY = 0.03  # peak of the catalogue program, against the peer's
MOST_MEGABYTES = {"show": 40, "check": 56}  # for the catalogue program with a million products; the check takes 26 bytes for each
MOST_DIFF_MEGABYTES = 40  # for the catalogue program with two times 20,000 products; some 300 bytes for each old one
MOST_PRODUCT_ALLOCATIONS = 5  # of the reader for one product, four to keep it, beside those of the parser
PRODUCTS_READ = 1000  # by bench_reader
LEAST_THROUGHPUT = 1.9  # of two threads, against one
MOST_INSTRUCTIONS = 2.5  # millions, of loading the library and using every table


class Row:
    """A goal, the figures that count for it, and what the table shows of it."""

    def __init__(self, name, operation, figures, goal, ours=(), peer=(), least=False, allocations=""):
        self.name, self.operation, self.goal, self.least = name, operation, goal, least
        self.figures, self.ours, self.peer, self.allocations = figures, ours, peer, allocations
        self.figure = min(figures) if least else max(figures)  # the worse of the two seeds
        self.met = self.figure >= goal if least else self.figure <= goal

    def columns(self):
        goal = ("≥ " if self.least else "≤ ") + f"{self.goal:g}" + ("" if self.met else " missed")
        texts = [number(value) for pair in zip(self.ours, self.peer) for value in pair] or [""] * 4
        return [self.operation, *texts[:2], f"{self.figures[0]:.3g}", f"{self.figures[1]:.3g}", goal, self.allocations,
                *texts[2:]]


HEADINGS = ["operation; peer", "ours ns", "peer ns", "ratio", "ratio, own seed", "goal", "allocations",
            "ours ns, own seed", "peer ns, own seed"]


def number(value):
    if value >= 1e6:
        return f"{value / 1e6:,.0f} ms"
    return f"{value:.1f}" if value < 1000 else f"{value:,.0f}"


def environment(seed):
    result = {name: value for name, value in os.environ.items() if name != "QT_HASH_SEED"}
    return result if SEEDS[seed] is None else {**result, "QT_HASH_SEED": SEEDS[seed]}


def run(command, seed):
    """The text that a program writes to its standard error."""
    process = subprocess.run(command, env=environment(seed), text=True, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
    if process.returncode != 0:
        sys.exit(f"bench: {command} ended with {process.returncode}\n{process.stderr}")
    return process.stderr


def run_program(programs, folder, program, seed):
    """All benchmarks of a program, with repetitions in random order."""
    output = os.path.join(folder, "run.json")
    _, repetitions, seconds = ROUNDS.get(program, USUAL_ROUNDS)
    run([os.path.join(programs, "bench_" + program), f"--benchmark_repetitions={repetitions}",
         f"--benchmark_min_time={seconds}", "--benchmark_enable_random_interleaving=true",
         "--benchmark_out=" + output], seed)
    with open(output, encoding="utf-8") as file:
        return json.load(file)["benchmarks"]


def count_instructions(programs, program, seed):
    """Millions of instructions from the start of a program to its end."""
    report = run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", os.path.join(programs, program)],
                 seed)
    return int(re.search(r"Collected : (\d+)", report)[1]) / 1e6


def measure(programs, folder):
    """For each seed the medians of every benchmark by its name, Google Benchmark's complexity reports, instructions."""
    runs, complexity, instructions = ({seed: {} for seed in SEEDS} for _ in range(3))
    # The seeds take turns, so that both run under the same load of the machine.
    turns = [(program, seed) for program in PROGRAMS for _ in range(ROUNDS.get(program, USUAL_ROUNDS)[0])
             for seed in SEEDS]
    for program, seed in turns:
        print(f"bench: {program}, {seed}", file=sys.stderr)
        for entry in run_program(programs, folder, program, seed):
            if entry.get("aggregate_name") in ("BigO", "RMS"):
                complexity[seed].setdefault(entry["run_name"], {}).update(entry)
            elif entry["run_type"] == "iteration":
                name = entry["run_name"].removesuffix("/iterations:1/manual_time")
                runs[seed].setdefault(name, []).append(entry)
    for side, seed in itertools.product(("library", "empty"), SEEDS):
        print(f"bench: start-up, {side}, {seed}", file=sys.stderr)
        instructions[seed][side] = count_instructions(programs, "startup_" + side, seed)
    return {seed: {"medians": {name: medians_of(entries) for name, entries in runs[seed].items()},
                   "complexity": complexity[seed], "instructions": instructions[seed]} for seed in SEEDS}


def medians_of(entries):
    def median(key):
        return statistics.median(entry[key] for entry in entries)

    first = entries[0]
    if "peak_megabytes" in first:  # a whole process, in milliseconds
        result = {"ns": median("real_time") * 1e6, "peak": median("peak_megabytes")}
        if "processor_milliseconds" in first:
            result["processor_ns"] = median("processor_milliseconds") * 1e6
        return result
    if "items_per_second" not in first:
        return {"ns": median("cpu_time")}
    result = {"ns": 1e9 / median("items_per_second"),
              "best_ns": 1e9 / max(entry["items_per_second"] for entry in entries)}
    if "allocs_per_iter" in first:
        result["allocations"] = median("allocs_per_iter") / first["corpus"]
    return result


def time_rows(medians, name, operation, ours, peer, goal, most_allocations):
    ours_ns = [medians[seed][ours]["ns"] for seed in SEEDS]
    peer_ns = [medians[seed][peer]["ns"] for seed in SEEDS]
    allocations = [medians[seed][ours].get("allocations") for seed in SEEDS]
    text = "" if None in allocations else f"{max(allocations):.3g}" if max(allocations) < 1000 else f"{max(allocations):,.0f}"
    # The ratio is against the peer with seed 0, at which it is fastest.
    yield Row(name, operation, [ns / peer_ns[0] for ns in ours_ns], goal, ours_ns, peer_ns, allocations=text)
    if most_allocations is not None:
        yield Row(name + "-allocations", "… its allocations", allocations, most_allocations)


def process_rows(medians):
    for name, operation, ours, peer, goal in PROCESSES:
        figures = [[medians[seed][side]["processor_ns"] for seed in SEEDS] for side in (ours, peer)]
        yield Row(name, operation, [ns / figures[1][0] for ns in figures[0]], goal, *figures)
    for command, goal in MOST_MEGABYTES.items():
        yield Row(f"million-{command}", f"rvcatalog {command}, 1,000,000 products, peak memory in MB",
                  [medians[seed][f"million/{command}"]["peak"] for seed in SEEDS], goal)


def reader_row(medians):
    ours, peer = ([medians[seed]["reader/" + side]["allocations"] / PRODUCTS_READ for seed in SEEDS]
                  for side in ("ours", "libxml2"))
    return Row("reader-allocations", "… its allocations for one product, without those of libxml2",
               [a - b for a, b in zip(ours, peer)], MOST_PRODUCT_ALLOCATIONS, ours, peer)


def make_rows(results):
    medians = {seed: result["medians"] for seed, result in results.items()}
    for row in TIMES:
        yield from time_rows(medians, *row)
        if row[0] == "reader":
            yield reader_row(medians)
    peaks = [[medians[seed]["catalogue/" + side]["peak"] for seed in SEEDS]
             for side in ("ours", "dom")]
    yield Row("catalogue-memory", "… its peak memory in MB", [peak / peaks[1][0] for peak in peaks[0]], MOST_MEMORY,
              *peaks)
    yield from process_rows(medians)
    yield Row("catalogue-diff-memory", "rvcatalog diff, two of 20,000 products, peak memory in MB",
              [medians[seed]["diff/ours"]["peak"] for seed in SEEDS], MOST_DIFF_MEGABYTES)
    for name in ("decode", "encode", "normalise"):
        # The best repetition of each counts: other processes take a core away from two threads, but not from one.
        one, two = ([medians[seed][f"{name}/real_time/threads:{count}"]["best_ns"] for seed in SEEDS]
                    for count in (1, 2))
        yield Row("two-threads-" + name, f"{name} on two threads; throughput of one", [a / b for a, b in zip(one, two)],
                  LEAST_THROUGHPUT, two, one, least=True)
    library, empty = ([results[seed]["instructions"][side] for seed in SEEDS] for side in ("library", "empty"))
    yield Row("startup", "start-up in million instructions more; an empty program",
              [a - b for a, b in zip(library, empty)], MOST_INSTRUCTIONS, library, empty)


def table(rows):
    """A Markdown table that reads well as it stands."""
    widths = [max(len(row[i]) for row in rows) for i in range(len(rows[0]))]
    lines = ["| " + " | ".join(text.ljust(width) if i == 0 else text.rjust(width)
                               for i, (text, width) in enumerate(zip(row, widths))) + " |" for row in rows]
    rule = "|" + "|".join("-" * (width + 1) + ("-" if i == 0 else ":") for i, width in enumerate(widths)) + "|"
    return "\n".join([lines[0], rule, *lines[1:]])


def floor_table(medians):
    rows = [["operation", "floor", "ours ns", "floor ns", "ratio", "goal"]]
    for operation, floor, ours, theirs, goal in FLOORS:
        ours_ns, floor_ns = (medians[side]["ns"] for side in (ours, theirs))
        ratio = ours_ns / floor_ns
        verdict = "" if goal is None else f"≤ {goal:g}" + ("" if ratio <= goal else " missed")
        rows.append([operation, floor, number(ours_ns), number(floor_ns), f"{ratio:.2f}", verdict])
    return table(rows)


def exponent(medians, name):
    """The slope of cost over size in double logarithmic scale: 1 is linear, 2 quadratic."""
    costs = {int(run.rsplit("/", 1)[1]): figures["ns"] for run, figures in medians.items() if run.startswith(name + "/")}
    return statistics.linear_regression([math.log(size) for size in costs], [math.log(ns) for ns in costs.values()]).slope


def complexity_table(result):
    rows = [["cost of", "big O", "coefficient ns", "RMS", "measured exponent"]]
    for name, report in sorted(result["complexity"].items(), key=lambda item: item[1]["family_index"]):
        rows.append([name, report["big_o"], f"{report['cpu_coefficient']:.3g}", f"{report['rms']:.0%}",
                     f"{exponent(result['medians'], name):.2f}"])
    return table(rows)


def main():
    programs, folder, summary = sys.argv[1], sys.argv[2], sys.argv[3:] == ["--summary"]
    os.makedirs(folder, exist_ok=True)
    load = os.getloadavg()[0]
    if load > 0.5:
        print(f"bench: other programs are running (load {load:.1f}), which disturbs the figures", file=sys.stderr)
    results = measure(programs, folder)
    rows = list(make_rows(results))
    with open(os.path.join(folder, "benchmarks.json"), "w", encoding="utf-8") as file:
        json.dump({"rows": [vars(row) for row in rows], **results}, file, indent=1)
    if summary:
        print("\n".join(f"{row.name} {row.figure:.4g} {row.goal:g}" for row in rows))
        return
    print("\n\n".join([table([HEADINGS] + [row.columns() for row in rows]), floor_table(results["seed 0"]["medians"]),
                       complexity_table(results["seed 0"])]))


main()
