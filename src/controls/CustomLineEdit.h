#pragma once

#include <Zanthic/CustomQssHelper.h>

#include <QtWidgets/QLineEdit>

#include <memory>

class CustomLineEditPrivate;
class CustomPushButton;

/// A line edit in the look of the style sheet Custom::SheetLineEdit, with a button of its own at the right end. The
/// first click after it got the focus selects all its text. It has no context menu.
class ZANTHIC_EXPORT CustomLineEdit : public QLineEdit, public CustomQssHelper
{
    Q_OBJECT
    Q_PROPERTY(QString StyleSelector READ cStyleSelector WRITE cSetStyleSelector)
    Q_PROPERTY(QString LanguageString READ cLanguageString)

public:
    /// The looks of a line edit; an unknown value gives the empty selector.
    enum StyleSelector : int { Default = 0, DarkBlack = 1, GrayWhite = 2 };
    Q_ENUM(StyleSelector)

    explicit CustomLineEdit(QWidget *parent = nullptr, StyleSelector selector = Default);
    explicit CustomLineEdit(const QString &text, QWidget *parent = nullptr, StyleSelector selector = Default);
    ~CustomLineEdit() override;

    /// Whether there is a button; there is none at start. The room for it is made at once, the button itself follows
    /// with the next setVisible(true) or show().
    void cSetEnableSearchButton(bool enable);
    /// Whether the first click selects all; it does at start.
    void cSetEnableIntoSelected(bool enable);
    /// The button, owned by the line edit. It is styled as a class nested in "CustomLineEdit".
    CustomPushButton *getSearchButton() const;
    /// The button's image for one status.
    void cSetSearchBackImg(const QString &path, Custom::ItemStatus status = Custom::Normal);

    void setVisible(bool visible) override;

Q_SIGNALS:
    void cSigSearchClicked(); ///< the button was clicked

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override; ///< a line edit that is read-only leaves all keys to its parent
    bool event(QEvent *event) override; ///< the button shows no tool tip of the line edit
    void customEvent(QEvent *event) override;

private:
    std::unique_ptr<CustomLineEditPrivate> d;
};
