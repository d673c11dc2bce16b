#include "controls/NumberEdit.h"

#include "app/SkeldonApp.h"
#include "resources/StringTable.h"
#include "resources/TextFormat.h"

namespace skeldon {

QString CNumberEdit::RangeMessage(StringId plain, StringId named, const CTextArgument& smallest,
                                  const CTextArgument& largest) const
{
    const bool isJapanese = App().IsJapanese();
    if (m_strName.isEmpty())
        return isJapanese ? FormatText(Text(plain), {smallest, largest})
                          : FormatText(Text(plain), {largest, smallest});
    return isJapanese ? FormatText(Text(named), {m_strName, smallest, largest})
                      : FormatText(Text(named), {largest, smallest, m_strName});
}

} // namespace skeldon
