#pragma once

#include "GalleryPage.h"

class CustomSlider;
class CustomSliderSpinBox;
class LiveText;

/// Spin boxes, alone and with a slider.
class SpinBoxesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit SpinBoxesPage(QWidget *parent = nullptr);
    ~SpinBoxesPage() override;

protected:
    void customEvent(QEvent *event) override;

private:
    void addLooks();
    void addRanges();
    void addSignals();
    void addSliders();
    /// Adds a line that counts the signals of \p control.
    template <class Control, class Signal>
    void addCounts(QGridLayout *table, Control *control, Signal valueChanged);
    /// A number that goes up with each call of what is returned.
    std::function<void()> counter(QGridLayout *table, int line, int column);
    /// A text with the value of \p control and with the counts of its signals.
    LiveText *stateOf(CustomSliderSpinBox *control, const char *caption);

    CustomSlider *m_pSlider = nullptr;
};
