#include "benchsupport.h"

#include <QNodrixCom>

#include <QtCore/QFileInfo>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMdiSubWindow>
#include <QtWidgets/QWidget>

#include <map>
#include <memory>

// A new project name proposed in a projects folder that already holds
// Prg1.ndx to Prg<n>.ndx, n from 1,000 to 100,000, against one
// QFileInfo::exists per candidate: the folder itself (the empty first
// candidate), the n taken names and the free one. The application has a few
// documents open, none of them with a clashing name.

namespace {

struct NamesFixture
{
    QTemporaryDir dir {QDir::tempPath() + QStringLiteral("/ndxcom-bench-names-XXXXXX")};
};

NamesFixture &namesFixture(int taken)
{
    static std::map<int, std::unique_ptr<NamesFixture>> fixtures;
    auto &fixture = fixtures[taken];
    if (!fixture) {
        fixture = std::make_unique<NamesFixture>();
        benchRequire(fixture->dir.isValid(), "temporary folder");
        QStringList names;
        names.reserve(taken);
        for (int n = 1; n <= taken; ++n)
            names << QStringLiteral("Prg%1.ndx").arg(n);
        createEntries(fixture->dir.path(), names);
    }
    return *fixture;
}

// The application's documents: a few windows, none with a clashing name.
void openDocuments(QMdiArea &area)
{
    for (const char *title : {"Calza.ndx[*]", "Fondo.ndx", "Gamba lunga.ndx[*]"}) {
        QMdiSubWindow *window = area.addSubWindow(new QWidget);
        window->setWindowTitle(QString::fromLatin1(title));
    }
}

// The store names the fixture's folder as the last machine's projects folder.
void storeProjectsFolder(const NamesFixture &fixture)
{
    BenchValues values = everydayStore();
    for (auto &value : values) {
        if (value.first == QStringLiteral("Machines/M1/Settings/ProjectsPath"))
            value.second = QVariant(fixture.dir.path());
    }
    resetStore(values);
    QNodrixCom::setProjectsFolderOptions(0, 0);
}

} // namespace

static void names_lib(benchmark::State &state)
{
    const int taken = int(state.range(0));
    const NamesFixture &fixture = namesFixture(taken);
    storeProjectsFolder(fixture);
    // Made and gone within the run: a widget must not outlive the application.
    QMdiArea area;
    openDocuments(area);
    QNodrixCom::setMdiArea(&area);
    QString name;
    for (auto _ : state)
        benchmark::DoNotOptimize(QNodrixCom::makeNewProjectName(name));
    QNodrixCom::setMdiArea(nullptr);
    benchRequire(name == QStringLiteral("Prg%1.ndx").arg(taken + 1), "the first free name");
}
BENCHMARK(names_lib)->Name("makeNewProjectName/lib")->Apply(benchSizes);

static void names_raw(benchmark::State &state)
{
    const int taken = int(state.range(0));
    const NamesFixture &fixture = namesFixture(taken);
    storeProjectsFolder(fixture);
    const QString folder = fixture.dir.path();
    const QString prefix = folder + QStringLiteral("/Prg");
    const QString ext = QStringLiteral(".ndx");
    for (auto _ : state) {
        int n = 0;
        bool taken = QFileInfo::exists(folder);
        while (taken)
            taken = QFileInfo::exists(prefix + QString::number(++n) + ext);
        benchmark::DoNotOptimize(n);
    }
}
BENCHMARK(names_raw)->Name("makeNewProjectName/raw")->Apply(benchSizes);

NDXCOM_BENCHMARK_MAIN();
