#include "benchsupport.h"

#include <QNodrixRegistry>

// An environment flag against what it cannot do without: a default-
// constructed application store, its "Environment" group and one value. The
// store holds an everyday workstation's values, written once before timing.

static void settingsFixture()
{
    resetStore(everydayStore());
}

static void environment_lib(benchmark::State &state)
{
    settingsFixture();
    for (auto _ : state)
        benchmark::DoNotOptimize(QNodrixRegistry::environmentEnblDebugInfo());
}
BENCHMARK(environment_lib)->Name("environmentEnblDebugInfo/lib");

static void environment_raw(benchmark::State &state)
{
    settingsFixture();
    for (auto _ : state) {
        QSettings store;
        store.beginGroup(QStringLiteral("Environment"));
        benchmark::DoNotOptimize(store.value(QStringLiteral("EnblDebugInfo"), false).toBool());
        store.endGroup();
    }
}
BENCHMARK(environment_raw)->Name("environmentEnblDebugInfo/raw");

NDXCOM_BENCHMARK_MAIN();
