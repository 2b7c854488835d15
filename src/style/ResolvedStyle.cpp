#include "style/ResolvedStyle_p.h"

#include "style/CustomObject_p.h"
#include "style/CustomStyleSheetData_p.h"

namespace {

constexpr std::size_t kMaxOthers = 64;

} // namespace

ResolvedStyle::ResolvedStyle(const CustomObjectData &data, Custom::ItemStatus status, const QStringList &subs)
    : background(data.getValue(QStringLiteral("BackgroundColor"), status, subs)),
      baseBackgroundImage(data.getValue(QStringLiteral("BaseBackgroundImage"), status, subs)),
      backgroundImage(data.getValue(QStringLiteral("BackgroundImage"), status, subs)),
      borderImage(data.getValue(QStringLiteral("BorderImage"), status, subs))
{
    readBorder(data, status, subs);
    readContent(data, status, subs);
}

// Each group asks for the value of all sides first and lets the single sides override it.
void ResolvedStyle::readBorder(const CustomObjectData &data, Custom::ItemStatus status, const QStringList &subs)
{
    const QString color = QStringLiteral("BorderColor:");
    const QString width = QStringLiteral("BorderWidth:");
    const QString radius = QStringLiteral("BorderRadius:");

    widths.fill(data.getValue(width + Custom::borderEdge2String(Custom::AllEdge), status, subs).toInt());
    const int commonRadius
        = data.getValue(radius + Custom::borderCorner2String(Custom::AllCorner), status, subs).toInt();
    radii.fill(QSize(commonRadius, commonRadius));
    const QString common = data.getValue(color + Custom::borderEdge2String(Custom::AllEdge), status, subs);
    hasCommonColor = !common.isEmpty();
    commonColor = ParsedBrush(common);

    for (int i = 0; i < 4; ++i) {
        const QString edge = Custom::borderEdge2String(Custom::BorderEdge(i));
        const QString edgeWidth = data.getValue(width + edge, status, subs);
        if (!edgeWidth.isEmpty())
            widths[i] = edgeWidth.toInt();
        const QString edgeColor = data.getValue(color + edge, status, subs);
        hasEdgeColor[i] = !edgeColor.isEmpty();
        edgeColors[i] = ParsedBrush(edgeColor);
        const QString corner = Custom::borderCorner2String(Custom::BorderCorner(i));
        const QString cornerRadius = data.getValue(radius + corner, status, subs);
        if (!cornerRadius.isEmpty())
            radii[i] = QSize(cornerRadius.toInt(), cornerRadius.toInt());
    }
}

void ResolvedStyle::readContent(const CustomObjectData &data, Custom::ItemStatus status, const QStringList &subs)
{
    fontColor = Custom::string2Color(data.getValue(QStringLiteral("FontColor"), status, subs));
    fontFamily = data.getValue(QStringLiteral("FontFamily"), status, subs);
    fontSize = data.getValue(QStringLiteral("FontSize"), status, subs).toInt();
    m_oFont = completeFont(m_oBaseFont);
    icon = StyleImages::icon(data.getValue(QStringLiteral("Icon"), status, subs));
    alignment = data.getValue(QStringLiteral("Alignment"), Custom::Normal, {});
    iconAlignment = data.getValue(QStringLiteral("IconAlignment"), Custom::Normal, {});
}

QFont ResolvedStyle::completeFont(QFont font) const
{
    if (!fontFamily.isEmpty())
        font.setFamily(fontFamily);
    if (fontSize > 0)
        font.setPixelSize(fontSize);
    return font;
}

const QFont &ResolvedStyle::font() const
{
    // The application may have changed its font since.
    const QFont base;
    if (base != m_oBaseFont) {
        m_oBaseFont = base;
        m_oFont = completeFont(base);
    }
    return m_oFont;
}

void ResolvedStyles::dropOutdated()
{
    if (m_nRevision == CustomStyleSheetData::revision())
        return;
    m_plain.fill(nullptr);
    m_lstOthers.clear();
    m_pExtra.reset();
    m_nRevision = CustomStyleSheetData::revision();
}

std::shared_ptr<const ResolvedStyle> ResolvedStyles::get(
    const CustomObjectData &data, Custom::ItemStatus status, const QStringList &subs)
{
    dropOutdated();
    // A number that is no status has no word in the key: it reads what Normal reads.
    const bool known = status >= Custom::Normal && status <= Custom::Disabled;
    const Custom::ItemStatus asked = known ? status : Custom::Normal;
    if (subs.isEmpty()) {
        auto &style = m_plain[asked];
        if (!style)
            style = std::make_shared<ResolvedStyle>(data, asked, subs);
        return style;
    }
    for (const Entry &entry : m_lstOthers) {
        if (entry.status == asked && entry.subs == subs)
            return entry.style;
    }
    // A painter that makes up its sub-selectors as it goes must not pile them up here.
    if (m_lstOthers.size() >= kMaxOthers)
        m_lstOthers.clear();
    m_lstOthers.push_back({ asked, subs, std::make_shared<ResolvedStyle>(data, asked, subs) });
    return m_lstOthers.back().style;
}
