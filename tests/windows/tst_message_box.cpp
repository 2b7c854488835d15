#include "support/Probe.h"
#include "support/StyleTest.h"
#include "windows/CustomMainWindow_p.h"
#include "windows/CustomMessageBox_p.h"

#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomTitleBar.h>
#include <Zanthic/ZanthicTheme.h>

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QScrollBar>

using Box = CustomMessageBox;
using Panel = CustomMessageBoxPrivate;
using Texts = QList<CMessageBoxScrollText *>;

namespace {

/// Runs \p look in the box that opens next, and then presses its button \p index.
void inNextBox(int index, const std::function<void(Box *)> &look = {})
{
    QTimer::singleShot(0, qApp, [index, look] {
        auto *box = qobject_cast<Box *>(QApplication::activeModalWidget());
        QVERIFY(box);
        if (look)
            look(box);
        if (box->cButton(index))
            QTest::mouseClick(box->cButton(index), Qt::LeftButton);
        else
            QTest::mouseClick(box->findChild<QWidget *>(QStringLiteral("CloseBtn")), Qt::LeftButton);
    });
}

Texts textsOf(const Box *box)
{
    return Panel::get(box)->findChildren<CMessageBoxScrollText *>(QStringLiteral("MessageBoxScrollText"));
}

} // namespace

class MessageBoxTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void wraps_data() { addRowsOf(QStringLiteral("windows/wraps.txt")); }
    void wraps();
    void lineBreaksAndPairs();
    void calls();
    void nonBlockingCall();
    void yesAndNo();
    void layout_data();
    void layout();
    void iconAndTitleShareTheWidth();
    void longTextsScroll();
    void textsShowAsTheyStand();
    void links();
    void settersTwice();
    void textFollowsTheSkin();
    void mayLoseItsParent();
};

void MessageBoxTest::wraps()
{
    QFETCH(QStringList, fields);
    const QString text = fields[0].section(QLatin1Char(' '), 1);
    const auto measure = [](const QString &line) { return int(line.size()) * 10 + 8; };
    const QString result = CMessageBoxLabel::wrapped(text, fields[0].section(QLatin1Char(' '), 0, 0).toInt(), measure);
    QCOMPARE(result.split(QStringLiteral("\r\n"), Qt::SkipEmptyParts).join(QLatin1Char(',')), fields[1]);
    QCOMPARE(result.contains(QStringLiteral("\r\n")), fields[1].contains(QLatin1Char(','))); // also at the end
}

void MessageBoxTest::lineBreaksAndPairs()
{
    const auto measure = [](const QString &line) { return int(line.size()) * 10; };
    const auto wrap = [&](const char *text, int width) {
        return CMessageBoxLabel::wrapped(QString::fromUtf8(text), width, measure);
    };
    QCOMPARE(wrap("a\r\nbcdef", 20), QStringLiteral("a\r\nbcdef")); // broken already
    QCOMPARE(wrap("a\nbcd", 20), QStringLiteral("a\r\nbc\r\nd\r\n"));
    QCOMPARE(wrap("a\xf0\x9f\x98\x80"
                  "b",
                 20),
        QString::fromUtf8("a\r\n\xf0\x9f\x98\x80\r\nb\r\n"));
    QCOMPARE(wrap("\xf0\x9f\x98\x80"
                  "b",
                 10),
        QString::fromUtf8("\xf0\x9f\x98\x80\r\nb\r\n"));
}

void MessageBoxTest::calls()
{
    using Buttons = CustomMainWindow::Buttons;
    const Buttons both(CustomMainWindow::ButtonOk | CustomMainWindow::ButtonCancel);
    const auto text = QStringLiteral("Text");
    const auto style = [](Box::HintIconStyle expected, bool large = false) {
        return [=](Box *box) {
            QCOMPARE(Panel::get(box)->m_eHintStyle, expected);
            QCOMPARE(Panel::get(box)->size(), large ? QSize(308, 120) : QSize(255, 88));
            QVERIFY(box->windowTitle().isEmpty());
            QVERIFY(CustomMainWindowPrivate::g_TopLeverWindow.contains(box));
        };
    };
    inNextBox(0, style(Box::HintWarning));
    QCOMPARE(Box::warning(nullptr, text), 1);
    inNextBox(1, style(Box::HintInformation));
    QCOMPARE(Box::information(nullptr, text, QString(), both), 0);
    inNextBox(9, style(Box::HintError)); // no such button: the close button of the title bar
    QCOMPARE(Box::error(nullptr, text, QString(), both, text), 0);
    inNextBox(0, style(Box::HintSuccess));
    QCOMPARE(Box::simple(nullptr, text, QString(), QString(), Box::HintSuccess), 1);
    inNextBox(0, style(Box::HintAsk, true));
    QCOMPARE(Box::ask(nullptr, text, QString(), both, text, true), 1);
    inNextBox(0);
    QCOMPARE(Box::warning(nullptr, QString()), 1); // nothing to show
}

void MessageBoxTest::nonBlockingCall()
{
    Panel::g_bIsRunExec = false;
    QCOMPARE(Box::warning(nullptr, QStringLiteral("Text")), -1);
    QVERIFY(Panel::g_bIsRunExec);
    QPointer<QWidget> box = QApplication::activeModalWidget();
    QVERIFY(box && box->isVisible());
    box->close();
    QTRY_VERIFY(!box);
}

void MessageBoxTest::yesAndNo()
{
    inNextBox(1, [](Box *box) {
        const auto names = [box]() -> QString { return box->cButton(0)->text() + box->cButton(1)->text(); };
        QCOMPARE(names(), QStringLiteral("YesNo"));
        QEvent language(QEvent::LanguageChange);
        QCoreApplication::sendEvent(box, &language);
        QCOMPARE(names(), QStringLiteral("YesNo"));
    });
    QCOMPARE(Box::askYesNo(nullptr, QStringLiteral("Sure?")), 0);
}

void MessageBoxTest::layout_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("large");
    QTest::addColumn<QString>("spacings");
    QTest::addColumn<QString>("sizes");
    QTest::newRow("title alone") << "T"
                                 << "" << false << "20"
                                 << "255x44";
    QTest::newRow("content alone takes the title's place") << ""
                                                           << "C" << false << "20"
                                                           << "255x44";
    QTest::newRow("both") << "T"
                          << "C" << false << "0 8"
                          << "255x44 255x36";
    QTest::newRow("large") << "T"
                           << "C" << true << "0 64"
                           << "308x100 308x36";
    QTest::newRow("none") << ""
                          << "" << false << ""
                          << "";
}

void MessageBoxTest::layout()
{
    QFETCH(QString, title);
    QFETCH(QString, content);
    QFETCH(bool, large);
    Box box;
    box.cSetTextTitle(title);
    box.cSetContent(content);
    Panel::get(&box)->m_bLargeSize = large;
    box.cEndSetParameter();
    QStringList sizes;
    for (const CMessageBoxScrollText *text : textsOf(&box))
        sizes << QStringLiteral("%1x%2").arg(text->width()).arg(text->height());
    QTEST(sizes.join(QLatin1Char(' ')), "sizes");
    QStringList spacings;
    const QLayout *column = Panel::get(&box)->layout();
    for (int i = 0; column && i < column->count() - 1; ++i) {
        if (column->itemAt(i)->spacerItem())
            spacings << QString::number(column->itemAt(i)->sizeHint().height());
    }
    QTEST(spacings.join(QLatin1Char(' ')), "spacings");
    QCOMPARE(box.windowTitle(), title.isEmpty() ? content : title);
}

void MessageBoxTest::iconAndTitleShareTheWidth()
{
    ZanthicTheme::applySkin(QStringLiteral("light"));
    for (const int length : { 3, 400 }) {
        Box box;
        box.cSetTextTitle(QString(length, QLatin1Char('x')));
        box.cSetHintStyle(Box::HintError);
        box.cEndSetParameter();
        const CMessageBoxScrollText *text = textsOf(&box).value(0);
        const auto *row = static_cast<QHBoxLayout *>(text->parentWidget()->layout()->itemAt(1)->layout());
        const int icon = row->itemAt(1)->widget()->sizeHint().width();
        // "xxx" is centred together with its icon; a long text leaves the icon at the left.
        const int hint = QFontMetrics(text->label()->font()).boundingRect(QStringLiteral("xxx")).width() + 8;
        const int left = length == 3 ? (255 - 1 - hint - 5 - icon) / 2 : 0;
        QCOMPARE(row->itemAt(0)->sizeHint().width(), left);
        QCOMPARE(text->width(), 255 - row->itemAt(0)->sizeHint().width() - 6 - icon);
        QCOMPARE(text->label()->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    }
}

void MessageBoxTest::longTextsScroll()
{
    Box box;
    box.cSetTextTitle(QString(10000, QLatin1Char('m')));
    box.cEndSetParameter();
    box.show();
    const CMessageBoxScrollText *text = textsOf(&box).value(0);
    const int lines = text->label()->text().count(QStringLiteral("\r\n"));
    QVERIFY(lines > 100 && text->label()->m_bWrapped);
    QCOMPARE(text->label()->height(), 22 * lines - 1);
    QVERIFY(text->verticalScrollBar()->isVisible());
    QCOMPARE(text->label()->width(), text->viewport()->width()); // the bar hides nothing
    QCOMPARE(Panel::get(&box)->size(), QSize(255, 88));
}

void MessageBoxTest::textsShowAsTheyStand()
{
    Box plain;
    Box marked;
    const auto shown = [](Box &box, const QString &text) {
        box.cSetTextTitle(text);
        box.cEndSetParameter();
        return textsOf(&box).value(0)->label();
    };
    // Breaks are taken out; markup and place markers have no meaning.
    QCOMPARE(shown(plain, QStringLiteral("a\r\nb %1 & \"c\""))->text(), QStringLiteral("ab %1 & \"c\""));
    const CMessageBoxLabel *label = shown(marked, QStringLiteral("<h1>x</h1>"));
    QCOMPARE(label->height(), 43); // of two lines
}

void MessageBoxTest::links()
{
    Box box;
    box.cSetTextTitle(QStringLiteral("T"));
    box.cSetContent(QStringLiteral("See <a href=\"https://example.org\">there</a>"));
    box.cSetOpenExternalLinks(true);
    box.cEndSetParameter();
    const CMessageBoxLabel *label = textsOf(&box).value(1)->label();
    QVERIFY(label->openExternalLinks() && label->wordWrap() && !label->m_bWrapped);
    QCOMPARE(label->size(), QSize(250, 40)); // "See " is narrower than 250
}

void MessageBoxTest::settersTwice()
{
    Box box;
    box.cSetContent(QStringLiteral("first"));
    box.cSetHintStyle(Box::HintAsk);
    box.cSetOpenExternalLinks(true);
    box.cEndSetParameter();
    const QPointer<Panel> before = Panel::get(&box);
    box.show();
    const QPoint place = before->mapTo(&box, QPoint(0, 0));
    box.cSetTextTitle(QStringLiteral("second"));
    box.cEndSetParameter();
    const Panel *panel = Panel::get(&box);
    QVERIFY(!before && !panel->m_bOpenExternalLinks);
    QCOMPARE(panel->m_eHintStyle, Box::HintAsk);
    QCOMPARE(textsOf(&box).value(0)->label()->text(), QStringLiteral("second"));
    QVERIFY(panel->isVisible());
    QCOMPARE(panel->mapTo(&box, QPoint(0, 0)), place);
}

void MessageBoxTest::textFollowsTheSkin()
{
    ZanthicTheme::applySkin(QStringLiteral("light"));
    Box box;
    box.cSetTextTitle(QStringLiteral("Title"));
    box.cSetHintStyle(Box::HintWarning);
    box.cSetButtons(CustomMainWindow::ButtonOk);
    box.cEndSetParameter();
    box.show();
    const QImage light = box.grab().toImage();
    ZanthicTheme::applySkin(QStringLiteral("dark"));
    const QImage dark = box.grab().toImage();
    QVERIFY(light != dark);
    Box fresh;
    fresh.cSetTextTitle(QStringLiteral("Title"));
    fresh.cSetHintStyle(Box::HintWarning);
    fresh.cSetButtons(CustomMainWindow::ButtonOk);
    fresh.cEndSetParameter();
    fresh.show();
    QCOMPARE(fresh.grab().toImage(), dark);
    ZanthicTheme::applySkin(QStringLiteral("light"));
    QCOMPARE(box.grab().toImage(), light);
}

void MessageBoxTest::mayLoseItsParent()
{
    auto *parent = new QWidget;
    QTimer::singleShot(0, this, [parent] { delete parent; });
    QCOMPARE(Box::warning(parent, QStringLiteral("Text")), -1);
}

ZANTHIC_TEST_MAIN(MessageBoxTest)
#include "tst_message_box.moc"
