#ifndef NDXCOM_TOOL_STOREOPTIONS_H
#define NDXCOM_TOOL_STOREOPTIONS_H

#include <QtCore/QCommandLineOption>
#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QLibraryInfo>
#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>

#include "command.h"

// The options that say whose settings a command reads: the organization and
// application names a suite application sets, and - to read a copy taken
// from another workstation - the folders of the user and system scopes.
struct StoreOptions
{
    QCommandLineOption organization {QStringLiteral("organization"),
                                     QStringLiteral("The application's organization name."),
                                     QStringLiteral("name")};
    QCommandLineOption application {QStringLiteral("application"),
                                    QStringLiteral("The application's name."),
                                    QStringLiteral("name")};
    QCommandLineOption userDir {QStringLiteral("user-dir"),
                                QStringLiteral("Folder of the user-scope settings (default: the "
                                               "XDG config folder)."),
                                QStringLiteral("folder")};
    QCommandLineOption systemDir {QStringLiteral("system-dir"),
                                  QStringLiteral("Folder of the system-scope settings, where the "
                                                 "platform store lives (default: the system's)."),
                                  QStringLiteral("folder")};

    void addTo(QCommandLineParser &parser) const
    {
        parser.addOptions({organization, application, userDir, systemDir});
    }

    bool namesApplication(const QCommandLineParser &parser) const
    {
        return parser.isSet(organization) && parser.isSet(application);
    }

    // Names the application as the suite application would and points the
    // scopes where asked, before any store is opened.
    void apply(const QCommandLineParser &parser) const
    {
        if (parser.isSet(organization))
            QCoreApplication::setOrganizationName(parser.value(organization));
        if (parser.isSet(application))
            QCoreApplication::setApplicationName(parser.value(application));
        for (QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
            if (parser.isSet(userDir))
                QSettings::setPath(format, QSettings::UserScope, parser.value(userDir));
            if (parser.isSet(systemDir))
                QSettings::setPath(format, QSettings::SystemScope, parser.value(systemDir));
        }
    }

    // The files of the stores a command reads, in this order: the
    // application's store and its fallbacks (user scope, then system scope),
    // then the platform store and its fallback. Empty on Windows, where the
    // native stores are registry keys.
    QStringList storeFiles(const QCommandLineParser &parser) const
    {
#ifdef Q_OS_WIN
        Q_UNUSED(parser)
        return QStringList();
#else
        const QString user = parser.isSet(userDir)
            ? parser.value(userDir)
            : QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        const QString systemDefault = QLibraryInfo::path(QLibraryInfo::SettingsPath);
#else
        const QString systemDefault = QLibraryInfo::location(QLibraryInfo::SettingsPath);
#endif
        const QString system = parser.isSet(systemDir) ? parser.value(systemDir) : systemDefault;
        const QString org = QLatin1Char('/') + QCoreApplication::organizationName();
        const QString app = org + QLatin1Char('/') + QCoreApplication::applicationName();
        const QString conf = QStringLiteral(".conf");
        return {user + app + conf,
                user + org + conf,
                system + app + conf,
                system + org + conf,
                system + QStringLiteral("/Corvala S.p.A./NodrixEnv.conf"),
                system + QStringLiteral("/Corvala S.p.A..conf")};
#endif
    }

    // Whether the stores a command would read are files it can read without
    // waiting: QSettings opens its file when it is made, and a FIFO there
    // would hold the command for ever. A store that is missing is fine (its
    // values are the defaults); one that is a FIFO, a folder or a device is
    // reported on stderr. On Windows the native stores are registry keys.
    bool storesReadable(const QCommandLineParser &parser, const char *command) const
    {
        const QStringList stores = storeFiles(parser);
        for (const QString &store : stores) {
            const QFileInfo info(store);
            if (info.exists() && !info.isFile()) {
                err() << "ndxcom " << command << ": the settings store " << quoted(store)
                      << " is not a regular file ("
                      << (info.isDir() ? "a folder" : "a pipe, a device or a socket")
                      << "); nothing was read" << Qt::endl;
                return false;
            }
        }
        return true;
    }
};

#endif // NDXCOM_TOOL_STOREOPTIONS_H
