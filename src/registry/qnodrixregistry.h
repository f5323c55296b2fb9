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

    \list
    \li "Settings": GridColor, Language, NodrixEnvMsg, LastMachine;
    \li "SettingsRecent": ShowOverview;
    \li "Machines/" + last machine + "/Settings": the machine folders and the
        three folder lists;
    \li "Machines/" + last machine + "/SettingsRecent": the last configuration,
        diameter, gauge, needle count and browser mode;
    \li "Machines/" + last machine + "/MainWindow" and
        "Machines/" + last machine + "/Recent File List";
    \li "Environment": the debugging switches, read only.
    \endlist

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
*/
class NDXCOM_EXPORT QNodrixRegistry : public QObject
{
    Q_OBJECT
    NDXCOM_TR_FUNCTIONS

public:
    // The language number kept under "Settings"/"Language". The type is an
    // int, so any number can be stored and read back; QNodrixCom::language()
    // answers "en" for every number that has no code of its own.
    enum eLanguageType : int {
        eLanguageType_Unset = -1, // nothing stored yet
        eLanguageType_it = 0,
        eLanguageType_en = 1,
        eLanguageType_es = 2,
        eLanguageType_zh = 6,
        eLanguageType_szh = 7
    };
    // Deliberately not Q_ENUM: the class's meta-object holds no enumerations
    // of its own (QNodrixCom's two are the library's registered ones).

    explicit QNodrixRegistry(QObject *parent = nullptr);
    ~QNodrixRegistry() override;

    // ---------------------------------------------------------------------
    // "Settings"
    // ---------------------------------------------------------------------
    int getGridColor(); // 3 when missing
    void setGridColor(int nColor);
    eLanguageType getLanguage(); // eLanguageType_Unset (-1) when missing
    void setLanguage(eLanguageType eLanguage);
    // Written for the platform tools; this class never reads it back.
    void setNodrixEnvMsg(const QString &sMsg);
    QString getLastMachine(); // empty when missing
    void setLastMachine(const QString &sMachine);

    // ---------------------------------------------------------------------
    // "SettingsRecent"
    // ---------------------------------------------------------------------
    bool getShowOverview(); // false when missing
    void setShowOverview(bool bShow);

    // ---------------------------------------------------------------------
    // "Machines/" + last machine + "/Settings"
    // ---------------------------------------------------------------------
    QString getMachineName(); // empty when missing
    void setMachineName(const QString &sName);
    QString getMachinePath(); // QDir::currentPath() at the time of the call when missing
    void setMachinePath(const QString &sPath);
    QString getProjectsPath();
    void setProjectsPath(const QString &sPath);
    QString getRepositoryPath();
    void setRepositoryPath(const QString &sPath);
    QString getProjectLinkPath();
    void setProjectLinkPath(const QString &sPath);
    QString getHddPath(); // QDir::homePath() when missing
    void setHddPath(const QString &sPath);
    QString getUsbPath(); // QDir::homePath() when missing
    void setUsbPath(const QString &sPath);
    QString getExportBmpPath();
    void setExportBmpPath(const QString &sPath);
    QString getImportBmpPath();
    void setImportBmpPath(const QString &sPath);

    // ---------------------------------------------------------------------
    // "Machines/" + last machine + "/SettingsRecent". Diameter, gauge and
    // needle count are kept as the text they were written with.
    // ---------------------------------------------------------------------
    QString getLastCfg();
    void setLastCfg(const QString &sCfg);
    QString getLastDiametro();
    void setLastDiametro(const QString &sDiametro);
    QString getLastGauge();
    void setLastGauge(const QString &sGauge);
    QString getLastNeedles();
    void setLastNeedles(const QString &sNeedles);
    int getLastBrowserMode(); // 1 when missing
    void setLastBrowserMode(int nMode);

    // ---------------------------------------------------------------------
    // Platform store: QSettings(SystemScope, "Corvala S.p.A.", "NodrixEnv"),
    // written by the platform's installer and only read here.
    // ---------------------------------------------------------------------
    // "InstallVersion" at the top level; empty when missing.
    QString getNodrixEnvVersInst();
    // "Machines/<getMachineName()>/VersionEnv"; the machine group is found
    // among the children of "Machines" by exact, case-sensitive name. Empty
    // when the name is empty or unknown there, or the key is missing.
    QString getNodrixEnvVersNeeded();

    // ---------------------------------------------------------------------
    // Window placement: "Machines/" + last machine + "/MainWindow"
    // ---------------------------------------------------------------------
    // Writes "pos", "size", "state" and "maximize", in this order.
    void saveMainWndPlacement(const QPoint &pos, const QSize &size, const QByteArray &state,
                              bool maximize);
    // Reads "pos", "size" and "state" with the caller's current values as
    // defaults and overwrites them with the result (a missing key leaves the
    // variable as it was, a value of another kind converts as QVariant does);
    // returns "maximize", true when missing. A null pointer skips its value.
    bool loadMainWndPlacement(QPoint *pos, QSize *size, QByteArray *state);

    // ---------------------------------------------------------------------
    // Recent project files: "Machines/" + last machine + "/Recent File List",
    // key "recentFileList". Only existing files whose name ends in
    // QNodrixCom::projectFilesExt() (case-sensitive) are kept, on writing
    // and again on reading; order and duplicates are kept, there is no limit.
    // ---------------------------------------------------------------------
    void saveRecentFileList(const QStringList &files);
    // Replaces the whole content of *files; a null pointer does nothing.
    void loadRecentFileList(QStringList *files);

    // ---------------------------------------------------------------------
    // Folder lists: "Machines/" + last machine + "/Settings". Entries that do
    // not exist are dropped on writing and again on reading.
    // ---------------------------------------------------------------------
    void setProjectsPathList(const QStringList &paths);
    QStringList getProjectsPathList();
    void setRepositoryPathList(const QStringList &paths);
    QStringList getRepositoryPathList();
    void setProjectLinkPathList(const QStringList &paths);
    QStringList getProjectLinkPathList();

    // ---------------------------------------------------------------------
    // Static readers: each opens one application store of its own.
    // ---------------------------------------------------------------------
    static QString lastMachine();
    static QString machinePath(); // QDir::currentPath() when missing
    static QString usbPath(); // QDir::homePath() when missing
    static void updateUsbPath(QString sPath);
    static eLanguageType keyLanguage(); // -1 when missing

    // ---------------------------------------------------------------------
    // Environment flags: group "Environment", read only; a missing flag is
    // off. Two keys differ from the function names and are kept so:
    // environmentEnblUpdateFileMacLang() reads "EnblUpdateMacLang" and
    // environmentEnblPlaneCmdShowColorId() reads "EnblPlaneCmdColorId".
    // ---------------------------------------------------------------------
    static bool environmentEnblHelpInfo();
    static bool environmentEnblZentar();
    static bool environmentEnblDebugInfo();
    static bool environmentEnblDebugDrums();
    static bool environmentEnblPyrelDbgDev();
    static bool environmentSimulScsAcquire();
    static bool environmentEnblResizeShowErr();
    static bool environmentEnblSeleStitchView();
    static bool environmentEnblStitchViewSpecial();
    static int environmentStitchZoomLevel(); // 0 when missing
    static bool environmentEnblGaugeForDebug();
    static bool environmentEnblPlaneGuiShowMov();
    static bool environmentEnblUpdateFileMacLang();
    static bool environmentEnblBrowserExpand();
    static bool environmentDsblGuiMapView(); // the one switch that turns something off
    static bool environmentEnblPlaneCmdShowColorId();
    // Always true; reads no store.
    static bool environmentEnblCadVar();

private:
    // Built at every call from the stored last machine.
    QString groupMachine(); // "Machines/" + last machine + "/"
    QString groupMachineSettings(); // groupMachine() + "Settings"
    QString groupMachineSettingsRecent(); // groupMachine() + "SettingsRecent"

protected:
    // The object's application store; every instance operation goes through it.
    QSettings m_settings;
};

#endif // QNODRIXREGISTRY_H
