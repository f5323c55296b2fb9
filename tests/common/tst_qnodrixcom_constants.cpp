#include <QNodrixCom>

#include "ndxcomtest.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <climits>

// Reads the members that have no getter.
struct ComMembers : QNodrixCom
{
    using QNodrixCom::m_nFileNameMaxChars;
    using QNodrixCom::m_nProjDcoUId;
    using QNodrixCom::m_sCaricoFilesFilter;
    using QNodrixCom::m_sFileNameInvalidChars;
    using QNodrixCom::m_sLanguageEN;
    using QNodrixCom::m_sLanguageES;
    using QNodrixCom::m_sLanguageIT;
    using QNodrixCom::m_sLanguageSZH;
    using QNodrixCom::m_sLanguageZH;
    using QNodrixCom::m_sProjectSaveAs;
    using QNodrixCom::m_sScaricoFilesExt;
    using QNodrixCom::m_sScaricoFilesFilter;
};

class tst_QNodrixCom_Constants : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void dictionary_data();
    void dictionary();
    void crossedUnloadingGetters();
    void machineFilePair();
    void cfgNameKeepsItsBlank();
    void invalidCharacters();
    void projDocUIdIsAGenerator();
    void appVersionStartsAtZero();
    void runtimeDefaults();
    void metaObject();
    void translationFunctions();
};

void tst_QNodrixCom_Constants::initTestCase()
{
    // Nothing in this program may have drawn a document id before the
    // generator test: the first call after loading must answer 1.
    QCOMPARE(ComMembers::m_nProjDcoUId, 0);
}

void tst_QNodrixCom_Constants::dictionary_data()
{
    QTest::addColumn<QVariant>("actual");
    QTest::addColumn<QVariant>("expected");

// The expected value keeps its own type, so the type check in dictionary()
// also proves that each getter returns the documented type.
#define ROW(getter, value)                                                                         \
    QTest::newRow(#getter) << QVariant::fromValue(QNodrixCom::getter())                            \
                           << QVariant::fromValue(value)

    ROW(applicationName, QStringLiteral("Nodrix"));
    ROW(nodrixInterface, QStringLiteral("Nodrix"));
    ROW(nodrixBrand, QStringLiteral("Tavolix"));
    ROW(nodrixIcon, QStringLiteral(":/resources/Resources/Nodrix.png"));
    ROW(pathGlobalIcon, QStringLiteral(":/resources/Resources/"));
    ROW(pathCmdIcon, QStringLiteral(":/cmdico/Resources/cmdico/"));
    ROW(moreCommandsIcon, QStringLiteral(":/resources/Resources/moreCommands.png"));
    ROW(keyImageText, QStringLiteral("Description"));
    ROW(appExeFolder, QStringLiteral("/bin"));
    ROW(appExeDshellFolder, QStringLiteral("/dshell"));
    ROW(kadrelShellProcess, QStringLiteral("KaDrShell.exe"));
    ROW(scsImportProcess, QStringLiteral("DecoNodrix.exe"));
    ROW(projectFilesExt, QStringLiteral(".ndx"));
    ROW(projectFilesFilter, QStringLiteral("*.ndx"));
    ROW(concatenateFilesExt, QStringLiteral(".pcn"));
    ROW(concatenateFilesFilter, QStringLiteral("*.pcn"));
    ROW(moduleCylFilesExt, QStringLiteral(".pmc"));
    ROW(moduleCylFilesFilter, QStringLiteral("*.pmc"));
    ROW(moduleMglFilesExt, QStringLiteral(".pmm"));
    ROW(moduleMglFilesFilter, QStringLiteral("*.pmm"));
    ROW(caricoFilesExt, QStringLiteral(".pca"));
    ROW(scsFilesExt, QStringLiteral(".sc"));
    ROW(freeModeFilesExt, QStringLiteral(".pfm"));
    ROW(freeModeFilesFilter, QStringLiteral("*.pfm"));
    ROW(freeModeCodePrefix, QString());
    ROW(logFilesExt, QStringLiteral(".log"));
    ROW(devDisFilesExt, QStringLiteral(".dis"));
    ROW(kd5DISFilesExt, QStringLiteral(".dis"));
    ROW(sockFilesExt, QStringLiteral(".sok"));
    ROW(scoFilesExt, QStringLiteral(".sco"));
    ROW(scnFilesExt, QStringLiteral(".scn"));
    ROW(pskFilesExt, QStringLiteral(".psk"));
    ROW(codeFilesExt, QStringLiteral(".xc"));
    ROW(codeFilesXmlExt, QStringLiteral(".xml"));
    ROW(corrFilesExt, QStringLiteral(".cor"));
    ROW(codeCnFilesExt, QStringLiteral(".cn"));
    ROW(lockFilesExt, QStringLiteral(".~lock"));
    ROW(imageFilesExt, QStringLiteral(".png"));
    ROW(prefixProjectDoc, QStringLiteral("Prg"));
    ROW(prefixModuleDoc, QStringLiteral("Mod"));
    ROW(machineConfigFile, QStringLiteral("Macchina.dax"));
    ROW(machineHelpFile, QStringLiteral("HelpMac.ini"));
    ROW(machineCodingDataFile, QStringLiteral("coding.xml"));
    ROW(machineFilesExt, QStringLiteral(".xml"));
    ROW(machineFilesXmlExt, QStringLiteral(".dax"));
    ROW(machineFilesLangPostfix, QStringLiteral("Lang.xml"));
    ROW(machineFilesMsg, QStringLiteral("_msg_"));
    ROW(machineFilesMsgExt, QStringLiteral(".ini"));
    ROW(machineFilesBinExt, QStringLiteral(".dat"));
    ROW(machineDataFolder, QStringLiteral("/_mac/"));
    ROW(machineResourceFolder, QStringLiteral("/_res/"));
    ROW(machineResCmdIcoFolder, QStringLiteral("CmdIco/"));
    ROW(machineResMglMapFolder, QStringLiteral("MglMap/"));
    ROW(machineHelpFolder, QStringLiteral("/help/"));
    ROW(machineCodeFolder, QStringLiteral("Code"));
    ROW(machineCodeDisFolder, QStringLiteral("Dis"));
    ROW(machineCodeCodFolder, QStringLiteral("Cod"));
    ROW(projectsDefFolder, QStringLiteral("Projects"));
    ROW(repositoryDefFolder, QStringLiteral("Repository"));
    ROW(projectLinkDefFolder, QStringLiteral("LinkProjects"));
    ROW(projectArchFolder, QStringLiteral("/arch-ndx"));
    ROW(projectArchAppend, QStringLiteral("_arch"));
    ROW(machineKd5Dir, QStringLiteral("C:/KARTA5/ZR5-VX3K_Nodrix"));
    ROW(machineKd5ChainDir, QStringLiteral("Chain"));
    ROW(machineKd5CodDir, QStringLiteral("Cod"));
    ROW(machineKd5DisDir, QStringLiteral("Dis"));
    ROW(machineKd5DisegniDir, QStringLiteral("/Nodrix"));
    ROW(machineKd5DisegniDevDir, QStringLiteral("/Nodrix/DisDev"));
    ROW(machineKd5DisegniDbgDir, QStringLiteral("/Nodrix/DisDbg"));
    ROW(machineKd5CarcolMgl, QStringLiteral("/Carcol/Vx3KMaglia.cen"));
    ROW(machineKd5CarcolDevDis, QStringLiteral("/Carcol/Vx3KDevDis.cen"));
    ROW(machineKd5CarcolDevDbg, QStringLiteral("/Carcol/Vx3KDevDbg.cen"));
    ROW(machineKd5CarcolKadrel, QStringLiteral("/Carcol/ZR5-VX3K_Nodrix.cen"));
    ROW(machineKd5DisCfgName, QStringLiteral("Ndr.cfg "));
    ROW(machineKd5MachCodeName, QStringLiteral("VX3K"));
    ROW(scsZoneKeyword, QStringLiteral("ZONA_SCS"));
    ROW(scsVersKeyword, QStringLiteral("VERSIONE_SCS"));
    ROW(xmlTrue, QStringLiteral("true"));
    ROW(xmlFalse, QStringLiteral("false"));
    ROW(xmlParamDelimiter, QChar(0x25));
    ROW(cmdStripBlendFont, QStringLiteral("Courier New"));
    ROW(cmdStripBlendEndVal, QStringLiteral(" < "));
    ROW(namesInvalidChars, QStringLiteral("@ ,;'!?"));
    ROW(projectNameMaxLength, 256);
    ROW(planesMax, 1);
    ROW(planesProject, 1);
    ROW(colorsMax, 256);
    ROW(mglPntMax, 256);
    ROW(patternRowsDef, 240);
    ROW(stitchViewMinZoomLevel, 25);
    ROW(cmdIconMinZoomLevel, 6);
    ROW(cmdIconMinZoomFactor, 6.0f);
    ROW(cmdPlaneMinZoomLevel, 12);
    ROW(skelIconMinZoomLevel, 8);
    ROW(scsIconMinZoomLevel, 8);
    ROW(cmdStripFontFactor, 1.0);
    ROW(opacityOne, 1.0);
    ROW(opacityHalf, 0.5);
    ROW(buttonBlinkTime, 500);
    ROW(machineCodeEnvIdent, 2);
    ROW(colorHighLightLine, QColor(255, 199, 60, 122));
    ROW(colorHighLightStep, QColor(60, 199, 255, 122));
    ROW(colorHighLightRows, QColor(60, 199, 255, 122));
    ROW(colorHighLightScheme, QColor(255, 202, 202, 122));
    ROW(colorHighLightSkel, QColor(160, 250, 250, 122));
    ROW(colorHighLightScs, QColor(128, 255, 128, 122));
    ROW(colorStripSCS, QColor(128, 0, 128, 255));
    ROW(productSoftwareVersion, 0x01020000u);
    ROW(productSoftwareBuild, 87551u);
    ROW(nodrixSoftwareVersion, 0x01020000u);
    ROW(productSoftwareMMR, QStringLiteral("1.2.0"));
    ROW(productSoftwareMMRB, QStringLiteral("1.2.0.87551"));
    ROW(productSoftware, QStringLiteral("1.2.0.87551"));
    ROW(productDate, QStringLiteral("17/1/2022"));
    ROW(nodrixDate, QStringLiteral("17/1/2022"));
    // The crossed unloading getters.
    ROW(caricoFilesFilter, QStringLiteral(".psc"));
    ROW(scaricoFilesExt, QStringLiteral("*.psc"));
    ROW(scaricoFilesFilter, QStringLiteral("*.psc"));
    // Languages.
    ROW(languageApp, 1);
#undef ROW

#define MEMBER(member, value)                                                                      \
    QTest::newRow(#member) << QVariant::fromValue(ComMembers::member) << QVariant::fromValue(value)
    MEMBER(m_sProjectSaveAs, QStringLiteral("Nodrix progetti (*.ndx)"));
    MEMBER(m_sCaricoFilesFilter, QStringLiteral("*.pca"));
    MEMBER(m_sScaricoFilesExt, QStringLiteral(".psc"));
    MEMBER(m_sScaricoFilesFilter, QStringLiteral("*.psc"));
    MEMBER(m_sFileNameInvalidChars, QString());
    MEMBER(m_nFileNameMaxChars, 0);
    MEMBER(m_sLanguageIT, QStringLiteral("it"));
    MEMBER(m_sLanguageEN, QStringLiteral("en"));
    MEMBER(m_sLanguageZH, QStringLiteral("zh"));
    MEMBER(m_sLanguageSZH, QStringLiteral("szh"));
    MEMBER(m_sLanguageES, QStringLiteral("es"));
#undef MEMBER
    QTest::newRow("refLanguages") << QVariant(QNodrixCom::refLanguages())
                                  << QVariant(
                                         QStringList {QStringLiteral("it"), QStringLiteral("en"),
                                                      QStringLiteral("zh"), QStringLiteral("szh"),
                                                      QStringLiteral("es")});
}

void tst_QNodrixCom_Constants::dictionary()
{
    QFETCH(QVariant, actual);
    QFETCH(QVariant, expected);
    QCOMPARE(actual.userType(), expected.userType());
    if (actual.userType() == QMetaType::QColor) {
        // Compare channels, so a difference names the channel.
        const QColor a = actual.value<QColor>();
        const QColor e = expected.value<QColor>();
        QCOMPARE(a.red(), e.red());
        QCOMPARE(a.green(), e.green());
        QCOMPARE(a.blue(), e.blue());
        QCOMPARE(a.alpha(), e.alpha());
    }
    QCOMPARE(actual, expected);
}

void tst_QNodrixCom_Constants::crossedUnloadingGetters()
{
    QCOMPARE(QNodrixCom::caricoFilesFilter(), QStringLiteral(".psc"));
    QCOMPARE(QNodrixCom::scaricoFilesExt(), QStringLiteral("*.psc"));
    QCOMPARE(QNodrixCom::scaricoFilesFilter(), QStringLiteral("*.psc"));
    QCOMPARE(QNodrixCom::caricoFilesExt(), QStringLiteral(".pca"));
}

void tst_QNodrixCom_Constants::machineFilePair()
{
    QCOMPARE(QNodrixCom::machineFilesExt(), QStringLiteral(".xml"));
    QCOMPARE(QNodrixCom::machineFilesXmlExt(), QStringLiteral(".dax"));
    QCOMPARE(QNodrixCom::devDisFilesExt(), QStringLiteral(".dis"));
    QCOMPARE(QNodrixCom::kd5DISFilesExt(), QStringLiteral(".dis"));
    QVERIFY(QNodrixCom::freeModeCodePrefix().isEmpty());
}

void tst_QNodrixCom_Constants::cfgNameKeepsItsBlank()
{
    const QString name = QNodrixCom::machineKd5DisCfgName();
    QCOMPARE(name.size(), 8);
    QCOMPARE(name.at(7), QLatin1Char(' '));
}

void tst_QNodrixCom_Constants::invalidCharacters()
{
    const QString chars = QNodrixCom::namesInvalidChars();
    QCOMPARE(chars.size(), 7);
    QCOMPARE(chars.at(1), QLatin1Char(' '));
    QCOMPARE(QNodrixCom::xmlParamDelimiter(), QLatin1Char('%'));
    QCOMPARE(QNodrixCom::cmdStripBlendEndVal().size(), 3);
}

void tst_QNodrixCom_Constants::projDocUIdIsAGenerator()
{
    QCOMPARE(QNodrixCom::projDocUId(), 1);
    QCOMPARE(QNodrixCom::projDocUId(), 2);
    QCOMPARE(ComMembers::m_nProjDcoUId, 2);
    QCOMPARE(QNodrixCom::projDocUId(), 3);

    // Past INT_MAX the counter wraps as a 32-bit register does, without
    // signed overflow.
    const int saved = ComMembers::m_nProjDcoUId;
    ComMembers::m_nProjDcoUId = INT_MAX;
    QCOMPARE(QNodrixCom::projDocUId(), INT_MIN);
    QCOMPARE(QNodrixCom::projDocUId(), INT_MIN + 1);
    ComMembers::m_nProjDcoUId = saved;
}

void tst_QNodrixCom_Constants::appVersionStartsAtZero()
{
    QNodrixCom com;
    QCOMPARE(com.getNodrixAppVersion(), 0u);
}

void tst_QNodrixCom_Constants::runtimeDefaults()
{
    QCOMPARE(QNodrixCom::languageApp(), int(QNodrixCom::eLanguage_en));
    QNodrixCom::setLanguageApp(QNodrixCom::Language_es);
    QCOMPARE(QNodrixCom::languageApp(), 4);
    QNodrixCom::setLanguageApp(99); // not checked
    QCOMPARE(QNodrixCom::languageApp(), 99);
    QNodrixCom::setLanguageApp(QNodrixCom::eLanguage_en);

    QNodrixCom::setProjectsNameOptions(8, QStringLiteral("#&"));
    QCOMPARE(ComMembers::m_nFileNameMaxChars, 8);
    QCOMPARE(ComMembers::m_sFileNameInvalidChars, QStringLiteral("#&"));
    QNodrixCom::setProjectsNameOptions(0, QString());
}

void tst_QNodrixCom_Constants::metaObject()
{
    const QMetaObject &mo = QNodrixCom::staticMetaObject;
    QCOMPARE(QLatin1String(mo.className()), QLatin1String("QNodrixCom"));
    QCOMPARE(mo.enumeratorCount() - mo.enumeratorOffset(), 2);

    const QMetaEnum languages = mo.enumerator(mo.indexOfEnumerator("enLanguages"));
    QVERIFY(languages.isValid());
    const QList<QPair<const char *, int>> keys
        = {{"eLanguage_Min", 0}, {"eLanguage_it", 0}, {"eLanguage_en", 1}, {"Language_zh", 2},
           {"Language_szh", 3},  {"Language_es", 4},  {"eLanguage_Max", 5}};
    QCOMPARE(languages.keyCount(), int(keys.size()));
    for (int i = 0; i < keys.size(); ++i) {
        QCOMPARE(QLatin1String(languages.key(i)), QLatin1String(keys.at(i).first));
        QCOMPARE(languages.value(i), keys.at(i).second);
    }
    const QMetaEnum undo = mo.enumerator(mo.indexOfEnumerator("eUndoCmdType"));
    QVERIFY(undo.isValid());
    QCOMPARE(undo.keyCount(), 1);
    QCOMPARE(QLatin1String(undo.key(0)), QLatin1String("eCmdUndLayer"));
    QCOMPARE(undo.value(0), 0);
    QCOMPARE(mo.indexOfEnumerator("enModuleAssocOperation"), -1);

    QNodrixCom com;
    QCOMPARE(com.parent(), nullptr);
    QCOMPARE(com.qt_metacast("QNodrixCom"), static_cast<void *>(&com));
    QVERIFY(com.inherits("QObject"));
}

void tst_QNodrixCom_Constants::translationFunctions()
{
    QCOMPARE(QNodrixCom::tr("Piano maglia"), QStringLiteral("Piano maglia"));
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    QCOMPARE(QNodrixCom::trUtf8("Piano maglia"), QStringLiteral("Piano maglia"));
#endif
}

NDXCOM_TEST_MAIN(tst_QNodrixCom_Constants)
#include "tst_qnodrixcom_constants.moc"
