#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/Custom.h>

/// A colour text that is parsed once and gives the same brush as Custom::string2Brush() for any rectangle, as long
/// as the skin colours stay as they are.
class ZANTHIC_TEST_EXPORT ParsedBrush
{
public:
    ParsedBrush() = default;
    explicit ParsedBrush(const QString &text);

    QBrush scaledTo(const QRect &rect) const;
    QBrush unscaled() const { return scaledTo(QRect()); }

private:
    QBrush m_oBrush;
    QString m_strPath; // an image that is looked up each time; empty for everything that can be kept
    bool m_bScales = false; // a gradient
};
