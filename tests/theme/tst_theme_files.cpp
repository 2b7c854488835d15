#include "support/StyleTest.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/ZanthicTheme.h>

#include <QtCore/QDirIterator>
#include <QtCore/QMetaEnum>
#include <QtCore/QRegularExpression>
#include <QtGui/QImage>
#include <QtTest/QtTest>
#include <QtXml/QDomDocument>

#include <cmath>

namespace {

using AttributeTable = QMap<QString, QString>;

const auto kPage = QStringLiteral("DB_COLOR_Custom_Window_Background");

// Taken before there is an application object.
const QString skinBeforeFirst = ZanthicTheme::currentSkin();
const bool unknownBeforeFirst = ZanthicTheme::applySkin(QStringLiteral("sepia"));
const bool pathsBeforeFirst = QFile::exists(QStringLiteral(":/Zanthic/QSS/SkinColor.xml"));
const bool appliedBeforeApplication = ZanthicTheme::applySkin(QStringLiteral("dark"));
const QColor pageBeforeApplication = Custom::string2Color(kPage);

const auto kDocumentPath = QStringLiteral(":/Zanthic/QSS/CustomStyleSheet.xml");
const auto kColorPath = QStringLiteral(":/Zanthic/QSS/SkinColor.xml");

constexpr double kTextContrast = 4.5;
constexpr double kIndicatorContrast = 3.0;

const std::array<Custom::ItemStatus, 4> kStatuses{ { Custom::Normal, Custom::Hover, Custom::Pressed,
    Custom::Disabled } };

QByteArray bytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QList<QDomElement> elementsBelow(const QDomElement &parent)
{
    QList<QDomElement> result;
    for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        result += child;
        result += elementsBelow(child);
    }
    return result;
}

QList<QDomElement> elements(const QString &path)
{
    QDomDocument document;
    return document.setContent(bytes(path)) ? elementsBelow(document.documentElement()) : QList<QDomElement>();
}

QStringList colorKeys()
{
    QStringList keys;
    for (const QDomElement &element : elements(kColorPath)) {
        if (element.tagName() == QLatin1String("Color"))
            keys += element.attribute(QStringLiteral("Id"));
        else
            keys += QLatin1String("Table ") + element.attribute(QStringLiteral("Name"));
    }
    return keys;
}

QColor over(const QColor &front, const QColor &back)
{
    const double a = front.alphaF();
    return QColor::fromRgbF(front.redF() * a + back.redF() * (1 - a), front.greenF() * a + back.greenF() * (1 - a),
        front.blueF() * a + back.blueF() * (1 - a));
}

double luminance(const QColor &color)
{
    const auto linear = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

// The contrast ratio of the Web Content Accessibility Guidelines, from 1 to 21.
double contrast(const QColor &a, const QColor &b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

// What a control may stand on.
QList<QColor> pages()
{
    return { Custom::string2Color(kPage), Custom::getDataBaseColor(QStringLiteral("Custom_Surface")).color() };
}

// What a failed comparison tells.
QByteArray told(const QString &what, double ratio)
{
    return what.toLocal8Bit().append(' ').append(QByteArray::number(ratio));
}

// What a control of this class and selector reads: the selector over Default.
AttributeTable attributes(const QString &className, const QString &selector)
{
    AttributeTable table = Custom::getAttrMap(className.toLower(), QStringLiteral("default"));
    const AttributeTable own = Custom::getAttrMap(className.toLower(), selector.toLower());
    for (auto it = own.cbegin(); it != own.cend(); ++it)
        table.insert(it.key(), it.value());
    return table;
}

QString value(const AttributeTable &table, const QString &attribute, Custom::ItemStatus status)
{
    const QString key = attribute.toLower();
    const QString suffix = Custom::itemStatus2String(status).toLower();
    const QString own = suffix.isEmpty() ? QString() : table.value(key + QLatin1Char(':') + suffix);
    return own.isEmpty() ? table.value(key) : own;
}

QString statusName(Custom::ItemStatus status)
{
    return QString::fromLatin1(QMetaEnum::fromType<Custom::ItemStatus>().valueToKey(status));
}

template <typename Enum>
QStringList enumNames()
{
    const auto meta = QMetaEnum::fromType<Enum>();
    QStringList names;
    for (int i = 0; i < meta.keyCount(); ++i)
        names += QString::fromLatin1(meta.key(i));
    return names;
}

// The selectors of each class that the theme has to know.
QList<QPair<QString, QStringList>> buttonSelectors()
{
    return { { QStringLiteral("CustomPushButton"), enumNames<CustomPushButton::StyleSelector>() } };
}

QList<QPair<QString, QStringList>> indicatorSelectors()
{
    return { { QStringLiteral("CustomCheckBox"), enumNames<CustomCheckBox::StyleSelector>() },
        { QStringLiteral("CustomRadioButton"), { QStringLiteral("Default") } } };
}

QList<QPair<QString, QStringList>> boxSelectors()
{
    const QStringList common = enumNames<Custom::CommonStyleSelector>();
    return { { QStringLiteral("CustomWidget"), common }, { QStringLiteral("CustomFrame"), common } };
}

QStringList suffixes(const QString &className)
{
    QStringList result{ QStringLiteral("unchecked"), QStringLiteral("checked") };
    if (className == QLatin1String("CustomCheckBox"))
        result += QStringLiteral("partiallyChecked");
    return result;
}

void addRows(const QList<QPair<QString, QStringList>> &classes)
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("selector");
    for (const QString &skin : ZanthicTheme::skins()) {
        for (const auto &[className, selectors] : classes) {
            for (const QString &selector : selectors)
                QTest::addRow("%s %s %s", qPrintable(skin), qPrintable(className), qPrintable(selector))
                    << skin << className << selector;
        }
    }
}

// Along the middle row of an indicator: the outline first, then what it is filled with.
struct IndicatorColors
{
    QColor edge;
    QColor fill;
    double markContrast = 0; // of the colour that stands out most from the fill
};

IndicatorColors indicatorColors(const QImage &image)
{
    constexpr int kFillOffset = 4; // px behind the outline, which is 2 px wide at this scale
    IndicatorColors result;
    const int y = image.height() / 2;
    int x = 0;
    while (x < image.width() && image.pixelColor(x, y).alpha() < 255)
        ++x;
    if (x + kFillOffset >= image.width())
        return result;
    result.edge = image.pixelColor(x, y);
    result.fill = image.pixelColor(x + kFillOffset, y);
    const int right = image.width() - x - kFillOffset;
    for (int row = y - 4; row <= y + 4; ++row) {
        for (int column = x + kFillOffset; column < right; ++column)
            result.markContrast = std::max(
                result.markContrast, contrast(over(image.pixelColor(column, row), result.fill), result.fill));
    }
    return result;
}

} // namespace

class TestThemeFiles : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void skinBeforeApplication();
    void applySkinContract();
    void changesLiveWidgets();
    void skinsHoldTheSameKeys();
    void everyNameResolves_data();
    void everyNameResolves();
    void everyImageHasADoubleSize_data() { addSkins(); }
    void everyImageHasADoubleSize();
    void sheetsAreFilled_data() { addSkins(); }
    void sheetsAreFilled();
    void boxesAreComplete_data() { addRows(boxSelectors() + buttonSelectors()); }
    void boxesAreComplete();
    void selectorsReplaceEveryStatus_data() { addRows(boxSelectors() + buttonSelectors() + indicatorSelectors()); }
    void selectorsReplaceEveryStatus();
    void buttonsReadWell_data() { addRows(buttonSelectors()); }
    void buttonsReadWell();
    void indicatorsReadWell_data() { addRows(indicatorSelectors()); }
    void indicatorsReadWell();
    void indicatorsKeepTheirSize_data() { addRows(indicatorSelectors()); }
    void indicatorsKeepTheirSize();
    void sheetColorsReadWell_data();
    void sheetColorsReadWell();

private:
    static void addSkins();
};

void TestThemeFiles::addSkins()
{
    QTest::addColumn<QString>("skin");
    for (const QString &skin : ZanthicTheme::skins())
        QTest::newRow(qPrintable(skin)) << skin;
}

void TestThemeFiles::skinBeforeApplication()
{
    QCOMPARE(skinBeforeFirst, QString());
    QVERIFY(!unknownBeforeFirst);
    QVERIFY(!pathsBeforeFirst);
    QVERIFY(appliedBeforeApplication);
    QCOMPARE(ZanthicTheme::currentSkin(), QStringLiteral("dark"));
    QVERIFY(pageBeforeApplication.isValid());
}

void TestThemeFiles::applySkinContract()
{
    const auto image = QStringLiteral(":/Zanthic/Control/CheckBox_checked_Default.png");
    QCOMPARE(ZanthicTheme::skins(), QStringList({ QStringLiteral("light"), QStringLiteral("dark") }));

    QVERIFY(ZanthicTheme::applySkin(QStringLiteral("light")));
    QCOMPARE(ZanthicTheme::currentSkin(), QStringLiteral("light"));
    const QByteArray lightColors = bytes(kColorPath);
    const QByteArray lightImage = bytes(image);
    const QColor lightPage = Custom::string2Color(kPage);

    QVERIFY(ZanthicTheme::applySkin(QStringLiteral("dark")));
    QCOMPARE(ZanthicTheme::currentSkin(), QStringLiteral("dark"));
    QVERIFY(bytes(kColorPath) != lightColors);
    QVERIFY(bytes(image) != lightImage);
    QVERIFY(luminance(Custom::string2Color(kPage)) < luminance(lightPage));

    for (const QString &unknown : { QString(), QStringLiteral("Light"), QStringLiteral("sepia") }) {
        const QByteArray before = bytes(kColorPath);
        QVERIFY(!ZanthicTheme::applySkin(unknown));
        QCOMPARE(ZanthicTheme::currentSkin(), QStringLiteral("dark"));
        QCOMPARE(bytes(kColorPath), before);
    }

    QVERIFY(ZanthicTheme::applySkin(QStringLiteral("light")));
    QCOMPARE(bytes(kColorPath), lightColors);
    QCOMPARE(bytes(image), lightImage);
    QCOMPARE(Custom::string2Color(kPage), lightPage);
}

void TestThemeFiles::changesLiveWidgets()
{
    class Counter : public QWidget
    {
    public:
        int count = 0;

    protected:
        void customEvent(QEvent *event) override { count += event->type() == ChangeSkinEvent::EventType ? 1 : 0; }
    };

    QVERIFY(ZanthicTheme::applySkin(QStringLiteral("light")));
    Counter counter;
    QVERIFY(ZanthicTheme::applySkin(QStringLiteral("light")));
    QCOMPARE(counter.count, 1);
    QVERIFY(!ZanthicTheme::applySkin(QStringLiteral("sepia")));
    QCOMPARE(counter.count, 1);
}

void TestThemeFiles::skinsHoldTheSameKeys()
{
    QVERIFY(ZanthicTheme::applySkin(QStringLiteral("light")));
    const QStringList light = colorKeys();
    QVERIFY(ZanthicTheme::applySkin(QStringLiteral("dark")));
    QCOMPARE(colorKeys(), light);
    QVERIFY(light.size() > 50);
    QSet<QString> once;
    for (const QString &key : light) {
        QVERIFY2(!once.contains(key.toUpper()), qPrintable(key));
        once += key.toUpper();
    }
}

void TestThemeFiles::everyNameResolves_data()
{
    addSkins();
}

void TestThemeFiles::everyNameResolves()
{
    QFETCH(QString, skin);
    QVERIFY(ZanthicTheme::applySkin(skin));
    for (const QString &key : colorKeys()) {
        if (!key.startsWith(QLatin1String("Table ")))
            QVERIFY2(Custom::getDataBaseColor(key).style() == Qt::SolidPattern, qPrintable(key));
    }
    int colors = 0;
    int paths = 0;
    for (const QDomElement &element : elements(kDocumentPath)) {
        const QString text = element.firstChildElement().isNull() ? element.text() : QString();
        const bool isColor = element.tagName().contains(QLatin1String("Color"));
        QVERIFY2(!isColor || text.isEmpty() || text.startsWith(QLatin1String("DB_COLOR_")), qPrintable(text));
        if (text.startsWith(QLatin1String("DB_COLOR_"))) {
            QVERIFY2(Custom::string2Color(text).isValid(), qPrintable(text));
            ++colors;
        } else if (text.startsWith(QLatin1Char(':'))) {
            QVERIFY2(QFile::exists(text), qPrintable(text));
            QVERIFY2(!text.endsWith(QLatin1String(".png")) || !QImage(text).isNull(), qPrintable(text));
            ++paths;
        }
    }
    QVERIFY(colors > 50);
    QVERIFY(paths > 60);
}

void TestThemeFiles::everyImageHasADoubleSize()
{
    QFETCH(QString, skin);
    QVERIFY(ZanthicTheme::applySkin(skin));
    int pairs = 0;
    QDirIterator it(
        QStringLiteral(":/Zanthic"), { QStringLiteral("*.png") }, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QString path = it.next();
        if (path.contains(QLatin1String("@2x"))) {
            QVERIFY2(QFile::exists(path.remove(QLatin1String("@2x"))), qPrintable(path));
            continue;
        }
        const QImage image(path);
        const QImage twice(path.insert(path.size() - 4, QLatin1String("@2x")));
        QVERIFY2(!image.isNull(), qPrintable(path));
        QVERIFY2(twice.size() == image.size() * 2, qPrintable(path));
        ++pairs;
    }
    QVERIFY(pairs > 60);
}

void TestThemeFiles::sheetsAreFilled()
{
    QFETCH(QString, skin);
    QVERIFY(ZanthicTheme::applySkin(skin));
    const QRegularExpression url(QStringLiteral("url\\(([^)]+)\\)"));
    const auto types = QMetaEnum::fromType<Custom::StyleSheetType>();
    for (int i = 0; i < types.keyCount(); ++i) {
        const char *name = types.key(i);
        QString sheet = Custom::styleSheet(Custom::StyleSheetType(types.value(i)));
        QVERIFY2(!sheet.isEmpty(), name);
        if (types.value(i) == Custom::SheetLineEdit) {
            // A line edit fills this one itself.
            QVERIFY(sheet.contains(QLatin1String("*PaddingLeft*")));
            sheet.replace(QLatin1String("*PaddingLeft*"), QLatin1String("0"));
        }
        QVERIFY2(!sheet.contains(QRegularExpression(QStringLiteral("@|##|\\*|DB_COLOR_"))), name);
        QCOMPARE(sheet.count(QLatin1Char('{')), sheet.count(QLatin1Char('}')));
        const bool hasText = types.value(i) != Custom::SheetScrollBar && types.value(i) != Custom::SheetSlider;
        for (Custom::Language language : { Custom::Zh_cn, Custom::En_us })
            QVERIFY2(sheet.contains(Custom::globalFontFamily(language)) == hasText, name);
        for (auto match = url.globalMatch(sheet); match.hasNext();)
            QVERIFY2(!QImage(match.next().captured(1)).isNull(), name);
        // A sheet that Qt can't parse is dropped as a whole, with a warning.
        QWidget widget;
        widget.setObjectName(QString::fromLatin1(name));
        widget.setStyleSheet(sheet);
        widget.ensurePolished();
    }
}

void TestThemeFiles::boxesAreComplete()
{
    QFETCH(QString, skin);
    QFETCH(QString, className);
    QFETCH(QString, selector);
    QVERIFY(ZanthicTheme::applySkin(skin));
    const AttributeTable table = attributes(className, selector);
    const int flags = table.value(QStringLiteral("objectparameter")).toInt();
    QVERIFY(flags & Custom::ParamBackgroundColor);
    QVERIFY(table.value(QStringLiteral("fontsize")).toInt() > 0);
    QVERIFY(!table.contains(QStringLiteral("widgetheight")));
    for (Custom::ItemStatus status : kStatuses) {
        QVERIFY(Custom::string2Color(value(table, QStringLiteral("FontColor"), status)).isValid());
        QVERIFY(Custom::string2Color(value(table, QStringLiteral("BackgroundColor"), status)).isValid());
        if (!(flags & Custom::ParamBorderWidth))
            continue;
        QVERIFY(flags & Custom::ParamBorderColor && flags & Custom::ParamBorderRadius);
        QCOMPARE(value(table, QStringLiteral("BorderWidth:AllEdge"), status), QStringLiteral("1"));
        QCOMPARE(value(table, QStringLiteral("BorderRadius:AllCorner"), status), QStringLiteral("4"));
        QVERIFY(Custom::string2Color(value(table, QStringLiteral("BorderColor:AllEdge"), status)).isValid());
    }
}

// A selector that gives a new Normal but leaves out Hover would get the Hover of Default.
void TestThemeFiles::selectorsReplaceEveryStatus()
{
    QFETCH(QString, skin);
    QFETCH(QString, className);
    QFETCH(QString, selector);
    QVERIFY(ZanthicTheme::applySkin(skin));
    const AttributeTable base = Custom::getAttrMap(className.toLower(), QStringLiteral("default"));
    const AttributeTable own = Custom::getAttrMap(className.toLower(), selector.toLower());
    QVERIFY(!own.isEmpty());
    for (auto it = own.cbegin(); it != own.cend(); ++it) {
        for (Custom::ItemStatus status : { Custom::Hover, Custom::Pressed, Custom::Disabled }) {
            const QString key = it.key() + QLatin1Char(':') + Custom::itemStatus2String(status).toLower();
            QVERIFY2(!base.contains(key) || own.contains(key), qPrintable(key));
        }
    }
}

void TestThemeFiles::buttonsReadWell()
{
    QFETCH(QString, skin);
    QFETCH(QString, className);
    QFETCH(QString, selector);
    QVERIFY(ZanthicTheme::applySkin(skin));
    const AttributeTable table = attributes(className, selector);
    QSet<QString> looks;
    for (Custom::ItemStatus status : kStatuses) {
        const QColor background = Custom::string2Color(value(table, QStringLiteral("BackgroundColor"), status));
        const QColor text = Custom::string2Color(value(table, QStringLiteral("FontColor"), status));
        const QColor border = Custom::string2Color(value(table, QStringLiteral("BorderColor:AllEdge"), status));
        looks += Custom::color2String(background) + Custom::color2String(text) + Custom::color2String(border);
        if (status == Custom::Disabled)
            continue;
        for (const QColor &page : pages()) {
            const QColor fill = over(background, page);
            const QColor edge = over(border, fill);
            QVERIFY2(contrast(text, fill) >= kTextContrast, told(statusName(status), contrast(text, fill)));
            // A border in the colour of the fill is no line of its own.
            QVERIFY2(edge == fill || contrast(edge, page) >= kIndicatorContrast,
                told(statusName(status), contrast(edge, page)));
        }
    }
    QCOMPARE(looks.size(), int(kStatuses.size()));
}

void TestThemeFiles::indicatorsReadWell()
{
    QFETCH(QString, skin);
    QFETCH(QString, className);
    QFETCH(QString, selector);
    QVERIFY(ZanthicTheme::applySkin(skin));
    const AttributeTable table = attributes(className, selector);
    QSet<QByteArray> looks;
    for (const QString &suffix : suffixes(className)) {
        for (Custom::ItemStatus status : kStatuses) {
            QString path = value(table, QStringLiteral("BackgroundImage:") + suffix, status);
            looks += bytes(path);
            if (status == Custom::Disabled)
                continue;
            const QString name = path;
            const IndicatorColors colors = indicatorColors(QImage(path.insert(path.size() - 4, QLatin1String("@2x"))));
            const QColor text = Custom::string2Color(value(table, QStringLiteral("FontColor"), status));
            for (const QColor &page : pages()) {
                QVERIFY2(contrast(colors.edge, page) >= kIndicatorContrast, told(name, contrast(colors.edge, page)));
                QVERIFY2(contrast(text, page) >= kTextContrast, told(name, contrast(text, page)));
            }
            const bool hasMark = suffix != QLatin1String("unchecked") || selector.endsWith(QLatin1String("Switch"));
            QVERIFY2(!hasMark || colors.markContrast >= kIndicatorContrast, told(name, colors.markContrast));
        }
    }
    QCOMPARE(looks.size(), suffixes(className).size() * int(kStatuses.size()));
}

void TestThemeFiles::indicatorsKeepTheirSize()
{
    QFETCH(QString, skin);
    QFETCH(QString, className);
    QFETCH(QString, selector);
    QVERIFY(ZanthicTheme::applySkin(skin));
    const QSize expected = selector.endsWith(QLatin1String("Switch")) ? QSize(48, 32) : QSize(20, 20);
    const AttributeTable table = attributes(className, selector);
    for (const QString &suffix : suffixes(className)) {
        for (Custom::ItemStatus status : kStatuses)
            QCOMPARE(QImage(value(table, QStringLiteral("BackgroundImage:") + suffix, status)).size(), expected);
    }
}

void TestThemeFiles::sheetColorsReadWell_data()
{
    QTest::addColumn<QString>("front");
    QTest::addColumn<QStringList>("backs");
    QTest::addColumn<double>("ratio");
    const QStringList grounds{ QStringLiteral("Window_Background"), QStringLiteral("Surface") };
    const QStringList items{ QStringLiteral("Surface"), QStringLiteral("Surface_Alternate"),
        QStringLiteral("Item_Hover"), QStringLiteral("Item_Selected") };
    const QStringList headers{ QStringLiteral("Header"), QStringLiteral("Header_Hover"),
        QStringLiteral("Header_Pressed") };
    const auto row = [](const char *front, const QStringList &backs, double ratio) {
        QTest::newRow(front) << QString::fromLatin1(front) << backs << ratio;
    };
    row("Font", grounds + items + headers + QStringList(QStringLiteral("Light")), kTextContrast);
    row("Font_Secondary", grounds + QStringList(QStringLiteral("Item_Hover")), kTextContrast);
    row("Item_Text", items, kTextContrast);
    row("Header_Text", { QStringLiteral("Header") }, kTextContrast);
    row("Selection_Text", { QStringLiteral("Selection") }, kTextContrast);
    for (const char *front : { "Field_Border", "Field_Border_Hover", "Field_Border_Focus", "Accent", "ScrollBar_Handle",
             "ScrollBar_Handle_Hover", "ScrollBar_Handle_Pressed", "Arrow", "Arrow_Hover" })
        row(front, grounds, kIndicatorContrast);
}

void TestThemeFiles::sheetColorsReadWell()
{
    QFETCH(QString, front);
    QFETCH(QStringList, backs);
    QFETCH(double, ratio);
    const auto color
        = [](const QString &name) { return Custom::getDataBaseColor(QLatin1String("Custom_") + name).color(); };
    for (const QString &skin : ZanthicTheme::skins()) {
        QVERIFY(ZanthicTheme::applySkin(skin));
        for (const QString &back : backs) {
            const double found = contrast(color(front), color(back));
            QVERIFY2(found >= ratio, told(skin + QLatin1Char(' ') + back, found));
        }
    }
}

ZANTHIC_TEST_MAIN(TestThemeFiles)
#include "tst_theme_files.moc"
