#include "style/CustomStyleSheetData_p.h"

#include "style/StyleImages_p.h"
#include "style/StyleTable_p.h"

#include <Zanthic/ChangeSkinEvent.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QSharedPointer>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>
#include <QtXml/QDomDocument>

#include <new>

namespace {

const QLatin1String s_strSeparator("##");

// A document nested deeper than this would exhaust the stack of the XML library, which walks it by recursion.
constexpr int kMaxElementDepth = 512;

QSharedPointer<CustomStyleSheetData> m_xmlSharePointData;
quint64 g_nRevision = 1;

// How deep the elements of a document nest, read off its bytes without building anything.
class DepthScanner
{
public:
    explicit DepthScanner(const QByteArray &bytes) : m_bytes(bytes)
    {
        // The other bytes of a wide encoding carry no markup.
        m_bytes.replace(QByteArray(1, '\0'), QByteArray());
    }

    int deepest()
    {
        int depth = 0;
        int result = 0;
        int at = m_bytes.indexOf('<');
        while (at >= 0 && at + 1 < m_bytes.size()) {
            const char next = m_bytes.at(at + 1);
            if (next == '!' || next == '?') {
                at = skipDeclaration(at);
            } else {
                const int end = tagEnd(at);
                const bool closes = next == '/';
                const bool empty = end > at && m_bytes.at(end - 1) == '/';
                depth += closes ? -1 : (empty ? 0 : 1);
                result = qMax(result, depth);
                at = end;
            }
            at = at < 0 ? -1 : m_bytes.indexOf('<', at + 1);
        }
        return result;
    }

private:
    int skipDeclaration(int at) const
    {
        if (m_bytes.mid(at, 4) == "<!--")
            return m_bytes.indexOf("-->", at + 4);
        if (m_bytes.mid(at, 9) == "<![CDATA[")
            return m_bytes.indexOf("]]>", at + 9);
        return at;
    }

    // The index of the ">" that ends the tag, past ">" inside quotes; the last byte for an open tag.
    int tagEnd(int at) const
    {
        char quote = 0;
        for (int i = at + 1; i < m_bytes.size(); ++i) {
            const char c = m_bytes.at(i);
            if (quote)
                quote = c == quote ? 0 : quote;
            else if (c == '"' || c == '\'')
                quote = c;
            else if (c == '>')
                return i;
        }
        return m_bytes.size() - 1;
    }

    QByteArray m_bytes;
};

bool readFile(const QString &path, QByteArray *bytes)
{
    // QFile would log a warning about either.
    if (path.isEmpty() || path.contains(QChar(QChar::Null)))
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    *bytes = file.readAll();
    return true;
}

bool readXml(const QString &path, QDomDocument *document)
{
    QByteArray bytes;
    return readFile(path, &bytes) && DepthScanner(bytes).deepest() <= kMaxElementDepth && document->setContent(bytes);
}

// The attributes of one class: those of its selectors, each under the selector's name.
void readSelectors(CustomStyleSheetData *data, const QDomElement &classElement, const QString &className,
    CustomStyleSheetData::AttributeTable *table)
{
    const QString tag = QStringLiteral("Selector");
    for (QDomElement selector = classElement.firstChildElement(tag); !selector.isNull();
         selector = selector.nextSiblingElement(tag)) {
        const QString name = selector.attribute(QStringLiteral("Name")).toLower();
        const QString equal = selector.attribute(QStringLiteral("EqualSelector")).toLower();
        if (name.isEmpty())
            continue;
        if (!equal.isEmpty()) {
            data->equalSelectors[className + s_strSeparator + name] = equal;
            continue;
        }
        for (QDomNode node = selector.firstChild(); !node.isNull(); node = node.nextSibling()) {
            const QDomElement attribute = node.toElement();
            (*table)[name + s_strSeparator + attribute.tagName().toLower()] = attribute.text();
        }
    }
}

void mergeClass(const QString &className, const CustomStyleSheetData::AttributeTable &table,
    CustomStyleSheetData::ClassTable *target)
{
    const auto existing = target->find(className);
    if (existing == target->end()) {
        target->insert(className, table);
        return;
    }
    for (auto it = table.cbegin(); it != table.cend(); ++it)
        existing->insert(it.key(), it.value());
}

} // namespace

CustomStyleSheetData *CustomStyleSheetData::instance()
{
    return m_xmlSharePointData.data();
}

quint64 CustomStyleSheetData::revision()
{
    return g_nRevision;
}

void CustomStyleSheetData::invalidateDerived()
{
    ++g_nRevision;
    StyleTable::clearCache();
    StyleImages::clear();
}

void CustomStyleSheetData::reset()
{
    m_xmlSharePointData.reset();
    clearStyleSheets();
    invalidateDerived();
}

void Custom::initStyleSheetDataPointer()
{
    if (!m_xmlSharePointData)
        m_xmlSharePointData.reset(new (std::nothrow) CustomStyleSheetData);
}

void Custom::initXmlInfo(const QString &path)
{
    initStyleSheetDataPointer();
    CustomStyleSheetData *data = CustomStyleSheetData::instance();
    if (!data || data->xmlPaths.contains(path))
        return;
    data->xmlPaths.append(path);

    QDomDocument document;
    if (!readXml(path, &document))
        return;
    const QString tag = QStringLiteral("Class");
    for (QDomElement element = document.documentElement().firstChildElement(tag); !element.isNull();
         element = element.nextSiblingElement(tag))
        addOneClassInfo(element, data->classes);
    initFontFamily();
}

void Custom::addXmlPath(const QString &path)
{
    initXmlInfo(QLatin1String(c_szBaseXmlPath));
    initXmlInfo(path);
}

void Custom::addOneClassInfo(const QDomElement &classElement, QMap<QString, QMap<QString, QString>> &target)
{
    CustomStyleSheetData *data = CustomStyleSheetData::instance();
    if (!data)
        return;
    CustomStyleSheetData::invalidateDerived();

    const QString className = classElement.attribute(QStringLiteral("Name")).toLower();
    const QString tag = QStringLiteral("Class");
    for (QDomElement child = classElement.firstChildElement(tag); !child.isNull();
         child = child.nextSiblingElement(tag))
        addOneClassInfo(child, data->childClasses[className]);

    CustomStyleSheetData::AttributeTable table;
    readSelectors(data, classElement, className, &table);
    mergeClass(className, table, &target);

    const QDomElement sheets = classElement.firstChildElement(QStringLiteral("QSS"));
    for (QDomNode node = sheets.firstChild(); !node.isNull(); node = node.nextSibling())
        data->qssFiles[node.toElement().tagName()] = node.toElement().text();

    const QDomElement colors = classElement.firstChildElement(QStringLiteral("DataBase:Color"));
    for (QDomNode node = colors.firstChild(); !node.isNull(); node = node.nextSibling())
        readSkinColorFile(node.toElement().text());
}

void Custom::readSkinColorFile(const QString &path)
{
    CustomStyleSheetData *data = CustomStyleSheetData::instance();
    QDomDocument document;
    if (!data || !readXml(path, &document))
        return;
    CustomStyleSheetData::invalidateDerived();

    const QString tableTag = QStringLiteral("Table");
    const QString colorTag = QStringLiteral("Color");
    for (QDomElement table = document.documentElement().firstChildElement(tableTag); !table.isNull();
         table = table.nextSiblingElement(tableTag)) {
        for (QDomElement color = table.firstChildElement(colorTag); !color.isNull();
             color = color.nextSiblingElement(colorTag)) {
            const QString key = QLatin1String(c_szDBColorSymbol) + color.attribute(QStringLiteral("Id")).toUpper();
            data->colors[key] = color.attribute(QStringLiteral("Value"));
        }
    }
}

QString Custom::readFileContent(const QString &path)
{
    QByteArray bytes;
    // From a plain pointer the conversion ends at the first NUL byte.
    return readFile(path, &bytes) ? QString::fromUtf8(bytes.constData()) : QString();
}

void Custom::changeSkin()
{
    initStyleSheetDataPointer();
    CustomStyleSheetData *data = CustomStyleSheetData::instance();
    if (!data)
        return;
    const QStringList paths = data->xmlPaths;
    data->xmlPaths.clear();
    data->classes.clear();
    data->childClasses.clear();
    data->equalSelectors.clear();
    data->qssFiles.clear();
    data->colors.clear();
    CustomStyleSheetData::clearStyleSheets();
    CustomStyleSheetData::invalidateDerived();

    // Style sheets and icons of Qt's own look images up there by path, size and time, which two skins may share.
    QPixmapCache::clear();

    initXmlInfo(QLatin1String(c_szBaseXmlPath));
    for (const QString &path : paths)
        initXmlInfo(path);

    ChangeSkinEvent event;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets)
        QCoreApplication::sendEvent(widget, &event);
}

ChangeSkinEvent::ChangeSkinEvent() : QEvent(static_cast<QEvent::Type>(EventType)) { }

ChangeSkinEvent::~ChangeSkinEvent() = default;
