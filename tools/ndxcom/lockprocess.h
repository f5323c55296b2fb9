#ifndef NDXCOM_TOOL_LOCKPROCESS_H
#define NDXCOM_TOOL_LOCKPROCESS_H

#include <QtCore/QtGlobal>

// Whether the process that wrote a lock on this computer still runs. Only a
// hint for the reader of `ndxcom lock`: the library's answers never depend on
// it (a process id may have been given to another process since).
enum class HolderProcess {
    Running, // a process with this id exists
    Gone, // no process with this id
    Invalid, // the id is no process id at all (0, negative, too large)
    Unknown // the platform could not tell
};

// Platform file: lockprocess_unix.cpp, lockprocess_win.cpp.
HolderProcess holderProcess(qint64 pid);

#endif // NDXCOM_TOOL_LOCKPROCESS_H
