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

    Beside the project file (".ndx") lies a small lock file that records
    which process, on which computer and for which user, holds the project.
    Make one object per open project: open() before loading, save() or
    saveAs() before writing, close() when the project is closed.
    TstFileLocked() and unlock() serve file dialogs and an explicit unlock
    command.

    The protocol is switched off by default: open(), save(), saveAs() and
    close() then succeed at once without touching the disk, while
    TstFileLocked() and unlock() always act on lock files. An application
    that wants the whole protocol calls setSharingControlEnabled(true) once
    at start-up, before it makes its first QFileSharing.

    The switch is process-wide and thread-safe. An object asks its questions
    in modal message boxes, so it belongs to the GUI thread. Workstations and
    processes see each other's locks in the shared folder: of several that
    claim a free project in the same instant, exactly one gets it, and a
    lock of the same user and computer left by an earlier run is removed.
    A project path without a lower-case ".ndx" has no lock file, and the
    project file is never read, written or deleted in place of one.

    TstFileLocked() keeps its Qt 4 capital: the applications call it so.
    Like every class of the library this one also offers trUtf8(), the Qt 4
    name of tr(), under Qt 6, where Q_OBJECT no longer declares it. The lock
    file's record, its permissions and the rules by which it is read and
    deleted are described in \ref locking.

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
    ~QFileSharing() override;

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
