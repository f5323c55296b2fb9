#include "benchsupport.h"

#include <QNodrixRegistry>

#include <map>
#include <memory>

// The recent-file list and a folder list read back with 1,000 to 100,000
// entries, against one existence test per entry: the filter that every read
// applies cannot do with less. One entry in ten no longer exists, as on a
// workstation where projects get deleted; the rest exist on disk.

namespace {

struct ListFixture
{
    QTemporaryDir dir {QDir::tempPath() + QStringLiteral("/ndxcom-bench-lists-XXXXXX")};
    QStringList files; // project files, every tenth missing
    QStringList folders; // folders, every tenth missing
};

// Built once per size and kept for the whole run.
ListFixture &listFixture(int size)
{
    static std::map<int, std::unique_ptr<ListFixture>> fixtures;
    auto &fixture = fixtures[size];
    if (!fixture) {
        fixture = std::make_unique<ListFixture>();
        benchRequire(fixture->dir.isValid(), "temporary folder");
        const QString root = fixture->dir.path();
        QStringList fileNames, folderNames;
        for (int i = 0; i < size; ++i) {
            const QString stem = QStringLiteral("Progetto%1").arg(i, 6, 10, QLatin1Char('0'));
            fixture->files << root + QLatin1Char('/') + stem + QStringLiteral(".ndx");
            fixture->folders << root + QLatin1Char('/') + stem;
            if (i % 10 != 9) {
                fileNames << stem + QStringLiteral(".ndx");
                folderNames << stem;
            }
        }
        createEntries(root, fileNames);
        createEntries(root, folderNames, true);
    }
    return *fixture;
}

// The store holds an everyday workstation's values and the one list read.
void storeList(const QString &key, const QStringList &list)
{
    BenchValues values = everydayStore();
    values << qMakePair(key, QVariant(list));
    resetStore(values);
}

const QString recentKey = QStringLiteral("Machines/M1/Recent File List/recentFileList");
const QString projectsKey = QStringLiteral("Machines/M1/Settings/ProjectsPathList");

// The raw primitive: one existence test per stored entry.
int existing(const QStringList &list)
{
    int n = 0;
    for (const QString &entry : list)
        n += QFile::exists(entry) ? 1 : 0;
    return n;
}

} // namespace

static void recent_lib(benchmark::State &state)
{
    const ListFixture &fixture = listFixture(int(state.range(0)));
    storeList(recentKey, fixture.files);
    QNodrixRegistry registry;
    QStringList files;
    for (auto _ : state) {
        registry.loadRecentFileList(&files);
        benchmark::DoNotOptimize(files.size());
    }
    benchRequire(files.size() == fixture.files.size() - fixture.files.size() / 10,
                 "recent list read back");
}
BENCHMARK(recent_lib)->Name("loadRecentFileList/lib")->Apply(benchSizes);

static void recent_raw(benchmark::State &state)
{
    const ListFixture &fixture = listFixture(int(state.range(0)));
    storeList(recentKey, fixture.files);
    for (auto _ : state)
        benchmark::DoNotOptimize(existing(fixture.files));
}
BENCHMARK(recent_raw)->Name("loadRecentFileList/raw")->Apply(benchSizes);

static void projects_lib(benchmark::State &state)
{
    const ListFixture &fixture = listFixture(int(state.range(0)));
    storeList(projectsKey, fixture.folders);
    QNodrixRegistry registry;
    QStringList folders;
    for (auto _ : state) {
        folders = registry.getProjectsPathList();
        benchmark::DoNotOptimize(folders.size());
    }
    benchRequire(folders.size() == fixture.folders.size() - fixture.folders.size() / 10,
                 "folder list read back");
}
BENCHMARK(projects_lib)->Name("getProjectsPathList/lib")->Apply(benchSizes);

static void projects_raw(benchmark::State &state)
{
    const ListFixture &fixture = listFixture(int(state.range(0)));
    storeList(projectsKey, fixture.folders);
    for (auto _ : state)
        benchmark::DoNotOptimize(existing(fixture.folders));
}
BENCHMARK(projects_raw)->Name("getProjectsPathList/raw")->Apply(benchSizes);

NDXCOM_BENCHMARK_MAIN();
