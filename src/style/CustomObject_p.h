#pragma once

// Not part of the API. It may change from version to version without notice.

#include "style/CustomQssHelper_p.h"
#include "style/ResolvedStyle_p.h"

#include <QtCore/QPair>
#include <QtCore/QSize>
#include <QtCore/QStringList>

#include <array>
#include <memory>

class CustomObject;
class StyleTable;

class ZANTHIC_TEST_EXPORT CustomObjectData : public CustomQssHelperData
{
public:
    /// Widths, radii and colours of a box, resolved for one status.
    struct BorderParameter
    {
        std::array<int, 4> borders{}; ///< by Custom::BorderEdge
        std::array<QSize, 4> radii; ///< by Custom::BorderCorner; (-1, -1) until set
        std::array<QBrush, 4> colors; ///< by Custom::BorderEdge
    };

    CustomObjectData(QWidget *host, const QString &hostSelector);
    ~CustomObjectData() override;

    static CustomObjectData *get(const CustomObject *object);

    /// Rebuilds the maps from the documents when they are dirty. Every read and write runs it first.
    void initData();
    /// Gives the host its font and, where the document says so, its fixed size.
    void initWidgetParam();
    /// The key that the maps are indexed by: attribute, sub-selectors, status, joined by ":", in lower case.
    static QString getFullAttrName(const QString &attr, Custom::ItemStatus status, const QStringList &subs);
    /// The control's own value, else the document's, else that for Normal; "#Empty#" gives an empty text.
    QString getValue(const QString &attr, Custom::ItemStatus status, const QStringList &subs) const;
    void setValue(const QString &attr, Custom::ItemStatus status, const QStringList &subs, const QString &value);
    /// Empties the document's value of every key that begins with \p attr.
    void clearValues(const QString &attr);
    void copy(CustomObjectData *other);
    /// Drops what came from the documents; the next read takes it anew.
    void drop();

    /// What the painters read, from the shared table where this control overrides nothing.
    std::shared_ptr<const ResolvedStyle> resolved(Custom::ItemStatus status, const QStringList &subs);
    /// What the painter of one kind of control reads beyond that, kept in the same way.
    template <typename Extra>
    std::shared_ptr<const Extra> resolvedExtra()
    {
        return resolvedStyles().template extra<Extra>(*this);
    }

    void borderParameter(CustomObject *object, BorderParameter *parameter, const QRect &rect, Custom::ItemStatus status,
        const QStringList &selectors);
    /// The strip of \p rect that an edge occupies.
    static QRect createBorderRect(Custom::BorderEdge edge, int width, const QRect &rect);

    bool dirty = true;
    QSize sizeHintCache{ -1, -1 };
    QString sizeHintText; ///< the text that sizeHintCache was measured for
    QString className;
    QString parentClassName;
    QStringList clearedAttributes; ///< attributes whose document values a first override has wiped
    QMap<QString, QString> styleValues; ///< full key to the document's value; shared with equal controls
    QMap<QString, QString> localValues; ///< full key to the control's own value
    QMap<int, QPair<QRect, QBrush>> colorRects;

private:
    ResolvedStyles &resolvedStyles();
    // A private memo has to be made anew after each change of a value.
    void forgetResolved();

    std::shared_ptr<StyleTable> m_pTable; // null as soon as styleValues differs from it
    std::unique_ptr<ResolvedStyles> m_pOwnResolved;
};
