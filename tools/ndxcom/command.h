#ifndef NDXCOM_TOOL_COMMAND_H
#define NDXCOM_TOOL_COMMAND_H

#include <QtCore/QCommandLineParser>
#include <QtCore/QStringList>
#include <QtCore/QTextStream>

#include <functional>
#include <vector>

// One subcommand of the ndxcom program. Each command lives in its own
// cmd_*.cpp and registers itself with a static Command::Registrar, so adding a
// command touches no other file.
struct Command
{
    enum Kind { Console, Gui };

    const char *name;
    const char *synopsis; // one line for the overview
    Kind kind;
    // Receives the arguments after the command name; returns the exit code.
    std::function<int(const QStringList &arguments)> run;

    static std::vector<Command> &all();

    struct Registrar
    {
        Registrar(const char *name, const char *synopsis, Kind kind,
                  std::function<int(const QStringList &)> run)
        {
            all().push_back(Command {name, synopsis, kind, std::move(run)});
        }
    };
};

QTextStream &out();
QTextStream &err();

// Exit codes shared by all commands.
enum ExitCode { ExitOk = 0, ExitFailure = 1, ExitUsage = 64 };
// A settings store that is not a regular file (a FIFO, a folder, a device):
// reported, never read.
constexpr int ExitStoreUnreadable = 2;

// A value read from a file, a setting or a lock as the terminal may print it:
// control characters (line breaks and escape sequences too), DEL, the C1
// controls and the bidirectional and line-separator characters are written
// as escapes ("\x1b", "\n", "\u202e"), so that no value can move the cursor,
// retitle the terminal or print a line of its own.
QString visible(const QString &value);
// visible() between double quotes.
QString quoted(const QString &value);

// --verbose, which the program and every command take, before the command
// or among its options: the library's diagnostics (the ndxcom.* logging
// categories) on standard error. Added to a parser, and applied once the
// arguments are parsed.
void addVerboseOption(QCommandLineParser &parser);
void applyVerboseOption(const QCommandLineParser &parser);

// The parser of a command's arguments: QCommandLineParser, except that an
// argument that starts like a negative number ("-90", "-1.0") is never read as
// short options. Enumeration values, angles and versions below zero are
// ordinary arguments of the commands and need no "--" in front of them.
class CommandParser
{
public:
    explicit CommandParser(const char *command)
        : m_command(QLatin1String(command))
    {
        addVerboseOption(m_parser);
    }

    void addOption(const QCommandLineOption &option) { m_parser.addOption(option); }
    void setOptionsAfterPositionalArgumentsMode(
        QCommandLineParser::OptionsAfterPositionalArgumentsMode mode)
    {
        m_parser.setOptionsAfterPositionalArgumentsMode(mode);
    }
    // Also applies --verbose.
    bool parse(const QStringList &arguments);
    QString errorText() const { return m_parser.errorText(); }

    bool isSet(const QCommandLineOption &option) const { return m_parser.isSet(option); }
    // How many times the option was given.
    int count(const QCommandLineOption &option) const;
    // The values and arguments as they were given.
    QString value(const QCommandLineOption &option) const;
    QStringList values(const QCommandLineOption &option) const;
    QStringList positionalArguments() const;

private:
    QCommandLineParser m_parser;
    QString m_command;
};

// Prints "ndxcom <command>: <message>" and the usage line; returns ExitUsage.
int usageError(const char *command, const QString &message, const QString &usage);

#endif // NDXCOM_TOOL_COMMAND_H
