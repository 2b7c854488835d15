#pragma once

#include <Zanthic/CustomObject.h>

#include <QtWidgets/QPushButton>

#include <memory>

class CustomPushButtonPrivate;

/// A themed push button with an icon at any side of its text. With a style sheet of its own it is a plain
/// QPushButton.
class ZANTHIC_EXPORT CustomPushButton : public QPushButton, public CustomObject
{
    Q_OBJECT

public:
    /// The looks of a button; an unknown value gives the empty selector, which is styled as Default.
    enum StyleSelector : int { Default = 0, GrayWhite = 1, DarkBlack = 2, LittleBase = 3, MiddleBase = 4 };
    Q_ENUM(StyleSelector)

    explicit CustomPushButton(QWidget *parent = nullptr, StyleSelector selector = Default);
    explicit CustomPushButton(const QString &text, QWidget *parent = nullptr, StyleSelector selector = Default);
    ~CustomPushButton() override;

    void cSetButtonStyleSelector(StyleSelector selector);
    /// Presses and moves also go on to the parent, and releases with cSetControlClickEvent(); the button still reacts
    /// to them.
    void cSetIgnoreMouseEvent(bool ignore);
    /// The button ignores presses and releases for 100 ms after a click. Off at start.
    void cSetControlClickEvent(bool enable);
    /// An image behind the content, scaled to the button; shown when the flag ParamBaseBackgroundImage is set and
    /// there is no background colour.
    void cSetBaseBackgroundImage(
        const QString &path, Custom::ItemStatus status = Custom::Normal, const QStringList &selectors = QStringList());
    /// The icon of one status; that of Normal is also the button's icon() and serves statuses without one.
    void cSetIcon(const QString &path, Custom::ItemStatus status = Custom::Normal);
    void cSetBackgroundAlign(Qt::Alignment alignment); ///< where the background image stands
    void cSetIconAlign(Qt::Alignment alignment); ///< at which side of the text the icon stands

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;

private:
    friend class CustomPushButtonPrivate;
    std::unique_ptr<CustomPushButtonPrivate> d;
};
