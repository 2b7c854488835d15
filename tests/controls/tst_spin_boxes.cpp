#include "style/CustomPrivate_p.h"
#include "style/StyleHost.h"
#include "support/Probe.h"

#include <Zanthic/HotKeyEvent.h>
#include <Zanthic/Zanthic.h>

namespace {

// The four controls in a shown window, and what they tell.
class Window : public QWidget
{
public:
    Window()
    {
        for (int i = 0; i < 4; ++i) {
            controls[i]->setParent(this);
            controls[i]->setGeometry(10, 10 + 40 * i, 120, 32);
        }
        record(spin, 0);
        record(spinDouble, 1);
        record(spin64, 2);
        record(slider, 3);
        spin64->setRange(0, 99);
        show();
        activateWindow();
        QApplication::processEvents();
        setFocus();
        told.clear();
    }
    ~Window() override { hide(); } // the focus goes while there is somebody to tell
    QString tell(int i, const char *what) const
    {
        return QStringLiteral("%1 %2 %3,").arg(QLatin1String(what)).arg(i).arg(controls[i]->property("value").toInt());
    }

    CustomSpinBox *spin = new CustomSpinBox;
    CustomDoubleSpinBox *spinDouble = new CustomDoubleSpinBox;
    CustomSpinBox64 *spin64 = new CustomSpinBox64;
    CustomSlider *slider = new CustomSlider(Qt::Horizontal);
    const QList<QPointer<QWidget>> controls{ spin, spinDouble, spin64, slider };
    QString told;
    QString deadly; // what deletes the one that tells it
    int hotKeys = 0;
    int wheels = 0;

protected:
    void customEvent(QEvent *event) override { hotKeys += int(event->type()) == HotKeyEvent::EventType; }
    void wheelEvent(QWheelEvent *) override { ++wheels; }

private:
    template <typename Control>
    void record(Control *control, int i)
    {
        const auto add = [=](const char *what) {
            told += tell(i, what);
            if (deadly == QLatin1String(what))
                delete control;
        };
        connect(control, &Control::SigForceIn, this, [=] { add("in"); });
        connect(control, &Control::SigForceOut, this, [=] { add("out"); });
        connect(control, &Control::SigSaveParam, this, [=] { add("save"); });
    }
};

void click(QWidget *control, QStyle::SubControl arrow = QStyle::SC_SpinBoxUp)
{
    QStyleOptionSpinBox option;
    option.initFrom(control);
    option.subControls = QStyle::SC_All;
    QRect place = control->rect();
    if (!qobject_cast<QSlider *>(control))
        place = control->style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, control);
    QTest::mouseClick(control, Qt::LeftButton, {}, place.center());
}

} // namespace

class SpinBoxesTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void tellOfFocusAndReleases()
    {
        Window window;
        Custom::setMainDialog(&window);
        Custom::registerHotKey(1, Qt::NoModifier, Qt::Key_7);
        for (int i = 0; i < 4; ++i) {
            QWidget *control = window.controls[i];
            const int next = (i + 1) % 4;
            window.setFocus();
            window.told.clear();
            control->setFocus();
            QString expected = window.tell(i, "in") + window.tell(i, "out") + window.tell(next, "in");
            window.controls[next]->setFocus();
            QCOMPARE(window.told, expected);
            control->setFocus();
            window.told.clear();
            click(control); // the value changes with the press, and it is told of the release
            QCOMPARE(window.told, window.tell(i, "save"));
            QVERIFY(i == 3 || window.told.endsWith("1,"_s));
            window.told.clear();
            QTest::keyClicks(control, "7"_s);
            QTest::keyClick(control, Qt::Key_Tab);
            QCOMPARE(window.told.left(3), "out"_s);
        }
        QApplication::processEvents();
        QCOMPARE(window.hotKeys, 1); // no more in a while
    }

    void mayBeDeletedByTheirSignals()
    {
        for (int i = 0; i < 8; ++i) {
            Window window;
            QWidget *control = window.controls[i % 4];
            control->setFocus();
            window.deadly = i < 4 ? "save"_s : "out"_s;
            if (i < 4)
                click(control);
            else
                window.setFocus();
            QVERIFY(!window.controls[i % 4]);
        }
    }

    void wheelGoesOn()
    {
        Window window;
        for (int i = 0; i < 3; ++i) {
            for (QWidget *target : { window.controls[i].data(), window.controls[i]->findChild<QWidget *>() }) {
                QWheelEvent event({ 5, 5 }, target->mapToGlobal({ 5, 5 }), {}, { 0, 120 }, {}, {}, {}, false);
                QSpontaneKeyEvent::setSpontaneous(&event);
                qApp->notify(target, &event);
            }
            QVERIFY(window.wheels == 2 * i + 2 && window.tell(i, "").endsWith("0,"_s) && window.told.isEmpty());
        }
    }

    void sheetIsSetWithEachSkin()
    {
        const QString image = picture(Qt::red);
        const QString file = scratchFile("* { border-image: url(" + image.toUtf8()
            + ") }"
              "*[LanguageString=\"Zh_cn\"] { color: #ff0000 } *[StyleSelector=\"DarkBlack\"] { selection-color: "
              "#0000ff }");
        const QString tag = QStringLiteral("<Custom%1>%2</Custom%1>");
        addDocument(QString("<Class Name='A'><QSS>" + tag.arg("SpinBox"_s, file) + tag.arg("DoubleSpinBox"_s, file)
            + tag.arg("Slider"_s, file) + "</QSS></Class>")
                        .toUtf8());
        Custom::setGlobalFontFamily(Custom::Zh_cn, "A"_s);
        const Window window;
        for (QWidget *control : window.controls.mid(0, 3))
            QCOMPARE(Probe::colorAt(Probe::grab(control), 2, 16), "#ffff0000"_s);
        // The sheet stays the same, the picture behind it doesn't.
        QVERIFY(QFile::remove(image) && QFile::rename(picture(Qt::blue), image));
        Custom::changeSkin();
        Custom::setLanguage(Custom::Zh_cn);
        CustomPrivate::setIsFontFamilyChange(true);
        for (QWidget *control : window.controls.mid(0, 3)) {
            QCOMPARE(Probe::colorAt(Probe::grab(control), 2, 16), "#ff0000ff"_s);
            QVERIFY(control->property("StyleSelector") == "Default"_s);
            control->setProperty("StyleSelector", "DarkBlack"_s);
            QEvent event(QEvent::LanguageChange);
            QApplication::sendEvent(control, &event);
            QCOMPARE(control->palette().color(QPalette::Text), QColor(Qt::red));
            QCOMPARE(control->palette().color(QPalette::HighlightedText), QColor(Qt::blue));
        }
        overwrite(file, "QSlider {}");
        Custom::changeSkin();
        for (QWidget *control : window.controls)
            QCOMPARE(control->styleSheet() == "QSlider {}"_s, control != window.slider);
    }

    void numbersAreTakenAndShown_data()
    {
        addRowsOf("controls/spin_values.txt"_s, { "done", "state", "text", "told", "open" });
    }
    void numbersAreTakenAndShown()
    {
        CustomSpinBox64 box;
        box.show();
        QSignalSpy spy(&box, &CustomSpinBox64::valueChanged);
        for (const QString &action : cell("done").split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const QString word = action.section(QLatin1Char('='), 0, 0);
            const QString text = action.section(QLatin1Char('='), 1);
            const qint64 number = text.section(QLatin1Char(','), 0, 0).toLongLong();
            if (word == "range"_s) {
                box.setRange(number, text.section(QLatin1Char(','), 1).toLongLong());
            } else if (word == "steps"_s) {
                box.stepBy(int(number));
            } else if (word == "type"_s) {
                box.interLineEdit()->clear();
                QTest::keyClicks(&box, text);
                QTest::keyClick(&box, Qt::Key_Return);
            } else {
                box.setProperty(word.toLatin1().constData(), number);
            }
        }
        QStringList told;
        for (const QVariantList &arguments : spy)
            told += arguments.first().toString();
        const qint64 value = box.value();
        QCOMPARE(QStringLiteral("%1,%2,%3").arg(box.minimum()).arg(box.maximum()).arg(value), cell("state"));
        QCOMPARE(box.interLineEdit()->text(), cell("text"));
        QCOMPARE(told.join(QLatin1Char(',')), cell("told"));
        int open = 0;
        for (int i = 0; i < 2; ++i) {
            click(&box, i == 0 ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown);
            open += box.value() != value ? i + 1 : 0;
            box.setValue(value);
        }
        QCOMPARE(open, cell("open").toInt());
        box.setReadOnly(true);
        click(&box);
        QCOMPARE(box.value(), value);
        const int room = box.fontMetrics().horizontalAdvance(QString::number(box.maximum()).left(18));
        QVERIFY(box.sizeHint().width() > room && box.minimumSizeHint().width() > room);
    }

    void textsAreValidated_data() { addRowsOf("controls/spin_validate.txt"_s, { "range", "text", "state" }); }
    void textsAreValidated()
    {
        CustomSpinBox64 box;
        box.setRange(cell("range").section(QLatin1Char(' '), 0, 0).toLongLong(),
            cell("range").section(QLatin1Char(' '), 1).toLongLong());
        QString text = cell("text");
        int position = 0;
        QCOMPARE(int(box.validate(text, position)), cell("state").toInt());
        text = "1,234"_s;
        box.setLocale(QLocale(QLocale::English));
        box.setGroupSeparatorShown(true);
        box.fixup(text);
        QCOMPARE(text, "1,234"_s);
        box.setGroupSeparatorShown(false);
        box.fixup(text);
        QCOMPARE(text, "1234"_s);
    }

    void doublesShowWholeNumbers_data() { addRowsOf("controls/spin_doubles.txt"_s, { "value", "text" }); }
    void doublesShowWholeNumbers()
    {
        CustomDoubleSpinBox box;
        QCOMPARE(box.textFromValue(cell("value").toDouble()), cell("text"));
        QCOMPARE(box.decimals(), 0);
        box.setDecimals(2);
        box.setValue(12.5);
        QCOMPARE(box.cInterLineEdit()->text(), "13"_s);
    }
};

ZANTHIC_TEST_MAIN(SpinBoxesTest)
#include "tst_spin_boxes.moc"
