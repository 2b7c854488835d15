#include "GalleryMenus.h"

#include "Appearance.h"
#include "GalleryWindow.h"
#include "pages/PageRegistry.h"

#include <Zanthic/CustomMenu.h>
#include <Zanthic/CustomPushButton.h>
#include <Zanthic/CustomTitleBar.h>

#include <QtWidgets/QActionGroup>

namespace {

constexpr QSize Tool_Size(32, 28);
constexpr int Tool_Spacing = 4;

QKeySequence control(Qt::Key key)
{
    return QKeySequence(int(Qt::CTRL) | int(key));
}

void check(QActionGroup *group, const QString &name)
{
    const QList<QAction *> actions = group->actions();
    for (QAction *action : actions) {
        if (action->objectName() == name)
            action->setChecked(true);
    }
}

} // namespace

GalleryMenus::GalleryMenus(GalleryWindow *window, Appearance *appearance)
    : QObject(window), m_pWindow(window), m_pAppearance(appearance)
{ }

GalleryMenus::~GalleryMenus() = default;

void GalleryMenus::build()
{
    addTool(QStringLiteral("add"), QT_TR_NOOP("New window"), [this] { m_pWindow->openAnother(); });
    addTool(QStringLiteral("download"), QT_TR_NOOP("Save a picture"), [this] { m_pWindow->savePicture(); });
    addTool(QStringLiteral("settings"), QT_TR_NOOP("Next skin"), [this] { m_pAppearance->nextSkin(); });
    addFile();
    addView();
    addHelp();
}

void GalleryMenus::addFile()
{
    CustomMenu *menu = addMenu(QT_TR_NOOP("File"));
    add(menu, QT_TR_NOOP("New window"), control(Qt::Key_N), [this] { m_pWindow->openAnother(); });
    add(menu, QT_TR_NOOP("Save a picture..."), control(Qt::Key_S), [this] { m_pWindow->savePicture(); });
    menu->addSeparator();
    add(menu, QT_TR_NOOP("Close"), control(Qt::Key_Q), [this] { m_pWindow->close(); });
}

void GalleryMenus::addView()
{
    CustomMenu *menu = addMenu(QT_TR_NOOP("View"));
    m_pPages = addChoices(
        addSubmenu(menu, QT_TR_NOOP("Page")), pageNames(), [this](const QString &name) { m_pWindow->openPage(name); });
    CustomMenu *skins = addSubmenu(menu, QT_TR_NOOP("Skin"));
    m_pSkins = addChoices(skins, Appearance::skins(), [this](const QString &name) { m_pAppearance->applySkin(name); });
    CustomMenu *languages = addSubmenu(menu, QT_TR_NOOP("Language"));
    m_pLanguages = addChoices(
        languages, Appearance::languages(), [this](const QString &name) { m_pAppearance->applyLanguage(name); });
    menu->addSeparator();
    add(menu, QT_TR_NOOP("Next skin"), control(Qt::Key_T), [this] { m_pAppearance->nextSkin(); });
    add(menu, QT_TR_NOOP("Next language"), control(Qt::Key_L), [this] { m_pAppearance->nextLanguage(); });
    add(menu, QT_TR_NOOP("Enable or disable the page"), control(Qt::Key_E),
        [this] { m_pWindow->setPageEnabled(!m_pWindow->isPageEnabled()); });
}

void GalleryMenus::addHelp()
{
    CustomMenu *menu = addMenu(QT_TR_NOOP("Help"));
    add(menu, QT_TR_NOOP("About Zanthic"), {}, [this] { m_pWindow->showAbout(); });
}

CustomMenu *GalleryMenus::addMenu(const char *text)
{
    auto *menu = new CustomMenu(m_pWindow);
    CustomPushButton *button = m_pWindow->cTitleBar()->cAddMenu(tr(text), menu);
    m_texts.append({ text, [button](const QString &words) { button->setText(words); } });
    return menu;
}

CustomMenu *GalleryMenus::addSubmenu(CustomMenu *menu, const char *text)
{
    auto *submenu = new CustomMenu(menu);
    menu->addMenu(submenu);
    m_texts.append({ text, [submenu](const QString &words) { submenu->setTitle(words); } });
    return submenu;
}

QAction *GalleryMenus::add(CustomMenu *menu, const char *text, const QKeySequence &key, std::function<void()> act)
{
    QAction *action = menu->addAction(QString());
    action->setShortcut(key);
    // By the user only: showing a choice that was made elsewhere must not make it again.
    connect(action, &QAction::triggered, this, act);
    m_texts.append({ text, [action](const QString &words) { action->setText(words); } });
    return action;
}

QActionGroup *GalleryMenus::addChoices(
    CustomMenu *menu, const QStringList &names, std::function<void(const QString &)> choose)
{
    auto *group = new QActionGroup(menu);
    for (const QString &name : names) {
        QAction *action = group->addAction(menu->addAction(QString()));
        action->setObjectName(name);
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [choose, name] { choose(name); });
    }
    return group;
}

void GalleryMenus::addTool(const QString &icon, const char *tip, std::function<void()> act)
{
    CustomPushButton *tool = m_pWindow->cTitleBar()->cAddToolButton(true, Tool_Spacing);
    tool->cSetStyleSelector(QStringLiteral("LittleBase"));
    tool->cSetIcon(QStringLiteral(":/Zanthic/Icons/%1.png").arg(icon));
    tool->setFixedSize(Tool_Size);
    connect(tool, &CustomPushButton::clicked, this, act);
    m_texts.append({ tip, [tool](const QString &words) { tool->setToolTip(words); } });
}

void GalleryMenus::retranslate()
{
    for (const Text &text : qAsConst(m_texts))
        text.write(tr(text.source));
    for (QActionGroup *group : { m_pSkins, m_pLanguages }) {
        const QList<QAction *> actions = group->actions();
        for (QAction *action : actions)
            action->setText(GalleryWindow::displayName(action->objectName()));
    }
    const QList<QAction *> pages = m_pPages->actions();
    for (int i = 0; i < pages.size(); ++i)
        pages.at(i)->setText(pageTitle(pageEntries().at(i)));
}

void GalleryMenus::showChoices()
{
    check(m_pSkins, m_pAppearance->skin());
    check(m_pLanguages, m_pAppearance->language());
    check(m_pPages, m_pWindow->pageName());
}
