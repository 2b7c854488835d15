#pragma once

#include "GalleryPage.h"

#include "parts/Roomy.h"

#include <Zanthic/CustomMainWindow.h>
#include <Zanthic/CustomPushButton.h>

class CustomCheckBox;

/// Windows: pictures of some, and buttons that open them.
class WindowsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit WindowsPage(QWidget *parent = nullptr);
    ~WindowsPage() override;

    void retranslate() override;

private:
    void addPictures();
    void addSamples();
    void addBehaviour();
    void addEdges();
    Roomy<CustomPushButton> *opener(const char *words, std::function<void()> open);
    /// Shows \p window, which deletes itself when it is closed, and tells of its buttons.
    void open(CustomMainWindow *window);
    void showAnswer();

    TextLabel *m_pAnswer = nullptr;
    int m_nAnswer = -1; // the button that was clicked last
};
