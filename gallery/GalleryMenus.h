#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtGui/QKeySequence>

#include <functional>

class Appearance;
class CustomMenu;
class CustomPushButton;
class GalleryWindow;
class QAction;
class QActionGroup;

/// The menus and tool buttons in the title bar of the gallery, and the keys that go with them.
class GalleryMenus : public QObject
{
    Q_OBJECT

public:
    GalleryMenus(GalleryWindow *window, Appearance *appearance);
    ~GalleryMenus() override;

    void build(); ///< fills the title bar; to be called once
    void retranslate();
    void showChoices(); ///< checks what is in force

private:
    using Write = std::function<void(const QString &)>;

    CustomMenu *addMenu(const char *text);
    CustomMenu *addSubmenu(CustomMenu *menu, const char *text);
    QAction *add(CustomMenu *menu, const char *text, const QKeySequence &key, std::function<void()> act);
    /// One checkable item for each name, of which one is checked.
    QActionGroup *addChoices(CustomMenu *menu, const QStringList &names, std::function<void(const QString &)> choose);
    void addTool(const QString &icon, const char *tip, std::function<void()> act);
    void addFile();
    void addView();
    void addHelp();

    struct Text
    {
        const char *source;
        Write write;
    };

    GalleryWindow *m_pWindow;
    Appearance *m_pAppearance;
    QList<Text> m_texts;
    QActionGroup *m_pPages = nullptr;
    QActionGroup *m_pSkins = nullptr;
    QActionGroup *m_pLanguages = nullptr;
};
