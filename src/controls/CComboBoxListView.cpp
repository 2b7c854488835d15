#include <Zanthic/CComboBoxListView.h>

#include "controls/CustomComboBox_p.h"

#include <Zanthic/CustomCheckBox.h>

#include <QtGui/QKeyEvent>

CComboBoxListView::CComboBoxListView(CustomComboBox *comboBox) : QListWidget(comboBox), m_pComboBox(comboBox) { }

CComboBoxListView::~CComboBoxListView() = default;

void CComboBoxListView::setModel(QAbstractItemModel *model)
{
    if (m_pComboBox && model != this->model())
        CustomComboBoxPrivate::get(m_pComboBox)->replaceView(this);
}

QStyleOptionViewItem CComboBoxListView::viewOptions() const
{
    return CustomComboBoxPrivate::rowOption(QListWidget::viewOptions(), m_pComboBox);
}

void CComboBoxListView::resizeEvent(QResizeEvent *event)
{
    // Rows fill the width.
    resizeContents(viewport()->width(), contentsSize().height());
    QListWidget::resizeEvent(event);
}

void CComboBoxListView::mouseReleaseEvent(QMouseEvent *event)
{
    m_bReleasing = true;
    QListWidget::mouseReleaseEvent(event);
    m_bReleasing = false;
    const QPointer<CustomCheckBox> box = m_pClicked;
    m_pClicked.clear();
    if (box)
        toggle(box);
}

void CComboBoxListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    // Beside a check box each click counts.
    if (qobject_cast<CustomCheckBox *>(itemWidget(itemAt(event->pos()))))
        mousePressEvent(event);
    else
        QListWidget::mouseDoubleClickEvent(event);
}

void CComboBoxListView::keyPressEvent(QKeyEvent *event)
{
    auto *box = event->key() == Qt::Key_Space ? qobject_cast<CustomCheckBox *>(itemWidget(currentItem())) : nullptr;
    if (box)
        toggle(box);
    else
        QListWidget::keyPressEvent(event);
}

void CComboBoxListView::toggle(CustomCheckBox *box)
{
    // The base class goes on with the list after it has told of a click.
    if (m_bReleasing)
        m_pClicked = box;
    else if (m_pComboBox)
        CustomComboBoxPrivate::get(m_pComboBox)->toggle(box);
}
