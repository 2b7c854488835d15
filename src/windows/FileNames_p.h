#pragma once

// Not part of the API. It may change from version to version without notice.

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QString>

/// Rules for the names of files.
namespace FileNames {

/// \p name with \p suffix at its end, unless it is empty or ends in \p suffix or in one of \p suffixes. An empty
/// \p suffix adds nothing.
ZANTHIC_TEST_EXPORT QString completed(const QString &name, const QString &suffix, const QStringList &suffixes);

} // namespace FileNames
