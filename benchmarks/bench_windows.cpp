// A window with twenty controls from its constructor to its first paint, one step of a live resize, and the first
// paint of a menu.

#include "Fixtures.h"

#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomMainWindow.h>
#include <Zanthic/CustomMenu.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomTitleBar.h>

#include <benchmark/benchmark.h>

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGridLayout>

namespace {

constexpr int kControls = 20;
constexpr int kColumns = 4;
constexpr int kActions = 12;
constexpr QSize kSize(480, 320);
constexpr int kResizeSteps = 200; // no size comes again soon, as under the pointer

template <typename Button, typename CheckBox>
QWidget *createContent()
{
    auto *content = new QWidget;
    auto *grid = new QGridLayout(content);
    for (int i = 0; i < kControls; ++i) {
        QWidget *control = i % 2 == 0 ? static_cast<QWidget *>(new Button(QStringLiteral("Button")))
                                      : new CheckBox(QStringLiteral("Option"));
        grid->addWidget(control, i / kColumns, i % kColumns);
    }
    return content;
}

std::unique_ptr<QDialog> createZanthic()
{
    auto window = std::make_unique<CustomMainWindow>();
    window->cTitleBar()->cSetTitleText(QStringLiteral("Window"));
    window->cSetCentralWidget(createContent<CustomPushButton, CustomCheckBox>());
    return window;
}

std::unique_ptr<QDialog> createSheet()
{
    auto dialog = std::make_unique<QDialog>();
    dialog->setWindowTitle(QStringLiteral("Window"));
    auto *layout = new QVBoxLayout(dialog.get());
    layout->addWidget(createContent<QPushButton, QCheckBox>());
    return dialog;
}

/// Sets the style sheet of the plain widgets for as long as it lives.
class Sheet
{
public:
    explicit Sheet(bool wanted)
    {
        Fixtures::useTheme();
        if (wanted)
            qApp->setStyleSheet(Fixtures::equivalentSheet(false));
    }
    ~Sheet() { qApp->setStyleSheet(QString()); }
};

void showWindow(benchmark::State &state, bool isZanthic)
{
    const Sheet sheet(!isZanthic);
    for (auto _ : state) {
        std::unique_ptr<QDialog> window = isZanthic ? createZanthic() : createSheet();
        window->resize(kSize);
        window->show();
        Fixtures::settle();
        state.PauseTiming();
        window.reset();
        Fixtures::settle();
        state.ResumeTiming();
    }
}

void resizeWindow(benchmark::State &state, bool isZanthic)
{
    const Sheet sheet(!isZanthic);
    const std::unique_ptr<QDialog> window = isZanthic ? createZanthic() : createSheet();
    window->resize(kSize);
    window->show();
    Fixtures::settle();
    int step = 0;
    for (auto _ : state) {
        step = (step + 1) % kResizeSteps;
        window->resize(kSize + QSize(2 * step, step));
        Fixtures::settle();
    }
}

void paintMenu(benchmark::State &state, bool isZanthic)
{
    const Sheet sheet(!isZanthic);
    QImage image(300, 500, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        const std::unique_ptr<QMenu> menu(isZanthic ? new CustomMenu : new QMenu);
        for (int i = 0; i < kActions; ++i)
            menu->addAction(QStringLiteral("Action"))->setCheckable(i % 3 == 0);
        menu->ensurePolished();
        menu->resize(menu->sizeHint());
        Fixtures::paintInto(&image, menu.get());
    }
}

} // namespace

BENCHMARK_CAPTURE(showWindow, zanthic, true)->Name("window/show/zanthic")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(showWindow, sheet, false)->Name("window/show/sheet")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(resizeWindow, zanthic, true)->Name("window/resize/zanthic")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(resizeWindow, sheet, false)->Name("window/resize/sheet")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(paintMenu, zanthic, true)->Name("menu/zanthic")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(paintMenu, sheet, false)->Name("menu/sheet")->Unit(benchmark::kMicrosecond);
