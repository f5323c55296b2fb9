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

int runCheck(const QStringList &arguments)
{
    QString name;
    bool haveName = false;
    int max = 0;
    bool haveMax = false;
    QString forbidden;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &a = arguments.at(i);
        if (a == QLatin1String("--max")) {
            if (i + 1 >= arguments.size() || !toInt(arguments.at(i + 1), &max) || max < 0)
                return usageError("name", QStringLiteral("--max needs a number of 0 or more"),
                                  QLatin1String(usage));
            haveMax = true;
            ++i;
        } else if (a == QLatin1String("--forbidden")) {
            if (i + 1 >= arguments.size())
                return usageError("name", QStringLiteral("--forbidden needs the characters"),
                                  QLatin1String(usage));
            forbidden = arguments.at(++i);
        } else if (!haveName) {
            name = a;
            haveName = true;
        } else {
            return usageError("name", QStringLiteral("unexpected '%1'").arg(a),
                              QLatin1String(usage));
        }
    }
    if (!haveName)
        return usageError("name", QStringLiteral("check needs a name"), QLatin1String(usage));

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
    QString folder;
    int gauge = 0, diameter = 0;
    bool haveFolder = false;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &a = arguments.at(i);
        const bool hasValue = i + 1 < arguments.size();
        if (a == QLatin1String("--folder") && hasValue) {
            folder = arguments.at(++i);
            haveFolder = true;
        } else if (a == QLatin1String("--gauge") && hasValue) {
            if (!toInt(arguments.at(++i), &gauge))
                return usageError("name", QStringLiteral("--gauge needs a whole number"),
                                  QLatin1String(usage));
        } else if (a == QLatin1String("--diameter") && hasValue) {
            if (!toInt(arguments.at(++i), &diameter))
                return usageError("name", QStringLiteral("--diameter needs a whole number"),
                                  QLatin1String(usage));
        } else {
            return usageError("name", QStringLiteral("unexpected '%1'").arg(a),
                              QLatin1String(usage));
        }
    }
    if (!haveFolder)
        return usageError("name", QStringLiteral("propose needs --folder DIR"),
                          QLatin1String(usage));

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
    if (arguments == QStringList {QStringLiteral("--help")}) {
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
        return ExitOk;
    }
    const QString action = arguments.value(0);
    if (action == QLatin1String("check"))
        return runCheck(arguments.mid(1));
    if (action == QLatin1String("propose"))
        return runPropose(arguments.mid(1));
    return usageError("name", QStringLiteral("check or propose?"), QLatin1String(usage));
}

Command::Registrar registrar("name", "check a project name against the rules, propose new names",
                             Command::Console, runName);

} // namespace
