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

QVector<Sheet> sheets()
{
    QVector<Sheet> result{ { "push-button"_s, Custom::WidgetPushButton, 8, {}, {} },
        { "check-box"_s, Custom::WidgetCheckBox, 4, {}, {} },
        { "radio-button"_s, Custom::WidgetRadioButton, 4, {}, {} }, { "box"_s, Custom::WidgetGeneric, 4, {}, {} } };
    const auto add = [&](int sheet, QWidget *control, QStyle::State state) {
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
    return result;
}

// A generic control is painted at rest whatever its state, so that a plain box is painted by its two halves.
void paintControl(QPainter *painter, Custom::CustomWidgetType type, QWidget *control, QStyle::State state)
{
    auto &object = dynamic_cast<CustomObject &>(*control);
    QStyleOptionButton option;
    option.initFrom(control);
    option.state = state;
    option.rect = QRect(QPoint(0, 0), kPlace.size());
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
