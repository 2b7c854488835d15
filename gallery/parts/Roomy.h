#pragma once

#include <QtCore/QSize>

/// A push button with the room around its text that a desktop's buttons have; the hint of the button itself is tight.
template <class Button>
class Roomy : public Button
{
public:
    using Button::Button;

    QSize sizeHint() const override { return (Button::sizeHint() + QSize(22, 8)).expandedTo(QSize(88, 32)); }
};
