// The XML examples of docs/theming.md are taken up section by section, on top of the default theme in its light skin,
// and the comments above them are held against a live control:
//
//   file: PATH            the block stands for this file; it is read only where a later block of the section names it
//   broken                the block is no well-formed document
//   expect: [OUTER/]CLASS SELECTOR ATTRIBUTE[SUB,SUB] [STATUS] = VALUE
//   expect-flags: CLASS SELECTOR = SUM
//   expect-brush: COLOUR TEXT = none, invalid, #aarrggbb or the gradient in a box of 200 by 40 px
//   expect-family: LANGUAGE = FAMILY
//   expect-sheet: TYPE has TEXT

#include "support/StyleTest.h"

#include <Zanthic/CustomObject.h>
#include <Zanthic/ZanthicTheme.h>

#include <QtCore/QMetaEnum>
#include <QtCore/QRegularExpression>
#include <QtXml/QDomDocument>

namespace {

constexpr QRect kBox(0, 0, 200, 40);

struct Block
{
    QString language;
    QString text;
    QString file;
    QStringList expectations;
    bool broken = false;
};

using Section = QVector<Block>;

class Control : public QWidget, public CustomObject
{
public:
    Control(const QString &name, const QString &selector) : CustomObject(this, QString(), selector)
    {
        const int slash = name.indexOf(QLatin1Char('/'));
        cSetParentClassName(name.left(qMax(0, slash)));
        cSetClassName(name.mid(slash + 1));
    }
};

// The examples of each section, by its heading.
QMap<QString, Section> readSections(const QString &document)
{
    static const QRegularExpression form(
        QStringLiteral("^## (.+)$|^<!-- (?:file: (.+)|(broken)|(expect.+)) -->$|^```(.+)\\n((?:(?!```).*\\n)*)```$"),
        QRegularExpression::MultilineOption);
    QMap<QString, Section> sections;
    QString heading = QStringLiteral("Introduction");
    Block next;
    for (auto it = form.globalMatch(document); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        heading = match.capturedLength(1) > 0 ? match.captured(1) : heading;
        next.file += match.captured(2);
        next.broken = next.broken || match.capturedLength(3) > 0;
        if (match.capturedLength(4) > 0)
            next.expectations += match.captured(4);
        next.language = match.captured(5);
        next.text = match.captured(6);
        if (next.language == QLatin1String("xml") || next.language == QLatin1String("css"))
            sections[heading].append(next);
        if (!next.language.isEmpty())
            next = Block();
    }
    return sections;
}

QString readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString brushText(const QBrush &brush)
{
    if (brush.style() == Qt::NoBrush)
        return QStringLiteral("none");
    if (brush.style() != Qt::LinearGradientPattern)
        return brush.color().isValid() ? brush.color().name(QColor::HexArgb) : QStringLiteral("invalid");
    const auto gradient = static_cast<const QLinearGradient *>(brush.gradient());
    const QPointF a = gradient->start();
    const QPointF b = gradient->finalStop();
    QStringList stops;
    for (const QGradientStop &stop : gradient->stops())
        stops += QStringLiteral("%1 %2").arg(stop.first).arg(stop.second.name(QColor::HexArgb));
    const QString text = QStringLiteral("(%1,%2)-(%3,%4) ").arg(a.x()).arg(a.y()).arg(b.x()).arg(b.y());
    return text + stops.join(QLatin1String(", "));
}

QString attributeText(const QString &question)
{
    static const QRegularExpression form(QStringLiteral("^(\\S+) (\\S+) ([^\\s\\[]+)(?:\\[(\\S+)\\])?(?: (\\w+))?$"));
    const QRegularExpressionMatch match = form.match(question);
    const QString word = match.captured(5).isEmpty() ? QStringLiteral("Normal") : match.captured(5);
    const auto status = StyleTest::enumerator<Custom::ItemStatus>(word);
    if (!match.hasMatch() || status < 0)
        return QStringLiteral("can't be read: ") + question;
    const QStringList subs = match.captured(4).split(QLatin1Char(','), Qt::SkipEmptyParts);
    const Control control(match.captured(1), match.captured(2));
    const QString value = control.cAttributeValue(match.captured(3), status, subs);
    return value.isEmpty() ? QStringLiteral("\"\"") : value;
}

QString flagsText(const QString &question)
{
    const Control control(question.section(QLatin1Char(' '), 0, 0), question.section(QLatin1Char(' '), 1));
    int sum = 0;
    for (int flag = 1; flag <= Custom::ParamColorRect; flag *= 2)
        sum += control.cHasParameter(Custom::ObjectParameter(flag)) ? flag : 0;
    return QString::number(sum);
}

// What the library says to the question of one expectation.
QString answer(const QString &kind, const QString &question)
{
    if (kind == QLatin1String("expect"))
        return attributeText(question);
    if (kind == QLatin1String("expect-flags"))
        return flagsText(question);
    if (kind == QLatin1String("expect-brush"))
        return brushText(Custom::string2Brush(question, kBox));
    if (kind == QLatin1String("expect-family"))
        return Custom::globalFontFamily(StyleTest::enumerator<Custom::Language>(question));
    if (kind == QLatin1String("expect-sheet"))
        return Custom::styleSheet(StyleTest::enumerator<Custom::StyleSheetType>(question));
    return QStringLiteral("unknown kind ") + kind;
}

void checkExpectation(const QString &line)
{
    static const QRegularExpression form(QStringLiteral("^(expect[\\w-]*): (.+) (=|has) (.+)$"));
    const QRegularExpressionMatch match = form.match(line);
    QVERIFY2(match.hasMatch(), qPrintable(line));
    const QString actual = answer(match.captured(1), match.captured(2));
    const QString expected = match.captured(4);
    const bool holds = match.captured(3) == QLatin1String("has") ? actual.contains(expected) : actual == expected;
    QVERIFY2(holds, qPrintable(line + QLatin1String("\nactual: ") + actual));
}

} // namespace

Q_DECLARE_METATYPE(Block)

class TestThemingExamples : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void examplesHold_data();
    void examplesHold();
    void everyControlAndAttributeOfTheThemeIsTold();

private:
    void take(const Block &block);

    QMap<QString, QString> m_mapFiles; // path in the guide to scratch file
};

void TestThemingExamples::examplesHold_data()
{
    QTest::addColumn<Section>("section");
    const auto sections = readSections(readFile(QStringLiteral(PROJECT_FOLDER "/docs/theming.md")));
    QVERIFY2(sections.size() >= 5, "the guide's examples aren't found");
    for (auto it = sections.cbegin(); it != sections.cend(); ++it)
        QTest::newRow(qPrintable(it.key())) << it.value();
}

void TestThemingExamples::examplesHold()
{
    QFETCH(Section, section);
    m_mapFiles.clear();
    QVERIFY(ZanthicTheme::applySkin(QStringLiteral("light")));
    for (const Block &block : qAsConst(section))
        take(block);
    // After the last block, so that a file may stand above the document that names it.
    for (const Block &block : qAsConst(section)) {
        for (const QString &line : block.expectations)
            checkExpectation(line);
        QVERIFY2(block.language != QLatin1String("xml") || !block.expectations.isEmpty(), qPrintable(block.text));
    }
}

void TestThemingExamples::take(const Block &block)
{
    QString text = block.text;
    for (auto it = m_mapFiles.cbegin(); it != m_mapFiles.cend(); ++it)
        text.replace(it.key(), it.value());
    const QString path = scratchFile(text.toUtf8());
    if (!block.file.isEmpty())
        m_mapFiles[block.file] = path;
    if (block.language != QLatin1String("xml"))
        return;

    QDomDocument document;
    QCOMPARE(document.setContent(text), !block.broken);
    if (document.documentElement().tagName() == QLatin1String("Class"))
        addDocument(text.toUtf8());
    else if (document.documentElement().tagName() != QLatin1String("Colors"))
        Custom::addXmlPath(path);
    else if (block.file.isEmpty())
        Custom::readSkinColorFile(path);
}

// The tables of the guide name every class and attribute that the default theme gives.
void TestThemingExamples::everyControlAndAttributeOfTheThemeIsTold()
{
    const QString guide = readFile(QStringLiteral(PROJECT_FOLDER "/docs/theming.md"));
    QDomDocument theme;
    QVERIFY(theme.setContent(readFile(QStringLiteral(PROJECT_FOLDER "/theme/CustomStyleSheet.xml"))));
    const QDomNodeList selectors = theme.elementsByTagName(QStringLiteral("Selector"));
    QVERIFY(!selectors.isEmpty());
    QSet<QString> words;
    for (int i = 0; i < selectors.size(); ++i) {
        const QDomElement selector = selectors.at(i).toElement();
        words += selector.attribute(QStringLiteral("Name"));
        words += selector.parentNode().toElement().attribute(QStringLiteral("Name"));
        for (QDomElement e = selector.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
            words += e.tagName().section(QLatin1Char(':'), 0, 0);
    }
    for (const QString &word : qAsConst(words))
        QVERIFY2(guide.contains(word), qPrintable(word));
}

ZANTHIC_TEST_MAIN(TestThemingExamples)
#include "tst_theming_examples.moc"
