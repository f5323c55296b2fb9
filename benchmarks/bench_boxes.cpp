#include "benchsupport.h"

#include <private/qnodrixmessagebox_p.h>

#include <QtWidgets/QMessageBox>

// The question a lock's holder gets, built and laid out for a computer name
// of 1 KiB and of 1 MiB (a lock file holds up to 1 MiB), against the same
// box laid out for a name already cut to the length a box shows. The name is
// cut before anything else looks at it, so the library's time does not grow
// with the name: the ratio stays near 1 for both sizes.

namespace {

const QString question = QStringLiteral(
    "Il progetto risulta in uso da:\nComputer: %1\tUtente: %2\nVuoi aprirlo con accesso in "
    "lettura ?");

void layOut(const QString &text)
{
    QMessageBox box(QMessageBox::Question, QStringLiteral("Nodrix"), text);
    box.setTextFormat(Qt::PlainText);
    box.adjustSize();
    benchmark::DoNotOptimize(box.height());
}

} // namespace

static void box_lib(benchmark::State &state)
{
    const QString name(int(state.range(0)), QLatin1Char('x'));
    for (auto _ : state) {
        using namespace NdxComMessages;
        layOut(
            fillArguments(question, {plainArgument(name), plainArgument(QStringLiteral("anna"))}));
    }
}
BENCHMARK(box_lib)
    ->Name("HolderQuestion/lib")
    ->Arg(1 << 10)
    ->Arg(1 << 20)
    ->Unit(benchmark::kMillisecond);

static void box_raw(benchmark::State &state)
{
    const QString name(int(state.range(0)), QLatin1Char('x'));
    const QString shown = name.left(NdxComMessages::ArgumentLengthLimit);
    for (auto _ : state)
        layOut(question.arg(shown, QStringLiteral("anna")));
}
BENCHMARK(box_raw)
    ->Name("HolderQuestion/raw")
    ->Arg(1 << 10)
    ->Arg(1 << 20)
    ->Unit(benchmark::kMillisecond);

NDXCOM_BENCHMARK_MAIN();
