#pragma once

#include "resources/Menus.h"
#include "resources/StringTable.h"

#include <QString>

namespace skeldon::test {

/// The menu as lines: two blanks a level, the text as it stands, "-" for a separator.
inline QString Drawn(const Menu& menu, int level = 0)
{
    QString lines;
    for (const MenuEntry& entry : menu) {
        lines += QString(2 * level, u' ');
        lines += entry.kind == MenuEntryKind::Separator ? QStringLiteral("-") : Text(entry.text);
        lines += u'\n';
        lines += Drawn(entry.entries, level + 1);
    }
    return lines;
}

} // namespace skeldon::test
