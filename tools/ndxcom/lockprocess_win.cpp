#include "lockprocess.h"

#include <qt_windows.h>

HolderProcess holderProcess(qint64 pid)
{
    if (pid <= 0 || pid > qint64(MAXDWORD))
        return HolderProcess::Invalid;
    HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, DWORD(pid));
    if (!process) {
        // Another user's process can be there without being open to us.
        return GetLastError() == ERROR_ACCESS_DENIED ? HolderProcess::Running : HolderProcess::Gone;
    }
    DWORD code = 0;
    const BOOL ok = GetExitCodeProcess(process, &code);
    CloseHandle(process);
    if (!ok)
        return HolderProcess::Unknown;
    return code == STILL_ACTIVE ? HolderProcess::Running : HolderProcess::Gone;
}
