#include "qnodrixregistry.h"
#include "qnodrixregistry_p.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

using namespace NdxComRegistry;

Q_LOGGING_CATEGORY(lcNdxComRegistry, "ndxcom.registry", QtCriticalMsg)

namespace NdxComRegistry {

void syncStore(QSettings &store)
{
    store.sync();
    if (store.status() == QSettings::NoError || !lcNdxComRegistry().isWarningEnabled())
        return;
    const QString file = store.fileName();
    if (store.status() == QSettings::FormatError) {
        qCWarning(lcNdxComRegistry)
            << "settings store not read:" << file << "is not in the settings format";
        return;
    }
    // QSettings says no more than "access error": look at what stands there.
    const QFileInfo info(file);
    const QFileInfo folder(info.absolutePath());
    QString why;
    if (info.exists() && !info.isFile())
        why = QStringLiteral("not a regular file");
    else if (info.exists() && !info.isWritable())
        why = QStringLiteral("the file is read-only");
    else if (!folder.isDir())
        why = QStringLiteral("its folder does not exist and cannot be made");
    else if (!folder.isWritable())
        why = QStringLiteral("its folder is read-only");
    else
        why = QStringLiteral("it could not be written (disk full, or its lock is held)");
    qCWarning(lcNdxComRegistry) << "settings store not written:" << file << qUtf8Printable(why);
}

} // namespace NdxComRegistry

// The store is default-constructed: it is the application store of whichever
// application links the library, named by that application. The library never
// names it itself.
QNodrixRegistry::QNodrixRegistry(QObject *parent)
    : QObject(parent)
    , m_settings()
{ }

QNodrixRegistry::~QNodrixRegistry()
{
    // QSettings would write at its destruction anyway; here a failure is said.
    syncStore(m_settings);
}

// ---------------------------------------------------------------------------
// Group builders. Each reads the last machine again (getLastMachine() syncs
// the store first), so a change of "LastMachine" - through this object,
// another one, a static function or another process - moves every later
// access.
// ---------------------------------------------------------------------------
QString QNodrixRegistry::groupMachine()
{
    return machineGroup(getLastMachine());
}

QString QNodrixRegistry::groupMachineSettings()
{
    return machineSettingsGroup(getLastMachine());
}

QString QNodrixRegistry::groupMachineSettingsRecent()
{
    return machineSettingsRecentGroup(getLastMachine());
}

// ---------------------------------------------------------------------------
// "Settings"
// ---------------------------------------------------------------------------
int QNodrixRegistry::getGridColor()
{
    syncStore(m_settings);
    // The default is kept as the text "3" and converted like a stored value.
    return readValue(m_settings, groupSettings(), QStringLiteral("GridColor"),
                     QVariant(QStringLiteral("3")))
        .toInt();
}

void QNodrixRegistry::setGridColor(int nColor)
{
    writeValue(m_settings, groupSettings(), QStringLiteral("GridColor"), QVariant(nColor));
}

// Every getter goes through here or syncs itself first: the store is brought
// up to date with the file, so a change made by another process is seen at
// the next call, and the machine group follows the last machine as it is now.
QString QNodrixRegistry::getLastMachine()
{
    syncStore(m_settings);
    return storedLastMachine(m_settings);
}

void QNodrixRegistry::setLastMachine(const QString &sMachine)
{
    writeValue(m_settings, groupSettings(), QStringLiteral("LastMachine"), QVariant(sMachine));
}

// ---------------------------------------------------------------------------
// "SettingsRecent"
// ---------------------------------------------------------------------------
bool QNodrixRegistry::getShowOverview()
{
    syncStore(m_settings);
    // An empty text as default converts to false.
    return readValue(m_settings, groupSettingsRecent(), QStringLiteral("ShowOverview"),
                     QVariant(QString()))
        .toBool();
}

void QNodrixRegistry::setShowOverview(bool bShow)
{
    writeValue(m_settings, groupSettingsRecent(), QStringLiteral("ShowOverview"), QVariant(bShow));
}

// ---------------------------------------------------------------------------
// Machine settings. The group is built before beginGroup: building it reads
// "Settings"/"LastMachine" on the same store, which must not be inside another
// group at that moment.
// ---------------------------------------------------------------------------
namespace {
QString readMachineString(QSettings &store, const QString &sGroup, const QString &sKey,
                          const QString &sDefault = QString())
{
    return readValue(store, sGroup, sKey, QVariant(sDefault)).toString();
}
} // namespace

QString QNodrixRegistry::getMachineName()
{
    return readMachineString(m_settings, groupMachineSettings(), QStringLiteral("MachineName"));
}

void QNodrixRegistry::setMachineName(const QString &sName)
{
    writeValue(m_settings, groupMachineSettings(), QStringLiteral("MachineName"), QVariant(sName));
}

QString QNodrixRegistry::getMachinePath()
{
    return readMachineString(m_settings, groupMachineSettings(), QStringLiteral("MachinePath"),
                             QDir::currentPath());
}

void QNodrixRegistry::setMachinePath(const QString &sPath)
{
    writeValue(m_settings, groupMachineSettings(), QStringLiteral("MachinePath"), QVariant(sPath));
}

QString QNodrixRegistry::getProjectsPath()
{
    return readMachineString(m_settings, groupMachineSettings(), QStringLiteral("ProjectsPath"));
}

void QNodrixRegistry::setProjectsPath(const QString &sPath)
{
    writeValue(m_settings, groupMachineSettings(), QStringLiteral("ProjectsPath"), QVariant(sPath));
}

QString QNodrixRegistry::getRepositoryPath()
{
    return readMachineString(m_settings, groupMachineSettings(), QStringLiteral("RepositoryPath"));
}

void QNodrixRegistry::setRepositoryPath(const QString &sPath)
{
    writeValue(m_settings, groupMachineSettings(), QStringLiteral("RepositoryPath"),
               QVariant(sPath));
}

QString QNodrixRegistry::getProjectLinkPath()
{
    return readMachineString(m_settings, groupMachineSettings(), QStringLiteral("ProjectLinkPath"));
}

void QNodrixRegistry::setProjectLinkPath(const QString &sPath)
{
    writeValue(m_settings, groupMachineSettings(), QStringLiteral("ProjectLinkPath"),
               QVariant(sPath));
}

QString QNodrixRegistry::getHddPath()
{
    return readMachineString(m_settings, groupMachineSettings(), QStringLiteral("HddPath"),
                             QDir::homePath());
}

void QNodrixRegistry::setHddPath(const QString &sPath)
{
    writeValue(m_settings, groupMachineSettings(), QStringLiteral("HddPath"), QVariant(sPath));
}

QString QNodrixRegistry::getUsbPath()
{
    return readMachineString(m_settings, groupMachineSettings(), QStringLiteral("UsbPath"),
                             QDir::homePath());
}

void QNodrixRegistry::setUsbPath(const QString &sPath)
{
    writeValue(m_settings, groupMachineSettings(), QStringLiteral("UsbPath"), QVariant(sPath));
}

QString QNodrixRegistry::getExportBmpPath()
{
    return readMachineString(m_settings, groupMachineSettings(), QStringLiteral("ExportBmpPath"));
}

void QNodrixRegistry::setExportBmpPath(const QString &sPath)
{
    writeValue(m_settings, groupMachineSettings(), QStringLiteral("ExportBmpPath"),
               QVariant(sPath));
}

QString QNodrixRegistry::getImportBmpPath()
{
    return readMachineString(m_settings, groupMachineSettings(), QStringLiteral("ImportBmpPath"));
}

void QNodrixRegistry::setImportBmpPath(const QString &sPath)
{
    writeValue(m_settings, groupMachineSettings(), QStringLiteral("ImportBmpPath"),
               QVariant(sPath));
}

// ---------------------------------------------------------------------------
// Machine recent values
// ---------------------------------------------------------------------------
QString QNodrixRegistry::getLastCfg()
{
    return readMachineString(m_settings, groupMachineSettingsRecent(), QStringLiteral("LastCfg"));
}

void QNodrixRegistry::setLastCfg(const QString &sCfg)
{
    writeValue(m_settings, groupMachineSettingsRecent(), QStringLiteral("LastCfg"), QVariant(sCfg));
}

QString QNodrixRegistry::getLastDiametro()
{
    return readMachineString(m_settings, groupMachineSettingsRecent(),
                             QStringLiteral("LastDiametro"));
}

void QNodrixRegistry::setLastDiametro(const QString &sDiametro)
{
    writeValue(m_settings, groupMachineSettingsRecent(), QStringLiteral("LastDiametro"),
               QVariant(sDiametro));
}

QString QNodrixRegistry::getLastGauge()
{
    return readMachineString(m_settings, groupMachineSettingsRecent(), QStringLiteral("LastGauge"));
}

void QNodrixRegistry::setLastGauge(const QString &sGauge)
{
    writeValue(m_settings, groupMachineSettingsRecent(), QStringLiteral("LastGauge"),
               QVariant(sGauge));
}

QString QNodrixRegistry::getLastNeedles()
{
    return readMachineString(m_settings, groupMachineSettingsRecent(),
                             QStringLiteral("LastNeedles"));
}

void QNodrixRegistry::setLastNeedles(const QString &sNeedles)
{
    writeValue(m_settings, groupMachineSettingsRecent(), QStringLiteral("LastNeedles"),
               QVariant(sNeedles));
}

int QNodrixRegistry::getLastBrowserMode()
{
    // The default is kept as the text "1" and converted like a stored value.
    return readValue(m_settings, groupMachineSettingsRecent(), QStringLiteral("LastBrowserMode"),
                     QVariant(QStringLiteral("1")))
        .toInt();
}

void QNodrixRegistry::setLastBrowserMode(int nMode)
{
    writeValue(m_settings, groupMachineSettingsRecent(), QStringLiteral("LastBrowserMode"),
               QVariant(nMode));
}

// ---------------------------------------------------------------------------
// Static readers. One store per call: the last machine is read from the same
// store that then answers, so instance and static functions of one
// application address the same keys.
// ---------------------------------------------------------------------------
QString QNodrixRegistry::lastMachine()
{
    QSettings store;
    return storedLastMachine(store);
}

QString QNodrixRegistry::machinePath()
{
    QSettings store;
    const QString group = machineSettingsGroup(storedLastMachine(store));
    return readMachineString(store, group, QStringLiteral("MachinePath"), QDir::currentPath());
}

QString QNodrixRegistry::usbPath()
{
    QSettings store;
    const QString group = machineSettingsGroup(storedLastMachine(store));
    return readMachineString(store, group, QStringLiteral("UsbPath"), QDir::homePath());
}

void QNodrixRegistry::updateUsbPath(QString sPath)
{
    QSettings store;
    const QString group = machineSettingsGroup(storedLastMachine(store));
    writeValue(store, group, QStringLiteral("UsbPath"), QVariant(sPath));
    syncStore(store);
}
