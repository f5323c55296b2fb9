// Identity of this process on Windows, and the hidden lock file.

#include "qfilesharing_p.h"

#ifdef Q_OS_WIN

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <vector>

#include <qt_windows.h>

namespace NdxComFileSharing {

QString localComputerName()
{
    // First without a buffer to learn the size, then into one of that size.
    DWORD size = 0;
    GetComputerNameExW(ComputerNameNetBIOS, nullptr, &size);
    if (size == 0)
        return QString();
    std::vector<wchar_t> name(size + 1, L'\0');
    if (!GetComputerNameExW(ComputerNameNetBIOS, name.data(), &size))
        return QString();
    return QString::fromWCharArray(name.data(), int(size));
}

QString localUserName()
{
    // A 512-character buffer; a longer name does not fit and gives an empty
    // user name, as on every other platform.
    wchar_t name[UserNameCapacity + 1] = {};
    DWORD size = UserNameCapacity + 1;
    if (!GetUserNameW(name, &size) || size == 0)
        return QString();
    return fitUserName(QString::fromWCharArray(name, int(size) - 1));
}

void hideLockFile(const QString &lockName)
{
    const QString native = QDir::toNativeSeparators(lockName);
    if (!SetFileAttributesW(reinterpret_cast<const wchar_t *>(native.utf16()),
                            FILE_ATTRIBUTE_HIDDEN)) {
        const int error = int(GetLastError()); // before the logging can change it
        qCWarning(lcNdxComFileSharing)
            << "lock not hidden:" << lockName << qUtf8Printable(qt_error_string(error));
    }
}

// Windows has no O_NOFOLLOW or O_NONBLOCK to hand: links (symbolic links and
// junctions) and anything but a regular file are refused by looking first.
// Between that look and the open the folder is trusted; a pipe cannot be
// made in an ordinary folder there.
namespace {

bool isPlainFile(const QString &path)
{
    const QFileInfo info(path);
    return !info.isSymLink() && info.isFile();
}

bool readPlainFile(const QString &path, QByteArray *bytes)
{
    if (!isPlainFile(path)) {
        qCWarning(lcNdxComFileSharing) << "lock not read:" << path << "is not a regular file";
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcNdxComFileSharing)
            << "lock not read:" << path << qUtf8Printable(file.errorString());
        return false;
    }
    *bytes = file.read(LockReadLimit);
    return true;
}

} // namespace

bool lockEntryExists(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

bool readLockBytes(const QString &path, QByteArray *bytes)
{
    return readPlainFile(path, bytes);
}

LockRemoval removeLockFile(const QString &path, const LockRecord &read)
{
    beforeLockRemoval(path);
    QByteArray bytes;
    if (!readPlainFile(path, &bytes))
        return lockEntryExists(path) ? LockRemoval::Changed : LockRemoval::Gone;
    if (!sameLockRecord(readLockRecord(bytes), read)) {
        qCWarning(lcNdxComFileSharing)
            << "lock not removed:" << path << "holds another record than the one read before";
        return LockRemoval::Changed;
    }
    QFile file(path);
    if (file.remove())
        return LockRemoval::Removed;
    if (!lockEntryExists(path))
        return LockRemoval::Gone;
    qCWarning(lcNdxComFileSharing)
        << "lock not removed:" << path << qUtf8Printable(file.errorString());
    return LockRemoval::Failed;
}

bool createLockFile(QFile &lock)
{
    if (lock.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return true;
    qCWarning(lcNdxComFileSharing)
        << "lock not created:" << lock.fileName() << qUtf8Printable(lock.errorString());
    return false;
}

void discardLockFile(QFile &lock)
{
    if (!lock.remove())
        qCWarning(lcNdxComFileSharing) << "unwritten lock not removed:" << lock.fileName()
                                       << qUtf8Printable(lock.errorString());
}

} // namespace NdxComFileSharing

#endif // Q_OS_WIN
