#include "render/SliderStyle_p.h"

namespace {

// What a document may ask for; more would not fit any screen.
constexpr int Groove_MaxThickness = 4096;
constexpr int Font_MaxSize = 4096;

constexpr int kKeptSizes = 64;

QString text(const CustomObjectData &data, const char *attr, Custom::ItemStatus status = Custom::Normal)
{
    return data.getValue(QLatin1String(attr), status, {});
}

QColor color(const CustomObjectData &data, const char *attr, Custom::ItemStatus status = Custom::Normal)
{
    return Custom::string2Color(text(data, attr, status));
}

int number(const CustomObjectData &data, const char *attr, int max)
{
    return qBound(-max, text(data, attr).toInt(), max);
}

} // namespace

SliderStyle::SliderStyle(const CustomObjectData &data)
    : subPage(text(data, "SubPageColor")),
      addPage(text(data, "AddPageColor")),
      dotCircle(color(data, "DotCircleColor")),
      thickness(number(data, "SliderThickness", Groove_MaxThickness)),
      labelColor(color(data, "TextTipFontColor")),
      labelFont(number(data, "TextTipFontSize", Font_MaxSize)),
      tipFont(number(data, "ToolTipFontSize", Font_MaxSize))
{
    for (const Custom::ItemStatus status : { Custom::Normal, Custom::Pressed, Custom::Disabled }) {
        m_lstHandles[status] = StyleImage(text(data, "HandleImage", status));
        m_lstTips[status] = { color(data, "ToolTipBackgroundColor", status), color(data, "ToolTipFontColor", status) };
    }
}

const QFont &SliderStyle::Font::font() const
{
    const QString family = Custom::globalFontFamily();
    if (family != m_strFamily || m_strFamily.isNull()) {
        m_strFamily = family.isNull() ? QString::fromLatin1("") : family;
        m_oFont = QFont(family);
        if (m_nSize > 0)
            m_oFont.setPixelSize(m_nSize);
        m_oMetrics = QFontMetrics(m_oFont);
        m_mapSizes.clear();
    }
    return m_oFont;
}

QSize SliderStyle::Font::boundingSize(const QString &text) const
{
    font();
    const auto known = m_mapSizes.constFind(text);
    if (known != m_mapSizes.constEnd())
        return *known;
    if (m_mapSizes.size() >= kKeptSizes)
        m_mapSizes.clear();
    return *m_mapSizes.insert(text, m_oMetrics.boundingRect(text).size());
}
