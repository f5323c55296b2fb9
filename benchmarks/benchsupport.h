#ifndef NDXCOM_BENCHSUPPORT_H
#define NDXCOM_BENCHSUPPORT_H

#include <benchmark/benchmark.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <cstdlib>

// Benchmarks run against a private settings store and home, never the
// user's: the same isolation as the tests.
inline QTemporaryDir &benchRoot()
{
    static QTemporaryDir dir(QDir::tempPath() + QStringLiteral("/ndxcom-bench-XXXXXX"));
    return dir;
}

inline void isolateBenchmark()
{
    const QString root = benchRoot().path();
    QCoreApplication::setOrganizationName(QStringLiteral("NdxComBench"));
    QCoreApplication::setApplicationName(QStringLiteral("bench"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       root + QStringLiteral("/user"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope,
                       root + QStringLiteral("/system"));
}

// A fixture that cannot be built makes the whole run worthless: stop loudly
// rather than time an empty loop.
inline void benchRequire(bool ok, const char *what)
{
    if (!ok) {
        std::fprintf(stderr, "benchmark fixture failed: %s\n", what);
        std::exit(2);
    }
}

// Replaces the whole application store with the given values, written to the
// file before the timed loop starts, so lib and raw read the same file.
using BenchValues = QList<QPair<QString, QVariant>>;
inline void resetStore(const BenchValues &values)
{
    QSettings store;
    store.clear();
    for (const auto &value : values)
        store.setValue(value.first, value.second);
    store.sync();
    benchRequire(store.status() == QSettings::NoError, "writing the settings store");
}

// The values an application store holds besides the one a case reads: a few
// groups of every kind, as a workstation's file looks after some use.
inline BenchValues everydayStore()
{
    BenchValues values;
    values << qMakePair(QStringLiteral("Settings/LastMachine"), QVariant(QStringLiteral("M1")));
    values << qMakePair(QStringLiteral("Settings/Language"), QVariant(0));
    values << qMakePair(QStringLiteral("Settings/GridColor"), QVariant(3));
    values << qMakePair(QStringLiteral("SettingsRecent/ShowOverview"), QVariant(true));
    values << qMakePair(QStringLiteral("Environment/EnblHelpInfo"), QVariant(true));
    values << qMakePair(QStringLiteral("Environment/EnblDebugInfo"), QVariant(true));
    values << qMakePair(QStringLiteral("Environment/StitchZoomLevel"), QVariant(2));
    for (const QString &machine : {QStringLiteral("M1"), QStringLiteral("M2")}) {
        const QString group = QStringLiteral("Machines/") + machine;
        values << qMakePair(group + QStringLiteral("/Settings/MachineName"), QVariant(machine));
        values << qMakePair(group + QStringLiteral("/Settings/MachinePath"),
                            QVariant(QStringLiteral("/opt/nodrix/") + machine));
        values << qMakePair(group + QStringLiteral("/Settings/ProjectsPath"),
                            QVariant(QStringLiteral("/srv/progetti/") + machine));
        values << qMakePair(group + QStringLiteral("/SettingsRecent/LastGauge"),
                            QVariant(QStringLiteral("14")));
        values << qMakePair(group + QStringLiteral("/MainWindow/pos"), QVariant(QPoint(10, 20)));
        values << qMakePair(group + QStringLiteral("/MainWindow/size"), QVariant(QSize(800, 600)));
    }
    return values;
}

// Creates empty files (or folders) with the given names in `dir`.
inline void createEntries(const QString &dir, const QStringList &names, bool folders = false)
{
    QDir d(dir);
    for (const QString &name : names) {
        if (folders) {
            benchRequire(d.mkdir(name), "creating a folder");
        } else {
            QFile f(d.filePath(name));
            benchRequire(f.open(QIODevice::WriteOnly | QIODevice::NewOnly), "creating a file");
        }
    }
}

// The sizes of the sized cases, for ->Apply(benchSizes). --quick drops none
// of them: scripts/bench shortens the minimum time instead, so the table
// always shows the growth.
inline void benchSizes(benchmark::internal::Benchmark *b)
{
    b->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
}

// main() for a benchmark program that needs an application object.
#define NDXCOM_BENCHMARK_MAIN()                                                                    \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        qputenv("QT_QPA_PLATFORM", "offscreen");                                                   \
        if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))                                        \
            qputenv("XDG_RUNTIME_DIR", QFile::encodeName(benchRoot().path()));                     \
        QApplication app(argc, argv);                                                              \
        isolateBenchmark();                                                                        \
        benchmark::Initialize(&argc, argv);                                                        \
        if (benchmark::ReportUnrecognizedArguments(argc, argv))                                    \
            return 1;                                                                              \
        benchmark::RunSpecifiedBenchmarks();                                                       \
        benchmark::Shutdown();                                                                     \
        return 0;                                                                                  \
    }

#endif // NDXCOM_BENCHSUPPORT_H
