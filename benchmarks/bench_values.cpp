// One paint of a combo box and of a slider of each kind, and a drag; beside Qt's under a style sheet. A slider there
// has neither a second handle nor texts, so one that paints these itself is measured, the cheapest way to have them.

#include "Fixtures.h"

#include <Zanthic/CustomComboBox.h>
#include <Zanthic/CustomDotSlider.h>
#include <Zanthic/CustomProcessSlider.h>
#include <Zanthic/CustomTwoHandleSlider.h>

#include <benchmark/benchmark.h>

#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
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

/// A slider under the theme's own sheet that paints the rest itself: another handle, texts and bubbles.
class SheetSlider : public QSlider
{
public:
    SheetSlider(const QSize &size, const QStringList &labels, int bubbles)
        : QSlider(Qt::Horizontal), m_lstLabels(labels), m_nBubbles(bubbles)
    {
        Fixtures::useTheme();
        setStyleSheet(Custom::styleSheet(Custom::SheetSlider));
        setRange(0, kDragSteps);
        setValue(kDragSteps * 2 / 5);
        m_oFont.setPixelSize(12);
        prepare(this, size);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QStylePainter painter(this);
        QStyleOptionSlider option;
        initStyleOption(&option);
        option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
        painter.drawComplexControl(QStyle::CC_Slider, option);
        painter.setFont(m_oFont);
        painter.setPen(Qt::white);
        drawBubble(&painter, option, value());
        if (m_nBubbles > 1) {
            option.subControls = QStyle::SC_SliderHandle;
            option.sliderPosition = kDragSteps;
            painter.drawComplexControl(QStyle::CC_Slider, option);
            drawBubble(&painter, option, kDragSteps);
        }
        painter.setPen(Qt::darkGray);
        for (int i = 0; i < m_lstLabels.size(); ++i)
            painter.drawText(rect(),
                (i == 0          ? Qt::AlignLeft
                        : i == 1 ? Qt::AlignHCenter
                                 : Qt::AlignRight)
                    | Qt::AlignBottom,
                m_lstLabels.at(i));
    }

private:
    void drawBubble(QPainter *painter, const QStyleOptionSlider &option, int number) const
    {
        if (m_nBubbles < 1)
            return;
        const QString text = QString::number(number);
        const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
        QRect bubble(QPoint(0, 0), QFontMetrics(m_oFont).boundingRect(text).size() + QSize(12, 8));
        bubble.moveCenter(QPoint(handle.center().x(), 0));
        bubble.moveTop(0);
        painter->fillRect(bubble, Qt::darkBlue);
        painter->drawText(bubble, Qt::AlignCenter, text);
    }

    QStringList m_lstLabels;
    int m_nBubbles;
    QFont m_oFont;
};

void measurePaint(benchmark::State &state, QWidget *widget)
{
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    Fixtures::paintInto(&image, widget);
    for (auto _ : state)
        Fixtures::paintInto(&image, widget);
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

void paintSheet(benchmark::State &state, const QStringList &labels, int bubbles)
{
    SheetSlider slider(kSize, labels, bubbles);
    measurePaint(state, &slider);
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
void drag(benchmark::State &state, QWidget *slider)
{
    QImage image(slider->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    Fixtures::paintInto(&image, slider);
    for (auto _ : state) {
        mouse(slider, QEvent::MouseButtonPress, 8);
        for (int x = 0; x < kDragSteps; ++x) {
            mouse(slider, QEvent::MouseMove, 4 + x);
            Fixtures::paintInto(&image, slider);
        }
        mouse(slider, QEvent::MouseMove, 2);
        Fixtures::paintInto(&image, slider);
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
    drag(state, &slider);
}

void dragSheet(benchmark::State &state)
{
    SheetSlider slider(kDragSize, {}, 2);
    slider.setValue(0);
    drag(state, &slider);
}

} // namespace

BENCHMARK(paintCombo)->Name("paint/combo_box/zanthic");
BENCHMARK(paintComboSheet)->Name("paint/combo_box/sheet");
BENCHMARK(paint<CustomDrawSlider>)->Name("paint/slider/zanthic");
BENCHMARK(paint<CustomDotSlider>)->Name("paint/dot_slider/zanthic");
BENCHMARK(paint<CustomTwoHandleSlider>)->Name("paint/two_handle_slider/zanthic");
BENCHMARK(paint<CustomProcessSlider>)->Name("paint/process_slider/zanthic");
BENCHMARK_CAPTURE(paintSheet, plain, QStringList(), 0)->Name("paint/slider/sheet");
BENCHMARK_CAPTURE(paintSheet, labels, QStringList({ "Low", "Middle", "High" }), 0)->Name("paint/dot_slider/sheet");
BENCHMARK_CAPTURE(paintSheet, bubbles, QStringList(), 2)->Name("paint/two_handle_slider/sheet");
BENCHMARK_CAPTURE(paintSheet, bubble, QStringList(), 1)->Name("paint/process_slider/sheet");
BENCHMARK(dragTwoHandles)->Name("drag/two_handles/zanthic")->Unit(benchmark::kMillisecond);
BENCHMARK(dragSheet)->Name("drag/two_handles/sheet")->Unit(benchmark::kMillisecond);
