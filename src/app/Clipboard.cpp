#include "app/Clipboard.h"

#include "app/DataText.h"

#include <QClipboard>
#include <QGuiApplication>

#include <new>

namespace skeldon {

bool CopyLinesToClipboard(const std::vector<std::string>& lines)
{
    QClipboard* const clipboard = QGuiApplication::clipboard();
    if (clipboard == nullptr)
        return false;
    try {
        std::string text;
        for (const std::string& line : lines) {
            text += line;
            if (line != "\f")
                text += "\r\n";
        }
        clipboard->setText(FromDataText(text));
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

} // namespace skeldon
