#include "controls/CustomPushButton_p.h"
#include "support/StyleTest.h"
#include "windows/CustomTitleBar_p.h"

#include <Zanthic/CustomLabel.h>
#include <Zanthic/CustomLineWidget.h>
#include <Zanthic/CustomMainWindow.h>
#include <Zanthic/CustomMenu.h>
#include <Zanthic/CustomPushButton.h>

#include <QtWidgets/QBoxLayout>

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
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};

/// Spacings as numbers, stretches as "s", widgets by \p names, nested layouts in parentheses.
QString textOf(const QLayout *layout, const QHash<const QWidget *, QString> &names)
{
    QStringList items;
    for (int i = 0; i < layout->count(); ++i) {
        const QLayoutItem *item = layout->itemAt(i);
        if (const QLayout *nested = const_cast<QLayoutItem *>(item)->layout())
            items << QLatin1Char('(') + textOf(nested, names) + QLatin1Char(')');
        else if (const QWidget *widget = const_cast<QLayoutItem *>(item)->widget())
            items << names.value(widget, QStringLiteral("?"));
        else if (item->expandingDirections())
            items << QStringLiteral("s");
        else
            items << QString::number(qMax(item->sizeHint().width(), item->sizeHint().height()));
    }
    return items.join(QLatin1Char(' '));
}

QString textOf(const Bar &bar, QHash<const QWidget *, QString> names)
{
    const Private *d = Private::get(&bar);
    names.insert({ { d->m_pMaxButton, QStringLiteral("max") }, { d->m_pMinButton, QStringLiteral("min") },
        { d->m_pCloseButton, QStringLiteral("close") }, { d->m_pStayOnTopButton, QStringLiteral("top") },
        { d->m_pIconLabel, QStringLiteral("icon") }, { d->m_pTitleLabel, QStringLiteral("title") },
        { d->m_pCustomTitleWidget, QStringLiteral("custom") } });
    bar.sizeHint();
    return textOf(bar.layout(), names);
}

void drag(QWidget *bar, const QPoint &from, const QPoint &way)
{
    QTest::mousePress(bar, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, from, bar->mapToGlobal(from) + way, Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(bar, &move);
    QTest::mouseRelease(bar, Qt::LeftButton, {}, from);
}

} // namespace

class TitleBarTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithItsParts();
    void standardLayout();
    void customLayout();
    void captionAndItsTip();
    void captionFitsTheScreen();
    void iconComesFromTheStyle();
    void buttonAttributes();
    void drags();
    void doubleClick();
    void maximises();
    void staysOnTop();
    void closesAndMinimises();
    void itemsMayComeLate();
    void rebuildsAtAnyTime();
};

void TitleBarTest::startsWithItsParts()
{
    Host host;
    QCOMPARE(int(host.bar->cTitleControls()), 15);
    const QStringList names{ QStringLiteral("MaxBtn"), QStringLiteral("CloseBtn"), QStringLiteral("MinBtn"),
        QStringLiteral("StayOnTopBtn") };
    const QStringList selectors{ QStringLiteral("MaxNormal"), QStringLiteral("Close"), QStringLiteral("Min"),
        QStringLiteral("NotStayOnTop") };
    for (int i = 0; i < 4; ++i) {
        const auto *button = host.bar->findChild<CustomPushButton *>(names.at(i));
        QCOMPARE(button->cStyleSelector(), selectors.at(i));
        QCOMPARE(CustomPushButtonPrivate::get(button)->controlIndex < 0, i == 3); // the last answers quick clicks
    }
    host.bar->cSetTitleControls(Bar::TitleControls(16));
    QVERIFY(!host.d->m_pStayOnTopButton->isHidden() && host.d->m_pIconLabel->isHidden());
    QVERIFY(host.d->m_pMaxButton->isHidden() && host.d->m_pMinButton->isHidden() && host.d->m_pCloseButton->isHidden());
}

void TitleBarTest::standardLayout()
{
    addStyle("CustomTitleBar", QStringLiteral("LeftIconMargin=11 RightIconMargin=12 ButtonSpacing=13"));
    Host host;
    CustomMenu menu;
    QHash<const QWidget *, QString> names;
    names.insert(host.bar->cAddMenu(QStringLiteral("File"), &menu), QStringLiteral("file"));
    const auto buttons = QStringLiteral("13 top 13 min 13 max 13 close");
    QCOMPARE(textOf(*host.bar, names), QStringLiteral("icon 12 ((title (file 10 s) %1))").arg(buttons));
    QCOMPARE(host.bar->layout()->contentsMargins(), QMargins(11, 0, 6, 0));
    // A menu that comes later still stands before the stretch, and the stretch stays one.
    names.insert(host.bar->cAddMenu(QString(), nullptr), QStringLiteral("empty"));
    host.bar->cSetTitleText(QStringLiteral("Title"));
    host.bar->cSetTitleControls(Bar::TitleClose);
    QCOMPARE(textOf(*host.bar, names), QStringLiteral("icon ((title 10 (file 10 empty 10 s) %1))").arg(buttons));
    names.insert(host.bar->cAddToolButton(true, 5), QStringLiteral("tool"));
    names.insert(host.bar->cAddToolWidget(false, 6), QStringLiteral("widget"));
    names.insert(host.bar->cAddToolSeparatorLine(), QStringLiteral("line"));
    QCOMPARE(textOf(*host.bar, names),
        QStringLiteral("icon ((title 10 (file 10 empty 10 s) %1) 3 ? 3 (4 (tool 5 line 12) s (widget 6)) s)")
            .arg(buttons));
    host.bar->cAddMenuLayoutStretch();
    host.bar->cSetMenuPosition(Qt::AlignRight);
    QVERIFY(textOf(*host.bar, names).contains(QStringLiteral("(file 10 empty 10 s)")));
}

void TitleBarTest::customLayout()
{
    addStyle("CustomTitleBar", QStringLiteral("LeftIconMargin=11 RightIconMargin=12 ButtonSpacing=13"));
    Host host;
    host.bar->cSetTitleIsCustom(true);
    host.bar->cSetTitleText(QStringLiteral("A long title that is elided"));
    host.bar->cSetCustomTextSize(QSize(60, 20));
    QHash<const QWidget *, QString> names;
    names.insert(host.bar->cAddToolButton(true, 5), QStringLiteral("tool"));
    names.insert(host.bar->cAddToolSeparatorLine(), QStringLiteral("line"));
    names.insert(host.bar->cAddCustomWidget(), QStringLiteral("own"));
    const auto all = QStringLiteral("(own custom) () ? top 13 min 13 max 13 close");
    QCOMPARE(textOf(*host.bar, names), all);
    QCOMPARE(textOf(host.d->m_pCustomTitleLayout, names), QStringLiteral("? 12 ? (tool 5 line 7) s"));
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
    QVERIFY(textOf(*host.bar, names).startsWith(QStringLiteral("icon ((title 10")));
}

void TitleBarTest::captionAndItsTip()
{
    Host host;
    host.bar->cSetTitleText(QStringLiteral("100% %1 & more"));
    host.show();
    QCOMPARE(host.windowTitle(), QStringLiteral("100% %1 & more"));
    QCOMPARE(host.d->m_pTitleLabel->text(), host.windowTitle());
    QCOMPARE(host.d->m_pTitleLabel->toolTip(), host.windowTitle());
    QCOMPARE(host.d->m_pTitleLabel->font().weight(), int(QFont::Bold));
    host.bar->cSetTitleText(QStringLiteral("<b>bold</b>"));
    QVERIFY(!host.d->m_pTitleLabel->toolTip().contains(QStringLiteral("<b>")));
    host.bar->cSetTitleIsCustom(true);
    host.bar->cSetTitleText(QStringLiteral("Own"));
    QCOMPARE(host.windowTitle(), QStringLiteral("<b>bold</b>"));
}

void TitleBarTest::captionFitsTheScreen()
{
    CustomMainWindow window;
    window.cTitleBar()->cSetTitleText(QString(10000, QLatin1Char('m')));
    window.show();
    QVERIFY(window.width() <= QGuiApplication::primaryScreen()->availableGeometry().width());
}

void TitleBarTest::iconComesFromTheStyle()
{
    addStyle("CustomTitleBar", QStringLiteral("Icon=@red16x12"));
    Host host;
    QVERIFY(host.d->m_pIconLabel->pixmap(Qt::ReturnByValue).size() == QSize(16, 12));
    host.bar->cSetTitleControls(Bar::TitleClose);
    host.bar->cSetTitleIcon(picture(Qt::blue, QSize(20, 20)));
    QCOMPARE(int(host.bar->cTitleControls()), 12);
    QVERIFY(host.d->m_pIconLabel->pixmap(Qt::ReturnByValue).size() == QSize(20, 20));
}

void TitleBarTest::buttonAttributes()
{
    Host host;
    host.bar->cSetButtonAttributeValue(QStringLiteral("FontColor"), QStringLiteral("#123456"), Custom::Hover);
    for (const CustomPushButton *button : host.bar->findChildren<CustomPushButton *>())
        QCOMPARE(button->cFontColor(Custom::Hover), QColor(0x12, 0x34, 0x56));
}

void TitleBarTest::drags()
{
    Host host;
    host.show();
    const QPoint start = host.pos();
    drag(host.bar, QPoint(200, 35), QPoint(30, -20));
    QCOMPARE(host.pos(), start + QPoint(30, -20));
    drag(host.bar, QPoint(200, 35), QPoint(-30, 20));
    QCOMPARE(host.pos(), start);
    QCOMPARE(host.presses, 2); // they go on to the window
    host.bar->cSetEnableMove(false);
    drag(host.bar, QPoint(200, 35), QPoint(30, 20));
    host.bar->cSetEnableMove(true);
    host.bar->cShowMaximized();
    const QPoint maximized = host.pos();
    drag(host.bar, QPoint(200, 35), QPoint(30, 20));
    QCOMPARE(host.pos(), maximized);
    host.bar->cShowNormal();
    QCOMPARE(host.pos(), start);
}

void TitleBarTest::doubleClick()
{
    Host host;
    host.show();
    const auto twice = [&](const QPoint &point) { QTest::mouseDClick(host.bar, Qt::LeftButton, {}, point); };
    host.bar->cSetTitleControls(Bar::TitleControls(15 & ~Bar::TitleMax));
    host.bar->ensurePolished();
    twice(QPoint(200, 35));
    twice(host.d->m_pIconLabel->geometry().center());
    QVERIFY(!host.bar->cIsMaximized() && host.isVisible());
    host.bar->cSetTitleControls(Bar::TitleControls(15));
    host.bar->resize(400, 40);
    twice(QPoint(200, 35));
    QVERIFY(host.bar->cIsMaximized());
    twice(QPoint(200, 35));
    QVERIFY(!host.bar->cIsMaximized());
    // In the custom layout the icon stands on a widget of its own.
    host.bar->cSetTitleIsCustom(true);
    host.bar->cAddCustomWidget()->setFixedWidth(100);
    host.bar->cSetTitleIcon(picture(Qt::blue, QSize(20, 20)));
    host.bar->sizeHint();
    QTRY_VERIFY(host.d->m_pIconLabel->mapTo(host.bar, QPoint(0, 0)).x() >= 100);
    twice(QPoint(10, 20));
    QVERIFY(host.bar->cIsMaximized());
    twice(host.d->m_pIconLabel->mapTo(host.bar, QPoint(5, 5)));
    QVERIFY(!host.isVisible());
}

void TitleBarTest::maximises()
{
    Host host;
    host.show();
    const QRect normal = host.geometry();
    host.bar->cShowNormal();
    QCOMPARE(host.geometry(), normal);
    QTest::mouseClick(host.d->m_pMaxButton, Qt::LeftButton);
    QCOMPARE(host.geometry(), QGuiApplication::primaryScreen()->availableGeometry());
    QCOMPARE(host.d->m_pMaxButton->cStyleSelector(), QStringLiteral("MaxRecovery"));
    QVERIFY(!host.isMaximized());
    host.bar->cShowNormal();
    QCOMPARE(host.geometry(), normal);
    QCOMPARE(host.d->m_pMaxButton->cStyleSelector(), QStringLiteral("MaxNormal"));
    host.setAttribute(Qt::WA_WState_ConfigPending);
    host.bar->cShowMaximized();
    QVERIFY(!host.bar->cIsMaximized());
    host.setAttribute(Qt::WA_WState_ConfigPending, false);
}

void TitleBarTest::staysOnTop()
{
    Host host;
    host.show();
    const QRect normal = host.geometry();
    host.bar->cShowMaximized();
    const QRect maximized = host.geometry();
    QTest::mouseClick(host.d->m_pStayOnTopButton, Qt::LeftButton);
    QVERIFY(host.bar->cIsStayOnTop() && host.isVisible() && !host.d->m_pMinButton->isEnabled());
    QCOMPARE(int(host.windowFlags()), 0x2000c03);
    QCOMPARE(host.d->m_pStayOnTopButton->cStyleSelector(), QStringLiteral("StayOnTop"));
    QCOMPARE(host.geometry(), maximized);
    host.bar->cSetStayOnTop(false, true);
    QCOMPARE(int(host.windowFlags()), 0x2000803);
    QVERIFY(host.isVisible() && host.d->m_pMinButton->isEnabled());
    host.bar->cShowNormal();
    QCOMPARE(host.geometry(), normal);
}

void TitleBarTest::closesAndMinimises()
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

void TitleBarTest::itemsMayComeLate()
{
    CustomMainWindow window;
    window.resize(600, 300);
    Bar *bar = window.cTitleBar();
    window.show();
    bar->cAddMenuLayoutStretch();
    const CustomPushButton *right = bar->cAddMenu(QStringLiteral("Right"), nullptr);
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

void TitleBarTest::rebuildsAtAnyTime()
{
    for (const bool custom : { false, true }) {
        CustomMainWindow window;
        Bar *bar = window.cTitleBar();
        bar->cSetTitleIsCustom(custom);
        bar->cAddMenu(QStringLiteral("File"), nullptr);
        bar->cAddToolButton(true, 2);
        window.show();
        for (int round = 0; round < 5; ++round) {
            bar->cAddToolButton(false, 2);
            bar->cSetTitleText(QString::number(round));
            Custom::changeSkin();
            QCoreApplication::processEvents();
        }
        QVERIFY(bar->findChildren<CustomLineWidget *>().size() == 2);
    }
}

ZANTHIC_TEST_MAIN(TitleBarTest)
#include "tst_title_bar.moc"
