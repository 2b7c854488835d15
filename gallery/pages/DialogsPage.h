#pragma once

#include "GalleryPage.h"

#include "parts/Roomy.h"

#include <Zanthic/CustomPushButton.h>

/// Message boxes and file dialogs: pictures of the boxes, and buttons that ask.
class DialogsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit DialogsPage(QWidget *parent = nullptr);
    ~DialogsPage() override;

    void retranslate() override;

private:
    void addPictures();
    void addNotices();
    void addTexts();
    void addFiles();
    Roomy<CustomPushButton> *asker(const char *words, std::function<QString()> ask);
    void showAnswer();

    TextLabel *m_pAnswer = nullptr;
    QString m_answer;
};
