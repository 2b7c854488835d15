// Resident memory of many painted buttons, each kind in a process of its own.

#include "Fixtures.h"

#include <Zanthic/CustomPushButton.h>

#include <benchmark/benchmark.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>
#include <QtWidgets/QApplication>

#include <cstdio>

namespace {

constexpr int kButtons = 10000;

double measureInChild(const char *kind)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), { QStringLiteral("--memory-of"), QLatin1String(kind) });
    process.waitForFinished(-1);
    return process.readAllStandardOutput().trimmed().toDouble();
}

void memory(benchmark::State &state, const char *kind)
{
    double beyondPlain = 0.0;
    for (auto _ : state)
        beyondPlain = (measureInChild(kind) - measureInChild("plain")) / kButtons;
    state.counters["KiB_per_button"] = beyondPlain;
}

} // namespace

// The child's side: prints what the buttons of one kind cost.
void printMemoryOf(const QString &kind)
{
    Fixtures::useTheme();
    const QString sheet = Fixtures::equivalentSheet(false);
    const bool ours = kind == QLatin1String("zanthic");
    if (kind == QLatin1String("sheet"))
        qApp->setStyleSheet(sheet);
    const auto make = [ours](QWidget *parent) -> QWidget * {
        const QString text = QStringLiteral("Button");
        return ours ? new CustomPushButton(text, parent) : new QPushButton(text, parent);
    };
    // One window takes what is taken once, so that the second one shows what each button takes.
    const auto warm = Fixtures::shownWindow(100, make);
    const auto surface = Fixtures::shownWindow(kButtons, [](QWidget *parent) { return new QWidget(parent); });
    const double before = Fixtures::residentKiB();
    const auto window = Fixtures::shownWindow(kButtons, make);
    QImage image(window->size(), QImage::Format_ARGB32_Premultiplied);
    window->render(&image);
    image = QImage();
    std::printf("%.1f\n", Fixtures::residentKiB() - before);
}

BENCHMARK_CAPTURE(memory, zanthic, "zanthic")->Name("memory/zanthic")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(memory, sheet, "sheet")->Name("memory/sheet")->Iterations(1)->Unit(benchmark::kMillisecond);
