#pragma once

// Not part of the API. It may change from version to version without notice.

#include "style/StyleColors_p.h"
#include "style/StyleImages_p.h"

#include <QtCore/QSize>
#include <QtCore/QStringList>
#include <QtGui/QFont>
#include <QtGui/QIcon>

#include <array>
#include <memory>
#include <vector>

class CustomObjectData;

/// All values that painters read of a control in one status and under one list of sub-selectors, parsed.
struct ResolvedStyle
{
    ResolvedStyle(const CustomObjectData &data, Custom::ItemStatus status, const QStringList &subs);

    ParsedBrush background;
    StyleImage baseBackgroundImage;
    StyleImage backgroundImage;
    StyleImage borderImage;

    std::array<int, 4> widths; ///< by Custom::BorderEdge, the value for all edges merged in
    std::array<QSize, 4> radii; ///< by Custom::BorderCorner, likewise
    bool hasCommonColor = false; ///< "BorderColor:AllEdge" has a value
    ParsedBrush commonColor;
    std::array<bool, 4> hasEdgeColor{}; ///< by Custom::BorderEdge
    std::array<ParsedBrush, 4> edgeColors;

    QColor fontColor;
    QString fontFamily; ///< empty where the control has none
    int fontSize = 0; ///< px; 0 or below where the control has none
    QIcon icon; ///< null where the control has no attribute "Icon"

    // These two are read for the resting control whatever the status and the sub-selectors.
    QString alignment; ///< of the background image
    QString iconAlignment;

    /// The application's font with family and size, where there are any.
    const QFont &font() const;

private:
    void readBorder(const CustomObjectData &data, Custom::ItemStatus status, const QStringList &subs);
    void readContent(const CustomObjectData &data, Custom::ItemStatus status, const QStringList &subs);

    QFont completeFont(QFont font) const;

    mutable QFont m_oBaseFont;
    mutable QFont m_oFont;
};

/// The resolved styles of one table of values, made when first asked for and dropped with the style revision.
class ResolvedStyles
{
public:
    std::shared_ptr<const ResolvedStyle> get(
        const CustomObjectData &data, Custom::ItemStatus status, const QStringList &subs);
    /// What a painter of its own reads, as an object that is made from the data. One kind is kept at a time: a table
    /// serves one class of controls.
    template <typename Extra>
    std::shared_ptr<const Extra> extra(const CustomObjectData &data)
    {
        static const char s_Kind = 0;
        dropOutdated();
        if (!m_pExtra || m_pExtraKind != &s_Kind) {
            m_pExtra = std::make_shared<const Extra>(data);
            m_pExtraKind = &s_Kind;
        }
        return std::static_pointer_cast<const Extra>(m_pExtra);
    }

private:
    void dropOutdated();

    struct Entry
    {
        Custom::ItemStatus status;
        QStringList subs;
        std::shared_ptr<const ResolvedStyle> style;
    };

    quint64 m_nRevision = 0;
    std::array<std::shared_ptr<const ResolvedStyle>, 4> m_plain; // without sub-selectors, by status
    std::vector<Entry> m_lstOthers;
    std::shared_ptr<const void> m_pExtra;
    const void *m_pExtraKind = nullptr;
};
