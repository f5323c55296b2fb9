// Identity of this process on Linux and other Unix systems.

#include "qfilesharing_p.h"

#include <cerrno>
#include <vector>

#include <pwd.h>
#include <unistd.h>

namespace QFileSharingPrivate {

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

} // namespace QFileSharingPrivate
