#include "command.h"
#include "toolscreen.h"

#include <QNodrixCom>

#include <QtCore/QCoreApplication>
#include <QtCore/QLoggingCategory>
#include <QtWidgets/QApplication>

#include <memory>

std::vector<Command> &Command::all()
{
    static std::vector<Command> commands;
    return commands;
}

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

QTextStream &err()
{
    static QTextStream stream(stderr);
    return stream;
}

QString visible(const QString &value)
{
    QString shown;
    shown.reserve(value.size());
    for (const QChar c : value) {
        const ushort u = c.unicode();
        if (u == '\n') {
            shown += QLatin1String("\\n");
        } else if (u == '\r') {
            shown += QLatin1String("\\r");
        } else if (u == '\t') {
            shown += QLatin1String("\\t");
        } else if (u < 0x20 || (u >= 0x7f && u <= 0x9f)) {
            shown += QStringLiteral("\\x%1").arg(u, 2, 16, QLatin1Char('0'));
        } else if (u == 0x061c || u == 0x200e || u == 0x200f || u == 0x2028 || u == 0x2029
                   || (u >= 0x202a && u <= 0x202e) || (u >= 0x2066 && u <= 0x2069)) {
            shown += QStringLiteral("\\u%1").arg(u, 4, 16, QLatin1Char('0'));
        } else {
            shown += c;
        }
    }
    return shown;
}

QString quoted(const QString &value)
{
    return QLatin1Char('"') + visible(value) + QLatin1Char('"');
}

int usageError(const char *command, const QString &message, const QString &usage)
{
    err() << "ndxcom " << command << ": " << message << "\nusage: " << usage << Qt::endl;
    return ExitUsage;
}

// Platform chatter that says nothing about the command's work; everything
// else goes to Qt's own handler, which names the category of a diagnostic.
static QtMessageHandler qtHandler = nullptr;
static void quietPlatform(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtWarningMsg
        && (message.contains(QLatin1String("propagateSizeHints"))
            || message.contains(QLatin1String("XDG_RUNTIME_DIR"))))
        return;
    if (qtHandler)
        qtHandler(type, context, message);
    else
        qt_message_output(type, context, message);
}

static void printOverview(QTextStream &stream)
{
    stream << "usage: ndxcom <command> [arguments]\n\n"
              "The common library of the Nodrix suite, from the command line.\n\n"
              "Commands:\n";
    for (const Command &c : Command::all())
        stream << "  " << QString::fromLatin1(c.name).leftJustified(10) << ' '
               << QString::fromLatin1(c.synopsis) << '\n';
    stream << "\n'ndxcom <command> --help' describes one command; 'ndxcom --version' prints\n"
              "the versions of the program, the library and Qt. '--verbose' with any command\n"
              "prints the library's diagnostics (ndxcom.* logging categories) on standard error."
           << Qt::endl;
}

// The program's own version, the version of the library it runs with (the
// library answers its own version word) and the Qt it runs on.
static void printVersion()
{
    const unsigned int word = QNodrixCom::getNdxVersion(QStringLiteral("NdxCom"));
    out() << "ndxcom " << NDXCOM_TOOL_VERSION << '\n'
          << "NdxCom " << ((word >> 24) & 0xFF) << '.' << ((word >> 16) & 0xFF) << '.'
          << ((word >> 8) & 0xFF) << " (" << NDXCOM_TOOL_LIBRARY << ", Qt " << qVersion() << ')'
          << Qt::endl;
}

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);

    // --verbose, before the command or among its options (not after "--"),
    // turns on the library's diagnostics: why a lock, a settings store or a
    // help index failed, on standard error.
    const qsizetype end = arguments.contains(QStringLiteral("--"))
        ? arguments.indexOf(QStringLiteral("--"))
        : arguments.size();
    bool verbose = false;
    for (qsizetype i = end - 1; i >= 0; --i) {
        if (arguments.at(i) == QLatin1String("--verbose")) {
            arguments.removeAt(i);
            verbose = true;
        }
    }
    if (verbose)
        QLoggingCategory::setFilterRules(QStringLiteral("ndxcom.*=true"));

    if (arguments.isEmpty() || arguments.first() == QLatin1String("--help")
        || arguments.first() == QLatin1String("-h")
        || arguments.first() == QLatin1String("help-all")) {
        printOverview(arguments.isEmpty() ? err() : out());
        return arguments.isEmpty() ? ExitUsage : ExitOk;
    }
    if (arguments == QStringList {QStringLiteral("--version")}) {
        printVersion();
        return ExitOk;
    }

    qtHandler = qInstallMessageHandler(quietPlatform);
    const QString name = arguments.takeFirst();
    for (const Command &c : Command::all()) {
        if (name != QLatin1String(c.name))
            continue;
        std::unique_ptr<QCoreApplication> app;
        if (c.kind == Command::Gui) {
            // Without a display the commands still run, on the offscreen
            // platform with a screen of a workstation's size.
            prepareScreen();
            app.reset(new QApplication(argc, argv));
            screenReady();
        } else
            app.reset(new QCoreApplication(argc, argv));
        QCoreApplication::setApplicationName(QStringLiteral("ndxcom"));
        return c.run(arguments);
    }
    err() << "ndxcom: unknown command '" << name << "'\n\n";
    printOverview(err());
    return ExitUsage;
}
