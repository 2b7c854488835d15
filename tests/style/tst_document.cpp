#include "StyleHost.h"
#include "support/Probe.h"
#include "support/StyleTest.h"

#include "style/CustomStyleSheetData_p.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomWidget.h>

#include <QtCore/QResource>
#include <QtWidgets/QLabel>
#include <QtXml/QDomDocument>

namespace {

const QString s_strBasePath = QStringLiteral(":/Zanthic/QSS/CustomStyleSheet.xml");

using Attributes = QMap<QString, QString>;

constexpr int kLevels = 200000;

CustomStyleSheetData &data()
{
    return *CustomStyleSheetData::instance();
}

QString value(const QByteArray &className, const QByteArray &attribute, const QByteArray &selector = "default",
    const QByteArray &parent = QByteArray())
{
    return Custom::getAttrMap(QLatin1String(className), QLatin1String(selector), QLatin1String(parent))
        .value(QLatin1String(attribute));
}

QByteArray sample(const QByteArray &fontSize)
{
    return StyleTest::classXml("Sample", "Default", "<FontSize>" + fontSize + "</FontSize>");
}

QString dataFile(const QByteArray &name)
{
    return QStringLiteral(ZANTHIC_TEST_DATA "/documents/") + QLatin1String(name);
}

void overwrite(const QString &path, const QByteArray &text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

// The skin whose files are found below ":/Zanthic/".
class ActiveSkin
{
public:
    explicit ActiveSkin(const char *name) { set(name); }
    ~ActiveSkin() { QResource::unregisterResource(m_strFile); }
    Q_DISABLE_COPY(ActiveSkin)

    void set(const char *name)
    {
        if (!m_strFile.isEmpty())
            QResource::unregisterResource(m_strFile);
        m_strFile = QStringLiteral(ZANTHIC_TEST_SKINS "/skin_%1.rcc").arg(QLatin1String(name));
        QVERIFY2(QResource::registerResource(m_strFile), qPrintable(m_strFile));
    }

private:
    QString m_strFile;
};

// Counts skin changes; what it does not handle would go on to nobody.
class Recorder : public QWidget
{
public:
    using QWidget::QWidget;
    QList<QEvent *> events;

protected:
    void customEvent(QEvent *event) override
    {
        if (int(event->type()) == ChangeSkinEvent::EventType)
            events.append(event);
        event->ignore();
    }
};

// A plain widget that sets its style sheet again on a skin change, as controls with a style sheet do.
class SheetLabel : public QLabel
{
public:
    SheetLabel() { setStyleSheet(Custom::styleSheet(Custom::SheetGroupBox)); }

protected:
    void customEvent(QEvent *event) override
    {
        if (int(event->type()) == ChangeSkinEvent::EventType)
            setStyleSheet(Custom::styleSheet(Custom::SheetGroupBox));
    }
};

bool shows(const QImage &image, Qt::GlobalColor color)
{
    return !Probe::bounds(image, [color](const QColor &pixel) { return pixel == QColor(color); }).isNull();
}

} // namespace

class TestDocument : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void damagedDocuments_data();
    void damagedDocuments();
    void strangeButSoundDocument();
    void damagedColorFiles_data();
    void damagedColorFiles();
    void nestedClassesAreFiledUnderTheirImmediateParent();
    void depthThatNobodyMeant_data();
    void depthThatNobodyMeant();
    void manyWideCharactersAreNoDepth();
    void tenMegabytes();
    void laterKeysWin();
    void laterColorsWin();
    void aliasDropsAttributes();
    void namesWithLineBreaks();
    void pathIsReadOnceUntilSkinChanges();
    void failedPathIsTriedAgainByTheNextSkin();
    void skinChangeKeepsLanguageAndFonts();
    void skinChangeTellsEveryWidgetOnce();
    void baseDocumentComesFirst();
    void skinChangeShowsOtherPictures();
    void classElementCanBeFiledElsewhere();
    void fileContentEndsAtNul();
};

void TestDocument::damagedDocuments_data()
{
    QTest::addColumn<bool>("read");
    for (const char *name : { "truncated", "unclosed-root", "empty", "blank", "root-only", "two-roots",
             "text-after-root", "mismatched-tags", "bare-ampersand", "binary", "utf16-as-utf8", "entity-bomb",
             "entity-of-itself", "no-such-file", "." })
        QTest::newRow(name) << false;
    for (const char *name : { "latin1-as-utf8", "unknown-encoding", "utf16", "utf8-bom", "external-entity",
             "unknown-entity", "duplicate-attribute", "nul-bytes" })
        QTest::newRow(name) << true;
}

void TestDocument::damagedDocuments()
{
    const QByteArray tag(QTest::currentDataTag());
    const QString path = dataFile(tag == "." ? tag : QByteArray(tag + ".xml"));
    Custom::addXmlPath(path);
    QTEST(value("sample", "fontsize") == QLatin1String("11"), "read");
    QVERIFY(data().xmlPaths.contains(path));
    // What comes later is taken up all the same, and so is a control that asks.
    addDocument(classXml("Later", "Default", "<FontSize>7</FontSize>"));
    QCOMPARE(StyleHost(QStringLiteral("Later")).cFontSize(), 7);
    Custom::changeSkin();
    QTEST(value("sample", "fontsize") == QLatin1String("11"), "read");
    QCOMPARE(value("later", "fontsize"), QStringLiteral("7"));
}

void TestDocument::strangeButSoundDocument()
{
    Custom::addXmlPath(dataFile("strange-but-sound.xml"));
    const Attributes expected{ { QString(), QString() }, { QStringLiteral("fontsize"), QStringLiteral("11") },
        { QStringLiteral("label"), QStringLiteral("<a> & \"b\" <Ain") },
        { QStringLiteral("padded"), QStringLiteral("  two  blanks ") } };
    QCOMPARE(Custom::getAttrMap(QStringLiteral("sample"), QStringLiteral("default")), expected);
    QCOMPARE(QStringList(data().classes.keys()), QStringList({ QString(), QStringLiteral("sample") }));
    QVERIFY(data().classes.value(QString()).isEmpty());
    QVERIFY(data().equalSelectors.isEmpty());
}

void TestDocument::damagedColorFiles_data()
{
    QTest::addColumn<QStringList>("colors");
    QTest::newRow("colors-sound") << QStringList(
        { "DB_COLOR_ #040506", "DB_COLOR_MARKER #010203", "DB_COLOR_NOVALUE ", "DB_COLOR_TWICE #000002" });
    for (const char *name : { "colors-truncated", "colors-root-only", "empty", "binary", "entity-bomb", "missing" })
        QTest::newRow(name) << QStringList();
}

void TestDocument::damagedColorFiles()
{
    const QString path = dataFile(QByteArray(QTest::currentDataTag()) + ".xml");
    addDocument("<Class Name='C'><DataBase:Color><x>" + path.toUtf8() + "</x></DataBase:Color></Class>" + sample("9"));
    QStringList colors;
    for (auto it = data().colors.cbegin(); it != data().colors.cend(); ++it)
        colors.append(it.key() + QLatin1Char(' ') + it.value());
    QTEST(colors, "colors");
    QCOMPARE(value("sample", "fontsize"), QStringLiteral("9"));
}

void TestDocument::nestedClassesAreFiledUnderTheirImmediateParent()
{
    const auto named = [](const QByteArray &name, const QByteArray &inner) -> QByteArray {
        return QByteArray("<Class Name='") + name + "'><Selector Name='Default'><Own>" + name + "</Own></Selector>"
            + inner + "</Class>";
    };
    addDocument(named("Outer", named("Middle", named("Inner", "") + named("OUTER", ""))) + named("Inner", ""));
    QCOMPARE(value("middle", "own", "default", "outer"), QStringLiteral("Middle"));
    QCOMPARE(value("inner", "own", "default", "middle"), QStringLiteral("Inner"));
    QCOMPARE(value("outer", "own", "default", "middle"), QStringLiteral("OUTER"));
    QCOMPARE(value("inner", "own"), QStringLiteral("Inner"));
    // Neither store stands in for the other, and a grandparent is no parent.
    QCOMPARE(value("middle", "own"), QString());
    QCOMPARE(value("inner", "own", "default", "outer"), QString());
    QCOMPARE(value("outer", "own", "default", "outer"), QString());
    // A second document adds to a nested class key by key.
    addDocument("<Class Name='oUTER'><Class Name='mIDDLE'><Selector Name='default'><More>2</More></Selector></Class>"
                "</Class>");
    QCOMPARE(value("middle", "own", "default", "outer") + value("middle", "more", "default", "outer"),
        QStringLiteral("Middle2"));
    QCOMPARE(value("outer", "own"), QStringLiteral("Outer"));

    QByteArray deep;
    for (int i = 200; i > 0; --i)
        deep = named("C" + QByteArray::number(i), deep);
    addDocument(deep);
    QCOMPARE(value("c200", "own", "default", "c199"), QStringLiteral("C200"));
}

void TestDocument::depthThatNobodyMeant_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("open");
    QTest::addColumn<QByteArray>("close");
    QTest::addColumn<int>("levels");
    const auto row = [](const char *name, const QByteArray &head, int levels = kLevels) {
        QTest::newRow(name) << head << QByteArray("<b>") << QByteArray("</b>") << levels;
    };
    row("5,000 levels", "", 5000);
    row("elements", "");
    row("comment in an instruction", "<?pi <!-- ?>");
    row("character data in an instruction", "<?pi <![CDATA[ ?>");
    row("comment in an entity", "<!DOCTYPE Style [<!ENTITY a \"<!--\">]>");
    row("closing tags in an entity", "<!DOCTYPE Style [<!ENTITY a \"" + QByteArray("</b>").repeated(kLevels) + "\">]>");
    QTest::newRow("entities") << QByteArray("<!DOCTYPE Style [<!ENTITY a \"<b>\"><!ENTITY z \"</b>\">]>")
                              << QByteArray("&a;") << QByteArray("&z;") << kLevels;
    QTest::newRow("other code") << QByteArray("<?xml version='1.0' encoding='UTF-7'?>") << QByteArray("+ADw-b+AD4-")
                                << QByteArray("+ADw-/b+AD4-") << kLevels;
    QTest::newRow("classes") << QByteArray() << QByteArray("<Class Name='A'>") << QByteArray("</Class>") << kLevels;
    QTest::newRow("never closed") << QByteArray() << QByteArray("<Class Name='A'>") << QByteArray() << kLevels;
    QTest::newRow("value") << QByteArray()
                           << QByteArray("<Class Name='A'><Selector Name='B'>") + QByteArray("<b>").repeated(kLevels)
                           << QByteArray("</b>").repeated(kLevels) + QByteArray("</Selector></Class>") << 1;
}

void TestDocument::depthThatNobodyMeant()
{
    QFETCH(QByteArray, head);
    QFETCH(QByteArray, open);
    QFETCH(QByteArray, close);
    QFETCH(int, levels);
    const QByteArray text = head + "<Style>" + open.repeated(levels) + close.repeated(levels) + "</Style>";
    Custom::addXmlPath(scratchFile(text));
    Custom::initStyleSheetDataPointer();
    Custom::readSkinColorFile(scratchFile(text));
    addDocument(sample("11"));
    QCOMPARE(value("sample", "fontsize"), QStringLiteral("11"));
}

void TestDocument::manyWideCharactersAreNoDepth()
{
    // Each of these characters has the byte of "<" in this code.
    const QString text = QStringLiteral("<?xml version='1.0' encoding='UTF-16'?><Style><!-- %1 --><Class Name='Sample'>"
                                        "<Selector Name='Default'><FontSize>11</FontSize>")
        + QStringLiteral("<Label>%1</Label>").arg(QChar(0x4E3C)).repeated(2000)
        + QStringLiteral("</Selector></Class></Style>");
    QByteArray bytes("\xFF\xFE", 2);
    for (const QChar c : text)
        bytes += QByteArray(1, char(c.cell())) + QByteArray(1, char(c.row()));
    Custom::addXmlPath(scratchFile(bytes));
    QCOMPARE(value("sample", "fontsize"), QStringLiteral("11"));
}

void TestDocument::tenMegabytes()
{
    QByteArray text;
    int classes = 0;
    while (text.size() < 10 * 1024 * 1024) {
        const QByteArray number = QByteArray::number(++classes);
        text += classXml(
            "Class" + number, "Default", "<FontSize>" + number + "</FontSize><BorderWidth:Left>1</BorderWidth:Left>");
    }
    addDocument(text);
    QCOMPARE(data().classes.size(), classes);
    QCOMPARE(value("class" + QByteArray::number(classes), "fontsize"), QString::number(classes));
}

void TestDocument::laterKeysWin()
{
    addDocument(classXml("Sample", "DEFAULT",
                    "<FontSize>1</FontSize><FONTSIZE>2</FONTSIZE><Icon>i</Icon>"
                    "<BackgroundColor:Item:Hover>b</BackgroundColor:Item:Hover>")
        + classXml("sAMPLE", "default", "<fontsize>3</fontsize><Extra>e</Extra>")
        + classXml("Sample", "Gray", "<FontSize>4</FontSize>"));
    const Attributes first{ { QStringLiteral("fontsize"), QStringLiteral("3") },
        { QStringLiteral("icon"), QStringLiteral("i") }, { QStringLiteral("extra"), QStringLiteral("e") },
        { QStringLiteral("backgroundcolor:item:hover"), QStringLiteral("b") } };
    QCOMPARE(Custom::getAttrMap(QStringLiteral("sample"), QStringLiteral("default")), first);
    QCOMPARE(
        data().classes.value(QStringLiteral("sample")).value(QStringLiteral("gray##fontsize")), QStringLiteral("4"));

    addDocument(classXml("Sample", "Default", "<Icon>second</Icon>"));
    addDocument(classXml("Sample", "Default", "<FontSize></FontSize>"));
    Attributes merged = first;
    merged[QStringLiteral("icon")] = QStringLiteral("second");
    merged[QStringLiteral("fontsize")] = QString();
    QCOMPARE(Custom::getAttrMap(QStringLiteral("sample"), QStringLiteral("default")), merged);
    Custom::changeSkin();
    QCOMPARE(Custom::getAttrMap(QStringLiteral("sample"), QStringLiteral("default")), merged);
}

void TestDocument::laterColorsWin()
{
    addColors("<Color Id='A' Value='#000001'/><Color Id='B' Value='#000002'/>");
    addDocument(classXml("Sample", "Default", "<FontColor>DB_COLOR_A</FontColor>"));
    StyleHost host;
    QCOMPARE(host.cFontColor(), QColor(0, 0, 1));
    // The reference is symbolic: a later file changes what names it, without a skin change.
    addColors("<Color Id='a' Value='#000003'/>");
    QCOMPARE(host.cFontColor(), QColor(0, 0, 3));
    QCOMPARE(host.data()->resolved(Custom::Normal, {})->fontColor, QColor(0, 0, 3));
    Custom::changeSkin();
    QCOMPARE(host.cFontColor(), QColor(0, 0, 3));
    QCOMPARE(Custom::getDataBaseColor(QStringLiteral("b")).color(), QColor(0, 0, 2));
    // Two colour files and two elements: all files of the first element, in their order.
    const auto file = [this](const char *value) -> QByteArray {
        return "<F>" + scratchFile(QByteArray("<r><Table><Color Id='A' Value='") + value + "'/></Table></r>").toUtf8()
            + "</F>";
    };
    addDocument("<Class Name='C'><DataBase:Color>" + file("#000004") + file("#000005") + "</DataBase:Color>"
        + "<DataBase:Color>" + file("#000006") + "</DataBase:Color></Class>");
    QCOMPARE(host.cFontColor(), QColor(0, 0, 5));
}

void TestDocument::aliasDropsAttributes()
{
    const QByteArray selectors = "<Selector Name='Default'><Icon>d</Icon></Selector>"
                                 "<Selector Name='Real'><Icon>r</Icon></Selector>"
                                 "<Selector Name='One' EqualSelector='REAL'><Icon>lost</Icon></Selector>"
                                 "<Selector Name='Two' EqualSelector='One'/>"
                                 "<Selector EqualSelector='Real'><Icon>nameless</Icon></Selector>";
    addDocument("<Class Name='Sample'>" + selectors + "</Class><Class Name='Outer'><Class Name='Sample'>"
        + "<Selector Name='Real'><Icon>inner</Icon></Selector></Class></Class>");
    QCOMPARE(value("sample", "icon", "one"), QStringLiteral("r"));
    QCOMPARE(Custom::attributeValue(QStringLiteral("SAMPLE"), QStringLiteral("Icon"), QStringLiteral("ONE")),
        QStringLiteral("r"));
    // One step only: "two" reads the entries of "one", which has none.
    QVERIFY(Custom::getAttrMap(QStringLiteral("sample"), QStringLiteral("two")).isEmpty());
    QCOMPARE(StyleHost(QStringLiteral("Sample"), QStringLiteral("Two")).cAttributeValue(QStringLiteral("Icon")),
        QStringLiteral("d"));
    // Aliases go by the class's name alone, nested or not.
    QCOMPARE(value("sample", "icon", "one", "outer"), QStringLiteral("inner"));
    QCOMPARE(data().equalSelectors.size(), 2);
}

void TestDocument::namesWithLineBreaks()
{
    addDocument(classXml("a", "b&#10;c", "<Icon>1</Icon>") + classXml("a&#10;b", "c", "<Icon>2</Icon>")
        + "<Class Name='c'>" + classXml("a", "b", "<Icon>3</Icon>") + "</Class>");
    QCOMPARE(value("a", "icon", "b\nc"), QStringLiteral("1"));
    QCOMPARE(value("a\nb", "icon", "c"), QStringLiteral("2"));
    QCOMPARE(value("a", "icon", "b", "c"), QStringLiteral("3"));
}

void TestDocument::pathIsReadOnceUntilSkinChanges()
{
    const QString path = addDocument(sample("1"));
    overwrite(path, "<Style>" + sample("2") + "</Style>");
    Custom::addXmlPath(path);
    Custom::initXmlInfo(path);
    QCOMPARE(value("sample", "fontsize"), QStringLiteral("1"));
    QCOMPARE(data().xmlPaths, QStringList({ s_strBasePath, path }));
    Custom::changeSkin();
    QCOMPARE(value("sample", "fontsize"), QStringLiteral("2"));
    QCOMPARE(data().xmlPaths, QStringList({ s_strBasePath, path }));
    QVERIFY(QFile::remove(path));
    Custom::changeSkin();
    QVERIFY(data().classes.isEmpty());
}

void TestDocument::failedPathIsTriedAgainByTheNextSkin()
{
    const QString missing = scratchFile("no document");
    Custom::addXmlPath(missing);
    Custom::addXmlPath(QString());
    Custom::addXmlPath(QStringLiteral("/a\0b").replace(QLatin1Char('b'), QChar(QChar::Null)));
    const QString good = addDocument(sample("5") + classXml("Other", "Default", "<Icon>o</Icon>"));
    QCOMPARE(data().xmlPaths.size(), 5);
    overwrite(missing, "<Style>" + sample("4") + classXml("Third", "Default", "<Icon>t</Icon>") + "</Style>");
    Custom::addXmlPath(missing);
    QCOMPARE(value("third", "icon"), QString());
    Custom::changeSkin();
    // It has kept its place in the order, ahead of the other document.
    QCOMPARE(value("third", "icon"), QStringLiteral("t"));
    QCOMPARE(value("sample", "fontsize"), QStringLiteral("5"));
    QCOMPARE(data().xmlPaths.size(), 5);
}

void TestDocument::skinChangeKeepsLanguageAndFonts()
{
    const QString path = addDocument(
        classXml("Global", "Default", "<FontFamily:Zh_cn>Zh</FontFamily:Zh_cn><FontFamily:En_us>En</FontFamily:En_us>")
        + "<Class Name='Q'><QSS><CustomGroupBox>x</CustomGroupBox></QSS></Class>");
    addColors("<Color Id='A' Value='#000001'/>");
    Custom::setLanguage(Custom::En_us);
    overwrite(path, "<Style>");
    Custom::changeSkin();
    QVERIFY(data().classes.size() == 1 && data().qssFiles.isEmpty() && data().equalSelectors.isEmpty());
    QCOMPARE(data().colors.size(), 1);
    QCOMPARE(Custom::language(), Custom::En_us);
    QCOMPARE(Custom::globalFontFamily(Custom::En_us), QStringLiteral("En"));
    // The document that could be read sets the family in force back to the first one.
    QCOMPARE(Custom::globalFontFamily(), QStringLiteral("Zh"));
}

void TestDocument::skinChangeTellsEveryWidgetOnce()
{
    Recorder window;
    Recorder child(&window);
    Recorder hidden;
    // Nothing has been taken up so far.
    Custom::changeSkin();
    QCOMPARE(data().xmlPaths, QStringList(s_strBasePath));
    for (const Recorder *recorder : { &window, &child, &hidden })
        QCOMPARE(recorder->events.size(), 1);
    QCOMPARE(window.events, child.events);
    QCOMPARE(window.events, hidden.events);
}

void TestDocument::baseDocumentComesFirst()
{
    const ActiveSkin skin("red");
    const QString own = addDocument(classXml("CustomWidget", "Default", "<FontSize>40</FontSize>"));
    QCOMPARE(data().xmlPaths, QStringList({ s_strBasePath, own }));
    QCOMPARE(value("customwidget", "fontsize"), QStringLiteral("40"));
    QCOMPARE(value("customwidget", "objectparameter"), QStringLiteral("2"));

    CustomStyleSheetData::reset();
    CustomWidget widget;
    QCOMPARE(CustomStyleSheetData::instance(), nullptr);
    QCOMPARE(widget.cFontSize(), 11);
    QCOMPARE(widget.font().pixelSize(), 11);

    // Taken up out of turn, an application's document is behind the base again after a skin change.
    CustomStyleSheetData::reset();
    Custom::initXmlInfo(own);
    Custom::changeSkin();
    QCOMPARE(data().xmlPaths, QStringList({ s_strBasePath, own }));
    QCOMPARE(value("customwidget", "fontsize"), QStringLiteral("40"));
}

void TestDocument::skinChangeShowsOtherPictures()
{
    ActiveSkin skin("red");
    std::vector<std::unique_ptr<QWidget>> widgets;
    for (const char *selector : { "Default", "Image", "Base", "Border", "Texture" }) {
        auto widget = std::make_unique<CustomWidget>();
        widget->cSetStyleSelector(QString::fromLatin1(selector));
        widgets.push_back(std::move(widget));
    }
    auto button = std::make_unique<CustomPushButton>();
    button->cSetIcon(QStringLiteral(":/Zanthic/picture.png"));
    widgets.push_back(std::move(button));
    widgets.push_back(std::make_unique<SheetLabel>());

    const auto grabAll = [&widgets]() {
        QList<QImage> images;
        for (const auto &widget : widgets) {
            widget->resize(40, 40);
            images.append(Probe::grab(widget.get()));
        }
        return images;
    };
    QList<QImage> first;
    for (const bool red : { true, false, true }) {
        skin.set(red ? "red" : "blue");
        Custom::changeSkin();
        const QList<QImage> images = grabAll();
        for (int i = 0; i < images.size(); ++i) {
            QVERIFY2(shows(images.at(i), red ? Qt::red : Qt::blue), qPrintable(QString::number(i)));
            QVERIFY2(!shows(images.at(i), red ? Qt::blue : Qt::red), qPrintable(QString::number(i)));
        }
        if (first.isEmpty())
            first = images;
        else if (red)
            QCOMPARE(images, first);
        QCOMPARE(static_cast<CustomWidget *>(widgets.front().get())->cFontSize(), red ? 11 : 12);
    }
}

void TestDocument::classElementCanBeFiledElsewhere()
{
    QDomDocument document;
    QVERIFY(document.setContent(QByteArray("<Class Name='A'><Selector Name='S'><Icon>i</Icon></Selector>"
                                           "<Class Name='B'/><QSS><T>f</T></QSS></Class>")));
    QMap<QString, Attributes> target;
    Custom::addOneClassInfo(document.documentElement(), target);
    QVERIFY(target.isEmpty()); // there is no style data yet
    Custom::initStyleSheetDataPointer();
    Custom::addOneClassInfo(document.documentElement(), target);
    QCOMPARE(target.value(QStringLiteral("a")).value(QStringLiteral("s##icon")), QStringLiteral("i"));
    QVERIFY(data().classes.isEmpty());
    QVERIFY(data().childClasses.value(QStringLiteral("a")).contains(QStringLiteral("b")));
    QCOMPARE(data().qssFiles.value(QStringLiteral("T")), QStringLiteral("f"));
    Custom::addOneClassInfo(QDomElement(), target);
    QVERIFY(target.contains(QString()));
}

void TestDocument::fileContentEndsAtNul()
{
    QCOMPARE(Custom::readFileContent(scratchFile("a\xC3\xA9\n")), QString::fromUtf8("a\xC3\xA9\n"));
    QCOMPARE(Custom::readFileContent(scratchFile(QByteArray("ab\0cd", 5))), QStringLiteral("ab"));
    QCOMPARE(Custom::readFileContent(QString()), QString());
    QCOMPARE(Custom::readFileContent(QStringLiteral("/no/such/file")), QString());
}

ZANTHIC_TEST_MAIN(TestDocument)
#include "tst_document.moc"
