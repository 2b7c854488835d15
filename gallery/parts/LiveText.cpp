#include "LiveText.h"

#include <QtCore/QEvent>

LiveText::LiveText(Role role, std::function<QString()> words, QWidget *parent)
    : TextLabel(role, parent), m_words(std::move(words))
{
    refresh();
}

LiveText::~LiveText() = default;

void LiveText::refresh()
{
    setText(m_words());
}

void LiveText::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        refresh();
    TextLabel::changeEvent(event);
}
