#pragma once

#include <Zanthic/CustomQssHelper.h>

#include <QtWidgets/QAbstractSpinBox>

#include <memory>

class CustomSpinBox64Private;

/// A spin box for 64-bit integers in the look of the style sheet Custom::SheetSpinBox. What is typed becomes the value
/// when editing ends; a step before that goes from the value, not from what is being typed. The wheel never changes the
/// value but goes on to the parent.
///
/// The range is 0 to 1 at start, the value 0. A step past the end of the 64 bits comes out at their other end. The
/// lowest number of all can be set and stepped to, but not typed. It neither wraps nor has a special value text. A
/// handler of valueChanged() or of a signal of the focus may delete it by deleteLater() only.
class ZANTHIC_EXPORT CustomSpinBox64 : public QAbstractSpinBox, public CustomQssHelper
{
    Q_OBJECT
    Q_PROPERTY(QString StyleSelector READ cStyleSelector WRITE cSetStyleSelector)
    Q_PROPERTY(QString LanguageString READ cLanguageString)
    Q_PROPERTY(qlonglong minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(qlonglong maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(qlonglong singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(qlonglong value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    explicit CustomSpinBox64(QWidget *parent = nullptr, Custom::CommonStyleSelector selector = Custom::Default);
    ~CustomSpinBox64() override;

    QLineEdit *interLineEdit() const; ///< the field inside, owned by the spin box

    qint64 value() const;
    qint64 singleStep() const;
    void setSingleStep(qint64 step); ///< below 1 becomes 1
    qint64 minimum() const;
    void setMinimum(qint64 minimum); ///< raises the maximum with it where that is less
    qint64 maximum() const;
    void setMaximum(qint64 maximum); ///< below the minimum becomes the minimum
    /// Brings the value into the range. A maximum below \p minimum becomes \p minimum.
    void setRange(qint64 minimum, qint64 maximum);

    void stepBy(int steps) override;
    /// Positive numbers below a positive minimum are acceptable: the value is brought into the range when editing ends.
    QValidator::State validate(QString &input, int &pos) const override;
    void fixup(QString &input) const override; ///< takes out group separators, unless they are shown
    QSize sizeHint() const override; ///< room for minimum() and maximum(), for 18 characters at most
    QSize minimumSizeHint() const override;

    virtual QString textFromValue(qint64 value) const;
    virtual qint64 valueFromText(const QString &text) const; ///< 0 for a text that is no number

public Q_SLOTS:
    void setValue(qlonglong val); ///< brings \p val into the range
    void onEditingFinished(); ///< takes the text as the value; an empty text becomes the value's

Q_SIGNALS:
    void valueChanged(qlonglong value);
    void SigForceIn(); ///< the focus comes
    void SigForceOut(); ///< the focus goes
    /// The mouse was released over the frame or an arrow, whether or not the value changed. Keys don't bring it.
    void SigSaveParam();

protected:
    StepEnabled stepEnabled() const override; ///< wrapping() is not asked
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;

private:
    friend class CustomSpinBox64Private;
    std::unique_ptr<CustomSpinBox64Private> d;
};
