#include "Card.h"

#include <QtWidgets/QBoxLayout>

namespace {
constexpr int Card_Margin = 20;
constexpr int Card_Spacing = 12;
} // namespace

Card::Card(QWidget *parent) : CustomFrame(parent), m_pBody(new QVBoxLayout(this))
{
    cSetClassName(QStringLiteral("GalleryCard"));
    m_pBody->setContentsMargins(Card_Margin, Card_Margin, Card_Margin, Card_Margin);
    m_pBody->setSpacing(Card_Spacing);
}

Card::~Card() = default;

void Card::add(QWidget *widget)
{
    m_pBody->addWidget(widget);
}

void Card::add(QLayout *layout)
{
    m_pBody->addLayout(layout);
}
