// Machine folders, their separator variants and the gauge-and-diameter
// paths.
#include <QNodrixCom>

#include "ndxcomtest.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <limits>
#include <type_traits>

struct PathMembers : QNodrixCom
{
    using QNodrixCom::m_nFolderUseDiam;
    using QNodrixCom::m_nFolderUseGauge;
    using QNodrixCom::m_sMachineCodeCodFolder;
    using QNodrixCom::m_sMachineCodeDisFolder;
    using QNodrixCom::m_sMachineCodeFolder;
    using QNodrixCom::m_sMachineKd5ChainDir;
    using QNodrixCom::m_sMachineKd5CodDir;
    using QNodrixCom::m_sMachineKd5Dir;
    using QNodrixCom::m_sMachineKd5DisDir;
};

namespace {
// Which separator forms exist for the sibling application's root and its Dis
// folder: only the ones the applications know.
template<class T, class = void>
struct HasKd5DirSl : std::false_type
{
};
template<class T>
struct HasKd5DirSl<T, std::void_t<decltype(T::machineKd5DirSl())>> : std::true_type
{
};
template<class T, class = void>
struct HasKd5DirSlSr : std::false_type
{
};
template<class T>
struct HasKd5DirSlSr<T, std::void_t<decltype(T::machineKd5DirSlSr())>> : std::true_type
{
};
template<class T, class = void>
struct HasKd5DisDirSlSr : std::false_type
{
};
template<class T>
struct HasKd5DisDirSlSr<T, std::void_t<decltype(T::machineKd5DisDirSlSr())>> : std::true_type
{
};

using Getter = QString (*)();
} // namespace

Q_DECLARE_METATYPE(Getter)

class tst_QNodrixCom_Paths : public QObject
{
    Q_OBJECT

private slots:
    void folderNames_data();
    void folderNames();
    void variantsFollowTheMembers();
    void onlyTheKnownForms();

    void gaugeDiamSubDir_data();
    void gaugeDiamSubDir();
    void configGaugeDiamPath_data();
    void configGaugeDiamPath();
    void configGaugeDiamPathTouchesNothing();

    void folderOptions();
};

void tst_QNodrixCom_Paths::folderNames_data()
{
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<QString>("expected");
#define ROW(name, value) QTest::newRow(#name) << Getter(&QNodrixCom::name) << QStringLiteral(value)
    ROW(machineCodeFolder, "Code");
    ROW(machineCodeFolderSl, "/Code");
    ROW(machineCodeFolderSr, "Code/");
    ROW(machineCodeFolderSlSr, "/Code/");
    ROW(machineCodeDisFolder, "Dis");
    ROW(machineCodeDisFolderSl, "/Dis");
    ROW(machineCodeDisFolderSr, "Dis/");
    ROW(machineCodeDisFolderSlSr, "/Dis/");
    ROW(machineCodeCodFolder, "Cod");
    ROW(machineCodeCodFolderSl, "/Cod");
    ROW(machineCodeCodFolderSr, "Cod/");
    ROW(machineCodeCodFolderSlSr, "/Cod/");
    ROW(machineKd5Dir, "C:/KARTA5/ZR5-VX3K_Nodrix");
    ROW(machineKd5DirSr, "C:/KARTA5/ZR5-VX3K_Nodrix/");
    ROW(machineKd5ChainDir, "Chain");
    ROW(machineKd5ChainDirSl, "/Chain");
    ROW(machineKd5ChainDirSr, "Chain/");
    ROW(machineKd5ChainDirSlSr, "/Chain/");
    ROW(machineKd5CodDir, "Cod");
    ROW(machineKd5CodDirSl, "/Cod");
    ROW(machineKd5CodDirSr, "Cod/");
    ROW(machineKd5CodDirSlSr, "/Cod/");
    ROW(machineKd5DisDir, "Dis");
    ROW(machineKd5DisDirSl, "/Dis");
    ROW(machineKd5DisDirSr, "Dis/");
    ROW(machineKd5DisDirStSr, "/Dis/");
    // The plain names of the machine and sibling trees.
    ROW(machineDataFolder, "/_mac/");
    ROW(machineResourceFolder, "/_res/");
    ROW(machineResCmdIcoFolder, "CmdIco/");
    ROW(machineResMglMapFolder, "MglMap/");
    ROW(machineHelpFolder, "/help/");
    ROW(appExeFolder, "/bin");
    ROW(appExeDshellFolder, "/dshell");
    ROW(machineKd5DisegniDir, "/Nodrix");
    ROW(machineKd5DisegniDevDir, "/Nodrix/DisDev");
    ROW(machineKd5DisegniDbgDir, "/Nodrix/DisDbg");
    ROW(machineKd5CarcolMgl, "/Carcol/Vx3KMaglia.cen");
    ROW(machineKd5CarcolDevDis, "/Carcol/Vx3KDevDis.cen");
    ROW(machineKd5CarcolDevDbg, "/Carcol/Vx3KDevDbg.cen");
    ROW(machineKd5CarcolKadrel, "/Carcol/ZR5-VX3K_Nodrix.cen");
    ROW(machineKd5DisCfgName, "Ndr.cfg ");
    ROW(machineKd5MachCodeName, "VX3K");
#undef ROW
}

void tst_QNodrixCom_Paths::folderNames()
{
    QFETCH(Getter, getter);
    QFETCH(QString, expected);
    QCOMPARE(getter(), expected);
}

void tst_QNodrixCom_Paths::variantsFollowTheMembers()
{
    // The variants are joined at every call, from the member as it is then.
    struct Case
    {
        QString *member;
        Getter sl, sr, both;
    };
    const Case cases[] = {
        {&PathMembers::m_sMachineCodeFolder, &QNodrixCom::machineCodeFolderSl,
         &QNodrixCom::machineCodeFolderSr, &QNodrixCom::machineCodeFolderSlSr},
        {&PathMembers::m_sMachineCodeDisFolder, &QNodrixCom::machineCodeDisFolderSl,
         &QNodrixCom::machineCodeDisFolderSr, &QNodrixCom::machineCodeDisFolderSlSr},
        {&PathMembers::m_sMachineCodeCodFolder, &QNodrixCom::machineCodeCodFolderSl,
         &QNodrixCom::machineCodeCodFolderSr, &QNodrixCom::machineCodeCodFolderSlSr},
        {&PathMembers::m_sMachineKd5ChainDir, &QNodrixCom::machineKd5ChainDirSl,
         &QNodrixCom::machineKd5ChainDirSr, &QNodrixCom::machineKd5ChainDirSlSr},
        {&PathMembers::m_sMachineKd5CodDir, &QNodrixCom::machineKd5CodDirSl,
         &QNodrixCom::machineKd5CodDirSr, &QNodrixCom::machineKd5CodDirSlSr},
        {&PathMembers::m_sMachineKd5DisDir, &QNodrixCom::machineKd5DisDirSl,
         &QNodrixCom::machineKd5DisDirSr, &QNodrixCom::machineKd5DisDirStSr},
    };
    for (const Case &c : cases) {
        const QString saved = *c.member;
        *c.member = QStringLiteral("X y");
        QCOMPARE(c.sl(), QStringLiteral("/X y"));
        QCOMPARE(c.sr(), QStringLiteral("X y/"));
        QCOMPARE(c.both(), QStringLiteral("/X y/"));
        *c.member = QString();
        QCOMPARE(c.sl(), QStringLiteral("/"));
        QCOMPARE(c.both(), QStringLiteral("//"));
        *c.member = saved;
    }
    const QString savedRoot = PathMembers::m_sMachineKd5Dir;
    PathMembers::m_sMachineKd5Dir = QStringLiteral("/opt/kd5/");
    // Joined as it is: a root that already ends in '/' gets a second one.
    QCOMPARE(QNodrixCom::machineKd5DirSr(), QStringLiteral("/opt/kd5//"));
    PathMembers::m_sMachineKd5Dir = savedRoot;
    QCOMPARE(QNodrixCom::machineKd5DirSr(), QStringLiteral("C:/KARTA5/ZR5-VX3K_Nodrix/"));
}

void tst_QNodrixCom_Paths::onlyTheKnownForms()
{
    QVERIFY(!HasKd5DirSl<QNodrixCom>::value);
    QVERIFY(!HasKd5DirSlSr<QNodrixCom>::value);
    // The Dis folder's both-sides form is spelled StSr and only so.
    QVERIFY(!HasKd5DisDirSlSr<QNodrixCom>::value);
}

void tst_QNodrixCom_Paths::gaugeDiamSubDir_data()
{
    QTest::addColumn<int>("gauge");
    QTest::addColumn<int>("diameter");
    QTest::addColumn<QString>("expected");
    QTest::newRow("14, 13") << 14 << 13 << QStringLiteral("14-GG/13-DIAM");
    QTest::newRow("0, 0") << 0 << 0 << QStringLiteral("0-GG/0-DIAM");
    QTest::newRow("7, 30") << 7 << 30 << QStringLiteral("7-GG/30-DIAM");
    QTest::newRow("negative") << -3 << -12 << QStringLiteral("-3-GG/-12-DIAM");
    QTest::newRow("no fill") << 5 << 100 << QStringLiteral("5-GG/100-DIAM");
    QTest::newRow("extremes") << std::numeric_limits<int>::min() << std::numeric_limits<int>::max()
                              << QStringLiteral("-2147483648-GG/2147483647-DIAM");
}

void tst_QNodrixCom_Paths::gaugeDiamSubDir()
{
    QFETCH(int, gauge);
    QFETCH(int, diameter);
    QFETCH(QString, expected);
    QCOMPARE(QNodrixCom::makeGaugeDiamSubDir(gauge, diameter), expected);
}

void tst_QNodrixCom_Paths::configGaugeDiamPath_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("cfg");
    QTest::addColumn<int>("gauge");
    QTest::addColumn<int>("diameter");
    QTest::addColumn<QString>("expected");

    QTest::newRow("empty base") << QString() << "Cfg" << 7 << 30
                                << QStringLiteral("/Cfg/7-GG/30-DIAM");
    QTest::newRow("backslashes, other gauge")
        << QStringLiteral("C:\\Mac\\Cfg\\12-GG") << "Cfg" << 14 << 13
        << QStringLiteral("C:/Mac/Cfg/14-GG/13-DIAM");
    QTest::newRow("complete, with a tail")
        << QStringLiteral("C:/Mac/Cfg/14-GG/13-DIAM/x") << "Cfg" << 14 << 13
        << QStringLiteral("C:/Mac/Cfg/14-GG/13-DIAM/x");
    QTest::newRow("complete, backslashes")
        << QStringLiteral("C:\\Mac\\Cfg\\14-GG\\13-DIAM") << "Cfg" << 14 << 13
        << QStringLiteral("C:/Mac/Cfg/14-GG/13-DIAM");
    QTest::newRow("no configuration folder") << QStringLiteral("/opt/m") << "Cfg" << 14 << 13
                                             << QStringLiteral("/opt/m/Cfg/14-GG/13-DIAM");
    QTest::newRow("trailing slash kept") << QStringLiteral("/opt/m/") << "Cfg" << 14 << 13
                                         << QStringLiteral("/opt/m//Cfg/14-GG/13-DIAM");
    QTest::newRow("configuration folder twice") << QStringLiteral("/a/Cfg/b/Cfg/c") << "Cfg" << 1
                                                << 2 << QStringLiteral("/a/Cfg/1-GG/2-DIAM");
    QTest::newRow("parts in another order") << QStringLiteral("/13-DIAM/x/Cfg/y/14-GG") << "Cfg"
                                            << 14 << 13 << QStringLiteral("/13-DIAM/x/Cfg/y/14-GG");
    QTest::newRow("parts before the folder") << QStringLiteral("/14-GG/13-DIAM/Cfg") << "Cfg" << 14
                                             << 13 << QStringLiteral("/14-GG/13-DIAM/Cfg");
    QTest::newRow("only the gauge") << QStringLiteral("/m/Cfg/14-GG") << "Cfg" << 14 << 13
                                    << QStringLiteral("/m/Cfg/14-GG/13-DIAM");
    QTest::newRow("only the diameter") << QStringLiteral("/m/Cfg/13-DIAM") << "Cfg" << 14 << 13
                                       << QStringLiteral("/m/Cfg/14-GG/13-DIAM");
    QTest::newRow("other diameter") << QStringLiteral("/m/Cfg/14-GG/12-DIAM/t") << "Cfg" << 14 << 13
                                    << QStringLiteral("/m/Cfg/14-GG/13-DIAM");
    QTest::newRow("case-sensitive folder")
        << QStringLiteral("/m/cfg/14-GG/13-DIAM") << "Cfg" << 14 << 13
        << QStringLiteral("/m/cfg/14-GG/13-DIAM/Cfg/14-GG/13-DIAM");
    QTest::newRow("case-sensitive parts") << QStringLiteral("/m/Cfg/14-gg/13-diam") << "Cfg" << 14
                                          << 13 << QStringLiteral("/m/Cfg/14-GG/13-DIAM");
    QTest::newRow("folder as a prefix") << QStringLiteral("/m/Cfgx/y") << "Cfg" << 14 << 13
                                        << QStringLiteral("/m/Cfg/14-GG/13-DIAM");
    QTest::newRow("folder as a prefix, complete")
        << QStringLiteral("/m/Cfgx/14-GG/13-DIAM") << "Cfg" << 14 << 13
        << QStringLiteral("/m/Cfgx/14-GG/13-DIAM");
    QTest::newRow("gauge 1 is not 14") << QStringLiteral("/m/Cfg/14-GG/13-DIAM") << "Cfg" << 1 << 13
                                       << QStringLiteral("/m/Cfg/1-GG/13-DIAM");
    QTest::newRow("gauge 4 is not 14") << QStringLiteral("/m/Cfg/14-GG/13-DIAM") << "Cfg" << 4 << 13
                                       << QStringLiteral("/m/Cfg/4-GG/13-DIAM");
    QTest::newRow("gauge as a prefix") << QStringLiteral("/m/Cfg/14-GGx/13-DIAMy") << "Cfg" << 14
                                       << 13 << QStringLiteral("/m/Cfg/14-GGx/13-DIAMy");
    QTest::newRow("negative numbers")
        << QStringLiteral("/m") << "Cfg" << -1 << -2 << QStringLiteral("/m/Cfg/-1-GG/-2-DIAM");
    QTest::newRow("zero") << QStringLiteral("/m") << "Cfg" << 0 << 0
                          << QStringLiteral("/m/Cfg/0-GG/0-DIAM");
    QTest::newRow("network path") << QStringLiteral("\\\\server\\share\\Cfg") << "Cfg" << 14 << 13
                                  << QStringLiteral("//server/share/Cfg/14-GG/13-DIAM");
    QTest::newRow("folder name with a backslash") << QStringLiteral("/m/A\\B") << "A\\B" << 14 << 13
                                                  << QStringLiteral("/m/A/B/A\\B/14-GG/13-DIAM");
    QTest::newRow("folder name with a slash") << QStringLiteral("/m/A/B/x") << "A/B" << 14 << 13
                                              << QStringLiteral("/m/A/B/14-GG/13-DIAM");
    QTest::newRow("empty folder name")
        << QStringLiteral("/m/x") << "" << 14 << 13 << QStringLiteral("//14-GG/13-DIAM");
    QTest::newRow("empty folder name, no slash")
        << QStringLiteral("abc") << "" << 14 << 13 << QStringLiteral("abc//14-GG/13-DIAM");
    QTest::newRow("folder name with placeholders")
        << QStringLiteral("/m") << "%1%2" << 14 << 13 << QStringLiteral("/m/%1%2/14-GG/13-DIAM");
}

void tst_QNodrixCom_Paths::configGaugeDiamPath()
{
    QFETCH(QString, base);
    QFETCH(QString, cfg);
    QFETCH(int, gauge);
    QFETCH(int, diameter);
    QFETCH(QString, expected);
    QCOMPARE(QNodrixCom::makeConfigGaugeDiamPath(base, cfg, gauge, diameter), expected);
}

void tst_QNodrixCom_Paths::configGaugeDiamPathTouchesNothing()
{
    QTemporaryDir dir;
    const QString result
        = QNodrixCom::makeConfigGaugeDiamPath(dir.path(), QStringLiteral("Cfg"), 14, 13);
    QCOMPARE(result, dir.path() + QStringLiteral("/Cfg/14-GG/13-DIAM"));
    QCOMPARE(QDir(dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    // Nor is a missing base checked.
    QCOMPARE(QNodrixCom::makeConfigGaugeDiamPath(QStringLiteral("/does/not/exist"),
                                                 QStringLiteral("Cfg"), 1, 2),
             QStringLiteral("/does/not/exist/Cfg/1-GG/2-DIAM"));
}

void tst_QNodrixCom_Paths::folderOptions()
{
    QCOMPARE(PathMembers::m_nFolderUseGauge, 0);
    QCOMPARE(PathMembers::m_nFolderUseDiam, 0);
    // Gauge first, diameter second; both replaced at every call.
    QNodrixCom::setProjectsFolderOptions(14, 0);
    QCOMPARE(PathMembers::m_nFolderUseGauge, 14);
    QCOMPARE(PathMembers::m_nFolderUseDiam, 0);
    QNodrixCom::setProjectsFolderOptions(0, 13);
    QCOMPARE(PathMembers::m_nFolderUseGauge, 0);
    QCOMPARE(PathMembers::m_nFolderUseDiam, 13);
    QNodrixCom::setProjectsFolderOptions(-1, 2);
    QCOMPARE(PathMembers::m_nFolderUseGauge, -1);
    QCOMPARE(PathMembers::m_nFolderUseDiam, 2);
    QNodrixCom::setProjectsFolderOptions(0, 0);
}

NDXCOM_TEST_MAIN(tst_QNodrixCom_Paths)
#include "tst_qnodrixcom_paths.moc"
