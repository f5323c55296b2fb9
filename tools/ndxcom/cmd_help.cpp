#include "command.h"
#include "storeoptions.h"

#include <QNodrixHelp>
#include <private/qnodrixhelp_p.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

namespace {

const char usage[] = "ndxcom help [--organization ORG --application APP] [--user-dir DIR] "
                     "[--system-dir DIR] CLASS [TOPIC] | ndxcom help --list";

// Takes the address display() hands to the desktop instead of opening it.
class AddressCatcher : public QObject
{
    Q_OBJECT
public:
    QString address;
public Q_SLOTS:
    void open(const QUrl &url) { address = url.toString(); }
};

int runHelp(const QStringList &arguments)
{
    // The same options as `ndxcom settings`: whose settings decide the
    // machine folder, the language and the help-info switch.
    QCommandLineParser parser;
    StoreOptions options;
    options.addTo(parser);
    const QCommandLineOption helpOption(QStringList {QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption listOption(QStringLiteral("list"),
                                        QStringLiteral("Print the whole topic table."));
    parser.addOption(helpOption);
    parser.addOption(listOption);
    addVerboseOption(parser);
    if (!parser.parse(QStringList {QStringLiteral("ndxcom help")} + arguments))
        return usageError("help", parser.errorText(), QLatin1String(usage));
    applyVerboseOption(parser);
    if (parser.isSet(helpOption)) {
        out() << "usage: " << usage << "\n\n"
              << "Prints the help number of a dialog class and the document address the\n"
              << "help would open for TOPIC (default: the class name) with the settings of\n"
              << "the application named by --organization and --application.\n"
              << "--list prints the whole topic table.\n\n"
              << parser.helpText().section(QLatin1Char('\n'), 2) << Qt::endl;
        return ExitOk;
    }
    const QStringList positional = parser.positionalArguments();
    if (parser.isSet(listOption)) {
        if (!positional.isEmpty())
            return usageError("help", QStringLiteral("--list takes no dialog class"),
                              QLatin1String(usage));
        for (int i = 0; i < NdxComHelp::topicCount; ++i) {
            out() << QString::fromLatin1(NdxComHelp::topics[i].className).leftJustified(34) << ' '
                  << QLatin1String(NdxComHelp::topics[i].helpNumber) << '\n';
        }
        out().flush();
        return ExitOk;
    }
    options.apply(parser);

    if (positional.isEmpty() || positional.size() > 2)
        return usageError("help", QStringLiteral("give one dialog class"), QLatin1String(usage));

    // The help object reports an unreadable index with a warning box; here it
    // is read off and answered, so the command never waits for a person.
    QString indexWarning;
    QTimer watcher;
    QObject::connect(&watcher, &QTimer::timeout, &watcher, [&] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            indexWarning = box->text();
            box->reject();
        }
    });
    watcher.start(10);
    QNodrixHelp help;
    watcher.stop();

    AddressCatcher catcher;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &catcher, "open");
    const QString className = positional.first();
    help.display(positional.value(1, className));
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));

    const QString number = help.getButHelpString(className);
    out() << "class = " << className << '\n'
          << "number = " << (number.isEmpty() ? QStringLiteral("(not in the table)") : number)
          << '\n'
          << "address = " << catcher.address << '\n'
          << "help info = " << (help.getButHelpNumber() ? "on" : "off") << Qt::endl;
    if (!indexWarning.isEmpty())
        err() << "warning: " << indexWarning << Qt::endl;
    return number.isEmpty() ? ExitFailure : ExitOk;
}

Command::Registrar registrar("help", "help number of a dialog class and its document address",
                             Command::Gui, runHelp);

} // namespace

#include "cmd_help.moc"
