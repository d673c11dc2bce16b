#include "resources/StringTableParts.h"

#include <QCoreApplication>

#include <array>
#include <cstddef>

namespace skeldon {

const StringEntry* FindEntry(StringId id)
{
    for (const auto part : StringTableParts()) {
        const auto first = static_cast<int>(part.front().id);
        const auto index = static_cast<int>(id) - first;
        if (index >= 0 && index < static_cast<int>(part.size()))
            return &part[static_cast<std::size_t>(index)];
    }
    return nullptr;
}

QString Text(StringId id)
{
    const auto* entry = FindEntry(id);
    if (entry == nullptr)
        return {};
    return QCoreApplication::translate("StringTable", entry->text.english, entry->text.name);
}

std::span<const std::span<const StringEntry>> StringTableParts()
{
    static const std::array parts{
        FrameTexts(),    MenusTexts(), DataViewTexts(), ControlsTexts(), ChartTexts(),
        RecorderTexts(), SetupTexts(), WizardTexts(),   SettingsTexts(), AdditionsTexts(),
    };
    return parts;
}

} // namespace skeldon
