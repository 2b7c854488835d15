#pragma once

#include <Zanthic/CustomObject.h>

#include <QtWidgets/QRadioButton>

QT_BEGIN_NAMESPACE
class QStyleOptionButton;
QT_END_NAMESPACE

/// A themed radio button. All of it, the text included, reacts to the mouse. With a style sheet of its own it is
/// painted as a plain QRadioButton.
class ZANTHIC_EXPORT CustomRadioButton : public QRadioButton, public CustomObject
{
    Q_OBJECT

public:
    explicit CustomRadioButton(const QString &text, QWidget *parent = nullptr);
    explicit CustomRadioButton(QWidget *parent = nullptr);
    ~CustomRadioButton() override;

    QString cSuffixString(bool checked) const; ///< "checked" or "unchecked"
    /// initStyleOption(), for painting elsewhere; null does nothing.
    void initRadioButtonOption(QStyleOptionButton *option) const;

    QSize sizeHint() const override;

protected:
    bool hitButton(const QPoint &pos) const override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;
};
