#include <QNodrixCom>
#include <QNodrixHelp>
#include <QNodrixRegistry>
#include <private/qnodrixhelp_p.h>

#include "dialogdriver.h"
#include "ndxcomtest.h"
#include "urlcatcher.h"

#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QtCore/QTextCodec>
#endif
#include <QtGui/QDesktopServices>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace NdxComTest;

// The address of an absolute folder, three slashes in all: "file://" before a
// Linux path (which brings its own), "file:///" before a Windows drive.
static QString fileAddress(const QString &absolutePath)
{
    return (absolutePath.startsWith(QLatin1Char('/')) ? QStringLiteral("file://")
                                                      : QStringLiteral("file:///"))
        + absolutePath;
}

// Reads what the constructor put together.
struct HelpMembers : QNodrixHelp
{
    using QNodrixHelp::m_bHelpInfo;
    using QNodrixHelp::m_hashHelpFile;
    using QNodrixHelp::m_hashHelpNumber;
    using QNodrixHelp::m_sHelpLanguage;
    using QNodrixHelp::m_sHelpPath;
};

class tst_QNodrixHelp : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void topicTable_data();
    void topicTable();
    void topicTableShape();
    void unknownClass();
    void dataModel();
    void indexParsing_data();
    void indexParsing();
    void display_data();
    void display();
    void displayEmptyTopicOpensNothing();
    void indexIsUtf8WhateverTheLocale();
    void languageIsFixedAtConstruction();
    void helpInfoSwitch();
    void missingIndexWarns();
    void missingIndexWarnsWithPercentInPath();
    void missingIndexWarningIsPlainText();
    void windowsStyleMachineFolder();
    void helpAddressSlashes_data();
    void helpAddressSlashes();
    void largeIndex();

private:
    void setMachine(const QString &path, int language);
    void writeIndex(const QString &content);
    QNodrixHelp *constructQuietly(QList<BoxRecord> *boxes = nullptr);

    QTemporaryDir m_machine;
    UrlCatcher m_catcher;
};

void tst_QNodrixHelp::initTestCase()
{
    QVERIFY(m_machine.isValid());
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &m_catcher, "open");
}

void tst_QNodrixHelp::init()
{
    QSettings().clear();
    m_catcher.urls.clear();
    setMachine(m_machine.path(), 0);
    writeIndex(QStringLiteral("Maglia=maglia.htm\nComandi=cmd/comandi.htm\n"));
}

void tst_QNodrixHelp::cleanup()
{
    QVERIFY(!QApplication::overrideCursor());
}

void tst_QNodrixHelp::setMachine(const QString &path, int language)
{
    QNodrixRegistry registry(nullptr);
    registry.setLastMachine(QStringLiteral("M1"));
    registry.setMachinePath(path);
    registry.setLanguage(QNodrixRegistry::eLanguageType(language));
}

void tst_QNodrixHelp::writeIndex(const QString &content)
{
    QDir().mkpath(m_machine.path() + QStringLiteral("/help"));
    QFile file(m_machine.path() + QStringLiteral("/help/HelpMac.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(content.toUtf8());
}

QNodrixHelp *tst_QNodrixHelp::constructQuietly(QList<BoxRecord> *boxes)
{
    QNodrixHelp *help = nullptr;
    DialogDriver driver;
    const QList<BoxRecord> seen = driver.run([&] { help = new QNodrixHelp; }, {Action::reject()});
    if (boxes)
        *boxes = seen;
    return help;
}

void tst_QNodrixHelp::topicTable_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("helpNumber");

    QTest::newRow("QDlgHelpNodrix")
        << QStringLiteral("QDlgHelpNodrix") << QStringLiteral("1.5.0.0");
    QTest::newRow("QDlgOpzioniFile")
        << QStringLiteral("QDlgOpzioniFile") << QStringLiteral("2.0.0.0");
    QTest::newRow("QDlgNewProject")
        << QStringLiteral("QDlgNewProject") << QStringLiteral("2.1.0.0");
    QTest::newRow("QDlgSetupAcc") << QStringLiteral("QDlgSetupAcc") << QStringLiteral("2.1.1.0");
    QTest::newRow("QDlgSetupPinze")
        << QStringLiteral("QDlgSetupPinze") << QStringLiteral("2.1.2.0");
    QTest::newRow("QDlgSetupAlimBScs")
        << QStringLiteral("QDlgSetupAlimBScs") << QStringLiteral("2.1.3.0");
    QTest::newRow("QDlgSetupAlimGryf")
        << QStringLiteral("QDlgSetupAlimGryf") << QStringLiteral("2.1.4.0");
    QTest::newRow("QDlgParamAliGryf")
        << QStringLiteral("QDlgParamAliGryf") << QStringLiteral("2.1.4.1");
    QTest::newRow("QDlgSetupAlimU.F.")
        << QStringLiteral("QDlgSetupAlimU.F.") << QStringLiteral("2.1.5.0");
    QTest::newRow("QDlgParamAliU.F.")
        << QStringLiteral("QDlgParamAliU.F.") << QStringLiteral("2.1.5.1");
    QTest::newRow("QDlgSetupAlimBMap")
        << QStringLiteral("QDlgSetupAlimBMap") << QStringLiteral("2.1.6.0");
    QTest::newRow("QDlgParamAliBMap")
        << QStringLiteral("QDlgParamAliBMap") << QStringLiteral("2.1.6.1");
    QTest::newRow("QDlgSetupAlimElan")
        << QStringLiteral("QDlgSetupAlimElan") << QStringLiteral("2.1.7.0");
    QTest::newRow("QDlgSetupAlimRolf")
        << QStringLiteral("QDlgSetupAlimRolf") << QStringLiteral("2.1.8.0");
    QTest::newRow("QDlgProjBrowserOpen")
        << QStringLiteral("QDlgProjBrowserOpen") << QStringLiteral("2.2.0.0");
    QTest::newRow("QDlgProjBrowserConc")
        << QStringLiteral("QDlgProjBrowserConc") << QStringLiteral("2.2.1.0");
    QTest::newRow("QNodrixMainHelp")
        << QStringLiteral("QNodrixMainHelp") << QStringLiteral("3.0.0.0");
    QTest::newRow("QDlgToolSimulaRib")
        << QStringLiteral("QDlgToolSimulaRib") << QStringLiteral("3.0.1.0");
    QTest::newRow("HelpBodyPlane") << QStringLiteral("HelpBodyPlane") << QStringLiteral("3.0.4.0");
    QTest::newRow("QDlgImportCylToBody")
        << QStringLiteral("QDlgImportCylToBody") << QStringLiteral("3.0.5.0");
    QTest::newRow("QDlgBodyKnitData")
        << QStringLiteral("QDlgBodyKnitData") << QStringLiteral("3.0.6.0");
    QTest::newRow("QDlgBodyAlimData")
        << QStringLiteral("QDlgBodyAlimData") << QStringLiteral("3.0.7.0");
    QTest::newRow("QDlgScsToolbarHelp")
        << QStringLiteral("QDlgScsToolbarHelp") << QStringLiteral("3.1.0.0");
    QTest::newRow("QDlgScsImport") << QStringLiteral("QDlgScsImport") << QStringLiteral("3.1.1.0");
    QTest::newRow("QDlgScsShowZone")
        << QStringLiteral("QDlgScsShowZone") << QStringLiteral("3.1.1.1");
    QTest::newRow("QDlgLogImport") << QStringLiteral("QDlgLogImport") << QStringLiteral("3.1.1.2");
    QTest::newRow("QDlgScsShowLog")
        << QStringLiteral("QDlgScsShowLog") << QStringLiteral("3.1.1.3");
    QTest::newRow("QDlgScsZone") << QStringLiteral("QDlgScsZone") << QStringLiteral("3.1.2.1");
    QTest::newRow("QDlgGrhToolsHelp")
        << QStringLiteral("QDlgGrhToolsHelp") << QStringLiteral("3.2.0.0");
    QTest::newRow("QDlgGrhOptTrasparenza")
        << QStringLiteral("QDlgGrhOptTrasparenza") << QStringLiteral("3.2.1.0");
    QTest::newRow("QDlgGrhOptProtezione")
        << QStringLiteral("QDlgGrhOptProtezione") << QStringLiteral("3.2.1.1");
    QTest::newRow("QDlgGrhOptChangeDim")
        << QStringLiteral("QDlgGrhOptChangeDim") << QStringLiteral("3.2.2.0");
    QTest::newRow("QDlgChangeDocSize")
        << QStringLiteral("QDlgChangeDocSize") << QStringLiteral("3.2.2.1");
    QTest::newRow("QDlgToolSwitchColor")
        << QStringLiteral("QDlgToolSwitchColor") << QStringLiteral("3.2.3.0");
    QTest::newRow("QDlgGrhOptRuota")
        << QStringLiteral("QDlgGrhOptRuota") << QStringLiteral("3.2.4.0");
    QTest::newRow("QDlgNewProjectNewTgl")
        << QStringLiteral("QDlgNewProjectNewTgl") << QStringLiteral("3.3.1.0");
    QTest::newRow("QDlgImport") << QStringLiteral("QDlgImport") << QStringLiteral("3.3.2.0");
    QTest::newRow("QDlgProjBrowserImport")
        << QStringLiteral("QDlgProjBrowserImport") << QStringLiteral("3.3.2.1");
    QTest::newRow("QDlgImportPreview")
        << QStringLiteral("QDlgImportPreview") << QStringLiteral("3.3.2.2");
    QTest::newRow("QDlgImportOption")
        << QStringLiteral("QDlgImportOption") << QStringLiteral("3.3.2.3");
    QTest::newRow("QDlgImportSelArea")
        << QStringLiteral("QDlgImportSelArea") << QStringLiteral("3.3.2.4");
    QTest::newRow("QDlgImportColorsRemap")
        << QStringLiteral("QDlgImportColorsRemap") << QStringLiteral("3.3.2.5");
    QTest::newRow("QDlgExport") << QStringLiteral("QDlgExport") << QStringLiteral("3.3.3.0");
    QTest::newRow("QDlgReport") << QStringLiteral("QDlgReport") << QStringLiteral("3.3.5.0");
    QTest::newRow("QDlgCoordinate")
        << QStringLiteral("QDlgCoordinate") << QStringLiteral("3.3.6.0");
    QTest::newRow("QDlgBlinking") << QStringLiteral("QDlgBlinking") << QStringLiteral("3.3.7.0");
    QTest::newRow("QDlgOpzioniPatC")
        << QStringLiteral("QDlgOpzioniPatC") << QStringLiteral("3.4.0.0");
    QTest::newRow("QDlgNewModuleCyl")
        << QStringLiteral("QDlgNewModuleCyl") << QStringLiteral("3.4.1.0");
    QTest::newRow("QDlgModuleManage")
        << QStringLiteral("QDlgModuleManage") << QStringLiteral("3.4.1.1");
    QTest::newRow("QDlgCadGuiConfig")
        << QStringLiteral("QDlgCadGuiConfig") << QStringLiteral("3.4.1.2");
    QTest::newRow("QDlgModuleBrowserOpeC")
        << QStringLiteral("QDlgModuleBrowserOpeC") << QStringLiteral("3.4.2.0");
    QTest::newRow("QDlgModuleBrowserInpC")
        << QStringLiteral("QDlgModuleBrowserInpC") << QStringLiteral("3.4.3.0");
    QTest::newRow("QDlgOpzioniMod")
        << QStringLiteral("QDlgOpzioniMod") << QStringLiteral("3.4.4.0");
    QTest::newRow("QDlgModuleBrowserOpeB")
        << QStringLiteral("QDlgModuleBrowserOpeB") << QStringLiteral("3.4.5.0");
    QTest::newRow("QDlgModuleBrowserInpB")
        << QStringLiteral("QDlgModuleBrowserInpB") << QStringLiteral("3.4.6.0");
    QTest::newRow("QDlgOpzioniPatD")
        << QStringLiteral("QDlgOpzioniPatD") << QStringLiteral("3.5.0.0");
    QTest::newRow("QDlgNewModuleDial")
        << QStringLiteral("QDlgNewModuleDial") << QStringLiteral("3.5.1.0");
    QTest::newRow("QDlgModuleBrowserOpeD")
        << QStringLiteral("QDlgModuleBrowserOpeD") << QStringLiteral("3.5.2.0");
    QTest::newRow("QDlgModuleBrowserInpD")
        << QStringLiteral("QDlgModuleBrowserInpD") << QStringLiteral("3.5.3.0");
    QTest::newRow("HelpComandiManuali")
        << QStringLiteral("HelpComandiManuali") << QStringLiteral("3.6.0.0");
    QTest::newRow("QDlgSkelSelection")
        << QStringLiteral("QDlgSkelSelection") << QStringLiteral("3.7.0.0");
    QTest::newRow("QDlgSchemeSelection")
        << QStringLiteral("QDlgSchemeSelection") << QStringLiteral("3.8.0.0");
    QTest::newRow("QDockBuildArt") << QStringLiteral("QDockBuildArt") << QStringLiteral("4.0.0.0");
    QTest::newRow("QDlgMglCarico") << QStringLiteral("QDlgMglCarico") << QStringLiteral("4.1.0.0");
    QTest::newRow("QDlgTransfer") << QStringLiteral("QDlgTransfer") << QStringLiteral("4.2.0.0");
    QTest::newRow("QDlgMglScarico")
        << QStringLiteral("QDlgMglScarico") << QStringLiteral("4.3.0.0");
    QTest::newRow("QDlgMaglia") << QStringLiteral("QDlgMaglia") << QStringLiteral("4.4.0.0");
    QTest::newRow("QDlgGuiMap") << QStringLiteral("QDlgGuiMap") << QStringLiteral("4.5.0.0");
    QTest::newRow("QDlgGuiMapFiltroGui")
        << QStringLiteral("QDlgGuiMapFiltroGui") << QStringLiteral("4.5.1.0");
    QTest::newRow("QDlgGuiMapFiltroPat")
        << QStringLiteral("QDlgGuiMapFiltroPat") << QStringLiteral("4.5.2.0");
    QTest::newRow("QDlgGuiAssoc") << QStringLiteral("QDlgGuiAssoc") << QStringLiteral("4.6.0.0");
    QTest::newRow("QDockCommand") << QStringLiteral("QDockCommand") << QStringLiteral("5.0.0.0");
    QTest::newRow("QDlgFiltroCmd") << QStringLiteral("QDlgFiltroCmd") << QStringLiteral("5.1.0.0");
    QTest::newRow("QDlgCmdDeviceOil")
        << QStringLiteral("QDlgCmdDeviceOil") << QStringLiteral("5.2.0.0");
    QTest::newRow("QDlgCmdDeviceVel")
        << QStringLiteral("QDlgCmdDeviceVel") << QStringLiteral("5.3.0.0");
    QTest::newRow("QDlgCmdMotMgl") << QStringLiteral("QDlgCmdMotMgl") << QStringLiteral("5.4.0.0");
    QTest::newRow("QDlgCmdDeviceMpp")
        << QStringLiteral("QDlgCmdDeviceMpp") << QStringLiteral("5.4.0.0");
    QTest::newRow("QDlgCmdAliBScs")
        << QStringLiteral("QDlgCmdAliBScs") << QStringLiteral("5.5.1.0");
    QTest::newRow("QDlgCmdAliBMap")
        << QStringLiteral("QDlgCmdAliBMap") << QStringLiteral("5.5.2.0");
    QTest::newRow("QDlgCmdAliU.F.")
        << QStringLiteral("QDlgCmdAliU.F.") << QStringLiteral("5.5.3.0");
    QTest::newRow("QDlgCmdAliGryf")
        << QStringLiteral("QDlgCmdAliGryf") << QStringLiteral("5.5.4.0");
    QTest::newRow("QDlgLavorazAliGryf")
        << QStringLiteral("QDlgLavorazAliGryf") << QStringLiteral("5.5.4.1");
    QTest::newRow("QDlgCmdAliElan")
        << QStringLiteral("QDlgCmdAliElan") << QStringLiteral("5.5.5.0");
    QTest::newRow("QDlgCmdAliRolf")
        << QStringLiteral("QDlgCmdAliRolf") << QStringLiteral("5.5.6.0");
    QTest::newRow("QDlgCmdDeviceVpe")
        << QStringLiteral("QDlgCmdDeviceVpe") << QStringLiteral("5.6.0.0");
    QTest::newRow("QDlgCmdDeviceCam")
        << QStringLiteral("QDlgCmdDeviceCam") << QStringLiteral("5.7.0.0");
    QTest::newRow("QDlgCmdDeviceGui")
        << QStringLiteral("QDlgCmdDeviceGui") << QStringLiteral("5.8.1.0");
    QTest::newRow("QDlgModRangeGui")
        << QStringLiteral("QDlgModRangeGui") << QStringLiteral("5.8.1.1");
    QTest::newRow("QDlgCmdFeederBMap")
        << QStringLiteral("QDlgCmdFeederBMap") << QStringLiteral("5.8.1.5");
    QTest::newRow("QDlgCmdFeederElan")
        << QStringLiteral("QDlgCmdFeederElan") << QStringLiteral("5.8.1.6");
    QTest::newRow("QDlgCmdFeederBScs")
        << QStringLiteral("QDlgCmdFeederBScs") << QStringLiteral("5.8.1.7");
    QTest::newRow("QDlgCmdFeederRolf")
        << QStringLiteral("QDlgCmdFeederRolf") << QStringLiteral("5.8.1.8");
    QTest::newRow("QDlgCmdDevicePin")
        << QStringLiteral("QDlgCmdDevicePin") << QStringLiteral("5.8.2.0");
    QTest::newRow("QDlgCmdLinkedGui")
        << QStringLiteral("QDlgCmdLinkedGui") << QStringLiteral("5.8.3.0");
    QTest::newRow("QDlgCmdLinkedPinze")
        << QStringLiteral("QDlgCmdLinkedPinze") << QStringLiteral("5.8.4.0");
    QTest::newRow("QDlgCmdDevicePrM")
        << QStringLiteral("QDlgCmdDevicePrM") << QStringLiteral("5.9.1.0");
    QTest::newRow("QDlgCmdDeviceLin")
        << QStringLiteral("QDlgCmdDeviceLin") << QStringLiteral("5.9.2.0");
    QTest::newRow("QDlgCmdDeviceLinTrf")
        << QStringLiteral("QDlgCmdDeviceLinTrf") << QStringLiteral("5.9.2.1");
    QTest::newRow("QDlgCmdDeviceAgo")
        << QStringLiteral("QDlgCmdDeviceAgo") << QStringLiteral("5.9.3.0");
    QTest::newRow("QDlgCmdDeviceFiloRotto")
        << QStringLiteral("QDlgCmdDeviceFiloRotto") << QStringLiteral("5.9.3.5");
    QTest::newRow("QDlgCmdDeviceApriAgo")
        << QStringLiteral("QDlgCmdDeviceApriAgo") << QStringLiteral("5.9.4.0");
    QTest::newRow("QDlgCmdDeviceAlzaCol")
        << QStringLiteral("QDlgCmdDeviceAlzaCol") << QStringLiteral("5.9.5.0");
    QTest::newRow("QDlgCmdDevicePlatoMot")
        << QStringLiteral("QDlgCmdDevicePlatoMot") << QStringLiteral("5.9.5.6");
    QTest::newRow("QDlgCmdDeviceStopEspuArt")
        << QStringLiteral("QDlgCmdDeviceStopEspuArt") << QStringLiteral("5.9.5.7");
    QTest::newRow("QDlgCmdDeviceBordo")
        << QStringLiteral("QDlgCmdDeviceBordo") << QStringLiteral("5.9.5.8");
    QTest::newRow("QDlgCmdDeviceSoffioAux")
        << QStringLiteral("QDlgCmdDeviceSoffioAux") << QStringLiteral("5.9.6.0");
    QTest::newRow("QDlgCmdDeviceFrenafilo")
        << QStringLiteral("QDlgCmdDeviceFrenafilo") << QStringLiteral("5.9.6.5");
    QTest::newRow("QDlgCmdDeviceAspBocche")
        << QStringLiteral("QDlgCmdDeviceAspBocche") << QStringLiteral("5.9.7.0");
    QTest::newRow("QDlgCmdDeviceUser")
        << QStringLiteral("QDlgCmdDeviceUser") << QStringLiteral("5.9.8.0");
    QTest::newRow("QDlgCmdDeviceSoffioColtelli")
        << QStringLiteral("QDlgCmdDeviceSoffioColtelli") << QStringLiteral("5.9.8.5");
    QTest::newRow("QDlgCmdDeviceSoffioUncini")
        << QStringLiteral("QDlgCmdDeviceSoffioUncini") << QStringLiteral("5.9.9.0");
    QTest::newRow("QDlgCmdDeviceSoffioBocchette")
        << QStringLiteral("QDlgCmdDeviceSoffioBocchette") << QStringLiteral("5.9.9.5");
    QTest::newRow("QNodrixMainHelpLav")
        << QStringLiteral("QNodrixMainHelpLav") << QStringLiteral("6.0.0.0");
    QTest::newRow("QDlgGestionePatLav")
        << QStringLiteral("QDlgGestionePatLav") << QStringLiteral("6.0.0.1");
    QTest::newRow("QDlgCadGuiConfigLav")
        << QStringLiteral("QDlgCadGuiConfigLav") << QStringLiteral("6.0.0.2");
    QTest::newRow("QDlgCmdLinkedMotor")
        << QStringLiteral("QDlgCmdLinkedMotor") << QStringLiteral("6.0.6.0");
    QTest::newRow("QDockCommandFree")
        << QStringLiteral("QDockCommandFree") << QStringLiteral("7.0.0.0");
    QTest::newRow("QDlgFiltroCmdFree")
        << QStringLiteral("QDlgFiltroCmdFree") << QStringLiteral("7.1.0.0");
    QTest::newRow("QDlgCmdDeviceOilFree")
        << QStringLiteral("QDlgCmdDeviceOilFree") << QStringLiteral("7.2.0.0");
    QTest::newRow("QDlgCmdDeviceVelFree")
        << QStringLiteral("QDlgCmdDeviceVelFree") << QStringLiteral("7.3.0.0");
    QTest::newRow("QDlgCmdMotMglFree")
        << QStringLiteral("QDlgCmdMotMglFree") << QStringLiteral("7.4.0.0");
    QTest::newRow("QDlgCmdDeviceMppFree")
        << QStringLiteral("QDlgCmdDeviceMppFree") << QStringLiteral("7.4.0.0");
    QTest::newRow("QDlgCmdAliBScsFree")
        << QStringLiteral("QDlgCmdAliBScsFree") << QStringLiteral("7.5.1.0");
    QTest::newRow("QDlgCmdAliBMapFree")
        << QStringLiteral("QDlgCmdAliBMapFree") << QStringLiteral("7.5.2.0");
    QTest::newRow("QDlgCmdAliU.F.Free")
        << QStringLiteral("QDlgCmdAliU.F.Free") << QStringLiteral("7.5.3.0");
    QTest::newRow("QDlgCmdAliGryfFree")
        << QStringLiteral("QDlgCmdAliGryfFree") << QStringLiteral("7.5.4.0");
    QTest::newRow("QDlgLavorazAliGryfFree")
        << QStringLiteral("QDlgLavorazAliGryfFree") << QStringLiteral("7.5.4.1");
    QTest::newRow("QDlgCmdAliElanFree")
        << QStringLiteral("QDlgCmdAliElanFree") << QStringLiteral("7.5.5.0");
    QTest::newRow("QDlgCmdAliRolfFree")
        << QStringLiteral("QDlgCmdAliRolfFree") << QStringLiteral("7.5.6.0");
    QTest::newRow("QDlgCmdDeviceVpeFree")
        << QStringLiteral("QDlgCmdDeviceVpeFree") << QStringLiteral("7.6.0.0");
    QTest::newRow("QDlgCmdDeviceCamFree")
        << QStringLiteral("QDlgCmdDeviceCamFree") << QStringLiteral("7.7.0.0");
    QTest::newRow("QDlgCmdDeviceGuiFree")
        << QStringLiteral("QDlgCmdDeviceGuiFree") << QStringLiteral("7.8.1.0");
    QTest::newRow("QDlgCmdFeederBMapFree")
        << QStringLiteral("QDlgCmdFeederBMapFree") << QStringLiteral("7.8.1.5");
    QTest::newRow("QDlgCmdFeederElanFree")
        << QStringLiteral("QDlgCmdFeederElanFree") << QStringLiteral("7.8.1.6");
    QTest::newRow("QDlgCmdFeederBScsFree")
        << QStringLiteral("QDlgCmdFeederBScsFree") << QStringLiteral("7.8.1.7");
    QTest::newRow("QDlgCmdFeederRolfFree")
        << QStringLiteral("QDlgCmdFeederRolfFree") << QStringLiteral("7.8.1.8");
    QTest::newRow("QDlgCmdDevicePinFree")
        << QStringLiteral("QDlgCmdDevicePinFree") << QStringLiteral("7.8.2.0");
    QTest::newRow("QDlgCmdLinkedGuiFree")
        << QStringLiteral("QDlgCmdLinkedGuiFree") << QStringLiteral("7.8.3.0");
    QTest::newRow("QDlgCmdLinkedPinzeFree")
        << QStringLiteral("QDlgCmdLinkedPinzeFree") << QStringLiteral("7.8.4.0");
    QTest::newRow("QDlgCmdDevicePrMFree")
        << QStringLiteral("QDlgCmdDevicePrMFree") << QStringLiteral("7.9.1.0");
    QTest::newRow("QDlgCmdDeviceLinFree")
        << QStringLiteral("QDlgCmdDeviceLinFree") << QStringLiteral("7.9.2.0");
    QTest::newRow("QDlgCmdDeviceLinTrfFree")
        << QStringLiteral("QDlgCmdDeviceLinTrfFree") << QStringLiteral("7.9.2.1");
    QTest::newRow("QDlgCmdDeviceAgoFree")
        << QStringLiteral("QDlgCmdDeviceAgoFree") << QStringLiteral("7.9.3.0");
    QTest::newRow("QDlgCmdDeviceFiloRottoFree")
        << QStringLiteral("QDlgCmdDeviceFiloRottoFree") << QStringLiteral("7.9.3.5");
    QTest::newRow("QDlgCmdDeviceApriAgoFree")
        << QStringLiteral("QDlgCmdDeviceApriAgoFree") << QStringLiteral("7.9.4.0");
    QTest::newRow("QDlgCmdDeviceAlzaColFree")
        << QStringLiteral("QDlgCmdDeviceAlzaColFree") << QStringLiteral("7.9.5.0");
    QTest::newRow("QDlgCmdDevicePlatoMotFree")
        << QStringLiteral("QDlgCmdDevicePlatoMotFree") << QStringLiteral("7.9.5.6");
    QTest::newRow("QDlgCmdDeviceStopEspuArtFree")
        << QStringLiteral("QDlgCmdDeviceStopEspuArtFree") << QStringLiteral("7.9.5.7");
    QTest::newRow("QDlgCmdDeviceBordoFree")
        << QStringLiteral("QDlgCmdDeviceBordoFree") << QStringLiteral("7.9.5.8");
    QTest::newRow("QDlgCmdDeviceSoffioAuxFree")
        << QStringLiteral("QDlgCmdDeviceSoffioAuxFree") << QStringLiteral("7.9.6.0");
    QTest::newRow("QDlgCmdDeviceFrenafiloFree")
        << QStringLiteral("QDlgCmdDeviceFrenafiloFree") << QStringLiteral("7.9.6.5");
    QTest::newRow("QDlgCmdDeviceAspBoccheFree")
        << QStringLiteral("QDlgCmdDeviceAspBoccheFree") << QStringLiteral("7.9.7.0");
    QTest::newRow("QDlgCmdDeviceUserFree")
        << QStringLiteral("QDlgCmdDeviceUserFree") << QStringLiteral("7.9.8.0");
    QTest::newRow("QDlgCmdDeviceSoffioColtelliFree")
        << QStringLiteral("QDlgCmdDeviceSoffioColtelliFree") << QStringLiteral("7.9.8.5");
    QTest::newRow("QDlgCmdDeviceSoffioUnciniFree")
        << QStringLiteral("QDlgCmdDeviceSoffioUnciniFree") << QStringLiteral("7.9.9.0");
    QTest::newRow("QDlgCmdDeviceSoffioBocchetteFree")
        << QStringLiteral("QDlgCmdDeviceSoffioBocchetteFree") << QStringLiteral("7.9.9.5");
    QTest::newRow("QDlgOpzioniPatM")
        << QStringLiteral("QDlgOpzioniPatM") << QStringLiteral("7.10.0.0");
    QTest::newRow("QDlgNewModuleMgl")
        << QStringLiteral("QDlgNewModuleMgl") << QStringLiteral("7.10.1.0");
    QTest::newRow("QDlgModuleMglManage")
        << QStringLiteral("QDlgModuleMglManage") << QStringLiteral("7.10.1.1");
    QTest::newRow("QDlgModuleBrowserOpeM")
        << QStringLiteral("QDlgModuleBrowserOpeM") << QStringLiteral("7.10.2.0");
    QTest::newRow("QDlgModuleBrowserInpM")
        << QStringLiteral("QDlgModuleBrowserInpM") << QStringLiteral("7.10.3.0");
    QTest::newRow("QDlgAssociaMgl")
        << QStringLiteral("QDlgAssociaMgl") << QStringLiteral("7.11.0.0");
    QTest::newRow("QDlgCmdReplaceFree")
        << QStringLiteral("QDlgCmdReplaceFree") << QStringLiteral("7.12.0.0");
    QTest::newRow("QDlgFreeCmdReport")
        << QStringLiteral("QDlgFreeCmdReport") << QStringLiteral("7.13.0.0");
    QTest::newRow("QDlgFreeGuiInsert")
        << QStringLiteral("QDlgFreeGuiInsert") << QStringLiteral("7.14.0.0");
    QTest::newRow("QDlgFreeModeDocExport")
        << QStringLiteral("QDlgFreeModeDocExport") << QStringLiteral("7.15.0.0");
    QTest::newRow("QDlgRepoBrowserOpen")
        << QStringLiteral("QDlgRepoBrowserOpen") << QStringLiteral("7.15.1.0");
    QTest::newRow("QDlgFreeModeDocImport")
        << QStringLiteral("QDlgFreeModeDocImport") << QStringLiteral("7.15.1.1");
}

void tst_QNodrixHelp::topicTable()
{
    QFETCH(QString, className);
    QFETCH(QString, helpNumber);
    QNodrixHelp help;
    QCOMPARE(help.getButHelpString(className), helpNumber);
}

void tst_QNodrixHelp::topicTableShape()
{
    QCOMPARE(QNodrixHelpPrivate::topicCount, 168);
    QSet<QString> names;
    QHash<QString, int> numbers;
    for (int i = 0; i < QNodrixHelpPrivate::topicCount; ++i) {
        names.insert(QString::fromLatin1(QNodrixHelpPrivate::topics[i].className));
        ++numbers[QString::fromLatin1(QNodrixHelpPrivate::topics[i].helpNumber)];
    }
    QCOMPARE(names.size(), 168);
    // Only these two numbers serve two classes.
    QStringList shared;
    for (auto it = numbers.cbegin(); it != numbers.cend(); ++it) {
        if (it.value() > 1)
            shared << it.key();
    }
    shared.sort();
    QCOMPARE(shared, (QStringList {QStringLiteral("5.4.0.0"), QStringLiteral("7.4.0.0")}));
    QNodrixHelp help;
    QCOMPARE(help.getButHelpString(QStringLiteral("QDlgCmdDeviceMpp")), QStringLiteral("5.4.0.0"));
    QCOMPARE(help.getButHelpString(QStringLiteral("QDlgCmdMotMgl")), QStringLiteral("5.4.0.0"));
}

void tst_QNodrixHelp::unknownClass()
{
    QNodrixHelp help;
    QCOMPARE(help.getButHelpString(QStringLiteral("QDlgUnknown")), QString());
    QCOMPARE(help.getButHelpString(QString()), QString());
    QCOMPARE(help.getButHelpString(QStringLiteral("qdlghelpnodrix")), QString());
    QCOMPARE(help.getButHelpString(QStringLiteral("QDlgSetupAlimU.F.")), QStringLiteral("2.1.5.0"));
}

void tst_QNodrixHelp::dataModel()
{
    setMachine(m_machine.path(), 6);
    writeIndex(QStringLiteral("a=b=c\npagina\n"));
    HelpMembers help;
    QCOMPARE(help.m_sHelpPath, m_machine.path() + QStringLiteral("/help/"));
    QCOMPARE(help.m_sHelpLanguage, QStringLiteral("zh/"));
    QCOMPARE(help.m_bHelpInfo, false);
    QCOMPARE(help.m_hashHelpNumber.size(), 168);
    QCOMPARE(help.m_hashHelpNumber.value(QStringLiteral("QDlgCmdAliU.F.Free")),
             QStringLiteral("7.5.3.0"));
    QCOMPARE(help.m_hashHelpFile.size(), 2);
    QCOMPARE(help.m_hashHelpFile.value(QStringLiteral("a")), QStringLiteral("b=c"));
    QCOMPARE(help.m_hashHelpFile.value(QStringLiteral("pagina")), QStringLiteral("pagina"));
}

void tst_QNodrixHelp::indexParsing_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("entries");

    QTest::newRow("plain") << QStringLiteral("a=b\n") << QStringLiteral("a") << QStringLiteral("b")
                           << 1;
    QTest::newRow("split at the first =")
        << QStringLiteral("a=b=c\n") << QStringLiteral("a") << QStringLiteral("b=c") << 1;
    QTest::newRow("no = : line is key and value")
        << QStringLiteral("pagina\n") << QStringLiteral("pagina") << QStringLiteral("pagina") << 1;
    QTest::newRow("section is an entry")
        << QStringLiteral("[x]\n") << QStringLiteral("[x]") << QStringLiteral("[x]") << 1;
    QTest::newRow("empty line is an entry")
        << QStringLiteral("a=b\n\nc=d\n") << QString() << QString() << 3;
    QTest::newRow("empty value") << QStringLiteral("k=\n") << QStringLiteral("k") << QString() << 1;
    QTest::newRow("empty key") << QStringLiteral("=v\n") << QString() << QStringLiteral("v") << 1;
    QTest::newRow("no trimming") << QStringLiteral(" a = b \n") << QStringLiteral(" a ")
                                 << QStringLiteral(" b ") << 1;
    QTest::newRow("comment is an entry")
        << QStringLiteral(";c=1\n") << QStringLiteral(";c") << QStringLiteral("1") << 1;
    QTest::newRow("later key wins")
        << QStringLiteral("a=1\na=2\n") << QStringLiteral("a") << QStringLiteral("2") << 1;
    QTest::newRow("no final line break")
        << QStringLiteral("a=1\nb=2") << QStringLiteral("b") << QStringLiteral("2") << 2;
}

void tst_QNodrixHelp::indexParsing()
{
    QFETCH(QString, content);
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(int, entries);
    QString text = content;
    QTextStream stream(&text);
    QHash<QString, QString> index;
    QNodrixHelpPrivate::readHelpIndex(stream, index);
    QCOMPARE(index.size(), entries);
    QVERIFY(index.contains(key));
    QCOMPARE(index.value(key), value);
}

void tst_QNodrixHelp::display_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("index");
    QTest::addColumn<QString>("topic");
    QTest::addColumn<QString>("document"); // after <machine>/help/

    QTest::newRow("it") << 0 << QStringLiteral("Maglia=maglia.htm\n") << QStringLiteral("Maglia")
                        << QStringLiteral("it/maglia.htm");
    QTest::newRow("es (language 2)") << 2 << QStringLiteral("Maglia=maglia.htm\n")
                                     << QStringLiteral("Maglia") << QStringLiteral("es/maglia.htm");
    QTest::newRow("zh (language 6)") << 6 << QStringLiteral("Maglia=maglia.htm\n")
                                     << QStringLiteral("Maglia") << QStringLiteral("zh/maglia.htm");
    QTest::newRow("szh (language 7)")
        << 7 << QStringLiteral("Maglia=maglia.htm\n") << QStringLiteral("Maglia")
        << QStringLiteral("szh/maglia.htm");
    QTest::newRow("en (language 1)") << 1 << QStringLiteral("Maglia=maglia.htm\n")
                                     << QStringLiteral("Maglia") << QStringLiteral("en/maglia.htm");
    QTest::newRow("en (no language)")
        << -1 << QStringLiteral("Maglia=maglia.htm\n") << QStringLiteral("Maglia")
        << QStringLiteral("en/maglia.htm");
    QTest::newRow("subfolder") << 0 << QStringLiteral("Comandi=cmd/comandi.htm\n")
                               << QStringLiteral("Comandi") << QStringLiteral("it/cmd/comandi.htm");
    QTest::newRow("unknown topic opens the language folder")
        << 0 << QStringLiteral("Maglia=maglia.htm\n") << QStringLiteral("Altro")
        << QStringLiteral("it/");
    QTest::newRow("empty index") << 0 << QString() << QStringLiteral("Maglia")
                                 << QStringLiteral("it/");
}

void tst_QNodrixHelp::display()
{
    QFETCH(int, language);
    QFETCH(QString, index);
    QFETCH(QString, topic);
    QFETCH(QString, document);
    setMachine(m_machine.path(), language);
    writeIndex(index);
    QNodrixHelp help;
    help.display(topic);
    QCOMPARE(m_catcher.urls.size(), 1);
    const QUrl url = m_catcher.urls.first();
    // An absolute machine folder: three slashes, and the address names the file
    // ("file:///C:/..." on Windows, "file:///tmp/..." on Linux).
    const QString expected = fileAddress(m_machine.path()) + QStringLiteral("/help/") + document;
    QCOMPARE(url.toString(), expected);
    QCOMPARE(url.toLocalFile(), m_machine.path() + QStringLiteral("/help/") + document);
    QVERIFY(url.host().isEmpty());
}

void tst_QNodrixHelp::displayEmptyTopicOpensNothing()
{
    QNodrixHelp help;
    help.display(QString());
    QVERIFY(m_catcher.urls.isEmpty());
}

void tst_QNodrixHelp::indexIsUtf8WhateverTheLocale()
{
    // Qt 6 streams read UTF-8 by default; the index must read the same under
    // Qt 5, whose streams would otherwise follow the locale's codec.
    writeIndex(QStringLiteral("Punto=punto \u00E8 \u4E2D.htm\n\u00C0=x.htm\n"));
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QTextCodec *const localeCodec = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
#endif
    QNodrixHelp help;
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QTextCodec::setCodecForLocale(localeCodec);
#endif
    help.display(QStringLiteral("Punto"));
    help.display(QStringLiteral("\u00C0"));
    QCOMPARE(m_catcher.urls.size(), 2);
    const QString folder = fileAddress(m_machine.path()) + QStringLiteral("/help/it/");
    QCOMPARE(m_catcher.urls.at(0).toString(), folder + QStringLiteral("punto \u00E8 \u4E2D.htm"));
    QCOMPARE(m_catcher.urls.at(1).toString(), folder + QStringLiteral("x.htm"));
}

void tst_QNodrixHelp::languageIsFixedAtConstruction()
{
    QNodrixHelp help;
    setMachine(m_machine.path(), 2);
    help.display(QStringLiteral("Maglia"));
    QCOMPARE(m_catcher.urls.size(), 1);
    QVERIFY(m_catcher.urls.first().toString().endsWith(QLatin1String("/help/it/maglia.htm")));
}

void tst_QNodrixHelp::helpInfoSwitch()
{
    {
        QNodrixHelp help;
        QCOMPARE(help.getButHelpNumber(), false);
    }
    QSettings settings;
    settings.setValue(QStringLiteral("Environment/EnblHelpInfo"), true);
    settings.sync();
    QNodrixHelp help;
    QCOMPARE(help.getButHelpNumber(), true);
    settings.setValue(QStringLiteral("Environment/EnblHelpInfo"), false);
    settings.sync();
    QCOMPARE(help.getButHelpNumber(), true); // as it stood at construction
}

void tst_QNodrixHelp::missingIndexWarns()
{
    QFile::remove(m_machine.path() + QStringLiteral("/help/HelpMac.ini"));
    QList<BoxRecord> boxes;
    QNodrixHelp *help = nullptr;
    DialogDriver driver;
    boxes = driver.run([&] { help = new QNodrixHelp; }, {Action::click(QStringLiteral("OK"))});
    QCOMPARE(boxes.size(), 1);
    const BoxRecord &r = boxes.first();
    const QString path = m_machine.path() + QStringLiteral("/help/HelpMac.ini");
    QFile probe(path);
    probe.open(QIODevice::ReadOnly | QIODevice::Text);
    QCOMPARE(r.title, QStringLiteral("ATTENZIONE"));
    QCOMPARE(
        r.text,
        QStringLiteral("Impossibile leggere il file %1:\n%2.").arg(path).arg(probe.errorString()));
    QCOMPARE(r.icon, QMessageBox::Warning);
    QCOMPARE(r.buttons.size(), 1);
    QCOMPARE(r.buttons.first().role, QMessageBox::AcceptRole);
    QVERIFY(!r.hasOverrideCursor);
    QVERIFY2(!r.actionFailed, qPrintable(r.buttonTexts().join(QLatin1Char('|'))));
    QVERIFY(driver.cursorRestored());

    // Still usable: the table answers and display opens the language folder.
    QCOMPARE(help->getButHelpString(QStringLiteral("QDlgReport")), QStringLiteral("3.3.5.0"));
    help->display(QStringLiteral("Maglia"));
    QCOMPARE(m_catcher.urls.size(), 1);
    QVERIFY(m_catcher.urls.first().toString().endsWith(QLatin1String("/help/it/")));
    delete help;
}

void tst_QNodrixHelp::missingIndexWarnsWithPercentInPath()
{
    // The path and the error fill %1 and %2 at once: a "%2" or "%1" in the
    // machine folder's name is part of the path, not a place for the error.
    const QString machine = m_machine.path() + QStringLiteral("/M%2 %1");
    QVERIFY(QDir().mkpath(machine));
    setMachine(machine, 0);
    DialogDriver driver;
    QNodrixHelp *help = nullptr;
    const QList<BoxRecord> boxes
        = driver.run([&] { help = new QNodrixHelp; }, {Action::click(QStringLiteral("OK"))});
    delete help;
    QCOMPARE(boxes.size(), 1);
    const QString path = machine + QStringLiteral("/help/HelpMac.ini");
    QFile probe(path);
    QVERIFY(!probe.open(QIODevice::ReadOnly | QIODevice::Text));
    QCOMPARE(boxes.first().text,
             QStringLiteral("Impossibile leggere il file ") + path + QStringLiteral(":\n")
                 + probe.errorString() + QStringLiteral("."));
}

void tst_QNodrixHelp::missingIndexWarningIsPlainText()
{
    // A machine folder's name is shown as the characters it is: its markup
    // literally, its line break as U+FFFD, in a plain-text box.
#ifdef Q_OS_WIN
    // Windows allows neither '<', '>' nor a line break in a name: entities
    // are markup a rich-text box would turn into characters.
    const QString name = QStringLiteral("&lt;b&gt;M&lt;/b&gt; &amp; c&#105;");
#else
    const QString name = QStringLiteral("<b>M</b><img src=x>\n<a href=y>z</a>");
#endif
    const QString machine = m_machine.path() + QLatin1Char('/') + name;
    QVERIFY(QDir().mkpath(machine));
    setMachine(machine, 0);
    DialogDriver driver;
    QNodrixHelp *help = nullptr;
    const QList<BoxRecord> boxes
        = driver.run([&] { help = new QNodrixHelp; }, {Action::click(QStringLiteral("OK"))});
    delete help;
    QCOMPARE(boxes.size(), 1);
    const QString path = machine + QStringLiteral("/help/HelpMac.ini");
    QFile probe(path);
    QVERIFY(!probe.open(QIODevice::ReadOnly | QIODevice::Text));
    QString shown = path;
    shown.replace(QLatin1Char('\n'), QChar(QChar::ReplacementCharacter));
    const QString text = QStringLiteral("Impossibile leggere il file ") + shown
        + QStringLiteral(":\n") + probe.errorString() + QStringLiteral(".");
    QCOMPARE(boxes.first().text, text);
    QCOMPARE(boxes.first().labelText, text);
    QCOMPARE(boxes.first().textFormat, Qt::PlainText);
    QCOMPARE(boxes.first().labelFormat, Qt::PlainText);
    QCOMPARE(boxes.first().defaultButton, QStringLiteral("OK"));
}

void tst_QNodrixHelp::windowsStyleMachineFolder()
{
    // The address rule is textual: a drive-letter folder gets "file:///" in
    // front, as on the suite's original platform.
    QCOMPARE(QNodrixHelpPrivate::localAddress(QStringLiteral("D:/Macchine/M1/help/it/pagina.htm"))
                 .toString(),
             QStringLiteral("file:///D:/Macchine/M1/help/it/pagina.htm"));
    QCOMPARE(QNodrixHelpPrivate::localAddress(QStringLiteral("/opt/m/help/it/x.htm")).toString(),
             QStringLiteral("file:///opt/m/help/it/x.htm"));

    setMachine(QStringLiteral("D:/Macchine/M1"), 0);
    QList<BoxRecord> boxes;
    std::unique_ptr<QNodrixHelp> help(constructQuietly(&boxes));
    QCOMPARE(boxes.size(), 1); // no index there
    help->display(QStringLiteral("Maglia"));
    QCOMPARE(m_catcher.urls.size(), 1);
    QCOMPARE(m_catcher.urls.first().toString(QUrl::None),
             QStringLiteral("file:///D:/Macchine/M1/help/it/"));
}

// Whatever the number of leading slashes of the machine folder, the address
// has exactly three after "file:" (but for a Windows server's folder, whose
// two slashes name the server).
void tst_QNodrixHelp::helpAddressSlashes_data()
{
    QTest::addColumn<QString>("helpPath");
    QTest::addColumn<QString>("address");
    QTest::newRow("one") << QStringLiteral("/opt/m/help/")
                         << QStringLiteral("file:///opt/m/help/it/x.htm");
#ifndef Q_OS_WIN
    QTest::newRow("two") << QStringLiteral("//opt/m/help/")
                         << QStringLiteral("file:///opt/m/help/it/x.htm");
#endif
    QTest::newRow("three") << QStringLiteral("///opt/m/help/")
                           << QStringLiteral("file:///opt/m/help/it/x.htm");
    QTest::newRow("drive") << QStringLiteral("D:/M1/help/")
                           << QStringLiteral("file:///D:/M1/help/it/x.htm");
    QTest::newRow("relative") << QStringLiteral("help/") << QStringLiteral("file:///help/it/x.htm");
    QTest::newRow("empty") << QString() << QStringLiteral("file:///it/x.htm");
#ifndef Q_OS_WIN
    QTest::newRow("only slashes") << QStringLiteral("//") << QStringLiteral("file:///it/x.htm");
#endif
}

void tst_QNodrixHelp::helpAddressSlashes()
{
    QFETCH(QString, helpPath);
    QFETCH(QString, address);
    QCOMPARE(QNodrixHelpPrivate::localAddress(helpPath + QStringLiteral("it/x.htm")).toString(),
             address);
}

void tst_QNodrixHelp::largeIndex()
{
    QString content;
    content.reserve(100000 * 24);
    for (int i = 0; i < 100000; ++i)
        content += QStringLiteral("Topic%1=doc/page%1.htm\n").arg(i);
    writeIndex(content);
    QNodrixHelp help;
    help.display(QStringLiteral("Topic99999"));
    help.display(QStringLiteral("Topic0"));
    QCOMPARE(m_catcher.urls.size(), 2);
    QVERIFY(m_catcher.urls.at(0).toString().endsWith(QLatin1String("/help/it/doc/page99999.htm")));
    QVERIFY(m_catcher.urls.at(1).toString().endsWith(QLatin1String("/help/it/doc/page0.htm")));
}

NDXCOM_TEST_MAIN(tst_QNodrixHelp)
#include "tst_qnodrixhelp.moc"
