#include "dataview/ManualPath.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace skeldon {

QString ManualPath(bool japanese)
{
    const QString name = japanese ? QStringLiteral("SKELDON_Light_Jp.html")
                                  : QStringLiteral("SKELDON_Light_En.html");
    const QString program = QCoreApplication::applicationDirPath();
    for (const QString& folder :
         {program, program + QStringLiteral("/../share/doc/skeldon-light/manual")}) {
        const QFileInfo page(folder + QLatin1Char('/') + name);
        if (page.isFile())
            return page.absoluteFilePath();
    }
    return {};
}

} // namespace skeldon
