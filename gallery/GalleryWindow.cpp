#include "GalleryWindow.h"

#include "Appearance.h"
#include "GalleryMenus.h"
#include "pages/GalleryPage.h"
#include "pages/PageRegistry.h"
#include "parts/NavigationButton.h"
#include "parts/Snapshot.h"
#include "parts/TextLabel.h"
#include "parts/WindowKeys.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/CustomCheckBox.h>
#include <Zanthic/CustomFrame.h>
#include <Zanthic/CustomMessageBox.h>
#include <Zanthic/CustomRadioButton.h>
#include <Zanthic/CustomTitleBar.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

namespace {

constexpr QSize StartSize(1272, 840);
constexpr CustomMainWindow::StrechEdges AllEdges(255);
constexpr QSize Caption_Size(160, 32);
constexpr int SidebarWidth = 224;
constexpr int Margin = 24;
constexpr int Stretch_Margin = 8; // beside the scroll bars, which would take the presses for stretching
constexpr int Gap = 8;
constexpr int Setting_Height = 32;

CustomFrame *createPanel(const QString &className, QWidget *parent)
{
    auto *panel = new CustomFrame(parent);
    panel->cSetClassName(className);
    return panel;
}

/// Lays out one of the settings in the header: a caption, and the row of its controls below.
void addSetting(QWidget *area, QWidget *caption, QLayout *controls)
{
    auto *row = new QWidget(area);
    row->setFixedHeight(Setting_Height);
    controls->setContentsMargins(0, 0, 0, 0);
    row->setLayout(controls);
    auto *layout = new QVBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(caption);
    layout->addWidget(row);
}

} // namespace

GalleryWindow::GalleryWindow(Appearance *appearance, QWidget *parent)
    : CustomMainWindow(parent),
      m_pAppearance(appearance),
      m_pMenus(new GalleryMenus(this, appearance)),
      m_pScrollArea(new QScrollArea(this)),
      m_pSkinGroup(new QButtonGroup(this)),
      m_pLanguageGroup(new QButtonGroup(this))
{
    new WindowKeys(this);
    m_pScrollArea->setObjectName(QStringLiteral("page"));
    m_pScrollArea->setWidgetResizable(true);
    m_pScrollArea->setFrameShape(QFrame::NoFrame);
    m_pScrollArea->setFocusPolicy(Qt::NoFocus);
    m_pScrollArea->setCornerWidget(new QWidget); // which paints nothing

    setUpTitleBar();
    createContent();
    cSetStrechEdges(AllEdges);
    // By clicks only: showing a choice that was made elsewhere must not make it again.
    const auto clicked = QOverload<QAbstractButton *>::of(&QButtonGroup::buttonClicked);
    connect(m_pSkinGroup, clicked, this,
        [this](QAbstractButton *chosen) { m_pAppearance->applySkin(chosen->objectName()); });
    connect(m_pLanguageGroup, clicked, this,
        [this](QAbstractButton *chosen) { m_pAppearance->applyLanguage(chosen->objectName()); });
    connect(m_pAppearance, &Appearance::skinChanged, this, &GalleryWindow::showChoices);
    connect(m_pAppearance, &Appearance::languageChanged, this, &GalleryWindow::showChoices);
    styleScrollArea();
    showChoices();
    retranslate();
    resize(StartSize);
}

GalleryWindow::~GalleryWindow() = default;

void GalleryWindow::setUpTitleBar()
{
    cTitleBar()->cSetTitleIsCustom(true);
    cTitleBar()->cSetCustomTextSize(Caption_Size);
    cTitleBar()->cSetTitleIcon(QStringLiteral(":/Zanthic/TitleBar/Icon.png"));
    m_pMenus->build();
}

void GalleryWindow::createContent()
{
    auto *content = new QWidget(this);
    auto *right = new QVBoxLayout;
    right->setSpacing(0);
    right->addWidget(createHeader());
    auto *page = new QHBoxLayout;
    page->setContentsMargins(0, 0, Stretch_Margin, Stretch_Margin);
    page->addWidget(m_pScrollArea);
    right->addLayout(page, 1);
    auto *all = new QHBoxLayout(content);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(createSidebar());
    all->addLayout(right, 1);
    cSetCentralWidget(content);
}

QWidget *GalleryWindow::createSidebar()
{
    CustomFrame *sidebar = createPanel(QStringLiteral("GallerySidebar"), this);
    sidebar->setFixedWidth(SidebarWidth);
    auto *layout = new QVBoxLayout(sidebar);
    layout->setContentsMargins(Gap * 2, Margin, Gap * 2, Margin);
    layout->setSpacing(2);

    auto *product = new TextLabel(TextLabel::Title, sidebar);
    product->setText(QStringLiteral("Zanthic"));
    m_pPagesCaption = new TextLabel(TextLabel::Caption, sidebar);
    layout->addWidget(product);
    layout->addWidget(m_pPagesCaption);
    layout->addSpacing(Gap * 2);
    for (const PageEntry &entry : pageEntries()) {
        auto *button = new NavigationButton(sidebar);
        const QString name = entry.name;
        connect(button, &NavigationButton::clicked, this, [this, name] { openPage(name); });
        layout->addWidget(button);
        m_lstNavigation << button;
    }
    layout->addStretch(1);
    m_pKeysCaption = new TextLabel(TextLabel::Caption, sidebar);
    m_pKeysCaption->setWordWrap(true);
    layout->addWidget(m_pKeysCaption);
    return sidebar;
}

QWidget *GalleryWindow::createHeader()
{
    CustomFrame *header = createPanel(QStringLiteral("GalleryHeader"), this);
    auto *titles = new QVBoxLayout;
    titles->setSpacing(4);
    titles->addWidget(m_pTitle = new TextLabel(TextLabel::Title, header));
    titles->addWidget(m_pSubtitle = new TextLabel(TextLabel::Caption, header));

    auto *layout = new QHBoxLayout(header);
    layout->setContentsMargins(Margin, Gap * 2, Margin, Gap * 2);
    layout->setSpacing(Margin);
    layout->addLayout(titles, 1);
    layout->addWidget(createChooser(Appearance::skins(), m_pSkinGroup, &m_pSkinCaption));
    layout->addWidget(createChooser(Appearance::languages(), m_pLanguageGroup, &m_pLanguageCaption));
    layout->addWidget(createEnableSwitch());
    return header;
}

QWidget *GalleryWindow::createChooser(const QStringList &names, QButtonGroup *group, TextLabel **caption)
{
    auto *chooser = new QWidget(this);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Gap * 2);
    for (const QString &name : names) {
        auto *button = new CustomRadioButton(displayName(name), chooser);
        button->setObjectName(name);
        group->addButton(button);
        buttons->addWidget(button);
    }
    addSetting(chooser, *caption = new TextLabel(TextLabel::Caption, chooser), buttons);
    return chooser;
}

QWidget *GalleryWindow::createEnableSwitch()
{
    auto *area = new QWidget(this);
    m_pEnabled = new CustomCheckBox(area, CustomCheckBox::GraySwitch);
    m_pEnabled->setChecked(true);
    connect(m_pEnabled, &CustomCheckBox::toggled, this, &GalleryWindow::setPageEnabled);
    auto *row = new QHBoxLayout;
    row->addWidget(m_pEnabled);
    row->addStretch(1);
    addSetting(area, m_pEnabledCaption = new TextLabel(TextLabel::Caption, area), row);
    return area;
}

// Skins are named by the theme, languages by themselves.
QString GalleryWindow::displayName(const QString &name)
{
    if (name == QLatin1String("light"))
        return tr("Light");
    if (name == QLatin1String("dark"))
        return tr("Dark");
    if (name == QLatin1String("en_US"))
        return QStringLiteral("English");
    if (name == QLatin1String("zh_CN"))
        return QStringLiteral("\u7b80\u4f53\u4e2d\u6587");
    return name;
}

void GalleryWindow::openPage(const QString &name)
{
    GalleryPage *page = createPage(name, m_pScrollArea);
    if (!page)
        return;
    m_pageName = name;
    m_pPage = page;
    m_pScrollArea->setWidget(page); // deletes the page before
    page->setAutoFillBackground(false);
    m_pScrollArea->viewport()->setAutoFillBackground(false);
    m_pPage->setEnabled(m_pEnabled->isChecked());
    showChoices();
    retranslate();
}

void GalleryWindow::setPageEnabled(bool enabled)
{
    m_pEnabled->setChecked(enabled);
    if (m_pPage)
        m_pPage->setEnabled(enabled);
    showChoices();
}

bool GalleryWindow::isPageEnabled() const
{
    return m_pEnabled->isChecked();
}

void GalleryWindow::savePicture()
{
    const QString path = Custom::getSaveFileName(this, tr("Save a picture of the page"), QDir::homePath(),
        tr("Pictures (*.png)"), m_pageName + QStringLiteral(".png"), QStringLiteral("png"));
    if (path.isEmpty() || !m_pPage)
        return;
    QPixmap picture(m_pPage->size() * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(cBackgroundColor().color());
    m_pPage->render(&picture, {}, {}, DrawChildren);
    if (!picture.save(path))
        CustomMessageBox::warning(this, path, {}, ButtonOk, tr("Saving failed"));
}

void GalleryWindow::openAnother()
{
    auto *window = new GalleryWindow(m_pAppearance);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->openPage(m_pageName);
    window->show();
}

void GalleryWindow::showAbout()
{
    CustomMessageBox::information(
        this, Custom::version(), {}, ButtonOk, tr("Zanthic: themed desktop widgets for Qt 5"));
}

QPixmap GalleryWindow::picture()
{
    // The window finishes itself when it is shown. As a child of what stays hidden, it doesn't appear.
    const bool wasVisible = isVisible();
    const Qt::WindowFlags flags = windowFlags();
    QWidget host;
    if (!wasVisible) {
        setParent(&host);
        Snapshot::showAll(this);
    }
    // A page may wrap its texts differently once the scroll bar is gone, hence the second turn.
    for (int turn = 0; turn < 2 && m_pPage; ++turn) {
        QCoreApplication::sendPostedEvents();
        grab(QRect(0, 0, 1, 1)); // lays out a window that isn't shown, too
        const int needed
            = qMax(m_pPage->heightForWidth(m_pScrollArea->viewport()->width()), m_pPage->minimumSizeHint().height());
        const int change = needed - m_pScrollArea->viewport()->height();
        resize(width(), qMax(height() + change, minimumSizeHint().height()));
    }
    const QPixmap all = Snapshot::rounded(grab(), cBorderRadius(Custom::AllCorner));
    if (!wasVisible)
        setParent(nullptr, flags);
    return all;
}

void GalleryWindow::showChoices()
{
    const auto check = [](QButtonGroup *group, const QString &name) {
        const QList<QAbstractButton *> buttons = group->buttons();
        for (QAbstractButton *button : buttons) {
            if (button->objectName() == name)
                button->setChecked(true);
        }
    };
    check(m_pSkinGroup, m_pAppearance->skin());
    check(m_pLanguageGroup, m_pAppearance->language());
    m_pMenus->showChoices();
}

void GalleryWindow::styleScrollArea()
{
    const QString sheet = Custom::styleSheet(Custom::SheetScrollBar);
    m_pScrollArea->verticalScrollBar()->setStyleSheet(sheet);
    m_pScrollArea->horizontalScrollBar()->setStyleSheet(sheet);
}

void GalleryWindow::retranslate()
{
    const QVector<PageEntry> &entries = pageEntries();
    for (int i = 0; i < entries.size(); ++i) {
        const bool current = entries.at(i).name == m_pageName;
        const QString title = pageTitle(entries.at(i));
        m_lstNavigation.at(i)->setText(title);
        m_lstNavigation.at(i)->setCurrent(current);
        if (current) {
            m_pTitle->setText(title);
            m_pSubtitle->setText(pageSummary(entries.at(i)));
        }
    }
    m_pPagesCaption->setText(tr("Control gallery"));
    m_pKeysCaption->setText(tr("Ctrl+T next skin\nCtrl+L next language\nCtrl+E enable or disable"));
    m_pSkinCaption->setText(tr("Skin"));
    m_pLanguageCaption->setText(tr("Language"));
    m_pEnabledCaption->setText(tr("Page enabled"));
    const QList<QAbstractButton *> skins = m_pSkinGroup->buttons();
    for (QAbstractButton *button : skins)
        button->setText(displayName(button->objectName()));
    cTitleBar()->cSetTitleText(tr("Zanthic gallery"));
    setWindowTitle(tr("Zanthic gallery"));
    m_pMenus->retranslate();
}

bool GalleryWindow::event(QEvent *event)
{
    const bool done = CustomMainWindow::event(event);
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show)
        cSetMinStrechSize(minimumSizeHint());
    return done;
}

void GalleryWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    CustomMainWindow::changeEvent(event);
}

void GalleryWindow::customEvent(QEvent *event)
{
    CustomMainWindow::customEvent(event);
    if (int(event->type()) == ChangeSkinEvent::EventType)
        styleScrollArea();
}
