#include "lockprocess.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <sys/types.h>

HolderProcess holderProcess(qint64 pid)
{
    // kill() with 0 or a negative id would address process groups: such
    // ids are no holder's.
    if (pid <= 0 || pid > qint64(INT_MAX))
        return HolderProcess::Invalid;
    // Signal 0 only checks that the process exists; EPERM says it does, but
    // belongs to someone else.
    if (::kill(pid_t(pid), 0) == 0 || errno == EPERM)
        return HolderProcess::Running;
    return errno == ESRCH ? HolderProcess::Gone : HolderProcess::Unknown;
}
