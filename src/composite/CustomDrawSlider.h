#pragma once

#include <Zanthic/CustomWidget.h>

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <memory>

class CustomDrawSliderPrivate;

/// A horizontal slider on 64-bit values, painted by the theme: groove, handle, labels, and values in speech bubbles.
/// CustomSlider is Qt's own slider under the theme's style sheet; take that one for a vertical slider or for keys.
///
/// The track can be cut into equal stretches that stand for ranges of different size, so that a range such as 0 to
/// 60,000 stays usable at its low end. The user reaches at most 1,001 places, and values of 32 bits only.
///
/// The mouse takes the handle where it was last painted, and a click on the track moves it there at the release, with
/// any button. The keyboard and the wheel don't move it.
class ZANTHIC_EXPORT CustomDrawSlider : public CustomWidget
{
    Q_OBJECT

public:
    /// Where the labels stand. Beside the groove there is room for two.
    enum ShowTextPosition : int { TextBeside = 0, TextBelow = 1 };
    Q_ENUM(ShowTextPosition)

    explicit CustomDrawSlider(QWidget *parent = nullptr);
    /// The orientation is ignored.
    explicit CustomDrawSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~CustomDrawSlider() override;

    /// The range, 0 to 100 at first. One wider than 50,000 turns the stages on, and a smaller one later doesn't turn
    /// them off. Values outside are kept.
    void cSetRange(qint64 minimum, qint64 maximum);
    /// Where each stretch of the track begins, as a distance from the minimum, ascending; an empty list stands for 0,
    /// 5,000 and 50,000. Without \p enable the track is of one piece. With a minimum other than 0 a value set by the
    /// program and the same value set by the mouse stand at different places.
    void cSetEnableMultiStage(bool enable, QList<qint64> stages = QList<qint64>());
    /// Takes any value, also one outside the range. Emits nothing.
    void cSetValue(qint64 value);
    qint64 cValue() const;
    /// The grid for values set by the mouse, 1 at first; below 1 there is none. The name is misspelled and stays.
    void cSetSignleStep(qint64 step);
    /// Whether the value is shown in a speech bubble above the handle.
    void cSetShowToolTip(bool show);
    /// Swaps the colours of the groove at both sides of the handle.
    void cSetReverse(bool reverse);
    /// Labels: two beside the groove, each with the room of the first one, or any number below it. A CustomDotSlider
    /// takes its own labels again with a change of language.
    void cSetShowTextTip(bool show, const QStringList &texts, ShowTextPosition position = TextBeside);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user has moved a handle to another value.
    void valueChanged(qlonglong value);
    /// The user has let go of a handle. Comes before the valueChanged() of the release, if there is one.
    void sliderRelease();

protected:
    /// Brings the places of the handles up to date before each paint; a handle that is dragged stays under the mouse.
    virtual void initStyleOption();

    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;

    std::unique_ptr<CustomDrawSliderPrivate> d;

private:
    friend class CustomDrawSliderPrivate;
};
