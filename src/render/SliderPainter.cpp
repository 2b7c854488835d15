#include "render/SliderPainter_p.h"

#include "render/BoxPainter_p.h"
#include "render/BoxPictures_p.h"
#include "render/ControlQueries_p.h"
#include "render/PainterTools_p.h"
#include "render/SliderOption_p.h"
#include "render/SliderStyle_p.h"
#include "render/TextPalette_p.h"

#include <Zanthic/CustomObject.h>

#include <QtGui/QPainterPath>
#include <QtWidgets/QWidget>

namespace {

constexpr int Label_Gap = 4;

Custom::ItemStatus handleStatus(const CustomDrawSliderOption &option, bool enabled)
{
    if (!enabled)
        return Custom::Disabled;
    return option.activeHandle != 0 && !option.handlePressed ? Custom::Normal : Custom::Pressed;
}

Custom::ItemStatus secondHandleStatus(const CustomDrawSliderOption &option, bool enabled)
{
    if (!enabled)
        return Custom::Disabled;
    return option.activeHandle != 1 && !option.secondHandlePressed ? Custom::Normal : Custom::Pressed;
}

SliderLayout::Labels labelsOf(const CustomDrawSliderOption &option)
{
    if (!option.showTextTip)
        return SliderLayout::NoLabels;
    if (option.textPosition == 0)
        return SliderLayout::LabelsBeside;
    return option.textPosition == 1 ? SliderLayout::LabelsBelow : SliderLayout::NoLabels;
}

/// One paint of a slider.
class Paint
{
public:
    Paint(Custom::CustomWidgetType type, CustomObject *object, const CustomDrawSliderOption &option, QWidget *widget,
        QPainter *painter)
        : m_eType(type),
          m_pObject(object),
          m_oOption(option),
          m_pWidget(widget),
          m_pPainter(painter),
          m_pStyle(CustomObjectData::get(object)->resolvedExtra<SliderStyle>()),
          m_oSubPage(option.reverse ? m_pStyle->addPage : m_pStyle->subPage),
          m_oAddPage(option.reverse ? m_pStyle->subPage : m_pStyle->addPage)
    { }

    void drawGroove(const SliderLayout::Result &place) const
    {
        drawSection(place.valueSection, m_oSubPage.brush);
        drawSection(place.leftSection, m_oAddPage.brush);
        drawSection(place.rightSection, m_oAddPage.brush);
    }

    void drawDots(const SliderLayout::Result &place) const
    {
        using BoxPictures::Ellipse;
        if (place.dots.count < 1)
            return;
        const Ellipse outline(m_pPainter, place.dots.first.size(), m_pStyle->dotCircle, Ellipse::Stroked);
        const Ellipse fill(m_pPainter, place.dots.firstFill.size(), m_oSubPage.color, Ellipse::Filled);
        for (int i = 0; i < place.dots.count; ++i) {
            const QPoint dot = place.dots.outline(i).topLeft();
            outline.draw(m_pPainter, dot);
            if (place.handle.left() < dot.x())
                fill.draw(m_pPainter, place.dots.fill(i).topLeft());
        }
    }

    void drawHandles(const SliderLayout::Result &place) const
    {
        const bool firstOnTop = m_oOption.activeHandle == 0;
        const bool enabled = m_pWidget->isEnabled();
        if (!firstOnTop)
            drawHandle(place.handle, handleStatus(m_oOption, enabled));
        if (m_eType == Custom::WidgetTwoHandleSlider)
            drawHandle(place.secondHandle, secondHandleStatus(m_oOption, enabled));
        else if (m_eType == Custom::WidgetProcessSlider && m_oOption.showDot)
            BoxPictures::Ellipse(m_pPainter, place.marker.size(), Qt::white, BoxPictures::Ellipse::Filled)
                .draw(m_pPainter, place.marker.topLeft());
        if (firstOnTop)
            drawHandle(place.handle, handleStatus(m_oOption, enabled));
    }

    void drawLabels(const SliderLayout::Result &place) const
    {
        if (place.labels.isEmpty() || m_oOption.textTips.isEmpty())
            return;
        m_pPainter->setFont(m_pStyle->labelFont.font());
        const int count = qMin(place.labels.size(), m_oOption.textTips.size());
        for (int i = 0; i < count; ++i)
            drawText(place.labels.at(i).rect, place.labels.at(i).flags, m_oOption.textTips.at(i), m_pStyle->labelColor);
    }

    void drawTips(const SliderLayout::Result &place) const
    {
        if (!m_oOption.showToolTip)
            return;
        m_pPainter->setFont(m_pStyle->tipFont.font());
        if (m_eType != Custom::WidgetTwoHandleSlider) {
            drawTip(place.tip, m_oOption.value, Custom::Normal);
        } else if (m_oOption.activeHandle == 0) {
            drawTip(place.secondTip, m_oOption.secondValue, Custom::Normal);
            drawTip(place.tip, m_oOption.value, Custom::Pressed);
        } else {
            drawTip(place.tip, m_oOption.value, Custom::Normal);
            drawTip(place.secondTip, m_oOption.secondValue, Custom::Pressed);
        }
    }

private:
    // A box of the control with another colour.
    void drawSection(const QRect &rect, const ParsedBrush &fill) const
    {
        if (rect.isEmpty())
            return;
        CustomObjectData *data = CustomObjectData::get(m_pObject);
        const std::shared_ptr<const ResolvedStyle> style = data->resolved(Custom::Normal, {});
        BoxPainter::drawBackground(*data, *style, m_pPainter, rect, &fill);
        m_pObject->cDrawBorder(m_pPainter, rect, Custom::Normal, {});
    }

    void drawHandle(const QRect &rect, Custom::ItemStatus status) const
    {
        m_pStyle->handle(status).draw(m_pPainter, rect);
    }

    void drawTip(const SliderLayout::Tip &tip, qint64 value, Custom::ItemStatus status) const
    {
        QPainterPath path;
        path.addPolygon(QPolygon(tip.outline()));
        m_pPainter->fillPath(path, m_pStyle->tip(status).background);
        drawText(tip.textRect(), Qt::AlignCenter, QString::number(value), m_pStyle->tip(status).text);
    }

    void drawText(const QRect &rect, int flags, const QString &text, const QColor &textColor) const
    {
        m_pWidget->style()->proxy()->drawItemText(m_pPainter, rect, flags,
            TextPalette::withColor(m_oOption.palette, QPalette::WindowText, textColor), true, text,
            QPalette::WindowText);
    }

    Custom::CustomWidgetType m_eType;
    CustomObject *m_pObject;
    const CustomDrawSliderOption &m_oOption;
    QWidget *m_pWidget;
    QPainter *m_pPainter;
    std::shared_ptr<const SliderStyle> m_pStyle;
    const SliderStyle::Ink &m_oSubPage; // of the value
    const SliderStyle::Ink &m_oAddPage; // of the rest
};

} // namespace

SliderLayout::Input SliderPainter::measured(Custom::CustomWidgetType type, const CustomObject &object,
    const CustomDrawSliderOption &option, const QRect &rect, bool enabled)
{
    const auto style = CustomObjectData::get(&object)->resolvedExtra<SliderStyle>();
    SliderLayout::Input input;
    input.type = type;
    input.rect = rect;
    input.thickness = style->thickness;
    input.handle = style->handle(handleStatus(option, enabled)).size();
    if (type == Custom::WidgetTwoHandleSlider)
        input.secondHandle = style->handle(secondHandleStatus(option, enabled)).size();
    input.handlePos = option.handlePos;
    input.secondHandlePos = option.secondHandlePos;
    input.labels = labelsOf(option);
    input.labelCount = option.textTips.size();
    if (input.labels != SliderLayout::NoLabels)
        input.labelSample = style->labelFont.boundingSize(
            option.textTips.isEmpty() ? QStringLiteral("High") : option.textTips.first());
    input.tips = option.showToolTip;
    if (input.tips) {
        input.tipSampleHeight = style->tipFont.boundingSize(QStringLiteral("100")).height();
        input.tipText = style->tipFont.boundingSize(QString::number(option.value));
        if (type == Custom::WidgetTwoHandleSlider)
            input.secondTipText = style->tipFont.boundingSize(QString::number(option.secondValue));
    }
    input.isSecondBelowFirst = option.secondValue < option.value;
    input.dotCount = option.dotCount;
    return input;
}

int SliderPainter::labelsWidth(const CustomObject &object, const CustomDrawSliderOption &option)
{
    const auto style = CustomObjectData::get(&object)->resolvedExtra<SliderStyle>();
    int widest = 0;
    for (const QString &text : option.textTips)
        widest = qMax(widest, style->labelFont.boundingSize(text).width());
    // They are spread evenly, so that the widest decides.
    return int(qMin<qint64>(qint64(widest + Label_Gap) * option.textTips.size(), QWIDGETSIZE_MAX));
}

void CustomObject::cDrawSlider(
    Custom::CustomWidgetType type, QPainter *painter, const QRect &rect, QStyleOption *option, QWidget *widget)
{
    if (!d || !isUsable(painter) || !option || option->version < 1)
        return;
    // Only a slider's own option has the geometry that is written below.
    auto *slider = ControlQueries::sliderOption(widget, option);
    if (!slider)
        return;
    const SliderLayout::Input input = SliderPainter::measured(type, *this, *slider, rect, widget->isEnabled());
    const SliderLayout::Result place = SliderLayout::layOut(input);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const Paint paint(type, this, *slider, widget, painter);
    paint.drawGroove(place);
    paint.drawDots(place);
    paint.drawHandles(place);
    if (input.labels == SliderLayout::LabelsBeside)
        paint.drawLabels(place);
    paint.drawTips(place);
    if (input.labels == SliderLayout::LabelsBelow)
        paint.drawLabels(place);
    painter->restore();

    slider->grooveLeft = place.grooveLeft;
    slider->grooveRight = place.grooveRight;
    slider->handleRect = place.handle;
    if (type == Custom::WidgetTwoHandleSlider)
        slider->secondHandleRect = place.secondHandle;
    if (slider->showToolTip) {
        slider->handleRect.setTop(place.tipTop);
        slider->secondHandleRect.setTop(place.tipTop);
    }
}
