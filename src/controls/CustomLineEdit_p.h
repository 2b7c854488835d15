#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/CustomLineEdit.h>

#include <QtCore/QPointer>

class CustomLineEditPrivate
{
public:
    CustomLineEditPrivate(CustomLineEdit::StyleSelector selector, CustomLineEdit *q);

    void updateData(); ///< shows or hides the button as it is wanted
    void updateStyleSheet();

    bool isSelected = false; ///< all was selected since the focus came in
    bool enableSearch = false; ///< the button is wanted
    bool enableIntoSelected = true; ///< the first click selects all
    QPointer<CustomPushButton> searchButton;
    CustomLineEdit *q;
};
