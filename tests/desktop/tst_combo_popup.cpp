#include "desktop/DesktopTest.h"

#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomComboBox.h>

#include <QtWidgets/QListWidget>

namespace {

/// A window with a combo box.
struct Host : Shell
{
    explicit Host(bool multi = false) : combo(new CustomComboBox(this, CustomComboBox::Default, multi))
    {
        combo->setGeometry(100, 80, 160, 32);
        combo->addItems({ QStringLiteral("Apple"), QStringLiteral("Banana"), QStringLiteral("Cherry") });
    }
    bool isOpen() const { return combo->view()->isVisible(); }
    QPoint row(int index) const
    {
        const QAbstractItemView *view = combo->view();
        return view->viewport()->mapToGlobal(view->visualRect(view->model()->index(index, 0)).center());
    }

    QPointer<CustomComboBox> combo;
};

} // namespace

class ComboPopupTest : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void listByMouseAndKeys();
    void checkBoxesKeepTheListOpen();
    void popupClosesByMouseAndKeys();
    void comboBoxGoesWhileItIsOpen();
};

void ComboPopupTest::listByMouseAndKeys()
{
    Host window;
    QVERIFY(window.settles());
    click(middle(window.combo));
    QTRY_VERIFY(window.isOpen());
    QTRY_COMPARE(placeOf(*window.combo->viewParent()).width(), qMax(160 + 24, window.combo->sizeHint().width()));
    QTest::qWait(QApplication::doubleClickInterval()); // a release that comes earlier belongs to the opening press
    click(window.row(2));
    QTRY_VERIFY(!window.isOpen());
    QCOMPARE(window.combo->currentIndex(), 2);
    window.combo->setFocus();
    for (const char *opening : { "F4", "alt+Down", "space" }) {
        keys(opening);
        QTRY_VERIFY(window.isOpen());
        keys("Up Escape");
        QTRY_VERIFY(!window.isOpen());
        QCOMPARE(window.combo->currentIndex(), 2);
    }
    keys("F4 Up Return");
    QTRY_VERIFY(window.combo->currentIndex() == 1 && !window.isOpen());
    keys("Up");
    QTRY_COMPARE(window.combo->currentIndex(), 0);
    keys("c");
    QTRY_COMPARE(window.combo->currentIndex(), 2);
    tool(to(middle(window.combo)) + QLatin1String("click 4 click 4"));
    QCOMPARE(window.combo->currentIndex(), 2);
}

void ComboPopupTest::checkBoxesKeepTheListOpen()
{
    Host window(true);
    window.combo->cSetMultiCheckItems({ { 1, QStringLiteral("One") }, { 2, QStringLiteral("Two") } });
    QVERIFY(window.settles());
    click(middle(window.combo));
    QTRY_VERIFY(window.isOpen());
    const QWidget *box = window.combo->view()->indexWidget(window.combo->model()->index(0, 0));
    click(box->mapToGlobal(QPoint(16, box->height() / 2)));
    QTRY_COMPARE(window.combo->cGetMultiCheckValue(), 1);
    click(window.row(1));
    QTRY_COMPARE(window.combo->cGetMultiCheckValue(), 3);
    keys("Up space");
    QTRY_COMPARE(window.combo->cGetMultiCheckValue(), 2);
    QVERIFY(window.isOpen());
    keys("Escape");
    QTRY_VERIFY(!window.isOpen());
}

void ComboPopupTest::popupClosesByMouseAndKeys()
{
    Host window;
    QVERIFY(window.settles());
    auto *content = new QWidget;
    content->resize(150, 90);
    for (const char *key : { "", "Escape", "alt+Down" }) {
        window.combo->cSetCustomPopupWidget(nullptr); // it keeps its size all the same
        window.combo->cSetCustomPopupWidget(content);
        const auto drive = [&] {
            const CustomMainWindow *popup = window.combo->cGetCustomPopupWindows();
            const QPoint below = window.combo->mapToGlobal(QPoint(0, 31 + 4));
            QTRY_COMPARE(placeOf(*popup), QRect(below, QSize(150, 90)));
            click(middle(content));
            QVERIFY(popup->isVisible());
            *key ? keys(key) : click(window.at(350, 250));
        };
        during([&] { click(middle(window.combo)); }, [&] { return content->isVisible(); }, drive);
        QTRY_VERIFY(!content->isVisible());
        QVERIFY(!window.combo->underMouse() && window.combo->isEnabled());
    }
}

void ComboPopupTest::comboBoxGoesWhileItIsOpen()
{
    for (const bool isCustom : { false, true }) {
        Host window;
        QVERIFY(window.settles());
        const QPointer<QWidget> content = isCustom ? new QWidget : nullptr;
        window.combo->cSetCustomPopupWidget(content);
        const auto isOpen = [&] { return isCustom ? content->isVisible() : window.isOpen(); };
        during(
            [&] {
                click(middle(window.combo));
                QTRY_VERIFY(!window.combo);
            },
            isOpen, [&] { delete window.combo; });
        QVERIFY(!content && !QApplication::activePopupWidget());
        click(window.at(350, 250));
        QTRY_COMPARE(window.presses, 1);
    }
}

ZANTHIC_TEST_MAIN(ComboPopupTest)
#include "tst_combo_popup.moc"
