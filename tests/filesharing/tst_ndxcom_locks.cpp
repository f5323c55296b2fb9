// `ndxcom locks`: every lock under a folder, its assessment, and clearing the
// stale ones, run as a user would.

#include "hangguard.h"
#include "lockholderclient.h"
#include "locktestutil.h"
#include "ndxcomtest.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace LockTest;

namespace {

// A running process of this computer and this user: init on Linux, the test
// itself on Windows, which has no process 1.
qint64 runningPid()
{
#ifdef Q_OS_WIN
    return QCoreApplication::applicationPid();
#else
    return 1;
#endif
}

// Beyond any pid_max of Linux and no process of Windows.
constexpr qint64 GonePid = 0x7ffffff0;
constexpr qint64 T0 = 1718100000000LL; // 2024-06-11T10:00:00Z

struct Run
{
    int exitCode = -1;
    QString out;
    QString err;
};

Run ndxcom(const QStringList &arguments, const QByteArray &input = QByteArray())
{
    QProcess tool;
    tool.start(QStringLiteral(NDXCOM_TOOL), QStringList {QStringLiteral("locks")} + arguments);
    Run run;
    if (!tool.waitForStarted(20000))
        return run;
    tool.write(input);
    tool.closeWriteChannel();
    if (!tool.waitForFinished(60000) || tool.exitStatus() != QProcess::NormalExit)
        return run;
    run.exitCode = tool.exitCode();
    // On Windows the C runtime writes the tool's lines with CRLF.
    run.out = QString::fromUtf8(tool.readAllStandardOutput())
                  .replace(QLatin1String("\r\n"), QLatin1String("\n"));
    run.err = QString::fromUtf8(tool.readAllStandardError());
    return run;
}

// The objects of --json, one a line, keyed by the lock's relative path.
QList<QJsonObject> objects(const Run &run)
{
    QList<QJsonObject> list;
    const QStringList lines = run.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(line.toUtf8(), &error);
        if (error.error != QJsonParseError::NoError || !document.isObject())
            qWarning("not a JSON object: %s", qPrintable(line));
        list << document.object();
    }
    return list;
}

QStringList field(const QList<QJsonObject> &list, const char *key)
{
    QStringList values;
    for (const QJsonObject &o : list)
        values << o.value(QLatin1String(key)).toString();
    return values;
}

bool touch(const QString &path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    return writeFile(path, "NDX");
}

bool putLock(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    return writeFile(path, bytes);
}

// Names that must reach the terminal as escapes, never as what they do.
#ifndef Q_OS_WIN
const QString HostileProject = QStringLiteral("Evil\x1b[2J\n\u202e%1.ndx");
const QString HostileShown = QStringLiteral("Evil\\x1b[2J\\n\\u202e%1.ndx");
#else
// Windows file names hold no control characters.
const QString HostileProject = QStringLiteral("Evil\u202e%1.ndx");
const QString HostileShown = QStringLiteral("Evil\\u202e%1.ndx");
#endif
const QByteArray HostileComputer("PC\x1b]0;owned\x07");
const QByteArray HostileUser("anna\nstate: free\r\x85%1");

} // namespace

class tst_NdxcomLocks : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_root;

    QString path(const QString &relative) const { return m_root + QLatin1Char('/') + relative; }

    // A shared projects folder with a lock of every kind.
    bool buildWorkstation()
    {
        const QString host = hostShortName();
        return touch(path(QStringLiteral("Calza.ndx")))
            && putLock(path(QStringLiteral("Calza.~lock")),
                       record(4242, T0, QStringLiteral("PC-UFFICIO"), QStringLiteral("anna")))
            && touch(path(QStringLiteral("Maglia/Top.ndx")))
            && putLock(path(QStringLiteral("Maglia/Top.~lock")),
                       record(GonePid, T0 + 3600000, host, QStringLiteral("bruno")))
            && touch(path(QStringLiteral("Mine.ndx")))
            && putLock(path(QStringLiteral("Mine.~lock")),
                       record(runningPid(), T0 + 7200000, host, loginName()))
            && putLock(path(QStringLiteral("Vecchi/Gone.~lock")),
                       record(55, T0 - 86400000, QStringLiteral("PC-2"), QStringLiteral("carla")))
            && touch(path(QStringLiteral("Rotto.ndx")))
            && putLock(path(QStringLiteral("Rotto.~lock")), QByteArray("\x01\x02", 2))
            && touch(path(QStringLiteral("Cartella.ndx")))
            && QDir().mkpath(path(QStringLiteral("Cartella.~lock")))
            && touch(path(QStringLiteral("Nomi.ndx")))
            && putLock(path(QStringLiteral("Nomi.~lock")),
                       record(7, T0, qint32(HostileComputer.size()), HostileComputer,
                              qint32(HostileUser.size()), HostileUser))
            && touch(path(HostileProject))
            && putLock(path(QString(HostileProject)
                                .replace(QLatin1String(".ndx"), QLatin1String(".~lock"))),
                       record(8, T0, QStringLiteral("PC-UFFICIO"), QStringLiteral("anna")))
            && touch(path(QStringLiteral("a/b/c/Deep.ndx")))
            && putLock(path(QStringLiteral("a/b/c/Deep.~lock")),
                       record(9, T0, QStringLiteral("PC-UFFICIO"), QStringLiteral("anna")))
#ifndef Q_OS_WIN
            // A pipe, a link to a good lock, and a linked folder full of
            // locks: listed without waiting, never followed, never entered.
            && touch(path(QStringLiteral("Pipe.ndx")))
            && ::mkfifo(QFile::encodeName(path(QStringLiteral("Pipe.~lock"))).constData(), 0600)
            == 0
            && touch(m_dir->filePath(QStringLiteral("outside/Real.ndx")))
            && putLock(m_dir->filePath(QStringLiteral("outside/Real.~lock")),
                       record(10, T0, QStringLiteral("PC-UFFICIO"), QStringLiteral("anna")))
            && touch(path(QStringLiteral("Link.ndx")))
            && QFile::link(m_dir->filePath(QStringLiteral("outside/Real.~lock")),
                           path(QStringLiteral("Link.~lock")))
            && QFile::link(m_dir->filePath(QStringLiteral("outside")),
                           path(QStringLiteral("Collegata")))
#endif
            ;
    }

private slots:
    void init()
    {
        m_dir.reset(new QTemporaryDir);
        QVERIFY(m_dir->isValid());
        m_root = m_dir->filePath(QStringLiteral("progetti"));
        QVERIFY(QDir().mkpath(m_root));
    }

    // What --json says of each lock, parsed back.
    void assessment_data()
    {
        QTest::addColumn<QString>("lock");
        QTest::addColumn<QString>("assessment");
        QTest::addColumn<QString>("reason"); // a part of it
        QTest::addColumn<QString>("computer"); // "-": null
        QTest::addColumn<QString>("process");
        QTest::addColumn<bool>("projectExists");

        // computer "-": no record, null
        const auto row
            = [](const char *name, const QString &lock, const char *assessment, const char *reason,
                 const QString &computer, const char *process, bool projectExists) {
                  QTest::newRow(name)
                      << lock << QString::fromLatin1(assessment) << QString::fromLatin1(reason)
                      << computer << QString::fromLatin1(process) << projectExists;
              };
        const QString host = hostShortName();
        const QString other = QStringLiteral("PC-UFFICIO");
        const QString none = QStringLiteral("-");
        row("held by another computer", QStringLiteral("Calza.~lock"), "held", "", other,
            "not checked", true);
        row("this computer, process gone", QStringLiteral("Maglia/Top.~lock"), "stale",
            "its process no longer runs on this computer", host, "gone", true);
        row("this user, another process", QStringLiteral("Mine.~lock"), "stale",
            "which the suite's next open removes as a leftover", host, "running", true);
        row("no project", QStringLiteral("Vecchi/Gone.~lock"), "orphan", "no project beside it",
            QStringLiteral("PC-2"), "not checked", false);
        row("damaged record", QStringLiteral("Rotto.~lock"), "unreadable", "a damaged record",
            QString(), "not checked", true);
        row("a folder", QStringLiteral("Cartella.~lock"), "unreadable", "a folder", none, "", true);
        row("control characters in the record", QStringLiteral("Nomi.~lock"), "held", "",
            QString::fromLatin1(HostileComputer), "not checked", true);
        row("hostile file name",
            QString(HostileProject).replace(QLatin1String(".ndx"), QLatin1String(".~lock")), "held",
            "", other, "not checked", true);
        row("deep", QStringLiteral("a/b/c/Deep.~lock"), "held", "", other, "not checked", true);
#ifndef Q_OS_WIN
        row("a named pipe", QStringLiteral("Pipe.~lock"), "unreadable", "a named pipe", none, "",
            true);
        row("a link", QStringLiteral("Link.~lock"), "unreadable",
            "a symbolic link, which is never followed", none, "", true);
#endif
    }

    void assessment()
    {
        QFETCH(QString, lock);
        QFETCH(QString, assessment);
        QFETCH(QString, reason);
        QFETCH(QString, computer);
        QFETCH(QString, process);
        QFETCH(bool, projectExists);
        QVERIFY(buildWorkstation());
        NdxComTest::HangGuard guard("ndxcom-figure: ndxcom locks hangs: 1", 60);
        const Run run = ndxcom({QStringLiteral("--json"), m_root});
        QCOMPARE(run.exitCode, 1);
        const QList<QJsonObject> list = objects(run);
        // Nothing behind the linked folder or the link.
        QVERIFY2(!run.out.contains(QLatin1String("Real")), qPrintable(run.out));
#ifdef Q_OS_WIN
        QCOMPARE(list.size(), 9);
#else
        QCOMPARE(list.size(), 11);
#endif
        const int at = int(field(list, "lock").indexOf(lock));
        QVERIFY2(at >= 0, qPrintable(run.out));
        const QJsonObject o = list.at(at);
        QCOMPARE(o.value(QLatin1String("assessment")).toString(), assessment);
        QVERIFY2(o.value(QLatin1String("reason")).toString().contains(reason), qPrintable(run.out));
        if (reason.isEmpty() && assessment == QLatin1String("held"))
            QCOMPARE(o.value(QLatin1String("reason")).toString(), QString());
        if (computer == QLatin1String("-")) {
            QVERIFY(o.value(QLatin1String("computer")).isNull());
            QVERIFY(o.value(QLatin1String("time")).isNull());
        } else {
            QCOMPARE(o.value(QLatin1String("computer")).toString(), computer);
            QCOMPARE(o.value(QLatin1String("process")).toString(), process);
        }
        QCOMPARE(o.value(QLatin1String("projectExists")).toBool(), projectExists);
        QCOMPARE(o.value(QLatin1String("project")).toString(),
                 lock.chopped(6) + QStringLiteral(".ndx"));
        if (lock == QLatin1String("Nomi.~lock")) {
            // JSON carries the names exactly; the table shows them escaped.
            QCOMPARE(o.value(QLatin1String("user")).toString(), QString::fromLatin1(HostileUser));
            QCOMPARE(o.value(QLatin1String("pid")).toInt(), 7);
            QCOMPARE(o.value(QLatin1String("time")).toDouble(), double(T0));
            QCOMPARE(o.value(QLatin1String("taken")).toString(),
                     QStringLiteral("2024-06-11T10:00:00.000Z"));
        }
    }

    // The table: a row per lock, names escaped, the local time, the summary.
    void table_data()
    {
        QTest::addColumn<QString>("start"); // of the line
        QTest::addColumn<QStringList>("parts"); // in the line, in this order
        const QString taken
            = QDateTime::fromMSecsSinceEpoch(T0).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
        QTest::newRow("header") << "PROJECT "
                                << QStringList {"COMPUTER", "USER", "PID", "TAKEN", "AGE", "STATE"};
        QTest::newRow("held") << "Calza.ndx "
                              << QStringList {"PC-UFFICIO", "anna", "4242", taken, "held"};
        QTest::newRow("stale") << "Maglia/Top.ndx "
                               << QStringList {"bruno", QString::number(GonePid),
                                               "stale (its process no longer runs on this "
                                               "computer)"};
        QTest::newRow("orphan") << "Vecchi/Gone.ndx "
                                << QStringList {"PC-2", "carla", "orphan (no project beside it)"};
        QTest::newRow("escaped names")
            << "Nomi.ndx " << QStringList {"PC\\x1b]0;owned\\x07", "anna\\nstate: free\\r\\x85%1"};
        QTest::newRow("escaped file name") << HostileShown << QStringList {"PC-UFFICIO", "held"};
        QTest::newRow("no record")
            << "Cartella.ndx " << QStringList {"-  ", "unreadable (a folder)"};
#ifndef Q_OS_WIN
        QTest::newRow("summary") << "11 locks: 4 held, 2 stale, 1 orphan, 4 unreadable"
                                 << QStringList();
#else
        QTest::newRow("summary") << "9 locks: 4 held, 2 stale, 1 orphan, 2 unreadable"
                                 << QStringList();
#endif
    }

    void table()
    {
        QFETCH(QString, start);
        QFETCH(QStringList, parts);
        QVERIFY(buildWorkstation());
        const Run run = ndxcom({m_root});
        QCOMPARE(run.exitCode, 1);
        // Nothing that acts on a terminal, no line that a name made up.
        for (const QChar c : {QChar(0x1b), QChar(0x07), QChar(0x85), QChar(0x202e), QChar('\r')})
            QVERIFY2(!run.out.contains(c), qPrintable(run.out));
        const QStringList lines = run.out.split(QLatin1Char('\n'));
        QVERIFY(!lines.contains(QStringLiteral("state: free")));
        QVERIFY(lines.first().startsWith(QLatin1String("PROJECT ")));
        QStringList found;
        for (const QString &line : lines) {
            if (line.startsWith(start))
                found << line;
        }
        QVERIFY2(found.size() == 1, qPrintable(run.out));
        qsizetype at = 0;
        for (const QString &part : parts) {
            at = found.first().indexOf(part, at);
            QVERIFY2(at >= 0,
                     qPrintable(QStringLiteral("no '%1' in: %2").arg(part, found.first())));
        }
    }

    void depth_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("locks");
        const QStringList all = {QStringLiteral("L0.~lock"), QStringLiteral("a/L1.~lock"),
                                 QStringLiteral("a/b/L2.~lock"), QStringLiteral("a/b/c/L3.~lock")};
        QTest::newRow("all") << QStringList() << all;
        QTest::newRow("0") << QStringList {QStringLiteral("--depth"), QStringLiteral("0")}
                           << QStringList(all.mid(0, 1));
        QTest::newRow("1") << QStringList {QStringLiteral("--depth"), QStringLiteral("1")}
                           << QStringList(all.mid(0, 2));
        QTest::newRow("2") << QStringList {QStringLiteral("--depth=2")}
                           << QStringList(all.mid(0, 3));
        QTest::newRow("9") << QStringList {QStringLiteral("--depth"), QStringLiteral("9")} << all;
    }

    void depth()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QStringList, locks);
        for (const QString &name : {QStringLiteral("L0"), QStringLiteral("a/L1"),
                                    QStringLiteral("a/b/L2"), QStringLiteral("a/b/c/L3")}) {
            QVERIFY(touch(path(name + QStringLiteral(".ndx"))));
            QVERIFY(putLock(path(name + QStringLiteral(".~lock")),
                            record(4242, T0, QStringLiteral("PC-X"), QStringLiteral("anna"))));
        }
        const Run run = ndxcom(arguments + QStringList {QStringLiteral("--json"), m_root});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(field(objects(run), "lock"), locks);
    }

    void sort_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QStringList>("projects");
        QTest::newRow("project") << "project"
                                 << QStringList {"A.ndx", "B.ndx", "C.ndx", "D.ndx", "E.ndx"};
        QTest::newRow("age, oldest first")
            << "age" << QStringList {"C.ndx", "A.ndx", "D.ndx", "B.ndx", "E.ndx"};
        QTest::newRow("holder, then process id")
            << "holder" << QStringList {"D.ndx", "B.ndx", "A.ndx", "C.ndx", "E.ndx"};
    }

    void sort()
    {
        QFETCH(QString, key);
        QFETCH(QStringList, projects);
        const struct
        {
            const char *name;
            qint64 pid;
            qint64 time;
            const char *computer;
            const char *user;
        } locks[] = {{"A", 3, T0 + 1, "PC-B", "anna"},
                     {"B", 2, T0 + 3, "PC-A", "bruno"},
                     {"C", 1, T0, "PC-B", "carla"},
                     {"D", 1, T0 + 2, "PC-A", "bruno"}};
        for (const auto &l : locks) {
            QVERIFY(touch(path(QLatin1String(l.name) + QStringLiteral(".ndx"))));
            QVERIFY(
                putLock(path(QLatin1String(l.name) + QStringLiteral(".~lock")),
                        record(l.pid, l.time, QLatin1String(l.computer), QLatin1String(l.user))));
        }
        // No record, no age and no holder: last.
        QVERIFY(touch(path(QStringLiteral("E.ndx"))));
        QVERIFY(QDir().mkpath(path(QStringLiteral("E.~lock"))));
        const Run run = ndxcom({QStringLiteral("--sort"), key, QStringLiteral("--json"), m_root});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(field(objects(run), "project"), projects);
    }

    void exitStatus_data()
    {
        // held, stale, orphan, unreadable, empty, file (as the folder), missing
        QTest::addColumn<QString>("content");
        QTest::addColumn<QString>("line"); // the arguments; "@" is the folder
        QTest::addColumn<int>("exitCode");
        QTest::newRow("held only") << "held"
                                   << "@" << 0;
        QTest::newRow("empty") << "empty"
                               << "@" << 0;
        QTest::newRow("a stale lock") << "stale"
                                      << "@" << 1;
        QTest::newRow("an orphan") << "orphan"
                                   << "@" << 1;
        QTest::newRow("an unreadable lock") << "unreadable"
                                            << "@" << 1;
        QTest::newRow("stale, cleared") << "stale"
                                        << "--clear-stale --yes @" << 0;
        QTest::newRow("stale, kept") << "stale"
                                     << "--clear-stale @" << 1;
        QTest::newRow("orphan, clearing") << "orphan"
                                          << "--clear-stale --yes @" << 1;
        QTest::newRow("a file as folder") << "file"
                                          << "@" << 2;
        QTest::newRow("no such folder") << "missing"
                                        << "@" << 2;
        QTest::newRow("no folder") << "held"
                                   << "" << 64;
        QTest::newRow("two folders") << "held"
                                     << "@ @" << 64;
        QTest::newRow("negative depth") << "held"
                                        << "--depth -1 @" << 64;
        QTest::newRow("depth not a number") << "held"
                                            << "--depth x @" << 64;
        QTest::newRow("unknown sort") << "held"
                                      << "--sort size @" << 64;
        QTest::newRow("--yes alone") << "held"
                                     << "--yes @" << 64;
        QTest::newRow("--json asking") << "held"
                                       << "--json --clear-stale @" << 64;
        QTest::newRow("unknown option") << "held"
                                        << "--force @" << 64;
    }

    void exitStatus()
    {
        QFETCH(QString, content);
        QFETCH(QString, line);
        QFETCH(int, exitCode);
        QStringList arguments = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        QString folder = m_root;
        QVERIFY(touch(path(QStringLiteral("Calza.ndx"))));
        QVERIFY(putLock(path(QStringLiteral("Calza.~lock")),
                        record(4242, T0, QStringLiteral("PC-UFFICIO"), QStringLiteral("anna"))));
        if (content == QLatin1String("empty"))
            QVERIFY(QFile::remove(path(QStringLiteral("Calza.~lock"))));
        else if (content == QLatin1String("stale"))
            QVERIFY(putLock(path(QStringLiteral("Old.~lock")),
                            record(GonePid, T0, hostShortName(), QStringLiteral("bruno")))
                    && touch(path(QStringLiteral("Old.ndx"))));
        else if (content == QLatin1String("orphan"))
            QVERIFY(QFile::remove(path(QStringLiteral("Calza.ndx"))));
        else if (content == QLatin1String("unreadable"))
            QVERIFY(QDir().mkpath(path(QStringLiteral("Dir.~lock"))));
        else if (content == QLatin1String("file"))
            folder = path(QStringLiteral("Calza.ndx"));
        else if (content == QLatin1String("missing"))
            folder = path(QStringLiteral("nowhere"));
        for (QString &a : arguments)
            a.replace(QLatin1Char('@'), folder);
        const Run run = ndxcom(arguments);
        QVERIFY2(run.exitCode == exitCode, qPrintable(run.out + run.err));
        if (exitCode == 64)
            QVERIFY2(run.err.contains(QLatin1String("usage: ndxcom locks")), qPrintable(run.err));
        if (exitCode == 2)
            QVERIFY2(run.err.contains(QLatin1String("cannot be read")), qPrintable(run.err));
        // Only --clear-stale removes, and only stale locks.
        QCOMPARE(QFileInfo::exists(path(QStringLiteral("Calza.~lock"))),
                 content != QLatin1String("empty"));
        if (content == QLatin1String("stale"))
            QCOMPARE(QFileInfo::exists(path(QStringLiteral("Old.~lock"))), exitCode != 0);
    }

    // --clear-stale asks per stale lock and removes those answered yes; held,
    // orphan and unreadable locks are never touched.
    void clearStale_data()
    {
        QTest::addColumn<QByteArray>("answers");
        QTest::addColumn<bool>("yes");
        QTest::addColumn<bool>("topKept"); // Maglia/Top, asked first
        QTest::addColumn<bool>("mineKept");
        QTest::newRow("--yes") << QByteArray() << true << false << false;
        QTest::newRow("yes, yes") << QByteArray("y\nsi\n") << false << false << false;
        QTest::newRow("no, yes") << QByteArray("n\ny\n") << false << true << false;
        QTest::newRow("nothing typed") << QByteArray() << false << true << true;
    }

    void clearStale()
    {
        QFETCH(QByteArray, answers);
        QFETCH(bool, yes);
        QFETCH(bool, topKept);
        QFETCH(bool, mineKept);
        QVERIFY(buildWorkstation());
        QStringList locks;
        QDirIterator it(m_dir->path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext())
            locks << it.next();
        QHash<QString, QByteArray> before;
        for (const QString &lock : locks)
            before.insert(lock, readFile(lock));
        QStringList arguments {QStringLiteral("--clear-stale"), m_root};
        if (yes)
            arguments.prepend(QStringLiteral("--yes"));
        NdxComTest::HangGuard guard("ndxcom-figure: ndxcom locks --clear-stale hangs: 1", 60);
        const Run run = ndxcom(arguments, answers);
        QCOMPARE(run.exitCode, 1); // orphan and unreadable remain
        const QString top = path(QStringLiteral("Maglia/Top.~lock"));
        const QString mine = path(QStringLiteral("Mine.~lock"));
        QCOMPARE(QFileInfo::exists(top), topKept);
        QCOMPARE(QFileInfo::exists(mine), mineKept);
        QVERIFY2(run.out.contains(topKept ? QStringLiteral("kept: \"Maglia/Top.ndx\"")
                                          : QStringLiteral("removed: \"Maglia/Top.ndx\"")),
                 qPrintable(run.out));
        QCOMPARE(run.out.count(QLatin1String("[y/N]")), yes ? 0 : 2);
        for (const QString &lock : locks) {
            if (lock != top && lock != mine)
                QCOMPARE(readFile(lock), before.value(lock));
        }
        QVERIFY(QFileInfo(path(QStringLiteral("Cartella.~lock"))).isDir());
#ifndef Q_OS_WIN
        QVERIFY(QFileInfo(path(QStringLiteral("Link.~lock"))).isSymLink());
        QVERIFY(QFileInfo::exists(m_dir->filePath(QStringLiteral("outside/Real.~lock"))));
#endif
    }

    // The answer was given for the lock listed: one written while the
    // question waited stays, and is reported.
    void clearStaleKeepsALockWrittenWhileAsking()
    {
        const QString lock = path(QStringLiteral("Calza.~lock"));
        QVERIFY(touch(path(QStringLiteral("Calza.ndx"))));
        QVERIFY(putLock(lock, record(GonePid, T0, hostShortName(), QStringLiteral("bruno"))));
        QProcess tool;
        tool.start(QStringLiteral(NDXCOM_TOOL),
                   {QStringLiteral("locks"), QStringLiteral("--clear-stale"), m_root});
        QVERIFY(tool.waitForStarted(20000));
        QByteArray output;
        while (!output.contains("[y/N]") && tool.waitForReadyRead(20000))
            output += tool.readAllStandardOutput();
        QVERIFY2(output.contains("Remove the stale lock of \"Calza.ndx\"? [y/N]"),
                 output.constData());
        // Another workstation's lock, and a stale one of the same name and
        // holder but another time: neither is the lock listed.
        for (const QByteArray &other :
             {record(777, T0 + 5, QStringLiteral("PC-B"), QStringLiteral("bruno")),
              record(GonePid, T0 + 1, hostShortName(), QStringLiteral("bruno"))}) {
            QVERIFY(QFile::remove(lock));
            QVERIFY(writeFile(lock, other));
        }
        tool.write("y\n");
        tool.closeWriteChannel();
        QVERIFY(tool.waitForFinished(30000));
        output += tool.readAllStandardOutput();
        QCOMPARE(tool.exitCode(), 1);
        QVERIFY2(output.contains("kept: \"Calza.ndx\" (the lock changed since it was listed)"),
                 output.constData());
        QCOMPARE(readFile(lock), record(GonePid, T0 + 1, hostShortName(), QStringLiteral("bruno")));
    }

    // Real holders: one on this computer (this user, running: stale, as the
    // suite's next open sees it) and one on a computer of its own name.
    void holders()
    {
#ifdef Q_OS_WIN
        QSKIP("Windows gives no process a computer name of its own");
#else
        if (::geteuid() != 0)
            QSKIP("another host name needs root (a UTS namespace)");
        QVERIFY(touch(path(QStringLiteral("Qui.ndx"))));
        QVERIFY(touch(path(QStringLiteral("Altrove.ndx"))));
        Holder here;
        QVERIFY(here.start().startsWith(QLatin1String("ready ")));
        Holder there;
        const QString first = there.start(QStringLiteral("pc-reparto"));
        if (first != QStringLiteral("ready pc-reparto %1").arg(there.pid))
            QSKIP(qPrintable(QStringLiteral("no UTS namespace for another host name: ") + first));
        QCOMPARE(here.ask(QStringLiteral("open ") + path(QStringLiteral("Qui.ndx"))),
                 QStringLiteral("open rw 0"));
        QCOMPARE(there.ask(QStringLiteral("open ") + path(QStringLiteral("Altrove.ndx"))),
                 QStringLiteral("open rw 0"));
        Run run = ndxcom({QStringLiteral("--json"), m_root});
        QCOMPARE(run.exitCode, 1);
        QList<QJsonObject> list = objects(run);
        QCOMPARE(field(list, "lock"),
                 QStringList({QStringLiteral("Altrove.~lock"), QStringLiteral("Qui.~lock")}));
        QCOMPARE(field(list, "computer"),
                 QStringList({QStringLiteral("pc-reparto"), hostShortName()}));
        QCOMPARE(field(list, "assessment"),
                 QStringList({QStringLiteral("held"), QStringLiteral("stale")}));
        QCOMPARE(field(list, "process"),
                 QStringList({QStringLiteral("not checked"), QStringLiteral("running")}));
        QCOMPARE(list.at(1).value(QLatin1String("pid")).toDouble(), double(here.pid));

        // The holder of this computer ends without closing: its lock is left
        // over. --clear-stale removes it and leaves the other computer's.
        QCOMPARE(here.finish(), 0);
        run = ndxcom({QStringLiteral("--json"), QStringLiteral("--clear-stale"),
                      QStringLiteral("--yes"), m_root});
        QCOMPARE(run.exitCode, 0);
        list = objects(run);
        QCOMPARE(list.at(1).value(QLatin1String("process")).toString(), QStringLiteral("gone"));
        QCOMPARE(list.at(1).value(QLatin1String("removal")).toString(), QStringLiteral("removed"));
        QVERIFY(!QFileInfo::exists(path(QStringLiteral("Qui.~lock"))));
        QVERIFY(QFileInfo::exists(path(QStringLiteral("Altrove.~lock"))));
        QCOMPARE(there.ask(QStringLiteral("test ") + path(QStringLiteral("Altrove.ndx"))),
                 QStringLiteral("test 1"));
        QCOMPARE(there.finish(), 0);
#endif
    }
};

NDXCOM_TEST_MAIN(tst_NdxcomLocks)
#include "tst_ndxcom_locks.moc"
