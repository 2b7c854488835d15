#pragma once

#include <Zanthic/CustomMainWindow.h>

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

class Appearance;
class CustomCheckBox;
class CustomRadioButton;
class GalleryMenus;
class GalleryPage;
class NavigationButton;
class QButtonGroup;
class QHBoxLayout;
class QScrollArea;
class QVBoxLayout;
class TextLabel;

/// The shell of the gallery: menus in the title bar, the list of pages at the left, the page's title and the choosers
/// at the top, the page itself below. Ctrl+T takes the next skin, Ctrl+L the next language, Ctrl+E enables or disables
/// the page.
class GalleryWindow : public CustomMainWindow
{
    Q_OBJECT

public:
    /// \p appearance isn't owned, must outlive the window, and has been started.
    explicit GalleryWindow(Appearance *appearance, QWidget *parent = nullptr);
    ~GalleryWindow() override;

    /// Shows the page \p name; an unknown name changes nothing.
    void openPage(const QString &name);
    GalleryPage *page() const { return m_pPage; } ///< null until a page was opened
    QString pageName() const { return m_pageName; }

    void setPageEnabled(bool enabled);
    bool isPageEnabled() const;
    void savePicture(); ///< asks where to
    void openAnother(); ///< a second window, which owns itself, with the same page
    void showAbout();
    /// The name of a skin or a language that the user reads.
    static QString displayName(const QString &name);

    /// The window with all of its page, stretched as far as the page needs.
    QPixmap picture();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;

private:
    void setUpTitleBar();
    void createContent();
    QWidget *createSidebar();
    QWidget *createHeader();
    QWidget *createEnableSwitch();
    QWidget *createChooser(const QStringList &names, QButtonGroup *group, TextLabel **caption);
    void showChoices();
    void styleScrollArea();
    void retranslate();

    Appearance *m_pAppearance;
    QString m_pageName;
    GalleryPage *m_pPage = nullptr;
    GalleryMenus *m_pMenus;
    QScrollArea *m_pScrollArea;
    QList<NavigationButton *> m_lstNavigation;
    QButtonGroup *m_pSkinGroup;
    QButtonGroup *m_pLanguageGroup;
    TextLabel *m_pTitle = nullptr;
    TextLabel *m_pSubtitle = nullptr;
    TextLabel *m_pPagesCaption = nullptr;
    TextLabel *m_pKeysCaption = nullptr;
    TextLabel *m_pSkinCaption = nullptr;
    TextLabel *m_pLanguageCaption = nullptr;
    TextLabel *m_pEnabledCaption = nullptr;
    CustomCheckBox *m_pEnabled = nullptr;
};
