#include "support/Probe.h"
#include "support/StyleTest.h"

#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomRadioButton.h>
#include <Zanthic/ZanthicTheme.h>

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace {

constexpr QRect kCell(0, 0, 124, 60);
constexpr QRect kPlace(6, 6, 112, 48); // of the control in its cell
const auto kIcon = QStringLiteral(":/Zanthic/Control/Arrow_right.png");

// One row of cells: a control in every status, a push button then also with its icon at every side.
struct Row
{
    std::shared_ptr<QAbstractButton> button;
    Custom::CustomWidgetType type;
    QStyle::State check; // on, off or neither
};

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

std::shared_ptr<QAbstractButton> made(Custom::CustomWidgetType type, int selector)
{
    if (type == Custom::WidgetPushButton)
        return std::make_shared<CustomPushButton>(
            QStringLiteral("Button"), nullptr, CustomPushButton::StyleSelector(selector));
    if (type == Custom::WidgetCheckBox)
        return std::make_shared<CustomCheckBox>(
            QStringLiteral("Text"), nullptr, CustomCheckBox::StyleSelector(selector));
    return std::make_shared<CustomRadioButton>(QStringLiteral("Text"));
}

QVector<Row> rowsOf(Custom::CustomWidgetType type, int selectors, const QList<QStyle::State> &checks)
{
    QVector<Row> result;
    for (int selector = 0; selector < selectors; ++selector) {
        for (const QStyle::State check : checks)
            result.append({ made(type, selector), type, check });
    }
    return result;
}

QVector<QVector<Row>> allRows()
{
    const QStyle::State on = QStyle::State_On, off = QStyle::State_Off, none = QStyle::State_None;
    return { rowsOf(Custom::WidgetPushButton, 5, { none }), rowsOf(Custom::WidgetCheckBox, 5, { off, none, on }),
        rowsOf(Custom::WidgetRadioButton, 1, { off, on }) };
}

void paintCell(QPainter *painter, const Row &row, int column)
{
    const QStyle::State enabled = QStyle::State_Enabled | QStyle::State_Active;
    const QStyle::State states[]
        = { enabled, enabled | QStyle::State_MouseOver, enabled | QStyle::State_Sunken, QStyle::State_Active };
    const Qt::Alignment sides[] = { Qt::AlignLeft, Qt::AlignRight, Qt::AlignTop, Qt::AlignBottom };
    if (auto *button = column < 4 ? nullptr : qobject_cast<CustomPushButton *>(row.button.get())) {
        button->cSetIcon(kIcon);
        button->cSetIconAlign(sides[column - 4]);
    }
    QStyleOptionButton option;
    option.initFrom(row.button.get());
    option.state = (column < 4 ? states[column] : enabled) | row.check;
    option.rect = QRect(QPoint(0, 0), kPlace.size());
    option.text = row.button->text();
    option.icon = row.button->icon();
    option.iconSize = QSize(16, 16);
    dynamic_cast<CustomObject *>(row.button.get())->cDrawWidget(row.type, painter, option.rect, &option);
}

QImage sheet(const QVector<Row> &rows, int columns, qreal scale)
{
    const QSize size(columns * kCell.width(), rows.size() * kCell.height());
    const auto paint = [&](QPainter *painter) {
        painter->fillRect(
            QRect(QPoint(0, 0), size), Custom::getDataBaseColor(QStringLiteral("Custom_Window_Background")));
        for (int row = 0; row < rows.size(); ++row) {
            for (int column = 0; column < columns; ++column) {
                painter->save();
                painter->translate(kPlace.topLeft() + QPoint(column * kCell.width(), row * kCell.height()));
                paintCell(painter, rows[row], column);
                painter->restore();
            }
        }
    };
    return Probe::painted(size, paint, scale);
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
    const QStringList names{ QStringLiteral("push-button"), QStringLiteral("check-box"),
        QStringLiteral("radio-button") };
    QString failures;
    for (int i = 0; i < names.size(); ++i) {
        const QString name = QStringLiteral("%1-%2-%3x").arg(names[i], skin).arg(scale);
        QString message;
        if (!Probe::matchesPicture(sheet(allRows()[i], i == 0 ? 8 : 4, scale), name, &message))
            failures += message + QLatin1Char('\n');
    }
    QVERIFY2(failures.isEmpty(), qPrintable(failures));
}

void PicturesTest::thereAndBack()
{
    const QVector<QVector<Row>> all = allRows();
    const QVector<Row> live = all[0] + all[1] + all[2];
    for (const Row &row : live) {
        row.button->setFixedSize(kPlace.size());
        row.button->setChecked(row.check == QStyle::State_On);
        row.button->show();
        if (auto *button = qobject_cast<CustomPushButton *>(row.button.get()))
            button->cSetIcon(kIcon);
    }
    for (const qreal scale : { 1.0, 2.0 }) {
        const auto images = [&](const char *skin) {
            QVector<QImage> result;
            if (apply(QLatin1String(skin))) {
                for (const Row &row : live)
                    result += Probe::grab(row.button.get(), scale);
            }
            return result;
        };
        const QVector<QImage> light = images("light");
        const QVector<QImage> dark = images("dark");
        const QVector<QImage> again = images("light");
        QCOMPARE(light.size(), live.size());
        for (int i = 0; i < live.size(); ++i)
            QVERIFY2(light[i] == again[i] && light[i] != dark[i], qPrintable(QString::number(i)));
    }
}

ZANTHIC_TEST_MAIN(PicturesTest)
#include "tst_pictures.moc"
