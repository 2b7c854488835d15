#include "support/Literal.h"
#include "support/Probe.h"
#include "support/StyleTest.h"
#include "windows/CustomMainWindow_p.h"
#include "windows/CustomMessageBox_p.h"

#include <Zanthic/Zanthic.h>
#include <Zanthic/ZanthicTheme.h>

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
        QWidget *button = box->cButton(index);
        QTest::mouseClick(button ? button : box->findChild<QWidget *>("CloseBtn"_s), Qt::LeftButton);
    });
}

Texts textsOf(const Box *box)
{
    return Panel::get(box)->findChildren<CMessageBoxScrollText *>("MessageBoxScrollText"_s);
}

/// The label of the last text of a box that is given its texts.
const CMessageBoxLabel *labelOf(Box *box, const QString &title, const QString &content = QString())
{
    box->cSetTextTitle(title);
    box->cSetContent(content);
    box->cEndSetParameter();
    return textsOf(box).isEmpty() ? nullptr : textsOf(box).constLast()->label();
}

} // namespace

class MessageBoxTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void wraps_data() { addRowsOf("windows/wraps.txt"_s); }
    void wraps()
    {
        QFETCH(QStringList, fields);
        const QString text = fields[0].section(' ', 1);
        const auto measure = [](const QString &line) { return int(line.size()) * 10 + 8; };
        const QString result = CMessageBoxLabel::wrapped(text, fields[0].section(' ', 0, 0).toInt(), measure);
        QCOMPARE(result.split("\r\n"_s, Qt::SkipEmptyParts).join(','), fields[1]);
        QCOMPARE(result.contains("\r\n"_s), fields[1].contains(',')); // also at the end
    }

    void lineBreaksAndPairs()
    {
        const auto wrap = [](const char *text, int width) {
            const auto measure = [](const QString &line) { return int(line.size()) * 10; };
            return CMessageBoxLabel::wrapped(QString::fromUtf8(text), width, measure).replace("\r\n"_s, "/"_s);
        };
        QCOMPARE(wrap("a\r\nbcdef", 20), "a/bcdef"_s); // broken already
        QCOMPARE(wrap("a\nbcd", 20), "a/bc/d/"_s);
        QCOMPARE(wrap(u8"a\U0001F600b", 20), QString::fromUtf8(u8"a/\U0001F600/b/"));
        QCOMPARE(wrap(u8"\U0001F600b", 10), QString::fromUtf8(u8"\U0001F600/b/"));
    }

    void calls()
    {
        const CustomMainWindow::Buttons both(CustomMainWindow::ButtonOk | CustomMainWindow::ButtonCancel);
        const auto next = [](int index, Box::HintIconStyle style, const QSize &size = QSize(255, 88)) {
            inNextBox(index, [=](Box *box) {
                QCOMPARE(Panel::get(box)->m_eHintStyle, style);
                QCOMPARE(Panel::get(box)->size(), size);
                QVERIFY(box->windowTitle().isEmpty() && CustomMainWindowPrivate::g_TopLeverWindow.contains(box));
            });
        };
        next(0, Box::HintWarning);
        QCOMPARE(Box::warning(nullptr, "Text"_s), 1);
        next(1, Box::HintInformation);
        QCOMPARE(Box::information(nullptr, "Text"_s, QString(), both), 0);
        next(9, Box::HintError); // no such button: the close button of the title bar
        QCOMPARE(Box::error(nullptr, "Text"_s, QString(), both, "Text"_s), 0);
        next(0, Box::HintSuccess);
        QCOMPARE(Box::simple(nullptr, "Text"_s, QString(), QString(), Box::HintSuccess), 1);
        next(0, Box::HintAsk, QSize(308, 120));
        QCOMPARE(Box::ask(nullptr, "Text"_s, QString(), both, "Text"_s, true), 1);
        inNextBox(0);
        QCOMPARE(Box::warning(nullptr, QString()), 1); // nothing to show
        inNextBox(1, [](Box *box) {
            QEvent language(QEvent::LanguageChange);
            QCoreApplication::sendEvent(box, &language);
            QCOMPARE(box->cButton(0)->text() + box->cButton(1)->text(), "YesNo"_s);
        });
        QCOMPARE(Box::askYesNo(nullptr, "Sure?"_s), 0);
        auto *parent = new QWidget;
        QTimer::singleShot(0, this, [parent] { delete parent; });
        QCOMPARE(Box::warning(parent, "Text"_s), -1);
    }

    void nonBlockingCall()
    {
        Panel::g_bIsRunExec = false;
        QCOMPARE(Box::warning(nullptr, "Text"_s), -1);
        QVERIFY(Panel::g_bIsRunExec);
        QPointer<QWidget> box = QApplication::activeModalWidget();
        QVERIFY(box && box->isVisible());
        box->close();
        QTRY_VERIFY(!box);
    }

    void layout_data() { addRowsOf("windows/box-layouts.txt"_s, { "title", "content", "large", "spacings", "sizes" }); }

    void layout()
    {
        Box box;
        Panel::get(&box)->m_bLargeSize = !cell("large").isEmpty();
        labelOf(&box, cell("title"), cell("content"));
        QStringList sizes;
        for (const CMessageBoxScrollText *text : textsOf(&box))
            sizes << "%1x%2"_s.arg(text->width()).arg(text->height());
        QTEST(sizes.join(' '), "sizes");
        QStringList spacings;
        const QLayout *column = Panel::get(&box)->layout();
        for (int i = 0; column && i < column->count() - 1; ++i) {
            if (column->itemAt(i)->spacerItem())
                spacings << QString::number(column->itemAt(i)->sizeHint().height());
        }
        QTEST(spacings.join(' '), "spacings");
        QCOMPARE(box.windowTitle(), cell(cell("title").isEmpty() ? "content" : "title"));
    }

    void iconAndTitleShareTheWidth()
    {
        ZanthicTheme::applySkin("light"_s);
        for (const int length : { 3, 400 }) {
            Box box;
            box.cSetHintStyle(Box::HintError);
            labelOf(&box, QString(length, 'x'));
            const CMessageBoxScrollText *text = textsOf(&box).value(0);
            const auto *row = static_cast<QHBoxLayout *>(text->parentWidget()->layout()->itemAt(1)->layout());
            const int icon = row->itemAt(1)->widget()->sizeHint().width();
            // "xxx" is centred together with its icon; a long text leaves the icon at the left.
            const int hint = QFontMetrics(text->label()->font()).boundingRect("xxx"_s).width() + 8;
            const int left = length == 3 ? (255 - 1 - hint - 5 - icon) / 2 : 0;
            QCOMPARE(row->itemAt(0)->sizeHint().width(), left);
            QCOMPARE(text->width(), 255 - row->itemAt(0)->sizeHint().width() - 6 - icon);
            QCOMPARE(text->label()->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
        }
    }

    void longTextsScroll()
    {
        Box box;
        labelOf(&box, QString(10000, 'm'));
        box.show();
        const CMessageBoxScrollText *text = textsOf(&box).value(0);
        const int lines = text->label()->text().count("\r\n"_s);
        QVERIFY(lines > 100 && text->label()->m_bWrapped);
        QCOMPARE(text->label()->height(), 22 * lines - 1);
        QVERIFY(text->verticalScrollBar()->isVisible());
        QCOMPARE(text->label()->width(), text->viewport()->width()); // the bar hides nothing
        QCOMPARE(Panel::get(&box)->size(), QSize(255, 88));
    }

    void textsShowAsTheyStand()
    {
        Box plain;
        Box marked;
        // Breaks are taken out; markup and place markers have no meaning.
        QCOMPARE(labelOf(&plain, "a\r\nb %1 & \"c\""_s)->text(), "ab %1 & \"c\""_s);
        QCOMPARE(labelOf(&marked, "<h1>x</h1>"_s)->height(), 43); // of two lines
        Box linked;
        linked.cSetOpenExternalLinks(true);
        const CMessageBoxLabel *label = labelOf(&linked, "T"_s, "See <a href=\"https://example.org\">there</a>"_s);
        QVERIFY(label->openExternalLinks() && label->wordWrap() && !label->m_bWrapped);
        QCOMPARE(label->size(), QSize(250, 40)); // "See " is narrower than 250
    }

    void settersTwice()
    {
        Box box;
        box.cSetContent("first"_s);
        box.cSetHintStyle(Box::HintAsk);
        box.cSetOpenExternalLinks(true);
        box.cEndSetParameter();
        const QPointer<Panel> before = Panel::get(&box);
        box.show();
        const QPoint place = before->mapTo(&box, QPoint(0, 0));
        box.cSetTextTitle("second"_s);
        box.cEndSetParameter();
        const Panel *panel = Panel::get(&box);
        QVERIFY(!before && !panel->m_bOpenExternalLinks);
        QCOMPARE(panel->m_eHintStyle, Box::HintAsk);
        QCOMPARE(textsOf(&box).value(0)->label()->text(), "second"_s);
        QVERIFY(panel->isVisible());
        QCOMPARE(panel->mapTo(&box, QPoint(0, 0)), place);
    }

    void textFollowsTheSkin()
    {
        ZanthicTheme::applySkin("light"_s);
        const auto shown = [](Box &box) {
            box.cSetHintStyle(Box::HintWarning);
            box.cSetButtons(CustomMainWindow::ButtonOk);
            labelOf(&box, "Title"_s);
            box.show();
            return box.grab().toImage();
        };
        Box box;
        const QImage light = shown(box);
        ZanthicTheme::applySkin("dark"_s);
        const QImage dark = box.grab().toImage();
        Box fresh;
        QVERIFY(light != dark && shown(fresh) == dark);
        ZanthicTheme::applySkin("light"_s);
        QCOMPARE(box.grab().toImage(), light);
    }
};

ZANTHIC_TEST_MAIN(MessageBoxTest)
#include "tst_message_box.moc"
