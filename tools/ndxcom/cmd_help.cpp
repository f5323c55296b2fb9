#include "command.h"

#include <QNodrixHelp>
#include <private/qnodrixhelp_p.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

namespace {

const char usage[]
    = "ndxcom help [--organization ORG --application APP] CLASS [TOPIC] | ndxcom help --list";

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
    if (arguments == QStringList {QStringLiteral("--help")}) {
        out() << "usage: " << usage << "\n\n"
              << "Prints the help number of a dialog class and the document address the\n"
              << "help would open for TOPIC (default: the class name) with the settings of\n"
              << "the application named by --organization and --application.\n"
              << "--list prints the whole topic table." << Qt::endl;
        return ExitOk;
    }
    if (arguments == QStringList {QStringLiteral("--list")}) {
        for (int i = 0; i < QNodrixHelpPrivate::topicCount; ++i) {
            out() << QString::fromLatin1(QNodrixHelpPrivate::topics[i].className).leftJustified(34)
                  << ' ' << QLatin1String(QNodrixHelpPrivate::topics[i].helpNumber) << '\n';
        }
        out().flush();
        return ExitOk;
    }

    QStringList positional;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &a = arguments.at(i);
        if (a == QLatin1String("--organization") || a == QLatin1String("--application")) {
            if (i + 1 >= arguments.size())
                return usageError("help", QStringLiteral("%1 needs a name").arg(a),
                                  QLatin1String(usage));
            if (a == QLatin1String("--organization"))
                QCoreApplication::setOrganizationName(arguments.at(++i));
            else
                QCoreApplication::setApplicationName(arguments.at(++i));
        } else if (a.startsWith(QLatin1String("--"))) {
            return usageError("help", QStringLiteral("unknown option '%1'").arg(a),
                              QLatin1String(usage));
        } else {
            positional << a;
        }
    }
    if (positional.isEmpty() || positional.size() > 2)
        return usageError("help", QStringLiteral("give one dialog class"), QLatin1String(usage));

    // The help object reports an unreadable index with a warning box; here it
    // is read off and answered, so the command never waits for a person.
    QString indexWarning;
    QTimer watcher;
    QObject::connect(&watcher, &QTimer::timeout, [&] {
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
