#include "Resolution.h"

#include <algorithm>

namespace {

const QLatin1String EmptyWord("#Empty#");
const QLatin1String BaseSelector("Default");

using Table = QMap<QString, QString>;

Table tableOf(const AttributeQuery &query, const QString &selector)
{
    return Custom::getAttrMap(query.className.toLower(), selector.toLower(), query.parentClass.toLower());
}

/// The places of one status in the order of the search. A selector that lists a key, even with an empty text, stands
/// in place of the default selector's value.
QVector<ResolutionStep> stepsOf(const AttributeQuery &query, Custom::ItemStatus status, const Table &base,
    const Table &selected, const OverrideLog &log)
{
    const QString key = query.key(status);
    QVector<ResolutionStep> steps;
    steps.append({ key, status, Place::Override, log.value(key), false });
    const auto addDocument = [&](Place place, const QString &text) {
        const bool wiped = !text.isEmpty() && log.wipes(key);
        steps.append({ key, status, place, wiped ? QString() : text, wiped });
    };
    if (query.selector != BaseSelector)
        addDocument(Place::Selector, selected.value(key));
    if (!selected.contains(key))
        addDocument(Place::DefaultSelector, base.value(key));
    return steps;
}

} // namespace

QString AttributeQuery::key(Custom::ItemStatus itemStatus) const
{
    QStringList parts = QStringList(attribute) + subSelectors;
    if (itemStatus != Custom::Normal)
        parts << Custom::itemStatus2String(itemStatus);
    return parts.join(QLatin1Char(':')).toLower();
}

QStringList subSelectorsOf(const QString &text)
{
    if (text.trimmed().isEmpty())
        return {};
    QStringList names;
    const QStringList parts = text.split(QLatin1Char(','));
    for (const QString &name : parts)
        names << name.trimmed();
    return names;
}

void OverrideLog::set(const AttributeQuery &query, const QString &value)
{
    if (!m_attributes.contains(query.attribute)) {
        m_attributes << query.attribute;
        m_wiped << query.attribute.toLower();
    }
    m_values.insert(query.key(query.status), value);
}

bool OverrideLog::wipes(const QString &key) const
{
    return std::any_of(
        m_wiped.cbegin(), m_wiped.cend(), [&key](const QString &attribute) { return key.startsWith(attribute); });
}

bool Resolution::isEmptyWord() const
{
    return found && steps.constLast().value == EmptyWord;
}

bool Resolution::fellBack(const AttributeQuery &query) const
{
    return found && steps.constLast().status != query.status;
}

Resolution resolve(const AttributeQuery &query, const OverrideLog &log)
{
    const Table base = tableOf(query, BaseSelector);
    const Table selected = query.selector == BaseSelector ? Table() : tableOf(query, query.selector);
    QVector<Custom::ItemStatus> statuses = { query.status };
    if (query.status != Custom::Normal)
        statuses << Custom::Normal;

    Resolution resolution;
    for (Custom::ItemStatus status : qAsConst(statuses)) {
        const auto steps = stepsOf(query, status, base, selected, log);
        for (const ResolutionStep &step : steps) {
            resolution.steps.append(step);
            if (step.value.isEmpty())
                continue;
            resolution.found = true;
            resolution.value = step.value == EmptyWord ? QString() : step.value;
            return resolution;
        }
    }
    return resolution;
}
