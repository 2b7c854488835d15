#include "CaseFile.h"
#include "StyleHost.h"

#include "style/CustomStyleSheetData_p.h"

using CaseFile::cell;
using CaseFile::number;
using Custom::Disabled;
using Custom::Hover;
using Custom::Normal;
using Custom::Pressed;

namespace {

const QStringList s_lstItem{ QStringLiteral("item") };

// A mix-in whose host never came to be.
class Bare : public CustomObject
{
public:
    Bare() : CustomObject(nullptr, QString(), "Default"_s) { cSetClassName("Sample"_s); }
    CustomObjectData *data() const { return CustomObjectData::get(this); }
};

QStringList subs()
{
    return CaseFile::list("subs").replaceInStrings("_"_s, QString());
}

QPointF finalStop(const QBrush &brush)
{
    return brush.gradient() ? static_cast<const QLinearGradient *>(brush.gradient())->finalStop() : QPointF();
}

// The flag and the notices of a setter that was asked for all edges.
QString edges(int flag, const QString &attribute, const QString &notice)
{
    const QString text = QStringLiteral("%1 %2:AllEdge=%3 %2:Left=%3 %2:Right=%3 %2:Top=%3 %2:Bottom=%3");
    return text.arg(flag).arg(attribute, notice);
}

} // namespace

class TestResolution : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void keys_data() { CaseFile::addRows("keys", { "attribute", "status", "subs", "key" }); }
    void keys() { QTEST(CustomObjectData::getFullAttrName(cell("attribute"), CaseFile::status(), subs()), "key"); }

    void orderOfFallback_data() { CaseFile::addRows("fallback", { "lh", "dh", "ln", "dn", "hover", "normal" }); }
    void orderOfFallback()
    {
        addDocument(classXml("Sample", "Default",
            QStringLiteral("<Mark:Left:Hover>%1</Mark:Left:Hover><mark:left>%2</mark:left>")
                .arg(cell("dh"), cell("dn"))
                .toUtf8()));
        StyleHost host;
        host.cSetAttributeValue("Mark:Left"_s, cell("lh"), Hover);
        host.cSetAttributeValue("Mark:Left"_s, cell("ln"), Normal);
        host.cResetAllValue();
        bool ok = false;
        QTEST(host.cAttributeValue("Mark:Left"_s, Hover, {}, &ok), "hover");
        QCOMPARE(ok, !cell("hover").isEmpty());
        QTEST(host.cAttributeValue("mARK:lEFT"_s, Normal, {}, &ok), "normal");
        QCOMPARE(ok, !cell("normal").isEmpty());
    }

    void reads_data()
    {
        CaseFile::addRows("reads", { "class", "parent", "selector", "attribute", "status", "subs", "expected" });
    }
    void reads()
    {
        Custom::addXmlPath(dataFile("reads.xml"_s));
        StyleHost host(cell("class"), cell("selector"));
        host.cSetParentClassName(cell("parent"));
        QTEST(value(host, cell("attribute"), CaseFile::status(), subs()), "expected");
        // A control that changes its names on the way comes to the same value.
        StyleHost other("Elsewhere"_s);
        other.cFont();
        other.cSetStyleSelector(cell("selector"));
        other.cSetParentClassName(cell("parent"));
        other.cSetClassName(cell("class"));
        QTEST(value(other, cell("attribute"), CaseFile::status(), subs()), "expected");
    }

    void firstOverrideWipesAndResetBringsBack()
    {
        addDocument(classXml("Sample", "Default",
            "<FontColor>n</FontColor><FontColor:Hover>h</FontColor:Hover>"
            "<FontColor:item:Pressed>i</FontColor:item:Pressed>"));
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

    void clearIsByPlainPrefix()
    {
        addDocument(classXml("Sample", "Default",
            "<Icon>a</Icon><IconAlignment>1</IconAlignment><Icon:Hover>b</Icon:Hover><MyIcon>c</MyIcon><Ico>d</Ico>"));
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
        host.cSetAttributeValue("Icon"_s, "own"_s);
        QCOMPARE(all(), "ownowncd"_s);
    }

    void documentAddsParametersAtEachRebuild()
    {
        addDocument("<Class Name='Sample'><Selector Name='Default'><ObjectParameter>3</ObjectParameter></Selector>"
                    "<Selector Name='Gray'><ObjectParameter>4</ObjectParameter></Selector></Class>");
        StyleHost host;
        host.cSetParameter(Custom::ParamBackgroundColor, false); // on the flags as the document left them
        QCOMPARE(int(host.data()->parameters), 1);
        // The selector's number replaces that of Default; bits once set stay.
        for (const auto &[selector, flags] : { std::pair("Gray"_s, 5), std::pair("Default"_s, 7) }) {
            host.cSetStyleSelector(selector);
            QVERIFY(host.cHasParameter(Custom::ObjectParameter(flags)) && int(host.data()->parameters) == flags);
        }
    }

    void gettersWithoutValues()
    {
        StyleHost host("Missing"_s);
        QFont font;
        font.setPixelSize(17);
        host.setFont(font);
        bool ok[6] = { true, true, true, true, true, true };
        QVERIFY(host.cFontSize(Hover, {}, &ok[0]) == 17 && !ok[0]);
        QVERIFY(host.cFontFamily(Hover, {}, &ok[1]) == host.font().family() && !ok[1]);
        QVERIFY(!host.cFontColor(Hover, {}, &ok[2]).isValid() && !ok[2]);
        QVERIFY(host.cBackgroundColor(Hover, QRect(), {}, &ok[3]) == QBrush() && !ok[3]);
        QVERIFY(host.cBorderColor(Custom::Left, Hover, {}, QRect(), &ok[4]) == QBrush() && !ok[4]);
        QVERIFY(host.cBorderWidth(Custom::Left, Hover, {}, &ok[5]) == 0 && !ok[5]);
        const Bare bare;
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
        QVERIFY(!host.cFontColor(Hover, {}, &ok).isValid() && !ok);
        QCOMPARE(host.cFontColor(Pressed), QColor(0x11, 0x11, 0x11));
        QVERIFY(host.cBorderWidth(Custom::AllEdge) == 3 && host.cBorderWidth(Custom::BorderEdge(9)) == 3);
        QCOMPARE(host.cBorderWidth(Custom::Bottom), 0); // the caller joins edge and all edges
        QVERIFY(host.cBorderWidth(Custom::Top) == 0 && host.cBorderRadius(Custom::LeftTop) == -9);
        QCOMPARE(host.cBorderImage(Hover) + host.cBackgroundImage(Hover, s_lstItem), "b.pngi.png"_s);
        QCOMPARE(finalStop(host.cBackgroundColor()), QPointF(80, 40));
        QCOMPARE(finalStop(host.cBackgroundColor(Normal, QRect(0, 0, 0, 7))), QPointF(80, 40));
        QCOMPARE(finalStop(host.cBackgroundColor(Normal, QRect(1, 1, 2, 3))), QPointF(2, 3));
        QCOMPARE(finalStop(host.cBorderColor(Custom::AllEdge, Normal, {}, QRect(1, 1, 2, 3))), QPointF(2, 3));
        QCOMPARE(finalStop(host.cBorderColor(Custom::AllEdge)), QPointF(1, 1)); // never scaled to the host
    }

    void settersWriteTheirAttributesAndFlag()
    {
        const std::pair<std::function<void(CustomObject &)>, QString> rows[] = {
            { [](auto &o) { o.cSetFontSize(12, Hover); }, "0 FontSize=12@1"_s },
            { [](auto &o) { o.cSetFontColor("DB_COLOR_A"_s, Pressed); }, "0 FontColor=DB_COLOR_A@2"_s },
            { [](auto &o) { o.cSetFontFamily("F"_s); }, "0 FontFamily=F@0"_s },
            { [](auto &o) { o.cSetBackgroundImage("i"_s); }, "1 BackgroundImage=i@0"_s },
            { [](auto &o) { o.cSetBackgroundColor("c"_s, Disabled); }, "2 BackgroundColor=c@3"_s },
            { [](auto &o) { o.cSetBorderWidth(-2, Custom::Top, Hover); }, "4 BorderWidth:Top=-2@1"_s },
            { [](auto &o) { o.cSetBorderWidth(2); }, edges(4, "BorderWidth", "2@0") },
            { [](auto &o) { o.cSetBorderRadius(7, Custom::AllCorner, Hover); },
                "8 BorderRadius:AllCorner=7@1 BorderRadius:LeftTop=7@1 BorderRadius:RightTop=7@1 "
                "BorderRadius:LeftBottom=7@1 BorderRadius:RightBottom=7@1"_s },
            { [](auto &o) { o.cSetBorderColor("c"_s, Custom::AllEdge); }, edges(16, "BorderColor", "c@0") },
            { [](auto &o) { o.cSetBorderImage("b"_s); }, "32 BorderImage=b@0"_s },
        };
        for (const auto &[act, expected] : rows) {
            StyleHost host;
            act(host);
            QCOMPARE(QString::number(host.data()->parameters) + ' ' + host.notified.join(' '), expected);
            Bare bare; // without a host the values are written all the same
            act(bare);
            QCOMPARE(bare.data()->localValues, host.data()->localValues);
        }
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

    void sizeHintCacheFallsWithAnOverride()
    {
        StyleHost host;
        host.data()->initData();
        host.data()->sizeHintCache = QSize(9, 9);
        host.data()->sizeHintText = "t"_s;
        host.cClearValue("Icon"_s);
        host.cResetAllValue();
        QCOMPARE(host.data()->sizeHintCache, QSize(9, 9));
        host.cSetAttributeValue("Icon"_s, QString());
        QVERIFY(host.data()->sizeHintCache == QSize(-1, -1) && host.data()->sizeHintText.isEmpty());
    }

    void lookupsWithoutControl()
    {
        QVERIFY(Custom::getAttrMap("x"_s, QString()).isEmpty() && !CustomStyleSheetData::instance());
        Custom::addXmlPath(dataFile("reads.xml"_s));
        QCOMPARE(Custom::attributeValue("SAMPLE"_s, "ONE"_s, "ALIAS"_s), "g1"_s);
        QCOMPARE(Custom::attributeValue("Sample"_s, "Two"_s, "Gray"_s), QString()); // Default isn't merged in
        QCOMPARE(Custom::attributeValue("Sample"_s, "Stop"_s, "Default"_s, { "", "Hover" }), "#Empty#"_s);
        QCOMPARE(Custom::attributeValue("Sample"_s, "Mark"_s, "Default"_s, { "Item", "", "B" }), "two"_s);
        // Names in lower case are the caller's part.
        QVERIFY(
            Custom::getAttrMap("Sample"_s, "gray"_s).isEmpty() && Custom::getAttrMap("sample"_s, "Gray"_s).isEmpty());
    }

    void hostGetsFontAndSize_data()
    {
        CaseFile::addRows("host-sizes", { "width", "height", "font", "fixed", "pixels" });
    }
    void hostGetsFontAndSize()
    {
        addDocument(classXml("Global", "Default", "<FontFamily:Zh_cn>Global Zh</FontFamily:Zh_cn>")
            + classXml("Sample", "Default",
                QStringLiteral("<WidgetWidth>%1</WidgetWidth><WidgetHeight>%2</WidgetHeight><FontSize>%3</FontSize>"
                               "<FontFamily>Doc</FontFamily><WidgetHeight:Hover>9</WidgetHeight:Hover>")
                    .arg(cell("width"), cell("height"), cell("font"))
                    .toUtf8()));
        StyleHost host;
        QFont font;
        font.setPixelSize(15);
        host.setFont(font);
        host.cFont();
        QCOMPARE(host.font().pixelSize(), int(number("pixels")));
        QCOMPARE(host.font().family(), "Global Zh"_s);
        const QSize fixed(int(number("fixed", 0)), int(number("fixed", 1)));
        QCOMPARE(host.minimumSize(), fixed);
        QCOMPARE(host.maximumSize(), fixed.isEmpty() ? QWidget().maximumSize() : fixed);
        // Overrides count, and the document's family where the control keeps its own.
        host.cSetAttributeValue("FontSize"_s, "44"_s);
        host.cSetIsUserFontFamily(true);
        QCOMPARE(host.font().family(), "Global Zh"_s);
        host.cResetAllValue();
        QVERIFY(host.font().pixelSize() == 44 && host.font().family() == "Doc"_s);
    }
};

ZANTHIC_TEST_MAIN(TestResolution)
#include "tst_resolution.moc"
