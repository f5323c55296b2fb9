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
    if (arguments == QStringList {QStringLiteral("--help")}) {
        out() << "usage: " << usage << "\n\n"
              << "needle    converts a needle to degrees and tenths of a degree\n"
              << "degree    converts whole degrees to a needle\n"
              << "degree10  converts tenths of a degree to a needle\n"
              << "Without --truncate the angle-to-needle conversions answer 0 or 1, as the\n"
              << "library does." << Qt::endl;
        return ExitOk;
    }
    QString unit;
    int value = 0;
    int needles = 0;
    bool haveValue = false, haveNeedles = false, haveMode = false, truncate = false;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &a = arguments.at(i);
        if (a == QLatin1String("--truncate") || a == QLatin1String("--no-truncate")) {
            if (haveMode)
                return usageError("geometry", QStringLiteral("give the mode once"),
                                  QLatin1String(usage));
            haveMode = true;
            truncate = a == QLatin1String("--truncate");
        } else if (a == QLatin1String("--needles")) {
            if (i + 1 >= arguments.size() || !toInt(arguments.at(i + 1), &needles))
                return usageError("geometry", QStringLiteral("--needles needs a whole number"),
                                  QLatin1String(usage));
            haveNeedles = true;
            ++i;
        } else if (unit.isEmpty()) {
            unit = a;
        } else if (!haveValue) {
            if (!toInt(a, &value))
                return usageError("geometry", QStringLiteral("'%1' is not a whole number").arg(a),
                                  QLatin1String(usage));
            haveValue = true;
        } else {
            return usageError("geometry", QStringLiteral("unexpected '%1'").arg(a),
                              QLatin1String(usage));
        }
    }
    if (!haveValue || !haveNeedles || !haveMode)
        return usageError("geometry",
                          QStringLiteral("a unit, a value, --needles and a mode are needed"),
                          QLatin1String(usage));

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
