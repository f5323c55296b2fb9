#include "command.h"

#include <QNodrixCom>

namespace {

const char usage[]
    = "ndxcom geometry needle|degree|degree10 VALUE --needles N (--truncate | --no-truncate)";

bool toInt(const QString &text, int *value)
{
    bool ok = false;
    *value = text.toInt(&ok, 10);
    return ok;
}

int runGeometry(const QStringList &arguments)
{
    CommandParser parser("geometry");
    const QCommandLineOption needlesOption(
        QStringLiteral("needles"), QStringLiteral("Needles of the cylinder."), QStringLiteral("N"));
    const QCommandLineOption truncateOption(QStringLiteral("truncate"));
    const QCommandLineOption noTruncateOption(QStringLiteral("no-truncate"));
    const QCommandLineOption helpOption(QStringList {QStringLiteral("h"), QStringLiteral("help")});
    for (const QCommandLineOption &option :
         {needlesOption, truncateOption, noTruncateOption, helpOption})
        parser.addOption(option);
    if (!parser.parse(arguments))
        return usageError("geometry", parser.errorText(), QLatin1String(usage));
    if (parser.isSet(helpOption)) {
        out() << "usage: " << usage << "\n\n"
              << "needle    converts a needle to degrees and tenths of a degree\n"
              << "degree    converts whole degrees to a needle\n"
              << "degree10  converts tenths of a degree to a needle\n"
              << "Without --truncate the angle-to-needle conversions answer 0 or 1, as the\n"
              << "library does." << Qt::endl;
        return ExitOk;
    }
    const int modes = parser.count(truncateOption) + parser.count(noTruncateOption);
    if (modes > 1)
        return usageError("geometry", QStringLiteral("give the mode once"), QLatin1String(usage));
    const bool truncate = parser.isSet(truncateOption);
    int needles = 0;
    for (const QString &given : parser.values(needlesOption)) {
        if (!toInt(given, &needles))
            return usageError("geometry", QStringLiteral("--needles needs a whole number"),
                              QLatin1String(usage));
    }
    const QStringList positional = parser.positionalArguments();
    if (positional.size() > 2)
        return usageError("geometry", QStringLiteral("unexpected '%1'").arg(positional.at(2)),
                          QLatin1String(usage));
    int value = 0;
    if (positional.size() == 2 && !toInt(positional.at(1), &value))
        return usageError("geometry",
                          QStringLiteral("'%1' is not a whole number").arg(positional.at(1)),
                          QLatin1String(usage));
    if (positional.size() < 2 || !parser.isSet(needlesOption) || modes == 0)
        return usageError("geometry",
                          QStringLiteral("a unit, a value, --needles and a mode are needed"),
                          QLatin1String(usage));
    const QString unit = positional.first();

    if (unit == QLatin1String("needle")) {
        out() << "degree = " << QNodrixCom::degreeFromNeedle(value, needles, truncate) << '\n'
              << "degree10 = " << QNodrixCom::degree10FromNeedle(value, needles, truncate)
              << Qt::endl;
    } else if (unit == QLatin1String("degree")) {
        out() << "needle = " << QNodrixCom::needleFromDegree(value, needles, truncate) << Qt::endl;
    } else if (unit == QLatin1String("degree10")) {
        out() << "needle = " << QNodrixCom::needleFromDegree10(value, needles, truncate)
              << Qt::endl;
    } else {
        return usageError("geometry", QStringLiteral("unknown unit '%1'").arg(unit),
                          QLatin1String(usage));
    }
    return ExitOk;
}

Command::Registrar registrar("geometry", "convert between needles, degrees and tenths of a degree",
                             Command::Console, runGeometry);

} // namespace
