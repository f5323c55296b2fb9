#ifndef NDXCOM_BENCHSUPPORT_H
#define NDXCOM_BENCHSUPPORT_H

#include <benchmark/benchmark.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

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

// main() for a benchmark program that needs an application object.
#define NDXCOM_BENCHMARK_MAIN()                                                                    \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        qputenv("QT_QPA_PLATFORM", "offscreen");                                                   \
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
