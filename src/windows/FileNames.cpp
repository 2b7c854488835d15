#include "windows/FileNames_p.h"

#include <QtCore/QStringList>

#include <algorithm>

namespace {

QString dotted(const QString &suffix)
{
    const QLatin1Char dot('.');
    return suffix.startsWith(dot) ? suffix : dot + suffix;
}

} // namespace

QString FileNames::completed(const QString &name, const QString &suffix, const QStringList &suffixes)
{
    if (name.isEmpty() || suffix.isEmpty())
        return name;
    const auto isEnd = [&name](const QString &candidate) { return name.endsWith(dotted(candidate)); };
    if (isEnd(suffix) || std::any_of(suffixes.cbegin(), suffixes.cend(), isEnd))
        return name;
    return name + dotted(suffix);
}
