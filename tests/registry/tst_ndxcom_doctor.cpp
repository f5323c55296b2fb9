// `ndxcom doctor`: a healthy workstation, then each thing that can be wrong
// with one, in turn.

#include "hangguard.h"
#include "ndxcomtest.h"
#include "storetest.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace StoreTest;

namespace {

struct Run
{
    int exitCode = -1;
    QStringList lines;
    QString errors;
};

// The workstation's things that a row can break, one a bit.
enum Break {
    Healthy = 0,
    StoreFolder = 1 << 0, // a folder at the store's name
    StorePipe = 1 << 1,
    StoreUnderAFile = 1 << 2, // --user-dir inside a regular file
    StoreReadOnly = 1 << 3,
    StoreGarbled = 1 << 4,
    NoMachine = 1 << 5, // no last machine, no folder
    MachineGone = 1 << 6,
    IndexGone = 1 << 7,
    IndexRefuses = 1 << 8,
    IndexLinksOut = 1 << 9,
    NoLanguageFolder = 1 << 10,
    NoProjects = 1 << 11,
    ProjectsGone = 1 << 12,
    ProjectsReadOnly = 1 << 13,
    ProjectsRefuseFiles = 1 << 14, // a folder in which nothing can be created
    ForeignHost = 1 << 15, // a host name beyond ASCII
    Italian = 1 << 16,
    DamagedCatalogue = 1 << 17,
    NoPlatform = 1 << 18,
    OldPlatform = 1 << 19,
    UnknownMachine = 1 << 20, // the platform store has no version for it
    PlatformFolder = 1 << 21,
};

// Every file under a folder with its size and time, to show that a run
// changed nothing.
QStringList snapshot(const QString &folder)
{
    QStringList entries;
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        const QFileInfo info = it.fileInfo();
        entries << QStringLiteral("%1 %2 %3")
                       .arg(info.filePath())
                       .arg(info.isDir() ? -1 : info.size())
                       .arg(info.isDir() ? 0 : info.lastModified().toMSecsSinceEpoch());
    }
    entries.sort();
    return entries;
}

bool makeFile(const QString &path, const QByteArray &bytes = QByteArray("x"))
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate)
        && file.write(bytes) == bytes.size();
}

bool isRoot()
{
#ifdef Q_OS_WIN
    return false;
#else
    return ::geteuid() == 0;
#endif
}

} // namespace

class tst_NdxCom_Doctor : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folders;

    // `wrapper`: the program and arguments ndxcom runs under, if any.
    Run doctor(const QStringList &extra, const QStringList &wrapper = QStringList(),
               const QByteArray &translations = QByteArray())
    {
        QStringList arguments {QStringLiteral("doctor"),
                               QStringLiteral("--organization"),
                               QCoreApplication::organizationName(),
                               QStringLiteral("--application"),
                               QCoreApplication::applicationName(),
                               QStringLiteral("--system-dir"),
                               systemDir()};
        arguments += extra;
        if (!extra.contains(QStringLiteral("--user-dir")))
            arguments << QStringLiteral("--user-dir") << userDir();
        QString program = QStringLiteral(NDXCOM_TOOL);
        if (!wrapper.isEmpty()) {
            arguments = wrapper.mid(1) + QStringList {program} + arguments;
            program = wrapper.first();
        }
        QProcess p;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        // Diagnostics on standard error also where no console is attached
        // (Windows would send them to the debugger output).
        environment.insert(QStringLiteral("QT_FORCE_STDERR_LOGGING"), QStringLiteral("1"));
        if (!translations.isEmpty())
            environment.insert(QStringLiteral("NDXCOM_TRANSLATIONS"),
                               QString::fromLocal8Bit(translations));
        p.setProcessEnvironment(environment);
        p.start(program, arguments);
        Run run;
        if (!p.waitForFinished(60000) || p.exitStatus() != QProcess::NormalExit)
            return run;
        run.exitCode = p.exitCode();
        run.lines = QString::fromUtf8(p.readAllStandardOutput())
                        .replace(QLatin1String("\r\n"), QLatin1String("\n"))
                        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        run.errors = QString::fromUtf8(p.readAllStandardError());
        return run;
    }

    QString folder(const QString &name) const { return m_folders.filePath(name); }

    // A workstation in order, less what `broken` takes away.
    bool prepare(int broken)
    {
        const QString machine = folder(QStringLiteral("Macchine/M1"));
        const QString help = machine + QStringLiteral("/help/");
        const QString projects = folder(QStringLiteral("progetti"));
        QByteArray index = "Main=index.htm\nQDlgReport=report.htm#top\n";
        if (broken & IndexRefuses)
            index += "Avvia=../../../bin/avvia.exe\n";
        if (broken & IndexLinksOut)
            index += "Fuori=fuori.htm\n";
        const QString language
            = help + (broken & Italian ? QStringLiteral("it") : QStringLiteral("en"));
        if (!QDir().mkpath(language) || !QDir().mkpath(projects)
            || !(broken & IndexGone ? true : makeFile(help + QStringLiteral("HelpMac.ini"), index))
            || !makeFile(language + QStringLiteral("/index.htm")))
            return false;
#ifndef Q_OS_WIN
        if ((broken & IndexLinksOut)
            && !QFile::link(folder(QStringLiteral("altrove.htm")),
                            help + QStringLiteral("en/fuori.htm")))
            return false;
        if ((broken & IndexLinksOut) && !makeFile(folder(QStringLiteral("altrove.htm"))))
            return false;
#endif
        if ((broken & NoLanguageFolder) && !QDir(help + QStringLiteral("en")).removeRecursively())
            return false;

        QByteArray store = "[Settings]\n";
        if (!(broken & NoMachine))
            store += "LastMachine=M1\n";
        if (broken & Italian)
            store += "Language=0\n";
        store += "\n[Machines]\n";
        if (!(broken & NoMachine)) {
            store += "M1\\Settings\\MachinePath="
                + QFile::encodeName(broken & MachineGone ? folder(QStringLiteral("sparita"))
                                                         : machine)
                + '\n';
            if (!(broken & NoProjects))
                store += "M1\\Settings\\ProjectsPath="
                    + QFile::encodeName(broken & ProjectsGone ? folder(QStringLiteral("sparita"))
                                            : broken & ProjectsRefuseFiles
                                            ? QStringLiteral("/proc/self")
                                            : projects)
                    + '\n';
            store += QByteArray("M1\\Settings\\MachineName=")
                + (broken & UnknownMachine ? "ZR5" : "VX3K") + '\n';
        }
        if (broken & StoreGarbled)
            store = "[Settings";
        QByteArray platform = "[Machines]\nVX3K\\VersionEnv=1.2.0\n";
        if (!(broken & NoPlatform))
            platform = QByteArray("[General]\nInstallVersion=")
                + (broken & OldPlatform ? "1.1.9" : "1.4.0") + '\n' + platform;
        if (!writeFile(userStoreFile(), store) || !writeFile(platformStoreFile(), platform))
            return false;
#ifndef Q_OS_WIN
        if (broken & (StoreFolder | StorePipe)) {
            QFile::remove(userStoreFile());
            if (broken & StoreFolder
                    ? !QDir().mkpath(userStoreFile())
                    : ::mkfifo(QFile::encodeName(userStoreFile()).constData(), 0600) != 0)
                return false;
        }
        if ((broken & PlatformFolder)
            && !(QFile::remove(platformStoreFile()) && QDir().mkpath(platformStoreFile())))
            return false;
        if ((broken & StoreReadOnly)
            && !QFile(userStoreFile()).setPermissions(QFileDevice::ReadOwner))
            return false;
        if ((broken & ProjectsReadOnly)
            && !QFile(projects).setPermissions(QFileDevice::ReadOwner | QFileDevice::ExeOwner))
            return false;
#endif
        return true;
    }

private slots:
    void init()
    {
        freshStores();
        QDir(m_folders.path()).removeRecursively();
        QVERIFY(QDir().mkpath(m_folders.path()));
    }

    void checks_data()
    {
        QTest::addColumn<int>("broken");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("line"); // the start of one line
        QTest::addColumn<QString>("text"); // further in that line

        QTest::newRow("healthy") << int(Healthy) << 0 << "ok       identity: locks name computer"
                                 << "and user";
        QTest::newRow("healthy, store") << int(Healthy) << 0 << "ok       settings store:"
                                        << "can be read and written";
        QTest::newRow("healthy, help") << int(Healthy) << 0 << "ok       help index:"
                                       << ": 2 entries";
        QTest::newRow("healthy, probe") << int(Healthy) << 0 << "ok       exclusive creation:"
                                        << "a second exclusive creation in";
        QTest::newRow("healthy, catalogue")
            << int(Healthy) << 0 << "ok       catalogue: language \"en\":"
            << "ndxcom_en.qm";
        QTest::newRow("healthy, platform")
            << int(Healthy) << 0 << "ok       platform:"
            << "\"1.4.0\" is installed; machine \"VX3K\" needs \"1.2.0\"";
#ifndef Q_OS_WIN
        QTest::newRow("store is a folder") << int(StoreFolder) << 2 << "problem  settings store:"
                                           << "is a folder";
        QTest::newRow("store is a folder, the rest")
            << int(StoreFolder) << 2 << "warning  platform: not checked"
            << "cannot be read";
        QTest::newRow("store is a pipe") << int(StorePipe) << 2 << "problem  settings store:"
                                         << "is a pipe, a device or a socket";
        QTest::newRow("store under a file")
            << int(StoreUnderAFile) << 2 << "problem  settings store:"
            << "is not a folder";
        QTest::newRow("store read-only") << int(StoreReadOnly) << 2 << "problem  settings store:"
                                         << "is read-only - give the user write access";
        QTest::newRow("store not in the format")
            << int(StoreGarbled) << 2 << "problem  settings store:"
            << "is not in the settings format";
        QTest::newRow("platform store is a folder")
            << int(PlatformFolder) << 2 << "problem  platform:"
            << "is a folder";
        QTest::newRow("index leads out") << int(IndexLinksOut) << 1 << "warning  help index:"
                                         << "1 refused: \"Fuori\" = \"fuori.htm\"";
        QTest::newRow("projects read-only")
            << int(ProjectsReadOnly) << 2 << "problem  projects folder:"
            << "is read-only";
        QTest::newRow("nothing can be created")
            << int(ProjectsRefuseFiles) << 2 << "problem  exclusive creation:"
            << "no file can be created in \"/proc/self\"";
        QTest::newRow("host name beyond ASCII")
            << int(ForeignHost) << 2 << "problem  identity: locks name computer \"stazione-\u00e8\""
            << "read back as \"stazione-\u00c3\"";
#endif
        QTest::newRow("no machine") << int(NoMachine) << 1 << "warning  machine:"
                                    << "no folder is stored for the nameless machine";
        QTest::newRow("no machine, no projects")
            << int(NoMachine) << 1 << "warning  projects folder:"
            << "none is stored";
        QTest::newRow("machine folder gone") << int(MachineGone) << 2 << "problem  machine:"
                                             << "sparita\" of machine \"M1\" does not exist";
        QTest::newRow("machine folder gone, help")
            << int(MachineGone) << 2 << "warning  help index: not checked"
            << "the machine has no folder";
        QTest::newRow("no help index") << int(IndexGone) << 2 << "problem  help index:"
                                       << "HelpMac.ini\" cannot be read";
        QTest::newRow("index names a program") << int(IndexRefuses) << 1 << "warning  help index:"
                                               << ": 3 entries, 1 refused: \"Avvia\" = "
                                                  "\"../../../bin/avvia.exe\"";
        QTest::newRow("no help in the language")
            << int(NoLanguageFolder) << 1 << "warning  help index:"
            << "for language \"en\"";
        QTest::newRow("no projects folder") << int(NoProjects) << 1 << "warning  projects folder:"
                                            << "none is stored for machine \"M1\"";
        QTest::newRow("no projects folder, no probe")
            << int(NoProjects) << 1 << "warning  exclusive creation: not checked"
            << "";
        QTest::newRow("projects folder gone")
            << int(ProjectsGone) << 2 << "problem  projects folder:"
            << "does not exist";
        QTest::newRow("Italian") << int(Italian) << 0 << "ok       catalogue: language \"it\""
                                 << "no catalogue needed";
        QTest::newRow("damaged catalogue") << int(DamagedCatalogue) << 1 << "warning  catalogue:"
                                           << "cannot be loaded; ";
        QTest::newRow("no platform") << int(NoPlatform) << 2 << "problem  platform:"
                                     << "none is installed; machine \"VX3K\" needs \"1.2.0\"";
        QTest::newRow("old platform") << int(OldPlatform) << 2 << "problem  platform:"
                                      << "\"1.1.9\" is installed; machine \"VX3K\" needs";
        QTest::newRow("machine unknown to the platform")
            << int(UnknownMachine) << 1 << "warning  platform:"
            << "the platform store names no version for \"ZR5\"";
    }

    void checks()
    {
        QFETCH(int, broken);
        QFETCH(int, exitCode);
        QFETCH(QString, line);
        QFETCH(QString, text);
        QStringList wrapper;
        if ((broken & (StoreReadOnly | ProjectsReadOnly)) && isRoot()) {
            // root writes into any file and folder: ndxcom runs without the
            // capabilities that let it, and the permissions hold for it too.
            const QString setpriv = QStandardPaths::findExecutable(QStringLiteral("setpriv"));
            if (setpriv.isEmpty())
                QSKIP("root writes into read-only files, and setpriv (util-linux) is missing");
            wrapper << setpriv << QStringLiteral("--bounding-set=-dac_override,-dac_read_search");
        }
        if (broken & ForeignHost) {
#ifdef LOCKHOLDER
            if (!isRoot())
                QSKIP("another host name needs root (a UTS namespace)");
            // ndxcom on a computer of that name.
            wrapper << QStringLiteral(LOCKHOLDER) << QStringLiteral("--hostname")
                    << QStringLiteral("stazione-\u00e8.lan") << QStringLiteral("--exec");
#endif
        }
        QVERIFY(prepare(broken));
        QStringList extra;
        if (broken & StoreUnderAFile) {
            QVERIFY(makeFile(folder(QStringLiteral("file"))));
            extra << QStringLiteral("--user-dir") << folder(QStringLiteral("file/config"));
        }
        QByteArray translations;
        if (broken & DamagedCatalogue) {
            QVERIFY(makeFile(folder(QStringLiteral("qm/ndxcom_en.qm")), "not a catalogue"));
            translations = QFile::encodeName(folder(QStringLiteral("qm")));
        }
        const QStringList before
            = snapshot(NdxComTest::settingsRoot()) + snapshot(m_folders.path());
        NdxComTest::HangGuard guard("ndxcom-figure: ndxcom doctor hangs: 1", 60);
        const Run run = doctor(extra, wrapper, translations);
        const QString all = run.lines.join(QLatin1Char('\n')) + QLatin1Char('\n') + run.errors;
        QVERIFY2(run.exitCode == exitCode, qPrintable(all));
        QCOMPARE(run.lines.size(), 8); // one line a check, whatever breaks
        QStringList found;
        for (const QString &l : run.lines) {
            if (l.startsWith(line) && l.indexOf(text, line.size()) >= 0)
                found << l;
        }
        QVERIFY2(found.size() == 1, qPrintable(all));
        // A warning or a problem says what to do.
        if (!line.startsWith(QLatin1String("ok"))
            && !found.first().contains(QLatin1String("not checked")))
            QVERIFY2(found.first().contains(QLatin1String(" - ")), qPrintable(found.first()));
        // Only read: no settings file, lock file or probe written or left.
        QCOMPARE(snapshot(NdxComTest::settingsRoot()) + snapshot(m_folders.path()), before);
#ifndef Q_OS_WIN
        if (broken & ProjectsReadOnly)
            QFile(folder(QStringLiteral("progetti")))
                .setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner
                                | QFileDevice::ExeOwner);
#endif
    }

    void usage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no application") << QStringList {QStringLiteral("doctor")};
        QTest::newRow("an argument")
            << QStringList {QStringLiteral("doctor"), QStringLiteral("--organization"),
                            QStringLiteral("O"),      QStringLiteral("--application"),
                            QStringLiteral("A"),      QStringLiteral("extra")};
        QTest::newRow("unknown option")
            << QStringList {QStringLiteral("doctor"), QStringLiteral("--organization"),
                            QStringLiteral("O"),      QStringLiteral("--application"),
                            QStringLiteral("A"),      QStringLiteral("--fix")};
    }

    void usage()
    {
        QFETCH(QStringList, arguments);
        QProcess p;
        p.start(QStringLiteral(NDXCOM_TOOL), arguments);
        QVERIFY(p.waitForFinished(30000));
        QCOMPARE(p.exitCode(), 64);
        QVERIFY(p.readAllStandardError().contains("usage: ndxcom doctor"));
    }

    // An index line too long for the help ends its reading: the doctor says
    // so, and with --verbose the library's own diagnostic follows.
    void verbose_data()
    {
        QTest::addColumn<bool>("verbose");
        QTest::newRow("quiet") << false;
        QTest::newRow("--verbose") << true;
    }

    void verbose()
    {
        QFETCH(bool, verbose);
        QVERIFY(prepare(Healthy));
        QVERIFY(makeFile(folder(QStringLiteral("Macchine/M1/help/HelpMac.ini")),
                         "Main=index.htm\nLong=" + QByteArray(70000, 'x') + "\nAfter=x.htm\n"));
        const Run run = doctor(verbose ? QStringList {QStringLiteral("--verbose")} : QStringList());
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(
            run.lines.contains(QStringLiteral("warning  help index: \"%1\": 1 entries, read up "
                                              "to line 2, which is longer than 65536 "
                                              "characters - reinstall the machine's help")
                                   .arg(folder(QStringLiteral("Macchine/M1/help/HelpMac.ini")))),
            qPrintable(run.lines.join(QLatin1Char('\n'))));
        QCOMPARE(run.errors.contains(QLatin1String("ndxcom.help: help index: a line longer than")),
                 verbose);
    }
};

NDXCOM_TEST_MAIN(tst_NdxCom_Doctor)
#include "tst_ndxcom_doctor.moc"
