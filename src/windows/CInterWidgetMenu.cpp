#include <Zanthic/CInterWidgetMenu.h>

#include <QtWidgets/QHBoxLayout>

CInterWidgetMenu::CInterWidgetMenu(QWidget *widget, QWidget *parent) : CustomMenu(parent)
{
    // A widget that the menu stands in can't stand in the menu.
    if (!widget || (parent && (widget == parent || widget->isAncestorOf(parent))))
        return;
    m_pWidget = widget;
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(widget);
}

CInterWidgetMenu::~CInterWidgetMenu() = default;

QSize CInterWidgetMenu::sizeHint() const
{
    return m_pWidget ? m_pWidget->sizeHint() : QMenu::sizeHint();
}
