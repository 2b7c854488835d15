// The documents agree with the files that they show and lead to. The XML examples of docs/theming.md are taken up
// section by section, on top of the default theme in its light skin, and the comments above them are held against a
// live control:
//
//   file: PATH            the block stands for this file; it is read only where a later block of the section names it
//   broken                the block is no well-formed document
//   expect: [OUTER/]CLASS SELECTOR ATTRIBUTE[SUB,SUB] [STATUS] = VALUE
//   expect-flags: CLASS SELECTOR = SUM
//   expect-brush: COLOUR TEXT = none, invalid, #aarrggbb or the gradient in a box of 200 by 40 px
//   expect-family: LANGUAGE = FAMILY
//   expect-sheet: TYPE has TEXT

#include "style/StyleHost.h"

#include <Zanthic/ZanthicTheme.h>

#include <QtXml/QDomDocument>

namespace {

struct Block
{
    QString language;
    QString text;
    QString file;
    QStringList expectations;
    bool broken = false;
};

QString readFile(const QString &name)
{
    QFile file(PROJECT_FOLDER "/"_s + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The anchor of each heading: lower case, blanks as hyphens, without punctuation.
QStringList anchors(const QString &document)
{
    QStringList result = document.split('\n').filter(QRegularExpression("^#"_s));
    for (QString &line : result)
        line = line.section(' ', 1).toLower().remove(QRegularExpression("[^a-z0-9 -]"_s)).replace(' ', '-');
    return result;
}

// The examples of each section, by its heading.
QMap<QString, QVector<Block>> readSections(const QString &document)
{
    static const QRegularExpression form(
        "^## (.+)$|^<!-- (?:file: (.+)|(broken)|(expect.+)) -->$|^```(.+)\\n((?:(?!```).*\\n)*)```$"_s,
        QRegularExpression::MultilineOption);
    QMap<QString, QVector<Block>> sections;
    QString heading = "Introduction"_s;
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
        if (next.language == "xml"_s || next.language == "css"_s)
            sections[heading].append(next);
        if (!next.language.isEmpty())
            next = Block();
    }
    return sections;
}

QString attributeText(const QString &question)
{
    static const QRegularExpression form("^(?:(\\w+)/)?(\\S+) (\\S+) ([^\\s\\[]+)(?:\\[(\\S+)\\])?(?: (\\w+))?$"_s);
    const QRegularExpressionMatch match = form.match(question);
    const QString word = match.captured(6).isEmpty() ? "Normal"_s : match.captured(6);
    const auto status = StyleTest::enumerator<Custom::ItemStatus>(word);
    if (!match.hasMatch() || status < 0)
        return "can't be read: "_s + question;
    StyleHost control(match.captured(2), match.captured(3));
    control.cSetParentClassName(match.captured(1));
    const QString text = value(control, match.captured(4), status, match.captured(5).split(',', Qt::SkipEmptyParts));
    return text.isEmpty() ? "\"\""_s : text;
}

// What the library says to the question of one expectation.
QString answer(const QString &kind, const QString &question)
{
    if (kind == "expect"_s)
        return attributeText(question);
    if (kind == "expect-flags"_s) {
        StyleHost control(question.section(' ', 0, 0), question.section(' ', 1));
        control.cFont();
        return QString::number(control.data()->parameters);
    }
    if (kind == "expect-brush"_s)
        return described(Custom::string2Brush(question, { 0, 0, 200, 40 }));
    if (kind == "expect-family"_s)
        return Custom::globalFontFamily(StyleTest::enumerator<Custom::Language>(question));
    if (kind == "expect-sheet"_s)
        return Custom::styleSheet(StyleTest::enumerator<Custom::StyleSheetType>(question));
    return "unknown kind "_s + kind;
}

void checkExpectation(const QString &line)
{
    static const QRegularExpression form("^(expect[\\w-]*): (.+) (=|has) (.+)$"_s);
    const QRegularExpressionMatch match = form.match(line);
    const QString actual = answer(match.captured(1), match.captured(2));
    const QString expected = match.captured(4);
    const bool holds = match.captured(3) == "has"_s ? actual.contains(expected) : actual == expected;
    QVERIFY2(match.hasMatch() && holds, qPrintable(line + "\nactual: " + actual));
}

} // namespace

class TestDocuments : public StyleTest
{
    Q_OBJECT

private:
    void take(const Block &block)
    {
        QString text = block.text;
        for (auto it = m_mapFiles.cbegin(); it != m_mapFiles.cend(); ++it)
            text.replace(it.key(), it.value());
        const QString path = scratchFile(text.toUtf8());
        if (!block.file.isEmpty())
            m_mapFiles[block.file] = path;
        if (block.language != "xml"_s)
            return;

        QDomDocument document;
        QCOMPARE(document.setContent(text), !block.broken);
        if (document.documentElement().tagName() == "Class"_s)
            addDocument(text.toUtf8());
        else if (document.documentElement().tagName() != "Colors"_s)
            Custom::addXmlPath(path);
        else if (block.file.isEmpty())
            Custom::readSkinColorFile(path);
    }

    QMap<QString, QString> m_mapFiles; // path in the guide to scratch file

private Q_SLOTS:
    void examplesHold_data()
    {
        QTest::addColumn<QString>("section");
        const QStringList sections = readSections(readFile("docs/theming.md"_s)).keys();
        QVERIFY2(sections.size() >= 5, "the guide's examples aren't found");
        for (const QString &section : sections)
            QTest::newRow(qPrintable(section)) << section;
    }
    void examplesHold()
    {
        m_mapFiles.clear();
        QVERIFY(ZanthicTheme::applySkin("light"_s));
        const QVector<Block> section = readSections(readFile("docs/theming.md"_s)).value(cell("section"));
        for (const Block &block : section)
            take(block);
        // After the last block, so that a file may stand above the document that names it.
        for (const Block &block : section) {
            for (const QString &line : block.expectations)
                checkExpectation(line);
            QVERIFY2(block.language != "xml"_s || !block.expectations.isEmpty(), qPrintable(block.text));
        }
    }

    // The tables of the guide name every class, selector and attribute that the default theme gives.
    void everyControlAndAttributeOfTheThemeIsTold()
    {
        const QString guide = readFile("docs/theming.md"_s);
        const QRegularExpression form(
            "Name=\"(\\w+)\"|^ {8,}<(?!Selector|Class|/)(\\w+)"_s, QRegularExpression::MultilineOption);
        int words = 0;
        for (auto it = form.globalMatch(readFile("theme/CustomStyleSheet.xml"_s)); it.hasNext(); ++words) {
            const QString word = it.next().captured().section(QRegularExpression("[\"<]"_s), 1, 1);
            QVERIFY2(guide.contains(word), qPrintable(word));
        }
        QVERIFY(words > 50);
    }

    void readmeShowsTheExample()
    {
        for (const auto &file :
            { "cpp docs/examples/hello/main.cpp"_s, "cmake docs/examples/hello/CMakeLists.txt"_s }) {
            const QString text = readFile(file.section(' ', 1));
            const QString shown = QStringLiteral("```%1\n%2```\n").arg(file.section(' ', 0, 0), text);
            QVERIFY2(!text.isEmpty() && readFile("README.md"_s).contains(shown), qPrintable(file));
        }
    }

    void linksLeadSomewhere()
    {
        static const QRegularExpression form("\\]\\((?!https://)([^)\\s]+)\\)|src=\"(?!https://)([^\"]+)\""_s);
        for (const auto &name :
            { "README.md"_s, "CONTRIBUTING.md"_s, "CHANGELOG.md"_s, "docs/architecture.md"_s, "docs/theming.md"_s }) {
            const QString text = readFile(name);
            QVERIFY2(!text.isEmpty(), qPrintable(name));
            for (auto it = form.globalMatch(text); it.hasNext();) {
                const QRegularExpressionMatch match = it.next();
                const QString link = match.captured(1) + match.captured(2);
                const QString path = QFileInfo(name).path() + '/' + link.section('#', 0, 0);
                QVERIFY2(QFile::exists(PROJECT_FOLDER "/"_s + path), qPrintable(link));
                const QString anchor = link.section('#', 1);
                const QString there = link.startsWith('#') ? text : readFile(path);
                QVERIFY2(anchor.isEmpty() || anchors(there).contains(anchor), qPrintable(link));
            }
        }
    }
};

ZANTHIC_TEST_MAIN(TestDocuments)
#include "tst_documents.moc"
