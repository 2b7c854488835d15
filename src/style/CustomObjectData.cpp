#include "style/CustomObject_p.h"

#include "style/StyleTable_p.h"

#include <Zanthic/CustomObject.h>

#include <QtWidgets/QWidget>

CustomObjectData::CustomObjectData(QWidget *host, const QString &hostSelector) : CustomQssHelperData(host)
{
    selector = hostSelector;
}

CustomObjectData::~CustomObjectData() = default;

CustomObjectData *CustomObjectData::get(const CustomObject *object)
{
    return object ? object->d : nullptr;
}

void CustomObjectData::initData()
{
    if (!dirty)
        return;
    dirty = false;
    m_pTable = StyleTable::get(className, selector, parentClassName);
    styleValues = m_pTable->values();
    parameters |= m_pTable->parameters();
    forgetResolved();
    initWidgetParam();
}

void CustomObjectData::initWidgetParam()
{
    if (!widget)
        return;
    const QStringList none;
    QFont font = widget->font();
    font.setFamily(hasParameter(Custom::ParamUserFontFamily)
            ? getValue(QStringLiteral("FontFamily"), Custom::Normal, none)
            : Custom::globalFontFamily());
    const int size = getValue(QStringLiteral("FontSize"), Custom::Normal, none).toInt();
    if (size > 0)
        font.setPixelSize(size);
    // Setting the same font again would change nothing and cost events.
    if (font != widget->font() || font.resolve() != widget->font().resolve())
        widget->setFont(font);

    const int height = getValue(QStringLiteral("WidgetHeight"), Custom::Normal, none).toInt();
    const int width = getValue(QStringLiteral("WidgetWidth"), Custom::Normal, none).toInt();
    // Above the limit Qt would log a warning and use the limit.
    if (width > 0 && height > 0)
        widget->setFixedSize(qMin(width, QWIDGETSIZE_MAX), qMin(height, QWIDGETSIZE_MAX));
}

QString CustomObjectData::getFullAttrName(const QString &attr, Custom::ItemStatus status, const QStringList &subs)
{
    QString name = attr;
    for (const QString &sub : subs)
        name += QLatin1Char(':') + sub;
    const QString statusWord = Custom::itemStatus2String(status);
    if (!statusWord.isEmpty())
        name += QLatin1Char(':') + statusWord;
    return name.toLower();
}

QString CustomObjectData::getValue(const QString &attr, Custom::ItemStatus status, const QStringList &subs) const
{
    const QString key = getFullAttrName(attr, status, subs);
    QString value = localValues.value(key);
    if (value.isEmpty())
        value = styleValues.value(key);
    if (value.isEmpty() && status != Custom::Normal)
        return getValue(attr, Custom::Normal, subs);
    return value == QLatin1String("#Empty#") ? QString() : value;
}

void CustomObjectData::setValue(
    const QString &attr, Custom::ItemStatus status, const QStringList &subs, const QString &value)
{
    localValues[getFullAttrName(attr, status, subs)] = value;
    forgetResolved();
}

void CustomObjectData::clearValues(const QString &attr)
{
    const QString prefix = attr.toLower();
    const auto first = qAsConst(styleValues).lowerBound(prefix);
    if (first == styleValues.cend() || !first.key().startsWith(prefix))
        return;
    for (auto it = styleValues.lowerBound(prefix); it != styleValues.end() && it.key().startsWith(prefix); ++it)
        it->clear();
    m_pTable.reset();
    forgetResolved();
}

void CustomObjectData::copy(CustomObjectData *other)
{
    if (!other || other == this)
        return;
    parentClassName = other->parentClassName;
    selector = other->selector;
    other->initData();
    dirty = other->dirty;
    parameters = other->parameters;
    styleValues = other->styleValues;
    localValues = other->localValues;
    m_pTable = other->m_pTable;
    forgetResolved();
}

void CustomObjectData::drop()
{
    styleValues.clear();
    m_pTable.reset();
    forgetResolved();
    dirty = true;
}

std::shared_ptr<const ResolvedStyle> CustomObjectData::resolved(Custom::ItemStatus status, const QStringList &subs)
{
    return resolvedStyles().get(*this, status, subs);
}

ResolvedStyles &CustomObjectData::resolvedStyles()
{
    initData();
    if (m_pTable && localValues.isEmpty())
        return m_pTable->resolved();
    if (!m_pOwnResolved)
        m_pOwnResolved = std::make_unique<ResolvedStyles>();
    return *m_pOwnResolved;
}

void CustomObjectData::forgetResolved()
{
    m_pOwnResolved.reset();
}
