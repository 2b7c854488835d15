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
        result.append(QString::number(meta.value(i)));
    return result.join(QLatin1Char(' '));
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
    void words();
    void numbersAreFixed();
    void hasParameterNeedsEveryBit();
    void statusOfStyleState();
    void colorTexts_data();
    void colorTexts();
    void skinColorNames();
    void namesWithoutDocument();
    void imagePathIsTexture();
    void gradientParse_data();
    void gradientParse();
    void gradientStops_data();
    void gradientStops();
    void gradientBrushTakesTextThatDoesNotParse();
    void writtenGradients();
    void writtenColorsAndBrushes();
    void cycleGivesDefaultBrush();
    void cycleThroughStops();
    void longChain();
};

void TestVocabulary::words()
{
    using namespace Custom;
    QStringList status, selectors, languages, edges, corners;
    for (int i = -1; i < 6; ++i) {
        status.append(itemStatus2String(ItemStatus(i)));
        selectors.append(commonStyleSelector(CommonStyleSelector(i)));
        languages.append(language2String(Language(i)));
        edges.append(borderEdge2String(BorderEdge(i)));
        corners.append(borderCorner2String(BorderCorner(i)));
    }
    const auto all = [](const QStringList &words) { return words.join(QLatin1Char(' ')); };
    QCOMPARE(all(status), QStringLiteral("  Hover Pressed Disabled  "));
    QCOMPARE(all(selectors), QStringLiteral("Default Default GrayWhite DarkBlack Default Default Default"));
    QCOMPARE(all(languages), QStringLiteral(" Zh_cn En_us    "));
    QCOMPARE(all(edges), QStringLiteral("AllEdge Left Right Top Bottom AllEdge AllEdge"));
    QCOMPARE(all(corners), QStringLiteral("AllCorner LeftTop RightTop LeftBottom RightBottom AllCorner AllCorner"));
}

void TestVocabulary::numbersAreFixed()
{
    // Documents hold these numbers; the table fails when a value is slipped in between.
    QCOMPARE(numbers<Custom::ObjectParameter>(), QStringLiteral("1 2 4 8 16 32 64 128 256"));
    QCOMPARE(numbers<Custom::BorderStyle>(), QStringLiteral("0 1 2 3 4 5 6 7 8 9 10"));
    QCOMPARE(numbers<Custom::CustomWidgetType>(), QStringLiteral("0 1 2 3 4 5 6 7 8"));
    QCOMPARE(int(Custom::BorderGroove) * 100 + int(Custom::WidgetDotSlider) * 10 + int(Custom::SheetTabBar), 768);
}

void TestVocabulary::hasParameterNeedsEveryBit()
{
    const struct
    {
        int held;
        int asked;
        bool expected;
    } rows[] = { { 4, 4, true }, { 4, 6, false }, { 7, 6, true }, { 0, 1, false }, { 0, 0, true }, { 2, 0, false } };
    for (const auto &row : rows) {
        StyleHost host;
        host.cSetParameter(Custom::ObjectParameter(row.held), true);
        QCOMPARE(host.cHasParameter(Custom::ObjectParameter(row.asked)), row.expected);
    }
}

void TestVocabulary::statusOfStyleState()
{
    const StyleHost host;
    const QStyle::State all = QStyle::State_Enabled | QStyle::State_Sunken | QStyle::State_MouseOver;
    QCOMPARE(host.cGetItemStatus(all & ~QStyle::State_Enabled), Custom::Disabled);
    QCOMPARE(host.cGetItemStatus(all), Custom::Pressed);
    QCOMPARE(host.cGetItemStatus(all & ~QStyle::State_Sunken), Custom::Hover);
    QCOMPARE(host.cGetItemStatus(QStyle::State_Enabled | QStyle::State_On), Custom::Normal);
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

void TestVocabulary::skinColorNames()
{
    addColors(kSkinColors);
    for (const char *red : { "RED", "red", "db_color_red", "DB_Color_Link" })
        QCOMPARE(Custom::getDataBaseColor(QString::fromLatin1(red)), QBrush(Qt::red));
    for (const char *nameless : { "", "db_color_" })
        QCOMPARE(Custom::getDataBaseColor(QString::fromLatin1(nameless)), QBrush(Qt::blue));
    for (const char *unknown : { " red", "Unknown", "LowerLink", "DB_COLOR_DB_COLOR_RED" })
        QCOMPARE(Custom::getDataBaseColor(QString::fromLatin1(unknown)), QBrush());
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

void TestVocabulary::writtenGradients()
{
    const struct
    {
        QPointF start;
        QPointF end;
        const char *coordinates;
    } rows[] = {
        { { 0, 0 }, { 100, 0 }, "x1:0; y1:0; x2:100; y2:0" },
        { { 0, 0 }, { 100, 50 }, "x1:0; y1:0; x2:2; y2:1" },
        { { 10, 20 }, { 40, 5 }, "x1:0.25; y1:0.5; x2:2; y2:0.25" },
        { { 50, 2 }, { 10, 4 }, "x1:1; y1:0.04; x2:2.5; y2:1" },
        { { 0.5, 0.25 }, { 1, 1 }, "x1:0.5; y1:0.25; x2:1; y2:1" },
        { { -4, -2 }, { -8, -1 }, "x1:-4; y1:-2; x2:-8; y2:-1" },
        { { 1.0 / 3, 0 }, { 0, 1e-7 }, "x1:0.333333; y1:0; x2:0; y2:1e-07" },
    };
    for (const auto &row : rows) {
        QLinearGradient gradient(row.start, row.end);
        gradient.setStops({ { 0.125, QColor(1, 2, 3, 4) }, { 1, QColor(255, 0, 0) } });
        const QString text = QLatin1String("qlineargradient(") + QLatin1String(row.coordinates)
            + QLatin1String("**stop:0.125 rgba(1,2,3,4);stop:1 rgba(255,0,0,255);)");
        QCOMPARE(Custom::gradient2String(gradient), text);
        QCOMPARE(Custom::brush2String(QBrush(gradient)), text);
        bool ok = false;
        QCOMPARE(Custom::string2Gradient(text, QRect(), &ok).stops(), gradient.stops());
        QVERIFY(ok);
    }
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

void TestVocabulary::cycleGivesDefaultBrush()
{
    addColors(
        "<Color Id='Own' Value='DB_COLOR_OWN'/><Color Id='Case' Value='DB_COLOR_cASE'/>"
        "<Color Id='A' Value='DB_COLOR_B'/><Color Id='B' Value='DB_COLOR_a'/><Color Id='Into' Value='DB_COLOR_A'/>");
    for (const char *name : { "DB_COLOR_Own", "DB_COLOR_Case", "DB_COLOR_A", "DB_COLOR_Into" }) {
        const QString text = QString::fromLatin1(name);
        QCOMPARE(Custom::string2Brush(text), QBrush());
        QCOMPARE(Custom::getDataBaseColor(text.mid(9), QRect(0, 0, 5, 5)), QBrush());
        QVERIFY(!Custom::string2Color(text).isValid());
        compareParsed(text);
    }
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
    colors.reserve(kLinks * 64);
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
