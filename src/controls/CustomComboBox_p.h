#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/CustomComboBox.h>

#include <QtCore/QPointer>

class CComboBoxListView;

class CustomComboBoxPrivate
{
public:
    CustomComboBoxPrivate(CustomComboBox *owner, bool multi) : isMulti(multi), q(owner) { }

    static CustomComboBoxPrivate *get(const CustomComboBox *comboBox) { return comboBox->d.get(); }

    void createView();
    /// The list that the constructor made, as long as nobody has set another view.
    CComboBoxListView *listView() const;
    void replaceView(CComboBoxListView *view); ///< by a plain one, which can show any model
    void setSheet();

    QString multiText() const;
    void addCheckItem(CComboBoxListView *view, int flag, const QString &label);
    void connectBox(QWidget *box) const;

    bool hasCustomPopup() const;
    void createPopupWindow();
    void showCustomPopup();
    void dropPressedLook() const;
    void placeList();
    void measureTexts();

    bool isMulti;
    int multiValue = 0; ///< the bit mask
    QMap<int, QString> multiItems; ///< flag to label
    QPointer<CustomMainWindow> popupWindow; ///< frameless host of a custom popup
    QString displayText; ///< fixed text of the closed box
    QPointer<QWidget> popupWidget; ///< the custom popup

    QPointer<QAbstractItemView> themedView; ///< the one that has the theme's sheet
    bool isPressing = false; ///< the base class handles a press
    bool popupWanted = false; ///< by that press
    bool popupRunning = false; ///< showCustomPopup() runs
    bool popupAgain = false; ///< showPopup() was called meanwhile

private:
    CustomComboBox *q;
};
