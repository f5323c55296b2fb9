#include "toollanguages.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTranslator>
#include <QtGui/QFontDatabase>
#include <QtGui/QFontInfo>
#include <QtWidgets/QApplication>

#include <memory>

namespace {

std::unique_ptr<QTranslator> &current()
{
    static std::unique_ptr<QTranslator> translator;
    return translator;
}

QString &currentCode()
{
    static QString code = QStringLiteral("it");
    return code;
}

bool fontInstalled(const QString &family)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QFontDatabase::families().contains(family);
#else
    return QFontDatabase().families().contains(family);
#endif
}

// Han characters are shared by Chinese and Japanese, but each writes some of
// them in its own forms; left to itself, font fallback picks whichever CJK
// font comes first. The catalogue's language decides instead.
void useFontFor(const QString &code)
{
    auto *app = qobject_cast<QApplication *>(QCoreApplication::instance());
    if (!app)
        return;
    static const QFont original = QApplication::font();
    QFont font = original;
    const QString cjk = code == QLatin1String("zh") ? QStringLiteral("Noto Sans CJK TC")
        : code == QLatin1String("szh")              ? QStringLiteral("Noto Sans CJK SC")
                                                    : QString();
    // The family the platform actually resolved ("Sans Serif" is an alias
    // that the font database does not list), so that Latin text keeps its
    // look and only what it lacks comes from the CJK font.
    if (!cjk.isEmpty() && fontInstalled(cjk))
        font.setFamilies({QFontInfo(original).family(), cjk});
    QApplication::setFont(font);
}

} // namespace

QStringList suiteLanguages()
{
    return {QStringLiteral("it"), QStringLiteral("en"), QStringLiteral("zh"), QStringLiteral("szh"),
            QStringLiteral("es")};
}

QString languageName(const QString &code)
{
    if (code == QLatin1String("it"))
        return QStringLiteral("Italiano");
    if (code == QLatin1String("en"))
        return QStringLiteral("English");
    if (code == QLatin1String("zh"))
        return QStringLiteral("\u7e41\u9ad4\u4e2d\u6587");
    if (code == QLatin1String("szh"))
        return QStringLiteral("\u7b80\u4f53\u4e2d\u6587");
    if (code == QLatin1String("es"))
        return QStringLiteral("Espa\u00f1ol");
    return code;
}

QStringList translationFolders()
{
    QStringList folders;
    const QString fromEnvironment = qEnvironmentVariable("NDXCOM_TRANSLATIONS");
    if (!fromEnvironment.isEmpty())
        folders << fromEnvironment;
#ifdef NDXCOM_TOOLS_BUILD_QM_DIR
    folders << QStringLiteral(NDXCOM_TOOLS_BUILD_QM_DIR);
#endif
    folders << QCoreApplication::applicationDirPath() + QLatin1Char('/')
            + QStringLiteral(NDXCOM_TOOLS_INSTALL_QM_DIR);
    return folders;
}

QStringList availableLanguages()
{
    QStringList languages {QStringLiteral("it")};
    for (const QString &code : suiteLanguages().mid(1)) {
        for (const QString &folder : translationFolders()) {
            if (QFileInfo::exists(folder + QStringLiteral("/ndxcom_%1.qm").arg(code))) {
                languages << code;
                break;
            }
        }
    }
    return languages;
}

bool installLanguage(const QString &code)
{
    std::unique_ptr<QTranslator> translator;
    if (code != QLatin1String("it")) {
        if (!suiteLanguages().contains(code))
            return false;
        translator = std::make_unique<QTranslator>();
        bool loaded = false;
        for (const QString &folder : translationFolders()) {
            if (translator->load(QStringLiteral("ndxcom_") + code, folder)) {
                loaded = true;
                break;
            }
        }
        if (!loaded)
            return false;
    }
    if (current()) {
        QCoreApplication::removeTranslator(current().get());
        current().reset();
    }
    if (translator) {
        QCoreApplication::installTranslator(translator.get());
        current() = std::move(translator);
    }
    useFontFor(code);
    currentCode() = code;
    return true;
}

QString installedLanguage()
{
    return currentCode();
}
