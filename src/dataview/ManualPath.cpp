#include "dataview/ManualPath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace skeldon {

QString ManualPath(bool japanese)
{
    return ManualPath(japanese, QCoreApplication::applicationDirPath());
}

QString ManualPath(bool japanese, const QString& programFolder)
{
    const QString name = japanese ? QStringLiteral("SKELDON_Light_Jp.html")
                                  : QStringLiteral("SKELDON_Light_En.html");
    const QString language = japanese ? QStringLiteral("ja") : QStringLiteral("en");
    const QString installed =
        programFolder + QStringLiteral("/../share/doc/skeldon-light/manual/") + language;
    for (const QString& folder : {programFolder, installed}) {
        const QFileInfo page(folder + QLatin1Char('/') + name);
        if (page.isFile())
            return QDir::cleanPath(page.absoluteFilePath());
    }
    return {};
}

} // namespace skeldon
