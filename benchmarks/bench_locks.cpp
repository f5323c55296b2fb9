#include "benchsupport.h"

#include "lockscan.h"

#include <QtCore/QDirIterator>

#include <algorithm>
#include <map>
#include <memory>

// `ndxcom locks` over a projects tree: the walk, the reading of every lock,
// the check of the project beside it and the assessment of its holder,
// sorted by project, against a plain QDirIterator walk of the same tree that
// only looks at each entry's name. The tree is a shared projects folder
// filed by gauge and diameter: 100 folders of n/100 projects, one project in
// five locked (most by other computers, some left over on this one, some
// without their project any more).

namespace {

struct LocksFixture
{
    QTemporaryDir dir {QDir::tempPath() + QStringLiteral("/ndxcom-bench-locks-XXXXXX")};

    explicit LocksFixture(int projects)
    {
        benchRequire(dir.isValid(), "temporary folder");
        const QString computer = NdxComFileSharing::localComputerName();
        const int perFolder = projects / 100;
        for (int gauge = 0; gauge < 10; ++gauge) {
            for (int diameter = 0; diameter < 10; ++diameter) {
                const QString folder = dir.filePath(
                    QStringLiteral("%1-GG/%2-DIAM").arg(gauge + 10).arg(diameter + 10));
                benchRequire(QDir().mkpath(folder), "a gauge and diameter folder");
                QStringList names;
                for (int i = 0; i < perFolder; ++i)
                    names << QStringLiteral("Calza%1.ndx").arg(i, 5, 10, QLatin1Char('0'));
                createEntries(folder, names);
                for (int i = 0; i < perFolder; i += 5) {
                    const QString lock
                        = folder + QStringLiteral("/Calza%1.~lock").arg(i, 5, 10, QLatin1Char('0'));
                    // One in ten of the locks is this computer's, its process
                    // gone; one in ten has lost its project.
                    const bool here = (i / 5) % 10 == 3;
                    const QByteArray record = NdxComFileSharing::writeLockRecord(
                        here ? 0x7ffffff0 : 4000 + i, 1718100000000LL + i,
                        here ? computer : QStringLiteral("PC-UFFICIO-%1").arg(i % 7),
                        QStringLiteral("utente%1").arg(i % 13));
                    QFile file(lock);
                    benchRequire(file.open(QIODevice::WriteOnly | QIODevice::NewOnly)
                                     && file.write(record) == record.size(),
                                 "a lock file");
                    if ((i / 5) % 10 == 7)
                        benchRequire(QFile::remove(lock.chopped(6) + QStringLiteral(".ndx")),
                                     "removing a project");
                }
            }
        }
    }
};

LocksFixture &locksFixture(int projects)
{
    static std::map<int, std::unique_ptr<LocksFixture>> fixtures;
    auto &fixture = fixtures[projects];
    if (!fixture)
        fixture.reset(new LocksFixture(projects));
    return *fixture;
}

} // namespace

static void locks_lib(benchmark::State &state)
{
    const LocksFixture &fixture = locksFixture(int(state.range(0)));
    const LockScan::Identity identity = LockScan::Identity::local();
    const int locks = int(state.range(0)) / 5;
    for (auto _ : state) {
        const LockScan::Result result = LockScan::scan(fixture.dir.path(), LockScan::Options());
        std::vector<std::pair<QString, LockScan::Assessed>> rows;
        rows.reserve(result.entries.size());
        for (const LockScan::Entry &entry : result.entries)
            rows.emplace_back(entry.project, LockScan::assess(entry, identity));
        std::sort(rows.begin(), rows.end(),
                  [](const auto &a, const auto &b) { return a.first < b.first; });
        benchRequire(int(rows.size()) == locks, "every lock listed");
        benchmark::DoNotOptimize(rows.data());
    }
}
BENCHMARK(locks_lib)->Name("LockList/lib")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

static void locks_raw(benchmark::State &state)
{
    const LocksFixture &fixture = locksFixture(int(state.range(0)));
    for (auto _ : state) {
        QDirIterator it(fixture.dir.path(),
                        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                        QDirIterator::Subdirectories);
        qsizetype names = 0;
        while (it.hasNext()) {
            it.next();
            names += it.fileName().size();
        }
        benchmark::DoNotOptimize(names);
    }
}
BENCHMARK(locks_raw)->Name("LockList/raw")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

NDXCOM_BENCHMARK_MAIN();
