// One paint of a button or check box into an image.

#include "Fixtures.h"

#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomPushButton.h>

#include <benchmark/benchmark.h>

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

namespace {

constexpr int Button_Width = 96;
constexpr int Button_Height = 32;
const QRect kButtonRect(0, 0, Button_Width, Button_Height);

enum class Look { Normal, Hover, Icon };

template <typename Button>
class StatusButton : public Button
{
public:
    using Button::Button;
    void setHover() { this->setAttribute(Qt::WA_UnderMouse); }
};

void measurePaint(benchmark::State &state, QWidget *widget)
{
    widget->setGeometry(kButtonRect);
    widget->ensurePolished();
    QImage image(Button_Width, Button_Height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    Fixtures::paintInto(&image, widget);
    for (auto _ : state)
        Fixtures::paintInto(&image, widget);
}

template <typename Button>
void measureButton(benchmark::State &state, Look look)
{
    StatusButton<Button> button(QStringLiteral("Button"));
    if (look == Look::Icon)
        button.setIcon(QIcon(QStringLiteral(":/Zanthic/Icons/search.png")));
    if (look == Look::Hover) {
        QCursor::setPos(button.mapToGlobal(QPoint(10, 10)));
        button.setHover();
    }
    measurePaint(state, &button);
}

void buttonZanthic(benchmark::State &state, Look look)
{
    Fixtures::useTheme();
    measureButton<CustomPushButton>(state, look);
}

void buttonSheet(benchmark::State &state, Look look)
{
    qApp->setStyleSheet(Fixtures::equivalentSheet(false));
    measureButton<QPushButton>(state, look);
    qApp->setStyleSheet(QString());
}

void buttonFusion(benchmark::State &state, Look look)
{
    measureButton<QPushButton>(state, look);
}

// The box, the image and the text drawn by hand: the same geometry, nothing looked up.
class CallsWidget : public QWidget
{
public:
    CallsWidget(bool hasBox, const QString &text, const QString &image = QString())
        : m_bHasBox(hasBox), m_strText(text), m_oImage(image)
    {
        m_oFont.setPixelSize(14);
        m_oPath = Custom::cBorderClip(kButtonRect, m_lstWidths, m_lstRadii);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        if (m_bHasBox) {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.fillPath(m_oPath, m_oFill);
            Custom::cDrawBorder(&painter, kButtonRect, m_lstStyles, m_lstWidths, m_lstColors, m_lstRadii);
            painter.setRenderHint(QPainter::Antialiasing, false);
        }
        if (!m_oImage.isNull())
            painter.drawPixmap(4, (Button_Height - m_oImage.height()) / 2, m_oImage);
        painter.setFont(m_oFont);
        painter.setPen(Qt::white);
        painter.drawText(kButtonRect, Qt::AlignCenter | Qt::TextHideMnemonic, m_strText);
    }

private:
    bool m_bHasBox;
    QString m_strText;
    QPixmap m_oImage;
    const QBrush m_oFill{ QColor(40, 100, 220) };
    const QBrush m_oBorder{ QColor(30, 80, 200) };
    const Custom::BorderStyle m_lstStyles[4]
        = { Custom::BorderSolid, Custom::BorderSolid, Custom::BorderSolid, Custom::BorderSolid };
    const int m_lstWidths[4] = { 1, 1, 1, 1 };
    const QBrush m_lstColors[4] = { m_oBorder, m_oBorder, m_oBorder, m_oBorder };
    const QSize m_lstRadii[4] = { QSize(4, 4), QSize(4, 4), QSize(4, 4), QSize(4, 4) };
    QFont m_oFont;
    QPainterPath m_oPath;
};

void buttonCalls(benchmark::State &state, const char *image)
{
    Fixtures::useTheme();
    CallsWidget widget(true, QStringLiteral("Button"), QLatin1String(image));
    measurePaint(state, &widget);
}

void boxCalls(benchmark::State &state)
{
    Fixtures::useTheme();
    CallsWidget widget(
        false, QStringLiteral("Check box"), QStringLiteral(":/Zanthic/Control/CheckBox_checked_Default.png"));
    measurePaint(state, &widget);
}

template <typename Box>
void measureBox(benchmark::State &state)
{
    Box box(QStringLiteral("Check box"));
    box.setChecked(true);
    measurePaint(state, &box);
}

void boxZanthic(benchmark::State &state)
{
    Fixtures::useTheme();
    measureBox<CustomCheckBox>(state);
}

void boxSheet(benchmark::State &state, const QString &sheet)
{
    qApp->setStyleSheet(sheet);
    measureBox<QCheckBox>(state);
    qApp->setStyleSheet(QString());
}

void boxFusion(benchmark::State &state)
{
    measureBox<QCheckBox>(state);
}

} // namespace

BENCHMARK_CAPTURE(buttonZanthic, normal, Look::Normal)->Name("paint/button/zanthic");
BENCHMARK_CAPTURE(buttonSheet, normal, Look::Normal)->Name("paint/button/sheet");
BENCHMARK_CAPTURE(buttonFusion, normal, Look::Normal)->Name("paint/button/fusion");
BENCHMARK_CAPTURE(buttonCalls, normal, "")->Name("paint/button/calls");
BENCHMARK_CAPTURE(buttonZanthic, hover, Look::Hover)->Name("paint/button_hover/zanthic");
BENCHMARK_CAPTURE(buttonSheet, hover, Look::Hover)->Name("paint/button_hover/sheet");
BENCHMARK_CAPTURE(buttonFusion, hover, Look::Hover)->Name("paint/button_hover/fusion");
BENCHMARK_CAPTURE(buttonCalls, hover, "")->Name("paint/button_hover/calls");
BENCHMARK_CAPTURE(buttonZanthic, icon, Look::Icon)->Name("paint/button_icon/zanthic");
BENCHMARK_CAPTURE(buttonSheet, icon, Look::Icon)->Name("paint/button_icon/sheet");
BENCHMARK_CAPTURE(buttonFusion, icon, Look::Icon)->Name("paint/button_icon/fusion");
BENCHMARK_CAPTURE(buttonCalls, icon, ":/Zanthic/Icons/search.png")->Name("paint/button_icon/calls");
BENCHMARK(boxZanthic)->Name("paint/checkbox/zanthic");
BENCHMARK_CAPTURE(boxSheet, drawn, Fixtures::equivalentSheet(false))->Name("paint/checkbox/sheet");
BENCHMARK_CAPTURE(boxSheet, images, Fixtures::imageSheet())->Name("paint/checkbox/sheet_of_images");
BENCHMARK(boxFusion)->Name("paint/checkbox/fusion");
BENCHMARK(boxCalls)->Name("paint/checkbox/calls");
