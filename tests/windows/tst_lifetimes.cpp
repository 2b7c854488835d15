#include "support/Literal.h"
#include "support/StyleTest.h"

#include <Zanthic/Zanthic.h>
#include <Zanthic/ZanthicTheme.h>

namespace {

constexpr int kRounds = 1000;

void openWindow()
{
    CustomMainWindow window;
    window.cTitleBar()->cAddMenu("File"_s, new CustomMenu(&window));
    window.cTitleBar()->cAddToolButton(false, 4);
    window.cSetCentralWidget(new CustomWidget);
    window.cSetButtons(CustomMainWindow::ButtonOk);
    window.show();
    QTest::mouseClick(window.cButton(0), Qt::LeftButton);
}

void openMenu()
{
    CustomMenu menu;
    menu.addMenu("More"_s)->addAction("Action"_s);
    menu.cAddCustomWidgetMenu(new QWidget);
    menu.popup(QPoint(10, 10));
    menu.close();
}

void openMessageBox()
{
    QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
    CustomMessageBox::ask(nullptr, "Content"_s, QString(), CustomMainWindow::ButtonOk, "Title"_s);
}

void openToolTip()
{
    CustomToolTip::showText(QPoint(50, 50), "Tip"_s, nullptr, true);
}

} // namespace

/// What is opened and closed again and again leaves nothing behind. Memory is watched by the sanitizer's run.
class LifetimesTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingStaysBehind()
    {
        ZanthicTheme::applySkin("light"_s);
        const auto living = [] {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return QApplication::allWidgets().size();
        };
        for (const auto &open : { openWindow, openMenu, openMessageBox, openToolTip }) {
            open();
            const int before = living();
            for (int round = 0; round < kRounds; ++round) {
                open();
                QCoreApplication::processEvents();
            }
            QCOMPARE(living(), before);
        }
        QTest::mouseClick(std::make_unique<QWidget>().get(), Qt::LeftButton); // closes the tip
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

ZANTHIC_TEST_MAIN(LifetimesTest)
#include "tst_lifetimes.moc"
