#pragma once

#include <Zanthic/CustomQssHelper.h>

#include <QtWidgets/QDoubleSpinBox>

/// A spin box for a double that shows whole numbers only, whatever decimals() is, in the look of the style sheet
/// Custom::SheetDoubleSpinBox. It has no decimals at start. Return takes what is shown for the value: 1.6 becomes 2. In
/// all else it is like CustomSpinBox.
class ZANTHIC_EXPORT CustomDoubleSpinBox : public QDoubleSpinBox, public CustomQssHelper
{
    Q_OBJECT
    Q_PROPERTY(QString StyleSelector READ cStyleSelector WRITE cSetStyleSelector)
    Q_PROPERTY(QString LanguageString READ cLanguageString)

public:
    explicit CustomDoubleSpinBox(QWidget *parent = nullptr, Custom::CommonStyleSelector selector = Custom::Default);
    ~CustomDoubleSpinBox() override;

    QLineEdit *cInterLineEdit() const; ///< the field inside, owned by the spin box
    /// The nearest whole number in decimal digits, half away from zero; at most those of a qint64.
    QString textFromValue(double value) const override;

Q_SIGNALS:
    void SigForceIn(); ///< the focus comes
    void SigForceOut(); ///< the focus goes
    /// The mouse was released over the frame or an arrow, whether or not the value changed. Keys don't bring it.
    void SigSaveParam();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;
};
