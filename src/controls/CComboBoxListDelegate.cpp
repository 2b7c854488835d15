#include <Zanthic/CComboBoxListDelegate.h>

#include "style/StyleImages_p.h"

#include <Zanthic/CustomComboBox.h>

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>

namespace {

constexpr int Row_Margin = 1;
constexpr int Tick_RightMargin = 11;

} // namespace

CComboBoxListDelegate::CComboBoxListDelegate(CustomComboBox *comboBox, QObject *parent)
    : QStyledItemDelegate(parent), m_pComboBox(comboBox)
{ }

CComboBoxListDelegate::~CComboBoxListDelegate() = default;

bool CComboBoxListDelegate::hasTick(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (!m_pComboBox || index.row() != m_pComboBox->currentIndex())
        return false;
    const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
    return !view || !view->indexWidget(index);
}

void CComboBoxListDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    const QStyle *style = opt.widget ? opt.widget->style() : QApplication::style();
    opt.rect.adjust(Row_Margin, Row_Margin, -Row_Margin, -Row_Margin);
    if (!hasTick(opt, index)) {
        style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);
        return;
    }
    const StyleImage tick(QStringLiteral(":/Zanthic/Control/Menu_Tick.png"));
    const QSize size = tick.size();
    const QPoint place(
        opt.rect.right() - Tick_RightMargin - size.width(), opt.rect.top() + (opt.rect.height() - size.height()) / 2);
    // The background over the whole width, then the text short of the tick.
    const QString text = opt.text;
    opt.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);
    opt.text = text;
    opt.rect.setRight(place.x() - 1);
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);
    tick.draw(painter, QRect(place, size));
}
