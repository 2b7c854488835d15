#pragma once

#include <Zanthic/CustomObject.h>

#include <QtCore/QMap>
#include <QtWidgets/QComboBox>

#include <memory>

QT_BEGIN_NAMESPACE
class QListWidgetItem;
class QStyleOptionComboBox;
QT_END_NAMESPACE

class CustomComboBoxPrivate;
class CustomMainWindow;

/// A themed combo box whose list has a tick at the current row. In multi-value mode the list shows check boxes, whose
/// flags form a bit mask; a list may also end with a row that holds a button; or any widget takes the place of the
/// list. The wheel changes nothing, nor does it scroll what is around the combo box. With a style sheet of its own the
/// closed box is that of a plain QComboBox.
///
/// view() is a CComboBoxListView, which holds the items. Items are lost with it when setView() gives another view; set
/// view and model first, then add items. setModel() alone gives the combo box a plain list view that looks the same.
class ZANTHIC_EXPORT CustomComboBox : public QComboBox, public CustomObject
{
    Q_OBJECT
    Q_PROPERTY(QString StyleSelector READ cStyleSelector WRITE cSetStyleSelector)

public:
    /// The looks of a combo box; an unknown value gives the empty selector, which is styled as Default.
    enum StyleSelector : int { Default = 0, DarkBlack = 1, GrayWhite = 2 };
    Q_ENUM(StyleSelector)

    /// \p multi chooses multi-value mode, for good.
    explicit CustomComboBox(QWidget *parent = nullptr, StyleSelector selector = Default, bool multi = false);
    ~CustomComboBox() override;

    /// In multi-value mode also makes the check boxes anew, which take the new look, and so drops all other rows.
    void cSetComboBoxStyleSelector(StyleSelector selector);
    /// Shows \p text in the closed box, whatever is chosen. An empty text, as at start, shows the choice again.
    void cSetCustomDisplayText(const QString &text);

    /// \name Several values
    /// None of these does anything to a view that isn't a CComboBoxListView.
    /// \{
    /// Makes \p items, labels by flags, the check boxes of the list, in place of all items; the value stays. In
    /// multi-value mode the closed box shows the labels that are checked, in the order of their flags, joined by ";".
    /// Its size hint doesn't know them: give it a width. "&" in a label is a shortcut as in a check box, "&&" an
    /// ampersand.
    void cSetMultiCheckItems(const QMap<int, QString> &items);
    /// Sets the mask without a signal. Bits that no item has are kept.
    void cSetMultiCheckValue(int value);
    int cGetMultiCheckValue() const; ///< the mask; 0 at start
    /// Adds a row with a button, see sigButtonClicked(). Add it last: in an empty list it would be the current row. The
    /// button is as wide as the combo box and 30 px high.
    void cAddButtonItem(QString text);
    /// \}

    /// \name A popup of one's own
    /// \{
    /// showPopup() shows \p widget, in its present size, instead of the list, and returns when it is hidden again;
    /// null brings the list back. Escape, F4 and Alt with an arrow close it, as they close a list. The popup window
    /// takes over the widget. A widget that is deleted or gets another parent is forgotten; one that holds the combo
    /// box is ignored.
    void cSetCustomPopupWidget(QWidget *widget);
    /// The window around the widget, owned by the combo box; null before the first widget.
    CustomMainWindow *cGetCustomPopupWindows() const;
    /// \}

    /// initStyleOption() with the text that the closed box shows; null does nothing.
    void initComboBoxOption(QStyleOptionComboBox *option) const;
    QWidget *viewParent() const; ///< Qt's window around the list

    QSize sizeHint() const override;
    void showPopup() override;
    void hidePopup() override;

Q_SIGNALS:
    void sigButtonClicked(); ///< a button of cAddButtonItem()
    void sigMultiValueChanged(); ///< the user has checked or unchecked an item

protected Q_SLOTS:
    void onListItemClicked(QListWidgetItem *item);
    void onMultiCheckChanged(int state);
    void onButtonClicked();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void customEvent(QEvent *event) override;

private:
    friend class CustomComboBoxPrivate;
    std::unique_ptr<CustomComboBoxPrivate> d;
};
