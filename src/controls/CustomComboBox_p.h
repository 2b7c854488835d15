#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/CustomComboBox.h>

#include <QtCore/QPointer>

#include <QtWidgets/QListView>

class CComboBoxListView;
class CustomCheckBox;
class CustomPushButton;

/// The list of a model that the application has set.
class ComboBoxModelView : public QListView
{
public:
    explicit ComboBoxModelView(CustomComboBox *comboBox) : QListView(comboBox), m_pComboBox(comboBox) { }

protected:
    QStyleOptionViewItem viewOptions() const override;

private:
    QPointer<CustomComboBox> m_pComboBox;
};

class CustomComboBoxPrivate
{
public:
    CustomComboBoxPrivate(CustomComboBox *owner, bool multi) : isMulti(multi), q(owner) { }

    static CustomComboBoxPrivate *get(const CustomComboBox *comboBox) { return comboBox->d.get(); }

    /// \p option for a row of the list of \p comboBox, which may be null.
    static QStyleOptionViewItem rowOption(const QStyleOptionViewItem &option, const CustomComboBox *comboBox);

    void createView();
    /// The list that the constructor made, as long as nobody has set another view.
    CComboBoxListView *listView() const;
    void replaceView(CComboBoxListView *view); ///< by a plain one, which can show any model
    void setSheet();
    void colorField(bool isNewSkin = false);

    QString multiText() const;
    void addWidgetRow(CComboBoxListView *view, std::unique_ptr<QListWidgetItem> row, std::unique_ptr<QWidget> widget);
    void addCheckItem(CComboBoxListView *view, int flag, const QString &label);
    void connectBox(const CustomCheckBox *box) const;
    /// As by the user. Whoever hears of it may delete the combo box.
    void toggle(CustomCheckBox *box);
    void tellOfValue();

    bool isDeadRow(const QObject *watched, const QPoint &pos) const;
    bool hasCustomPopup() const;
    void createPopupWindow();
    void showCustomPopup();
    void runPopup();
    void dropHover();
    void dropPressedLook();
    void colorScrollers(QWidget *window) const;
    void placeList();
    void measureTexts();

    bool isMulti;
    int multiValue = 0; ///< the bit mask
    QMap<int, QString> multiItems; ///< flag to label
    QPointer<CustomMainWindow> popupWindow; ///< frameless host of a custom popup
    QString displayText; ///< fixed text of the closed box
    QPointer<QWidget> popupWidget; ///< the custom popup

    QPointer<QAbstractItemView> themedView; ///< the one that has the theme's sheet
    QPointer<QLineEdit> coloredField; ///< of an editable combo box, in the theme's colours
    QColor fieldColor; ///< the text's
    QList<QPointer<CustomPushButton>> buttonRows;
    int lastToken = 0; ///< of addWidgetRow()
    int fillings = 0; ///< calls of cSetMultiCheckItems()
    bool isToggling = false; ///< toggle() runs
    bool valueChanged = false; ///< meanwhile
    bool isPressing = false; ///< the base class handles a press
    bool popupWanted = false; ///< by that press
    bool popupRunning = false; ///< showCustomPopup() runs
    bool popupAgain = false; ///< showPopup() was called meanwhile

private:
    CustomComboBox *q;
};
