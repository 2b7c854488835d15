#include "style/CustomPrivate_p.h"
#include "support/Literal.h"
#include "support/Probe.h"
#include "support/StyleTest.h"
#include "windows/CustomMainWindow_p.h"

#include <Zanthic/Zanthic.h>

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
            items << (row->stretch(i) == 1 ? "s"_s : QString::number(row->itemAt(i)->sizeHint().width()));
    }
    return items.join(' ');
}

class HidesItself : public Window
{
protected:
    void showEvent(QShowEvent *) override { hide(); }
};

} // namespace

class MainWindowTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void buttonRow_data() { addRowsOf("windows/button-rows.txt"_s, { "alignment", "buttons", "row" }); }
    void buttonRow()
    {
        const int buttons = int(number("buttons"));
        Window window;
        window.cSetButtonsAlign(Qt::AlignmentFlag(number("alignment")));
        window.cAddCustomButtons({ "A"_s, "B"_s });
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

    void buttonLooks()
    {
        Window plain;
        const CustomPushButton *cancel = of(plain)->m_pCancelButton;
        QCOMPARE(of(plain)->m_pOkButton->cStyleSelector(), "GrayWhite"_s);
        QCOMPARE(of(plain)->m_pTitleBar->height(), 32);
        QVERIFY(cancel->width() >= 74 && cancel->height() >= 24);
        const auto key = "DB_COLOR_Custom_CancelBtn_Background"_s;
        QCOMPARE(cancel->cAttributeValue("BackgroundColor"_s, Custom::Disabled), key + "_Dis");

        plain.cAddCustomButtons({ "A"_s, "B"_s });
        plain.show();
        QVERIFY(!plain.cButton(1)->cAttributeValue("BackgroundColor"_s).contains(key)); // only on Cancel
        plain.hide();

        addStyle("CustomMainWindow",
            "TitleHeight=45 ButtonMainSelector=Main ButtonSubSelector=Sub ButtonMinWidth=333 "
            "ButtonMinHieght=99 ButtonBarTopMargin=7 ButtonBarBottomMargin=9 ButtonBarSplitLine=1 "
            "ButtonBarBackgroundColor=#ff0000"_s);
        Window window;
        window.cAddCustomButtons({ "A"_s, "B"_s });
        window.cSetMainButton(1);
        window.show();
        QCOMPARE(window.cButton(0)->size(), QSize(333, 99));
        QCOMPARE(window.cButton(0)->cStyleSelector() + window.cButton(1)->cStyleSelector(), "SubMain"_s);
        QCOMPARE(of(window)->m_pTitleBar->height(), 45);
        QCOMPARE(of(window)->m_pButtonLayout->contentsMargins(), QMargins(0, 7, 0, 9));
        QVERIFY(of(window)->m_pSplitLine->isVisible());
        QCOMPARE(Probe::colorAt(Probe::grab(of(window)->m_pButtonBar), 3, 3), "#ffff0000"_s);
    }

    void buttonTexts()
    {
        Window window;
        const auto renamed = [&window](const QStringList &names) -> QString {
            window.cResetCustomButtonNames(names);
            return of(window)->m_pOkButton->text() + of(window)->m_pCancelButton->text();
        };
        QCOMPARE(renamed({ "x"_s, "y"_s }), "OKCancel"_s); // the bar isn't shown
        window.cSetButtons(Window::ButtonCancel);
        QCOMPARE(renamed({ "No"_s, "y"_s }), "OKNo"_s);
        window.cSetButtons(Window::ButtonOk | Window::ButtonCancel);
        QCOMPARE(renamed({ "Yes"_s, "No"_s }), "YesNo"_s);
        QEvent language(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&window, &language);
        window.cAddCustomButtons({ "A"_s, "B"_s });
        QCOMPARE(renamed({ "1"_s, "2"_s, "3"_s }), "OKCancel"_s);
        QCOMPARE(window.cButton(0)->text(), "A"_s); // more names than buttons
        renamed({ "A much longer text than before"_s });
        QCOMPARE(window.cButton(1)->text(), "B"_s);
        QCOMPARE(window.cButton(0)->width(), window.cButton(0)->sizeHint().width());
        window.cAddCustomButtons({ "C"_s, "D"_s }); // not supported, and harmless
        window.show();
        QVERIFY(!window.cButton(0) && window.cButtonCount() == 6);
        delete of(window)->m_pOkButton;
        window.cSetButtons(Window::ButtonOk | Window::ButtonCancel);
        QCoreApplication::sendEvent(&window, &language);
        QVERIFY(window.cButton(5) == of(window)->m_pCancelButton);
    }

    void indexesAndSignals()
    {
        Window window;
        window.cSetButtons(Window::ButtonOk | Window::ButtonCancel);
        QCOMPARE(window.cButton(0), of(window)->m_pOkButton); // before it has its index
        window.cAddCustomButtons({ "A"_s });
        QCOMPARE(window.cButtonCount(), 3);
        QVERIFY(!window.cButton(3) && !window.cButton(-1));
        QStringList log;
        connect(&window, &Window::cSigButtonClick, this,
            [&](int index) { log << QString::number(index) + (window.isVisible() ? " open" : " closed"); });
        for (int index = 0; index < 3; ++index) {
            window.show();
            click(window.cButton(index));
            QCOMPARE(window.isVisible(), index == 0); // custom buttons close nothing
            QCOMPARE(of(window)->m_nResult, index == 0 ? -1 : index == 1 ? 1 : 0);
        }
        QCOMPARE(log.join(','), "0 open,1 open,2 open"_s);
    }

    void skinMakesMarginsAndCorners()
    {
        addStyle("CustomMainWindow",
            "ObjectParameter=30 BackgroundColor=#00ff00 BorderColor:AllEdge=#0000ff BorderWidth:AllEdge=2 "
            "BorderWidth:Top=3 BorderRadius:AllCorner=8 BorderRadius:RightTop=5 IsUseTitleBorder=1"_s);
        addStyle("CustomTitleBar", "ObjectParameter=2 BackgroundColor=#ff0000 FontColor=#123456"_s);
        addStyle("CustomFrame", "ObjectParameter=2 BackgroundColor=#000000"_s); // not the window's
        Window window;
        window.cTitleBar()->cSetTitleText("Title"_s);
        window.resize(300, 200);
        window.show();
        const Private *d = of(window);
        QCOMPARE(d->m_pFrame->layout()->contentsMargins(), QMargins(3, 3, 3, 3)); // 2 + 1, but the top has its 3 alone
        QCOMPARE(d->m_pTitleBar->cBorderRadius(Custom::LeftTop), 8);
        QCOMPARE(d->m_pTitleBar->cBorderRadius(Custom::RightTop), 5);
        QVERIFY(!window.mask().contains(QPoint(0, 0)) && window.mask().contains(QPoint(150, 2)));
        // The title's colour goes on under the left border, the frame's own below it.
        const QImage frame = Probe::grab(d->m_pFrame);
        QCOMPARE(Probe::colorAt(frame, 2, 20) + Probe::colorAt(frame, 2, 100), "#ffff0000#ff00ff00"_s);
        Custom::changeSkin();
        QCOMPARE(Probe::grab(d->m_pFrame), frame);
        addStyle("CustomTitleBar", "BackgroundColor=#654321 FontColor=#abcdef"_s);
        Custom::changeSkin();
        QCOMPARE(Probe::colorAt(Probe::grab(d->m_pFrame), 2, 20), "#ff654321"_s);
        for (const QLabel *label : window.cTitleBar()->findChildren<QLabel *>())
            QVERIFY(
                label->text().isEmpty() || label->palette().color(label->foregroundRole()) == QColor(0xab, 0xcd, 0xef));
        window.cSetTitleVisible(false);
        window.cNotifyUpdateValue(QString(), QString(), Custom::Normal);
        window.hide();
        window.show();
        QVERIFY(!d->m_pFrame->cHasParameter(Custom::ParamColorRect));
    }

    void centralWidget()
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
                polished |= event->type() == QEvent::StyleChange;
                return false;
            }
            bool polished = false;
        } watch;
        of(scrolling)->m_pScrollArea->installEventFilter(&watch);
        Custom::changeSkin();
        QVERIFY(watch.polished);
    }

    void keys()
    {
        struct Listener : CustomWidget
        {
            void keyPressEvent(QKeyEvent *) override { ++keys; }
            int keys = 0;
        };
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

    void execAndItsResult()
    {
        Window parent;
        Window window(&parent);
        QCOMPARE(int(parent.windowFlags() & 0xfff), 0x801);
        QCOMPARE(int(window.windowFlags() & 0xfff), 0x803);
        int type = 0;
        const auto run = [&type](Window &opened, void (Window::*close)()) {
            QTimer::singleShot(0, &opened, [&] {
                type = int(opened.windowFlags() & 0xff);
                (opened.*close)();
            });
            return opened.exec();
        };
        QCOMPARE(run(window, &Window::hide), -1);
        QCOMPARE(type, 0x01); // a window of its own while its title bar shows
        QCOMPARE(run(window, &Window::accept), 1);
        QCOMPARE(run(window, &Window::hide), 1); // the older result stays
        Window bare(&parent);
        bare.cSetTitleVisible(false);
        QCOMPARE(run(bare, &Window::reject), 0);
        QCOMPARE(type, 0x03);
    }

    void modalWindowsSwitchHotKeysOff()
    {
        auto window = std::make_unique<Window>();
        for (const bool isModal : { false, true, true }) {
            window->setModal(isModal);
            window->show();
            QCOMPARE(CustomPrivate::modalWidgetCount(), int(isModal));
            window->hide();
            QCOMPARE(CustomPrivate::modalWidgetCount(), 0);
        }
        window->show();
        window.reset();
        QVERIFY(CustomPrivate::modalWidgetCount() == 0 && Private::g_AllWindow.isEmpty());
        HidesItself shy;
        shy.setModal(true);
        shy.show();
        QVERIFY(!shy.isVisible() && CustomPrivate::modalWidgetCount() == 0);
    }

    void popupClosesOnAPressOutside()
    {
        Window window;
        window.setGeometry(100, 100, 200, 100);
        for (const QPoint &outside : { QPoint(-5, 50), QPoint(200, 50), QPoint(0, 0) }) {
            bool isClosed = false;
            QTimer::singleShot(0, &window, [&] {
                window.cPopup(); // does nothing while it is one
                QTest::mousePress(&window, Qt::LeftButton, {}, QPoint(50, 90));
                QMouseEvent press(
                    QEvent::MouseButtonPress, outside, QPoint(300, 300), Qt::LeftButton, Qt::LeftButton, {});
                isClosed = window.isVisible() && QCoreApplication::sendEvent(&window, &press) && !window.isVisible();
                window.hide();
            });
            window.cPopup();
            QVERIFY(isClosed && window.windowType() != Qt::Popup);
        }
    }

    void bottomWindowMakesRoom()
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
        Window full;
        full.cSetWindowLever(Window::LeverBottom);
        for (Window *window : { &normal, &full, &bottom })
            window->show();
        QVERIFY(!of(normal)->m_oLowerTimer.isActive());
        Window::cSetIsFullScreen(true, &full);
        QVERIFY(!bottom.isVisible() && normal.isVisible() && full.isVisible());
        Window::cSetIsFullScreen(false, nullptr);
        QVERIFY(!bottom.isVisible());
        QHelpEvent tip(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
        QCoreApplication::sendEvent(of(bottom)->m_pFrame, &tip);
        QVERIFY(of(bottom)->m_oLowerTimer.isActive());
    }

    void stretchesByTheMouse()
    {
        Window window;
        window.cSetStrechEdges(Window::StrechEdges(255));
        auto *content = new QWidget;
        window.cSetCentralWidget(content);
        window.setGeometry(50, 60, 300, 200);
        window.show();
        const auto drag = [&](const QPoint &from, const QPoint &way) {
            QTest::mousePress(&window, Qt::LeftButton, {}, from);
            QMouseEvent move(
                QEvent::MouseMove, from + way, window.mapToGlobal(from + way), Qt::LeftButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(&window, &move);
            QTest::mouseRelease(&window, Qt::LeftButton, {}, from + way);
        };
        window.setFixedSize(300, 200);
        drag(QPoint(299, 199), QPoint(10, 20));
        QCOMPARE(window.minimumSize(), QSize(310, 220)); // a fixed size follows
        window.cAddStrechIgnoreWidget(content);
        drag(QPoint(150, 219), QPoint(0, 30));
        QCOMPARE(window.size(), QSize(310, 220));
        delete content;
        window.setMinimumSize(0, 0);
        window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        window.cShowMaximized();
        const QRect whole = window.geometry();
        drag(QPoint(whole.width() - 1, 100), QPoint(-50, 0));
        QVERIFY(window.geometry() == whole && !of(window)->m_bCanStrech);
        window.cShowNormal();
        QVERIFY(of(window)->m_bCanStrech);
    }

    void stretchesOfTwoWindows()
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
        QVERIFY(
            !Private::g_StretchHelper.pressed && a.cTitleBar()->cEnableMove() && !QGuiApplication::overrideCursor());
        modal.hide();
        a.cSetStrechEdges(Window::StrechEdges(255));
        for (const QPoint &zone : { QPoint(150, 199), edge })
            of(a)->judgeCursorPos(a.mapToGlobal(zone));
        QVERIFY(QGuiApplication::overrideCursor());
        a.cSetStrechEdges({});
        QVERIFY(!QGuiApplication::overrideCursor());
    }
};

ZANTHIC_TEST_MAIN(MainWindowTest)
#include "tst_main_window.moc"
