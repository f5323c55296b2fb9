#include "benchsupport.h"

#include <QNodrixCom>

// The geometry functions against the plain expression they compute. The
// library pays for a call across the shared library and for its guards.

static void geometry_needleFromDegree_lib(benchmark::State &state)
{
    int degree = 90, needles = 1680;
    for (auto _ : state) {
        benchmark::DoNotOptimize(degree);
        benchmark::DoNotOptimize(needles);
        benchmark::DoNotOptimize(QNodrixCom::needleFromDegree(degree, needles, true));
    }
}
BENCHMARK(geometry_needleFromDegree_lib)->Name("needleFromDegree/lib");

static void geometry_needleFromDegree_raw(benchmark::State &state)
{
    int degree = 90, needles = 1680;
    for (auto _ : state) {
        benchmark::DoNotOptimize(degree);
        benchmark::DoNotOptimize(needles);
        benchmark::DoNotOptimize(10 * degree * needles / 3600);
    }
}
BENCHMARK(geometry_needleFromDegree_raw)->Name("needleFromDegree/raw");

static void geometry_degree10FromNeedle_lib(benchmark::State &state)
{
    int needle = 999, needles = 1000;
    for (auto _ : state) {
        benchmark::DoNotOptimize(needle);
        benchmark::DoNotOptimize(needles);
        benchmark::DoNotOptimize(QNodrixCom::degree10FromNeedle(needle, needles, false));
    }
}
BENCHMARK(geometry_degree10FromNeedle_lib)->Name("degree10FromNeedle/lib");

static void geometry_degree10FromNeedle_raw(benchmark::State &state)
{
    int needle = 999, needles = 1000;
    for (auto _ : state) {
        benchmark::DoNotOptimize(needle);
        benchmark::DoNotOptimize(needles);
        const int p = needle * 36000;
        const int q = p / (10 * needles);
        benchmark::DoNotOptimize(p % needles >= 5 ? q + 1 : q);
    }
}
BENCHMARK(geometry_degree10FromNeedle_raw)->Name("degree10FromNeedle/raw");

static void geometry_normaNeedleLine_lib(benchmark::State &state)
{
    for (auto _ : state) {
        int needle = 250, line = 8;
        benchmark::DoNotOptimize(needle);
        QNodrixCom::normaNeedleLine(needle, line, 100, 1, 10);
        benchmark::DoNotOptimize(needle);
        benchmark::DoNotOptimize(line);
    }
}
BENCHMARK(geometry_normaNeedleLine_lib)->Name("normaNeedleLine/lib");

static void geometry_normaNeedleLine_raw(benchmark::State &state)
{
    for (auto _ : state) {
        int needle = 250, line = 8;
        benchmark::DoNotOptimize(needle);
        const int folds = needle / 100;
        needle %= 100;
        line += folds;
        if (line >= 10) {
            line = 9;
            needle = 99;
        }
        benchmark::DoNotOptimize(needle);
        benchmark::DoNotOptimize(line);
    }
}
BENCHMARK(geometry_normaNeedleLine_raw)->Name("normaNeedleLine/raw");

// A needle far beyond the cylinder: the fold is computed, not iterated.
static void geometry_normaNeedleLineFar_lib(benchmark::State &state)
{
    for (auto _ : state) {
        int needle = 2147483647, line = 0;
        benchmark::DoNotOptimize(needle);
        QNodrixCom::normaNeedleLine(needle, line, 1, 1, 0);
        benchmark::DoNotOptimize(line);
    }
}
BENCHMARK(geometry_normaNeedleLineFar_lib)->Name("normaNeedleLineFar/lib");

static void geometry_normaNeedleLineFar_raw(benchmark::State &state)
{
    for (auto _ : state) {
        int needle = 2147483647, line = 0;
        benchmark::DoNotOptimize(needle);
        line += needle;
        needle = 0;
        benchmark::DoNotOptimize(line);
    }
}
BENCHMARK(geometry_normaNeedleLineFar_raw)->Name("normaNeedleLineFar/raw");

NDXCOM_BENCHMARK_MAIN();
