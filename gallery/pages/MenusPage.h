#pragma once

#include "GalleryPage.h"

class CustomMenu;

/// Menus: a picture of one, and buttons that pop them up.
class MenusPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit MenusPage(QWidget *parent = nullptr);
    ~MenusPage() override;

    void retranslate() override;

protected:
    void customEvent(QEvent *event) override;

private:
    void addPictures();
    void addButtons();
    void fill(CustomMenu *menu);
    void refill();
    void showChosen();

    QList<CustomMenu *> m_lstMenus; // those that can be popped up
    TextLabel *m_pChosen = nullptr;
    QString m_chosen;
};
