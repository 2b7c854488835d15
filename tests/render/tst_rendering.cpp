#include "render/BorderGeometry_p.h"
#include "render/BoxPainter_p.h"
#include "render/BoxPictures_p.h"
#include "style/StyleHost.h"
#include "support/Probe.h"

#include <Zanthic/Zanthic.h>

using namespace Custom;

namespace {

constexpr QRect kRect(0, 0, 20, 12);

QImage ground(const QSize &size, QImage::Format format)
{
    QRandomGenerator random(7);
    QImage image(size, QImage::Format_ARGB32);
    random.fillRange(reinterpret_cast<quint32 *>(image.bits()), size.width() * size.height());
    return image.convertToFormat(format);
}

QColor randomColor(QRandomGenerator *random)
{
    QColor color = QColor::fromRgb(random->generate());
    const int alphas[] = { 255, 255, 128, 1, 254, 0, random->bounded(256) };
    color.setAlpha(alphas[random->bounded(7)]);
    return color;
}

// Paints a box of random numbers without pictures, then three times with them: the first time nothing is kept yet, at
// the second the picture is made. Gives the number of the paint that differs, or 0.
int differs(const QImage &background, quint32 seed, const std::function<void(QPainter *)> &prepare)
{
    QRandomGenerator random(seed);
    const int extent = seed % 4 == 0 ? 7 : 48; // every fourth box is so small that its corners overlap
    const QRect rect(
        random.bounded(-4, 9), random.bounded(-4, 9), random.bounded(1, extent), random.bounded(1, extent));
    const QColor fill = randomColor(&random);
    CustomObjectData::BorderParameter box;
    const quint32 same = random.generate();
    for (std::size_t i = 0; i < 4; ++i) {
        const int radius = random.bounded(-1, 14); // attributes know circular corners only
        box.borders[i] = same & 1 && i > 0 ? box.borders[0] : random.bounded(6);
        box.radii[i] = same & 2 && i > 0 ? box.radii[0] : QSize(radius, radius);
        box.colors[i] = same & 4 && i > 0 ? box.colors[0] : randomColor(&random);
    }
    QImage plain;
    for (int i = 0; i <= 3; ++i) {
        BoxPainter::setPicturesEnabled(i > 0);
        QImage image = background;
        QPainter painter(&image);
        prepare(&painter);
        BoxPainter::fillBox(&painter, rect, box, fill);
        BoxPainter::drawSolidBorder(&painter, rect, box);
        painter.end();
        if (i == 0)
            plain = image;
        else if (image != plain)
            return i;
    }
    return 0;
}

constexpr QRect kPlace(10, 5, 100, 40);

// Fusion, with a shift of (3, 5) for pressed buttons and underlines as told.
class ShiftingStyle : public QProxyStyle
{
public:
    ShiftingStyle() : QProxyStyle("Fusion"_s) { }

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *w) const override
    {
        const bool shift = metric == PM_ButtonShiftHorizontal || metric == PM_ButtonShiftVertical;
        return shift ? (metric == PM_ButtonShiftHorizontal ? 3 : 5) : QProxyStyle::pixelMetric(metric, option, w);
    }
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *w, QStyleHintReturn *data) const override
    {
        return hint == SH_UnderlineShortcut ? underline : QProxyStyle::styleHint(hint, option, w, data);
    }

    bool underline = false;
};

class Button : public CustomPushButton
{
public:
    bool cDrawContent(QPainter *painter, QStyleOption *option) override
    {
        const QColor color = option->palette.color(QPalette::ButtonText);
        return property("own").toString() == color.name() + QString::number(painter->font().pixelSize());
    }
};

std::unique_ptr<QAbstractButton> made(const QString &control)
{
    if (control == "CheckBox"_s)
        return std::make_unique<CustomCheckBox>();
    if (control == "RadioButton"_s)
        return std::make_unique<CustomRadioButton>();
    return std::make_unique<Button>();
}

QStyleOptionButton buttonOption(const QAbstractButton &button, const QString &state = "1"_s)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    option.state = QStyle::State(state.section(' ', 0, 0).toInt(nullptr, 16));
    option.direction = state.contains("rtl"_s) ? Qt::RightToLeft : Qt::LeftToRight;
    option.text = button.text();
    option.icon = button.icon();
    option.iconSize = button.iconSize();
    option.rect = kPlace;
    return option;
}

QImage drawn(QAbstractButton *button, int type, QStyleOption *option)
{
    return Probe::painted(QSize(120, 50), [&](QPainter *painter) {
        dynamic_cast<CustomObject *>(button)->cDrawWidget(CustomWidgetType(type), painter, kPlace, option);
    });
}

} // namespace

class RenderingTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void ellipsesOfPictures()
    {
        const QImage background = ground(QSize(64, 64), QImage::Format_ARGB32_Premultiplied);
        QRandomGenerator random(3);
        for (int i = 0; i < 2000; ++i) {
            const QRect rect(random.bounded(60), random.bounded(60), random.bounded(1, 20), random.bounded(1, 20));
            const QColor color = randomColor(&random);
            const int scale = random.bounded(1, 3);
            QImage images[] = { background, background };
            for (const bool pictures : { false, true }) {
                BoxPainter::setPicturesEnabled(pictures);
                QPainter painter(&images[pictures]);
                painter.scale(scale, scale);
                BoxPictures::Ellipse(&painter, rect.size(), color, BoxPictures::Ellipse::Kind(i % 2))
                    .draw(&painter, rect.topLeft());
            }
            QVERIFY2(images[0] == images[1], qPrintable(QString::number(i)));
        }
    }

    void layersAndPlaces_data() { addRowsOf("render/boxes.txt"_s); }
    void layersAndPlaces()
    {
        QFETCH(QStringList, fields);
        addStyle("CustomFrame", fields[0].replace("@nine"_s, QStringLiteral(ZANTHIC_TEST_DATA "/render/nine.xpm")));
        CustomFrame box;
        const auto status = enumerator<ItemStatus>(fields[1]);
        const QRect place = fields[2].isEmpty() ? kRect : rectIn(fields[2]);
        const QPen pen(Qt::yellow, 3);
        QString returned;
        QImage image;
        for (const bool on : { true, false }) {
            image = Probe::painted(kRect.size(), [&](QPainter *painter) {
                painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, on);
                painter->setPen(pen);
                const QPainter::RenderHints hints = painter->renderHints();
                returned = QString::number(box.cDrawBackground(painter, place, status, {})) + ' ';
                returned += QString::number(box.cDrawBorder(painter, place, status, {}));
                QVERIFY(painter->renderHints() == hints && painter->pen() == pen && !painter->hasClipping());
            });
        }
        QCOMPARE(returned, fields[3]);
        for (const QString &pixel : fields[4].split("; "_s)) {
            const QVector<double> at = numbersIn(pixel);
            const QString found = Probe::colorAt(image, int(at[0]), int(at[1]));
            QVERIFY2(found == QColor(pixel.section(' ', 1)).name(QColor::HexArgb), qPrintable(pixel + " is " + found));
        }
    }

    void borderParametersMayBeLeftOut()
    {
        CustomFrame box;
        box.cSetBorderWidth(3);
        box.cSetBorderWidth(7, Top);
        int widths[4];
        box.cGetBorderParameter(widths, nullptr, nullptr, kRect, Hover, {});
        QVERIFY(widths[Left] == 3 && widths[Right] == 3 && widths[Top] == 7 && widths[Bottom] == 3);
        box.cGetBorderParameter(nullptr, nullptr, nullptr, kRect, Normal, {});
        CustomObjectData::get(&box)->borderParameter(nullptr, nullptr, kRect, Normal, {});
    }

    void borderStrips_data() { addRowsOf("render/strips.txt"_s, { "name", "edge", "strip" }); }
    void borderStrips()
    {
        const QRect strip = CustomObjectData::createBorderRect(
            BorderEdge(int(numbersIn(cell("edge"))[0])), int(numbersIn(cell("edge"))[1]), { 10, 20, 100, 50 });
        QCOMPARE(strip, rectIn(cell("strip")));
    }

    void bordersOfEveryStyle_data() { addRowsOf("render/borders.txt"_s); }
    void bordersOfEveryStyle()
    {
        QFETCH(QStringList, fields);
        int widths[4];
        QSize radii[4];
        QBrush colors[4];
        for (int i = 0; i < 4; ++i) {
            widths[i] = int(numbersIn(fields[0])[i]);
            radii[i] = { int(numbersIn(fields[2])[2 * i]), int(numbersIn(fields[2])[2 * i + 1]) };
            const QString color = fields[1].section(' ', i, i);
            colors[i] = color == "-"_s ? QBrush() : QBrush(QColor(color));
        }
        const QImage image = Probe::painted({ 12 * 64, 40 }, [&](QPainter *painter) {
            painter->fillRect(0, 0, 12 * 64, 40, Qt::white);
            painter->setRenderHint(QPainter::Antialiasing);
            for (int style = 0; style < 12; ++style) {
                BorderStyle styles[] = { BorderSolid, BorderSolid, BorderSolid, BorderSolid };
                for (const double edge : numbersIn(fields[3]))
                    styles[int(edge)] = BorderStyle(style);
                painter->fillPath(cBorderClip({ 2, 2, 60, 36 }, widths, radii), Qt::lightGray);
                cDrawBorder(painter, { 2, 2, 60, 36 }, styles, widths, colors, radii);
                QVERIFY(painter->pen() == QPen() && painter->brush() == QBrush()); // left as they were
                painter->translate(64, 0);
            }
        });
        QString message;
        QVERIFY2(Probe::matchesPicture(image, "border-"_s + QTest::currentDataTag(), &message), qPrintable(message));
    }

    void colorRectanglesStayInsideTheRoundedOutline()
    {
        CustomFrame frame;
        frame.resize(kRect.size());
        frame.cSetBorderRadius(6);
        frame.cSetBorderWidth(4);
        frame.cSetParameter(ParamBorderWidth, false); // so that only the rectangles are painted
        frame.cSetColorRect(2, QRect(0, 0, 10, 12), Qt::blue);
        frame.cSetColorRect(1, kRect, Qt::green);
        frame.cSetColorRect(3, QRect(15, 0, 6, 12), Qt::red); // sticks out by one
        // The first letters of the colours at some places of a row; "-" for none.
        const auto row = [&](int y) {
            const QMap<QRgb, QChar> letters{ { 0, '-' }, { 0xffff0000, 'r' }, { 0xff00ff00, 'g' },
                { 0xff0000ff, 'b' } };
            const QImage image = Probe::grab(&frame);
            QString result;
            for (const int x : { 0, 4, 9, 10, 16 })
                result += letters.value(image.pixel(x, y), '?');
            return result;
        };
        QCOMPARE(row(6), "-----"_s);
        frame.cSetParameter(ParamColorRect, true);
        QCOMPARE(row(6) + row(0), "bbbgg-bbg-"_s); // from the outer edge on, and pixel-stepped: nothing in between
        // A later set of one key replaces rectangle and brush, and the order stays.
        frame.cSetColorRect(1, QRect(5, 0, 15, 12), Qt::red);
        QCOMPARE(row(6), "bbbrr"_s);
        frame.cSetBorderRadius(0);
        QCOMPARE(row(6), "-----"_s); // square corners have no outline
    }

    void picturesEqualPainting_data() { addRowsOf("render/painters.txt"_s); }
    void picturesEqualPainting()
    {
        QFETCH(QStringList, fields);
        const int scale = fields[1].toInt();
        QImage background = ground(QSize(64, 64) * scale, enumerator<QImage::Format>(fields[0]));
        background.setDevicePixelRatio(scale);
        const QVector<double> m = numbersIn(fields[2]);
        const auto prepare = [&](QPainter *painter) {
            painter->setTransform({ m[0], m[1], m[2], m[3], m[4], m[5] });
            if (!fields[3].isEmpty())
                painter->setClipRect(rectIn(fields[3]));
            painter->setOpacity(fields[4].toDouble());
            painter->setCompositionMode(QPainter::CompositionMode(fields[5].toInt()));
            painter->setRenderHints(QPainter::RenderHints(fields[6].toInt()));
        };
        for (quint32 seed = 0; seed < fields[7].toUInt(); ++seed) {
            const int paintNumber = differs(background, seed, prepare);
            QVERIFY2(paintNumber == 0, qPrintable(QStringLiteral("seed %1, paint %2").arg(seed).arg(paintNumber)));
        }
    }

    void maskFollowsTheRadii()
    {
        CustomPushButton button;
        button.resize(60, 30);
        button.cResizeEvent();
        QVERIFY(button.mask().isEmpty());
        button.cSetBorderRadius(20);
        button.cSetBorderRadius(6, Custom::RightTop);
        button.cSetBorderRadius(0, Custom::LeftBottom); // below 1: the common radius
        button.cSetBorderRadius(12, Custom::RightBottom);
        button.show();
        button.resize(90, 60);
        QTRY_COMPARE(button.mask().boundingRect(), button.rect());
        const QRegion mask = button.mask();
        QString message;
        const auto fill = [&](QPainter *painter) {
            painter->setClipRegion(mask);
            painter->fillRect(button.rect(), Qt::black);
        };
        QVERIFY2(Probe::matchesPicture(Probe::painted({ 90, 60 }, fill), "mask"_s, &message), qPrintable(message));
        // Without the flag an earlier mask stays; with all radii 0 it is the whole rectangle.
        button.cSetParameter(Custom::ParamBorderRadius, false);
        button.resize(40, 20);
        button.cResizeEvent();
        QCOMPARE(button.mask(), mask);
        button.cSetBorderRadius(0);
        button.cResizeEvent();
        QCOMPARE(button.mask(), QRegion(0, 0, 40, 20));
    }

    void contents_data() { addRowsOf("render/contents.txt"_s); }
    void contents()
    {
        QFETCH(QStringList, fields);
        addStyle("Custom" + fields[0].toLatin1(), fields[1]);
        ShiftingStyle style;
        style.underline = fields[4].contains("underline"_s);
        const auto button = made(fields[0]);
        button->setStyle(&style);
        button->setText(fields[3]);
        if (!fields[2].isEmpty())
            button->setIcon(QIcon(picture(QColor(fields[2]), { 16, 12 })));
        button->setProperty("own", fields[4].section("own "_s, 1));
        QStyleOptionButton option = buttonOption(*button, fields[4]);
        const QImage image = drawn(button.get(), enumerator<CustomWidgetType>("Widget" + fields[0]), &option);
        QString name = QTest::currentDataTag();
        QString message;
        name = "content-" + name.remove(',').replace(' ', '-');
        QVERIFY2(Probe::matchesPicture(image, name, &message), qPrintable(message));
    }

    void otherOptionsPaintNothingAndOtherTypesTheBox()
    {
        CustomPushButton button("Text"_s);
        button.cSetBackgroundColor("#0000ff"_s);
        button.cSetBackgroundColor("#ff0000"_s, Custom::Disabled);
        QStyleOptionButton old = buttonOption(button, QString());
        old.version = 0;
        QStyleOption plain(1, QStyleOption::SO_Default);
        const QImage nothing = Probe::painted(QSize(120, 50), [](QPainter *) {});
        const QImage box
            = Probe::painted(QSize(120, 50), [](QPainter *painter) { painter->fillRect(kPlace, Qt::blue); });
        for (QStyleOption *option :
            { static_cast<QStyleOption *>(nullptr), static_cast<QStyleOption *>(&old), &plain }) {
            for (const int type : { WidgetPushButton, WidgetCheckBox, WidgetRadioButton })
                QVERIFY(drawn(&button, type, option) == nothing);
            for (const int type : { int(WidgetGeneric), 42, -1 })
                QVERIFY(drawn(&button, type, option) == box);
        }
    }

    void sizes_data() { addRowsOf("render/sizes.txt"_s); }
    void sizes()
    {
        QFETCH(QStringList, fields);
        addStyle("Custom" + fields[0].toLatin1(), fields[1]);
        const auto button = made(fields[0]);
        const QString label = fields[3].replace("\\n"_s, "\n"_s);
        button->setText(label);
        if (!fields[2].isEmpty()) {
            button->setIcon(QIcon(picture(Qt::red)));
            button->setIconSize(rectIn("0 0 "_s + fields[2]).size());
        }
        QStyleOptionButton option = buttonOption(*button);
        const QFontMetrics metrics(dynamic_cast<CustomObject *>(button.get())->cFont(Custom::Normal));
        QSize size = metrics.size(Qt::TextShowMnemonic, label.isEmpty() ? "XXXX"_s : label);
        if (fields[0] != "PushButton"_s) // as a disabled text, which some styles etch by a pixel
            size = button->style()->itemTextRect(metrics, QRect(), Qt::TextShowMnemonic, false, label).size();
        const QVector<double> times = numbersIn(fields[4]);
        size = times.isEmpty() ? button->style()->sizeFromContents(QStyle::CT_CheckBox, &option, size, button.get())
                               : QSizeF(size.width() * times[0], size.height() * times[1]).toSize();
        QCOMPARE(button->sizeHint(), size + rectIn("0 0 "_s + fields[5]).size());
    }

    void pushButtonSizeIsKeptForAnEmptyText()
    {
        CustomPushButton button;
        QStyleOptionButton old = buttonOption(button);
        old.version = 0;
        QCOMPARE(button.cSizeHint(nullptr), QSize(-1, -1));
        QCOMPARE(button.cSizeHint(&old), QSize(-1, -1));
        const QSize first = button.sizeHint();
        QCOMPARE(button.cSizeHint(&old), first);
        button.setIcon(QIcon(picture(Qt::red)));
        button.setIconSize({ 64, 64 });
        QCOMPARE(button.sizeHint(), first);
        button.setText("Text"_s); // and any other one is measured each time
        const QSize plain = button.sizeHint();
        QCOMPARE(plain.height(), 64 + 6);
        QMenu menu;
        button.setMenu(&menu);
        const int indicator = button.style()->pixelMetric(QStyle::PM_MenuButtonIndicator, nullptr, &button);
        QCOMPARE(button.sizeHint(), plain + QSize(indicator, 0));
        // An image that can't be loaded leaves the size of a null picture behind.
        button.cSetBackgroundImage("/none.png"_s);
        QCOMPARE(button.cSizeHint(&old), QSize(0, 0));
    }

    void indicatorSizeIsKeptForItsText()
    {
        addStyle("CustomCheckBox", "BackgroundImage:unchecked=@red9x9 BackgroundImage:checked=@red90x90"_s);
        CustomCheckBox box("Text"_s);
        QStyleOptionButton old = buttonOption(box);
        old.version = 0;
        QCOMPARE(box.cSizeHint(&old), QSize(-1, -1));
        const QSize first = box.sizeHint();
        QFont font = box.font();
        font.setPixelSize(60);
        box.setFont(font);
        box.setChecked(true); // whatever the size of the other image
        QCOMPARE(box.sizeHint(), first);
        QCOMPARE(box.cSizeHint(&old), first);
        box.setText("Other"_s);
        QCOMPARE(box.sizeHint().height(), 90);
    }
};

ZANTHIC_TEST_MAIN(RenderingTest)
#include "tst_rendering.moc"
