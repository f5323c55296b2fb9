#!/usr/bin/env python3
"""Turns Google Benchmark JSON output into the table of ratios.

Benchmarks are named "<case>/lib[/<size>]" and "<case>/raw[/<size>]"; the
ratio is the median CPU time of lib over raw (lib and raw run interleaved in
one program, so both see the same machine). Targets are the ceilings the
library promises for the ratio; a row over its target fails the run. For the
sized cases the time per item shows the growth: linear growth keeps it flat.
"""
import datetime
import json
import os
import platform
import sys

TARGETS = {
    "environmentEnblDebugInfo": 1.3,
    "loadRecentFileList": 1.3,
    "getProjectsPathList": 1.3,
    "makeNewProjectName": 1.5,
    "QNodrixHelp": 1.5,
    "HolderQuestion": 1.5,
    "LockList": 1.5,
}

# What one item of a sized case is.
ITEMS = {
    "loadRecentFileList": "entry",
    "getProjectsPathList": "entry",
    "makeNewProjectName": "file",
    "QNodrixHelp": "line",
    "HolderQuestion": "name byte",
    "LockList": "project",
}

SCALE = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


def human(ns):
    for unit, factor in (("s", 1e9), ("ms", 1e6), ("us", 1e3)):
        if ns >= factor:
            return f"{ns / factor:.3g} {unit}"
    return f"{ns:.3g} ns"


def cpu_model():
    try:
        with open("/proc/cpuinfo") as f:
            for line in f:
                if line.startswith("model name"):
                    return line.split(":", 1)[1].strip()
    except OSError:
        pass
    return platform.processor() or platform.machine()


def main(paths):
    rows = {}
    context = {}
    repetitions = set()
    for path in paths:
        with open(path) as f:
            data = json.load(f)
        context = context or data.get("context", {})
        for b in data.get("benchmarks", []):
            if b.get("aggregate_name") not in (None, "median"):
                continue
            name = b.get("run_name", b["name"])
            parts = name.split("/")
            if len(parts) < 2 or parts[1] not in ("lib", "raw"):
                continue
            key = (parts[0], "/".join(parts[2:]))
            repetitions.add(b.get("repetitions", 1))
            ns = b["cpu_time"] * SCALE.get(b.get("time_unit", "ns"), 1.0)
            rows.setdefault(key, {})[parts[1]] = ns

    print(f"Benchmarks of {datetime.date.today().isoformat()}: {os.cpu_count()} cores, "
          f"{cpu_model()}, {platform.system()} {platform.release()}; "
          f"median CPU time of {'/'.join(str(n) for n in sorted(repetitions))} "
          "interleaved repetitions")
    print()
    print("| case | size | library | raw Qt | ratio | target | library per item |")
    print("|---|---:|---:|---:|---:|---:|---:|")
    failed = []
    for (case, size) in sorted(rows, key=lambda k: (k[0].lower(), int(k[1]) if k[1].isdigit() else 0)):
        r = rows[(case, size)]
        if "lib" not in r or "raw" not in r:
            continue
        lib, raw = r["lib"], r["raw"]
        ratio = lib / raw if raw else float("inf")
        target = TARGETS.get(case)
        mark = ""
        if target is not None and ratio > target:
            mark = " **over**"
            failed.append(f"{case}{'/' + size if size else ''}")
        per_item = "-"
        if size.isdigit() and int(size) > 0:
            per_item = f"{human(lib / int(size))} / {ITEMS.get(case, 'item')}"
        shown_size = f"{int(size):,}" if size.isdigit() else "-"
        print(f"| {case} | {shown_size} | {human(lib)} | {human(raw)} | {ratio:.2f}{mark} | "
              f"{target if target else '-'} | {per_item} |")
    if failed:
        print()
        print("over target: " + ", ".join(failed))
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
