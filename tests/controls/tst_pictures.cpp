#include "composite/CustomDrawSlider_p.h"
#include "style/StyleHost.h"
#include "support/Probe.h"

#include <Zanthic/Zanthic.h>
#include <Zanthic/ZanthicTheme.h>

namespace {

constexpr QRect kCell(0, 0, 124, 60);
constexpr QRect kPlace(6, 6, 112, 48); // of the control in its cell

const QStyle::State kNormal = QStyle::State_Enabled | QStyle::State_Active;
const QList<QStyle::State> kStates{ kNormal, kNormal | QStyle::State_MouseOver, kNormal | QStyle::State_Sunken,
    QStyle::State_Active };

struct Sheet
{
    QString name;
    Custom::CustomWidgetType type;
    int columns;
    QVector<std::shared_ptr<QWidget>> cells; // live controls, row by row
    QVector<QStyle::State> states; // of the cells
};

QWidget *madeSlider(int kind, int variant, Custom::CommonStyleSelector selector)
{
    CustomDrawSlider *slider = nullptr;
    if (kind == 1)
        slider = new CustomDotSlider;
    else if (kind == 2)
        slider = new CustomTwoHandleSlider;
    else
        slider = kind == 3 ? new CustomProcessSlider : new CustomDrawSlider;
    slider->cSetStyleSelector(selector);
    CustomDrawSliderOption &option = CustomDrawSliderPrivate::get(slider)->option;
    option.value = 70;
    option.secondValue = 30;
    option.handlePressed = variant == 1;
    option.handlePos = 0.7;
    option.reverse = variant == 1;
    if (variant == 2 && kind == 0)
        slider->cSetShowTextTip(true, { "Min"_s, "Max"_s }, CustomDrawSlider::TextBeside);
    option.showToolTip = option.showToolTip || variant == 2;
    slider->setDisabled(variant == 3);
    return slider;
}

// A row of buttons, of dots, and a number in two ways.
QWidget *madeRow(int kind, Custom::CommonStyleSelector selector)
{
    if (kind == 0) {
        auto *row = new CustomSwitchButton;
        row->cSetStyleSelector(selector);
        row->cSetButtonNames({ "A"_s, "B"_s, "C"_s });
        return row;
    }
    if (kind == 1) {
        auto *dots = new CustomDotSelector;
        dots->cSetDotNumber(4);
        dots->cSetCurrentDot(selector);
        return dots;
    }
    auto *number = new CustomSpinBox64(nullptr, selector);
    number->setRange(-99, 99);
    number->setValue(-42);
    number->setDisabled(kind == 3);
    return number;
}

QVector<Sheet> sheets()
{
    QVector<Sheet> result{ { "push-button"_s, Custom::WidgetPushButton, 8, {}, {} },
        { "check-box"_s, Custom::WidgetCheckBox, 4, {}, {} },
        { "radio-button"_s, Custom::WidgetRadioButton, 4, {}, {} }, { "box"_s, Custom::WidgetGeneric, 4, {}, {} },
        { "combo-box"_s, Custom::WidgetComboBox, 4, {}, {} }, { "slider"_s, Custom::WidgetDrawSlider, 4, {}, {} },
        { "row"_s, Custom::WidgetGeneric, 4, {}, {} } };
    const auto add = [&](int sheet, QWidget *control, QStyle::State state) {
        control->resize(kPlace.size());
        result[sheet].cells.append(std::shared_ptr<QWidget>(control));
        result[sheet].states.append(state);
    };
    // Each selector in a row: every status, then an icon at every side.
    for (int i = 0; i < 40; ++i) {
        auto *button = new CustomPushButton("Button"_s, nullptr, CustomPushButton::StyleSelector(i / 8));
        const Qt::Alignment sides[] = { Qt::AlignLeft, Qt::AlignRight, Qt::AlignTop, Qt::AlignBottom };
        if (i % 8 >= 4) {
            button->cSetIcon(":/Zanthic/Control/Arrow_right.png"_s);
            button->cSetIconAlign(sides[i % 4]);
        }
        add(0, button, kStates.value(i % 8, kNormal));
    }
    // Each selector in three rows: unchecked, partially checked, checked.
    const QStyle::State checks[] = { QStyle::State_Off, QStyle::State_None, QStyle::State_On };
    for (int i = 0; i < 60; ++i)
        add(1, new CustomCheckBox("Text"_s, nullptr, CustomCheckBox::StyleSelector(i / 12)),
            kStates[i % 4] | checks[i / 4 % 3]);
    for (int i = 0; i < 8; ++i)
        add(2, new CustomRadioButton("Text"_s), kStates[i % 4] | checks[i / 4 * 2]);
    // The two plain boxes, each selector in a row.
    for (int i = 0; i < 24; ++i) {
        QWidget *box = i < 12 ? static_cast<QWidget *>(new CustomWidget) : new CustomFrame;
        dynamic_cast<CustomObject *>(box)->cSetStyleSelector(Custom::CommonStyleSelector(i / 4 % 3));
        add(3, box, kStates[i % 4]);
    }
    for (int i = 0; i < 12; ++i) {
        auto *comboBox = new CustomComboBox(nullptr, CustomComboBox::StyleSelector(i / 4));
        comboBox->addItem("Combo box"_s);
        add(4, comboBox, kStates[i % 4]);
    }
    // Each kind in a row, then two of them in the other selectors: at rest, dragged, with texts, disabled.
    for (int i = 0; i < 32; ++i)
        add(5, madeSlider(i / 4 % 4, i % 4, Custom::CommonStyleSelector(qMax(0, i / 8 - 1))),
            kStates[i % 4 == 3 ? 3 : 0]);
    for (int i = 0; i < 12; ++i)
        add(6, madeRow(i % 4, Custom::CommonStyleSelector(i / 4)), kNormal);
    return result;
}

// A generic control is painted at rest whatever its state, so that a plain box is painted by its two halves.
void paintControl(QPainter *painter, Custom::CustomWidgetType type, QWidget *control, QStyle::State state)
{
    if (!qobject_cast<QAbstractButton *>(control) && !qobject_cast<QComboBox *>(control)
        && control->metaObject() != &CustomWidget::staticMetaObject && !qobject_cast<CustomFrame *>(control)) {
        control->render(painter, QPoint(), QRegion(), QWidget::DrawChildren);
        return;
    }
    auto &object = dynamic_cast<CustomObject &>(*control);
    QStyleOptionButton option;
    option.initFrom(control);
    option.state = state;
    option.rect = QRect(QPoint(0, 0), kPlace.size());
    if (const auto *comboBox = qobject_cast<CustomComboBox *>(control)) {
        QStyleOptionComboBox comboOption;
        comboBox->initComboBoxOption(&comboOption);
        comboOption.state = state;
        object.cDrawWidget(type, painter, option.rect, &comboOption);
        return;
    }
    if (const auto *button = qobject_cast<QAbstractButton *>(control)) {
        option.text = button->text();
        option.icon = button->icon();
        option.iconSize = QSize(16, 16);
        object.cDrawWidget(type, painter, option.rect, &option);
        return;
    }
    object.cDrawBackground(painter, option.rect, object.cGetItemStatus(state));
    object.cDrawBorder(painter, option.rect, object.cGetItemStatus(state));
}

QImage painted(const Sheet &sheet, qreal scale)
{
    const QSize size(sheet.columns * kCell.width(), sheet.cells.size() / sheet.columns * kCell.height());
    const auto paint = [&](QPainter *painter) {
        painter->fillRect(QRect(QPoint(0, 0), size), Custom::getDataBaseColor("Custom_Window_Background"_s));
        for (int i = 0; i < sheet.cells.size(); ++i) {
            painter->save();
            painter->translate(
                kPlace.topLeft() + QPoint(i % sheet.columns * kCell.width(), i / sheet.columns * kCell.height()));
            paintControl(painter, sheet.type, sheet.cells[i].get(), sheet.states[i]);
            painter->restore();
        }
    };
    return Probe::painted(size, paint, scale);
}

// The skin, and the bundled font in both languages.
bool apply(const QString &skin)
{
    const bool applied = ZanthicTheme::applySkin(skin);
    Custom::getAttrMap("custompushbutton"_s, "default"_s); // takes up the base document
    for (const Custom::Language language : { Custom::Zh_cn, Custom::En_us })
        Custom::setGlobalFontFamily(language, "DejaVu Sans"_s);
    Custom::setLanguage(Custom::En_us);
    return applied;
}

} // namespace

class PicturesTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyStateInEverySkinThereAndBack()
    {
        QVERIFY(apply("light"_s));
        const QVector<Sheet> all = sheets();
        QMap<QString, QImage> first;
        QString failures;
        for (const auto &skin : { "light"_s, "dark"_s, "light"_s }) {
            QVERIFY(apply(skin));
            for (int i = 0; i < 2 * all.size(); ++i) {
                const int scale = i % 2 + 1;
                const QString name = QStringLiteral("%1-%2-%3x").arg(all[i / 2].name, skin).arg(scale);
                const QImage image = painted(all[i / 2], scale);
                if (first.value(name, image) != image)
                    failures += name + " isn't what it was\n";
                first[name] = image;
                QString message;
                if (!Probe::matchesPicture(image, name, &message))
                    failures += message + '\n';
            }
        }
        QVERIFY2(failures.isEmpty(), qPrintable(failures));
    }
    void cleanupTestCase() { QVERIFY(ZanthicTheme::applySkin("light"_s)); }
};

ZANTHIC_TEST_MAIN(PicturesTest)
#include "tst_pictures.moc"
