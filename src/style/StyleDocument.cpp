#include "style/CustomStyleSheetData_p.h"

#include "style/StyleImages_p.h"
#include "style/StyleTable_p.h"

#include <Zanthic/ChangeSkinEvent.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtCore/QSharedPointer>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>
#include <QtXml/QDomDocument>
#include <QtXml/QXmlSimpleReader>

#include <new>
#include <vector>

namespace {

const QLatin1String s_strSeparator("##");

// A document nested deeper than this would exhaust the stack of the XML library, which walks it by recursion.
constexpr int kMaxElementDepth = 512;
// A short document can grow without bounds by the entities that it declares itself.
constexpr int kMaxEntities = 20000;

quint64 g_nRevision = 1;

// Qt has no other reader that sees a document as QDomDocument does, entities and encodings included.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

// Ends the reading of a document at what would take the program down.
class LimitHandler : public QXmlDefaultHandler
{
public:
    bool startElement(const QString &, const QString &, const QString &, const QXmlAttributes &) override
    {
        m_bExceeded = ++m_nDepth > kMaxElementDepth;
        return !m_bExceeded;
    }
    bool endElement(const QString &, const QString &, const QString &) override
    {
        --m_nDepth;
        return true;
    }
    bool startEntity(const QString &name) override
    {
        static const QStringList s_lstPredefined = { QStringLiteral("amp"), QStringLiteral("lt"), QStringLiteral("gt"),
            QStringLiteral("quot"), QStringLiteral("apos") };
        if (!s_lstPredefined.contains(name))
            m_bExceeded = ++m_nEntities > kMaxEntities;
        return !m_bExceeded;
    }
    QString errorString() const override { return QString(); }
    bool isExceeded() const { return m_bExceeded; }

private:
    int m_nDepth = 0;
    int m_nEntities = 0;
    bool m_bExceeded = false;
};

bool exceedsLimits(const QByteArray &bytes)
{
    QXmlInputSource source;
    source.setData(bytes);
    LimitHandler handler;
    QXmlSimpleReader reader;
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
    reader.setFeature(QStringLiteral("http://trolltech.com/xml/features/report-whitespace-only-CharData"), false);
    reader.setFeature(QStringLiteral("http://trolltech.com/xml/features/report-start-end-entity"), true);
    reader.setContentHandler(&handler);
    reader.setLexicalHandler(&handler);
    reader.setErrorHandler(&handler);
    reader.parse(&source);
    return handler.isExceeded();
}

QT_WARNING_POP

QSharedPointer<CustomStyleSheetData> &xmlSharePointData()
{
    static QSharedPointer<CustomStyleSheetData> m_xmlSharePointData;
    return m_xmlSharePointData;
}

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
    return readFile(path, &bytes) && !exceedsLimits(bytes) && document->setContent(bytes);
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

void notifyAllWidgets()
{
    const QWidgetList widgets = QApplication::allWidgets();
    // A widget that rebuilds its contents on a new skin deletes others.
    std::vector<QPointer<QWidget>> guarded(widgets.cbegin(), widgets.cend());
    ChangeSkinEvent event;
    for (const QPointer<QWidget> &widget : guarded) {
        if (widget)
            QCoreApplication::sendEvent(widget, &event);
    }
}

} // namespace

CustomStyleSheetData *CustomStyleSheetData::instance()
{
    return xmlSharePointData().data();
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
    xmlSharePointData().reset();
    clearStyleSheets();
    invalidateDerived();
}

void Custom::initStyleSheetDataPointer()
{
    if (!xmlSharePointData())
        xmlSharePointData().reset(new (std::nothrow) CustomStyleSheetData);
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

    notifyAllWidgets();
}

ChangeSkinEvent::ChangeSkinEvent() : QEvent(static_cast<QEvent::Type>(EventType)) { }

ChangeSkinEvent::~ChangeSkinEvent() = default;
