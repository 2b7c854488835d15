// One paint of a combo box and of a slider of each kind, and a drag; beside what Qt offers under a style sheet for the
// same look: a slider under the theme's own sheet, one that draws itself with two handles, and labels for texts and
// bubbles.

#include "Fixtures.h"

#include <Zanthic/CustomComboBox.h>
#include <Zanthic/CustomDotSlider.h>
#include <Zanthic/CustomProcessSlider.h>
#include <Zanthic/CustomTwoHandleSlider.h>

#include <benchmark/benchmark.h>

#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>

namespace {

constexpr int kDragSteps = 1000;
constexpr QSize kComboSize(160, 32);
constexpr QSize kSize(240, 60);
constexpr QSize kDragSize(1008, 60); // a pixel a step

template <typename Slider>
void prepare(Slider *slider, const QSize &size)
{
    slider->resize(size);
    slider->ensurePolished();
}

// With the labels that stand in it.
void paintInto(QImage *image, QWidget *widget)
{
    widget->render(image, QPoint(), QRegion(), QWidget::DrawChildren);
}

/// Draws groove and handle, and then the other handle: what a range slider on Qt's own comes to.
class RangeSlider : public QSlider
{
public:
    using QSlider::QSlider;
    int other = 0;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QStylePainter painter(this);
        QStyleOptionSlider option;
        initStyleOption(&option);
        painter.drawComplexControl(QStyle::CC_Slider, option);
        option.subControls = QStyle::SC_SliderHandle;
        option.sliderPosition = other;
        painter.drawComplexControl(QStyle::CC_Slider, option);
    }
};

/// A slider with labels around it, under a style sheet.
template <typename Slider>
class SheetSlider : public QWidget
{
public:
    SheetSlider(const QSize &size, const QStringList &labels, const QStringList &bubbles)
    {
        Fixtures::useTheme();
        setStyleSheet(Custom::styleSheet(Custom::SheetSlider)
            + QStringLiteral("QLabel { color: #59616d; font-size: 12px; }"
                             "QLabel[bubble=\"true\"] { color: white; background-color: #2e343d; padding: 2px 6px; }"));
        slider.setRange(0, kDragSteps);
        slider.setValue(kDragSteps * 2 / 5);
        slider.setGeometry(0, size.height() / 2 - 10, size.width(), 20);
        for (int i = 0; i < labels.size(); ++i)
            add(labels.at(i), false)->move(i * size.width() / labels.size(), size.height() / 2 + 10);
        for (int i = 0; i < bubbles.size(); ++i)
            add(bubbles.at(i), true)->move((i + 1) * size.width() / 3, 0);
        prepare(this, size);
    }

    Slider slider{ Qt::Horizontal, this };

private:
    QLabel *add(const QString &text, bool isBubble)
    {
        auto *label = new QLabel(text, this);
        label->setProperty("bubble", isBubble);
        label->adjustSize();
        return label;
    }
};

void measurePaint(benchmark::State &state, QWidget *widget)
{
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    paintInto(&image, widget);
    for (auto _ : state)
        paintInto(&image, widget);
}

template <typename Slider>
void paint(benchmark::State &state)
{
    Fixtures::useTheme();
    Slider slider;
    slider.cSetValue(40);
    prepare(&slider, kSize);
    measurePaint(state, &slider);
}

void paintSheet(benchmark::State &state)
{
    SheetSlider<QSlider> widget(kSize, {}, {});
    measurePaint(state, &widget);
}

void paintDotSheet(benchmark::State &state)
{
    SheetSlider<QSlider> widget(kSize, { QStringLiteral("Low"), QStringLiteral("Middle"), QStringLiteral("High") }, {});
    measurePaint(state, &widget);
}

void paintRangeSheet(benchmark::State &state)
{
    SheetSlider<RangeSlider> widget(kSize, {}, { QStringLiteral("40"), QStringLiteral("100") });
    measurePaint(state, &widget);
}

void paintProcessSheet(benchmark::State &state)
{
    SheetSlider<QSlider> widget(kSize, {}, { QStringLiteral("40") });
    measurePaint(state, &widget);
}

template <typename ComboBox>
void measureCombo(benchmark::State &state)
{
    ComboBox comboBox;
    comboBox.addItems({ QStringLiteral("Combo box"), QStringLiteral("Another") });
    prepare(&comboBox, kComboSize);
    measurePaint(state, &comboBox);
}

void paintCombo(benchmark::State &state)
{
    Fixtures::useTheme();
    measureCombo<CustomComboBox>(state);
}

void paintComboSheet(benchmark::State &state)
{
    qApp->setStyleSheet(Fixtures::equivalentSheet(false));
    measureCombo<QComboBox>(state);
    qApp->setStyleSheet(QString());
}

void mouse(QWidget *widget, QEvent::Type type, int x)
{
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(type, QPointF(x, widget->height() - 12), isMove ? Qt::NoButton : Qt::LeftButton,
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

// A thousand steps from the left to the right, each with its paint.
void drag(benchmark::State &state, QWidget *slider, QWidget *window)
{
    QImage image(window->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    paintInto(&image, window);
    for (auto _ : state) {
        mouse(slider, QEvent::MouseButtonPress, 8);
        for (int x = 0; x < kDragSteps; ++x) {
            mouse(slider, QEvent::MouseMove, 4 + x);
            paintInto(&image, window);
        }
        mouse(slider, QEvent::MouseMove, 2);
        paintInto(&image, window);
        mouse(slider, QEvent::MouseButtonRelease, 2);
    }
}

void dragTwoHandles(benchmark::State &state)
{
    Fixtures::useTheme();
    CustomTwoHandleSlider slider;
    slider.cSetRange(0, kDragSteps);
    slider.cInitValue(0, kDragSteps);
    prepare(&slider, kDragSize);
    drag(state, &slider, &slider);
}

void dragSheet(benchmark::State &state)
{
    SheetSlider<RangeSlider> widget(kDragSize, {}, { QStringLiteral("40"), QStringLiteral("100") });
    widget.slider.setValue(0);
    widget.slider.other = kDragSteps;
    auto *bubble = widget.findChild<QLabel *>();
    QObject::connect(&widget.slider, &QSlider::valueChanged, bubble, [bubble](int value) {
        bubble->setText(QString::number(value));
        bubble->move(value, 0);
    });
    drag(state, &widget.slider, &widget);
}

} // namespace

BENCHMARK(paintCombo)->Name("paint/combo_box/zanthic");
BENCHMARK(paintComboSheet)->Name("paint/combo_box/sheet");
BENCHMARK(paint<CustomDrawSlider>)->Name("paint/slider/zanthic");
BENCHMARK(paint<CustomDotSlider>)->Name("paint/dot_slider/zanthic");
BENCHMARK(paint<CustomTwoHandleSlider>)->Name("paint/two_handle_slider/zanthic");
BENCHMARK(paint<CustomProcessSlider>)->Name("paint/process_slider/zanthic");
BENCHMARK(paintSheet)->Name("paint/slider/sheet");
BENCHMARK(paintDotSheet)->Name("paint/dot_slider/sheet");
BENCHMARK(paintRangeSheet)->Name("paint/two_handle_slider/sheet");
BENCHMARK(paintProcessSheet)->Name("paint/process_slider/sheet");
BENCHMARK(dragTwoHandles)->Name("drag/two_handles/zanthic")->Unit(benchmark::kMillisecond);
BENCHMARK(dragSheet)->Name("drag/two_handles/sheet")->Unit(benchmark::kMillisecond);
