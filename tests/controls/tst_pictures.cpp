#include "support/Probe.h"
#include "support/StyleTest.h"

#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomRadioButton.h>
#include <Zanthic/ZanthicTheme.h>

#include <QtCore/QMetaEnum>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace {

constexpr int kCellWidth = 124;
constexpr int kCellHeight = 60;
constexpr int kCellMargin = 6;
constexpr int kStatuses = 4;

const auto kIcon = QStringLiteral(":/Zanthic/Control/Arrow_right.png");

QStyle::State stateOf(int status)
{
    const QStyle::State enabled = QStyle::State_Enabled | QStyle::State_Active;
    const QStyle::State states[]
        = { enabled, enabled | QStyle::State_MouseOver, enabled | QStyle::State_Sunken, QStyle::State_Active };
    return states[status];
}

// The skin, and the bundled font in both languages.
bool apply(const QString &skin)
{
    if (!ZanthicTheme::applySkin(skin))
        return false;
    Custom::getAttrMap(QStringLiteral("custompushbutton"), QStringLiteral("default")); // takes up the base document
    for (const Custom::Language language : { Custom::Zh_cn, Custom::En_us })
        Custom::setGlobalFontFamily(language, QStringLiteral("DejaVu Sans"));
    Custom::setLanguage(Custom::En_us);
    return true;
}

template <typename Control>
QStringList selectorsOf()
{
    const auto words = QMetaEnum::fromType<typename Control::StyleSelector>();
    QStringList result;
    for (int i = 0; i < words.keyCount(); ++i)
        result += QString::fromLatin1(words.key(i));
    return result;
}

// One cell of a sheet: fills the control's option and paints it.
using Cell = std::function<void(QPainter *, const QRect &, int row, int column)>;

QImage sheet(int rows, int columns, qreal scale, const Cell &cell)
{
    const QSize size(columns * kCellWidth, rows * kCellHeight);
    return Probe::painted(
        size,
        [&](QPainter *painter) {
            painter->fillRect(
                QRect(QPoint(0, 0), size), Custom::getDataBaseColor(QStringLiteral("Custom_Window_Background")));
            for (int row = 0; row < rows; ++row) {
                for (int column = 0; column < columns; ++column) {
                    painter->save();
                    painter->translate(column * kCellWidth + kCellMargin, row * kCellHeight + kCellMargin);
                    cell(
                        painter, QRect(0, 0, kCellWidth - 2 * kCellMargin, kCellHeight - 2 * kCellMargin), row, column);
                    painter->restore();
                }
            }
        },
        scale);
}

void paintButton(QPainter *painter, const QRect &rect, const QString &selector, int column)
{
    CustomPushButton button(QStringLiteral("Button"));
    button.cSetStyleSelector(selector);
    // Behind the statuses stands a button for each side of its icon.
    const Qt::Alignment sides[] = { Qt::AlignLeft, Qt::AlignRight, Qt::AlignTop, Qt::AlignBottom };
    if (column >= kStatuses) {
        button.cSetIcon(kIcon);
        button.cSetIconAlign(sides[column - kStatuses]);
    }
    QStyleOptionButton option;
    option.initFrom(&button);
    option.state = stateOf(column < kStatuses ? column : 0);
    option.rect = rect;
    option.text = button.text();
    option.icon = button.icon();
    option.iconSize = QSize(16, 16);
    button.cDrawWidget(Custom::WidgetPushButton, painter, rect, &option);
}

template <typename Control, typename Init>
void paintIndicator(QPainter *painter, const QRect &rect, Control *control, Custom::CustomWidgetType type, Init init,
    Qt::CheckState check, int status)
{
    control->setText(QStringLiteral("Text"));
    QStyleOptionButton option;
    (control->*init)(&option);
    option.state = stateOf(status);
    if (check != Qt::PartiallyChecked)
        option.state |= check == Qt::Checked ? QStyle::State_On : QStyle::State_Off;
    control->cDrawWidget(type, painter, rect, &option);
}

} // namespace

class PicturesTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void controls_data();
    void controls();
    void thereAndBack();
    void cleanupTestCase() { QVERIFY(ZanthicTheme::applySkin(QStringLiteral("light"))); }
};

void PicturesTest::controls_data()
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<int>("scale");
    for (const QString &skin : ZanthicTheme::skins()) {
        for (const int scale : { 1, 2 })
            QTest::addRow("%s, scale %d", qPrintable(skin), scale) << skin << scale;
    }
}

void PicturesTest::controls()
{
    QFETCH(QString, skin);
    QFETCH(int, scale);
    QVERIFY(apply(skin));
    const QStringList buttons = selectorsOf<CustomPushButton>();
    const QStringList boxes = selectorsOf<CustomCheckBox>();
    const QVector<Qt::CheckState> checks{ Qt::Unchecked, Qt::PartiallyChecked, Qt::Checked };
    const QMap<QString, QImage> sheets{
        { QStringLiteral("push-button"),
            sheet(buttons.size(), 2 * kStatuses, scale,
                [&](QPainter *painter, const QRect &rect, int row, int column) {
                    paintButton(painter, rect, buttons[row], column);
                }) },
        { QStringLiteral("check-box"),
            sheet(boxes.size() * checks.size(), kStatuses, scale,
                [&](QPainter *painter, const QRect &rect, int row, int column) {
                    CustomCheckBox box;
                    box.cSetStyleSelector(boxes[row / checks.size()]);
                    paintIndicator(painter, rect, &box, Custom::WidgetCheckBox, &CustomCheckBox::initCheckBoxOption,
                        checks[row % checks.size()], column);
                }) },
        { QStringLiteral("radio-button"),
            sheet(2, kStatuses, scale,
                [&](QPainter *painter, const QRect &rect, int row, int column) {
                    CustomRadioButton radio;
                    paintIndicator(painter, rect, &radio, Custom::WidgetRadioButton,
                        &CustomRadioButton::initRadioButtonOption, row == 0 ? Qt::Unchecked : Qt::Checked, column);
                }) },
    };
    QStringList failures;
    for (auto it = sheets.cbegin(); it != sheets.cend(); ++it) {
        QString message;
        if (!Probe::matchesPicture(it.value(), QStringLiteral("%1-%2-%3x").arg(it.key(), skin).arg(scale), &message))
            failures += message;
    }
    QVERIFY2(failures.isEmpty(), qPrintable(failures.join(QLatin1Char('\n'))));
}

void PicturesTest::thereAndBack()
{
    QWidget window;
    QList<QAbstractButton *> live;
    for (const QString &selector : selectorsOf<CustomPushButton>()) {
        auto *button = new CustomPushButton(QStringLiteral("Button"), &window);
        button->cSetStyleSelector(selector);
        button->cSetIcon(kIcon);
        live += button;
    }
    for (const QString &selector : selectorsOf<CustomCheckBox>()) {
        auto *box = new CustomCheckBox(QStringLiteral("Text"), &window);
        box->cSetStyleSelector(selector);
        box->setChecked(true);
        live += box;
    }
    live += new CustomRadioButton(QStringLiteral("Text"), &window);
    for (int i = 0; i < live.size(); ++i)
        live[i]->setGeometry(0, i * 48, 120, 44);
    window.resize(200, live.size() * 48);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    for (const qreal scale : { 1.0, 2.0 }) {
        const auto images = [&](const char *skin) {
            QVector<QImage> result;
            if (apply(QLatin1String(skin))) {
                for (QAbstractButton *button : live)
                    result += Probe::grab(button, scale);
            }
            return result;
        };
        const QVector<QImage> light = images("light");
        const QVector<QImage> dark = images("dark");
        const QVector<QImage> again = images("light");
        QCOMPARE(light.size(), live.size());
        for (int i = 0; i < live.size(); ++i) {
            QVERIFY2(light[i] == again[i], qPrintable(live[i]->metaObject()->className() + QString::number(i)));
            QVERIFY2(light[i] != dark[i], qPrintable(live[i]->metaObject()->className() + QString::number(i)));
        }
    }
}

ZANTHIC_TEST_MAIN(PicturesTest)
#include "tst_pictures.moc"
