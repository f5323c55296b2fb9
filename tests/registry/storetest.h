#ifndef STORETEST_H
#define STORETEST_H

#include <QtCore/QByteArray>
#include <QtCore/QSettings>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>
#include <QtCore/QVariant>

#include <memory>

// Helpers of the settings-store tests: fresh stores per test function, and a
// view of what really is on disk.
namespace StoreTest {

// Points the user and system scopes of both file formats at two new, empty
// folders under the process's settings root. Every store opened afterwards
// is a file no earlier test has touched, so neither earlier values nor
// QSettings's in-process cache can answer for it. On Windows, where the
// native store is the registry, the organization name changes instead, so
// the application store is a new key. Returns the case folder.
QString freshStores();

QString userDir(); // the user-scope folder of the current case
QString systemDir(); // the system-scope folder of the current case

// The native store of an application, written out as the platform names it:
// <user or system dir>/<organization>/<application>.conf on Linux,
// \\HKEY_CURRENT_USER (or HKEY_LOCAL_MACHINE)\\Software\\<organization>\\<application>
// on Windows.
QString nativeStore(QSettings::Scope scope, const QString &organization,
                    const QString &application);
// Whether that store holds anything (a file on Linux, values on Windows).
bool storeExists(const QString &store);

// The application store's file, as QSettings() names it.
QString userStoreFile();
// The platform store's file: system scope, "Corvala S.p.A.", "NodrixEnv".
QString platformStoreFile();

// Writes every pending change of the application store to its file.
void flushUserStore();

#ifdef Q_OS_WIN
// Whether the tests run under wine, whose registry is the build's own.
bool runsUnderWine();
#endif

// Replaces a file's content byte for byte (creating its folder). On Windows a
// registry store (a path QSettings gave) gets instead what QSettings reads
// from the bytes as an INI file; the platform store only under wine.
bool writeFile(const QString &path, const QByteArray &bytes);
QByteArray readFile(const QString &path);

// What a file holds, read by a plain QSettings of its own (on Windows, for a
// registry store, what the registry holds): the file is copied
// to a new name first, so QSettings must parse the bytes on disk instead of
// answering from the copy it keeps in memory for the original name.
class DiskStore
{
public:
    explicit DiskStore(const QString &file);
    ~DiskStore();

    bool exists() const { return m_exists; }
    QVariant value(const QString &key) const;
    bool contains(const QString &key) const;
    QStringList allKeys() const;
    QStringList childGroups(const QString &group = QString()) const;

private:
    bool m_exists = false;
    QTemporaryDir m_dir;
    std::unique_ptr<QSettings> m_settings;
};

} // namespace StoreTest

#endif // STORETEST_H
