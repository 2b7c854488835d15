#include <Zanthic/CustomQssHelper.h>

#include "style/CustomPrivate_p.h"
#include "style/CustomQssHelper_p.h"
#include "style/CustomStyleSheetData_p.h"

#include <QtWidgets/QGraphicsDropShadowEffect>
#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

CustomQssHelperData::CustomQssHelperData(QWidget *host) : widget(host) { }

CustomQssHelperData::~CustomQssHelperData() = default;

bool CustomQssHelperData::hasParameter(quint32 flags) const
{
    return (parameters & flags) == flags && (flags != 0 || parameters == 0);
}

void CustomQssHelperData::setParameter(quint32 flags, bool on)
{
    parameters = on ? parameters | flags : parameters & ~flags;
}

void CustomQssHelperData::setPrivateFontFamily(const QString &family)
{
    setParameter(Custom::ParamUserFontFamily, true);
    const CustomStyleSheetData *data = CustomStyleSheetData::instance();
    if (!widget || widget->styleSheet().isEmpty() || !data)
        return;
    QString sheet = widget->styleSheet();
    for (const Custom::Language language : { Custom::Zh_cn, Custom::En_us }) {
        const QString replaced = data->fontFamilies.value(language);
        // An empty text would be found between all characters.
        if (!replaced.isEmpty())
            sheet.replace(replaced, family);
    }
    widget->setStyleSheet(sheet);
}

QGraphicsDropShadowEffect *CustomQssHelperData::shadowEffect(bool create)
{
    Q_UNUSED(create)
    return shadow;
}

CustomQssHelper::CustomQssHelper(QWidget *widget) : d(new CustomQssHelperData(widget)) { }

CustomQssHelper::CustomQssHelper(CustomQssHelperData *data) : d(data) { }

CustomQssHelper::~CustomQssHelper()
{
    delete d;
}

void CustomQssHelper::cSetStyleSelector(const QString &selector)
{
    if (d)
        d->selector = selector;
}

void CustomQssHelper::cSetStyleSelector(Custom::CommonStyleSelector selector)
{
    cSetStyleSelector(Custom::commonStyleSelector(selector));
}

QString CustomQssHelper::cStyleSelector() const
{
    return d ? d->selector : QString();
}

QString CustomQssHelper::cLanguageString() const
{
    const CustomStyleSheetData *data = CustomStyleSheetData::instance();
    return data ? Custom::language2String(data->language) : QString();
}

void CustomQssHelper::cSetPrivateFontFamily(const QString &family)
{
    if (d)
        d->setPrivateFontFamily(family);
}

void CustomQssHelper::cLanguageChange()
{
    if (!d || !d->widget || d->hasParameter(Custom::ParamUserFontFamily) || !CustomPrivate::isFontFamilyChange())
        return;
    d->widget->style()->unpolish(d->widget);
    d->widget->style()->polish(d->widget);
}

void CustomQssHelper::cSetUserData(const QVariant &data)
{
    if (d)
        d->userData = data;
}

QVariant CustomQssHelper::cUserData() const
{
    return d ? d->userData : QVariant(QString());
}

void CustomQssHelper::cRespondHotKey(QKeyEvent *event)
{
    Custom::activeHotKey(event);
}

void CustomQssHelper::cSetShadowEnable(bool enable, QWidget *target)
{
    QGraphicsDropShadowEffect *effect = d ? d->shadowEffect(enable) : nullptr;
    if (!effect)
        return;
    if (enable)
        (target ? target : d->widget)->setGraphicsEffect(effect);
    effect->setEnabled(enable);
}

bool CustomQssHelper::cShadowEnable() const
{
    const QGraphicsDropShadowEffect *effect = d ? d->shadowEffect(false) : nullptr;
    return effect && effect->isEnabled();
}

void CustomQssHelper::cSetShadowBulrRadius(float radius)
{
    if (QGraphicsDropShadowEffect *effect = d ? d->shadowEffect(true) : nullptr)
        effect->setBlurRadius(qreal(radius));
}

float CustomQssHelper::cShadowBulrRadius() const
{
    const QGraphicsDropShadowEffect *effect = d ? d->shadowEffect(false) : nullptr;
    return effect ? float(effect->blurRadius()) : 0.0F;
}

void CustomQssHelper::cSetShadowOffset(const QPointF &offset)
{
    if (QGraphicsDropShadowEffect *effect = d ? d->shadowEffect(true) : nullptr)
        effect->setOffset(offset);
}

QPointF CustomQssHelper::cShadowOffset() const
{
    const QGraphicsDropShadowEffect *effect = d ? d->shadowEffect(false) : nullptr;
    return effect ? effect->offset() : QPointF();
}

void CustomQssHelper::cSetShadowColor(const QColor &color)
{
    if (QGraphicsDropShadowEffect *effect = d ? d->shadowEffect(true) : nullptr)
        effect->setColor(color);
}

QColor CustomQssHelper::cShadowColor() const
{
    const QGraphicsDropShadowEffect *effect = d ? d->shadowEffect(false) : nullptr;
    return effect ? effect->color() : QColor();
}
