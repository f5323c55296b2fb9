#include "command.h"
#include "storeoptions.h"

#include <QNodrixCom>
#include <QNodrixRegistry>

#include <QtCore/QDir>

namespace {

const char usage[] = "ndxcom paths --gauge G --diameter D [--machine-path P | --organization NAME "
                     "--application NAME [--user-dir DIR]] [--base B] [--config NAME]";

bool toInt(const QString &text, int *value)
{
    bool ok = false;
    *value = text.toInt(&ok, 10);
    return ok;
}

int runPaths(const QStringList &arguments)
{
    QCommandLineParser parser;
    StoreOptions options;
    options.addTo(parser);
    const QCommandLineOption gauge(QStringLiteral("gauge"), QStringLiteral("Needle gauge."),
                                   QStringLiteral("G"));
    const QCommandLineOption diameter(QStringLiteral("diameter"),
                                      QStringLiteral("Cylinder diameter."), QStringLiteral("D"));
    const QCommandLineOption machinePath(
        QStringLiteral("machine-path"),
        QStringLiteral("The machine folder (default: the application's, or the current "
                       "folder)."),
        QStringLiteral("P"));
    const QCommandLineOption base(
        QStringLiteral("base"),
        QStringLiteral("Base of the configuration path (default: the sibling root)."),
        QStringLiteral("B"));
    const QCommandLineOption config(
        QStringLiteral("config"),
        QStringLiteral("Configuration folder name (default: the sibling's Dis folder)."),
        QStringLiteral("NAME"));
    const QCommandLineOption help(QStringList {QStringLiteral("h"), QStringLiteral("help")});
    parser.addOptions({gauge, diameter, machinePath, base, config, help});
    addVerboseOption(parser);
    if (!parser.parse(QStringList {QStringLiteral("ndxcom paths")} + arguments))
        return usageError("paths", parser.errorText(), QLatin1String(usage));
    applyVerboseOption(parser);
    if (parser.isSet(help)) {
        out() << "usage: " << usage << "\n\n"
              << "Prints the folders of a machine installation and of the sibling design\n"
              << "application for one gauge and diameter, composed with the library's folder\n"
              << "names: the machine folder followed by machineDataFolder(), ...,\n"
              << "makeGaugeDiamSubDir(G, D), and\n"
              << "makeConfigGaugeDiamPath(base, config, G, D) for the configuration.\n\n"
              << parser.helpText().section(QLatin1Char('\n'), 2) << Qt::endl;
        return ExitOk;
    }
    if (!parser.positionalArguments().isEmpty())
        return usageError(
            "paths", QStringLiteral("unexpected '%1'").arg(parser.positionalArguments().first()),
            QLatin1String(usage));
    int g = 0, d = 0;
    if (!parser.isSet(gauge) || !toInt(parser.value(gauge), &g))
        return usageError("paths", QStringLiteral("--gauge needs a whole number"),
                          QLatin1String(usage));
    if (!parser.isSet(diameter) || !toInt(parser.value(diameter), &d))
        return usageError("paths", QStringLiteral("--diameter needs a whole number"),
                          QLatin1String(usage));
    if (parser.isSet(machinePath) && options.namesApplication(parser))
        return usageError("paths",
                          QStringLiteral("give --machine-path or the application, not both"),
                          QLatin1String(usage));
    if (parser.isSet(options.organization) != parser.isSet(options.application))
        return usageError("paths", QStringLiteral("--organization and --application go together"),
                          QLatin1String(usage));

    QString machine;
    QString source;
    if (parser.isSet(machinePath)) {
        machine = parser.value(machinePath);
        source = QStringLiteral("--machine-path");
    } else if (options.namesApplication(parser)) {
        options.apply(parser);
        if (!options.storesReadable(parser, "paths"))
            return ExitStoreUnreadable;
        machine = QNodrixRegistry::machinePath();
        source = QStringLiteral("the settings of %1 / %2")
                     .arg(quoted(QCoreApplication::organizationName()),
                          quoted(QCoreApplication::applicationName()));
    } else {
        machine = QDir::currentPath();
        source = QStringLiteral("the current folder");
    }

    out() << "# Machine folders (machine folder from " << source << ")\n"
          << "machinePath = " << quoted(machine) << '\n'
          << "machineData = " << quoted(machine + QNodrixCom::machineDataFolder()) << '\n'
          << "machineResource = " << quoted(machine + QNodrixCom::machineResourceFolder()) << '\n'
          << "machineResCmdIco = "
          << quoted(machine + QNodrixCom::machineResourceFolder()
                    + QNodrixCom::machineResCmdIcoFolder())
          << '\n'
          << "machineResMglMap = "
          << quoted(machine + QNodrixCom::machineResourceFolder()
                    + QNodrixCom::machineResMglMapFolder())
          << '\n'
          << "machineHelp = " << quoted(machine + QNodrixCom::machineHelpFolder()) << '\n'
          << "machineCode = " << quoted(machine + QNodrixCom::machineCodeFolderSlSr()) << '\n'
          << "machineCodeDis = "
          << quoted(machine + QNodrixCom::machineCodeFolderSl()
                    + QNodrixCom::machineCodeDisFolderSlSr())
          << '\n'
          << "machineCodeCod = "
          << quoted(machine + QNodrixCom::machineCodeFolderSl()
                    + QNodrixCom::machineCodeCodFolderSlSr())
          << '\n'
          << "gaugeDiamSubDir = " << quoted(QNodrixCom::makeGaugeDiamSubDir(g, d)) << '\n';

    const QString root = QNodrixCom::machineKd5Dir();
    out() << "\n# Sibling design application\n"
          << "kd5Dir = " << quoted(QNodrixCom::machineKd5DirSr()) << '\n'
          << "kd5Chain = " << quoted(root + QNodrixCom::machineKd5ChainDirSlSr()) << '\n'
          << "kd5Cod = " << quoted(root + QNodrixCom::machineKd5CodDirSlSr()) << '\n'
          << "kd5Dis = " << quoted(root + QNodrixCom::machineKd5DisDirStSr()) << '\n'
          << "kd5Disegni = " << quoted(root + QNodrixCom::machineKd5DisegniDir()) << '\n'
          << "kd5DisegniDev = " << quoted(root + QNodrixCom::machineKd5DisegniDevDir()) << '\n'
          << "kd5DisegniDbg = " << quoted(root + QNodrixCom::machineKd5DisegniDbgDir()) << '\n'
          << "kd5CarcolMgl = " << quoted(root + QNodrixCom::machineKd5CarcolMgl()) << '\n'
          << "kd5CarcolDevDis = " << quoted(root + QNodrixCom::machineKd5CarcolDevDis()) << '\n'
          << "kd5CarcolDevDbg = " << quoted(root + QNodrixCom::machineKd5CarcolDevDbg()) << '\n'
          << "kd5CarcolKadrel = " << quoted(root + QNodrixCom::machineKd5CarcolKadrel()) << '\n';

    const QString baseValue = parser.isSet(base) ? parser.value(base) : root;
    const QString configValue
        = parser.isSet(config) ? parser.value(config) : QNodrixCom::machineKd5DisDir();
    out() << "\n# Configuration\n"
          << "base = " << quoted(baseValue) << '\n'
          << "config = " << quoted(configValue) << '\n'
          << "configGaugeDiamPath = "
          << quoted(QNodrixCom::makeConfigGaugeDiamPath(baseValue, configValue, g, d)) << '\n';
    out().flush();
    return ExitOk;
}

Command::Registrar registrar("paths",
                             "print the machine and configuration folders of a gauge and diameter",
                             Command::Console, runPaths);

} // namespace
