#pragma once

#include "GalleryPage.h"

#include <functional>

class CustomDrawSlider;
class CustomSlider;
class CustomTwoHandleSlider;
class LiveText;

/// Draw sliders of all kinds, and Qt's slider under the theme's style sheet.
class SlidersPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit SlidersPage(QWidget *parent = nullptr);
    ~SlidersPage() override;

    void retranslate() override;

protected:
    void customEvent(QEvent *event) override;

private:
    void addKinds();
    void addTexts();
    void addValues();
    void addRange();
    void addSheetSliders();
    /// A text that is written anew with each value of \p slider.
    LiveText *valueText(CustomDrawSlider *slider, std::function<QString()> words);
    /// \p slider at the left, \p words at the right.
    QWidget *withWords(QWidget *slider, QWidget *words);

    CustomDrawSlider *m_pBeside = nullptr;
    CustomDrawSlider *m_pBelow = nullptr;
    QList<CustomSlider *> m_lstSheetSliders;
    int m_nValues = 0;
    int m_nReleases = 0;
};
