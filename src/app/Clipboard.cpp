#include "app/Clipboard.h"

#include "app/DataText.h"
#include "app/SkeldonApp.h"

#include <QClipboard>
#include <QGuiApplication>

#include <new>
#include <utility>

namespace skeldon {

bool CopyLinesToClipboard(const std::vector<std::string>& lines)
{
    try {
        std::string text;
        for (const std::string& line : lines) {
            text += line;
            if (line != "\f")
                text += "\r\n";
        }
        auto contents = std::make_unique<QMimeData>();
        contents->setText(FromDataText(text));
        return App().Prompts().PutOnClipboard(std::move(contents));
    } catch (const std::bad_alloc&) {
        return false;
    }
}

bool CopyPictureToClipboard(const QImage& picture)
{
    if (picture.isNull())
        return false;
    auto contents = std::make_unique<QMimeData>();
    contents->setImageData(picture);
    return App().Prompts().PutOnClipboard(std::move(contents));
}

bool GiveToClipboard(std::unique_ptr<QMimeData> contents)
{
    QClipboard* const clipboard = QGuiApplication::clipboard();
    if (clipboard == nullptr)
        return false;
    const QMimeData* const given = contents.get();
    clipboard->setMimeData(contents.release());
    // The window system tells of no failure: who else owns the clipboard is seen afterwards.
    return clipboard->mimeData() == given;
}

} // namespace skeldon
