#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/CustomDotSelector.h>

#include <QtCore/QList>
#include <QtCore/QRect>

/// Where the dots of a selector and the lines between them stand: pure functions of numbers, in px.
namespace DotLayout {

struct Input
{
    int count = 0;
    int current = 0;
    int normalRadius = 0;
    int selectRadius = 0;
    int thickness = 0; ///< of the line
};

struct Result
{
    QList<QRect> dots; ///< as many as can be seen
    QList<QRect> lines; ///< behind each dot but the last
};

ZANTHIC_TEST_EXPORT Result layOut(const Input &input, const QSize &size);
ZANTHIC_TEST_EXPORT QSize sizeHint(const Input &input);

} // namespace DotLayout

class CustomDotSelectorPrivate
{
public:
    explicit CustomDotSelectorPrivate(CustomDotSelector *owner) : q(owner) { }

    DotLayout::Input input() const;
    QColor color(const char *attribute) const;
    int number(const char *attribute) const;

    CustomDotSelector *q;
    int m_nDotNumber = 0;
    int m_nCurrentDot = 0;
    QList<QRect> m_lstDotRects; ///< from the last paint
};
