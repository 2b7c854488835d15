#include "render/PushButtonLayout_p.h"
#include "style/StyleHost.h"
#include "support/Probe.h"

#include <Zanthic/Zanthic.h>

namespace {

constexpr QRect kRect(10, 5, 100, 40);

// Fusion, with a shift of (3, 5) for pressed buttons and underlines as told.
class ShiftingStyle : public QProxyStyle
{
public:
    ShiftingStyle() : QProxyStyle("Fusion"_s) { }

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *w) const override
    {
        const bool shift = metric == PM_ButtonShiftHorizontal || metric == PM_ButtonShiftVertical;
        return shift ? (metric == PM_ButtonShiftHorizontal ? 3 : 5) : QProxyStyle::pixelMetric(metric, option, w);
    }
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *w, QStyleHintReturn *data) const override
    {
        return hint == SH_UnderlineShortcut ? underline : QProxyStyle::styleHint(hint, option, w, data);
    }

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
    if (control == "CheckBox"_s)
        return std::make_unique<CustomCheckBox>();
    if (control == "RadioButton"_s)
        return std::make_unique<CustomRadioButton>();
    return std::make_unique<Button>();
}

QStyleOptionButton buttonOption(const QAbstractButton &button, const QString &state = "1"_s)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    option.state = QStyle::State(state.section(' ', 0, 0).toInt(nullptr, 16));
    option.direction = state.contains("rtl"_s) ? Qt::RightToLeft : Qt::LeftToRight;
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
    void iconAndText_data() { addRowsOf("render/icons.txt"_s); }
    void iconAndText()
    {
        QFETCH(QStringList, fields);
        const auto result = PushButtonLayout::withIcon(
            { rectIn(fields[0]), fields[1].toInt(), QSize(16, 12), QSize(30, 10), !fields[2].isEmpty() });
        QCOMPARE(result.iconRect, rectIn(fields[3]));
        QCOMPARE(result.textRect, rectIn(fields[4]));
        QCOMPARE(result.flags, fields[5].toInt());
    }

    void maskFollowsTheRadii()
    {
        CustomPushButton button;
        button.resize(60, 30);
        button.cResizeEvent();
        QVERIFY(button.mask().isEmpty());
        button.cSetBorderRadius(20);
        button.cSetBorderRadius(6, Custom::RightTop);
        button.cSetBorderRadius(0, Custom::LeftBottom); // below 1: the common radius
        button.cSetBorderRadius(12, Custom::RightBottom);
        button.show();
        button.resize(90, 60);
        QTRY_COMPARE(button.mask().boundingRect(), button.rect());
        const QRegion mask = button.mask();
        QString message;
        const auto fill = [&](QPainter *painter) {
            painter->setClipRegion(mask);
            painter->fillRect(button.rect(), Qt::black);
        };
        QVERIFY2(Probe::matchesPicture(Probe::painted({ 90, 60 }, fill), "mask"_s, &message), qPrintable(message));
        // Without the flag an earlier mask stays; with all radii 0 it is the whole rectangle.
        button.cSetParameter(Custom::ParamBorderRadius, false);
        button.resize(40, 20);
        button.cResizeEvent();
        QCOMPARE(button.mask(), mask);
        button.cSetBorderRadius(0);
        button.cResizeEvent();
        QCOMPARE(button.mask(), QRegion(0, 0, 40, 20));
    }

    void contents_data() { addRowsOf("render/contents.txt"_s); }
    void contents()
    {
        QFETCH(QStringList, fields);
        addStyle("Custom" + fields[0].toLatin1(), fields[1]);
        ShiftingStyle style;
        style.underline = fields[4].contains("underline"_s);
        const auto button = made(fields[0]);
        button->setStyle(&style);
        button->setText(fields[3]);
        if (!fields[2].isEmpty())
            button->setIcon(QIcon(picture(QColor(fields[2]), { 16, 12 })));
        button->setProperty("own", fields[4].section("own "_s, 1));
        QStyleOptionButton option = buttonOption(*button, fields[4]);
        const QImage image = drawn(button.get(), enumerator<Custom::CustomWidgetType>("Widget" + fields[0]), &option);
        QString name = QTest::currentDataTag();
        QString message;
        name = "content-" + name.remove(',').replace(' ', '-');
        QVERIFY2(Probe::matchesPicture(image, name, &message), qPrintable(message));
    }

    void otherOptionsPaintNothingAndOtherTypesTheBox()
    {
        CustomPushButton button("Text"_s);
        button.cSetBackgroundColor("#0000ff"_s);
        button.cSetBackgroundColor("#ff0000"_s, Custom::Disabled);
        QStyleOptionButton old = buttonOption(button, QString());
        old.version = 0;
        QStyleOption plain(1, QStyleOption::SO_Default);
        const QImage nothing = Probe::painted(QSize(120, 50), [](QPainter *) {});
        const QImage box
            = Probe::painted(QSize(120, 50), [](QPainter *painter) { painter->fillRect(kRect, Qt::blue); });
        for (QStyleOption *option :
            { static_cast<QStyleOption *>(nullptr), static_cast<QStyleOption *>(&old), &plain }) {
            for (const int type : { Custom::WidgetPushButton, Custom::WidgetCheckBox, Custom::WidgetRadioButton })
                QVERIFY(drawn(&button, type, option) == nothing);
            for (const int type : { int(Custom::WidgetGeneric), 42, -1 })
                QVERIFY(drawn(&button, type, option) == box);
        }
    }

    void sizes_data() { addRowsOf("render/sizes.txt"_s); }
    void sizes()
    {
        QFETCH(QStringList, fields);
        addStyle("Custom" + fields[0].toLatin1(), fields[1]);
        const auto button = made(fields[0]);
        const QString label = fields[3].replace("\\n"_s, "\n"_s);
        button->setText(label);
        if (!fields[2].isEmpty()) {
            button->setIcon(QIcon(picture(Qt::red)));
            button->setIconSize(rectIn("0 0 "_s + fields[2]).size());
        }
        QStyleOptionButton option = buttonOption(*button);
        const QFontMetrics metrics(dynamic_cast<CustomObject *>(button.get())->cFont(Custom::Normal));
        QSize size = metrics.size(Qt::TextShowMnemonic, label.isEmpty() ? "XXXX"_s : label);
        if (fields[0] != "PushButton"_s) // as a disabled text, which some styles etch by a pixel
            size = button->style()->itemTextRect(metrics, QRect(), Qt::TextShowMnemonic, false, label).size();
        const QVector<double> times = numbersIn(fields[4]);
        size = times.isEmpty() ? button->style()->sizeFromContents(QStyle::CT_CheckBox, &option, size, button.get())
                               : QSizeF(size.width() * times[0], size.height() * times[1]).toSize();
        QCOMPARE(button->sizeHint(), size + rectIn("0 0 "_s + fields[5]).size());
    }

    void pushButtonSizeIsKeptForAnEmptyText()
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
        button.setText("Text"_s); // and any other one is measured each time
        const QSize plain = button.sizeHint();
        QCOMPARE(plain.height(), 64 + 6);
        QMenu menu;
        button.setMenu(&menu);
        const int indicator = button.style()->pixelMetric(QStyle::PM_MenuButtonIndicator, nullptr, &button);
        QCOMPARE(button.sizeHint(), plain + QSize(indicator, 0));
        // An image that can't be loaded leaves the size of a null picture behind.
        button.cSetBackgroundImage("/none.png"_s);
        QCOMPARE(button.cSizeHint(&old), QSize(0, 0));
    }

    void indicatorSizeIsKeptForItsText()
    {
        addStyle("CustomCheckBox", "BackgroundImage:unchecked=@red9x9 BackgroundImage:checked=@red90x90"_s);
        CustomCheckBox box("Text"_s);
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
        box.setText("Other"_s);
        QCOMPARE(box.sizeHint().height(), 90);
    }
};

ZANTHIC_TEST_MAIN(ButtonLayoutTest)
#include "tst_button_layout.moc"
