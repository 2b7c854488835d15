#pragma once

#include "GalleryPage.h"

class CustomLabel;

/// Labels, lines and group boxes.
class LabelsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit LabelsPage(QWidget *parent = nullptr);
    ~LabelsPage() override;

    void retranslate() override;

private:
    void addLooks();
    void addTexts();
    void addLines();
    void addGroupBoxes();

    CustomLabel *m_pElided = nullptr;
    CustomLabel *m_pClickable = nullptr;
    TextLabel *m_pGroupState = nullptr;
    int m_nClicks = 0;
    int m_nGroup = -1; // the box that was toggled last, and how
    bool m_bGroupOn = false;
};
