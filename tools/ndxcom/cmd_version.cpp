#include "command.h"

#include <QNodrixCom>

namespace {

const char usage[] = "ndxcom version compare A B | ndxcom version pack A";

int runVersion(const QStringList &arguments)
{
    CommandParser parser("version");
    const QCommandLineOption helpOption(QStringList {QStringLiteral("h"), QStringLiteral("help")});
    parser.addOption(helpOption);
    if (!parser.parse(arguments))
        return usageError("version", parser.errorText(), QLatin1String(usage));
    if (parser.isSet(helpOption)) {
        out() << "usage: " << usage << "\n\n"
              << "compare  prints 1, 0 or -1 comparing two dotted versions right-aligned\n"
              << "pack     prints the right-aligned word of a dotted version and the\n"
              << "         left-aligned word the application version would get" << Qt::endl;
        return ExitOk;
    }
    const QStringList positional = parser.positionalArguments();
    const QString sub = positional.value(0);
    if (sub == QLatin1String("compare") && positional.size() == 3) {
        out() << QNodrixCom::compareVersionMMR(positional.at(1), positional.at(2)) << Qt::endl;
        return ExitOk;
    }
    if (sub == QLatin1String("pack") && positional.size() == 2) {
        const unsigned int right = QNodrixCom::versionMMRNumber(positional.at(1));
        QNodrixCom::setNodrixAppVersion(positional.at(1));
        const unsigned int left = QNodrixCom().getNodrixAppVersion();
        out() << "right-aligned = 0x"
              << QString::number(right, 16).rightJustified(8, QLatin1Char('0'))
              << "\nleft-aligned = 0x"
              << QString::number(left, 16).rightJustified(8, QLatin1Char('0')) << Qt::endl;
        return ExitOk;
    }
    return usageError("version", QStringLiteral("expected 'compare A B' or 'pack A'"),
                      QLatin1String(usage));
}

Command::Registrar registrar("version", "compare or pack dotted version texts", Command::Console,
                             runVersion);

} // namespace
