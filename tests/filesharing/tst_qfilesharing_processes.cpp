// QFileSharing across real processes: a second process of the same user,
// a process that is another computer (its own UTS namespace and host name),
// and a race of several computers for one free project.

#include <QFileSharing>
#include <private/qfilesharing_p.h>

#include "dialogdriver.h"
#include "lockholderclient.h"
#include "locktestutil.h"
#include "ndxcomtest.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <ctime>
#include <memory>

#ifdef Q_OS_WIN
#include <chrono>
#else
#include <unistd.h>
#endif

using namespace NdxComTest;
using namespace LockTest;

class tst_QFileSharingProcesses : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_computer;
    QString m_user;
    QString m_whyNoNamespace; // empty when other host names can be had

    QString path(const QString &name) const { return m_dir->filePath(name); }

    void requireNamespaces()
    {
        if (!m_whyNoNamespace.isEmpty())
            QSKIP(qPrintable(m_whyNoNamespace));
    }

private slots:
    void initTestCase()
    {
        ndxcomSetSharingControl(true);
        m_computer = hostShortName();
        m_user = loginName();
        QVERIFY(QFile::exists(QStringLiteral(LOCKHOLDER)));

#ifdef Q_OS_WIN
        // The computer name is the machine's, read from the system by every
        // process: another computer needs another machine.
        m_whyNoNamespace = QStringLiteral("Windows gives no process a computer name of its own");
#else
        if (geteuid() != 0) {
            m_whyNoNamespace = QStringLiteral("another host name needs root (a UTS namespace)");
        } else {
            Holder probe;
            const QString first = probe.start(QStringLiteral("probe-host"));
            if (first != QStringLiteral("ready probe-host %1").arg(probe.pid) || probe.pid <= 0)
                m_whyNoNamespace
                    = QStringLiteral("no UTS namespace for another host name: %1").arg(first);
        }
#endif
    }

    void init()
    {
        m_dir.reset(new QTemporaryDir);
        QVERIFY(m_dir->isValid());
    }

    // A second process of the same user on the same computer treats the
    // first one's lock as a leftover: it removes it and takes the project.
    void sameUserOtherProcess()
    {
        const QString project = path(QStringLiteral("Calza.ndx"));
        const QString lock = path(QStringLiteral("Calza.~lock"));
        Holder first;
        QVERIFY(first.start().startsWith(QLatin1String("ready ")));
        QVERIFY(first.pid > 0 && first.pid != QCoreApplication::applicationPid());
        QCOMPARE(first.ask(QStringLiteral("open ") + project), QStringLiteral("open rw 0"));
        QCOMPARE(first.ask(QStringLiteral("test ") + project), QStringLiteral("test 1"));
        const QByteArray held = readFile(lock);
        QCOMPARE(
            held,
            record(first.pid, NdxComFileSharing::readLockRecord(held).time, m_computer, m_user));

        // TstFileLocked alone: 0, and the lock is gone.
        QFileSharing second;
        QCOMPARE(second.TstFileLocked(project), 0);
        QVERIFY(!QFile::exists(lock));
        QCOMPARE(first.ask(QStringLiteral("test ") + project), QStringLiteral("test 0"));

        // open: the first process's lock goes, without a question.
        QCOMPARE(first.ask(QStringLiteral("open ") + project), QStringLiteral("open rw 0"));
        DialogDriver driver;
        bool ok = false;
        QVERIFY(driver.run([&] { ok = second.open(project); }).isEmpty());
        QVERIFY(ok);
        QVERIFY(!second.isOpenRdOnly());
        QCOMPARE(readFile(lock).left(8), int64le(QCoreApplication::applicationPid()));

        // The first process sees the lock as a leftover of its own user and
        // removes it in turn; its close leaves a lock that is not its own.
        QCOMPARE(first.ask(QStringLiteral("close")), QStringLiteral("closed"));
        QVERIFY(QFile::exists(lock));
        second.close();
        QVERIFY(!QFile::exists(lock));
        QCOMPARE(first.finish(), 0);
    }

    // Another computer holds the project: 2, the read-only question naming
    // that computer, the warning on saveAs, the unlock question.
    void otherComputer()
    {
        requireNamespaces();
        const QString project = path(QStringLiteral("Calza.ndx"));
        const QString lock = path(QStringLiteral("Calza.~lock"));
        Holder other;
        const QString ready = other.start(QStringLiteral("officina-2"));
        QCOMPARE(ready, QStringLiteral("ready officina-2 %1").arg(other.pid));
        QCOMPARE(other.ask(QStringLiteral("open ") + project), QStringLiteral("open rw 0"));
        const QByteArray held = readFile(lock);
        QCOMPARE(held,
                 record(other.pid, NdxComFileSharing::readLockRecord(held).time,
                        QStringLiteral("officina-2"), m_user));

        QFileSharing here;
        QCOMPARE(here.TstFileLocked(project), 2);
        QCOMPARE(readFile(lock), held);

        bool ok = true;
        int boxes = 0;
        BoxRecord box = driveOne([&] { ok = here.open(project); },
                                 Action::click(QStringLiteral("No")), &boxes);
        QCOMPARE(boxes, 1);
        QCOMPARE(box.icon, QMessageBox::Question);
        QCOMPARE(box.title, QStringLiteral("Nodrix"));
        QCOMPARE(box.text, OpenQuestion.arg(QStringLiteral("officina-2"), m_user));
        QVERIFY(!ok);

        box = driveOne([&] { ok = here.open(project); }, Action::click(QStringLiteral("Si")),
                       &boxes);
        QCOMPARE(boxes, 1);
        QCOMPARE(box.text, OpenQuestion.arg(QStringLiteral("officina-2"), m_user));
        QVERIFY(ok);
        QVERIFY(here.isOpenRdOnly());

        box = driveOne([&] { ok = here.saveAs(project); }, Action::click(QStringLiteral("Ok")),
                       &boxes);
        QCOMPARE(boxes, 1);
        QCOMPARE(box.icon, QMessageBox::Warning);
        QCOMPARE(
            box.text,
            QStringLiteral("Attenzione: progetto in uso!!\nObbligatorio cambiargli il nome!!"));
        QVERIFY(!ok);

        box = driveOne([&] { ok = here.unlock(project); }, Action::click(QStringLiteral("No")),
                       &boxes);
        QCOMPARE(boxes, 1);
        QCOMPARE(box.text, UnlockQuestion.arg(QStringLiteral("officina-2"), m_user));
        QVERIFY(!ok);

        here.close();
        QCOMPARE(readFile(lock), held);
        QCOMPARE(other.ask(QStringLiteral("test ") + project), QStringLiteral("test 1"));
        QCOMPARE(other.ask(QStringLiteral("close")), QStringLiteral("closed"));
        QVERIFY(!QFile::exists(lock));
        QCOMPARE(here.TstFileLocked(project), 0);

        // The identity is read again at every open.
        QCOMPARE(other.ask(QStringLiteral("rename officina-3")), QStringLiteral("renamed"));
        const QString second = path(QStringLiteral("Maglia.ndx"));
        QCOMPARE(other.ask(QStringLiteral("open ") + second), QStringLiteral("open rw 0"));
        QCOMPARE(NdxComFileSharing::readLockRecord(readFile(path(QStringLiteral("Maglia.~lock"))))
                     .computer,
                 QStringLiteral("officina-3"));
        QCOMPARE(other.ask(QStringLiteral("close")), QStringLiteral("closed"));
        QCOMPARE(other.finish(), 0);
    }

    // A computer whose name has a letter outside ASCII writes a character
    // count with UTF-8 bytes and reads them back as Latin-1: it does not
    // recognise its own lock, and its close leaves it.
    void nonAsciiComputer()
    {
        requireNamespaces();
        const QString project = path(QStringLiteral("Calza.ndx"));
        const QString lock = path(QStringLiteral("Calza.~lock"));
        const QString name = QStringLiteral("pè-1");
        Holder other;
        const QString ready = other.start(name);
        QCOMPARE(ready, QStringLiteral("ready %1 %2").arg(name).arg(other.pid));
        // Write, read back: the process id still matches, so it opens.
        QCOMPARE(other.ask(QStringLiteral("open ") + project), QStringLiteral("open rw 0"));
        const QByteArray held = readFile(lock);
        QCOMPARE(held.mid(16),
                 int32le(4) + name.toUtf8() + int32le(qint32(m_user.size())) + m_user.toUtf8());
        QCOMPARE(other.ask(QStringLiteral("test ") + project), QStringLiteral("test 2"));
        QCOMPARE(other.ask(QStringLiteral("close")), QStringLiteral("closed"));
        QCOMPARE(readFile(lock), held);

        // Here it shows as read: four bytes of the name, Latin-1.
        QFileSharing here;
        bool ok = false;
        const BoxRecord box
            = driveOne([&] { ok = here.unlock(project); }, Action::click(QStringLiteral("Si")));
        QCOMPARE(box.text.section(QLatin1Char('\n'), 1, 1),
                 QStringLiteral("Computer: p\u00c3\u00a8-."));
        QVERIFY(ok);
        QVERIFY(!QFile::exists(lock));
        QCOMPARE(other.finish(), 0);
    }

    // Several computers open one free project at the same instant, round
    // after round: at most one of them may end a round holding it read-write.
    void race()
    {
        requireNamespaces();
        const int processes = 4;
        const int rounds = 200;
        std::vector<std::unique_ptr<Holder>> holders;
        for (int i = 0; i < processes; ++i) {
            holders.emplace_back(new Holder);
            const QString name = QStringLiteral("race-%1").arg(i + 1);
            const QString ready = holders.back()->start(name);
            QCOMPARE(ready, QStringLiteral("ready %1 %2").arg(name).arg(holders.back()->pid));
        }

        QElapsedTimer timer;
        timer.start();
        int twoHolders = 0, noHolder = 0, lostAtCreation = 0, asked = 0, contested = 0;
        for (int round = 0; round < rounds; ++round) {
            const QString project = path(QStringLiteral("Giro%1.ndx").arg(round));
            const qint64 deadline = monotonicNs() + 15 * 1000000;
            for (auto &h : holders)
                h->send(QStringLiteral("open %1 %2").arg(project).arg(deadline));
            int readWrite = 0, roundLost = 0;
            for (auto &h : holders) {
                const QString answer = h->readLine();
                QVERIFY2(answer.startsWith(QLatin1String("open ")), qPrintable(answer));
                if (answer == QLatin1String("open rw 0"))
                    ++readWrite;
                else if (answer == QLatin1String("open no 0"))
                    ++roundLost; // lost the exclusive creation: another was first
                else if (answer == QLatin1String("open no 1"))
                    ++asked; // found the winner's lock and declined read-only
                else
                    QFAIL(qPrintable(QStringLiteral("round %1: %2").arg(round).arg(answer)));
            }
            if (readWrite > 1)
                ++twoHolders;
            if (readWrite == 0)
                ++noHolder;
            lostAtCreation += roundLost;
            if (roundLost > 0)
                ++contested;
            for (auto &h : holders)
                h->send(QStringLiteral("close"));
            for (auto &h : holders)
                QCOMPARE(h->readLine(), QStringLiteral("closed"));
            QVERIFY2(!QFile::exists(NdxComFileSharing::lockPath(project)),
                     qPrintable(QStringLiteral("round %1 left its lock").arg(round)));
        }
        qInfo("ndxcom-figure: race rounds: %d, rounds with two read-write holders: %d", rounds,
              twoHolders);
        qInfo("race: %d processes, %d rounds without a holder, %d rounds where a process lost "
              "before any question (%d times: the exclusive creation), %d read-only questions "
              "declined, %lld ms",
              processes, noHolder, contested, lostAtCreation, asked,
              static_cast<long long>(timer.elapsed()));
        QCOMPARE(twoHolders, 0);
        QCOMPARE(noHolder, 0);
        for (auto &h : holders)
            QCOMPARE(h->finish(), 0);
    }
};

NDXCOM_TEST_MAIN(tst_QFileSharingProcesses)
#include "tst_qfilesharing_processes.moc"
