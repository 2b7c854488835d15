#include "NavigationButton.h"

#include "SkinColors.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace {
constexpr int Button_Height = 32;
constexpr int Text_Indent = 12;
constexpr QRect MarkerBar(0, 8, 4, 16);
} // namespace

NavigationButton::NavigationButton(QWidget *parent) : CustomPushButton(parent)
{
    cSetClassName(QStringLiteral("GalleryNavigation"));
}

NavigationButton::~NavigationButton() = default;

void NavigationButton::setCurrent(bool current)
{
    m_bCurrent = current;
    cSetStyleSelector(current ? QStringLiteral("Current") : QStringLiteral("Default"));
    update();
}

QSize NavigationButton::sizeHint() const
{
    return { CustomPushButton::sizeHint().width() + 2 * Text_Indent, Button_Height };
}

bool NavigationButton::cDrawContent(QPainter *painter, QStyleOption *option)
{
    if (m_bCurrent)
        painter->fillRect(MarkerBar, Custom::getDataBaseColor(SkinColor::Accent));
    painter->setPen(option->palette.color(QPalette::ButtonText));
    painter->drawText(rect().adjusted(Text_Indent, 0, -Text_Indent, 0),
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, text());
    return true;
}
