#include "command.h"

#include <QNodrixCom>

namespace {

const char usage[] = "ndxcom version compare A B | ndxcom version pack A";

int runVersion(const QStringList &arguments)
{
    if (arguments == QStringList {QStringLiteral("--help")}) {
        out() << "usage: " << usage << "\n\n"
              << "compare  prints 1, 0 or -1 comparing two dotted versions right-aligned\n"
              << "pack     prints the right-aligned word of a dotted version and the\n"
              << "         left-aligned word the application version would get" << Qt::endl;
        return ExitOk;
    }
    const QString sub = arguments.value(0);
    if (sub == QLatin1String("compare") && arguments.size() == 3) {
        out() << QNodrixCom::compareVersionMMR(arguments.at(1), arguments.at(2)) << Qt::endl;
        return ExitOk;
    }
    if (sub == QLatin1String("pack") && arguments.size() == 2) {
        const unsigned int right = QNodrixCom::versionMMRNumber(arguments.at(1));
        QNodrixCom::setNodrixAppVersion(arguments.at(1));
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
