// The environment switches, the language value, the message for the platform
// tools and the platform version readers.
#include <QNodrixCom>
#include <QNodrixRegistry>

#include "ndxcomtest.h"
#include "storetest.h"

#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace StoreTest;

namespace {
using BoolFlag = bool (*)();

struct Flag
{
    const char *function;
    const char *key;
    BoolFlag read;
};

// The flags as the applications know them; two keys differ from their
// function's name on purpose.
const Flag flags[] = {
    {"environmentEnblHelpInfo", "EnblHelpInfo", &QNodrixRegistry::environmentEnblHelpInfo},
    {"environmentEnblZentar", "EnblZentar", &QNodrixRegistry::environmentEnblZentar},
    {"environmentEnblDebugInfo", "EnblDebugInfo", &QNodrixRegistry::environmentEnblDebugInfo},
    {"environmentEnblDebugDrums", "EnblDebugDrums", &QNodrixRegistry::environmentEnblDebugDrums},
    {"environmentEnblPyrelDbgDev", "EnblPyrelDbgDev", &QNodrixRegistry::environmentEnblPyrelDbgDev},
    {"environmentSimulScsAcquire", "SimulScsAcquire", &QNodrixRegistry::environmentSimulScsAcquire},
    {"environmentEnblResizeShowErr", "EnblResizeShowErr",
     &QNodrixRegistry::environmentEnblResizeShowErr},
    {"environmentEnblSeleStitchView", "EnblSeleStitchView",
     &QNodrixRegistry::environmentEnblSeleStitchView},
    {"environmentEnblStitchViewSpecial", "EnblStitchViewSpecial",
     &QNodrixRegistry::environmentEnblStitchViewSpecial},
    {"environmentEnblGaugeForDebug", "EnblGaugeForDebug",
     &QNodrixRegistry::environmentEnblGaugeForDebug},
    {"environmentEnblPlaneGuiShowMov", "EnblPlaneGuiShowMov",
     &QNodrixRegistry::environmentEnblPlaneGuiShowMov},
    {"environmentEnblUpdateFileMacLang", "EnblUpdateMacLang",
     &QNodrixRegistry::environmentEnblUpdateFileMacLang},
    {"environmentEnblBrowserExpand", "EnblBrowserExpand",
     &QNodrixRegistry::environmentEnblBrowserExpand},
    {"environmentDsblGuiMapView", "DsblGuiMapView", &QNodrixRegistry::environmentDsblGuiMapView},
    {"environmentEnblPlaneCmdShowColorId", "EnblPlaneCmdColorId",
     &QNodrixRegistry::environmentEnblPlaneCmdShowColorId},
};

const Flag *flag(const QByteArray &function)
{
    for (const Flag &f : flags) {
        if (function == f.function)
            return &f;
    }
    return nullptr;
}

void addFlagRows()
{
    QTest::addColumn<QByteArray>("function");
    for (const Flag &f : flags)
        QTest::newRow(f.function) << QByteArray(f.function);
}

// A new store file for every content: QSettings recognises a changed file by
// its size and time, so rewriting one name twice within a millisecond with
// the same length could go unnoticed.
bool rewriteUserStore(const QByteArray &content)
{
    freshStores();
    return writeFile(userStoreFile(), content);
}

bool writeEnvironment(const QByteArray &lines)
{
    return rewriteUserStore("[Environment]\n" + lines + "\n[Keep]\nvalue=1\n");
}

bool runWriter(const QString &key, const QString &value)
{
    QProcess p;
    p.start(QStringLiteral(NDXCOM_SETTINGS_WRITER),
            {QStringLiteral("--user-dir"), userDir(), QStringLiteral("--system-dir"), systemDir(),
             QStringLiteral("--organization"), QCoreApplication::organizationName(),
             QStringLiteral("--application"), QCoreApplication::applicationName(),
             QStringLiteral("--set"), key, value});
    return p.waitForFinished(60000) && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
}

bool writePlatform(const QByteArray &content)
{
    return writeFile(platformStoreFile(), content);
}
} // namespace

class tst_QNodrixRegistry_Environment : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void emptyStoreEdgeCase();
    void flagIsOff_data();
    void flagIsOff();
    void flagReadsItsKey_data();
    void flagReadsItsKey();
    void functionNameKeysHaveNoEffect_data();
    void functionNameKeysHaveNoEffect();
    void flagsReadOnlyTheirGroup_data();
    void flagsReadOnlyTheirGroup();
    void flagConversion_data();
    void flagConversion();
    void stitchZoomLevel_data();
    void stitchZoomLevel();
    void cadVarIsAlwaysOn();
    void flagsAreReadAtEveryCall();
    void flagsAreNeverWritten();
    void flagsReadTheApplicationsStore();

    void language_data();
    void language();
    void languageFromFile_data();
    void languageFromFile();
    void nodrixEnvMsg();

    void platformStoreLocation();
    void installedVersion_data();
    void installedVersion();
    void neededVersion_data();
    void neededVersion();
    void neededVersionFollowsTheMachine();
    void platformStoreIsOnlyRead();
};

void tst_QNodrixRegistry_Environment::init()
{
    freshStores();
}

void tst_QNodrixRegistry_Environment::emptyStoreEdgeCase()
{
    // false for every bool flag, 0 for the zoom level, true for the variant
    // switch and -1 for the language.
    for (const Flag &f : flags)
        QVERIFY2(!f.read(), f.function);
    QCOMPARE(QNodrixRegistry::environmentStitchZoomLevel(), 0);
    QCOMPARE(QNodrixRegistry::environmentEnblCadVar(), true);
    QCOMPARE(int(QNodrixRegistry::keyLanguage()), -1);
    QCOMPARE(int(QNodrixRegistry().getLanguage()), -1);
}

void tst_QNodrixRegistry_Environment::flagIsOff_data()
{
    addFlagRows();
}

void tst_QNodrixRegistry_Environment::flagIsOff()
{
    QFETCH(QByteArray, function);
    const Flag *f = flag(function);
    QVERIFY(f);
    QVERIFY(writeEnvironment("Other=true"));
    QCOMPARE(f->read(), false);
}

void tst_QNodrixRegistry_Environment::flagReadsItsKey_data()
{
    addFlagRows();
}

void tst_QNodrixRegistry_Environment::flagReadsItsKey()
{
    // Turning one switch on turns on that one only.
    QFETCH(QByteArray, function);
    const Flag *f = flag(function);
    QVERIFY(f);
    QVERIFY(writeEnvironment(QByteArray(f->key) + "=true"));
    for (const Flag &other : flags)
        QCOMPARE(other.read(), &other == f);
    QCOMPARE(QNodrixRegistry::environmentStitchZoomLevel(), 0);
    // Off again.
    QVERIFY(writeEnvironment(QByteArray(f->key) + "=false"));
    QCOMPARE(f->read(), false);
}

void tst_QNodrixRegistry_Environment::functionNameKeysHaveNoEffect_data()
{
    QTest::addColumn<QByteArray>("function");
    QTest::addColumn<QByteArray>("wrongKey");
    QTest::addColumn<QByteArray>("rightKey");
    QTest::newRow("UpdateFileMacLang")
        << QByteArray("environmentEnblUpdateFileMacLang") << QByteArray("EnblUpdateFileMacLang")
        << QByteArray("EnblUpdateMacLang");
    QTest::newRow("PlaneCmdShowColorId")
        << QByteArray("environmentEnblPlaneCmdShowColorId") << QByteArray("EnblPlaneCmdShowColorId")
        << QByteArray("EnblPlaneCmdColorId");
}

void tst_QNodrixRegistry_Environment::functionNameKeysHaveNoEffect()
{
    QFETCH(QByteArray, function);
    QFETCH(QByteArray, wrongKey);
    QFETCH(QByteArray, rightKey);
    const Flag *f = flag(function);
    QVERIFY(f);
    QCOMPARE(QByteArray(f->key), rightKey);
    QVERIFY(writeEnvironment(wrongKey + "=true"));
    QCOMPARE(f->read(), false);
    QVERIFY(writeEnvironment(wrongKey + "=false\n" + rightKey + "=true"));
    QCOMPARE(f->read(), true);
}

void tst_QNodrixRegistry_Environment::flagsReadOnlyTheirGroup_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("in Settings") << QByteArray("[Settings]\n%1=true\n");
    QTest::newRow("at the top level") << QByteArray("[General]\n%1=true\n");
    QTest::newRow("in a machine") << QByteArray("[Machines]\nM\\Environment\\%1=true\n");
    QTest::newRow("group in other case") << QByteArray("[environment]\n%1=true\n");
    QTest::newRow("key in lower case") << QByteArray("[Environment]\n%2=true\n");
}

void tst_QNodrixRegistry_Environment::flagsReadOnlyTheirGroup()
{
    // Group and key are compared exactly.
    QFETCH(QByteArray, content);
#ifdef Q_OS_WIN
    if (content.contains("[environment]") || content.contains("%2"))
        QSKIP("The registry compares key names without case: only a file store tells them apart");
#endif
    for (const Flag &f : flags) {
        QByteArray text = content;
        text.replace("%1", f.key).replace("%2", QByteArray(f.key).toLower());
        QVERIFY(rewriteUserStore(text));
        QVERIFY2(!f.read(), f.function);
    }
}

void tst_QNodrixRegistry_Environment::flagConversion_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("expected");
    // QVariant's rules: empty, "0" and "false" in any case are off,
    // every other text is on.
    QTest::newRow("true") << QByteArray("true") << true;
    QTest::newRow("TRUE") << QByteArray("TRUE") << true;
    QTest::newRow("1") << QByteArray("1") << true;
    QTest::newRow("2") << QByteArray("2") << true;
    QTest::newRow("yes") << QByteArray("yes") << true;
    QTest::newRow("-1") << QByteArray("-1") << true;
    QTest::newRow("false") << QByteArray("false") << false;
    QTest::newRow("False") << QByteArray("False") << false;
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("empty") << QByteArray("") << false;
    QTest::newRow("quoted empty") << QByteArray("\"\"") << false;
    QTest::newRow("list") << QByteArray("1, 0") << false;
}

void tst_QNodrixRegistry_Environment::flagConversion()
{
    QFETCH(QByteArray, value);
    QFETCH(bool, expected);
    for (const Flag &f : flags) {
        QVERIFY(writeEnvironment(QByteArray(f.key) + '=' + value));
        QCOMPARE(f.read(), expected);
    }
}

void tst_QNodrixRegistry_Environment::stitchZoomLevel_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("12") << QByteArray("12") << 12;
    QTest::newRow("-3") << QByteArray("-3") << -3;
    QTest::newRow("blanks") << QByteArray(" 42 ") << 42;
    QTest::newRow("not a number") << QByteArray("abc") << 0;
    QTest::newRow("decimal") << QByteArray("7.9") << 0;
    QTest::newRow("true") << QByteArray("true") << 0;
    QTest::newRow("empty") << QByteArray("") << 0;
}

void tst_QNodrixRegistry_Environment::stitchZoomLevel()
{
    QFETCH(QByteArray, value);
    QFETCH(int, expected);
    QVERIFY(writeEnvironment("StitchZoomLevel=" + value));
    QCOMPARE(QNodrixRegistry::environmentStitchZoomLevel(), expected);
}

void tst_QNodrixRegistry_Environment::cadVarIsAlwaysOn()
{
    QVERIFY(writeEnvironment("EnblCadVar=false"));
    QCOMPARE(QNodrixRegistry::environmentEnblCadVar(), true);
    // Even where no store can be opened at all: the organization's folder is
    // a file.
    QCoreApplication::setOrganizationName(QStringLiteral("Blocked"));
    QVERIFY(writeFile(userDir() + QStringLiteral("/Blocked"), "not a folder"));
    QCOMPARE(QNodrixRegistry::environmentEnblCadVar(), true);
    QCOMPARE(QNodrixRegistry::environmentEnblHelpInfo(), false);
    QCoreApplication::setOrganizationName(QStringLiteral("NdxComTests"));
}

void tst_QNodrixRegistry_Environment::flagsAreReadAtEveryCall()
{
    // No flag is remembered: a switch turned on by another program counts
    // from the next call on.
    QCOMPARE(QNodrixRegistry::environmentEnblHelpInfo(), false);
    QVERIFY(runWriter(QStringLiteral("Environment/EnblHelpInfo"), QStringLiteral("true")));
    QCOMPARE(QNodrixRegistry::environmentEnblHelpInfo(), true);
    QVERIFY(runWriter(QStringLiteral("Environment/StitchZoomLevel"), QStringLiteral("30")));
    QCOMPARE(QNodrixRegistry::environmentStitchZoomLevel(), 30);
    QVERIFY(runWriter(QStringLiteral("Environment/EnblHelpInfo"), QStringLiteral("false")));
    QCOMPARE(QNodrixRegistry::environmentEnblHelpInfo(), false);
    // And one written in this process by a plain store.
    {
        QSettings store;
        store.setValue(QStringLiteral("Environment/DsblGuiMapView"), true);
    }
    QCOMPARE(QNodrixRegistry::environmentDsblGuiMapView(), true);
}

void tst_QNodrixRegistry_Environment::flagsAreNeverWritten()
{
    for (const Flag &f : flags)
        f.read();
    QNodrixRegistry::environmentStitchZoomLevel();
    QNodrixRegistry::environmentEnblCadVar();
    flushUserStore();
    QVERIFY(!QFileInfo::exists(userStoreFile()));

    // An existing file is left as it was, byte for byte.
    const QByteArray content = "[Environment]\nEnblDebugInfo=1\n\n[Keep]\nvalue=1\n";
    QVERIFY(writeFile(userStoreFile(), content));
    for (const Flag &f : flags)
        f.read();
    flushUserStore();
#ifdef Q_OS_WIN
    // The registry has no bytes to compare: its values are.
    QStringList keys = DiskStore(userStoreFile()).allKeys();
    keys.sort();
    QCOMPARE(
        keys,
        (QStringList {QStringLiteral("Environment/EnblDebugInfo"), QStringLiteral("Keep/value")}));
#else
    QCOMPARE(readFile(userStoreFile()), content);
#endif
}

void tst_QNodrixRegistry_Environment::flagsReadTheApplicationsStore()
{
    // The store is the running application's: another application's
    // switches are not seen.
    QVERIFY(writeFile(nativeStore(QSettings::UserScope, QCoreApplication::organizationName(),
                                  QStringLiteral("Other")),
                      "[Environment]\nEnblHelpInfo=true\n"));
    QCOMPARE(QNodrixRegistry::environmentEnblHelpInfo(), false);
    const QString own = QCoreApplication::applicationName();
    QCoreApplication::setApplicationName(QStringLiteral("Other"));
    QCOMPARE(QNodrixRegistry::environmentEnblHelpInfo(), true);
    QCoreApplication::setApplicationName(own);
}

void tst_QNodrixRegistry_Environment::language_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("code");
    QTest::newRow("-1") << -1 << QStringLiteral("en");
    QTest::newRow("0") << 0 << QStringLiteral("it");
    QTest::newRow("1") << 1 << QStringLiteral("en");
    QTest::newRow("2") << 2 << QStringLiteral("es");
    QTest::newRow("3") << 3 << QStringLiteral("en");
    QTest::newRow("4") << 4 << QStringLiteral("en");
    QTest::newRow("5") << 5 << QStringLiteral("en");
    QTest::newRow("6") << 6 << QStringLiteral("zh");
    QTest::newRow("7") << 7 << QStringLiteral("szh");
    QTest::newRow("8") << 8 << QStringLiteral("en");
    QTest::newRow("-2") << -2 << QStringLiteral("en");
    QTest::newRow("INT_MAX") << std::numeric_limits<int>::max() << QStringLiteral("en");
    QTest::newRow("INT_MIN") << std::numeric_limits<int>::min() << QStringLiteral("en");
}

void tst_QNodrixRegistry_Environment::language()
{
    // Every int is stored and read back as it is, and mapped to a code.
    QFETCH(int, number);
    QFETCH(QString, code);
    {
        QNodrixRegistry registry;
        registry.setLastMachine(QStringLiteral("M"));
        registry.setLanguage(QNodrixRegistry::eLanguageType(number));
        QCOMPARE(int(registry.getLanguage()), number);
    }
    QCOMPARE(int(QNodrixRegistry::keyLanguage()), number);
    QCOMPARE(QNodrixCom::language(), code);
    const DiskStore disk(userStoreFile());
    QCOMPARE(disk.value(QStringLiteral("Settings/Language")).toString(), QString::number(number));
    QVERIFY(!disk.contains(QStringLiteral("Machines/M/Settings/Language")));
}

void tst_QNodrixRegistry_Environment::languageFromFile_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("number");
    QTest::newRow("7") << QByteArray("7") << 7;
    QTest::newRow("quoted") << QByteArray("\"6\"") << 6;
    QTest::newRow("text") << QByteArray("it") << 0;
    QTest::newRow("decimal") << QByteArray("7.5") << 0;
    QTest::newRow("empty") << QByteArray("") << 0;
}

void tst_QNodrixRegistry_Environment::languageFromFile()
{
    QFETCH(QByteArray, value);
    QFETCH(int, number);
    QVERIFY(writeFile(userStoreFile(), "[Settings]\nLanguage=" + value + "\n"));
    QCOMPARE(int(QNodrixRegistry::keyLanguage()), number);
    QCOMPARE(int(QNodrixRegistry().getLanguage()), number);
}

void tst_QNodrixRegistry_Environment::nodrixEnvMsg()
{
    {
        QNodrixRegistry registry;
        registry.setNodrixEnvMsg(QStringLiteral("Attenzione: versione piattaforma"));
    }
    QCOMPARE(DiskStore(userStoreFile()).value(QStringLiteral("Settings/NodrixEnvMsg")).toString(),
             QStringLiteral("Attenzione: versione piattaforma"));
    {
        QNodrixRegistry registry;
        registry.setNodrixEnvMsg(QString());
    }
    QVERIFY(DiskStore(userStoreFile()).contains(QStringLiteral("Settings/NodrixEnvMsg")));
    QCOMPARE(DiskStore(userStoreFile()).value(QStringLiteral("Settings/NodrixEnvMsg")).toString(),
             QString());
}

void tst_QNodrixRegistry_Environment::platformStoreLocation()
{
    // System scope, organization "Corvala S.p.A.", application "NodrixEnv".
    QCOMPARE(platformStoreFile(),
             nativeStore(QSettings::SystemScope, QStringLiteral("Corvala S.p.A."),
                         QStringLiteral("NodrixEnv")));
    QVERIFY(writePlatform("[General]\nInstallVersion=2.4.1\n"));
    QCOMPARE(QNodrixRegistry().getNodrixEnvVersInst(), QStringLiteral("2.4.1"));
    // The user scope's file of the same names is not the platform store.
    QVERIFY(writeFile(nativeStore(QSettings::UserScope, QStringLiteral("Corvala S.p.A."),
                                  QStringLiteral("NodrixEnv")),
                      "[General]\nInstallVersion=9.9.9\n"));
    QCOMPARE(QNodrixRegistry().getNodrixEnvVersInst(), QStringLiteral("2.4.1"));
}

void tst_QNodrixRegistry_Environment::installedVersion_data()
{
    QTest::addColumn<bool>("present");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no store") << false << QByteArray() << QString();
    QTest::newRow("empty store") << true << QByteArray() << QString();
    QTest::newRow("set") << true << QByteArray("[General]\nInstallVersion=1.2.0\n")
                         << QStringLiteral("1.2.0");
    QTest::newRow("set with machines") << true
                                       << QByteArray("InstallVersion=1.3.0.4\n[Machines]\n"
                                                     "VX3K\\VersionEnv=1.2.0\n")
                                       << QStringLiteral("1.3.0.4");
    QTest::newRow("only in a group")
        << true << QByteArray("[Other]\nInstallVersion=1.0\n") << QString();
    QTest::newRow("blank-padded") << true << QByteArray("InstallVersion=\" 1.2 \"\n")
                                  << QStringLiteral(" 1.2 ");
}

void tst_QNodrixRegistry_Environment::installedVersion()
{
    QFETCH(bool, present);
    QFETCH(QByteArray, content);
    QFETCH(QString, expected);
    if (present)
        QVERIFY(writePlatform(content));
    QNodrixRegistry registry;
    QCOMPARE(registry.getNodrixEnvVersInst(), expected);
}

void tst_QNodrixRegistry_Environment::neededVersion_data()
{
    QTest::addColumn<QString>("machineName");
    QTest::addColumn<QByteArray>("platform");
    QTest::addColumn<QString>("expected");

    const QByteArray several = "[General]\nInstallVersion=1.4.0\n"
                               "[Machines]\n"
                               "VX3K\\VersionEnv=1.2.0\n"
                               "ZR5\\VersionEnv=1.3.5\n"
                               "vx3k\\VersionEnv=0.9\n"
                               "NoVersion\\Other=x\n"
                               "Spaced%20Name\\VersionEnv=2.0\n";
    QTest::newRow("first of several")
        << QStringLiteral("VX3K") << several << QStringLiteral("1.2.0");
    QTest::newRow("second of several")
        << QStringLiteral("ZR5") << several << QStringLiteral("1.3.5");
    QTest::newRow("case-sensitive") << QStringLiteral("vx3k") << several << QStringLiteral("0.9");
    QTest::newRow("other case unknown") << QStringLiteral("Vx3k") << several << QString();
    QTest::newRow("group without VersionEnv")
        << QStringLiteral("NoVersion") << several << QString();
    QTest::newRow("name with a blank")
        << QStringLiteral("Spaced Name") << several << QStringLiteral("2.0");
    QTest::newRow("unknown machine, InstallVersion set")
        << QStringLiteral("K9") << several << QString();
    QTest::newRow("empty machine name") << QString() << several << QString();
    QTest::newRow("prefix of a name") << QStringLiteral("VX") << several << QString();
    QTest::newRow("no Machines group")
        << QStringLiteral("VX3K") << QByteArray("[General]\nInstallVersion=1.4.0\n") << QString();
    QTest::newRow("no platform store") << QStringLiteral("VX3K") << QByteArray() << QString();
    QTest::newRow("key at the wrong depth")
        << QStringLiteral("VX3K") << QByteArray("[Machines]\nVersionEnv=1.0\n") << QString();
}

void tst_QNodrixRegistry_Environment::neededVersion()
{
    QFETCH(QString, machineName);
    QFETCH(QByteArray, platform);
    QFETCH(QString, expected);
#ifdef Q_OS_WIN
    if (qstrcmp(QTest::currentDataTag(), "first of several") == 0
        || qstrcmp(QTest::currentDataTag(), "case-sensitive") == 0)
        QSKIP("The registry compares key names without case: \"VX3K\" and \"vx3k\" are one key");
#endif
    if (!platform.isEmpty())
        QVERIFY(writePlatform(platform));
    QNodrixRegistry registry;
    registry.setLastMachine(QStringLiteral("Linea 1"));
    registry.setMachineName(machineName);
    QCOMPARE(registry.getNodrixEnvVersNeeded(), expected);
}

void tst_QNodrixRegistry_Environment::neededVersionFollowsTheMachine()
{
    // The machine name is read from the last machine's settings group.
    QVERIFY(writePlatform("[Machines]\nVX3K\\VersionEnv=1.2.0\nZR5\\VersionEnv=1.3.5\n"));
    QNodrixRegistry registry;
    registry.setLastMachine(QStringLiteral("A"));
    registry.setMachineName(QStringLiteral("VX3K"));
    registry.setLastMachine(QStringLiteral("B"));
    registry.setMachineName(QStringLiteral("ZR5"));
    QCOMPARE(registry.getNodrixEnvVersNeeded(), QStringLiteral("1.3.5"));
    registry.setLastMachine(QStringLiteral("A"));
    QCOMPARE(registry.getNodrixEnvVersNeeded(), QStringLiteral("1.2.0"));
    registry.setLastMachine(QStringLiteral("C"));
    QCOMPARE(registry.getNodrixEnvVersNeeded(), QString());
}

void tst_QNodrixRegistry_Environment::platformStoreIsOnlyRead()
{
    const QByteArray content
        = "[General]\nInstallVersion=1.2.0\n\n[Machines]\nVX3K\\VersionEnv=1.1\n";
    QVERIFY(writePlatform(content));
    {
        QNodrixRegistry registry;
        registry.setMachineName(QStringLiteral("VX3K"));
        QCOMPARE(registry.getNodrixEnvVersInst(), QStringLiteral("1.2.0"));
        QCOMPARE(registry.getNodrixEnvVersNeeded(), QStringLiteral("1.1"));
    }
#ifdef Q_OS_WIN
    // The registry has no bytes to compare: its values are.
    const DiskStore platform(platformStoreFile());
    QStringList keys = platform.allKeys();
    keys.sort();
    // The registry keeps the values of "General" at the top.
    QCOMPARE(keys,
             (QStringList {QStringLiteral("InstallVersion"),
                           QStringLiteral("Machines/VX3K/VersionEnv")}));
    QCOMPARE(platform.value(QStringLiteral("Machines/VX3K/VersionEnv")).toString(),
             QStringLiteral("1.1"));
#else
    QCOMPARE(readFile(platformStoreFile()), content);
#endif
    // The application's own store holds the machine name and nothing of the
    // platform.
    const DiskStore disk(userStoreFile());
    QCOMPARE(disk.allKeys(), QStringList {QStringLiteral("Machines/Settings/MachineName")});
}

NDXCOM_TEST_MAIN(tst_QNodrixRegistry_Environment)
#include "tst_qnodrixregistry_environment.moc"
