#include "style/StyleTable_p.h"

#include "style/CustomStyleSheetData_p.h"
#include "style/PostRoutine_p.h"

#include <QtCore/QHash>

namespace {

using AttributeMap = QMap<QString, QString>;

// Class, selector and parent class.
using Names = QPair<QString, QPair<QString, QString>>;

Names names(const QString &className, const QString &selector, const QString &parentClassName)
{
    return qMakePair(className, qMakePair(selector, parentClassName));
}

// Names can be made up at will; a table is made anew where it was dropped.
constexpr int kMaxKept = 1024;

struct Caches
{
    QHash<Names, std::shared_ptr<StyleTable>> tables;
    QHash<Names, AttributeMap> attrMaps;
};

Caches &caches()
{
    static Caches s_Caches;
    static PostRoutine s_Routine(StyleTable::clearCache);
    s_Routine.ensure();
    return s_Caches;
}

// The attributes of one class, those of all its selectors; null when the documents don't know it.
const AttributeMap *findClass(
    const CustomStyleSheetData &data, const QString &className, const QString &parentClassName)
{
    const CustomStyleSheetData::ClassTable *classes = &data.classes;
    if (!parentClassName.isEmpty()) {
        const auto parent = data.childClasses.constFind(parentClassName);
        if (parent == data.childClasses.cend())
            return nullptr;
        classes = &*parent;
    }
    const auto it = classes->constFind(className);
    return it == classes->cend() ? nullptr : &*it;
}

AttributeMap collect(const AttributeMap &classNode, const QString &selector)
{
    AttributeMap result;
    const QString prefix = selector + QLatin1String("##");
    for (auto it = classNode.lowerBound(prefix); it != classNode.cend() && it.key().startsWith(prefix); ++it)
        result.insert(it.key().mid(prefix.size()), it.value());
    return result;
}

} // namespace

QMap<QString, QString> Custom::getAttrMap(
    const QString &className, const QString &selector, const QString &parentClassName)
{
    if (className.isEmpty() || selector.isEmpty())
        return {};
    initXmlInfo(QLatin1String(c_szBaseXmlPath));
    const CustomStyleSheetData *data = CustomStyleSheetData::instance();
    if (!data)
        return {};
    const Names key = names(className, selector, parentClassName);
    const auto known = caches().attrMaps.constFind(key);
    if (known != caches().attrMaps.cend())
        return *known;
    const AttributeMap *classNode = findClass(*data, className, parentClassName);
    if (!classNode)
        return {};
    const QString equal = data->equalSelectors.value(className.toLower() + QLatin1String("##") + selector, selector);
    if (caches().attrMaps.size() >= kMaxKept)
        caches().attrMaps.clear();
    return *caches().attrMaps.insert(key, collect(*classNode, equal));
}

QString Custom::attributeValue(
    const QString &className, QString attribute, const QString &selector, const QStringList &subSelectors)
{
    if (className.isEmpty() || attribute.isEmpty() || selector.isEmpty())
        return QString();
    initXmlInfo(QLatin1String(c_szBaseXmlPath));
    const CustomStyleSheetData *data = CustomStyleSheetData::instance();
    const QString name = className.toLower();
    const AttributeMap *classNode = data ? findClass(*data, name, QString()) : nullptr;
    if (!classNode)
        return QString();
    for (const QString &sub : subSelectors) {
        if (!sub.isEmpty())
            attribute += QLatin1Char(':') + sub;
    }
    const QString lowered = selector.toLower();
    const QString equal = data->equalSelectors.value(name + QLatin1String("##") + lowered, lowered);
    return classNode->value(equal + QLatin1String("##") + attribute.toLower());
}

StyleTable::StyleTable(const QString &className, const QString &selector, const QString &parentClassName)
    : m_mapValues(Custom::getAttrMap(className.toLower(), QStringLiteral("default"), parentClassName.toLower()))
{
    if (selector != QLatin1String("Default")) {
        const AttributeMap own = Custom::getAttrMap(className.toLower(), selector.toLower(), parentClassName.toLower());
        for (auto it = own.cbegin(); it != own.cend(); ++it)
            m_mapValues.insert(it.key(), it.value());
    }
    m_nParameters = quint32(m_mapValues.value(QStringLiteral("objectparameter")).toInt());
}

std::shared_ptr<StyleTable> StyleTable::get(
    const QString &className, const QString &selector, const QString &parentClassName)
{
    const Names key = names(className, selector, parentClassName);
    if (const std::shared_ptr<StyleTable> known = caches().tables.value(key))
        return known;
    const auto table = std::make_shared<StyleTable>(className, selector, parentClassName);
    if (caches().tables.size() >= kMaxKept)
        caches().tables.clear();
    caches().tables.insert(key, table);
    return table;
}

void StyleTable::clearCache()
{
    caches().tables.clear();
    caches().attrMaps.clear();
}
