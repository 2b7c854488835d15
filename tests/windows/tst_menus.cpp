#include "support/Probe.h"
#include "support/StyleTest.h"
#include "windows/MenuItemLayout_p.h"

#include <Zanthic/CInterWidgetMenu.h>
#include <Zanthic/CustomMenu.h>

#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyleOptionMenuItem>

using Item = QStyleOptionMenuItem;

namespace {

const auto kStyle
    = QStringLiteral("ObjectParameter=2 BackgroundColor=#ffffff FontSize:item=14 FontColor:item=#000001 "
                     "FontColor:item:Hover=#000002 FontColor:item:Disabled=#000003 BackgroundColor:item:Hover=#00ff00 "
                     "HoverLineColor=#ff00ff SeparatorColor=#0000ff SeparatorColor:Hover=#123456");

// A menu that remembers what it was asked to paint.
class RecordingMenu : public CustomMenu
{
public:
    using CustomMenu::CustomMenu;

    void drawActionItem(QStyleOptionMenuItem *option, QPainter *painter) override
    {
        drawn.append(option->text);
        clips.append(painter->clipBoundingRect().toRect());
        CustomMenu::drawActionItem(option, painter);
    }

    QStringList drawn;
    QVector<QRect> clips;
};

// One item of 100x30 on white, alone.
QImage painted(CustomMenu *menu, Item *option)
{
    option->rect = QRect(0, 0, 100, 30);
    option->direction = menu->layoutDirection();
    option->palette = menu->palette();
    option->palette.setColor(QPalette::Highlight, Qt::yellow);
    return Probe::painted(QSize(100, 30), [&](QPainter *painter) {
        painter->fillRect(option->rect, Qt::white);
        menu->drawActionItem(option, painter);
    });
}

Item::MenuItemType typeOf(const QString &word)
{
    if (word == QLatin1String("SubMenu"))
        return Item::SubMenu;
    return word == QLatin1String("Separator") ? Item::Separator : Item::Normal;
}

QRect boundsOf(const QImage &image, const QString &color)
{
    return Probe::bounds(image, [&color](const QColor &found) { return found.name() == color; });
}

QString textOf(const QRect &rect)
{
    return QStringLiteral("%1 %2 %3 %4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

void popUp(QMenu *menu)
{
    menu->popup(QPoint(20, 20));
    QVERIFY(QTest::qWaitForWindowExposed(menu));
}

} // namespace

class MenusTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void metrics();
    void layout_data() { addRowsOf(QStringLiteral("windows/menu-layouts.txt")); }
    void layout();
    void itemsFollowTheirStatus_data() { addRowsOf(QStringLiteral("windows/menu-items.txt")); }
    void itemsFollowTheirStatus();
    void marksAreImagesOrPrimitives_data() { addRowsOf(QStringLiteral("windows/menu-marks.txt")); }
    void marksAreImagesOrPrimitives();
    void iconStandsInItsColumn();
    void anyTextIsHarmless();
    void onlyWhatIsExposedIsPainted();
    void styleSheetMakesAPlainMenu();
    void settersKeepTheirOwnKeys();
    void showsAWidget();
    void mayBeDeletedByItsAction();
};

void MenusTest::metrics()
{
    CustomMenu menu;
    const QStyle *style = menu.style();
    QCOMPARE(style->pixelMetric(QStyle::PM_MenuHMargin), 3);
    QCOMPARE(style->pixelMetric(QStyle::PM_MenuVMargin), 6);
    QVERIFY(style->styleHint(QStyle::SH_Menu_AllowActiveAndDisabled) == 1);
    QVERIFY(style->styleHint(QStyle::SH_Menu_MouseTracking) == 1);
    Item item;
    QStyleOption none;
    const auto size = [&](const QStyleOption &option) {
        return style->sizeFromContents(QStyle::CT_MenuItem, &option, QSize(10, 90), &menu);
    };
    QVERIFY(size(item) == QSize(75, 30) && size(none) == QSize(75, 30));
    item.menuItemType = Item::Separator;
    QCOMPARE(size(item), QSize(75, 102));
    QCOMPARE(style->sizeFromContents(QStyle::CT_MenuItem, nullptr, QSize(10, 90)), QSize(75, 30));
}

void MenusTest::layout()
{
    QFETCH(QStringList, fields);
    const QVector<double> n = numbersIn(fields[1]);
    const auto result = MenuItemLayout::layOut(
        { QRect(10, 20, 200, 31), enumerator<Qt::LayoutDirection>(fields[0]), int(n[0]), int(n[1]) });
    QCOMPARE(result.checkColumn, rectIn(fields[2]));
    QCOMPARE(result.markRect, rectIn(fields[3]));
    QCOMPARE(result.textRect, rectIn(fields[4]));
    QCOMPARE(result.shortcutRect, rectIn(fields[5]));
    QCOMPARE(result.backgroundRect, QRect(10, 20, 199, 31));
    QCOMPARE(result.underline, QLine(11, 50, 208, 50));
    QCOMPARE(result.separator, QLine(12, 34, 206, 34));
}

void MenusTest::itemsFollowTheirStatus()
{
    QFETCH(QStringList, fields);
    addStyle("CustomMenu", kStyle + QLatin1Char(' ') + fields[0]);
    CustomMenu menu;
    Item option;
    option.menuItemType = typeOf(fields[1]);
    option.state = fields[2].contains(QLatin1String("enabled")) ? QStyle::State_Enabled : QStyle::State_None;
    option.state.setFlag(QStyle::State_Selected, fields[2].contains(QLatin1String("selected")));
    option.text = QString(4, QChar(0x2588));
    const QImage image = painted(&menu, &option);
    QCOMPARE(image.pixelColor(1, 1).name(), fields[3]); // background
    QCOMPARE(image.pixelColor(99, 1).name(), QStringLiteral("#ffffff"));
    QCOMPARE(textOf(boundsOf(image, QStringLiteral("#ff00ff"))), fields[4]); // underline
    QCOMPARE(textOf(boundsOf(image, QStringLiteral("#0000ff"))), fields[5]); // separator
    if (!fields[6].isEmpty())
        QCOMPARE(image.pixelColor(20, 15).name(), fields[6]);
}

void MenusTest::marksAreImagesOrPrimitives()
{
    QFETCH(QStringList, fields);
    addStyle("CustomMenu", kStyle + QLatin1Char(' ') + fields[0]);
    CustomMenu menu;
    menu.setLayoutDirection(enumerator<Qt::LayoutDirection>(fields[1]));
    Item option;
    option.menuItemType = typeOf(fields[2]);
    option.state = QStyle::State_Enabled;
    option.state.setFlag(QStyle::State_Selected, fields[4] == QLatin1String("selected"));
    option.checkType = fields[3].isEmpty() ? Item::NotCheckable : Item::Exclusive;
    option.checked = true;
    option.palette = menu.palette();
    const QImage image = painted(&menu, &option);
    QCOMPARE(textOf(boundsOf(image, QStringLiteral("#ff0000"))), fields[5]);
    // A primitive is drawn in the palette's colours, within the place that an image would have.
    const QRect drawn = Probe::bounds(image, [](const QColor &found) { return found.lightness() < 100; });
    QCOMPARE(!drawn.isEmpty(), !fields[6].isEmpty());
    QVERIFY(drawn.isEmpty() || rectIn(fields[6]).contains(drawn));
}

void MenusTest::iconStandsInItsColumn()
{
    CustomMenu menu;
    QPixmap picture(10, 10);
    picture.fill(Qt::red);
    Item option;
    option.state = QStyle::State_Enabled;
    option.icon = QIcon(picture);
    option.maxIconWidth = 30;
    option.checkType = Item::NonExclusive;
    for (const bool checked : { false, true }) {
        option.checked = checked;
        const QImage image = painted(&menu, &option);
        // (30 - 1) / 2 - (10 - 1) / 2
        QCOMPARE(boundsOf(image, QStringLiteral("#ff0000")), QRect(10, 10, 10, 10));
        const QString shade = option.palette.dark().color().name(); // of the sunken panel
        QCOMPARE(boundsOf(image, shade).isEmpty(), !checked);
        QVERIFY(!checked || QRect(0, 0, 30, 30).contains(boundsOf(image, shade)));
    }
}

void MenusTest::anyTextIsHarmless()
{
    addStyle("CustomMenu", kStyle);
    CustomMenu menu;
    for (const QString &text :
        { QString(10000, QLatin1Char('%')), QStringLiteral("<b>%1</b>\t\t&&"), QStringLiteral("\t") })
        menu.addAction(text);
    menu.drawActionItem(nullptr, nullptr);
    Item option;
    menu.drawActionItem(&option, nullptr);
    menu.resize(200, 100);
    menu.cSetAttributeValue(
        QStringLiteral("FontSize"), QStringLiteral("0"), Custom::Normal, { QStringLiteral("item") });
    Probe::grab(&menu);
    menu.setFont(QFont(QStringLiteral("Family"), 11)); // measured in points
    Probe::grab(&menu);
    QCOMPARE(menu.font().pointSize(), 11);
}

void MenusTest::onlyWhatIsExposedIsPainted()
{
    addStyle("CustomMenu", kStyle);
    RecordingMenu menu;
    for (const auto &text : { QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c") })
        menu.addAction(text);
    popUp(&menu);
    QTRY_COMPARE(menu.font().pixelSize(), 14);
    QCoreApplication::processEvents();
    const auto rests = [&menu] {
        menu.drawn.clear();
        QTest::qWait(20);
        return menu.drawn.isEmpty();
    };
    QTRY_VERIFY(rests()); // a paint doesn't ask for the next one
    const QRect second = menu.actionGeometry(menu.actions().at(1));
    menu.repaint(second.adjusted(5, 5, -5, -5));
    QCOMPARE(menu.drawn, QStringList(QStringLiteral("b")));
    menu.clips.clear();
    menu.grab();
    QCOMPARE(menu.clips.size(), 3);
    QCOMPARE(menu.clips.at(1), second);
    QCOMPARE(second.height(), 30);
}

void MenusTest::styleSheetMakesAPlainMenu()
{
    addStyle("CustomMenu", kStyle);
    RecordingMenu menu;
    menu.addAction(QStringLiteral("text"));
    menu.setStyleSheet(QStringLiteral("QMenu { background: #ff0000; }"));
    popUp(&menu);
    QCOMPARE(menu.grab().toImage().pixelColor(20, 3).name(), QStringLiteral("#ff0000"));
    QVERIFY(menu.drawn.isEmpty());
}

void MenusTest::settersKeepTheirOwnKeys()
{
    CustomMenu menu;
    menu.cSetItemFontColor(Qt::red, Custom::Hover);
    menu.cSetItemBackgroundColor(QColor(1, 2, 3));
    menu.cSetItemBackgroundImage(QStringLiteral("/path"), Custom::Disabled);
    QCOMPARE(menu.cAttributeValue(QStringLiteral("FontColoritem"), Custom::Hover), QStringLiteral("#ff0000"));
    QCOMPARE(menu.cAttributeValue(QStringLiteral("BackgroundColoritem")), QStringLiteral("#010203"));
    QCOMPARE(menu.cAttributeValue(QStringLiteral("BackgroundImageitem"), Custom::Disabled), QStringLiteral("/path"));
    QVERIFY(!menu.cFontColor(Custom::Hover, { QStringLiteral("item") }).isValid());
}

void MenusTest::showsAWidget()
{
    addStyle("CustomMenu", kStyle);
    CustomMenu menu;
    auto *box = new QSpinBox;
    box->setFixedSize(77, 33);
    CInterWidgetMenu *inner = menu.cAddCustomWidgetMenu(box);
    QVERIFY(menu.actions().contains(inner->menuAction()) && inner->parent() == &menu);
    QCOMPARE(inner->sizeHint(), box->sizeHint());
    popUp(inner);
    QCOMPARE(box->geometry(), QRect(0, 0, 77, 33));
    delete box;
    QCOMPARE(inner->sizeHint(), CInterWidgetMenu(nullptr).sizeHint());
    QVERIFY(menu.cAddCustomWidgetMenu(nullptr));
}

void MenusTest::mayBeDeletedByItsAction()
{
    for (const auto &sheet : { QString(), QStringLiteral("QMenu { background: #ff0000; }") }) {
        // Later, since QMenu itself goes on after its action.
        QPointer<CustomMenu> menu(new CustomMenu);
        QAction *action = menu->addAction(QStringLiteral("text"), menu.data(), &QObject::deleteLater);
        menu->setStyleSheet(sheet);
        popUp(menu.data());
        QTest::mouseClick(menu.data(), Qt::LeftButton, {}, menu->actionGeometry(action).center());
        QTRY_VERIFY(!menu);
        CustomMenu *shown = new CustomMenu;
        shown->setStyleSheet(sheet);
        shown->addAction(QStringLiteral("text"));
        popUp(shown);
        delete shown;
    }
}

ZANTHIC_TEST_MAIN(MenusTest)
#include "tst_menus.moc"
