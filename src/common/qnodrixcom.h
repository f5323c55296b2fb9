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
    for its meta-object and its translation context "QNodrixCom". Like every
    class of the library it also offers trUtf8(), the Qt 4 name of tr(), under
    Qt 6, where Q_OBJECT no longer declares it.

    An application sets the values the library cannot know once at start-up
    (setNodrixAppVersion(), setLanguageApp(), setProjectsNameOptions(),
    setProjectsFolderOptions(), setMdiArea()) and fills the translated names
    and the palette (intTranslatableStrings(), initPalettePlaneDefault());
    see \ref startup.

    Most names are those of the suite's Qt 4 applications and are kept as
    they are, Italian words and oddities included: the applications call
    them by these names. Where a name says something else than its value,
    the getter's documentation says so (the crossed unloading getters
    caricoFilesFilter() and scaricoFilesExt(), machineFilesExt() and
    machineFilesXmlExt(), intTranslatableStrings(), which initialises rather
    than returns an int).

    The getters of constants return a copy of the member of the same stem
    (m_sProjectFilesExt behind projectFilesExt()); the value given with each
    getter is its default. Only refLanguages() and palettePlaneDefault()
    return references.

    \headerfile qnodrixcom.h <QNodrixCom>
*/
class NDXCOM_EXPORT QNodrixCom : public QObject
{
    Q_OBJECT
    NDXCOM_TR_FUNCTIONS

public:
    /*!
        The languages of the suite in the order of refLanguages() and of the
        translation catalogues: an index into the language list, and the
        number setLanguageApp() expects.

        This is not the numbering the settings keep: "Settings"/"Language"
        holds a QNodrixRegistry::eLanguageType (0 it, 1 en, 2 es, 6 zh,
        7 szh), which language() turns into a code. The two numberings agree
        only for Italian and English; convert through the code, never by
        number. The Chinese and Spanish values lack the leading "e" of the
        others, as they always did.
    */
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

    //! The kinds of undo command of the design editors; the library itself
    //! records none.
    enum eUndoCmdType {
        eCmdUndLayer = 0 //!< An edit of one layer (plane) of the design.
    };
    Q_ENUM(eUndoCmdType)

    //! Indexes the module-operation names of moduleAssocOperation();
    //! deliberately not registered with the meta-object. The int underlying
    //! type makes every int a valid value, so a caller's out-of-range number
    //! is a defined (empty) lookup.
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

    //! Makes an object, which has nothing of its own: every member is static.
    QNodrixCom();
    //! Destroys the object; the static state stays as it is.
    ~QNodrixCom() override;

    //! \name Identity, resources and processes
    //! The resource paths name resources the application provides (see
    //! \ref resources); the library ships none.
    //! @{

    //! The application's name: "Nodrix".
    static QString applicationName();
    //! The name of the user interface: "Nodrix".
    static QString nodrixInterface();
    //! The machine brand: "Tavolix".
    static QString nodrixBrand();
    //! The resource path of the product icon:
    //! ":/resources/Resources/Nodrix.png".
    static QString nodrixIcon();
    //! The resource folder of the application's icons: ":/resources/Resources/".
    static QString pathGlobalIcon();
    //! The resource folder of the command icons: ":/cmdico/Resources/cmdico/".
    static QString pathCmdIcon();
    //! The resource path of the "more commands" icon:
    //! ":/resources/Resources/moreCommands.png".
    static QString moreCommandsIcon();
    //! The key under which an image keeps its description text: "Description".
    static QString keyImageText();
    //! The programs' folder below the installation folder: "/bin".
    static QString appExeFolder();
    //! The shell's folder below the installation folder: "/dshell".
    static QString appExeDshellFolder();
    //! The program name of the shell process: "KaDrShell.exe".
    static QString kadrelShellProcess();
    //! The program name of the size-control import process: "DecoNodrix.exe".
    static QString scsImportProcess();
    //! @}

    //! \name File extensions and file-dialog filters
    //! Extensions start with their dot, filters are "*" and the extension.
    //! @{

    //! The project file extension: ".ndx".
    static QString projectFilesExt();
    //! The file-dialog filter of projects: "*.ndx".
    static QString projectFilesFilter();
    //! The extension of concatenation files: ".pcn".
    static QString concatenateFilesExt();
    //! The filter of concatenation files: "*.pcn".
    static QString concatenateFilesFilter();
    //! The extension of cylinder modules: ".pmc".
    static QString moduleCylFilesExt();
    //! The filter of cylinder modules: "*.pmc".
    static QString moduleCylFilesFilter();
    //! The extension of stitch ("maglia") modules: ".pmm".
    static QString moduleMglFilesExt();
    //! The filter of stitch modules: "*.pmm".
    static QString moduleMglFilesFilter();
    //! The extension of loading ("carico") sequences: ".pca".
    static QString caricoFilesExt();
    //! ".psc", the extension of unloading sequences, despite the name.
    //!
    //! The unloading ("scarico") getters are crossed on purpose: applications
    //! depend on caricoFilesFilter() being ".psc" and scaricoFilesExt()
    //! "*.psc". The loading filter "*.pca" has no getter.
    static QString caricoFilesFilter();
    //! "*.psc", the filter of unloading sequences, despite the name; see
    //! caricoFilesFilter().
    static QString scaricoFilesExt();
    //! The filter of unloading ("scarico") sequences: "*.psc".
    static QString scaricoFilesFilter();
    //! The extension of size-control files: ".sc".
    static QString scsFilesExt();
    //! The extension of free-mode files: ".pfm".
    static QString freeModeFilesExt();
    //! The filter of free-mode files: "*.pfm".
    static QString freeModeFilesFilter();
    //! The prefix of free-mode code names: empty.
    static QString freeModeCodePrefix();
    //! The extension of log files: ".log".
    static QString logFilesExt();
    //! The extension of development design files: ".dis".
    static QString devDisFilesExt();
    //! The extension of the sibling design application's design files: ".dis".
    static QString kd5DISFilesExt();
    //! The extension of sock files: ".sok".
    static QString sockFilesExt();
    //! The extension of ".sco" files: ".sco".
    static QString scoFilesExt();
    //! The extension of ".scn" files: ".scn".
    static QString scnFilesExt();
    //! The extension of ".psk" files: ".psk".
    static QString pskFilesExt();
    //! The extension of machine code files: ".xc".
    static QString codeFilesExt();
    //! The extension of machine code files in XML: ".xml".
    static QString codeFilesXmlExt();
    //! The extension of correction files: ".cor".
    static QString corrFilesExt();
    //! The extension of CN code files: ".cn".
    static QString codeCnFilesExt();
    //! The extension of project lock files: ".~lock". QFileSharing uses a
    //! constant text of its own with the same value.
    static QString lockFilesExt();
    //! The extension of image files: ".png".
    static QString imageFilesExt();
    //! The name prefix of proposed projects: "Prg" (Prg1.ndx, ...).
    static QString prefixProjectDoc();
    //! The name prefix of proposed modules: "Mod" (Mod1.pmc, ...).
    static QString prefixModuleDoc();
    //! @}

    //! \name Machine files, folders of the machine and project trees
    //! Folder names carry the separators the applications join them with.
    //! @{

    //! The machine configuration file: "Macchina.dax".
    static QString machineConfigFile();
    //! The machine's help index: "HelpMac.ini" (read by QNodrixHelp).
    static QString machineHelpFile();
    //! The machine's coding data file: "coding.xml".
    static QString machineCodingDataFile();
    //! ".xml", the extension of the machine's plain files.
    //!
    //! Named against their contents on purpose: machineFilesExt() is ".xml",
    //! machineFilesXmlExt() is ".dax".
    static QString machineFilesExt();
    //! ".dax", the extension of the machine's XML data files; see
    //! machineFilesExt().
    static QString machineFilesXmlExt();
    //! The ending of the machine's language files: "Lang.xml".
    static QString machineFilesLangPostfix();
    //! The infix of the machine's message files: "_msg_".
    static QString machineFilesMsg();
    //! The extension of the machine's message files: ".ini".
    static QString machineFilesMsgExt();
    //! The extension of the machine's binary files: ".dat".
    static QString machineFilesBinExt();
    //! The data folder below the machine folder: "/_mac/".
    static QString machineDataFolder();
    //! The resource folder below the machine folder: "/_res/".
    static QString machineResourceFolder();
    //! The command-icon folder below the resource folder: "CmdIco/".
    static QString machineResCmdIcoFolder();
    //! The stitch-map folder below the resource folder: "MglMap/".
    static QString machineResMglMapFolder();
    //! The help folder below the machine folder: "/help/" (read by QNodrixHelp).
    static QString machineHelpFolder();
    //! The code folder of the machine: "Code" (see machineCodeFolderSl() and
    //! its siblings for the forms with separators).
    static QString machineCodeFolder();
    //! The design-code folder: "Dis".
    static QString machineCodeDisFolder();
    //! The compiled-code folder: "Cod".
    static QString machineCodeCodFolder();
    //! The default name of the projects folder: "Projects".
    static QString projectsDefFolder();
    //! The default name of the repository folder: "Repository".
    static QString repositoryDefFolder();
    //! The default name of the project-link folder: "LinkProjects".
    static QString projectLinkDefFolder();
    //! The archive folder of projects: "/arch-ndx".
    static QString projectArchFolder();
    //! What an archived project's name gets appended: "_arch".
    static QString projectArchAppend();
    //! @}

    //! \name Folders and files of the sibling design application
    //! Fixed Windows paths of the design application the suite hands its
    //! designs to; they are texts only, nothing is looked up on disk.
    //! @{

    //! Its installation folder: "C:/KARTA5/ZR5-VX3K_Nodrix".
    static QString machineKd5Dir();
    //! Its chain folder: "Chain".
    static QString machineKd5ChainDir();
    //! Its code folder: "Cod".
    static QString machineKd5CodDir();
    //! Its design folder: "Dis".
    static QString machineKd5DisDir();
    //! The suite's drawings below its folder: "/Nodrix".
    static QString machineKd5DisegniDir();
    //! The development drawings: "/Nodrix/DisDev".
    static QString machineKd5DisegniDevDir();
    //! The debugging drawings: "/Nodrix/DisDbg".
    static QString machineKd5DisegniDbgDir();
    //! Its Carcol file of stitches ("maglia"): "/Carcol/Vx3KMaglia.cen".
    static QString machineKd5CarcolMgl();
    //! Its Carcol file of development designs: "/Carcol/Vx3KDevDis.cen".
    static QString machineKd5CarcolDevDis();
    //! Its Carcol file of debugging designs: "/Carcol/Vx3KDevDbg.cen".
    static QString machineKd5CarcolDevDbg();
    //! Its Carcol file of the shell: "/Carcol/ZR5-VX3K_Nodrix.cen".
    static QString machineKd5CarcolKadrel();
    //! The design configuration name, "Ndr.cfg ": eight characters, the
    //! trailing blank belongs to the name.
    static QString machineKd5DisCfgName();
    //! The machine's code name there: "VX3K".
    static QString machineKd5MachCodeName();
    //! @}

    //! \name Keywords, delimiters, fonts and name rules
    //! @{

    //! The keyword of a size-control zone: "ZONA_SCS".
    static QString scsZoneKeyword();
    //! The keyword of a size-control version: "VERSIONE_SCS".
    static QString scsVersKeyword();
    //! The text of a true XML attribute: "true".
    static QString xmlTrue();
    //! The text of a false XML attribute: "false".
    static QString xmlFalse();
    //! The delimiter of parameters in XML texts: '%'.
    static QChar xmlParamDelimiter();
    //! The font of the command strip's blend: "Courier New".
    static QString cmdStripBlendFont();
    //! The end mark of a blend value on the command strip: " < " (blank,
    //! less-than, blank).
    static QString cmdStripBlendEndVal();
    //! The characters no project or module name may hold: "@ ,;'!?" (seven
    //! characters, the second a blank). The machine's own forbidden
    //! characters are another set, given with setProjectsNameOptions().
    static QString namesInvalidChars();
    //! The longest project name: 256.
    static int projectNameMaxLength();
    //! @}

    //! \name Numbers of the editors and the user interface
    //! @{

    //! The maximum number of design planes: 1.
    static int planesMax();
    //! The number of planes of a project: 1.
    static int planesProject();
    //! The maximum number of colours: 256.
    static int colorsMax();
    //! The maximum number of stitch points: 256.
    static int mglPntMax();
    //! The default number of pattern rows: 240.
    static int patternRowsDef();
    //! The minimum zoom level of the stitch view: 25.
    static int stitchViewMinZoomLevel();
    //! The minimum zoom level of the command icons: 6.
    static int cmdIconMinZoomLevel();
    //! The minimum zoom factor of the command icons: 6.0.
    static float cmdIconMinZoomFactor();
    //! The minimum zoom level of the command plane: 12.
    static int cmdPlaneMinZoomLevel();
    //! The minimum zoom level of the skeleton icons: 8.
    static int skelIconMinZoomLevel();
    //! The minimum zoom level of the size-control icons: 8.
    static int scsIconMinZoomLevel();
    //! The font factor of the command strip: 1.0.
    static double cmdStripFontFactor();
    //! Full opacity: 1.0.
    static double opacityOne();
    //! Half opacity: 0.5.
    static double opacityHalf();
    //! The blinking period of buttons in milliseconds: 500.
    static int buttonBlinkTime();
    //! The environment identifier of machine code: 2.
    static int machineCodeEnvIdent();
    //! @}

    //! \name Highlight colours
    //! Red, green, blue and alpha of each colour.
    //! @{

    //! The highlighted line: 255, 199, 60, 122.
    static QColor colorHighLightLine();
    //! The highlighted step: 60, 199, 255, 122.
    static QColor colorHighLightStep();
    //! The highlighted rows: 60, 199, 255, 122.
    static QColor colorHighLightRows();
    //! The highlighted scheme: 255, 202, 202, 122.
    static QColor colorHighLightScheme();
    //! The highlighted skeleton: 160, 250, 250, 122.
    static QColor colorHighLightSkel();
    //! The highlighted size-control zone: 128, 255, 128, 122.
    static QColor colorHighLightScs();
    //! The size-control strip: 128, 0, 128, 255.
    static QColor colorStripSCS();
    //! @}

    //! A new document id. Each call increments the document counter and
    //! returns the new value: 1 for the first call after loading, then 2,
    //! 3, ...; after INT_MAX comes INT_MIN (32-bit wrap). Not thread-safe;
    //! meant for the GUI thread.
    static int projDocUId();

    //! \name Versions and build dates
    //! A version word holds one field a byte, the major number in the top
    //! byte: 0x01020000 is 1.2.0. Build dates are texts as "17/1/2022".
    //! @{

    //! The product's version word: 0x01020000 (1.2.0).
    static unsigned int productSoftwareVersion();
    //! The product's build number: 87551.
    static unsigned int productSoftwareBuild();
    //! The product version as text: "1.2.0".
    static QString productSoftwareMMR(); // "1.2.0"
    //! The product version with its build number: "1.2.0.87551".
    static QString productSoftwareMMRB(); // "1.2.0.87551"
    //! The same text as productSoftwareMMRB(): "1.2.0.87551".
    static QString productSoftware(); // "1.2.0.87551"
    //! The product's build date: "17/1/2022".
    static QString productDate();
    //! The version word of the suite's main library: 0x01020000.
    static unsigned int nodrixSoftwareVersion();
    //! The build date of the suite's main library: "17/1/2022".
    static QString nodrixDate();

    //! The version word of a suite library by its key ("Nodrix", "NdxExt",
    //! "NdxDoc", "NdxMac", "NdxAut", "NdxCod", "NdxCom", "NdxImg", "NdxLib",
    //! "Tools"; exact, case-sensitive). An unknown key gives 0.
    static unsigned int getNdxVersion(QString sLibrary);
    //! The build date of a suite library by its key, as getNdxVersion()
    //! takes it. An unknown key gives a null string.
    static QString getNdxDate(QString sLibrary);

    //! Packs a dotted text right-aligned: the last field lands in bits 0-7,
    //! the one before in bits 8-15, ...; each field keeps its low eight bits,
    //! a fifth field from the end wraps back onto bits 0-7 (OR-ed). Fields
    //! that are not numbers count as 0. "1.2.0" gives 0x00010200.
    static unsigned int versionMMRNumber(QString sVersion);
    //! 1, 0 or -1 comparing the right-aligned packings (versionMMRNumber())
    //! as unsigned numbers.
    static int compareVersionMMR(QString sFirst, QString sSecond);
    //! Records the application's version left-aligned and additively: field i
    //! (of the first four) is added shifted by 8 * (3 - i), so "1.2.0" gives
    //! 0x01020000 and an oversized field carries into the one above. Call it
    //! once at start-up.
    static void setNodrixAppVersion(QString sVersion);
    //! The application's version word as setNodrixAppVersion() recorded it.
    //! The one non-static getter; it still only reads static state (0 until
    //! setNodrixAppVersion has been called).
    unsigned int getNodrixAppVersion();
    //! @}

    //! \name Project and module names
    //! @{

    //! Whether the name holds one of namesInvalidChars() ("@ ,;'!?", the
    //! blank included); case-sensitive. An empty name holds none.
    static bool projectNameContainsInvalidChars(QString sName);
    //! Whether the name leaves Latin-1: any character above U+00FF, and also a
    //! genuine '?', since the test is a Latin-1 conversion that turns what it
    //! cannot encode into '?'. Accented western letters pass; "" passes.
    static bool projectNameHasIllegalLanguage(QString sName);
    //! Appends ".ndx" unless the name already ends in it, compared
    //! case-sensitively: "A.NDX" becomes "A.NDX.ndx".
    static void makeCompliantProjectName(QString &sName);
    //! Appends ".pmc" unless the name already ends in it, compared
    //! case-sensitively. Modules always get the cylinder-module extension.
    static void makeCompliantModuleName(QString &sName);
    //! The file-name part: everything after the last '/' (and, on Windows,
    //! a backslash); "" for a text that ends in a separator.
    static QString strippedName(const QString &sFullFileName);

    //! Proposes a project name nobody uses yet and stores it in sName; returns
    //! a copy. The candidates are "", Prg1.ndx, Prg2.ndx, ... and the first one
    //! is taken for which "<folder>/<candidate>" does not exist and no window
    //! of the MDI area (setMdiArea) is titled with it. \<folder\> is the
    //! projects folder of the settings, followed directly (no separator) by
    //! "<gauge>-GG/<diameter>-DIAM" when both folder options are set and the
    //! folder does not already contain that text. A window title counts
    //! through its file-name part with every "[*]" removed.
    //!
    //! So an existing projects folder makes the first proposal Prg1.ndx (the
    //! empty candidate names the folder itself), and a missing folder with no
    //! window titled "" or "[*]" gives "". With no projects folder set, the
    //! empty candidate names "/". The settings are read once and the window
    //! titles gathered once per proposal; the search is a loop, so any number
    //! of taken names is fine. No MDI area (null) means no windows.
    //! Numbers stop at 2147483647: should every smaller one be taken,
    //! Prg2147483647.ndx is returned without being tested.
    static QString makeNewProjectName(QString &sName);
    //! The same for modules in sFolder, without the window check: "",
    //! Mod1.pmc, Mod2.pmc, ..., the first for which "<sFolder>/<candidate>"
    //! does not exist. A missing folder gives "". Numbers stop at 2147483647
    //! here too.
    static QString makeNewModuleName(QString &sName, QString sFolder);

    //! The save-as dialog of projects: Qt's save dialog with the filter
    //! "Nodrix progetti (*.ndx)", the caller's parent and caption, and the
    //! file-name part of sFileName offered as the name. A name typed without
    //! an extension gets ".ndx".
    //!
    //! It opens in the projects folder of the settings (backslashes read as
    //! '/') or, when both folder options are set, in its
    //! "/<gauge>-GG/<diameter>-DIAM" subfolder: a folder that already holds
    //! "/<gauge>-GG" is cut after it, unless it also holds the diameter part.
    //! A missing folder is created; if that fails the dialog opens in the
    //! projects folder. A relative folder is read from the working directory.
    //!
    //! A name longer than the machine's maximum (setProjectsNameOptions; 0 is
    //! no limit, and a negative maximum refuses every name) shows the length
    //! advisory and the dialog again. Each of the machine's forbidden
    //! characters found in the name shows the invalid-character advisory once;
    //! the name is accepted all the same. Unless bAllowSameName, choosing the
    //! incoming sFileName again shows the dialog again without a word. Each new
    //! run of the dialog opens where the first did.
    //!
    //! Returns true with the chosen path in sFileName, or false with sFileName
    //! empty when the user cancels. See \ref saving.
    static bool getSaveAsFileName(QWidget *pParent, QString sCaption, QString &sFileName,
                                  bool bAllowSameName);
    //! @}

    /*!
        \name Needle and degree geometry

        Pure 32-bit integer functions: products wrap modulo 2^32 (computed
        without signed overflow), divisions truncate toward zero, remainders
        take the sign of the dividend. With bTruncate false the angle-to-needle
        conversions answer only 0 or 1; that mode is kept as the applications
        know it.

        A needle count of 0 describes no machine: degreeFromNeedle and
        degree10FromNeedle answer 0 instead of dividing by it, and so they do
        for INT_MIN, whose tenfold wraps to 0. The
        normalisations leave both references unchanged for a count of 0 or
        below instead of folding for ever. Negative counts otherwise follow the
        same arithmetic.
    */
    //! @{

    //! The needle at nDegree degrees on a cylinder of nNeedles needles:
    //! 10 * nDegree * nNeedles / 3600 with bTruncate (90 degrees of 1680
    //! needles give 420). Without it the answer is only 1, when the quotient
    //! plus the remainder of ten times the product by 3600 reaches 5, or 0.
    static int needleFromDegree(int nDegree, int nNeedles, bool bTruncate);
    //! The same as needleFromDegree() for an angle in tenths of a degree:
    //! nDegree10 * nNeedles / 3600 with bTruncate, 0 or 1 without it.
    static int needleFromDegree10(int nDegree10, int nNeedles, bool bTruncate);
    //! The angle in degrees of needle nNeedle: 3600 * nNeedle / (10 *
    //! nNeedles). Without bTruncate, 1 is added when the remainder of
    //! 3600 * nNeedle by nNeedles reaches 5. A count of 0 gives 0.
    static int degreeFromNeedle(int nNeedle, int nNeedles, bool bTruncate);
    //! The angle in tenths of a degree of needle nNeedle: 36000 * nNeedle /
    //! (10 * nNeedles), with the rounding of degreeFromNeedle() when
    //! bTruncate is false. A count of 0 gives 0.
    static int degree10FromNeedle(int nNeedle, int nNeedles, bool bTruncate);
    //! Folds a needle that ran off either end back into 0 .. nNeedles - 1,
    //! moving nLine by nLineStep per fold (in constant time, with the same
    //! 32-bit wrap as one addition per fold); then, if nLines is not 0, clamps
    //! to the last needle of the last line or to needle 0 of line 0.
    static void normaNeedleLine(int &nNeedle, int &nLine, int nNeedles, int nLineStep, int nLines);
    //! The same for nNeedle + nOffset. Note the order: the offset comes
    //! before the needle count.
    static void normaNeedleLineOfs(int &nNeedle, int &nLine, int nOffset, int nNeedles,
                                   int nLineStep, int nLines);
    //! Folds tenths of a degree into 0 .. 3599, one step per turn. A negative
    //! angle with no step left to borrow is mirrored (-100 becomes 100), not
    //! wrapped; callers rely on it.
    static void normaDegree10Step(int &nDegree10, int &nStep);
    //! nMin if below it, else nMax if above it, else nValue (lower bound first).
    static int normaValueInRange(int nValue, int nMin, int nMax);
    //! As normaValueInRange, but 0 (no value set) gives nDefault.
    static int normaValueInRangePos(int nValue, int nMin, int nMax, int nDefault);
    //! @}

    /*!
        \name Machine folders and configuration paths

        The separator is always '/'. The variants join a '/' to a folder name
        at every call: Sl on the left, Sr on the right, SlSr on both sides.
        machineKd5DisDirStSr() is the both-sides form under the name the
        applications know; the sibling application's root has only the Sr form.
    */
    //! @{

    //! "/Code"
    static QString machineCodeFolderSl(); // "/Code"
    //! "Code/"
    static QString machineCodeFolderSr(); // "Code/"
    //! "/Code/"
    static QString machineCodeFolderSlSr(); // "/Code/"
    //! "/Dis"
    static QString machineCodeDisFolderSl();
    //! "Dis/"
    static QString machineCodeDisFolderSr();
    //! "/Dis/"
    static QString machineCodeDisFolderSlSr();
    //! "/Cod"
    static QString machineCodeCodFolderSl();
    //! "Cod/"
    static QString machineCodeCodFolderSr();
    //! "/Cod/"
    static QString machineCodeCodFolderSlSr();
    //! "C:/KARTA5/ZR5-VX3K_Nodrix/"
    static QString machineKd5DirSr(); // "C:/KARTA5/ZR5-VX3K_Nodrix/"
    //! "/Chain"
    static QString machineKd5ChainDirSl();
    //! "Chain/"
    static QString machineKd5ChainDirSr();
    //! "/Chain/"
    static QString machineKd5ChainDirSlSr();
    //! "/Cod"
    static QString machineKd5CodDirSl();
    //! "Cod/"
    static QString machineKd5CodDirSr();
    //! "/Cod/"
    static QString machineKd5CodDirSlSr();
    //! "/Dis"
    static QString machineKd5DisDirSl();
    //! "Dis/"
    static QString machineKd5DisDirSr();
    //! "/Dis/": the both-sides form, named St instead of Sl.
    static QString machineKd5DisDirStSr(); // "/Dis/"
    //! "<gauge>-GG/<diameter>-DIAM" in plain decimal (a minus sign is kept),
    //! with no separator at either end: 14 and 13 give "14-GG/13-DIAM".
    static QString makeGaugeDiamSubDir(int nGauge, int nDiameter);
    //! Makes sBasePath (backslashes turned into '/') end in
    //! "/<sCfgFolder>/<gauge>-GG/<diameter>-DIAM". The parts are looked for as
    //! case-sensitive substrings: a base without "/<sCfgFolder>" gets all three
    //! appended; a base that holds all three, anywhere and in any order, comes
    //! back unchanged; otherwise the base is cut before the first
    //! "/<sCfgFolder>" and the three are appended. Nothing is created on disk.
    static QString makeConfigGaugeDiamPath(QString sBasePath, QString sCfgFolder, int nGauge,
                                           int nDiameter);
    //! @}

    //! \name Languages, plane palette and translatable names
    //! See \ref translations.
    //! @{

    //! The code of the language number kept in the settings
    //! (QNodrixRegistry::keyLanguage(), a QNodrixRegistry::eLanguageType):
    //! 0 "it", 2 "es", 6 "zh", 7 "szh", every other number (-1, nothing
    //! stored, included) "en". Reads the settings at every call.
    static QString language();
    //! Element 0 of refLanguages() ("it"), so edits through the reference
    //! show here; an element the list no longer has reads as an empty string.
    static QString languageIt();
    //! Element 1 of refLanguages() ("en"); empty when the list is shorter.
    static QString languageEn();
    //! Element 2 of refLanguages() ("zh"); empty when the list is shorter.
    static QString languageZh();
    //! Element 3 of refLanguages() ("szh"); empty when the list is shorter.
    static QString languageSzh();
    //! Element 4 of refLanguages() ("es"); empty when the list is shorter.
    static QString languageEs();
    //! Builds the 256 default colours of the design planes: 0 opaque black,
    //! 255 opaque white, and in between 0xFFDEDE00 + index, so the blue channel
    //! names the index. Calling it again rebuilds the same table. Call it once
    //! at start-up, before the first plane is drawn.
    static void initPalettePlaneDefault();
    //! The default plane palette, 0xAARRGGBB words, by reference.
    //! Empty until initPalettePlaneDefault() has been called.
    static QVector<unsigned int> &palettePlaneDefault();
    //! Translates the plane names, the module operations and the yarn labels
    //! with the translators installed at the time of the call. The two lists
    //! are appended to, never cleared: a second call adds a second set behind
    //! the first and the lookups keep answering from the first.
    //!
    //! "int" stands for "init", as the Qt 4 applications spelled it; the
    //! function returns nothing. Call it once, after installing the
    //! translators; an application that changes language restarts.
    static void intTranslatableStrings();
    //! "Piano cilindro" translated.
    //! Empty until intTranslatableStrings() has been called.
    static QString nameCylinderPlane();
    //! "Piano BodyKnit" translated; empty before intTranslatableStrings().
    static QString nameBodyKnitPlane();
    //! "Piano BodyMap" translated; empty before intTranslatableStrings().
    static QString nameBodyMapPlane();
    //! "Piano BodyShape" translated; empty before intTranslatableStrings().
    static QString nameBodyShapePlane();
    //! "Piano maglia" translated; empty before intTranslatableStrings().
    static QString nameStitchPlane();
    //! "Piano guidafili" translated; empty before intTranslatableStrings().
    static QString nameFingerPlane();
    //! "Piano comandi" translated; empty before intTranslatableStrings().
    static QString nameCommandPlane();
    //! The name of a module operation; an operation the list does not hold
    //! (before intTranslatableStrings(), or out of range) gives an empty
    //! string.
    static QString moduleAssocOperation(enModuleAssocOperation operation);
    //! "0 Fili", "1 Filo", "2 Fili", "3 Fili" translated; an empty string for
    //! a negative count or one the list does not hold.
    static QString stringFili(int yarns);
    //! @}

    //! \name Run-time options set by the application
    //! See \ref startup.
    //! @{

    //! The application's language as setLanguageApp() recorded it, an
    //! enLanguages value: eLanguage_en (1) until then. The library itself
    //! does not read it; language() reads the settings.
    static int languageApp();
    //! Records the application's language, an enLanguages value (not a
    //! QNodrixRegistry::eLanguageType). Any int is kept unchecked.
    static void setLanguageApp(const int &language);
    //! The language codes "it", "en", "zh", "szh", "es" in the order of
    //! enLanguages, by reference: edits show in languageIt() and its
    //! siblings.
    static QStringList &refLanguages();
    //! The MDI area whose windows count as taken project names; not owned.
    //! An area that is destroyed while in use is forgotten (as if null).
    static void setMdiArea(QMdiArea *pMdiArea);
    //! Whether projects are filed in gauge and diameter subfolders (0: not by
    //! that quantity); the subfolders are used only when both are non-zero.
    //! The numbers are the machine's gauge and diameter, as
    //! makeGaugeDiamSubDir() writes them.
    static void setProjectsFolderOptions(int nGauge, int nDiameter);
    //! The machine's rules for the names chosen in getSaveAsFileName():
    //! nMaxChars is the longest name (0 no limit, a negative number refuses
    //! every name), sInvalidChars the characters that draw an advisory.
    //! Both are 0 and empty until set.
    static void setProjectsNameOptions(int nMaxChars, QString sInvalidChars);
    //! @}

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
    // Project, module and data file extensions and file-dialog filters
    static QString m_sProjectFilesExt; //!< Behind projectFilesExt().
    static QString m_sProjectFilesFilter; //!< Behind projectFilesFilter().
    static QString m_sProjectSaveAs; //!< The save dialog's filter, "Nodrix progetti (*.ndx)"; read
                                     //!< by getSaveAsFileName().
    static QString m_sConcatenateFilesExt; //!< Behind concatenateFilesExt().
    static QString m_sConcatenateFilesFilter; //!< Behind concatenateFilesFilter().
    static QString m_sModuleCylFilesExt; //!< Behind moduleCylFilesExt().
    static QString m_sModuleCylFilesFilter; //!< Behind moduleCylFilesFilter().
    static QString m_sModuleMglFilesExt; //!< Behind moduleMglFilesExt().
    static QString m_sModuleMglFilesFilter; //!< Behind moduleMglFilesFilter().
    static QString m_sCaricoFilesExt; //!< Behind caricoFilesExt().
    static QString
        m_sCaricoFilesFilter; //!< "*.pca", the loading filter; no getter (see caricoFilesFilter()).
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
    // Machine files, folders of the machine and project trees
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
    // Folders and files of the sibling design application
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
    // Keywords, delimiters, fonts and name rules
    static QString m_sScsZoneKeyword; //!< Behind scsZoneKeyword().
    static QString m_sScsVersKeyword; //!< Behind scsVersKeyword().
    static QString m_sXmlAttributeTrue; //!< Behind xmlTrue().
    static QString m_sXmlAttributeFalse; //!< Behind xmlFalse().
    static QChar m_sXmlParamDelimiter; //!< Behind xmlParamDelimiter().
    static QString m_sCmdStripBlendFont; //!< Behind cmdStripBlendFont().
    static QString m_sCmdStripBlendEndVal; //!< Behind cmdStripBlendEndVal().
    static QString m_sInvalidChars; //!< Behind namesInvalidChars().
    static QString
        m_sFileNameInvalidChars; //!< The machine's forbidden characters; setProjectsNameOptions().
    static int
        m_nFileNameMaxChars; //!< The machine's longest name, 0 no limit; setProjectsNameOptions().
    static int m_nProjNameMaxLength; //!< Behind projectNameMaxLength().
    // Numbers of the editors and the user interface
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
    // Highlight colours
    static QColor m_colorHighLightLine; //!< Behind colorHighLightLine().
    static QColor m_colorHighLightStep; //!< Behind colorHighLightStep().
    static QColor m_colorHighLightRows; //!< Behind colorHighLightRows().
    static QColor m_colorHighLightScheme; //!< Behind colorHighLightScheme().
    static QColor m_colorHighLightSkel; //!< Behind colorHighLightSkel().
    static QColor m_colorHighLightScs; //!< Behind colorHighLightScs().
    static QColor m_colorStripSCS; //!< Behind colorStripSCS().
    // Versions and build dates
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
    static unsigned int
        m_uNodrixAppVersion; //!< Behind getNodrixAppVersion(); setNodrixAppVersion().
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

    // Languages, palette and translatable names
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
    static QStringList
        m_slModuleOperation; //!< Behind moduleAssocOperation(); intTranslatableStrings().
    static QStringList m_slFili; //!< Behind stringFili(); intTranslatableStrings().

    // Run-time options
    static QMdiArea *m_pMdiArea; //!< The MDI area of setMdiArea(); not owned.
    static int m_nFolderUseGauge; //!< The gauge of setProjectsFolderOptions().
    static int m_nFolderUseDiam; //!< The diameter of setProjectsFolderOptions().
};

#endif // QNODRIXCOM_H
