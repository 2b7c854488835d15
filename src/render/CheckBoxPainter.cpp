#include <Zanthic/CustomObject.h>

#include "render/CheckBoxLayout_p.h"
#include "render/ControlQueries_p.h"
#include "render/PainterTools_p.h"
#include "render/TextPalette_p.h"
#include "style/CustomObject_p.h"

#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

namespace {

Qt::CheckState checkState(QStyle::State state)
{
    if (state & QStyle::State_On)
        return Qt::Checked;
    return state & QStyle::State_Off ? Qt::Unchecked : Qt::PartiallyChecked;
}

// Draws the platform style's indicator and tells where it stands.
QRect drawStyleIndicator(Custom::CustomWidgetType type, QPainter *painter, const QStyleOptionButton &option,
    const QWidget *widget, Qt::Alignment alignment)
{
    const bool isCheckBox = type == Custom::WidgetCheckBox;
    const QStyle *style = widget->style();
    const QRect own = style->subElementRect(
        isCheckBox ? QStyle::SE_CheckBoxIndicator : QStyle::SE_RadioButtonIndicator, &option, widget);
    QStyleOptionButton indicator(option);
    indicator.rect = QStyle::alignedRect(option.direction, alignment, own.size(), option.rect);
    style->proxy()->drawPrimitive(
        isCheckBox ? QStyle::PE_IndicatorCheckBox : QStyle::PE_IndicatorRadioButton, &indicator, painter, widget);
    return indicator.rect;
}

// Draws the theme's image, or the style's indicator where there is none, and tells where it stands.
QRect drawIndicator(Custom::CustomWidgetType type, QPainter *painter, const QStyleOptionButton &option,
    const QWidget *widget, const StyleImage &image)
{
    const Qt::Alignment alignment = CheckBoxLayout::indicatorAlignment(!option.text.isEmpty());
    if (image.isEmpty())
        return drawStyleIndicator(type, painter, option, widget, alignment);
    const QRect rect = QStyle::alignedRect(option.direction, alignment, image.size(), option.rect);
    image.draw(painter, rect);
    return rect;
}

void drawText(
    QPainter *painter, QStyleOptionButton *option, const QWidget *widget, const QRect &indicator, const QColor &color)
{
    const QStyle *style = widget->style();
    int flags
        = int(QStyle::visualAlignment(option->direction, Qt::AlignLeft | Qt::AlignVCenter)) | Qt::TextShowMnemonic;
    if (!style->styleHint(QStyle::SH_UnderlineShortcut, option, widget))
        flags |= Qt::TextHideMnemonic;
    option->palette = TextPalette::withColor(option->palette, QPalette::WindowText, color);
    style->proxy()->drawItemText(painter, CheckBoxLayout::textRect(option->direction, option->rect, indicator), flags,
        option->palette, option->state & QStyle::State_Enabled, option->text, QPalette::WindowText);
}

} // namespace

void CustomObject::cDrawCheckBox(
    Custom::CustomWidgetType type, QPainter *painter, const QRect &rect, QStyleOption *option, QWidget *widget)
{
    if (!d || !isUsable(painter) || !option || option->version < 1 || option->type != QStyleOption::SO_Button
        || !widget)
        return;
    auto &button = *static_cast<QStyleOptionButton *>(option);
    const Custom::ItemStatus status = cGetItemStatus(option->state);
    const QString suffix = ControlQueries::indicatorSuffix(widget, checkState(option->state));
    option->rect = rect;
    // Takes effect on the control itself, which has it already unless it is painted for another object.
    if (widget != d->widget)
        widget->setFont(cFont(status, {}));

    const QStringList subs = suffix.isEmpty() ? QStringList() : QStringList(suffix);
    const QRect indicator = drawIndicator(type, painter, button, widget, d->resolved(status, subs)->backgroundImage);
    if (!button.text.isEmpty())
        drawText(painter, &button, widget, indicator, d->resolved(status, {})->fontColor);
}
