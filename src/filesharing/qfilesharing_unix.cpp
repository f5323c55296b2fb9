// Identity of this process on Linux and other Unix systems, and the lock
// file's reading and deletion, which must never block, follow a link or
// delete a lock that someone else wrote in between.

#include "qfilesharing_p.h"

#include <QtCore/QFile>

#include <cerrno>

#include <dirent.h>
#include <vector>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace NdxComFileSharing {

QString localComputerName()
{
    // 255 bytes is the most a host name can have (HOST_NAME_MAX on Linux);
    // gethostname() need not terminate a name it truncates.
    char name[257] = {};
    if (gethostname(name, sizeof(name) - 1) != 0)
        return QString();
    return shortHostName(QByteArray(name));
}

QString localUserName()
{
    // The password database, never $USER or $LOGNAME: the lock must name the
    // account the process runs as, whatever its environment says.
    long hint = sysconf(_SC_GETPW_R_SIZE_MAX);
    std::vector<char> buffer(hint > 0 ? size_t(hint) : size_t(4096));
    passwd entry {};
    passwd *found = nullptr;
    int rc;
    while ((rc = getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found)) == ERANGE
           && buffer.size() < (size_t(1) << 20))
        buffer.resize(buffer.size() * 2);
    if (rc != 0 || !found || !found->pw_name)
        return QString();
    return fitUserName(QString::fromLocal8Bit(found->pw_name));
}

void hideLockFile(const QString &)
{
    // Linux has no hidden attribute, and a lock cannot be hidden by a leading
    // dot: other workstations look for it under its fixed name.
}

namespace {

const char ProjectExtension[] = ".ndx";
const char LockExtension[] = ".~lock";

// The bytes of a path as its folder holds them. A name whose bytes are not
// valid in the locale (a Latin-1 "caf\xe9.ndx" on a UTF-8 system) reaches the
// application with U+FFFD in their place, and encoding it back would name
// another file: such a name is looked up in its folder, as the one entry
// whose name decodes to it. A lock that does not exist yet is found through
// its project's entry, ".ndx" read as ".~lock", so that it is written under
// the project's own bytes.
QByteArray nativeName(const QString &path)
{
    if (!path.contains(QChar(QChar::ReplacementCharacter)))
        return QFile::encodeName(path);
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    const QString name = path.mid(slash + 1);
    QByteArray folder;
    if (slash == 0)
        folder = "/";
    else if (slash > 0)
        folder = nativeName(path.left(slash)) + '/';
    QByteArray exact, derived;
    int exactCount = 0, derivedCount = 0;
    if (DIR *dir = ::opendir(folder.isEmpty() ? "." : folder.constData())) {
        while (const dirent *entry = ::readdir(dir)) {
            const QByteArray bytes(entry->d_name);
            if (QFile::decodeName(bytes) == name) {
                exact = bytes;
                ++exactCount;
            }
            QByteArray asLock = bytes;
            asLock.replace(ProjectExtension, LockExtension);
            if (asLock != bytes && QFile::decodeName(asLock) == name) {
                derived = asLock;
                ++derivedCount;
            }
        }
        ::closedir(dir);
    }
    // Two entries that read alike name no one file: the name stays as given.
    if (exactCount == 1)
        return folder + exact;
    if (exactCount == 0 && derivedCount == 1)
        return folder + derived;
    return folder + QFile::encodeName(name);
}

// Opens the lock itself for reading: never a link's target (O_NOFOLLOW), and
// without waiting for a writer should a pipe stand there (O_NONBLOCK). -1
// with errno set when it cannot be opened or is not a regular file.
int openLock(const QString &path, struct stat *info)
{
    const QByteArray name = nativeName(path);
    int fd;
    do {
        fd = ::open(name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0)
        return -1;
    if (::fstat(fd, info) != 0 || !S_ISREG(info->st_mode)) {
        ::close(fd);
        errno = 0; // see fileError()
        return -1;
    }
    return fd;
}

// What openLock() or readAll() left in errno, as a support person reads it.
QString fileError(int error)
{
    if (error == 0)
        return QStringLiteral("not a regular file");
    if (error == ELOOP)
        return QStringLiteral("a symbolic link, which is never followed");
    return qt_error_string(error);
}

// At most LockReadLimit bytes, never more than the file holds.
bool readAll(int fd, QByteArray *bytes)
{
    bytes->clear();
    char buffer[4096];
    while (bytes->size() < LockReadLimit) {
        const qsizetype want = qMin<qsizetype>(sizeof(buffer), LockReadLimit - bytes->size());
        const ssize_t got = ::read(fd, buffer, size_t(want));
        if (got < 0 && (errno == EINTR || errno == EAGAIN))
            continue;
        if (got < 0)
            return false;
        if (got == 0)
            break;
        bytes->append(buffer, int(got));
    }
    return true;
}

} // namespace

bool lockEntryExists(const QString &path)
{
    struct stat info;
    if (::lstat(nativeName(path).constData(), &info) == 0)
        return true;
    return errno != ENOENT && errno != ENOTDIR;
}

bool readLockBytes(const QString &path, QByteArray *bytes)
{
    struct stat info;
    const int fd = openLock(path, &info);
    if (fd < 0) {
        const int error = errno; // before the logging can change it
        qCWarning(lcNdxComFileSharing)
            << "lock not read:" << path << qUtf8Printable(fileError(error));
        return false;
    }
    const bool ok = readAll(fd, bytes);
    if (!ok) {
        const int error = errno; // before the logging can change it
        qCWarning(lcNdxComFileSharing)
            << "lock not read:" << path << qUtf8Printable(fileError(error));
    }
    ::close(fd);
    return ok;
}

LockRemoval removeLockFile(const QString &path, const LockRecord &read)
{
    beforeLockRemoval(path);
    const QByteArray name = nativeName(path);
    struct stat opened;
    const int fd = openLock(path, &opened);
    if (fd < 0) {
        struct stat there;
        if (::lstat(name.constData(), &there) != 0 && errno == ENOENT)
            return LockRemoval::Gone;
        qCWarning(lcNdxComFileSharing)
            << "lock not removed:" << path << "is no longer a lock file this user can read";
        return LockRemoval::Changed;
    }
    QByteArray bytes;
    const bool ok = readAll(fd, &bytes);
    ::close(fd);
    if (!ok || !sameLockRecord(readLockRecord(bytes), read)) {
        qCWarning(lcNdxComFileSharing)
            << "lock not removed:" << path << "holds another record than the one read before";
        return LockRemoval::Changed;
    }
    // The name must still lead to the file just read. From here to unlink()
    // is the window no shared folder lets us close.
    struct stat there;
    if (::lstat(name.constData(), &there) != 0)
        return errno == ENOENT ? LockRemoval::Gone : LockRemoval::Changed;
    if (there.st_dev != opened.st_dev || there.st_ino != opened.st_ino) {
        qCWarning(lcNdxComFileSharing)
            << "lock not removed:" << path << "was replaced while it was being read";
        return LockRemoval::Changed;
    }
    if (::unlink(name.constData()) == 0)
        return LockRemoval::Removed;
    if (errno == ENOENT)
        return LockRemoval::Gone;
    const int error = errno; // before the logging can change it
    qCWarning(lcNdxComFileSharing)
        << "lock not removed:" << path << qUtf8Printable(qt_error_string(error));
    return LockRemoval::Failed;
}

bool createLockFile(QFile &lock)
{
    const QByteArray name = nativeName(lock.fileName());
    int fd;
    do {
        // 0666 less the umask, like any new document of the user.
        fd = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0) {
        const int error = errno; // before the logging can change it
        qCWarning(lcNdxComFileSharing)
            << "lock not created:" << lock.fileName() << qUtf8Printable(fileError(error));
        return false;
    }
    if (!lock.open(fd, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)) {
        qCWarning(lcNdxComFileSharing)
            << "lock not created:" << lock.fileName() << qUtf8Printable(lock.errorString());
        ::close(fd);
        ::unlink(name.constData());
        return false;
    }
    return true;
}

void discardLockFile(QFile &lock)
{
    lock.close();
    if (::unlink(nativeName(lock.fileName()).constData()) != 0 && errno != ENOENT) {
        const int error = errno; // before the logging can change it
        qCWarning(lcNdxComFileSharing) << "unwritten lock not removed:" << lock.fileName()
                                       << qUtf8Printable(qt_error_string(error));
    }
}

} // namespace NdxComFileSharing
