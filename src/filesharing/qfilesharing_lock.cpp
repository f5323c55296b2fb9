// The lock files themselves: their names, their records and the identity
// written into them. Compiled into the library and, as code of their own, into
// the tools that read locks, so that the library exports nothing for them.

#include "qfilesharing_p.h"

#include <QtCore/QFile>

#include <atomic>

Q_LOGGING_CATEGORY(lcNdxComFileSharing, "ndxcom.filesharing", QtCriticalMsg)

namespace {

// The class's own texts. They equal the dictionary's project and lock
// extensions but are not read from it: an application that changes the
// dictionary must not move the lock files other workstations look for.
const char ProjectExt[] = ".ndx";
const char LockExt[] = ".~lock";

} // namespace

namespace NdxComFileSharing {

QString lockPath(const QString &projectPath)
{
    return QString(projectPath)
        .replace(QLatin1String(ProjectExt), QLatin1String(LockExt), Qt::CaseSensitive);
}

bool hasLockFile(const QString &projectPath)
{
    return lockPath(projectPath) != projectPath;
}

QString shortHostName(const QByteArray &hostName)
{
    const int dot = hostName.indexOf('.');
    return QString::fromLocal8Bit(dot < 0 ? hostName : hostName.left(dot));
}

QString fitUserName(const QString &login)
{
    return login.size() > UserNameCapacity ? QString() : login;
}

bool readLockFile(QFile &lock, LockRecord *record)
{
    // Only a regular file can be a lock: a folder cannot be read, a pipe
    // would wait for a writer that may never come, and a link may lead to
    // any file of the user's. The platform file looks at what it opened.
    QByteArray bytes;
    if (!readLockBytes(lock.fileName(), &bytes))
        return false;
    *record = readLockRecord(bytes);
    return true;
}

namespace {
std::atomic<void (*)(const QString &)> beforeRemovalHook {nullptr};
}

void setBeforeLockRemoval(void (*hook)(const QString &path))
{
    beforeRemovalHook.store(hook);
}

void beforeLockRemoval(const QString &path)
{
    if (auto hook = beforeRemovalHook.load())
        hook(path);
}

} // namespace NdxComFileSharing
