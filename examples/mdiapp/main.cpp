// A suite application in small: an MDI editor of Nodrix projects built on
// the installed NdxCom package. main() walks the start-up sequence every
// application of the suite follows.
#include "autopilot.h"
#include "mainwindow.h"

#include <QFileSharing>
#include <QNodrixCom>
#include <QNodrixMessageBox>
#include <QNodrixRegistry>

#include <QtCore/QCommandLineParser>
#include <QtCore/QTranslator>
#include <QtGui/QIcon>
#include <QtWidgets/QApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    // The settings of this application: QNodrixRegistry keeps them under
    // these names.
    QCoreApplication::setOrganizationName(QStringLiteral("NdxComExample"));
    QCoreApplication::setApplicationName(QStringLiteral("MdiApp"));
    QCoreApplication::setApplicationVersion(QStringLiteral(EXAMPLE_VERSION));
    // The product icon from the application's resources, where the
    // dictionary names it (the library's boxes take theirs from
    // ":/Nodrix/Resources/Nodrix.PNG", also provided in example.qrc).
    QApplication::setWindowIcon(QIcon(QNodrixCom::nodrixIcon()));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "An MDI application of the Nodrix suite built on NdxCom. The options below run it "
        "unattended (for tests and pictures); without them it is used as any application."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption newSaveAs(QStringLiteral("new-save-as"),
                                       QStringLiteral("New project, then Save as PATH."),
                                       QStringLiteral("PATH"));
    const QCommandLineOption open(QStringLiteral("open"), QStringLiteral("Open PATH."),
                                  QStringLiteral("PATH"));
    const QCommandLineOption answer(QStringLiteral("answer"),
                                    QStringLiteral("Answer every question with BUTTON."),
                                    QStringLiteral("BUTTON"));
    const QCommandLineOption help(QStringLiteral("press-f1"),
                                  QStringLiteral("Ask for help; print the address."));
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Save a picture of the window."),
                                        QStringLiteral("FILE"));
    const QCommandLineOption holdUntil(QStringLiteral("hold-until"),
                                       QStringLiteral("Stay open until FILE exists."),
                                       QStringLiteral("FILE"));
    parser.addOptions({newSaveAs, open, answer, help, screenshot, holdUntil});
    parser.process(app);

    // 1. The application's own version.
    QNodrixCom::setNodrixAppVersion(QStringLiteral(EXAMPLE_VERSION));

    // 2. The language: the settings hold it, QNodrixCom::language() gives its
    // code ("en" when none is stored); the library's texts come from its own
    // catalogue, installed with it, the application's from its own.
    const QString language = QNodrixCom::language();
    QNodrixCom::setLanguageApp(int(QNodrixCom::refLanguages().indexOf(language)));
    QTranslator libraryTexts;
    if (libraryTexts.load(QStringLiteral("ndxcom_") + language,
                          QStringLiteral(EXAMPLE_NDXCOM_TRANSLATIONS_DIR)))
        QCoreApplication::installTranslator(&libraryTexts);

    // 3. The machine's rules for project names and the projects' filing:
    // at most 32 characters, no '#'; no gauge or diameter subfolders.
    QNodrixCom::setProjectsNameOptions(32, QStringLiteral("#"));
    QNodrixCom::setProjectsFolderOptions(0, 0);

    // 4. The lock-file protocol: this application shares projects between
    // workstations, so it switches it on before the first project opens.
    QFileSharing::setSharingControlEnabled(true);

    // 5. The MDI area, whose window titles count as taken project names.
    MainWindow window;
    QNodrixCom::setMdiArea(window.mdiArea());

    // 6. The translatable names and the default plane palette, once.
    QNodrixCom::intTranslatableStrings();
    QNodrixCom::initPalettePlaneDefault();

    window.restorePlacement();

    Autopilot *pilot = nullptr;
    Autopilot::Steps steps;
    steps.newSaveAs = parser.value(newSaveAs);
    steps.open = parser.value(open);
    steps.answer = parser.value(answer);
    steps.help = parser.isSet(help);
    steps.screenshot = parser.value(screenshot);
    steps.holdUntil = parser.value(holdUntil);
    if (!steps.newSaveAs.isEmpty() || !steps.open.isEmpty() || steps.help
        || !steps.screenshot.isEmpty() || !steps.holdUntil.isEmpty()) {
        // Qt's own widget dialogs, which the autopilot can answer.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        std::printf("language: %s\nplacement: %dx%d, %s\n", qPrintable(language), window.width(),
                    window.height(), window.isMaximized() ? "maximized" : "normal");
        std::fflush(stdout);
        pilot = new Autopilot(&window, steps); // answers dialogs from now on
    }
    // 7. The platform this machine's software needs: the library's advisory
    // when the installed one is older.
    {
        QNodrixRegistry registry;
        const QString needed = registry.getNodrixEnvVersNeeded();
        if (!needed.isEmpty()
            && QNodrixCom::compareVersionMMR(registry.getNodrixEnvVersInst(), needed) < 0)
            QNodrixMessageBox::execApplAdvisor(QNodrixMessageBox::eApplAdvisor_PlatformTooOld,
                                               needed, 0);
    }

    if (pilot)
        pilot->start();
    return app.exec();
}
