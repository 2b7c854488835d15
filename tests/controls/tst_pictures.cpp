#include "support/Probe.h"
#include "support/StyleTest.h"

#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomFrame.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomRadioButton.h>
#include <Zanthic/CustomWidget.h>
#include <Zanthic/ZanthicTheme.h>

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace {

constexpr QRect kCell(0, 0, 124, 60);
constexpr QRect kPlace(6, 6, 112, 48); // of the control in its cell

const QStyle::State kNormal = QStyle::State_Enabled | QStyle::State_Active;
const QList<QStyle::State> kStates{ kNormal, kNormal | QStyle::State_MouseOver, kNormal | QStyle::State_Sunken,
    QStyle::State_Active };

// A live control in one state of a sheet.
struct Cell
{
    std::shared_ptr<QWidget> control;
    QStyle::State state;
};

struct Sheet
{
    QString name;
    Custom::CustomWidgetType type;
    int columns;
    QVector<Cell> cells; // row by row
};

// Each selector in a row: every status, then an icon at every side.
Sheet pushButtons()
{
    Sheet sheet{ QStringLiteral("push-button"), Custom::WidgetPushButton, 8, {} };
    for (int i = 0; i < 40; ++i) {
        const auto selector = CustomPushButton::StyleSelector(i / 8);
        const auto button = std::make_shared<CustomPushButton>(QStringLiteral("Button"), nullptr, selector);
        const Qt::Alignment sides[] = { Qt::AlignLeft, Qt::AlignRight, Qt::AlignTop, Qt::AlignBottom };
        if (i % 8 >= 4) {
            button->cSetIcon(QStringLiteral(":/Zanthic/Control/Arrow_right.png"));
            button->cSetIconAlign(sides[i % 4]);
        }
        sheet.cells.append({ button, kStates.value(i % 8, kNormal) });
    }
    return sheet;
}

// Each selector in three rows: unchecked, partially checked, checked.
Sheet checkBoxes()
{
    Sheet sheet{ QStringLiteral("check-box"), Custom::WidgetCheckBox, 4, {} };
    for (int i = 0; i < 60; ++i) {
        const QStyle::State checks[] = { QStyle::State_Off, QStyle::State_None, QStyle::State_On };
        const auto selector = CustomCheckBox::StyleSelector(i / 12);
        sheet.cells.append({ std::make_shared<CustomCheckBox>(QStringLiteral("Text"), nullptr, selector),
            kStates[i % 4] | checks[i / 4 % 3] });
    }
    return sheet;
}

Sheet radioButtons()
{
    Sheet sheet{ QStringLiteral("radio-button"), Custom::WidgetRadioButton, 4, {} };
    for (int i = 0; i < 8; ++i)
        sheet.cells.append({ std::make_shared<CustomRadioButton>(QStringLiteral("Text")),
            kStates[i % 4] | (i < 4 ? QStyle::State_Off : QStyle::State_On) });
    return sheet;
}

// The two plain boxes, each selector in a row.
Sheet boxes()
{
    Sheet sheet{ QStringLiteral("box"), Custom::WidgetGeneric, 4, {} };
    for (int i = 0; i < 24; ++i) {
        std::shared_ptr<QWidget> box;
        if (i < 12)
            box = std::make_shared<CustomWidget>();
        else
            box = std::make_shared<CustomFrame>();
        dynamic_cast<CustomObject &>(*box).cSetStyleSelector(Custom::CommonStyleSelector(i / 4 % 3));
        sheet.cells.append({ box, kStates[i % 4] });
    }
    return sheet;
}

// A generic control is painted at rest whatever its state, so that a plain box is painted by its two halves.
void paintControl(QPainter *painter, const Sheet &sheet, const Cell &cell)
{
    auto &object = dynamic_cast<CustomObject &>(*cell.control);
    QStyleOptionButton option;
    option.initFrom(cell.control.get());
    option.state = cell.state;
    option.rect = QRect(QPoint(0, 0), kPlace.size());
    if (const auto *button = qobject_cast<QAbstractButton *>(cell.control.get())) {
        option.text = button->text();
        option.icon = button->icon();
        option.iconSize = QSize(16, 16);
        object.cDrawWidget(sheet.type, painter, option.rect, &option);
        return;
    }
    object.cDrawBackground(painter, option.rect, object.cGetItemStatus(cell.state));
    object.cDrawBorder(painter, option.rect, object.cGetItemStatus(cell.state));
}

QImage painted(const Sheet &sheet, qreal scale)
{
    const QSize size(sheet.columns * kCell.width(), sheet.cells.size() / sheet.columns * kCell.height());
    const auto paint = [&](QPainter *painter) {
        painter->fillRect(
            QRect(QPoint(0, 0), size), Custom::getDataBaseColor(QStringLiteral("Custom_Window_Background")));
        for (int i = 0; i < sheet.cells.size(); ++i) {
            painter->save();
            painter->translate(
                kPlace.topLeft() + QPoint(i % sheet.columns * kCell.width(), i / sheet.columns * kCell.height()));
            paintControl(painter, sheet, sheet.cells[i]);
            painter->restore();
        }
    };
    return Probe::painted(size, paint, scale);
}

// The skin, and the bundled font in both languages.
bool apply(const QString &skin)
{
    const bool applied = ZanthicTheme::applySkin(skin);
    Custom::getAttrMap(QStringLiteral("custompushbutton"), QStringLiteral("default")); // takes up the base document
    for (const Custom::Language language : { Custom::Zh_cn, Custom::En_us })
        Custom::setGlobalFontFamily(language, QStringLiteral("DejaVu Sans"));
    Custom::setLanguage(Custom::En_us);
    return applied;
}

} // namespace

class PicturesTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyStateInEverySkinThereAndBack_data();
    void everyStateInEverySkinThereAndBack();
    void cleanupTestCase() { QVERIFY(ZanthicTheme::applySkin(QStringLiteral("light"))); }
};

void PicturesTest::everyStateInEverySkinThereAndBack_data()
{
    QTest::addColumn<int>("scale");
    QTest::newRow("scale 1") << 1;
    QTest::newRow("scale 2") << 2;
}

void PicturesTest::everyStateInEverySkinThereAndBack()
{
    QFETCH(int, scale);
    QVERIFY(apply(QStringLiteral("light")));
    const QVector<Sheet> sheets{ pushButtons(), checkBoxes(), radioButtons(), boxes() };
    QMap<QString, QImage> first;
    QString failures;
    for (const QString &skin : { QStringLiteral("light"), QStringLiteral("dark"), QStringLiteral("light") }) {
        QVERIFY(apply(skin));
        for (const Sheet &sheet : sheets) {
            const QString name = QStringLiteral("%1-%2-%3x").arg(sheet.name, skin).arg(scale);
            const QImage image = painted(sheet, scale);
            if (first.value(name, image) != image)
                failures += name + QStringLiteral(" isn't what it was\n");
            first[name] = image;
            QString message;
            if (!Probe::matchesPicture(image, name, &message))
                failures += message + QLatin1Char('\n');
        }
    }
    QVERIFY2(failures.isEmpty(), qPrintable(failures));
}

ZANTHIC_TEST_MAIN(PicturesTest)
#include "tst_pictures.moc"
