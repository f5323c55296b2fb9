#include "command.h"
#include "storeoptions.h"

#include <QNodrixCom>
#include <QNodrixRegistry>

#include <QtCore/QFileInfo>

#include <functional>

namespace {

const char usage[]
    = "ndxcom settings --organization NAME --application NAME [--user-dir DIR] [--system-dir DIR]";

QString show(const QString &s)
{
    return quoted(s);
}

QString show(const QStringList &list)
{
    QStringList items;
    for (const QString &s : list)
        items << show(s);
    return QLatin1Char('(') + items.join(QStringLiteral(", ")) + QLatin1Char(')');
}

QString show(bool b)
{
    return b ? QStringLiteral("true") : QStringLiteral("false");
}

// Prints "key = value", marking the values that come from the default
// because the store has no such key. The registry answers the values; this
// plain view of the same store only tells which keys are there.
class Report
{
public:
    void section(const QString &group)
    {
        m_group = group;
        out() << "\n[" << visible(group) << "]\n";
    }

    bool stored(const QString &key)
    {
        m_store.beginGroup(m_group);
        const bool present = m_store.contains(key);
        m_store.endGroup();
        return present;
    }

    QStringList storedList(const QString &key)
    {
        m_store.beginGroup(m_group);
        const QStringList list = m_store.value(key).toStringList();
        m_store.endGroup();
        return list;
    }

    void line(const QString &key, const QString &value, const QString &note = QString())
    {
        out() << key << " = " << value;
        if (!stored(key))
            out() << " (default)";
        if (!note.isEmpty())
            out() << " (" << note << ')';
        out() << '\n';
    }

    // A list as the application gets it, and how many stored entries the
    // filter dropped (missing on disk, or not a project file).
    void list(const QString &key, const QStringList &kept)
    {
        const int dropped = storedList(key).size() - kept.size();
        line(key, show(kept),
             dropped > 0 ? QStringLiteral("%1 stored entries dropped").arg(dropped) : QString());
    }

private:
    QSettings m_store;
    QString m_group;
};

int runSettings(const QStringList &arguments)
{
    QCommandLineParser parser;
    StoreOptions options;
    options.addTo(parser);
    const QCommandLineOption help(QStringList {QStringLiteral("h"), QStringLiteral("help")});
    parser.addOption(help);
    addVerboseOption(parser);
    if (!parser.parse(QStringList {QStringLiteral("ndxcom settings")} + arguments))
        return usageError("settings", parser.errorText(), QLatin1String(usage));
    applyVerboseOption(parser);
    if (parser.isSet(help)) {
        out() << "usage: " << usage << "\n\n"
              << "Prints the settings a suite application sees: the last machine, the values of\n"
              << "its machine (values taken from the default are marked so), the window\n"
              << "placement, the recent files and folder lists as the application gets them,\n"
              << "the environment switches, the language, and the installed and needed platform\n"
              << "versions (an installed version older than the needed one is flagged). Give the\n"
              << "organization and application names the application sets.\n"
              << "Nothing is written.\n\n"
              << parser.helpText().section(QLatin1Char('\n'), 2) << Qt::endl;
        return ExitOk;
    }
    if (!parser.positionalArguments().isEmpty())
        return usageError(
            "settings", QStringLiteral("unexpected '%1'").arg(parser.positionalArguments().first()),
            QLatin1String(usage));
    if (!options.namesApplication(parser))
        return usageError("settings", QStringLiteral("--organization and --application are needed"),
                          QLatin1String(usage));
    options.apply(parser);
    if (!options.storesReadable(parser, "settings"))
        return ExitStoreUnreadable;

    QNodrixRegistry registry;
    Report report;
    const QString storeFile = QSettings().fileName();
    const QString platformFile = QSettings(QSettings::SystemScope, QStringLiteral("Corvala S.p.A."),
                                           QStringLiteral("NodrixEnv"))
                                     .fileName();
    out() << "# Settings of " << show(QCoreApplication::organizationName()) << " / "
          << show(QCoreApplication::applicationName()) << '\n'
          << "store = " << show(storeFile)
          << (QFileInfo(storeFile).isFile() ? "" : " (missing: every value is a default)") << '\n'
          << "platform store = " << show(platformFile)
          << (QFileInfo(platformFile).isFile() ? "" : " (missing)") << '\n';

    // Global values.
    const QString machine = registry.getLastMachine();
    report.section(QStringLiteral("Settings"));
    report.line(QStringLiteral("LastMachine"), show(machine));
    report.line(QStringLiteral("GridColor"), QString::number(registry.getGridColor()));
    report.line(QStringLiteral("Language"), QString::number(int(registry.getLanguage())),
                QStringLiteral("code %1").arg(show(QNodrixCom::language())));
    report.section(QStringLiteral("SettingsRecent"));
    report.line(QStringLiteral("ShowOverview"), show(registry.getShowOverview()));

    // The last machine's values: the groups are written as the library
    // builds them.
    const QString machineGroup = QStringLiteral("Machines/") + machine + QLatin1Char('/');
    if (machine.isEmpty())
        out() << "\n# No last machine: the values of the nameless machine, which the store\n"
                 "# keeps under \"Machines/Settings\" and its siblings.\n";
    report.section(machineGroup + QStringLiteral("Settings"));
    const QList<QPair<const char *, std::function<QString()>>> machineValues = {
        {"MachineName", [&] { return registry.getMachineName(); }},
        {"MachinePath", [&] { return registry.getMachinePath(); }},
        {"ProjectsPath", [&] { return registry.getProjectsPath(); }},
        {"RepositoryPath", [&] { return registry.getRepositoryPath(); }},
        {"ProjectLinkPath", [&] { return registry.getProjectLinkPath(); }},
        {"HddPath", [&] { return registry.getHddPath(); }},
        {"UsbPath", [&] { return registry.getUsbPath(); }},
        {"ExportBmpPath", [&] { return registry.getExportBmpPath(); }},
        {"ImportBmpPath", [&] { return registry.getImportBmpPath(); }},
    };
    for (const auto &v : machineValues)
        report.line(QString::fromLatin1(v.first), show(v.second()));
    report.list(QStringLiteral("ProjectsPathList"), registry.getProjectsPathList());
    report.list(QStringLiteral("RepositoryPathList"), registry.getRepositoryPathList());
    report.list(QStringLiteral("ProjectLinkPathList"), registry.getProjectLinkPathList());

    report.section(machineGroup + QStringLiteral("SettingsRecent"));
    report.line(QStringLiteral("LastCfg"), show(registry.getLastCfg()));
    report.line(QStringLiteral("LastDiametro"), show(registry.getLastDiametro()));
    report.line(QStringLiteral("LastGauge"), show(registry.getLastGauge()));
    report.line(QStringLiteral("LastNeedles"), show(registry.getLastNeedles()));
    report.line(QStringLiteral("LastBrowserMode"), QString::number(registry.getLastBrowserMode()));

    report.section(machineGroup + QStringLiteral("MainWindow"));
    QPoint pos;
    QSize size;
    QByteArray state;
    const bool maximize = registry.loadMainWndPlacement(&pos, &size, &state);
    const QString callers = QStringLiteral("the application's own");
    report.line(QStringLiteral("pos"),
                report.stored(QStringLiteral("pos"))
                    ? QStringLiteral("(%1, %2)").arg(pos.x()).arg(pos.y())
                    : callers);
    report.line(QStringLiteral("size"),
                report.stored(QStringLiteral("size"))
                    ? QStringLiteral("%1 x %2").arg(size.width()).arg(size.height())
                    : callers);
    report.line(QStringLiteral("state"),
                report.stored(QStringLiteral("state"))
                    ? QStringLiteral("%1 bytes").arg(state.size())
                    : callers);
    report.line(QStringLiteral("maximize"), show(maximize));

    report.section(machineGroup + QStringLiteral("Recent File List"));
    QStringList recent;
    registry.loadRecentFileList(&recent);
    report.list(QStringLiteral("recentFileList"), recent);

    report.section(QStringLiteral("Environment"));
    const QList<QPair<const char *, bool (*)()>> flags = {
        {"EnblHelpInfo", &QNodrixRegistry::environmentEnblHelpInfo},
        {"EnblZentar", &QNodrixRegistry::environmentEnblZentar},
        {"EnblDebugInfo", &QNodrixRegistry::environmentEnblDebugInfo},
        {"EnblDebugDrums", &QNodrixRegistry::environmentEnblDebugDrums},
        {"EnblPyrelDbgDev", &QNodrixRegistry::environmentEnblPyrelDbgDev},
        {"SimulScsAcquire", &QNodrixRegistry::environmentSimulScsAcquire},
        {"EnblResizeShowErr", &QNodrixRegistry::environmentEnblResizeShowErr},
        {"EnblSeleStitchView", &QNodrixRegistry::environmentEnblSeleStitchView},
        {"EnblStitchViewSpecial", &QNodrixRegistry::environmentEnblStitchViewSpecial},
        {"EnblGaugeForDebug", &QNodrixRegistry::environmentEnblGaugeForDebug},
        {"EnblPlaneGuiShowMov", &QNodrixRegistry::environmentEnblPlaneGuiShowMov},
        {"EnblUpdateMacLang", &QNodrixRegistry::environmentEnblUpdateFileMacLang},
        {"EnblBrowserExpand", &QNodrixRegistry::environmentEnblBrowserExpand},
        {"DsblGuiMapView", &QNodrixRegistry::environmentDsblGuiMapView},
        {"EnblPlaneCmdColorId", &QNodrixRegistry::environmentEnblPlaneCmdShowColorId},
    };
    for (const auto &f : flags)
        report.line(QString::fromLatin1(f.first), show(f.second()));
    report.line(QStringLiteral("StitchZoomLevel"),
                QString::number(QNodrixRegistry::environmentStitchZoomLevel()));
    out() << "EnblCadVar = " << show(QNodrixRegistry::environmentEnblCadVar())
          << " (always on, not read)\n";

    // The installed platform is flagged when it is older than the one the
    // machine needs, compared as the suite compares versions
    // (QNodrixCom::compareVersionMMR), or missing while one is needed.
    const QString installed = registry.getNodrixEnvVersInst();
    const QString needed = registry.getNodrixEnvVersNeeded();
    QString flag;
    if (!needed.isEmpty() && installed.isEmpty())
        flag = QStringLiteral(" (missing: %1 needs %2)")
                   .arg(show(registry.getMachineName()), show(needed));
    else if (!needed.isEmpty() && QNodrixCom::compareVersionMMR(installed, needed) < 0)
        flag = QStringLiteral(" (older than the needed %1)").arg(show(needed));
    out() << "\n[Platform]\n"
          << "InstallVersion = " << show(installed) << flag << '\n'
          << "VersionEnv of " << show(registry.getMachineName()) << " = " << show(needed) << '\n';
    out().flush();
    return ExitOk;
}

Command::Registrar registrar("settings", "print the settings a suite application sees",
                             Command::Console, runSettings);

} // namespace
