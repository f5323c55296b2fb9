#ifndef QNODRIXCOM_H
#define QNODRIXCOM_H

#include "ndxcom_export.h"
#include "ndxcom_global.h"

#include <QtCore/QChar>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtGui/QColor>

QT_BEGIN_NAMESPACE
class QMdiArea;
class QWidget;
QT_END_NAMESPACE

/*!
    The static dictionary of the Nodrix suite: file kinds, folders, resource
    paths, editor defaults, highlight colours, version words and build dates,
    plus the small computations every application must agree on (version
    arithmetic, needle geometry, ...).

    Every member is static and receives its default when the library is
    loaded. The class is never needed as an object; it derives from QObject
    for its meta-object and its translation context "QNodrixCom".
*/
class NDXCOM_EXPORT QNodrixCom : public QObject
{
    Q_OBJECT
    NDXCOM_TR_FUNCTIONS

public:
    enum enLanguages {
        eLanguage_Min = 0,
        eLanguage_it = 0,
        eLanguage_en = 1,
        Language_zh = 2,
        Language_szh = 3,
        Language_es = 4,
        eLanguage_Max = 5
    };
    Q_ENUM(enLanguages)

    enum eUndoCmdType { eCmdUndLayer = 0 };
    Q_ENUM(eUndoCmdType)

    // Indexes the module-operation names; deliberately not registered with
    // the meta-object. The int underlying type makes every int a valid value,
    // so a caller's out-of-range number is a defined (empty) lookup.
    enum enModuleAssocOperation : int {
        eModuleAssoc_Insert = 0,
        eModuleAssoc_Replace,
        eModuleAssoc_Modify,
        eModuleAssoc_Copy,
        eModuleAssoc_Paste,
        eModuleAssoc_SaveAs,
        eModuleAssoc_Remove,
        eModuleAssoc_Show,
        eModuleAssoc_ReplaceGdf
    };

    QNodrixCom();
    ~QNodrixCom() override;

    // ---------------------------------------------------------------------
    // Constants (plain getters return a copy of their member)
    // ---------------------------------------------------------------------
    // Identity, resources and processes
    static QString applicationName();
    static QString nodrixInterface();
    static QString nodrixBrand();
    static QString nodrixIcon();
    static QString pathGlobalIcon();
    static QString pathCmdIcon();
    static QString moreCommandsIcon();
    static QString keyImageText();
    static QString appExeFolder();
    static QString appExeDshellFolder();
    static QString kadrelShellProcess();
    static QString scsImportProcess();
    // Project, module and data file extensions and file-dialog filters
    static QString projectFilesExt();
    static QString projectFilesFilter();
    static QString concatenateFilesExt();
    static QString concatenateFilesFilter();
    static QString moduleCylFilesExt();
    static QString moduleCylFilesFilter();
    static QString moduleMglFilesExt();
    static QString moduleMglFilesFilter();
    static QString caricoFilesExt();
    // The unloading ("scarico") getters are crossed on purpose: applications
    // depend on caricoFilesFilter() being ".psc" and scaricoFilesExt() "*.psc".
    static QString caricoFilesFilter();
    static QString scaricoFilesExt();
    static QString scaricoFilesFilter();
    static QString scsFilesExt();
    static QString freeModeFilesExt();
    static QString freeModeFilesFilter();
    static QString freeModeCodePrefix();
    static QString logFilesExt();
    static QString devDisFilesExt();
    static QString kd5DISFilesExt();
    static QString sockFilesExt();
    static QString scoFilesExt();
    static QString scnFilesExt();
    static QString pskFilesExt();
    static QString codeFilesExt();
    static QString codeFilesXmlExt();
    static QString corrFilesExt();
    static QString codeCnFilesExt();
    static QString lockFilesExt();
    static QString imageFilesExt();
    static QString prefixProjectDoc();
    static QString prefixModuleDoc();
    // Machine files, folders of the machine and project trees
    static QString machineConfigFile();
    static QString machineHelpFile();
    static QString machineCodingDataFile();
    // Named against their contents on purpose: machineFilesExt() is ".xml",
    // machineFilesXmlExt() is ".dax".
    static QString machineFilesExt();
    static QString machineFilesXmlExt();
    static QString machineFilesLangPostfix();
    static QString machineFilesMsg();
    static QString machineFilesMsgExt();
    static QString machineFilesBinExt();
    static QString machineDataFolder();
    static QString machineResourceFolder();
    static QString machineResCmdIcoFolder();
    static QString machineResMglMapFolder();
    static QString machineHelpFolder();
    static QString machineCodeFolder();
    static QString machineCodeDisFolder();
    static QString machineCodeCodFolder();
    static QString projectsDefFolder();
    static QString repositoryDefFolder();
    static QString projectLinkDefFolder();
    static QString projectArchFolder();
    static QString projectArchAppend();
    // Folders and files of the sibling design application
    static QString machineKd5Dir();
    static QString machineKd5ChainDir();
    static QString machineKd5CodDir();
    static QString machineKd5DisDir();
    static QString machineKd5DisegniDir();
    static QString machineKd5DisegniDevDir();
    static QString machineKd5DisegniDbgDir();
    static QString machineKd5CarcolMgl();
    static QString machineKd5CarcolDevDis();
    static QString machineKd5CarcolDevDbg();
    static QString machineKd5CarcolKadrel();
    // "Ndr.cfg ": eight characters, the trailing blank belongs to the name.
    static QString machineKd5DisCfgName();
    static QString machineKd5MachCodeName();
    // Keywords, delimiters, fonts and name rules
    static QString scsZoneKeyword();
    static QString scsVersKeyword();
    static QString xmlTrue();
    static QString xmlFalse();
    static QChar xmlParamDelimiter();
    static QString cmdStripBlendFont();
    static QString cmdStripBlendEndVal();
    static QString namesInvalidChars();
    static int projectNameMaxLength();
    // Numbers of the editors and the user interface
    static int planesMax();
    static int planesProject();
    static int colorsMax();
    static int mglPntMax();
    static int patternRowsDef();
    static int stitchViewMinZoomLevel();
    static int cmdIconMinZoomLevel();
    static float cmdIconMinZoomFactor();
    static int cmdPlaneMinZoomLevel();
    static int skelIconMinZoomLevel();
    static int scsIconMinZoomLevel();
    static double cmdStripFontFactor();
    static double opacityOne();
    static double opacityHalf();
    static int buttonBlinkTime();
    static int machineCodeEnvIdent();
    // Highlight colours
    static QColor colorHighLightLine();
    static QColor colorHighLightStep();
    static QColor colorHighLightRows();
    static QColor colorHighLightScheme();
    static QColor colorHighLightSkel();
    static QColor colorHighLightScs();
    static QColor colorStripSCS();
    // Each call increments the document counter and returns the new value:
    // 1 for the first call after loading, then 2, 3, ...; after INT_MAX comes
    // INT_MIN (32-bit wrap). Not thread-safe; meant for the GUI thread.
    static int projDocUId();

    // ---------------------------------------------------------------------
    // Versions and build dates
    // ---------------------------------------------------------------------
    static unsigned int productSoftwareVersion();
    static unsigned int productSoftwareBuild();
    static QString productSoftwareMMR(); // "1.2.0"
    static QString productSoftwareMMRB(); // "1.2.0.87551"
    static QString productSoftware(); // "1.2.0.87551"
    static QString productDate();
    static unsigned int nodrixSoftwareVersion();
    static QString nodrixDate();

    // Version word and build date of a suite library by its key ("Nodrix",
    // "NdxExt", "NdxDoc", "NdxMac", "NdxAut", "NdxCod", "NdxCom", "NdxImg",
    // "NdxLib", "Tools"; exact, case-sensitive). An unknown key gives 0 and a
    // null string.
    static unsigned int getNdxVersion(QString sLibrary);
    static QString getNdxDate(QString sLibrary);

    // Packs a dotted text right-aligned: the last field lands in bits 0-7,
    // the one before in bits 8-15, ...; each field keeps its low eight bits,
    // a fifth field from the end wraps back onto bits 0-7 (OR-ed). Fields
    // that are not numbers count as 0. "1.2.0" gives 0x00010200.
    static unsigned int versionMMRNumber(QString sVersion);
    // 1, 0 or -1 comparing the right-aligned packings as unsigned numbers.
    static int compareVersionMMR(QString sFirst, QString sSecond);
    // Records the application's version left-aligned and additively: field i
    // (of the first four) is added shifted by 8 * (3 - i), so "1.2.0" gives
    // 0x01020000 and an oversized field carries into the one above.
    static void setNodrixAppVersion(QString sVersion);
    // The one non-static getter; it still only reads static state (0 until
    // setNodrixAppVersion has been called).
    unsigned int getNodrixAppVersion();

    // ---------------------------------------------------------------------
    // Project and module names
    // ---------------------------------------------------------------------
    // Whether the name holds one of namesInvalidChars() ("@ ,;'!?", the
    // blank included); case-sensitive. An empty name holds none.
    static bool projectNameContainsInvalidChars(QString sName);
    // Whether the name leaves Latin-1: any character above U+00FF, and also a
    // genuine '?', since the test is a Latin-1 conversion that turns what it
    // cannot encode into '?'. Accented western letters pass; "" passes.
    static bool projectNameHasIllegalLanguage(QString sName);
    // Appends ".ndx" (".pmc") unless the name already ends in it, compared
    // case-sensitively: "A.NDX" becomes "A.NDX.ndx". Modules always get the
    // cylinder-module extension.
    static void makeCompliantProjectName(QString &sName);
    static void makeCompliantModuleName(QString &sName);
    // The file-name part: everything after the last '/' (and, on Windows,
    // a backslash); "" for a text that ends in a separator.
    static QString strippedName(const QString &sFullFileName);

    // Proposes a project name nobody uses yet and stores it in sName; returns
    // a copy. The candidates are "", Prg1.ndx, Prg2.ndx, ... and the first one
    // is taken for which "<folder>/<candidate>" does not exist and no window
    // of the MDI area (setMdiArea) is titled with it. <folder> is the
    // projects folder of the settings, followed directly (no separator) by
    // "<gauge>-GG/<diameter>-DIAM" when both folder options are set and the
    // folder does not already contain that text. A window title counts
    // through its file-name part with every "[*]" removed.
    //
    // So an existing projects folder makes the first proposal Prg1.ndx (the
    // empty candidate names the folder itself), and a missing folder with no
    // window titled "" or "[*]" gives "". With no projects folder set, the
    // empty candidate names "/". The settings are read once and the window
    // titles gathered once per proposal; the search is a loop, so any number
    // of taken names is fine. No MDI area (null) means no windows.
    // Numbers stop at 2147483647: should every smaller one be taken,
    // Prg2147483647.ndx is returned without being tested.
    static QString makeNewProjectName(QString &sName);
    // The same for modules in sFolder, without the window check: "",
    // Mod1.pmc, Mod2.pmc, ..., the first for which "<sFolder>/<candidate>"
    // does not exist. A missing folder gives "". Numbers stop at 2147483647
    // here too.
    static QString makeNewModuleName(QString &sName, QString sFolder);

    // The save-as dialog of projects: Qt's save dialog with the filter
    // "Nodrix progetti (*.ndx)", the caller's parent and caption, and the
    // file-name part of sFileName offered as the name. A name typed without
    // an extension gets ".ndx".
    //
    // It opens in the projects folder of the settings (backslashes read as
    // '/') or, when both folder options are set, in its
    // "/<gauge>-GG/<diameter>-DIAM" subfolder: a folder that already holds
    // "/<gauge>-GG" is cut after it, unless it also holds the diameter part.
    // A missing folder is created; if that fails the dialog opens in the
    // projects folder. A relative folder is read from the working directory.
    //
    // A name longer than the machine's maximum (setProjectsNameOptions; 0 is
    // no limit, and a negative maximum refuses every name) shows the length
    // advisory and the dialog again. Each of the machine's forbidden
    // characters found in the name shows the invalid-character advisory once;
    // the name is accepted all the same. Unless bAllowSameName, choosing the
    // incoming sFileName again shows the dialog again without a word. Each new
    // run of the dialog opens where the first did.
    //
    // Returns true with the chosen path in sFileName, or false with sFileName
    // empty when the user cancels.
    static bool getSaveAsFileName(QWidget *pParent, QString sCaption, QString &sFileName,
                                  bool bAllowSameName);

    // ---------------------------------------------------------------------
    // Needle and degree geometry
    //
    // Pure 32-bit integer functions: products wrap modulo 2^32 (computed
    // without signed overflow), divisions truncate toward zero, remainders
    // take the sign of the dividend. With bTruncate false the angle-to-needle
    // conversions answer only 0 or 1; that mode is kept as the applications
    // know it.
    //
    // A needle count of 0 describes no machine: degreeFromNeedle and
    // degree10FromNeedle answer 0 instead of dividing by it, and so they do
    // for INT_MIN, whose tenfold wraps to 0. The
    // normalisations leave both references unchanged for a count of 0 or
    // below instead of folding for ever. Negative counts otherwise follow the
    // same arithmetic.
    // ---------------------------------------------------------------------
    static int needleFromDegree(int nDegree, int nNeedles, bool bTruncate);
    static int needleFromDegree10(int nDegree10, int nNeedles, bool bTruncate);
    static int degreeFromNeedle(int nNeedle, int nNeedles, bool bTruncate);
    static int degree10FromNeedle(int nNeedle, int nNeedles, bool bTruncate);
    // Folds a needle that ran off either end back into 0 .. nNeedles - 1,
    // moving nLine by nLineStep per fold (in constant time, with the same
    // 32-bit wrap as one addition per fold); then, if nLines is not 0, clamps
    // to the last needle of the last line or to needle 0 of line 0.
    static void normaNeedleLine(int &nNeedle, int &nLine, int nNeedles, int nLineStep, int nLines);
    // The same for nNeedle + nOffset. Note the order: the offset comes
    // before the needle count.
    static void normaNeedleLineOfs(int &nNeedle, int &nLine, int nOffset, int nNeedles,
                                   int nLineStep, int nLines);
    // Folds tenths of a degree into 0 .. 3599, one step per turn. A negative
    // angle with no step left to borrow is mirrored (-100 becomes 100), not
    // wrapped; callers rely on it.
    static void normaDegree10Step(int &nDegree10, int &nStep);
    // nMin if below it, else nMax if above it, else nValue (lower bound first).
    static int normaValueInRange(int nValue, int nMin, int nMax);
    // As normaValueInRange, but 0 (no value set) gives nDefault.
    static int normaValueInRangePos(int nValue, int nMin, int nMax, int nDefault);

    // ---------------------------------------------------------------------
    // Machine folders and configuration paths
    //
    // The separator is always '/'. The variants join a '/' to a folder name
    // at every call: Sl on the left, Sr on the right, SlSr on both sides.
    // machineKd5DisDirStSr() is the both-sides form under the name the
    // applications know; the sibling application's root has only the Sr form.
    // ---------------------------------------------------------------------
    static QString machineCodeFolderSl(); // "/Code"
    static QString machineCodeFolderSr(); // "Code/"
    static QString machineCodeFolderSlSr(); // "/Code/"
    static QString machineCodeDisFolderSl();
    static QString machineCodeDisFolderSr();
    static QString machineCodeDisFolderSlSr();
    static QString machineCodeCodFolderSl();
    static QString machineCodeCodFolderSr();
    static QString machineCodeCodFolderSlSr();
    static QString machineKd5DirSr(); // "C:/KARTA5/ZR5-VX3K_Nodrix/"
    static QString machineKd5ChainDirSl();
    static QString machineKd5ChainDirSr();
    static QString machineKd5ChainDirSlSr();
    static QString machineKd5CodDirSl();
    static QString machineKd5CodDirSr();
    static QString machineKd5CodDirSlSr();
    static QString machineKd5DisDirSl();
    static QString machineKd5DisDirSr();
    static QString machineKd5DisDirStSr(); // "/Dis/"
    // "<gauge>-GG/<diameter>-DIAM" in plain decimal (a minus sign is kept),
    // with no separator at either end: 14 and 13 give "14-GG/13-DIAM".
    static QString makeGaugeDiamSubDir(int nGauge, int nDiameter);
    // Makes sBasePath (backslashes turned into '/') end in
    // "/<sCfgFolder>/<gauge>-GG/<diameter>-DIAM". The parts are looked for as
    // case-sensitive substrings: a base without "/<sCfgFolder>" gets all three
    // appended; a base that holds all three, anywhere and in any order, comes
    // back unchanged; otherwise the base is cut before the first
    // "/<sCfgFolder>" and the three are appended. Nothing is created on disk.
    static QString makeConfigGaugeDiamPath(QString sBasePath, QString sCfgFolder, int nGauge,
                                           int nDiameter);

    // ---------------------------------------------------------------------
    // Languages, plane palette and translatable names
    // ---------------------------------------------------------------------
    // The code of the language number kept in the settings
    // (QNodrixRegistry::keyLanguage()): 0 "it", 2 "es", 6 "zh", 7 "szh",
    // every other number (-1, nothing stored, included) "en".
    static QString language();
    // Elements 0 to 4 of refLanguages(), so edits through the reference show
    // here; an element the list no longer has reads as an empty string.
    static QString languageIt();
    static QString languageEn();
    static QString languageZh();
    static QString languageSzh();
    static QString languageEs();
    // Builds the 256 default colours of the design planes: 0 opaque black,
    // 255 opaque white, and in between 0xFFDEDE00 + index, so the blue channel
    // names the index. Calling it again rebuilds the same table.
    static void initPalettePlaneDefault();
    // Empty until initPalettePlaneDefault() has been called.
    static QVector<unsigned int> &palettePlaneDefault();
    // Translates the plane names, the module operations and the yarn labels
    // with the translators installed at the time of the call. The two lists
    // are appended to, never cleared: a second call adds a second set behind
    // the first and the lookups keep answering from the first.
    static void intTranslatableStrings();
    // Empty until intTranslatableStrings() has been called.
    static QString nameCylinderPlane();
    static QString nameBodyKnitPlane();
    static QString nameBodyMapPlane();
    static QString nameBodyShapePlane();
    static QString nameStitchPlane();
    static QString nameFingerPlane();
    static QString nameCommandPlane();
    // The name of a module operation; an operation the list does not hold
    // (before intTranslatableStrings(), or out of range) gives an empty
    // string.
    static QString moduleAssocOperation(enModuleAssocOperation operation);
    // "0 Fili", "1 Filo", "2 Fili", "3 Fili" translated; an empty string for
    // a negative count or one the list does not hold.
    static QString stringFili(int yarns);

    // ---------------------------------------------------------------------
    // Run-time options set by the application
    // ---------------------------------------------------------------------
    static int languageApp();
    static void setLanguageApp(const int &language);
    static QStringList &refLanguages();
    // The MDI area whose windows count as taken project names; not owned.
    // An area that is destroyed while in use is forgotten (as if null).
    static void setMdiArea(QMdiArea *pMdiArea);
    // Whether projects are filed in gauge and diameter subfolders (0: not by
    // that quantity); the subfolders are used only when both are non-zero.
    static void setProjectsFolderOptions(int nGauge, int nDiameter);
    static void setProjectsNameOptions(int nMaxChars, QString sInvalidChars);

private:
    // The proposal loops behind makeNewProjectName and makeNewModuleName:
    // sName is the first candidate, nCounter the next number to use; it is
    // left one past the last number used, or at INT_MAX once that number has
    // been handed out. Both return a copy of the final sName.
    static QString iterNewProjectName(QString &sName, int nGauge, int nDiameter, int &nCounter);
    static QString iterNewModuleName(QString &sName, QString sFolder, int &nCounter);
    friend class tst_QNodrixCom_Names; // drives the counter to its limit

protected:
    // Identity, resources and processes
    static QString m_sApplicationName;
    static QString m_sNodrixInterface;
    static QString m_sNodrixBrand;
    static QString m_sNodrixIcon;
    static QString m_sPathGlobalIco;
    static QString m_sPathCmdIco;
    static QString m_sMoreCommandsIcon;
    static QString m_sKeyImageText;
    static QString m_sAppExeFolder;
    static QString m_sAppExeDshellFolder;
    static QString m_sKadrelShellProcess;
    static QString m_sScsImportProcess;
    // Project, module and data file extensions and file-dialog filters
    static QString m_sProjectFilesExt;
    static QString m_sProjectFilesFilter;
    static QString m_sProjectSaveAs;
    static QString m_sConcatenateFilesExt;
    static QString m_sConcatenateFilesFilter;
    static QString m_sModuleCylFilesExt;
    static QString m_sModuleCylFilesFilter;
    static QString m_sModuleMglFilesExt;
    static QString m_sModuleMglFilesFilter;
    static QString m_sCaricoFilesExt;
    static QString m_sCaricoFilesFilter;
    static QString m_sScaricoFilesExt;
    static QString m_sScaricoFilesFilter;
    static QString m_sScsFilesExt;
    static QString m_sFreeModeFilesExt;
    static QString m_sFreeModeFilesFilter;
    static QString m_sFreeModeCodePrefix;
    static QString m_sLogFilesExt;
    static QString m_sDevDisFilesExt;
    static QString m_sKD5DISFilesExt;
    static QString m_sSockFilesExt;
    static QString m_sScoFilesExt;
    static QString m_sScnFilesExt;
    static QString m_sPskFilesExt;
    static QString m_sCodeFilesExt;
    static QString m_sCodeFilesXmlExt;
    static QString m_sCorrFilesExt;
    static QString m_sCodeCnFilesExt;
    static QString m_sLockFilesExt;
    static QString m_sImageFilesExt;
    static QString m_sPrefixProjectDoc;
    static QString m_sPrefixModuleDoc;
    // Machine files, folders of the machine and project trees
    static QString m_sMachineConfigFile;
    static QString m_sMachineHelpFile;
    static QString m_sMacCodingDataFile;
    static QString m_sMachineFilesExt;
    static QString m_sMachineFilesXmlExt;
    static QString m_sMachineFilesLangPostfix;
    static QString m_sMachineFilesMsg;
    static QString m_sMachineFilesMsgExt;
    static QString m_sMachineFilesBinExt;
    static QString m_sMachineDataFolder;
    static QString m_sMachineResourceFolder;
    static QString m_sMachineResCmdIcoFolder;
    static QString m_sMachineResMglMapFolder;
    static QString m_sMachineHelpFolder;
    static QString m_sMachineCodeFolder;
    static QString m_sMachineCodeDisFolder;
    static QString m_sMachineCodeCodFolder;
    static QString m_sProjectsDefFolder;
    static QString m_sRepositoryDefFolder;
    static QString m_sProjectLinkDefFolder;
    static QString m_sProjectArchFolder;
    static QString m_sProjectArchAppend;
    // Folders and files of the sibling design application
    static QString m_sMachineKd5Dir;
    static QString m_sMachineKd5ChainDir;
    static QString m_sMachineKd5CodDir;
    static QString m_sMachineKd5DisDir;
    static QString m_sMachineKd5DisegniDir;
    static QString m_sMachineKd5DisegniDevDir;
    static QString m_sMachineKd5DisegniDbgDir;
    static QString m_sMachineKd5CarcolMgl;
    static QString m_sMachineKd5CarcolDevDis;
    static QString m_sMachineKd5CarcolDevDbg;
    static QString m_sMachineKd5CarcolKadrel;
    static QString m_sMachineKd5DisCfgName;
    static QString m_sMachineKd5MachCodeName;
    // Keywords, delimiters, fonts and name rules
    static QString m_sScsZoneKeyword;
    static QString m_sScsVersKeyword;
    static QString m_sXmlAttributeTrue;
    static QString m_sXmlAttributeFalse;
    static QChar m_sXmlParamDelimiter;
    static QString m_sCmdStripBlendFont;
    static QString m_sCmdStripBlendEndVal;
    static QString m_sInvalidChars;
    static QString m_sFileNameInvalidChars;
    static int m_nFileNameMaxChars;
    static int m_nProjNameMaxLength;
    // Numbers of the editors and the user interface
    static int m_nPlanesMax;
    static int m_nPlanesProject;
    static int m_nColorsMax;
    static int m_nMglPntMax;
    static int m_nPatternRowsDef;
    static int m_nStitchViewMinZoomLevel;
    static int m_nCmdIconMinZoomLevel;
    static float m_nCmdIconMinZoomFactor;
    static int m_nCmdPlaneMinZoomLevel;
    static int m_nSkelIconMinZoomLevel;
    static int m_nScsIconMinZoomLevel;
    static double m_nCmdStripFontFactor;
    static double m_nOpacityOne;
    static double m_nOpacityHalf;
    static int m_nButtonBlinkTime;
    static int m_nMachineCodeEnvIdent;
    static int m_nProjDcoUId;
    // Highlight colours
    static QColor m_colorHighLightLine;
    static QColor m_colorHighLightStep;
    static QColor m_colorHighLightRows;
    static QColor m_colorHighLightScheme;
    static QColor m_colorHighLightSkel;
    static QColor m_colorHighLightScs;
    static QColor m_colorStripSCS;
    // Versions and build dates
    static unsigned int m_uProductSoftwareVersion;
    static unsigned int m_uProductSoftwareBuild;
    static unsigned int m_uNodrixSoftwareVersion;
    static unsigned int m_uNdxExtSoftwareVersion;
    static unsigned int m_uNdxDocSoftwareVersion;
    static unsigned int m_uNdxMacSoftwareVersion;
    static unsigned int m_uNdxAutSoftwareVersion;
    static unsigned int m_uNdxCodSoftwareVersion;
    static unsigned int m_uNdxComSoftwareVersion;
    static unsigned int m_uNdxImgSoftwareVersion;
    static unsigned int m_uNdxLibSoftwareVersion;
    static unsigned int m_uToolsSoftwareVersion;
    static unsigned int m_uNodrixAppVersion;
    static QString m_sProductSoftwareMMR;
    static QString m_sProductSoftwareMMRB;
    static QString m_sProduct_SoftwareVersion;
    static QString m_sProductDate;
    static QString m_sNodrixDate;
    static QString m_sNdxExtDate;
    static QString m_sNdxDocDate;
    static QString m_sNdxMacDate;
    static QString m_sNdxAutDate;
    static QString m_sNdxCodDate;
    static QString m_sNdxComDate;
    static QString m_sNdxImgDate;
    static QString m_sNdxLibDate;
    static QString m_sToolsDate;

    // Languages, palette and translatable names
    static int m_eLanguageApp;
    static QString m_sLanguageIT;
    static QString m_sLanguageEN;
    static QString m_sLanguageZH;
    static QString m_sLanguageSZH;
    static QString m_sLanguageES;
    static QStringList m_slLanguages;
    static QVector<unsigned int> m_palettePlaneDefault;
    static QString m_sCylinderPlane;
    static QString m_sBodyKnitPlane;
    static QString m_sBodyMapPlane;
    static QString m_sBodyShapePlane;
    static QString m_sStitchPlane;
    static QString m_sFingerPlane;
    static QString m_sCommandPlane;
    static QStringList m_slModuleOperation;
    static QStringList m_slFili;

    // Run-time options
    static QMdiArea *m_pMdiArea;
    static int m_nFolderUseGauge;
    static int m_nFolderUseDiam;
};

#endif // QNODRIXCOM_H
