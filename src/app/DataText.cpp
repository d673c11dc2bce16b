#include "app/DataText.h"

#include "base/CodePage.h"

namespace skeldon {

QString FromDataText(std::string_view bytes)
{
    return QString::fromStdString(ToUtf8(bytes, DataCodePage()));
}

std::string ToDataText(const QString& text)
{
    return FromUtf8(text.toStdString(), DataCodePage());
}

QString PrintableText(const QString& text)
{
    QString printable;
    for (const QChar c : text) {
        if (c.isPrint() || c.isSurrogate())
            printable += c;
    }
    return printable;
}

} // namespace skeldon
