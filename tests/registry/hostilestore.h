#ifndef HOSTILESTORE_H
#define HOSTILESTORE_H

// Hostile settings stores for the library to read and write: garbage, a
// workstation's store damaged in one of many ways, files that cannot be
// written; and the checks that every value of a key the library did not
// write survives its writes, counted for the reliability figure.

#include <QNodrixRegistry>

#include "storetest.h"

#include <QtCore/QByteArray>
#include <QtCore/QFileDevice>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <iterator>

namespace HostileStore {

// The reliability figure: how many hostile files the library was run on, and
// how many values of keys it did not write had to survive its writes and did
// not. A crash ends the program before the figure is printed, which
// scripts/test reports as a failure of its own.
struct HostileTally
{
    int files = 0;
    int checked = 0;
    int lost = 0;
    int unwritable = 0; // values QSettings itself cannot write back
};

HostileTally &tally();

// A literal with its embedded zero bytes, without the terminating one.
template<int N>
QByteArray bytes(const char (&literal)[N])
{
    return QByteArray(literal, N - 1);
}

// Deterministic garbage, so a failure can be reproduced.
QByteArray garbage(int size, quint32 seed, const QByteArray &excluded = QByteArray());

// One value that must still be on disk: counted, and reported when lost. A
// text is compared as text, the way the file keeps it.
bool kept(const StoreTest::DiskStore &disk, const QString &key, const QVariant &expected);

using StoreValues = QMap<QString, QVariant>;

// The values of a file that survive its being rewritten by a plain QSettings
// (one key of its own added, then synced). Garbage can hold what QSettings
// reads but cannot write back - a lone UTF-16 surrogate, a name or a quoted
// text made of control bytes and broken UTF-8 - and every program that
// writes through QSettings loses those the same way. What the library must
// keep is everything else; *unwritable counts what was left out.
StoreValues valuesToKeep(const QString &file, int *unwritable);

// After the library's writes, every value read before under a key it did not
// write is still there, unchanged. `written` names the keys it may have
// written: exact keys, and under "Machines/" the last part of a key (the
// machine group depends on whatever "LastMachine" the file held). Answers
// the number of values lost.
int checkOthersKept(const StoreValues &before, const QString &file, const QStringList &written,
                    const QStringList &writtenMachineLeaves);

// Hostile files made from a workstation's store: the groups the library reads
// and writes, and groups of other programs that share the file. Each kind of
// damage is applied with a seed, so every file can be made again. The kinds
// are what no reader of the store may choke on.
inline const char *const hostileKinds[] = {
    "flipped bytes",    "truncated",  "garbage lines",      "wrong kinds",
    "duplicate groups", "long lines", "zero and 0xff runs", "line ends",
    "broken escapes",   "encodings",  "shuffled lines",     "nested brackets",
};
constexpr int hostileKindCount = int(std::size(hostileKinds));
constexpr int hostileSeedsPerKind = 25;

// The store of a kind of damage (an index into hostileKinds) made with a seed.
QByteArray hostileStore(int kind, quint32 seed);

// Reads every value through every kind of reader; the results themselves
// are checked by the callers.
void readEverything(QNodrixRegistry &registry);
// Every reader gives its default.
void verifyDefaults(QNodrixRegistry &registry);

// Makes a file or folder unwritable, also for root: permissions for a normal
// user, the immutable attribute for root (who ignores permissions). Undone
// when the guard goes.
class ReadOnlyGuard
{
public:
    ReadOnlyGuard() = default;
    ReadOnlyGuard(const ReadOnlyGuard &) = delete;
    ReadOnlyGuard &operator=(const ReadOnlyGuard &) = delete;
    ~ReadOnlyGuard();
    // False where the platform cannot (Windows, whose store is the registry
    // and whose tests skip the files').
    bool makeReadOnly(const QString &path);

private:
    enum Mode { None, Permissions, Immutable };
    Mode m_mode = None;
    QString m_path;
    QFileDevice::Permissions m_permissions;
};

} // namespace HostileStore

#endif // HOSTILESTORE_H
