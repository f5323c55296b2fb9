#include "qfilesharing.h"
#include "qfilesharing_p.h"

#include "qnodrixmessagebox.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>

#include <atomic>

namespace {

std::atomic<bool> sharingControl {false};

// The class's own texts. They equal the dictionary's project and lock
// extensions but are not read from it: an application that changes the
// dictionary must not move the lock files other workstations look for.
const char ProjectExt[] = ".ndx";
const char LockExt[] = ".~lock";

QMessageBox::StandardButton askQuestion(const QString &text)
{
    QNodrixMessageBox box(text);
    return box.execQuestion();
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

namespace QFileSharingPrivate {

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
    // Only a regular file can be a lock: a folder cannot be read, and opening
    // a pipe would wait for a writer that may never come.
    const QFileInfo info(lock.fileName());
    if (!info.exists() || !info.isFile())
        return false;
    if (!lock.open(QIODevice::ReadOnly))
        return false;
    QByteArray bytes;
    bytes.resize(int(qBound<qint64>(0, lock.size(), LockReadLimit)));
    const qint64 got = bytes.isEmpty() ? 0 : lock.read(bytes.data(), bytes.size());
    lock.close();
    bytes.resize(int(qBound<qint64>(0, got, bytes.size())));
    *record = readLockRecord(bytes);
    return true;
}

} // namespace QFileSharingPrivate

using namespace QFileSharingPrivate;

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

    QSettings settings;
    settings.beginGroup(QStringLiteral("Environment"));
    // This is the place where a setting could decide; none is read. Sharing
    // control stays off unless the application (or the library's own tests)
    // switched it on.
    m_bNoSharing = !sharingControl.load();
    settings.endGroup();
}

bool QFileSharing::WriteLock(QFile &lock)
{
    // Where no lock existed the caller has already created the file
    // exclusively; otherwise the lock is replaced.
    if (!lock.isOpen() && !lock.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    const QByteArray record
        = writeLockRecord(m_nPid, QDateTime::currentMSecsSinceEpoch(), m_sComputer, m_sUser);
    const bool written = lock.write(record) == record.size() && lock.flush();
    lock.close();
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
    if (!lock.exists()) {
        // Created exclusively: of two writers that found no lock in the same
        // instant only one gets the file. A lock that could not be written is
        // not left behind half-written.
        if (!lock.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return false;
        if (!WriteLock(lock)) {
            lock.remove();
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
    const QString text = tr("Il progetto risulta in uso da:\nComputer: %1\tUtente: %2\nVuoi "
                            "aprirlo con accesso in lettura ?")
                             .arg(m_sLockComputer, 0, QLatin1Char(' '))
                             .arg(m_sLockUser, 0, QLatin1Char(' '));
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
    if (!lock.exists()) {
        // m_sLockName keeps the new path even when the claim fails.
        m_sLockName = newLockName;
        bool claimed = false;
        if (lock.open(QIODevice::WriteOnly | QIODevice::NewOnly)) { // as in open()
            if (WriteLock(lock))
                claimed = ReadLock(lock) && m_nLockPid == m_nPid;
            else
                lock.remove();
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
    QFile lock(lockPath(m_sFileName));
    if (ReadLock(lock) && m_sLockComputer == m_sComputer && m_sLockUser == m_sUser
        && m_nLockPid == m_nPid) {
        lock.remove();
        m_sFileName.clear();
    }
}

int QFileSharing::TstFileLocked(QString fileName)
{
    if (!hasLockFile(fileName))
        return 0;
    QFile lock(lockPath(fileName));
    if (!lock.exists())
        return 0;
    if (!ReadLock(lock) || m_sLockComputer != m_sComputer || m_sLockUser != m_sUser)
        return 2;
    if (m_nLockPid == m_nPid)
        return 1;
    // This user's lock from another process: a leftover of an earlier run.
    lock.remove();
    return 0;
}

bool QFileSharing::unlock(QString fileName)
{
    if (!hasLockFile(fileName))
        return false;
    QFile lock(lockPath(fileName));
    if (!ReadLock(lock))
        return false;
    const QString text = tr("Il progetto è bloccato da:\nComputer: %1.\nUtente: %2.\nVuoi "
                            "sbloccarlo ?")
                             .arg(m_sLockComputer, 0, QLatin1Char(' '))
                             .arg(m_sLockUser, 0, QLatin1Char(' '));
    if (askQuestion(text) != QMessageBox::Yes)
        return false;
    return lock.remove();
}

bool QFileSharing::isOpenRdOnly() const
{
    return m_bRdOnly;
}
