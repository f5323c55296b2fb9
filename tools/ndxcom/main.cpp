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

namespace {

// Marks an argument that QCommandLineParser must take as it is: a character of
// the private use area in front. An argument that already starts with it gets
// one more, so every argument comes back exactly as it was given.
constexpr ushort argumentMark = 0xE000;

QString marked(const QString &argument)
{
    const bool negativeNumber = argument.size() > 1 && argument.at(0) == QLatin1Char('-')
        && argument.at(1) >= QLatin1Char('0') && argument.at(1) <= QLatin1Char('9');
    if (negativeNumber || argument.startsWith(QChar(argumentMark)))
        return QChar(argumentMark) + argument;
    return argument;
}

QString unmarked(const QString &argument)
{
    return argument.startsWith(QChar(argumentMark)) ? argument.mid(1) : argument;
}

QStringList unmarked(QStringList arguments)
{
    for (QString &argument : arguments)
        argument = unmarked(argument);
    return arguments;
}

} // namespace

void addVerboseOption(QCommandLineParser &parser)
{
    parser.addOption(
        QCommandLineOption(QStringLiteral("verbose"),
                           QStringLiteral("Print the library's diagnostics on standard error.")));
}

void applyVerboseOption(const QCommandLineParser &parser)
{
    if (parser.isSet(QStringLiteral("verbose")))
        QLoggingCategory::setFilterRules(QStringLiteral("ndxcom.*=true"));
}

bool CommandParser::parse(const QStringList &arguments)
{
    QStringList all {QStringLiteral("ndxcom ") + m_command};
    for (const QString &argument : arguments)
        all << marked(argument);
    if (!m_parser.parse(all))
        return false;
    applyVerboseOption(m_parser);
    return true;
}

int CommandParser::count(const QCommandLineOption &option) const
{
    const QStringList found = m_parser.optionNames();
    int n = 0;
    for (const QString &name : option.names())
        n += int(found.count(name));
    return n;
}

QString CommandParser::value(const QCommandLineOption &option) const
{
    return unmarked(m_parser.value(option));
}

QStringList CommandParser::values(const QCommandLineOption &option) const
{
    return unmarked(m_parser.values(option));
}

QStringList CommandParser::positionalArguments() const
{
    return unmarked(m_parser.positionalArguments());
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

    // The program's own options stand before the command; from the command's
    // name on, every argument is the command's.
    QCommandLineParser parser;
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    const QCommandLineOption helpOption(QStringList {QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption versionOption(QStringLiteral("version"));
    parser.addOption(helpOption);
    parser.addOption(versionOption);
    addVerboseOption(parser);
    if (!parser.parse(QStringList {QStringLiteral("ndxcom")} + arguments)) {
        err() << "ndxcom: " << parser.errorText() << "\n\n";
        printOverview(err());
        return ExitUsage;
    }
    applyVerboseOption(parser);
    QStringList command = parser.positionalArguments();
    if (parser.isSet(helpOption) || command.value(0) == QLatin1String("help-all")) {
        printOverview(out());
        return ExitOk;
    }
    if (parser.isSet(versionOption)) {
        QStringList given = parser.optionNames();
        given.removeAll(QStringLiteral("verbose"));
        if (!command.isEmpty() || given != QStringList {QStringLiteral("version")}) {
            err() << "ndxcom: --version stands alone\n\n";
            printOverview(err());
            return ExitUsage;
        }
        printVersion();
        return ExitOk;
    }
    if (command.isEmpty()) {
        printOverview(err());
        return ExitUsage;
    }

    qtHandler = qInstallMessageHandler(quietPlatform);
    const QString name = command.takeFirst();
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
        return c.run(command);
    }
    err() << "ndxcom: unknown command '" << name << "'\n\n";
    printOverview(err());
    return ExitUsage;
}
