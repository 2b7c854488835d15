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
    QStyleOptionViewItem option = QListWidget::viewOptions();
    option.showDecorationSelected = true;
    if (m_pComboBox) {
        option.font = m_pComboBox->font();
        option.fontMetrics = QFontMetrics(option.font);
    }
    return option;
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
        box->toggle(); // whoever hears of it may delete the list
}

void CComboBoxListView::keyPressEvent(QKeyEvent *event)
{
    auto *box = event->key() == Qt::Key_Space ? qobject_cast<CustomCheckBox *>(itemWidget(currentItem())) : nullptr;
    if (box)
        box->toggle();
    else
        QListWidget::keyPressEvent(event);
}

void CComboBoxListView::toggle(CustomCheckBox *box)
{
    // The base class goes on with the list after it has told of a click.
    if (m_bReleasing)
        m_pClicked = box;
    else
        box->toggle();
}
