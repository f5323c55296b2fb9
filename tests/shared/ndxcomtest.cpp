#include "ndxcomtest.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <QtCore/QSettings>
#include <QtWidgets/QApplication>

#include <cstdlib>
#include <iterator>
#include <utility>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace NdxComTest {

namespace {
QTemporaryDir *settingsDir()
{
    static QTemporaryDir dir(QDir::tempPath() + QStringLiteral("/ndxcom-test-XXXXXX"));
    return &dir;
}
} // namespace

void prepareEnvironment()
{
    const QString root = settingsRoot();
    for (const char *sub : {"home", "config", "cache", "data", "runtime"})
        QDir().mkpath(root + QLatin1Char('/') + QLatin1String(sub));
    qputenv("HOME", QFile::encodeName(root + QStringLiteral("/home")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(root + QStringLiteral("/config")));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(root + QStringLiteral("/cache")));
    qputenv("XDG_DATA_HOME", QFile::encodeName(root + QStringLiteral("/data")));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(root + QStringLiteral("/runtime")));
    QFile::setPermissions(root + QStringLiteral("/runtime"),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, true);
}

#ifdef Q_OS_WIN
namespace {
QString &uniqueOrganization()
{
    static QString name;
    return name;
}

// Removes every key under Software of `root` whose name starts with `prefix`.
void removeKeys(HKEY root, const QString &prefix)
{
    HKEY software = nullptr;
    if (RegOpenKeyExW(root, L"Software", 0, KEY_READ | KEY_WRITE, &software) != ERROR_SUCCESS)
        return;
    QStringList doomed;
    wchar_t name[256];
    for (DWORD i = 0;; ++i) {
        DWORD size = DWORD(std::size(name));
        if (RegEnumKeyExW(software, i, name, &size, nullptr, nullptr, nullptr, nullptr)
            != ERROR_SUCCESS)
            break;
        const QString key = QString::fromWCharArray(name, int(size));
        if (key.startsWith(prefix))
            doomed << key;
    }
    for (const QString &key : std::as_const(doomed))
        RegDeleteTreeW(software, reinterpret_cast<const wchar_t *>(key.utf16()));
    RegCloseKey(software);
}

void removeOwnKeys()
{
    if (uniqueOrganization().isEmpty())
        return;
    removeKeys(HKEY_CURRENT_USER, uniqueOrganization());
    removeKeys(HKEY_LOCAL_MACHINE, uniqueOrganization());
}
} // namespace

QString uniqueOrganizationPrefix()
{
    return uniqueOrganization();
}
#endif

void isolateApplication(const char *organization, const char *application)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, true);
#ifdef Q_OS_WIN
    // The native store is the registry, which QSettings::setPath does not
    // move: the process takes organization names no other run has (the
    // process id and a random number), and removes their keys when it ends.
    uniqueOrganization()
        = QStringLiteral("%1-%2-%3")
              .arg(QString::fromLatin1(organization))
              .arg(QCoreApplication::applicationPid())
              .arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0'));
    QCoreApplication::setOrganizationName(uniqueOrganization());
    removeOwnKeys();
    qAddPostRoutine(removeOwnKeys);
    std::atexit(removeOwnKeys);
#else
    QCoreApplication::setOrganizationName(QString::fromLatin1(organization));
#endif
    QCoreApplication::setApplicationName(QString::fromLatin1(application));
    const QString root = settingsRoot();
    QDir().mkpath(root + QStringLiteral("/user"));
    QDir().mkpath(root + QStringLiteral("/system"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       root + QStringLiteral("/user"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope,
                       root + QStringLiteral("/system"));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, root + QStringLiteral("/user"));
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope,
                       root + QStringLiteral("/system"));
}

QString settingsRoot()
{
    return settingsDir()->path();
}

} // namespace NdxComTest
