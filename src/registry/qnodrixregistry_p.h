#ifndef QNODRIXREGISTRY_P_H
#define QNODRIXREGISTRY_P_H

//
//  W A R N I N G
//  -------------
//
// This file is not part of the NdxCom API. It holds the group and key names
// of the settings store and the few helpers the registry's source files
// share; it may change from one version to the next.
//

#include <QtCore/QLoggingCategory>
#include <QtCore/QSettings>
#include <QtCore/QString>
#include <QtCore/QVariant>

// "ndxcom.registry": a settings store that could not be read or written, with
// its file and what stands in the way. Off unless turned on.
Q_DECLARE_LOGGING_CATEGORY(lcNdxComRegistry)

namespace NdxComRegistry {

// Groups. The machine groups are put together at every call from the stored
// last machine; see machineGroup().
inline QString groupSettings()
{
    return QStringLiteral("Settings");
}
inline QString groupSettingsRecent()
{
    return QStringLiteral("SettingsRecent");
}
inline QString groupEnvironment()
{
    return QStringLiteral("Environment");
}
inline QString groupMachines()
{
    return QStringLiteral("Machines");
}
inline QString groupMainWindow()
{
    return QStringLiteral("MainWindow");
}
// The blanks belong to the name.
inline QString groupRecentFileList()
{
    return QStringLiteral("Recent File List");
}

// "Machines/" + last machine + "/". With no last machine this is
// "Machines//", which QSettings folds into "Machines/"; the nameless machine
// is used then, as it always was.
inline QString machineGroup(const QString &sLastMachine)
{
    return QStringLiteral("Machines/") + sLastMachine + QStringLiteral("/");
}
// The machine's own "Settings" and "SettingsRecent". The instance's group
// functions and the static readers both build them here.
inline QString machineSettingsGroup(const QString &sLastMachine)
{
    return machineGroup(sLastMachine) + groupSettings();
}
inline QString machineSettingsRecentGroup(const QString &sLastMachine)
{
    return machineGroup(sLastMachine) + groupSettingsRecent();
}

// The platform store, written by the platform's installer.
inline QString platformOrganization()
{
    return QStringLiteral("Corvala S.p.A.");
}
inline QString platformApplication()
{
    return QStringLiteral("NodrixEnv");
}

// One read or write bracketed by beginGroup/endGroup, the way every value of
// the store is accessed.
inline QVariant readValue(QSettings &store, const QString &sGroup, const QString &sKey,
                          const QVariant &defaultValue)
{
    store.beginGroup(sGroup);
    const QVariant value = store.value(sKey, defaultValue);
    store.endGroup();
    return value;
}

// QSettings::sync(), saying why when the store could not be read or written.
void syncStore(QSettings &store);

inline void writeValue(QSettings &store, const QString &sGroup, const QString &sKey,
                       const QVariant &value)
{
    store.beginGroup(sGroup);
    store.setValue(sKey, value);
    store.endGroup();
}

// "Settings"/"LastMachine" of the given store. The static readers use it on
// the one store they open, so no call opens a second store just to find the
// machine group.
inline QString storedLastMachine(QSettings &store)
{
    return readValue(store, groupSettings(), QStringLiteral("LastMachine"), QVariant(QString()))
        .toString();
}

} // namespace NdxComRegistry

#endif // QNODRIXREGISTRY_P_H
