#include "command.h"
#include "lockscan.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDateTime>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>

namespace {

const char usage[] = "ndxcom locks [--depth N] [--sort project|age|holder] [--json] "
                     "[--clear-stale [--yes]] FOLDER";

using namespace LockScan;

// A FOLDER that cannot be read: nothing was listed.
constexpr int ExitFolderUnreadable = 2;

struct Row
{
    Entry entry;
    Assessed assessed;
    QString removal; // with --clear-stale: what became of a stale lock
};

// A lock's time stamp may be anything its writer put there.
bool timeInRange(qint64 ms)
{
    constexpr qint64 limit = 253402300799999LL; // 9999-12-31T23:59:59.999Z
    return ms >= -limit && ms <= limit;
}

QString localTime(qint64 ms)
{
    if (!timeInRange(ms))
        return QStringLiteral("(out of range)");
    return QDateTime::fromMSecsSinceEpoch(ms).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString utcTime(qint64 ms)
{
    if (!timeInRange(ms))
        return QString();
    return QDateTime::fromMSecsSinceEpoch(ms).toUTC().toString(Qt::ISODateWithMs);
}

// The two largest units: "3d 4h", "5h 02m", "12m 30s", "45s".
QString age(qint64 ms, qint64 now)
{
    if (!timeInRange(ms))
        return QStringLiteral("-");
    if (ms > now + 60 * 1000)
        return QStringLiteral("in the future");
    const qint64 s = qMax<qint64>(0, (now - ms) / 1000);
    const auto two = [](qint64 n) { return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0')); };
    if (s >= 86400)
        return QStringLiteral("%1d %2h").arg(s / 86400).arg((s % 86400) / 3600);
    if (s >= 3600)
        return QStringLiteral("%1h %2m").arg(s / 3600).arg(two((s % 3600) / 60));
    if (s >= 60)
        return QStringLiteral("%1m %2s").arg(s / 60).arg(two(s % 60));
    return QStringLiteral("%1s").arg(s);
}

QString processName(const Assessed &a)
{
    if (!a.processChecked)
        return QStringLiteral("not checked");
    switch (a.process) {
    case HolderProcess::Running:
        return QStringLiteral("running");
    case HolderProcess::Gone:
        return QStringLiteral("gone");
    case HolderProcess::Invalid:
        return QStringLiteral("invalid");
    case HolderProcess::Unknown:
        break;
    }
    return QStringLiteral("unknown");
}

QString state(const Row &row)
{
    const QString name = QLatin1String(assessmentName(row.assessed.assessment));
    return row.assessed.reason.isEmpty()
        ? name
        : name + QStringLiteral(" (") + row.assessed.reason + QLatin1Char(')');
}

void sortRows(std::vector<Row> &rows, const QString &key)
{
    const auto byProject = [](const Row &a, const Row &b) {
        const int c = a.entry.project.compare(b.entry.project);
        return c != 0 ? c < 0 : a.entry.relative < b.entry.relative;
    };
    // Locks without a record have no age and no holder: they come last.
    const auto known = [](const Row &r) { return r.entry.readable; };
    if (key == QLatin1String("age")) {
        std::stable_sort(rows.begin(), rows.end(), [&](const Row &a, const Row &b) {
            if (known(a) != known(b))
                return known(a);
            if (known(a) && a.entry.record.time != b.entry.record.time)
                return a.entry.record.time < b.entry.record.time; // oldest first
            return byProject(a, b);
        });
    } else if (key == QLatin1String("holder")) {
        std::stable_sort(rows.begin(), rows.end(), [&](const Row &a, const Row &b) {
            if (known(a) != known(b))
                return known(a);
            if (known(a)) {
                const auto &ra = a.entry.record;
                const auto &rb = b.entry.record;
                if (int c = ra.computer.compare(rb.computer))
                    return c < 0;
                if (int c = ra.user.compare(rb.user))
                    return c < 0;
                if (ra.pid != rb.pid)
                    return ra.pid < rb.pid;
            }
            return byProject(a, b);
        });
    } else {
        std::stable_sort(rows.begin(), rows.end(), byProject);
    }
}

// Columns padded to their longest cell, but no further than a wide name
// would push every other row: a longer cell just runs on.
void printTable(const std::vector<Row> &rows, qint64 now)
{
    constexpr int widest = 40;
    std::vector<QStringList> cells {{QStringLiteral("PROJECT"), QStringLiteral("COMPUTER"),
                                     QStringLiteral("USER"), QStringLiteral("PID"),
                                     QStringLiteral("TAKEN"), QStringLiteral("AGE"),
                                     QStringLiteral("STATE")}};
    for (const Row &row : rows) {
        const Entry &e = row.entry;
        const QString none = QStringLiteral("-");
        const bool known = e.readable;
        cells.push_back({visible(e.project), known ? visible(e.record.computer) : none,
                         known ? visible(e.record.user) : none,
                         known ? QString::number(e.record.pid) : none,
                         known ? localTime(e.record.time) : none,
                         known ? age(e.record.time, now) : none, visible(state(row))});
    }
    std::vector<int> widths(cells.front().size(), 0);
    for (const QStringList &line : cells)
        for (int i = 0; i < line.size(); ++i)
            widths[size_t(i)] = qMax(widths[size_t(i)], qMin(int(line.at(i).size()), widest));
    for (const QStringList &line : cells) {
        QString text;
        for (int i = 0; i < line.size(); ++i) {
            const bool last = i + 1 == line.size();
            text += last ? line.at(i)
                         : line.at(i).leftJustified(widths[size_t(i)]) + QStringLiteral("  ");
        }
        out() << text << '\n';
    }
}

QJsonObject jsonOf(const Row &row, qint64 now)
{
    const Entry &e = row.entry;
    QJsonObject o;
    o.insert(QStringLiteral("project"), e.project);
    o.insert(QStringLiteral("lock"), e.relative);
    o.insert(QStringLiteral("projectExists"), e.projectExists);
    o.insert(QStringLiteral("assessment"), QLatin1String(assessmentName(row.assessed.assessment)));
    o.insert(QStringLiteral("reason"), row.assessed.reason);
    if (e.readable) {
        o.insert(QStringLiteral("computer"), e.record.computer);
        o.insert(QStringLiteral("user"), e.record.user);
        o.insert(QStringLiteral("pid"), e.record.pid);
        o.insert(QStringLiteral("time"), e.record.time);
        const QString utc = utcTime(e.record.time);
        o.insert(QStringLiteral("taken"), utc.isEmpty() ? QJsonValue() : QJsonValue(utc));
        o.insert(QStringLiteral("ageSeconds"),
                 timeInRange(e.record.time) ? QJsonValue((now - e.record.time) / 1000)
                                            : QJsonValue());
        o.insert(QStringLiteral("process"), processName(row.assessed));
    } else {
        for (const char *key :
             {"computer", "user", "pid", "time", "taken", "ageSeconds", "process"})
            o.insert(QLatin1String(key), QJsonValue());
    }
    if (!row.removal.isEmpty())
        o.insert(QStringLiteral("removal"), row.removal);
    return o;
}

// One stdin for every question: a stream per question would lose what the
// previous one read ahead.
bool confirm(const QString &question)
{
    static QTextStream in(stdin);
    out() << question << " [y/N] " << Qt::flush;
    const QString answer = in.readLine().trimmed().toLower();
    return answer == QLatin1String("y") || answer == QLatin1String("yes")
        || answer == QLatin1String("s") || answer == QLatin1String("si");
}

// Removes a stale lock only while it holds the record listed: a lock that
// its holder or another workstation wrote since is left alone. Returns
// "removed", "gone", "changed", "failed" or "declined".
QString clear(const QString &folder, const Row &row, bool ask)
{
    if (ask
        && !confirm(QStringLiteral("Remove the stale lock of %1?").arg(quoted(row.entry.project))))
        return QStringLiteral("declined");
    switch (NdxComFileSharing::removeLockFile(path(folder, row.entry), row.entry.record)) {
    case NdxComFileSharing::LockRemoval::Removed:
        return QStringLiteral("removed");
    case NdxComFileSharing::LockRemoval::Gone:
        return QStringLiteral("gone");
    case NdxComFileSharing::LockRemoval::Changed:
        return QStringLiteral("changed");
    case NdxComFileSharing::LockRemoval::Failed:
        break;
    }
    return QStringLiteral("failed");
}

QString removalLine(const Row &row)
{
    const QString project = quoted(row.entry.project);
    if (row.removal == QLatin1String("removed"))
        return QStringLiteral("removed: ") + project;
    if (row.removal == QLatin1String("gone"))
        return QStringLiteral("gone: %1 (someone else removed it meanwhile)").arg(project);
    if (row.removal == QLatin1String("changed"))
        return QStringLiteral("kept: %1 (the lock changed since it was listed)").arg(project);
    if (row.removal == QLatin1String("failed"))
        return QStringLiteral("kept: %1 (the folder refused the removal)").arg(project);
    return QStringLiteral("kept: ") + project;
}

int runLocks(const QStringList &arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption depthOption(QStringLiteral("depth"),
                                         QStringLiteral("Enter at most N levels of subfolders."),
                                         QStringLiteral("N"));
    const QCommandLineOption sortOption(QStringLiteral("sort"),
                                        QStringLiteral("Order: project, age or holder."),
                                        QStringLiteral("key"), QStringLiteral("project"));
    const QCommandLineOption jsonOption(QStringLiteral("json"),
                                        QStringLiteral("One JSON object a line."));
    const QCommandLineOption clearOption(QStringLiteral("clear-stale"),
                                         QStringLiteral("Remove the stale locks."));
    const QCommandLineOption yesOption(QStringLiteral("yes"),
                                       QStringLiteral("With --clear-stale: do not ask."));
    const QCommandLineOption helpOption(QStringList {QStringLiteral("h"), QStringLiteral("help")},
                                        QStringLiteral("Show this help."));
    parser.addOptions({depthOption, sortOption, jsonOption, clearOption, yesOption, helpOption});
    parser.addPositionalArgument(QStringLiteral("FOLDER"), QStringLiteral("The folder."));

    addVerboseOption(parser);
    if (!parser.parse(QStringList {QStringLiteral("ndxcom locks")} + arguments))
        return usageError("locks", parser.errorText(), QLatin1String(usage));
    applyVerboseOption(parser);
    if (parser.isSet(helpOption)) {
        out() << "usage: " << usage << "\n\n"
              << "Lists every lock file under FOLDER and its subfolders: the project it locks,\n"
              << "who holds it (computer, user, process id), when it was taken (local time and\n"
              << "age) and an assessment:\n"
              << "  held        a holder that may still work on the project\n"
              << "  stale       a holder of this computer whose process no longer runs, or this\n"
              << "              user's lock from another process, which the suite's next open\n"
              << "              removes as a leftover of an earlier run\n"
              << "  orphan      no project beside it, its holder alive or unknown\n"
              << "  unreadable  not a regular file, not readable, or a damaged record\n"
              << "Links are never followed and a named pipe is never waited on. Names are\n"
              << "printed with control characters as escapes.\n\n"
              << "Exit status: 0 when no lock is stale, orphan or unreadable and every folder\n"
              << "could be read, 1 otherwise (stale locks that --clear-stale removed no longer\n"
              << "count), 2 when FOLDER cannot be read, 64 for a wrong command line.\n\n"
              << "  --depth N      enter at most N levels of subfolders (0: FOLDER alone)\n"
              << "  --sort KEY     project (the default), age (the oldest first) or holder\n"
              << "                 (computer, user, process id); locks without a record last\n"
              << "  --json         one JSON object a line (JSON Lines) instead of the table:\n"
              << "                 project, lock, projectExists, assessment, reason, computer,\n"
              << "                 user, pid, time (ms since the epoch), taken (UTC),\n"
              << "                 ageSeconds, process (running, gone, invalid, unknown, not\n"
              << "                 checked) and, with --clear-stale, removal\n"
              << "  --clear-stale  remove the locks assessed stale, each after a yes/no question\n"
              << "                 on the terminal, and only while it still holds the record\n"
              << "                 listed: a lock written since is kept\n"
              << "  --yes          with --clear-stale, remove them without asking (needed with\n"
              << "                 --json)" << Qt::endl;
        return ExitOk;
    }
    const QStringList folders = parser.positionalArguments();
    if (folders.size() != 1)
        return usageError("locks", QStringLiteral("one folder is needed"), QLatin1String(usage));
    Options options;
    if (parser.isSet(depthOption)) {
        bool ok = false;
        options.depth = parser.value(depthOption).toInt(&ok);
        if (!ok || options.depth < 0)
            return usageError("locks", QStringLiteral("--depth takes a number from 0"),
                              QLatin1String(usage));
    }
    const QString sortKey = parser.value(sortOption);
    if (sortKey != QLatin1String("project") && sortKey != QLatin1String("age")
        && sortKey != QLatin1String("holder"))
        return usageError("locks", QStringLiteral("--sort takes project, age or holder"),
                          QLatin1String(usage));
    const bool json = parser.isSet(jsonOption);
    const bool clearing = parser.isSet(clearOption);
    const bool ask = clearing && !parser.isSet(yesOption);
    if (parser.isSet(yesOption) && !clearing)
        return usageError("locks", QStringLiteral("--yes goes with --clear-stale"),
                          QLatin1String(usage));
    if (json && ask)
        return usageError("locks",
                          QStringLiteral("--json with --clear-stale needs --yes: the questions "
                                         "would go into the JSON"),
                          QLatin1String(usage));

    const QString folder = folders.first();
    const Result found = scan(folder, options);
    if (!found.folderReadable) {
        err() << "ndxcom locks: " << quoted(folder)
              << " cannot be read: " << visible(found.folderError) << Qt::endl;
        return ExitFolderUnreadable;
    }
    for (const QString &unread : found.unreadableFolders)
        err() << "ndxcom locks: folder not read: " << visible(unread) << Qt::endl;

    const Identity identity = Identity::local();
    std::vector<Row> rows;
    rows.reserve(found.entries.size());
    for (const Entry &entry : found.entries)
        rows.push_back(Row {entry, assess(entry, identity), QString()});
    sortRows(rows, sortKey);
    const qint64 now = QDateTime::currentMSecsSinceEpoch();

    int counts[4] = {};
    for (const Row &row : rows)
        ++counts[int(row.assessed.assessment)];
    bool trouble = !found.unreadableFolders.isEmpty() || counts[int(Assessment::Orphan)] > 0
        || counts[int(Assessment::Unreadable)] > 0;

    if (json) {
        // Removed first, so that each object says what became of its lock.
        for (Row &row : rows) {
            if (clearing && row.assessed.assessment == Assessment::Stale)
                row.removal = clear(folder, row, false);
            out() << QString::fromUtf8(
                QJsonDocument(jsonOf(row, now)).toJson(QJsonDocument::Compact))
                  << '\n';
        }
    } else {
        if (rows.empty()) {
            out() << "no locks under " << quoted(folder) << '\n';
        } else {
            printTable(rows, now);
            out() << '\n'
                  << rows.size() << (rows.size() == 1 ? " lock: " : " locks: ")
                  << counts[int(Assessment::Held)] << " held, " << counts[int(Assessment::Stale)]
                  << " stale, " << counts[int(Assessment::Orphan)] << " orphan, "
                  << counts[int(Assessment::Unreadable)] << " unreadable\n";
        }
        out().flush();
        if (clearing) {
            for (Row &row : rows) {
                if (row.assessed.assessment != Assessment::Stale)
                    continue;
                row.removal = clear(folder, row, ask);
                out() << removalLine(row) << Qt::endl;
            }
        }
    }
    for (const Row &row : rows) {
        if (row.assessed.assessment == Assessment::Stale && row.removal != QLatin1String("removed")
            && row.removal != QLatin1String("gone"))
            trouble = true;
    }
    out().flush();
    return trouble ? ExitFailure : ExitOk;
}

Command::Registrar registrar("locks", "list the locks under a folder, and clear the stale ones",
                             Command::Console, runLocks);

} // namespace
