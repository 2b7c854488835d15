#include "CaseFile.h"
#include "StyleHost.h"

using Custom::Hover;
using Custom::Normal;
using Custom::Pressed;

namespace {

const QStringList s_lstItem{ QStringLiteral("item") };

// What the painters read, held against the getters that look everything up anew.
void comparePaths(const StyleHost &host, Custom::ItemStatus status, const QStringList &subs)
{
    const std::shared_ptr<const ResolvedStyle> style = host.data()->resolved(status, subs);
    bool ok = false;
    for (const QRect &rect : { QRect(5, 5, 1, 900), QRect() }) {
        QCOMPARE(
            style->background.scaledTo(rect.isEmpty() ? host.rect() : rect), host.cBackgroundColor(status, rect, subs));
        const QBrush common = host.cBorderColor(Custom::AllEdge, status, subs, rect, &ok);
        QVERIFY(style->commonColor.scaledTo(rect) == common && style->hasCommonColor == ok);
        for (int i = 0; i < 4; ++i) {
            const QBrush edge = host.cBorderColor(Custom::BorderEdge(i), status, subs, rect, &ok);
            QVERIFY(style->edgeColors[i].scaledTo(rect) == edge && style->hasEdgeColor[i] == ok);
        }
    }
    for (int i = 0; i < 4; ++i) {
        const int width = host.cBorderWidth(Custom::BorderEdge(i), status, subs, &ok);
        QCOMPARE(style->widths[i], ok ? width : host.cBorderWidth(Custom::AllEdge, status, subs));
        const int own = host.cBorderRadius(Custom::BorderCorner(i), status, subs, &ok);
        const int radius = ok ? own : host.cBorderRadius(Custom::AllCorner, status, subs);
        QCOMPARE(style->radii[i], QSize(radius, radius));
    }
    QCOMPARE(style->backgroundImage.path(), host.cBackgroundImage(status, subs));
    QCOMPARE(style->borderImage.path(), host.cBorderImage(status, subs));
    QCOMPARE(style->baseBackgroundImage.path(), value(host, "BaseBackgroundImage"_s, status, subs));
    QCOMPARE(style->fontColor, host.cFontColor(status, subs));
    QCOMPARE(style->fontFamily, value(host, "FontFamily"_s, status, subs));
    QCOMPARE(style->fontSize, value(host, "FontSize"_s, status, subs).toInt());
    QCOMPARE(style->icon.isNull(), value(host, "Icon"_s, status, subs).isEmpty());
}

void compareAllPaths(const StyleHost &host, const char *step)
{
    for (int status = -1; status < 5; ++status) {
        for (const auto &subs : { ""_s, "item"_s, "item,checked"_s, ","_s, "unknown"_s, "ITEM"_s }) {
            comparePaths(host, Custom::ItemStatus(status), subs.isEmpty() ? QStringList() : subs.split(','));
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(QStringLiteral("%1: status %2, '%3'").arg(step).arg(status).arg(subs)));
        }
    }
}

} // namespace

class TestSharing : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void hostThatWasAskedKeepsItsValuesUntilTheNextRebuild()
    {
        StyleHost asked;
        asked.cSetFontColor("#010101"_s);
        Custom::addXmlPath(dataFile("rich.xml"_s));
        QVERIFY(StyleHost().cFontSize() == 14 && value(asked, "FontSize"_s).isEmpty());
        Custom::changeSkin();
        QVERIFY(asked.cFontSize() == 14 && value(asked, "FontColor"_s) == "#010101"_s);
    }

    void copyTakesValuesAndLeavesTheRest()
    {
        Custom::addXmlPath(dataFile("rich.xml"_s));
        StyleHost source("Sample"_s, "Gray"_s);
        source.cSetBorderWidth(8, Custom::Left);
        source.cSetColorRect(1, QRect(0, 0, 1, 1), Qt::red);
        source.cSetParentClassName("Outer"_s);
        StyleHost copy("Other"_s);
        copy.cSetFontColor("#fff"_s);
        copy.cCopyAttribute(nullptr);
        QCOMPARE(value(copy, "FontColor"_s), "#fff"_s);
        copy.cCopyAttribute(&source);
        const CustomObjectData &from = *source.data();
        const CustomObjectData &to = *copy.data();
        QVERIFY(!from.dirty && !to.dirty && to.parameters == from.parameters && to.localValues == from.localValues);
        QVERIFY(to.styleValues.isSharedWith(from.styleValues) && copy.cFontSize() == 9 && to.colorRects.isEmpty());
        QCOMPARE(copy.cStyleSelector() + to.parentClassName + to.className, "GrayOuterOther"_s);
        QCOMPARE(to.clearedAttributes, QStringList("FontColor"_s));
        // A rebuild takes the control's own class: there is no "Other" in "Outer".
        copy.cResetAllValue();
        QCOMPARE(value(copy, "FontSize"_s), QString());
    }

    void equalControlsShareUntilOneOverrides()
    {
        Custom::addXmlPath(dataFile("rich.xml"_s));
        StyleHost a;
        StyleHost b;
        const auto style = [](const StyleHost &host) { return host.data()->resolved(Hover, s_lstItem).get(); };
        const auto held = a.data()->resolved(Hover, s_lstItem);
        const QMap<QString, QString> values = a.data()->styleValues;
        QVERIFY(style(a) == held.get() && style(b) == held.get() && b.data()->styleValues.isSharedWith(values));
        a.cSetBackgroundColor("#abcdef"_s, Hover, s_lstItem);
        QVERIFY(!a.data()->styleValues.isSharedWith(values) && style(a) != held.get() && style(a) == style(a));
        b.cClearValue("FontColor"_s);
        QCOMPARE(values.value("fontcolor"_s), "#111111"_s);
        b.cResetAllValue();
        QCOMPARE(style(b), held.get());
        // An override of what the document doesn't name leaves the table shared and its control apart.
        b.cSetAttributeValue("Own"_s, "x"_s);
        QVERIFY(b.data()->styleValues.isSharedWith(values) && style(b) != held.get());
        StyleHost c;
        QCOMPARE(style(c), held.get());
        addColors("<Color Id='A' Value='#00ff00'/>");
        QVERIFY(style(c) != held.get() && c.data()->styleValues.isSharedWith(values));
        Custom::changeSkin();
        QVERIFY(style(c) == style(StyleHost()) && !c.data()->styleValues.isSharedWith(values));
    }

    void cachedPathEqualsPlainPath_data() { CaseFile::addRows("hosts", { "selector", "parent" }); }
    void cachedPathEqualsPlainPath()
    {
        Custom::addXmlPath(dataFile("rich.xml"_s));
        StyleHost host("Sample"_s, CaseFile::cell("selector"));
        StyleHost untouched("Sample"_s, CaseFile::cell("selector"));
        host.cSetParentClassName(CaseFile::cell("parent"));
        const std::pair<const char *, std::function<void()>> steps[] = {
            { "document", [] {} },
            { "colour", [&] { addColors("<Color Id='A' Value='#00ff00'/><Color Id='Shade' Value='DB_COLOR_B'/>"); } },
            { "override", [&] { host.cSetBorderWidth(9, Custom::Left, Hover); } },
            { "override again", [&] { host.cSetBorderWidth(11, Custom::Left, Hover); } },
            { "second override", [&] { host.cSetBackgroundColor("DB_COLOR_Shade"_s, Pressed, s_lstItem); } },
            { "later colour",
                [&] { addColors("<Color Id='B' Value='qlineargradient(a:0;b:0;c:1;d:1**s:0 #f00;)'/>"); } },
            { "cleared", [&] { host.cClearValue("Font"_s); } },
            { "empty override", [&] { host.cSetAttributeValue("BorderColor:AllEdge"_s, "#Empty#"_s, Hover); } },
            { "reset", [&] { host.cResetAllValue(); } },
            { "selector", [&] { host.cSetStyleSelector("Gray"_s); } },
            { "class", [&] { host.cSetClassName("Outer"_s); } },
            { "later document", [&] { addDocument(classXml("Sample", "Default", "<FontSize>77</FontSize>")); } },
            { "skin", [] { Custom::changeSkin(); } },
            { "copy", [&] { host.cCopyAttribute(&untouched); } },
            { "copy of an override", [&] { untouched.cSetFontSize(3), host.cCopyAttribute(&untouched); } },
        };
        for (const auto &[step, act] : steps) {
            act();
            for (const StyleHost *control : { &host, &untouched }) {
                compareAllPaths(*control, step);
                if (QTest::currentTestFailed())
                    return;
            }
        }
    }
};

ZANTHIC_TEST_MAIN(TestSharing)
#include "tst_sharing.moc"
