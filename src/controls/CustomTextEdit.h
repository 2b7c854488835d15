#pragma once

#include <Zanthic/CustomObject.h>

#include <QtWidgets/QTextEdit>

/// A themed text edit. It doesn't paint itself: the attributes of Custom::Normal, with the style sheet of the scroll
/// bars, become the style sheet of the edit, which replaces any that the program has set. That happens when it is
/// made, with each attribute or selector that is set, with a new skin, and with a language that changes the font
/// family.
class ZANTHIC_EXPORT CustomTextEdit : public QTextEdit, public CustomObject
{
    Q_OBJECT

public:
    explicit CustomTextEdit(QWidget *parent = nullptr);
    explicit CustomTextEdit(const QString &text, QWidget *parent = nullptr);
    ~CustomTextEdit() override;

    using CustomObject::cSetStyleSelector;
    /// Takes effect at once, unlike in other controls.
    void cSetStyleSelector(const QString &selector) override;
    void cNotifyUpdateValue(const QString &key, const QString &value, Custom::ItemStatus status) override;

protected:
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;
};
