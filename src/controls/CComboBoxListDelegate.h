#pragma once

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QPointer>
#include <QtWidgets/QStyledItemDelegate>

class CustomComboBox;

/// Paints the rows of a CustomComboBox's list, with a tick at the current one.
class ZANTHIC_EXPORT CComboBoxListDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// \p comboBox, not owned, tells which row is the current one; without it none is. It may be deleted before the
    /// delegate.
    explicit CComboBoxListDelegate(CustomComboBox *comboBox = nullptr, QObject *parent = nullptr);
    ~CComboBoxListDelegate() override;

    /// A row that holds a widget has no tick.
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    bool hasTick(const QStyleOptionViewItem &option, const QModelIndex &index) const;

    QPointer<CustomComboBox> m_pComboBox;
};
