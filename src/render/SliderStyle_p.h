#pragma once

// Not part of the API. It may change from version to version without notice.

#include "style/CustomObject_p.h"

#include <QtCore/QHash>
#include <QtGui/QFontMetrics>

/// The attributes of a draw slider, parsed. Kept with the other resolved styles of its class.
class SliderStyle
{
public:
    /// A font, which follows the family of the language.
    class Font
    {
    public:
        explicit Font(int size = 0) : m_nSize(size) { }

        const QFont &font() const;
        QSize boundingSize(const QString &text) const;

    private:
        int m_nSize; // px
        mutable QString m_strFamily;
        mutable QFont m_oFont;
        mutable QFontMetrics m_oMetrics{ QFont() };
        mutable QHash<QString, QSize> m_mapSizes; // measuring a text takes a third of drawing it
    };

    /// A colour text as a brush for boxes and as a colour for everything else.
    struct Ink
    {
        explicit Ink(const QString &text) : brush(text), color(Custom::string2Color(text)) { }

        ParsedBrush brush;
        QColor color;
    };

    struct TipColors
    {
        QColor background;
        QColor text;
    };

    explicit SliderStyle(const CustomObjectData &data);

    const StyleImage &handle(Custom::ItemStatus status) const { return m_lstHandles[status]; }
    const TipColors &tip(Custom::ItemStatus status) const { return m_lstTips[status]; }

    Ink subPage;
    Ink addPage;
    QColor dotCircle;
    int thickness; ///< px
    QColor labelColor;
    Font labelFont;
    Font tipFont;

private:
    std::array<StyleImage, 4> m_lstHandles; // by status
    std::array<TipColors, 4> m_lstTips;
};
