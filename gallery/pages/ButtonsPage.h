#pragma once

#include "GalleryPage.h"

class CustomPushButton;

/// Push buttons in every look and status, with icons, images and the click guard.
class ButtonsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ButtonsPage(QWidget *parent = nullptr);
    ~ButtonsPage() override;

    void retranslate() override;

    CustomPushButton *guardedButton() const { return m_guarded.button; }
    int guardedClicks() const { return m_guarded.clicks; } ///< clicks counted since the page was opened

private:
    struct Counter
    {
        CustomPushButton *button = nullptr;
        TextLabel *label = nullptr;
        int clicks = 0;
    };

    void addLooks();
    void addIcons();
    void addImages();
    void addGuard();
    QWidget *addCounter(Counter *counter, const char *source);
    void showClicks(const Counter &counter);

    Counter m_guarded;
    Counter m_plain;
};
