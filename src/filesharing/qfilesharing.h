#ifndef QFILESHARING_H
#define QFILESHARING_H

#include "ndxcom_export.h"
#include "ndxcom_global.h"

#include <QtCore/QObject>
#include <QtCore/QString>

QT_BEGIN_NAMESPACE
class QFile;
QT_END_NAMESPACE

struct QFileSharingState;

/*!
    Keeps two people from editing one shared project at once.

    Beside the project file (".ndx") lies a small lock file, the project path
    with every ".ndx" replaced by ".~lock" (case-sensitively; the class uses
    its own constant texts, not the dictionary of QNodrixCom). It records
    which process, on which computer and for which user, holds the project:

        int64 pid | int64 ms since the epoch | int32 L1 | computer (UTF-8)
                  | int32 L2 | user (UTF-8)

    little-endian, no header. L1 and L2 count UTF-16 code units while the
    names are UTF-8 bytes; on reading, L1 and L2 bytes are taken and decoded
    as Latin-1. For plain ASCII names the two agree; a holder with other
    letters in its names does not recognise its own lock. The format is
    shared with existing installations and is kept as it stands.

    Make one object per open project: open() before loading, save() or
    saveAs() before writing, close() when the project is closed.
    TstFileLocked() and unlock() serve file dialogs and an explicit unlock
    command.

    Sharing control is switched off by default: setupPar() sets
    m_bNoSharing on every construction and every open(), so open(), save(),
    saveAs() and close() succeed at once without touching the disk, while
    TstFileLocked() and unlock() always act on lock files. An application
    that wants the whole lock-file protocol calls
    setSharingControlEnabled(true) once at start-up, before it makes its
    first QFileSharing (see there).

    Identity on Linux: the computer is the host's short name (gethostname()
    up to the first '.'), the user the effective user's login name from the
    password database (empty when unknown; no environment variable is read).
    A login name longer than 511 UTF-16 code units (what the Windows build's
    512-character buffer holds with its terminating null) gives an empty user
    name, on every platform; shorter names are kept as they are.
    The Windows build hides the lock file; Linux has no hidden attribute and
    the lock's name is fixed, so it is left as it is.

    A project path without a lower-case ".ndx" has no lock file (its lock
    path would be the project itself). The project file is never read,
    written or deleted in place of a lock: TstFileLocked() answers 0,
    unlock() false without a question, open() and saveAs() succeed without a
    lock and close() does nothing.

    A lock file is created exclusively (O_CREAT | O_EXCL) with the
    permissions of any new document of the user: 0666 less the process's
    umask (0644 under the usual 022), so that whoever may create projects in
    a folder may also see who holds them. Deleting a lock needs write access
    to the folder, not to the lock.

    Only a regular file at the lock's name is a lock. A symbolic link (to a
    document, to the project, to a folder, or leading nowhere), a folder or a
    pipe there is never followed, read, written through or deleted, and no
    call waits on it: the file is opened without following a link and
    without blocking, and looked at before it is read. TstFileLocked()
    answers 2 and open() and unlock() false, without a question, until
    someone removes it by hand.

    A lock is deleted (by close(), unlock(), or TstFileLocked() for a
    leftover of this user) only while it still holds the record that was
    read: it is read again, without blocking or following a link, and
    deleted only when the record is the same and the name still leads to
    that file. A lock that vanished in between counts as released
    (TstFileLocked() answers 0, close() releases the project, unlock()
    answers false: it did not delete it); one that was replaced or rewritten
    by another process, or that the folder does not let go (read-only, no
    permission), stays, and TstFileLocked() answers 2 for it. Between the
    last look and the deletion itself there remains a window of a few
    microseconds that no shared folder lets a client close: a writer that
    replaces the lock in exactly that moment loses it.

    Names read from a lock are shown as plain text: markup shows literally,
    and control and bidirectional formatting characters as U+FFFD (see
    QNodrixMessageBox), so a lock cannot change the words of a question.

    A lock file is read defensively: at most its first 1 MiB is read; a
    missing or partial fixed field reads as 0, a negative length as 0 bytes,
    and a length beyond the bytes that remain takes only what remains. Such a
    damaged lock still counts as read and is judged by the names it yields: as
    a rule they are not this user's and computer's, so TstFileLocked()
    answers 2, and unlock() offers to remove it, so it never locks a project
    for good.

    Where open() and saveAs() find no lock they create it exclusively, then
    read it back: of several workstations that claim a free project in the
    same instant, exactly one gets it.

    TstFileLocked() keeps its Qt 4 capital: the applications call it so.
    Like every class of the library this one also offers trUtf8(), the Qt 4
    name of tr(), under Qt 6, where Q_OBJECT no longer declares it. See
    \ref locking.

    \headerfile qfilesharing.h <QFileSharing>
*/
class NDXCOM_EXPORT QFileSharing : public QObject
{
    Q_OBJECT
    NDXCOM_TR_FUNCTIONS

public:
    //! Makes an object that holds no project yet; reads this process's
    //! identity and the sharing switch.
    explicit QFileSharing(QObject *parent = nullptr);
    //! Destroys the object. It does not remove any lock file: call close()
    //! first.
    ~QFileSharing() override; // does not remove any lock file

    //! Claims the project: true when the caller may load it, read-write or,
    //! after the user accepted, read-only (see isOpenRdOnly()). Refreshes the
    //! identity and the sharing switch first.
    bool open(QString fileName);
    //! Before saving: true when the caller may go on; for a project opened
    //! read-only asks first, and sets bRename when it must be saved under a
    //! new name. False when the user declined. bRename is never cleared.
    bool save(bool &bRename);
    //! Claims fileName before the project is written there; false (after a
    //! warning) when it is in use by another user. The lock of the previous
    //! path is kept: the caller closes it.
    bool saveAs(QString fileName);
    //! Releases this object's lock, if it still holds it.
    void close();
    //! Whether fileName is locked: 0 free, 1 locked by this process, 2
    //! locked by another or unreadable.
    //! A lock of this user and computer written by another process is taken as
    //! a leftover of an earlier run: it is deleted and the answer is 0.
    int TstFileLocked(QString fileName);
    //! Asks whether to delete the project's lock, whoever holds it; true when
    //! it was deleted. False without a question when there is no readable lock.
    bool unlock(QString fileName);
    //! Whether open() granted read-only access to a project in use.
    bool isOpenRdOnly() const;

    //! Switches the whole lock-file protocol on (true) or off (false, the
    //! default) for the process. Objects read the switch when they are set
    //! up, that is at construction and at every open(): an object keeps the
    //! protocol it was set up with until its next open(), and close() acts as
    //! that setup decided. Call it once at start-up, before the first
    //! project is opened. Thread-safe; no setting or environment variable is
    //! read in its place.
    static void setSharingControlEnabled(bool enabled);
    //! The switch as setSharingControlEnabled() (or the library's test seam)
    //! last left it; false until it is called.
    static bool sharingControlEnabled();

private:
    void setupPar();
    bool ReadLock(QFile &lock);
    bool WriteLock(QFile &lock);

    qint64 m_nPid;
    QString m_sComputer;
    QString m_sUser;
    QString m_sFileName;
    QString m_sLockName;
    bool m_bRdOnly;
    bool m_bNoSharing;
    qint64 m_nLockPid;
    qint64 m_nLockTime;
    QString m_sLockComputer;
    QString m_sLockUser;

    friend struct QFileSharingState;
};

#endif // QFILESHARING_H
