#ifndef NDXCOM_TOOL_STOREOPTIONS_H
#define NDXCOM_TOOL_STOREOPTIONS_H

#include <QtCore/QCommandLineOption>
#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QSettings>

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
};

#endif // NDXCOM_TOOL_STOREOPTIONS_H
