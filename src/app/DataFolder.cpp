#include "app/DataFolder.h"

#include "base/Paths.h"

#include <QStandardPaths>

#include <string>

namespace skeldon {

QString DefaultDataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) +
           QStringLiteral("/KORVA");
}

QString WithoutSeparator(const QString& folder)
{
    const std::string text = folder.toStdString();
    return QString::fromStdString(std::string(WithoutTrailingSeparator(text)));
}

} // namespace skeldon
