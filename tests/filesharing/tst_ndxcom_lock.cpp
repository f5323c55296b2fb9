// `ndxcom lock`: who holds a project, and clearing its lock.

#include "locktestutil.h"
#include "ndxcomtest.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <climits>

using namespace LockTest;

// A process of this computer that runs as long as the test: init on Linux;
// Windows has no process 1 that always runs, so the test itself.
qint64 sameUserPid()
{
#ifdef Q_OS_WIN
    return QCoreApplication::applicationPid();
#else
    return 1;
#endif
}

class tst_NdxcomLock : public QObject
{
    Q_OBJECT

    enum Setup {
        NoLock,
        Foreign,
        SameUser,
        Damaged,
        Folder,
        FarFuture,
        NoNdx,
        HereRunning,
        HereGone,
        HereNoPid,
        Escapes
    };

private slots:
    void lock_data()
    {
        QTest::addColumn<int>("setup");
        QTest::addColumn<QStringList>("arguments"); // "@" is the project
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<bool>("lockAfter");

        const QStringList foreign = {
            QStringLiteral("state: held"),
            QStringLiteral("computer: PC-UFFICIO"),
            QStringLiteral("user: anna"),
            QStringLiteral("pid: 4242"),
            QStringLiteral("locked: 2024-06-11T10:00:00.000Z (1718100000000 ms since the epoch)"),
            QStringLiteral("process: on another computer, not checked")};
        const QStringList at = {QStringLiteral("@")};
        const QStringList clear = {QStringLiteral("--clear"), QStringLiteral("@")};
        const QStringList clearYes
            = {QStringLiteral("--clear"), QStringLiteral("--yes"), QStringLiteral("@")};

        QTest::newRow("free") << int(NoLock) << at << QByteArray() << 0
                              << QStringList {QStringLiteral("state: free")} << false;
        QTest::newRow("held by another")
            << int(Foreign) << at << QByteArray() << 2 << foreign << true;
        QTest::newRow("same user, other process")
            << int(SameUser) << at << QByteArray() << 2
            << QStringList {QStringLiteral("state: held"),
                            QStringLiteral("pid: %1").arg(sameUserPid()),
                            QStringLiteral("note: this user on this computer; the suite's next "
                                           "open takes it as a leftover of an earlier run")}
            << true;
        QTest::newRow("damaged")
            << int(Damaged) << at << QByteArray() << 2
            << QStringList {QStringLiteral("state: held"), QStringLiteral("computer: PC"),
                            QStringLiteral("user: "),
                            QStringLiteral("record: damaged (cut short or with impossible "
                                           "lengths)")}
            << true;
        QTest::newRow("folder") << int(Folder) << at << QByteArray() << 2
                                << QStringList {QStringLiteral("state: unreadable (a folder)")}
                                << true;
        QTest::newRow("time out of range")
            << int(FarFuture) << at << QByteArray() << 2
            << QStringList {QStringLiteral("locked: (out of range) (9223372036854775807 ms since "
                                           "the epoch)")}
            << true;
        QTest::newRow("no .ndx") << int(NoNdx) << at << QByteArray() << 0
                                 << QStringList {QStringLiteral(
                                                     "lock: none (the path has no lower-case "
                                                     "\".ndx\")"),
                                                 QStringLiteral("state: free")}
                                 << true;
        // Whether a holder on this computer still runs; the answer stays 2.
        QTest::newRow("this computer, holder running")
            << int(HereRunning) << at << QByteArray() << 2
            << QStringList {QStringLiteral("state: held"),
                            QStringLiteral("process: running on this computer")}
            << true;
        QTest::newRow("this computer, holder gone")
            << int(HereGone) << at << QByteArray() << 2
            << QStringList {QStringLiteral("state: held"),
                            QStringLiteral("process: not running on this computer (the lock "
                                           "is left over)")}
            << true;
        QTest::newRow("this computer, no process id")
            << int(HereNoPid) << at << QByteArray() << 2
            << QStringList {QStringLiteral("pid: 0"),
                            QStringLiteral("process: no valid process id")}
            << true;
        QTest::newRow("same user, holder running")
            << int(SameUser) << at << QByteArray() << 2
            << QStringList {QStringLiteral("process: running on this computer")} << true;
        QTest::newRow("clear, no") << int(Foreign) << clear << QByteArray("n\n") << 1
                                   << (foreign + QStringList {QStringLiteral("kept")}) << true;
        QTest::newRow("clear, nothing typed") << int(Foreign) << clear << QByteArray() << 1
                                              << QStringList {QStringLiteral("kept")} << true;
        QTest::newRow("clear, yes") << int(Foreign) << clear << QByteArray("y\n") << 0
                                    << QStringList {QStringLiteral("removed")} << false;
        QTest::newRow("clear, si") << int(Foreign) << clear << QByteArray("Si\n") << 0
                                   << QStringList {QStringLiteral("removed")} << false;
        QTest::newRow("clear --yes") << int(Foreign) << clearYes << QByteArray() << 0
                                     << QStringList {QStringLiteral("removed")} << false;
        QTest::newRow("clear --yes, damaged") << int(Damaged) << clearYes << QByteArray() << 0
                                              << QStringList {QStringLiteral("removed")} << false;
        QTest::newRow("clear --yes, folder")
            << int(Folder) << clearYes << QByteArray() << 1
            << QStringList {QStringLiteral("kept: not a readable lock file, left alone")} << true;
        // Names from a shared folder cannot drive the terminal: escape
        // sequences, line breaks and C1 controls are printed as escapes.
        QTest::newRow("escape sequences in the names")
            << int(Escapes) << at << QByteArray() << 2
            << QStringList {QStringLiteral("computer: PC\\x1b]0;owned\\x07\\x1b[2J"),
                            QStringLiteral("user: anna\\nstate: free\\r\\x85")}
            << true;
        QTest::newRow("clear --yes, free") << int(NoLock) << clearYes << QByteArray() << 0
                                           << QStringList {QStringLiteral("state: free")} << false;
        QTest::newRow("clear --yes, no .ndx")
            << int(NoNdx) << clearYes << QByteArray() << 0
            << QStringList {QStringLiteral("state: free")} << true;
        QTest::newRow("no project")
            << int(NoLock) << QStringList() << QByteArray() << 64 << QStringList() << false;
        QTest::newRow("two projects")
            << int(Foreign) << QStringList {QStringLiteral("@"), QStringLiteral("@")}
            << QByteArray() << 64 << QStringList() << true;
        QTest::newRow("--yes alone")
            << int(Foreign) << QStringList {QStringLiteral("--yes"), QStringLiteral("@")}
            << QByteArray() << 64 << QStringList() << true;
        QTest::newRow("unknown option")
            << int(Foreign) << QStringList {QStringLiteral("--force"), QStringLiteral("@")}
            << QByteArray() << 64 << QStringList() << true;
    }

    void lock()
    {
        QFETCH(int, setup);
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, input);
        QFETCH(int, exitCode);
        QFETCH(QStringList, lines);
        QFETCH(bool, lockAfter);

        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        QString project = dir.filePath(QStringLiteral("Calza.ndx"));
        QString lock = dir.filePath(QStringLiteral("Calza.~lock"));
        QByteArray bytes;
        switch (Setup(setup)) {
        case NoLock:
            break;
        case Foreign:
            bytes = record(4242, 1718100000000LL, QStringLiteral("PC-UFFICIO"),
                           QStringLiteral("anna"));
            break;
        case SameUser:
            bytes = record(sameUserPid(), 5, hostShortName(), loginName());
            break;
        case Damaged:
            bytes = record(7, 8, 0x7fffffff, "PC", 0, {}).chopped(4);
            break;
        case Folder:
            QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("Calza.~lock")));
            break;
        case FarFuture:
            bytes = record(9, LLONG_MAX, QStringLiteral("PC2"), QStringLiteral("anna"));
            break;
        case HereRunning:
            // This test is a running process of this computer.
            bytes = record(QCoreApplication::applicationPid(), 5, hostShortName(),
                           QStringLiteral("anna"));
            break;
        case HereGone:
            // Beyond any pid_max of Linux (at most 2^22): no such process.
            bytes = record(0x7ffffff0, 5, hostShortName(), QStringLiteral("anna"));
            break;
        case HereNoPid:
            bytes = record(0, 5, hostShortName(), QStringLiteral("anna"));
            break;
        case Escapes: {
            const QByteArray computer("PC\x1b]0;owned\x07\x1b[2J");
            const QByteArray user("anna\nstate: free\r\x85");
            bytes = record(4242, 5, qint32(computer.size()), computer, qint32(user.size()), user);
            break;
        }
        case NoNdx:
            project = lock = dir.filePath(QStringLiteral("Calza.NDX"));
            bytes = record(1, 5, hostShortName(), loginName());
            break;
        }
        if (!bytes.isEmpty())
            QVERIFY(writeFile(lock, bytes));

        for (QString &a : arguments)
            a.replace(QLatin1Char('@'), project);
        QProcess tool;
        tool.start(QStringLiteral(NDXCOM_TOOL), QStringList {QStringLiteral("lock")} + arguments);
        QVERIFY(tool.waitForStarted(20000));
        tool.write(input);
        tool.closeWriteChannel();
        QVERIFY(tool.waitForFinished(30000));
        // On Windows the C runtime writes the tool's lines with CRLF.
        const QString output = QString::fromLocal8Bit(tool.readAllStandardOutput())
                                   .replace(QLatin1String("\r\n"), QLatin1String("\n"));
        const QString errors = QString::fromLocal8Bit(tool.readAllStandardError());
        QCOMPARE(tool.exitStatus(), QProcess::NormalExit);
        QVERIFY2(tool.exitCode() == exitCode, qPrintable(output + errors));
        const QStringList shown = output.split(QLatin1Char('\n'));
        QVERIFY2(!output.contains(QChar(0x1b)), qPrintable(output));
        if (setup == Escapes)
            QVERIFY2(!shown.contains(QStringLiteral("state: free")), qPrintable(output));
        for (const QString &line : lines)
            QVERIFY2(shown.contains(line) || output.contains(line),
                     qPrintable(QStringLiteral("missing '%1' in:\n%2").arg(line, output)));
        if (exitCode == 64)
            QVERIFY(errors.contains(QLatin1String("usage: ndxcom lock")));
        else
            QVERIFY(shown.contains(QStringLiteral("project: ") + project));
        QCOMPARE(QFileInfo::exists(lock), lockAfter);
        if (lockAfter && !bytes.isEmpty())
            QCOMPARE(readFile(lock), bytes); // never rewritten
    }

    // The answer to the question was given for the lock shown: a lock that
    // another workstation wrote while the question waited stays.
    void clearKeepsALockWrittenWhileAsking()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString project = dir.filePath(QStringLiteral("Calza.ndx"));
        const QString lock = dir.filePath(QStringLiteral("Calza.~lock"));
        QVERIFY(writeFile(lock, record(4242, 5, QStringLiteral("PC-A"), QStringLiteral("anna"))));
        QProcess tool;
        tool.start(QStringLiteral(NDXCOM_TOOL),
                   {QStringLiteral("lock"), QStringLiteral("--clear"), project});
        QVERIFY(tool.waitForStarted(20000));
        QByteArray output;
        while (!output.contains("[y/N]") && tool.waitForReadyRead(20000))
            output += tool.readAllStandardOutput();
        QVERIFY2(output.contains("[y/N]"), output.constData());
        const QByteArray other = record(777, 6, QStringLiteral("PC-B"), QStringLiteral("bruno"));
        QVERIFY(QFile::remove(lock));
        QVERIFY(writeFile(lock, other));
        tool.write("y\n");
        tool.closeWriteChannel();
        QVERIFY(tool.waitForFinished(30000));
        output += tool.readAllStandardOutput();
        QCOMPARE(tool.exitCode(), 1);
        QVERIFY2(output.contains("kept: the lock changed since it was shown"), output.constData());
        QCOMPARE(readFile(lock), other);
    }
};

NDXCOM_TEST_MAIN(tst_NdxcomLock)
#include "tst_ndxcom_lock.moc"
