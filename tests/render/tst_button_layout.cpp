#include "render/PushButtonLayout_p.h"
#include "render/RoundedMask_p.h"
#include "support/Probe.h"
#include "support/StyleTest.h"

#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomRadioButton.h>

#include <QtGui/QPainter>
#include <QtWidgets/QMenu>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

namespace {

constexpr QRect kRect(10, 5, 100, 40);

QString text(const QRect &r)
{
    return QStringLiteral("%1,%2 %3x%4").arg(r.left()).arg(r.top()).arg(r.width()).arg(r.height());
}

// Fusion, with a shift of (3, 5) for pressed buttons and underlines as told; notes what it is asked to draw.
class NotingStyle : public QProxyStyle
{
public:
    NotingStyle() : QProxyStyle(QStringLiteral("Fusion")) { }

    void drawControl(ControlElement element, const QStyleOption *, QPainter *, const QWidget *) const override
    {
        notes += element == CE_PushButtonBevel ? QStringLiteral("bevel") : QStringLiteral("control");
    }
    void drawPrimitive(PrimitiveElement e, const QStyleOption *option, QPainter *, const QWidget *) const override
    {
        notes += QLatin1String(e == PE_IndicatorCheckBox ? "check " : "radio ") + text(option->rect);
    }
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette, bool enabled,
        const QString &, QPalette::ColorRole role) const override
    {
        notes += QStringLiteral("text %1 %2 %3 %4")
                     .arg(text(rect))
                     .arg(flags, 0, 16)
                     .arg(palette.color(QPalette::Inactive, role).name())
                     .arg(painter->font().pixelSize())
                     .remove(QLatin1String(" -1"))
            + QLatin1String(enabled ? "" : " disabled");
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

    mutable QStringList notes;
    bool underline = false;
};

class Button : public CustomPushButton
{
public:
    bool cDrawContent(QPainter *painter, QStyleOption *option) override
    {
        const QColor color = option->palette.color(QPalette::ButtonText);
        return property("own").toString() == color.name() + QString::number(painter->font().pixelSize());
    }
};

std::unique_ptr<QAbstractButton> made(const QString &control)
{
    if (control == QLatin1String("CheckBox"))
        return std::make_unique<CustomCheckBox>();
    if (control == QLatin1String("RadioButton"))
        return std::make_unique<CustomRadioButton>();
    return std::make_unique<Button>();
}

QStyleOptionButton buttonOption(const QAbstractButton &button, const QString &state = QStringLiteral("1"))
{
    QStyleOptionButton option;
    option.initFrom(&button);
    option.state = QStyle::State(state.section(QLatin1Char(' '), 0, 0).toInt(nullptr, 16));
    option.direction = state.contains(QLatin1String("rtl")) ? Qt::RightToLeft : Qt::LeftToRight;
    option.text = button.text();
    option.icon = button.icon();
    option.iconSize = button.iconSize();
    option.rect = kRect;
    return option;
}

QImage drawn(QAbstractButton *button, int type, QStyleOption *option)
{
    return Probe::painted(QSize(120, 50), [&](QPainter *painter) {
        dynamic_cast<CustomObject *>(button)->cDrawWidget(Custom::CustomWidgetType(type), painter, kRect, option);
    });
}

} // namespace

class ButtonLayoutTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void iconAndText_data() { addRowsOf(QStringLiteral("render/icons.txt")); }
    void iconAndText();
    void maskHasQuadraticCorners_data() { addRowsOf(QStringLiteral("render/masks.txt")); }
    void maskHasQuadraticCorners();
    void maskFollowsTheRadii();
    void contents_data() { addRowsOf(QStringLiteral("render/contents.txt")); }
    void contents();
    void otherOptionsPaintNothingAndOtherTypesTheBox();
    void sizes_data() { addRowsOf(QStringLiteral("render/sizes.txt")); }
    void sizes();
    void pushButtonSizeIsKeptForAnEmptyText();
    void indicatorSizeIsKeptForItsText();
};

void ButtonLayoutTest::iconAndText()
{
    QFETCH(QStringList, fields);
    const auto result = PushButtonLayout::withIcon(
        { rectIn(fields[0]), fields[1].toInt(), QSize(16, 12), QSize(30, 10), !fields[2].isEmpty() });
    QCOMPARE(result.iconRect, rectIn(fields[3]));
    QCOMPARE(result.textRect, rectIn(fields[4]));
    QCOMPARE(result.flags, fields[5].toInt());
}

void ButtonLayoutTest::maskHasQuadraticCorners()
{
    QFETCH(QStringList, fields);
    const QRect box = rectIn(QLatin1String("0 0 ") + fields[0]);
    const QVector<double> r = numbersIn(fields[1]);
    const RoundedMask::Radii radii{ { int(r[0]), int(r[1]), int(r[2]), int(r[3]) } };
    const QPainterPath path = RoundedMask::outline(box.size(), radii);
    QStringList points;
    for (int i = 0; i < path.elementCount(); ++i)
        points += QStringLiteral("%1,%2").arg(path.elementAt(i).x, 0, 'f', 3).arg(path.elementAt(i).y, 0, 'f', 3);
    QCOMPARE(points.join(QLatin1Char(' ')), fields[2]);
    const QRegion mask = RoundedMask::region(box.size(), radii);
    QCOMPARE(mask.boundingRect(), box);
    QVERIFY(mask.contains(box.center()) && !mask.contains(box.bottomRight()));
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
    button.show();
    button.resize(50, 20);
    const QRegion mask = RoundedMask::region({ 50, 20 }, { { 8, 3, 8, 8 } });
    QTRY_COMPARE(button.mask(), mask);
    // Without the flag an earlier mask stays; with all radii 0 it is the whole rectangle.
    button.cSetParameter(Custom::ParamBorderRadius, false);
    button.resize(40, 20);
    button.cResizeEvent();
    QCOMPARE(button.mask(), mask);
    button.cSetBorderRadius(0);
    button.cResizeEvent();
    QCOMPARE(button.mask(), QRegion(0, 0, 40, 20));
}

void ButtonLayoutTest::contents()
{
    QFETCH(QStringList, fields);
    addStyle("Custom" + fields[0].toLatin1(), fields[1]);
    const auto type = enumerator<Custom::CustomWidgetType>(QLatin1String("Widget") + fields[0]);
    NotingStyle style;
    const auto button = made(fields[0]);
    button->setStyle(&style);
    button->setText(fields[3]);
    if (!fields[2].isEmpty())
        button->setIcon(QIcon(picture(QColor(fields[2]), { 16, 12 })));
    button->setProperty("own", fields[4].section(QLatin1String("own "), 1));
    style.underline = fields[4].contains(QLatin1String("underline"));
    QStyleOptionButton option = buttonOption(*button, fields[4]);
    const QImage image = drawn(button.get(), type, &option);
    for (const char *name : { "red", "blue" }) {
        const QRect bounds = Probe::bounds(image, [name](const QColor &color) { return color == QColor(name); });
        if (!bounds.isNull())
            style.notes += QLatin1String(name) + QLatin1Char(' ') + text(bounds);
    }
    if (type != Custom::WidgetPushButton)
        style.notes += QStringLiteral("font %1").arg(button->font().pixelSize());
    QCOMPARE(style.notes.join(QLatin1String("; ")), fields[5]);
}

void ButtonLayoutTest::otherOptionsPaintNothingAndOtherTypesTheBox()
{
    CustomPushButton button(QStringLiteral("Text"));
    button.cSetBackgroundColor(QStringLiteral("#0000ff"));
    button.cSetBackgroundColor(QStringLiteral("#ff0000"), Custom::Disabled);
    QStyleOptionButton old = buttonOption(button, QString());
    old.version = 0;
    QStyleOption plain(1, QStyleOption::SO_Default);
    const QImage nothing = Probe::painted(QSize(120, 50), [](QPainter *) {});
    const QImage box = Probe::painted(QSize(120, 50), [](QPainter *painter) { painter->fillRect(kRect, Qt::blue); });
    for (QStyleOption *option : { static_cast<QStyleOption *>(nullptr), static_cast<QStyleOption *>(&old), &plain }) {
        for (const int type : { Custom::WidgetPushButton, Custom::WidgetCheckBox, Custom::WidgetRadioButton })
            QVERIFY(drawn(&button, type, option) == nothing);
        for (const int type : { int(Custom::WidgetGeneric), 42, -1 })
            QVERIFY(drawn(&button, type, option) == box);
    }
}

void ButtonLayoutTest::sizes()
{
    QFETCH(QStringList, fields);
    addStyle("Custom" + fields[0].toLatin1(), fields[1]);
    const auto button = made(fields[0]);
    const QString label = fields[3].replace(QLatin1String("\\n"), QLatin1String("\n"));
    button->setText(label);
    if (!fields[2].isEmpty()) {
        button->setIcon(QIcon(picture(Qt::red)));
        button->setIconSize(rectIn(QLatin1String("0 0 ") + fields[2]).size());
    }
    QStyleOptionButton option = buttonOption(*button);
    const QFontMetrics metrics(dynamic_cast<CustomObject *>(button.get())->cFont(Custom::Normal));
    QSize size = metrics.size(Qt::TextShowMnemonic, label.isEmpty() ? QStringLiteral("XXXX") : label);
    if (fields[0] != QLatin1String("PushButton")) // as a disabled text, which some styles etch by a pixel
        size = button->style()->itemTextRect(metrics, QRect(), Qt::TextShowMnemonic, false, label).size();
    const QVector<double> times = numbersIn(fields[4]);
    size = times.isEmpty() ? button->style()->sizeFromContents(QStyle::CT_CheckBox, &option, size, button.get())
                           : QSizeF(size.width() * times[0], size.height() * times[1]).toSize();
    QCOMPARE(button->sizeHint(), size + rectIn(QLatin1String("0 0 ") + fields[5]).size());
}

void ButtonLayoutTest::pushButtonSizeIsKeptForAnEmptyText()
{
    CustomPushButton button;
    QStyleOptionButton old = buttonOption(button);
    old.version = 0;
    QCOMPARE(button.cSizeHint(nullptr), QSize(-1, -1));
    QCOMPARE(button.cSizeHint(&old), QSize(-1, -1));
    const QSize first = button.sizeHint();
    QCOMPARE(button.cSizeHint(&old), first);
    button.setIcon(QIcon(picture(Qt::red)));
    button.setIconSize({ 64, 64 });
    QCOMPARE(button.sizeHint(), first);
    button.setText(QStringLiteral("Text")); // and any other one is measured each time
    const QSize plain = button.sizeHint();
    QCOMPARE(plain.height(), 64 + 6);
    QMenu menu;
    button.setMenu(&menu);
    const int indicator = button.style()->pixelMetric(QStyle::PM_MenuButtonIndicator, nullptr, &button);
    QCOMPARE(button.sizeHint(), plain + QSize(indicator, 0));
    // An image that can't be loaded leaves the size of a null picture behind.
    button.cSetBackgroundImage(QStringLiteral("/none.png"));
    QCOMPARE(button.cSizeHint(&old), QSize(0, 0));
}

void ButtonLayoutTest::indicatorSizeIsKeptForItsText()
{
    addStyle("CustomCheckBox", QStringLiteral("BackgroundImage:unchecked=@red9x9 BackgroundImage:checked=@red90x90"));
    CustomCheckBox box(QStringLiteral("Text"));
    QStyleOptionButton old = buttonOption(box);
    old.version = 0;
    QCOMPARE(box.cSizeHint(&old), QSize(-1, -1));
    const QSize first = box.sizeHint();
    QFont font = box.font();
    font.setPixelSize(60);
    box.setFont(font);
    box.setChecked(true); // whatever the size of the other image
    QCOMPARE(box.sizeHint(), first);
    QCOMPARE(box.cSizeHint(&old), first);
    box.setText(QStringLiteral("Other"));
    QCOMPARE(box.sizeHint().height(), 90);
}

ZANTHIC_TEST_MAIN(ButtonLayoutTest)
#include "tst_button_layout.moc"
