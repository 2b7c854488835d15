#include <Zanthic/CInterWidgetMenu.h>

#include <QtWidgets/QHBoxLayout>

CInterWidgetMenu::CInterWidgetMenu(QWidget *widget, QWidget *parent) : CustomMenu(parent), m_pWidget(widget)
{
    if (!widget)
        return;
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
