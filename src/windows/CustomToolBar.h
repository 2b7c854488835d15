#pragma once

#include <Zanthic/CustomWidget.h>

#include <memory>

class CustomComboBox;
class CustomLabel;
class CustomLineWidget;
class CustomPushButton;
class CustomToolBarPrivate;

/// A row of themed controls, from left to right without spacing. It takes over what is added to it.
class ZANTHIC_EXPORT CustomToolBar : public CustomWidget
{
    Q_OBJECT

public:
    explicit CustomToolBar(QWidget *parent = nullptr);
    ~CustomToolBar() override;

    /// \name Each adds what it is given, or a new control where that is null, and returns it
    /// \{
    CustomComboBox *cAddCommBox(CustomComboBox *comboBox = nullptr); ///< a new one has the look DarkBlack
    CustomLabel *cAddLabel(CustomLabel *label = nullptr);
    CustomPushButton *cAddButton(CustomPushButton *button = nullptr);
    /// \}
    CustomLineWidget *cAddSeperator(); ///< a dotted vertical line; the name is misspelled and stays
    void cAddSpacing(int size); ///< px
    void cAddEnd(); ///< what is added next stands at the right end
    /// Empties the row. Its widgets live on as children of the bar, where they are: hide or delete them. Add the end
    /// anew.
    void cClear();

private:
    friend class CustomToolBarPrivate;
    std::unique_ptr<CustomToolBarPrivate> d;
};
