#include "desktop/DesktopTest.h"

#include <Zanthic/Custom.h>
#include <Zanthic/CustomMenu.h>
#include <Zanthic/CustomMessageBox.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/HotKeyEvent.h>

#include <QtWidgets/QLineEdit>

namespace {

/// The application's main dialog.
class Main : public Shell
{
public:
    int hotKeys = 0;

protected:
    void customEvent(QEvent *event) override
    {
        hotKeys += int(event->type()) == HotKeyEvent::EventType;
        Shell::customEvent(event);
    }
};

CustomMessageBox *activeBox()
{
    auto *box = qobject_cast<CustomMessageBox *>(QApplication::activeModalWidget());
    return box && box->isActiveWindow() ? box : nullptr;
}

/// Asks, and runs \p drive in the box.
int ask(QWidget *parent, const std::function<void(CustomMessageBox *)> &drive)
{
    int result = -2;
    const auto open = [&] { result = CustomMessageBox::askYesNo(parent, QStringLiteral("Text")); };
    const auto settle = [&] {
        CustomMessageBox *box = activeBox();
        QTRY_VERIFY(parent->geometry().contains(DesktopTest::placeOf(*box)));
        drive(box);
    };
    DesktopTest::during(
        open, [] { return activeBox() != nullptr; }, settle);
    return QTest::qWaitForWindowActive(parent) ? result : -3;
}

using Open = std::function<int(Shell *)>;

} // namespace

Q_DECLARE_METATYPE(Open)

class WindowLoopsTest : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void popupClosesOnAPressOutside();
    void keysDontCloseAWindow();
    void boxIsAnswered_data();
    void boxIsAnswered();
    void boxSwitchesHotKeysOff();
    void boxEndsAStretch();
    void clickedDestroysTheWindow_data();
    void clickedDestroysTheWindow();
    void menuOfTheTitleBar_data();
    void menuOfTheTitleBar();
};

void WindowLoopsTest::popupClosesOnAPressOutside()
{
    const QRect place(300, 200, 200, 150);
    Shell behind(QRect(100, 100, 700, 500));
    QVERIFY(behind.settles());
    Shell popup(place, &behind);
    for (const QPoint &outside : { QPoint(290, 250), QPoint(500, 250), QPoint(1000, 700) }) {
        const auto drive = [&] {
            const QImage before = popup.grab().toImage();
            ZanthicTheme::applySkin(ZanthicTheme::skins().at(ZanthicTheme::currentSkin() == QLatin1String("light")));
            QVERIFY(popup.grab().toImage() != before);
            QTRY_COMPARE(placeOf(popup), place);
            click(middle(&popup));
            keys("Escape Return");
            QVERIFY(popup.isVisible());
            click(outside);
            QTRY_VERIFY(!popup.isVisible());
        };
        during([&] { popup.cPopup(); }, [&] { return popup.isVisible(); }, drive);
        QCOMPARE(int(popup.windowFlags() & 0xfff), 0x803);
    }
    drag(middle(behind.cTitleBar()), QPoint(10, 10));
    QTRY_COMPARE(placeOf(behind), QRect(110, 110, 700, 500));
}

void WindowLoopsTest::keysDontCloseAWindow()
{
    Shell window;
    auto *edit = new QLineEdit;
    window.cSetCentralWidget(edit);
    window.cSetButtons(Shell::ButtonOk | Shell::ButtonCancel);
    QVERIFY(window.settles());
    QSignalSpy clicks(&window, &Shell::cSigButtonClick);
    click(middle(edit));
    keys("Escape Return KP_Enter o k");
    QTRY_COMPARE(edit->text(), QStringLiteral("ok"));
    QVERIFY(window.isVisible() && clicks.isEmpty());
}

void WindowLoopsTest::boxIsAnswered_data()
{
    QTest::addColumn<int>("button"); // none for the one that closes
    QTest::addColumn<QByteArray>("key"); // empty for the pointer
    QTest::addColumn<int>("result");
    QTest::newRow("Yes by the pointer") << 0 << QByteArray() << 1;
    QTest::newRow("No by the pointer") << 1 << QByteArray() << 0;
    QTest::newRow("closed by the pointer") << -1 << QByteArray() << 0;
    QTest::newRow("Yes by a key") << 0 << QByteArray("space") << 1;
    QTest::newRow("No by a key") << 1 << QByteArray("space") << 0;
    QTest::newRow("closed by the window manager") << 0 << QByteArray("alt+F4") << 0;
}

void WindowLoopsTest::boxIsAnswered()
{
    QFETCH(int, button);
    QFETCH(QByteArray, key);
    Shell parent;
    QVERIFY(parent.settles());
    const int result = ask(&parent, [&](CustomMessageBox *box) {
        const QWidget *target = button < 0 ? DesktopTest::button(box, "CloseBtn") : box->cButton(button);
        if (key.isEmpty())
            return click(middle(target));
        keys("Escape Return");
        QTRY_VERIFY(target->hasFocus() || (keys("Tab"), target->hasFocus()));
        keys(key);
    });
    QTEST(result, "result");
}

void WindowLoopsTest::boxSwitchesHotKeysOff()
{
    Main window;
    QVERIFY(window.settles());
    Custom::setMainDialog(&window);
    Custom::registerHotKey(7, Qt::ControlModifier, Qt::Key_K);
    keys("ctrl+k");
    QTRY_COMPARE(window.hotKeys, 1);
    ask(&window, [&](CustomMessageBox *box) {
        QVERIFY(!Custom::enableActiveShortcut());
        QElapsedTimer time;
        time.start();
        QTRY_VERIFY((keys("ctrl+k"), time.hasExpired(250))); // longer than hot keys need between each other
        click(middle(box->cButton(0)));
    });
    QCOMPARE(window.hotKeys, 1);
    QVERIFY(QTest::qWaitForWindowActive(&window, Shell::kPatienceMs));
    QTRY_VERIFY((keys("ctrl+k"), window.hotKeys > 1));
}

void WindowLoopsTest::boxEndsAStretch()
{
    Shell window;
    window.cSetStrechEdges(Shell::StrechRight);
    QVERIFY(window.settles());
    press(window.at(397, 150));
    move(window.at(420, 150));
    QTRY_COMPARE(window.width(), 423);
    ask(&window, [&](CustomMessageBox *box) {
        QCOMPARE(cursorShape(), Qt::ArrowCursor);
        move(window.at(440, 150));
        release();
        click(middle(box->cButton(0)));
    });
    drag(window.at(200, 200), QPoint(40, 40)); // no edge
    QTRY_COMPARE(placeOf(window), QRect(200, 150, 423, 300));
    drag(middle(window.cTitleBar()), QPoint(40, 40));
    QTRY_COMPARE(placeOf(window), QRect(240, 190, 423, 300));
}

void WindowLoopsTest::clickedDestroysTheWindow_data()
{
    QTest::addColumn<Open>("open");
    QTest::newRow("none") << Open([](Shell *window) { return window->show(), -1; });
    QTest::newRow("exec") << Open([](Shell *window) { return window->exec(); });
    QTest::newRow("popup") << Open([](Shell *window) { return window->cPopup(), -1; });
}

void WindowLoopsTest::clickedDestroysTheWindow()
{
    QFETCH(Open, open);
    Shell behind(QRect(700, 100, 300, 300));
    QVERIFY(behind.settles());
    QPointer<Shell> window = new Shell;
    window->cSetButtons(Shell::ButtonOk);
    connect(window->cButton(0), &QPushButton::clicked, this, [&] { delete window; });
    const auto drive = [&] {
        QTRY_COMPARE(placeOf(*window), QRect(200, 150, 400, 300));
        click(middle(window->cButton(0)));
    };
    const auto blocking = [&] {
        QCOMPARE(open(window), -1);
        QTRY_VERIFY(!window);
    };
    during(
        blocking, [&] { return window->isVisible(); }, drive);
    const bool isGone = !window;
    delete window;
    QVERIFY(isGone && Custom::enableActiveShortcut());
    click(behind.at(150, 150));
    QTRY_COMPARE(behind.presses, 1);
}

void WindowLoopsTest::menuOfTheTitleBar_data()
{
    QTest::addColumn<QByteArray>("meanwhile");
    for (const char *what : { "nothing", "keys", "a new skin", "window destroyed", "menu destroyed" })
        QTest::newRow(what) << QByteArray(what);
}

void WindowLoopsTest::menuOfTheTitleBar()
{
    QFETCH(QByteArray, meanwhile);
    auto window = std::make_unique<Shell>();
    QPointer<CustomMenu> menu = new CustomMenu(window.get());
    menu->addAction(QStringLiteral("First"));
    QAction *second = menu->addAction(QStringLiteral("Second"));
    QSignalSpy chosen(menu, &QMenu::triggered);
    CustomPushButton *opener = window->cTitleBar()->cAddMenu(QStringLiteral("Menu"), menu);
    QVERIFY(window->settles());
    const auto drive = [&] {
        QTRY_COMPARE(placeOf(*menu).topLeft(), opener->mapToGlobal(QPoint(0, opener->height())));
        if (meanwhile == "window destroyed")
            return window.reset();
        if (meanwhile == "menu destroyed")
            return delete menu.data();
        if (meanwhile == "a new skin")
            ZanthicTheme::applySkin(QStringLiteral("dark"));
        if (meanwhile == "keys")
            return keys("Down Down Return");
        click(menu->mapToGlobal(menu->actionGeometry(second).center()));
    };
    during([&] { click(middle(opener)); }, [&] { return menu && menu->isVisible(); }, drive);
    QTRY_COMPARE(chosen.size(), menu ? 1 : 0);
    QVERIFY(!menu || qvariant_cast<QAction *>(chosen.first().first()) == second);
    QVERIFY(!QApplication::activePopupWidget());
}

ZANTHIC_TEST_MAIN(WindowLoopsTest)
#include "tst_window_loops.moc"
