#include "CaseFile.h"
#include "StyleHost.h"
#include "support/Probe.h"

#include "style/CustomStyleSheetData_p.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomWidget.h>

#include <QtCore/QResource>
#include <QtWidgets/QLabel>

using CaseFile::cell;

namespace {

const QString s_strBasePath = QStringLiteral(":/Zanthic/QSS/CustomStyleSheet.xml");

CustomStyleSheetData &data()
{
    return *CustomStyleSheetData::instance();
}

QString attribute(const QString &className, const QString &attribute)
{
    return Custom::getAttrMap(className, "default"_s).value(attribute);
}

QByteArray sample(const QByteArray &fontSize)
{
    return StyleTest::classXml("Sample", "Default", "<FontSize>" + fontSize + "</FontSize>");
}

// The skin whose files are found below ":/Zanthic/".
class ActiveSkin
{
public:
    explicit ActiveSkin(const QString &name) { set(name); }
    ~ActiveSkin() { QResource::unregisterResource(m_strFile); }
    void set(const QString &name)
    {
        QResource::unregisterResource(m_strFile);
        m_strFile = QStringLiteral(ZANTHIC_TEST_SKINS "/skin_%1.rcc").arg(name);
        QVERIFY2(QResource::registerResource(m_strFile), qPrintable(m_strFile));
    }

private:
    QString m_strFile;
};

// Counts skin changes and sets its style sheet again, as controls with a style sheet do.
class SheetLabel : public QLabel
{
public:
    using QLabel::QLabel;
    QList<QEvent *> events;

protected:
    void customEvent(QEvent *event) override
    {
        events.append(event);
        setStyleSheet(Custom::styleSheet(Custom::SheetGroupBox));
    }
};

bool shows(const QImage &image, const QColor &color)
{
    return !Probe::bounds(image, [color](const QColor &pixel) { return pixel == color; }).isNull();
}

} // namespace

class TestDocument : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void damagedDocuments_data() { CaseFile::addRows("documents", { "file", "read" }); }
    void damagedDocuments()
    {
        const QString path = dataFile(cell("file") + ".xml");
        Custom::addXmlPath(path);
        // What comes later is taken up all the same.
        addDocument(classXml("Later", "Default", "<FontSize>7</FontSize>"));
        for (int skin = 0; skin < 2; ++skin) {
            QTEST(attribute("sample"_s, "fontsize"_s) == "11"_s ? "yes"_s : "no"_s, "read");
            QVERIFY(data().xmlPaths.contains(path) && attribute("later"_s, "fontsize"_s) == "7"_s);
            Custom::changeSkin();
        }
    }

    void strangeButSoundDocument()
    {
        Custom::addXmlPath(dataFile("strange-but-sound.xml"_s));
        const QMap<QString, QString> expected{ { QString(), QString() }, { "fontsize"_s, "11"_s },
            { "label"_s, "<a> & \"b\" <Ain"_s }, { "padded"_s, "  two  blanks "_s } };
        QCOMPARE(Custom::getAttrMap("sample"_s, "default"_s), expected);
        QCOMPARE(QStringList(data().classes.keys()), QStringList({ QString(), "sample"_s }));
        QVERIFY(data().classes.value(QString()).isEmpty() && data().equalSelectors.isEmpty());
    }

    void damagedColorFiles()
    {
        for (const auto &name : { "colors-truncated"_s, "colors-root-only"_s, "empty"_s, "binary"_s, "entity-bomb"_s,
                 "missing"_s, "colors-sound"_s }) {
            const QByteArray path = dataFile(name + ".xml").toUtf8();
            addDocument("<Class Name='C'><DataBase:Color><x>" + path + "</x></DataBase:Color></Class>" + sample("9"));
            QCOMPARE(data().colors.isEmpty(), name != "colors-sound"_s);
            QCOMPARE(attribute("sample"_s, "fontsize"_s), "9"_s);
        }
        const QMap<QString, QString> expected{ { "DB_COLOR_"_s, "#040506"_s }, { "DB_COLOR_MARKER"_s, "#010203"_s },
            { "DB_COLOR_NOVALUE"_s, QString() }, { "DB_COLOR_TWICE"_s, "#000002"_s } };
        QCOMPARE(data().colors, expected);
    }

    void lookups_data()
    {
        CaseFile::addRows("lookups", { "class", "selector", "parent", "attribute", "first", "both" });
    }
    void lookups()
    {
        const auto found = [] {
            const auto name = [](const char *column) { return cell(column).replace("\\n"_s, "\n"_s); };
            return Custom::getAttrMap(name("class"), name("selector"), name("parent")).value(cell("attribute"));
        };
        Custom::addXmlPath(dataFile("tree.xml"_s));
        QTEST(found(), "first");
        Custom::addXmlPath(dataFile("tree-later.xml"_s));
        QTEST(found(), "both");
        Custom::changeSkin();
        QTEST(found(), "both");
    }

    void depthThatNobodyMeant_data() { CaseFile::addRows("depths", { "what", "head", "open", "close", "levels" }); }
    void depthThatNobodyMeant()
    {
        const int levels = int(CaseFile::number("levels"));
        const QString text
            = cell("head") + "<Style>" + cell("open").repeated(levels) + cell("close").repeated(levels) + "</Style>";
        Custom::addXmlPath(scratchFile(text.toLatin1()));
        Custom::readSkinColorFile(scratchFile(text.toLatin1()));
        addDocument(sample("11"));
        QCOMPARE(attribute("sample"_s, "fontsize"_s), "11"_s);
    }

    void largeDocumentsAreTakenUp()
    {
        QString text; // two hundred classes in one another, and ten megabytes
        for (int i = 200; i > 0; --i)
            text = QStringLiteral("<Class Name='C%1'><Selector Name='S'><A>%1</A></Selector>%2</Class>")
                       .arg(i)
                       .arg(text);
        for (int i = 0; text.size() < 10 * 1024 * 1024; ++i)
            text += QStringLiteral("<Class Name='Many%1'><Selector Name='S'><A>%1</A></Selector></Class>").arg(i);
        addDocument(text.toLatin1());
        QCOMPARE(Custom::getAttrMap("c200"_s, "s"_s, "c199"_s).value("a"_s), "200"_s);
        QCOMPARE(Custom::getAttrMap("many99999"_s, "s"_s).value("a"_s), "99999"_s);
    }

    void laterColorsWin()
    {
        addColors("<Color Id='A' Value='#000001'/><Color Id='B' Value='#000002'/>");
        addDocument(classXml("Sample", "Default", "<FontColor>DB_COLOR_A</FontColor>"));
        StyleHost host;
        QCOMPARE(host.cFontColor(), QColor(0, 0, 1));
        // The reference is symbolic: a later file changes what names it, without a skin change.
        addColors("<Color Id='a' Value='#000003'/>");
        for (int skin = 0; skin < 2; ++skin) {
            QCOMPARE(host.cFontColor(), QColor(0, 0, 3));
            QCOMPARE(Custom::getDataBaseColor("b"_s).color(), QColor(0, 0, 2));
            Custom::changeSkin();
        }
    }

    void pathsAreReadOnceAndTriedAgainByTheNextSkin()
    {
        const QString failed = scratchFile("no document");
        const QString odd(2, QChar::Null);
        for (const QString &path : { failed, QString(), odd })
            Custom::addXmlPath(path);
        const QString good = addDocument(sample("5"));
        overwrite(
            failed, "<Style>" + sample("4") + classXml("Third", "Default", "<FontSize>3</FontSize>") + "</Style>");
        overwrite(good, "<Style>" + sample("6") + "</Style>");
        Custom::addXmlPath(failed);
        Custom::initXmlInfo(good);
        QVERIFY(attribute("sample"_s, "fontsize"_s) == "5"_s && attribute("third"_s, "fontsize"_s).isEmpty());
        Custom::changeSkin();
        // The failed one has kept its place in the order, ahead of the other document.
        QVERIFY(attribute("sample"_s, "fontsize"_s) == "6"_s && attribute("third"_s, "fontsize"_s) == "3"_s);
        QCOMPARE(data().xmlPaths, QStringList({ s_strBasePath, failed, QString(), odd, good }));
    }

    void skinChangeEmptiesAllButLanguageAndFonts()
    {
        const QString path
            = addDocument(classXml("Global", "Default",
                              "<FontFamily:Zh_cn>Zh</FontFamily:Zh_cn><FontFamily:En_us>En</FontFamily:En_us>")
                + "<Class Name='Q'><Selector Name='A' EqualSelector='B'/><QSS><T>x</T></QSS><Class Name='N'/></Class>");
        overwrite(addColors("<Color Id='A' Value='#000001'/>"), "<Style>");
        Custom::setLanguage(Custom::En_us);
        overwrite(path, "<Style/>");
        Custom::changeSkin();
        QVERIFY(data().classes.isEmpty() && data().colors.isEmpty() && data().childClasses.isEmpty());
        QVERIFY(data().qssFiles.isEmpty() && data().equalSelectors.isEmpty() && data().language == Custom::En_us);
        // The document that could be read sets the family in force back to the first one.
        QVERIFY(data().fontFamilies.value(Custom::En_us) == "En"_s && data().globalFontFamily == "Zh"_s);
    }

    void skinChangeTellsEveryWidgetOnce()
    {
        SheetLabel window;
        SheetLabel child(&window);
        SheetLabel hidden;
        Custom::changeSkin();
        QCOMPARE(data().xmlPaths, QStringList(s_strBasePath));
        QVERIFY(window.events.size() == 1 && child.events == window.events && hidden.events == window.events);
    }

    void baseDocumentComesFirst()
    {
        const ActiveSkin skin("red"_s);
        CustomWidget widget;
        QCOMPARE(CustomStyleSheetData::instance(), nullptr);
        QVERIFY(widget.cFontSize() == 11 && widget.font().pixelSize() == 11);
        const QString own = addDocument(classXml("CustomWidget", "Default", "<FontSize>40</FontSize>"));
        // Taken up out of turn, an application's document is behind the base again after a skin change.
        CustomStyleSheetData::reset();
        Custom::initXmlInfo(own);
        Custom::changeSkin();
        QCOMPARE(data().xmlPaths, QStringList({ s_strBasePath, own }));
        QVERIFY(widget.cFontSize() == 40 && widget.cHasParameter(Custom::ParamBackgroundColor));
    }

    void skinChangeShowsOtherPictures()
    {
        ActiveSkin skin("red"_s);
        std::vector<std::unique_ptr<QWidget>> widgets;
        for (const auto &selector : { "Default"_s, "Image"_s, "Base"_s, "Border"_s, "Texture"_s }) {
            auto widget = std::make_unique<CustomWidget>();
            widget->cSetStyleSelector(selector);
            widgets.push_back(std::move(widget));
        }
        auto button = std::make_unique<CustomPushButton>();
        button->cSetIcon(":/Zanthic/picture.png"_s);
        widgets.push_back(std::move(button));
        widgets.push_back(std::make_unique<SheetLabel>());
        QMap<QString, QList<QImage>> pictures;
        for (const auto &name : { "red"_s, "blue"_s, "red"_s }) {
            skin.set(name);
            Custom::changeSkin();
            QList<QImage> images;
            for (const auto &widget : widgets) {
                widget->resize(40, 40);
                images.append(Probe::grab(widget.get()));
                QVERIFY2(shows(images.last(), QColor(name)), qPrintable(QString::number(images.size())));
                QVERIFY2(!shows(images.last(), name == "red"_s ? Qt::blue : Qt::red), qPrintable(name));
            }
            QCOMPARE(images, pictures.value(name, images));
            pictures.insert(name, images);
        }
    }

    void fileContentEndsAtNul()
    {
        QCOMPARE(Custom::readFileContent(scratchFile(QByteArray("\xC3\xA9\0d", 4))), QString(QChar(0xE9)));
    }
};

ZANTHIC_TEST_MAIN(TestDocument)
#include "tst_document.moc"
