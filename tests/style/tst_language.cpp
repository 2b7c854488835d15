#include "CaseFile.h"
#include "StyleHost.h"

#include "style/CustomPrivate_p.h"
#include "style/CustomStyleSheetData_p.h"

using CaseFile::cell;
using Custom::En_us;
using Custom::Zh_cn;

namespace {

// The family in force after a change of language, and whether the controls have to follow.
QString changedTo(Custom::Language language)
{
    Custom::setLanguage(language);
    return Custom::globalFontFamily() + (CustomPrivate::isFontFamilyChange() ? " changes" : "");
}

} // namespace

class TestLanguage : public StyleTest
{
    Q_OBJECT

private:
    void addSheet(const QByteArray &tag, const QByteArray &path)
    {
        addDocument("<Class Name='Q'><QSS><" + tag + ">" + path + "</" + tag + "></QSS></Class>");
    }

private Q_SLOTS:
    void families_data()
    {
        CaseFile::addRows("families", { "attributes", "chinese", "english", "inForce", "toChinese", "toEnglish" });
    }
    void families()
    {
        addDocument(classXml("Global", "Default", cell("attributes").toUtf8()));
        QTEST(Custom::globalFontFamily(), "inForce");
        QTEST(changedTo(Zh_cn), "toChinese");
        QTEST(changedTo(En_us), "toEnglish");
        QCOMPARE(Custom::language(), En_us);
        QTEST(Custom::globalFontFamily(En_us), "english"); // which files an empty one
        QTEST(Custom::globalFontFamily(Zh_cn), "chinese");
    }

    void nextDocumentSetsTheFirstFamilyAgain()
    {
        Custom::addXmlPath(dataFile("families.xml"_s));
        QCOMPARE(changedTo(En_us), "Family En changes"_s);
        QCOMPARE(changedTo(En_us), "Family En"_s); // only the second comparison shows
        Custom::addXmlPath("/no/such/document"_s);
        QCOMPARE(Custom::globalFontFamily(), "Family En"_s);
        addDocument(classXml("Global", "Default", "<FontFamily:En_us>New</FontFamily:En_us>"));
        QVERIFY(Custom::globalFontFamily() == "Family Zh"_s && Custom::language() == En_us);
        QCOMPARE(changedTo(En_us), "New changes"_s);
    }

    void nobodyIsToldOfAFamily()
    {
        Custom::addXmlPath(dataFile("families.xml"_s));
        StyleHost host;
        host.cFont();
        Custom::setGlobalFontFamily(Zh_cn, "New"_s);
        QVERIFY(Custom::globalFontFamily() == "Family Zh"_s && !CustomPrivate::isFontFamilyChange());
        QCOMPARE(changedTo(Zh_cn), "New changes"_s);
        // The control follows when Qt tells it.
        QCOMPARE(host.font().family(), "Family Zh"_s);
        host.cLanguageChange();
        QCOMPARE(host.font().family(), "New"_s);
    }

    void sheetsOfAllTypes()
    {
        int type = 0;
        for (const char *tag : { "CustomGroupBox", "CustomHeaderView", "CustomLineEdit", "CustomListView",
                 "CustomScrollBar", "CustomSlider", "CustomSpinBox", "CustomDoubleSpinBox", "CustomTabBar",
                 "CustomTableView", "CustomTreeWidget" }) {
            const QByteArray content = QByteArray("/* ") + tag + " */";
            addSheet(tag, scratchFile(content).toUtf8());
            addSheet(QByteArray(tag).toLower(), "/no/such/file"); // tags keep their case
            Custom::changeSkin();
            QCOMPARE(Custom::styleSheet(Custom::StyleSheetType(-1)), QString());
            QCOMPARE(Custom::styleSheet(Custom::StyleSheetType(type++)), QString::fromLatin1(content));
            QVERIFY(type == 11 || Custom::styleSheet(Custom::StyleSheetType(type)).isEmpty());
        }
    }

    void placeholders_data() { CaseFile::addRows("placeholders", { "file", "sheet" }); }
    void placeholders()
    {
        Custom::addXmlPath(dataFile("families.xml"_s));
        addSheet("CustomTabBar", scratchFile(cell("file").toUtf8()).toUtf8());
        QTEST(Custom::styleSheet(Custom::SheetTabBar), "sheet");
    }

    void sheetsAreBuiltOnceForASkin()
    {
        const QString path = scratchFile("one ##EnusFontFamily##");
        addSheet("CustomSlider", path.toUtf8());
        Custom::addXmlPath(dataFile("families.xml"_s));
        QCOMPARE(Custom::styleSheet(Custom::SheetSlider), "one Family En"_s);
        overwrite(path, "two ##EnusFontFamily##");
        Custom::setGlobalFontFamily(En_us, "New"_s);
        addSheet("CustomSlider", "/no/such/file.qss");
        QCOMPARE(Custom::styleSheet(Custom::SheetSlider), "one Family En"_s);
        addSheet("CustomSlider", path.toUtf8());
        Custom::changeSkin(); // reads the families of the documents again, too
        QCOMPARE(Custom::styleSheet(Custom::SheetSlider), "two Family En"_s);
    }
};

ZANTHIC_TEST_MAIN(TestLanguage)
#include "tst_language.moc"
