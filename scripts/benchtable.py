#!/usr/bin/env python3
"""Turns Google Benchmark JSON output into the table of ratios.

Benchmarks are named "<case>/lib[/<size>]" and "<case>/raw[/<size>]"; the
ratio is the median CPU time of lib over raw. Targets are the ceilings the
library promises for the ratio; a row over its target fails the run.
"""
import json
import sys
import datetime
import platform
import os

TARGETS = {
    "environmentEnblDebugInfo": 1.3,
    "loadRecentFileList": 1.3,
    "getProjectsPathList": 1.3,
    "makeNewProjectName": 1.5,
    "QNodrixHelp": 1.5,
}


def main(paths):
    rows = {}
    context = None
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
            rows.setdefault(key, {})[parts[1]] = (b["cpu_time"], b["time_unit"])

    print(f"Benchmarks of {datetime.date.today().isoformat()} on "
          f"{os.cpu_count()} cores ({platform.machine()}), "
          f"{context.get('num_cpus', '?')} CPUs at {context.get('mhz_per_cpu', '?')} MHz")
    print()
    print("| case | size | library | raw Qt | ratio | target |")
    print("|---|---|---|---|---|---|")
    failed = False
    for (case, size) in sorted(rows, key=lambda k: (k[0], int(k[1]) if k[1].isdigit() else 0)):
        r = rows[(case, size)]
        if "lib" not in r or "raw" not in r:
            continue
        lib, unit = r["lib"]
        raw, unit2 = r["raw"]
        ratio = lib / raw if raw else float("inf")
        target = TARGETS.get(case)
        mark = ""
        if target is not None and ratio > target:
            mark = " (over)"
            failed = True
        print(f"| {case} | {size or '-'} | {lib:.1f} {unit} | {raw:.1f} {unit2} | "
              f"{ratio:.2f}{mark} | {target if target else '-'} |")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
