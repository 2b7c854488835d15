#pragma once

#include <Zanthic/CustomQssHelper.h>

#include <QtWidgets/QSpinBox>

/// A spin box for an int in the look of the style sheet Custom::SheetSpinBox. The wheel never changes its value but
/// goes on to the parent.
///
/// Like the other value controls it tells an application that stores parameters by three signals. Qt needs the control
/// after those of the focus, and after valueChanged(): a handler may delete it by deleteLater() only.
class ZANTHIC_EXPORT CustomSpinBox : public QSpinBox, public CustomQssHelper
{
    Q_OBJECT
    Q_PROPERTY(QString StyleSelector READ cStyleSelector WRITE cSetStyleSelector)
    Q_PROPERTY(QString LanguageString READ cLanguageString)

public:
    explicit CustomSpinBox(QWidget *parent = nullptr, Custom::CommonStyleSelector selector = Custom::Default);
    ~CustomSpinBox() override;

    QLineEdit *cInterLineEdit() const; ///< the field inside, owned by the spin box

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
