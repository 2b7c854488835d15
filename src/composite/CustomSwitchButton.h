#pragma once

#include <Zanthic/CustomWidget.h>

#include <QtCore/QStringList>

class CustomSwitchButtonPrivate;

/// A row of adjoining buttons of which one is checked: a choice among a few that are all in view. CustomComboBox
/// takes less room for more of them; for on and off CustomCheckBox has a selector that looks like a switch.
///
/// The buttons are styled by the class "CustomPushButton" that is nested in the control's own class. Their selectors
/// are the control's selector with ":Checked" or ":UnChecked" behind it.
class ZANTHIC_EXPORT CustomSwitchButton : public CustomWidget
{
    Q_OBJECT

public:
    explicit CustomSwitchButton(QWidget *parent = nullptr);
    ~CustomSwitchButton() override;

    /// Replaces all buttons, one for each name. The checked index stays.
    void cSetButtonNames(const QStringList &names);
    /// New texts for as many buttons as there are names; the others keep theirs.
    void cRenameButtons(const QStringList &names);
    int cCheckedIndex() const; ///< from 0; also before there are buttons, and where it has none
    /// Checks a button and emits nothing. An index without a button leaves all of them unchecked. A new selector of
    /// the control shows here and with new buttons.
    void cSetCheckIndex(int index);

    /// Each button gets the room of the largest.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user has clicked the button at this index, also when it was checked already.
    void checkedChanged(int nCheckedIndex);

private:
    CustomSwitchButtonPrivate *d; // a child
};
