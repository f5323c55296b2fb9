#ifndef QFILESHARING_P_H
#define QFILESHARING_P_H

//
//  W A R N I N G
//  -------------
//
// This file is not part of the NdxCom API. It may change from version to
// version without notice, or even be removed.
//

#include "qfilesharing.h"

#include <QtCore/QByteArray>
#include <QtCore/QLoggingCategory>
#include <QtCore/QString>
#include <QtCore/QtEndian>

#include <climits>

QT_BEGIN_NAMESPACE
class QFile;
QT_END_NAMESPACE

// "ndxcom.filesharing": why a lock could not be created, written, hidden,
// read or removed, with the path and the system's error. Off unless turned on
// (QT_LOGGING_RULES="ndxcom.*=true", or `ndxcom --verbose`).
Q_DECLARE_LOGGING_CATEGORY(lcNdxComFileSharing)

// Test seam. Sharing control is off by default; when enabled, every later
// setup of a QFileSharing (construction, open()) leaves m_bNoSharing false,
// so the whole lock-file protocol runs. The same switch as the public
// QFileSharing::setSharingControlEnabled(); kept for the library's tests.
NDXCOM_AUTOTEST_EXPORT void ndxcomSetSharingControl(bool enabled);

namespace NdxComFileSharing {

// The lock path of a project: every ".ndx" replaced by ".~lock",
// case-sensitively. A path without a lower-case ".ndx" comes back unchanged.
NDXCOM_AUTOTEST_EXPORT QString lockPath(const QString &projectPath);

// Whether the project has a lock file of its own, that is whether its lock
// path differs from the project path. When it does not, nothing may read,
// write or delete that path as a lock.
NDXCOM_AUTOTEST_EXPORT bool hasLockFile(const QString &projectPath);

// Identity, as setupPar() reads it.
// The host name up to the first '.', decoded as local 8-bit text.
NDXCOM_AUTOTEST_EXPORT QString shortHostName(const QByteArray &hostName);
// The login name as the record keeps it: empty when longer than
// UserNameCapacity UTF-16 code units, otherwise unchanged.
constexpr int UserNameCapacity = 511; // a 512-character buffer with its null
NDXCOM_AUTOTEST_EXPORT QString fitUserName(const QString &login);
// This computer's and this user's names (platform file).
NDXCOM_AUTOTEST_EXPORT QString localComputerName();
NDXCOM_AUTOTEST_EXPORT QString localUserName();
// Gives a freshly written lock file the platform's hidden attribute; nothing
// on Linux (platform file).
void hideLockFile(const QString &lockName);

// At most this many bytes of a lock file are read. A record that the library
// writes is 24 bytes plus its names (a host name of at most 64 bytes, a user
// name of at most 511 UTF-16 code units in UTF-8), far below it.
constexpr qsizetype LockReadLimit = qsizetype(1) << 20;

// One lock record as read.
struct LockRecord
{
    qint64 pid = 0;
    qint64 time = 0; // milliseconds since 1970-01-01T00:00:00 UTC
    QString computer;
    QString user;
    // Every field was there in full and no length was negative. Bytes after
    // the record are ignored and do not make it incomplete.
    bool complete = false;
};

// Walks the bytes of a record; every read stays inside the bytes it was given.
class LockRecordReader
{
public:
    LockRecordReader(const uchar *data, qsizetype size)
        : m_p(data)
        , m_left(size)
    { }

    // A field that is missing or cut short reads as 0 and consumes the rest.
    template<typename T>
    T number()
    {
        if (m_left < qsizetype(sizeof(T))) {
            m_complete = false;
            m_p += m_left;
            m_left = 0;
            return 0;
        }
        const T value = qFromLittleEndian<T>(m_p);
        m_p += sizeof(T);
        m_left -= qsizetype(sizeof(T));
        return value;
    }

    // A length and that many bytes, decoded as Latin-1; a negative length
    // takes no bytes, a length beyond the end only the bytes that remain.
    QString name()
    {
        const qint32 length = number<qint32>();
        qsizetype n = length < 0 ? 0 : qsizetype(length);
        if (length < 0 || n > m_left) {
            m_complete = false;
            n = qMin(n, m_left);
        }
        const QString text = QString::fromLatin1(reinterpret_cast<const char *>(m_p), int(n));
        m_p += n;
        m_left -= n;
        return text;
    }

    bool complete() const { return m_complete; }

private:
    const uchar *m_p;
    qsizetype m_left;
    bool m_complete = true;
};

// Reads a record from bytes, as ReadLock() and the `ndxcom lock` tool do.
// Never fails and never reads outside [data, data + size): a fixed field that
// is missing or cut short reads as 0 and consumes what is left, a negative
// length reads as 0 bytes, a length beyond the bytes that remain takes only
// what remains. Name bytes are decoded as Latin-1. Only the first
// LockReadLimit bytes are looked at, so no string is longer than that.
inline LockRecord readLockRecord(const char *data, qsizetype size)
{
    static const char nothing = 0;
    if (!data || size < 0) {
        data = &nothing;
        size = 0;
    }
    LockRecordReader reader(reinterpret_cast<const uchar *>(data), qMin(size, LockReadLimit));
    LockRecord record;
    record.pid = reader.number<qint64>();
    record.time = reader.number<qint64>();
    record.computer = reader.name();
    record.user = reader.name();
    record.complete = reader.complete();
    return record;
}

inline LockRecord readLockRecord(const QByteArray &bytes)
{
    return readLockRecord(bytes.constData(), bytes.size());
}

// The record as WriteLock() writes it: each length counts the name's UTF-16
// code units, the bytes that follow are its UTF-8 encoding.
inline QByteArray writeLockRecord(qint64 pid, qint64 time, const QString &computer,
                                  const QString &user)
{
    QByteArray bytes;
    const auto putNumber = [&bytes](auto value) {
        char raw[sizeof(value)];
        qToLittleEndian(value, raw);
        bytes.append(raw, int(sizeof(value)));
    };
    const auto putName = [&](const QString &name) {
        putNumber(qint32(qMin<qsizetype>(name.size(), INT_MAX)));
        bytes.append(name.toUtf8());
    };
    putNumber(qint64(pid));
    putNumber(qint64(time));
    putName(computer);
    putName(user);
    return bytes;
}

// Whether anything stands at a lock path: a file, a folder, a pipe, or a
// symbolic link, also one that leads nowhere (platform file). A path that
// cannot be looked at counts as taken.
NDXCOM_AUTOTEST_EXPORT bool lockEntryExists(const QString &path);

// Creates the lock file at lock.fileName() exclusively, never through a link,
// and opens it for writing (platform file): false when anything stands there.
bool createLockFile(QFile &lock);
// Removes a lock file this process has just created and could not write.
void discardLockFile(QFile &lock);

// Reads a lock file as ReadLock() does, without ever blocking or following a
// link (platform file): false unless `path` itself is a regular file that
// can be opened for reading; otherwise at most LockReadLimit bytes of it go
// into *bytes.
bool readLockBytes(const QString &path, QByteArray *bytes);

// How removeLockFile() ended.
enum class LockRemoval {
    Removed, // the lock read before was there and is deleted
    Gone, // nothing was there any more: someone else deleted it
    Changed, // another file or another record stands there now: left alone
    Failed // it is the same lock, but the folder refused the deletion
};

// Deletes the lock at `path` only if it still holds the record that was read
// (`read`): the file is read again, without blocking or following a link, and
// deleted only when it is a regular file with that record and the name still
// leads to the file just read (platform file). Between that last look and the
// deletion itself there is no lock on a shared folder to hold it still: a
// writer that replaces the file in those few microseconds loses its lock.
NDXCOM_AUTOTEST_EXPORT LockRemoval removeLockFile(const QString &path, const LockRecord &read);

// Test seam: called with the lock path by removeLockFile() before it looks
// at the file again, so that a test can delete or replace the lock between
// the library's read and its deletion. nullptr (the default) for none.
NDXCOM_AUTOTEST_EXPORT void setBeforeLockRemoval(void (*hook)(const QString &path));
void beforeLockRemoval(const QString &path);

// Whether two records name the same holder at the same time of locking.
inline bool sameLockRecord(const LockRecord &a, const LockRecord &b)
{
    return a.pid == b.pid && a.time == b.time && a.computer == b.computer && a.user == b.user;
}

// Opens and reads a lock file as ReadLock() does. False when the path is not
// an existing regular file (a symbolic link is never followed) or cannot be
// opened read-only; otherwise reads at most LockReadLimit bytes (never more
// than the file holds, and never waiting for a writer), fills *record and
// returns true, however damaged the content.
NDXCOM_AUTOTEST_EXPORT bool readLockFile(QFile &lock, LockRecord *record);

} // namespace NdxComFileSharing

// A copy of an object's members, for the library's own tests.
struct NDXCOM_AUTOTEST_EXPORT QFileSharingState
{
    qint64 pid = 0;
    QString computer;
    QString user;
    QString fileName;
    QString lockName;
    bool rdOnly = false;
    bool noSharing = false;
    qint64 lockPid = 0;
    qint64 lockTime = 0;
    QString lockComputer;
    QString lockUser;

    static QFileSharingState of(const QFileSharing &sharing);
};

#endif // QFILESHARING_P_H
