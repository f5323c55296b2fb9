#include "qnodrixcom.h"

#include <QtWidgets/QMdiArea>

// The suite's version numbers. The library's own VERSION in CMake is the
// same product version, so the numbers come from there; the build number and
// the build date are fixed for this release.
#ifndef NDXCOM_VERSION_MAJOR
#error "NDXCOM_VERSION_MAJOR/MINOR/PATCH are set by the build system"
#endif

namespace {
constexpr unsigned int kMajor = NDXCOM_VERSION_MAJOR;
constexpr unsigned int kMinor = NDXCOM_VERSION_MINOR;
constexpr unsigned int kRevision = NDXCOM_VERSION_PATCH;
constexpr unsigned int kBuild = 87551;
constexpr unsigned int kVersionWord = (kMajor << 24) | (kMinor << 16) | (kRevision << 8);
static_assert(kVersionWord == 0x01020000, "the suite's version words are 1.2.0");

QString buildDate()
{
    return QStringLiteral("17/1/2022");
}

QString mmr()
{
    return QStringLiteral("%1.%2.%3").arg(kMajor).arg(kMinor).arg(kRevision);
}

QString mmrb()
{
    return QStringLiteral("%1.%2.%3.%4").arg(kMajor).arg(kMinor).arg(kRevision).arg(kBuild);
}
} // namespace

// All members are defined in this one translation unit, so their defaults are
// in place, in this order, once the library is loaded.

// Identity, resources and processes
QString QNodrixCom::m_sApplicationName = QStringLiteral("Nodrix");
QString QNodrixCom::m_sNodrixInterface = QStringLiteral("Nodrix");
QString QNodrixCom::m_sNodrixBrand = QStringLiteral("Tavolix");
QString QNodrixCom::m_sNodrixIcon = QStringLiteral(":/resources/Resources/Nodrix.png");
QString QNodrixCom::m_sPathGlobalIco = QStringLiteral(":/resources/Resources/");
QString QNodrixCom::m_sPathCmdIco = QStringLiteral(":/cmdico/Resources/cmdico/");
QString QNodrixCom::m_sMoreCommandsIcon = QStringLiteral(":/resources/Resources/moreCommands.png");
QString QNodrixCom::m_sKeyImageText = QStringLiteral("Description");
QString QNodrixCom::m_sAppExeFolder = QStringLiteral("/bin");
QString QNodrixCom::m_sAppExeDshellFolder = QStringLiteral("/dshell");
QString QNodrixCom::m_sKadrelShellProcess = QStringLiteral("KaDrShell.exe");
QString QNodrixCom::m_sScsImportProcess = QStringLiteral("DecoNodrix.exe");
// Project, module and data file extensions and file-dialog filters
QString QNodrixCom::m_sProjectFilesExt = QStringLiteral(".ndx");
QString QNodrixCom::m_sProjectFilesFilter = QStringLiteral("*.ndx");
QString QNodrixCom::m_sProjectSaveAs = QStringLiteral("Nodrix progetti (*.ndx)");
QString QNodrixCom::m_sConcatenateFilesExt = QStringLiteral(".pcn");
QString QNodrixCom::m_sConcatenateFilesFilter = QStringLiteral("*.pcn");
QString QNodrixCom::m_sModuleCylFilesExt = QStringLiteral(".pmc");
QString QNodrixCom::m_sModuleCylFilesFilter = QStringLiteral("*.pmc");
QString QNodrixCom::m_sModuleMglFilesExt = QStringLiteral(".pmm");
QString QNodrixCom::m_sModuleMglFilesFilter = QStringLiteral("*.pmm");
QString QNodrixCom::m_sCaricoFilesExt = QStringLiteral(".pca");
QString QNodrixCom::m_sCaricoFilesFilter = QStringLiteral("*.pca");
QString QNodrixCom::m_sScaricoFilesExt = QStringLiteral(".psc");
QString QNodrixCom::m_sScaricoFilesFilter = QStringLiteral("*.psc");
QString QNodrixCom::m_sScsFilesExt = QStringLiteral(".sc");
QString QNodrixCom::m_sFreeModeFilesExt = QStringLiteral(".pfm");
QString QNodrixCom::m_sFreeModeFilesFilter = QStringLiteral("*.pfm");
QString QNodrixCom::m_sFreeModeCodePrefix;
QString QNodrixCom::m_sLogFilesExt = QStringLiteral(".log");
QString QNodrixCom::m_sDevDisFilesExt = QStringLiteral(".dis");
QString QNodrixCom::m_sKD5DISFilesExt = QStringLiteral(".dis");
QString QNodrixCom::m_sSockFilesExt = QStringLiteral(".sok");
QString QNodrixCom::m_sScoFilesExt = QStringLiteral(".sco");
QString QNodrixCom::m_sScnFilesExt = QStringLiteral(".scn");
QString QNodrixCom::m_sPskFilesExt = QStringLiteral(".psk");
QString QNodrixCom::m_sCodeFilesExt = QStringLiteral(".xc");
QString QNodrixCom::m_sCodeFilesXmlExt = QStringLiteral(".xml");
QString QNodrixCom::m_sCorrFilesExt = QStringLiteral(".cor");
QString QNodrixCom::m_sCodeCnFilesExt = QStringLiteral(".cn");
QString QNodrixCom::m_sLockFilesExt = QStringLiteral(".~lock");
QString QNodrixCom::m_sImageFilesExt = QStringLiteral(".png");
QString QNodrixCom::m_sPrefixProjectDoc = QStringLiteral("Prg");
QString QNodrixCom::m_sPrefixModuleDoc = QStringLiteral("Mod");
// Machine files, folders of the machine and project trees
QString QNodrixCom::m_sMachineConfigFile = QStringLiteral("Macchina.dax");
QString QNodrixCom::m_sMachineHelpFile = QStringLiteral("HelpMac.ini");
QString QNodrixCom::m_sMacCodingDataFile = QStringLiteral("coding.xml");
QString QNodrixCom::m_sMachineFilesExt = QStringLiteral(".xml");
QString QNodrixCom::m_sMachineFilesXmlExt = QStringLiteral(".dax");
QString QNodrixCom::m_sMachineFilesLangPostfix = QStringLiteral("Lang.xml");
QString QNodrixCom::m_sMachineFilesMsg = QStringLiteral("_msg_");
QString QNodrixCom::m_sMachineFilesMsgExt = QStringLiteral(".ini");
QString QNodrixCom::m_sMachineFilesBinExt = QStringLiteral(".dat");
QString QNodrixCom::m_sMachineDataFolder = QStringLiteral("/_mac/");
QString QNodrixCom::m_sMachineResourceFolder = QStringLiteral("/_res/");
QString QNodrixCom::m_sMachineResCmdIcoFolder = QStringLiteral("CmdIco/");
QString QNodrixCom::m_sMachineResMglMapFolder = QStringLiteral("MglMap/");
QString QNodrixCom::m_sMachineHelpFolder = QStringLiteral("/help/");
QString QNodrixCom::m_sMachineCodeFolder = QStringLiteral("Code");
QString QNodrixCom::m_sMachineCodeDisFolder = QStringLiteral("Dis");
QString QNodrixCom::m_sMachineCodeCodFolder = QStringLiteral("Cod");
QString QNodrixCom::m_sProjectsDefFolder = QStringLiteral("Projects");
QString QNodrixCom::m_sRepositoryDefFolder = QStringLiteral("Repository");
QString QNodrixCom::m_sProjectLinkDefFolder = QStringLiteral("LinkProjects");
QString QNodrixCom::m_sProjectArchFolder = QStringLiteral("/arch-ndx");
QString QNodrixCom::m_sProjectArchAppend = QStringLiteral("_arch");
// Folders and files of the sibling design application
QString QNodrixCom::m_sMachineKd5Dir = QStringLiteral("C:/KARTA5/ZR5-VX3K_Nodrix");
QString QNodrixCom::m_sMachineKd5ChainDir = QStringLiteral("Chain");
QString QNodrixCom::m_sMachineKd5CodDir = QStringLiteral("Cod");
QString QNodrixCom::m_sMachineKd5DisDir = QStringLiteral("Dis");
QString QNodrixCom::m_sMachineKd5DisegniDir = QStringLiteral("/Nodrix");
QString QNodrixCom::m_sMachineKd5DisegniDevDir = QStringLiteral("/Nodrix/DisDev");
QString QNodrixCom::m_sMachineKd5DisegniDbgDir = QStringLiteral("/Nodrix/DisDbg");
QString QNodrixCom::m_sMachineKd5CarcolMgl = QStringLiteral("/Carcol/Vx3KMaglia.cen");
QString QNodrixCom::m_sMachineKd5CarcolDevDis = QStringLiteral("/Carcol/Vx3KDevDis.cen");
QString QNodrixCom::m_sMachineKd5CarcolDevDbg = QStringLiteral("/Carcol/Vx3KDevDbg.cen");
QString QNodrixCom::m_sMachineKd5CarcolKadrel = QStringLiteral("/Carcol/ZR5-VX3K_Nodrix.cen");
QString QNodrixCom::m_sMachineKd5DisCfgName = QStringLiteral("Ndr.cfg ");
QString QNodrixCom::m_sMachineKd5MachCodeName = QStringLiteral("VX3K");
// Keywords, delimiters, fonts and name rules
QString QNodrixCom::m_sScsZoneKeyword = QStringLiteral("ZONA_SCS");
QString QNodrixCom::m_sScsVersKeyword = QStringLiteral("VERSIONE_SCS");
QString QNodrixCom::m_sXmlAttributeTrue = QStringLiteral("true");
QString QNodrixCom::m_sXmlAttributeFalse = QStringLiteral("false");
QChar QNodrixCom::m_sXmlParamDelimiter = QLatin1Char('%');
QString QNodrixCom::m_sCmdStripBlendFont = QStringLiteral("Courier New");
QString QNodrixCom::m_sCmdStripBlendEndVal = QStringLiteral(" < ");
QString QNodrixCom::m_sInvalidChars = QStringLiteral("@ ,;'!?");
QString QNodrixCom::m_sFileNameInvalidChars;
int QNodrixCom::m_nFileNameMaxChars = 0;
int QNodrixCom::m_nProjNameMaxLength = 256;
// Numbers of the editors and the user interface
int QNodrixCom::m_nPlanesMax = 1;
int QNodrixCom::m_nPlanesProject = 1;
int QNodrixCom::m_nColorsMax = 256;
int QNodrixCom::m_nMglPntMax = 256;
int QNodrixCom::m_nPatternRowsDef = 240;
int QNodrixCom::m_nStitchViewMinZoomLevel = 25;
int QNodrixCom::m_nCmdIconMinZoomLevel = 6;
float QNodrixCom::m_nCmdIconMinZoomFactor = 6.0f;
int QNodrixCom::m_nCmdPlaneMinZoomLevel = 12;
int QNodrixCom::m_nSkelIconMinZoomLevel = 8;
int QNodrixCom::m_nScsIconMinZoomLevel = 8;
double QNodrixCom::m_nCmdStripFontFactor = 1.0;
double QNodrixCom::m_nOpacityOne = 1.0;
double QNodrixCom::m_nOpacityHalf = 0.5;
int QNodrixCom::m_nButtonBlinkTime = 500;
int QNodrixCom::m_nMachineCodeEnvIdent = 2;
int QNodrixCom::m_nProjDcoUId = 0;
// Highlight colours
QColor QNodrixCom::m_colorHighLightLine(255, 199, 60, 122);
QColor QNodrixCom::m_colorHighLightStep(60, 199, 255, 122);
QColor QNodrixCom::m_colorHighLightRows(60, 199, 255, 122);
QColor QNodrixCom::m_colorHighLightScheme(255, 202, 202, 122);
QColor QNodrixCom::m_colorHighLightSkel(160, 250, 250, 122);
QColor QNodrixCom::m_colorHighLightScs(128, 255, 128, 122);
QColor QNodrixCom::m_colorStripSCS(128, 0, 128, 255);
// Versions and build dates
unsigned int QNodrixCom::m_uProductSoftwareVersion = kVersionWord;
unsigned int QNodrixCom::m_uProductSoftwareBuild = kBuild;
unsigned int QNodrixCom::m_uNodrixSoftwareVersion = kVersionWord;
unsigned int QNodrixCom::m_uNdxExtSoftwareVersion = kVersionWord;
unsigned int QNodrixCom::m_uNdxDocSoftwareVersion = kVersionWord;
unsigned int QNodrixCom::m_uNdxMacSoftwareVersion = kVersionWord;
unsigned int QNodrixCom::m_uNdxAutSoftwareVersion = kVersionWord;
unsigned int QNodrixCom::m_uNdxCodSoftwareVersion = kVersionWord;
unsigned int QNodrixCom::m_uNdxComSoftwareVersion = kVersionWord;
unsigned int QNodrixCom::m_uNdxImgSoftwareVersion = kVersionWord;
unsigned int QNodrixCom::m_uNdxLibSoftwareVersion = kVersionWord;
unsigned int QNodrixCom::m_uToolsSoftwareVersion = kVersionWord;
unsigned int QNodrixCom::m_uNodrixAppVersion = 0;
QString QNodrixCom::m_sProductSoftwareMMR = mmr();
QString QNodrixCom::m_sProductSoftwareMMRB = mmrb();
QString QNodrixCom::m_sProduct_SoftwareVersion = mmrb();
QString QNodrixCom::m_sProductDate = buildDate();
QString QNodrixCom::m_sNodrixDate = buildDate();
QString QNodrixCom::m_sNdxExtDate = buildDate();
QString QNodrixCom::m_sNdxDocDate = buildDate();
QString QNodrixCom::m_sNdxMacDate = buildDate();
QString QNodrixCom::m_sNdxAutDate = buildDate();
QString QNodrixCom::m_sNdxCodDate = buildDate();
QString QNodrixCom::m_sNdxComDate = buildDate();
QString QNodrixCom::m_sNdxImgDate = buildDate();
QString QNodrixCom::m_sNdxLibDate = buildDate();
QString QNodrixCom::m_sToolsDate = buildDate();

// Languages, palette and translatable names. The order of m_slLanguages is the
// order of enLanguages.
int QNodrixCom::m_eLanguageApp = QNodrixCom::eLanguage_en;
QString QNodrixCom::m_sLanguageIT = QStringLiteral("it");
QString QNodrixCom::m_sLanguageEN = QStringLiteral("en");
QString QNodrixCom::m_sLanguageZH = QStringLiteral("zh");
QString QNodrixCom::m_sLanguageSZH = QStringLiteral("szh");
QString QNodrixCom::m_sLanguageES = QStringLiteral("es");
QStringList QNodrixCom::m_slLanguages
    = {QStringLiteral("it"), QStringLiteral("en"), QStringLiteral("zh"), QStringLiteral("szh"),
       QStringLiteral("es")};
QVector<unsigned int> QNodrixCom::m_palettePlaneDefault;
QString QNodrixCom::m_sCylinderPlane;
QString QNodrixCom::m_sBodyKnitPlane;
QString QNodrixCom::m_sBodyMapPlane;
QString QNodrixCom::m_sBodyShapePlane;
QString QNodrixCom::m_sStitchPlane;
QString QNodrixCom::m_sFingerPlane;
QString QNodrixCom::m_sCommandPlane;
QStringList QNodrixCom::m_slModuleOperation;
QStringList QNodrixCom::m_slFili;

// Run-time options
QMdiArea *QNodrixCom::m_pMdiArea = nullptr;
int QNodrixCom::m_nFolderUseGauge = 0;
int QNodrixCom::m_nFolderUseDiam = 0;

QNodrixCom::QNodrixCom()
    : QObject(nullptr)
{ }

QNodrixCom::~QNodrixCom() = default;

// Identity, resources and processes
QString QNodrixCom::applicationName()
{
    return m_sApplicationName;
}

QString QNodrixCom::nodrixInterface()
{
    return m_sNodrixInterface;
}

QString QNodrixCom::nodrixBrand()
{
    return m_sNodrixBrand;
}

QString QNodrixCom::nodrixIcon()
{
    return m_sNodrixIcon;
}

QString QNodrixCom::pathGlobalIcon()
{
    return m_sPathGlobalIco;
}

QString QNodrixCom::pathCmdIcon()
{
    return m_sPathCmdIco;
}

QString QNodrixCom::moreCommandsIcon()
{
    return m_sMoreCommandsIcon;
}

QString QNodrixCom::keyImageText()
{
    return m_sKeyImageText;
}

QString QNodrixCom::appExeFolder()
{
    return m_sAppExeFolder;
}

QString QNodrixCom::appExeDshellFolder()
{
    return m_sAppExeDshellFolder;
}

QString QNodrixCom::kadrelShellProcess()
{
    return m_sKadrelShellProcess;
}

QString QNodrixCom::scsImportProcess()
{
    return m_sScsImportProcess;
}

// Project, module and data file extensions and file-dialog filters
QString QNodrixCom::projectFilesExt()
{
    return m_sProjectFilesExt;
}

QString QNodrixCom::projectFilesFilter()
{
    return m_sProjectFilesFilter;
}

QString QNodrixCom::concatenateFilesExt()
{
    return m_sConcatenateFilesExt;
}

QString QNodrixCom::concatenateFilesFilter()
{
    return m_sConcatenateFilesFilter;
}

QString QNodrixCom::moduleCylFilesExt()
{
    return m_sModuleCylFilesExt;
}

QString QNodrixCom::moduleCylFilesFilter()
{
    return m_sModuleCylFilesFilter;
}

QString QNodrixCom::moduleMglFilesExt()
{
    return m_sModuleMglFilesExt;
}

QString QNodrixCom::moduleMglFilesFilter()
{
    return m_sModuleMglFilesFilter;
}

QString QNodrixCom::caricoFilesExt()
{
    return m_sCaricoFilesExt;
}

// The three unloading getters are crossed on purpose: the applications were
// written against these results, and m_sCaricoFilesFilter has no getter.
QString QNodrixCom::caricoFilesFilter()
{
    return m_sScaricoFilesExt;
}

QString QNodrixCom::scaricoFilesExt()
{
    return m_sScaricoFilesFilter;
}

QString QNodrixCom::scaricoFilesFilter()
{
    return m_sScaricoFilesFilter;
}

QString QNodrixCom::scsFilesExt()
{
    return m_sScsFilesExt;
}

QString QNodrixCom::freeModeFilesExt()
{
    return m_sFreeModeFilesExt;
}

QString QNodrixCom::freeModeFilesFilter()
{
    return m_sFreeModeFilesFilter;
}

QString QNodrixCom::freeModeCodePrefix()
{
    return m_sFreeModeCodePrefix;
}

QString QNodrixCom::logFilesExt()
{
    return m_sLogFilesExt;
}

QString QNodrixCom::devDisFilesExt()
{
    return m_sDevDisFilesExt;
}

QString QNodrixCom::kd5DISFilesExt()
{
    return m_sKD5DISFilesExt;
}

QString QNodrixCom::sockFilesExt()
{
    return m_sSockFilesExt;
}

QString QNodrixCom::scoFilesExt()
{
    return m_sScoFilesExt;
}

QString QNodrixCom::scnFilesExt()
{
    return m_sScnFilesExt;
}

QString QNodrixCom::pskFilesExt()
{
    return m_sPskFilesExt;
}

QString QNodrixCom::codeFilesExt()
{
    return m_sCodeFilesExt;
}

QString QNodrixCom::codeFilesXmlExt()
{
    return m_sCodeFilesXmlExt;
}

QString QNodrixCom::corrFilesExt()
{
    return m_sCorrFilesExt;
}

QString QNodrixCom::codeCnFilesExt()
{
    return m_sCodeCnFilesExt;
}

QString QNodrixCom::lockFilesExt()
{
    return m_sLockFilesExt;
}

QString QNodrixCom::imageFilesExt()
{
    return m_sImageFilesExt;
}

QString QNodrixCom::prefixProjectDoc()
{
    return m_sPrefixProjectDoc;
}

QString QNodrixCom::prefixModuleDoc()
{
    return m_sPrefixModuleDoc;
}

// Machine files, folders of the machine and project trees
QString QNodrixCom::machineConfigFile()
{
    return m_sMachineConfigFile;
}

QString QNodrixCom::machineHelpFile()
{
    return m_sMachineHelpFile;
}

QString QNodrixCom::machineCodingDataFile()
{
    return m_sMacCodingDataFile;
}

QString QNodrixCom::machineFilesExt()
{
    return m_sMachineFilesExt;
}

QString QNodrixCom::machineFilesXmlExt()
{
    return m_sMachineFilesXmlExt;
}

QString QNodrixCom::machineFilesLangPostfix()
{
    return m_sMachineFilesLangPostfix;
}

QString QNodrixCom::machineFilesMsg()
{
    return m_sMachineFilesMsg;
}

QString QNodrixCom::machineFilesMsgExt()
{
    return m_sMachineFilesMsgExt;
}

QString QNodrixCom::machineFilesBinExt()
{
    return m_sMachineFilesBinExt;
}

QString QNodrixCom::machineDataFolder()
{
    return m_sMachineDataFolder;
}

QString QNodrixCom::machineResourceFolder()
{
    return m_sMachineResourceFolder;
}

QString QNodrixCom::machineResCmdIcoFolder()
{
    return m_sMachineResCmdIcoFolder;
}

QString QNodrixCom::machineResMglMapFolder()
{
    return m_sMachineResMglMapFolder;
}

QString QNodrixCom::machineHelpFolder()
{
    return m_sMachineHelpFolder;
}

QString QNodrixCom::machineCodeFolder()
{
    return m_sMachineCodeFolder;
}

QString QNodrixCom::machineCodeDisFolder()
{
    return m_sMachineCodeDisFolder;
}

QString QNodrixCom::machineCodeCodFolder()
{
    return m_sMachineCodeCodFolder;
}

QString QNodrixCom::projectsDefFolder()
{
    return m_sProjectsDefFolder;
}

QString QNodrixCom::repositoryDefFolder()
{
    return m_sRepositoryDefFolder;
}

QString QNodrixCom::projectLinkDefFolder()
{
    return m_sProjectLinkDefFolder;
}

QString QNodrixCom::projectArchFolder()
{
    return m_sProjectArchFolder;
}

QString QNodrixCom::projectArchAppend()
{
    return m_sProjectArchAppend;
}

// Folders and files of the sibling design application
QString QNodrixCom::machineKd5Dir()
{
    return m_sMachineKd5Dir;
}

QString QNodrixCom::machineKd5ChainDir()
{
    return m_sMachineKd5ChainDir;
}

QString QNodrixCom::machineKd5CodDir()
{
    return m_sMachineKd5CodDir;
}

QString QNodrixCom::machineKd5DisDir()
{
    return m_sMachineKd5DisDir;
}

QString QNodrixCom::machineKd5DisegniDir()
{
    return m_sMachineKd5DisegniDir;
}

QString QNodrixCom::machineKd5DisegniDevDir()
{
    return m_sMachineKd5DisegniDevDir;
}

QString QNodrixCom::machineKd5DisegniDbgDir()
{
    return m_sMachineKd5DisegniDbgDir;
}

QString QNodrixCom::machineKd5CarcolMgl()
{
    return m_sMachineKd5CarcolMgl;
}

QString QNodrixCom::machineKd5CarcolDevDis()
{
    return m_sMachineKd5CarcolDevDis;
}

QString QNodrixCom::machineKd5CarcolDevDbg()
{
    return m_sMachineKd5CarcolDevDbg;
}

QString QNodrixCom::machineKd5CarcolKadrel()
{
    return m_sMachineKd5CarcolKadrel;
}

QString QNodrixCom::machineKd5DisCfgName()
{
    return m_sMachineKd5DisCfgName;
}

QString QNodrixCom::machineKd5MachCodeName()
{
    return m_sMachineKd5MachCodeName;
}

// Keywords, delimiters, fonts and name rules
QString QNodrixCom::scsZoneKeyword()
{
    return m_sScsZoneKeyword;
}

QString QNodrixCom::scsVersKeyword()
{
    return m_sScsVersKeyword;
}

QString QNodrixCom::xmlTrue()
{
    return m_sXmlAttributeTrue;
}

QString QNodrixCom::xmlFalse()
{
    return m_sXmlAttributeFalse;
}

QChar QNodrixCom::xmlParamDelimiter()
{
    return m_sXmlParamDelimiter;
}

QString QNodrixCom::cmdStripBlendFont()
{
    return m_sCmdStripBlendFont;
}

QString QNodrixCom::cmdStripBlendEndVal()
{
    return m_sCmdStripBlendEndVal;
}

QString QNodrixCom::namesInvalidChars()
{
    return m_sInvalidChars;
}

int QNodrixCom::projectNameMaxLength()
{
    return m_nProjNameMaxLength;
}

// Numbers of the editors and the user interface
int QNodrixCom::planesMax()
{
    return m_nPlanesMax;
}

int QNodrixCom::planesProject()
{
    return m_nPlanesProject;
}

int QNodrixCom::colorsMax()
{
    return m_nColorsMax;
}

int QNodrixCom::mglPntMax()
{
    return m_nMglPntMax;
}

int QNodrixCom::patternRowsDef()
{
    return m_nPatternRowsDef;
}

int QNodrixCom::stitchViewMinZoomLevel()
{
    return m_nStitchViewMinZoomLevel;
}

int QNodrixCom::cmdIconMinZoomLevel()
{
    return m_nCmdIconMinZoomLevel;
}

float QNodrixCom::cmdIconMinZoomFactor()
{
    return m_nCmdIconMinZoomFactor;
}

int QNodrixCom::cmdPlaneMinZoomLevel()
{
    return m_nCmdPlaneMinZoomLevel;
}

int QNodrixCom::skelIconMinZoomLevel()
{
    return m_nSkelIconMinZoomLevel;
}

int QNodrixCom::scsIconMinZoomLevel()
{
    return m_nScsIconMinZoomLevel;
}

double QNodrixCom::cmdStripFontFactor()
{
    return m_nCmdStripFontFactor;
}

double QNodrixCom::opacityOne()
{
    return m_nOpacityOne;
}

double QNodrixCom::opacityHalf()
{
    return m_nOpacityHalf;
}

int QNodrixCom::buttonBlinkTime()
{
    return m_nButtonBlinkTime;
}

int QNodrixCom::machineCodeEnvIdent()
{
    return m_nMachineCodeEnvIdent;
}

// Highlight colours
QColor QNodrixCom::colorHighLightLine()
{
    return m_colorHighLightLine;
}

QColor QNodrixCom::colorHighLightStep()
{
    return m_colorHighLightStep;
}

QColor QNodrixCom::colorHighLightRows()
{
    return m_colorHighLightRows;
}

QColor QNodrixCom::colorHighLightScheme()
{
    return m_colorHighLightScheme;
}

QColor QNodrixCom::colorHighLightSkel()
{
    return m_colorHighLightSkel;
}

QColor QNodrixCom::colorHighLightScs()
{
    return m_colorHighLightScs;
}

QColor QNodrixCom::colorStripSCS()
{
    return m_colorStripSCS;
}

int QNodrixCom::projDocUId()
{
    // Incremented as an unsigned word: past INT_MAX the id wraps to INT_MIN
    // instead of overflowing.
    m_nProjDcoUId = static_cast<int>(static_cast<unsigned int>(m_nProjDcoUId) + 1u);
    return m_nProjDcoUId;
}

int QNodrixCom::languageApp()
{
    return m_eLanguageApp;
}

void QNodrixCom::setLanguageApp(const int &language)
{
    m_eLanguageApp = language;
}

QStringList &QNodrixCom::refLanguages()
{
    return m_slLanguages;
}

void QNodrixCom::setMdiArea(QMdiArea *pMdiArea)
{
    // The area is the application's, but it must never be read after the
    // application has destroyed it: the one in use is forgotten with it.
    static QMetaObject::Connection s_areaWatch;
    QObject::disconnect(s_areaWatch);
    m_pMdiArea = pMdiArea;
    if (!pMdiArea)
        return;
    const void *const watched = pMdiArea;
    // The area is its own context: the connection lives exactly as long as it.
    s_areaWatch = QObject::connect(pMdiArea, &QObject::destroyed, pMdiArea, [watched] {
        if (static_cast<const void *>(m_pMdiArea) == watched)
            m_pMdiArea = nullptr;
    });
}

void QNodrixCom::setProjectsFolderOptions(int nGauge, int nDiameter)
{
    m_nFolderUseGauge = nGauge;
    m_nFolderUseDiam = nDiameter;
}

void QNodrixCom::setProjectsNameOptions(int nMaxChars, QString sInvalidChars)
{
    m_nFileNameMaxChars = nMaxChars;
    m_sFileNameInvalidChars = sInvalidChars;
}
