#include "DocksPage.h"

#include "parts/Card.h"
#include "parts/Roomy.h"
#include "parts/Snapshot.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomComboBox.h>
#include <Zanthic/CustomDockTitleBar.h>
#include <Zanthic/CustomDockWidget.h>
#include <Zanthic/CustomLabel.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomToolBar.h>

#include <QtCore/QEvent>
#include <QtCore/QRegularExpression>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QMainWindow>

#include <memory>

namespace {

constexpr int Window_Height = 340;
constexpr QSize Picture_Size(240, 128);
constexpr int Title_Height = 32;
constexpr int ToolBar_Height = 48;
constexpr int Tool_Gap = 12;

/// A title row with the room of the other title bars; the hint of the row itself is tight.
class TitleBar : public CustomDockTitleBar
{
public:
    using CustomDockTitleBar::CustomDockTitleBar;

    QSize sizeHint() const override { return CustomDockTitleBar::sizeHint().expandedTo(QSize(0, Title_Height)); }
};

/// A dock with its title row and a content, which goes when the dock is collapsed.
class TitledDock
{
public:
    explicit TitledDock(QWidget *content) : dock(new CustomDockWidget), bar(new TitleBar(dock))
    {
        // The close button comes without a look of its own.
        auto *close = bar->findChild<CustomPushButton *>();
        close->cSetClassName(QStringLiteral("GalleryDockClose"));
        dock->setTitleBarWidget(bar);
        dock->setWidget(content);
        QObject::connect(bar, &CustomDockTitleBar::SigExpandBtn, content, [content, dock = dock](bool expanded) {
            content->setVisible(expanded);
            dock->setMaximumHeight(expanded ? QWIDGETSIZE_MAX : Title_Height);
        });
    }

    void setTitle(const QString &title) const
    {
        bar->SetTitle(title);
        dock->setWindowTitle(title);
    }

    CustomDockWidget *dock;
    CustomDockTitleBar *bar;
};

QPixmap pictureOfDock(bool expanded)
{
    auto *content = new TextLabel(TextLabel::Body);
    content->setText(DocksPage::tr("Content"));
    content->setAlignment(Qt::AlignCenter);
    const TitledDock titled(content);
    const std::unique_ptr<CustomDockWidget> owner(titled.dock);
    titled.setTitle(DocksPage::tr("Layers"));
    titled.dock->resize(Picture_Size);
    if (!expanded) {
        titled.bar->OnExpand();
        titled.dock->resize(Picture_Size.width(), Title_Height);
    }
    return Snapshot::ofWindow(titled.dock, 0);
}

} // namespace

DocksPage::DocksPage(QWidget *parent) : GalleryPage(parent)
{
    addWindow();
    addPictures();
}

DocksPage::~DocksPage() = default;

void DocksPage::addWindow()
{
    Card *card = addCard(QT_TR_NOOP("Docks and a tool bar in a window"),
        QT_TR_NOOP(
            "Drag a dock by its title, also out of the window. Collapsing it is up to the program, which is told."));
    m_pWindow = new QMainWindow;
    m_pWindow->setWindowFlags(Qt::Widget);
    m_pWindow->setFixedHeight(Window_Height);
    m_pWindow->setMenuWidget(createToolBar());
    m_pWindow->setCentralWidget(createContent());
    addDock(QT_TR_NOOP("Layers"), { QT_TR_NOOP("Streets"), QT_TR_NOOP("Rivers") });
    addDock(QT_TR_NOOP("Extras"), { QT_TR_NOOP("Scale"), QT_TR_NOOP("Legend") });
    showDocks(Qt::LeftDockWidgetArea);
    card->add(m_pWindow);
}

CustomToolBar *DocksPage::createToolBar()
{
    auto *bar = new CustomToolBar(this);
    bar->setFixedHeight(ToolBar_Height);
    translated(bar->cAddLabel(), QT_TR_NOOP("Docks"));
    bar->cAddSpacing(Tool_Gap);
    CustomComboBox *area = bar->cAddCommBox();
    const char *const areas[] = { QT_TR_NOOP("at the left"), QT_TR_NOOP("at the right") };
    for (int i = 0; i < 2; ++i) {
        area->addItem(QString());
        addText(areas[i], [area, i](const QString &words) { area->setItemText(i, words); });
    }
    area->setFixedWidth(144);
    bar->cAddSpacing(Tool_Gap);
    bar->cAddSeperator();
    bar->cAddSpacing(Tool_Gap);
    auto *showAll = translated(bar->cAddButton(new Roomy<CustomPushButton>(bar)), QT_TR_NOOP("Show all"));
    bar->cAddSpacing(Tool_Gap);
    auto *floating = translated(
        bar->cAddButton(new Roomy<CustomPushButton>(bar, CustomPushButton::MiddleBase)), QT_TR_NOOP("Float"));
    bar->cAddEnd();
    translated(bar->cAddLabel(), QT_TR_NOOP("The end of the row"));
    const auto chosenArea
        = [area] { return area->currentIndex() == 0 ? Qt::LeftDockWidgetArea : Qt::RightDockWidgetArea; };
    const auto show = [this, chosenArea] { showDocks(chosenArea()); };
    connect(area, QOverload<int>::of(&QComboBox::activated), this, show);
    connect(showAll, &CustomPushButton::clicked, this, show);
    connect(floating, &CustomPushButton::clicked, this, [this] {
        m_lstDocks.constLast()->show();
        m_lstDocks.constLast()->setFloating(true);
    });
    return bar;
}

QWidget *DocksPage::createContent()
{
    auto *content = new CustomFrame(this);
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(text(QT_TR_NOOP("What the window is about"), TextLabel::Caption), 0, Qt::AlignCenter);
    return content;
}

void DocksPage::addDock(const char *title, const QVector<const char *> &options)
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(14, 8, 14, 8);
    for (const char *option : options)
        layout->addWidget(translated(new CustomCheckBox(content), option));
    layout->addStretch(1);
    const TitledDock titled(content);
    addText(title, [titled](const QString &words) { titled.setTitle(words); });
    m_lstDocks << titled.dock;
}

void DocksPage::showDocks(Qt::DockWidgetArea area)
{
    for (CustomDockWidget *dock : qAsConst(m_lstDocks)) {
        dock->setFloating(false);
        m_pWindow->addDockWidget(area, dock);
        dock->show();
    }
}

void DocksPage::addPictures()
{
    Card *card = addCard(QT_TR_NOOP("By itself"), QT_TR_NOOP("A dock that isn't docked is a window without a frame."));
    const QList<QWidget *> pictures
        = { captioned(new Snapshot([] { return pictureOfDock(true); }), QT_TR_NOOP("expanded")),
              captioned(new Snapshot([] { return pictureOfDock(false); }), QT_TR_NOOP("collapsed")) };
    QBoxLayout *line = row(pictures);
    for (QWidget *picture : pictures)
        line->setAlignment(picture, Qt::AlignTop);
    card->add(line);
}

void DocksPage::customEvent(QEvent *event)
{
    if (int(event->type()) != ChangeSkinEvent::EventType)
        return;
    // They keep the background of the skin in which they were made.
    const QString color = Custom::getDataBaseColor(QStringLiteral("Custom_DockWidget_Background")).color().name();
    for (CustomDockWidget *dock : qAsConst(m_lstDocks))
        dock->setStyleSheet(dock->styleSheet().replace(QRegularExpression(QStringLiteral("#[0-9a-f]{6}")), color));
}
