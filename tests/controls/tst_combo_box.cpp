#include "render/ComboBoxLayout_p.h"
#include "style/StyleHost.h"
#include "support/Probe.h"

#include <Zanthic/Zanthic.h>
#include <Zanthic/ZanthicTheme.h>

namespace {

const auto kColors = QStringLiteral("ObjectParameter=3 BackgroundColor=#ff0000 BackgroundColor:Hover=#00ff00 "
                                    "BackgroundColor:Pressed=#0000ff BackgroundColor:Disabled=#808080 "
                                    "FontColor=#00ffff");
const QMap<int, QString> kItems{ { 2, "Two"_s }, { 1, "One"_s }, { 4, "Four"_s } };

// A combo box in a shown window.
struct Window : QWidget
{
    explicit Window(CustomComboBox *box = new CustomComboBox(nullptr, CustomComboBox::Default, true)) : combo(box)
    {
        combo->setParent(this);
        combo->setGeometry(20, 20, 160, 30);
        show();
        activateWindow();
        QApplication::processEvents();
    }
    ~Window() override { delete combo; }

    QListWidget *list() const { return qobject_cast<QListWidget *>(combo->view()); }
    CustomCheckBox *box(int row) const { return qobject_cast<CustomCheckBox *>(list()->itemWidget(list()->item(row))); }
    QWidget *button(int row) const { return list()->itemWidget(list()->item(row)); }
    QString text() const
    {
        QStyleOptionComboBox option;
        combo->initComboBoxOption(&option);
        return option.currentText;
    }

    QPointer<CustomComboBox> combo;
};

} // namespace

class ComboBoxTest : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void layout()
    {
        const QRect box(10, 5, 160, 30);
        QCOMPARE(ComboBoxLayout::arrowRect(box, QSize(20, 12)), QRect(150, 23, 20, 12));
        // The style's field of 130 px, 4 px into the box: its right end comes along, its top and bottom don't.
        const QRect clip = ComboBoxLayout::textClip(box, QRect(14, 8, 130, 20), 40);
        QCOMPARE(clip, QRect(QPoint(17, 0), QPoint(139, 39)));
        QCOMPARE(ComboBoxLayout::textRect(clip), QRect(QPoint(18, 0), QPoint(138, 39)));
    }

    void paintsBoxArrowAndText()
    {
        addStyle("CustomComboBox", kColors);
        const Window window(new CustomComboBox);
        window.combo->cSetBackgroundImage(picture(Qt::white, QSize(12, 8)), Custom::Normal, { "down-arrow"_s });
        window.combo->addItem("MMMMMMMMMMMMMMMMMMMMMMMMMMMMM"_s);
        const auto paint = [&](const QStyle::State &state, const QString &text, bool editable = false) {
            QStyleOptionComboBox option;
            window.combo->initComboBoxOption(&option);
            option.state = state;
            option.currentText = text;
            option.editable = editable;
            return Probe::painted(QSize(160, 30), [&](QPainter *painter) {
                window.combo->cDrawWidget(Custom::WidgetComboBox, painter, QRect(0, 0, 160, 30), &option);
            });
        };
        const QStyle::State enabled = QStyle::State_Enabled;
        QCOMPARE(Probe::colorAt(paint(enabled, {}), 1, 1), "#ffff0000"_s);
        QCOMPARE(Probe::colorAt(paint(enabled | QStyle::State_MouseOver, {}), 1, 1), "#ff00ff00"_s);
        QCOMPARE(Probe::colorAt(paint(enabled | QStyle::State_Sunken, {}), 1, 1), "#ff0000ff"_s);
        QCOMPARE(Probe::colorAt(paint({}, {}), 1, 1), "#ff808080"_s);
        const QImage empty = paint(enabled, {});
        QCOMPARE(Probe::bounds(empty, [](const QColor &color) { return color.blue() > 0; }), QRect(148, 22, 12, 8));
        QCOMPARE(paint(enabled, "Text"_s, true), empty); // the line edit has it
        const QRect text
            = Probe::bounds(paint(enabled, window.text()), [](const QColor &color) { return color.red() < 100; });
        QVERIFY2(text.left() >= 8 && text.left() < 12 && text.right() > 90 && text.right() < 148, "text");
        CustomComboBox plain; // without a box the style paints it
        plain.cSetClassName("Unknown"_s);
        plain.resize(160, 30);
        QStyleOptionComboBox option;
        plain.initComboBoxOption(&option);
        const auto paintStyle
            = [&](QPainter *p) { plain.style()->drawComplexControl(QStyle::CC_ComboBox, &option, p, &plain); };
        plain.cSetParameter(Custom::ParamBackgroundColor, false);
        plain.cSetParameter(Custom::ParamBackgroundImage, false);
        QCOMPARE(Probe::grab(&plain), Probe::painted(plain.size(), paintStyle));
        plain.setStyleSheet("QComboBox { background: #00ff00; border: none }"_s);
        QCOMPARE(Probe::colorAt(Probe::grab(&plain), 120, 2), "#ff00ff00"_s);
    }

    void sizeLeavesRoomForTheInset()
    {
        addStyle("CustomComboBox", "FontSize=33"_s);
        CustomComboBox combo;
        combo.addItem("Some text"_s);
        QComboBox plain;
        plain.setFont(combo.font());
        plain.addItem("Some text"_s);
        QCOMPARE(combo.font().pixelSize(), 33);
        QCOMPARE(combo.sizeHint(), plain.sizeHint() + QSize(7, 0));
        addStyle("CustomComboBox", "FontSize=20"_s);
        Custom::changeSkin();
        QVERIFY(combo.sizeHint().height() < plain.sizeHint().height());
    }

    void closedText_data() { addRowsOf("controls/combo-texts.txt"_s); }
    void closedText()
    {
        QFETCH(QStringList, fields);
        const bool isMulti = fields[0] == "1"_s;
        const Window window(new CustomComboBox(nullptr, CustomComboBox::Default, isMulti));
        if (isMulti)
            window.combo->cSetMultiCheckItems(
                { { 3, "Both"_s }, { 2, "Two"_s }, { 1, "One"_s }, { -8, "Minus"_s }, { 0, "Zero"_s } });
        else
            window.combo->addItem("First"_s);
        window.combo->cSetMultiCheckValue(fields[1].toInt());
        window.combo->cSetCustomDisplayText(fields[2]);
        QCOMPARE(window.text(), fields[3]);
    }

    void boxesFormAMask()
    {
        addStyle("CustomCheckBox", "BackgroundImage:unchecked=@red16x16 BackgroundImage:checked=@blue16x16"_s);
        const Window window;
        CustomComboBox &combo = *window.combo;
        QSignalSpy changes(&combo, &CustomComboBox::sigMultiValueChanged);
        combo.cSetMultiCheckItems(kItems);
        combo.cSetMultiCheckValue(32 + 4);
        QVERIFY(!window.box(0)->isChecked() && window.box(2)->isChecked() && changes.isEmpty());
        QCOMPARE(window.box(2)->text() + window.box(2)->cUserData().toString(), "Four4"_s);
        combo.showPopup();
        QTest::mouseClick(window.box(0), Qt::LeftButton, {}, QPoint(8, window.box(0)->height() / 2));
        QCOMPARE(combo.cGetMultiCheckValue(), 32 + 4 + 1);
        QTest::mouseClick(window.box(1), Qt::LeftButton, {}, QPoint(100, 8)); // beside it
        QCOMPARE(combo.cGetMultiCheckValue(), 32 + 4 + 2 + 1);
        window.list()->setCurrentRow(2);
        QTest::keyClick(window.list(), Qt::Key_Space);
        QCOMPARE(combo.cGetMultiCheckValue(), 32 + 2 + 1);
        QVERIFY(changes.size() == 3 && window.list()->isVisible() && window.text() == "One;Two"_s);
        combo.cSetComboBoxStyleSelector(CustomComboBox::DarkBlack);
        QCOMPARE(combo.property("StyleSelector").toString(), "DarkBlack"_s);
        QVERIFY(window.box(1)->cStyleSelector() == "DarkBlack"_s && window.box(1)->isChecked());
        QVERIFY(!window.box(2)->isChecked() && combo.cGetMultiCheckValue() == 35 && changes.size() == 3);
        combo.cSetMultiCheckItems({ { 12, "Two bits"_s } });
        for (const auto &[value, after] : { std::pair(4, 12), std::pair(12, 0), std::pair(13, 1) }) {
            combo.cSetMultiCheckValue(value);
            window.box(0)->toggle();
            QCOMPARE(combo.cGetMultiCheckValue(), after);
        }
        combo.hidePopup();
    }

    void handlersMayDoAnything_data() { addRowsOf("controls/combo-handlers.txt"_s, { "what", "row", "x" }); }
    void handlersMayDoAnything()
    {
        const QString what = cell("what");
        addStyle("CustomCheckBox", "BackgroundImage:unchecked=@red16x16 BackgroundImage:checked=@blue16x16"_s);
        const Window window;
        int calls = 0;
        const auto react = [&] {
            ++calls;
            if (what == "deleted"_s)
                delete window.combo;
            else if (what == "closed"_s)
                window.combo->hidePopup();
            else
                window.combo->cSetMultiCheckItems({ { 8, "Eight"_s } });
        };
        connect(window.combo, &CustomComboBox::sigMultiValueChanged, this, react);
        connect(window.combo, &CustomComboBox::sigButtonClicked, this, react);
        window.combo->cSetMultiCheckItems(kItems);
        window.combo->cAddButtonItem("More"_s);
        QCOMPARE(window.button(3)->size(), QSize(160, 30));
        window.combo->showPopup();
        QCOMPARE(window.list()->visualItemRect(window.list()->item(3)).height(), 30);
        QTest::mouseClick(window.button(int(number("row"))), Qt::LeftButton, {}, QPoint(int(number("x")), 8));
        QCOMPARE(calls, 1);
        QCOMPARE(window.combo ? window.combo->count() : 0, what == "closed"_s ? 4 : what == "rebuilt"_s ? 1 : 0);
        QCOMPARE(QApplication::activePopupWidget() != nullptr, what == "rebuilt"_s);
    }

    void rowsMayGoWhileTheyCome()
    {
        const QList<std::function<void(CustomComboBox *)>> acts{ [](auto *combo) { combo->clear(); },
            [](auto *combo) {
                combo->cSetMultiCheckItems({ { 8, "x"_s }, { 16, "y"_s } });
            },
            [](auto *combo) { combo->setView(new QListView); } };
        for (int i = 0; i < 2 * acts.size(); ++i) {
            const QPointer<CustomComboBox> combo = new CustomComboBox(nullptr, CustomComboBox::Default, true);
            bool acted = false;
            connect(combo, qOverload<int>(&QComboBox::currentIndexChanged), [&, combo](int index) {
                if (index == 0 && !std::exchange(acted, true))
                    acts[i / 2](combo);
            });
            if (i % 2)
                combo->cAddButtonItem("Button"_s);
            else
                combo->cSetMultiCheckItems(kItems);
            QVERIFY(acted);
            if (i == 2)
                QCOMPARE(combo->count(), 2); // the newest ones only
            delete combo;
        }
    }

    void wheelChangesAndScrollsNothing()
    {
        QScrollArea area;
        area.setWidget(new QWidget);
        area.widget()->resize(100, 3000);
        auto *combo = new CustomComboBox(area.widget());
        combo->addItems({ "One"_s, "Two"_s });
        area.show();
        for (QWidget *over : { static_cast<QWidget *>(combo), area.viewport() }) {
            QWheelEvent event({ 5, 5 }, over->mapToGlobal({ 5, 5 }), {}, { 0, -120 }, {}, {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(over, &event);
            QCOMPARE(area.verticalScrollBar()->value() != 0, over != combo);
        }
        QCOMPARE(combo->currentIndex(), 0);
    }

    void listFollowsTheSkinAndHasATick()
    {
        ZanthicTheme::applySkin("light"_s);
        const Window window(new CustomComboBox);
        window.combo->addItems({ QString(90, 'W'), "Two"_s });
        window.combo->showPopup();
        QCOMPARE(window.combo->viewParent()->y(), window.combo->mapToGlobal(QPoint(0, 6)).y());
        QCOMPARE(window.combo->viewParent()->width(), qMax(160 + 24, window.combo->sizeHint().width()));
        QImage images[3];
        for (int i = 0; i < 3; ++i) {
            ZanthicTheme::applySkin(i == 1 ? "dark"_s : "light"_s);
            images[i] = window.list()->viewport()->grab().toImage();
        }
        QVERIFY(images[0] != images[1] && images[0] == images[2]);
        const QSize tick = QPixmap(":/Zanthic/Control/Menu_Tick.png"_s).size();
        const QRect row = window.list()->visualItemRect(window.list()->item(0)).adjusted(1, 1, -1, -1);
        const int left = row.right() - 11 - tick.width();
        const auto hasInk = [&](int x, int width) {
            const QColor ground = images[0].pixelColor(row.right(), row.center().y());
            const QImage part = images[0].copy(x, row.top(), width, row.height());
            return !Probe::bounds(part, [&](const QColor &color) { return color != ground; }).isEmpty();
        };
        QVERIFY(hasInk(left, tick.width()) && !hasInk(left + tick.width(), 11)); // the tick, and its margin
        QVERIFY(hasInk(left - 60, 57) && !hasInk(left - 3, 3)); // the text stops short of it
        window.combo->hidePopup();
    }

    void fieldAndButtonOfTheTheme()
    {
        ZanthicTheme::applySkin("light"_s);
        CustomComboBox combo;
        combo.cAddButtonItem("More"_s); // before it has its width
        combo.setEditable(true);
        combo.resize(170, 30);
        combo.show();
        QCoreApplication::sendPostedEvents();
        const auto color
            = [&](QPalette::ColorGroup group) { return combo.lineEdit()->palette().color(group, QPalette::Text); };
        QCOMPARE(color(QPalette::Active), combo.cFontColor());
        QCOMPARE(color(QPalette::Disabled), combo.cFontColor(Custom::Disabled));
        const QColor light = color(QPalette::Active);
        ZanthicTheme::applySkin("dark"_s);
        QVERIFY(color(QPalette::Active) != light && color(QPalette::Active) == combo.cFontColor());
        auto *own = new QLineEdit;
        QPalette red = own->palette();
        red.setColor(QPalette::Text, Qt::red);
        own->setPalette(red);
        combo.setLineEdit(own);
        QCoreApplication::sendPostedEvents();
        ZanthicTheme::applySkin("light"_s);
        QCOMPARE(color(QPalette::Active), QColor(Qt::red));
        combo.cSetComboBoxStyleSelector(CustomComboBox::DarkBlack);
        QVERIFY(combo.count() == 1 && !(combo.model()->flags(combo.model()->index(0, 0)) & Qt::ItemIsEnabled));
        combo.showPopup();
        const auto *button = combo.view()->findChild<CustomPushButton *>();
        for (const auto &[status, end] :
            { std::pair(Custom::Hover, "_Hover"_s), std::pair(Custom::Pressed, "_Pressed"_s) })
            QCOMPARE(value(*button, "FontColor"_s, status), QString("DB_COLOR_Custom_ComboBox_Font"_s + end));
        QVERIFY(button && button->width() == 170 && button->font().family() == Custom::globalFontFamily());
        combo.hidePopup();
    }

    void otherViewsAndModels()
    {
        const Window window;
        CustomComboBox &combo = *window.combo;
        combo.cSetMultiCheckItems(kItems);
        CComboBoxListModel model;
        for (const auto &text : { "a"_s, QString(99, 'W'), "b"_s })
            model.appendRow(new QStandardItem(text));
        combo.setModel(&model);
        QVERIFY(qobject_cast<CComboBoxListDelegate *>(combo.view()->itemDelegate()));
        QCOMPARE(combo.view()->styleSheet(), Custom::styleSheet(Custom::SheetListView));
        for (const int policy : { 0, 1 }) { // a view of the combo box's own, and one of the application's
            combo.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
            if (policy > 0)
                combo.setView(new QTreeView);
            model.cSetTextTooWide(false);
            combo.showPopup();
            QVERIFY(combo.view()->isVisible() && combo.view()->model() == &model && model.cTextTooWide());
            QTest::keyClick(combo.view(), Qt::Key_Down);
            QTest::keyClick(combo.view(), Qt::Key_Return);
            QCOMPARE(combo.currentIndex(), policy + 1);
            combo.cSetMultiCheckItems(kItems);
            combo.cSetMultiCheckValue(1);
            combo.cAddButtonItem("More"_s);
            combo.cSetComboBoxStyleSelector(CustomComboBox::GrayWhite);
            Custom::changeSkin();
            QCOMPARE(combo.count(), 3);
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        model.removeRow(1);
        combo.showPopup();
        QVERIFY(!model.cTextTooWide());
        combo.hidePopup();
    }

    void popupOfOnesOwn()
    {
        const Window window(new CustomComboBox);
        Window other(new CustomComboBox);
        CustomComboBox &combo = *window.combo;
        combo.cSetCustomPopupWidget(nullptr);
        combo.cSetCustomPopupWidget(combo.window());
        combo.cSetCustomPopupWidget(&combo);
        QVERIFY(!combo.cGetCustomPopupWindows());
        const QPointer<QWidget> content = new QWidget;
        content->resize(120, 70);
        combo.cSetCustomPopupWidget(content);
        combo.setFocus();
        int shown = 0;
        const auto during = [&](const std::function<void()> &act) {
            QTimer timer;
            const auto *popup = combo.cGetCustomPopupWindows();
            timer.callOnTimeout([&] {
                if (!popup->isVisible() || shown++ > 9)
                    return;
                QCOMPARE(popup->size(), QSize(120, 70));
                QCOMPARE(popup->pos(), combo.mapToGlobal(QPoint(0, 29 + 4)));
                act();
            });
            timer.start(10);
            shown = 0;
            combo.showPopup();
            QVERIFY(!popup->isVisible() && combo.isEnabled());
        };
        for (QWidget *widget : { new QWidget, content.data() }) // it comes back as it was
            combo.cSetCustomPopupWidget(widget);
        during([&] { combo.hidePopup(); });
        QVERIFY(content->isVisibleTo(content->window()));
        QVERIFY(shown == 1 && window.focusWidget() == &combo);
        during([&] { shown < 3 ? combo.showPopup() : combo.hidePopup(); });
        QCOMPARE(shown, 3);
        // In another combo box's popup it is none of this one's any more.
        other.combo->cSetCustomPopupWidget(content);
        combo.addItem("Item"_s);
        combo.showPopup();
        QVERIFY(combo.view()->isVisible());
        combo.hidePopup();
        combo.cSetCustomPopupWidget(content);
        during([&] { delete content; });
        QCOMPARE(shown, 1);
    }
};

ZANTHIC_TEST_MAIN(ComboBoxTest)
#include "tst_combo_box.moc"
