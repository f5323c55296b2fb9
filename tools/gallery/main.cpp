#include "boxcatcher.h"
#include "gallerycatalogue.h"
#include "galleryindex.h"
#include "gallerywindow.h"
#include "sourcerecorder.h"
#include "toollanguages.h"
#include "toolscreen.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>

#include <cstdio>

namespace {

// Renders every entry in each language into DIR (one language) or DIR/<code>
// (several) as <family>-<value>.png and writes DIR/index.html. Returns the
// exit status: 1 when a dialog showed nothing or a file could not be written.
int renderAll(const QVector<GalleryEntry> &entries, const QString &folder,
              const QStringList &languages)
{
    QVector<IndexRow> rows;
    for (const GalleryEntry &e : entries)
        rows.append(IndexRow {e, {}, {}});

    SourceRecorder recorder;
    int missing = 0;
    for (const QString &code : languages) {
        const QString sub = languages.size() > 1 ? code + QLatin1Char('/') : QString();
        const QString target = folder + QLatin1Char('/') + sub;
        if (!QDir().mkpath(target)) {
            std::fprintf(stderr, "ndxcom-gallery: cannot create %s\n", qPrintable(target));
            return 1;
        }
        installLanguage(code);
        // In front of the catalogue, so that it sees every request.
        QCoreApplication::removeTranslator(&recorder);
        QCoreApplication::installTranslator(&recorder);

        int shown = 0;
        for (IndexRow &row : rows) {
            const GalleryEntry &e = row.entry;
            if (e.prepare)
                e.prepare();
            recorder.take();
            BoxCatcher catcher(target, e.stem());
            const int result = e.run();
            const QStringList sources = recorder.take();
            if (e.cleanup)
                e.cleanup();
            if (row.sources.isEmpty())
                row.sources = sources;
            if (catcher.files().isEmpty()) {
                ++missing;
                std::fprintf(stderr, "ndxcom-gallery: %s%s showed nothing\n", qPrintable(sub),
                             qPrintable(e.stem()));
            } else {
                ++shown;
            }
            RenderedDialog &rendered = row.shown[code];
            rendered.result = result;
            for (int b = 0; b < catcher.files().size(); ++b) {
                rendered.pictures << sub + catcher.files().at(b);
                QString text
                    = catcher.titles().value(b) + QLatin1Char('\n') + catcher.texts().value(b);
                const QStringList buttons = catcher.buttons().value(b);
                if (!buttons.isEmpty())
                    text += QStringLiteral("\n[") + buttons.join(QLatin1String("] ["))
                        + QLatin1Char(']');
                rendered.texts << text;
            }
        }
        std::printf("%d dialogs rendered into %s (%s)\n", shown,
                    qPrintable(QDir(target).absolutePath()), qPrintable(code));
    }
    QCoreApplication::removeTranslator(&recorder);

    const QScreen *screen = QGuiApplication::primaryScreen();
    const QString screenText = screen
        ? QStringLiteral("a %1x%2 screen (%3, Qt %4)")
              .arg(screen->geometry().width())
              .arg(screen->geometry().height())
              .arg(QGuiApplication::platformName(), QLatin1String(qVersion()))
        : QStringLiteral("no screen");
    const QString index = folder + QStringLiteral("/index.html");
    QString error;
    if (!writeIndex(index, languages, rows, screenText, &error)) {
        std::fprintf(stderr, "ndxcom-gallery: cannot write %s: %s\n", qPrintable(index),
                     qPrintable(error));
        return 1;
    }
    std::printf("index: %s\n", qPrintable(QFileInfo(index).absoluteFilePath()));
    return missing == 0 ? 0 : 1;
}

// "all", one code or a comma-separated list; empty when a code is unknown.
QStringList parseLanguages(const QString &value, QString *unknown)
{
    if (value == QLatin1String("all"))
        return suiteLanguages();
    QStringList languages;
    for (const QString &part : value.split(QLatin1Char(','))) {
        const QString code = part.trimmed();
        if (!suiteLanguages().contains(code)) {
            *unknown = code;
            return {};
        }
        if (!languages.contains(code))
            languages << code;
    }
    return languages;
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
    // The modes that only print or render need no display and find the
    // offscreen platform by themselves; the window takes the display it has.
    if (needsNoScreen(argc, argv) || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        prepareScreen();
    QApplication app(argc, argv);
    screenReady();
    QCoreApplication::setOrganizationName(QStringLiteral("NdxCom"));
    QCoreApplication::setApplicationName(QStringLiteral("ndxcom-gallery"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Every dialog of the NdxCom library."));
    // Its own --help: QCommandLineParser's shows a Windows GUI program's help
    // in a message box, which a script reading the help never sees.
    const QCommandLineOption help(QStringList {QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Displays help on commandline options."));
    parser.addOption(help);
    QCommandLineOption screenshot(
        QStringLiteral("screenshot"),
        QStringLiteral("Render every dialog into DIR and write DIR/index.html."),
        QStringLiteral("DIR"));
    QCommandLineOption language(
        QStringLiteral("language"),
        QStringLiteral("Show the dialogs in LANG: it (the source texts), en, zh, szh or es. "
                       "With --screenshot also several, comma-separated, or all: each goes to "
                       "DIR/<code>/ and the index switches between them."),
        QStringLiteral("LANG"), QStringLiteral("it"));
    QCommandLineOption list(QStringLiteral("list"), QStringLiteral("List the dialogs and exit."));
    parser.addOptions({screenshot, language, list});
    parser.process(app);
    if (parser.isSet(help)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return 0;
    }

    // The gallery's sample settings (a machine folder for the help, ...) live
    // in a folder of its own, never in the user's configuration.
    QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, settings.path());

    QString unknown;
    const QStringList languages = parseLanguages(parser.value(language), &unknown);
    if (languages.isEmpty()) {
        std::fprintf(stderr, "ndxcom-gallery: unknown language '%s' (%s or all)\n",
                     qPrintable(unknown), qPrintable(suiteLanguages().join(QLatin1String(", "))));
        return 2;
    }
    if (languages.size() > 1 && !parser.isSet(screenshot)) {
        std::fprintf(stderr, "ndxcom-gallery: several languages only with --screenshot\n");
        return 2;
    }
    for (const QString &code : languages) {
        if (!installLanguage(code)) {
            std::fprintf(stderr, "ndxcom-gallery: no catalogue for '%s' in %s\n", qPrintable(code),
                         qPrintable(translationFolders().join(QLatin1String(", "))));
            return 2;
        }
    }
    installLanguage(languages.first());

    const QVector<GalleryEntry> entries = galleryEntries();
    if (parser.isSet(list)) {
        for (const GalleryEntry &e : entries)
            std::printf("%s\t%s\n", qPrintable(e.stem()), qPrintable(e.arguments));
        return 0;
    }
    if (parser.isSet(screenshot))
        return renderAll(entries, parser.value(screenshot), languages);

    GalleryWindow window(entries);
    window.show();
    return app.exec();
}
