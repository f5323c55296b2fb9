#ifndef LOCKTESTUTIL_H
#define LOCKTESTUTIL_H

// Lock files as the tests write them: composed byte by byte here, not with the
// library's own writer, so that the tests check the layout rather than agree
// with themselves.

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>
#include <QtCore/QFile>
#include <QtCore/QString>

#include <iterator>

#include "ndxcomtest.h"

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <pwd.h>
#include <unistd.h>
#endif

namespace LockTest {

// The questions and the warning of QFileSharing, as the library's source texts.
inline const QString OpenQuestion = QStringLiteral(
    "Il progetto risulta in uso da:\nComputer: %1\tUtente: %2\nVuoi aprirlo con accesso in "
    "lettura ?");
inline const QString SaveQuestion = QStringLiteral(
    "Il progetto è aperto in sola lettura.\n Vuoi salvarlo cambiandogli il nome ?");
inline const QString SaveAsWarning
    = QStringLiteral("Attenzione: progetto in uso!!\nObbligatorio cambiargli il nome!!");
inline const QString UnlockQuestion
    = QStringLiteral("Il progetto è bloccato da:\nComputer: %1.\nUtente: %2.\nVuoi sbloccarlo ?");

inline QByteArray int64le(qint64 v)
{
    QByteArray b;
    QDataStream s(&b, QIODevice::WriteOnly);
    s.setByteOrder(QDataStream::LittleEndian);
    s << v;
    return b;
}

inline QByteArray int32le(qint32 v)
{
    QByteArray b;
    QDataStream s(&b, QIODevice::WriteOnly);
    s.setByteOrder(QDataStream::LittleEndian);
    s << v;
    return b;
}

// A record with the lengths given explicitly.
inline QByteArray record(qint64 pid, qint64 time, qint32 l1, const QByteArray &computer, qint32 l2,
                         const QByteArray &user)
{
    return int64le(pid) + int64le(time) + int32le(l1) + computer + int32le(l2) + user;
}

// A record as a holder writes it: each length counts UTF-16 code units, the
// bytes are UTF-8.
inline QByteArray record(qint64 pid, qint64 time, const QString &computer, const QString &user)
{
    return record(pid, time, qint32(computer.size()), computer.toUtf8(), qint32(user.size()),
                  user.toUtf8());
}

using NdxComTest::writeFile;

inline QByteArray readFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// This machine's identity, found independently of the library: on Windows
// the system's own calls, on Linux the host name and the password database.
#ifdef Q_OS_WIN
inline QString hostShortName()
{
    wchar_t name[MAX_COMPUTERNAME_LENGTH + 64] = {};
    DWORD size = DWORD(std::size(name));
    if (!GetComputerNameExW(ComputerNameNetBIOS, name, &size))
        return QString();
    return QString::fromWCharArray(name, int(size));
}

inline QString loginName()
{
    wchar_t name[600] = {};
    DWORD size = DWORD(std::size(name));
    if (!GetUserNameW(name, &size) || size == 0)
        return QString();
    return QString::fromWCharArray(name, int(size) - 1);
}
#else
inline QString hostShortName()
{
    char name[300] = {};
    gethostname(name, sizeof(name) - 1);
    QByteArray host(name);
    const int dot = host.indexOf('.');
    if (dot >= 0)
        host.truncate(dot);
    return QString::fromLocal8Bit(host);
}

inline QString loginName()
{
    const passwd *pw = getpwuid(geteuid());
    return pw ? QString::fromLocal8Bit(pw->pw_name) : QString();
}
#endif

} // namespace LockTest

#endif // LOCKTESTUTIL_H
