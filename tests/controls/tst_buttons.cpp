#include "controls/CustomPushButton_p.h"
#include "style/StyleHost.h"
#include "support/Probe.h"

#include <Zanthic/Zanthic.h>

using Private = CustomPushButtonPrivate;

namespace {

const auto kRed = "#ffff0000"_s;
const auto kGreen = "#ff00ff00"_s;
const auto kBlue = "#ff0000ff"_s;
const auto kWhite = "#ffffffff"_s;
const auto kColors = QStringLiteral("ObjectParameter=2 BackgroundColor=#ff0000 BackgroundColor:Hover=#00ff00 "
                                    "BackgroundColor:Pressed=#0000ff BackgroundColor:Disabled=#ffffff");

// A shown window with a button of each kind; counts what they pass on.
class Window : public QWidget
{
public:
    Window()
    {
        for (int i = 0; i < 3; ++i) {
            buttons[i]->setParent(this);
            buttons[i]->setText("Text"_s);
            buttons[i]->setGeometry(50, 30 + 40 * i, 120, 30);
        }
        setGeometry(40, 40, 200, 160);
        show();
    }

    CustomPushButton *push = new CustomPushButton;
    CustomCheckBox *box = new CustomCheckBox;
    CustomRadioButton *radio = new CustomRadioButton;
    const QList<QAbstractButton *> buttons{ push, box, radio };
    int events = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++events; }
    void mouseReleaseEvent(QMouseEvent *) override { ++events; }
    void mouseMoveEvent(QMouseEvent *) override { ++events; }
    void keyPressEvent(QKeyEvent *) override { ++events; }
};

QString colorOf(QWidget *widget)
{
    return Probe::colorAt(Probe::grab(widget), 2, 15);
}

void click(QWidget *widget, const QPoint &point = QPoint(8, 15))
{
    QTest::mouseClick(widget, Qt::LeftButton, {}, point);
}

} // namespace

class ButtonsTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void selectorsAreNamedAsTheirEnumerators()
    {
        const auto push = QMetaEnum::fromType<CustomPushButton::StyleSelector>();
        const auto box = QMetaEnum::fromType<CustomCheckBox::StyleSelector>();
        for (int i = -1; i < 6; ++i) { // unknown ones are empty
            const CustomPushButton button(nullptr, CustomPushButton::StyleSelector(i));
            const CustomCheckBox checkBox(nullptr, CustomCheckBox::StyleSelector(i));
            QCOMPARE(button.cStyleSelector(), QString::fromLatin1(push.valueToKey(i)));
            QCOMPARE(checkBox.cStyleSelector(), QString::fromLatin1(box.valueToKey(i)));
        }
    }

    void startWithTheirFonts()
    {
        for (const char *name : { "CustomPushButton", "CustomCheckBox", "CustomRadioButton" })
            addStyle(name, "FontSize=33"_s);
        QCOMPARE(CustomCheckBox().font().pixelSize(), 33);
        QCOMPARE(CustomRadioButton().font().pixelSize(), 33);
        CustomPushButton button;
        QVERIFY(!button.autoDefault() && button.font().pixelSize() != 33); // reads nothing before it is asked
        QCOMPARE(button.cFontSize(), 33);
        QCOMPARE(button.font().pixelSize(), 33);
    }

    void iconsOfTheirOwnAndOfAStatus()
    {
        CustomPushButton button;
        button.cSetIcon("/hover.png"_s, Custom::Hover);
        QVERIFY(button.icon().isNull());
        button.cSetIcon(picture(Qt::red), Custom::Normal);
        QVERIFY(!button.icon().isNull());
        QCOMPARE(button.cAttributeValue("Icon"_s, Custom::Hover), "/hover.png"_s);
        button.cSetIconAlign(Qt::AlignTop | Qt::AlignRight);
        button.cSetBackgroundAlign(Qt::AlignBottom | Qt::AlignHCenter);
        QCOMPARE(button.cAttributeValue("IconAlignment"_s), "34"_s);
        QCOMPARE(button.cAttributeValue("Alignment"_s), "68"_s);
    }

    void indicatorIsWhatReacts_data() { addRowsOf("controls/hits.txt"_s); }
    void indicatorIsWhatReacts()
    {
        QFETCH(QStringList, fields);
        addStyle("Custom" + fields[0].toLatin1(), fields[1]);
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QAbstractButton *button = window.buttons[fields[0] == "CheckBox"_s ? 1 : 2];
        button->setStyleSheet(fields[2]);
        button->setText(fields[3]);
        button->setLayoutDirection(enumerator<Qt::LayoutDirection>(fields[4]));
        click(button, QPointF(numbersIn(fields[5])[0], numbersIn(fields[5])[1]).toPoint());
        QCOMPARE(QString::number(button->isChecked()), fields[6]);
    }

    void signalTellsOfTheUserOnly()
    {
        Window window;
        CustomCheckBox &box = *window.box;
        box.setTristate(true);
        QSignalSpy spy(&box, &CustomCheckBox::sigStateChanged);
        box.setChecked(true);
        box.setCheckState(Qt::Unchecked);
        box.click();
        box.setCheckState(Qt::Unchecked);
        QCOMPARE(spy.count(), 0);
        for (const int state : { Qt::PartiallyChecked, Qt::Checked, Qt::Unchecked }) {
            click(&box);
            QCOMPARE(spy.takeFirst().first().toInt(), state);
        }
        QTest::mousePress(&box, Qt::LeftButton, {}, QPoint(8, 15));
        QTest::mouseRelease(&box, Qt::LeftButton, {}, QPoint(200, 200)); // outside, which changes nothing
        QCOMPARE(spy.count(), 0);
    }

    void pushButtonFollowsItsStatus()
    {
        addStyle("CustomPushButton", kColors);
        Window window;
        CustomPushButton &button = *window.push;
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(colorOf(&button), kRed);
        QCursor::setPos(button.mapToGlobal(QPoint(10, 10)));
        QTRY_COMPARE(colorOf(&button), kGreen);
        button.setDown(true);
        QCOMPARE(colorOf(&button), kBlue);
        // A pointer that left without a release leaves no trace.
        QCursor::setPos(0, 0);
        button.setDown(true);
        QCOMPARE(colorOf(&button), kRed);
        button.setDown(false);
        button.setAttribute(Qt::WA_UnderMouse, true);
        QCOMPARE(colorOf(&button), kRed);
        // In a busy period being sunken doesn't ask for the pointer, but being hovered does.
        Private::get(&button)->clickBusy = true;
        button.setDown(true);
        QCOMPARE(colorOf(&button), kRed);
        button.setAttribute(Qt::WA_UnderMouse, false);
        QCOMPARE(colorOf(&button), kBlue);
        button.setEnabled(false);
        QCOMPARE(colorOf(&button), kWhite);
    }

    void styleSheetMakesAPlainControl()
    {
        addStyle("CustomPushButton", kColors);
        const auto images = "BackgroundImage:unchecked=@red16x16 BackgroundImage:checked=@blue16x16"_s;
        addStyle("CustomCheckBox", images);
        addStyle("CustomRadioButton", images);
        Window window;
        for (QAbstractButton *button : window.buttons) {
            QCOMPARE(colorOf(button), kRed);
            button->setStyleSheet(QStringLiteral("QPushButton { background: #00ff00; border: none; min-width: 333px }"
                                                 "*::indicator { width: 333px; height: 20px; background: #00ff00; }"));
            QCOMPARE(colorOf(button), kGreen);
            QVERIFY(button->sizeHint().width() >= 333);
            button->setStyleSheet(QString());
            button->setChecked(true);
            QCOMPARE(colorOf(button), button == window.push ? kRed : kBlue);
        }
    }

    void guardIgnoresAQuickSecondClick_data() { addRowsOf("controls/clicks.txt"_s); }
    void guardIgnoresAQuickSecondClick()
    {
        QFETCH(QStringList, fields);
        const QVector<double> n = numbersIn(fields[0]);
        const bool guarded = n[0] > 0;
        const int clicks = int(n[2]);
        // A machine that is too busy for 50 ms, or for the timer, gets further tries.
        for (int attempt = 0;; ++attempt) {
            QVERIFY(attempt < 20);
            Window window;
            window.push->cSetControlClickEvent(guarded);
            QSignalSpy spy(window.push, &QAbstractButton::clicked);
            QElapsedTimer timer;
            timer.start();
            click(window.push);
            QCOMPARE(Private::get(window.push)->clickTimer.isActive(), guarded);
            QTest::qWait(int(n[1]));
            click(window.push);
            const bool isLate = clicks == 1 ? timer.elapsed() > 90 : guarded && spy.count() == 1;
            if (isLate && attempt < 19)
                continue;
            QCOMPARE(spy.count(), clicks);
            QCOMPARE(window.events, clicks == 1 ? 2 : 0); // dropped presses and releases go on to the parent
            QTRY_COMPARE(Private::get(window.push)->clickTimer.isActive(), false);
            QCOMPARE(Private::get(window.push)->clickBusy, !guarded);
            return;
        }
    }

    void guardNumbersAreNotReused()
    {
        CustomPushButton button;
        for (const int number : { Private::g_nIndex + 1, Private::g_nIndex + 2 }) {
            QCOMPARE(Private::get(&button)->controlIndex, -1);
            button.cSetControlClickEvent(true);
            QCOMPARE(Private::get(&button)->controlIndex, number);
            button.cSetControlClickEvent(false);
            QVERIFY(!Private::controlList().contains(number));
        }
    }

    void eventsGoOnToTheParent()
    {
        Window window;
        CustomPushButton &button = *window.push;
        QSignalSpy spy(&button, &QAbstractButton::clicked);
        const auto passedOn = [&] {
            window.events = 0;
            for (const auto type : { QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease }) {
                QMouseEvent event(type, QPointF(10, 10), button.mapToGlobal(QPoint(10, 10)),
                    type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton, {});
                QApplication::sendEvent(&button, &event);
            }
            return window.events;
        };
        QCOMPARE(passedOn(), 0);
        button.cSetIgnoreMouseEvent(true);
        QCOMPARE(passedOn(), 2); // the release goes on only where clicks are guarded
        button.cSetControlClickEvent(true);
        QCOMPARE(passedOn(), 3);
        QCOMPARE(spy.count(), 3);
        button.cSetControlClickEvent(false);
        window.events = 0;
        for (const auto key : { Qt::Key_Left, Qt::Key_Right, Qt::Key_Space })
            QTest::keyClick(&button, key);
        QCOMPARE(window.events, 2); // the arrows
        QCOMPARE(spy.count(), 4);
    }

    void mayBeDeletedByTheirClick()
    {
        Window window;
        window.push->cSetControlClickEvent(true);
        window.push->cSetIgnoreMouseEvent(true);
        for (QAbstractButton *button : window.buttons) {
            const QPointer<QAbstractButton> guard(button);
            connect(button, &QAbstractButton::clicked, button, [button] { delete button; });
            click(button);
            QVERIFY(guard.isNull());
        }
    }
};

ZANTHIC_TEST_MAIN(ButtonsTest)
#include "tst_buttons.moc"
