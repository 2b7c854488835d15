#include "composite/CustomDotSelector_p.h"
#include "composite/CustomDynamicWidget_p.h"
#include "style/StyleHost.h"
#include "support/Probe.h"

#include <Zanthic/Zanthic.h>

namespace {

QList<CustomPushButton *> buttonsOf(const CustomSwitchButton &row)
{
    QList<CustomPushButton *> buttons = row.findChildren<CustomPushButton *>();
    std::sort(buttons.begin(), buttons.end(),
        [](auto *a, auto *b) { return a->cUserData().toInt() < b->cUserData().toInt(); });
    return buttons;
}

QStringList selectorsOf(const CustomSwitchButton &row)
{
    QStringList result;
    for (const CustomPushButton *button : buttonsOf(row))
        result += button->cStyleSelector();
    return result;
}

// The own radii of a button, in the order left top, right top, left bottom, right bottom.
QString radiiOf(const CustomPushButton &button)
{
    QString result;
    for (int corner = Custom::LeftTop; corner < Custom::LeftTop + 4; ++corner)
        result += QString::number(button.cBorderRadius(Custom::BorderCorner(corner)));
    return result;
}

QString text(const QList<QRect> &rects)
{
    QStringList result;
    for (const QRect &rect : rects)
        result += QStringLiteral("%1,%2,%3,%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
    return result.join(' ');
}

QPixmap strip(const QSize &size, const QList<QColor> &colors, bool vertical)
{
    QPixmap result(size);
    result.fill(Qt::black);
    QPainter painter(&result);
    for (int i = 0; i < colors.size(); ++i)
        painter.fillRect(vertical ? QRect(0, i * size.height() / colors.size(), 100, 100)
                                  : QRect(i * size.width() / colors.size(), 0, 100, 100),
            colors[i]);
    return result;
}

QString shown(CustomDynamicWidget *widget)
{
    const QImage image = Probe::grab(widget);
    return image.isNull() ? QString() : Probe::colorAt(image, image.width() - 1, image.height() - 1);
}

} // namespace

class ChoicesTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void switchButtons()
    {
        addDocument(
            "<Class Name='CustomSwitchButton'><Class Name='CustomPushButton'><Selector Name='Default'>"
            "<BorderRadius:AllCorner>4</BorderRadius:AllCorner><BorderRadius:LeftTop>5</BorderRadius:LeftTop>"
            "<BorderRadius:RightTop>6</BorderRadius:RightTop><BorderRadius:LeftBottom>7</BorderRadius:LeftBottom>"
            "<BorderRadius:RightBottom>8</BorderRadius:RightBottom></Selector></Class></Class>");
        CustomSwitchButton row;
        QCOMPARE(row.sizeHint(), QSize(0, 0));
        row.cSetCheckIndex(1);
        row.cSetButtonNames({ "A"_s, "B"_s, "C"_s });
        QCOMPARE(selectorsOf(row), QStringList({ "Default:UnChecked"_s, "Default:Checked"_s, "Default:UnChecked"_s }));
        QCOMPARE(radiiOf(*buttonsOf(row)[0]), "5070"_s);
        QCOMPARE(radiiOf(*buttonsOf(row)[1]), "0000"_s);
        QCOMPARE(radiiOf(*buttonsOf(row)[2]), "0608"_s);
        QCOMPARE(buttonsOf(row)[0]->cBorderRadius(Custom::AllCorner), 4);
        QCOMPARE(buttonsOf(row)[1]->cBorderRadius(Custom::AllCorner), 0);

        row.cRenameButtons({ "Long enough to be the longest"_s });
        QCOMPARE(buttonsOf(row)[1]->text(), "B"_s);
        const QSize longest = buttonsOf(row)[0]->sizeHint();
        QCOMPARE(row.sizeHint(), QSize(3 * longest.width(), longest.height()));

        row.cSetStyleSelector("Mine"_s);
        row.cSetCheckIndex(1); // no other one
        QCOMPARE(selectorsOf(row)[0], "Default:UnChecked"_s); // until the next choice
        row.cSetCheckIndex(9);
        QVERIFY(row.cCheckedIndex() == 9 && !selectorsOf(row).contains("Mine:Checked"_s));
        row.cSetButtonNames({ "A"_s });
        QCOMPARE(radiiOf(*buttonsOf(row)[0]), "5678"_s);
        row.cSetCheckIndex(0);
        QCOMPARE(selectorsOf(row), QStringList{ "Mine:Checked"_s });
    }

    void switchClicks()
    {
        CustomSwitchButton row;
        row.cSetButtonNames({ "A"_s, "B"_s });
        row.show();
        QList<int> told;
        connect(&row, &CustomSwitchButton::checkedChanged, &row, [&](int index) { told += index; });
        row.cSetCheckIndex(1);
        QTest::mouseClick(buttonsOf(row)[0], Qt::LeftButton);
        QTest::mouseClick(buttonsOf(row)[0], Qt::LeftButton);
        QTest::keyClick(buttonsOf(row)[1], Qt::Key_Space);
        QCOMPARE(told, QList<int>({ 0, 0, 1 }));
        // A click may replace the buttons.
        connect(&row, &CustomSwitchButton::checkedChanged, &row, [&] { row.cSetButtonNames({ "X"_s, "Y"_s, "Z"_s }); });
        QTest::mouseClick(buttonsOf(row)[1], Qt::LeftButton);
        QCOMPARE(buttonsOf(row).size(), 3);
        QTRY_VERIFY(buttonsOf(row)[2]->isVisible());
        auto *gone = new CustomSwitchButton;
        gone->cSetButtonNames({ "A"_s });
        connect(gone, &CustomSwitchButton::checkedChanged, gone, [gone] { delete gone; });
        QTest::mouseClick(buttonsOf(*gone)[0], Qt::LeftButton);
    }

    void dotPlaces_data() { addRowsOf("composite/dots.txt"_s); }
    void dotPlaces()
    {
        QFETCH(QStringList, fields);
        const QVector<double> n = numbersIn(fields[0]);
        const DotLayout::Input input{ int(n[0]), int(n[1]), int(n[2]), int(n[3]), int(n[4]) };
        const DotLayout::Result place = DotLayout::layOut(input, QSize(int(n[5]), int(n[6])));
        QCOMPARE(text(place.dots.mid(0, 5)), fields[1]);
        QCOMPARE(text(place.lines.mid(0, 5)), fields[2]);
        const QVector<double> hint = numbersIn(fields[3]);
        QCOMPARE(DotLayout::sizeHint(input), QSize(int(hint[0]), int(hint[1])));
    }

    void dots()
    {
        addStyle("CustomDotSelector",
            "LintColor=#ff0000 LineThickness=2 NormalDotColor=#0000ff SelectDotColor=#008000 NormalDotRadius=5 "
            "SelectDotRadius=8"_s);
        CustomDotSelector selector;
        selector.resize(96, 20);
        QTest::mouseClick(&selector, Qt::LeftButton, {}, QPoint(5, 10)); // never painted
        selector.cSetDotNumber(3);
        selector.cSetCurrentDot(1);
        const QImage image = Probe::grab(&selector); // dots at 2, 40 and 84, lines of 28 px between them
        QCOMPARE(Probe::colorAt(image, 7, 10), colorName(Qt::blue));
        QCOMPARE(Probe::colorAt(image, 20, 9), colorName(Qt::red));
        QCOMPARE(Probe::colorAt(image, 39, 10), colorName(QColor("#008000"_s))); // a ring of 2 px, over the line
        QCOMPARE(Probe::colorAt(image, 56, 10), colorName(Qt::red)); // and under the next
        QCOMPARE(Probe::colorAt(image, 48, 10), colorName(Qt::transparent));
        QTest::mouseClick(&selector, Qt::LeftButton, {}, QPoint(20, 10)); // between
        QCOMPARE(selector.cCurrentDot(), 1);
        QTest::mouseClick(&selector, Qt::LeftButton, {}, QPoint(88, 10));
        QCOMPARE(selector.cCurrentDot(), 2);

        selector.show();
        QVERIFY(QTest::qWaitForWindowExposed(&selector));
        selector.cSetDotColor("DB_COLOR_None"_s, "no colour"_s);
        selector.cSetDotRadius(-5, 2000000000);
        selector.cSetLineThickness(-1);
        selector.cSetDotNumber(2000000000);
        Probe::grab(&selector);
    }

    void animationFrames()
    {
        CustomDynamicWidget widget;
        widget.move(50, 50);
        widget.startClockwise(); // nothing to play yet
        const QList<QColor> colors{ Qt::red, Qt::green, Qt::blue };
        widget.setAnimation(strip(QSize(32, 8), colors, false), 3, 0);
        QCOMPARE(widget.geometry(), QRect(0, 0, 10, 8)); // what is left of 32 / 3 is lost
        QCOMPARE(shown(&widget), colorName(Qt::red));
        int finished = 0;
        QString last;
        connect(&widget, &CustomDynamicWidget::clockwiseFinished, &widget, [&] {
            ++finished;
            last = shown(&widget);
        });
        widget.startClockwise();
        QTRY_COMPARE(finished, 1);
        QCOMPARE(last, colorName(Qt::blue));
        widget.setPixmapType(PixmapVertical);
        widget.setAnimation(strip(QSize(8, 31), colors, true), 3, 100000); // the interval stays
        QCOMPARE(widget.geometry(), QRect(0, 0, 8, 10));
        widget.setLoop(true);
        QStringList seen;
        widget.startClockwise();
        for (int i = 0; i < 5; ++i) {
            QVERIFY(QMetaObject::invokeMethod(&widget, "updateClockwise"));
            seen += shown(&widget);
        }
        widget.stop();
        QCOMPARE(seen,
            QStringList({ colorName(Qt::red), colorName(Qt::green), colorName(Qt::blue), colorName(Qt::red),
                colorName(Qt::green) }));
        widget.setLoop(false);
        widget.startClockwise(); // goes on with the third
        QTRY_COMPARE(finished, 2);
        QVERIFY(QMetaObject::invokeMethod(&widget, "updateClockwise"));
        QCOMPARE(shown(&widget), colorName(Qt::red)); // and then from the first
    }

    void animationWithoutFrames()
    {
        CustomDynamicWidget widget;
        widget.resize(7, 7);
        int finished = 0;
        connect(&widget, &CustomDynamicWidget::clockwiseFinished, &widget, [&] { ++finished; });
        widget.setPixmapType(PixmapList);
        for (const int count : { 0, -3, 4 }) {
            widget.setAnimation(QPixmap(), short(count), -5);
            widget.startClockwise();
            QTRY_VERIFY(finished > 0);
            QVERIFY(QMetaObject::invokeMethod(&widget, "updateClockwise"));
        }
        QCOMPARE(widget.size(), QSize(7, 7));
        widget.setPixmapType(PixmapVertical);
        widget.setAnimation(strip(QSize(4, 4), { Qt::red }, false), 9, 0); // less than a pixel for each
        QCOMPARE(widget.size(), QSize(7, 7));
        widget.setPixmapType(PixmapList);
        widget.setPixmapList({ strip(QSize(4, 4), { Qt::red }, false), strip(QSize(5, 6), { Qt::blue }, false) });
        widget.setAnimation(QPixmap(), 9, 0); // more than there are
        QCOMPARE(widget.size(), QSize(4, 4));
        finished = 0;
        widget.startClockwise();
        QTRY_COMPARE(finished, 1);
        QCOMPARE(shown(&widget), colorName(Qt::blue));
    }
};

ZANTHIC_TEST_MAIN(ChoicesTest)
#include "tst_choices.moc"
