#include "composite/CustomDrawSlider_p.h"
#include "render/SliderLayout_p.h"
#include "style/StyleHost.h"
#include "support/Probe.h"

#include <Zanthic/Zanthic.h>

namespace {

std::unique_ptr<CustomDrawSlider> made(const QString &kind)
{
    if (kind == "Dot"_s)
        return std::make_unique<CustomDotSlider>();
    if (kind == "TwoHandle"_s)
        return std::make_unique<CustomTwoHandleSlider>();
    if (kind == "Process"_s)
        return std::make_unique<CustomProcessSlider>();
    return std::make_unique<CustomDrawSlider>();
}

CustomDrawSliderPrivate *of(const CustomDrawSlider &slider)
{
    return CustomDrawSliderPrivate::get(&slider);
}

QString text(const QRect &rect)
{
    return rect.isNull()
        ? "-"_s
        : QStringLiteral("%1,%2,%3,%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

QMap<QString, QString> described(const SliderLayout::Result &place)
{
    QMap<QString, QString> parts;
    parts["groove"_s] = QStringLiteral("%1,%2").arg(place.grooveLeft).arg(place.grooveRight);
    parts["value"_s] = text(place.valueSection);
    parts["left"_s] = text(place.leftSection);
    parts["right"_s] = text(place.rightSection);
    parts["handle"_s] = text(place.handle);
    parts["handle2"_s] = text(place.secondHandle);
    parts["marker"_s] = text(place.marker);
    parts["tip"_s] = QStringLiteral("%1@%2").arg(text(place.tip.rect)).arg(place.tip.pointer);
    parts["tip2"_s] = QStringLiteral("%1@%2").arg(text(place.secondTip.rect)).arg(place.secondTip.pointer);
    parts["dots"_s] = QString::number(place.dots.count);
    parts["dot0"_s] = text(place.dots.outline(0));
    parts["fill0"_s] = text(place.dots.fill(0));
    parts["dot4"_s] = text(place.dots.outline(4));
    for (int i = 0; i < place.labels.size(); ++i)
        parts[QStringLiteral("label%1").arg(i)]
            = QStringLiteral("%1@%2").arg(text(place.labels[i].rect)).arg(place.labels[i].flags);
    return parts;
}

QMap<QString, QString> words(const QString &text)
{
    QMap<QString, QString> result;
    for (const QString &word : text.simplified().split(' '))
        result[word.section('=', 0, 0)] = word.section('=', 1);
    return result;
}

SliderLayout::Input inputOf(const QString &kind, const QString &rect, const QString &values)
{
    const QMap<QString, QString> given = words(values);
    const auto size = [&given](const QString &key, const QString &other) {
        const QString value = given.value(key, other);
        return QSize(value.section('x', 0, 0).toInt(), value.section('x', 1).toInt());
    };
    SliderLayout::Input input;
    input.type = of(*made(kind))->option.sliderType;
    input.rect = StyleTest::rectIn(rect);
    input.thickness = given.value("t"_s, "4"_s).toInt();
    input.handle = size("h"_s, "16x16"_s);
    input.secondHandle = size("h2"_s, "0x0"_s);
    input.handlePos = given.value("pos"_s).toDouble();
    input.secondHandlePos = given.value("pos2"_s).toDouble();
    input.tips = given.contains("tips"_s);
    input.tipSampleHeight = given.value("tips"_s).toInt();
    input.tipText = size("tip"_s, "0x0"_s);
    input.secondTipText = size("tip2"_s, "0x0"_s);
    input.isSecondBelowFirst = given.contains("below"_s);
    input.dotCount = given.value("dots"_s).toInt();
    if (given.contains("beside"_s))
        input.labels = SliderLayout::LabelsBeside;
    else if (given.contains("below-labels"_s))
        input.labels = SliderLayout::LabelsBelow;
    input.labelCount = given.value("beside"_s).toInt() + given.value("below-labels"_s).toInt();
    input.labelSample = size("sample"_s, "0x0"_s);
    return input;
}

/// A slider of 204 x 60 px, whose track goes from 2 to 202, with handles of 16 x 16 px, and what it has told.
struct Stage
{
    explicit Stage(const QString &kind) : slider(made(kind))
    {
        slider->resize(204, 60);
        QObject::connect(slider.get(), &CustomDrawSlider::valueChanged, slider.get(),
            [this](qlonglong value) { told += QString::number(value); });
        QObject::connect(slider.get(), &CustomDrawSlider::sliderRelease, slider.get(), [this] { told += "release"_s; });
        paint();
    }

    QImage paint() { return picture = Probe::grab(slider.get()); }
    CustomDrawSliderOption &option() { return of(*slider)->option; }
    void press(int x, int y = 30) { QTest::mousePress(slider.get(), Qt::LeftButton, {}, QPoint(x, y)); }
    void release(int x, int y = 30) { QTest::mouseRelease(slider.get(), Qt::LeftButton, {}, QPoint(x, y)); }
    void move(int x)
    {
        QMouseEvent event(QEvent::MouseMove, QPointF(x, 90), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(slider.get(), &event);
    }
    QString said()
    {
        const QString all = told.join(' ');
        told.clear();
        return all;
    }

    std::unique_ptr<CustomDrawSlider> slider;
    QStringList told;
    QImage picture;
};

} // namespace

class SlidersTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void layouts_data() { addRowsOf("composite/slider-layouts.txt"_s); }
    void layouts()
    {
        QFETCH(QStringList, fields);
        const QMap<QString, QString> actual = described(SliderLayout::layOut(inputOf(fields[0], fields[1], fields[2])));
        const QMap<QString, QString> expected = words(fields[3]);
        for (auto it = expected.cbegin(); it != expected.cend(); ++it)
            QCOMPARE(QString(it.key() + ' ' + actual.value(it.key())), QString(it.key() + ' ' + it.value()));
    }

    void bubble()
    {
        const SliderLayout::Tip tip{ QRect(10, 5, 32, 18), 50 };
        QCOMPARE(tip.outline(),
            (QVector<QPoint>{
                { 10, 5 }, { 10, 19 }, { 21, 19 }, { 50, 23 }, { 29, 19 }, { 42, 19 }, { 42, 5 }, { 10, 5 } }));
        QCOMPARE(tip.textRect(), QRect(10, 5, 32, 14));
    }

    void values_data() { addRowsOf("composite/slider-values.txt"_s); }
    void values()
    {
        QFETCH(QStringList, fields);
        CustomDrawSlider slider;
        const auto numbers = [](const QString &text) {
            QList<qint64> result;
            for (const QString &word : text.split(' ', Qt::SkipEmptyParts))
                result += word.toLongLong();
            return result;
        };
        const QList<qint64> range = numbers(fields[0]);
        slider.cSetRange(range[0], range[1]);
        slider.cSetEnableMultiStage(!fields[1].isEmpty(), numbers(fields[1]));
        slider.cSetSignleStep(fields[2].toLongLong());
        if (fields[3] != "-"_s) {
            const double place = of(slider)->value2HandlePos(fields[3].section(' ', 0, 0).toLongLong());
            QCOMPARE(QString::number(place), fields[3].section(' ', 1));
        }
        const qint64 value = of(slider)->handlePos2Value(fields[4].section(' ', 0, 0).toDouble());
        QCOMPARE(QString::number(value), fields[4].section(' ', 1));
    }

    void stages()
    {
        CustomDrawSlider slider;
        const QList<qint64> none{ 0 };
        slider.cSetRange(10, 50010);
        QCOMPARE(of(slider)->stages, none);
        slider.cSetRange(INT64_MIN, INT64_MAX);
        QCOMPARE(of(slider)->stages, (QList<qint64>{ 0, 5000, 50000 }));
        slider.cSetRange(0, 10);
        QCOMPARE(of(slider)->stages.size(), 3); // they stay
        slider.cSetEnableMultiStage(false, { 1, 2 });
        QCOMPARE(of(slider)->stages, none);
        QList<qint64> many;
        for (int i = 0; i < 4000; ++i)
            many += i;
        slider.cSetRange(0, 4000);
        slider.cSetEnableMultiStage(true, many);
        QCOMPARE(of(slider)->handlePos2Value(0.5), qint64(2000));
    }

    void aThousandPositions()
    {
        addStyle("CustomDrawSlider", "HandleImage=@red16x16"_s);
        Stage stage("Draw"_s);
        stage.slider->resize(3004, 60);
        stage.slider->cSetRange(0, 1000000);
        stage.slider->cSetEnableMultiStage(false);
        stage.paint();
        stage.press(2);
        for (int x = 2; x < 3010; ++x)
            stage.move(x);
        stage.told.removeDuplicates();
        QCOMPARE(stage.told.size(), 1000);
        QCOMPARE(stage.told.last(), "1000000"_s);
    }

    void dragAndClick()
    {
        addStyle("CustomDrawSlider", "SliderThickness=4 HandleImage=@red16x16"_s);
        CustomDrawSlider unpainted;
        unpainted.resize(204, 60);
        QTest::mousePress(&unpainted, Qt::LeftButton, {}, QPoint(4, 30));
        QVERIFY(!of(unpainted)->option.handlePressed);

        Stage stage("Draw"_s);
        stage.press(5);
        QCOMPARE(stage.option().activeHandle, -1);
        stage.move(102);
        stage.move(102);
        stage.slider->cSetValue(7); // the handle stays under the mouse
        stage.paint();
        QCOMPARE(stage.option().handlePos, 0.5);
        stage.release(-500);
        QCOMPARE(stage.said(), "50 release 0"_s);
        QCOMPARE(stage.option().handlePos, 0.0);
        stage.press(152);
        QCOMPARE(stage.said(), QString());
        stage.release(152); // a click on the track
        QCOMPARE(stage.said(), "release 75"_s);
        stage.release(152);
        QCOMPARE(stage.said(), "release"_s);
        stage.slider->cSetShowToolTip(true);
        stage.paint();
        stage.press(stage.option().handleRect.center().x(), stage.option().handleRect.top()); // in its bubble
        QVERIFY(stage.option().handlePressed);
    }

    void twoHandles()
    {
        addStyle("CustomDrawSlider", "SliderThickness=4 HandleImage=@red16x16"_s);
        Stage stage("TwoHandle"_s);
        auto &slider = static_cast<CustomTwoHandleSlider &>(*stage.slider);
        stage.release(100); // a click on the track does nothing
        QCOMPARE(stage.said(), QString());
        stage.press(198);
        QCOMPARE(stage.option().activeHandle, 1);
        stage.move(102);
        stage.release(102);
        QCOMPARE(stage.said(), "50 release"_s);
        stage.paint();
        stage.press(4);
        stage.move(152); // past the other one
        const double place = stage.option().secondHandlePos;
        stage.option().secondHandlePressed = true;
        slider.cInitValue(stage.option().value, 90);
        stage.paint();
        QCOMPARE(stage.option().secondHandlePos, place); // under the mouse
        stage.option().secondHandlePressed = false;
        slider.cInitValue(stage.option().value, 50);
        stage.release(102); // onto it
        QCOMPARE(stage.said(), "75 release 50"_s);
        stage.paint();
        stage.press(102);
        QVERIFY(stage.option().handlePressed && !stage.option().secondHandlePressed);
        QCOMPARE(stage.option().activeHandle, 0);

        slider.cInitValue(60, 20);
        QVERIFY(slider.cLargeValue() == 60 && slider.cLittleValue() == 20);
        slider.cSetLittleValue(30);
        slider.cSetLargeValue(70);
        QVERIFY(stage.option().value == 70 && stage.option().secondValue == 30);
        slider.cInitValue(5, 5); // of equal values it is the first one's
        slider.cSetLargeValue(8);
        QVERIFY(stage.option().value == 8 && stage.option().secondValue == 5);
        slider.cInitValue(5, 5);
        slider.cSetLittleValue(2);
        QVERIFY(stage.option().value == 2 && stage.option().secondValue == 5);
        CustomProcessSlider process;
        process.cInitValue(40, 7);
        QVERIFY(process.cDotValue() == 40 && process.cHandleValue() == 7 && process.cValue() == 7);
        slider.cSetSignleStep(3);
        slider.cDecreaseCurrentHandle();
        QCOMPARE(stage.option().value, qint64(0));
        slider.cSetRange(INT64_MIN, INT64_MAX);
        slider.cInitValue(0, INT64_MAX - 1);
        stage.option().activeHandle = 1;
        slider.cIncreaseCurrentHandle();
        QCOMPARE(stage.option().secondValue, INT64_MAX);
        QCOMPARE(stage.said(), QString());
    }

    void dragWithoutARelease()
    {
        addStyle("CustomDrawSlider", "SliderThickness=4 HandleImage=@red16x16"_s);
        Stage stage("TwoHandle"_s);
        QWidget &slider = *stage.slider;
        slider.show();
        const std::function<void()> ends[] = { [&] { slider.setEnabled(false); }, [&] { slider.hide(); },
            [&] {
                QDialog dialog(&slider);
                dialog.setModal(true);
                dialog.show();
                QCoreApplication::processEvents();
            } };
        for (const auto &end : ends) {
            slider.setEnabled(true);
            slider.show();
            stage.option().handlePressed = stage.option().secondHandlePressed = true;
            end();
            QVERIFY(!stage.option().handlePressed && !stage.option().secondHandlePressed);
        }
    }

    void handlersMayDoAnything()
    {
        addStyle("CustomDrawSlider", "SliderThickness=4 HandleImage=@red16x16"_s);
        for (const auto &kind : { "Draw"_s, "TwoHandle"_s, "Process"_s }) {
            Stage stage(kind);
            CustomDrawSlider *slider = stage.slider.get();
            connect(slider, &CustomDrawSlider::valueChanged, slider, [slider](qlonglong value) {
                slider->cSetRange(0, value < 60 ? 60 : 0);
                slider->cSetValue(value + 1);
                slider->grab();
            });
            stage.press(4);
            for (int x = 10; x < 200; x += 10)
                stage.move(x);
            connect(slider, &CustomDrawSlider::sliderRelease, slider, [&stage] { stage.slider.reset(); });
            stage.release(30);
            QVERIFY(!stage.slider);
        }
    }

    void paints_data() { addRowsOf("composite/slider-paints.txt"_s); }
    void paints()
    {
        QFETCH(QStringList, fields);
        addStyle("CustomDrawSlider",
            "ObjectParameter=2 BackgroundColor=#ffffff BackgroundColor:Hover=#010203 SubPageColor=#00ff00 "
            "AddPageColor=#000080 SliderThickness=4 DotCircleColor=#ff00ff HandleImage=@red16x16 "
            "HandleImage:Pressed=@blue16x16 HandleImage:Disabled=@gray16x16 ToolTipBackgroundColor=#ffff00 "
            "ToolTipBackgroundColor:Pressed=#00ffff"_s);
        Stage stage(fields[0]);
        stage.slider->cSetShowToolTip(fields[1].contains("tip"_s));
        stage.slider->cSetReverse(fields[1].contains("reverse"_s));
        stage.slider->setDisabled(fields[1].contains("disabled"_s));
        const QVector<double> values = numbersIn(fields[2]);
        stage.option().value = qint64(values[0]);
        stage.option().secondValue = qint64(values[1]);
        stage.option().activeHandle = int(values[2]);
        stage.option().handlePressed = fields[1].contains("pressed"_s);
        stage.option().showDot = !fields[1].contains("hidden"_s);
        stage.option().showTextTip = false;
        stage.option().handlePos = values[0] / 100;
        stage.paint();
        for (const QString &probe : fields[3].split(';')) {
            const QVector<double> at = numbersIn(probe.section(' ', 0, -2));
            QVERIFY2(Probe::colorAt(stage.picture, int(at[0]), int(at[1])) == colorName(QColor(probe.section(' ', -1))),
                qPrintable(probe + " is "_s + Probe::colorAt(stage.picture, int(at[0]), int(at[1]))));
        }
        QCOMPARE(stage.slider->cAttributeValue("BackgroundColor"_s), "#ffffff"_s);
        QCOMPARE(stage.slider->cAttributeValue("BackgroundColor"_s, Custom::Hover), "#010203"_s);
    }

    void dotLabelsFollowTheLanguage()
    {
        struct : QTranslator
        {
            QString translate(const char *context, const char *source, const char *, int) const override
            {
                return qstrcmp(context, "CustomDrawSlider") == 0 ? "<"_s + source : QString();
            }
            bool isEmpty() const override { return false; }
        } translator;
        CustomDotSlider slider;
        slider.cSetShowTextTip(true, { "mine"_s }, CustomDrawSlider::TextBelow);
        qApp->installTranslator(&translator);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(of(slider)->option.textTips, QStringList({ "<Low"_s, "<Middle"_s, "<High"_s }));
        qApp->removeTranslator(&translator);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(of(slider)->option.textTips, QStringList({ "Low"_s, "Middle"_s, "High"_s }));
        // Only a slider's own option is painted with.
        QStyleOption foreign;
        QPixmap pixmap(10, 10);
        QPainter painter(&pixmap);
        slider.cDrawWidget(Custom::WidgetDotSlider, &painter, QRect(0, 0, 10, 10), &foreign);
    }
};

ZANTHIC_TEST_MAIN(SlidersTest)
#include "tst_sliders.moc"
