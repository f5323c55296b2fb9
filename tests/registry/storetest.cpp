#include "storetest.h"

#include "ndxcomtest.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtTest/QtTest>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace StoreTest {

namespace {
QString &currentCase()
{
    static QString dir;
    return dir;
}

#ifdef Q_OS_WIN
// QSettings names a registry store "\HKEY_CURRENT_USER\Software\...".
bool isRegistryPath(const QString &path)
{
    return path.startsWith(QLatin1String("\\HKEY_"));
}

bool isPlatformStore(const QString &path)
{
    return isRegistryPath(path) && path.contains(QLatin1String("\\Software\\Corvala S.p.A.\\"));
}
#endif
} // namespace

#ifdef Q_OS_WIN
bool runsUnderWine()
{
    const HMODULE ntdll = GetModuleHandleW(L"ntdll.dll");
    return ntdll && GetProcAddress(ntdll, "wine_get_version");
}

// The installer's names, in both scopes: the tests write them only in wine's
// registry, and empty them again.
static void clearPlatformStore()
{
    if (!runsUnderWine())
        return;
    for (QSettings::Scope scope : {QSettings::SystemScope, QSettings::UserScope})
        QSettings(scope, QStringLiteral("Corvala S.p.A."), QStringLiteral("NodrixEnv")).clear();
}
#endif

QString freshStores()
{
    static int counter = 0;
    const QString dir = NdxComTest::settingsRoot() + QStringLiteral("/case-%1").arg(++counter);
    QDir().mkpath(dir + QStringLiteral("/user"));
    QDir().mkpath(dir + QStringLiteral("/system"));
    for (QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, dir + QStringLiteral("/user"));
        QSettings::setPath(format, QSettings::SystemScope, dir + QStringLiteral("/system"));
    }
#ifdef Q_OS_WIN
    // The registry is not moved by setPath: a new organization is a new key.
    QCoreApplication::setOrganizationName(NdxComTest::uniqueOrganizationPrefix()
                                          + QStringLiteral("-case-%1").arg(counter));
#endif
    currentCase() = dir;
#ifdef Q_OS_WIN
    // The platform store is the machine's: only a private wine prefix's is
    // emptied (and written by the tests).
    clearPlatformStore();
    static const bool clearedAtExit = (qAddPostRoutine(clearPlatformStore), true);
    Q_UNUSED(clearedAtExit);
#endif
    return dir;
}

QString userDir()
{
    return currentCase() + QStringLiteral("/user");
}

QString systemDir()
{
    return currentCase() + QStringLiteral("/system");
}

QString nativeStore(QSettings::Scope scope, const QString &organization, const QString &application)
{
#ifdef Q_OS_WIN
    return QStringLiteral("\\%1\\Software\\%2\\%3")
        .arg(scope == QSettings::UserScope ? QStringLiteral("HKEY_CURRENT_USER")
                                           : QStringLiteral("HKEY_LOCAL_MACHINE"),
             organization, application);
#else
    return (scope == QSettings::UserScope ? userDir() : systemDir()) + QLatin1Char('/')
        + organization + QLatin1Char('/') + application + QStringLiteral(".conf");
#endif
}

bool storeExists(const QString &store)
{
#ifdef Q_OS_WIN
    if (isRegistryPath(store))
        return DiskStore(store).exists();
#endif
    return QFileInfo(store).isFile();
}

QString userStoreFile()
{
    return QSettings().fileName();
}

QString platformStoreFile()
{
    return QSettings(QSettings::SystemScope, QStringLiteral("Corvala S.p.A."),
                     QStringLiteral("NodrixEnv"))
        .fileName();
}

void flushUserStore()
{
    QSettings().sync();
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
#ifdef Q_OS_WIN
    // A registry store: what QSettings reads from the bytes as an INI file
    // becomes the store's content. The machine's platform store is written
    // only in a private wine prefix.
    if (isRegistryPath(path)) {
        if (isPlatformStore(path) && !runsUnderWine())
            return false;
        QTemporaryDir dir;
        const QString ini = dir.filePath(QStringLiteral("content.ini"));
        QFile file(ini);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return false;
        file.close();
        QSettings content(ini, QSettings::IniFormat);
        QSettings store(path, QSettings::NativeFormat);
        store.clear();
        const QStringList keys = content.allKeys();
        for (const QString &key : keys)
            store.setValue(key, content.value(key));
        store.sync();
        return store.status() == QSettings::NoError;
    }
#endif
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    return file.write(bytes) == bytes.size();
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

DiskStore::DiskStore(const QString &file)
{
#ifdef Q_OS_WIN
    // The registry has no cache of QSettings's in front of it: a store of its
    // own reads what is there.
    if (isRegistryPath(file)) {
        m_settings.reset(new QSettings(file, QSettings::NativeFormat));
        m_exists = !m_settings->allKeys().isEmpty();
        return;
    }
#endif
    m_exists = QFileInfo(file).isFile();
    const QString copy = m_dir.path() + QStringLiteral("/copy.conf");
    if (m_exists)
        QFile::copy(file, copy);
    m_settings.reset(new QSettings(copy, QSettings::IniFormat));
}

DiskStore::~DiskStore() = default;

QVariant DiskStore::value(const QString &key) const
{
    // Garbage can hold a key with an empty name, which allKeys() lists and
    // QSettings warns about when it is asked for.
    if (key.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, "QSettings::value: Empty key passed");
    return m_settings->value(key);
}

bool DiskStore::contains(const QString &key) const
{
    return m_settings->contains(key);
}

QStringList DiskStore::allKeys() const
{
    return m_settings->allKeys();
}

QStringList DiskStore::childGroups(const QString &group) const
{
    m_settings->beginGroup(group);
    const QStringList groups = m_settings->childGroups();
    m_settings->endGroup();
    return groups;
}

} // namespace StoreTest
