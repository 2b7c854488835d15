#include "support/Literal.h"
#include "support/Probe.h"
#include "support/StyleTest.h"
#include "windows/MenuItemLayout_p.h"

#include <Zanthic/Zanthic.h>

using Item = QStyleOptionMenuItem;

namespace {

// A menu that remembers where it has painted items.
class RecordingMenu : public CustomMenu
{
public:
    void drawActionItem(Item *option, QPainter *painter) override
    {
        drawn.append(painter->clipBoundingRect().toRect());
        CustomMenu::drawActionItem(option, painter);
    }

    QList<QRect> drawn;
};

// An item of 100x30 px whose type and state are the words of a text.
QImage painted(CustomMenu *menu, const QString &words, Item option = Item())
{
    const auto has = [&words](const char *word) { return words.contains(QLatin1String(word)); };
    if (has("submenu") || has("separator"))
        option.menuItemType = has("submenu") ? Item::SubMenu : Item::Separator;
    option.state = has("enabled") ? QStyle::State_Enabled : QStyle::State_None;
    option.state.setFlag(QStyle::State_Selected, has("selected"));
    option.checkType = has("check") ? Item::Exclusive : Item::NotCheckable;
    option.checked = !has("unchecked");
    option.direction = has("right-to-left") ? Qt::RightToLeft : Qt::LeftToRight;
    option.rect = QRect(0, 0, 100, 30);
    option.palette.setColor(QPalette::Highlight, Qt::yellow);
    return Probe::painted(option.rect.size(), [&](QPainter *painter) {
        painter->fillRect(option.rect, Qt::white);
        menu->drawActionItem(&option, painter);
    });
}

QRect boundsOf(const QImage &image, const QColor &color)
{
    return Probe::bounds(image, [&color](const QColor &found) { return found.rgb() == color.rgb(); });
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

private:
    void addMenuStyle(const QString &more = QString())
    {
        addStyle("CustomMenu",
            "ObjectParameter=2 BackgroundColor=#ffffff FontSize:item=14 FontColor:item=#000001 "
            "FontColor:item:Hover=#000002 FontColor:item:Disabled=#000003 BackgroundColor:item:Hover=#00ff00 "
            "HoverLineColor=#ff00ff SeparatorColor=#0000ff SeparatorColor:Hover=#123456 "_s
                + more);
    }

private Q_SLOTS:
    void metrics()
    {
        CustomMenu menu;
        const QStyle *style = menu.style();
        Item item;
        const auto size = [&](const QStyleOption *option) {
            return style->sizeFromContents(QStyle::CT_MenuItem, option, QSize(10, 90));
        };
        QVERIFY(size(&item) == QSize(75, 30) && size(nullptr) == QSize(75, 30));
        item.menuItemType = Item::Separator;
        QCOMPARE(size(&item), QSize(75, 102));
        QVERIFY(style->pixelMetric(QStyle::PM_MenuHMargin) == 3 && style->pixelMetric(QStyle::PM_MenuVMargin) == 6);
    }

    void layout_data() { addRowsOf("windows/menu-layouts.txt"_s); }
    void layout()
    {
        QFETCH(QStringList, fields);
        const QVector<double> n = numbersIn(fields[1]);
        const auto result = MenuItemLayout::layOut(
            { QRect(10, 20, 200, 31), enumerator<Qt::LayoutDirection>(fields[0]), int(n[0]), int(n[1]) });
        QCOMPARE(result.checkColumn, rectIn(fields[2]));
        QCOMPARE(result.markRect, rectIn(fields[3]));
        QCOMPARE(result.textRect, rectIn(fields[4]));
        QCOMPARE(result.shortcutRect, rectIn(fields[5]));
    }

    void itemsFollowTheirStatus_data() { addRowsOf("windows/menu-items.txt"_s); }
    void itemsFollowTheirStatus()
    {
        QFETCH(QStringList, fields);
        addMenuStyle(fields[0]);
        CustomMenu menu;
        Item option;
        option.text = QString(4, QChar(0x2588));
        const QImage image = painted(&menu, fields[1], option);
        QCOMPARE(image.pixelColor(1, 1).name() + image.pixelColor(99, 1).name(), fields[2] + "#ffffff"_s);
        if (!fields[3].isEmpty())
            QCOMPARE(image.pixelColor(20, 15).name(), fields[3]);
        const bool selected = fields[1].contains("selected"_s);
        QCOMPARE(boundsOf(image, Qt::magenta), selected ? QRect(1, 29, 98, 1) : QRect());
        QCOMPARE(boundsOf(image, Qt::blue), fields[3].isEmpty() ? QRect(2, 14, 95, 1) : QRect());
    }

    void marksAreImagesOrPrimitives_data() { addRowsOf("windows/menu-marks.txt"_s); }
    void marksAreImagesOrPrimitives()
    {
        QFETCH(QStringList, fields);
        addMenuStyle(fields[0]);
        CustomMenu menu;
        const QImage image = painted(&menu, fields[1]);
        QCOMPARE(boundsOf(image, Qt::red), rectIn(fields[2]));
        // A primitive is drawn in the palette's dark colours, within the place that an image would have.
        const auto isDark = [](const QColor &found) { return found.lightness() < 100; };
        const QRect drawn = Probe::bounds(image, isDark);
        QCOMPARE(drawn.isEmpty(), fields[3].isEmpty());
        QVERIFY(drawn.isEmpty() || rectIn(fields[3]).contains(drawn));
        if (fields[0].isEmpty() && fields[1].contains("submenu"_s)) { // the tip is at the low side
            const auto heightAt = [&](int x) { return Probe::bounds(image.copy(x, 0, 1, 30), isDark).height(); };
            QCOMPARE(heightAt(drawn.left()) < heightAt(drawn.right()), fields[1].contains("right-to-left"_s));
        }
    }

    void iconStandsInItsColumn()
    {
        CustomMenu menu;
        Item option;
        option.icon = QIcon(picture(Qt::red, QSize(10, 10)));
        option.maxIconWidth = 30;
        const QColor shade = QPalette().dark().color(); // of the left and upper edge of a checked item's panel
        const QImage image = painted(&menu, "enabled checked"_s, option);
        QCOMPARE(boundsOf(image, Qt::red), QRect(10, 10, 10, 10)); // from (30 - 1) / 2 - (10 - 1) / 2
        QCOMPARE(boundsOf(image, shade), QRect(0, 0, 29, 29));
        QVERIFY(boundsOf(painted(&menu, "enabled unchecked"_s, option), shade).isNull());
    }

    void onlyWhatIsExposedIsPainted()
    {
        addMenuStyle();
        RecordingMenu menu;
        for (const QString &text : { "\t"_s, "<b>%1</b>\t\t&&"_s, QString(10000, '%') })
            menu.addAction(text);
        popUp(&menu);
        QTRY_COMPARE(menu.font().pixelSize(), 14);
        const auto rests = [&menu] {
            menu.drawn.clear();
            QTest::qWait(20);
            return menu.drawn.isEmpty();
        };
        QTRY_VERIFY(rests()); // a paint doesn't ask for the next one
        const QRect second = menu.actionGeometry(menu.actions().at(1));
        QCOMPARE(second.height(), 30);
        menu.repaint(second.adjusted(5, 5, -5, -5));
        QCOMPARE(menu.drawn, QList<QRect>({ second }));
        menu.grab();
        QVERIFY(menu.drawn.size() == 4 && menu.drawn.at(2) == second);
        menu.setStyleSheet("QMenu { background: #ff0000; }"_s);
        QTRY_VERIFY(rests());
        QCOMPARE(menu.grab().toImage().pixelColor(20, 3), QColor(Qt::red));
        QVERIFY(menu.drawn.isEmpty()); // by a plain QMenu
    }

    void bearsNothingAndKeepsItsOwnKeys()
    {
        addMenuStyle("FontSize:item=0"_s);
        CustomMenu menu;
        menu.setFont(QFont("Family"_s, 11)); // measured in points
        Probe::grab(&menu);
        QCOMPARE(menu.font().pointSize(), 11);
        Item option;
        menu.drawActionItem(nullptr, nullptr);
        menu.drawActionItem(&option, nullptr);
        menu.cSetItemFontColor(Qt::red, Custom::Hover);
        menu.cSetItemBackgroundColor(Qt::blue);
        menu.cSetItemBackgroundImage("/path"_s, Custom::Disabled);
        QCOMPARE(menu.cAttributeValue("FontColoritem"_s, Custom::Hover), "#ff0000"_s);
        QCOMPARE(menu.cAttributeValue("BackgroundColoritem"_s), "#0000ff"_s);
        QCOMPARE(menu.cAttributeValue("BackgroundImageitem"_s, Custom::Disabled), "/path"_s);
    }

    void showsAWidget()
    {
        CustomMenu menu;
        auto *label = new QLabel("text"_s);
        CInterWidgetMenu *inner = menu.cAddCustomWidgetMenu(label);
        QVERIFY(menu.actions().contains(inner->menuAction()) && inner->parent() == &menu);
        label->setFixedSize(77, 33);
        QCOMPARE(inner->sizeHint(), label->sizeHint());
        popUp(inner);
        QCOMPARE(label->geometry(), QRect(0, 0, 77, 33));
        delete label;
        QCOMPARE(inner->sizeHint(), CInterWidgetMenu(nullptr).sizeHint());
        QVERIFY(menu.cAddCustomWidgetMenu(nullptr));
    }

    void mayBeDeletedByItsAction()
    {
        // Later, since QMenu itself goes on after its action.
        QPointer<CustomMenu> menu(new CustomMenu);
        QAction *action = menu->addAction("text"_s, menu.data(), &QObject::deleteLater);
        menu->setStyleSheet("QMenu { background: #ff0000; }"_s);
        popUp(menu.data());
        QTest::mouseClick(menu.data(), Qt::LeftButton, {}, menu->actionGeometry(action).center());
        QTRY_VERIFY(!menu);
    }
};

ZANTHIC_TEST_MAIN(MenusTest)
#include "tst_menus.moc"
