#include "style/CustomPrivate_p.h"
#include "support/Probe.h"
#include "support/StyleTest.h"

#include <Zanthic/CustomGroupBox.h>
#include <Zanthic/CustomLabel.h>
#include <Zanthic/CustomLineWidget.h>
#include <Zanthic/CustomTextEdit.h>

namespace {

QString operator""_s(const char *text, size_t size)
{
    return QString::fromUtf8(text, int(size));
}

QString nameOf(const QWidget &widget, QPalette::ColorRole role)
{
    return widget.palette().color(role).name();
}

// One letter a pixel along a line of pixels: full, half, or nothing.
QString pixels(const QImage &image, const QPoint &step)
{
    QString result;
    for (QPoint point; image.rect().contains(point); point += step) {
        const int alpha = qAlpha(image.pixel(point));
        result += QLatin1Char(alpha > 250 ? '#' : alpha < 5 ? '.' : '+');
    }
    return result;
}

} // namespace

class LabelsTest : public StyleTest
{
    Q_OBJECT

private:
    void addSheet(const QByteArray &tag, const QByteArray &text)
    {
        addDocument("<Class Name='Q'><QSS><" + tag + ">" + scratchFile(text).toUtf8() + "</" + tag + "></QSS></Class>");
    }

private Q_SLOTS:
    void looksAsTheThemeSaysFromTheStart();
    void linesFillTheWidgetAcross_data() { addRowsOf("controls/lines.txt"_s); }
    void linesFillTheWidgetAcross()
    {
        QFETCH(QStringList, fields);
        addStyle("CustomLineWidget", "BackgroundColor=#ff0000 "_s + fields[1]);
        CustomLineWidget line;
        line.resize(int(numbersIn(fields[0])[0]), int(numbersIn(fields[0])[1]));
        const QImage image = Probe::grab(&line);
        QCOMPARE(pixels(image, QPoint(1, 0)), fields[2]);
        QCOMPARE(pixels(image, QPoint(0, 1)), fields[3]);
        line.cSetLineType(CustomLineWidget::HorizontalLine);
        line.cSetIsDottedLine(true);
        QCOMPARE(line.cAttributeValue("LineType"_s) + line.cAttributeValue("IsDottedLine"_s), "11"_s);
        line.resize(6, 0);
        QPaintEvent event(QRect(0, 0, 6, 1)); // which Qt doesn't send
        QApplication::sendEvent(&line, &event);
    }

    void labelHasTwoLooksThatFollowTheSkin()
    {
        const QString path = picture(Qt::red);
        addStyle("CustomLabel", "FontColor=#0000ff BackgroundColor=#00ff00 FontColor:Hover=#ff0000"_s);
        addStyle("CustomLabel", "FontColor:Hover=#Empty# BackgroundImage="_s + path, "GrayWhite");
        QWidget window;
        CustomLabel label("text"_s, &window);
        window.setGeometry(40, 40, 100, 60);
        label.cSetStyleSelector(Custom::Default);
        QCOMPARE(nameOf(label, QPalette::WindowText) + nameOf(label, QPalette::Window), "#0000ff#00ff00"_s);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCursor::setPos(label.mapToGlobal(QPoint(5, 5)));
        QTRY_COMPARE(nameOf(label, QPalette::WindowText), "#ff0000"_s);
        QCursor::setPos(0, 0);
        QTRY_COMPARE(nameOf(label, QPalette::WindowText), "#0000ff"_s);
        label.cSetStyleSelector("GrayWhite"_s);
        QEvent enter(QEvent::Enter);
        QApplication::sendEvent(&label, &enter);
        QCOMPARE(nameOf(label, QPalette::WindowText), "#0000ff"_s); // stays where there is no value
        const auto shown = [&label] { return label.pixmap(Qt::ReturnByValue).toImage().pixelColor(8, 8); };
        QCOMPARE(shown(), QColor(Qt::red));
        QVERIFY(QFile::remove(path) && QFile::rename(picture(Qt::blue), path));
        Custom::changeSkin();
        QCOMPARE(shown(), QColor(Qt::blue));
    }

    void labelShowsWhatIsSet_data() { addRowsOf("controls/label-values.txt"_s); }
    void labelShowsWhatIsSet()
    {
        QFETCH(QStringList, fields);
        CustomLabel label;
        label.setPalette(QPalette(Qt::white, Qt::white, Qt::white, Qt::white, Qt::white, Qt::white, Qt::white));
        const QString value = fields[1].isEmpty() ? picture(Qt::red) : fields[1];
        label.cSetAttributeValue(fields[0], value, enumerator<Custom::ItemStatus>(fields[2]));
        QCOMPARE(nameOf(label, QPalette::WindowText) + nameOf(label, QPalette::Text), fields[3] + fields[3]);
        QCOMPARE(nameOf(label, QPalette::Window), fields[4]);
        QCOMPARE(label.autoFillBackground(), fields[4] == "#ff0000"_s);
        const bool shown = !fields[5].isEmpty();
        QVERIFY(shown != label.pixmap(Qt::ReturnByValue).isNull() && shown == (label.alignment() == Qt::AlignCenter));
    }

    void labelPaintsTextOverItsBorderAndMayBeDeletedByItsClick()
    {
        QPointer<CustomLabel> label(new CustomLabel(QString(20, QChar(0x2588))));
        label->cSetBorderWidth(6);
        label->cSetBorderColor("#ff0000"_s);
        label->cSetFontColor("#0000ff"_s);
        label->resize(60, 60);
        label->show();
        QVERIFY(QTest::qWaitForWindowExposed(label.data()));
        const QImage image = label->grab().toImage();
        QCOMPARE(image.pixelColor(3, 30).name() + image.pixelColor(3, 3).name(), "#0000ff#ff0000"_s);
        connect(label.data(), &CustomLabel::clicked, label.data(), [&label] { delete label.data(); });
        QTest::mouseClick(label.data(), Qt::LeftButton);
        QVERIFY(!label);
    }

    void labelForgetsWhatIsCutOff()
    {
        CustomLabel label("%1 \"quoted\" "_s.repeated(800));
        QStringList texts;
        for (const int width : { 100, 50, 500 }) {
            label.resize(width, 20);
            label.cDisplayElidedText();
            texts.append(label.text());
        }
        QVERIFY(texts[0].startsWith("%1 \""_s) && texts[0].endsWith(QChar(0x2026)) && texts[0].size() < 40);
        QVERIFY(texts[1].size() < texts[0].size() && texts[2] == texts[1]);
    }

    void editTranslatesTheTheme()
    {
        addSheet("CustomScrollBar", "QScrollBar{}");
        addStyle("CustomTextEdit",
            "FontColor=#010203 BackgroundColor=#040506 FontSize=17 FontFamily=Family A ObjectParameter=128 "
            "BorderWidth:AllEdge=2 BorderColor:AllEdge=#070809"_s);
        CustomTextEdit edit("text"_s);
        const auto sheet = "CustomTextEdit{color:%1; background-color:rgba(4,5,6,255); font-size: 17px; "
                           "font-family: Family A; border: %2px solid rgba(7,8,9,255);}QScrollBar{}"_s;
        QCOMPARE(edit.styleSheet().simplified(), sheet.arg("rgba(1,2,3,255)"_s, "2"_s));
        QCOMPARE(edit.styleSheet().count(QLatin1Char(' ')), 4 * 34 + 6);
        edit.cSetFontColor("rgba(9,9,9,9)"_s);
        edit.cSetBorderWidth(5);
        for (const bool follows : { true, false, true }) {
            QCOMPARE(edit.styleSheet().simplified(), follows ? sheet.arg("rgba(9,9,9,9)"_s, "5"_s) : QString());
            edit.setStyleSheet(QString());
            CustomPrivate::setIsFontFamilyChange(!follows);
            QEvent event(QEvent::LanguageChange);
            QApplication::sendEvent(&edit, &event);
        }
        Custom::changeSkin();
        QCOMPARE(edit.styleSheet().simplified(), sheet.arg("rgba(9,9,9,9)"_s, "5"_s));
    }

    void editTakesAnyFont_data() { addRowsOf("controls/edit-fonts.txt"_s); }
    void editTakesAnyFont()
    {
        QFETCH(QStringList, fields);
        CustomTextEdit edit;
        edit.cSetIsUserFontFamily(true);
        edit.cSetAttributeValue("FontFamily"_s, fields[0]);
        edit.ensurePolished();
        QCOMPARE(edit.font().family(), fields[0]);
        QCOMPARE(edit.styleSheet().contains("font-family: "_s + fields[0] + QLatin1Char(';')), fields[1] == "plain"_s);
    }

    void groupBoxTellsItsNumber()
    {
        addSheet("CustomGroupBox", "QGroupBox{}");
        CustomGroupBox box("title"_s);
        QSignalSpy spy(&box, &CustomGroupBox::Toggled);
        box.setCheckable(true);
        box.setChecked(false);
        box.SetIndex(7);
        box.setChecked(true);
        QCOMPARE(spy, QList<QVariantList>({ { -1, false }, { 7, true } }));
        QCOMPARE(box.styleSheet() + box.property("LanguageString").toString(), "QGroupBox{}En_us"_s);
        box.setStyleSheet(QString());
        Custom::changeSkin();
        QCOMPARE(box.styleSheet(), "QGroupBox{}"_s);
    }
};

void LabelsTest::looksAsTheThemeSaysFromTheStart()
{
    addStyle("CustomLabel", QStringLiteral("FontColor=#ff0000"));
    QWidget other;
    other.setStyleSheet(QStringLiteral("QLabel { margin: 1px }"));
    QScrollArea area;
    area.setStyleSheet(QStringLiteral("QScrollBar { width: 9px }"));
    auto *label = new CustomLabel(QStringLiteral("Text"));
    area.setWidget(label);
    area.show();
    QCOMPARE(label->palette().color(label->foregroundRole()), QColor(Qt::red));
    // Qt takes the palette back from which it started when it polishes for another style sheet.
    label->cSetFontColor(QStringLiteral("#00ff00"));
    area.setParent(&other);
    QCOMPARE(label->palette().color(label->foregroundRole()), QColor(Qt::green));
}

ZANTHIC_TEST_MAIN(LabelsTest)
#include "tst_labels.moc"
