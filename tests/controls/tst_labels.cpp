#include "style/CustomPrivate_p.h"
#include "support/Probe.h"
#include "support/StyleTest.h"

#include <Zanthic/CustomGroupBox.h>
#include <Zanthic/CustomLabel.h>
#include <Zanthic/CustomLineWidget.h>
#include <Zanthic/CustomTextEdit.h>

namespace {

const auto kRed = QStringLiteral("#ff0000");
const auto kBlue = QStringLiteral("#0000ff");
const auto kGreen = QStringLiteral("#00ff00");

QString nameOf(const QWidget &widget, QPalette::ColorRole role)
{
    return widget.palette().color(role).name();
}

// One letter a pixel along a line of pixels: full, half, or nothing.
QString pixels(const QImage &image, const QPoint &start, const QPoint &step)
{
    QString result;
    for (QPoint point = start; image.rect().contains(point); point += step) {
        const int alpha = qAlpha(image.pixel(point));
        result += QLatin1Char(alpha > 250 ? '#' : alpha < 5 ? '.' : '+');
    }
    return result;
}

} // namespace

class LabelsTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void linesFillTheWidgetAcross_data() { addRowsOf(QStringLiteral("controls/lines.txt")); }
    void linesFillTheWidgetAcross();
    void labelHasTwoLooks();
    void labelShowsWhatIsSet_data() { addRowsOf(QStringLiteral("controls/label-values.txt")); }
    void labelShowsWhatIsSet();
    void labelPaintsTextOverItsBorder();
    void labelPictureFollowsTheSkin();
    void labelForgetsWhatIsCutOff();
    void labelMayBeDeletedByItsClick();
    void editTranslatesTheTheme();
    void editTakesAnyFont_data() { addRowsOf(QStringLiteral("controls/edit-fonts.txt")); }
    void editTakesAnyFont();
    void editFollowsSkinAndLanguage();
    void groupBoxTellsItsNumber();
};

void LabelsTest::linesFillTheWidgetAcross()
{
    QFETCH(QStringList, fields);
    addStyle("CustomLineWidget", QStringLiteral("BackgroundColor=#ff0000 ") + fields[1]);
    CustomLineWidget line;
    line.resize(int(numbersIn(fields[0])[0]), int(numbersIn(fields[0])[1]));
    const QImage image = Probe::grab(&line);
    QCOMPARE(pixels(image, QPoint(0, 0), QPoint(1, 0)), fields[2]);
    QCOMPARE(pixels(image, QPoint(0, 0), QPoint(0, 1)), fields[3]);
    line.cSetLineType(CustomLineWidget::HorizontalLine);
    line.cSetIsDottedLine(true);
    QCOMPARE(line.cAttributeValue(QStringLiteral("LineType")) + line.cAttributeValue(QStringLiteral("IsDottedLine")),
        QStringLiteral("11"));
    line.resize(6, 0);
    QPaintEvent event(QRect(0, 0, 6, 1)); // which Qt doesn't send
    QApplication::sendEvent(&line, &event);
}

void LabelsTest::labelHasTwoLooks()
{
    addStyle("CustomLabel", QStringLiteral("FontColor=#0000ff BackgroundColor=#00ff00 FontColor:Hover=#ff0000"));
    addStyle("CustomLabel", QStringLiteral("FontColor:Hover=#Empty#"), "GrayWhite");
    QWidget window;
    CustomLabel label(QStringLiteral("text"), &window);
    window.setGeometry(40, 40, 100, 60);
    label.setGeometry(10, 10, 50, 20);
    label.cSetStyleSelector(Custom::Default);
    QCOMPARE(nameOf(label, QPalette::WindowText) + nameOf(label, QPalette::Window), kBlue + kGreen);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCursor::setPos(label.mapToGlobal(QPoint(5, 5)));
    QTRY_COMPARE(nameOf(label, QPalette::WindowText), kRed);
    QCursor::setPos(0, 0);
    QTRY_COMPARE(nameOf(label, QPalette::WindowText), kBlue);
    label.cSetStyleSelector(QStringLiteral("GrayWhite"));
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(&label, &enter);
    QCOMPARE(nameOf(label, QPalette::WindowText), kBlue); // stays where there is no value
}

void LabelsTest::labelShowsWhatIsSet()
{
    QFETCH(QStringList, fields);
    CustomLabel label;
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::Window }) {
        QPalette palette = label.palette();
        palette.setColor(role, Qt::white);
        label.setPalette(palette);
    }
    const QString value = fields[1].isEmpty() ? picture(Qt::red) : fields[1];
    label.cSetAttributeValue(fields[0], value, enumerator<Custom::ItemStatus>(fields[2]));
    QCOMPARE(nameOf(label, QPalette::WindowText), fields[3]);
    QCOMPARE(nameOf(label, QPalette::Text), fields[3]);
    QCOMPARE(nameOf(label, QPalette::Window), fields[4]);
    QCOMPARE(label.autoFillBackground(), fields[4] == kRed);
    const bool shown = fields[5] == QLatin1String("picture");
    QVERIFY(shown == !label.pixmap(Qt::ReturnByValue).isNull() && shown == (label.alignment() == Qt::AlignCenter));
}

void LabelsTest::labelPaintsTextOverItsBorder()
{
    addStyle("CustomLabel", QStringLiteral("ObjectParameter=20 BorderWidth:AllEdge=6 BorderColor:AllEdge=#ff0000"));
    CustomLabel label(QString(20, QChar(0x2588)));
    label.cSetFontColor(kBlue);
    label.resize(60, 60);
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    const QImage image = label.grab().toImage();
    QCOMPARE(image.pixelColor(3, 30).name(), kBlue);
    QCOMPARE(image.pixelColor(3, 3).name(), kRed);
}

void LabelsTest::labelPictureFollowsTheSkin()
{
    const QString path = picture(Qt::red);
    addStyle("CustomLabel", QStringLiteral("BackgroundImage=") + path);
    CustomLabel label;
    const auto shown = [&label] { return label.pixmap(Qt::ReturnByValue).toImage().pixelColor(8, 8).name(); };
    label.cSetStyleSelector(QStringLiteral("Default"));
    QCOMPARE(shown(), kRed);
    QVERIFY(QFile::remove(path) && QFile::rename(picture(Qt::blue), path));
    Custom::changeSkin();
    QCOMPARE(shown(), kBlue);
}

void LabelsTest::labelForgetsWhatIsCutOff()
{
    CustomLabel label(QStringLiteral("%1 \"quoted\" ").repeated(800));
    label.resize(100, 20);
    label.cDisplayElidedText();
    const QString text = label.text();
    QVERIFY(text.endsWith(QChar(0x2026)) && text.startsWith(QLatin1String("%1 \"")) && text.size() < 40);
    label.resize(50, 20);
    label.cDisplayElidedText();
    QVERIFY(label.text().size() < text.size());
    const QString shorter = label.text();
    label.resize(500, 20);
    label.cDisplayElidedText();
    QCOMPARE(label.text(), shorter);
}

void LabelsTest::labelMayBeDeletedByItsClick()
{
    QPointer<CustomLabel> label(new CustomLabel(QStringLiteral("text")));
    connect(label.data(), &CustomLabel::clicked, label.data(), [&label] { delete label.data(); });
    QTest::mouseClick(label.data(), Qt::LeftButton);
    QVERIFY(!label);
}

void LabelsTest::editTranslatesTheTheme()
{
    addDocument("<Class Name='Q'><QSS><CustomScrollBar>" + scratchFile("QScrollBar{}").toUtf8()
        + "</CustomScrollBar></QSS></Class>");
    addStyle("CustomTextEdit",
        QStringLiteral("FontColor=#010203 BackgroundColor=#040506 FontSize=17 BorderWidth:AllEdge=2 "
                       "BorderColor:AllEdge=#070809 FontFamily=Family A ObjectParameter=128"));
    CustomTextEdit edit(QStringLiteral("text"));
    const auto sheet = QStringLiteral("CustomTextEdit{color:%1; background-color:rgba(4,5,6,255); font-size: 17px; "
                                      "font-family: Family A; border: %2px solid rgba(7,8,9,255);}QScrollBar{}");
    QCOMPARE(edit.styleSheet().simplified(), sheet.arg(QStringLiteral("rgba(1,2,3,255)"), QStringLiteral("2")));
    QVERIFY(edit.styleSheet().contains(QLatin1Char(';') + QString(34, QLatin1Char(' ')) + QLatin1String("border:")));
    edit.cSetFontColor(QStringLiteral("rgba(9,9,9,9)"));
    edit.cSetBorderWidth(5, Custom::AllEdge);
    QCOMPARE(edit.styleSheet().simplified(), sheet.arg(QStringLiteral("rgba(9,9,9,9)"), QStringLiteral("5")));
}

void LabelsTest::editTakesAnyFont()
{
    QFETCH(QStringList, fields);
    CustomTextEdit edit;
    edit.cSetIsUserFontFamily(true);
    edit.cSetAttributeValue(QStringLiteral("FontFamily"), fields[0]);
    edit.ensurePolished();
    QCOMPARE(edit.font().family(), fields[0]);
    QCOMPARE(edit.styleSheet().contains(QLatin1String("font-family: ") + fields[0] + QLatin1Char(';')),
        fields[1] == QLatin1String("plain"));
    edit.cSetAttributeValue(QStringLiteral("FontSize"), QStringLiteral("-3"));
    QVERIFY(edit.font().pixelSize() > 0);
}

void LabelsTest::editFollowsSkinAndLanguage()
{
    addDocument("<Class Name='Global'><Selector Name='Default'><FontFamily:Zh_cn>Zh</FontFamily:Zh_cn>"
                "<FontFamily:En_us>En</FontFamily:En_us></Selector></Class>");
    addStyle("CustomTextEdit", QStringLiteral("FontColor=#112233"));
    CustomTextEdit edit;
    edit.setStyleSheet(QString());
    Custom::changeSkin();
    QVERIFY(edit.styleSheet().startsWith(QLatin1String("CustomTextEdit{color:rgba(17,34,51,255);")));
    for (const bool changes : { false, true }) {
        edit.setStyleSheet(QString());
        CustomPrivate::setIsFontFamilyChange(changes);
        QEvent event(QEvent::LanguageChange);
        QApplication::sendEvent(&edit, &event);
        QCOMPARE(edit.styleSheet().isEmpty(), !changes);
    }
}

void LabelsTest::groupBoxTellsItsNumber()
{
    addDocument("<Class Name='Q'><QSS><CustomGroupBox>" + scratchFile("QGroupBox{}").toUtf8()
        + "</CustomGroupBox></QSS></Class>");
    CustomGroupBox box(QStringLiteral("title"));
    QSignalSpy spy(&box, &CustomGroupBox::Toggled);
    box.setCheckable(true);
    box.setChecked(false);
    box.SetIndex(7);
    box.setChecked(true);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy[0], QVariantList({ -1, false }));
    QCOMPARE(spy[1], QVariantList({ 7, true }));
    QCOMPARE(box.property("LanguageString").toString(), QStringLiteral("En_us"));
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(box.styleSheet(), QStringLiteral("QGroupBox{}"));
        box.setStyleSheet(QString());
        Custom::changeSkin();
    }
}

ZANTHIC_TEST_MAIN(LabelsTest)
#include "tst_labels.moc"
