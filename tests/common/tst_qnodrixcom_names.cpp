// The proposals of new project and module names (the rules a name must follow
// are tried by tst_qnodrixcom_namerules).
#include <QNodrixCom>
#include <QNodrixRegistry>

#include "ndxcomtest.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMdiSubWindow>

#include <climits>
#include <memory>

namespace {

// Reads the area the proposal walks.
struct Options : QNodrixCom
{
    using QNodrixCom::m_pMdiArea;
};

// The proposal as the applications have always described it, transcribed
// word for word: settings read and windows walked on every call, one
// recursion per taken name. Kept here to hold the library's loop to it on
// cases small enough for its stack.
namespace Described {

QString projectName(int n)
{
    return QStringLiteral("%1%2%3")
        .arg(QNodrixCom::prefixProjectDoc())
        .arg(n)
        .arg(QNodrixCom::projectFilesExt());
}

QString iterNewProjectName(QString &sName, int nGauge, int nDiameter, int &nCounter,
                           QMdiArea *pArea)
{
    QString sFolder = QNodrixRegistry().getProjectsPath();
    if (nGauge != 0 && nDiameter != 0) {
        const QString sSub = QNodrixCom::makeGaugeDiamSubDir(nGauge, nDiameter);
        if (!sFolder.contains(sSub, Qt::CaseSensitive))
            sFolder = sFolder + sSub;
    }
    if (QFile::exists(sFolder + QLatin1Char('/') + sName)) {
        const int n = nCounter;
        nCounter++;
        sName = projectName(n);
        iterNewProjectName(sName, nGauge, nDiameter, nCounter, pArea);
    }
    if (pArea) {
        const QList<QMdiSubWindow *> windows = pArea->subWindowList(QMdiArea::CreationOrder);
        for (QMdiSubWindow *window : windows) {
            QString sTitle = QFileInfo(window->windowTitle()).fileName();
            sTitle.remove(QStringLiteral("[*]"));
            if (sTitle == sName) {
                const int n = nCounter;
                nCounter++;
                sName = projectName(n);
                iterNewProjectName(sName, nGauge, nDiameter, nCounter, pArea);
            }
        }
    }
    return sName;
}

QString makeNewProjectName(QString &sName, int nGauge, int nDiameter, QMdiArea *pArea)
{
    sName = QString();
    int nCounter = 1;
    return iterNewProjectName(sName, nGauge, nDiameter, nCounter, pArea);
}

QString iterNewModuleName(QString &sName, const QString &sFolder, int &nCounter)
{
    if (QFile::exists(sFolder + QLatin1Char('/') + sName)) {
        const int n = nCounter;
        nCounter++;
        sName = QStringLiteral("%1%2%3")
                    .arg(QStringLiteral("Mod"))
                    .arg(n)
                    .arg(QStringLiteral(".pmc"));
        iterNewModuleName(sName, sFolder, nCounter);
    }
    return sName;
}

} // namespace Described

void touch(const QString &path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    QVERIFY2(f.open(QIODevice::WriteOnly), qPrintable(path));
}

void setProjectsPath(const QString &path)
{
    QNodrixRegistry().setProjectsPath(path);
}

// An MDI area with one real sub-window per title, in creation order. The
// title goes on the document widget; the sub-window takes it over, "[*]"
// included.
std::unique_ptr<QMdiArea> makeArea(const QStringList &titles)
{
    auto area = std::make_unique<QMdiArea>();
    for (const QString &title : titles) {
        auto *document = new QWidget;
        document->setWindowTitle(title);
        area->addSubWindow(document);
    }
    return area;
}

} // namespace

class tst_QNodrixCom_Names : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void subWindowTitlesKeepTheMarker();
    void newProjectName_data();
    void newProjectName();
    void newProjectNameIgnoresIncomingName();
    void destroyedAreaNoLongerCounts();
    void newProjectNameReadsSettingsAtEachProposal();
    void newProjectNameMatchesDescribedRecursion();
    void newModuleName_data();
    void newModuleName();
    void newModuleNameMatchesDescribedRecursion();
    void iterationStartsFromGivenNameAndCounter();
    void counterStopsAtIntMax();
    void manyTakenNames();

private:
    std::unique_ptr<QTemporaryDir> m_root;
};

void tst_QNodrixCom_Names::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    QVERIFY(m_root->isValid());
    QNodrixCom::setMdiArea(nullptr);
    QNodrixCom::setProjectsFolderOptions(0, 0);
    setProjectsPath(QString());
}

void tst_QNodrixCom_Names::cleanup()
{
    QNodrixCom::setMdiArea(nullptr);
    QNodrixCom::setProjectsFolderOptions(0, 0);
    m_root.reset();
}

void tst_QNodrixCom_Names::subWindowTitlesKeepTheMarker()
{
    // What the proposal reads: the sub-window's own title, marker and folder
    // included, whether the title was set on the document or on the
    // sub-window.
    auto area = makeArea({QStringLiteral("C:/P/Prg2.ndx[*]")});
    auto *direct = new QMdiSubWindow;
    direct->setWindowTitle(QStringLiteral("[*]"));
    area->addSubWindow(direct);
    const QList<QMdiSubWindow *> windows = area->subWindowList(QMdiArea::CreationOrder);
    QCOMPARE(windows.size(), 2);
    QCOMPARE(windows.at(0)->windowTitle(), QStringLiteral("C:/P/Prg2.ndx[*]"));
    windows.at(0)->widget()->setWindowModified(true);
    QCOMPARE(windows.at(0)->windowTitle(), QStringLiteral("C:/P/Prg2.ndx[*]"));
    QCOMPARE(windows.at(1)->windowTitle(), QStringLiteral("[*]"));
}

// Rows: the projects path ("$ROOT" stands for the test's temporary folder),
// the files and folders made below $ROOT, the window titles in creation
// order (no area at all when hasArea is false), the folder options and the
// expected proposal.
void tst_QNodrixCom_Names::newProjectName_data()
{
    QTest::addColumn<QString>("projectsPath");
    QTest::addColumn<QStringList>("dirs");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<bool>("hasArea");
    QTest::addColumn<QStringList>("titles");
    QTest::addColumn<int>("gauge");
    QTest::addColumn<int>("diameter");
    QTest::addColumn<QString>("expected");

    const QString root = QStringLiteral("$ROOT");
    const QString p = QStringLiteral("$ROOT/P");
    const QStringList none;
    const QStringList pDir {QStringLiteral("P")};
    auto list = [](std::initializer_list<const char *> items) {
        QStringList l;
        for (const char *i : items)
            l << QString::fromUtf8(i);
        return l;
    };

    QTest::newRow("folder holds Prg1, window Prg2 modified")
        << p << none << list({"P/Prg1.ndx"}) << true << list({"Prg2.ndx[*]"}) << 0 << 0
        << QStringLiteral("Prg3.ndx");
    QTest::newRow("existing empty folder")
        << p << pDir << none << true << none << 0 << 0 << QStringLiteral("Prg1.ndx");
    QTest::newRow("existing folder, no area")
        << p << pDir << none << false << none << 0 << 0 << QStringLiteral("Prg1.ndx");
    QTest::newRow("missing folder") << p << none << none << true << none << 0 << 0 << QString();
    QTest::newRow("missing folder, no area")
        << p << none << none << false << none << 0 << 0 << QString();
    QTest::newRow("missing folder, window [*] takes the empty name")
        << p << none << none << true << list({"[*]"}) << 0 << 0 << QStringLiteral("Prg1.ndx");
    QTest::newRow("missing folder, window titled with a folder only")
        << p << none << none << true << list({"C:/P/"}) << 0 << 0 << QStringLiteral("Prg1.ndx");
    QTest::newRow("missing folder, window titled Prg1")
        << p << none << none << true << list({"Prg1.ndx"}) << 0 << 0 << QString();
    QTest::newRow("gap in the files") << p << none << list({"P/Prg1.ndx", "P/Prg3.ndx"}) << true
                                      << none << 0 << 0 << QStringLiteral("Prg2.ndx");
    QTest::newRow("window then file") << p << none << list({"P/Prg2.ndx"}) << true
                                      << list({"Prg1.ndx"}) << 0 << 0 << QStringLiteral("Prg3.ndx");
    QTest::newRow("windows in reverse order")
        << p << pDir << none << true << list({"Prg3.ndx", "Prg2.ndx", "Prg1.ndx"}) << 0 << 0
        << QStringLiteral("Prg4.ndx");
    QTest::newRow("windows and files interleaved")
        << p << none << list({"P/Prg2.ndx", "P/Prg4.ndx"}) << true
        << list({"Prg5.ndx[*]", "Prg3.ndx", "Prg1.ndx[*]"}) << 0 << 0 << QStringLiteral("Prg6.ndx");
    QTest::newRow("window titles with folders")
        << p << pDir << none << true
        << list({"/home/u/P/Prg1.ndx[*]", "C:/x/Prg2.ndx", "a[*]/Prg3.ndx"}) << 0 << 0
        << QStringLiteral("Prg4.ndx");
    QTest::newRow("every marker removed")
        << p << pDir << none << true << list({"[*]Prg[*]1.ndx[*]"}) << 0 << 0
        << QStringLiteral("Prg2.ndx");
    QTest::newRow("marker after the folder part")
        << p << pDir << none << true << list({"C:/P/[*]"}) << 0 << 0 << QStringLiteral("Prg1.ndx");
    QTest::newRow("names compared case-sensitively")
        << p << none << list({"P/PRG1.ndx", "P/Prg1.NDX"}) << true << list({"prg1.ndx"}) << 0 << 0
        << QStringLiteral("Prg1.ndx");
    QTest::newRow("duplicate titles")
        << p << pDir << none << true << list({"Prg1.ndx", "Prg1.ndx[*]", "Prg2.ndx"}) << 0 << 0
        << QStringLiteral("Prg3.ndx");
    QTest::newRow("a folder named like a project is taken")
        << p << list({"P/Prg1.ndx"}) << none << true << none << 0 << 0
        << QStringLiteral("Prg2.ndx");
    QTest::newRow("other files do not matter")
        << p << none << list({"P/Prg1.pmc", "P/Mod1.ndx", "P/Prg01.ndx"}) << true << none << 0 << 0
        << QStringLiteral("Prg1.ndx");
    QTest::newRow("projects folder with a trailing slash")
        << QStringLiteral("$ROOT/P/") << none << list({"P/Prg1.ndx"}) << true << none << 0 << 0
        << QStringLiteral("Prg2.ndx");
    QTest::newRow("gauge only: plain folder")
        << p << none << list({"P/Prg1.ndx", "P/14-GG/13-DIAM/Prg2.ndx"}) << true << none << 14 << 0
        << QStringLiteral("Prg2.ndx");
    QTest::newRow("diameter only: plain folder") << p << none << list({"P/Prg1.ndx"}) << true
                                                 << none << 0 << 13 << QStringLiteral("Prg2.ndx");
    QTest::newRow("gauge and diameter, folder with a trailing slash")
        << QStringLiteral("$ROOT/P/") << none
        << list({"P/Prg1.ndx", "P/Prg2.ndx", "P/14-GG/13-DIAM/Prg1.ndx"}) << true << none << 14
        << 13 << QStringLiteral("Prg2.ndx");
    QTest::newRow("gauge and diameter appended without a separator")
        << p << none << list({"P14-GG/13-DIAM/Prg1.ndx", "P/14-GG/13-DIAM/Prg2.ndx"}) << true
        << none << 14 << 13 << QStringLiteral("Prg2.ndx");
    QTest::newRow("gauge and diameter, subfolder missing")
        << QStringLiteral("$ROOT/P/") << none << list({"P/Prg1.ndx"}) << true << none << 14 << 13
        << QString();
    QTest::newRow("gauge and diameter already in the folder")
        << QStringLiteral("$ROOT/P/14-GG/13-DIAM") << none << list({"P/14-GG/13-DIAM/Prg1.ndx"})
        << true << none << 14 << 13 << QStringLiteral("Prg2.ndx");
    QTest::newRow("gauge and diameter already in the folder, deeper")
        << QStringLiteral("$ROOT/P/14-GG/13-DIAM/x") << none << list({"P/14-GG/13-DIAM/x/Prg1.ndx"})
        << true << none << 14 << 13 << QStringLiteral("Prg2.ndx");
    QTest::newRow("subfolder text present: not appended again")
        << QStringLiteral("$ROOT/P/12-GG/13-DIAM/") << none
        << list({"P/12-GG/13-DIAM/12-GG/13-DIAM/Prg1.ndx"}) << true << none << 12 << 13
        << QStringLiteral("Prg1.ndx");
    QTest::newRow("other gauge in the folder: appended")
        << QStringLiteral("$ROOT/P/12-GG/13-DIAM/") << none
        << list({"P/12-GG/13-DIAM/Prg1.ndx", "P/12-GG/13-DIAM/14-GG/13-DIAM/Prg1.ndx",
                 "P/12-GG/13-DIAM/14-GG/13-DIAM/Prg2.ndx"})
        << true << none << 14 << 13 << QStringLiteral("Prg3.ndx");
    QTest::newRow("windows count in the gauge folder too")
        << QStringLiteral("$ROOT/P/") << list({"P/14-GG/13-DIAM"}) << none << true
        << list({"Prg1.ndx[*]"}) << 14 << 13 << QStringLiteral("Prg2.ndx");
    QTest::newRow("negative gauge and diameter")
        << QStringLiteral("$ROOT/P/") << none << list({"P/-1-GG/-2-DIAM/Prg1.ndx"}) << true << none
        << -1 << -2 << QStringLiteral("Prg2.ndx");
    QTest::newRow("percent sign in the folder")
        << QStringLiteral("$ROOT/%2%1") << none << list({"%2%1/Prg1.ndx"}) << true << none << 0 << 0
        << QStringLiteral("Prg2.ndx");
    QTest::newRow("temporary root as projects folder")
        << root << none << list({"Prg1.ndx"}) << false << none << 0 << 0
        << QStringLiteral("Prg2.ndx");
}

void tst_QNodrixCom_Names::newProjectName()
{
    QFETCH(QString, projectsPath);
    QFETCH(QStringList, dirs);
    QFETCH(QStringList, files);
    QFETCH(bool, hasArea);
    QFETCH(QStringList, titles);
#ifdef Q_OS_WIN
    if (qstrcmp(QTest::currentDataTag(), "names compared case-sensitively") == 0)
        QSKIP("The Windows file system finds PRG1.ndx under the name Prg1.ndx");
#endif
    QFETCH(int, gauge);
    QFETCH(int, diameter);
    QFETCH(QString, expected);

    const QString root = m_root->path();
    for (const QString &d : std::as_const(dirs))
        QVERIFY(QDir().mkpath(root + QLatin1Char('/') + d));
    for (const QString &f : std::as_const(files))
        touch(root + QLatin1Char('/') + f);
    setProjectsPath(QString(projectsPath).replace(QStringLiteral("$ROOT"), root));
    QNodrixCom::setProjectsFolderOptions(gauge, diameter);
    auto area = makeArea(titles);
    QNodrixCom::setMdiArea(hasArea ? area.get() : nullptr);

    QString name = QStringLiteral("junk");
    const QString result = QNodrixCom::makeNewProjectName(name);
    QCOMPARE(name, expected);
    QCOMPARE(result, expected);
    // The result is a copy, not the caller's string.
    name = QStringLiteral("changed");
    QCOMPARE(result, expected);

    QString described;
    QCOMPARE(
        Described::makeNewProjectName(described, gauge, diameter, hasArea ? area.get() : nullptr),
        expected);
}

void tst_QNodrixCom_Names::newProjectNameIgnoresIncomingName()
{
    // The incoming name is not a first candidate: the proposal always starts
    // from the empty name.
    setProjectsPath(m_root->path() + QStringLiteral("/missing"));
    QString name = QStringLiteral("Prg7.ndx");
    QCOMPARE(QNodrixCom::makeNewProjectName(name), QString());
    QVERIFY(name.isEmpty());
}

void tst_QNodrixCom_Names::newProjectNameReadsSettingsAtEachProposal()
{
    const QString a = m_root->path() + QStringLiteral("/A");
    const QString b = m_root->path() + QStringLiteral("/B");
    touch(a + QStringLiteral("/Prg1.ndx"));
    touch(b + QStringLiteral("/Prg1.ndx"));
    touch(b + QStringLiteral("/Prg2.ndx"));
    QString name;
    setProjectsPath(a);
    QCOMPARE(QNodrixCom::makeNewProjectName(name), QStringLiteral("Prg2.ndx"));
    setProjectsPath(b);
    QCOMPARE(QNodrixCom::makeNewProjectName(name), QStringLiteral("Prg3.ndx"));
    // The folder of another machine is another folder.
    // With no folder set, "/" is the folder and the empty name is taken.
    QNodrixRegistry().setLastMachine(QStringLiteral("M2"));
    QCOMPARE(QNodrixCom::makeNewProjectName(name), QStringLiteral("Prg1.ndx"));
    QNodrixRegistry().setLastMachine(QString());
    QCOMPARE(QNodrixCom::makeNewProjectName(name), QStringLiteral("Prg3.ndx"));
}

void tst_QNodrixCom_Names::newProjectNameMatchesDescribedRecursion()
{
    // Random small worlds: some of Prg1..Prg9 on disk (as files or folders),
    // some as window titles in any order, with folders and markers, the
    // folder present or not, with and without the gauge and diameter.
    QRandomGenerator random(20220117);
    const QString root = m_root->path();
    for (int round = 0; round < 300; ++round) {
        const QString base = QStringLiteral("%1/r%2").arg(root).arg(round);
        const bool withSubDir = random.bounded(3) == 0;
        const bool folderExists = random.bounded(4) != 0;
        const bool trailingSlash = random.bounded(2) == 0;
        const int gauge = withSubDir ? 14 : 0;
        const int diameter = withSubDir ? 13 : 0;
        const QString configured = trailingSlash ? base + QLatin1Char('/') : base;
        const QString folder = withSubDir ? configured + QStringLiteral("14-GG/13-DIAM") : base;
        if (folderExists)
            QVERIFY(QDir().mkpath(folder));
        QStringList onDisk;
        if (folderExists) {
            for (int n = 1; n <= 9; ++n) {
                const int pick = random.bounded(5);
                const QString path = QStringLiteral("%1/Prg%2.ndx").arg(folder).arg(n);
                if (pick == 0) {
                    touch(path);
                    onDisk << path;
                } else if (pick == 1) {
                    QVERIFY(QDir().mkpath(path));
                    onDisk << path;
                }
            }
        }
        QStringList titles;
        const int windows = random.bounded(8);
        for (int w = 0; w < windows; ++w) {
            QString title;
            switch (random.bounded(6)) {
            case 0:
                title = QStringLiteral("[*]");
                break;
            case 1:
                title = QStringLiteral("Prg%1.ndx[*]").arg(random.bounded(1, 10));
                break;
            case 2:
                title = QStringLiteral("C:/old/Prg%1.ndx").arg(random.bounded(1, 10));
                break;
            case 3:
                title = QStringLiteral("Prg%1.ndx").arg(random.bounded(1, 10));
                break;
            case 4:
                title = QStringLiteral("Calza%1.ndx[*]").arg(random.bounded(1, 10));
                break;
            default:
                title = QStringLiteral("/x/[*]Prg%1[*].ndx").arg(random.bounded(1, 10));
                break;
            }
            titles << title;
        }
        const bool hasArea = random.bounded(5) != 0;
        auto area = makeArea(titles);
        QNodrixCom::setMdiArea(hasArea ? area.get() : nullptr);
        QNodrixCom::setProjectsFolderOptions(gauge, diameter);
        setProjectsPath(configured);

        QString described;
        Described::makeNewProjectName(described, gauge, diameter, hasArea ? area.get() : nullptr);
        QString name;
        QCOMPARE(QNodrixCom::makeNewProjectName(name), described);
        if (QTest::currentTestFailed()) {
            qWarning() << "round" << round << "folder" << folder << "exists" << folderExists
                       << "on disk" << onDisk << "titles" << titles << "area" << hasArea;
            return;
        }
    }
}

void tst_QNodrixCom_Names::newModuleName_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("expected");

    const QString m = QStringLiteral("$ROOT/M");
    QTest::newRow("missing folder") << m << QStringList() << QString();
    QTest::newRow("empty folder") << QStringLiteral("$ROOT") << QStringList()
                                  << QStringLiteral("Mod1.pmc");
    QTest::newRow("two taken") << m
                               << QStringList {QStringLiteral("M/Mod1.pmc"),
                                               QStringLiteral("M/Mod2.pmc")}
                               << QStringLiteral("Mod3.pmc");
    QTest::newRow("gap") << m << QStringList {QStringLiteral("M/Mod2.pmc")}
                         << QStringLiteral("Mod1.pmc");
    QTest::newRow("case-sensitive")
        << m << QStringList {QStringLiteral("M/MOD1.pmc")} << QStringLiteral("Mod1.pmc");
    QTest::newRow("knit modules do not count")
        << m << QStringList {QStringLiteral("M/Mod1.pmm")} << QStringLiteral("Mod1.pmc");
    QTest::newRow("trailing slash")
        << QStringLiteral("$ROOT/M/") << QStringList {QStringLiteral("M/Mod1.pmc")}
        << QStringLiteral("Mod2.pmc");
}

void tst_QNodrixCom_Names::newModuleName()
{
    QFETCH(QString, folder);
    QFETCH(QStringList, files);
    QFETCH(QString, expected);
#ifdef Q_OS_WIN
    if (qstrcmp(QTest::currentDataTag(), "case-sensitive") == 0)
        QSKIP("The Windows file system finds MOD1.pmc under the name Mod1.pmc");
#endif

    const QString root = m_root->path();
    for (const QString &f : std::as_const(files))
        touch(root + QLatin1Char('/') + f);
    folder.replace(QStringLiteral("$ROOT"), root);
    // Windows and the projects folder play no part for modules.
    auto area = makeArea({QStringLiteral("Mod1.pmc"), QStringLiteral("[*]")});
    QNodrixCom::setMdiArea(area.get());
    setProjectsPath(root);

    QString name = QStringLiteral("junk");
    const QString result = QNodrixCom::makeNewModuleName(name, folder);
    QCOMPARE(name, expected);
    QCOMPARE(result, expected);

    QString described;
    int counter = 1;
    QCOMPARE(Described::iterNewModuleName(described, folder, counter), expected);
}

void tst_QNodrixCom_Names::newModuleNameMatchesDescribedRecursion()
{
    QRandomGenerator random(1302);
    const QString root = m_root->path();
    for (int round = 0; round < 200; ++round) {
        const QString folder = QStringLiteral("%1/m%2").arg(root).arg(round);
        if (random.bounded(4) != 0)
            QVERIFY(QDir().mkpath(folder));
        for (int n = 1; n <= 9; ++n) {
            if (random.bounded(2) == 0)
                touch(QStringLiteral("%1/Mod%2.pmc").arg(folder).arg(n));
        }
        QString described;
        int counter = 1;
        Described::iterNewModuleName(described, folder, counter);
        QString name;
        QCOMPARE(QNodrixCom::makeNewModuleName(name, folder), described);
    }
}

void tst_QNodrixCom_Names::destroyedAreaNoLongerCounts()
{
    // The area is not owned, but an area the application has destroyed is
    // not read again: the proposal goes on as without one.
    setProjectsPath(m_root->path() + QStringLiteral("/missing"));
    QString name;
    {
        auto area = makeArea({QStringLiteral("[*]")});
        QNodrixCom::setMdiArea(area.get());
        QCOMPARE(QNodrixCom::makeNewProjectName(name), QStringLiteral("Prg1.ndx"));
    }
    QVERIFY(!Options::m_pMdiArea);
    QCOMPARE(QNodrixCom::makeNewProjectName(name), QString());

    // Only the area in use is forgotten: one replaced earlier may go freely.
    auto kept = makeArea({QStringLiteral("[*]")});
    {
        auto replaced = makeArea({QStringLiteral("[*]")});
        QNodrixCom::setMdiArea(replaced.get());
        QNodrixCom::setMdiArea(kept.get());
    }
    QCOMPARE(Options::m_pMdiArea, kept.get());
    QCOMPARE(QNodrixCom::makeNewProjectName(name), QStringLiteral("Prg1.ndx"));
}

void tst_QNodrixCom_Names::iterationStartsFromGivenNameAndCounter()
{
    // The private steps take the caller's name as the first candidate and
    // leave the counter one past the last number used, as the recursion does.
    const QString folder = m_root->path();
    touch(folder + QStringLiteral("/Calza.ndx"));
    touch(folder + QStringLiteral("/Prg5.ndx"));
    touch(folder + QStringLiteral("/Calza.pmc"));
    touch(folder + QStringLiteral("/Mod5.pmc"));
    setProjectsPath(folder);
    auto area = makeArea({QStringLiteral("Prg6.ndx[*]")});
    QNodrixCom::setMdiArea(area.get());

    QString name = QStringLiteral("Calza.ndx");
    int counter = 5;
    QCOMPARE(QNodrixCom::iterNewProjectName(name, 0, 0, counter), QStringLiteral("Prg7.ndx"));
    QCOMPARE(name, QStringLiteral("Prg7.ndx"));
    QCOMPARE(counter, 8);
    QString described = QStringLiteral("Calza.ndx");
    int describedCounter = 5;
    QCOMPARE(Described::iterNewProjectName(described, 0, 0, describedCounter, area.get()),
             QStringLiteral("Prg7.ndx"));
    QCOMPARE(describedCounter, 8);

    name = QStringLiteral("Free.ndx");
    counter = 5;
    QCOMPARE(QNodrixCom::iterNewProjectName(name, 0, 0, counter), QStringLiteral("Free.ndx"));
    QCOMPARE(counter, 5);

    name = QStringLiteral("Calza.pmc");
    counter = 5;
    QCOMPARE(QNodrixCom::iterNewModuleName(name, folder, counter), QStringLiteral("Mod6.pmc"));
    QCOMPARE(counter, 7);
}

void tst_QNodrixCom_Names::counterStopsAtIntMax()
{
    // Numbers never wrap: the last one is handed out untested.
    const QString folder = m_root->path();
    touch(folder + QStringLiteral("/Prg2147483646.ndx"));
    touch(folder + QStringLiteral("/Prg2147483647.ndx"));
    touch(folder + QStringLiteral("/Mod2147483646.pmc"));
    setProjectsPath(folder);

    QString name;
    int counter = INT_MAX - 1;
    QCOMPARE(QNodrixCom::iterNewProjectName(name, 0, 0, counter),
             QStringLiteral("Prg2147483647.ndx"));
    QCOMPARE(counter, INT_MAX);

    name.clear();
    counter = INT_MAX;
    QCOMPARE(QNodrixCom::iterNewProjectName(name, 0, 0, counter),
             QStringLiteral("Prg2147483647.ndx"));
    QCOMPARE(counter, INT_MAX);

    name.clear();
    counter = INT_MAX - 1;
    QCOMPARE(QNodrixCom::iterNewModuleName(name, folder, counter),
             QStringLiteral("Mod2147483647.pmc"));
    QCOMPARE(counter, INT_MAX);

    // A free number below the limit is still found.
    name.clear();
    counter = INT_MAX - 2;
    QCOMPARE(QNodrixCom::iterNewModuleName(name, folder, counter),
             QStringLiteral("Mod2147483645.pmc"));
    QCOMPARE(counter, INT_MAX - 1);
}

namespace {
void makeManyProjects(const QString &folder, int count)
{
    QVERIFY(QDir().mkpath(folder));
    for (int n = 1; n <= count; ++n) {
        QFile f(QStringLiteral("%1/Prg%2.ndx").arg(folder).arg(n));
        QVERIFY(f.open(QIODevice::WriteOnly));
    }
}
} // namespace

void tst_QNodrixCom_Names::manyTakenNames()
{
    // 100,000 projects on disk and 1,000 open documents: one proposal walks
    // 100,001 candidates.
    const QString folder = m_root->path() + QStringLiteral("/P");
#ifdef Q_OS_WIN
    // Under wine every file made costs some milliseconds: a tenth of them.
    constexpr int projects = 10000;
#else
    constexpr int projects = 100000;
#endif
    const QString next = QStringLiteral("Prg%1.ndx").arg(projects + 1);
    QElapsedTimer timer;
    timer.start();
    makeManyProjects(folder, projects);
    if (QTest::currentTestFailed())
        return;
    QStringList titles;
    for (int n = 1; n <= projects / 100; ++n) {
        titles << (n % 2 ? QStringLiteral("%1/Prg%2.ndx[*]").arg(folder).arg(n * 100)
                         : QStringLiteral("Prg%1.ndx").arg(n * 100));
    }
    auto area = makeArea(titles);
    QCOMPARE(area->subWindowList().size(), projects / 100);
    QNodrixCom::setMdiArea(area.get());
    setProjectsPath(folder);
    qInfo("set-up: %lld ms", static_cast<long long>(timer.restart()));

    QString name;
    QCOMPARE(QNodrixCom::makeNewProjectName(name), next);
    const qint64 elapsed = timer.elapsed();
    qInfo("proposal: %lld ms", static_cast<long long>(elapsed));
    // One settings read and one window walk, then a file test per
    // candidate: seconds at the very most, even instrumented.
    QVERIFY2(elapsed < 60000, qPrintable(QString::number(elapsed)));

    // A window that takes the next number pushes the proposal one further.
    area->addSubWindow(new QWidget)->setWindowTitle(next + QStringLiteral("[*]"));
    QCOMPARE(QNodrixCom::makeNewProjectName(name), QStringLiteral("Prg%1.ndx").arg(projects + 2));

    // The same search on a 512 KiB stack: its depth does not grow the stack.
    // (No windows here: widgets belong to the GUI thread.)
    QNodrixCom::setMdiArea(nullptr);
    QString project, module;
    std::unique_ptr<QThread> thread(QThread::create([&] {
        QNodrixCom::makeNewProjectName(project);
        QNodrixCom::makeNewModuleName(module, folder);
    }));
    thread->setStackSize(512 * 1024);
    thread->start();
    QVERIFY(thread->wait(300000));
    QCOMPARE(project, next);
    QCOMPARE(module, QStringLiteral("Mod1.pmc"));
}

NDXCOM_TEST_MAIN(tst_QNodrixCom_Names)
#include "tst_qnodrixcom_names.moc"
