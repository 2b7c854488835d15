#include "render/CheckBoxLayout_p.h"
#include "render/PushButtonLayout_p.h"
#include "render/RoundedMask_p.h"
#include "style/CustomObject_p.h"
#include "support/Probe.h"
#include "support/StyleTest.h"

#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomRadioButton.h>

#include <QtGui/QBitmap>
#include <QtGui/QPainter>
#include <QtWidgets/QMenu>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

using Custom::Hover;
using Custom::Normal;

namespace {

constexpr int kBeside = 129; // Qt::AlignLeft | Qt::AlignVCenter
constexpr int kBelow = 36; // Qt::AlignTop | Qt::AlignHCenter

QRect fromTo(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

// Fusion, with a shift of (3, 5) for pressed buttons and without underlines; notes what it is asked to draw.
class NotingStyle : public QProxyStyle
{
public:
    NotingStyle() : QProxyStyle(QStringLiteral("Fusion")) { }

    void drawControl(
        ControlElement element, const QStyleOption *option, QPainter *painter, const QWidget *w) const override
    {
        bevels += element == CE_PushButtonBevel;
        QProxyStyle::drawControl(element, option, painter, w);
    }
    void drawPrimitive(
        PrimitiveElement e, const QStyleOption *option, QPainter *painter, const QWidget *w) const override
    {
        if (e == PE_IndicatorCheckBox || e == PE_IndicatorRadioButton) {
            indicator = e;
            indicatorRect = option->rect;
        }
        QProxyStyle::drawPrimitive(e, option, painter, w);
    }
    void drawItemText(QPainter *painter, const QRect &rect, int alignment, const QPalette &palette, bool isEnabled,
        const QString &content, QPalette::ColorRole role) const override
    {
        text = content;
        textRect = rect;
        flags = alignment;
        enabled = isEnabled;
        color = palette.color(role).name();
        pixelSize = painter->font().pixelSize();
    }
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *w) const override
    {
        if (metric == PM_ButtonShiftHorizontal || metric == PM_ButtonShiftVertical)
            return metric == PM_ButtonShiftHorizontal ? 3 : 5;
        return QProxyStyle::pixelMetric(metric, option, w);
    }
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *w, QStyleHintReturn *data) const override
    {
        return hint == SH_UnderlineShortcut ? underline : QProxyStyle::styleHint(hint, option, w, data);
    }

    int underline = 0;
    mutable int bevels = 0;
    mutable PrimitiveElement indicator = PE_Widget;
    mutable QRect indicatorRect;
    mutable QString text;
    mutable QRect textRect;
    mutable int flags = 0;
    mutable bool enabled = false;
    mutable QString color;
    mutable int pixelSize = 0;
};

class OwnContentButton : public CustomPushButton
{
public:
    using CustomPushButton::CustomPushButton;
    bool cDrawContent(QPainter *painter, QStyleOption *option) override
    {
        ++calls;
        pixelSize = painter->font().pixelSize();
        color = option->palette.color(QPalette::Disabled, QPalette::ButtonText).name();
        return drawn;
    }
    bool drawn = true;
    int calls = 0;
    int pixelSize = 0;
    QString color;
};

QStyleOptionButton buttonOption(const QAbstractButton &button, QStyle::State state = QStyle::State_Enabled)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    option.state = state;
    option.text = button.text();
    option.icon = button.icon();
    option.iconSize = button.iconSize();
    option.rect = QRect(QPoint(0, 0), button.size());
    return option;
}

template <typename Button>
QImage drawn(Button *button, Custom::CustomWidgetType type, QStyleOption *option)
{
    return Probe::painted(button->size(),
        [&](QPainter *painter) { button->cDrawWidget(type, painter, QRect(QPoint(0, 0), button->size()), option); });
}

bool isRed(const QColor &color)
{
    return color == Qt::red;
}

bool isBlue(const QColor &color)
{
    return color == Qt::blue;
}

} // namespace

class ButtonLayoutTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void iconAndText_data();
    void iconAndText();
    void textFlags_data();
    void textFlags();
    void checkBoxText_data();
    void checkBoxText();
    void maskIsTheBitmapOfTheOutline_data();
    void maskIsTheBitmapOfTheOutline();
    void maskFollowsTheRadii();
    void statusOfAState();
    void otherTypesPaintTheBox();
    void pushButtonContent();
    void pressedContentIsShifted();
    void iconOfAStatus();
    void contentHook();
    void bevelWithoutABox();
    void checkBoxIndicator();
    void checkBoxIndicatorOfTheStyle();
    void badOptionsPaintNothing();
    void pushButtonSize_data();
    void pushButtonSize();
    void pushButtonSizeCache();
    void indicatorSize();
    void indicatorSizeCache();

private:
    QString picture(const QSize &size, const QColor &color)
    {
        const QString path = scratchFile("", QStringLiteral(".png"));
        QImage image(size, QImage::Format_ARGB32);
        image.fill(color);
        return image.save(path) ? path : QString();
    }
    void document(const QByteArray &className, const QByteArray &attributes)
    {
        addDocument(classXml(className, "Default", attributes));
    }
};

void ButtonLayoutTest::iconAndText_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("hasText");
    QTest::addColumn<QRect>("iconRect");
    QTest::addColumn<QRect>("textRect");
    QTest::addColumn<int>("newFlags");
    // A button of 100 x 40, shrunk to (1, 1) to (98, 38); an icon of 16 x 12 and a text of 30 x 10. Beside each other
    // they take 50 x 12 at (25, 14); below each other 16 x 26 at (42, 7); the icon alone 16 x 12 at (42, 14).
    const QSize icon(16, 12);
    QTest::newRow("left") << 1 << true << QRect({ 27, 14 }, icon) << fromTo(47, 14, 96, 25) << kBeside;
    QTest::newRow("right") << 2 << true << QRect({ 59, 14 }, icon) << fromTo(25, 14, 55, 25) << kBeside;
    QTest::newRow("top") << 32 << true << QRect({ 42, 9 }, icon) << fromTo(2, 21, 95, 46) << kBelow;
    QTest::newRow("bottom") << 64 << true << QRect({ 42, 21 }, icon) << fromTo(2, 7, 95, 17) << kBelow;
    QTest::newRow("none") << 0x84 << true << QRect({ 44, 14 }, icon) << fromTo(64, 7, 79, 32) << kBeside;
    QTest::newRow("left before top") << (1 + 32) << true << QRect({ 27, 14 }, icon) << fromTo(47, 14, 96, 25)
                                     << kBeside;
    QTest::newRow("right before bottom") << (2 + 64) << true << QRect({ 59, 14 }, icon) << fromTo(25, 14, 55, 25)
                                         << kBeside;
    QTest::newRow("top before bottom") << (32 + 64) << true << QRect({ 42, 9 }, icon) << fromTo(2, 21, 95, 46)
                                       << kBelow;
    QTest::newRow("left, no text") << 1 << false << QRect({ 44, 14 }, icon) << fromTo(64, 14, 79, 25) << kBeside;
    QTest::newRow("right, no text") << 2 << false << QRect({ 42, 14 }, icon) << fromTo(42, 14, 38, 25) << kBeside;
    QTest::newRow("top, no text") << 32 << false << QRect({ 42, 16 }, icon) << fromTo(2, 28, 95, 39) << kBelow;
    QTest::newRow("bottom, no text") << 64 << false << QRect({ 42, 14 }, icon) << fromTo(2, 14, 95, 10) << kBelow;
}

void ButtonLayoutTest::iconAndText()
{
    QFETCH(int, flags);
    QFETCH(bool, hasText);
    PushButtonLayout::Input input{ QRect(1, 1, 98, 38), flags, QSize(16, 12), QSize(30, 10), hasText };
    const PushButtonLayout::Result result = PushButtonLayout::withIcon(input);
    QTEST(result.iconRect, "iconRect");
    QTEST(result.textRect, "textRect");
    QTEST(result.flags, "newFlags");

    // Halves of negative rests are cut towards 0: (8 - 13) / 2 = -2, (8 - 15) / 2 = -3.
    input = { QRect(1, 1, 8, 8), 1, QSize(15, 13), QSize(), false };
    QCOMPARE(PushButtonLayout::withIcon(input).iconRect, QRect(0, -1, 15, 13));
}

void ButtonLayoutTest::textFlags_data()
{
    QTest::addColumn<QString>("alignment");
    QTest::addColumn<bool>("hasIcon");
    QTest::addColumn<bool>("underline");
    QTest::addColumn<int>("flags");
    // 0x84 centred, 0x800 with a mnemonic, 0x8000 that is hidden.
    QTest::newRow("text alone") << QString() << false << true << 0x884;
    QTest::newRow("icon") << QString() << true << true << 0x885;
    QTest::newRow("no underline") << QString() << true << false << 0x8885;
    QTest::newRow("top") << "32" << true << true << 0x8a4;
    QTest::newRow("right without an icon") << "2" << false << true << 0x886;
    QTest::newRow("no number") << "left" << true << true << 0x884;
    QTest::newRow("negative") << "-1" << true << true << 0x884;
}

void ButtonLayoutTest::textFlags()
{
    QFETCH(QString, alignment);
    QFETCH(bool, hasIcon);
    QFETCH(bool, underline);
    QTEST(PushButtonLayout::textFlags(alignment, hasIcon, underline), "flags");
}

void ButtonLayoutTest::checkBoxText_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("indicator");
    QTest::addColumn<QRect>("textRect");
    QTest::newRow("left to right") << Qt::LeftToRight << QRect(0, 0, 100, 20) << QRect(0, 2, 16, 16)
                                   << fromTo(26, 0, 99, 19);
    QTest::newRow("right to left") << Qt::RightToLeft << QRect(0, 0, 100, 20) << QRect(84, 2, 16, 16)
                                   << fromTo(0, 0, 73, 19);
    QTest::newRow("moved") << Qt::LeftToRight << QRect(10, 5, 100, 20) << QRect(10, 7, 16, 16)
                           << fromTo(36, 5, 109, 24);
    QTest::newRow("moved, right to left")
        << Qt::RightToLeft << QRect(10, 5, 100, 20) << QRect(94, 7, 16, 16) << fromTo(10, 5, 83, 24);
}

void ButtonLayoutTest::checkBoxText()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, rect);
    QFETCH(QRect, indicator);
    QTEST(CheckBoxLayout::textRect(direction, rect, indicator), "textRect");
}

void ButtonLayoutTest::maskIsTheBitmapOfTheOutline_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QVector<int>>("radii"); // left top, right top, left bottom, right bottom
    QTest::newRow("none") << QSize(40, 20) << QVector<int>{ 0, 0, 0, 0 };
    QTest::newRow("equal") << QSize(40, 20) << QVector<int>{ 6, 6, 6, 6 };
    QTest::newRow("each its own") << QSize(41, 23) << QVector<int>{ 1, 4, 7, 10 };
    QTest::newRow("pill") << QSize(48, 32) << QVector<int>{ 16, 16, 16, 16 };
    QTest::newRow("beyond the size") << QSize(10, 10) << QVector<int>{ 30, 30, 30, 30 };
    QTest::newRow("negative") << QSize(20, 20) << QVector<int>{ -4, -4, -4, -4 };
}

void ButtonLayoutTest::maskIsTheBitmapOfTheOutline()
{
    QFETCH(QSize, size);
    QFETCH(QVector<int>, radii);
    const qreal w = size.width();
    const qreal h = size.height();
    QPainterPath path;
    path.moveTo(radii[0], 0);
    path.lineTo(w - radii[1], 0);
    path.quadTo(QPointF(w, 0), QPointF(w, radii[1]));
    path.lineTo(w, h - radii[3]);
    path.quadTo(QPointF(w, h), QPointF(w - radii[3], h));
    path.lineTo(radii[2], h);
    path.quadTo(QPointF(0, h), QPointF(0, h - radii[2]));
    path.lineTo(0, radii[0]);
    path.quadTo(QPointF(0, 0), QPointF(radii[0], 0));
    path.closeSubpath();
    QBitmap bitmap(size);
    bitmap.fill(Qt::white);
    QPainter painter(&bitmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.fillPath(path, Qt::black);
    painter.end();
    const RoundedMask::Radii given{ { radii[0], radii[1], radii[2], radii[3] } };
    QCOMPARE(RoundedMask::region(size, given), QRegion(bitmap));
    QCOMPARE(RoundedMask::region(size, given), QRegion(bitmap)); // the shared one
}

void ButtonLayoutTest::maskFollowsTheRadii()
{
    CustomPushButton button;
    button.resize(60, 30);
    button.cResizeEvent();
    QVERIFY(button.mask().isEmpty());
    button.cSetBorderRadius(8);
    button.cSetBorderRadius(3, Custom::RightTop);
    button.cSetBorderRadius(0, Custom::LeftBottom); // below 1: the common radius
    button.cResizeEvent();
    const QRegion mask = RoundedMask::region({ 60, 30 }, { { 8, 3, 8, 8 } });
    QVERIFY(mask != QRegion(0, 0, 60, 30));
    QCOMPARE(button.mask(), mask);
    // The event of a shown button does it.
    button.show();
    button.resize(50, 20);
    QTRY_COMPARE(button.mask(), RoundedMask::region({ 50, 20 }, { { 8, 3, 8, 8 } }));
    // Without the flag an earlier mask stays.
    button.cSetParameter(Custom::ParamBorderRadius, false);
    button.resize(40, 20);
    button.cResizeEvent();
    QCOMPARE(button.mask(), RoundedMask::region({ 50, 20 }, { { 8, 3, 8, 8 } }));
    // All radii 0: the whole rectangle.
    button.cSetBorderRadius(0);
    button.cResizeEvent();
    QCOMPARE(button.mask(), QRegion(0, 0, 40, 20));
}

void ButtonLayoutTest::statusOfAState()
{
    const CustomPushButton button;
    const QStyle::State on = QStyle::State_Enabled;
    QCOMPARE(button.cGetItemStatus(QStyle::State_Sunken | QStyle::State_MouseOver), Custom::Disabled);
    QCOMPARE(button.cGetItemStatus(on | QStyle::State_Sunken | QStyle::State_MouseOver), Custom::Pressed);
    QCOMPARE(button.cGetItemStatus(on | QStyle::State_MouseOver | QStyle::State_On), Custom::Hover);
    QCOMPARE(button.cGetItemStatus(on | QStyle::State_HasFocus | QStyle::State_On), Custom::Normal);
}

void ButtonLayoutTest::otherTypesPaintTheBox()
{
    CustomPushButton button(QStringLiteral("Text"));
    button.resize(40, 20);
    button.cSetBackgroundColor(QStringLiteral("#0000ff"));
    button.cSetBackgroundColor(QStringLiteral("#ff0000"), Custom::Disabled);
    const QImage box = Probe::painted({ 40, 20 }, [&](QPainter *painter) {
        button.cDrawBackground(painter, { 0, 0, 40, 20 });
        button.cDrawBorder(painter, { 0, 0, 40, 20 });
    });
    QStyleOptionButton disabled = buttonOption(button, QStyle::State_None);
    for (const int type : { int(Custom::WidgetGeneric), 42, -1 }) {
        QVERIFY(drawn(&button, Custom::CustomWidgetType(type), &disabled) == box);
        QVERIFY(drawn(&button, Custom::CustomWidgetType(type), nullptr) == box);
    }
}

void ButtonLayoutTest::pushButtonContent()
{
    NotingStyle style;
    CustomPushButton button(QStringLiteral("&Text"));
    button.setStyle(&style);
    button.resize(100, 40);
    button.cSetBackgroundColor(QStringLiteral("#ffffff"));
    button.cSetFontColor(QStringLiteral("#112233"));
    button.cSetFontColor(QStringLiteral("#445566"), Custom::Disabled);
    button.cSetFontSize(11);
    button.cSetFontSize(17, Custom::Disabled);
    QStyleOptionButton option = buttonOption(button);
    drawn(&button, Custom::WidgetPushButton, &option);
    QCOMPARE(style.text, QStringLiteral("&Text"));
    QCOMPARE(style.textRect, QRect(1, 1, 98, 38));
    QCOMPARE(style.flags, 0x8884);
    QCOMPARE(style.color, QStringLiteral("#112233"));
    QCOMPARE(style.pixelSize, 11);
    QVERIFY(style.enabled);
    QCOMPARE(style.bevels, 0);
    // The option is changed in place.
    QCOMPARE(option.rect, QRect(1, 1, 98, 38));
    QCOMPARE(option.palette.color(QPalette::Inactive, QPalette::ButtonText).name(), QStringLiteral("#112233"));

    button.setText(QString());
    style.text = QStringLiteral("untouched");
    option = buttonOption(button);
    drawn(&button, Custom::WidgetPushButton, &option);
    QCOMPARE(style.text, QStringLiteral("untouched"));

    button.setText(QStringLiteral("Text"));
    style.underline = 1;
    option = buttonOption(button, QStyle::State_None);
    drawn(&button, Custom::WidgetPushButton, &option);
    QCOMPARE(style.flags, 0x884);
    QCOMPARE(style.color, QStringLiteral("#445566"));
    QCOMPARE(style.pixelSize, 17);
    QVERIFY(!style.enabled);
}

void ButtonLayoutTest::pressedContentIsShifted()
{
    NotingStyle style;
    CustomPushButton button;
    button.setStyle(&style);
    button.resize(100, 40);
    button.cSetBackgroundColor(QStringLiteral("#ffffff"));
    button.setIconSize({ 16, 12 });
    button.setIcon(QIcon(picture({ 16, 12 }, Qt::red)));
    const auto iconRect = [&](QStyle::State state) {
        QStyleOptionButton option = buttonOption(button, state | QStyle::State_Enabled);
        return Probe::bounds(drawn(&button, Custom::WidgetPushButton, &option), isRed);
    };
    // Alone and without an alignment it stands 2 px right of the middle.
    QCOMPARE(iconRect(QStyle::State_None), QRect(44, 14, 16, 12));
    QCOMPARE(iconRect(QStyle::State_MouseOver), QRect(44, 14, 16, 12));
    QCOMPARE(iconRect(QStyle::State_Sunken), QRect(47, 19, 16, 12));
    QCOMPARE(iconRect(QStyle::State_On), QRect(47, 19, 16, 12));

    button.setText(QStringLiteral("Text"));
    button.cSetIconAlign(Qt::AlignRight);
    iconRect(QStyle::State_None);
    const QRect resting = style.textRect;
    QCOMPARE(style.flags, kBeside);
    const int width = QFontMetrics(button.font()).boundingRect(button.text()).width();
    QCOMPARE(resting.left(), 1 + (98 - (16 + 4 + width)) / 2);
    iconRect(QStyle::State_Sunken);
    QCOMPARE(style.textRect, resting.translated(3, 5));
    button.setIcon(QIcon());
    iconRect(QStyle::State_On);
    QCOMPARE(style.textRect, QRect(4, 6, 98, 38));
}

void ButtonLayoutTest::iconOfAStatus()
{
    NotingStyle style;
    CustomPushButton button(QStringLiteral("Text"));
    button.setStyle(&style);
    button.resize(100, 40);
    button.setIconSize({ 16, 12 });
    button.setIcon(QIcon(picture({ 16, 12 }, Qt::red)));
    button.cSetBackgroundColor(QStringLiteral("#ffffff"));
    button.cSetIcon(picture({ 16, 12 }, Qt::blue), Hover);
    const auto image = [&](QStyle::State state) {
        QStyleOptionButton option = buttonOption(button, state | QStyle::State_Enabled);
        return drawn(&button, Custom::WidgetPushButton, &option);
    };
    QVERIFY(Probe::bounds(image(QStyle::State_None), isBlue).isEmpty());
    QCOMPARE(Probe::bounds(image(QStyle::State_None), isRed).size(), QSize(16, 12));
    QCOMPARE(Probe::bounds(image(QStyle::State_MouseOver), isBlue).size(), QSize(16, 12));
    QVERIFY(Probe::bounds(image(QStyle::State_MouseOver), isRed).isEmpty());
    // A path that can't be loaded takes the place of the icon all the same: an icon without a size, at the left.
    button.cSetIcon(QStringLiteral("/none.png"), Hover);
    QVERIFY(Probe::bounds(image(QStyle::State_MouseOver), isRed).isEmpty());
    const int width = QFontMetrics(button.font()).boundingRect(button.text()).width();
    const int left = 1 + (98 - (width + 4)) / 2;
    QCOMPARE(style.textRect, fromTo(left + 2 + 4, 20, left + 2 + 4 + width + 4 - 1, 19));
    QCOMPARE(style.flags, kBeside);
}

void ButtonLayoutTest::contentHook()
{
    NotingStyle style;
    OwnContentButton button(QStringLiteral("Text"));
    button.setStyle(&style);
    button.resize(100, 40);
    button.setIcon(QIcon(picture({ 16, 16 }, Qt::red)));
    button.cSetFontSize(19);
    button.cSetFontColor(QStringLiteral("#abcdef"));
    button.cSetBackgroundColor(QStringLiteral("#ffffff"));
    QStyleOptionButton option = buttonOption(button);
    QVERIFY(Probe::bounds(drawn(&button, Custom::WidgetPushButton, &option), isRed).isEmpty());
    QCOMPARE(button.calls, 1);
    QCOMPARE(button.pixelSize, 19);
    QCOMPARE(button.color, QStringLiteral("#abcdef"));
    QCOMPARE(style.text, QString());
    button.drawn = false;
    option = buttonOption(button);
    QVERIFY(!Probe::bounds(drawn(&button, Custom::WidgetPushButton, &option), isRed).isEmpty());
    QCOMPARE(style.text, QStringLiteral("Text"));
}

void ButtonLayoutTest::bevelWithoutABox()
{
    NotingStyle style;
    CustomPushButton button;
    button.setStyle(&style);
    button.resize(40, 20);
    const auto bevels = [&] {
        style.bevels = 0;
        QStyleOptionButton option = buttonOption(button);
        drawn(&button, Custom::WidgetPushButton, &option);
        return style.bevels;
    };
    QCOMPARE(bevels(), 1);
    button.cSetBaseBackgroundImage(picture({ 4, 4 }, Qt::red), Normal, {});
    QVERIFY(!button.cHasParameter(Custom::ParamBaseBackgroundImage));
    button.cSetParameter(Custom::ParamBaseBackgroundImage, true);
    QCOMPARE(bevels(), 1);
    button.cSetBorderWidth(1);
    QCOMPARE(bevels(), 0);
    button.cSetParameter(Custom::ParamBorderWidth, false);
    QCOMPARE(bevels(), 1);
    button.cSetBackgroundColor(QStringLiteral("#ffffff"));
    QCOMPARE(bevels(), 0);
}

void ButtonLayoutTest::checkBoxIndicator()
{
    document("CustomCheckBox",
        "<BackgroundImage:checked>" + picture({ 16, 16 }, Qt::red).toUtf8() + "</BackgroundImage:checked>"
            + "<BackgroundImage:partiallyChecked>" + picture({ 8, 6 }, Qt::blue).toUtf8()
            + "</BackgroundImage:partiallyChecked><FontColor:Hover>#123456</FontColor:Hover><ObjectParameter>2</"
              "ObjectParameter>"
              "<BackgroundColor>#00ff00</BackgroundColor>");
    NotingStyle style;
    CustomCheckBox box(QStringLiteral("Text"));
    box.setStyle(&style);
    box.resize(100, 20);
    const auto image = [&](QStyle::State state, Qt::LayoutDirection direction = Qt::LeftToRight) {
        QStyleOptionButton option = buttonOption(box, state | QStyle::State_Enabled);
        option.direction = direction;
        return drawn(&box, Custom::WidgetCheckBox, &option);
    };
    QCOMPARE(Probe::bounds(image(QStyle::State_On | QStyle::State_MouseOver), isRed), QRect(0, 2, 16, 16));
    QCOMPARE(style.textRect, fromTo(26, 0, 99, 19));
    QCOMPARE(style.flags, 0x8891); // with Qt::AlignAbsolute
    QCOMPARE(style.color, QStringLiteral("#123456"));
    QCOMPARE(Probe::bounds(image(QStyle::State_On, Qt::RightToLeft), isRed), QRect(84, 2, 16, 16));
    QCOMPARE(style.textRect, fromTo(0, 0, 73, 19));
    QCOMPARE(style.flags, 0x8892);
    // Neither on nor off is the middle state; the box of the attributes isn't painted.
    const QImage partial = image(QStyle::State_None);
    QCOMPARE(Probe::bounds(partial, isBlue), QRect(0, 7, 8, 6));
    QCOMPARE(Probe::bounds(partial, [](const QColor &color) { return color.alpha() > 0; }), QRect(0, 7, 8, 6));
    // Without a text the indicator stands in the middle.
    box.setText(QString());
    QCOMPARE(Probe::bounds(image(QStyle::State_On), isRed), QRect(42, 2, 16, 16));
}

void ButtonLayoutTest::checkBoxIndicatorOfTheStyle()
{
    NotingStyle style;
    CustomCheckBox box(QStringLiteral("Text"));
    CustomRadioButton radio(QStringLiteral("Text"));
    box.setStyle(&style);
    radio.setStyle(&style);
    box.resize(100, 30);
    radio.resize(100, 30);
    QStyleOptionButton option = buttonOption(box);
    const QSize size = style.subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box).size();
    drawn(&box, Custom::WidgetCheckBox, &option);
    QCOMPARE(style.indicator, QStyle::PE_IndicatorCheckBox);
    QCOMPARE(
        style.indicatorRect, QStyle::alignedRect(Qt::LeftToRight, Qt::AlignLeft | Qt::AlignVCenter, size, option.rect));
    QCOMPARE(style.textRect.left(), size.width() + 10);
    option = buttonOption(radio);
    option.direction = Qt::RightToLeft;
    drawn(&radio, Custom::WidgetRadioButton, &option);
    QCOMPARE(style.indicator, QStyle::PE_IndicatorRadioButton);
    QCOMPARE(style.indicatorRect.right(), 99);
    QCOMPARE(style.textRect.right(), 99 - style.indicatorRect.width() - 10);

    // A widget that is neither uses the plain key.
    CustomPushButton other;
    other.resize(20, 20);
    other.cSetAttributeValue(QStringLiteral("BackgroundImage"), picture({ 4, 4 }, Qt::red));
    option = buttonOption(other, QStyle::State_Enabled | QStyle::State_On);
    QCOMPARE(Probe::bounds(drawn(&other, Custom::WidgetCheckBox, &option), isRed), QRect(8, 8, 4, 4));
}

void ButtonLayoutTest::badOptionsPaintNothing()
{
    CustomPushButton button(QStringLiteral("Text"));
    button.resize(40, 20);
    button.cSetBackgroundColor(QStringLiteral("#ffffff"));
    const QImage nothing = Probe::painted(button.size(), [](QPainter *) {});
    for (const Custom::CustomWidgetType type :
        { Custom::WidgetPushButton, Custom::WidgetCheckBox, Custom::WidgetRadioButton }) {
        QVERIFY(drawn(&button, type, nullptr) == nothing);
        QStyleOptionButton option = buttonOption(button);
        option.version = 0;
        QVERIFY(drawn(&button, type, &option) == nothing);
        QStyleOption plain(1, QStyleOption::SO_Default);
        QVERIFY(drawn(&button, type, &plain) == nothing);
    }
}

void ButtonLayoutTest::pushButtonSize_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("icon");
    QTest::addColumn<bool>("hasMenu");
    const QSize none;
    QTest::newRow("text") << "A &text" << none << false;
    QTest::newRow("two lines") << "A\ntext" << none << false;
    QTest::newRow("nothing") << QString() << none << false;
    QTest::newRow("icon") << QString() << QSize(24, 40) << false;
    QTest::newRow("low icon") << QString() << QSize(24, 2) << false;
    QTest::newRow("icon without a height") << QString() << QSize(24, 0) << false;
    QTest::newRow("icon and text") << "Text" << QSize(24, 40) << false;
    QTest::newRow("menu") << "Text" << none << true;
}

void ButtonLayoutTest::pushButtonSize()
{
    QFETCH(QString, text);
    QFETCH(QSize, icon);
    QFETCH(bool, hasMenu);
    CustomPushButton button(text);
    button.cSetFontSize(20);
    QMenu menu;
    if (hasMenu)
        button.setMenu(&menu);
    if (icon.isValid()) {
        button.setIcon(QIcon(picture({ 8, 8 }, Qt::red)));
        button.setIconSize(icon);
    }
    const QSize measured
        = QFontMetrics(button.font()).size(Qt::TextShowMnemonic, text.isEmpty() ? QStringLiteral("XXXX") : text);
    const bool showsIcon = icon.isValid();
    QSize expected(showsIcon ? icon.width() + 4 : 0, showsIcon ? icon.height() : 0);
    if (!text.isEmpty() || !showsIcon)
        expected.rwidth() += measured.width();
    if (!text.isEmpty() || expected.height() == 0)
        expected.setHeight(qMax(expected.height(), measured.height()));
    QStyleOptionButton option = buttonOption(button);
    if (hasMenu)
        expected.rwidth() += button.style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, &button);
    QCOMPARE(button.cSizeHint(&option), expected + QSize(10, 6));
    QCOMPARE(button.sizeHint(), expected + QSize(10, 6));
    button.setStyleSheet(QStringLiteral("QPushButton { min-width: 333px; border: none; padding: 0 }"));
    QCOMPARE(button.sizeHint().width(), 333);
}

void ButtonLayoutTest::pushButtonSizeCache()
{
    CustomPushButton button;
    QStyleOptionButton option = buttonOption(button);
    QCOMPARE(button.cSizeHint(nullptr), QSize(-1, -1));
    option.version = 0;
    QCOMPARE(button.cSizeHint(&option), QSize(-1, -1));
    const QSize first = button.sizeHint();
    QCOMPARE(button.cSizeHint(&option), first); // an empty text finds what is kept
    button.setIcon(QIcon(picture({ 64, 64 }, Qt::red)));
    button.setIconSize({ 64, 64 });
    QCOMPARE(button.sizeHint(), first);
    button.setText(QStringLiteral("Text")); // and any other one is measured each time
    QVERIFY(button.sizeHint().height() > 64);
    button.setText(QString());
    QVERIFY(button.sizeHint().height() > 64);
    button.cSetFontColor(QStringLiteral("#000000"));
    QCOMPARE(button.sizeHint(), QSize(64 + 4 + 10, 64 + 6));

    // An image button is as large as its image; the background image comes first.
    button.setText(QStringLiteral("Text"));
    button.cSetBorderImage(picture({ 31, 17 }, Qt::red));
    QCOMPARE(button.sizeHint(), QSize(31, 17));
    button.cSetBackgroundImage(picture({ 33, 19 }, Qt::red));
    QCOMPARE(button.sizeHint(), QSize(33, 19));
    // One that can't be loaded leaves the size of a null picture behind, and the text is measured.
    button.cSetBackgroundImage(QStringLiteral("/none.png"));
    QCOMPARE(button.cSizeHint(&option), QSize(0, 0));
    QVERIFY(button.sizeHint().height() >= 64 + 6);
}

void ButtonLayoutTest::indicatorSize()
{
    const QByteArray image = picture({ 48, 32 }, Qt::red).toUtf8();
    document("CustomCheckBox", "<BackgroundImage:checked>" + image + "</BackgroundImage:checked>");
    CustomCheckBox styled(QStringLiteral("A &text"));
    // Measured as a disabled text, which some styles etch by a pixel.
    const QSize text
        = styled.style()
              ->itemTextRect(QFontMetrics(styled.cFont(Normal)), QRect(), Qt::TextShowMnemonic, false, styled.text())
              .size();
    QStyleOptionButton option = buttonOption(styled);
    QCOMPARE(styled.cSizeHint(&option),
        styled.style()->sizeFromContents(QStyle::CT_CheckBox, &option, text, &styled) + QSize(6, 0));
    CustomRadioButton radio(QStringLiteral("A &text"));
    option = buttonOption(radio);
    QCOMPARE(radio.cSizeHint(&option),
        radio.style()->sizeFromContents(QStyle::CT_CheckBox, &option, text, &radio) + QSize(6, 0));

    CustomCheckBox themed(QStringLiteral("A &text"));
    themed.setChecked(true);
    QCOMPARE(themed.sizeHint(), QSize(text.width() + 48 + 10, qMax(32, text.height())));
    CustomCheckBox alone;
    alone.setChecked(true);
    QCOMPARE(alone.sizeHint(), QSize(48, 32));
    CustomCheckBox icon;
    icon.setChecked(true);
    icon.setIcon(QIcon(QString::fromUtf8(image)));
    icon.setIconSize({ 20, 50 });
    QCOMPARE(icon.sizeHint(), QSize(20 + 4 + 48 + 10, 50));
}

void ButtonLayoutTest::indicatorSizeCache()
{
    CustomRadioButton radio(QStringLiteral("Text"));
    QStyleOptionButton option = buttonOption(radio);
    option.version = 0;
    QCOMPARE(radio.cSizeHint(&option), QSize(-1, -1));
    const QSize first = radio.sizeHint();
    QFont font = radio.font();
    font.setPixelSize(60);
    radio.setFont(font);
    QCOMPARE(radio.sizeHint(), first);
    QCOMPARE(radio.cSizeHint(&option), first);
    radio.setText(QStringLiteral("Longer"));
    QVERIFY(radio.sizeHint().height() > first.height());

    // A change of state keeps the size, whatever the other image is.
    document("CustomCheckBox",
        "<BackgroundImage:unchecked>" + picture({ 10, 10 }, Qt::red).toUtf8() + "</BackgroundImage:unchecked>"
            + "<BackgroundImage:checked>" + picture({ 90, 90 }, Qt::red).toUtf8() + "</BackgroundImage:checked>");
    CustomCheckBox box(QStringLiteral("Text"));
    const QSize unchecked = box.sizeHint();
    box.setChecked(true);
    QCOMPARE(box.sizeHint(), unchecked);
    box.cSetFontSize(12);
    QCOMPARE(box.sizeHint().height(), 90);
}

ZANTHIC_TEST_MAIN(ButtonLayoutTest)
#include "tst_button_layout.moc"
