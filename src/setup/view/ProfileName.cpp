#include "setup/view/ProfileName.h"

#include <algorithm>

namespace skeldon {

namespace {

constexpr std::size_t LongestCharacter = 4;
constexpr char16_t FirstEscape = 0xDC80;
constexpr char16_t LastEscape = 0xDCFF;
constexpr char16_t EscapeOffset = 0xDC00;

QString FromUtf8(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// Whether the bytes are UTF-8 through and through.
bool IsUtf8(std::string_view bytes, const QString& text)
{
    return text.toStdString() == bytes;
}

} // namespace

QString NameText(std::string_view bytes)
{
    if (QString whole = FromUtf8(bytes); IsUtf8(bytes, whole))
        return whole;
    QString text;
    while (!bytes.empty()) {
        std::size_t length = std::min(LongestCharacter, bytes.size());
        while (length > 0 && !IsUtf8(bytes.substr(0, length), FromUtf8(bytes.substr(0, length))))
            --length;
        if (length > 0)
            text += FromUtf8(bytes.substr(0, length));
        else
            text += QChar(
                static_cast<char16_t>(EscapeOffset + static_cast<unsigned char>(bytes.front())));
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return text;
}

std::string NameBytes(const QString& text)
{
    std::string bytes;
    QString run;
    const auto flush = [&bytes, &run] {
        bytes += run.toStdString();
        run.clear();
    };
    for (const QChar character : text) {
        const bool isEscape =
            character.unicode() >= FirstEscape && character.unicode() <= LastEscape;
        const bool isPairEnd = !run.isEmpty() && run.back().isHighSurrogate();
        if (!isEscape || isPairEnd) {
            run += character;
            continue;
        }
        flush();
        bytes += static_cast<char>(character.unicode() - EscapeOffset);
    }
    flush();
    return bytes;
}

bool IsFileName(const QString& name)
{
    return name != QLatin1String(".") && name != QLatin1String("..") &&
           NameText(NameBytes(name)) == name;
}

bool IsSameName(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

} // namespace skeldon
