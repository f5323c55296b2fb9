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
    paths, editor defaults, colours, versions, and the small computations every
    application must agree on (project names, needle geometry, machine paths).

    Every member is static and set when the library is loaded; the application
    sets what the library cannot know at start-up (see \ref startup). The class
    derives from QObject for its translation context "QNodrixCom" and offers
    trUtf8(), the Qt 4 name of tr(), under Qt 6. The names are those of the Qt 4
    applications, Italian words and oddities included; where a name says
    something else than its value, its documentation says so. A getter of a
    constant returns a copy of the protected member of the same stem
    (m_sProjectFilesExt behind projectFilesExt()) with the default given.

    \headerfile qnodrixcom.h <QNodrixCom>
*/
class NDXCOM_EXPORT QNodrixCom : public QObject
{
    Q_OBJECT
    NDXCOM_TR_FUNCTIONS

public:
    //! The languages in the order of refLanguages() and setLanguageApp(); the
    //! settings number them otherwise (convert through the code, see \ref
    //! translations). The Chinese and Spanish values lack the leading "e".
    enum enLanguages {
        eLanguage_Min = 0, //!< The first valid value (Italian).
        eLanguage_it = 0, //!< Italian, "it": the language of the source texts.
        eLanguage_en = 1, //!< English, "en": the default of languageApp().
        Language_zh = 2, //!< Chinese, "zh".
        Language_szh = 3, //!< Simplified Chinese, "szh".
        Language_es = 4, //!< Spanish, "es".
        eLanguage_Max = 5 //!< One past the last language: the number of languages.
    };
    Q_ENUM(enLanguages)

    //! The undo commands of the design editors; the library records none.
    enum eUndoCmdType {
        eCmdUndLayer = 0 //!< An edit of one layer (plane) of the design.
    };
    Q_ENUM(eUndoCmdType)

    //! moduleAssocOperation()'s operations; not a Q_ENUM, and any int is valid.
    enum enModuleAssocOperation : int {
        eModuleAssoc_Insert = 0, //!< "Inserisci Pat"
        eModuleAssoc_Replace, //!< "Sostituisci Pat"
        eModuleAssoc_Modify, //!< "Modifica Pat"
        eModuleAssoc_Copy, //!< "Copia Pat"
        eModuleAssoc_Paste, //!< "Incolla Pat"
        eModuleAssoc_SaveAs, //!< "Salva con Nome Pat"
        eModuleAssoc_Remove, //!< "Rimuovi Pat"
        eModuleAssoc_Show, //!< "Visualizza Pat"
        eModuleAssoc_ReplaceGdf //!< "Sostituisci GDF"
    };

    QNodrixCom(); //!< Makes an object, which has nothing of its own.
    ~QNodrixCom() override; //!< Destroys the object; the static state stays as it is.

    //! \name Identity, resources and processes
    //! The resources are the application's (see \ref resources).
    //! @{
    static QString applicationName(); //!< The application's name: "Nodrix".
    static QString nodrixInterface(); //!< The name of the user interface: "Nodrix".
    static QString nodrixBrand(); //!< The machine brand: "Tavolix".
    static QString nodrixIcon(); //!< The product icon: ":/resources/Resources/Nodrix.png".
    static QString pathGlobalIcon(); //!< The application's icons: ":/resources/Resources/".
    static QString pathCmdIcon(); //!< The command icons: ":/cmdico/Resources/cmdico/".
    //! The "more commands" icon: ":/resources/Resources/moreCommands.png".
    static QString moreCommandsIcon();
    static QString keyImageText(); //!< The key of an image's description text: "Description".
    static QString appExeFolder(); //!< The programs below the installation folder: "/bin".
    static QString appExeDshellFolder(); //!< The shell below the installation folder: "/dshell".
    static QString kadrelShellProcess(); //!< The shell's program: "KaDrShell.exe".
    static QString scsImportProcess(); //!< The size-control import program: "DecoNodrix.exe".
    //! @}

    //! \name File extensions and file-dialog filters
    //! @{
    static QString projectFilesExt(); //!< Projects: ".ndx".
    static QString projectFilesFilter(); //!< Projects: "*.ndx".
    static QString concatenateFilesExt(); //!< Concatenation files: ".pcn".
    static QString concatenateFilesFilter(); //!< Concatenation files: "*.pcn".
    static QString moduleCylFilesExt(); //!< Cylinder modules: ".pmc".
    static QString moduleCylFilesFilter(); //!< Cylinder modules: "*.pmc".
    static QString moduleMglFilesExt(); //!< Stitch ("maglia") modules: ".pmm".
    static QString moduleMglFilesFilter(); //!< Stitch modules: "*.pmm".
    static QString caricoFilesExt(); //!< Loading ("carico") sequences: ".pca".
    //! ".psc", the unloading ("scarico") extension: crossed with scaricoFilesExt()
    //! on purpose, applications depend on it. The loading "*.pca" has no getter.
    static QString caricoFilesFilter();
    static QString scaricoFilesExt(); //!< "*.psc" despite the name; see caricoFilesFilter().
    static QString scaricoFilesFilter(); //!< Unloading ("scarico") sequences: "*.psc".
    static QString scsFilesExt(); //!< Size-control files: ".sc".
    static QString freeModeFilesExt(); //!< Free-mode files: ".pfm".
    static QString freeModeFilesFilter(); //!< Free-mode files: "*.pfm".
    static QString freeModeCodePrefix(); //!< The prefix of free-mode code names: empty.
    static QString logFilesExt(); //!< Log files: ".log".
    static QString devDisFilesExt(); //!< Development design files: ".dis".
    static QString kd5DISFilesExt(); //!< The sibling design application's designs: ".dis".
    static QString sockFilesExt(); //!< Sock files: ".sok".
    static QString scoFilesExt(); //!< ".sco"
    static QString scnFilesExt(); //!< ".scn"
    static QString pskFilesExt(); //!< ".psk"
    static QString codeFilesExt(); //!< Machine code files: ".xc".
    static QString codeFilesXmlExt(); //!< Machine code files in XML: ".xml".
    static QString corrFilesExt(); //!< Correction files: ".cor".
    static QString codeCnFilesExt(); //!< CN code files: ".cn".
    static QString lockFilesExt(); //!< Lock files: ".~lock" (QFileSharing has its own).
    static QString imageFilesExt(); //!< Image files: ".png".
    static QString prefixProjectDoc(); //!< Proposed projects: "Prg" (Prg1.ndx, ...).
    static QString prefixModuleDoc(); //!< Proposed modules: "Mod" (Mod1.pmc, ...).
    //! @}

    //! \name Machine files, folders of the machine and project trees
    //! @{
    static QString machineConfigFile(); //!< The machine configuration: "Macchina.dax".
    static QString machineHelpFile(); //!< The help index: "HelpMac.ini" (see QNodrixHelp).
    static QString machineCodingDataFile(); //!< The coding data: "coding.xml".
    static QString machineFilesExt(); //!< ".xml", the plain files (names crossed on purpose).
    static QString machineFilesXmlExt(); //!< ".dax", the XML data files; see machineFilesExt().
    static QString machineFilesLangPostfix(); //!< The ending of language files: "Lang.xml".
    static QString machineFilesMsg(); //!< The infix of message files: "_msg_".
    static QString machineFilesMsgExt(); //!< Message files: ".ini".
    static QString machineFilesBinExt(); //!< Binary files: ".dat".
    static QString machineDataFolder(); //!< The data folder of a machine: "/_mac/".
    static QString machineResourceFolder(); //!< The resource folder of a machine: "/_res/".
    static QString machineResCmdIcoFolder(); //!< Command icons, in the resources: "CmdIco/".
    static QString machineResMglMapFolder(); //!< Stitch maps, in the resources: "MglMap/".
    static QString machineHelpFolder(); //!< The help folder of a machine: "/help/".
    static QString machineCodeFolder(); //!< The code folder: "Code" (machineCodeFolderSl()...).
    static QString machineCodeDisFolder(); //!< The design-code folder: "Dis".
    static QString machineCodeCodFolder(); //!< The compiled-code folder: "Cod".
    static QString projectsDefFolder(); //!< The default projects folder: "Projects".
    static QString repositoryDefFolder(); //!< The default repository folder: "Repository".
    static QString projectLinkDefFolder(); //!< The default project-link folder: "LinkProjects".
    static QString projectArchFolder(); //!< The archive folder of projects: "/arch-ndx".
    static QString projectArchAppend(); //!< Appended to an archived project's name: "_arch".
    //! @}

    //! \name Folders and files of the sibling design application
    //! Fixed Windows paths as texts; nothing is looked up on disk.
    //! @{
    static QString machineKd5Dir(); //!< Its installation: "C:/KARTA5/ZR5-VX3K_Nodrix".
    static QString machineKd5ChainDir(); //!< "Chain"
    static QString machineKd5CodDir(); //!< "Cod"
    static QString machineKd5DisDir(); //!< "Dis"
    static QString machineKd5DisegniDir(); //!< The suite's drawings: "/Nodrix".
    static QString machineKd5DisegniDevDir(); //!< Development drawings: "/Nodrix/DisDev".
    static QString machineKd5DisegniDbgDir(); //!< Debugging drawings: "/Nodrix/DisDbg".
    static QString machineKd5CarcolMgl(); //!< Stitches: "/Carcol/Vx3KMaglia.cen".
    static QString machineKd5CarcolDevDis(); //!< Development designs: "/Carcol/Vx3KDevDis.cen".
    static QString machineKd5CarcolDevDbg(); //!< Debugging designs: "/Carcol/Vx3KDevDbg.cen".
    static QString machineKd5CarcolKadrel(); //!< The shell: "/Carcol/ZR5-VX3K_Nodrix.cen".
    static QString machineKd5DisCfgName(); //!< "Ndr.cfg ": eight characters, the blank included.
    static QString machineKd5MachCodeName(); //!< The machine's code name there: "VX3K".
    //! @}

    //! \name Keywords, delimiters, fonts and name rules
    //! @{
    static QString scsZoneKeyword(); //!< A size-control zone: "ZONA_SCS".
    static QString scsVersKeyword(); //!< A size-control version: "VERSIONE_SCS".
    static QString xmlTrue(); //!< A true XML attribute: "true".
    static QString xmlFalse(); //!< A false XML attribute: "false".
    static QChar xmlParamDelimiter(); //!< The parameter delimiter of XML texts: '%'.
    static QString cmdStripBlendFont(); //!< The command strip's blend font: "Courier New".
    static QString cmdStripBlendEndVal(); //!< The end of a blend value: " < " (blanks included).
    //! The characters no project or module name may hold: "@ ,;'!?", the second a
    //! blank. The machine's own set is given with setProjectsNameOptions().
    static QString namesInvalidChars();
    static int projectNameMaxLength(); //!< The longest project name: 256.
    //! @}

    //! \name Numbers of the editors and the user interface
    //! @{
    static int planesMax(); //!< The maximum number of design planes: 1.
    static int planesProject(); //!< The planes of a project: 1.
    static int colorsMax(); //!< The maximum number of colours: 256.
    static int mglPntMax(); //!< The maximum number of stitch points: 256.
    static int patternRowsDef(); //!< The default number of pattern rows: 240.
    static int stitchViewMinZoomLevel(); //!< The stitch view's minimum zoom level: 25.
    static int cmdIconMinZoomLevel(); //!< The command icons' minimum zoom level: 6.
    static float cmdIconMinZoomFactor(); //!< The command icons' minimum zoom factor: 6.0.
    static int cmdPlaneMinZoomLevel(); //!< The command plane's minimum zoom level: 12.
    static int skelIconMinZoomLevel(); //!< The skeleton icons' minimum zoom level: 8.
    static int scsIconMinZoomLevel(); //!< The size-control icons' minimum zoom level: 8.
    static double cmdStripFontFactor(); //!< The command strip's font factor: 1.0.
    static double opacityOne(); //!< Full opacity: 1.0.
    static double opacityHalf(); //!< Half opacity: 0.5.
    static int buttonBlinkTime(); //!< The blinking period of buttons, in ms: 500.
    static int machineCodeEnvIdent(); //!< The environment identifier of machine code: 2.
    //! @}

    //! \name Highlight colours
    //! Red, green, blue and alpha.
    //! @{
    static QColor colorHighLightLine(); //!< The highlighted line: 255, 199, 60, 122.
    static QColor colorHighLightStep(); //!< The highlighted step: 60, 199, 255, 122.
    static QColor colorHighLightRows(); //!< The highlighted rows: 60, 199, 255, 122.
    static QColor colorHighLightScheme(); //!< The highlighted scheme: 255, 202, 202, 122.
    static QColor colorHighLightSkel(); //!< The highlighted skeleton: 160, 250, 250, 122.
    static QColor colorHighLightScs(); //!< A highlighted size-control zone: 128, 255, 128, 122.
    static QColor colorStripSCS(); //!< The size-control strip: 128, 0, 128, 255.
    //! @}

    //! A new document id: 1, 2, 3, ..., INT_MAX, INT_MIN, ...; not thread-safe.
    static int projDocUId();

    //! \name Versions and build dates
    //! A version word holds a field a byte, the major number in the top byte
    //! (0x01020000 is 1.2.0). Build dates are texts such as "17/1/2022".
    //! @{
    static unsigned int productSoftwareVersion(); //!< The product's version: 0x01020000.
    static unsigned int productSoftwareBuild(); //!< The product's build number: 87551.
    static QString productSoftwareMMR(); //!< The product version as text: "1.2.0".
    static QString productSoftwareMMRB(); //!< The same with the build number: "1.2.0.87551".
    static QString productSoftware(); //!< The same text as productSoftwareMMRB().
    static QString productDate(); //!< The product's build date: "17/1/2022".
    static unsigned int nodrixSoftwareVersion(); //!< The suite's main library: 0x01020000.
    static QString nodrixDate(); //!< The build date of the suite's main library: "17/1/2022".
    //! The version word of a suite library by its exact key: "Nodrix", "NdxExt", "NdxDoc",
    //! "NdxMac", "NdxAut", "NdxCod", "NdxCom", "NdxImg", "NdxLib", "Tools"; else 0.
    static unsigned int getNdxVersion(QString sLibrary);
    //! The build date of a suite library by the same key; null for an unknown key.
    static QString getNdxDate(QString sLibrary);
    //! Packs a dotted text right-aligned, the last field in bits 0-7: "1.2.0" gives
    //! 0x00010200. A field keeps its low eight bits, a fifth from the end is OR-ed
    //! onto bits 0-7 again, and one that is not a number counts as 0.
    static unsigned int versionMMRNumber(QString sVersion);
    //! 1, 0 or -1, comparing the packings of versionMMRNumber() unsigned.
    static int compareVersionMMR(QString sFirst, QString sSecond);
    //! Records the application's version: field i of the first four is added
    //! shifted by 8 * (3 - i) ("1.2.0" gives 0x01020000; an oversized field carries).
    static void setNodrixAppVersion(QString sVersion);
    //! What setNodrixAppVersion() recorded, 0 until then (not static, as it always was).
    unsigned int getNodrixAppVersion();
    //! @}

    //! \name Project and module names
    //! @{

    //! Whether the name holds a character of namesInvalidChars(); "" holds none.
    static bool projectNameContainsInvalidChars(QString sName);
    //! Whether the name leaves Latin-1 (a character above U+00FF, or a genuine '?': the
    //! test converts to Latin-1, which writes '?' for the rest); accented letters pass.
    static bool projectNameHasIllegalLanguage(QString sName);
    //! Appends ".ndx" unless the name ends in it, case-sensitively ("A.NDX" gets it).
    static void makeCompliantProjectName(QString &sName);
    //! Appends ".pmc" (the cylinder modules') unless the name ends in it, case-sensitively.
    static void makeCompliantModuleName(QString &sName);
    //! The file-name part: what follows the last '/' (or, on Windows, a backslash).
    static QString strippedName(const QString &sFullFileName);
    //! Proposes a free project name, stored in sName and returned: the first of "",
    //! Prg1.ndx, ... not in the projects folder nor a window's title (see \ref saving).
    static QString makeNewProjectName(QString &sName);
    //! The same for "", Mod1.pmc, ... in sFolder, without windows (see \ref saving).
    static QString makeNewModuleName(QString &sName, QString sFolder);
    //! The save-as dialog of projects (see \ref saving): true with the chosen
    //! path in sFileName, false with it empty on cancel. Unless bAllowSameName,
    //! choosing the incoming name again shows the dialog again.
    static bool getSaveAsFileName(QWidget *pParent, QString sCaption, QString &sFileName,
                                  bool bAllowSameName);
    //! @}

    //! \name Needle and degree geometry
    //! 32-bit integer arithmetic: products wrap modulo 2^32 (without signed
    //! overflow), divisions truncate, remainders take the dividend's sign.
    //! Without bTruncate the angle-to-needle conversions answer only 0 or 1,
    //! as the applications know it. A needle count of 0 (or INT_MIN, whose
    //! tenfold wraps to 0) gives 0 degrees, and the normalisations leave both
    //! references unchanged for a count of 0 or below.
    //! @{

    //! The needle at nDegree degrees of nNeedles: 10 * nDegree * nNeedles /
    //! 3600 (90 degrees of 1680 needles give 420); without bTruncate 1 when
    //! the quotient plus the remainder of that division reaches 5, else 0.
    static int needleFromDegree(int nDegree, int nNeedles, bool bTruncate);
    //! The same for tenths of a degree: nDegree10 * nNeedles / 3600.
    static int needleFromDegree10(int nDegree10, int nNeedles, bool bTruncate);
    //! The angle of needle nNeedle in degrees, 3600 * nNeedle / (10 * nNeedles),
    //! plus 1 without bTruncate when 3600 * nNeedle % nNeedles reaches 5.
    static int degreeFromNeedle(int nNeedle, int nNeedles, bool bTruncate);
    //! The same in tenths of a degree: 36000 * nNeedle / (10 * nNeedles).
    static int degree10FromNeedle(int nNeedle, int nNeedles, bool bTruncate);
    //! Folds a needle into 0 .. nNeedles - 1, moving nLine by nLineStep a fold (in
    //! constant time, wrapping as repeated additions would); then, if nLines is not
    //! 0, clamps to the last needle of the last line or to needle 0 of line 0.
    static void normaNeedleLine(int &nNeedle, int &nLine, int nNeedles, int nLineStep, int nLines);
    //! The same for nNeedle + nOffset; the offset comes before the count.
    static void normaNeedleLineOfs(int &nNeedle, int &nLine, int nOffset, int nNeedles,
                                   int nLineStep, int nLines);
    //! Folds tenths of a degree into 0 .. 3599, one step a turn. A negative angle
    //! with no step left to borrow is mirrored (-100 gives 100); callers rely on it.
    static void normaDegree10Step(int &nDegree10, int &nStep);
    //! nMin if below it, else nMax if above it, else nValue (lower bound first).
    static int normaValueInRange(int nValue, int nMin, int nMax);
    //! As normaValueInRange(), but 0 (no value set) gives nDefault.
    static int normaValueInRangePos(int nValue, int nMin, int nMax, int nDefault);
    //! @}

    //! \name Machine folders and configuration paths
    //! A '/' joined at every call: Sl on the left, Sr on the right, SlSr (and
    //! machineKd5DisDirStSr(), as the applications name it) on both sides.
    //! @{
    static QString machineCodeFolderSl(); //!< "/Code"
    static QString machineCodeFolderSr(); //!< "Code/"
    static QString machineCodeFolderSlSr(); //!< "/Code/"
    static QString machineCodeDisFolderSl(); //!< "/Dis"
    static QString machineCodeDisFolderSr(); //!< "Dis/"
    static QString machineCodeDisFolderSlSr(); //!< "/Dis/"
    static QString machineCodeCodFolderSl(); //!< "/Cod"
    static QString machineCodeCodFolderSr(); //!< "Cod/"
    static QString machineCodeCodFolderSlSr(); //!< "/Cod/"
    static QString machineKd5DirSr(); //!< "C:/KARTA5/ZR5-VX3K_Nodrix/", its only form
    static QString machineKd5ChainDirSl(); //!< "/Chain"
    static QString machineKd5ChainDirSr(); //!< "Chain/"
    static QString machineKd5ChainDirSlSr(); //!< "/Chain/"
    static QString machineKd5CodDirSl(); //!< "/Cod"
    static QString machineKd5CodDirSr(); //!< "Cod/"
    static QString machineKd5CodDirSlSr(); //!< "/Cod/"
    static QString machineKd5DisDirSl(); //!< "/Dis"
    static QString machineKd5DisDirSr(); //!< "Dis/"
    static QString machineKd5DisDirStSr(); //!< "/Dis/"
    //! "<gauge>-GG/<diameter>-DIAM", plain decimal: 14 and 13 give "14-GG/13-DIAM".
    static QString makeGaugeDiamSubDir(int nGauge, int nDiameter);
    //! sBasePath (backslashes read as '/') ending in
    //! "/<sCfgFolder>/<gauge>-GG/<diameter>-DIAM". A base that holds the three parts
    //! anywhere (case-sensitively) stays as it is; any other is cut before its first
    //! "/<sCfgFolder>", if any, and gets the three appended. Nothing is created.
    static QString makeConfigGaugeDiamPath(QString sBasePath, QString sCfgFolder, int nGauge,
                                           int nDiameter);
    //! @}

    //! \name Languages, plane palette and translatable names
    //! See \ref translations.
    //! @{

    //! The code of the settings' language (QNodrixRegistry::keyLanguage()), read
    //! at every call: 0 "it", 2 "es", 6 "zh", 7 "szh", any other (or none) "en".
    static QString language();
    //! Element 0 of refLanguages(), "it" unless edited there; "" when the list is
    //! shorter. The four below read elements 1 to 4 likewise.
    static QString languageIt();
    static QString languageEn(); //!< Element 1 of refLanguages() ("en").
    static QString languageZh(); //!< Element 2 of refLanguages() ("zh").
    static QString languageSzh(); //!< Element 3 of refLanguages() ("szh").
    static QString languageEs(); //!< Element 4 of refLanguages() ("es").
    //! Builds the 256 default plane colours (again on each call): 0 opaque black,
    //! 255 opaque white, in between 0xFFDEDE00 + index.
    static void initPalettePlaneDefault();
    //! The plane palette, 0xAARRGGBB, by reference; empty before initPalettePlaneDefault().
    static QVector<unsigned int> &palettePlaneDefault();
    //! Translates the names below with the translators installed now ("int" is "init",
    //! as the Qt 4 applications spelled it). It appends, never clears: a second call adds
    //! a set the lookups never reach. The names are empty until it is called.
    static void intTranslatableStrings();
    static QString nameCylinderPlane(); //!< "Piano cilindro" translated.
    static QString nameBodyKnitPlane(); //!< "Piano BodyKnit" translated.
    static QString nameBodyMapPlane(); //!< "Piano BodyMap" translated.
    static QString nameBodyShapePlane(); //!< "Piano BodyShape" translated.
    static QString nameStitchPlane(); //!< "Piano maglia" translated.
    static QString nameFingerPlane(); //!< "Piano guidafili" translated.
    static QString nameCommandPlane(); //!< "Piano comandi" translated.
    //! The translated name of a module operation; "" for one out of range.
    static QString moduleAssocOperation(enModuleAssocOperation operation);
    //! "0 Fili", "1 Filo", "2 Fili", "3 Fili" translated; "" for another count.
    static QString stringFili(int yarns);
    //! @}

    //! \name Run-time options set by the application
    //! See \ref startup.
    //! @{

    //! What setLanguageApp() recorded, eLanguage_en until then; the library ignores it.
    static int languageApp();
    //! Records the application's language, an enLanguages value, unchecked.
    static void setLanguageApp(const int &language);
    //! The codes "it", "en", "zh", "szh", "es" in enLanguages order, by reference.
    static QStringList &refLanguages();
    //! The MDI area whose window titles are taken names; not owned, forgotten when destroyed.
    static void setMdiArea(QMdiArea *pMdiArea);
    //! The gauge and diameter of the project subfolders, used only when both are not 0.
    static void setProjectsFolderOptions(int nGauge, int nDiameter);
    //! The machine's rules for getSaveAsFileName(): the longest name (0 no limit, negative
    //! refuses all) and the characters that draw an advisory; 0 and "" until set.
    static void setProjectsNameOptions(int nMaxChars, QString sInvalidChars);
    //! @}

private:
    // The proposal loops: nCounter is the next number to try, left one past the
    // last used (INT_MAX once that is handed out).
    static QString iterNewProjectName(QString &sName, int nGauge, int nDiameter, int &nCounter);
    static QString iterNewModuleName(QString &sName, QString sFolder, int &nCounter);
    friend class tst_QNodrixCom_Names; // drives the counter to its limit

protected:
    static QString m_sApplicationName; //!< Behind applicationName().
    static QString m_sNodrixInterface; //!< Behind nodrixInterface().
    static QString m_sNodrixBrand; //!< Behind nodrixBrand().
    static QString m_sNodrixIcon; //!< Behind nodrixIcon().
    static QString m_sPathGlobalIco; //!< Behind pathGlobalIcon().
    static QString m_sPathCmdIco; //!< Behind pathCmdIcon().
    static QString m_sMoreCommandsIcon; //!< Behind moreCommandsIcon().
    static QString m_sKeyImageText; //!< Behind keyImageText().
    static QString m_sAppExeFolder; //!< Behind appExeFolder().
    static QString m_sAppExeDshellFolder; //!< Behind appExeDshellFolder().
    static QString m_sKadrelShellProcess; //!< Behind kadrelShellProcess().
    static QString m_sScsImportProcess; //!< Behind scsImportProcess().
    static QString m_sProjectFilesExt; //!< Behind projectFilesExt().
    static QString m_sProjectFilesFilter; //!< Behind projectFilesFilter().
    static QString m_sProjectSaveAs; //!< The save dialog's filter: "Nodrix progetti (*.ndx)".
    static QString m_sConcatenateFilesExt; //!< Behind concatenateFilesExt().
    static QString m_sConcatenateFilesFilter; //!< Behind concatenateFilesFilter().
    static QString m_sModuleCylFilesExt; //!< Behind moduleCylFilesExt().
    static QString m_sModuleCylFilesFilter; //!< Behind moduleCylFilesFilter().
    static QString m_sModuleMglFilesExt; //!< Behind moduleMglFilesExt().
    static QString m_sModuleMglFilesFilter; //!< Behind moduleMglFilesFilter().
    static QString m_sCaricoFilesExt; //!< Behind caricoFilesExt().
    static QString m_sCaricoFilesFilter; //!< "*.pca", the loading filter; it has no getter.
    static QString m_sScaricoFilesExt; //!< Behind caricoFilesFilter().
    static QString m_sScaricoFilesFilter; //!< Behind scaricoFilesExt() and scaricoFilesFilter().
    static QString m_sScsFilesExt; //!< Behind scsFilesExt().
    static QString m_sFreeModeFilesExt; //!< Behind freeModeFilesExt().
    static QString m_sFreeModeFilesFilter; //!< Behind freeModeFilesFilter().
    static QString m_sFreeModeCodePrefix; //!< Behind freeModeCodePrefix().
    static QString m_sLogFilesExt; //!< Behind logFilesExt().
    static QString m_sDevDisFilesExt; //!< Behind devDisFilesExt().
    static QString m_sKD5DISFilesExt; //!< Behind kd5DISFilesExt().
    static QString m_sSockFilesExt; //!< Behind sockFilesExt().
    static QString m_sScoFilesExt; //!< Behind scoFilesExt().
    static QString m_sScnFilesExt; //!< Behind scnFilesExt().
    static QString m_sPskFilesExt; //!< Behind pskFilesExt().
    static QString m_sCodeFilesExt; //!< Behind codeFilesExt().
    static QString m_sCodeFilesXmlExt; //!< Behind codeFilesXmlExt().
    static QString m_sCorrFilesExt; //!< Behind corrFilesExt().
    static QString m_sCodeCnFilesExt; //!< Behind codeCnFilesExt().
    static QString m_sLockFilesExt; //!< Behind lockFilesExt().
    static QString m_sImageFilesExt; //!< Behind imageFilesExt().
    static QString m_sPrefixProjectDoc; //!< Behind prefixProjectDoc().
    static QString m_sPrefixModuleDoc; //!< Behind prefixModuleDoc().
    static QString m_sMachineConfigFile; //!< Behind machineConfigFile().
    static QString m_sMachineHelpFile; //!< Behind machineHelpFile().
    static QString m_sMacCodingDataFile; //!< Behind machineCodingDataFile().
    static QString m_sMachineFilesExt; //!< Behind machineFilesExt().
    static QString m_sMachineFilesXmlExt; //!< Behind machineFilesXmlExt().
    static QString m_sMachineFilesLangPostfix; //!< Behind machineFilesLangPostfix().
    static QString m_sMachineFilesMsg; //!< Behind machineFilesMsg().
    static QString m_sMachineFilesMsgExt; //!< Behind machineFilesMsgExt().
    static QString m_sMachineFilesBinExt; //!< Behind machineFilesBinExt().
    static QString m_sMachineDataFolder; //!< Behind machineDataFolder().
    static QString m_sMachineResourceFolder; //!< Behind machineResourceFolder().
    static QString m_sMachineResCmdIcoFolder; //!< Behind machineResCmdIcoFolder().
    static QString m_sMachineResMglMapFolder; //!< Behind machineResMglMapFolder().
    static QString m_sMachineHelpFolder; //!< Behind machineHelpFolder().
    static QString m_sMachineCodeFolder; //!< Behind machineCodeFolder().
    static QString m_sMachineCodeDisFolder; //!< Behind machineCodeDisFolder().
    static QString m_sMachineCodeCodFolder; //!< Behind machineCodeCodFolder().
    static QString m_sProjectsDefFolder; //!< Behind projectsDefFolder().
    static QString m_sRepositoryDefFolder; //!< Behind repositoryDefFolder().
    static QString m_sProjectLinkDefFolder; //!< Behind projectLinkDefFolder().
    static QString m_sProjectArchFolder; //!< Behind projectArchFolder().
    static QString m_sProjectArchAppend; //!< Behind projectArchAppend().
    static QString m_sMachineKd5Dir; //!< Behind machineKd5Dir().
    static QString m_sMachineKd5ChainDir; //!< Behind machineKd5ChainDir().
    static QString m_sMachineKd5CodDir; //!< Behind machineKd5CodDir().
    static QString m_sMachineKd5DisDir; //!< Behind machineKd5DisDir().
    static QString m_sMachineKd5DisegniDir; //!< Behind machineKd5DisegniDir().
    static QString m_sMachineKd5DisegniDevDir; //!< Behind machineKd5DisegniDevDir().
    static QString m_sMachineKd5DisegniDbgDir; //!< Behind machineKd5DisegniDbgDir().
    static QString m_sMachineKd5CarcolMgl; //!< Behind machineKd5CarcolMgl().
    static QString m_sMachineKd5CarcolDevDis; //!< Behind machineKd5CarcolDevDis().
    static QString m_sMachineKd5CarcolDevDbg; //!< Behind machineKd5CarcolDevDbg().
    static QString m_sMachineKd5CarcolKadrel; //!< Behind machineKd5CarcolKadrel().
    static QString m_sMachineKd5DisCfgName; //!< Behind machineKd5DisCfgName().
    static QString m_sMachineKd5MachCodeName; //!< Behind machineKd5MachCodeName().
    static QString m_sScsZoneKeyword; //!< Behind scsZoneKeyword().
    static QString m_sScsVersKeyword; //!< Behind scsVersKeyword().
    static QString m_sXmlAttributeTrue; //!< Behind xmlTrue().
    static QString m_sXmlAttributeFalse; //!< Behind xmlFalse().
    static QChar m_sXmlParamDelimiter; //!< Behind xmlParamDelimiter().
    static QString m_sCmdStripBlendFont; //!< Behind cmdStripBlendFont().
    static QString m_sCmdStripBlendEndVal; //!< Behind cmdStripBlendEndVal().
    static QString m_sInvalidChars; //!< Behind namesInvalidChars().
    static QString m_sFileNameInvalidChars; //!< sInvalidChars of setProjectsNameOptions().
    static int m_nFileNameMaxChars; //!< nMaxChars of setProjectsNameOptions().
    static int m_nProjNameMaxLength; //!< Behind projectNameMaxLength().
    static int m_nPlanesMax; //!< Behind planesMax().
    static int m_nPlanesProject; //!< Behind planesProject().
    static int m_nColorsMax; //!< Behind colorsMax().
    static int m_nMglPntMax; //!< Behind mglPntMax().
    static int m_nPatternRowsDef; //!< Behind patternRowsDef().
    static int m_nStitchViewMinZoomLevel; //!< Behind stitchViewMinZoomLevel().
    static int m_nCmdIconMinZoomLevel; //!< Behind cmdIconMinZoomLevel().
    static float m_nCmdIconMinZoomFactor; //!< Behind cmdIconMinZoomFactor().
    static int m_nCmdPlaneMinZoomLevel; //!< Behind cmdPlaneMinZoomLevel().
    static int m_nSkelIconMinZoomLevel; //!< Behind skelIconMinZoomLevel().
    static int m_nScsIconMinZoomLevel; //!< Behind scsIconMinZoomLevel().
    static double m_nCmdStripFontFactor; //!< Behind cmdStripFontFactor().
    static double m_nOpacityOne; //!< Behind opacityOne().
    static double m_nOpacityHalf; //!< Behind opacityHalf().
    static int m_nButtonBlinkTime; //!< Behind buttonBlinkTime().
    static int m_nMachineCodeEnvIdent; //!< Behind machineCodeEnvIdent().
    static int m_nProjDcoUId; //!< The document counter behind projDocUId().
    static QColor m_colorHighLightLine; //!< Behind colorHighLightLine().
    static QColor m_colorHighLightStep; //!< Behind colorHighLightStep().
    static QColor m_colorHighLightRows; //!< Behind colorHighLightRows().
    static QColor m_colorHighLightScheme; //!< Behind colorHighLightScheme().
    static QColor m_colorHighLightSkel; //!< Behind colorHighLightSkel().
    static QColor m_colorHighLightScs; //!< Behind colorHighLightScs().
    static QColor m_colorStripSCS; //!< Behind colorStripSCS().
    static unsigned int m_uProductSoftwareVersion; //!< Behind productSoftwareVersion().
    static unsigned int m_uProductSoftwareBuild; //!< Behind productSoftwareBuild().
    static unsigned int m_uNodrixSoftwareVersion; //!< Behind nodrixSoftwareVersion().
    static unsigned int m_uNdxExtSoftwareVersion; //!< getNdxVersion("NdxExt").
    static unsigned int m_uNdxDocSoftwareVersion; //!< getNdxVersion("NdxDoc").
    static unsigned int m_uNdxMacSoftwareVersion; //!< getNdxVersion("NdxMac").
    static unsigned int m_uNdxAutSoftwareVersion; //!< getNdxVersion("NdxAut").
    static unsigned int m_uNdxCodSoftwareVersion; //!< getNdxVersion("NdxCod").
    static unsigned int m_uNdxComSoftwareVersion; //!< getNdxVersion("NdxCom").
    static unsigned int m_uNdxImgSoftwareVersion; //!< getNdxVersion("NdxImg").
    static unsigned int m_uNdxLibSoftwareVersion; //!< getNdxVersion("NdxLib").
    static unsigned int m_uToolsSoftwareVersion; //!< getNdxVersion("Tools").
    static unsigned int m_uNodrixAppVersion; //!< Behind getNodrixAppVersion().
    static QString m_sProductSoftwareMMR; //!< Behind productSoftwareMMR().
    static QString m_sProductSoftwareMMRB; //!< Behind productSoftwareMMRB().
    static QString m_sProduct_SoftwareVersion; //!< Behind productSoftware().
    static QString m_sProductDate; //!< Behind productDate().
    static QString m_sNodrixDate; //!< Behind nodrixDate().
    static QString m_sNdxExtDate; //!< getNdxDate("NdxExt").
    static QString m_sNdxDocDate; //!< getNdxDate("NdxDoc").
    static QString m_sNdxMacDate; //!< getNdxDate("NdxMac").
    static QString m_sNdxAutDate; //!< getNdxDate("NdxAut").
    static QString m_sNdxCodDate; //!< getNdxDate("NdxCod").
    static QString m_sNdxComDate; //!< getNdxDate("NdxCom").
    static QString m_sNdxImgDate; //!< getNdxDate("NdxImg").
    static QString m_sNdxLibDate; //!< getNdxDate("NdxLib").
    static QString m_sToolsDate; //!< getNdxDate("Tools").
    static int m_eLanguageApp; //!< Behind languageApp(); setLanguageApp().
    static QString m_sLanguageIT; //!< "it", what language() answers for 0.
    static QString m_sLanguageEN; //!< "en", what language() answers for any other number.
    static QString m_sLanguageZH; //!< "zh", what language() answers for 6.
    static QString m_sLanguageSZH; //!< "szh", what language() answers for 7.
    static QString m_sLanguageES; //!< "es", what language() answers for 2.
    static QStringList m_slLanguages; //!< Behind refLanguages().
    static QVector<unsigned int> m_palettePlaneDefault; //!< Behind palettePlaneDefault().
    static QString m_sCylinderPlane; //!< Behind nameCylinderPlane().
    static QString m_sBodyKnitPlane; //!< Behind nameBodyKnitPlane().
    static QString m_sBodyMapPlane; //!< Behind nameBodyMapPlane().
    static QString m_sBodyShapePlane; //!< Behind nameBodyShapePlane().
    static QString m_sStitchPlane; //!< Behind nameStitchPlane().
    static QString m_sFingerPlane; //!< Behind nameFingerPlane().
    static QString m_sCommandPlane; //!< Behind nameCommandPlane().
    static QStringList m_slModuleOperation; //!< Behind moduleAssocOperation().
    static QStringList m_slFili; //!< Behind stringFili(); intTranslatableStrings().
    static QMdiArea *m_pMdiArea; //!< The MDI area of setMdiArea(); not owned.
    static int m_nFolderUseGauge; //!< The gauge of setProjectsFolderOptions().
    static int m_nFolderUseDiam; //!< The diameter of setProjectsFolderOptions().
};

#endif // QNODRIXCOM_H
