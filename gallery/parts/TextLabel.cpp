#include "TextLabel.h"

#include "SkinColors.h"

#include <Zanthic/ChangeSkinEvent.h>
#include <Zanthic/Custom.h>

#include <QtCore/QEvent>

namespace {

struct RoleLook
{
    int size; // px
    QFont::Weight weight;
    QLatin1String color;
};

RoleLook lookOf(TextLabel::Role role)
{
    switch (role) {
    case TextLabel::Title:
        return { 22, QFont::DemiBold, SkinColor::Text };
    case TextLabel::Heading:
        return { 16, QFont::DemiBold, SkinColor::Text };
    case TextLabel::Body:
        return { 14, QFont::Normal, SkinColor::Text };
    case TextLabel::Caption:
        break;
    }
    return { 12, QFont::Normal, SkinColor::QuietText };
}

} // namespace

TextLabel::TextLabel(Role role, QWidget *parent) : QLabel(parent), m_role(role)
{
    QFont font;
    font.setPixelSize(lookOf(role).size);
    font.setWeight(lookOf(role).weight);
    setFont(font);
    takeFontFamily();
    setTextFormat(Qt::PlainText);
    takeSkinColor();
}

TextLabel::~TextLabel() = default;

void TextLabel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        takeFontFamily();
    QLabel::changeEvent(event);
}

void TextLabel::customEvent(QEvent *event)
{
    if (int(event->type()) == ChangeSkinEvent::EventType)
        takeSkinColor();
}

void TextLabel::takeFontFamily()
{
    // Set on the label itself: the themed boxes around it set theirs and don't follow a change of language.
    QFont own = font();
    own.setFamily(Custom::globalFontFamily());
    setFont(own);
}

void TextLabel::takeSkinColor()
{
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, Custom::getDataBaseColor(lookOf(m_role).color).color());
    setPalette(colors);
}
