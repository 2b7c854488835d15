#include "StyleHost.h"

#include "style/CustomStyleSheetData_p.h"

using Custom::Disabled;
using Custom::Hover;
using Custom::Normal;
using Custom::Pressed;

namespace {

const QStringList s_lstItem{ QStringLiteral("item") };

QStringList subs()
{
    return StyleTest::list("subs").replaceInStrings("_"_s, QString());
}

QPointF finalStop(const QBrush &brush)
{
    return brush.gradient() ? static_cast<const QLinearGradient *>(brush.gradient())->finalStop() : QPointF();
}

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

class TestResolution : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void orderOfFallback_data() { addRowsOf("cases/fallback.txt"_s, { "lh", "dh", "ln", "dn", "hover", "normal" }); }
    void orderOfFallback()
    {
        const auto document = QStringLiteral("<Mark:Left:Hover>%1</Mark:Left:Hover><mark:left>%2</mark:left>");
        addDocument(classXml("Sample", "Default", document.arg(cell("dh"), cell("dn")).toUtf8()));
        StyleHost host;
        host.cSetAttributeValue("Mark:Left"_s, cell("lh"), Hover);
        host.cSetAttributeValue("Mark:Left"_s, cell("ln"), Normal);
        host.cResetAllValue();
        bool ok = false;
        QTEST(host.cAttributeValue("mARK:lEFT"_s, Hover, {}, &ok), "hover");
        QCOMPARE(ok, !cell("hover").isEmpty());
        QTEST(value(host, "Mark:Left"_s), "normal");
    }

    void reads_data()
    {
        addRowsOf("cases/reads.txt"_s, { "class", "parent", "selector", "key", "status", "subs", "value" });
    }
    void reads()
    {
        Custom::addXmlPath(dataFile("reads.xml"_s));
        StyleHost host("Elsewhere"_s);
        host.cFont(); // each change of a name marks what was read
        host.cSetStyleSelector(cell("selector"));
        host.cFont();
        host.cSetParentClassName(cell("parent"));
        host.cFont();
        host.cSetClassName(cell("class"));
        QTEST(value(host, cell("key"), status(), subs()), "value");
    }

    void firstOverrideWipesAndResetBringsBack()
    {
        Custom::addXmlPath(dataFile("overrides.xml"_s));
        StyleHost host;
        // In Normal, Hover and Pressed, and of the item.
        const auto values = [&host]() -> QString {
            return value(host, "FontColor"_s) + value(host, "FontColor"_s, Hover) + value(host, "FontColor"_s, Pressed)
                + value(host, "FontColor"_s, Pressed, s_lstItem);
        };
        QCOMPARE(values(), "nhni"_s);
        host.cSetFontColor("1"_s);
        QCOMPARE(values(), "111"_s);
        host.cSetFontColor("2"_s, Hover);
        QCOMPARE(values(), "121"_s);
        host.cResetAllValue();
        QCOMPARE(values(), "121i"_s);
        // The wipe is done once for each name, and names are told apart by case.
        host.cSetFontColor("3"_s);
        QCOMPARE(values(), "323i"_s);
        host.cSetAttributeValue("fontcolor"_s, "4"_s);
        QCOMPARE(values(), "424"_s);
        Custom::changeSkin();
        QCOMPARE(values(), "424i"_s);
    }

    void clearIsByPlainPrefixAndAnOverrideDropsTheSizeHint()
    {
        Custom::addXmlPath(dataFile("overrides.xml"_s));
        StyleHost host;
        const auto all = [&host]() -> QString {
            return value(host, "Icon"_s) + value(host, "Icon"_s, Hover) + value(host, "IconAlignment"_s)
                + value(host, "MyIcon"_s) + value(host, "Ico"_s);
        };
        host.cClearValue("iCON"_s); // on a control that nobody has asked yet
        QCOMPARE(all(), "cd"_s);
        // A direct clear is not remembered: the first override wipes again after a rebuild.
        host.cResetAllValue();
        QCOMPARE(all(), "ab1cd"_s);
        host.data()->sizeHintCache = QSize(9, 9);
        host.cClearValue("Ico"_s);
        host.cResetAllValue();
        QCOMPARE(host.data()->sizeHintCache, QSize(9, 9));
        host.cSetAttributeValue("Icon"_s, "own"_s);
        QCOMPARE(all(), "ownowncd"_s);
        QCOMPARE(host.data()->sizeHintCache, QSize(-1, -1));
    }

    void documentAddsParametersAtEachRebuild()
    {
        Custom::addXmlPath(dataFile("reads.xml"_s));
        StyleHost host;
        host.cSetParameter(Custom::ParamBackgroundColor, false); // on the flags as the document left them
        QCOMPARE(int(host.data()->parameters), 1);
        // The selector's number replaces that of Default; bits once set stay.
        for (const auto &[selector, flags] : { std::pair("Gray"_s, 5), std::pair("Default"_s, 7) }) {
            host.cSetStyleSelector(selector);
            QVERIFY(host.cHasParameter(Custom::ObjectParameter(flags)) && int(host.data()->parameters) == flags);
            QVERIFY(!host.cHasParameter(Custom::ObjectParameter(flags | 8))); // every bit is needed
        }
    }

    void gettersWithoutValues()
    {
        StyleHost host("Missing"_s);
        host.setFont(QFont("Own"_s, 17));
        bool ok = true;
        QVERIFY(host.cFontSize(Hover, {}, &ok) == host.font().pixelSize() && !ok);
        QVERIFY(host.cFontFamily() == host.font().family() && !host.cFontColor().isValid());
        QVERIFY(host.cBackgroundColor() == QBrush() && host.cBorderColor(Custom::Left) == QBrush());
        const CustomObject bare(nullptr, QString(), QString());
        QVERIFY(bare.cFontSize() == 0 && bare.cFontFamily().isEmpty() && bare.cFont() == QFont());
    }

    void gettersConvert()
    {
        Custom::addXmlPath(dataFile("rich.xml"_s));
        StyleHost host;
        host.resize(80, 40);
        bool ok = false;
        // Not above 0: the host's own size, though there is a value.
        QVERIFY(host.cFontSize(Pressed) == 14 && host.cFontSize(Hover, {}, &ok) == 14 && ok);
        QVERIFY(!host.cFontColor(Hover).isValid() && host.cFontColor(Pressed) == QColor(0x11, 0x11, 0x11));
        // The caller joins edge and all edges.
        QVERIFY(host.cBorderWidth(Custom::BorderEdge(9)) == 3 && host.cBorderWidth(Custom::Bottom) == 0);
        QVERIFY(host.cBorderWidth(Custom::Top) == 0 && host.cBorderRadius(Custom::LeftTop) == -9);
        QCOMPARE(host.cBorderImage(Hover) + host.cBackgroundImage(Hover, s_lstItem), "b.pngi.png"_s);
        // A background is scaled to the host when there is no rectangle, a border never.
        QCOMPARE(finalStop(host.cBackgroundColor(Normal, QRect(0, 0, 0, 7))), QPointF(80, 40));
        QCOMPARE(finalStop(host.cBackgroundColor(Normal, QRect(1, 1, 2, 3))), QPointF(2, 3));
        QCOMPARE(finalStop(host.cBorderColor(Custom::AllEdge, Normal, {}, QRect(1, 1, 2, 3))), QPointF(2, 3));
        QCOMPARE(finalStop(host.cBorderColor(Custom::AllEdge)), QPointF(1, 1));
    }

    void settersWriteTheirAttributesAndFlag_data()
    {
        addRowsOf("cases/setters.txt"_s, { "setter", "flag", "notices" });
    }
    void settersWriteTheirAttributesAndFlag()
    {
        const QMap<QString, std::function<void(CustomObject &)>> setters{
            { "font size"_s, [](auto &o) { o.cSetFontSize(12, Hover); } },
            { "font colour"_s, [](auto &o) { o.cSetFontColor("DB_COLOR_A"_s, Pressed); } },
            { "font family"_s, [](auto &o) { o.cSetFontFamily("F"_s); } },
            { "image"_s, [](auto &o) { o.cSetBackgroundImage("i"_s); } },
            { "colour"_s, [](auto &o) { o.cSetBackgroundColor("c"_s, Disabled); } },
            { "one width"_s, [](auto &o) { o.cSetBorderWidth(-2, Custom::Top, Hover); } },
            { "widths"_s, [](auto &o) { o.cSetBorderWidth(2); } },
            { "radii"_s, [](auto &o) { o.cSetBorderRadius(7, Custom::AllCorner, Hover); } },
            { "border colours"_s, [](auto &o) { o.cSetBorderColor("c"_s); } },
            { "border image"_s, [](auto &o) { o.cSetBorderImage("b"_s); } },
        };
        StyleHost host;
        setters.value(cell("setter"))(host);
        QCOMPARE(host.notified.join(' '), cell("notices"));
        QCOMPARE(host.data()->parameters, quint32(number("flag")));
        CustomObject bare(nullptr, QString(), QString()); // without a host the values are written all the same
        setters.value(cell("setter"))(bare);
        QCOMPARE(CustomObjectData::get(&bare)->localValues, host.data()->localValues);
    }

    void fontSettersReachTheHost()
    {
        StyleHost host;
        host.cSetFontSize(21, Hover);
        host.cSetFontSize(-4);
        host.cSetFontFamily("Some Family"_s, Hover);
        QVERIFY(host.cFontSize() == 21 && host.font().pixelSize() == 21 && host.font().family() == "Some Family"_s);
        host.notified.clear();
        host.cSetFont(QFont("Third"_s, 9, QFont::Bold), Pressed);
        QCOMPARE(host.notified.join(' '), "FontFamily=Third@2 FontSize=-1@2"_s);
        QVERIFY(host.font().family() == "Third"_s && host.font().bold() && host.font().pointSize() == 9);
    }

    void lookupsWithoutControl()
    {
        QVERIFY(Custom::getAttrMap("x"_s, QString()).isEmpty() && !CustomStyleSheetData::instance());
        Custom::addXmlPath(dataFile("reads.xml"_s));
        QCOMPARE(Custom::attributeValue("SAMPLE"_s, "ONE"_s, "ALIAS"_s), "g1"_s);
        QCOMPARE(Custom::attributeValue("Sample"_s, "Two"_s, "Gray"_s), QString()); // Default isn't merged in
        QCOMPARE(Custom::attributeValue("Sample"_s, "Stop"_s, "Default"_s, { "", "Hover" }), "#Empty#"_s);
        QCOMPARE(Custom::attributeValue("Sample"_s, "Mark"_s, "Default"_s, { "Item", "", "B" }), "two"_s);
    }

    void hostGetsFontAndSize_data() { addRowsOf("cases/host-sizes.txt"_s, { "attributes", "maximum", "pixels" }); }
    void hostGetsFontAndSize()
    {
        addDocument(classXml("Global", "Default", "<FontFamily:Zh_cn>Global</FontFamily:Zh_cn>")
            + classXml("Sample", "Default", cell("attributes").toUtf8() + "<FontFamily>Own</FontFamily>"));
        StyleHost host;
        host.setFont(QFont("Before"_s, 15));
        host.cFont();
        QVERIFY(host.font().pixelSize() == int(number("pixels")) && host.font().family() == "Global"_s);
        QCOMPARE(host.maximumSize(), QSize(int(number("maximum", 0)), int(number("maximum", 1))));
        // Overrides count, and the document's family where the control keeps its own.
        host.cSetAttributeValue("FontSize"_s, "44"_s);
        host.cSetIsUserFontFamily(true);
        host.cResetAllValue();
        QVERIFY(host.font().pixelSize() == 44 && host.font().family() == "Own"_s);
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
        b.cResetAllValue();
        QVERIFY(style(b) == held.get() && values.value("fontcolor"_s) == "#111111"_s);
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

    void cachedPathEqualsPlainPath_data() { addRowsOf("cases/hosts.txt"_s, { "selector", "parent" }); }
    void cachedPathEqualsPlainPath()
    {
        Custom::addXmlPath(dataFile("rich.xml"_s));
        StyleHost host("Sample"_s, cell("selector"));
        StyleHost untouched("Sample"_s, cell("selector"));
        host.cSetParentClassName(cell("parent"));
        const std::pair<const char *, std::function<void()>> steps[] = {
            { "document", [] {} },
            { "colour", [&] { addColors("<Color Id='A' Value='#00ff00'/><Color Id='Shade' Value='DB_COLOR_B'/>"); } },
            { "override", [&] { host.cSetBorderWidth(9, Custom::Left, Hover); } },
            { "override again", [&] { host.cSetBorderWidth(11, Custom::Left, Hover); } },
            { "second override", [&] { host.cSetBackgroundColor("DB_COLOR_Shade"_s, Pressed, s_lstItem); } },
            { "later colour", [&] { addColors("<Color Id='B' Value='qlineargradient(a:0;b:0;c:1;d:1**)'/>"); } },
            { "cleared", [&] { host.cClearValue("Font"_s); } },
            { "empty override", [&] { host.cSetAttributeValue("BorderColor:AllEdge"_s, "#Empty#"_s, Hover); } },
            { "reset", [&] { host.cResetAllValue(); } },
            { "selector", [&] { host.cSetStyleSelector("Gray"_s); } },
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

ZANTHIC_TEST_MAIN(TestResolution)
#include "tst_resolution.moc"
