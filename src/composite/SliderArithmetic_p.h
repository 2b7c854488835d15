#pragma once

// Not part of the API. It may change from version to version without notice.

#include <QtCore/QtGlobal>

#include <cmath>
#include <limits>

/// Sums and differences of any two 64-bit numbers, cut at the ends of the type.
namespace SliderArithmetic {

inline qint64 sum(qint64 a, qint64 b)
{
    qint64 result = 0;
    if (!__builtin_add_overflow(a, b, &result))
        return result;
    return b < 0 ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
}

inline qint64 difference(qint64 a, qint64 b)
{
    qint64 result = 0;
    if (!__builtin_sub_overflow(a, b, &result))
        return result;
    return b > 0 ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
}

/// To the nearest integer, half away from zero, cut to 32 bits. 0 for what is no number.
inline int rounded(double value)
{
    if (std::isnan(value))
        return 0;
    return int(qBound<double>(std::numeric_limits<int>::min(), std::round(value), std::numeric_limits<int>::max()));
}

} // namespace SliderArithmetic
