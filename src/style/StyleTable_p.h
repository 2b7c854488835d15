#pragma once

// Not part of the API. It may change from version to version without notice.

#include "style/ResolvedStyle_p.h"

#include <QtCore/QMap>
#include <QtCore/QString>

#include <memory>

/// The attributes that the documents give to one class, selector and parent class, "Default" and selector merged.
/// Controls that override nothing share one table, and with it everything that was worked out from it.
class ZANTHIC_TEST_EXPORT StyleTable
{
public:
    StyleTable(const QString &className, const QString &selector, const QString &parentClassName);

    /// The shared table for three names in any case; never null.
    static std::shared_ptr<StyleTable> get(
        const QString &className, const QString &selector, const QString &parentClassName);
    static void clearCache(); ///< controls keep the tables that they hold

    const QMap<QString, QString> &values() const { return m_mapValues; }
    quint32 parameters() const { return m_nParameters; } ///< Custom::ObjectParameter bits
    ResolvedStyles &resolved() { return m_oResolved; }

private:
    QMap<QString, QString> m_mapValues;
    quint32 m_nParameters = 0;
    ResolvedStyles m_oResolved;
};
