#include "command.h"

#include <QNodrixCom>
#include <QNodrixRegistry>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

namespace {

const char usage[] = "ndxcom name check NAME [--max N] [--forbidden CHARS]\n"
                     "       ndxcom name propose --folder DIR [--gauge G --diameter D]";

bool toInt(const QString &text, int *value)
{
    bool ok = false;
    *value = text.toInt(&ok, 10);
    return ok;
}

// The characters of `set` that `name` holds, in the order of `set`, each
// once.
QString found(const QString &name, const QString &set)
{
    QString hits;
    for (const QChar c : set) {
        if (name.contains(c) && !hits.contains(c))
            hits += c;
    }
    return hits;
}

QString listed(const QString &chars)
{
    QStringList items;
    for (const QChar c : chars)
        items << QStringLiteral("'%1'").arg(c);
    return items.join(QStringLiteral(", "));
}

const QCommandLineOption helpOption(QStringList {QStringLiteral("h"), QStringLiteral("help")});

void printHelp()
{
    out() << "usage: " << usage << "\n\n"
          << "check    lists the rules NAME breaks: invalid characters (\"@ ,;'!?\"),\n"
          << "         illegal language (beyond Latin-1, or a '?'), missing \".ndx\",\n"
          << "         longer than --max characters, and characters given with\n"
          << "         --forbidden; exits with 1 when it breaks any\n"
          << "propose  prints the next free module name in DIR and the next free\n"
          << "         project name with DIR as projects folder (gauge and diameter\n"
          << "         subfolder appended as the library does, without a separator);\n"
          << "         no windows are open. An empty name means DIR does not exist.\n"
          << "         Your own settings are not touched." << Qt::endl;
}

int runCheck(const QStringList &arguments)
{
    CommandParser parser("name check");
    const QCommandLineOption maxOption(QStringLiteral("max"),
                                       QStringLiteral("The longest name, 0 for no limit."),
                                       QStringLiteral("N"));
    const QCommandLineOption forbiddenOption(QStringLiteral("forbidden"),
                                             QStringLiteral("The machine's forbidden characters."),
                                             QStringLiteral("CHARS"));
    parser.addOption(maxOption);
    parser.addOption(forbiddenOption);
    parser.addOption(helpOption);
    if (!parser.parse(arguments))
        return usageError("name", parser.errorText(), QLatin1String(usage));
    if (parser.isSet(helpOption)) {
        printHelp();
        return ExitOk;
    }
    int max = 0;
    for (const QString &given : parser.values(maxOption)) {
        if (!toInt(given, &max) || max < 0)
            return usageError("name", QStringLiteral("--max needs a number of 0 or more"),
                              QLatin1String(usage));
    }
    const bool haveMax = parser.isSet(maxOption);
    const QString forbidden = parser.value(forbiddenOption);
    const QStringList positional = parser.positionalArguments();
    if (positional.isEmpty())
        return usageError("name", QStringLiteral("check needs a name"), QLatin1String(usage));
    if (positional.size() > 1)
        return usageError("name", QStringLiteral("unexpected '%1'").arg(positional.at(1)),
                          QLatin1String(usage));
    const QString name = positional.first();

    out() << "name = " << quoted(name) << '\n';
    int broken = 0;
    if (QNodrixCom::projectNameContainsInvalidChars(name)) {
        out() << "breaks: invalid characters ("
              << listed(found(name, QNodrixCom::namesInvalidChars())) << ")\n";
        ++broken;
    }
    if (QNodrixCom::projectNameHasIllegalLanguage(name)) {
        out() << "breaks: illegal language (characters beyond Latin-1, or a '?')\n";
        ++broken;
    }
    QString compliant = name;
    QNodrixCom::makeCompliantProjectName(compliant);
    if (compliant != name) {
        out() << "breaks: missing extension " << quoted(QNodrixCom::projectFilesExt())
              << " (compliant: " << quoted(compliant) << ")\n";
        ++broken;
    }
    // Measured as the save dialog measures: the file-name part only.
    const int length = QNodrixCom::strippedName(name).size();
    if (haveMax && max != 0 && length > max) {
        out() << "breaks: too long (" << length << " characters, at most " << max << ")\n";
        ++broken;
    }
    const QString machine = found(QNodrixCom::strippedName(name), forbidden);
    if (!machine.isEmpty()) {
        out() << "breaks: forbidden on the machine (" << listed(machine) << ")\n";
        ++broken;
    }
    if (broken == 0)
        out() << "no rule broken\n";
    out().flush();
    return broken == 0 ? ExitOk : ExitFailure;
}

int runPropose(const QStringList &arguments)
{
    CommandParser parser("name propose");
    const QCommandLineOption folderOption(
        QStringLiteral("folder"), QStringLiteral("The projects folder."), QStringLiteral("DIR"));
    const QCommandLineOption gaugeOption(QStringLiteral("gauge"), QStringLiteral("Needle gauge."),
                                         QStringLiteral("G"));
    const QCommandLineOption diameterOption(
        QStringLiteral("diameter"), QStringLiteral("Cylinder diameter."), QStringLiteral("D"));
    for (const QCommandLineOption &option : {folderOption, gaugeOption, diameterOption, helpOption})
        parser.addOption(option);
    if (!parser.parse(arguments))
        return usageError("name", parser.errorText(), QLatin1String(usage));
    if (parser.isSet(helpOption)) {
        printHelp();
        return ExitOk;
    }
    const QStringList positional = parser.positionalArguments();
    if (!positional.isEmpty())
        return usageError("name", QStringLiteral("unexpected '%1'").arg(positional.first()),
                          QLatin1String(usage));
    int gauge = 0, diameter = 0;
    for (const QString &given : parser.values(gaugeOption)) {
        if (!toInt(given, &gauge))
            return usageError("name", QStringLiteral("--gauge needs a whole number"),
                              QLatin1String(usage));
    }
    for (const QString &given : parser.values(diameterOption)) {
        if (!toInt(given, &diameter))
            return usageError("name", QStringLiteral("--diameter needs a whole number"),
                              QLatin1String(usage));
    }
    if (!parser.isSet(folderOption))
        return usageError("name", QStringLiteral("propose needs --folder DIR"),
                          QLatin1String(usage));
    const QString folder = parser.value(folderOption);

    // The project proposal reads the projects folder from the settings. A
    // private store that lives as long as this command holds it, so the
    // user's own settings are neither read nor changed.
    QTemporaryDir store;
    if (!store.isValid()) {
        err() << "ndxcom name: no temporary folder for the settings: " << store.errorString()
              << Qt::endl;
        return ExitFailure;
    }
    QCoreApplication::setOrganizationName(QStringLiteral("ndxcom"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, store.path());
    QNodrixRegistry().setProjectsPath(folder);
    QNodrixCom::setProjectsFolderOptions(gauge, diameter);

    QString module, project;
    QNodrixCom::makeNewModuleName(module, folder);
    QNodrixCom::makeNewProjectName(project);
    QString projects = folder;
    if (gauge != 0 && diameter != 0) {
        const QString sub = QNodrixCom::makeGaugeDiamSubDir(gauge, diameter);
        if (!projects.contains(sub))
            projects += sub;
    }
    out() << "module = " << quoted(module) << '\n'
          << "project = " << quoted(project) << '\n'
          << "projects folder = " << quoted(projects) << Qt::endl;
    return ExitOk;
}

int runName(const QStringList &arguments)
{
    // The action's own options follow the action.
    CommandParser parser("name");
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addOption(helpOption);
    if (!parser.parse(arguments))
        return usageError("name", parser.errorText(), QLatin1String(usage));
    if (parser.isSet(helpOption)) {
        printHelp();
        return ExitOk;
    }
    const QStringList positional = parser.positionalArguments();
    const QString action = positional.value(0);
    if (action == QLatin1String("check"))
        return runCheck(positional.mid(1));
    if (action == QLatin1String("propose"))
        return runPropose(positional.mid(1));
    return usageError("name", QStringLiteral("check or propose?"), QLatin1String(usage));
}

Command::Registrar registrar("name", "check a project name against the rules, propose new names",
                             Command::Console, runName);

} // namespace
