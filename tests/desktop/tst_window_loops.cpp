#include "desktop/DesktopTest.h"

#include <Zanthic/Zanthic.h>

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
    const auto open = [&] { result = CustomMessageBox::askYesNo(parent, "Text"_s); };
    const auto settle = [&] {
        CustomMessageBox *box = activeBox();
        QTRY_VERIFY(parent->geometry().contains(DesktopTest::placeOf(*box)));
        drive(box);
    };
    DesktopTest::during(open, activeBox, settle);
    return QTest::qWaitForWindowActive(parent) ? result : -3;
}

} // namespace

class WindowLoopsTest : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void popupClosesOnAPressOutside()
    {
        const QRect place(300, 200, 200, 150);
        Shell behind(QRect(100, 100, 700, 500));
        QVERIFY(behind.settles());
        Shell popup(place, &behind);
        for (const QPoint &outside : { QPoint(290, 250), QPoint(500, 250), QPoint(1000, 700) }) {
            const auto drive = [&] {
                const QImage before = popup.grab().toImage();
                ZanthicTheme::applySkin(
                    ZanthicTheme::skins().at(ZanthicTheme::currentSkin() == QLatin1String("light")));
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

    void keysDontCloseAWindow()
    {
        Shell window;
        auto *edit = new QLineEdit;
        window.cSetCentralWidget(edit);
        window.cSetButtons(Shell::ButtonOk | Shell::ButtonCancel);
        QVERIFY(window.settles());
        QSignalSpy clicks(&window, &Shell::cSigButtonClick);
        click(middle(edit));
        keys("Escape Return KP_Enter o k");
        QTRY_COMPARE(edit->text(), "ok"_s);
        QVERIFY(window.isVisible() && clicks.isEmpty());
    }

    void boxIsAnswered_data() { addRowsOf("desktop/answers.txt"_s, { "button", "key", "result" }); }

    void boxIsAnswered()
    {
        Shell parent;
        QVERIFY(parent.settles());
        const int result = ask(&parent, [&](CustomMessageBox *box) {
            const QWidget *target
                = cell("button").isEmpty() ? button(box, "CloseBtn") : box->cButton(int(number("button")));
            if (cell("key").isEmpty())
                return click(middle(target));
            keys("Escape Return");
            QTRY_VERIFY(target->hasFocus() || (keys("Tab"), target->hasFocus()));
            keys(cell("key").toLatin1());
        });
        QCOMPARE(result, int(number("result")));
    }

    void boxSwitchesHotKeysOff()
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

    void boxEndsAStretch()
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

    void clickedDestroysTheWindow()
    {
        Shell behind(QRect(700, 100, 300, 300));
        QVERIFY(behind.settles());
        const std::function<int(Shell *)> ways[] = { [](Shell *window) { return window->show(), -1; },
            [](Shell *window) { return window->exec(); }, [](Shell *window) { return window->cPopup(), -1; } };
        for (const auto &open : ways) {
            QPointer<Shell> window = new Shell;
            window->cSetButtons(Shell::ButtonOk);
            connect(window->cButton(0), &QPushButton::clicked, this, [&] { delete window; });
            const auto drive = [&] {
                QTRY_COMPARE(placeOf(*window), QRect(200, 150, 400, 300));
                click(middle(window->cButton(0)));
            };
            const auto isOpen = [&] { return window->isVisible(); };
            const auto blocking = [&] {
                QCOMPARE(open(window), -1);
                QTRY_VERIFY(!window);
            };
            during(blocking, isOpen, drive);
            const bool isGone = !window;
            delete window;
            QVERIFY(isGone && Custom::enableActiveShortcut());
            behind.presses = 0;
            click(behind.at(150, 150));
            QTRY_COMPARE(behind.presses, 1);
        }
    }

    void menuOfTheTitleBar()
    {
        for (const auto &meanwhile :
            { "nothing"_s, "keys"_s, "a new skin"_s, "window destroyed"_s, "menu destroyed"_s }) {
            auto window = std::make_unique<Shell>();
            QPointer<CustomMenu> menu = new CustomMenu(window.get());
            menu->addAction("First"_s);
            QAction *second = menu->addAction("Second"_s);
            QSignalSpy chosen(menu, &QMenu::triggered);
            CustomPushButton *opener = window->cTitleBar()->cAddMenu("Menu"_s, menu);
            QVERIFY2(window->settles(), qPrintable(meanwhile));
            const auto drive = [&] {
                QTRY_COMPARE(placeOf(*menu).topLeft(), opener->mapToGlobal(QPoint(0, opener->height())));
                if (meanwhile == "window destroyed"_s)
                    return window.reset();
                if (meanwhile == "menu destroyed"_s)
                    return delete menu.data();
                if (meanwhile == "a new skin"_s)
                    ZanthicTheme::applySkin("dark"_s);
                if (meanwhile == "keys"_s)
                    return keys("Down Down Return");
                click(menu->mapToGlobal(menu->actionGeometry(second).center()));
            };
            during([&] { click(middle(opener)); }, [&] { return menu && menu->isVisible(); }, drive);
            QTRY_COMPARE(chosen.size(), menu ? 1 : 0);
            QVERIFY(!menu || qvariant_cast<QAction *>(chosen.first().first()) == second);
            QVERIFY2(!QApplication::activePopupWidget(), qPrintable(meanwhile));
        }
    }
};

ZANTHIC_TEST_MAIN(WindowLoopsTest)
#include "tst_window_loops.moc"
