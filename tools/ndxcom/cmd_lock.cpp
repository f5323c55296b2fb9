#include "command.h"
#include "lockprocess.h"

#include <private/qfilesharing_p.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <cstdio>

namespace {

const char usage[] = "ndxcom lock [--clear [--yes]] PROJECT.ndx";

enum LockExit { Free = 0, OwnLock = 1, HeldOrUnreadable = 2 };

// Milliseconds since the epoch in ISO form, UTC; a time stamp a damaged lock
// can carry beyond the year 9999 is shown as a number only.
QString isoTime(qint64 ms)
{
    constexpr qint64 limit = 253402300799999LL; // 9999-12-31T23:59:59.999Z
    if (ms < -limit || ms > limit)
        return QStringLiteral("(out of range)");
    return QDateTime::fromMSecsSinceEpoch(ms).toUTC().toString(Qt::ISODateWithMs);
}

bool confirm(const QString &question)
{
    out() << question << " [y/N] " << Qt::flush;
    QTextStream in(stdin);
    const QString answer = in.readLine().trimmed().toLower();
    return answer == QLatin1String("y") || answer == QLatin1String("yes")
        || answer == QLatin1String("s") || answer == QLatin1String("si");
}

int runLock(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Shows whether a project is free or who holds it, from its lock file (the project path "
        "with \".ndx\" replaced by \".~lock\").\n\nExit status: 0 free, 1 held by this process, "
        "2 held by another process or an unreadable lock. With --clear: 0 when the project is "
        "free afterwards, 1 when the lock was kept.\n\nFor a holder on this computer it also "
        "tells whether its process is still running; the exit status does not depend on "
        "it."));
    const QCommandLineOption clearOption(QStringLiteral("clear"),
                                         QStringLiteral("Remove the lock, after a question."));
    const QCommandLineOption yesOption(QStringLiteral("yes"),
                                       QStringLiteral("With --clear: do not ask."));
    const QCommandLineOption helpOption(QStringLiteral("help"), QStringLiteral("Show this help."));
    parser.addOption(clearOption);
    parser.addOption(yesOption);
    parser.addOption(helpOption);
    parser.addPositionalArgument(QStringLiteral("PROJECT.ndx"), QStringLiteral("The project."));

    addVerboseOption(parser);
    if (!parser.parse(QStringList {QStringLiteral("ndxcom lock")} + arguments))
        return usageError("lock", parser.errorText(), QLatin1String(usage));
    applyVerboseOption(parser);
    if (parser.isSet(helpOption)) {
        out() << "usage: " << usage << "\n\n"
              << parser.applicationDescription() << "\n\n"
              << "  --clear   remove the lock, after a yes/no question on the terminal\n"
              << "  --yes     with --clear, remove it without asking" << Qt::endl;
        return ExitOk;
    }
    const QStringList projects = parser.positionalArguments();
    if (projects.size() != 1)
        return usageError("lock", QStringLiteral("one project is needed"), QLatin1String(usage));
    if (parser.isSet(yesOption) && !parser.isSet(clearOption))
        return usageError("lock", QStringLiteral("--yes goes with --clear"), QLatin1String(usage));

    using namespace NdxComFileSharing;
    const QString project = projects.first();
    out() << "project: " << visible(project) << '\n';
    if (!hasLockFile(project)) {
        // Its lock path would be the project itself, which is never a lock.
        out() << "lock: none (the path has no lower-case \".ndx\")\nstate: free" << Qt::endl;
        return Free;
    }
    const QString lockName = lockPath(project);
    out() << "lock: " << visible(lockName) << '\n';

    const QFileInfo info(lockName);
    // Looked up as the library does, also under a name the locale cannot
    // decode.
    if (!lockEntryExists(lockName)) {
        out() << "state: free" << Qt::endl;
        return Free;
    }

    QFile lock(lockName);
    LockRecord record;
    int state = HeldOrUnreadable;
    const bool readable = readLockFile(lock, &record);
    if (!readable) {
        out() << "state: unreadable ("
              << (info.isDir()         ? QStringLiteral("a folder")
                      : !info.exists() ? QStringLiteral("a broken link")
                      : !info.isFile() ? QStringLiteral("not a regular file")
                                       : visible(lock.errorString()))
              << ")\n";
    } else {
        const bool sameUser
            = record.computer == localComputerName() && record.user == localUserName();
        const bool sameProcess = sameUser && record.pid == QCoreApplication::applicationPid();
        state = sameProcess ? OwnLock : HeldOrUnreadable;
        out() << "state: " << (sameProcess ? "held by this process" : "held") << '\n'
              << "computer: " << visible(record.computer) << '\n'
              << "user: " << visible(record.user) << '\n'
              << "pid: " << record.pid << '\n'
              << "locked: " << isoTime(record.time) << " (" << record.time
              << " ms since the epoch)\n";
        if (!record.complete)
            out() << "record: damaged (cut short or with impossible lengths)\n";
        // For the reader only: whether the holder is still there. Nothing
        // else here depends on it.
        if (record.computer != localComputerName()) {
            out() << "process: on another computer, not checked\n";
        } else if (!sameProcess) {
            switch (holderProcess(record.pid)) {
            case HolderProcess::Running:
                out() << "process: running on this computer\n";
                break;
            case HolderProcess::Gone:
                out() << "process: not running on this computer (the lock is left over)\n";
                break;
            case HolderProcess::Invalid:
                out() << "process: no valid process id\n";
                break;
            case HolderProcess::Unknown:
                out() << "process: unknown\n";
                break;
            }
        }
        if (sameUser && !sameProcess)
            out() << "note: this user on this computer; the suite's next open takes it as a "
                     "leftover of an earlier run\n";
    }
    out().flush();

    if (!parser.isSet(clearOption))
        return state;

    if (!readable) {
        out() << "kept: not a readable lock file, left alone" << Qt::endl;
        return ExitFailure;
    }
    if (!parser.isSet(yesOption)
        && !confirm(QStringLiteral("Remove the lock of %1?").arg(visible(project)))) {
        out() << "kept" << Qt::endl;
        return ExitFailure;
    }
    // The answer was given for the record shown: a lock that another
    // workstation wrote while the question waited is not removed unseen.
    switch (removeLockFile(lockName, record)) {
    case LockRemoval::Removed:
        break;
    case LockRemoval::Gone:
        out() << "gone: someone else removed it meanwhile" << Qt::endl;
        return ExitOk;
    case LockRemoval::Changed:
        out() << "kept: the lock changed since it was shown" << Qt::endl;
        return ExitFailure;
    case LockRemoval::Failed:
        out() << "kept: the folder refused the removal" << Qt::endl;
        return ExitFailure;
    }
    out() << "removed" << Qt::endl;
    return ExitOk;
}

Command::Registrar registrar("lock", "show who holds a project, or clear its lock",
                             Command::Console, runLock);

} // namespace
