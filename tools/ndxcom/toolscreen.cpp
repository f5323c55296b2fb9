#include "toolscreen.h"

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryFile>

#include <memory>

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
            platform += ":configfile=" + QFile::encodeName(config->fileName());
        }
    }
#endif
    qputenv("QT_QPA_PLATFORM", platform);
}
