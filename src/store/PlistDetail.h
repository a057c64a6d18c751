#pragma once

#include <QString>

namespace tabo::plist::detail {

inline constexpr int kMaxDepth = 256;

inline QString tooDeep()
{
    return QStringLiteral("nested deeper than %1 levels").arg(kMaxDepth);
}

} // namespace tabo::plist::detail
