#include "style/CustomPrivate_p.h"
#include "style/StyleHost.h"
#include "support/Probe.h"

#include <Zanthic/HotKeyEvent.h>
#include <Zanthic/Zanthic.h>

namespace {

const QByteArray kSelections = "*[LanguageString=\"Zh_cn\"] { color: #ff0000 }"
                               "*[StyleSelector=\"DarkBlack\"] { selection-color: #0000ff }";

// The four controls in a shown window, and what they tell.
class Window : public QWidget
{
public:
    Window()
    {
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

    CustomSpinBox64 *spin64 = make<CustomSpinBox64>(0);
    CustomSlider *slider = make<CustomSlider>(3);
    // Sheets, values and keys are common to the first three.
    const QList<QPointer<QWidget>> controls{ spin64, make<CustomSpinBox>(1), make<CustomDoubleSpinBox>(2), slider };
    QString told;
    QString deadly; // what deletes the one that tells it
    int hotKeys = 0;
    int wheels = 0;

protected:
    void customEvent(QEvent *event) override { hotKeys += int(event->type()) == HotKeyEvent::EventType; }
    void wheelEvent(QWheelEvent *) override { ++wheels; }

private:
    template <typename Control>
    Control *make(int i)
    {
        auto *control = new Control(this);
        control->setGeometry(10, 10 + 40 * i, 120, 32);
        const auto add = [=](const char *what) {
            told += tell(i, what);
            if (deadly == QLatin1String(what))
                delete control;
        };
        connect(control, &Control::SigForceIn, this, [=] { add("in"); });
        connect(control, &Control::SigForceOut, this, [=] { add("out"); });
        connect(control, &Control::SigSaveParam, this, [=] { add("save"); });
        return control;
    }
};

void click(QWidget *control, bool isUp = true)
{
    QTest::mouseClick(control, Qt::LeftButton, {}, { control->width() - 8, control->height() * (isUp ? 1 : 3) / 4 });
}

void type(CustomSpinBox64 *box, const QString &text)
{
    box->interLineEdit()->clear();
    QTest::keyClicks(box, text);
    QTest::keyClick(box, Qt::Key_Return);
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
            window.controls[i % 4]->setFocus();
            window.deadly = i < 4 ? "save"_s : "out"_s;
            i < 4 ? click(window.controls[i]) : window.setFocus();
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
        const QByteArray file = scratchFile("* { border-image: url(" + image.toUtf8() + ") } " + kSelections).toUtf8();
        addDocument("<Class Name='A'><QSS><CustomSpinBox>" + file + "</CustomSpinBox><CustomDoubleSpinBox>" + file
            + "</CustomDoubleSpinBox><CustomSlider>" + file + "</CustomSlider></QSS></Class>");
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
        overwrite(QString::fromUtf8(file), "QSlider {}");
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
        QStringList told;
        connect(&box, &CustomSpinBox64::valueChanged, [&told](qlonglong v) { told += QString::number(v); });
        for (const QString &action : cell("done").split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const QStringList words = action.split(QRegularExpression("[=,]"_s));
            const qint64 value = words[1].toLongLong();
            if (words[0] == "range"_s)
                box.setRange(value, words[2].toLongLong());
            else if (words[0] == "steps"_s)
                box.stepBy(int(value));
            else if (words[0] == "type"_s)
                type(&box, words[1]);
            else
                box.setProperty(words[0].toLatin1().constData(), value);
        }
        const qint64 value = box.value();
        QCOMPARE(QStringLiteral("%1,%2,%3").arg(box.minimum()).arg(box.maximum()).arg(value), cell("state"));
        QCOMPARE(box.interLineEdit()->text(), cell("text"));
        QCOMPARE(told.join(QLatin1Char(',')), cell("told"));
        int open = 0;
        for (int i = 0; i < 2; ++i) {
            click(&box, i == 0);
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
        const QStringList range = cell("range").split(QLatin1Char(' '));
        box.setRange(range[0].toLongLong(), range[1].toLongLong());
        QString text = cell("text");
        int position = 0;
        QCOMPARE(int(box.validate(text, position)), cell("state").toInt());
        box.setLocale(QLocale(QLocale::English));
        for (const bool isShown : { true, false }) {
            box.setGroupSeparatorShown(isShown);
            box.fixup(text = "1,234"_s);
            QCOMPARE(text, isShown ? "1,234"_s : "1234"_s);
        }
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
