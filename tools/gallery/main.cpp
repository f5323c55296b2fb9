#include "boxcatcher.h"
#include "gallerycatalogue.h"
#include "gallerytranslations.h"
#include "gallerywindow.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>
#include <QtWidgets/QApplication>

#include <cstdio>

namespace {

QString html(const QString &text)
{
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

// Renders every entry into DIR/<family>-<value>.png and writes DIR/index.html.
int renderAll(const QVector<GalleryEntry> &entries, const QString &folder, const QString &language)
{
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "ndxcom-gallery: cannot create %s\n", qPrintable(folder));
        return 1;
    }
    QFile index(folder + QStringLiteral("/index.html"));
    if (!index.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
        std::fprintf(stderr, "ndxcom-gallery: cannot write %s\n", qPrintable(index.fileName()));
        return 1;
    }
    QTextStream out(&index);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    out.setCodec("UTF-8");
#endif
    out << "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>NdxCom dialogs</title>\n"
           "<style>body{font-family:sans-serif}td{vertical-align:top;padding:6px;"
           "border-bottom:1px solid #ccc}td.text{font-family:monospace;white-space:nowrap}</style>"
           "</head><body>\n<h1>NdxCom dialogs</h1>\n<p>Language: "
        << html(language) << ". " << entries.size()
        << " dialogs.</p>\n<table>\n<tr><th>Picture</th><th>Family</th><th>Value</th>"
           "<th>Arguments</th><th>Text shown</th><th>Result</th></tr>\n";

    int missing = 0;
    for (const GalleryEntry &e : entries) {
        if (e.prepare)
            e.prepare();
        BoxCatcher catcher(folder, e.stem());
        const int result = e.run();
        if (e.cleanup)
            e.cleanup();
        if (catcher.files().isEmpty()) {
            ++missing;
            std::fprintf(stderr, "ndxcom-gallery: %s showed nothing\n", qPrintable(e.stem()));
        }
        QString pictures;
        for (const QString &file : catcher.files())
            pictures += QStringLiteral("<img src=\"%1\" alt=\"%1\"><br>").arg(html(file));
        out << "<tr><td>" << pictures << "</td><td>" << html(e.family) << "</td><td>"
            << html(e.value) << "</td><td>" << html(e.arguments) << "</td><td class=\"text\">"
            << html(catcher.texts().join(QLatin1String("\n---\n"))) << "</td><td>" << result
            << "</td></tr>\n";
    }
    out << "</table>\n</body></html>\n";
    std::printf("%d dialogs rendered into %s\nindex: %s\n", int(entries.size()) - missing,
                qPrintable(QDir(folder).absolutePath()),
                qPrintable(QFileInfo(index).absoluteFilePath()));
    return missing == 0 ? 0 : 1;
}

// Platform chatter that says nothing about the gallery.
void quietPlatform(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtWarningMsg
        && (message.contains(QLatin1String("propagateSizeHints"))
            || message.contains(QLatin1String("XDG_RUNTIME_DIR"))))
        return;
    qt_message_output(type, context, message);
}

// --help, --list and --screenshot need no screen: unless a platform was
// named, they run on the offscreen one, so they also work without a display
// (the pictures are the same on every machine).
bool needsNoScreen(int argc, char *argv[])
{
    for (int i = 1; i < argc; ++i) {
        const QByteArray a(argv[i]);
        for (const char *option : {"-h", "-?", "--help", "--help-all", "--list", "-list",
                                   "--screenshot", "-screenshot"}) {
            if (a == option || (a.startsWith(option) && a.at(qstrlen(option)) == '='))
                return true;
        }
    }
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(quietPlatform);
    if (needsNoScreen(argc, argv) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("NdxCom"));
    QCoreApplication::setApplicationName(QStringLiteral("ndxcom-gallery"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Every dialog of the NdxCom library."));
    parser.addHelpOption();
    QCommandLineOption screenshot(
        QStringLiteral("screenshot"),
        QStringLiteral("Render every dialog into DIR and write DIR/index.html."),
        QStringLiteral("DIR"));
    QCommandLineOption language(
        QStringLiteral("language"),
        QStringLiteral("Show the dialogs with the catalogue of LANG (en, zh, szh, es)."),
        QStringLiteral("LANG"), QStringLiteral("it"));
    QCommandLineOption list(QStringLiteral("list"), QStringLiteral("List the dialogs and exit."));
    parser.addOptions({screenshot, language, list});
    parser.process(app);

    // The gallery's sample settings (a machine folder for the help, ...) live
    // in a folder of its own, never in the user's configuration.
    QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, settings.path());

    const QString code = parser.value(language);
    if (!installLanguage(code)) {
        std::fprintf(stderr, "ndxcom-gallery: no catalogue for '%s' in %s\n", qPrintable(code),
                     qPrintable(translationFolders().join(QLatin1String(", "))));
        return 2;
    }

    const QVector<GalleryEntry> entries = galleryEntries();
    if (parser.isSet(list)) {
        for (const GalleryEntry &e : entries)
            std::printf("%s\t%s\n", qPrintable(e.stem()), qPrintable(e.arguments));
        return 0;
    }
    if (parser.isSet(screenshot))
        return renderAll(entries, parser.value(screenshot), code);

    GalleryWindow window(entries);
    window.show();
    return app.exec();
}
