#include "ndxcomtest.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtWidgets/QApplication>

#include <cstdlib>

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

void isolateApplication(const char *organization, const char *application)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, true);
    QCoreApplication::setOrganizationName(QString::fromLatin1(organization));
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
