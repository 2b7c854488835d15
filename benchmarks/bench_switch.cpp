// A change of skin with many buttons in a shown window.

#include "Fixtures.h"

#include <Zanthic/Custom.h>
#include <Zanthic/CustomPushButton.h>

#include <benchmark/benchmark.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>

namespace {

constexpr benchmark::TimeUnit kMs = benchmark::kMillisecond;

QWidget *makeOurs(QWidget *parent)
{
    return new CustomPushButton(QStringLiteral("Button"), parent);
}

QWidget *makePlain(QWidget *parent)
{
    return new QPushButton(QStringLiteral("Button"), parent);
}

// Times \p change; what it leaves to be painted happens outside of the time.
template <typename Change>
void measure(benchmark::State &state, Change change)
{
    for (auto _ : state) {
        change();
        state.PauseTiming();
        Fixtures::settle();
        state.ResumeTiming();
    }
}

void switchZanthic(benchmark::State &state)
{
    Fixtures::useTheme();
    const auto window = Fixtures::shownWindow(int(state.range(0)), makeOurs);
    measure(state, [] { Custom::changeSkin(); });
}

void switchSheet(benchmark::State &state)
{
    const QString sheets[] = { Fixtures::equivalentSheet(false), Fixtures::equivalentSheet(true) };
    qApp->setStyleSheet(sheets[0]);
    {
        const auto window = Fixtures::shownWindow(int(state.range(0)), makePlain);
        int next = 0;
        measure(state, [&] { qApp->setStyleSheet(sheets[next = 1 - next]); });
    }
    qApp->setStyleSheet(QString());
}

// What no way of telling every widget can go below.
void switchFloor(benchmark::State &state)
{
    const auto window = Fixtures::shownWindow(int(state.range(0)), makePlain);
    measure(state, [] {
        QEvent event(QEvent::User);
        const QWidgetList widgets = QApplication::allWidgets();
        for (QWidget *widget : widgets) {
            QCoreApplication::sendEvent(widget, &event);
            widget->update();
        }
    });
}

} // namespace

// A fixed count: the paints in between, which are not measured, take longer than what is.
BENCHMARK(switchZanthic)->Name("switch/zanthic")->Arg(100)->Arg(1000)->Arg(10000)->Iterations(4)->Unit(kMs);
BENCHMARK(switchFloor)->Name("switch/floor")->Arg(100)->Arg(1000)->Arg(10000)->Iterations(4)->Unit(kMs);
BENCHMARK(switchSheet)->Name("switch/sheet")->Arg(100)->Arg(1000)->Arg(10000)->Iterations(4)->Unit(kMs);
