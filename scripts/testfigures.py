#!/usr/bin/env python3
"""Reliability figures of a test run, one line each.

Usage: testfigures.py PRESET=LOG [PRESET=LOG ...]
       testfigures.py --gate TEST,TEST,... PRESET=REPORTS

Each LOG is a preset's Testing/Temporary/LastTest.log, which keeps the output
of every test. With --gate (the last test of a CTest run, see
tests/CMakeLists.txt) the input is a folder of reports, <test>.txt each, of
the tests named: once all of them have run, every figure of that kind of build
must be there; when only some ran, the figures they gave are checked. The
sanitizer count is left to the test command, which reads every output. Tests print lines "ndxcom-figure: <label>: <n>, <label>: <n>";
the fuzzers' final statistics (lock records, help index) give the fuzz figures, and the
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

The shared-folder test (the lock protocol over two sshfs mounts, qt6 build
only) prints "ndxcom-figure: shared folder (sshfs, <cache>): ..." for each
cache mode, or "ndxcom-figure-skipped: shared folder (sshfs): <reason>" when
FUSE or sshd is not there. Its lines say so instead of failing when it was
skipped; they fail when it ran without its figures, with a round of two
read-write holders, with fewer than SHARED_ROUNDS rounds, or (cache=no) with a
round that nobody won.
"""
import os
import re
import sys

FIGURE = re.compile(r"ndxcom-figure: (.*)")
FIELD = re.compile(r"([A-Za-z][A-Za-z0-9 \-]*?): (\d+)")
# Fields that count failures: every one of them must be 0.
MUST_BE_ZERO = re.compile(r"crashes|hangs|lost|two read-write holders|findings|programs started")
SANITIZER_REPORT = re.compile(r"ERROR: (AddressSanitizer|LeakSanitizer)|runtime error:")
FUZZ_CRASH = re.compile(r"ERROR: libFuzzer|ERROR: AddressSanitizer|runtime error:|"
                        r"Test unit written to")
TEST_HEADER = re.compile(r"^\d+/\d+ Testing: (\S+)$")

SHARED_TEST = "shared_folder_sshfs"
SHARED_PRESET = "qt6"  # the only build that registers it
SHARED_FIGURE = re.compile(r"ndxcom-figure: (shared folder \(sshfs, [^)]*\)): (.*)")
SHARED_SKIPPED = re.compile(r"ndxcom-figure-skipped: shared folder \(sshfs\): (.*)")
SHARED_NOCACHE = "shared folder (sshfs, cache=no)"
SHARED_DEFAULT = "shared folder (sshfs, default cache)"
SHARED_ROUNDS = 200

FUZZ = "lock record fuzz inputs run"
HELP_FUZZ = "help index fuzz inputs run"
# Fuzz tests by name, with the figure each gives.
FUZZERS = {"fuzz_lockrecord": FUZZ, "fuzz_helpindex": HELP_FUZZ}
HELP = "hostile help inputs tried"
SANITIZER = "sanitizer findings over the whole suite"
REGISTRY = "hostile registry values tried"
# The figures every preset that ran its tests must report, in print order.
EXPECTED = ["hostile lock files tried", "hostile settings files tried", HELP, FUZZ, HELP_FUZZ,
            "race rounds"]
# Presets that cannot have some of them, with what they report instead.
EXPECTED_BY_PRESET = {"windows": ["hostile lock files tried", REGISTRY, HELP]}


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


def report_sections(folder):
    """Yields (test name, output lines) for each report of a reports folder."""
    for entry in sorted(os.listdir(folder)):
        if entry.endswith(".txt"):
            with open(os.path.join(folder, entry), encoding="utf-8", errors="replace") as f:
                yield entry[:-4], f.read().splitlines()


def read_preset(preset, path, gate=False):
    """Returns {label: [(field, value), ...]} for one preset's log."""
    if gate:
        parts = list(report_sections(path))
        text = "\n".join("\n".join(lines) for _, lines in parts)
    else:
        with open(path, encoding="utf-8", errors="replace") as f:
            text = f.read()
        parts = list(sections(text))
    figures = {}
    for name, lines in parts:
        output = "\n".join(lines)
        if name == SHARED_TEST:
            shared = {"ran": True}
            for line in lines:
                m = SHARED_SKIPPED.search(line)
                if m:
                    shared["skipped"] = m.group(1).strip()
                m = SHARED_FIGURE.search(line)
                if m:
                    shared[m.group(1)] = dict((k.strip(), int(v))
                                              for k, v in FIELD.findall(m.group(2)))
            figures[SHARED_TEST] = shared
            continue
        for line in lines:
            m = FIGURE.search(line)
            if not m:
                continue
            fields = [(k.strip(), int(v)) for k, v in FIELD.findall(m.group(1))]
            if fields:
                figures.setdefault(fields[0][0], fields)
        fuzz = FUZZERS.get(name)
        if fuzz and "Skip regular expression found" in output:
            # Left out where there is no fuzzer (Windows): no figure, and
            # EXPECTED_BY_PRESET does not ask for one there.
            continue
        if fuzz:
            # libFuzzer stops at its first crash: a run has crashed or not.
            runs = re.findall(r"stat::number_of_executed_units: (\d+)", output)
            # CTest's log says "Test Passed."; a report of the gate ends
            # with libFuzzer's own "Done N runs".
            finished = "Test Passed." in output or re.search(r"^Done \d+ runs", output, re.M)
            crashed = FUZZ_CRASH.search(output) or not finished
            figures[fuzz] = [(fuzz, sum(int(n) for n in runs)), ("crashes", 1 if crashed else 0)]
    if preset == "asan" and not gate:
        figures[SANITIZER] = [(SANITIZER, len(SANITIZER_REPORT.findall(text)))]
    return figures


def shared_folder_lines(presets, expected=None):
    """The two lines of the shared-folder test and whether they fail the run."""
    runs = [(p, f[SHARED_TEST]) for p, f in presets if SHARED_TEST in f]
    if expected is None:
        expected = any(p == SHARED_PRESET for p, _ in presets)
    lines, failed = [], False
    for label in (SHARED_NOCACHE, SHARED_DEFAULT):
        if not runs:
            if expected:
                lines.append(f"{label}: NOT RUN by {SHARED_PRESET}")
                failed = True
            continue
        preset, shared = runs[0]
        if "skipped" in shared:
            lines.append(f"{label}: skipped: {shared['skipped']}")
            continue
        fields = shared.get(label)
        if fields is None:
            lines.append(f"{label}: NOT REPORTED by {preset} "
                         "(the test that counts it did not run to its end)")
            failed = True
            continue
        rounds = fields.get("race rounds", 0)
        two = fields.get("rounds with two read-write holders", 0)
        none = fields.get("rounds without a holder", 0)
        line = f"{label}: race rounds {rounds}, rounds with two read-write holders {two}"
        if label == SHARED_DEFAULT:
            line += f", rounds without a holder {none}"
            busy = fields.get("released project busy on the other mount ms")
            listed = fields.get("lock file listed after release ms")
            if busy is not None:
                line += f", a released project looks busy on the other mount for {busy} ms"
            if listed is not None:
                line += f" (its lock file stays in a listing for {listed} ms)"
        bad = []
        if two != 0:
            bad.append("two read-write holders")
        if rounds < SHARED_ROUNDS:
            bad.append(f"fewer than {SHARED_ROUNDS} rounds")
        if label == SHARED_NOCACHE and none != 0:
            bad.append(f"{none} rounds without a holder")
        if bad:
            line += "   FAILED: " + ", ".join(bad)
            failed = True
        lines.append(line)
    return lines, failed


def main(args):
    gate = None
    if args[:1] == ["--gate"] and len(args) >= 2:
        gate = [t for t in args[1].split(",") if t]
        args = args[2:]
    presets = []
    for arg in args:
        preset, _, path = arg.partition("=")
        presets.append((preset, read_preset(preset, path, gate is not None)))
    if not presets:
        print("no test logs")
        return 1
    shared_expected = None
    if gate is not None:
        ran = set()
        for arg in args:
            ran.update(name for name, _ in report_sections(arg.partition("=")[2]))
        if not all(t in ran for t in gate):
            # Some of the programs ran: their figures are checked, no more.
            print("figures of " + ", ".join(sorted(t for t in gate if t in ran)) +
                  " (not all of the reliability tests ran)")
            EXPECTED_BY_PRESET.update({p: [] for p, _ in presets})
            shared_expected = False
        else:
            shared_expected = SHARED_TEST in gate

    labels = []
    for preset, _ in presets:
        labels += [label for label in expected(preset) if label not in labels]
    if any(p == "asan" for p, _ in presets) and gate is None:
        labels.append(SANITIZER)
    for _, figures in presets:
        labels += [label for label in figures if label not in labels and label != SHARED_TEST]

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
    shared, shared_failed = shared_folder_lines(presets, shared_expected)
    for line in shared:
        print(line)
    return 1 if failed or shared_failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
