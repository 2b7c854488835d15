#include "WindowsPage.h"

#include "parts/Card.h"
#include "parts/Snapshot.h"

#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomMenu.h>
#include <Zanthic/CustomTitleBar.h>
#include <Zanthic/CustomWidget.h>

#include <QtCore/QMetaEnum>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace {

constexpr QSize Window_Size(288, 184);
constexpr QSize Scroll_Size(300, 160);
constexpr int Scroll_Lines = 20;
constexpr QSize SmallestStretch(200, 120);
constexpr int TallTitle_Height = 80; // with a row of tools
constexpr int Edge_Columns = 4;
const QLatin1String EdgePrefix("Strech"); // of each edge's name

TextLabel *newText(const QString &words)
{
    auto *label = new TextLabel(TextLabel::Body);
    label->setText(words);
    label->setAlignment(Qt::AlignCenter);
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return label;
}

CustomMainWindow *newWindow(const QString &title, const QString &words, QWidget *parent)
{
    auto *window = new CustomMainWindow(parent);
    window->cTitleBar()->cSetTitleText(title);
    window->cSetCentralWidget(newText(words));
    window->resize(Window_Size);
    return window;
}

CustomMainWindow *withBar(CustomMainWindow *window, Qt::AlignmentFlag alignment)
{
    window->cSetButtons(CustomMainWindow::ButtonOk | CustomMainWindow::ButtonCancel);
    window->cSetButtonsAlign(alignment);
    return window;
}

CustomMainWindow *withCustomButtons(CustomMainWindow *window, const QStringList &names)
{
    window->cAddCustomButtons(names);
    window->cSetMainButton(names.size() - 1);
    return window;
}

/// The window's title bar in its standard layout: menus beside the caption, tools in a row of their own.
CustomMainWindow *withTools(CustomMainWindow *window, const QString &menuName, const QStringList &items)
{
    CustomTitleBar *bar = window->cTitleBar();
    auto *menu = new CustomMenu(window);
    for (const QString &item : items)
        menu->addAction(item);
    bar->cAddMenu(menuName, menu);
    bar->cSetTitleControls(bar->cTitleControls() | CustomTitleBar::TitleStayOnTop);
    bar->setFixedHeight(TallTitle_Height);
    for (const char *icon : { "add", "search", "settings" }) {
        CustomPushButton *tool = bar->cAddToolButton(true, 4);
        tool->cSetStyleSelector(QStringLiteral("LittleBase"));
        tool->cSetIcon(QStringLiteral(":/Zanthic/Icons/%1.png").arg(QLatin1String(icon)));
        tool->setFixedSize(32, 28);
        if (qstrcmp(icon, "add") == 0)
            bar->cAddToolSeparatorLine();
    }
    return window;
}

QPixmap pictureOf(CustomMainWindow *window)
{
    const std::unique_ptr<CustomMainWindow> owned(window);
    return Snapshot::ofWindow(window, window->cBorderRadius(Custom::AllCorner));
}

QString nameOf(CustomMainWindow::StrechEdge edge)
{
    return QString::fromLatin1(QMetaEnum::fromType<CustomMainWindow::StrechEdges>().valueToKey(edge))
        .mid(EdgePrefix.size());
}

} // namespace

WindowsPage::WindowsPage(QWidget *parent) : GalleryPage(parent)
{
    addPictures();
    addSamples();
    addBehaviour();
    addEdges();
}

WindowsPage::~WindowsPage() = default;

void WindowsPage::addPictures()
{
    Card *card = addCard(QT_TR_NOOP("A window"), QT_TR_NOOP("Title bar, content and buttons all come from the theme."));
    auto *custom = new Snapshot([] {
        return pictureOf(withCustomButtons(
            newWindow(tr("Three choices"), tr("Content"), nullptr), { tr("Later"), tr("Never"), tr("Now") }));
    });
    auto *tools = new Snapshot([] {
        return pictureOf(withTools(newWindow(tr("With tools"), tr("Content"), nullptr), tr("Menu"), { tr("An item") }));
    });
    card->add(row({ custom, tools }, 16));
}

Roomy<CustomPushButton> *WindowsPage::opener(const char *words, std::function<void()> open)
{
    auto *button = translated(new Roomy<CustomPushButton>(this, CustomPushButton::MiddleBase), words);
    connect(button, &CustomPushButton::clicked, this, open);
    return button;
}

void WindowsPage::addSamples()
{
    Card *card = addCard(QT_TR_NOOP("Bars and contents"), QT_TR_NOOP("Each button opens a window."));
    const auto aligned = [this](Qt::AlignmentFlag alignment) {
        return [this, alignment] { open(withBar(newWindow(tr("A dialog"), tr("Content"), window()), alignment)); };
    };
    auto *left = opener(QT_TR_NOOP("Buttons at the left"), aligned(Qt::AlignLeft));
    auto *centre = opener(QT_TR_NOOP("in the middle"), aligned(Qt::AlignCenter));
    auto *right = opener(QT_TR_NOOP("at the right"), aligned(Qt::AlignRight));
    auto *custom = opener(QT_TR_NOOP("Buttons of its own"), [this] {
        open(withCustomButtons(
            newWindow(tr("Three choices"), tr("Content"), window()), { tr("Later"), tr("Never"), tr("Now") }));
    });
    auto *scrolled = opener(QT_TR_NOOP("Scrolled content"), [this] {
        auto *sample = new CustomMainWindow(window());
        sample->cTitleBar()->cSetTitleText(tr("Scrolled"));
        auto *lines = new CustomWidget; // which paints the theme's background
        auto *layout = new QVBoxLayout(lines);
        for (int i = 1; i <= Scroll_Lines; ++i)
            layout->addWidget(newText(tr("Line %1").arg(i)));
        sample->cSetEnableScrollBar(true, Scroll_Size);
        sample->cSetCentralWidget(lines);
        open(withBar(sample, Qt::AlignRight));
    });
    card->add(row({ left, centre, right, custom, scrolled }, 12));
    card->add(m_pAnswer = new TextLabel(TextLabel::Caption, this));
}

void WindowsPage::addBehaviour()
{
    Card *card = addCard(QT_TR_NOOP("Among other windows"),
        QT_TR_NOOP("A popup closes with a click outside. A bottom window goes behind a top one that it covers."));
    auto *popup = opener(QT_TR_NOOP("Popup"), [this] {
        CustomMainWindow *sample = newWindow(tr("Popup"), tr("Click outside"), window());
        const QPointer<CustomMainWindow> self(sample);
        sample->cTitleBar()->cSetTitleControls(CustomTitleBar::TitleClose);
        sample->cSetStrechEdges({});
        sample->move(QCursor::pos());
        sample->cPopup();
        if (self)
            self->deleteLater();
    });
    auto *tools = opener(QT_TR_NOOP("Menus, tools, stay on top"), [this] {
        open(withTools(newWindow(tr("With tools"), tr("The pin keeps it on top"), window()), tr("Menu"),
            { tr("An item"), tr("Another") }));
    });
    const auto level = [this](CustomMainWindow::WindowLever lever, const QString &title) {
        CustomMainWindow *sample = newWindow(title, tr("Move the two onto each other"), nullptr);
        sample->cSetWindowLever(lever);
        open(sample);
    };
    auto *levels = opener(QT_TR_NOOP("A top and a bottom window"), [level] {
        level(CustomMainWindow::LeverTop, tr("Top"));
        level(CustomMainWindow::LeverBottom, tr("Bottom"));
    });
    auto *maximised = opener(QT_TR_NOOP("Maximised"), [this] {
        CustomMainWindow *sample = newWindow(tr("Maximised"), tr("A double click on the title restores it"), window());
        open(sample);
        sample->cShowMaximized();
    });
    card->add(row({ popup, tools, levels, maximised }, 12));
}

void WindowsPage::addEdges()
{
    Card *card
        = addCard(QT_TR_NOOP("Stretching"), QT_TR_NOOP("The edges and corners at which the window is stretched."));
    auto *table = new QGridLayout;
    QList<CustomCheckBox *> boxes;
    const QMetaEnum names = QMetaEnum::fromType<CustomMainWindow::StrechEdges>();
    for (int i = 0; i < names.keyCount(); ++i) {
        auto *box = new CustomCheckBox(nameOf(CustomMainWindow::StrechEdge(names.value(i))), this);
        box->setChecked(true);
        boxes << box;
        table->addWidget(box, i / Edge_Columns, i % Edge_Columns);
    }
    card->add(table);
    auto *button = opener(QT_TR_NOOP("Open"), [this, boxes, names] {
        CustomMainWindow::StrechEdges edges;
        for (int i = 0; i < boxes.size(); ++i)
            edges.setFlag(CustomMainWindow::StrechEdge(names.value(i)), boxes.at(i)->isChecked());
        CustomMainWindow *sample = newWindow(tr("Stretch me"), tr("Content"), window());
        sample->cSetStrechEdges(edges);
        sample->cSetMinStrechSize(SmallestStretch);
        open(sample);
    });
    card->add(row({ button }));
}

void WindowsPage::open(CustomMainWindow *window)
{
    window->setAttribute(Qt::WA_DeleteOnClose);
    connect(window, &CustomMainWindow::cSigButtonClick, this, [this, window](int index) {
        m_nAnswer = index;
        showAnswer();
        window->close(); // which buttons of its own don't do by themselves
    });
    window->show();
}

void WindowsPage::showAnswer()
{
    m_pAnswer->setText(m_nAnswer < 0 ? tr("No button was clicked yet") : tr("Button %1 was clicked").arg(m_nAnswer));
}

void WindowsPage::retranslate()
{
    GalleryPage::retranslate();
    showAnswer();
}
