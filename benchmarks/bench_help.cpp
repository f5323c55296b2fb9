#include "benchsupport.h"

#include <QNodrixCom>
#include <QNodrixHelp>

#include <QtCore/QHash>
#include <QtCore/QTextStream>

#include <map>
#include <memory>

// Building a QNodrixHelp over a help index of 1,000 to 100,000 lines, against
// reading the same file line by line into a hash of key and value: what the
// constructor cannot do without. The library also reads three settings (the
// machine folder, the help switch, the language) and fills its fixed topic
// table; the index dominates as it grows.

namespace {

struct HelpFixture
{
    QTemporaryDir dir {QDir::tempPath() + QStringLiteral("/ndxcom-bench-help-XXXXXX")};
    QString indexPath;
};

// A machine folder with help/HelpMac.ini of `lines` lines, built once per size.
HelpFixture &helpFixture(int lines)
{
    static std::map<int, std::unique_ptr<HelpFixture>> fixtures;
    auto &fixture = fixtures[lines];
    if (!fixture) {
        fixture = std::make_unique<HelpFixture>();
        benchRequire(fixture->dir.isValid(), "temporary folder");
        const QString helpFolder = fixture->dir.path() + QNodrixCom::machineHelpFolder();
        benchRequire(QDir().mkpath(helpFolder), "help folder");
        fixture->indexPath = helpFolder + QNodrixCom::machineHelpFile();
        QFile index(fixture->indexPath);
        benchRequire(index.open(QIODevice::WriteOnly | QIODevice::Text), "help index");
        QTextStream out(&index);
        for (int i = 0; i < lines; ++i)
            out << "3.2." << i << ".0=capitolo" << i / 100 << "/pagina" << i << ".htm\n";
        out.flush();
        benchRequire(out.status() == QTextStream::Ok, "writing the help index");
    }
    return *fixture;
}

// The store names the fixture's folder as the last machine's folder.
void storeMachine(const HelpFixture &fixture)
{
    BenchValues values = everydayStore();
    for (auto &value : values) {
        if (value.first == QStringLiteral("Machines/M1/Settings/MachinePath"))
            value.second = QVariant(fixture.dir.path());
    }
    resetStore(values);
}

} // namespace

static void help_lib(benchmark::State &state)
{
    const HelpFixture &fixture = helpFixture(int(state.range(0)));
    storeMachine(fixture);
    for (auto _ : state) {
        QNodrixHelp help;
        benchmark::DoNotOptimize(help.getButHelpNumber());
    }
}
BENCHMARK(help_lib)->Name("QNodrixHelp/lib")->Apply(benchSizes);

static void help_raw(benchmark::State &state)
{
    const HelpFixture &fixture = helpFixture(int(state.range(0)));
    storeMachine(fixture);
    for (auto _ : state) {
        QHash<QString, QString> index;
        QFile file(fixture.indexPath);
        benchRequire(file.open(QIODevice::ReadOnly | QIODevice::Text), "opening the help index");
        QTextStream stream(&file);
        QString line;
        while (stream.readLineInto(&line)) {
            const int eq = line.indexOf(QLatin1Char('='));
            if (eq < 0)
                index.insert(line, line);
            else
                index.insert(line.left(eq), line.mid(eq + 1));
        }
        benchmark::DoNotOptimize(index.size());
    }
}
BENCHMARK(help_raw)->Name("QNodrixHelp/raw")->Apply(benchSizes);

NDXCOM_BENCHMARK_MAIN();
