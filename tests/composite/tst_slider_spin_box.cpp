#include "composite/CustomDrawSlider_p.h"
#include "style/StyleHost.h"

#include <Zanthic/CustomMainWindow.h>
#include <Zanthic/CustomProcessSlider.h>
#include <Zanthic/CustomSliderSpinBox.h>
#include <Zanthic/CustomSpinBox64.h>

namespace {

constexpr QRect kPlace(20, 30, 300, 40); // of the first control in its window; the next one is 100 px below

// A shown window with controls, and what they tell.
struct Window : QWidget
{
    explicit Window(CustomSliderSpinBox::SliderPosition position, int count = 1)
    {
        for (int i = 0; i < count; ++i) {
            auto *box = new CustomSliderSpinBox(this, Custom::Default, position);
            box->setGeometry(kPlace.translated(0, 100 * i));
            connect(box, &CustomSliderSpinBox::sigValueChanged, this, [this, box] { tell("c", box); });
            connect(box, &CustomSliderSpinBox::sigReleaseValueChanged, this, [this, box] { tell("r", box); });
            boxes += box;
        }
        setGeometry(50, 60, 400, 300);
        setFocus(); // so that no spin box gets it with the window's
        show();
        activateWindow();
        QApplication::processEvents();
    }
    ~Window() override { hide(); }
    void tell(const char *what, CustomSliderSpinBox *box)
    {
        told += QLatin1String(what);
        if (deadly == QLatin1String(what))
            delete box;
    }
    CustomMainWindow *popup(int i = 0) const { return boxes[i]->findChild<CustomMainWindow *>(); }
    bool isOpen(int i = 0) const { return popup(i)->isVisible(); }

    QList<QPointer<CustomSliderSpinBox>> boxes;
    QString told;
    QString deadly; // what deletes the control that tells it
};

void act(CustomSliderSpinBox *box, const QString &done)
{
    CustomSpinBox64 *spinBox = box->getSpinBox();
    CustomProcessSlider *slider = box->getSlider();
    const QPoint end(slider->width() - 1, 20);
    const QStringList words = done.split(QRegularExpression("[=,]"_s));
    if (words[0] == "set"_s) {
        box->cSetValue(words[1].toLongLong());
    } else if (words[0] == "range"_s) {
        box->cSetRange(words[1].toLongLong(), words[2].toLongLong());
    } else if (words[0] == "type"_s) {
        spinBox->interLineEdit()->clear();
        QTest::keyClicks(spinBox, words[1]);
        QTest::keyClick(spinBox, Qt::Key_Return);
    } else if (words[1] == "up"_s) {
        QTest::mouseClick(spinBox, Qt::LeftButton, {}, { spinBox->width() - 8, 8 });
    } else if (words[0] == "click"_s) {
        QTest::mouseClick(slider, Qt::LeftButton, {}, words[1] == "start"_s ? QPoint(0, 20) : end);
    } else {
        QTest::mousePress(slider, Qt::LeftButton, {}, CustomDrawSliderPrivate::get(slider)->option.handleRect.center());
        QMouseEvent move(QEvent::MouseMove, end, Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(slider, &move);
        QTest::mouseRelease(slider, Qt::LeftButton, {}, end);
    }
}

} // namespace

class SliderSpinBoxTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void partsFollowEachOther_data()
    {
        addRowsOf("composite/slider_spin_box.txt"_s, { "range", "value", "step", "done", "values", "told", "dot" });
    }
    void partsFollowEachOther()
    {
        addStyle("CustomDrawSlider", "HandleImage=@red16x16"_s);
        for (const auto position : { CustomSliderSpinBox::SliderInline, CustomSliderSpinBox::SliderPopup }) {
            Window window(position);
            CustomSliderSpinBox &box = *window.boxes[0];
            act(&box, QString("range=" + cell("range")));
            box.cSetValue(cell("value").toLongLong());
            box.cSetInc(qint64(number("step")));
            if (position == CustomSliderSpinBox::SliderPopup)
                box.getSpinBox()->setFocus();
            box.getSlider()->grab(); // which places the handle
            act(&box, cell("done"));
            QCOMPARE(QStringLiteral("%1,%2").arg(box.cGetValue()).arg(box.getSpinBox()->value()), cell("values"));
            QCOMPARE(box.getSlider()->cHandleValue(), box.cGetValue());
            QCOMPARE(window.told, cell("told"));
            const bool isDotShown = CustomDrawSliderPrivate::get(box.getSlider())->option.showDot;
            QCOMPARE(QStringLiteral("%1,%2").arg(int(isDotShown)).arg(box.getSlider()->cDotValue()), cell("dot"));
        }
    }

    void mayBeDeletedByTheirSignals()
    {
        for (const char *deadly : { "c", "r" }) {
            for (const QString &action : { "click=end"_s, "type=1"_s }) {
                Window window(CustomSliderSpinBox::SliderInline);
                window.deadly = QLatin1String(deadly);
                act(window.boxes[0], action);
                QVERIFY(!window.boxes[0]);
            }
        }
    }

    void sliderStandsBesideTheSpinBox()
    {
        Window window(CustomSliderSpinBox::SliderInline);
        CustomSliderSpinBox &box = *window.boxes[0];
        QCOMPARE(box.getSlider()->geometry(), QRect(0, 0, 200, 40));
        QCOMPARE(box.getSpinBox()->geometry(), QRect(215, 0, 85, 40));
        for (const int width : { -1, INT_MAX, 100 })
            box.cSetSpinBoxWidth(width);
        QTRY_COMPARE(box.getSlider()->width(), 185);
        box.getSpinBox()->setFocus();
        QVERIFY(!window.popup());
    }

    void partsHaveTheLook()
    {
        const CustomSliderSpinBox box(nullptr, Custom::DarkBlack, CustomSliderSpinBox::SliderPopup);
        QCOMPARE(box.getSlider()->cStyleSelector(), "DarkBlack"_s);
        QCOMPARE(box.getSpinBox()->cStyleSelector(), "DarkBlack"_s);
        QVERIFY(!CustomDrawSliderPrivate::get(box.getSlider())->option.showToolTip);
        const auto &popup = *static_cast<CustomMainWindow *>(box.getSlider()->window());
        QVERIFY(popup.cBorderWidth(Custom::AllEdge) == 0 && popup.cStyleSelector() == "Popup"_s);
    }

    void popupHangsBelowTheSpinBox()
    {
        Window window(CustomSliderSpinBox::SliderPopup, 2);
        QVERIFY(!window.isOpen());
        window.boxes[0]->getSpinBox()->setFocus();
        for (const QPoint &place : { window.pos(), QPoint(10, 10) }) {
            window.move(place);
            const QPoint below = window.mapToGlobal(QPoint(20, 73)); // 30 + 40 - 1 + 4
            QTRY_COMPARE(window.popup()->geometry(), QRect(below, QSize(300, 30)));
        }
        window.boxes[0]->resize(260, 40);
        QCOMPARE(window.popup()->width(), 260);
        window.activateWindow(); // here it is the popup's, which comes up without it elsewhere
        window.boxes[1]->getSpinBox()->setFocus();
        QTRY_VERIFY(!window.isOpen() && window.isOpen(1));
    }

    void popupClosesWithAPressElsewhere()
    {
        Window window(CustomSliderSpinBox::SliderPopup);
        CustomSpinBox64 *spinBox = window.boxes[0]->getSpinBox();
        // The spin box begins at 20, 30, and the popup ends at 319, 102.
        for (const QPoint &outside : { QPoint(19, 40), QPoint(30, 29), QPoint(320, 40), QPoint(30, 103) }) {
            spinBox->setFocus();
            for (const QPoint &inside : { QPoint(20, 30), QPoint(319, 102) })
                QTest::mouseClick(&window, Qt::LeftButton, {}, inside);
            QVERIFY(window.isOpen() && spinBox->hasFocus());
            QTest::mouseClick(&window, Qt::LeftButton, {}, outside);
            QVERIFY(!window.isOpen() && !spinBox->hasFocus());
        }
        const std::function<void()> others[] = { [&] { spinBox->hide(); }, [&] { window.popup()->reject(); },
            [&] { spinBox->setEnabled(false); }, [&] { QTest::keyClick(spinBox, Qt::Key_Escape); },
            [&] { window.boxes[0]->move(500, 500); }, [&] { window.hide(); } };
        for (const auto &other : others) { // what else closes it
            spinBox->setEnabled(true);
            spinBox->show();
            window.boxes[0]->move(kPlace.topLeft());
            window.activateWindow();
            window.boxes[0]->setFocus();
            QTRY_VERIFY(window.isOpen());
            other();
            QTRY_VERIFY(!window.isOpen() && !spinBox->hasFocus());
        }
    }

    void mayGoWhileThePopupIsOpen()
    {
        for (int i = 0; i < 4; ++i) {
            Window window(CustomSliderSpinBox::SliderPopup, 2);
            CustomSliderSpinBox &box = *window.boxes[0];
            window.boxes[i / 3]->getSpinBox()->setFocus();
            QVERIFY(window.isOpen(i / 3));
            delete QWidgetList{ box.getSpinBox(), box.getSlider(), window.popup(), window.boxes[1] }[i];
            box.cSetRange(-5, 5);
            box.cSetValue(5);
            box.cSetInc(5);
            box.cSetSpinBoxWidth(5);
            QTest::mouseClick(&window, Qt::LeftButton);
            QCOMPARE(box.cGetValue(), 5);
        }
    }
};

ZANTHIC_TEST_MAIN(SliderSpinBoxTest)
#include "tst_slider_spin_box.moc"
