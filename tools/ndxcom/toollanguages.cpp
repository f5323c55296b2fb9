#include "gallerytranslations.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTranslator>

#include <memory>

namespace {
std::unique_ptr<QTranslator> &current()
{
    static std::unique_ptr<QTranslator> translator;
    return translator;
}
} // namespace

QStringList translationFolders()
{
    QStringList folders;
    const QString fromEnvironment = qEnvironmentVariable("NDXCOM_TRANSLATIONS");
    if (!fromEnvironment.isEmpty())
        folders << fromEnvironment;
#ifdef NDXCOM_GALLERY_BUILD_QM_DIR
    folders << QStringLiteral(NDXCOM_GALLERY_BUILD_QM_DIR);
#endif
    folders << QCoreApplication::applicationDirPath()
            + QStringLiteral("/../share/ndxcom/translations");
    return folders;
}

QStringList availableLanguages()
{
    QStringList languages {QStringLiteral("it")};
    for (const char *code : {"en", "zh", "szh", "es"}) {
        for (const QString &folder : translationFolders()) {
            if (QFileInfo::exists(folder
                                  + QStringLiteral("/ndxcom_%1.qm").arg(QLatin1String(code)))) {
                languages << QString::fromLatin1(code);
                break;
            }
        }
    }
    return languages;
}

bool installLanguage(const QString &code)
{
    if (current()) {
        QCoreApplication::removeTranslator(current().get());
        current().reset();
    }
    if (code == QLatin1String("it"))
        return true;
    auto translator = std::make_unique<QTranslator>();
    for (const QString &folder : translationFolders()) {
        if (translator->load(QStringLiteral("ndxcom_") + code, folder)) {
            QCoreApplication::installTranslator(translator.get());
            current() = std::move(translator);
            return true;
        }
    }
    return false;
}
