// Bad and hostile stores: garbage, values of the wrong kind, damaged
// workstation stores and files that cannot be written. Every store counts in
// the hostile settings files figure the program reports.
#include <QNodrixRegistry>

#include "accessors.h"
#include "hostilestore.h"
#include "ndxcomtest.h"
#include "storetest.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace StoreTest;
using namespace HostileStore;

class tst_QNodrixRegistry_Stores : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase();

    void garbageStore_data();
    void garbageStore();
    void garbageBetweenGroups();
    void wrongKinds_data();
    void wrongKinds();
    void wrongKindsKeepOtherValues();
    void unwritableStore_data();
    void unwritableStore();
    void garbagePlatformStore();
    void hostileStores_data();
    void hostileStores();
};

void tst_QNodrixRegistry_Stores::init()
{
#ifdef Q_OS_WIN
    QSKIP("the Windows store is the registry, not a file: tst_qnodrixregistry_registry tries "
          "hostile registry values instead");
#endif
    freshStores();
}

void tst_QNodrixRegistry_Stores::cleanupTestCase()
{
    // Garbage values that QSettings itself cannot write back are not counted
    // as checked (see valuesToKeep()); the figure says how many there were.
#ifndef Q_OS_WIN
    qInfo("ndxcom-figure: hostile settings files tried: %d, crashes: 0, values lost: %d, "
          "values checked: %d, garbage values QSettings itself cannot write back: %d",
          tally().files, tally().lost, tally().checked, tally().unwritable);
#endif
}

void tst_QNodrixRegistry_Stores::garbageStore_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("random 4 KiB") << garbage(4096, 1);
    QTest::newRow("random 256 KiB") << garbage(256 * 1024, 2);
    QTest::newRow("random, no quotes") << garbage(64 * 1024, 3, "\"");
    QTest::newRow("zero bytes") << QByteArray(8192, '\0');
    QTest::newRow("0xFF bytes") << QByteArray(8192, '\xff');
    QTest::newRow("one long line") << QByteArray(1 << 20, 'x');
    QTest::newRow("unterminated section") << QByteArray("[Settings\nGridColor 9\n");
    QTest::newRow("unbalanced quote") << QByteArray("\"[Settings]\nGridColor=9\n");
    QTest::newRow("lone backslashes") << QByteArray("\\\\\\\n\\\r\\");
    QTest::newRow("equals only") << QByteArray("=\n==\n=\"=\n");
    QTest::newRow("utf-8 BOM and garbage") << QByteArray("\xef\xbb\xbf") + garbage(1024, 4);
    QTest::newRow("utf-16 text") << bytes("\xff\xfe[\0S\0e\0t\0]\0\n\0");
    QTest::newRow("broken typed values")
        << bytes("[X]\na=@Point(\nb=@Size(1\nc=@ByteArray(\nd=@Variant(\x01\x02\xff\n"
                 "e=@Variant(\0\0\0\x09\0\xff\xff\xff\xf0)\nf=@Rect(a b c d)\n");
}

void tst_QNodrixRegistry_Stores::garbageStore()
{
    // Nothing crashes, every reader gives its default, and the next writes
    // make a file that holds them.
    QFETCH(QByteArray, content);
    QVERIFY(writeFile(userStoreFile(), content));
    ++tally().files;
    const StoreValues before = valuesToKeep(userStoreFile(), &tally().unwritable);
    {
        QNodrixRegistry registry;
        readEverything(registry);
        verifyDefaults(registry);
        if (QTest::currentTestFailed())
            return;

        registry.setLastMachine(QStringLiteral("M"));
        for (const Accessor &a : accessors()) {
            if (a.getter != QLatin1String("getLastMachine"))
                a.set(registry, a.sample);
        }
        for (const Accessor &a : accessors()) {
            if (a.getter != QLatin1String("getLastMachine"))
                QCOMPARE(a.get(registry), a.sample);
        }
    }
    const DiskStore disk(userStoreFile());
    QStringList written {QStringLiteral("Settings/LastMachine")};
    for (const Accessor &a : accessors()) {
        if (a.getter == QLatin1String("getLastMachine"))
            continue;
        written << a.storedKey(QStringLiteral("M"));
        QCOMPARE(disk.value(a.storedKey(QStringLiteral("M"))).toString(), a.sample.toString());
    }
    QCOMPARE(disk.value(QStringLiteral("Settings/LastMachine")).toString(), QStringLiteral("M"));
    // Whatever a plain reader made of the garbage is still there.
    QCOMPARE(checkOthersKept(before, userStoreFile(), written, QStringList()), 0);
}

void tst_QNodrixRegistry_Stores::garbageBetweenGroups()
{
    // Garbage lines inside a file that also holds good values: the good
    // values are read, and survive the next writes.
    const QByteArray noise = garbage(2000, 7, QByteArray("\"\\\n\r=;[", 7));
    const QByteArray content = "[Keep]\nvalue=kept\n" + noise + "\n[Settings]\nGridColor=9\n"
        + noise + "\nLastMachine=M\n[Machines]\nM\\Settings\\MachinePath=/opt/m\n" + noise
        + "\n[Environment]\nEnblHelpInfo=true\n" + noise + "\n";
    QVERIFY(writeFile(userStoreFile(), content));
    ++tally().files;
    {
        QNodrixRegistry registry;
        QCOMPARE(registry.getGridColor(), 9);
        QCOMPARE(registry.getLastMachine(), QStringLiteral("M"));
        QCOMPARE(registry.getMachinePath(), QStringLiteral("/opt/m"));
        QCOMPARE(QNodrixRegistry::machinePath(), QStringLiteral("/opt/m"));
        QCOMPARE(QNodrixRegistry::environmentEnblHelpInfo(), true);
        registry.setProjectsPath(QStringLiteral("/srv/p"));
        registry.setLastGauge(QStringLiteral("14"));
    }
    const DiskStore disk(userStoreFile());
    QVERIFY(kept(disk, QStringLiteral("Keep/value"), QStringLiteral("kept")));
    QVERIFY(kept(disk, QStringLiteral("Settings/GridColor"), QStringLiteral("9")));
    QVERIFY(kept(disk, QStringLiteral("Settings/LastMachine"), QStringLiteral("M")));
    QVERIFY(
        kept(disk, QStringLiteral("Machines/M/Settings/MachinePath"), QStringLiteral("/opt/m")));
    QVERIFY(kept(disk, QStringLiteral("Environment/EnblHelpInfo"), QStringLiteral("true")));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/Settings/ProjectsPath")).toString(),
             QStringLiteral("/srv/p"));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/SettingsRecent/LastGauge")).toString(),
             QStringLiteral("14"));
}

void tst_QNodrixRegistry_Stores::wrongKinds_data()
{
    QTest::addColumn<QString>("getter");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QVariant>("expected");
    // What QVariant's conversion makes of them: 0, false or empty - and for
    // a key that is present the default is not used.
    QTest::newRow("GridColor text") << "getGridColor" << QByteArray("abc") << QVariant(0);
    QTest::newRow("GridColor list") << "getGridColor" << QByteArray("1, 2") << QVariant(0);
    QTest::newRow("GridColor point") << "getGridColor" << QByteArray("@Point(1 2)") << QVariant(0);
    QTest::newRow("Language point") << "getLanguage" << QByteArray("@Point(1 2)") << QVariant(0);
    QTest::newRow("Language text") << "getLanguage" << QByteArray("en") << QVariant(0);
    QTest::newRow("ShowOverview point")
        << "getShowOverview" << QByteArray("@Point(1 2)") << QVariant(false);
    QTest::newRow("ShowOverview list")
        << "getShowOverview" << QByteArray("a, b") << QVariant(false);
    QTest::newRow("MachineName size")
        << "getMachineName" << QByteArray("@Size(1 2)") << QVariant(QString());
    QTest::newRow("MachinePath list")
        << "getMachinePath" << QByteArray("/a, /b") << QVariant(QString());
    QTest::newRow("MachinePath bytes") << "getMachinePath" << QByteArray("@ByteArray(/opt/m)")
                                       << QVariant(QStringLiteral("/opt/m"));
    QTest::newRow("HddPath point")
        << "getHddPath" << QByteArray("@Point(0 0)") << QVariant(QString());
    QTest::newRow("UsbPath empty") << "getUsbPath" << QByteArray("") << QVariant(QString());
    QTest::newRow("LastGauge number") << "getLastGauge" << QByteArray("14") << QVariant("14");
    QTest::newRow("LastBrowserMode text")
        << "getLastBrowserMode" << QByteArray("tree") << QVariant(0);
    QTest::newRow("LastBrowserMode rect")
        << "getLastBrowserMode" << QByteArray("@Rect(1 2 3 4)") << QVariant(0);
}

void tst_QNodrixRegistry_Stores::wrongKinds()
{
    QFETCH(QString, getter);
    QFETCH(QByteArray, value);
    QFETCH(QVariant, expected);
    const Accessor *a = accessor(getter);
    QVERIFY(a);
    const QString key = a->storedKey(QStringLiteral("M"));
    const int slash = key.indexOf(QLatin1Char('/'));
    QByteArray rest = key.mid(slash + 1).toUtf8();
    rest.replace('/', '\\');
    QVERIFY(writeFile(userStoreFile(),
                      "[Settings]\nLastMachine=M\n[" + key.left(slash).toUtf8() + "]\n" + rest + "="
                          + value + "\n"));
    ++tally().files;
    QNodrixRegistry registry;
    QCOMPARE(a->get(registry), expected);
    if (getter == QLatin1String("getMachinePath"))
        QCOMPARE(QVariant(QNodrixRegistry::machinePath()), expected);
    if (getter == QLatin1String("getUsbPath"))
        QCOMPARE(QVariant(QNodrixRegistry::usbPath()), expected);
    if (getter == QLatin1String("getLanguage"))
        QCOMPARE(QVariant(int(QNodrixRegistry::keyLanguage())), expected);
}

void tst_QNodrixRegistry_Stores::wrongKindsKeepOtherValues()
{
    const QByteArray content
        = "[Settings]\nGridColor=abc\nLastMachine=M\nLanguage=@Point(1 2)\n"
          "[Machines]\nM\\Settings\\ProjectsPathList=@Size(3 4)\n"
          "M\\Recent%20File%20List\\recentFileList=@Point(1 2)\n"
          "M\\MainWindow\\pos=@Size(5 6)\n"
          "[Environment]\nEnblHelpInfo=@Point(1 2)\nStitchZoomLevel=@Size(1 2)\n";
    QVERIFY(writeFile(userStoreFile(), content));
    ++tally().files;
    {
        QNodrixRegistry registry;
        QCOMPARE(registry.getGridColor(), 0);
        QCOMPARE(registry.getProjectsPathList(), QStringList());
        QStringList files {QStringLiteral("x")};
        registry.loadRecentFileList(&files);
        QCOMPARE(files, QStringList());
        QPoint p(1, 1);
        registry.loadMainWndPlacement(&p, nullptr, nullptr);
        QCOMPARE(p, QPoint());
        QCOMPARE(QNodrixRegistry::environmentEnblHelpInfo(), false);
        QCOMPARE(QNodrixRegistry::environmentStitchZoomLevel(), 0);
        registry.setLastCfg(QStringLiteral("cfg"));
        registry.setShowOverview(true);
    }
    // The writes rewrote the file; the values of the other keys and groups
    // are all still there, with their kinds.
    const DiskStore disk(userStoreFile());
    QVERIFY(kept(disk, QStringLiteral("Settings/GridColor"), QStringLiteral("abc")));
    QVERIFY(kept(disk, QStringLiteral("Settings/Language"), QVariant(QPoint(1, 2))));
    QVERIFY(
        kept(disk, QStringLiteral("Machines/M/Settings/ProjectsPathList"), QVariant(QSize(3, 4))));
    QVERIFY(kept(disk, QStringLiteral("Machines/M/Recent File List/recentFileList"),
                 QVariant(QPoint(1, 2))));
    QVERIFY(kept(disk, QStringLiteral("Machines/M/MainWindow/pos"), QVariant(QSize(5, 6))));
    QVERIFY(kept(disk, QStringLiteral("Environment/EnblHelpInfo"), QVariant(QPoint(1, 2))));
    QVERIFY(kept(disk, QStringLiteral("Environment/StitchZoomLevel"), QVariant(QSize(1, 2))));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/SettingsRecent/LastCfg")).toString(),
             QStringLiteral("cfg"));
    QCOMPARE(disk.value(QStringLiteral("SettingsRecent/ShowOverview")).toString(),
             QStringLiteral("true"));
}

void tst_QNodrixRegistry_Stores::unwritableStore_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<bool>("readable");
    QTest::newRow("read-only file") << QStringLiteral("file") << true;
    QTest::newRow("read-only folder") << QStringLiteral("folder") << true;
    QTest::newRow("read-only folder, no file") << QStringLiteral("empty folder") << false;
    QTest::newRow("folder in place of the file") << QStringLiteral("file is folder") << false;
    QTest::newRow("file in place of the folder") << QStringLiteral("folder is file") << false;
}

void tst_QNodrixRegistry_Stores::unwritableStore()
{
    QFETCH(QString, how);
    QFETCH(bool, readable);
    const QString file = userStoreFile();
    const QString folder = QFileInfo(file).absolutePath();
    const QByteArray content = "[Keep]\nvalue=kept\n\n[Settings]\nGridColor=9\nLastMachine=M\n\n"
                               "[Machines]\nM\\Settings\\MachinePath=/opt/m\n";
    ReadOnlyGuard guard;
    if (how == QLatin1String("file") || how == QLatin1String("folder")) {
        QVERIFY(writeFile(file, content));
        if (!guard.makeReadOnly(how == QLatin1String("file") ? file : folder))
            QSKIP("this file system cannot make a file read-only for root");
    } else if (how == QLatin1String("empty folder")) {
        QVERIFY(QDir().mkpath(folder));
        if (!guard.makeReadOnly(folder))
            QSKIP("this file system cannot make a folder read-only for root");
    } else if (how == QLatin1String("file is folder")) {
        QVERIFY(QDir().mkpath(file));
    } else {
        QVERIFY(QDir().mkpath(QFileInfo(folder).absolutePath()));
        QVERIFY(writeFile(folder, "not a folder"));
    }

    ++tally().files;
    {
        QNodrixRegistry registry;
        readEverything(registry);
        if (readable) {
            QCOMPARE(registry.getGridColor(), 9);
            QCOMPARE(registry.getMachinePath(), QStringLiteral("/opt/m"));
            QCOMPARE(QNodrixRegistry::machinePath(), QStringLiteral("/opt/m"));
        } else {
            verifyDefaults(registry);
        }
        // Writing fails quietly; the change lives on in this process's store
        // only.
        registry.setGridColor(4);
        registry.setLastCfg(QStringLiteral("cfg"));
        registry.saveMainWndPlacement(QPoint(1, 2), QSize(3, 4), QByteArray("s"), false);
        QNodrixRegistry::updateUsbPath(QStringLiteral("/media/u"));
        QCOMPARE(registry.getGridColor(), 4);
        QCOMPARE(registry.getLastCfg(), QStringLiteral("cfg"));
        QSettings store;
        store.sync();
        QCOMPARE(store.status(), QSettings::AccessError);
    }
    // Nothing on disk changed, and nothing else was left behind.
    if (how == QLatin1String("file") || how == QLatin1String("folder")) {
        QCOMPARE(readFile(file), content);
        const DiskStore disk(file);
        QVERIFY(kept(disk, QStringLiteral("Keep/value"), QStringLiteral("kept")));
        QVERIFY(kept(disk, QStringLiteral("Settings/GridColor"), QStringLiteral("9")));
        QVERIFY(kept(disk, QStringLiteral("Settings/LastMachine"), QStringLiteral("M")));
        QVERIFY(kept(disk, QStringLiteral("Machines/M/Settings/MachinePath"),
                     QStringLiteral("/opt/m")));
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden),
                 QStringList {QFileInfo(file).fileName()});
    } else if (how == QLatin1String("empty folder")) {
        QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                 QStringList());
    } else if (how == QLatin1String("file is folder")) {
        QVERIFY(QFileInfo(file).isDir());
    } else {
        QCOMPARE(readFile(folder), QByteArray("not a folder"));
    }
}

void tst_QNodrixRegistry_Stores::garbagePlatformStore()
{
    QVERIFY(writeFile(platformStoreFile(), garbage(16384, 11)));
    ++tally().files;
    QNodrixRegistry registry;
    registry.setMachineName(QStringLiteral("VX3K"));
    QCOMPARE(registry.getNodrixEnvVersInst(), QString());
    QCOMPARE(registry.getNodrixEnvVersNeeded(), QString());
    // A folder in place of the platform store.
    freshStores();
    QVERIFY(QDir().mkpath(platformStoreFile()));
    ++tally().files;
    QNodrixRegistry other;
    other.setMachineName(QStringLiteral("VX3K"));
    QCOMPARE(other.getNodrixEnvVersInst(), QString());
    QCOMPARE(other.getNodrixEnvVersNeeded(), QString());
}

void tst_QNodrixRegistry_Stores::hostileStores_data()
{
    QTest::addColumn<QByteArray>("content");
    for (int kind = 0; kind < hostileKindCount; ++kind) {
        for (int seed = 1; seed <= hostileSeedsPerKind; ++seed)
            QTest::addRow("%s %d", hostileKinds[kind], seed) << hostileStore(kind, quint32(seed));
    }
}

void tst_QNodrixRegistry_Stores::hostileStores()
{
    // A workstation's store damaged in one way: every reader answers, and
    // after the library's writes every value that a plain QSettings read from
    // the file before is still there, unless the library wrote that key.
    QFETCH(QByteArray, content);
    // Qt's own warning on what the damage makes of the file, as often as it
    // reads the damaged part: a typed value of a type that does not exist
    // (here and in the library's reads of its keys). A recent list's name
    // holding a zero byte is dropped without asking the file system, which
    // would warn about it: no other warning may come.
    const NdxComTest::ExpectedWarnings invalidType(QRegularExpression(
        QStringLiteral("^Trying to construct an instance of an invalid type, type id: \\d+$")));
    QVERIFY(writeFile(userStoreFile(), content));
    ++tally().files;
    const StoreValues before = valuesToKeep(userStoreFile(), &tally().unwritable);
    {
        QNodrixRegistry registry;
        readEverything(registry);
        registry.setGridColor(12);
        registry.setShowOverview(true);
        registry.setLastCfg(QStringLiteral("cfg"));
        QNodrixRegistry::updateUsbPath(QStringLiteral("/media/u"));
        registry.saveMainWndPlacement(QPoint(1, 2), QSize(3, 4), QByteArray("s"), false);
        registry.saveRecentFileList(QStringList());
        registry.setProjectsPathList(QStringList());
        QCOMPARE(registry.getGridColor(), 12);
        QCOMPARE(registry.getLastCfg(), QStringLiteral("cfg"));
    }
    const QStringList written {QStringLiteral("Settings/GridColor"),
                               QStringLiteral("SettingsRecent/ShowOverview")};
    const QStringList writtenMachineLeaves {QStringLiteral("LastCfg"),
                                            QStringLiteral("UsbPath"),
                                            QStringLiteral("pos"),
                                            QStringLiteral("size"),
                                            QStringLiteral("state"),
                                            QStringLiteral("maximize"),
                                            QStringLiteral("recentFileList"),
                                            QStringLiteral("ProjectsPathList")};
    QCOMPARE(checkOthersKept(before, userStoreFile(), written, writtenMachineLeaves), 0);
}

NDXCOM_TEST_MAIN(tst_QNodrixRegistry_Stores)
#include "tst_qnodrixregistry_stores.moc"
