// The command-line views of the settings and the machine folders:
// "ndxcom settings" and "ndxcom paths".
#include <QNodrixRegistry>

#include "ndxcomtest.h"
#include "storetest.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif
#include <QtWidgets/QApplication>

using namespace StoreTest;

namespace {
struct Run
{
    int exitCode = -1;
    QStringList lines;
    QString errors;
};

Run ndxcom(const QStringList &arguments)
{
    QProcess p;
    p.start(QStringLiteral(NDXCOM_TOOL), arguments);
    Run run;
    if (!p.waitForFinished(60000) || p.exitStatus() != QProcess::NormalExit)
        return run;
    run.exitCode = p.exitCode();
    // On Windows the C runtime writes the tool's lines with CRLF.
    run.lines = QString::fromUtf8(p.readAllStandardOutput())
                    .replace(QLatin1String("\r\n"), QLatin1String("\n"))
                    .split(QLatin1Char('\n'));
    run.errors = QString::fromUtf8(p.readAllStandardError());
    return run;
}

QStringList scopes()
{
    return {QStringLiteral("--organization"), QCoreApplication::organizationName(),
            QStringLiteral("--application"),  QCoreApplication::applicationName(),
            QStringLiteral("--user-dir"),     userDir(),
            QStringLiteral("--system-dir"),   systemDir()};
}
} // namespace

class tst_NdxCom_Settings : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void settingsOfAnEmptyStore_data();
    void settingsOfAnEmptyStore();
    void settingsOfAWorkstation_data();
    void settingsOfAWorkstation();
    void settingsWritesNothing();
    void settingsUsage_data();
    void settingsUsage();
    void storeThatIsNoFile_data();
    void storeThatIsNoFile();
    void valuesPrintedVisibly();
    void platformVersionFlag_data();
    void platformVersionFlag();

    void helpReadsTheStore_data();
    void helpReadsTheStore();
    void version_data();
    void version();

    void paths_data();
    void paths();
    void pathsFromTheApplicationsSettings();
    void pathsUsage_data();
    void pathsUsage();

private:
    Run m_workstation;
    QTemporaryDir m_folders;
};

void tst_NdxCom_Settings::init()
{
    freshStores();
}

void tst_NdxCom_Settings::settingsOfAnEmptyStore_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("LastMachine") << QStringLiteral("LastMachine = \"\" (default)");
    QTest::newRow("GridColor") << QStringLiteral("GridColor = 3 (default)");
    QTest::newRow("Language") << QStringLiteral("Language = -1 (default) (code \"en\")");
    QTest::newRow("ShowOverview") << QStringLiteral("ShowOverview = false (default)");
    QTest::newRow("nameless group") << QStringLiteral("[Machines//Settings]");
    QTest::newRow("MachinePath")
        << QStringLiteral("MachinePath = \"%1\" (default)").arg(QDir::currentPath());
    QTest::newRow("HddPath") << QStringLiteral("HddPath = \"%1\" (default)").arg(QDir::homePath());
    QTest::newRow("LastBrowserMode") << QStringLiteral("LastBrowserMode = 1 (default)");
    QTest::newRow("maximize") << QStringLiteral("maximize = true (default)");
    QTest::newRow("recent group") << QStringLiteral("[Machines//Recent File List]");
    QTest::newRow("recentFileList") << QStringLiteral("recentFileList = () (default)");
    QTest::newRow("EnblHelpInfo") << QStringLiteral("EnblHelpInfo = false (default)");
    QTest::newRow("EnblUpdateMacLang") << QStringLiteral("EnblUpdateMacLang = false (default)");
    QTest::newRow("StitchZoomLevel") << QStringLiteral("StitchZoomLevel = 0 (default)");
    QTest::newRow("EnblCadVar") << QStringLiteral("EnblCadVar = true (always on, not read)");
    QTest::newRow("InstallVersion") << QStringLiteral("InstallVersion = \"\"");
}

void tst_NdxCom_Settings::settingsOfAnEmptyStore()
{
    QFETCH(QString, line);
    const Run run = ndxcom(QStringList {QStringLiteral("settings")} + scopes());
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.lines.contains(line), qPrintable(run.lines.join(QLatin1Char('\n'))));
}

void tst_NdxCom_Settings::settingsOfAWorkstation_data()
{
    QTest::addColumn<QString>("line");
    const QString kept = m_folders.path() + QStringLiteral("/progetti");
    const QString project = m_folders.path() + QStringLiteral("/a.ndx");
    QTest::newRow("LastMachine") << QStringLiteral("LastMachine = \"Linea 1\"");
    QTest::newRow("GridColor") << QStringLiteral("GridColor = 7");
    QTest::newRow("Language") << QStringLiteral("Language = 7 (code \"szh\")");
    QTest::newRow("machine group") << QStringLiteral("[Machines/Linea 1/Settings]");
    QTest::newRow("MachineName") << QStringLiteral("MachineName = \"VX3K\"");
    QTest::newRow("MachinePath") << QStringLiteral("MachinePath = \"/opt/vx3k\"");
    QTest::newRow("UsbPath default")
        << QStringLiteral("UsbPath = \"%1\" (default)").arg(QDir::homePath());
    QTest::newRow("ProjectsPathList")
        << QStringLiteral("ProjectsPathList = (\"%1\") (1 stored entries dropped)").arg(kept);
    QTest::newRow("LastGauge") << QStringLiteral("LastGauge = \"14\"");
    QTest::newRow("pos") << QStringLiteral("pos = (10, 20)");
    QTest::newRow("size") << QStringLiteral("size = 800 x 600");
    QTest::newRow("maximize") << QStringLiteral("maximize = false");
    QTest::newRow("recent")
        << QStringLiteral("recentFileList = (\"%1\") (1 stored entries dropped)").arg(project);
    QTest::newRow("EnblHelpInfo") << QStringLiteral("EnblHelpInfo = true");
    QTest::newRow("EnblUpdateMacLang") << QStringLiteral("EnblUpdateMacLang = true");
    QTest::newRow("StitchZoomLevel") << QStringLiteral("StitchZoomLevel = 30");
    QTest::newRow("InstallVersion") << QStringLiteral("InstallVersion = \"1.4.0\"");
    QTest::newRow("VersionEnv") << QStringLiteral("VersionEnv of \"VX3K\" = \"1.2.0\"");
}

void tst_NdxCom_Settings::settingsOfAWorkstation()
{
    QFETCH(QString, line);
    const QString kept = m_folders.path() + QStringLiteral("/progetti");
    const QString project = m_folders.path() + QStringLiteral("/a.ndx");
    QVERIFY(QDir().mkpath(kept));
    QVERIFY(writeFile(project, "NDX"));
    {
        QNodrixRegistry registry;
        registry.setGridColor(7);
        registry.setLanguage(QNodrixRegistry::eLanguageType_szh);
        registry.setLastMachine(QStringLiteral("Linea 1"));
        registry.setMachineName(QStringLiteral("VX3K"));
        registry.setMachinePath(QStringLiteral("/opt/vx3k"));
        registry.setLastGauge(QStringLiteral("14"));
        registry.saveMainWndPlacement(QPoint(10, 20), QSize(800, 600), QByteArray("st"), false);
        registry.setProjectsPathList({kept});
        registry.saveRecentFileList({project});
    }
    // Entries that vanished since they were stored are counted as dropped.
    {
        QSettings store;
        store.setValue(QStringLiteral("Machines/Linea 1/Settings/ProjectsPathList"),
                       QStringList {kept, QStringLiteral("/gone")});
        store.setValue(QStringLiteral("Machines/Linea 1/Recent File List/recentFileList"),
                       QStringList {QStringLiteral("/gone.ndx"), project});
        store.setValue(QStringLiteral("Environment/EnblHelpInfo"), true);
        store.setValue(QStringLiteral("Environment/EnblUpdateMacLang"), true);
        store.setValue(QStringLiteral("Environment/StitchZoomLevel"), 30);
    }
    QVERIFY(writeFile(platformStoreFile(),
                      "[General]\nInstallVersion=1.4.0\n[Machines]\n"
                      "ZR5\\VersionEnv=1.3\nVX3K\\VersionEnv=1.2.0\n"));
    const Run run = ndxcom(QStringList {QStringLiteral("settings")} + scopes());
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.lines.contains(line), qPrintable(run.lines.join(QLatin1Char('\n'))));
}

void tst_NdxCom_Settings::settingsWritesNothing()
{
    const QByteArray content = "[Settings]\nLastMachine=M\n\n[Machines]\nM\\Settings\\UsbPath=/u\n";
    QVERIFY(writeFile(userStoreFile(), content));
    const Run run = ndxcom(QStringList {QStringLiteral("settings")} + scopes());
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.lines.contains(QStringLiteral("UsbPath = \"/u\"")));
#ifdef Q_OS_WIN
    // The registry has no bytes to compare: its values are.
    QStringList keys = DiskStore(userStoreFile()).allKeys();
    keys.sort();
    QCOMPARE(keys,
             (QStringList {QStringLiteral("Machines/M/Settings/UsbPath"),
                           QStringLiteral("Settings/LastMachine")}));
#else
    QCOMPARE(readFile(userStoreFile()), content);
    QCOMPARE(QDir(userDir() + QStringLiteral("/NdxComTests")).entryList(QDir::Files),
             QStringList {QFileInfo(userStoreFile()).fileName()});
#endif
    QVERIFY(!QFileInfo::exists(platformStoreFile()));
}

void tst_NdxCom_Settings::settingsUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("help") << QStringList {QStringLiteral("--help")} << 0;
    QTest::newRow("no application")
        << QStringList {QStringLiteral("--organization"), QStringLiteral("O")} << 64;
    QTest::newRow("nothing") << QStringList {} << 64;
    QTest::newRow("unknown option") << QStringList {QStringLiteral("--frobnicate")} << 64;
    QTest::newRow("positional") << QStringList {
        QStringLiteral("--organization"), QStringLiteral("O"), QStringLiteral("--application"),
        QStringLiteral("A"),
        QStringLiteral("extra")} << 64;
}

void tst_NdxCom_Settings::settingsUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    const Run run = ndxcom(QStringList {QStringLiteral("settings")} + arguments);
    QCOMPARE(run.exitCode, exitCode);
    if (exitCode != 0)
        QVERIFY(run.errors.contains(QLatin1String("usage: ndxcom settings")));
}

// A store that is a FIFO, a folder or a device is reported and never read:
// QSettings would wait on a FIFO for a writer that never comes.
void tst_NdxCom_Settings::storeThatIsNoFile_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("kind");
#ifndef Q_OS_WIN
    for (const char *command : {"settings", "paths"}) {
        QTest::addRow("%s, FIFO", command)
            << QString::fromLatin1(command) << QStringLiteral("fifo");
        QTest::addRow("%s, folder", command)
            << QString::fromLatin1(command) << QStringLiteral("folder");
        QTest::addRow("%s, platform store FIFO", command)
            << QString::fromLatin1(command) << QStringLiteral("platform");
    }
#endif
}

void tst_NdxCom_Settings::storeThatIsNoFile()
{
#ifdef Q_OS_WIN
    QSKIP("the native stores are registry keys on Windows");
#else
    QFETCH(QString, command);
    QFETCH(QString, kind);
    const QString store = kind == QLatin1String("platform") ? platformStoreFile() : userStoreFile();
    QFile::remove(store);
    QVERIFY(QDir().mkpath(QFileInfo(store).absolutePath()));
    if (kind == QLatin1String("folder"))
        QVERIFY(QDir().mkpath(store));
    else
        QCOMPARE(::mkfifo(QFile::encodeName(store).constData(), 0600), 0);
    QStringList arguments = QStringList {command} + scopes();
    if (command == QLatin1String("paths"))
        arguments << QStringLiteral("--gauge") << QStringLiteral("14")
                  << QStringLiteral("--diameter") << QStringLiteral("13");
    const Run run = ndxcom(arguments);
    QDir(store).removeRecursively();
    QFile::remove(store);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.errors.contains(QLatin1String(" is not a regular file")), qPrintable(run.errors));
#endif
}

// Values from the store cannot drive the terminal: control characters are
// printed as escapes.
void tst_NdxCom_Settings::valuesPrintedVisibly()
{
    const QByteArray content = "[Settings]\nLastMachine=\"M\\x1b]0;x\\a\\x1b[2J\\nstate: free\"\n";
    QVERIFY(writeFile(userStoreFile(), content));
    const Run run = ndxcom(QStringList {QStringLiteral("settings")} + scopes());
    QCOMPARE(run.exitCode, 0);
    const QString all = run.lines.join(QLatin1Char('\n'));
    QVERIFY2(!all.contains(QChar(0x1b)) && !all.contains(QChar(0x07)), qPrintable(all));
    QVERIFY2(!run.lines.contains(QStringLiteral("state: free\"")), qPrintable(all));
}

// An installed platform older than the machine needs is flagged on its line;
// the versions compare as the suite compares them.
void tst_NdxCom_Settings::platformVersionFlag_data()
{
    QTest::addColumn<QByteArray>("installed"); // "-": no InstallVersion key
    QTest::addColumn<QByteArray>("needed"); // "-": the machine is not in the store
    QTest::addColumn<QString>("line");
    const auto plain = [](const char *v) {
        return QStringLiteral("InstallVersion = \"%1\"").arg(QLatin1String(v));
    };
    QTest::newRow("newer") << QByteArray("1.4.0") << QByteArray("1.2.0") << plain("1.4.0");
    QTest::newRow("equal") << QByteArray("1.2.0") << QByteArray("1.2.0") << plain("1.2.0");
    QTest::newRow("older") << QByteArray("1.1.9") << QByteArray("1.2.0")
                           << QStringLiteral("InstallVersion = \"1.1.9\" (older than the needed "
                                             "\"1.2.0\")");
    QTest::newRow("older by a field")
        << QByteArray("1.2.0") << QByteArray("1.10.0")
        << QStringLiteral("InstallVersion = \"1.2.0\" (older than the needed \"1.10.0\")");
    QTest::newRow("missing") << QByteArray("-") << QByteArray("1.2.0")
                             << QStringLiteral("InstallVersion = \"\" (missing: \"VX3K\" needs "
                                               "\"1.2.0\")");
    QTest::newRow("nothing needed") << QByteArray("1.0.0") << QByteArray("-") << plain("1.0.0");
}

void tst_NdxCom_Settings::platformVersionFlag()
{
    QFETCH(QByteArray, installed);
    QFETCH(QByteArray, needed);
    QFETCH(QString, line);
    {
        QNodrixRegistry registry;
        registry.setLastMachine(QStringLiteral("Linea 1"));
        registry.setMachineName(QStringLiteral("VX3K"));
    }
    QByteArray store = "[General]\n";
    if (installed != "-")
        store += "InstallVersion=" + installed + "\n";
    if (needed != "-")
        store += "[Machines]\nVX3K\\VersionEnv=" + needed + "\n";
    QVERIFY(writeFile(platformStoreFile(), store));
    const Run run = ndxcom(QStringList {QStringLiteral("settings")} + scopes());
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.lines.contains(line), qPrintable(run.lines.join(QLatin1Char('\n'))));
}

// `ndxcom help` reads the same settings `ndxcom settings` does, from the
// folders it is given: the machine folder of the address comes from there.
void tst_NdxCom_Settings::helpReadsTheStore_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("line");
    // "@scopes" stands for every store option, "@user" for the user folder
    // alone: the folders are made afresh for each row.
    const QStringList dlg {QStringLiteral("QDlgCmdDeviceMpp")};
    QTest::newRow("store folders") << (QStringList {QStringLiteral("@scopes")} + dlg) << 0
                                   << QStringLiteral("address = file:///opt/vx3k/help/en/");
    QTest::newRow("user folder only") << (QStringList {QStringLiteral("@user")} + dlg) << 0
                                      << QStringLiteral("address = file:///opt/vx3k/help/en/");
    QTest::newRow("--user-dir without a folder")
        << QStringList {QStringLiteral("--user-dir")} << 64 << QString();
    QTest::newRow("--list with a class")
        << QStringList {QStringLiteral("--list"), QStringLiteral("QDlgCmdDeviceMpp")} << 64
        << QString();
    QTest::newRow("--list") << QStringList {QStringLiteral("--list")} << 0
                            << QStringLiteral("QDlgCmdDeviceMpp");
    QTest::newRow("--help") << QStringList {QStringLiteral("--help")} << 0
                            << QStringLiteral("  --user-dir <folder>");
}

void tst_NdxCom_Settings::helpReadsTheStore()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, line);
    {
        QNodrixRegistry registry;
        registry.setLastMachine(QStringLiteral("Linea 1"));
        registry.setMachinePath(QStringLiteral("/opt/vx3k"));
    }
    QStringList expanded;
    for (const QString &a : arguments) {
        if (a == QLatin1String("@scopes"))
            expanded += scopes();
        else if (a == QLatin1String("@user"))
            expanded += scopes().mid(0, 6);
        else
            expanded << a;
    }
    const Run run = ndxcom(QStringList {QStringLiteral("help")} + expanded);
    QVERIFY2(run.exitCode == exitCode, qPrintable(run.lines.join(QLatin1Char('\n')) + run.errors));
    if (exitCode != 0)
        QVERIFY(run.errors.contains(QLatin1String("usage: ndxcom help")));
    for (const QString &l : run.lines) {
        if (l.startsWith(line))
            return;
    }
    QFAIL(qPrintable(QStringLiteral("no line starting with '%1' in:\n%2")
                         .arg(line, run.lines.join(QLatin1Char('\n')))));
}

void tst_NdxCom_Settings::version_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("program") << QStringLiteral("ndxcom 1.2.0");
    QTest::newRow("library") << QStringLiteral("NdxCom 1.2.0 (libNdxCom%1, Qt %2)")
                                    .arg(QT_VERSION_MAJOR == 5 ? QStringLiteral("Qt5") : QString(),
                                         QLatin1String(qVersion()));
}

void tst_NdxCom_Settings::version()
{
    QFETCH(QString, line);
    const Run run = ndxcom({QStringLiteral("--version")});
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.lines.contains(line), qPrintable(run.lines.join(QLatin1Char('\n'))));
}

void tst_NdxCom_Settings::paths_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("lines");
    const QStringList m {QStringLiteral("--machine-path"), QStringLiteral("/opt/m")};
    QTest::newRow("machine folders")
        << (m
            + QStringList {QStringLiteral("--gauge"), QStringLiteral("14"),
                           QStringLiteral("--diameter"), QStringLiteral("13")})
        << QStringList {QStringLiteral("machinePath = \"/opt/m\""),
                        QStringLiteral("machineData = \"/opt/m/_mac/\""),
                        QStringLiteral("machineResource = \"/opt/m/_res/\""),
                        QStringLiteral("machineResCmdIco = \"/opt/m/_res/CmdIco/\""),
                        QStringLiteral("machineResMglMap = \"/opt/m/_res/MglMap/\""),
                        QStringLiteral("machineHelp = \"/opt/m/help/\""),
                        QStringLiteral("machineCode = \"/opt/m/Code/\""),
                        QStringLiteral("gaugeDiamSubDir = \"14-GG/13-DIAM\""),
                        QStringLiteral("kd5Dir = \"C:/KARTA5/ZR5-VX3K_Nodrix/\""),
                        QStringLiteral("kd5Dis = \"C:/KARTA5/ZR5-VX3K_Nodrix/Dis/\""),
                        QStringLiteral("configGaugeDiamPath = "
                                       "\"C:/KARTA5/ZR5-VX3K_Nodrix/Dis/14-GG/13-DIAM\"")};
    QTest::newRow("zero") << (m
                              + QStringList {QStringLiteral("--gauge"), QStringLiteral("0"),
                                             QStringLiteral("--diameter"), QStringLiteral("0")})
                          << QStringList {QStringLiteral("gaugeDiamSubDir = \"0-GG/0-DIAM\"")};
    QTest::newRow("configuration with backslashes")
        << (m
            + QStringList {QStringLiteral("--gauge"), QStringLiteral("14"),
                           QStringLiteral("--diameter"), QStringLiteral("13"),
                           QStringLiteral("--base"), QStringLiteral("C:\\Mac\\Cfg\\12-GG"),
                           QStringLiteral("--config"), QStringLiteral("Cfg")})
        << QStringList {QStringLiteral("configGaugeDiamPath = \"C:/Mac/Cfg/14-GG/13-DIAM\"")};
    QTest::newRow("empty base")
        << (m
            + QStringList {QStringLiteral("--gauge=7"), QStringLiteral("--diameter=30"),
                           QStringLiteral("--base="), QStringLiteral("--config=Cfg")})
        << QStringList {QStringLiteral("configGaugeDiamPath = \"/Cfg/7-GG/30-DIAM\"")};
}

void tst_NdxCom_Settings::paths()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, lines);
    const Run run = ndxcom(QStringList {QStringLiteral("paths")} + arguments);
    QCOMPARE(run.exitCode, 0);
    for (const QString &line : lines)
        QVERIFY2(
            run.lines.contains(line),
            qPrintable(line + QStringLiteral(" not in:\n") + run.lines.join(QLatin1Char('\n'))));
}

void tst_NdxCom_Settings::pathsFromTheApplicationsSettings()
{
    {
        QNodrixRegistry registry;
        registry.setLastMachine(QStringLiteral("M"));
        registry.setMachinePath(QStringLiteral("/srv/macchina"));
    }
    QStringList arguments {QStringLiteral("paths"), QStringLiteral("--gauge"), QStringLiteral("5"),
                           QStringLiteral("--diameter"), QStringLiteral("20")};
    arguments << scopes();
    const Run run = ndxcom(arguments);
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.lines.contains(QStringLiteral("machinePath = \"/srv/macchina\"")));
    QVERIFY(run.lines.contains(QStringLiteral("machineHelp = \"/srv/macchina/help/\"")));
    QVERIFY(run.lines.contains(QStringLiteral("gaugeDiamSubDir = \"5-GG/20-DIAM\"")));
}

void tst_NdxCom_Settings::pathsUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("no gauge") << QStringList {QStringLiteral("--diameter"), QStringLiteral("13")};
    QTest::newRow("no diameter") << QStringList {QStringLiteral("--gauge"), QStringLiteral("13")};
    QTest::newRow("not a number") << QStringList {QStringLiteral("--gauge"), QStringLiteral("x"),
                                                  QStringLiteral("--diameter"),
                                                  QStringLiteral("1")};
    QTest::newRow("both sources") << QStringList {
        QStringLiteral("--gauge=1"), QStringLiteral("--diameter=1"),
        QStringLiteral("--machine-path=/m"), QStringLiteral("--organization=O"),
        QStringLiteral("--application=A")};
    QTest::newRow("half an application")
        << QStringList {QStringLiteral("--gauge=1"), QStringLiteral("--diameter=1"),
                        QStringLiteral("--organization=O")};
}

void tst_NdxCom_Settings::pathsUsage()
{
    QFETCH(QStringList, arguments);
    const Run run = ndxcom(QStringList {QStringLiteral("paths")} + arguments);
    QCOMPARE(run.exitCode, 64);
    QVERIFY(run.errors.contains(QLatin1String("usage: ndxcom paths")));
}

NDXCOM_TEST_MAIN(tst_NdxCom_Settings)
#include "tst_ndxcom_settings.moc"
