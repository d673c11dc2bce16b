#include "resources/Translation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

namespace skeldon {

namespace {

/// Tells the translators of this program from any other's.
QString TranslatorName()
{
    return QStringLiteral("skeldonTranslator");
}

bool Install(const QString& file, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(file, folder))
        return false;
    translator->setObjectName(TranslatorName());
    auto* application = QCoreApplication::instance();
    translator->setParent(application);
    return application->installTranslator(translator.release());
}

} // namespace

bool InstallTranslation(bool japanese)
{
    auto* application = QCoreApplication::instance();
    const auto installed =
        application->findChildren<QTranslator*>(TranslatorName(), Qt::FindDirectChildrenOnly);
    qDeleteAll(installed); // a translator that goes away takes itself out of the application
    if (!japanese)
        return true;
    (void)Install(QStringLiteral("qtbase_ja"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    return Install(QStringLiteral("skeldon_ja"), QStringLiteral(":/i18n"));
}

} // namespace skeldon
