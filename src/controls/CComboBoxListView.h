#pragma once

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QPointer>
#include <QtWidgets/QListWidget>

class CustomCheckBox;
class CustomComboBox;

/// The list that a CustomComboBox opens, and makes for itself: one that is set by setView() has items of its own. It
/// holds the items of the combo box, in the font of the combo box. The space bar toggles the check box in the current
/// row.
class ZANTHIC_EXPORT CComboBoxListView : public QListWidget
{
    Q_OBJECT

public:
    /// \p comboBox is also the parent. Without one, rows have the list's own font.
    explicit CComboBoxListView(CustomComboBox *comboBox = nullptr);
    ~CComboBoxListView() override;

    /// A list widget can't show another model: the combo box gets a plain list view in the place of this list, which
    /// is deleted.
    void setModel(QAbstractItemModel *model) override;

protected:
    QStyleOptionViewItem viewOptions() const override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    friend class CustomComboBox;
    void toggle(CustomCheckBox *box);

    QPointer<CustomComboBox> m_pComboBox;
    QPointer<CustomCheckBox> m_pClicked; // toggled when the release is done with
    bool m_bReleasing = false;
};
