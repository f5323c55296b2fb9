#include "toolscreen.h"

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryFile>

#include <memory>

namespace {
// The current folder to go back to once the application exists (Windows).
QString &folderBefore()
{
    static QString folder;
    return folder;
}
} // namespace

void prepareScreen()
{
    QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (platform.isEmpty()) {
        if (!qEnvironmentVariableIsEmpty("DISPLAY")
            || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
            return;
        platform = "offscreen";
    }
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    if (platform == "offscreen") {
        // The platform reads the file while the application is created; it
        // lives as long as the program.
        static std::unique_ptr<QTemporaryFile> config;
        config = std::make_unique<QTemporaryFile>();
        config->setFileTemplate(QDir::tempPath() + QStringLiteral("/ndxcom-screen-XXXXXX.json"));
        if (config->open()) {
            config->write(R"({"screens": [{"name": "Workstation", "x": 0, "y": 0,
                 "width": 1920, "height": 1080, "logicalDpi": 96, "logicalBaseDpi": 96,
                 "dpr": 1.0}]})");
            config->flush();
#ifdef Q_OS_WIN
            // The platform's options are separated by ':', which a drive
            // letter also has: the file is named from its own folder, the
            // current one until the application exists.
            folderBefore() = QDir::currentPath();
            QDir::setCurrent(QDir::tempPath());
            platform
                += ":configfile=" + QFile::encodeName(QFileInfo(config->fileName()).fileName());
#else
            platform += ":configfile=" + QFile::encodeName(config->fileName());
#endif
        }
    }
#endif
    qputenv("QT_QPA_PLATFORM", platform);
}

void screenReady()
{
    if (!folderBefore().isEmpty()) {
        QDir::setCurrent(folderBefore());
        folderBefore().clear();
    }
}
