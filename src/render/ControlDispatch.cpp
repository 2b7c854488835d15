// Which painter paints a control, and how large buttons are.

#include <Zanthic/CustomObject.h>

#include "render/ControlQueries_p.h"
#include "render/PainterTools_p.h"
#include "render/RoundedMask_p.h"
#include "style/CustomObject_p.h"
#include "style/StyleImages_p.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleOption>

namespace {

constexpr int Button_IconSpacing = 4;
constexpr int Button_MarginWidth = 10;
constexpr int Button_MarginHeight = 6;
constexpr int Indicator_Spacing = 10;
constexpr int Indicator_StyleMarginWidth = 6;

bool hasNegative(const QSize &size)
{
    return size.width() < 0 || size.height() < 0;
}

const QStyleOptionButton *toButtonOption(const QStyleOption *option)
{
    const bool isButton = option->version >= 1 && option->type == QStyleOption::SO_Button;
    return isButton ? static_cast<const QStyleOptionButton *>(option) : nullptr;
}

// An image button is as large as its image. False when there is none, or it can't be loaded.
bool measureImage(CustomObjectData *data)
{
    const std::shared_ptr<const ResolvedStyle> style = data->resolved(Custom::Normal, {});
    if (data->hasParameter(Custom::ParamBackgroundImage))
        data->sizeHintCache = style->backgroundImage.size();
    else if (data->hasParameter(Custom::ParamBorderImage))
        data->sizeHintCache = style->borderImage.size();
    else
        return false;
    return data->sizeHintCache.width() > 0 && data->sizeHintCache.height() > 0;
}

QSize pushButtonContents(const QAbstractButton &button, const QStyleOptionButton &option, const QFont &font)
{
    int w = 0;
    int h = 0;
    if (!button.icon().isNull()) {
        w = option.iconSize.width() + Button_IconSpacing;
        h = qMax(0, option.iconSize.height());
    }
    const QString text = button.text();
    const QString measured = text.isEmpty() ? QStringLiteral("XXXX") : text;
    const QSize textSize = QFontMetrics(font).size(Qt::TextShowMnemonic, measured);
    if (!text.isEmpty() || w == 0)
        w += textSize.width();
    if (!text.isEmpty() || h == 0)
        h = qMax(h, textSize.height());
    return QSize(w, h);
}

QSize pushButtonSize(const CustomObject &object, CustomObjectData *data, QAbstractButton *button, QStyleOption *option)
{
    // The text is never stored for a push button, so that only an empty text finds the cached size.
    if (button->text() == data->sizeHintText && !hasNegative(data->sizeHintCache))
        return data->sizeHintCache;
    if (measureImage(data))
        return data->sizeHintCache;
    button->ensurePolished();
    const QStyleOptionButton *buttonOption = toButtonOption(option);
    if (!buttonOption)
        return data->sizeHintCache;
    QSize size = pushButtonContents(*button, *buttonOption, object.cFont(Custom::Normal, {}));
    option->rect.setSize(size);
    if (ControlQueries::hasMenu(button))
        size.rwidth() += button->style()->pixelMetric(QStyle::PM_MenuButtonIndicator, option, button);
    data->sizeHintCache = size + QSize(Button_MarginWidth, Button_MarginHeight);
    return data->sizeHintCache;
}

// The size of text and indicator of a check box or radio button.
QSize indicatorSize(const CustomObject &object, QAbstractButton *button, const QStyleOptionButton &option,
    const QString &text, const QString &suffix)
{
    QStyle *style = button->style();
    QSize size = style->itemTextRect(QFontMetrics(button->font()), QRect(), Qt::TextShowMnemonic, false, text).size();
    if (!option.icon.isNull())
        size = QSize(
            size.width() + option.iconSize.width() + Button_IconSpacing, qMax(size.height(), option.iconSize.height()));
    const QString image = object.cBackgroundImage(object.cGetItemStatus(option.state), { suffix });
    if (!image.isEmpty()) {
        const QSize imageSize = StyleImages::pixmap(image).size();
        const int spacing = !option.icon.isNull() || !option.text.isEmpty() ? Indicator_Spacing : 0;
        return QSize(size.width() + imageSize.width() + spacing, qMax(size.height(), imageSize.height()));
    }
    size = style->sizeFromContents(QStyle::CT_CheckBox, &option, size, button);
    // Deprecated without a successor; an application may still ask for a least size of all controls.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    size = size.expandedTo(QApplication::globalStrut());
    QT_WARNING_POP
    return size + QSize(Indicator_StyleMarginWidth, 0);
}

QSize indicatorButtonSize(
    const CustomObject &object, CustomObjectData *data, QAbstractButton *button, const QStyleOption *option)
{
    const QString text = button->text();
    if (text == data->sizeHintText && !hasNegative(data->sizeHintCache))
        return data->sizeHintCache;
    const QStyleOptionButton *buttonOption = toButtonOption(option);
    if (!buttonOption)
        return QSize(-1, -1);
    button->ensurePolished();
    const QString suffix = ControlQueries::currentIndicatorSuffix(button);
    const QSize size = indicatorSize(object, button, *buttonOption, text, suffix);
    data->sizeHintText = text;
    data->sizeHintCache = size;
    return size;
}

} // namespace

void CustomObject::cDrawWidget(
    Custom::CustomWidgetType type, QPainter *painter, const QRect &rect, QStyleOption *option)
{
    if (!d || !isUsable(painter))
        return;
    switch (type) {
    case Custom::WidgetCheckBox:
    case Custom::WidgetRadioButton:
        cDrawCheckBox(type, painter, rect, option, d->widget);
        break;
    case Custom::WidgetPushButton:
        cDrawPushButton(type, painter, rect, option, d->widget);
        break;
    case Custom::WidgetComboBox:
        cDrawComboBox(type, painter, rect, option, d->widget);
        break;
    case Custom::WidgetDrawSlider:
    case Custom::WidgetDotSlider:
    case Custom::WidgetTwoHandleSlider:
    case Custom::WidgetProcessSlider:
        cDrawSlider(type, painter, rect, option, d->widget);
        break;
    default:
        cDrawBackground(painter, rect, Custom::Normal, {});
        cDrawBorder(painter, rect, Custom::Normal, {});
        break;
    }
}

QSize CustomObject::cSizeHint(QStyleOption *option) const
{
    if (!option || !d)
        return QSize(-1, -1);
    d->initData();
    auto *button = qobject_cast<QAbstractButton *>(d->widget);
    switch (ControlQueries::kindOf(d->widget)) {
    case ControlQueries::Kind::PushButton:
        return pushButtonSize(*this, d, button, option);
    case ControlQueries::Kind::CheckBox:
    case ControlQueries::Kind::RadioButton:
        return indicatorButtonSize(*this, d, button, option);
    default:
        return d->sizeHintCache;
    }
}

void CustomObject::cResizeEvent()
{
    if (!d || !d->widget || !cHasParameter(Custom::ParamBorderRadius))
        return;
    RoundedMask::Radii radii;
    const int common = cBorderRadius(Custom::AllCorner);
    for (int i = 0; i < 4; ++i) {
        const int radius = cBorderRadius(Custom::BorderCorner(i));
        radii[i] = radius < 1 ? common : radius;
    }
    RoundedMask::apply(d->widget, radii);
}
