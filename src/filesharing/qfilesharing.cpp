#include "qfilesharing.h"
#include "qfilesharing_p.h"

#include "messages/qnodrixmessagebox_p.h"
#include "qnodrixmessagebox.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <atomic>

namespace {

std::atomic<bool> sharingControl {false};

QMessageBox::StandardButton askQuestion(const QString &text)
{
    QNodrixMessageBox box(text);
    return box.execQuestion();
}

// A question about a lock's holder. The names come from a file any
// workstation can write: shown as plain text, cut to a length a box can hold,
// with no control or bidirectional formatting character left to act on the
// question around them, and filled in one pass, so that a "%2" in a computer
// name is not taken for the place of the user.
QString holderText(const QString &question, const QString &computer, const QString &user)
{
    using namespace NdxComMessages;
    return fillArguments(question, {plainArgument(computer), plainArgument(user)});
}

void showWarning(const QString &text)
{
    QNodrixMessageBox box(text);
    box.execWarningOk();
}

} // namespace

void ndxcomSetSharingControl(bool enabled)
{
    QFileSharing::setSharingControlEnabled(enabled);
}

void QFileSharing::setSharingControlEnabled(bool enabled)
{
    sharingControl.store(enabled);
}

bool QFileSharing::sharingControlEnabled()
{
    return sharingControl.load();
}

using namespace NdxComFileSharing;

namespace {

// The record an object read last, as removeLockFile() compares it.
LockRecord lastRead(const QFileSharing &sharing)
{
    const QFileSharingState state = QFileSharingState::of(sharing);
    LockRecord record;
    record.pid = state.lockPid;
    record.time = state.lockTime;
    record.computer = state.lockComputer;
    record.user = state.lockUser;
    return record;
}

} // namespace

QFileSharingState QFileSharingState::of(const QFileSharing &sharing)
{
    QFileSharingState state;
    state.pid = sharing.m_nPid;
    state.computer = sharing.m_sComputer;
    state.user = sharing.m_sUser;
    state.fileName = sharing.m_sFileName;
    state.lockName = sharing.m_sLockName;
    state.rdOnly = sharing.m_bRdOnly;
    state.noSharing = sharing.m_bNoSharing;
    state.lockPid = sharing.m_nLockPid;
    state.lockTime = sharing.m_nLockTime;
    state.lockComputer = sharing.m_sLockComputer;
    state.lockUser = sharing.m_sLockUser;
    return state;
}

QFileSharing::QFileSharing(QObject *parent)
    : QObject(parent)
    , m_nPid(0)
    , m_bRdOnly(false)
    , m_bNoSharing(false)
    , m_nLockPid(0)
    , m_nLockTime(0)
{
    setupPar();
}

QFileSharing::~QFileSharing() = default;

void QFileSharing::setupPar()
{
    m_sComputer = localComputerName();
    m_sUser = localUserName();
    m_nPid = QCoreApplication::applicationPid();
    // No setting decides: sharing control stays off unless the application
    // (or the library's own tests) switched it on.
    m_bNoSharing = !sharingControl.load();
}

bool QFileSharing::WriteLock(QFile &lock)
{
    // The caller has already created the file exclusively. A lock is never
    // written into an existing file: that could be another's lock, or a link
    // to any file of the user's.
    if (!lock.isOpen() && !createLockFile(lock))
        return false;
    const QByteArray record
        = writeLockRecord(m_nPid, QDateTime::currentMSecsSinceEpoch(), m_sComputer, m_sUser);
    const bool written = lock.write(record) == record.size() && lock.flush();
    if (!written)
        qCWarning(lcNdxComFileSharing)
            << "lock not written whole:" << m_sLockName << qUtf8Printable(lock.errorString());
    lock.close();
    // A file opened from a descriptor (the platform file's exclusive
    // creation) no longer knows its name: the lock is read back by it.
    lock.setFileName(m_sLockName);
    hideLockFile(m_sLockName);
    return written;
}

bool QFileSharing::ReadLock(QFile &lock)
{
    LockRecord record;
    if (!readLockFile(lock, &record))
        return false;
    m_nLockPid = record.pid;
    m_nLockTime = record.time;
    m_sLockComputer = record.computer;
    m_sLockUser = record.user;
    return true;
}

bool QFileSharing::open(QString fileName)
{
    setupPar();
    if (m_bNoSharing)
        return true;

    // Called for its side effect: a leftover lock of this user goes.
    TstFileLocked(fileName);

    m_sFileName = fileName;
    if (!hasLockFile(fileName)) {
        // Its lock path would be the project itself, which must never be
        // read, overwritten or deleted as a lock: opened without a lock.
        m_sLockName.clear();
        return true;
    }
    m_sLockName = lockPath(fileName);

    QFile lock(m_sLockName);
    if (!lockEntryExists(m_sLockName)) {
        // Created exclusively: of two writers that found no lock in the same
        // instant only one gets the file. A lock that could not be written is
        // not left behind half-written.
        if (!createLockFile(lock))
            return false;
        if (!WriteLock(lock)) {
            discardLockFile(lock);
            return false;
        }
        if (!ReadLock(lock))
            return false;
        // Read back: the lock is ours only if it names this process.
        return m_nLockPid == m_nPid;
    }

    if (!ReadLock(lock))
        return false;
    // Also asked when the lock is this process's own.
    const QString text = holderText(tr("Il progetto risulta in uso da:\nComputer: %1\tUtente: "
                                       "%2\nVuoi aprirlo con accesso in lettura ?"),
                                    m_sLockComputer, m_sLockUser);
    if (askQuestion(text) != QMessageBox::Yes)
        return false;
    m_bRdOnly = true;
    return true;
}

bool QFileSharing::save(bool &bRename)
{
    if (m_bNoSharing || !m_bRdOnly)
        return true;
    if (askQuestion(tr("Il progetto è aperto in sola lettura.\n Vuoi salvarlo cambiandogli il "
                       "nome ?"))
        != QMessageBox::Yes)
        return false;
    bRename = true;
    return true;
}

bool QFileSharing::saveAs(QString fileName)
{
    if (m_bNoSharing)
        return true;

    if (!hasLockFile(fileName)) {
        // No lock of its own (see open()): the object moves there without one.
        m_sFileName = fileName;
        m_sLockName.clear();
        m_bRdOnly = false;
        return true;
    }

    const QString newLockName = lockPath(fileName);
    QFile lock(newLockName);
    if (!lockEntryExists(newLockName)) {
        // m_sLockName keeps the new path even when the claim fails.
        m_sLockName = newLockName;
        bool claimed = false;
        if (createLockFile(lock)) { // as in open()
            if (WriteLock(lock))
                claimed = ReadLock(lock) && m_nLockPid == m_nPid;
            else
                discardLockFile(lock);
        }
        if (claimed) {
            m_sFileName = fileName;
            m_bRdOnly = false;
            return true;
        }
    } else if (ReadLock(lock) && m_sLockComputer == m_sComputer && m_sLockUser == m_sUser) {
        // The same user's lock, from this process or another: nothing changes.
        return true;
    }

    showWarning(tr("Attenzione: progetto in uso!!\nObbligatorio cambiargli il nome!!"));
    return false;
}

void QFileSharing::close()
{
    if (m_bNoSharing || !hasLockFile(m_sFileName))
        return;
    const QString lockName = lockPath(m_sFileName);
    QFile lock(lockName);
    if (ReadLock(lock) && m_sLockComputer == m_sComputer && m_sLockUser == m_sUser
        && m_nLockPid == m_nPid) {
        // Only the lock just read goes; one that someone else already
        // removed is released all the same.
        const LockRemoval removal = removeLockFile(lockName, lastRead(*this));
        if (removal == LockRemoval::Removed || removal == LockRemoval::Gone)
            m_sFileName.clear();
    }
}

int QFileSharing::TstFileLocked(QString fileName)
{
    if (!hasLockFile(fileName))
        return 0;
    const QString lockName = lockPath(fileName);
    QFile lock(lockName);
    if (!lockEntryExists(lockName))
        return 0;
    if (!ReadLock(lock) || m_sLockComputer != m_sComputer || m_sLockUser != m_sUser)
        return 2;
    if (m_nLockPid == m_nPid)
        return 1;
    // This user's lock from another process: a leftover of an earlier run.
    // Free once it is gone; a lock that changed in the meantime or could not
    // be deleted still stands.
    const LockRemoval removal = removeLockFile(lockName, lastRead(*this));
    return removal == LockRemoval::Removed || removal == LockRemoval::Gone ? 0 : 2;
}

bool QFileSharing::unlock(QString fileName)
{
    if (!hasLockFile(fileName))
        return false;
    QFile lock(lockPath(fileName));
    if (!ReadLock(lock))
        return false;
    const QString text = holderText(tr("Il progetto è bloccato da:\nComputer: %1.\nUtente: "
                                       "%2.\nVuoi sbloccarlo ?"),
                                    m_sLockComputer, m_sLockUser);
    if (askQuestion(text) != QMessageBox::Yes)
        return false;
    // The user answered for the lock shown: a lock written since (the
    // question may stay open for a long time) is not deleted unseen.
    return removeLockFile(lock.fileName(), lastRead(*this)) == LockRemoval::Removed;
}

bool QFileSharing::isOpenRdOnly() const
{
    return m_bRdOnly;
}
