#pragma once

#include <Zanthic/CustomObject.h>

#include <QtWidgets/QCheckBox>

QT_BEGIN_NAMESPACE
class QStyleOptionButton;
QT_END_NAMESPACE

/// A themed check box, or a sliding switch by its selector. Its indicator is an image of the theme; only the image
/// reacts to the mouse, not the text. With a style sheet of its own it is a plain QCheckBox.
class ZANTHIC_EXPORT CustomCheckBox : public QCheckBox, public CustomObject
{
    Q_OBJECT

public:
    /// The looks of a check box; an unknown value gives the empty selector, which is styled as Default.
    enum StyleSelector : int { Default = 0, GrayWhite = 1, DarkBlack = 2, GraySwitch = 3, DarkSwitch = 4 };
    Q_ENUM(StyleSelector)

    explicit CustomCheckBox(QWidget *parent = nullptr, StyleSelector selector = Default);
    explicit CustomCheckBox(const QString &text, QWidget *parent = nullptr, StyleSelector selector = Default);
    ~CustomCheckBox() override;

    /// "checked", "unchecked" or "partiallyChecked": the sub-selector of the indicator's image.
    QString cSuffixString(Qt::CheckState state) const;
    /// initStyleOption(), for painting elsewhere; null does nothing.
    void initCheckBoxOption(QStyleOptionButton *option) const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user has changed the state by the mouse, to a Qt::CheckState. Keys and setChecked() from code don't emit
    /// this; stateChanged() tells of every change.
    void sigStateChanged(int nState);

protected:
    bool hitButton(const QPoint &pos) const override;
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;
};
