#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/CustomMainWindow.h>
#include <Zanthic/CustomProcessSlider.h>
#include <Zanthic/CustomSliderSpinBox.h>
#include <Zanthic/CustomSpinBox64.h>

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QWindow>

class CustomSliderSpinBoxPrivate : public QObject
{
public:
    using SliderPosition = CustomSliderSpinBox::SliderPosition;

    CustomSliderSpinBoxPrivate(CustomSliderSpinBox *owner, Custom::CommonStyleSelector style, SliderPosition position);
    ~CustomSliderSpinBoxPrivate() override;

    void setRange(qint64 min, qint64 max);
    void setValue(qint64 value);
    void setInc(qint64 inc);

    bool eventFilter(QObject *watched, QEvent *event) override;

    bool m_bBlock = false; ///< what slider and spin box tell now is an echo
    Custom::CommonStyleSelector m_eStyle;
    qint64 m_nMin = 0;
    qint64 m_nMax = 0;
    qint64 m_nValue = 0;
    qint64 m_nInc = 1;
    CustomSliderSpinBox *q;
    // Guarded, since the application gets hold of them.
    QPointer<CustomProcessSlider> m_pSlider;
    QPointer<CustomSpinBox64> m_pSpinBox;
    SliderPosition m_ePosition;
    QPointer<CustomMainWindow> m_pPopup; ///< null beside an inline slider
    QPointer<QWidget> m_pWatched; ///< the window that holds the control, while the popup is open
    QPointer<QWindow> m_pWatchedHandle; ///< its native side, which sees the presses on its children, too
    QTimer m_oPosTimer; ///< lets the popup follow the spin box
    QPoint m_oLastPos; ///< where the popup hung on the screen at the last look

private:
    void createParts();
    void createPopup();
    void connectParts();
    bool blocked(const std::function<void()> &set);
    void onSliderValueChanged(qint64 value);
    void onSliderReleaseChanged();
    void onSpinBoxValueChanged();
    void onSpinPosTimer();
    void PopupSlider();
    void HideSlider();
    void ResetSliderPopupSize();
    QPoint anchor() const;
    bool endsUse(const QEvent &event) const;
    bool isOutside(const QPoint &globalPos) const;
};
