#ifndef QNODRIXREGISTRY_H
#define QNODRIXREGISTRY_H

#include "ndxcom_export.h"
#include "ndxcom_global.h"

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QPoint>
#include <QtCore/QSettings>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QStringList>

/*!
    The persistent settings of the Nodrix suite.

    The object wraps the application store: a QSettings built with the
    organization and application names the running application has set on
    QCoreApplication, native format (an INI file under the XDG config folder
    on Linux), user scope. Every value has a fixed group, key and default:

    - "Settings": GridColor, Language, NodrixEnvMsg, LastMachine;
    - "SettingsRecent": ShowOverview;
    - "Machines/" + last machine + "/Settings": the machine folders and the
      three folder lists;
    - "Machines/" + last machine + "/SettingsRecent": the last configuration,
      diameter, gauge, needle count and browser mode;
    - "Machines/" + last machine + "/MainWindow" and
      "Machines/" + last machine + "/Recent File List";
    - "Environment": the debugging switches, read only.

    Every group and key is listed in \ref settings.

    The machine groups are built from "Settings"/"LastMachine" at every call,
    so changing the last machine moves every later machine read and write,
    also those of objects that already exist. With no last machine the group
    is "Machines//Settings", which QSettings stores as "Machines/Settings".

    Nothing is cached: every getter reads the store and every setter writes it
    (QSettings decides when the file is written back). An object's getters
    first sync its store with the file, so what another process wrote is seen
    at the next call. No operation reports an error; a missing key gives the
    default, a value of another kind gives what QVariant's conversion makes of
    it, and a file that cannot be written leaves the change in memory only.

    The static functions open a store of their own on each call, so they work
    without an object and from any thread that may use QSettings. An object
    must not be used from two threads at once.

    Like every class of the library it also offers trUtf8(), the Qt 4 name of
    tr(), under Qt 6, where Q_OBJECT no longer declares it.

    \headerfile qnodrixregistry.h <QNodrixRegistry>
*/
class NDXCOM_EXPORT QNodrixRegistry : public QObject
{
    Q_OBJECT
    NDXCOM_TR_FUNCTIONS

public:
    //! The language number kept under "Settings"/"Language". The type is an
    //! int, so any number can be stored and read back; QNodrixCom::language()
    //! answers "en" for every number that has no code of its own.
    //!
    //! These are the numbers the suite's Qt 4 installations wrote, with gaps
    //! (3 to 5 were never used); they are not QNodrixCom::enLanguages, whose
    //! Chinese is 2 and Spanish 4. Go from one numbering to the other through
    //! the language code.
    enum eLanguageType : int {
        eLanguageType_Unset = -1, //!< Nothing stored yet; reads as "en".
        eLanguageType_it = 0, //!< Italian, "it".
        eLanguageType_en = 1, //!< English, "en".
        eLanguageType_es = 2, //!< Spanish, "es".
        eLanguageType_zh = 6, //!< Chinese, "zh".
        eLanguageType_szh = 7 //!< Simplified Chinese, "szh".
    };
    // Deliberately not Q_ENUM: the class's meta-object holds no enumerations
    // of its own (QNodrixCom's two are the library's registered ones).

    //! Opens the application store: the organization and application names
    //! the running application has set on QCoreApplication, native format,
    //! user scope. Set those names before making the first object.
    explicit QNodrixRegistry(QObject *parent = nullptr);
    //! Closes the store; QSettings writes what is pending back to the file.
    ~QNodrixRegistry() override;

    //! \name "Settings"
    //! @{

    //! "GridColor": the colour of the editors' grid; 3 when missing.
    int getGridColor(); // 3 when missing
    //! Stores "GridColor".
    void setGridColor(int nColor);
    //! "Language", a number of eLanguageType; eLanguageType_Unset (-1) when
    //! missing. A number outside the enumeration is returned as stored.
    eLanguageType getLanguage(); // eLanguageType_Unset (-1) when missing
    //! Stores "Language" as an int.
    void setLanguage(eLanguageType eLanguage);
    //! Stores "NodrixEnvMsg".
    //! Written for the platform tools; this class never reads it back.
    void setNodrixEnvMsg(const QString &sMsg);
    //! "LastMachine", the machine whose group every machine value uses;
    //! empty when missing.
    QString getLastMachine(); // empty when missing
    //! Stores "LastMachine": every later machine read and write, of every
    //! object, goes to the group of sMachine.
    void setLastMachine(const QString &sMachine);
    //! @}

    //! \name "SettingsRecent"
    //! @{

    //! "ShowOverview": whether the overview is shown; false when missing.
    bool getShowOverview(); // false when missing
    //! Stores "ShowOverview".
    void setShowOverview(bool bShow);
    //! @}

    //! \name "Machines/" + last machine + "/Settings"
    //! The folders of the last machine. The getters without a stated default
    //! give an empty string when the key is missing.
    //! @{

    //! "MachineName": the machine's name as the platform store knows it;
    //! empty when missing.
    QString getMachineName(); // empty when missing
    //! Stores "MachineName".
    void setMachineName(const QString &sName);
    //! "MachinePath": the machine folder; QDir::currentPath() at the time of
    //! the call when missing.
    QString getMachinePath(); // QDir::currentPath() at the time of the call when missing
    //! Stores "MachinePath".
    void setMachinePath(const QString &sPath);
    //! "ProjectsPath": the projects folder, where QNodrixCom proposes and
    //! saves new projects.
    QString getProjectsPath();
    //! Stores "ProjectsPath".
    void setProjectsPath(const QString &sPath);
    //! "RepositoryPath": the repository folder.
    QString getRepositoryPath();
    //! Stores "RepositoryPath".
    void setRepositoryPath(const QString &sPath);
    //! "ProjectLinkPath": the folder of project links.
    QString getProjectLinkPath();
    //! Stores "ProjectLinkPath".
    void setProjectLinkPath(const QString &sPath);
    //! "HddPath": the folder of the machine's disk; QDir::homePath() when
    //! missing.
    QString getHddPath(); // QDir::homePath() when missing
    //! Stores "HddPath".
    void setHddPath(const QString &sPath);
    //! "UsbPath": the folder of removable media; QDir::homePath() when
    //! missing. The same value as the static usbPath().
    QString getUsbPath(); // QDir::homePath() when missing
    //! Stores "UsbPath", as updateUsbPath() does.
    void setUsbPath(const QString &sPath);
    //! "ExportBmpPath": the folder images were last exported to.
    QString getExportBmpPath();
    //! Stores "ExportBmpPath".
    void setExportBmpPath(const QString &sPath);
    //! "ImportBmpPath": the folder images were last imported from.
    QString getImportBmpPath();
    //! Stores "ImportBmpPath".
    void setImportBmpPath(const QString &sPath);
    //! @}

    //! \name "Machines/" + last machine + "/SettingsRecent"
    //! Diameter, gauge and needle count are kept as the text they were
    //! written with. The text getters give an empty string when the key is
    //! missing.
    //! @{

    //! "LastCfg": the last configuration chosen.
    QString getLastCfg();
    //! Stores "LastCfg".
    void setLastCfg(const QString &sCfg);
    //! "LastDiametro": the last diameter, as text.
    QString getLastDiametro();
    //! Stores "LastDiametro".
    void setLastDiametro(const QString &sDiametro);
    //! "LastGauge": the last gauge, as text.
    QString getLastGauge();
    //! Stores "LastGauge".
    void setLastGauge(const QString &sGauge);
    //! "LastNeedles": the last needle count, as text.
    QString getLastNeedles();
    //! Stores "LastNeedles".
    void setLastNeedles(const QString &sNeedles);
    //! "LastBrowserMode": the last mode of the project browser; 1 when
    //! missing.
    int getLastBrowserMode(); // 1 when missing
    //! Stores "LastBrowserMode".
    void setLastBrowserMode(int nMode);
    //! @}

    //! \name Platform store
    //! QSettings(SystemScope, "Corvala S.p.A.", "NodrixEnv"), written by the
    //! platform's installer and only read here.
    //! @{

    //! The installed platform version:
    //! "InstallVersion" at the top level; empty when missing.
    QString getNodrixEnvVersInst();
    //! The platform version the machine needs:
    //! "Machines/<getMachineName()>/VersionEnv"; the machine group is found
    //! among the children of "Machines" by exact, case-sensitive name. Empty
    //! when the name is empty or unknown there, or the key is missing.
    QString getNodrixEnvVersNeeded();
    //! @}

    //! \name Window placement: "Machines/" + last machine + "/MainWindow"
    //! @{

    //! Writes "pos", "size", "state" and "maximize", in this order.
    void saveMainWndPlacement(const QPoint &pos, const QSize &size, const QByteArray &state,
                              bool maximize);
    //! Reads "pos", "size" and "state" with the caller's current values as
    //! defaults and overwrites them with the result (a missing key leaves the
    //! variable as it was, a value of another kind converts as QVariant does);
    //! returns "maximize", true when missing. A null pointer skips its value.
    bool loadMainWndPlacement(QPoint *pos, QSize *size, QByteArray *state);
    //! @}

    //! \name Recent project files
    //! "Machines/" + last machine + "/Recent File List", key
    //! "recentFileList". Only existing files whose name ends in
    //! QNodrixCom::projectFilesExt() (case-sensitive) are kept, on writing
    //! and again on reading; order and duplicates are kept, there is no limit.
    //! @{

    //! Stores the kept entries of files; the caller's list is not changed.
    void saveRecentFileList(const QStringList &files);
    //! Reads the list and keeps its entries as saveRecentFileList() does.
    //! Replaces the whole content of *files; a null pointer does nothing.
    void loadRecentFileList(QStringList *files);
    //! @}

    //! \name Folder lists: "Machines/" + last machine + "/Settings"
    //! Entries that do not exist are dropped on writing and again on
    //! reading; the caller's list is not changed.
    //! @{

    //! Stores "ProjectsPathList".
    void setProjectsPathList(const QStringList &paths);
    //! "ProjectsPathList": the projects folders used; empty when missing.
    QStringList getProjectsPathList();
    //! Stores "RepositoryPathList".
    void setRepositoryPathList(const QStringList &paths);
    //! "RepositoryPathList": the repository folders used; empty when missing.
    QStringList getRepositoryPathList();
    //! Stores "ProjectLinkPathList".
    void setProjectLinkPathList(const QStringList &paths);
    //! "ProjectLinkPathList": the project-link folders used; empty when
    //! missing.
    QStringList getProjectLinkPathList();
    //! @}

    //! \name Static readers
    //! Each opens one application store of its own, so no object is needed.
    //! @{

    //! "Settings"/"LastMachine"; empty when missing.
    static QString lastMachine();
    //! The last machine's "MachinePath"; QDir::currentPath() when missing.
    static QString machinePath(); // QDir::currentPath() when missing
    //! The last machine's "UsbPath"; QDir::homePath() when missing.
    static QString usbPath(); // QDir::homePath() when missing
    //! Stores the last machine's "UsbPath".
    static void updateUsbPath(QString sPath);
    //! "Settings"/"Language" as getLanguage() reads it; -1 when missing.
    static eLanguageType keyLanguage(); // -1 when missing
    //! @}

    //! \name Environment flags
    //! Group "Environment", read only; a missing flag is off. The flags
    //! switch debugging aids and special behaviours of the applications;
    //! what each one does is the applications' business. Two keys differ
    //! from the function names and are kept so:
    //! environmentEnblUpdateFileMacLang() reads "EnblUpdateMacLang" and
    //! environmentEnblPlaneCmdShowColorId() reads "EnblPlaneCmdColorId".
    //! @{

    //! "EnblHelpInfo": show help numbers (read by QNodrixHelp); false when missing.
    static bool environmentEnblHelpInfo();
    //! "EnblZentar"; false when missing.
    static bool environmentEnblZentar();
    //! "EnblDebugInfo"; false when missing.
    static bool environmentEnblDebugInfo();
    //! "EnblDebugDrums"; false when missing.
    static bool environmentEnblDebugDrums();
    //! "EnblPyrelDbgDev"; false when missing.
    static bool environmentEnblPyrelDbgDev();
    //! "SimulScsAcquire"; false when missing.
    static bool environmentSimulScsAcquire();
    //! "EnblResizeShowErr"; false when missing.
    static bool environmentEnblResizeShowErr();
    //! "EnblSeleStitchView"; false when missing.
    static bool environmentEnblSeleStitchView();
    //! "EnblStitchViewSpecial"; false when missing.
    static bool environmentEnblStitchViewSpecial();
    //! "StitchZoomLevel", a number; 0 when missing.
    static int environmentStitchZoomLevel(); // 0 when missing
    //! "EnblGaugeForDebug"; false when missing.
    static bool environmentEnblGaugeForDebug();
    //! "EnblPlaneGuiShowMov"; false when missing.
    static bool environmentEnblPlaneGuiShowMov();
    //! "EnblUpdateMacLang" (no "File" in the key); false when missing.
    static bool environmentEnblUpdateFileMacLang();
    //! "EnblBrowserExpand"; false when missing.
    static bool environmentEnblBrowserExpand();
    //! "DsblGuiMapView"; false when missing.
    static bool environmentDsblGuiMapView(); // the one switch that turns something off
    //! "EnblPlaneCmdColorId" (no "Show" in the key); false when missing.
    static bool environmentEnblPlaneCmdShowColorId();
    //! Always true; reads no store.
    static bool environmentEnblCadVar();
    //! @}

private:
    // Built at every call from the stored last machine.
    QString groupMachine(); // "Machines/" + last machine + "/"
    QString groupMachineSettings(); // groupMachine() + "Settings"
    QString groupMachineSettingsRecent(); // groupMachine() + "SettingsRecent"

protected:
    //! The object's application store; every instance operation goes through it.
    QSettings m_settings;
};

#endif // QNODRIXREGISTRY_H
