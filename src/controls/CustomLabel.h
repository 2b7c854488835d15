#pragma once

#include <Zanthic/CustomObject.h>

#include <QtWidgets/QLabel>

/// A themed text or picture with a border underneath it, painted by QLabel. It takes two looks from the theme: that of
/// Custom::Hover while the pointer is over it, and that of Custom::Normal at its first show, after the pointer has
/// left, after a change of selector or skin, and as soon as one of its values is set. It doesn't show Pressed and
/// Disabled.
class ZANTHIC_EXPORT CustomLabel : public QLabel, public CustomObject
{
    Q_OBJECT

public:
    explicit CustomLabel(QWidget *parent = nullptr);
    explicit CustomLabel(const QString &text, QWidget *parent = nullptr);
    ~CustomLabel() override;

    /// Cuts the text to the label's width, with an ellipsis at its end. The full text is lost, so set it anew before
    /// the next call.
    void cDisplayElidedText();

    using CustomObject::cSetStyleSelector;
    /// Takes effect at once, unlike in other controls.
    void cSetStyleSelector(const QString &selector) override;
    /// Shows a text colour, background or picture that was set for Custom::Normal. A picture takes the place of the
    /// text.
    void cNotifyUpdateValue(const QString &key, const QString &value, Custom::ItemStatus status) override;

Q_SIGNALS:
    /// A mouse button was released after a press on the label, wherever the pointer is.
    void clicked();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;
};
