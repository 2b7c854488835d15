#include "StyleHost.h"
#include "support/StyleTest.h"

#include "style/CustomStyleSheetData_p.h"

Q_DECLARE_METATYPE(std::function<void(CustomObject &)>)

using Custom::Disabled;
using Custom::Hover;
using Custom::Normal;
using Custom::Pressed;

namespace {

const QStringList s_lstNone;
const QStringList s_lstItem{ QStringLiteral("item") };

// A mix-in whose host never came to be.
class Bare : public CustomObject
{
public:
    Bare() : CustomObject(nullptr, QString(), QStringLiteral("Default")) { cSetClassName(QStringLiteral("Sample")); }
    CustomObjectData *data() const { return CustomObjectData::get(this); }
};

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

QString value(const CustomObject &object, const char *attribute, Custom::ItemStatus status = Normal,
    const QStringList &subs = s_lstNone)
{
    return object.cAttributeValue(text(attribute), status, subs);
}

} // namespace

class TestResolution : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void keys();
    void orderOfFallback_data();
    void orderOfFallback();
    void subSelectorsDoNotFallBack();
    void firstOverrideWipesAndResetBringsBack();
    void wipeIsByPrefix();
    void selectorLiesOverDefault();
    void whatMarksDirty();
    void parentClassIsTheOnlySource();
    void documentAddsParameters();
    void gettersWithoutDocument();
    void gettersConvert();
    void settersWrite_data();
    void settersWrite();
    void fontSettersReachTheHost();
    void sizeHintCacheFallsWithAnOverride();
    void lookupsWithoutControl();
    void hostGetsFontAndSize_data();
    void hostGetsFontAndSize();
};

void TestResolution::keys()
{
    const auto key = [](const char *attribute, int status, const QStringList &subs = s_lstNone) {
        return CustomObjectData::getFullAttrName(text(attribute), Custom::ItemStatus(status), subs);
    };
    QCOMPARE(key("FontColor", Hover), text("fontcolor:hover"));
    QCOMPARE(key("BorderWidth:Left", Normal), text("borderwidth:left"));
    QCOMPARE(key("BackgroundColor", Pressed, { "item", "checked" }), text("backgroundcolor:item:checked:pressed"));
    QCOMPARE(key("Icon", Disabled, { "", "Down-Arrow" }), text("icon::down-arrow:disabled"));
    QCOMPARE(key("A", 4, { "" }), text("a:"));
    QCOMPARE(key("", -1), QString());
}

void TestResolution::orderOfFallback_data()
{
    QTest::addColumn<QStringList>("sources"); // own hover, document's hover, own normal, document's normal
    QTest::addColumn<QString>("hover");
    QTest::addColumn<QString>("normal");
    const auto row = [](const char *name, const QStringList &sources, const char *hover, const char *normal) {
        QTest::newRow(name) << sources << text(hover) << text(normal);
    };
    row("all", { "lh", "dh", "ln", "dn" }, "lh", "ln");
    row("empty own", { "", "dh", "ln", "dn" }, "dh", "ln");
    row("no hover", { "", "", "ln", "dn" }, "ln", "ln");
    row("document's normal", { "", "", "", "dn" }, "dn", "dn");
    row("nothing", { "", "", "", "" }, "", "");
    row("hover alone", { "", "dh", "", "" }, "dh", "");
    row("own #Empty#", { "#Empty#", "dh", "ln", "dn" }, "", "ln");
    row("document's #Empty#", { "", "#Empty#", "ln", "dn" }, "", "ln");
    row("own normal #Empty#", { "", "", "#Empty#", "dn" }, "", "");
    row("document's normal #Empty#", { "", "dh", "", "#Empty#" }, "dh", "");
    row("own over #Empty#", { "lh", "#Empty#", "ln", "#Empty#" }, "lh", "ln");
    row("other case", { "#empty#", "dh", "#EMPTY#", "dn" }, "#empty#", "#EMPTY#");
    row("with blanks", { "", " #Empty#", "", "#Empty# " }, " #Empty#", "#Empty# ");
}

void TestResolution::orderOfFallback()
{
    QFETCH(QStringList, sources);
    const auto element = [&sources](const char *tag, int index) -> QByteArray {
        return QByteArray("<") + tag + ">" + sources.at(index).toUtf8() + "</" + tag + ">";
    };
    addDocument(classXml("Sample", "Default", element("Mark:Left:Hover", 1) + element("mark:left", 3)));
    StyleHost host;
    host.cSetAttributeValue(text("Mark:Left"), sources.at(0), Hover);
    host.cSetAttributeValue(text("Mark:Left"), sources.at(2), Normal);
    host.cResetAllValue();
    for (const auto &[status, column] : { std::pair(Hover, "hover"), std::pair(Normal, "normal") }) {
        bool ok = false;
        const QString result = host.cAttributeValue(text("Mark:Left"), status, {}, &ok);
        QTEST(result, column);
        QCOMPARE(ok, !result.isEmpty());
        QTEST(value(host, "mARK:lEFT", status), column);
    }
}

void TestResolution::subSelectorsDoNotFallBack()
{
    addDocument(classXml("Sample", "Default",
        "<Mark>plain</Mark><Mark:Hover>hover</Mark:Hover><Mark:item>item</Mark:item><Mark:item:b>two</Mark:item:b>"));
    const StyleHost host;
    QCOMPARE(value(host, "Mark", Hover, s_lstItem), text("item"));
    QCOMPARE(value(host, "Mark", Normal, QStringList({ "ITEM", "B" })), text("two"));
    QCOMPARE(value(host, "Mark:Item", Pressed, QStringList({ "b" })), text("two"));
    QCOMPARE(value(host, "Mark", Normal, QStringList({ "other" })), QString());
    QCOMPARE(value(host, "Mark", Hover, QStringList({ "other" })), QString());
    QCOMPARE(value(host, "Mark", Normal, QStringList({ "" })), QString());
    // A status word may also stand last among the sub-selectors.
    QCOMPARE(value(host, "Mark", Normal, QStringList({ "Hover" })), text("hover"));
}

void TestResolution::firstOverrideWipesAndResetBringsBack()
{
    addDocument(classXml("Sample", "Default",
        "<FontColor>#000001</FontColor><FontColor:Hover>#000002</FontColor:Hover>"
        "<FontColor:item:Pressed>#000003</FontColor:item:Pressed>"));
    StyleHost host;
    QCOMPARE(value(host, "FontColor", Hover), text("#000002"));
    host.cSetFontColor(text("#ffffff"));
    for (const Custom::ItemStatus status : { Normal, Hover, Pressed, Disabled })
        QCOMPARE(value(host, "FontColor", status), text("#ffffff"));
    QCOMPARE(value(host, "FontColor", Pressed, s_lstItem), QString());
    QCOMPARE(host.data()->styleValues.size(), 3); // the keys stay

    host.cSetFontColor(text("#eeeeee"), Hover);
    QCOMPARE(value(host, "FontColor", Hover) + value(host, "FontColor", Pressed), text("#eeeeee#ffffff"));

    host.cResetAllValue();
    QCOMPARE(value(host, "FontColor") + value(host, "FontColor", Hover), text("#ffffff#eeeeee"));
    QCOMPARE(value(host, "FontColor", Pressed, s_lstItem), text("#000003"));
    // The wipe is done once for each name, and names are told apart by case.
    host.cSetFontColor(text("#dddddd"));
    QCOMPARE(value(host, "FontColor", Pressed, s_lstItem), text("#000003"));
    host.cSetAttributeValue(text("fontcolor"), text("#cccccc"));
    QCOMPARE(value(host, "FontColor", Pressed, s_lstItem), QString());
    Custom::changeSkin();
    QCOMPARE(value(host, "FontColor", Pressed, s_lstItem), text("#000003"));
    QCOMPARE(value(host, "FontColor"), text("#cccccc"));
    QCOMPARE(host.data()->clearedAttributes, QStringList({ "FontColor", "fontcolor" }));
}

void TestResolution::wipeIsByPrefix()
{
    addDocument(classXml("Sample", "Default",
        "<Icon>a</Icon><IconAlignment>1</IconAlignment><Icon:Hover>b</Icon:Hover><MyIcon>c</MyIcon><Ico>d</Ico>"));
    StyleHost host;
    host.cClearValue(text("iCON"));
    QCOMPARE(value(host, "Icon") + value(host, "IconAlignment") + value(host, "Icon", Hover), QString());
    QCOMPARE(value(host, "MyIcon") + value(host, "Ico"), text("cd"));
    // A direct clear is not remembered: the first override wipes again after a rebuild.
    host.cResetAllValue();
    QCOMPARE(value(host, "IconAlignment"), text("1"));
    host.cSetAttributeValue(text("Icon"), text("own"));
    QCOMPARE(value(host, "IconAlignment"), QString());
    host.cClearValue(text("Icon"));
    QCOMPARE(value(host, "Icon"), text("own"));
    host.cClearValue(QString());
    QCOMPARE(value(host, "MyIcon") + value(host, "Ico"), QString());

    StyleHost other;
    other.cClearValue(text("Icon"));
    QCOMPARE(value(other, "Icon"), QString());
}

void TestResolution::selectorLiesOverDefault()
{
    addDocument("<Class Name='Sample'><Selector Name='DEFAULT'><One>d1</One><Two>d2</Two></Selector>"
                "<Selector Name='Gray'><One>g1</One><Three>g3</Three></Selector>"
                "<Selector Name='Alias' EqualSelector='GRAY'/><Selector Name='AliasOfAlias' EqualSelector='Alias'/>"
                "<Selector Name='Blank'><One/></Selector></Class>");
    StyleHost host;
    const auto values = [&host](const char *selector) {
        host.cSetStyleSelector(text(selector));
        return QStringList({ value(host, "One"), value(host, "Two"), value(host, "Three") }).join(QLatin1Char(' '));
    };
    for (const char *selector : { "Gray", "gRAY", "Alias" })
        QCOMPARE(values(selector), text("g1 d2 g3"));
    for (const char *selector : { "Default", "default", "AliasOfAlias", "Unknown", "Gra", "" })
        QCOMPARE(values(selector), text("d1 d2 "));
    QCOMPARE(values("Blank"), text(" d2 "));
    host.cSetStyleSelector(Custom::CommonStyleSelector(7));
    QCOMPARE(host.cStyleSelector(), text("Default"));
    QCOMPARE(value(host, "One"), text("d1"));
}

void TestResolution::whatMarksDirty()
{
    StyleHost host;
    const auto marks = [&host](const std::function<void()> &act) {
        host.data()->initData();
        act();
        return host.data()->dirty;
    };
    QVERIFY(StyleHost().data()->dirty);
    QVERIFY(!marks([] {}));
    QVERIFY(!marks([&] { host.cSetStyleSelector(text("Default")); }));
    QVERIFY(!marks([&] { host.cSetStyleSelector(Custom::Default); }));
    QVERIFY(marks([&] { host.cSetStyleSelector(text("default")); }));
    QVERIFY(marks([&] { host.cSetClassName(text("Sample")); }));
    QVERIFY(marks([&] { host.cSetParentClassName(QString()); }));
    QVERIFY(!marks([&] { host.cSetFontColor(text("#fff")); }));
    QVERIFY(!marks([&] { host.cClearValue(text("F")); }));
    QVERIFY(!marks([&] { host.cResetAllValue(); }));
    QVERIFY(!marks([&] { host.cSetIsUserFontFamily(true); }));
    QVERIFY(!marks([&] { addDocument(richDocument()); }));
    QVERIFY(marks([] { Custom::changeSkin(); }));
}

void TestResolution::parentClassIsTheOnlySource()
{
    addDocument(classXml("Sample", "Default", "<One>top</One><Two>top</Two>") + "<Class Name='Outer'>"
        + classXml("Sample", "Default", "<One>nested</One>") + "</Class>");
    StyleHost host;
    QCOMPARE(value(host, "One") + value(host, "Two"), text("toptop"));
    host.cSetParentClassName(text("OUTER"));
    QCOMPARE(value(host, "One") + value(host, "Two"), text("nested"));
    host.cSetParentClassName(text("Unknown"));
    QCOMPARE(value(host, "One"), QString());
    host.cSetParentClassName(QString());
    host.cSetClassName(text("sAMPLE"));
    QCOMPARE(value(host, "One"), text("top"));
    host.cSetClassName(QString());
    QCOMPARE(value(host, "One"), QString());
}

void TestResolution::documentAddsParameters()
{
    addDocument("<Class Name='Sample'><Selector Name='Default'><ObjectParameter>3</ObjectParameter></Selector>"
                "<Selector Name='Gray'><ObjectParameter>4</ObjectParameter></Selector>"
                "<Selector Name='Bad'><ObjectParameter>x</ObjectParameter></Selector></Class>");
    StyleHost host;
    QVERIFY(host.cHasParameter(Custom::ObjectParameter(3)));
    QVERIFY(!host.cHasParameter(Custom::ObjectParameter(7)));
    host.cSetParameter(Custom::ParamBackgroundColor, false);
    QVERIFY(!host.cHasParameter(Custom::ParamBackgroundColor));
    // The selector's number replaces that of Default; bits once set stay.
    host.cSetStyleSelector(text("Gray"));
    QCOMPARE(host.cHasParameter(Custom::ParamBorderWidth), true);
    QCOMPARE(host.data()->parameters, quint32(5));
    host.cSetStyleSelector(text("Bad"));
    QCOMPARE(host.cHasParameter(Custom::ParamBorderColor), false);
    QCOMPARE(host.data()->parameters, quint32(5));
    host.cSetStyleSelector(text("Default"));
    QVERIFY(host.cHasParameter(Custom::ParamBackgroundColor));
    // The switch works on the flags as the document left them, on a control that nobody has asked yet.
    StyleHost fresh;
    fresh.cSetParameter(Custom::ParamBackgroundImage, false);
    QCOMPARE(fresh.data()->parameters, quint32(2));
    fresh.cSetParameter(Custom::ParamBackgroundColor, false);
    fresh.cResetAllValue();
    QCOMPARE(fresh.data()->parameters, quint32(3));
}

void TestResolution::gettersWithoutDocument()
{
    StyleHost host(text("Missing"));
    QFont font(text("Own Family"));
    font.setPixelSize(17);
    host.setFont(font);
    bool ok = true;
    const auto isFalse = [&ok] { return !std::exchange(ok, true); };
    QCOMPARE(host.cFontSize(Hover, {}, &ok), 17);
    QVERIFY(isFalse());
    // The rebuild has given the host the family in force, which is empty here.
    QCOMPARE(host.cFontFamily(Hover, {}, &ok), host.font().family());
    QVERIFY(isFalse());
    QVERIFY(!host.cFontColor(Hover, {}, &ok).isValid() && isFalse());
    QCOMPARE(host.cBackgroundColor(Hover, QRect(), {}, &ok), QBrush());
    QVERIFY(isFalse());
    QVERIFY(host.cBackgroundImage(Hover, {}, &ok).isEmpty() && isFalse());
    QVERIFY(host.cBorderImage(Hover, {}, &ok).isEmpty() && isFalse());
    QVERIFY(host.cBorderWidth(Custom::Left, Hover, {}, &ok) == 0 && isFalse());
    QVERIFY(host.cBorderRadius(Custom::LeftTop, Hover, {}, &ok) == 0 && isFalse());
    QCOMPARE(host.cBorderColor(Custom::Left, Hover, {}, QRect(), &ok), QBrush());
    QVERIFY(isFalse());
    QCOMPARE(host.cFont(), host.font());

    const Bare bare;
    QCOMPARE(bare.cFontSize(), 0);
    QCOMPARE(bare.cFontFamily(), QString());
    QCOMPARE(bare.cFont(), QFont());
}

void TestResolution::gettersConvert()
{
    addColors("<Color Id='A' Value='#00ff00'/>");
    addDocument(richDocument());
    StyleHost host;
    host.resize(80, 40);
    bool ok = false;
    QVERIFY(host.cFontSize(Pressed, {}, &ok) == 14 && ok);
    // Not above 0: the host's own size, though there is a value.
    QVERIFY(host.cFontSize(Hover, {}, &ok) == 14 && ok);
    QVERIFY(!host.cFontColor(Hover, {}, &ok).isValid() && !ok);
    QCOMPARE(host.cFontColor(Pressed), QColor(0x11, 0x11, 0x11));
    QCOMPARE(host.cBorderWidth(Custom::AllEdge), 3);
    QCOMPARE(host.cBorderWidth(Custom::Bottom), 0); // the caller joins edge and all edges
    QCOMPARE(host.cBorderWidth(Custom::Top), 0);
    QCOMPARE(host.cBorderWidth(Custom::BorderEdge(9)), 3);
    QCOMPARE(host.cBorderRadius(Custom::LeftTop), -9);
    QCOMPARE(host.cBorderImage(Hover), text("b.png"));
    QCOMPARE(host.cBackgroundImage(Hover, s_lstItem), text("i.png"));
    const auto finalStop
        = [](const QBrush &brush) { return static_cast<const QLinearGradient *>(brush.gradient())->finalStop(); };
    QCOMPARE(finalStop(host.cBackgroundColor()), QPointF(80, 40));
    QCOMPARE(finalStop(host.cBackgroundColor(Normal, QRect(0, 0, 0, 7))), QPointF(80, 40));
    QCOMPARE(finalStop(host.cBackgroundColor(Normal, QRect(1, 1, 2, 3))), QPointF(2, 3));
    QCOMPARE(finalStop(host.cBorderColor(Custom::AllEdge, Normal, {}, QRect(1, 1, 2, 3))), QPointF(2, 3));
    QCOMPARE(finalStop(host.cBorderColor(Custom::AllEdge)), QPointF(1, 1)); // never scaled to the host
}

void TestResolution::settersWrite_data()
{
    QTest::addColumn<std::function<void(CustomObject &)>>("act");
    QTest::addColumn<QString>("notified");
    QTest::addColumn<quint32>("flags");
    using Act = std::function<void(CustomObject &)>;
    const auto row = [](const char *name, const Act &act, const char *notified, quint32 flags) {
        QTest::newRow(name) << act << text(notified) << flags;
    };
    row(
        "font size", [](auto &o) { o.cSetFontSize(12, Hover); }, "FontSize=12@1", 0);
    row(
        "font colour", [](auto &o) { o.cSetFontColor(text("DB_COLOR_A"), Pressed); }, "FontColor=DB_COLOR_A@2", 0);
    row(
        "font family", [](auto &o) { o.cSetFontFamily(text("F")); }, "FontFamily=F@0", 0);
    row(
        "image", [](auto &o) { o.cSetBackgroundImage(text("i")); }, "BackgroundImage=i@0", 1);
    row(
        "colour", [](auto &o) { o.cSetBackgroundColor(text("c"), Disabled); }, "BackgroundColor=c@3", 2);
    row(
        "one width", [](auto &o) { o.cSetBorderWidth(-2, Custom::Top, Hover); }, "BorderWidth:Top=-2@1", 4);
    row(
        "widths", [](auto &o) { o.cSetBorderWidth(2); },
        "BorderWidth:AllEdge=2@0 BorderWidth:Left=2@0 BorderWidth:Right=2@0 BorderWidth:Top=2@0 BorderWidth:Bottom=2@0",
        4);
    row(
        "one radius", [](auto &o) { o.cSetBorderRadius(7, Custom::LeftBottom); }, "BorderRadius:LeftBottom=7@0", 8);
    row(
        "radii", [](auto &o) { o.cSetBorderRadius(7, Custom::AllCorner, Hover); },
        "BorderRadius:AllCorner=7@1 BorderRadius:LeftTop=7@1 BorderRadius:RightTop=7@1 BorderRadius:LeftBottom=7@1 "
        "BorderRadius:RightBottom=7@1",
        8);
    row(
        "one border colour", [](auto &o) { o.cSetBorderColor(text("c"), Custom::Left); }, "BorderColor:Left=c@0", 16);
    row(
        "border colours", [](auto &o) { o.cSetBorderColor(text("c"), Custom::AllEdge, Hover); },
        "BorderColor:AllEdge=c@1 BorderColor:Left=c@1 BorderColor:Right=c@1 BorderColor:Top=c@1 BorderColor:Bottom=c@1",
        16);
    row(
        "border image", [](auto &o) { o.cSetBorderImage(text("b")); }, "BorderImage=b@0", 32);
}

void TestResolution::settersWrite()
{
    QFETCH(std::function<void(CustomObject &)>, act);
    QFETCH(QString, notified);
    addDocument(richDocument());
    StyleHost host;
    act(host);
    QCOMPARE(host.notified.join(QLatin1Char(' ')), notified);
    QTEST(host.data()->parameters, "flags");
    QCOMPARE(host.data()->localValues.size(), host.notified.size());
    for (const QString &notice : qAsConst(host.notified)) {
        const int status = notice.rightRef(1).toInt();
        const QString attribute = notice.section(QLatin1Char('='), 0, 0);
        QCOMPARE(host.cAttributeValue(attribute, Custom::ItemStatus(status)),
            notice.section(QLatin1Char('='), 1).section(QLatin1Char('@'), 0, 0));
    }
    // Without a host the values are written all the same.
    Bare bare;
    act(bare);
    QCOMPARE(bare.data()->localValues, host.data()->localValues);
}

void TestResolution::fontSettersReachTheHost()
{
    StyleHost host;
    host.cSetFontSize(21, Hover);
    QCOMPARE(host.font().pixelSize(), 21);
    for (const int size : { 0, -4 }) {
        host.cSetFontSize(size);
        QCOMPARE(host.font().pixelSize(), 21);
        QCOMPARE(value(host, "FontSize"), QString::number(size));
        QCOMPARE(host.cFontSize(), 21);
    }
    host.cSetFontFamily(text("Some Family"), Hover);
    QCOMPARE(host.font().family(), text("Some Family"));

    host.notified.clear();
    QFont font(text("Third"), 9, QFont::Bold);
    host.cSetFont(font, Pressed);
    QCOMPARE(host.notified, QStringList({ "FontFamily=Third@2", "FontSize=-1@2" }));
    QVERIFY(host.font().family() == text("Third") && host.font().bold() && host.font().pointSize() == 9);
    font.setPixelSize(33);
    host.cSetFont(font);
    QCOMPARE(host.cFontSize(), 33);
    QCOMPARE(host.cFont(), host.font());

    Bare bare;
    bare.cSetFont(font);
    QVERIFY(bare.data()->localValues.isEmpty());
}

void TestResolution::sizeHintCacheFallsWithAnOverride()
{
    StyleHost host;
    host.data()->initData();
    const auto fill = [&host] {
        host.data()->sizeHintCache = QSize(9, 9);
        host.data()->sizeHintText = text("t");
    };
    fill();
    host.cClearValue(text("Icon"));
    host.cResetAllValue();
    QCOMPARE(host.data()->sizeHintCache, QSize(9, 9));
    host.cSetAttributeValue(text("Icon"), QString());
    QCOMPARE(host.data()->sizeHintCache, QSize(-1, -1));
    QVERIFY(host.data()->sizeHintText.isEmpty());
}

void TestResolution::lookupsWithoutControl()
{
    QVERIFY(Custom::getAttrMap(text("x"), QString()).isEmpty() && Custom::getAttrMap(QString(), text("x")).isEmpty());
    QVERIFY(Custom::attributeValue(text("x"), QString(), text("y")).isEmpty());
    QCOMPARE(CustomStyleSheetData::instance(), nullptr); // nothing was loaded for that
    addDocument(richDocument());
    const auto get = [](const char *name, const char *attribute, const char *selector, const QStringList &subs = {}) {
        return Custom::attributeValue(text(name), text(attribute), text(selector), subs);
    };
    QCOMPARE(get("SAMPLE", "FONTSize", "DEFAULT"), text("14"));
    QCOMPARE(get("Sample", "FontColor", "Alias"), text("#222222"));
    QCOMPARE(get("Sample", "FontColor", "Default", { "", "Hover" }), text("#Empty#"));
    QCOMPARE(get("Sample", "BackgroundColor", "Default", { "Item", "", "Checked", "Pressed" }), text("DB_COLOR_Shade"));
    QCOMPARE(get("Sample", "FontColor", "Default", { "Pressed" }), QString()); // no fallback to the resting state
    QCOMPARE(get("Sample", "FontSize", "Gray"), QString()); // nor to Default
    QCOMPARE(get("Unknown", "FontSize", "Default"), QString());
    QCOMPARE(Custom::getAttrMap(text("sample"), text("gray")).size(), 3);
    QCOMPARE(Custom::getAttrMap(text("sample"), text("alias")), Custom::getAttrMap(text("sample"), text("gray")));
    // Three names in lower case are the caller's part.
    QVERIFY(Custom::getAttrMap(text("Sample"), text("gray")).isEmpty());
    QVERIFY(Custom::getAttrMap(text("sample"), text("Gray")).isEmpty());
    QVERIFY(Custom::getAttrMap(text("sample"), text("gray"), text("outer")).isEmpty());
    QCOMPARE(Custom::getAttrMap(text("sample"), text("default"), text("outer")).size(), 1);
}

void TestResolution::hostGetsFontAndSize_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QSize>("fixed"); // invalid: not fixed
    QTest::addColumn<int>("pixels");
    const QSize none;
    QTest::newRow("both") << QByteArray("<WidgetWidth>50</WidgetWidth><WidgetHeight>20</WidgetHeight>") << QSize(50, 20)
                          << 15;
    QTest::newRow("width") << QByteArray("<WidgetWidth>50</WidgetWidth><FontSize>30</FontSize>") << none << 30;
    QTest::newRow("height") << QByteArray("<WidgetHeight>20</WidgetHeight><FontSize>0</FontSize>") << none << 15;
    QTest::newRow("zero") << QByteArray("<WidgetWidth>50</WidgetWidth><WidgetHeight>0</WidgetHeight>") << none << 15;
    QTest::newRow("negative") << QByteArray("<WidgetWidth>-1</WidgetWidth><WidgetHeight>-1</WidgetHeight>") << none
                              << 15;
    QTest::newRow("other status") << QByteArray(
        "<WidgetWidth:Hover>50</WidgetWidth:Hover><WidgetHeight>9</WidgetHeight>"
        "<FontSize:Hover>30</FontSize:Hover>")
                                  << none << 15;
    QTest::newRow("huge") << QByteArray("<WidgetWidth>999999999</WidgetWidth><WidgetHeight>20</WidgetHeight>"
                                        "<FontSize>99999999999</FontSize>")
                          << QSize(QWIDGETSIZE_MAX, 20) << 15;
}

void TestResolution::hostGetsFontAndSize()
{
    QFETCH(QByteArray, attributes);
    QFETCH(QSize, fixed);
    addDocument(classXml("Sample", "Default", attributes + "<FontFamily>Doc</FontFamily>")
        + classXml("Global", "Default", "<FontFamily:Zh_cn>Global Zh</FontFamily:Zh_cn>"));
    StyleHost host;
    QFont font;
    font.setPixelSize(15);
    host.setFont(font);
    host.cFont();
    QTEST(host.font().pixelSize(), "pixels");
    QCOMPARE(host.font().family(), text("Global Zh"));
    QWidget expected;
    if (fixed.isValid())
        expected.setFixedSize(fixed);
    QCOMPARE(host.minimumSize(), expected.minimumSize());
    QCOMPARE(host.maximumSize(), expected.maximumSize());
    // Overrides count, and the document's family where the control keeps its own.
    host.cSetAttributeValue(text("FontSize"), text("44"));
    host.cSetIsUserFontFamily(true);
    QCOMPARE(host.font().family(), text("Global Zh"));
    host.cResetAllValue();
    QCOMPARE(host.font().pixelSize(), 44);
    QCOMPARE(host.font().family(), text("Doc"));
}

ZANTHIC_TEST_MAIN(TestResolution)
#include "tst_resolution.moc"
