#include "app/FileChoice.h"

#include "app/SkeldonApp.h"
#include "base/Paths.h"
#include "resources/StringTable.h"
#include "resources/TextFormat.h"

#include <QFile>
#include <QFileInfo>

namespace skeldon {

std::filesystem::path ToPath(const QString& path)
{
    return {QFile::encodeName(path).toStdString()};
}

QString FromPath(const std::filesystem::path& path)
{
    return QFile::decodeName(path.c_str());
}

std::optional<SaveTarget> AskSaveTarget(QWidget* parent, const FileQuestion& question,
                                        const char* extension)
{
    FileQuestion asked = question;
    for (;;) {
        const std::optional<QString> chosen = App().Prompts().AskSavePath(parent, asked);
        if (!chosen)
            return std::nullopt;
        SaveTarget target{*chosen, WithExtension(ToPath(*chosen), extension)};
        std::error_code ignored;
        if (!std::filesystem::exists(target.target, ignored))
            return target;
        const QString text = FormatText(Text(StringId::AskReplaceFile), {FromPath(target.target)});
        if (App().Prompts().ShowBox(parent, BoxKind::YesNo, text) == Answer::Yes)
            return target;
        // Asked again, the dialog stands where the user was.
        asked.folder = QFileInfo(*chosen).path();
        asked.name = QFileInfo(*chosen).fileName();
    }
}

QString WriteFailureText(const QString& path, const std::error_code& reason)
{
    return FormatText(Text(StringId::FailedToWriteReason),
                      {path, QString::fromLocal8Bit(reason.message().c_str())});
}

} // namespace skeldon
