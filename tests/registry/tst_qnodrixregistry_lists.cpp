// Window placement, the recent project files and the three folder lists.
#include <QNodrixRegistry>

#include "ndxcomtest.h"
#include "storetest.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace StoreTest;

namespace {
using ListSetter = void (QNodrixRegistry::*)(const QStringList &);
using ListGetter = QStringList (QNodrixRegistry::*)();

struct FolderList
{
    const char *key;
    ListSetter set;
    ListGetter get;
};

const FolderList folderLists[] = {
    {"ProjectsPathList", &QNodrixRegistry::setProjectsPathList,
     &QNodrixRegistry::getProjectsPathList},
    {"RepositoryPathList", &QNodrixRegistry::setRepositoryPathList,
     &QNodrixRegistry::getRepositoryPathList},
    {"ProjectLinkPathList", &QNodrixRegistry::setProjectLinkPathList,
     &QNodrixRegistry::getProjectLinkPathList},
};

const FolderList *folderList(const QByteArray &key)
{
    for (const FolderList &l : folderLists) {
        if (key == l.key)
            return &l;
    }
    return nullptr;
}

void addFolderListRows()
{
    QTest::addColumn<QByteArray>("list");
    for (const FolderList &l : folderLists)
        QTest::newRow(l.key) << QByteArray(l.key);
}

bool touch(const QString &path)
{
    return writeFile(path, "NDX");
}
} // namespace

class tst_QNodrixRegistry_Lists : public QObject
{
    Q_OBJECT

private slots:
    void init();

    // Window placement
    void placementNeverSaved();
    void placementRoundTrip_data();
    void placementRoundTrip();
    void placementKeys();
    void placementPerMachine();
    void placementPartlyStored();
    void placementFromFile_data();
    void placementFromFile();
    void placementNullPointers();

    // Recent files
    void recentFilesEdgeCase();
    void recentFilesFilter_data();
    void recentFilesFilter();
    void recentFilesStoredUnderBlankGroup_data();
    void recentFilesStoredUnderBlankGroup();
    void recentFilesFilteredAgainOnLoad();
    void recentFilesLoadReplacesContent();
    void recentFilesCallerListUnchanged();
    void recentFilesEmptyList();
    void recentFilesRelativePaths();
    void recentFilesNoLimit();
    void recentFilesFromFile_data();
    void recentFilesFromFile();
    void recentFilesPerMachine();
    void recentFilesNullPointer();

    // Folder lists
    void folderListFilter_data();
    void folderListFilter();
    void folderListLosesFolderBetweenWriteAndRead_data();
    void folderListLosesFolderBetweenWriteAndRead();
    void folderListEmpty_data();
    void folderListEmpty();
    void folderListsAreSeparate();
    void folderListPerMachine_data();
    void folderListPerMachine();

private:
    QTemporaryDir m_files;
};

void tst_QNodrixRegistry_Lists::init()
{
    freshStores();
}

// ---------------------------------------------------------------------------
// Window placement
// ---------------------------------------------------------------------------
void tst_QNodrixRegistry_Lists::placementNeverSaved()
{
    QNodrixRegistry registry;
    registry.setLastMachine(QStringLiteral("M"));
    QPoint pos(11, 22);
    QSize size(333, 444);
    QByteArray state("caller");
    QCOMPARE(registry.loadMainWndPlacement(&pos, &size, &state), true);
    QCOMPARE(pos, QPoint(11, 22));
    QCOMPARE(size, QSize(333, 444));
    QCOMPARE(state, QByteArray("caller"));
    // Reading writes nothing.
    flushUserStore();
    QVERIFY(!DiskStore(userStoreFile()).contains(QStringLiteral("Machines/M/MainWindow/maximize")));
}

void tst_QNodrixRegistry_Lists::placementRoundTrip_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<bool>("maximize");
    QTest::newRow("not maximized")
        << QPoint(10, 20) << QSize(800, 600) << QByteArray("abc") << false;
    QTest::newRow("maximized") << QPoint(0, 0) << QSize(1920, 1080) << QByteArray("\x00\xff\x01", 3)
                               << true;
    QTest::newRow("negative position") << QPoint(-1280, -5) << QSize(1, 1) << QByteArray() << false;
    QTest::newRow("invalid size") << QPoint(3, 4) << QSize() << QByteArray("x") << false;
    QTest::newRow("large state") << QPoint(1, 2) << QSize(3, 4) << QByteArray(65536, '\x7f')
                                 << true;
}

void tst_QNodrixRegistry_Lists::placementRoundTrip()
{
    QFETCH(QPoint, pos);
    QFETCH(QSize, size);
    QFETCH(QByteArray, state);
    QFETCH(bool, maximize);
    {
        QNodrixRegistry registry;
        registry.setLastMachine(QStringLiteral("M"));
        registry.saveMainWndPlacement(pos, size, state, maximize);
    }
    QNodrixRegistry registry;
    QPoint p(-7, -7);
    QSize s(7, 7);
    QByteArray st("before");
    QCOMPARE(registry.loadMainWndPlacement(&p, &s, &st), maximize);
    QCOMPARE(p, pos);
    QCOMPARE(s, size);
    QCOMPARE(st, state);
}

void tst_QNodrixRegistry_Lists::placementKeys()
{
    const QByteArray state("\x01\x02state", 7);
    {
        QNodrixRegistry registry;
        registry.setLastMachine(QStringLiteral("M"));
        registry.saveMainWndPlacement(QPoint(10, 20), QSize(800, 600), state, false);
        registry.setLastMachine(QString());
        registry.saveMainWndPlacement(QPoint(1, 2), QSize(3, 4), QByteArray("n"), true);
    }
    const DiskStore disk(userStoreFile());
    QStringList keys = disk.allKeys();
    keys.sort();
    QCOMPARE(keys,
             QStringList({QStringLiteral("Machines/M/MainWindow/maximize"),
                          QStringLiteral("Machines/M/MainWindow/pos"),
                          QStringLiteral("Machines/M/MainWindow/size"),
                          QStringLiteral("Machines/M/MainWindow/state"),
                          QStringLiteral("Machines/MainWindow/maximize"),
                          QStringLiteral("Machines/MainWindow/pos"),
                          QStringLiteral("Machines/MainWindow/size"),
                          QStringLiteral("Machines/MainWindow/state"),
                          QStringLiteral("Settings/LastMachine")}));
    // Each value keeps its type in the file.
    QCOMPARE(disk.value(QStringLiteral("Machines/M/MainWindow/pos")), QVariant(QPoint(10, 20)));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/MainWindow/size")), QVariant(QSize(800, 600)));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/MainWindow/state")), QVariant(state));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/MainWindow/maximize")).toString(),
             QStringLiteral("false"));
    QCOMPARE(disk.value(QStringLiteral("Machines/MainWindow/pos")), QVariant(QPoint(1, 2)));
#ifndef Q_OS_WIN
    // The registry has no raw text: the typed values above are the whole of it.
    const QByteArray raw = readFile(userStoreFile());
    QVERIFY(raw.contains("M\\MainWindow\\pos=@Point(10 20)"));
    QVERIFY(raw.contains("M\\MainWindow\\size=@Size(800 600)"));
#endif
}

void tst_QNodrixRegistry_Lists::placementPerMachine()
{
    // Changing the last machine between save and load shows the other
    // machine's placement, or the caller's defaults.
    QNodrixRegistry registry;
    registry.setLastMachine(QStringLiteral("A"));
    registry.saveMainWndPlacement(QPoint(1, 1), QSize(100, 100), QByteArray("A"), false);
    registry.setLastMachine(QStringLiteral("B"));
    registry.saveMainWndPlacement(QPoint(2, 2), QSize(200, 200), QByteArray("B"), true);

    QPoint p(9, 9);
    QSize s(9, 9);
    QByteArray st("9");
    registry.setLastMachine(QStringLiteral("A"));
    QCOMPARE(registry.loadMainWndPlacement(&p, &s, &st), false);
    QCOMPARE(p, QPoint(1, 1));
    QCOMPARE(st, QByteArray("A"));

    QNodrixRegistry().setLastMachine(QStringLiteral("B"));
    QCOMPARE(registry.loadMainWndPlacement(&p, &s, &st), true);
    QCOMPARE(s, QSize(200, 200));
    QCOMPARE(st, QByteArray("B"));

    QNodrixRegistry().setLastMachine(QStringLiteral("C"));
    p = QPoint(5, 6);
    s = QSize(7, 8);
    st = "caller";
    QCOMPARE(registry.loadMainWndPlacement(&p, &s, &st), true);
    QCOMPARE(p, QPoint(5, 6));
    QCOMPARE(s, QSize(7, 8));
    QCOMPARE(st, QByteArray("caller"));
}

void tst_QNodrixRegistry_Lists::placementPartlyStored()
{
    QVERIFY(writeFile(userStoreFile(), "[Machines]\nMainWindow\\pos=@Point(4 5)\n"));
    QNodrixRegistry registry;
    QPoint p(1, 1);
    QSize s(2, 2);
    QByteArray st("3");
    QCOMPARE(registry.loadMainWndPlacement(&p, &s, &st), true);
    QCOMPARE(p, QPoint(4, 5));
    QCOMPARE(s, QSize(2, 2));
    QCOMPARE(st, QByteArray("3"));
}

void tst_QNodrixRegistry_Lists::placementFromFile_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<bool>("maximize");
    // A value of another kind converts as QVariant does: a point or size
    // that is not one reads as a null point or an invalid size, text reads as
    // its bytes, any text but empty, "0" and "false" is true.
    QTest::newRow("texts") << QByteArray("pos=hello\nsize=big\nstate=abc\nmaximize=nope")
                           << QPoint(0, 0) << QSize() << QByteArray("abc") << true;
    QTest::newRow("other types") << QByteArray("pos=@Size(1 2)\nsize=@Rect(1 2 3 4)\nmaximize=0")
                                 << QPoint(0, 0) << QSize() << QByteArray("keep") << false;
    QTest::newRow("maximize false text") << QByteArray("maximize=false") << QPoint(7, 7)
                                         << QSize(7, 7) << QByteArray("keep") << false;
    QTest::newRow("maximize empty")
        << QByteArray("maximize=") << QPoint(7, 7) << QSize(7, 7) << QByteArray("keep") << false;
    QTest::newRow("lists") << QByteArray("pos=1, 2\nsize=3, 4\nstate=5, 6") << QPoint(0, 0)
                           << QSize() << QByteArray() << true;
}

void tst_QNodrixRegistry_Lists::placementFromFile()
{
    QFETCH(QByteArray, lines);
    QFETCH(QPoint, pos);
    QFETCH(QSize, size);
    QFETCH(QByteArray, state);
    QFETCH(bool, maximize);
    lines.replace("\n", "\nM\\MainWindow\\");
    QVERIFY(writeFile(userStoreFile(),
                      "[Settings]\nLastMachine=M\n[Machines]\nM\\MainWindow\\" + lines + "\n"));
    QNodrixRegistry registry;
    QPoint p(7, 7);
    QSize s(7, 7);
    QByteArray st("keep");
    QCOMPARE(registry.loadMainWndPlacement(&p, &s, &st), maximize);
    QCOMPARE(p, pos);
    QCOMPARE(s, size);
    QCOMPARE(st, state);
}

void tst_QNodrixRegistry_Lists::placementNullPointers()
{
    // A null pointer skips its value; the others and the result are as
    // always.
    QNodrixRegistry registry;
    registry.saveMainWndPlacement(QPoint(3, 3), QSize(4, 4), QByteArray("s"), false);
    QSize s;
    QCOMPARE(registry.loadMainWndPlacement(nullptr, &s, nullptr), false);
    QCOMPARE(s, QSize(4, 4));
    QCOMPARE(registry.loadMainWndPlacement(nullptr, nullptr, nullptr), false);
}

// ---------------------------------------------------------------------------
// Recent files
// ---------------------------------------------------------------------------
void tst_QNodrixRegistry_Lists::recentFilesEdgeCase()
{
    // An existing a.ndx, a missing b.ndx, an existing c.txt and a.ndx once
    // more: a.ndx is stored twice and nothing else.
    const QString a = m_files.filePath(QStringLiteral("edge/a.ndx"));
    const QString b = m_files.filePath(QStringLiteral("edge/b.ndx"));
    const QString c = m_files.filePath(QStringLiteral("edge/c.txt"));
    QVERIFY(touch(a));
    QVERIFY(touch(c));
    {
        QNodrixRegistry registry;
        registry.saveRecentFileList({a, b, c, a});
    }
    const DiskStore disk(userStoreFile());
    QCOMPARE(disk.value(QStringLiteral("Machines/Recent File List/recentFileList")).toStringList(),
             QStringList({a, a}));
    QStringList loaded;
    QNodrixRegistry().loadRecentFileList(&loaded);
    QCOMPARE(loaded, QStringList({a, a}));
}

void tst_QNodrixRegistry_Lists::recentFilesFilter_data()
{
    QTest::addColumn<QStringList>("existing"); // created before saving
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QStringList>("kept");
    QTest::newRow("capitalised extension")
        << QStringList {"D.NDX", "e.ndx"} << QStringList {"D.NDX", "e.ndx"}
        << QStringList {"e.ndx"};
    QTest::newRow("mixed case extension")
        << QStringList {"f.Ndx", "g.nDX"} << QStringList {"f.Ndx", "g.nDX"} << QStringList {};
    QTest::newRow("extension not at the end")
        << QStringList {"h.ndx.bak", "i.ndx~"} << QStringList {"h.ndx.bak", "i.ndx~"}
        << QStringList {};
    QTest::newRow("bare extension")
        << QStringList {".ndx"} << QStringList {".ndx"} << QStringList {".ndx"};
    QTest::newRow("duplicates and order")
        << QStringList {"z.ndx", "y.ndx"}
        << QStringList {"z.ndx", "y.ndx", "z.ndx", "y.ndx", "z.ndx"}
        << QStringList {"z.ndx", "y.ndx", "z.ndx", "y.ndx", "z.ndx"};
    QTest::newRow("all missing") << QStringList {} << QStringList {"m1.ndx", "m2.ndx"}
                                 << QStringList {};
    QTest::newRow("blanks, commas, accents") << QStringList {"Maglia è, bis.ndx", " lead.ndx"}
                                             << QStringList {"Maglia è, bis.ndx", " lead.ndx"}
                                             << QStringList {"Maglia è, bis.ndx", " lead.ndx"};
    QTest::newRow("empty entry") << QStringList {"k.ndx"} << QStringList {"", "k.ndx", ""}
                                 << QStringList {"k.ndx"};
    // The entries are not normalised: a path with "./" or "//" stays as given.
    QTest::newRow("not normalised") << QStringList {"n.ndx"} << QStringList {"./n.ndx", ".//n.ndx"}
                                    << QStringList {"./n.ndx", ".//n.ndx"};
}

void tst_QNodrixRegistry_Lists::recentFilesFilter()
{
    QFETCH(QStringList, existing);
    QFETCH(QStringList, given);
    QFETCH(QStringList, kept);
    // Every row in a folder of its own; names are made absolute below it,
    // except the "./" forms, which are relative to it as the current folder.
    QTemporaryDir dir;
    const QString oldCwd = QDir::currentPath();
    QVERIFY(QDir::setCurrent(dir.path()));
    auto absolute = [&](const QString &name) {
        if (name.isEmpty() || name.startsWith(QLatin1String("./")))
            return name;
        return dir.path() + QLatin1Char('/') + name;
    };
    for (const QString &name : existing)
        QVERIFY(touch(absolute(name)));
    QStringList givenPaths, keptPaths;
    for (const QString &name : given)
        givenPaths << absolute(name);
    for (const QString &name : kept)
        keptPaths << absolute(name);

    {
        QNodrixRegistry registry;
        registry.setLastMachine(QStringLiteral("M"));
        registry.saveRecentFileList(givenPaths);
    }
    QCOMPARE(DiskStore(userStoreFile())
                 .value(QStringLiteral("Machines/M/Recent File List/recentFileList"))
                 .toStringList(),
             keptPaths);
    QStringList loaded {QStringLiteral("stale")};
    QNodrixRegistry().loadRecentFileList(&loaded);
    QVERIFY(QDir::setCurrent(oldCwd));
    QCOMPARE(loaded, keptPaths);
}

void tst_QNodrixRegistry_Lists::recentFilesStoredUnderBlankGroup_data()
{
    QTest::addColumn<QString>("machine");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QByteArray>("rawKey");
    QTest::newRow("named") << QStringLiteral("M2")
                           << QStringLiteral("Machines/M2/Recent File List/recentFileList")
                           << QByteArray("M2\\Recent%20File%20List\\recentFileList=");
    QTest::newRow("nameless") << QString()
                              << QStringLiteral("Machines/Recent File List/recentFileList")
                              << QByteArray("\nRecent%20File%20List\\recentFileList=");
}

void tst_QNodrixRegistry_Lists::recentFilesStoredUnderBlankGroup()
{
    QFETCH(QString, machine);
    QFETCH(QString, key);
    QFETCH(QByteArray, rawKey);
    const QString a = m_files.filePath(QStringLiteral("blank/a.ndx"));
    QVERIFY(touch(a));
    {
        QNodrixRegistry registry;
        if (!machine.isEmpty())
            registry.setLastMachine(machine);
        registry.saveRecentFileList({a});
    }
    const DiskStore disk(userStoreFile());
    QCOMPARE(disk.value(key).toStringList(), QStringList {a});
    QVERIFY(
        disk.childGroups(QStringLiteral("Machines")).contains(QStringLiteral("Recent File List"))
        || disk.childGroups(QStringLiteral("Machines/") + machine)
               .contains(QStringLiteral("Recent File List")));
#ifndef Q_OS_WIN
    // INI escapes the blanks of a key; the group name itself keeps them (the
    // registry keeps every name as it is).
    QVERIFY(readFile(userStoreFile()).contains(rawKey));
#else
    Q_UNUSED(rawKey);
#endif
}

void tst_QNodrixRegistry_Lists::recentFilesFilteredAgainOnLoad()
{
    const QString a = m_files.filePath(QStringLiteral("again/a.ndx"));
    const QString b = m_files.filePath(QStringLiteral("again/b.ndx"));
    QVERIFY(touch(a));
    QVERIFY(touch(b));
    QNodrixRegistry registry;
    registry.saveRecentFileList({a, b});
    QVERIFY(QFile::remove(a));
    QStringList loaded;
    registry.loadRecentFileList(&loaded);
    QCOMPARE(loaded, QStringList {b});
    // The store still holds the vanished file until the next write.
    flushUserStore();
    QCOMPARE(DiskStore(userStoreFile())
                 .value(QStringLiteral("Machines/Recent File List/recentFileList"))
                 .toStringList(),
             QStringList({a, b}));
    registry.saveRecentFileList(loaded);
    flushUserStore();
    QCOMPARE(DiskStore(userStoreFile())
                 .value(QStringLiteral("Machines/Recent File List/recentFileList"))
                 .toStringList(),
             QStringList {b});
    // A file that comes back is listed again only if it is still stored.
    QVERIFY(touch(a));
    registry.loadRecentFileList(&loaded);
    QCOMPARE(loaded, QStringList {b});
}

void tst_QNodrixRegistry_Lists::recentFilesLoadReplacesContent()
{
    QNodrixRegistry registry;
    QStringList files {QStringLiteral("/x.ndx"), QStringLiteral("y")};
    registry.loadRecentFileList(&files);
    QCOMPARE(files, QStringList());
    const QString a = m_files.filePath(QStringLiteral("replace/a.ndx"));
    QVERIFY(touch(a));
    registry.saveRecentFileList({a});
    files = QStringList {QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")};
    registry.loadRecentFileList(&files);
    QCOMPARE(files, QStringList {a});
}

void tst_QNodrixRegistry_Lists::recentFilesCallerListUnchanged()
{
    const QString a = m_files.filePath(QStringLiteral("caller/a.ndx"));
    QVERIFY(touch(a));
    const QStringList given {QStringLiteral("/missing.ndx"), a, QStringLiteral("/c.txt")};
    QStringList copy = given;
    QNodrixRegistry registry;
    registry.saveRecentFileList(copy);
    QCOMPARE(copy, given);
    registry.setProjectsPathList(copy);
    QCOMPARE(copy, given);
}

void tst_QNodrixRegistry_Lists::recentFilesEmptyList()
{
    // Stored as an empty string list and read back empty.
    {
        QNodrixRegistry registry;
        registry.saveRecentFileList(QStringList());
    }
    const DiskStore disk(userStoreFile());
    const QString key = QStringLiteral("Machines/Recent File List/recentFileList");
    QVERIFY(disk.contains(key));
    QCOMPARE(disk.value(key).toStringList(), QStringList());
    QStringList loaded {QStringLiteral("x")};
    QNodrixRegistry().loadRecentFileList(&loaded);
    QCOMPARE(loaded, QStringList());
    // A list whose every entry is dropped is stored as empty too.
    {
        QNodrixRegistry registry;
        registry.saveRecentFileList({QStringLiteral("/nowhere/a.ndx")});
    }
    QVERIFY(DiskStore(userStoreFile()).contains(key));
    QCOMPARE(DiskStore(userStoreFile()).value(key).toStringList(), QStringList());
}

void tst_QNodrixRegistry_Lists::recentFilesRelativePaths()
{
    // The existence test is made on the path as stored, so a relative entry
    // depends on the current folder at the time of the read.
    QTemporaryDir work;
    QTemporaryDir elsewhere;
    QVERIFY(touch(work.filePath(QStringLiteral("rel.ndx"))));
    const QString oldCwd = QDir::currentPath();
    QVERIFY(QDir::setCurrent(work.path()));
    QNodrixRegistry registry;
    registry.saveRecentFileList({QStringLiteral("rel.ndx"), QStringLiteral("C:\\Prj\\w.ndx")});
    QStringList loaded;
    registry.loadRecentFileList(&loaded);
    QCOMPARE(loaded, QStringList {QStringLiteral("rel.ndx")});
    QVERIFY(QDir::setCurrent(elsewhere.path()));
    registry.loadRecentFileList(&loaded);
    QCOMPARE(loaded, QStringList());
    QVERIFY(QDir::setCurrent(oldCwd));
}

void tst_QNodrixRegistry_Lists::recentFilesNoLimit()
{
    QStringList many;
    for (int i = 0; i < 300; ++i) {
        const QString f = m_files.filePath(QStringLiteral("many/p%1.ndx").arg(i));
        QVERIFY(touch(f));
        many << f;
    }
    QNodrixRegistry registry;
    registry.saveRecentFileList(many);
    QStringList loaded;
    registry.loadRecentFileList(&loaded);
    QCOMPARE(loaded, many);
}

void tst_QNodrixRegistry_Lists::recentFilesFromFile_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("keepsExisting");
    QTest::newRow("single text") << QByteArray("%1") << true;
    QTest::newRow("list") << QByteArray("%1, /nowhere.ndx") << true;
    QTest::newRow("point") << QByteArray("@Point(1 2)") << false;
    QTest::newRow("empty") << QByteArray("") << false;
    QTest::newRow("invalid") << QByteArray("@Invalid()") << false;
}

void tst_QNodrixRegistry_Lists::recentFilesFromFile()
{
    QFETCH(QByteArray, value);
    QFETCH(bool, keepsExisting);
    const QString a = m_files.filePath(QStringLiteral("fromfile/a.ndx"));
    QVERIFY(touch(a));
    value.replace("%1", a.toUtf8());
    QVERIFY(writeFile(userStoreFile(),
                      "[Machines]\nRecent%20File%20List\\recentFileList=" + value + "\n"));
    QStringList loaded {QStringLiteral("x")};
    QNodrixRegistry().loadRecentFileList(&loaded);
    QCOMPARE(loaded, keepsExisting ? QStringList {a} : QStringList());
}

void tst_QNodrixRegistry_Lists::recentFilesPerMachine()
{
    const QString a = m_files.filePath(QStringLiteral("permachine/a.ndx"));
    const QString b = m_files.filePath(QStringLiteral("permachine/b.ndx"));
    QVERIFY(touch(a));
    QVERIFY(touch(b));
    QNodrixRegistry registry;
    registry.setLastMachine(QStringLiteral("A"));
    registry.saveRecentFileList({a});
    registry.setLastMachine(QStringLiteral("B"));
    registry.saveRecentFileList({b});
    QStringList loaded;
    registry.loadRecentFileList(&loaded);
    QCOMPARE(loaded, QStringList {b});
    QNodrixRegistry().setLastMachine(QStringLiteral("A"));
    registry.loadRecentFileList(&loaded);
    QCOMPARE(loaded, QStringList {a});
}

void tst_QNodrixRegistry_Lists::recentFilesNullPointer()
{
    QNodrixRegistry registry;
    registry.loadRecentFileList(nullptr);
    flushUserStore();
    QVERIFY(!QFileInfo::exists(userStoreFile()));
}

// ---------------------------------------------------------------------------
// Folder lists
// ---------------------------------------------------------------------------
void tst_QNodrixRegistry_Lists::folderListFilter_data()
{
    addFolderListRows();
}

void tst_QNodrixRegistry_Lists::folderListFilter()
{
    QFETCH(QByteArray, list);
    const FolderList *l = folderList(list);
    QVERIFY(l);
    QTemporaryDir dir;
    const QString f1 = dir.filePath(QStringLiteral("one"));
    const QString f2 = dir.filePath(QStringLiteral("two è, 2"));
    const QString file = dir.filePath(QStringLiteral("a-file.ndx"));
    const QString missing = dir.filePath(QStringLiteral("missing"));
    QVERIFY(QDir().mkpath(f1));
    QVERIFY(QDir().mkpath(f2));
    QVERIFY(touch(file));
    const QStringList given {
        missing, f2, f1, QString(), f2, file, QStringLiteral("D:/Progetti"), f1 + QLatin1Char('/')};
    // Only existence counts: folders, files and the same folder written
    // twice or with a trailing slash all pass; order is kept.
    const QStringList kept {f2, f1, f2, file, f1 + QLatin1Char('/')};
    {
        QNodrixRegistry registry;
        registry.setLastMachine(QStringLiteral("M"));
        (registry.*l->set)(given);
    }
    QCOMPARE(DiskStore(userStoreFile())
                 .value(QStringLiteral("Machines/M/Settings/") + QLatin1String(l->key))
                 .toStringList(),
             kept);
    QNodrixRegistry registry;
    QCOMPARE((registry.*l->get)(), kept);
}

void tst_QNodrixRegistry_Lists::folderListLosesFolderBetweenWriteAndRead_data()
{
    addFolderListRows();
}

void tst_QNodrixRegistry_Lists::folderListLosesFolderBetweenWriteAndRead()
{
    QFETCH(QByteArray, list);
    const FolderList *l = folderList(list);
    QVERIFY(l);
    QTemporaryDir dir;
    const QString keep = dir.filePath(QStringLiteral("keep"));
    const QString gone = dir.filePath(QStringLiteral("gone"));
    QVERIFY(QDir().mkpath(keep));
    QVERIFY(QDir().mkpath(gone));
    QNodrixRegistry registry;
    (registry.*l->set)({gone, keep});
    QCOMPARE((registry.*l->get)(), QStringList({gone, keep}));
    QVERIFY(QDir(gone).removeRecursively());
    QCOMPARE((registry.*l->get)(), QStringList {keep});
    // Still stored until the next set.
    flushUserStore();
    const QString key = QStringLiteral("Machines/Settings/") + QLatin1String(l->key);
    QCOMPARE(DiskStore(userStoreFile()).value(key).toStringList(), QStringList({gone, keep}));
    // Back again: it is listed again, since the store still holds it.
    QVERIFY(QDir().mkpath(gone));
    QCOMPARE((registry.*l->get)(), QStringList({gone, keep}));
    QVERIFY(QDir(gone).removeRecursively());
    (registry.*l->set)((registry.*l->get)());
    flushUserStore();
    QCOMPARE(DiskStore(userStoreFile()).value(key).toStringList(), QStringList {keep});
}

void tst_QNodrixRegistry_Lists::folderListEmpty_data()
{
    addFolderListRows();
}

void tst_QNodrixRegistry_Lists::folderListEmpty()
{
    QFETCH(QByteArray, list);
    const FolderList *l = folderList(list);
    QVERIFY(l);
    QNodrixRegistry registry;
    QCOMPARE((registry.*l->get)(), QStringList());
    (registry.*l->set)(QStringList());
    flushUserStore();
    const QString key = QStringLiteral("Machines/Settings/") + QLatin1String(l->key);
    QVERIFY(DiskStore(userStoreFile()).contains(key));
    QCOMPARE(DiskStore(userStoreFile()).value(key).toStringList(), QStringList());
    QCOMPARE((registry.*l->get)(), QStringList());
}

void tst_QNodrixRegistry_Lists::folderListsAreSeparate()
{
    QTemporaryDir dir;
    const QString p = dir.filePath(QStringLiteral("p"));
    const QString r = dir.filePath(QStringLiteral("r"));
    const QString k = dir.filePath(QStringLiteral("k"));
    for (const QString &d : {p, r, k})
        QVERIFY(QDir().mkpath(d));
    QNodrixRegistry registry;
    registry.setProjectsPathList({p});
    registry.setRepositoryPathList({r});
    registry.setProjectLinkPathList({k});
    QCOMPARE(registry.getProjectsPathList(), QStringList {p});
    QCOMPARE(registry.getRepositoryPathList(), QStringList {r});
    QCOMPARE(registry.getProjectLinkPathList(), QStringList {k});
    // The single paths of the same names are other keys.
    QCOMPARE(registry.getProjectsPath(), QString());
    QCOMPARE(registry.getRepositoryPath(), QString());
    QCOMPARE(registry.getProjectLinkPath(), QString());
}

void tst_QNodrixRegistry_Lists::folderListPerMachine_data()
{
    addFolderListRows();
}

void tst_QNodrixRegistry_Lists::folderListPerMachine()
{
    QFETCH(QByteArray, list);
    const FolderList *l = folderList(list);
    QVERIFY(l);
    QTemporaryDir dir;
    QNodrixRegistry registry;
    registry.setLastMachine(QStringLiteral("A"));
    (registry.*l->set)({dir.path()});
    QNodrixRegistry().setLastMachine(QStringLiteral("B"));
    QCOMPARE((registry.*l->get)(), QStringList());
    QNodrixRegistry().setLastMachine(QStringLiteral("A"));
    QCOMPARE((registry.*l->get)(), QStringList {dir.path()});
    flushUserStore();
    QCOMPARE(DiskStore(userStoreFile())
                 .value(QStringLiteral("Machines/A/Settings/") + QLatin1String(l->key))
                 .toStringList(),
             QStringList {dir.path()});
}

NDXCOM_TEST_MAIN(tst_QNodrixRegistry_Lists)
#include "tst_qnodrixregistry_lists.moc"
