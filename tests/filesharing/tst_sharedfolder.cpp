// The lock protocol on a real network file system: one server folder mounted
// twice, as two workstations reach one shared folder. Run by sharedfolder.sh,
// which starts a private sshd on 127.0.0.1 and mounts its folder with sshfs
// and hands the paths over in the environment:
//
//   NDXCOM_SHARED_SERVER   the folder itself, as the server holds it (truth)
//   NDXCOM_SHARED_A        workstation A's mount of it
//   NDXCOM_SHARED_B        workstation B's mount of it
//   NDXCOM_SHARED_CACHE    "no" (sshfs -o cache=no) or "default" (sshfs's own
//                          caching)
//
// The processes of workstation A are lockholder processes with host names of
// their own; workstation B is this process (its real host name) and, in the
// race, lockholder processes as well. With cache=no every step must behave as
// on one local disk. With the default caching a released project stays busy
// on the other mount until the cache expires; that time is measured and
// reported, and no round may ever end with two read-write holders.

#include <QFileSharing>
#include <private/qfilesharing_p.h>

#include "dialogdriver.h"
#include "lockholderclient.h"
#include "locktestutil.h"
#include "ndxcomtest.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <memory>
#include <vector>

#include <unistd.h>

using namespace NdxComTest;
using namespace LockTest;

namespace {

const Action Si = Action::click(QStringLiteral("Si"));
const Action No = Action::click(QStringLiteral("No"));

} // namespace

class tst_SharedFolder : public QObject
{
    Q_OBJECT

private:
    QString m_server, m_a, m_b;
    bool m_cached = false;
    QString m_label;
    QString m_user;
    int m_folder = 0;
    qint64 m_busyMs = -1; // how long a released project looked busy on the other mount
    qint64 m_listedMs = -1; // how long its lock file stayed in the other mount's listing

    // A fresh folder for one test, made through mount A; returns its name
    // relative to the shared folder.
    QString freshFolder()
    {
        const QString name
            = QStringLiteral("t%1-%2").arg(QCoreApplication::applicationPid()).arg(++m_folder);
        if (!QDir(m_a).mkdir(name))
            return QString();
        return name;
    }

    QString onServer(const QString &relative) const
    {
        return m_server + QLatin1Char('/') + relative;
    }
    QString onA(const QString &relative) const { return m_a + QLatin1Char('/') + relative; }
    QString onB(const QString &relative) const { return m_b + QLatin1Char('/') + relative; }

    // Polls this process's TstFileLocked through mount B until it answers
    // `wanted`; returns the milliseconds it took, -1 when it never did
    // within `limitMs`.
    qint64 waitForAnswer(QFileSharing &sharing, const QString &project, int wanted, int limitMs)
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() <= limitMs) {
            if (sharing.TstFileLocked(project) == wanted)
                return timer.elapsed();
            QThread::msleep(50);
        }
        return -1;
    }

private slots:
    void initTestCase()
    {
        const QByteArray cache = qgetenv("NDXCOM_SHARED_CACHE");
        m_server = QString::fromLocal8Bit(qgetenv("NDXCOM_SHARED_SERVER"));
        m_a = QString::fromLocal8Bit(qgetenv("NDXCOM_SHARED_A"));
        m_b = QString::fromLocal8Bit(qgetenv("NDXCOM_SHARED_B"));
        if (m_server.isEmpty() || m_a.isEmpty() || m_b.isEmpty() || cache.isEmpty())
            QSKIP("run by sharedfolder.sh, which mounts the shared folder");
        QVERIFY(cache == "no" || cache == "default");
        m_cached = cache == "default";
        m_label = m_cached ? QStringLiteral("shared folder (sshfs, default cache)")
                           : QStringLiteral("shared folder (sshfs, cache=no)");
        // Other host names need a UTS namespace: the script runs this as root.
        QCOMPARE(geteuid(), uid_t(0));
        QVERIFY(QFile::exists(QStringLiteral(LOCKHOLDER)));
        ndxcomSetSharingControl(true);
        m_user = loginName();
        QVERIFY(!m_user.isEmpty());
    }

    // A lock written through one mount reads back byte for byte through the
    // other and on the server.
    void lockBytesAcrossMounts()
    {
        const QString folder = freshFolder();
        QVERIFY(!folder.isEmpty());
        const QString project = folder + QStringLiteral("/Calza.ndx");
        const QString lock = folder + QStringLiteral("/Calza.~lock");
        Holder a;
        const QString ready = a.start(QStringLiteral("officina-a"));
        QCOMPARE(ready, QStringLiteral("ready officina-a %1").arg(a.pid));
        QCOMPARE(a.ask(QStringLiteral("open ") + onA(project)), QStringLiteral("open rw 0"));
        const QByteArray onServerBytes = readFile(onServer(lock));
        const qint64 time = NdxComFileSharing::readLockRecord(onServerBytes).time;
        const QByteArray expected = record(a.pid, time, QStringLiteral("officina-a"), m_user);
        QCOMPARE(onServerBytes, expected);
        QCOMPARE(readFile(onB(lock)), expected);
        QCOMPARE(readFile(onA(lock)), expected);
        QCOMPARE(a.ask(QStringLiteral("close")), QStringLiteral("closed"));
        QVERIFY(!QFile::exists(onServer(lock)));
        QCOMPARE(a.finish(), 0);
    }

    // Workstation A holds the project: workstation B gets 2, the read-only
    // question naming A, the unlock question; when A closes, B finds the
    // project free (at once without a cache; after the cache expires with
    // one) and takes it read-write, and then A gets 2.
    void openAndCloseAcrossMounts()
    {
        const QString folder = freshFolder();
        QVERIFY(!folder.isEmpty());
        const QString project = folder + QStringLiteral("/Calza.ndx");
        const QString lock = folder + QStringLiteral("/Calza.~lock");
        Holder a;
        const QString ready = a.start(QStringLiteral("officina-a"));
        QCOMPARE(ready, QStringLiteral("ready officina-a %1").arg(a.pid));
        QCOMPARE(a.ask(QStringLiteral("open ") + onA(project)), QStringLiteral("open rw 0"));

        QFileSharing b;
        QCOMPARE(b.TstFileLocked(onB(project)), 2);
        bool ok = true;
        int boxes = 0;
        BoxRecord box = driveOne([&] { ok = b.open(onB(project)); }, No, &boxes);
        QCOMPARE(boxes, 1);
        QCOMPARE(box.text, OpenQuestion.arg(QStringLiteral("officina-a"), m_user));
        QVERIFY(!ok);
        box = driveOne([&] { ok = b.open(onB(project)); }, Si, &boxes);
        QCOMPARE(boxes, 1);
        QCOMPARE(box.text, OpenQuestion.arg(QStringLiteral("officina-a"), m_user));
        QVERIFY(ok);
        QVERIFY(b.isOpenRdOnly());
        box = driveOne([&] { ok = b.unlock(onB(project)); }, No, &boxes);
        QCOMPARE(boxes, 1);
        QCOMPARE(box.text, UnlockQuestion.arg(QStringLiteral("officina-a"), m_user));
        QVERIFY(!ok);
        b.close(); // read-only: nothing of B's to release
        QVERIFY(QFile::exists(onServer(lock)));

        QCOMPARE(a.ask(QStringLiteral("close")), QStringLiteral("closed"));
        QVERIFY(!QFile::exists(onServer(lock)));
        QFileSharing b2;
        if (!m_cached) {
            QCOMPARE(b2.TstFileLocked(onB(project)), 0);
        } else {
            // What a user sees: the project looks busy until the cache
            // expires (sshfs's default is 20 s); then it is free.
            m_busyMs = waitForAnswer(b2, onB(project), 0, 60000);
            QVERIFY2(m_busyMs >= 0, "the released project never became free on the other mount");
        }
        DialogDriver driver;
        QVERIFY(driver.run([&] { ok = b2.open(onB(project)); }).isEmpty());
        QVERIFY(ok);
        QVERIFY(!b2.isOpenRdOnly());
        QCOMPARE(NdxComFileSharing::readLockRecord(readFile(onServer(lock))).pid,
                 QCoreApplication::applicationPid());
        if (!m_cached)
            QCOMPARE(a.ask(QStringLiteral("test ") + onA(project)), QStringLiteral("test 2"));
        b2.close();
        QVERIFY(!QFile::exists(onServer(lock)));
        QCOMPARE(a.finish(), 0);
    }

    // With sshfs's own caching, what a plain look at the folder shows (a file
    // dialog's listing and existence test, without the library): the lock
    // file of a released project stays there until the cache expires.
    void listingAfterRelease()
    {
        if (!m_cached)
            QSKIP("measured with sshfs's default caching only");
        const QString folder = freshFolder();
        QVERIFY(!folder.isEmpty());
        const QString project = folder + QStringLiteral("/Calza.ndx");
        const QString lock = folder + QStringLiteral("/Calza.~lock");
        Holder a;
        const QString ready = a.start(QStringLiteral("officina-a"));
        QCOMPARE(ready, QStringLiteral("ready officina-a %1").arg(a.pid));
        QCOMPARE(a.ask(QStringLiteral("open ") + onA(project)), QStringLiteral("open rw 0"));
        QVERIFY(QDir(onB(folder)).entryList(QDir::Files).contains(QStringLiteral("Calza.~lock")));
        QCOMPARE(a.ask(QStringLiteral("close")), QStringLiteral("closed"));
        QVERIFY(!QFile::exists(onServer(lock)));
        QElapsedTimer timer;
        timer.start();
        while (QFileInfo::exists(onB(lock)) && timer.elapsed() < 60000)
            QThread::msleep(50);
        m_listedMs = timer.elapsed();
        QVERIFY(!QFileInfo::exists(onB(lock)));
        QCOMPARE(a.finish(), 0);
    }

    // TstFileLocked and unlock of one workstation act on the other's lock.
    void unlockAcrossMounts()
    {
        const QString folder = freshFolder();
        QVERIFY(!folder.isEmpty());
        const QString project = folder + QStringLiteral("/Maglia.ndx");
        const QString lock = folder + QStringLiteral("/Maglia.~lock");
        Holder a;
        const QString ready = a.start(QStringLiteral("officina-a"));
        QCOMPARE(ready, QStringLiteral("ready officina-a %1").arg(a.pid));
        QCOMPARE(a.ask(QStringLiteral("open ") + onA(project)), QStringLiteral("open rw 0"));
        QCOMPARE(a.ask(QStringLiteral("test ") + onA(project)), QStringLiteral("test 1"));

        QFileSharing b;
        QCOMPARE(b.TstFileLocked(onB(project)), 2);
        bool ok = false;
        int boxes = 0;
        const BoxRecord box = driveOne([&] { ok = b.unlock(onB(project)); }, Si, &boxes);
        QCOMPARE(boxes, 1);
        QCOMPARE(box.text, UnlockQuestion.arg(QStringLiteral("officina-a"), m_user));
        QVERIFY(ok);
        QVERIFY(!QFile::exists(onServer(lock)));
        if (!m_cached) {
            QCOMPARE(b.TstFileLocked(onB(project)), 0);
            QCOMPARE(a.ask(QStringLiteral("test ") + onA(project)), QStringLiteral("test 0"));
        }
        // A's close finds no lock of its own and deletes nothing.
        QCOMPARE(a.ask(QStringLiteral("close")), QStringLiteral("closed"));
        QCOMPARE(a.finish(), 0);

        // A leftover of this user and computer from another process, written
        // through the other mount: TstFileLocked removes it and answers 0.
        const QString left = folder + QStringLiteral("/Avanzo.ndx");
        Holder same;
        QVERIFY(same.start().startsWith(QLatin1String("ready ")));
        QCOMPARE(same.ask(QStringLiteral("open ") + onA(left)), QStringLiteral("open rw 0"));
        QFileSharing b2;
        QCOMPARE(b2.TstFileLocked(onB(left)), 0);
        QVERIFY(!QFile::exists(onServer(NdxComFileSharing::lockPath(left))));
        QCOMPARE(same.finish(), 0);
    }

    // Four workstations, two on each mount, open one free project at the
    // same instant, round after round: never two read-write holders; without
    // a cache every round has one.
    void race()
    {
        const QString folder = freshFolder();
        QVERIFY(!folder.isEmpty());
        const int rounds = 200;
        struct Racer
        {
            std::unique_ptr<Holder> holder;
            QString mount;
        };
        std::vector<Racer> racers;
        const QString names[] = {QStringLiteral("gara-a1"), QStringLiteral("gara-a2"),
                                 QStringLiteral("gara-b1"), QStringLiteral("gara-b2")};
        for (int i = 0; i < 4; ++i) {
            Racer r {std::unique_ptr<Holder>(new Holder), i < 2 ? m_a : m_b};
            const QString ready = r.holder->start(names[i]);
            QCOMPARE(ready, QStringLiteral("ready %1 %2").arg(names[i]).arg(r.holder->pid));
            racers.push_back(std::move(r));
        }

        QElapsedTimer timer;
        timer.start();
        int twoHolders = 0, noHolder = 0, ran = 0;
        for (int round = 0; round < rounds; ++round) {
            const QString project = folder + QStringLiteral("/Giro%1.ndx").arg(round);
            const qint64 deadline = monotonicNs() + 20 * 1000000;
            for (auto &r : racers)
                r.holder->send(QStringLiteral("open %1/%2 %3").arg(r.mount, project).arg(deadline));
            int readWrite = 0;
            for (auto &r : racers) {
                const QString answer = r.holder->readLine();
                QVERIFY2(answer.startsWith(QLatin1String("open ")), qPrintable(answer));
                if (answer == QLatin1String("open rw 0"))
                    ++readWrite;
                // "open no 0" lost the exclusive creation or found a lock it
                // could not read; "open no 1" declined the read-only question.
                else if (answer != QLatin1String("open no 0")
                         && answer != QLatin1String("open no 1"))
                    QFAIL(qPrintable(QStringLiteral("round %1: %2").arg(round).arg(answer)));
            }
            ++ran;
            if (readWrite > 1)
                ++twoHolders;
            if (readWrite == 0)
                ++noHolder;
            for (auto &r : racers)
                r.holder->send(QStringLiteral("close"));
            for (auto &r : racers)
                QCOMPARE(r.holder->readLine(), QStringLiteral("closed"));
            QVERIFY2(!QFile::exists(onServer(NdxComFileSharing::lockPath(project))),
                     qPrintable(QStringLiteral("round %1 left its lock").arg(round)));
        }
        const qint64 ms = timer.elapsed();
        if (m_cached) {
            qInfo("ndxcom-figure: %s: race rounds: %d, rounds with two read-write holders: %d, "
                  "rounds without a holder: %d, released project busy on the other mount ms: "
                  "%lld, lock file listed after release ms: %lld",
                  qPrintable(m_label), ran, twoHolders, noHolder, static_cast<long long>(m_busyMs),
                  static_cast<long long>(m_listedMs));
        } else {
            qInfo("ndxcom-figure: %s: race rounds: %d, rounds with two read-write holders: %d, "
                  "rounds without a holder: %d",
                  qPrintable(m_label), ran, twoHolders, noHolder);
        }
        qInfo("%s: 4 processes on 2 mounts, %lld ms", qPrintable(m_label),
              static_cast<long long>(ms));
        QCOMPARE(twoHolders, 0);
        if (!m_cached)
            QCOMPARE(noHolder, 0);
        for (auto &r : racers)
            QCOMPARE(r.holder->finish(), 0);
    }
};

NDXCOM_TEST_MAIN(tst_SharedFolder)
#include "tst_sharedfolder.moc"
