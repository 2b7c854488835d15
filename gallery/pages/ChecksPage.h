#pragma once

#include "GalleryPage.h"

#include <Zanthic/CustomCheckBox.h>

class QGridLayout;

/// Check boxes, switches and radio buttons in every look, state and status.
class ChecksPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ChecksPage(QWidget *parent = nullptr);
    ~ChecksPage() override;

    void retranslate() override;

private:
    using Selector = CustomCheckBox::StyleSelector;

    void addBoxes();
    void addSwitches();
    void addRadioButtons();
    void addSignals();
    /// One line for each state of a look, with a live control beside.
    void addStates(QGridLayout *table, Selector selector, const char *text);
    void showChanges();

    CustomCheckBox *m_pCounted = nullptr;
    TextLabel *m_pChanges = nullptr;
    int m_nChanges = 0;
};
