#include "StyleHost.h"

#include "style/CustomStyleSheetData_p.h"
#include "style/StyleColors_p.h"

namespace {

// The same brush by the function and by the text that is parsed once, for every rectangle.
void compareParsed(const QString &text)
{
    const ParsedBrush parsed(text);
    QCOMPARE(parsed.unscaled(), Custom::string2Brush(text));
    for (const QRect &rect : { QRect(), QRect(10, 20, 7, 3), QRect(0, 0, 0, 10), QRect(0, 0, -5, 10) })
        QCOMPARE(parsed.scaledTo(rect), Custom::string2Brush(text, rect));
}

// The words of the numbers from -1 to 5.
template <typename Enum>
QString words(QString (*text)(Enum))
{
    QStringList result;
    for (int i = -1; i < 6; ++i)
        result.append(text(Enum(i)));
    return result.join(' ');
}

} // namespace

class TestVocabulary : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void wordsAndNumbers()
    {
        QCOMPARE(words(Custom::itemStatus2String), "  Hover Pressed Disabled  "_s);
        QCOMPARE(words(Custom::commonStyleSelector), "Default Default GrayWhite DarkBlack Default Default Default"_s);
        QCOMPARE(words(Custom::language2String), " Zh_cn En_us    "_s);
        QCOMPARE(words(Custom::borderEdge2String), "AllEdge Left Right Top Bottom AllEdge AllEdge"_s);
        QCOMPARE(words(Custom::borderCorner2String),
            "AllCorner LeftTop RightTop LeftBottom RightBottom AllCorner AllCorner"_s);
        // Documents hold these numbers.
        QCOMPARE(Custom::ParamBaseBackgroundImage | Custom::ParamUserFontFamily | Custom::ParamColorRect, 448);
    }

    void colorTexts_data() { addRowsOf("cases/colors.txt"_s, { "text", "brush", "named" }); }
    void colorTexts()
    {
        const QString text = cell("text");
        QVERIFY(Custom::getDataBaseColor(text) == QBrush() && !CustomStyleSheetData::instance()); // takes up nothing
        Custom::initStyleSheetDataPointer();
        Custom::readSkinColorFile(dataFile("skin-colors.xml"_s));
        QTEST(described(Custom::string2Brush(text, QRect(0, 0, 10, 20))), "brush");
        QTEST(described(Custom::getDataBaseColor(text, QRect(0, 0, 10, 20))), "named");
        // A gradient has a brush and no colour.
        QCOMPARE(colorName(Custom::string2Color(text)), cell("brush").startsWith('#') ? cell("brush") : "invalid"_s);
        compareParsed(text);
    }

    void gradientTexts_data() { addRowsOf("cases/gradients.txt"_s, { "text", "size", "expected" }); }
    void gradientTexts()
    {
        addColors("<Color Id='Link' Value='#ff0000'/>");
        const QRect rect(5, 6, int(number("size", 0)), int(number("size", 1)));
        bool ok = false;
        const QLinearGradient gradient = Custom::string2Gradient("qlineargradient("_s + cell("text"), rect, &ok);
        QTEST(ok ? described(gradient) : "fails"_s, "expected");
        QVERIFY(ok || gradient == QLinearGradient());
        // A brush takes any text that begins like a gradient.
        const QString shouted = " QLinearGradient("_s + cell("text") + ' ';
        QCOMPARE(Custom::string2Brush(shouted, rect), QBrush(gradient));
        compareParsed(shouted);
    }

    void longChainHasNoLimit()
    {
        constexpr int kLinks = 100000;
        QByteArray colors = "<Color Id='C0' Value='#123456'/>";
        for (int i = 1; i <= kLinks; ++i)
            colors += QStringLiteral("<Color Id='C%1' Value='DB_COLOR_C%2'/>").arg(i).arg(i - 1).toLatin1();
        addColors(colors);
        QCOMPARE(Custom::string2Color(QStringLiteral("DB_COLOR_C%1").arg(kLinks)), QColor(0x12, 0x34, 0x56));
    }

    void writtenGradients_data() { addRowsOf("cases/written-gradients.txt"_s, { "points", "expected" }); }
    void writtenGradients()
    {
        QLinearGradient gradient(number("points", 0), number("points", 1), number("points", 2), number("points", 3));
        gradient.setStops({ { 0.125, QColor(1, 2, 3, 4) }, { 1, QColor(255, 0, 0) } });
        const QString text = QStringLiteral("qlineargradient(%1**stop:0.125 rgba(1,2,3,4);stop:1 rgba(255,0,0,255);)");
        QCOMPARE(Custom::gradient2String(gradient), text.arg(cell("expected")));
        QCOMPARE(Custom::brush2String(gradient), text.arg(cell("expected")));
        QCOMPARE(Custom::string2Gradient(text.arg(cell("expected"))).stops(), gradient.stops());
        QBrush texture(QPixmap(2, 2)); // other brushes are written as their colour
        texture.setColor(QColor(9, 8, 7, 6));
        QCOMPARE(Custom::brush2String(texture), "rgba(9,8,7,6)"_s);
        QCOMPARE(Custom::brush2String(QRadialGradient(1, 1, 1)), "rgba(0,0,0,255)"_s);
    }
};

ZANTHIC_TEST_MAIN(TestVocabulary)
#include "tst_vocabulary.moc"
