#include "support/StyleTest.h"

#include "StyleHost.h"
#include "style/CustomStyleSheetData_p.h"
#include "style/StyleColors_p.h"

#include <QtCore/QMetaEnum>
#include <QtGui/QLinearGradient>

namespace {

const char kSkinColors[] = "<Color Id='Red' Value='#ff0000'/><Color Id='Link' Value='DB_COLOR_red'/>"
                           "<Color Id='LowerLink' Value='db_color_red'/><Color Id='Empty' Value=''/>"
                           "<Color Id='Shade' Value='qlineargradient(x1:0; y1:0; x2:1; y2:1**stop:0 #00ff00;"
                           "stop:1 DB_COLOR_RED;)'/><Color Value='#0000ff'/>";

const QRect kRectangles[] = { {}, { 0, 0, 200, 100 }, { 10, 20, 7, 3 }, { 0, 0, 0, 10 }, { 0, 0, -5, 10 } };

QString colorName(const QColor &color)
{
    return color.isValid() ? color.name(QColor::HexArgb) : QString();
}

template <typename Enum>
QString numbers()
{
    QStringList result;
    const QMetaEnum meta = QMetaEnum::fromType<Enum>();
    for (int i = 0; i < meta.keyCount(); ++i)
        result.append(QStringLiteral("%1 %2").arg(meta.value(i)).arg(QLatin1String(meta.key(i))));
    return result.join(QLatin1Char(','));
}

// The same brush by the function and by the text that is parsed once, for every rectangle.
void compareParsed(const QString &text)
{
    const ParsedBrush parsed(text);
    QCOMPARE(parsed.unscaled(), Custom::string2Brush(text));
    for (const QRect &rect : kRectangles)
        QCOMPARE(parsed.scaledTo(rect), Custom::string2Brush(text, rect));
}

QLinearGradient gradientOf(const QBrush &brush)
{
    const QGradient *gradient = brush.gradient();
    return gradient ? *static_cast<const QLinearGradient *>(gradient) : QLinearGradient(-1, -1, -1, -1);
}

} // namespace

class TestVocabulary : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void words_data();
    void words();
    void numbersAreFixed();
    void hasParameterNeedsEveryBit_data();
    void hasParameterNeedsEveryBit();
    void statusOfStyleState_data();
    void statusOfStyleState();
    void colorTexts_data();
    void colorTexts();
    void skinColorNames_data();
    void skinColorNames();
    void namesWithoutDocument();
    void imagePathIsTexture();
    void gradientParse_data();
    void gradientParse();
    void gradientStops_data();
    void gradientStops();
    void gradientBrushTakesTextThatDoesNotParse();
    void writtenGradients_data();
    void writtenGradients();
    void writtenColorsAndBrushes();
    void cycleGivesDefaultBrush_data();
    void cycleGivesDefaultBrush();
    void cycleThroughStops();
    void longChain();
};

void TestVocabulary::words_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *kind, int number, const QString &word, const char *expected) {
        QTest::addRow("%s %d", kind, number) << word << QString::fromLatin1(expected);
    };
    const char *const status[] = { "", "", "Hover", "Pressed", "Disabled", "" };
    const char *const selectors[] = { "Default", "Default", "GrayWhite", "DarkBlack", "Default", "Default" };
    const char *const languages[] = { "", "Zh_cn", "En_us", "", "", "" };
    const char *const edges[] = { "AllEdge", "Left", "Right", "Top", "Bottom", "AllEdge", "AllEdge" };
    const char *const corners[]
        = { "AllCorner", "LeftTop", "RightTop", "LeftBottom", "RightBottom", "AllCorner", "AllCorner" };
    for (int i = -1; i < 5; ++i) {
        row("status", i, Custom::itemStatus2String(Custom::ItemStatus(i)), status[i + 1]);
        row("selector", i, Custom::commonStyleSelector(Custom::CommonStyleSelector(i)), selectors[i + 1]);
        row("language", i, Custom::language2String(Custom::Language(i)), languages[i + 1]);
    }
    for (int i = -1; i < 6; ++i) {
        row("edge", i, Custom::borderEdge2String(Custom::BorderEdge(i)), edges[i + 1]);
        row("corner", i, Custom::borderCorner2String(Custom::BorderCorner(i)), corners[i + 1]);
    }
}

void TestVocabulary::words()
{
    QFETCH(QString, word);
    QTEST(word, "expected");
}

void TestVocabulary::numbersAreFixed()
{
    QCOMPARE(numbers<Custom::BorderStyle>(),
        QStringLiteral("0 BorderNone,1 BorderDotted,2 BorderDashed,3 BorderSolid,4 BorderDouble,5 BorderDotDash,"
                       "6 BorderDotDotDash,7 BorderGroove,8 BorderRidge,9 BorderInset,10 BorderOutset"));
    QCOMPARE(numbers<Custom::ObjectParameter>(),
        QStringLiteral("1 ParamBackgroundImage,2 ParamBackgroundColor,4 ParamBorderWidth,8 ParamBorderRadius,"
                       "16 ParamBorderColor,32 ParamBorderImage,64 ParamBaseBackgroundImage,128 ParamUserFontFamily,"
                       "256 ParamColorRect"));
    QCOMPARE(numbers<Custom::CustomWidgetType>(),
        QStringLiteral("0 WidgetCheckBox,1 WidgetPushButton,2 WidgetRadioButton,3 WidgetComboBox,4 WidgetGeneric,"
                       "5 WidgetDrawSlider,6 WidgetDotSlider,7 WidgetTwoHandleSlider,8 WidgetProcessSlider"));
    QCOMPARE(numbers<Custom::StyleSheetType>(),
        QStringLiteral("0 SheetGroupBox,1 SheetHeaderView,2 SheetLineEdit,3 SheetListView,4 SheetScrollBar,"
                       "5 SheetSlider,6 SheetSpinBox,7 SheetDoubleSpinBox,8 SheetTabBar,9 SheetTableView,"
                       "10 SheetTreeWidget"));
}

void TestVocabulary::hasParameterNeedsEveryBit_data()
{
    QTest::addColumn<quint32>("held");
    QTest::addColumn<quint32>("asked");
    QTest::addColumn<bool>("expected");
    QTest::newRow("one of one") << 4U << 4U << true;
    QTest::newRow("one of two") << 4U << 6U << false;
    QTest::newRow("two of three") << 7U << 6U << true;
    QTest::newRow("none held") << 0U << 1U << false;
    QTest::newRow("zero of none") << 0U << 0U << true;
    QTest::newRow("zero of some") << 2U << 0U << false;
}

void TestVocabulary::hasParameterNeedsEveryBit()
{
    QFETCH(quint32, held);
    QFETCH(quint32, asked);
    StyleHost host;
    host.cSetParameter(Custom::ObjectParameter(held), true);
    QTEST(host.data()->hasParameter(asked), "expected");
    QTEST(host.cHasParameter(Custom::ObjectParameter(asked)), "expected");
}

void TestVocabulary::statusOfStyleState_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("expected");
    const int all = QStyle::State_Enabled | QStyle::State_Sunken | QStyle::State_MouseOver;
    QTest::newRow("all but enabled") << (all & ~int(QStyle::State_Enabled)) << int(Custom::Disabled);
    QTest::newRow("all") << all << int(Custom::Pressed);
    QTest::newRow("over") << int(QStyle::State_Enabled | QStyle::State_MouseOver) << int(Custom::Hover);
    QTest::newRow("enabled, on") << int(QStyle::State_Enabled | QStyle::State_On) << int(Custom::Normal);
    QTest::newRow("none") << 0 << int(Custom::Disabled);
}

void TestVocabulary::statusOfStyleState()
{
    QFETCH(int, state);
    StyleHost host;
    QTEST(int(host.cGetItemStatus(QStyle::State(state))), "expected");
}

void TestVocabulary::colorTexts_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("color"); // empty: invalid
    const auto none = [](const char *text) { QTest::newRow(text) << int(Qt::NoBrush) << QString(); };
    const auto solid = [](const char *text, const char *color) {
        QTest::newRow(text) << int(Qt::SolidPattern) << QString::fromLatin1(color);
    };
    none("");
    none("   ");
    solid("#f00", "#ffff0000");
    solid("#00ff00", "#ff00ff00");
    solid("#8000ff00", "#8000ff00");
    solid("#000fff000", "#ff00ff00");
    solid("#00000000", "#00000000");
    solid("  #ff0000", "");
    solid("#ff0000 ", "");
    solid("#ff00000", "");
    solid("#", "");
    solid("#red", "");
    none("rgba");
    none("rgba()");
    none("rgba(1,2)");
    solid("rgba(1,2,3)", "#ff010203");
    solid("RGBA(1, 2, 3, 4)", "#04010203");
    solid("  rGbA( 1 ,2, 3 ,4 )  ", "#04010203");
    solid("rgba(1,2,3,4,5)", "#ff010203");
    solid("rgba(1,2,3,)", "#00010203");
    solid("rgba(1,,3)", "#ff010003");
    solid("rgba(,,)", "#ff000000");
    solid("rgba(a,0x10,1.5)", "#ff000000");
    solid("rgba(99999999999,2,3)", "#ff000203");
    solid("rgba(1,2,30", "#ff010203");
    solid("rgba[1,2,3]", "#ff010203");
    solid("rgba(255,255,255,255)", "#ffffffff");
    solid("rgba(256,0,0)", "");
    solid("rgba(0,-1,0,0)", "");
    solid("rgba(0,0,0,256)", "");
    none("rgb(1,2,3)");
    none("red");
    none("transparent");
    none("/no/such/image.png");
    none("/");
    none(":/");
    solid("DB_COLOR_RED", "#ffff0000");
    solid("DB_COLOR_Red", "#ffff0000");
    solid("DB_COLOR_Link", "#ffff0000");
    solid("DB_COLOR_", "#ff0000ff");
    none("DB_COLOR_LowerLink");
    none("DB_COLOR_Empty");
    none("DB_COLOR_UNKNOWN");
    none("DB_COLOR_RED ");
    none(" DB_COLOR_RED");
    none("db_color_red");
    none("DB_COLORRED");
}

void TestVocabulary::colorTexts()
{
    const QString text = QString::fromLatin1(QTest::currentDataTag());
    addColors(kSkinColors);
    const QBrush brush = Custom::string2Brush(text, QRect(0, 0, 10, 10));
    QTEST(int(brush.style()), "style");
    if (brush.style() == Qt::SolidPattern)
        QTEST(colorName(brush.color()), "color");
    QTEST(colorName(Custom::string2Color(text)), "color");
    compareParsed(text);
}

void TestVocabulary::skinColorNames_data()
{
    QTest::addColumn<QString>("color");
    QTest::newRow("RED") << QStringLiteral("#ffff0000");
    QTest::newRow("red") << QStringLiteral("#ffff0000");
    QTest::newRow("db_color_red") << QStringLiteral("#ffff0000");
    QTest::newRow("DB_Color_Link") << QStringLiteral("#ffff0000");
    QTest::newRow("") << QStringLiteral("#ff0000ff");
    QTest::newRow("db_color_") << QStringLiteral("#ff0000ff");
    QTest::newRow(" red") << QString();
    QTest::newRow("Unknown") << QString();
    QTest::newRow("LowerLink") << QString();
    QTest::newRow("DB_COLOR_DB_COLOR_RED") << QString();
}

void TestVocabulary::skinColorNames()
{
    addColors(kSkinColors);
    const QBrush brush = Custom::getDataBaseColor(QString::fromLatin1(QTest::currentDataTag()), QRect());
    QTEST(brush.style() == Qt::NoBrush ? QString() : colorName(brush.color()), "color");
}

void TestVocabulary::namesWithoutDocument()
{
    QCOMPARE(Custom::getDataBaseColor(QStringLiteral("Red")), QBrush());
    QVERIFY(!Custom::string2Color(QStringLiteral("DB_COLOR_RED")).isValid());
    // Neither takes up the base document.
    QCOMPARE(CustomStyleSheetData::instance(), nullptr);
    addColors(kSkinColors);
    const QRect rect(0, 0, 30, 20);
    QCOMPARE(gradientOf(Custom::getDataBaseColor(QStringLiteral("shade"), rect)).finalStop(), QPointF(30, 20));
}

void TestVocabulary::imagePathIsTexture()
{
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(Qt::green);
    const QString path = scratchFile(QByteArray(), QStringLiteral(".png"));
    QVERIFY(image.save(path));
    const QBrush brush = Custom::string2Brush(QLatin1String("  ") + path + QLatin1Char(' '), QRect(0, 0, 50, 50));
    QCOMPARE(brush.style(), Qt::TexturePattern);
    QCOMPARE(brush.texture().toImage().convertToFormat(QImage::Format_RGB32), image);
    compareParsed(path);
    QCOMPARE(Custom::string2Brush(scratchFile("no image", QStringLiteral(".png"))).style(), Qt::NoBrush);
}

void TestVocabulary::gradientParse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QPointF>("start");
    QTest::addColumn<QPointF>("end");
    const QString good = QStringLiteral("qlineargradient(x1:0.1; y1:0.2; x2:1; y2:0.5**stop:0 #000000;)");
    const QRect rect(5, 6, 200, 100);
    const auto coordinates
        = [](const char *text) -> QString { return QLatin1String(text) + QStringLiteral("**stop:0 #fff;)"); };
    QTest::newRow("null rectangle") << good << QRect() << true << QPointF(0.1, 0.2) << QPointF(1, 0.5);
    QTest::newRow("scaled") << good << rect << true << QPointF(20, 20) << QPointF(200, 50);
    QTest::newRow("empty rectangle") << good << QRect(0, 0, 0, 9) << true << QPointF(0.1, 0.2) << QPointF(1, 0.5);
    QTest::newRow("words don't count") << coordinates("a:1;b:2;:3; d : 4 ") << QRect() << true << QPointF(1, 2)
                                       << QPointF(3, 4);
    QTest::newRow("no numbers") << coordinates("a:x;b:;c:1e1;d:-2") << QRect() << true << QPointF(0, 0)
                                << QPointF(10, -2);
    QTest::newRow("no stops") << QStringLiteral("a:1;b:2;c:3;d:4**") << QRect() << true << QPointF(1, 2)
                              << QPointF(3, 4);
    // What just fails leaves a default gradient.
    const char *const bad[] = { "", "**", "a:1;b:2;c:3;d:4", "a:1;b:2;c:3**", "a:1;b:2;c:3;d:4;**", "a:1;b:2;c:3;d**",
        "a:1;b:2;c:3;d:4:5**", "a:1;b:2;c:3;d:4**stop:0 #fff;**", "a:1;b:2;c:3;d:4*stop:0 #fff;)" };
    for (const char *text : bad)
        QTest::newRow(text) << QString::fromLatin1(text) << rect << false << QPointF(0, 0) << QPointF(1, 1);
}

void TestVocabulary::gradientParse()
{
    QFETCH(QString, text);
    QFETCH(QRect, rect);
    QFETCH(bool, ok);
    bool parsed = !ok;
    const QLinearGradient gradient = Custom::string2Gradient(text, rect, &parsed);
    QCOMPARE(parsed, ok);
    QTEST(gradient.start(), "start");
    QTEST(gradient.finalStop(), "end");
    if (!ok)
        QCOMPARE(gradient.stops(), QLinearGradient().stops());
    QCOMPARE(Custom::string2Gradient(text, rect, nullptr), gradient);
}

void TestVocabulary::gradientStops_data()
{
    QTest::addColumn<QString>("expected");
    QTest::newRow("stop:0 #ff0000;stop:1 rgba(0,0,255,9);)") << QStringLiteral("0 #ffff0000, 1 #090000ff");
    QTest::newRow("stop: 0 #ff0000 ; any:0.5 DB_COLOR_Link;)") << QStringLiteral("0 #ffff0000, 0.5 #ffff0000");
    QTest::newRow("stop:1 #ff0000;stop:0.25 #00ff00;)") << QStringLiteral("0.25 #ff00ff00, 1 #ffff0000");
    // Blanks in the colour, a second colon, no blank and none at all: skipped, one by one.
    QTest::newRow("stop:0 rgba(1, 2, 3);stop:0.5  #fff;stop:0.6:#fff;stop:0.7#fff;0.8 #fff;stop:1 #00ff00;)")
        << QStringLiteral("1 #ff00ff00");
    QTest::newRow("stop:x #ff0000;)") << QStringLiteral("0 #ffff0000");
    QTest::newRow("stop:0 #ff0000;stop:1 #00ff00)") << QStringLiteral("0 #ffff0000, 1 ");
    QTest::newRow("stop:0 nonsense;)") << QStringLiteral("0 ");
    QTest::newRow("stop:0 #ff0000;stop:0 #00ff00;)") << QStringLiteral("0 #ff00ff00");
    QTest::newRow("stop:-1 #ff0000;stop:0.5 #00ff00;stop:1.01 #ff0000;)") << QStringLiteral("0.5 #ff00ff00");
}

void TestVocabulary::gradientStops()
{
    addColors(kSkinColors);
    const QString text = QLatin1String("a:0;b:0;c:1;d:0**") + QString::fromLatin1(QTest::currentDataTag());
    QStringList stops;
    const QGradientStops given = Custom::string2Gradient(text).stops();
    for (const QGradientStop &stop : given)
        stops.append(QStringLiteral("%1 %2").arg(stop.first).arg(colorName(stop.second)));
    QTEST(stops.join(QStringLiteral(", ")), "expected");
    compareParsed(QLatin1String("QLinearGradient") + text);
}

void TestVocabulary::gradientBrushTakesTextThatDoesNotParse()
{
    const QBrush brush = Custom::string2Brush(QStringLiteral("  QLINEARGRADIENT nonsense"), QRect(0, 0, 9, 9));
    QCOMPARE(brush.style(), Qt::LinearGradientPattern);
    QCOMPARE(gradientOf(brush).finalStop(), QPointF(1, 1));
    QCOMPARE(gradientOf(Custom::string2Brush(
                            QStringLiteral(" qlineargradient(x1:0;y1:0;x2:1;y2:1**stop:0 #fff;) "), QRect(0, 0, 9, 5)))
                 .finalStop(),
        QPointF(9, 5));
    // A gradient brush has a style and no colour.
    QVERIFY(!Custom::string2Color(QStringLiteral("qlineargradient(a:0;b:0;c:1;d:1**stop:0 #ff0000;)")).isValid());
    compareParsed(QStringLiteral("  QLINEARGRADIENT nonsense"));
}

void TestVocabulary::writtenGradients_data()
{
    QTest::addColumn<QPointF>("start");
    QTest::addColumn<QPointF>("end");
    QTest::addColumn<QString>("coordinates");
    const auto row = [](const char *name, QPointF start, QPointF end, const char *text) {
        QTest::newRow(name) << start << end << QString::fromLatin1(text);
    };
    row("across", { 0, 0 }, { 100, 0 }, "x1:0; y1:0; x2:100; y2:0");
    row("both", { 0, 0 }, { 100, 50 }, "x1:0; y1:0; x2:2; y2:1");
    row("start by x, end by y", { 10, 20 }, { 40, 5 }, "x1:0.25; y1:0.5; x2:2; y2:0.25");
    row("greatest at the start", { 50, 2 }, { 10, 4 }, "x1:1; y1:0.04; x2:2.5; y2:1");
    row("up to 1 nothing is scaled", { 0.5, 0.25 }, { 1, 1 }, "x1:0.5; y1:0.25; x2:1; y2:1");
    row("negative", { -4, -2 }, { -8, -1 }, "x1:-4; y1:-2; x2:-8; y2:-1");
    row("six digits", { 1.0 / 3, 0 }, { 0, 1e-7 }, "x1:0.333333; y1:0; x2:0; y2:1e-07");
}

void TestVocabulary::writtenGradients()
{
    QFETCH(QPointF, start);
    QFETCH(QPointF, end);
    QFETCH(QString, coordinates);
    QLinearGradient gradient(start, end);
    gradient.setStops({ { 0.125, QColor(1, 2, 3, 4) }, { 1, QColor(255, 0, 0) } });
    const QString text = QLatin1String("qlineargradient(") + coordinates
        + QLatin1String("**stop:0.125 rgba(1,2,3,4);stop:1 rgba(255,0,0,255);)");
    QCOMPARE(Custom::gradient2String(gradient), text);
    QCOMPARE(Custom::brush2String(QBrush(gradient)), text);
    bool ok = false;
    QCOMPARE(Custom::string2Gradient(text, QRect(), &ok).stops(), gradient.stops());
    QVERIFY(ok);
}

void TestVocabulary::writtenColorsAndBrushes()
{
    QCOMPARE(Custom::color2String(QColor(1, 2, 3)), QStringLiteral("rgba(1,2,3,255)"));
    QCOMPARE(Custom::color2String(QColor(200, 0, 255, 0)), QStringLiteral("rgba(200,0,255,0)"));
    QCOMPARE(Custom::color2String(QColor()), QStringLiteral("rgba(0,0,0,255)"));
    QCOMPARE(Custom::brush2String(QColor(9, 8, 7, 6)), QStringLiteral("rgba(9,8,7,6)"));
    QBrush texture(QPixmap(2, 2));
    texture.setColor(QColor(5, 5, 5));
    QCOMPARE(Custom::brush2String(texture), QStringLiteral("rgba(5,5,5,255)"));
    QCOMPARE(Custom::brush2String(QRadialGradient(1, 1, 1)), Custom::color2String(QColor()));
    QCOMPARE(Custom::brush2String(QConicalGradient(1, 1, 1)), Custom::color2String(QColor()));
}

void TestVocabulary::cycleGivesDefaultBrush_data()
{
    QTest::addColumn<QByteArray>("colors");
    QTest::newRow("itself") << QByteArray("<Color Id='A' Value='DB_COLOR_A'/>");
    QTest::newRow("itself in other case") << QByteArray("<Color Id='A' Value='DB_COLOR_a'/>");
    QTest::newRow("two") << QByteArray("<Color Id='A' Value='DB_COLOR_B'/><Color Id='B' Value='DB_COLOR_A'/>");
    QTest::newRow("leads into one") << QByteArray("<Color Id='A' Value='DB_COLOR_B'/><Color Id='B' Value='DB_COLOR_C'/>"
                                                  "<Color Id='C' Value='DB_COLOR_b'/>");
}

void TestVocabulary::cycleGivesDefaultBrush()
{
    QFETCH(QByteArray, colors);
    addColors(colors);
    QCOMPARE(Custom::string2Brush(QStringLiteral("DB_COLOR_A")), QBrush());
    QCOMPARE(Custom::getDataBaseColor(QStringLiteral("a"), QRect(0, 0, 5, 5)), QBrush());
    QVERIFY(!Custom::string2Color(QStringLiteral("DB_COLOR_A")).isValid());
    compareParsed(QStringLiteral("DB_COLOR_A"));
}

void TestVocabulary::cycleThroughStops()
{
    const QByteArray head = "qlineargradient(x1:0; y1:0; x2:1; y2:1**stop:0 #ff0000;stop:1 ";
    addColors("<Color Id='Own' Value='" + head + "DB_COLOR_OWN;)'/><Color Id='A' Value='" + head
        + "DB_COLOR_LINK;)'/><Color Id='Link' Value='DB_COLOR_B'/><Color Id='B' Value='" + head
        + "DB_COLOR_A;stop:0.5 DB_COLOR_B;)'/>");
    for (const char *name : { "DB_COLOR_OWN", "DB_COLOR_A", "DB_COLOR_B" }) {
        const QString text = QString::fromLatin1(name);
        const QGradientStops stops = gradientOf(Custom::string2Brush(text, QRect(0, 0, 10, 10))).stops();
        QCOMPARE(stops.first().second, QColor(Qt::red));
        QVERIFY(!stops.last().second.isValid());
        QVERIFY(!Custom::string2Color(text).isValid());
        compareParsed(text);
    }
}

void TestVocabulary::longChain()
{
    constexpr int kLinks = 100000;
    QByteArray colors = "<Color Id='C0' Value='#123456'/>";
    for (int i = 1; i <= kLinks; ++i)
        colors += QByteArray("<Color Id='C") + QByteArray::number(i) + "' Value='DB_COLOR_C" + QByteArray::number(i - 1)
            + "'/>";
    addColors(colors);
    const QString text = QStringLiteral("DB_COLOR_C%1").arg(kLinks);
    QCOMPARE(Custom::string2Color(text), QColor(0x12, 0x34, 0x56));
    compareParsed(text);
}

ZANTHIC_TEST_MAIN(TestVocabulary)
#include "tst_vocabulary.moc"
