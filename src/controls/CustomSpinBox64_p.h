#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/CustomSpinBox64.h>

class CustomSpinBox64Private
{
public:
    explicit CustomSpinBox64Private(CustomSpinBox64 *owner) : q(owner) { }

    /// Brings \p val into the range and writes the text anew in any case, so that a rejected entry disappears.
    void setValue(qint64 val);
    void setRange(qint64 min, qint64 max);
    QSize sizeHint(int lineHeight) const; ///< around a line of that height in px

    qint64 value = 0;
    qint64 maximum = 1;
    qint64 minimum = 0;
    qint64 singleStep = 1;
    CustomSpinBox64 *q;
};
