#include "style/CustomPrivate_p.h"
#include "support/Probe.h"
#include "support/StyleTest.h"
#include "windows/CustomMainWindow_p.h"

#include <Zanthic/CustomFrame.h>
#include <Zanthic/CustomLineWidget.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomTitleBar.h>
#include <Zanthic/CustomWidget.h>

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QScrollArea>

using Private = CustomMainWindowPrivate;
using Window = CustomMainWindow;

namespace {

Private *of(const Window &window)
{
    return Private::get(&window);
}

void click(QWidget *widget)
{
    QTest::mouseClick(widget, Qt::LeftButton);
}

/// The row of buttons: "s" for a stretch, "n" for n px, a button's text.
QString rowOf(const Window &window)
{
    QStringList items;
    const QBoxLayout *row = of(window)->m_pButtonLayout;
    for (int i = 0; i < row->count(); ++i) {
        if (auto *button = qobject_cast<CustomPushButton *>(row->itemAt(i)->widget()))
            items << button->text();
        else
            items << (row->stretch(i) == 1 ? QStringLiteral("s") : QString::number(row->itemAt(i)->sizeHint().width()));
    }
    return items.join(QLatin1Char(' '));
}

class HidesItself : public Window
{
protected:
    void showEvent(QShowEvent *) override { hide(); }
};

class Listener : public CustomWidget
{
public:
    int keys = 0;

protected:
    void keyPressEvent(QKeyEvent *) override { ++keys; }
};

} // namespace

class MainWindowTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void buttonRow_data();
    void buttonRow();
    void buttonLooks();
    void buttonTexts();
    void indexesAndSignals();
    void skinMakesMarginsAndCorners();
    void skinChangeKeepsTheLook();
    void centralWidget();
    void execAndItsResult();
    void modalWindowsSwitchHotKeysOff();
    void mayBeDeletedByItsButton();
    void mayBeDeletedInLoops();
    void popup();
    void keys();
    void bottomWindowMakesRoom();
    void fullScreenHidesBottomWindows();
    void maximisingEndsWhereItBegan();
    void stretchesByTheMouse();
    void stretchesOfTwoWindows();
    void stretchEndsWithTheWindow();
};

void MainWindowTest::buttonRow_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<QString>("row");
    QTest::newRow("right") << int(Qt::AlignRight) << 3 << "10 s OK 10 Cancel 10";
    QTest::newRow("left") << int(Qt::AlignLeft) << 3 << "10 OK 10 Cancel 10 s";
    QTest::newRow("centre") << int(Qt::AlignCenter) << 1 << "10 s OK 10 s";
    QTest::newRow("anything else") << int(Qt::AlignTop) << 2 << "10 s Cancel 10";
    QTest::newRow("custom") << int(Qt::AlignRight) << 7 << "10 s A 10 B 10 OK 10 Cancel 10";
    QTest::newRow("none") << int(Qt::AlignRight) << 0 << "10 s";
}

void MainWindowTest::buttonRow()
{
    QFETCH(int, alignment);
    QFETCH(int, buttons);
    Window window;
    window.cSetButtonsAlign(Qt::AlignmentFlag(alignment));
    window.cAddCustomButtons({ QStringLiteral("A"), QStringLiteral("B") });
    window.cSetButtons(Window::Buttons(buttons));
    window.show();
    QTEST(rowOf(window), "row");
    window.cSetEnableButtonBar(false);
    window.hide();
    window.show();
    QVERIFY(of(window)->m_pButtonBar->isHidden() && of(window)->m_pSplitLine->isHidden());
    window.cSetEnableButtonBar(true);
    QCOMPARE(int(of(window)->m_fButtons), buttons ? buttons : 3);
}

void MainWindowTest::buttonLooks()
{
    Window plain;
    const CustomPushButton *cancel = of(plain)->m_pCancelButton;
    QCOMPARE(of(plain)->m_pOkButton->cStyleSelector(), QStringLiteral("GrayWhite"));
    QCOMPARE(of(plain)->m_pTitleBar->height(), 32);
    QVERIFY(cancel->width() >= 74 && cancel->height() >= 24);
    const auto key = QStringLiteral("DB_COLOR_Custom_CancelBtn_Background");
    const QStringList endings{ QString(), QStringLiteral("_Hover"), QStringLiteral("_Pressed"),
        QStringLiteral("_Dis") };
    for (int status = 0; status < 4; ++status)
        QCOMPARE(cancel->cAttributeValue(QStringLiteral("BackgroundColor"), Custom::ItemStatus(status)),
            key + endings.at(status));

    plain.cAddCustomButtons({ QStringLiteral("A"), QStringLiteral("B") });
    plain.show();
    QVERIFY(!plain.cButton(1)->cAttributeValue(QStringLiteral("BackgroundColor")).contains(key)); // only on Cancel
    plain.hide();

    addStyle("CustomMainWindow",
        QStringLiteral("TitleHeight=45 ButtonMainSelector=Main ButtonSubSelector=Sub ButtonMinWidth=333 "
                       "ButtonMinHieght=99 ButtonBarTopMargin=7 ButtonBarBottomMargin=9 ButtonBarSplitLine=1 "
                       "ButtonBarBackgroundColor=#ff0000"));
    Window window;
    window.cAddCustomButtons({ QStringLiteral("A"), QStringLiteral("B") });
    window.cSetMainButton(1);
    window.show();
    QCOMPARE(window.cButton(0)->size(), QSize(333, 99));
    QCOMPARE(window.cButton(0)->cStyleSelector() + window.cButton(1)->cStyleSelector(), QStringLiteral("SubMain"));
    QCOMPARE(of(window)->m_pTitleBar->height(), 45);
    QCOMPARE(of(window)->m_pButtonLayout->contentsMargins(), QMargins(0, 7, 0, 9));
    QVERIFY(of(window)->m_pSplitLine->isVisible());
    QCOMPARE(Probe::colorAt(Probe::grab(of(window)->m_pButtonBar), 3, 3), QStringLiteral("#ffff0000"));
}

void MainWindowTest::buttonTexts()
{
    const auto names = [](const char *a, const char *b) { return QStringList{ QLatin1String(a), QLatin1String(b) }; };
    Window window;
    window.cResetCustomButtonNames(names("x", "y"));
    QCOMPARE(of(window)->m_pOkButton->text(), QStringLiteral("OK")); // the bar isn't shown
    window.cSetButtons(Window::ButtonCancel);
    window.cResetCustomButtonNames(names("No", "y"));
    QCOMPARE(of(window)->m_pOkButton->text() + of(window)->m_pCancelButton->text(), QStringLiteral("OKNo"));
    window.cSetButtons(Window::ButtonOk | Window::ButtonCancel);
    window.cResetCustomButtonNames(names("Yes", "No"));
    QCOMPARE(of(window)->m_pOkButton->text() + of(window)->m_pCancelButton->text(), QStringLiteral("YesNo"));
    QEvent language(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&window, &language);
    QCOMPARE(of(window)->m_pOkButton->text() + of(window)->m_pCancelButton->text(), QStringLiteral("OKCancel"));

    window.cAddCustomButtons(names("A", "B"));
    window.cResetCustomButtonNames({ QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3") });
    QCOMPARE(window.cButton(0)->text(), QStringLiteral("A")); // more names than buttons
    window.cResetCustomButtonNames({ QStringLiteral("A much longer text than before") });
    QCOMPARE(window.cButton(1)->text(), QStringLiteral("B"));
    QCOMPARE(window.cButton(0)->width(), window.cButton(0)->sizeHint().width());
    window.cAddCustomButtons(names("C", "D")); // not supported, and harmless
    window.show();
    QVERIFY(!window.cButton(0) && window.cButtonCount() == 6);
    delete of(window)->m_pOkButton;
    window.cSetButtons(Window::ButtonOk | Window::ButtonCancel);
    QCoreApplication::sendEvent(&window, &language);
    QVERIFY(window.cButton(5) == of(window)->m_pCancelButton);
}

void MainWindowTest::indexesAndSignals()
{
    Window window;
    window.cSetButtons(Window::ButtonOk | Window::ButtonCancel);
    QCOMPARE(window.cButtonCount(), 2);
    QCOMPARE(window.cButton(0), of(window)->m_pOkButton); // before it has its index
    window.cAddCustomButtons({ QStringLiteral("A") });
    QCOMPARE(window.cButtonCount(), 3);
    window.show();
    QCOMPARE(window.cButton(1), of(window)->m_pOkButton);
    QCOMPARE(window.cButton(2), of(window)->m_pCancelButton);
    QVERIFY(!window.cButton(3) && !window.cButton(-1));
    QStringList log;
    connect(&window, &Window::cSigButtonClick, this, [&](int index) {
        log << QString::number(index) + (window.isVisible() ? QLatin1String(" open") : QLatin1String(" closed"));
    });
    click(window.cButton(0));
    QVERIFY(window.isVisible()); // custom buttons close nothing
    click(window.cButton(1));
    QVERIFY(!window.isVisible());
    QCOMPARE(of(window)->m_nResult, 1);
    window.show();
    click(window.cButton(2));
    QCOMPARE(of(window)->m_nResult, 0);
    QCOMPARE(log, QStringList({ QStringLiteral("0 open"), QStringLiteral("1 open"), QStringLiteral("2 open") }));
}

void MainWindowTest::skinMakesMarginsAndCorners()
{
    addStyle("CustomMainWindow",
        QStringLiteral("ObjectParameter=30 BackgroundColor=#00ff00 BorderColor:AllEdge=#0000ff BorderWidth:AllEdge=2 "
                       "BorderWidth:Top=3 BorderRadius:AllCorner=8 BorderRadius:RightTop=5 IsUseTitleBorder=1"));
    addStyle("CustomTitleBar", QStringLiteral("ObjectParameter=2 BackgroundColor=#ff0000"));
    Window window;
    window.resize(300, 200);
    window.show();
    const Private *d = of(window);
    QCOMPARE(d->m_pFrame->layout()->contentsMargins(), QMargins(3, 3, 3, 3)); // 2 + 1, but the top has its 3 alone
    QCOMPARE(d->m_pTitleBar->cBorderRadius(Custom::LeftTop), 8);
    QCOMPARE(d->m_pTitleBar->cBorderRadius(Custom::RightTop), 5);
    QVERIFY(!window.mask().contains(QPoint(0, 0)) && window.mask().contains(QPoint(150, 2)));
    // The title's colour goes on under the left border, the frame's own below it.
    const QImage frame = Probe::grab(d->m_pFrame);
    QCOMPARE(Probe::colorAt(frame, 2, 20), QStringLiteral("#ffff0000"));
    QCOMPARE(Probe::colorAt(frame, 2, 100), QStringLiteral("#ff00ff00"));
    window.cSetTitleVisible(false);
    window.cNotifyUpdateValue(QString(), QString(), Custom::Normal);
    window.hide();
    window.show();
    QVERIFY(!d->m_pFrame->cHasParameter(Custom::ParamColorRect));
}

void MainWindowTest::skinChangeKeepsTheLook()
{
    const auto style = QStringLiteral("ObjectParameter=30 BackgroundColor=#00ff00 BorderColor:AllEdge=#0000ff "
                                      "BorderWidth:AllEdge=2 BorderRadius:AllCorner=6 IsUseTitleBorder=1");
    addStyle("CustomMainWindow", style);
    addStyle("CustomTitleBar", QStringLiteral("ObjectParameter=2 BackgroundColor=#ff0000 FontColor=#123456"));
    addStyle("CustomFrame", QStringLiteral("ObjectParameter=2 BackgroundColor=#000000")); // not the window's
    Window window;
    window.cTitleBar()->cSetTitleText(QStringLiteral("Title"));
    window.resize(300, 200);
    window.show();
    const QImage before = Probe::grab(of(window)->m_pFrame);
    Custom::changeSkin();
    QCOMPARE(Probe::grab(of(window)->m_pFrame), before);
    addStyle("CustomTitleBar", QStringLiteral("BackgroundColor=#654321 FontColor=#abcdef"));
    Custom::changeSkin();
    QCOMPARE(Probe::colorAt(Probe::grab(of(window)->m_pFrame), 2, 20), QStringLiteral("#ff654321"));
    const auto *caption = window.cTitleBar()->findChild<QLabel *>();
    for (const QLabel *label : window.cTitleBar()->findChildren<QLabel *>())
        caption = label->text().isEmpty() ? caption : label;
    QCOMPARE(caption->palette().color(caption->foregroundRole()), QColor(0xab, 0xcd, 0xef));
}

void MainWindowTest::centralWidget()
{
    Window window;
    auto *first = new QWidget;
    window.cSetCentralWidget(first);
    window.cSetCentralWidget(nullptr);
    window.show();
    QVERIFY(first->isVisible());
    auto *second = new QWidget;
    window.cSetCentralWidget(second);
    QTRY_VERIFY(second->isVisible() && !first->isVisible());
    QCOMPARE(of(window)->m_pContentWidget->layout()->indexOf(second), 0);
    QCOMPARE(of(window)->m_pContentWidget->layout()->count(), 4);

    const QString sheet = scratchFile("QScrollArea { margin: 0px }");
    addDocument("<Class Name='A'><QSS><CustomTableView>" + sheet.toUtf8() + "</CustomTableView></QSS></Class>");
    Window scrolling;
    scrolling.cSetEnableScrollBar(true, QSize(120, 80));
    scrolling.cSetCentralWidget(new QWidget);
    scrolling.show();
    QCOMPARE(of(scrolling)->m_pScrollArea->size(), QSize(120, 80));
    QVERIFY(of(scrolling)->m_pScrollArea->isVisible());
    // A sheet of the same text may name pictures that have changed.
    struct : QObject
    {
        bool eventFilter(QObject *, QEvent *event) override
        {
            polished += event->type() == QEvent::StyleChange ? 1 : 0;
            return false;
        }
        int polished = 0;
    } watch;
    of(scrolling)->m_pScrollArea->installEventFilter(&watch);
    Custom::changeSkin();
    QVERIFY(watch.polished > 0);
}

void MainWindowTest::execAndItsResult()
{
    Window parent;
    Window window(&parent);
    QCOMPARE(int(parent.windowFlags() & 0xfff), 0x801);
    QCOMPARE(int(window.windowFlags() & 0xfff), 0x803);
    Qt::WindowFlags inside;
    const auto run = [&](const std::function<void()> &close) {
        QTimer::singleShot(0, &window, [&] {
            inside = window.windowFlags();
            close();
        });
        return window.exec();
    };
    QCOMPARE(run([&] { window.hide(); }), -1);
    QCOMPARE(int(inside & 0xff), 0x01); // a window of its own while its title bar shows
    QCOMPARE(run([&] { window.accept(); }), 1);
    QCOMPARE(run([&] { window.hide(); }), 1); // the older result stays
    QCOMPARE(run([&] { click(window.cTitleBar()->findChild<QWidget *>(QStringLiteral("CloseBtn"))); }), 0);
    Window bare(&parent);
    bare.cSetTitleVisible(false);
    QTimer::singleShot(0, &bare, [&] {
        inside = bare.windowFlags();
        bare.reject();
    });
    QCOMPARE(bare.exec(), 0);
    QCOMPARE(int(inside & 0xff), 0x03);
}

void MainWindowTest::modalWindowsSwitchHotKeysOff()
{
    auto *window = new Window;
    window->show();
    QCOMPARE(CustomPrivate::modalWidgetCount(), 0);
    window->hide();
    window->setModal(true);
    window->show();
    QCOMPARE(CustomPrivate::modalWidgetCount(), 1);
    window->hide();
    QCOMPARE(CustomPrivate::modalWidgetCount(), 0);
    window->show();
    delete window;
    QCOMPARE(CustomPrivate::modalWidgetCount(), 0);
    QVERIFY(Private::g_AllWindow.isEmpty());
    HidesItself shy;
    shy.setModal(true);
    shy.show();
    QVERIFY(!shy.isVisible() && CustomPrivate::modalWidgetCount() == 0);
}

void MainWindowTest::mayBeDeletedByItsButton()
{
    QPointer<Window> window = new Window;
    window->cSetButtons(Window::ButtonOk);
    window->show();
    connect(window, &Window::cSigButtonClick, this, [&] { delete window; });
    click(window->cButton(0));
    QVERIFY(!window);
}

void MainWindowTest::mayBeDeletedInLoops()
{
    auto *window = new Window;
    QTimer::singleShot(0, this, [&] { delete window; });
    QCOMPARE(window->exec(), -1);
    window = new Window;
    QTimer::singleShot(0, this, [&] { delete window; });
    window->cPopup();
    QCOMPARE(CustomPrivate::modalWidgetCount(), 0);
}

void MainWindowTest::popup()
{
    Window parent;
    Window window(&parent);
    window.setGeometry(100, 100, 200, 100);
    bool inside = false;
    int shown = 0;
    const auto press = [&](const QPoint &point) {
        QTimer::singleShot(0, &window, [&, point] {
            ++shown;
            inside = (window.windowFlags() & Qt::Popup) == Qt::Popup && window.isVisible();
            window.cPopup(); // does nothing while it is one
            QTest::mousePress(&window, Qt::LeftButton, {}, QPoint(50, 90));
            inside = inside && window.isVisible();
            QMouseEvent event(QEvent::MouseButtonPress, point, QPoint(300, 300), Qt::LeftButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(&window, &event);
        });
        window.cPopup();
    };
    for (const QPoint &outside : { QPoint(-5, 50), QPoint(200, 50), QPoint(0, 0) }) {
        press(outside);
        QVERIFY(inside && !window.isVisible());
        QCOMPARE(int(window.windowFlags() & 0xfff), 0x803);
    }
    QCOMPARE(shown, 3);
}

void MainWindowTest::keys()
{
    Window window;
    auto *listener = new Listener;
    window.cInstallKeyPressEvent(listener);
    window.cInstallKeyPressEvent(nullptr);
    window.show();
    for (const Qt::Key key : { Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter }) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &event);
        QVERIFY(!event.isAccepted() && window.isVisible());
    }
    QCOMPARE(listener->keys, 3);
    delete listener;
    QTest::keyClick(&window, Qt::Key_A);
}

void MainWindowTest::bottomWindowMakesRoom()
{
    Window bottom;
    bottom.cSetWindowLever(Window::LeverBottom);
    bottom.show();
    QVERIFY(of(bottom)->m_oLowerTimer.isActive());
    of(bottom)->watchLevel(); // alone
    bottom.hide();
    QVERIFY(!of(bottom)->m_oLowerTimer.isActive());
    Window normal;
    normal.cSetWindowLever(Window::LeverNormal);
    normal.show();
    QVERIFY(!of(normal)->m_oLowerTimer.isActive());
    QHelpEvent tip(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
    QCoreApplication::sendEvent(of(bottom)->m_pFrame, &tip);
    QVERIFY(of(bottom)->m_oLowerTimer.isActive());
}

void MainWindowTest::fullScreenHidesBottomWindows()
{
    Window bottom;
    Window other;
    Window full;
    for (Window *window : { &bottom, &full })
        window->cSetWindowLever(Window::LeverBottom);
    for (Window *window : { &bottom, &other, &full })
        window->show();
    Window::cSetIsFullScreen(true, &full);
    QVERIFY(!bottom.isVisible() && other.isVisible() && full.isVisible());
    Window::cSetIsFullScreen(false, nullptr);
    QVERIFY(!bottom.isVisible());
}

void MainWindowTest::maximisingEndsWhereItBegan()
{
    Window window;
    window.setGeometry(50, 60, 300, 200);
    window.show();
    const QRect start = window.geometry();
    for (int round = 0; round < 100; ++round) {
        window.cShowMaximized();
        window.cShowMaximized();
        QVERIFY(window.geometry() == QGuiApplication::primaryScreen()->availableGeometry() && !window.isMaximized());
        QVERIFY(!of(window)->m_bCanStrech);
        window.cShowNormal();
        window.cShowNormal();
    }
    QCOMPARE(window.geometry(), start);
    QVERIFY(of(window)->m_bCanStrech);
}

void MainWindowTest::stretchesByTheMouse()
{
    Window window;
    window.cSetStrechEdges(Window::StrechEdges(255));
    window.cSetMinStrechSize(QSize(200, 150));
    auto *content = new QWidget;
    window.cSetCentralWidget(content);
    window.setGeometry(50, 60, 300, 200);
    window.show();
    const auto drag = [&](const QPoint &from, const QPoint &way) {
        QTest::mousePress(&window, Qt::LeftButton, {}, from);
        QTest::mouseMove(&window, from + way);
        QMouseEvent move(
            QEvent::MouseMove, from + way, window.mapToGlobal(from + way), Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window, &move);
        QTest::mouseRelease(&window, Qt::LeftButton, {}, from + way);
    };
    drag(QPoint(299, 100), QPoint(40, 0));
    QCOMPARE(window.geometry(), QRect(50, 60, 340, 200));
    drag(QPoint(339, 100), QPoint(-40, 0));
    drag(QPoint(0, 100), QPoint(500, 0));
    QCOMPARE(window.width(), 201);
    window.setGeometry(50, 60, 300, 200);
    window.setFixedSize(300, 200);
    drag(QPoint(299, 199), QPoint(10, 20));
    QCOMPARE(window.minimumSize(), QSize(310, 220)); // a fixed size follows
    QVERIFY(window.cTitleBar()->cEnableMove() && !Private::g_StretchHelper.pressed);

    window.cAddStrechIgnoreWidget(content);
    drag(QPoint(150, 219), QPoint(0, 30));
    QCOMPARE(window.size(), QSize(310, 220));
    delete content;
    window.setMinimumSize(0, 0);
    window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    window.cShowMaximized();
    const QRect whole = window.geometry();
    drag(QPoint(whole.width() - 1, 100), QPoint(-50, 0));
    QCOMPARE(window.geometry(), whole);
}

void MainWindowTest::stretchesOfTwoWindows()
{
    Window a;
    Window b;
    for (Window *window : { &a, &b }) {
        window->cSetStrechEdges(Window::StrechRight);
        window->resize(300, 200);
        window->show();
    }
    const QPoint edge(299, 100);
    b.cTitleBar()->cSetEnableMove(false);
    QTest::mousePress(&a, Qt::LeftButton, {}, edge);
    QVERIFY(!a.cTitleBar()->cEnableMove());
    QTest::mousePress(&b, Qt::LeftButton, {}, edge); // one pointer, one stretch
    QVERIFY(a.cTitleBar()->cEnableMove());
    QTest::mouseRelease(&b, Qt::LeftButton, {}, edge);
    QVERIFY(!b.cTitleBar()->cEnableMove());
    QTest::mousePress(&a, Qt::LeftButton, {}, edge);
    Window modal;
    modal.setModal(true);
    modal.show(); // swallows the release
    QVERIFY(!Private::g_StretchHelper.pressed && a.cTitleBar()->cEnableMove() && !QGuiApplication::overrideCursor());
    modal.hide();
    of(a)->judgeCursorPos(a.mapToGlobal(edge));
    QVERIFY(QGuiApplication::overrideCursor());
    a.cSetStrechEdges({});
    QVERIFY(!QGuiApplication::overrideCursor());
}

void MainWindowTest::stretchEndsWithTheWindow()
{
    for (const bool isDeleted : { false, true }) {
        auto *window = new Window;
        window->cSetStrechEdges(Window::StrechRight);
        window->setGeometry(50, 60, 300, 200);
        window->show();
        QTest::mousePress(window, Qt::LeftButton, {}, QPoint(299, 100));
        QVERIFY(Private::g_StretchHelper.pressed && QGuiApplication::overrideCursor());
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::SizeHorCursor);
        if (!isDeleted) {
            window->hide();
            QVERIFY(window->cTitleBar()->cEnableMove());
        }
        delete window;
        QVERIFY(!QGuiApplication::overrideCursor() && !Private::g_StretchHelper.pressed);
        QVERIFY(!Private::g_StretchHelper.window);
    }
}

ZANTHIC_TEST_MAIN(MainWindowTest)
#include "tst_main_window.moc"
