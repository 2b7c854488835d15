#include <Zanthic/Custom.h>

namespace {

// The name of a value in a table of texts; numbers outside the table give the fallback.
template <std::size_t N>
QString word(const char *const (&table)[N], int value, const char *fallback)
{
    const bool known = value >= 0 && value < int(N);
    return QString::fromLatin1(known ? table[value] : fallback);
}

} // namespace

QString Custom::language2String(Language language)
{
    static const char *const table[] = { "Zh_cn", "En_us" };
    return word(table, language, "");
}

QString Custom::commonStyleSelector(CommonStyleSelector selector)
{
    static const char *const table[] = { "Default", "GrayWhite", "DarkBlack" };
    return word(table, selector, "Default");
}

QString Custom::itemStatus2String(ItemStatus status)
{
    static const char *const table[] = { "", "Hover", "Pressed", "Disabled" };
    return word(table, status, "");
}

QString Custom::borderEdge2String(BorderEdge edge)
{
    static const char *const table[] = { "Left", "Right", "Top", "Bottom" };
    return word(table, edge, "AllEdge");
}

QString Custom::borderCorner2String(BorderCorner corner)
{
    static const char *const table[] = { "LeftTop", "RightTop", "LeftBottom", "RightBottom" };
    return word(table, corner, "AllCorner");
}
