#include "resources/FileFilters.h"

namespace skeldon {

QStringList FileFilters(const QString& pairs)
{
    QStringList filters;
    const auto parts = pairs.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        auto patterns = parts[i + 1].split(u';', Qt::SkipEmptyParts);
        if (patterns.isEmpty())
            continue;
        for (auto& pattern : patterns) {
            if (pattern == QStringLiteral("*.*"))
                pattern = QStringLiteral("*");
        }
        filters += QStringLiteral("%1 (%2)").arg(parts[i], patterns.join(u' '));
    }
    return filters;
}

} // namespace skeldon
