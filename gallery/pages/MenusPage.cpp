#include "MenusPage.h"

#include "parts/Card.h"
#include "parts/Roomy.h"
#include "parts/Snapshot.h"

#include <Zanthic/CInterWidgetMenu.h>
#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomFrame.h>
#include <Zanthic/CustomMenu.h>
#include <Zanthic/CustomPushButton.h>

#include <QtWidgets/QBoxLayout>

namespace {

constexpr QSize ContextArea_Size(240, 32);

QIcon icon(const char *name)
{
    QIcon icon(QStringLiteral(":/Zanthic/Icons/%1.png").arg(QLatin1String(name)));
    icon.addFile(QStringLiteral(":/Zanthic/Icons/%1-disabled.png").arg(QLatin1String(name)), {}, QIcon::Disabled);
    return icon;
}

QAction *checkable(QAction *action, bool checked)
{
    action->setCheckable(true);
    action->setChecked(checked);
    return action;
}

/// The menu as it looks when it is open, with the pointer on \p active, which may be null.
QPixmap pictureOf(CustomMenu *menu, QAction *active)
{
    menu->ensurePolished();
    menu->grab(); // takes the theme's font, which the size depends on
    menu->resize(menu->sizeHint());
    menu->setActiveAction(active);
    return Snapshot::rounded(menu->grab(), menu->cBorderRadius(Custom::AllCorner));
}

/// A widget to stand in a menu.
QWidget *newPanel(const QString &words, const QString &button)
{
    auto *panel = new QWidget;
    auto *layout = new QVBoxLayout(panel);
    auto *label = new TextLabel(TextLabel::Body, panel);
    label->setText(words);
    layout->addWidget(label);
    layout->addWidget(new Roomy<CustomPushButton>(button, panel));
    return panel;
}

} // namespace

MenusPage::MenusPage(QWidget *parent) : GalleryPage(parent)
{
    addPictures();
    addButtons();
}

MenusPage::~MenusPage() = default;

void MenusPage::addPictures()
{
    Card *card = addCard(QT_TR_NOOP("A menu"),
        QT_TR_NOOP("Icons, shortcuts, lines, checked and disabled items; the mark and the arrow stand at the end."));
    auto *whole = new Snapshot([this] {
        CustomMenu menu;
        fill(&menu);
        return pictureOf(&menu, menu.actions().constFirst());
    });
    auto *submenu = new Snapshot([this] {
        CustomMenu menu;
        fill(&menu);
        const QList<QAction *> actions = menu.actions();
        for (QAction *action : actions) {
            if (auto *sub = qobject_cast<CustomMenu *>(action->menu()))
                return pictureOf(sub, sub->actions().constLast());
        }
        return QPixmap();
    });
    auto *widget = new Snapshot([] {
        CInterWidgetMenu menu(newPanel(tr("Any widget"), tr("Button")));
        menu.resize(menu.sizeHint());
        return Snapshot::rounded(menu.grab(), menu.cBorderRadius(Custom::AllCorner));
    });
    card->add(row({ captioned(whole, QT_TR_NOOP("a menu")), captioned(submenu, QT_TR_NOOP("its submenu")),
        captioned(widget, QT_TR_NOOP("a widget in a menu")) }));
}

void MenusPage::addButtons()
{
    Card *card = addCard(QT_TR_NOOP("Live, to try"), QT_TR_NOOP("By a button, or by a right click into the field."));
    auto *button
        = translated(new Roomy<CustomPushButton>(this, CustomPushButton::MiddleBase), QT_TR_NOOP("Open a menu"));
    auto *area = new CustomFrame(this);
    area->setFixedSize(ContextArea_Size);
    area->setContextMenuPolicy(Qt::CustomContextMenu);
    auto *layout = new QVBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text(QT_TR_NOOP("Right click here"), TextLabel::Caption), 0, Qt::AlignCenter);
    for (int i = 0; i < 2; ++i)
        m_lstMenus << new CustomMenu(this);
    button->setMenu(m_lstMenus.constFirst());
    connect(area, &QWidget::customContextMenuRequested, this,
        [this, area](const QPoint &position) { m_lstMenus.constLast()->popup(area->mapToGlobal(position)); });
    m_pChosen = new TextLabel(TextLabel::Body, this);
    card->add(row({ button, area, m_pChosen }));
}

void MenusPage::fill(CustomMenu *menu)
{
    menu->addAction(icon("add"), tr("New"))->setShortcut(QKeySequence(int(Qt::CTRL) | int(Qt::Key_1)));
    menu->addAction(icon("download"), tr("Download"))->setShortcut(QKeySequence(int(Qt::CTRL) | int(Qt::Key_2)));
    menu->addAction(icon("delete"), tr("Delete"))->setEnabled(false);
    menu->addSeparator();
    checkable(menu->addAction(tr("Show hidden files")), true);
    checkable(menu->addAction(tr("Show previews")), false);
    checkable(menu->addAction(tr("Checked for good")), true)->setEnabled(false);
    menu->addSeparator();
    auto *sort = new CustomMenu(tr("Sort by"), menu);
    menu->addMenu(sort);
    checkable(sort->addAction(tr("Name")), true);
    checkable(sort->addAction(tr("Size")), false);
    sort->addAction(tr("Something else..."));
    CInterWidgetMenu *panel = menu->cAddCustomWidgetMenu(newPanel(tr("Any widget"), tr("Button")));
    panel->setTitle(tr("A widget"));
    auto *off = new CustomMenu(tr("Not now"), menu);
    menu->addMenu(off)->setEnabled(false);
    connect(menu, &QMenu::triggered, this, [this](const QAction *action) {
        m_chosen = action->text();
        showChosen();
    });
}

void MenusPage::showChosen()
{
    m_pChosen->setText(m_chosen.isEmpty() ? tr("Nothing was chosen") : tr("Chosen: %1").arg(m_chosen));
}

void MenusPage::retranslate()
{
    GalleryPage::retranslate();
    m_chosen.clear();
    showChosen();
    refill();
}

void MenusPage::refill()
{
    for (CustomMenu *menu : qAsConst(m_lstMenus)) {
        menu->disconnect(this);
        menu->clear();
        qDeleteAll(menu->findChildren<CustomMenu *>(QString(), Qt::FindDirectChildrenOnly));
        fill(menu);
    }
}

void MenusPage::customEvent(QEvent *event)
{
    // Icons keep the pictures of the skin in which they were made.
    if (int(event->type()) == ChangeSkinEvent::EventType)
        refill();
}
