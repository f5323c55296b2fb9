// QNodrixHelp's table of topics: the help number of every dialog class.

#include <QNodrixHelp>
#include <private/qnodrixhelp_p.h>

#include "helptest.h"
#include "ndxcomtest.h"

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

class tst_QNodrixHelpTopics : public QObject, private HelpFixture
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void topicTable_data();
    void topicTable();
    void topicTableShape();
    void unknownClass();
};

void tst_QNodrixHelpTopics::initTestCase()
{
    setUpProcess();
}

void tst_QNodrixHelpTopics::cleanupTestCase()
{
    tearDownProcess();
}

void tst_QNodrixHelpTopics::init()
{
    setUpMachine();
}

void tst_QNodrixHelpTopics::cleanup()
{
    QVERIFY(!QApplication::overrideCursor());
}

void tst_QNodrixHelpTopics::topicTable_data()
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

void tst_QNodrixHelpTopics::topicTable()
{
    QFETCH(QString, className);
    QFETCH(QString, helpNumber);
    QNodrixHelp help;
    QCOMPARE(help.getButHelpString(className), helpNumber);
}

void tst_QNodrixHelpTopics::topicTableShape()
{
    QCOMPARE(NdxComHelp::topicCount, 168);
    QSet<QString> names;
    QHash<QString, int> numbers;
    for (int i = 0; i < NdxComHelp::topicCount; ++i) {
        names.insert(QString::fromLatin1(NdxComHelp::topics[i].className));
        ++numbers[QString::fromLatin1(NdxComHelp::topics[i].helpNumber)];
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

void tst_QNodrixHelpTopics::unknownClass()
{
    QNodrixHelp help;
    QCOMPARE(help.getButHelpString(QStringLiteral("QDlgUnknown")), QString());
    QCOMPARE(help.getButHelpString(QString()), QString());
    QCOMPARE(help.getButHelpString(QStringLiteral("qdlghelpnodrix")), QString());
    QCOMPARE(help.getButHelpString(QStringLiteral("QDlgSetupAlimU.F.")), QStringLiteral("2.1.5.0"));
}

NDXCOM_TEST_MAIN(tst_QNodrixHelpTopics)
#include "tst_qnodrixhelp_topics.moc"
