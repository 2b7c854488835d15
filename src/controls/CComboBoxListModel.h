#pragma once

#include <Zanthic/ZanthicGlobal.h>

#include <QtGui/QStandardItemModel>

/// A model for a CustomComboBox that is told, whenever the list is opened, whether a text is too wide for it.
class ZANTHIC_EXPORT CComboBoxListModel : public QStandardItemModel
{
    Q_OBJECT

public:
    explicit CComboBoxListModel(QObject *parent = nullptr);
    ~CComboBoxListModel() override;

    void cSetTextTooWide(bool tooWide); ///< called by the combo box
    /// Whether the text of an item reached the width of the list, but for 6 px, when it was opened last. False at
    /// start.
    bool cTextTooWide() const;

private:
    bool m_bTextTooWide = false;
};
