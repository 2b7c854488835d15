#include "desktop/DesktopTest.h"

#include <Zanthic/CustomProcessSlider.h>
#include <Zanthic/CustomSliderSpinBox.h>
#include <Zanthic/CustomSpinBox64.h>

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace {

// A window with a slider spin box, a spin box, a field and a button, each in a row of its own.
class Form : public Shell
{
public:
    Form()
    {
        auto *content = new QWidget;
        cSetCentralWidget(content);
        int y = 10;
        for (QWidget *widget : QWidgetList{ field, box, spinBox, button }) {
            widget->setParent(content);
            widget->setGeometry(20, y, 200, 32);
            y += 60;
        }
        box->cSetRange(0, 100);
        spinBox->setRange(0, 100);
        field->setFocus();
        popup = box->findChild<CustomMainWindow *>();
        const auto record = [this](CustomSpinBox64 *spin, const QString &name) {
            connect(spin, &CustomSpinBox64::SigForceIn, this, [=] { told += QString(name + "in "); });
            connect(spin, &CustomSpinBox64::SigForceOut, this, [=] { told += QString(name + "out "); });
            connect(spin, &CustomSpinBox64::SigSaveParam, this, [=] { told += QString(name + "save "); });
        };
        record(box->getSpinBox(), QStringLiteral("1"));
        record(spinBox, QStringLiteral("2"));
    }
    ~Form() override { hide(); }
    QPoint belowBox() const { return box->mapToGlobal(QPoint(0, box->height() + 3)); }

    QLineEdit *field = new QLineEdit;
    CustomSliderSpinBox *box = new CustomSliderSpinBox(nullptr, Custom::Default, CustomSliderSpinBox::SliderPopup);
    CustomSpinBox64 *spinBox = new CustomSpinBox64;
    QPushButton *button = new QPushButton(QStringLiteral("Button"));
    CustomMainWindow *popup = nullptr;
    QString told;
};

} // namespace

class SliderPopupTest : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void spinBoxKeepsTheKeys()
    {
        Form form;
        QVERIFY(form.settles() && !form.popup->isVisible());
        click(middle(form.box));
        QTRY_COMPARE(placeOf(*form.popup), QRect(form.belowBox(), QSize(200, 30)));
        QVERIFY(form.isActiveWindow() && form.box->getSpinBox()->hasFocus());
        keys("BackSpace 4 2 Return");
        QTRY_COMPARE(form.box->cGetValue(), 42);
        QVERIFY(form.popup->isVisible() && form.box->getSlider()->cHandleValue() == 42);
        const QRect track = form.popup->geometry();
        drag({ track.x() + track.width() * 42 / 100, track.center().y() }, QPoint(500, 0));
        QTRY_COMPARE(form.box->cGetValue(), 100);
        QCOMPARE(form.box->getSpinBox()->value(), 100);
        QVERIFY(form.popup->isVisible());
        keys("ctrl+a 7 Return"); // the spin box still has the keys
        QTRY_COMPARE(form.box->cGetValue(), 7);
    }

    void popupFollowsAndCloses()
    {
        Form form;
        QVERIFY(form.settles());
        for (QWidget *elsewhere : QWidgetList{ form.field, form.button, form.cTitleBar() }) {
            click(middle(form.box));
            QTRY_VERIFY(form.popup->isVisible());
            form.move(form.pos() + QPoint(37, 21));
            QTRY_COMPARE(placeOf(*form.popup).topLeft(), form.belowBox());
            click(form.popup->mapToGlobal(QPoint(2, 2)));
            QVERIFY(form.popup->isVisible());
            click(middle(elsewhere)); // which takes the press itself
            QTRY_VERIFY(!form.popup->isVisible() && !form.box->getSpinBox()->hasFocus());
        }
        click(middle(form.box));
        QTRY_VERIFY(form.popup->isVisible());
        keys("Tab");
        QTRY_VERIFY(!form.popup->isVisible() && form.spinBox->hasFocus());
    }

    void signalsOfRealFocusAndClicks()
    {
        Form form;
        QVERIFY(form.settles());
        click(form.box->mapToGlobal(QPoint(190, 10))); // the up arrow
        QTRY_COMPARE(form.told, QStringLiteral("1in 1save "));
        QCOMPARE(form.box->cGetValue(), 1);
        click(form.spinBox->mapToGlobal(QPoint(190, 10)));
        QTRY_COMPARE(form.told, QStringLiteral("1in 1save 1out 2in 2save "));
        keys("9 Tab");
        QTRY_COMPARE(form.told, QStringLiteral("1in 1save 1out 2in 2save 2out "));
    }

    void popupGoesWithItsWindow()
    {
        auto form = std::make_unique<Form>();
        QVERIFY(form->settles());
        click(middle(form->box));
        QTRY_VERIFY(form->popup->isVisible());
        form->showMinimized();
        QTRY_VERIFY(!form->popup->isVisible());
        form->showNormal();
        QVERIFY(QTest::qWaitForWindowActive(form.get()));
        click(middle(form->box));
        QTRY_VERIFY(placeOf(*form->popup).isValid() && form->isActiveWindow() && form->box->getSpinBox()->hasFocus());
        keys("alt+F4"); // which the window gets
        QTRY_VERIFY(!form->isVisible() && !form->popup->isVisible());
        form->show();
        QVERIFY(QTest::qWaitForWindowActive(form.get()));
        click(middle(form->box));
        QTRY_VERIFY(placeOf(*form->popup).isValid());
        form.reset();
    }
};

ZANTHIC_TEST_MAIN(SliderPopupTest)
#include "tst_slider_popup.moc"
