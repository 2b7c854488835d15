#include "StyleHost.h"
#include "support/Probe.h"

#include "style/CustomStyleSheetData_p.h"

#include <Zanthic/Zanthic.h>

namespace {

const QString s_strBasePath = QStringLiteral(":/Zanthic/QSS/CustomStyleSheet.xml");

CustomStyleSheetData &data()
{
    return *CustomStyleSheetData::instance();
}

QString sampleSize()
{
    return Custom::getAttrMap("sample"_s, "default"_s).value("fontsize"_s);
}

QByteArray sample(const QByteArray &fontSize)
{
    return StyleTest::classXml("Sample", "Default", "<FontSize>" + fontSize + "</FontSize>");
}

// Puts the files of a skin below ":/Zanthic/", in place of those of the last one.
void useSkin(const QString &name)
{
    static QString s_strFile;
    QResource::unregisterResource(
        std::exchange(s_strFile, QStringLiteral(ZANTHIC_TEST_SKINS "/skin_%1.rcc").arg(name)));
    QVERIFY2(name.isEmpty() || QResource::registerResource(s_strFile), qPrintable(s_strFile));
}

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
    void damagedFiles_data() { addRowsOf("cases/documents.txt"_s, { "file", "read", "colors" }); }
    void damagedFiles()
    {
        const QString path = dataFile(cell("file") + ".xml");
        Custom::addXmlPath(path);
        Custom::readSkinColorFile(path);
        QTEST((QStringList(data().colors.keys()) + QStringList(data().colors.values())).join(' '), "colors");
        addColors("<Color Id='Later' Value='#000001'/>"); // what comes later is taken up all the same
        for (int skin = 0; skin < 2; ++skin) {
            QTEST(sampleSize() == "11"_s ? "yes"_s : "no"_s, "read");
            QVERIFY(data().xmlPaths.contains(path) && data().colors.contains("DB_COLOR_LATER"_s));
            Custom::changeSkin();
        }
    }

    void lookups_data() { addRowsOf("cases/lookups.txt"_s, { "class", "selector", "parent", "key", "first", "both" }); }
    void lookups()
    {
        const auto found = [] {
            const auto name = [](const char *column) { return cell(column).replace("\\n"_s, "\n"_s); };
            return Custom::getAttrMap(name("class"), name("selector"), name("parent")).value(cell("key"));
        };
        Custom::addXmlPath(dataFile("strange-but-sound.xml"_s));
        Custom::addXmlPath(dataFile("tree.xml"_s));
        QTEST(found(), "first");
        Custom::addXmlPath(dataFile("tree-later.xml"_s));
        QTEST(found(), "both");
        Custom::changeSkin();
        QTEST(found(), "both");
    }

    void depthThatNobodyMeant_data() { addRowsOf("cases/depths.txt"_s, { "what", "head", "open", "close", "levels" }); }
    void depthThatNobodyMeant()
    {
        const int levels = int(number("levels"));
        const QString text
            = cell("head") + "<Style>" + cell("open").repeated(levels) + cell("close").repeated(levels) + "</Style>";
        Custom::addXmlPath(scratchFile(text.toLatin1()));
        Custom::readSkinColorFile(scratchFile(text.toLatin1()));
        addDocument(sample("11"));
        QCOMPARE(sampleSize(), "11"_s);
    }

    void largeDocumentsAreTakenUp()
    {
        const auto classes = QStringLiteral("<Class Name='C%1'><Selector Name='S'><A>%1</A></Selector>%2</Class>");
        QString text; // two hundred classes in one another, and ten megabytes
        for (int i = 200; i > 0; --i)
            text = classes.arg(i).arg(text);
        for (int i = 1000; text.size() < 10 * 1024 * 1024; ++i)
            text += classes.arg(i).arg(QString());
        addDocument(text.toLatin1());
        QCOMPARE(Custom::getAttrMap("c200"_s, "s"_s, "c199"_s).value("a"_s), "200"_s);
        QCOMPARE(Custom::getAttrMap("c99999"_s, "s"_s).value("a"_s), "99999"_s);
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
        overwrite(failed, "<Style>" + sample("4") + "<Class Name='More'/></Style>");
        overwrite(good, "<Style>" + sample("6") + "</Style>");
        Custom::addXmlPath(failed);
        Custom::initXmlInfo(good);
        QVERIFY(sampleSize() == "5"_s && data().classes.size() == 1);
        Custom::changeSkin();
        // The failed one has kept its place in the order, ahead of the other document.
        QVERIFY(sampleSize() == "6"_s && data().classes.size() == 2);
        QCOMPARE(data().xmlPaths, QStringList({ s_strBasePath, failed, QString(), odd, good }));
    }

    void skinChangeEmptiesAllButLanguageAndFontsAndTellsEveryWidgetOnce()
    {
        SheetLabel window;
        SheetLabel child(&window);
        Custom::addXmlPath(dataFile("families.xml"_s));
        overwrite(addDocument("<Class Name='Q'><Selector Name='A' EqualSelector='B'/><QSS><T>x</T></QSS></Class>"), "");
        overwrite(addColors("<Color Id='A' Value='#000001'/>"), "");
        Custom::setLanguage(Custom::Zh_cn);
        Custom::setGlobalFontFamily(Custom::En_us, "Kept"_s);
        data().xmlPaths.removeAll(dataFile("families.xml"_s));
        Custom::changeSkin();
        QVERIFY(data().classes.isEmpty() && data().colors.isEmpty() && data().childClasses.isEmpty());
        QVERIFY(
            !data().qssFiles.contains("T"_s) && data().equalSelectors.isEmpty() && data().language == Custom::Zh_cn);
        QVERIFY(data().fontFamilies.value(Custom::En_us) == "Kept"_s && data().globalFontFamily == "Family Zh"_s);
        QVERIFY(window.events.size() == 1 && child.events == window.events);
    }

    void baseDocumentComesFirst()
    {
        useSkin("red"_s);
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
        useSkin(QString());
    }

    void skinChangeShowsOtherPictures()
    {
        CustomWidget boxes[5];
        CustomPushButton button;
        SheetLabel label;
        QList<QWidget *> widgets{ &button, &label };
        for (int i = 0; i < 5; ++i) {
            boxes[i].cSetStyleSelector(QStringList({ "Default", "Image", "Base", "Border", "Texture" }).at(i));
            widgets.append(&boxes[i]);
        }
        button.cSetIcon(":/Zanthic/picture.png"_s);
        QMap<QString, QList<QImage>> pictures;
        for (const auto &name : { "red"_s, "blue"_s, "red"_s }) {
            useSkin(name);
            Custom::changeSkin();
            QList<QImage> images;
            for (QWidget *widget : qAsConst(widgets)) {
                widget->resize(40, 40);
                images.append(Probe::grab(widget));
                QVERIFY2(shows(images.last(), QColor(name)), qPrintable(QString::number(images.size())));
                QVERIFY2(!shows(images.last(), name == "red"_s ? Qt::blue : Qt::red), qPrintable(name));
            }
            QCOMPARE(images, pictures.value(name, images));
            pictures.insert(name, images);
        }
        useSkin(QString());
    }
};

ZANTHIC_TEST_MAIN(TestDocument)
#include "tst_document.moc"
