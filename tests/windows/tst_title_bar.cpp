#include "controls/CustomPushButton_p.h"
#include "support/Literal.h"
#include "support/StyleTest.h"
#include "windows/CustomTitleBar_p.h"

#include <Zanthic/Zanthic.h>

using Private = CustomTitleBarPrivate;
using Bar = CustomTitleBar;

namespace {

/// A window with nothing but a title bar at its top.
class Host : public QWidget
{
public:
    Host()
    {
        setWindowFlags(Qt::FramelessWindowHint);
        setGeometry(100, 100, 400, 200);
        bar->setGeometry(0, 0, 400, 40);
    }

    Bar *bar = new Bar(this);
    Private *d = Private::get(bar);
};

/// Spacings as numbers, stretches as "s", widgets by \p names, nested layouts in parentheses.
QString textOf(const QLayout *layout, const QHash<const QWidget *, QString> &names)
{
    QStringList items;
    for (int i = 0; i < layout->count(); ++i) {
        const QLayoutItem *item = layout->itemAt(i);
        if (const QLayout *nested = const_cast<QLayoutItem *>(item)->layout())
            items << '(' + textOf(nested, names) + ')';
        else if (const QWidget *widget = const_cast<QLayoutItem *>(item)->widget())
            items << names.value(widget, "?"_s);
        else if (item->expandingDirections())
            items << "s"_s;
        else
            items << QString::number(qMax(item->sizeHint().width(), item->sizeHint().height()));
    }
    return items.join(' ');
}

QString textOf(const Bar &bar, QHash<const QWidget *, QString> names)
{
    const Private *d = Private::get(&bar);
    names.insert({ { d->m_pMaxButton, "max"_s }, { d->m_pMinButton, "min"_s }, { d->m_pCloseButton, "close"_s },
        { d->m_pStayOnTopButton, "top"_s }, { d->m_pIconLabel, "icon"_s }, { d->m_pTitleLabel, "title"_s },
        { d->m_pCustomTitleWidget, "custom"_s } });
    bar.sizeHint();
    return textOf(bar.layout(), names);
}

} // namespace

class TitleBarTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithItsParts()
    {
        Host host;
        QCOMPARE(int(host.bar->cTitleControls()), 15);
        for (const auto &[name, selector] : { std::pair("MaxBtn"_s, "MaxNormal"_s), std::pair("CloseBtn"_s, "Close"_s),
                 std::pair("MinBtn"_s, "Min"_s), std::pair("StayOnTopBtn"_s, "NotStayOnTop"_s) }) {
            const auto *button = host.bar->findChild<CustomPushButton *>(name);
            QCOMPARE(button->cStyleSelector(), selector);
            // The last answers quick clicks.
            QCOMPARE(CustomPushButtonPrivate::get(button)->controlIndex < 0, name == "StayOnTopBtn"_s);
        }
        host.bar->cSetButtonAttributeValue("FontColor"_s, "#123456"_s, Custom::Hover);
        for (const CustomPushButton *button : host.bar->findChildren<CustomPushButton *>())
            QCOMPARE(button->cFontColor(Custom::Hover), QColor(0x12, 0x34, 0x56));
        host.bar->cSetTitleControls(Bar::TitleControls(16));
        QVERIFY(!host.d->m_pStayOnTopButton->isHidden() && host.d->m_pIconLabel->isHidden());
        QVERIFY(
            host.d->m_pMaxButton->isHidden() && host.d->m_pMinButton->isHidden() && host.d->m_pCloseButton->isHidden());
    }

    void standardLayout()
    {
        addStyle("CustomTitleBar", "LeftIconMargin=11 RightIconMargin=12 ButtonSpacing=13"_s);
        Host host;
        CustomMenu menu;
        QHash<const QWidget *, QString> names;
        names.insert(host.bar->cAddMenu("File"_s, &menu), "file"_s);
        const auto buttons = "13 top 13 min 13 max 13 close"_s;
        QCOMPARE(textOf(*host.bar, names), "icon 12 ((title (file 10 s) %1))"_s.arg(buttons));
        QCOMPARE(host.bar->layout()->contentsMargins(), QMargins(11, 0, 6, 0));
        // A menu that comes later still stands before the stretch, and the stretch stays one.
        names.insert(host.bar->cAddMenu(QString(), nullptr), "empty"_s);
        host.bar->cSetTitleText("Title"_s);
        host.bar->cSetTitleControls(Bar::TitleClose);
        QCOMPARE(textOf(*host.bar, names), "icon ((title 10 (file 10 empty 10 s) %1))"_s.arg(buttons));
        names.insert(host.bar->cAddToolButton(true, 5), "tool"_s);
        names.insert(host.bar->cAddToolWidget(false, 6), "widget"_s);
        names.insert(host.bar->cAddToolSeparatorLine(), "line"_s);
        QCOMPARE(textOf(*host.bar, names),
            "icon ((title 10 (file 10 empty 10 s) %1) 3 ? 3 (4 (tool 5 line 12) s (widget 6)) s)"_s.arg(buttons));
        host.bar->cAddMenuLayoutStretch();
        host.bar->cSetMenuPosition(Qt::AlignRight);
        QVERIFY(textOf(*host.bar, names).contains("(file 10 empty 10 s)"_s));
    }

    void customLayout()
    {
        addStyle("CustomTitleBar", "LeftIconMargin=11 RightIconMargin=12 ButtonSpacing=13"_s);
        Host host;
        host.bar->cSetTitleIsCustom(true);
        host.bar->cSetTitleText("A long title that is elided"_s);
        host.bar->cSetCustomTextSize(QSize(60, 20));
        QHash<const QWidget *, QString> names;
        names.insert(host.bar->cAddToolButton(true, 5), "tool"_s);
        names.insert(host.bar->cAddToolSeparatorLine(), "line"_s);
        names.insert(host.bar->cAddCustomWidget(), "own"_s);
        const auto all = "(own custom) () ? top 13 min 13 max 13 close"_s;
        QCOMPARE(textOf(*host.bar, names), all);
        QCOMPARE(textOf(host.d->m_pCustomTitleLayout, names), "? 12 ? (tool 5 line 7) s"_s);
        QCOMPARE(host.d->m_pTitleLabel->size(), QSize(60, 20));
        QVERIFY(host.d->m_pTitleLabel->text().endsWith(QChar(0x2026)));
        // And again, with nothing lost or doubled.
        host.bar->cSetTitleControls(Bar::TitleClose);
        QCOMPARE(textOf(*host.bar, names), all);
        QWidget other(host.bar);
        host.bar->cSetCustomTitleWidgetVisible(&other, false);
        QVERIFY(host.d->m_pCustomTitleWidget->isHidden() && !other.isHidden());
        host.bar->cSetTitleIsCustom(false);
        host.bar->cSetTitleControls(Bar::TitleClose);
        QVERIFY(textOf(*host.bar, names).startsWith("icon ((title 10"_s));
    }

    void captionAndItsTip()
    {
        Host host;
        host.bar->cSetTitleText("100% %1 & more"_s);
        host.show();
        QCOMPARE(host.windowTitle(), "100% %1 & more"_s);
        QCOMPARE(host.d->m_pTitleLabel->text(), host.windowTitle());
        QCOMPARE(host.d->m_pTitleLabel->toolTip(), host.windowTitle());
        QCOMPARE(host.d->m_pTitleLabel->font().weight(), int(QFont::Bold));
        host.bar->cSetTitleText("<b>bold</b>"_s);
        QVERIFY(!host.d->m_pTitleLabel->toolTip().contains("<b>"_s));
        host.bar->cSetTitleIsCustom(true);
        host.bar->cSetTitleText("Own"_s);
        QCOMPARE(host.windowTitle(), "<b>bold</b>"_s);
        CustomMainWindow window;
        window.cTitleBar()->cSetTitleText(QString(10000, 'm'));
        window.show();
        QVERIFY(window.width() <= QGuiApplication::primaryScreen()->availableGeometry().width());
    }

    void iconComesFromTheStyle()
    {
        addStyle("CustomTitleBar", "Icon=@red16x12"_s);
        Host host;
        const auto size = [&host] { return host.d->m_pIconLabel->pixmap(Qt::ReturnByValue).size(); };
        QCOMPARE(size(), QSize(16, 12));
        host.bar->cSetTitleControls(Bar::TitleClose);
        host.bar->cSetTitleIcon(picture(Qt::blue, QSize(20, 20)));
        QCOMPARE(int(host.bar->cTitleControls()), 12);
        QCOMPARE(size(), QSize(20, 20));
    }

    void maximisesAndStaysOnTop()
    {
        Host host;
        host.show();
        const QRect normal = host.geometry();
        host.bar->cShowNormal();
        QCOMPARE(host.geometry(), normal);
        QTest::mouseClick(host.d->m_pMaxButton, Qt::LeftButton);
        const QRect maximized = QGuiApplication::primaryScreen()->availableGeometry();
        QVERIFY(host.geometry() == maximized && !host.isMaximized());
        QTest::mouseClick(host.d->m_pStayOnTopButton, Qt::LeftButton);
        QVERIFY(host.bar->cIsStayOnTop() && host.isVisible() && !host.d->m_pMinButton->isEnabled());
        QCOMPARE(int(host.windowFlags()), 0x2000c03);
        QCOMPARE(host.d->m_pMaxButton->cStyleSelector() + host.d->m_pStayOnTopButton->cStyleSelector(),
            "MaxRecoveryStayOnTop"_s);
        QCOMPARE(host.geometry(), maximized);
        host.bar->cSetStayOnTop(false, true);
        QCOMPARE(int(host.windowFlags()), 0x2000803);
        QVERIFY(host.isVisible() && host.d->m_pMinButton->isEnabled());
        host.bar->cShowNormal();
        QCOMPARE(host.geometry(), normal);
        QCOMPARE(host.d->m_pMaxButton->cStyleSelector(), "MaxNormal"_s);
        host.setAttribute(Qt::WA_WState_ConfigPending);
        host.bar->cShowMaximized();
        QVERIFY(!host.bar->cIsMaximized());
        host.setAttribute(Qt::WA_WState_ConfigPending, false);
    }

    void doubleClick()
    {
        Host host;
        host.show();
        const auto twice = [&](const QPoint &point) { QTest::mouseDClick(host.bar, Qt::LeftButton, {}, point); };
        host.bar->cSetTitleControls(Bar::TitleControls(15 & ~Bar::TitleMax));
        host.bar->ensurePolished();
        twice(QPoint(200, 35));
        twice(host.d->m_pIconLabel->geometry().center());
        QVERIFY(!host.bar->cIsMaximized() && host.isVisible());
        // In the custom layout the icon stands on a widget of its own.
        host.bar->cSetTitleControls(Bar::TitleControls(15));
        host.bar->cSetTitleIsCustom(true);
        host.bar->cAddCustomWidget()->setFixedWidth(100);
        host.bar->cSetTitleIcon(picture(Qt::blue, QSize(20, 20)));
        host.bar->sizeHint();
        QTRY_VERIFY(host.d->m_pIconLabel->mapTo(host.bar, QPoint(0, 0)).x() >= 100);
        for (const bool isMaximized : { true, false }) {
            twice(QPoint(10, 20));
            QCOMPARE(host.bar->cIsMaximized(), isMaximized);
        }
        twice(host.d->m_pIconLabel->mapTo(host.bar, QPoint(5, 5)));
        QVERIFY(!host.isVisible());
    }

    void closesAndMinimises()
    {
        QPointer<Host> host = new Host;
        host->setAttribute(Qt::WA_DeleteOnClose);
        host->show();
        QTest::mouseClick(host->d->m_pMinButton, Qt::LeftButton);
        QVERIFY(host->isMinimized());
        host->showNormal();
        QTest::mouseClick(host->d->m_pCloseButton, Qt::LeftButton);
        QTRY_VERIFY(!host);
        Bar alone; // without a window nothing happens
        for (CustomPushButton *button : alone.findChildren<CustomPushButton *>())
            button->click();
        QVERIFY(!alone.cIsMaximized() && !alone.cIsStayOnTop());
    }

    void itemsMayComeLate()
    {
        CustomMainWindow window;
        window.resize(600, 300);
        Bar *bar = window.cTitleBar();
        window.show();
        bar->cAddMenuLayoutStretch();
        const CustomPushButton *right = bar->cAddMenu("Right"_s, nullptr);
        QTRY_VERIFY(right->isVisible() && right->x() > 300); // behind the stretch that the application added
        // A widget in the bar that makes it lay itself out while it is being laid out.
        struct Nested : QWidget
        {
            void resizeEvent(QResizeEvent *) override
            {
                auto *owner = static_cast<Bar *>(parentWidget());
                owner->cSetTitleText(QString::number(++count));
                owner->sizeHint();
            }
            int count = 0;
        };
        const CustomPushButton *tool = bar->cAddToolButton(false, 3);
        auto *nested = new Nested;
        nested->setParent(bar);
        Private::get(bar)->m_pToolRightLayout->addWidget(nested);
        nested->show();
        QTRY_VERIFY(tool->isVisible() && tool->x() > 300);
        for (int width = 500; width < 600; width += 20) {
            window.resize(width, 300);
            QCoreApplication::processEvents();
        }
        QVERIFY(nested->count > 0);
        // Items are the application's to delete, also from a row that isn't laid out.
        Bar alone;
        delete alone.cAddToolButton();
        delete alone.cAddMenu(QString(), nullptr);
        delete alone.cAddCustomWidget();
        delete alone.cAddToolSeparatorLine();
        alone.show();
    }
};

ZANTHIC_TEST_MAIN(TitleBarTest)
#include "tst_title_bar.moc"
