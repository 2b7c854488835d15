#pragma once

#include <QtCore/QString>

inline QString operator""_s(const char *text, size_t size)
{
    return QString::fromUtf8(text, int(size));
}
