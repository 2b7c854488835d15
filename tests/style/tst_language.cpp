#include "StyleHost.h"
#include "support/StyleTest.h"

#include "style/CustomPrivate_p.h"
#include "style/CustomStyleSheetData_p.h"

using Custom::En_us;
using Custom::Zh_cn;

namespace {

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

// The order of the types; each tag names the template of its number.
const char *const kTags[]
    = { "CustomGroupBox", "CustomHeaderView", "CustomLineEdit", "CustomListView", "CustomScrollBar", "CustomSlider",
          "CustomSpinBox", "CustomDoubleSpinBox", "CustomTabBar", "CustomTableView", "CustomTreeWidget" };

} // namespace

class TestLanguage : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingTakenUp();
    void flagIsOfTheLastComparison();
    void familiesCome_data();
    void familiesCome();
    void nextDocumentSetsTheFirstFamilyAgain();
    void laterDocumentReplacesOneFamily();
    void languageWithoutFamily();
    void setGlobalFontFamilyTellsNobody();
    void documentWithoutGlobalClass();
    void sheetsOfAllTypes();
    void placeholders_data();
    void placeholders();
    void sheetsAreBuiltOnceForASkin();
    void sheetsThatCannotBeRead();

private:
    void addFamilies(const QByteArray &chinese, const QByteArray &english)
    {
        addDocument(classXml("gLOBAL", "default",
            "<FontFamily:Zh_cn>" + chinese + "</FontFamily:Zh_cn><fontfamily:EN_US>" + english
                + "</fontfamily:EN_US>"));
    }
    QByteArray sheetElement(const QByteArray &tag, const QByteArray &content)
    {
        return "<" + tag + ">" + scratchFile(content, QStringLiteral(".qss")).toUtf8() + "</" + tag + ">";
    }
    void addSheets(const QByteArray &elements) { addDocument("<Class Name='Q'><QSS>" + elements + "</QSS></Class>"); }
};

void TestLanguage::nothingTakenUp()
{
    QCOMPARE(Custom::language(), En_us);
    QVERIFY(Custom::globalFontFamily().isEmpty());
    StyleHost host;
    QVERIFY(host.cLanguageString().isEmpty());
    QCOMPARE(CustomStyleSheetData::instance(), nullptr);
    Custom::initFontFamily();
    Custom::setLanguage(Zh_cn);
    QCOMPARE(CustomStyleSheetData::instance()->xmlPaths.size(), 1);
    QCOMPARE(host.cLanguageString(), text("Zh_cn"));
    QCOMPARE(Custom::language(), Zh_cn);
}

void TestLanguage::flagIsOfTheLastComparison()
{
    addFamilies("Zh", "En");
    QCOMPARE(Custom::globalFontFamily(), text("Zh"));
    QVERIFY(!CustomPrivate::isFontFamilyChange());
    const auto set = [](Custom::Language language) {
        Custom::setLanguage(language);
        return CustomPrivate::isFontFamilyChange();
    };
    QVERIFY(set(En_us));
    QCOMPARE(Custom::globalFontFamily(), text("En"));
    QVERIFY(!set(En_us)); // only the second comparison shows
    QVERIFY(set(Zh_cn));
    QCOMPARE(Custom::globalFontFamily(), text("Zh"));

    // The same family for both: nothing changes and no control follows.
    Custom::setGlobalFontFamily(En_us, text("Zh"));
    StyleHost host;
    host.cFont();
    host.setFont(QFont(text("Other")));
    QVERIFY(!set(En_us));
    host.cLanguageChange();
    QCOMPARE(host.font().family(), text("Other"));
}

void TestLanguage::familiesCome_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QString>("chinese");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("inForce");
    QTest::newRow("both") << QByteArray("<FontFamily:Zh_cn>Z</FontFamily:Zh_cn><FontFamily:En_us>E</FontFamily:En_us>")
                          << text("Z") << text("E") << text("Z");
    QTest::newRow("English") << QByteArray("<FontFamily:En_us>E</FontFamily:En_us>") << QString() << text("E")
                             << text("E");
    QTest::newRow("empty Chinese") << QByteArray("<FontFamily:Zh_cn/><FontFamily:En_us>E</FontFamily:En_us>")
                                   << QString() << text("E") << QString();
    QTest::newRow("others") << QByteArray("<FontFamily>X</FontFamily><FontFamily:De_de>D</FontFamily:De_de>")
                            << QString() << QString() << QString();
}

void TestLanguage::familiesCome()
{
    QFETCH(QByteArray, attributes);
    addDocument(classXml("Global", "Default", attributes)
        + classXml("Global", "Gray", "<FontFamily:Zh_cn>not this</FontFamily:Zh_cn>") + "<Class Name='Outer'>"
        + classXml("Global", "Default", "<FontFamily:Zh_cn>nor this</FontFamily:Zh_cn>") + "</Class>");
    QTEST(Custom::globalFontFamily(), "inForce");
    QTEST(Custom::globalFontFamily(En_us), "english");
    QTEST(Custom::globalFontFamily(Zh_cn), "chinese");
}

void TestLanguage::nextDocumentSetsTheFirstFamilyAgain()
{
    addFamilies("Zh", "En");
    Custom::setLanguage(En_us);
    Custom::addXmlPath(QStringLiteral("/no/such/document"));
    QCOMPARE(Custom::globalFontFamily(), text("En"));
    addDocument(QByteArray());
    QCOMPARE(Custom::globalFontFamily(), text("Zh"));
    QCOMPARE(Custom::language(), En_us);
    // An entry that asking has filed counts as the first.
    Custom::globalFontFamily(Custom::Language(-1));
    addDocument(QByteArray());
    QCOMPARE(Custom::globalFontFamily(), QString());
}

void TestLanguage::laterDocumentReplacesOneFamily()
{
    addFamilies("Zh", "En");
    addDocument(classXml("Global", "Default", "<FontFamily:En_us>New</FontFamily:En_us>"));
    Custom::setLanguage(En_us);
    QCOMPARE(Custom::globalFontFamily(), text("New"));
    QCOMPARE(Custom::globalFontFamily(Zh_cn), text("Zh"));
}

void TestLanguage::languageWithoutFamily()
{
    addDocument(classXml("Global", "Default", "<FontFamily:En_us>En</FontFamily:En_us>"));
    CustomPrivate::setIsFontFamilyChange(true);
    for (const Custom::Language language : { Zh_cn, Custom::Language(7) }) {
        Custom::setLanguage(language);
        QCOMPARE(Custom::language(), language);
        QCOMPARE(Custom::globalFontFamily(), text("En"));
        QVERIFY(CustomPrivate::isFontFamilyChange());
    }
    StyleHost host;
    QCOMPARE(host.cLanguageString(), QString());
    // Asking files an empty family, which the next call then takes.
    QCOMPARE(Custom::globalFontFamily(Zh_cn), QString());
    CustomPrivate::setIsFontFamilyChange(false);
    Custom::setLanguage(Zh_cn);
    QCOMPARE(Custom::globalFontFamily(), QString());
    QVERIFY(CustomPrivate::isFontFamilyChange());
}

void TestLanguage::setGlobalFontFamilyTellsNobody()
{
    addFamilies("Zh", "En");
    StyleHost host;
    host.cFont();
    Custom::setGlobalFontFamily(Zh_cn, text("New"));
    QCOMPARE(Custom::globalFontFamily(), text("Zh"));
    QCOMPARE(host.font().family(), text("Zh"));
    QVERIFY(!CustomPrivate::isFontFamilyChange());
    Custom::setLanguage(Zh_cn);
    QVERIFY(CustomPrivate::isFontFamilyChange());
    // Nothing is sent: the control follows when Qt tells it.
    QCOMPARE(host.font().family(), text("Zh"));
    host.cLanguageChange();
    QCOMPARE(host.font().family(), text("New"));
}

void TestLanguage::documentWithoutGlobalClass()
{
    addDocument(classXml("Sample", "Default", "<FontSize>9</FontSize>"));
    QVERIFY(CustomStyleSheetData::instance()->fontFamilies.isEmpty());
    QVERIFY(Custom::globalFontFamily().isEmpty());
    StyleHost host;
    host.setFont(QFont(text("Own")));
    QCOMPARE(host.cFontSize(), 9);
    QCOMPARE(host.font().family(), QString());
}

void TestLanguage::sheetsOfAllTypes()
{
    QByteArray elements;
    for (const char *tag : kTags)
        elements += sheetElement(tag, QByteArray("/* ") + tag + " */");
    addSheets(elements);
    for (int type = 0; type < 11; ++type)
        QCOMPARE(Custom::styleSheet(Custom::StyleSheetType(type)), QStringLiteral("/* %1 */").arg(text(kTags[type])));
    for (const int type : { -1, 11 })
        QCOMPARE(Custom::styleSheet(Custom::StyleSheetType(type)), QString());
    // An unknown type files an empty entry and leaves the others alone.
    QCOMPARE(Custom::styleSheet(Custom::SheetTreeWidget), text("/* CustomTreeWidget */"));
}

void TestLanguage::placeholders_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("each") << QByteArray("##ZhcnFontFamily##,##EnusFontFamily##,##ZhcnFontFamily##") << text("Zh,En,Zh");
    QTest::newRow("case") << QByteArray("##zhcnFontFamily####ENUSFontFamily##")
                          << text("##zhcnFontFamily####ENUSFontFamily##");
    QTest::newRow("halves") << QByteArray("#ZhcnFontFamily## ##EnusFontFamily#")
                            << text("#ZhcnFontFamily## ##EnusFontFamily#");
    QTest::newRow("neighbours") << QByteArray("###ZhcnFontFamily####EnusFontFamily###") << text("#ZhEn#");
    QTest::newRow("UTF-8 to the first NUL")
        << QByteArray("\xC3\xA9 ##EnusFontFamily##\0after", 27) << QString::fromUtf8("\xC3\xA9 En");
}

void TestLanguage::placeholders()
{
    QFETCH(QByteArray, content);
    addFamilies("Zh", "En");
    addSheets(sheetElement("CustomTabBar", content));
    QTEST(Custom::styleSheet(Custom::SheetTabBar), "sheet");
}

void TestLanguage::sheetsAreBuiltOnceForASkin()
{
    addFamilies("Zh", "En");
    const QString path = scratchFile("one ##EnusFontFamily##");
    addSheets("<CustomSlider>" + path.toUtf8() + "</CustomSlider>");
    const QString &sheet = Custom::styleSheet(Custom::SheetSlider);
    QCOMPARE(sheet, text("one En"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("two ##EnusFontFamily##");
    file.close();
    Custom::setGlobalFontFamily(En_us, text("New"));
    Custom::setLanguage(En_us);
    addDocument(QByteArray());
    QCOMPARE(&Custom::styleSheet(Custom::SheetSlider), &sheet);
    QCOMPARE(sheet, text("one En"));
    Custom::changeSkin(); // reads the families of the documents again, too
    QCOMPARE(Custom::styleSheet(Custom::SheetSlider), text("two En"));
    Custom::changeSkin();
    Custom::setGlobalFontFamily(En_us, text("Newer"));
    QCOMPARE(Custom::styleSheet(Custom::SheetSlider), text("two Newer"));
}

void TestLanguage::sheetsThatCannotBeRead()
{
    addSheets("<CustomSlider>/no/such/file.qss</CustomSlider><CustomTabBar/><!-- none --><customgroupbox>"
        + scratchFile("lower case").toUtf8() + "</customgroupbox>" + sheetElement("CustomSpinBox", "spin"));
    for (const Custom::StyleSheetType type : { Custom::SheetSlider, Custom::SheetTabBar, Custom::SheetGroupBox })
        QCOMPARE(Custom::styleSheet(type), QString());
    QCOMPARE(Custom::styleSheet(Custom::SheetSpinBox), text("spin"));
    // A later document replaces one file; the templates are read anew for the next skin only.
    addSheets(sheetElement("CustomSpinBox", "other"));
    QCOMPARE(Custom::styleSheet(Custom::SheetSpinBox), text("spin"));
    Custom::changeSkin();
    QCOMPARE(Custom::styleSheet(Custom::SheetSpinBox), text("other"));
}

ZANTHIC_TEST_MAIN(TestLanguage)
#include "tst_language.moc"
