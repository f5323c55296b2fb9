#include "qnodrixregistry.h"
#include "qnodrixregistry_p.h"

using namespace NdxComRegistry;

// ---------------------------------------------------------------------------
// Environment flags. Each call opens the application store, reads one key of
// "Environment" and lets the store go: a switch turned on by hand in the
// settings file counts from the next call on. The library never writes them.
// ---------------------------------------------------------------------------
namespace {
QVariant environmentValue(const QString &sKey, const QVariant &defaultValue)
{
    QSettings store;
    return readValue(store, groupEnvironment(), sKey, defaultValue);
}

bool environmentFlag(const QString &sKey)
{
    return environmentValue(sKey, QVariant(false)).toBool();
}
} // namespace

bool QNodrixRegistry::environmentEnblHelpInfo()
{
    return environmentFlag(QStringLiteral("EnblHelpInfo"));
}

bool QNodrixRegistry::environmentEnblZentar()
{
    return environmentFlag(QStringLiteral("EnblZentar"));
}

bool QNodrixRegistry::environmentEnblDebugInfo()
{
    return environmentFlag(QStringLiteral("EnblDebugInfo"));
}

bool QNodrixRegistry::environmentEnblDebugDrums()
{
    return environmentFlag(QStringLiteral("EnblDebugDrums"));
}

bool QNodrixRegistry::environmentEnblPyrelDbgDev()
{
    return environmentFlag(QStringLiteral("EnblPyrelDbgDev"));
}

bool QNodrixRegistry::environmentSimulScsAcquire()
{
    return environmentFlag(QStringLiteral("SimulScsAcquire"));
}

bool QNodrixRegistry::environmentEnblResizeShowErr()
{
    return environmentFlag(QStringLiteral("EnblResizeShowErr"));
}

bool QNodrixRegistry::environmentEnblSeleStitchView()
{
    return environmentFlag(QStringLiteral("EnblSeleStitchView"));
}

bool QNodrixRegistry::environmentEnblStitchViewSpecial()
{
    return environmentFlag(QStringLiteral("EnblStitchViewSpecial"));
}

int QNodrixRegistry::environmentStitchZoomLevel()
{
    return environmentValue(QStringLiteral("StitchZoomLevel"), QVariant(0)).toInt();
}

bool QNodrixRegistry::environmentEnblGaugeForDebug()
{
    return environmentFlag(QStringLiteral("EnblGaugeForDebug"));
}

bool QNodrixRegistry::environmentEnblPlaneGuiShowMov()
{
    return environmentFlag(QStringLiteral("EnblPlaneGuiShowMov"));
}

// The key has no "File": workstations have it written so.
bool QNodrixRegistry::environmentEnblUpdateFileMacLang()
{
    return environmentFlag(QStringLiteral("EnblUpdateMacLang"));
}

bool QNodrixRegistry::environmentEnblBrowserExpand()
{
    return environmentFlag(QStringLiteral("EnblBrowserExpand"));
}

bool QNodrixRegistry::environmentDsblGuiMapView()
{
    return environmentFlag(QStringLiteral("DsblGuiMapView"));
}

// The key has no "Show": workstations have it written so.
bool QNodrixRegistry::environmentEnblPlaneCmdShowColorId()
{
    return environmentFlag(QStringLiteral("EnblPlaneCmdColorId"));
}

// The variant switch is on in every build of the suite; there is nothing to
// read.
bool QNodrixRegistry::environmentEnblCadVar()
{
    return true;
}

// ---------------------------------------------------------------------------
// Language and the message for the platform tools, in "Settings"
// ---------------------------------------------------------------------------
QNodrixRegistry::eLanguageType QNodrixRegistry::keyLanguage()
{
    QSettings store;
    return eLanguageType(
        readValue(store, groupSettings(), QStringLiteral("Language"), QVariant(-1)).toInt());
}

QNodrixRegistry::eLanguageType QNodrixRegistry::getLanguage()
{
    m_settings.sync();
    return eLanguageType(
        readValue(m_settings, groupSettings(), QStringLiteral("Language"), QVariant(-1)).toInt());
}

void QNodrixRegistry::setLanguage(eLanguageType eLanguage)
{
    writeValue(m_settings, groupSettings(), QStringLiteral("Language"),
               QVariant(static_cast<int>(eLanguage)));
}

void QNodrixRegistry::setNodrixEnvMsg(const QString &sMsg)
{
    writeValue(m_settings, groupSettings(), QStringLiteral("NodrixEnvMsg"), QVariant(sMsg));
}

// ---------------------------------------------------------------------------
// Platform store
// ---------------------------------------------------------------------------
QString QNodrixRegistry::getNodrixEnvVersInst()
{
    QSettings platform(QSettings::SystemScope, platformOrganization(), platformApplication());
    return platform.value(QStringLiteral("InstallVersion"), QVariant(QString())).toString();
}

QString QNodrixRegistry::getNodrixEnvVersNeeded()
{
    QString sVersion;
    const QString sMachine = getMachineName();

    QSettings platform(QSettings::SystemScope, platformOrganization(), platformApplication());
    platform.beginGroup(groupMachines());
    // The first child group with exactly the machine's name answers; the
    // comparison is case-sensitive, as the installer writes the names.
    const QStringList machines = platform.childGroups();
    for (const QString &sName : machines) {
        if (sName != sMachine)
            continue;
        platform.beginGroup(sName);
        sVersion = platform.value(QStringLiteral("VersionEnv")).toString();
        platform.endGroup();
        break;
    }
    platform.endGroup();
    return sVersion;
}
