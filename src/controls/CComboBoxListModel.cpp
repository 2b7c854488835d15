#include <Zanthic/CComboBoxListModel.h>

CComboBoxListModel::CComboBoxListModel(QObject *parent) : QStandardItemModel(parent) { }

CComboBoxListModel::~CComboBoxListModel() = default;

void CComboBoxListModel::cSetTextTooWide(bool tooWide)
{
    m_bTextTooWide = tooWide;
}

bool CComboBoxListModel::cTextTooWide() const
{
    return m_bTextTooWide;
}
