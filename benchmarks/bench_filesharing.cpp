#include "benchsupport.h"

#include <QFileSharing>
#include <private/qfilesharing_p.h>

#include <QtCore/QDateTime>

// One open/close cycle of a project with the whole lock-file protocol (the
// test seam turns it on), against what a lock cannot do without: creating a
// small file exclusively, writing a record, reading it back and deleting it.
// The library also refreshes its identity at every open (host and user name,
// process id, the settings' "Environment" group), tests for a stale lock
// first and reads the lock again before deleting it at close.

namespace {

struct SharingFixture
{
    QTemporaryDir dir {QDir::tempPath() + QStringLiteral("/ndxcom-bench-sharing-XXXXXX")};
    QString project;
    QString lock;
    SharingFixture()
    {
        benchRequire(dir.isValid(), "temporary folder");
        project = dir.filePath(QStringLiteral("Calza.ndx"));
        lock = dir.filePath(QStringLiteral("Calza.~lock"));
        QFile file(project);
        benchRequire(file.open(QIODevice::WriteOnly), "project file");
    }
};

SharingFixture &sharingFixture()
{
    static SharingFixture fixture;
    return fixture;
}

} // namespace

static void sharing_lib(benchmark::State &state)
{
    const SharingFixture &fixture = sharingFixture();
    resetStore(everydayStore());
    QFileSharing::setSharingControlEnabled(true);
    QFileSharing sharing(nullptr);
    for (auto _ : state) {
        benchmark::DoNotOptimize(sharing.open(fixture.project));
        sharing.close();
    }
    QFileSharing::setSharingControlEnabled(false);
    benchRequire(!QFile::exists(fixture.lock), "the lock is gone after close");
}
BENCHMARK(sharing_lib)->Name("QFileSharing/lib");

static void sharing_raw(benchmark::State &state)
{
    const SharingFixture &fixture = sharingFixture();
    resetStore(everydayStore());
    const QString computer = NdxComFileSharing::localComputerName();
    const QString user = NdxComFileSharing::localUserName();
    const qint64 pid = QCoreApplication::applicationPid();
    for (auto _ : state) {
        QFile lock(fixture.lock);
        benchRequire(lock.open(QIODevice::WriteOnly | QIODevice::NewOnly), "creating the lock");
        const QByteArray record = NdxComFileSharing::writeLockRecord(
            pid, QDateTime::currentMSecsSinceEpoch(), computer, user);
        lock.write(record);
        lock.close();
        benchmark::DoNotOptimize(lock.open(QIODevice::ReadOnly));
        benchmark::DoNotOptimize(lock.readAll());
        lock.close();
        benchmark::DoNotOptimize(lock.remove());
    }
}
BENCHMARK(sharing_raw)->Name("QFileSharing/raw");

NDXCOM_BENCHMARK_MAIN();
