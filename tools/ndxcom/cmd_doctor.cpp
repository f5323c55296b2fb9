#include "command.h"
#include "storeoptions.h"
#include "toollanguages.h"

#include <QNodrixCom>
#include <QNodrixRegistry>
#include <private/qfilesharing_p.h>
#include <private/qnodrixhelp_p.h>

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QRandomGenerator>
#include <QtCore/QSysInfo>
#include <QtCore/QTranslator>

#include <utility>

namespace {

const char usage[] = "ndxcom doctor --organization NAME --application NAME [--user-dir DIR] "
                     "[--system-dir DIR]";

enum class Verdict { Ok, Warning, Problem };

// One line: the verdict, what was checked and what was found, and for a
// warning or a problem what to do.
class Report
{
public:
    void line(Verdict verdict, const char *check, const QString &found,
              const QString &todo = QString())
    {
        const char *word = verdict == Verdict::Ok ? "ok"
            : verdict == Verdict::Warning         ? "warning"
                                                  : "problem";
        out() << QString::fromLatin1(word).leftJustified(9) << check << ": " << found;
        if (!todo.isEmpty())
            out() << " - " << todo;
        out() << '\n';
        if (int(verdict) > int(m_worst))
            m_worst = verdict;
    }

    void notChecked(const char *check, const QString &why)
    {
        line(Verdict::Warning, check, QStringLiteral("not checked: ") + why);
    }

    int exitCode() const { return int(m_worst); } // 0, 1 or 2

private:
    Verdict m_worst = Verdict::Ok;
};

QString notAFile(const QFileInfo &info)
{
    return info.isDir() ? QStringLiteral("a folder")
                        : QStringLiteral("a pipe, a device or a socket");
}

// The user's store: readable, writable where QSettings writes (the file, and
// its folder for the new copy and the lock file it puts beside it), in the
// settings format. Only looked at: nothing is written, not even a probe.
void checkStore(Report &report, const QString &file)
{
    const char *check = "settings store";
#ifdef Q_OS_WIN
    Q_UNUSED(file)
    const QSettings store;
    if (store.status() != QSettings::NoError)
        report.line(Verdict::Problem, check,
                    QStringLiteral("%1 cannot be read").arg(quoted(store.fileName())),
                    QStringLiteral("give the user access to the registry key"));
    else if (!store.isWritable())
        report.line(Verdict::Problem, check,
                    QStringLiteral("%1 is read-only").arg(quoted(store.fileName())),
                    QStringLiteral("give the user write access to the registry key"));
    else
        report.line(Verdict::Ok, check,
                    QStringLiteral("%1 can be read and written").arg(quoted(store.fileName())));
#else
    const QFileInfo info(file);
    const QString shown = quoted(file);
    if (!info.exists()) {
        // QSettings makes the missing folders at the first save.
        QFileInfo folder(info.absolutePath());
        while (!folder.exists() && !folder.isRoot())
            folder.setFile(folder.absolutePath());
        if (!folder.isDir())
            report.line(Verdict::Problem, check,
                        QStringLiteral("%1 cannot be made: %2 is not a folder")
                            .arg(shown, quoted(folder.filePath())),
                        QStringLiteral("remove what stands there"));
        else if (!folder.isWritable())
            report.line(Verdict::Problem, check,
                        QStringLiteral("%1 cannot be made: %2 is read-only")
                            .arg(shown, quoted(folder.filePath())),
                        QStringLiteral("give the user write access to it"));
        else
            report.line(Verdict::Ok, check,
                        QStringLiteral("%1 does not exist yet: every value is a default until "
                                       "the application saves")
                            .arg(shown));
        return;
    }
    const QFileInfo folder(info.absolutePath());
    if (!info.isReadable()) {
        report.line(Verdict::Problem, check, QStringLiteral("%1 cannot be read").arg(shown),
                    QStringLiteral("give the user read access; the application sees every "
                                   "value as its default meanwhile"));
    } else if (!info.isWritable()) {
        report.line(Verdict::Problem, check, QStringLiteral("%1 is read-only").arg(shown),
                    QStringLiteral("give the user write access, or the application cannot "
                                   "save its settings"));
    } else if (!folder.isWritable()) {
        report.line(Verdict::Problem, check,
                    QStringLiteral("its folder %1 is read-only").arg(quoted(folder.filePath())),
                    QStringLiteral("give the user write access: a save writes a new file and a "
                                   "lock file there"));
    } else if (QSettings().status() == QSettings::FormatError) {
        report.line(Verdict::Problem, check,
                    QStringLiteral("%1 is not in the settings format").arg(shown),
                    QStringLiteral("restore it from a copy, or remove it to start afresh"));
    } else {
        report.line(Verdict::Ok, check, QStringLiteral("%1 can be read and written").arg(shown));
    }
#endif
}

// The names of the machine the application works on.
struct Machine
{
    QString name; // the last machine, possibly empty
    QString shown; // as the lines name it
    QString folder; // its MachinePath, when one is stored
    bool folderExists = false;
};

Machine checkMachine(Report &report)
{
    Machine machine;
    machine.name = QNodrixRegistry::lastMachine();
    machine.shown = machine.name.isEmpty() ? QStringLiteral("the nameless machine")
                                           : QStringLiteral("machine ") + quoted(machine.name);
    QSettings store;
    store.beginGroup(QStringLiteral("Machines/") + machine.name + QStringLiteral("/Settings"));
    const bool stored = store.contains(QStringLiteral("MachinePath"));
    store.endGroup();
    if (!stored) {
        report.line(Verdict::Warning, "machine",
                    QStringLiteral("no folder is stored for %1, so the application takes its "
                                   "working folder")
                        .arg(machine.shown),
                    QStringLiteral("choose the machine and its folder in the application"));
        return machine;
    }
    machine.folder = QNodrixRegistry::machinePath();
    machine.folderExists = QFileInfo(machine.folder).isDir();
    if (!machine.folderExists)
        report.line(Verdict::Problem, "machine",
                    QStringLiteral("the folder %1 of %2 does not exist")
                        .arg(quoted(machine.folder), machine.shown),
                    QStringLiteral("reinstall the machine, or correct its folder"));
    else if (machine.name.isEmpty())
        report.line(Verdict::Warning, "machine",
                    QStringLiteral("no last machine is stored; the folder of %1 is %2")
                        .arg(machine.shown, quoted(machine.folder)),
                    QStringLiteral("choose the machine in the application"));
    else
        report.line(Verdict::Ok, "machine",
                    QStringLiteral("%1, folder %2").arg(machine.shown, quoted(machine.folder)));
    return machine;
}

// The index as the help reads it, and every value it would refuse to open.
void checkHelp(Report &report, const Machine &machine)
{
    const char *check = "help index";
    if (!machine.folderExists) {
        report.notChecked(check, QStringLiteral("the machine has no folder"));
        return;
    }
    using namespace NdxComHelp;
    const QString helpFolder = machine.folder + QNodrixCom::machineHelpFolder();
    const QString path = helpFolder + QNodrixCom::machineHelpFile();
    QByteArray bytes;
    bool cut = false;
    QString error;
    if (!readIndexFile(path, &bytes, &cut, &error)) {
        report.line(Verdict::Problem, check,
                    QStringLiteral("%1 cannot be read: %2").arg(quoted(path), visible(error)),
                    QStringLiteral("reinstall the machine's help; until then every start warns "
                                   "and the help opens no document"));
        return;
    }
    QHash<QString, QString> index;
    readHelpIndex(bytes, index, cut);
    const QString language = QNodrixCom::language();
    const QString folder = helpFolder + language + QLatin1Char('/');
    QStringList keys = index.keys();
    keys.sort();
    QStringList refused;
    for (const QString &key : std::as_const(keys)) {
        const QString value = index.value(key);
        const HelpDocument document = helpDocument(value);
        if (!value.isEmpty() && (document.refused || !staysInside(folder, folder + document.path)))
            refused << quoted(key) + QStringLiteral(" = ") + quoted(value);
    }
    // The help stops reading at a line too long for an index: the entries
    // after it are lost.
    int longLine = 0;
    {
        const QString text = QString::fromUtf8(bytes);
        int number = 1;
        for (qsizetype at = 0; at <= text.size() && !longLine; ++number) {
            qsizetype end = text.indexOf(QLatin1Char('\n'), at);
            if (end < 0)
                end = text.size();
            if (end - at > IndexLineLimit)
                longLine = number;
            at = end + 1;
        }
    }
    const QString found = QStringLiteral("%1: %2 entries").arg(quoted(path)).arg(index.size());
    if (cut || longLine || index.isEmpty()) {
        report.line(
            Verdict::Warning, check,
            found
                + (cut ? QStringLiteral(", cut at its size limit of %1 bytes").arg(IndexSizeLimit)
                       : longLine ? QStringLiteral(", read up to line %1, which is longer "
                                                   "than %2 characters")
                                        .arg(longLine)
                                        .arg(IndexLineLimit)
                                  : QString()),
            QStringLiteral("reinstall the machine's help"));
    } else if (!refused.isEmpty()) {
        const int shown = 3;
        report.line(Verdict::Warning, check,
                    found
                        + QStringLiteral(", %1 refused: %2%3")
                              .arg(refused.size())
                              .arg(refused.mid(0, shown).join(QStringLiteral(", ")))
                              .arg(refused.size() > shown ? QStringLiteral(", ...") : QString()),
                    QStringLiteral("correct the index: the help opens the language folder "
                                   "for them"));
    } else if (!QFileInfo(folder).isDir()) {
        report.line(Verdict::Warning, check,
                    found
                        + QStringLiteral(", but no folder %1 for language %2")
                              .arg(quoted(folder), quoted(language)),
                    QStringLiteral("install the machine's help in this language"));
    } else {
        report.line(Verdict::Ok, check, found);
    }
}

bool checkProjects(Report &report, const Machine &machine, const QString &folder)
{
    const char *check = "projects folder";
    const QFileInfo info(folder);
    if (folder.isEmpty()) {
        report.line(Verdict::Warning, check,
                    QStringLiteral("none is stored for %1").arg(machine.shown),
                    QStringLiteral("choose it in the application"));
        return false;
    }
    if (!info.isDir()) {
        report.line(Verdict::Problem, check,
                    QStringLiteral("%1 of %2 %3")
                        .arg(quoted(folder), machine.shown,
                             info.exists() ? QStringLiteral("is not a folder")
                                           : QStringLiteral("does not exist")),
                    QStringLiteral("mount the share or correct the projects folder"));
        return false;
    }
    if (!info.isWritable()) {
        report.line(Verdict::Problem, check, QStringLiteral("%1 is read-only").arg(quoted(folder)),
                    QStringLiteral("give the user write access: projects open read-only and "
                                   "nothing can be saved there meanwhile"));
        return true;
    }
    report.line(Verdict::Ok, check, QStringLiteral("%1 can be written").arg(quoted(folder)));
    return true;
}

// What this workstation writes into its locks, and whether it reads back as
// it was written: the record counts characters but holds UTF-8 bytes, so a
// name beyond ASCII comes back other, and this workstation would neither
// recognise nor release its own locks.
void checkIdentity(Report &report)
{
    using namespace NdxComFileSharing;
    const char *check = "identity";
    const QString computer = localComputerName();
    const QString user = localUserName();
    const QString host = QSysInfo::machineHostName();
    const QString found = QStringLiteral("locks name computer %1 (host name %2) and user %3")
                              .arg(quoted(computer), quoted(host), quoted(user));
    const LockRecord back
        = readLockRecord(writeLockRecord(1, QDateTime::currentMSecsSinceEpoch(), computer, user));
    if (computer.isEmpty()) {
        report.line(Verdict::Problem, check, found,
                    QStringLiteral("give the computer a host name"));
    } else if (user.isEmpty()) {
        report.line(Verdict::Problem, check,
                    found
                        + QStringLiteral(": the login name is unknown or longer than %1 "
                                         "characters")
                              .arg(UserNameCapacity),
                    QStringLiteral("log in as a user with a shorter name: every such user is the "
                                   "same holder to the others"));
    } else if (!back.complete || back.computer != computer || back.user != user) {
        report.line(Verdict::Problem, check,
                    found
                        + QStringLiteral(", which read back as %1 and %2")
                              .arg(quoted(back.computer), quoted(back.user)),
                    QStringLiteral("use a host name and a login name of ASCII characters: this "
                                   "workstation would not recognise or release its own locks"));
    } else {
        report.line(Verdict::Ok, check, found);
    }
}

// Locks rest on exclusive creation: of two workstations creating one lock,
// one must fail. Two exclusive creations of a probe, then the probe goes.
void checkExclusive(Report &report, const QString &folder)
{
    const char *check = "exclusive creation";
    const QString probe = QDir(folder).filePath(
        QStringLiteral(".ndxcom-doctor-%1-%2.probe")
            .arg(QCoreApplication::applicationPid())
            .arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0')));
    QFile first(probe);
    if (!first.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        report.line(Verdict::Problem, check,
                    QStringLiteral("no file can be created in %1: %2")
                        .arg(quoted(folder), visible(first.errorString())),
                    QStringLiteral("give the user write access: no lock can be taken there"));
        return;
    }
    first.close();
    QFile second(probe);
    const bool twice = second.open(QIODevice::WriteOnly | QIODevice::NewOnly);
    second.close();
    QFile gone(probe);
    if (!gone.remove()) {
        report.line(Verdict::Problem, check,
                    QStringLiteral("the probe %1 could not be removed: %2")
                        .arg(quoted(probe), visible(gone.errorString())),
                    QStringLiteral("remove it by hand, and give the user delete access"));
    } else if (twice) {
        report.line(Verdict::Problem, check,
                    QStringLiteral("%1 lets one file be created twice").arg(quoted(folder)),
                    QStringLiteral("mount the share so that exclusive creation holds: two "
                                   "workstations could take one project"));
    } else {
        report.line(
            Verdict::Ok, check,
            QStringLiteral("a second exclusive creation in %1 is refused").arg(quoted(folder)));
    }
}

// The library's catalogue for the language the settings choose, found as the
// tools find it.
void checkCatalogue(Report &report)
{
    const char *check = "catalogue";
    const QString code = QNodrixCom::language();
    if (code == QLatin1String("it")) {
        report.line(Verdict::Ok, check,
                    QStringLiteral("language \"it\": the source texts, no catalogue needed"));
        return;
    }
    const QString name = QStringLiteral("ndxcom_%1.qm").arg(code);
    QStringList found;
    const QStringList folders = translationFolders();
    for (const QString &folder : folders) {
        if (QFileInfo(QDir(folder).filePath(name)).isFile())
            found << QDir::cleanPath(QDir(folder).filePath(name));
    }
    QString loaded;
    for (const QString &file : std::as_const(found)) {
        QTranslator translator;
        if (translator.load(file)) {
            loaded = file;
            break;
        }
    }
    if (found.isEmpty()) {
        QStringList shown;
        for (const QString &folder : folders)
            shown << quoted(QDir::cleanPath(folder));
        report.line(Verdict::Warning, check,
                    QStringLiteral("no %1 for language %2 in %3")
                        .arg(name, quoted(code), shown.join(QStringLiteral(", "))),
                    QStringLiteral("install the library's translations: the texts stay Italian"));
    } else if (loaded.isEmpty()) {
        report.line(Verdict::Warning, check,
                    QStringLiteral("%1 cannot be loaded").arg(quoted(found.first())),
                    QStringLiteral("reinstall the library's translations: the texts stay "
                                   "Italian"));
    } else if (loaded != found.first()) {
        report.line(Verdict::Warning, check,
                    QStringLiteral("%1 cannot be loaded; %2 is used instead")
                        .arg(quoted(found.first()), quoted(loaded)),
                    QStringLiteral("remove or reinstall the first"));
    } else {
        report.line(Verdict::Ok, check,
                    QStringLiteral("language %1: %2").arg(quoted(code), quoted(loaded)));
    }
}

// The installed platform against the one the machine needs, compared as the
// suite compares versions.
void checkPlatform(Report &report)
{
    const char *check = "platform";
    QNodrixRegistry registry;
    const QString installed = registry.getNodrixEnvVersInst();
    const QString needed = registry.getNodrixEnvVersNeeded();
    const QString machine = registry.getMachineName();
    if (!needed.isEmpty() && installed.isEmpty()) {
        report.line(Verdict::Problem, check,
                    QStringLiteral("none is installed; machine %1 needs %2")
                        .arg(quoted(machine), quoted(needed)),
                    QStringLiteral("install the platform"));
    } else if (!needed.isEmpty() && QNodrixCom::compareVersionMMR(installed, needed) < 0) {
        report.line(Verdict::Problem, check,
                    QStringLiteral("%1 is installed; machine %2 needs %3")
                        .arg(quoted(installed), quoted(machine), quoted(needed)),
                    QStringLiteral("update the platform"));
    } else if (needed.isEmpty()) {
        const QString why = machine.isEmpty()
            ? QStringLiteral("no machine name is stored, so the version it needs is unknown")
            : QStringLiteral("the platform store names no version for %1").arg(quoted(machine));
        report.line(Verdict::Warning, check,
                    (installed.isEmpty() ? QStringLiteral("none is installed")
                                         : QStringLiteral("%1 is installed").arg(quoted(installed)))
                        + QStringLiteral("; ") + why,
                    machine.isEmpty() ? QStringLiteral("choose the machine in the application")
                                      : QStringLiteral("reinstall the machine's software"));
    } else {
        report.line(Verdict::Ok, check,
                    QStringLiteral("%1 is installed; machine %2 needs %3")
                        .arg(quoted(installed), quoted(machine), quoted(needed)));
    }
}

int runDoctor(const QStringList &arguments)
{
    QCommandLineParser parser;
    StoreOptions options;
    options.addTo(parser);
    const QCommandLineOption help(QStringList {QStringLiteral("h"), QStringLiteral("help")});
    parser.addOption(help);
    addVerboseOption(parser);
    if (!parser.parse(QStringList {QStringLiteral("ndxcom doctor")} + arguments))
        return usageError("doctor", parser.errorText(), QLatin1String(usage));
    applyVerboseOption(parser);
    if (parser.isSet(help)) {
        out() << "usage: " << usage << "\n\n"
              << "Checks this workstation for the suite application named by --organization\n"
              << "and --application, one line a check, \"ok\", \"warning\" or \"problem\", and\n"
              << "what to do: the settings store can be read and written; the last machine and\n"
              << "its folder; the machine's help index, its entries and those the help would\n"
              << "refuse; the projects folder can be written; the computer and user names the\n"
              << "locks carry read back as written; the projects folder refuses a second\n"
              << "exclusive creation of one file (a probe, removed again); the library's\n"
              << "catalogue for the settings' language; the installed platform against the\n"
              << "one the machine needs. The settings are only read: nothing is written into\n"
              << "them. --verbose adds the library's diagnostics on standard error.\n\n"
              << "Exit status: 0 when every check is ok, 1 with a warning, 2 with a problem,\n"
              << "64 for a wrong command line.\n\n"
              << parser.helpText().section(QLatin1Char('\n'), 2) << Qt::endl;
        return ExitOk;
    }
    if (!parser.positionalArguments().isEmpty())
        return usageError(
            "doctor", QStringLiteral("unexpected '%1'").arg(parser.positionalArguments().first()),
            QLatin1String(usage));
    if (!options.namesApplication(parser))
        return usageError("doctor", QStringLiteral("--organization and --application are needed"),
                          QLatin1String(usage));
    options.apply(parser);

    Report report;
    // A store that is not a regular file is never opened: a pipe there would
    // hold the command for ever. The application's stores come first, the
    // platform store's two files last.
    const QStringList files = options.storeFiles(parser);
    QString blocked, platformBlocked;
    for (int i = 0; i < files.size(); ++i) {
        const QFileInfo info(files.at(i));
        if (info.exists() && !info.isFile()) {
            QString &which = i < 4 ? blocked : platformBlocked;
            if (which.isEmpty())
                which = QStringLiteral("%1 is %2").arg(quoted(files.at(i)), notAFile(info));
        }
    }
    if (!blocked.isEmpty()) {
        report.line(Verdict::Problem, "settings store", blocked,
                    QStringLiteral("remove what stands there: the application cannot read or "
                                   "save its settings"));
        const QString why = QStringLiteral("the settings cannot be read");
        for (const char *check : {"machine", "help index", "projects folder"})
            report.notChecked(check, why);
        checkIdentity(report);
        for (const char *check : {"exclusive creation", "catalogue", "platform"})
            report.notChecked(check, why);
        out().flush();
        return report.exitCode();
    }

    checkStore(report, files.value(0));
    const Machine machine = checkMachine(report);
    checkHelp(report, machine);
    const QString projects = QNodrixRegistry().getProjectsPath();
    const bool projectsThere = checkProjects(report, machine, projects);
    checkIdentity(report);
    if (projectsThere)
        checkExclusive(report, projects);
    else
        report.notChecked("exclusive creation", QStringLiteral("no projects folder"));
    checkCatalogue(report);
    if (!platformBlocked.isEmpty())
        report.line(Verdict::Problem, "platform", platformBlocked,
                    QStringLiteral("remove what stands there and reinstall the platform"));
    else
        checkPlatform(report);
    out().flush();
    return report.exitCode();
}

Command::Registrar registrar("doctor", "check a workstation: settings, machine, help, locks",
                             Command::Console, runDoctor);

} // namespace
