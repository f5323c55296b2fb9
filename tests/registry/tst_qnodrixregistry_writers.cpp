// Two processes writing one store at once: QSettings's lock keeps them from
// losing each other's keys, and a reader never sees a half-written file.
#include <QNodrixRegistry>

#include "ndxcomtest.h"
#include "storetest.h"

#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>
#include <QtCore/QProcess>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <memory>

using namespace StoreTest;

namespace {

QStringList writerArguments()
{
    return {QStringLiteral("--user-dir"),     userDir(),
            QStringLiteral("--system-dir"),   systemDir(),
            QStringLiteral("--organization"), QCoreApplication::organizationName(),
            QStringLiteral("--application"),  QCoreApplication::applicationName()};
}

std::unique_ptr<QProcess> startWriter(const QStringList &mode)
{
    std::unique_ptr<QProcess> p(new QProcess);
    p->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    p->start(QStringLiteral(NDXCOM_SETTINGS_WRITER), writerArguments() + mode);
    return p;
}

// waitForFinished() answers false for a process that has already ended, so
// only a running one is waited for.
bool finishedWell(QProcess &p, int msecs = 240000)
{
    if (p.state() != QProcess::NotRunning && !p.waitForFinished(msecs))
        return false;
    if (p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0) {
        qWarning("writer ended with status %d, code %d", int(p.exitStatus()), p.exitCode());
        return false;
    }
    return true;
}

} // namespace

class tst_QNodrixRegistry_Writers : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void writerWaitsForTheLock();
    void twoProcessesWriteOneStore();
    void libraryAndOtherProcessWriteOneStore();
};

void tst_QNodrixRegistry_Writers::init()
{
#ifdef Q_OS_WIN
    QSKIP("the Windows store is the registry, not a file: no lock file guards its writes");
#endif
    freshStores();
}

void tst_QNodrixRegistry_Writers::writerWaitsForTheLock()
{
    // QSettings takes "<file>.lock" (a QLockFile) around every write: while
    // another holder has it, a writer waits, and it writes once the lock is
    // free. This is what keeps two processes from losing each other's keys.
    {
        QNodrixRegistry registry;
        registry.setGridColor(5);
    }
    const QString file = userStoreFile();
    QVERIFY(QFileInfo(file).isFile());
    QLockFile lock(file + QStringLiteral(".lock"));
    QVERIFY(lock.tryLock(10000));

    auto writer = startWriter(
        {QStringLiteral("--set"), QStringLiteral("Settings/Probe"), QStringLiteral("written")});
    QVERIFY(writer->waitForStarted(30000));
    QVERIFY(!writer->waitForFinished(1500));
    QCOMPARE(writer->state(), QProcess::Running);
    QVERIFY(!DiskStore(file).contains(QStringLiteral("Settings/Probe")));

    lock.unlock();
    QVERIFY(finishedWell(*writer, 60000));
    const DiskStore disk(file);
    QCOMPARE(disk.value(QStringLiteral("Settings/Probe")).toString(), QStringLiteral("written"));
    QCOMPARE(disk.value(QStringLiteral("Settings/GridColor")).toString(), QStringLiteral("5"));
    QVERIFY(!QFileInfo::exists(file + QStringLiteral(".lock")));
}

void tst_QNodrixRegistry_Writers::twoProcessesWriteOneStore()
{
    constexpr int keys = 500;
    {
        QNodrixRegistry registry;
        registry.setLastMachine(QStringLiteral("M"));
        registry.setMachinePath(QStringLiteral("/opt/m"));
    }
    auto a = startWriter({QStringLiteral("--many"), QStringLiteral("A"), QString::number(keys),
                          QStringLiteral("--expect-machine-path"), QStringLiteral("/opt/m")});
    auto b = startWriter({QStringLiteral("--many"), QStringLiteral("B"), QString::number(keys),
                          QStringLiteral("--expect-machine-path"), QStringLiteral("/opt/m")});
    QVERIFY(a->waitForStarted(30000));
    QVERIFY(b->waitForStarted(30000));

    // Meanwhile this process reads: it never sees a half-written file.
    QNodrixRegistry reader;
    int reads = 0;
    while (a->state() != QProcess::NotRunning || b->state() != QProcess::NotRunning) {
        QCOMPARE(reader.getMachinePath(), QStringLiteral("/opt/m"));
        QCOMPARE(QNodrixRegistry::lastMachine(), QStringLiteral("M"));
        ++reads;
        a->waitForFinished(5);
        b->waitForFinished(5);
    }
    QVERIFY(finishedWell(*a));
    QVERIFY(finishedWell(*b));
    QVERIFY(reads > 0);

    const DiskStore disk(userStoreFile());
    int missing = 0;
    for (const char *tag : {"A", "B"}) {
        for (int n = 0; n < keys; ++n) {
            const QString key
                = QStringLiteral("Concurrency/%1/Key%2").arg(QLatin1String(tag)).arg(n);
            if (disk.value(key).toString() != QString::number(n))
                ++missing;
        }
    }
    QCOMPARE(missing, 0);
    QCOMPARE(disk.childGroups(QStringLiteral("Concurrency")).size(), 2);
    QCOMPARE(disk.value(QStringLiteral("Machines/M/Settings/MachinePath")).toString(),
             QStringLiteral("/opt/m"));
}

void tst_QNodrixRegistry_Writers::libraryAndOtherProcessWriteOneStore()
{
    // The library's own writes (flushed one by one) and another process's
    // writes of other keys, at the same time: nobody's keys are lost.
    // QSettings sees another process's write by the file's size and time in
    // milliseconds; every write here makes the file longer, so that two
    // writes in one millisecond are told apart as well (docs/settings.md,
    // "Several applications at once").
    constexpr int keys = 300;
    constexpr int rounds = 150;
    const auto cfg
        = [](int i) { return QStringLiteral("cfg-") + QString(i + 1, QLatin1Char('c')); };
    const auto usb
        = [](int i) { return QStringLiteral("/media/") + QString(i + 1, QLatin1Char('u')); };
    QNodrixRegistry registry;
    registry.setLastMachine(QStringLiteral("M"));
    flushUserStore();
    auto other
        = startWriter({QStringLiteral("--many"), QStringLiteral("Other"), QString::number(keys)});
    QVERIFY(other->waitForStarted(30000));
    for (int i = 0; i < rounds; ++i) {
        registry.setLastCfg(cfg(i));
        QNodrixRegistry::updateUsbPath(usb(i));
        flushUserStore();
    }
    QVERIFY(finishedWell(*other));
    const DiskStore disk(userStoreFile());
    for (int n = 0; n < keys; ++n)
        QCOMPARE(disk.value(QStringLiteral("Concurrency/Other/Key%1").arg(n)).toString(),
                 QString::number(n));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/SettingsRecent/LastCfg")).toString(),
             cfg(rounds - 1));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/Settings/UsbPath")).toString(), usb(rounds - 1));
    QCOMPARE(registry.getLastCfg(), cfg(rounds - 1));
}

NDXCOM_TEST_MAIN(tst_QNodrixRegistry_Writers)
#include "tst_qnodrixregistry_writers.moc"
