#include "render/TextPalette_p.h"

#include <QtCore/QCache>
#include <QtCore/QHash>
#include <QtGui/QRgba64>

namespace {

constexpr int kKept = 64;

struct PaletteKey
{
    qint64 palette;
    QPalette::ColorRole role;
    QColor color;
};

bool operator==(const PaletteKey &a, const PaletteKey &b)
{
    return a.palette == b.palette && a.role == b.role && a.color == b.color;
}

uint qHash(const PaletteKey &key, uint seed = 0)
{
    return ::qHash(key.palette, seed) ^ ::qHash(quint64(key.color.rgba64()), seed) ^ uint(key.role);
}

struct Kept
{
    QPalette base; // holds its key, which is not given to another palette as long as this one lives
    QPalette result;
};

} // namespace

QPalette TextPalette::withColor(const QPalette &palette, QPalette::ColorRole role, const QColor &color)
{
    static QCache<PaletteKey, Kept> s_Kept(kKept);
    const PaletteKey key{ palette.cacheKey(), role, color };
    if (const Kept *known = s_Kept.object(key)) {
        QPalette result = known->result;
        result.setCurrentColorGroup(palette.currentColorGroup());
        return result;
    }
    QPalette result = palette;
    result.setBrush(QPalette::All, role, QBrush(color));
    s_Kept.insert(key, new Kept{ palette, result });
    return result;
}
