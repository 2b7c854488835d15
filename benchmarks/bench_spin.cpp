// A change of skin with many spin boxes in a shown window, where Qt's style sheets do the work: beside spin boxes that
// simply set the new sheet.

#include "Fixtures.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/Custom.h>
#include <Zanthic/CustomSpinBox.h>
#include <Zanthic/ZanthicTheme.h>

#include <benchmark/benchmark.h>

namespace {

class PlainSpinBox : public QSpinBox
{
public:
    explicit PlainSpinBox(QWidget *parent) : QSpinBox(parent) { setSheet(); }

protected:
    void customEvent(QEvent *event) override
    {
        if (int(event->type()) == ChangeSkinEvent::EventType)
            setSheet();
    }

private:
    void setSheet() { setStyleSheet(Custom::styleSheet(Custom::SheetSpinBox)); }
};

template <typename SpinBox>
QWidget *make(QWidget *parent)
{
    return new SpinBox(parent);
}

// From one skin to the other, to the last repaint.
template <typename SpinBox>
void switchSkin(benchmark::State &state)
{
    Fixtures::useTheme();
    const auto window = Fixtures::shownWindow(int(state.range(0)), make<SpinBox>);
    const QStringList skins = ZanthicTheme::skins();
    int next = 0;
    for (auto _ : state) {
        next = 1 - next;
        ZanthicTheme::applySkin(skins.at(next));
        Fixtures::settle();
    }
    Fixtures::useTheme();
}

} // namespace

BENCHMARK(switchSkin<CustomSpinBox>)->Name("spin/zanthic")->Arg(1000)->Iterations(4)->Unit(benchmark::kMillisecond);
BENCHMARK(switchSkin<PlainSpinBox>)->Name("spin/plain")->Arg(1000)->Iterations(4)->Unit(benchmark::kMillisecond);
