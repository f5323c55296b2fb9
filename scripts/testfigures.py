#!/usr/bin/env python3
"""Reliability figures of a test run, one line each.

Usage: testfigures.py PRESET=LOG [PRESET=LOG ...]

Each LOG is a preset's Testing/Temporary/LastTest.log, which keeps the output
of every test. Tests print lines "ndxcom-figure: <label>: <n>, <label>: <n>";
the lock record fuzzer's final statistics give the fuzz figure, and the
sanitizer preset ("asan") adds the count of sanitizer reports over its whole
suite. Each figure is summed over the presets that report it and printed once,
with those presets named.

Fails (exit 1) when a crash, loss or finding count is not 0, or when a figure
is missing from a preset that ran its tests: the test that counts it did not
run to its end, which is how a crash shows. The Windows build ("windows") has
no fuzzer (libFuzzer needs clang), no process with a computer name of its own
(so no race of computers) and no settings files (its store is the registry):
it must report the figures it can have, its registry figure instead of the
settings files one.
"""
import re
import sys

FIGURE = re.compile(r"ndxcom-figure: (.*)")
FIELD = re.compile(r"([A-Za-z][A-Za-z0-9 \-]*?): (\d+)")
# Fields that count failures: every one of them must be 0.
MUST_BE_ZERO = re.compile(r"crashes|lost|two read-write holders|findings")
SANITIZER_REPORT = re.compile(r"ERROR: (AddressSanitizer|LeakSanitizer)|runtime error:")
FUZZ_CRASH = re.compile(r"ERROR: libFuzzer|ERROR: AddressSanitizer|runtime error:|"
                        r"Test unit written to")
TEST_HEADER = re.compile(r"^\d+/\d+ Testing: (\S+)$")

FUZZ = "lock record fuzz inputs run"
SANITIZER = "sanitizer findings over the whole suite"
REGISTRY = "hostile registry values tried"
# The figures every preset that ran its tests must report, in print order.
EXPECTED = ["hostile lock files tried", "hostile settings files tried", FUZZ, "race rounds"]
# Presets that cannot have some of them, with what they report instead.
EXPECTED_BY_PRESET = {"windows": ["hostile lock files tried", REGISTRY]}


def expected(preset):
    return EXPECTED_BY_PRESET.get(preset, EXPECTED)


def sections(text):
    """Yields (test name, output, passed) for each test of a LastTest.log."""
    name, lines = None, []
    for line in text.splitlines():
        m = TEST_HEADER.match(line)
        if m:
            if name is not None:
                yield name, lines
            name, lines = m.group(1), []
        elif name is not None:
            lines.append(line)
    if name is not None:
        yield name, lines


def read_preset(preset, path):
    """Returns {label: [(field, value), ...]} for one preset's log."""
    with open(path, encoding="utf-8", errors="replace") as f:
        text = f.read()
    figures = {}
    for name, lines in sections(text):
        output = "\n".join(lines)
        for line in lines:
            m = FIGURE.search(line)
            if not m:
                continue
            fields = [(k.strip(), int(v)) for k, v in FIELD.findall(m.group(1))]
            if fields:
                figures.setdefault(fields[0][0], fields)
        if name == "fuzz_lockrecord":
            # libFuzzer stops at its first crash: a run has crashed or not.
            runs = re.findall(r"stat::number_of_executed_units: (\d+)", output)
            crashed = FUZZ_CRASH.search(output) or "Test Passed." not in output
            figures[FUZZ] = [(FUZZ, sum(int(n) for n in runs)), ("crashes", 1 if crashed else 0)]
    if preset == "asan":
        figures[SANITIZER] = [(SANITIZER, len(SANITIZER_REPORT.findall(text)))]
    return figures


def main(args):
    presets = []
    for arg in args:
        preset, _, path = arg.partition("=")
        presets.append((preset, read_preset(preset, path)))
    if not presets:
        print("no test logs")
        return 1

    labels = []
    for preset, _ in presets:
        labels += [label for label in expected(preset) if label not in labels]
    if any(p == "asan" for p, _ in presets):
        labels.append(SANITIZER)
    for _, figures in presets:
        labels += [label for label in figures if label not in labels]

    failed = False
    for label in labels:
        totals, order, reporting, missing = {}, [], [], []
        for preset, figures in presets:
            fields = figures.get(label)
            if fields is None:
                if label in expected(preset):
                    missing.append(preset)
                continue
            reporting.append(preset)
            for field, value in fields:
                if field not in totals:
                    order.append(field)
                    totals[field] = 0
                totals[field] += value
        parts = [f"{field}: {totals[field]}" for field in order]
        line = ", ".join(parts) if parts else f"{label}: not reported"
        if reporting:
            line += "   (" + " + ".join(reporting) + ")"
        if missing:
            line += "   NOT REPORTED by " + ", ".join(missing) + \
                " (the test that counts it did not run to its end)"
            failed = True
        bad = [f for f in order if MUST_BE_ZERO.search(f) and totals[f] != 0]
        if bad:
            line += "   FAILED: " + ", ".join(bad) + " not 0"
            failed = True
        print(line)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
