#ifndef NDXCOM_TOOL_LOCKSCAN_H
#define NDXCOM_TOOL_LOCKSCAN_H

#include "lockprocess.h"

#include <private/qfilesharing_p.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

// The locks under a folder, as `ndxcom locks` lists them. Kept apart from the
// command so that the benchmark times the very walk the command runs.
namespace LockScan {

// What stands at a name that ends in ".~lock".
enum class EntryKind { File, Folder, Link, Pipe, Other };

// One entry whose name ends in ".~lock", as the walk found it.
struct Entry
{
    QString relative; // below FOLDER, '/'-separated (see path())
    QString project; // the project beside it (relative), or the one it would lock
    bool projectExists = false;
    EntryKind kind = EntryKind::File;
    bool readable = false;
    QString whyUnreadable; // when !readable: the system's words
    NdxComFileSharing::LockRecord record; // when readable
};

struct Options
{
    int depth = -1; // folders below FOLDER to enter; -1 for all
};

struct Result
{
    bool folderReadable = false;
    QString folderError; // when !folderReadable
    std::vector<Entry> entries; // in no particular order
    QStringList unreadableFolders; // below FOLDER, with the reason after ": "
};

// The lock's path as removeLockFile() takes it: FOLDER, '/', the relative path.
QString path(const QString &folder, const Entry &entry);

// Walks `folder` (platform file). Links are never followed and never
// entered, a pipe is never opened for more than a look that cannot wait,
// each entry is looked at once, and only entries whose name ends in ".~lock"
// are read, at most LockReadLimit bytes each. A lock belongs to the entry of
// its own folder whose lock path it is; `folder` itself may be a link.
Result scan(const QString &folder, const Options &options);

// The assessment of one lock.
enum class Assessment { Held, Stale, Orphan, Unreadable };

struct Assessed
{
    Assessment assessment = Assessment::Held;
    QString reason; // empty for a plain "held"
    // For a holder on this computer, whether its process runs; otherwise
    // not looked at (checked false).
    bool processChecked = false;
    HolderProcess process = HolderProcess::Unknown;
};

// The identity the library compares a lock with: this computer's and this
// user's names, as they go into a lock.
struct Identity
{
    QString computer;
    QString user;
    static Identity local();
};

// Unreadable first (not a regular file, cannot be read, or a damaged
// record), then stale (a holder of this computer whose process is gone, or
// this user's lock on this computer, which the suite's next open or test
// removes as a leftover of an earlier run, as QFileSharing::TstFileLocked
// does), then orphan (no project beside it, the holder alive or unknown),
// otherwise held.
Assessed assess(const Entry &entry, const Identity &identity);

const char *assessmentName(Assessment assessment);

} // namespace LockScan

#endif // NDXCOM_TOOL_LOCKSCAN_H
