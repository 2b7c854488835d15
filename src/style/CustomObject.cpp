#include <Zanthic/CustomObject.h>

#include "style/CustomObject_p.h"
#include "style/CustomPrivate_p.h"

#include <Zanthic/ChangeSkinEvent.h>

#include <QtWidgets/QWidget>

CustomObject::CustomObject(QWidget *widget, const QString &className, QString selector)
    : CustomQssHelper(new CustomObjectData(widget, selector)), d(static_cast<CustomObjectData *>(CustomQssHelper::d))
{
    Q_UNUSED(className)
}

CustomObject::~CustomObject() = default;

void CustomObject::cSetClassName(const QString &className)
{
    if (!d)
        return;
    d->className = className;
    d->dirty = true;
}

void CustomObject::cSetParentClassName(const QString &parentClassName)
{
    if (!d)
        return;
    d->parentClassName = parentClassName;
    d->dirty = true;
}

void CustomObject::cSetStyleSelector(const QString &selector)
{
    if (!d || d->selector == selector)
        return;
    d->selector = selector;
    d->dirty = true;
}

void CustomObject::cSetStyleSelector(Custom::CommonStyleSelector selector)
{
    cSetStyleSelector(Custom::commonStyleSelector(selector));
}

QString CustomObject::cAttributeValue(
    const QString &attr, Custom::ItemStatus status, const QStringList &subs, bool *ok) const
{
    QString value;
    if (d) {
        d->initData();
        value = d->getValue(attr, status, subs);
    }
    if (ok)
        *ok = !value.isEmpty();
    return value;
}

void CustomObject::cSetAttributeValue(
    const QString &attr, const QString &value, Custom::ItemStatus status, const QStringList &subs)
{
    if (!d)
        return;
    d->initData();
    if (!d->clearedAttributes.contains(attr)) {
        cClearValue(attr);
        d->clearedAttributes.append(attr);
    }
    d->setValue(attr, status, subs, value);
    cNotifyUpdateValue(attr, value, status);
    d->sizeHintCache = QSize(-1, -1);
    d->sizeHintText.clear();
}

void CustomObject::cClearValue(const QString &attr)
{
    if (!d)
        return;
    d->initData();
    d->clearValues(attr);
}

void CustomObject::cResetAllValue()
{
    if (!d)
        return;
    d->dirty = true;
    d->initData();
}

void CustomObject::cCopyAttribute(CustomObject *other)
{
    if (d && other)
        d->copy(other->d);
}

bool CustomObject::cHasParameter(Custom::ObjectParameter parameter) const
{
    if (!d)
        return false;
    d->initData();
    return d->hasParameter(quint32(parameter));
}

void CustomObject::cSetParameter(Custom::ObjectParameter parameter, bool on)
{
    if (!d)
        return;
    d->initData();
    d->setParameter(quint32(parameter), on);
}

void CustomObject::cSetIsUserFontFamily(bool on)
{
    if (d)
        d->setParameter(Custom::ParamUserFontFamily, on);
}

void CustomObject::cSetPrivateFontFamily(const QString &family)
{
    CustomQssHelper::cSetPrivateFontFamily(family);
    cSetFontFamily(family, Custom::Normal, {});
}

void CustomObject::cLanguageChange()
{
    if (!d || !d->widget || !CustomPrivate::isFontFamilyChange() || d->hasParameter(Custom::ParamUserFontFamily))
        return;
    const QString family = Custom::globalFontFamily();
    if (d->widget->font().family() == family)
        return;
    QFont font = d->widget->font();
    font.setFamily(family);
    d->widget->setFont(font);
}

void CustomObject::cCustomEvent(QEvent *event)
{
    if (!event || int(event->type()) != ChangeSkinEvent::EventType || !d)
        return;
    event->ignore();
    d->drop();
    if (d->widget)
        d->widget->update();
}

void CustomObject::cNotifyUpdateValue(const QString &attribute, const QString &value, Custom::ItemStatus status)
{
    Q_UNUSED(attribute)
    Q_UNUSED(value)
    Q_UNUSED(status)
}

bool CustomObject::cDrawContent(QPainter *painter, QStyleOption *option)
{
    Q_UNUSED(painter)
    Q_UNUSED(option)
    return false;
}

Custom::ItemStatus CustomObject::cGetItemStatus(QStyle::State state) const
{
    if (!(state & QStyle::State_Enabled))
        return Custom::Disabled;
    if (state & QStyle::State_Sunken)
        return Custom::Pressed;
    return state & QStyle::State_MouseOver ? Custom::Hover : Custom::Normal;
}
