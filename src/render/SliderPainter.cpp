#include "render/SliderPainter_p.h"

#include "render/BoxPainter_p.h"
#include "render/ControlQueries_p.h"
#include "render/PainterTools_p.h"
#include "render/SliderOption_p.h"
#include "render/TextPalette_p.h"
#include "style/CustomObject_p.h"
#include "style/StyleImages_p.h"

#include <Zanthic/CustomObject.h>

#include <QtGui/QFontMetrics>
#include <QtGui/QPainterPath>
#include <QtWidgets/QWidget>

namespace {

// What a document may ask for; more would not fit any screen.
constexpr int Groove_MaxThickness = 4096;
constexpr int Font_MaxSize = 4096;

int number(const CustomObject &object, const QString &attr, int max)
{
    return qBound(-max, object.cAttributeValue(attr).toInt(), max);
}

QColor color(const CustomObject &object, const QString &attr, Custom::ItemStatus status = Custom::Normal)
{
    return Custom::string2Color(object.cAttributeValue(attr, status));
}

QFont fontOf(const CustomObject &object, const QString &sizeAttr)
{
    QFont font(Custom::globalFontFamily());
    const int size = number(object, sizeAttr, Font_MaxSize);
    if (size > 0)
        font.setPixelSize(size);
    return font;
}

QFont labelFont(const CustomObject &object)
{
    return fontOf(object, QStringLiteral("TextTipFontSize"));
}

QFont tipFont(const CustomObject &object)
{
    return fontOf(object, QStringLiteral("ToolTipFontSize"));
}

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

QString handleImage(const CustomObject &object, Custom::ItemStatus status)
{
    return object.cAttributeValue(QStringLiteral("HandleImage"), status);
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
        : m_eType(type), m_pObject(object), m_oOption(option), m_pWidget(widget), m_pPainter(painter)
    {
        m_strSubPage = object->cAttributeValue(QStringLiteral("SubPageColor"));
        m_strAddPage = object->cAttributeValue(QStringLiteral("AddPageColor"));
        if (option.reverse)
            m_strSubPage.swap(m_strAddPage);
    }

    void drawGroove(const SliderLayout::Result &place) const
    {
        drawSection(place.valueSection, m_strSubPage);
        drawSection(place.leftSection, m_strAddPage);
        drawSection(place.rightSection, m_strAddPage);
    }

    void drawDots(const SliderLayout::Result &place) const
    {
        if (place.dots.count < 1)
            return;
        m_pPainter->setBrush(Qt::NoBrush);
        m_pPainter->setPen(QPen(color(*m_pObject, QStringLiteral("DotCircleColor")), 1));
        const QBrush fill(Custom::string2Color(m_strSubPage));
        for (int i = 0; i < place.dots.count; ++i) {
            const QRect dot = place.dots.outline(i);
            QPainterPath path;
            path.addEllipse(dot);
            m_pPainter->drawPath(path);
            if (place.handle.left() < dot.left())
                fillEllipse(place.dots.fill(i), fill);
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
            fillEllipse(place.marker, Qt::white);
        if (firstOnTop)
            drawHandle(place.handle, handleStatus(m_oOption, enabled));
    }

    void drawLabels(const SliderLayout::Result &place) const
    {
        if (place.labels.isEmpty() || m_oOption.textTips.isEmpty())
            return;
        m_pPainter->setFont(labelFont(*m_pObject));
        const QColor textColor = color(*m_pObject, QStringLiteral("TextTipFontColor"));
        const int count = qMin(place.labels.size(), m_oOption.textTips.size());
        for (int i = 0; i < count; ++i)
            drawText(place.labels.at(i).rect, place.labels.at(i).flags, m_oOption.textTips.at(i), textColor);
    }

    void drawTips(const SliderLayout::Result &place) const
    {
        if (!m_oOption.showToolTip)
            return;
        m_pPainter->setFont(tipFont(*m_pObject));
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
    void drawSection(const QRect &rect, const QString &colorText) const
    {
        if (rect.isEmpty())
            return;
        CustomObjectData *data = CustomObjectData::get(m_pObject);
        const std::shared_ptr<const ResolvedStyle> style = data->resolved(Custom::Normal, {});
        const ParsedBrush fill(colorText);
        BoxPainter::drawBackground(*data, *style, m_pPainter, rect, &fill);
        m_pObject->cDrawBorder(m_pPainter, rect, Custom::Normal, {});
    }

    void drawHandle(const QRect &rect, Custom::ItemStatus status) const
    {
        StyleImage(handleImage(*m_pObject, status)).draw(m_pPainter, rect);
    }

    void fillEllipse(const QRect &rect, const QBrush &brush) const
    {
        QPainterPath path;
        path.addEllipse(rect);
        m_pPainter->fillPath(path, brush);
    }

    void drawTip(const SliderLayout::Tip &tip, qint64 value, Custom::ItemStatus status) const
    {
        QPainterPath path;
        path.addPolygon(QPolygon(tip.outline()));
        m_pPainter->fillPath(path, color(*m_pObject, QStringLiteral("ToolTipBackgroundColor"), status));
        drawText(tip.textRect(), Qt::AlignCenter, QString::number(value),
            color(*m_pObject, QStringLiteral("ToolTipFontColor"), status));
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
    QString m_strSubPage;
    QString m_strAddPage;
};

} // namespace

SliderLayout::Input SliderPainter::measured(Custom::CustomWidgetType type, const CustomObject &object,
    const CustomDrawSliderOption &option, const QRect &rect, bool enabled)
{
    SliderLayout::Input input;
    input.type = type;
    input.rect = rect;
    input.thickness = number(object, QStringLiteral("SliderThickness"), Groove_MaxThickness);
    input.handle = StyleImages::pixmap(handleImage(object, handleStatus(option, enabled))).size();
    if (type == Custom::WidgetTwoHandleSlider)
        input.secondHandle = StyleImages::pixmap(handleImage(object, secondHandleStatus(option, enabled))).size();
    input.handlePos = option.handlePos;
    input.secondHandlePos = option.secondHandlePos;
    input.labels = labelsOf(option);
    input.labelCount = option.textTips.size();
    if (input.labels != SliderLayout::NoLabels) {
        const QString sample = option.textTips.isEmpty() ? QStringLiteral("High") : option.textTips.first();
        input.labelSample = QFontMetrics(labelFont(object)).boundingRect(sample).size();
    }
    input.tips = option.showToolTip;
    if (input.tips) {
        const QFontMetrics metrics(tipFont(object));
        input.tipSampleHeight = metrics.boundingRect(QStringLiteral("100")).height();
        input.tipText = metrics.boundingRect(QString::number(option.value)).size();
        if (type == Custom::WidgetTwoHandleSlider)
            input.secondTipText = metrics.boundingRect(QString::number(option.secondValue)).size();
    }
    input.isSecondBelowFirst = option.secondValue < option.value;
    input.dotCount = option.dotCount;
    return input;
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
