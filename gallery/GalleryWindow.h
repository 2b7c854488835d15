#pragma once

#include <Zanthic/CustomWidget.h>

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

class Appearance;
class CustomCheckBox;
class CustomRadioButton;
class GalleryPage;
class NavigationButton;
class QButtonGroup;
class QHBoxLayout;
class QScrollArea;
class QVBoxLayout;
class TextLabel;

/// The shell of the gallery: the list of pages at the left, the page's title and the choosers at the top, the page
/// itself below. Ctrl+T takes the next skin, Ctrl+L the next language, Ctrl+E enables or disables the page.
class GalleryWindow : public CustomWidget
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

    /// The window with all of its page, stretched as far as the page needs.
    QPixmap picture();

protected:
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;

private:
    QWidget *createSidebar();
    QWidget *createHeader();
    QWidget *createEnableSwitch();
    QWidget *createChooser(const QStringList &names, QButtonGroup *group, TextLabel **caption);
    void createShortcuts();
    void setPageEnabled(bool enabled);
    void showChoices();
    void styleScrollArea();
    void retranslate();

    Appearance *m_pAppearance;
    QString m_pageName;
    GalleryPage *m_pPage = nullptr;
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
